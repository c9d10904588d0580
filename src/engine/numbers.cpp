#include "engine/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <type_traits>

namespace vantorel {

namespace {

double PowerOfTen(int n) {
    static constexpr double kPowers[] = {1.0, 10.0, 100.0, 1000.0, 10000.0, 100000.0, 1000000.0};
    if (n >= 0 && n < 7) return kPowers[n];
    double p = 1.0;
    for (int i = 0; i < n; ++i)
        p *= 10.0;
    return p;
}

// The text of a number, built in place: results are written thousands of
// times a second while the user drags through a list, so no step allocates.
struct Digits {
    char buf[64];
    int len = 0;
    std::string_view view() const { return {buf, static_cast<std::size_t>(len)}; }
};

// General form with `digits` significant digits, trailing zeros dropped, and
// the program's own "1E+07" for exponents.
Digits GeneralSlow(double x, int digits) {
    Digits d;
    auto res = std::to_chars(d.buf, d.buf + sizeof d.buf, x, std::chars_format::general, digits);
    d.len = static_cast<int>(res.ptr - d.buf);
    for (int i = 0; i < d.len; ++i)
        if (d.buf[i] == 'e') d.buf[i] = 'E';
    return d;
}

// Results are rounded to three decimals; such a value is written straight
// from its thousandths. That is the general form at 7 digits whenever the
// text reads back to the same single and has at most 7 significant digits:
// the value then lies within half a unit of the text's last place.
bool ThreeDecimals(float x, Digits& out) {
    const double scaled = std::nearbyint(static_cast<double>(x) * 1000.0);
    if (!(std::fabs(scaled) < 1e9)) return false;
    if (static_cast<float>(scaled / 1000.0) != x) return false;
    long long thousandths = static_cast<long long>(scaled);
    const bool negative = thousandths < 0;
    if (negative) thousandths = -thousandths;
    long long whole = thousandths / 1000;
    int fraction = static_cast<int>(thousandths % 1000);
    char buf[32];
    char* end = buf + sizeof buf;
    char* p = end;
    int decimals = 3;
    while (decimals > 0 && fraction % 10 == 0) {
        fraction /= 10;
        --decimals;
    }
    for (int i = 0; i < decimals; ++i) {
        *--p = static_cast<char>('0' + fraction % 10);
        fraction /= 10;
    }
    if (decimals > 0) *--p = '.';
    int integerDigits = 0;
    do {
        *--p = static_cast<char>('0' + whole % 10);
        whole /= 10;
        ++integerDigits;
    } while (whole > 0);
    const bool belowOne = integerDigits == 1 && p[0] == '0';
    int significant = belowOne ? 0 : integerDigits + decimals;
    if (belowOne) {
        // 0.005, 0.05 and 0.5 have one significant digit, 0.123 three.
        bool seen = false;
        for (const char* q = p + 2; q < end; ++q) {
            if (*q != '0') seen = true;
            if (seen) ++significant;
        }
    }
    if (significant > 7) return false;
    if (negative) *--p = '-';
    out.len = static_cast<int>(end - p);
    std::copy(p, end, out.buf);
    return true;
}

// The shortest text that reads back to the same value is the general form
// too when it has at most `digits` significant digits and a plain exponent,
// and writing it is several times faster than the general formatter.
template <typename T> Digits General(T x, int digits) {
    Digits d;
    if (x == 0) {
        d.buf[0] = '0';
        d.len = 1;
        return d;
    }
    if constexpr (std::is_same_v<T, float>) {
        if (digits == 7 && ThreeDecimals(x, d)) return d;
    }
    auto res = std::to_chars(d.buf, d.buf + sizeof d.buf, x, std::chars_format::fixed);
    if (res.ec != std::errc()) return GeneralSlow(static_cast<double>(x), digits);
    const char* p = d.buf;
    if (*p == '-') ++p;
    int integerDigits = 0;
    while (p < res.ptr && *p != '.') {
        ++integerDigits;
        ++p;
    }
    int significant = 0;
    int exponent = 0;
    if (!(integerDigits == 1 && p[-1] == '0')) {
        significant = integerDigits;
        exponent = integerDigits - 1;
    }
    bool seenDigit = significant > 0;
    int zeros = 0;
    for (const char* q = p < res.ptr ? p + 1 : p; q < res.ptr; ++q) {
        if (!seenDigit && *q == '0') {
            ++zeros;
            continue;
        }
        if (!seenDigit) exponent = -(zeros + 1);
        seenDigit = true;
        ++significant;
    }
    if (significant <= digits && exponent >= -4 && exponent < digits) {
        d.len = static_cast<int>(res.ptr - d.buf);
        return d;
    }
    return GeneralSlow(static_cast<double>(x), digits);
}

// A blank or minus in the sign's place, and no "0" before a fraction.
void AppendSigned(std::string& out, const Digits& plain) {
    std::string_view digits = plain.view();
    char sign = ' ';
    if (!digits.empty() && digits[0] == '-') {
        sign = '-';
        digits.remove_prefix(1);
    }
    if (digits.size() > 1 && digits[0] == '0' && digits[1] == '.') digits.remove_prefix(1);
    out += sign;
    out += digits;
}

std::string Signed(const Digits& plain) {
    std::string out;
    AppendSigned(out, plain);
    return out;
}

Digits IntegerDigits(int x) {
    Digits d;
    d.len = static_cast<int>(std::to_chars(d.buf, d.buf + sizeof d.buf, x).ptr - d.buf);
    return d;
}

// Digits with at most one decimal point, such as "12.5", ".5" or "5.", as
// the nearest double. A value too small for any double is 0; one too large
// is nothing: no box could hold it, and 0 in its place would pass every
// range check.
std::optional<double> FixedValue(std::string_view digits) {
    const char* first = digits.data();
    const char* last = first + digits.size();
    std::string padded; // from_chars wants a digit before a leading point
    if (first < last && *first == '.') {
        padded = "0";
        padded.append(first, last);
        first = padded.data();
        last = padded.data() + padded.size();
    }
    double value = 0.0;
    const auto [ptr, ec] = std::from_chars(first, last, value, std::chars_format::fixed);
    if (ec == std::errc::result_out_of_range) {
        // Only a whole part other than 0 makes a number too large.
        const char* whole = std::find_if(first, last, [](char ch) { return ch != '0'; });
        if (whole != last && *whole != '.') return std::nullopt;
        return 0.0;
    }
    if (ec != std::errc() || ptr != last) return std::nullopt;
    return value;
}

} // namespace

float Round(float x, int n) {
    const double scale = PowerOfTen(n);
    const double scaled = static_cast<double>(x) * scale;
    return static_cast<float>(std::nearbyint(scaled) / scale);
}

double Round(double x, int n) {
    const double scale = PowerOfTen(n);
    return std::nearbyint(x * scale) / scale;
}

int WholeNumber(double x) {
    // A typed value may lie far beyond any whole number: it takes the nearer
    // end, so that the caller's own range still holds, and NaN counts as 0.
    const double whole = std::nearbyint(x);
    if (whole >= 2147483647.0) return std::numeric_limits<int>::max();
    if (whole <= -2147483648.0) return std::numeric_limits<int>::min();
    return whole == whole ? static_cast<int>(whole) : 0;
}

std::optional<double> NumericValue(std::string_view text) {
    std::size_t i = 0;
    std::size_t end = text.size();
    while (i < end && text[i] == ' ')
        ++i;
    while (end > i && text[end - 1] == ' ')
        --end;
    if (i == end) return std::nullopt;
    bool negative = false;
    if (text[i] == '+' || text[i] == '-') {
        negative = text[i] == '-';
        ++i;
    }
    // Checked by hand first: the library parsers also take exponents,
    // "inf" and hexadecimal forms, which a typed value may not be.
    bool digits = false;
    std::size_t point = std::string_view::npos;
    long long whole = 0; // the value of up to 15 digits without a point
    for (std::size_t p = i; p < end; ++p) {
        const char ch = text[p];
        if (ch >= '0' && ch <= '9') {
            digits = true;
            if (point == std::string_view::npos && whole < 100000000000000LL) whole = whole * 10 + (ch - '0');
        } else if (ch == '.' && point == std::string_view::npos) {
            point = p;
        } else {
            return std::nullopt;
        }
    }
    if (!digits) return std::nullopt;
    const bool plainWhole = point == std::string_view::npos && end - i <= 15;
    if (plainWhole) return negative ? -static_cast<double>(whole) : static_cast<double>(whole);
    const std::optional<double> value = FixedValue(text.substr(i, end - i));
    if (!value) return std::nullopt;
    return negative ? -*value : *value;
}

bool IsNumeric(std::string_view text) { return NumericValue(text).has_value(); }

double NumericOr(std::string_view text, double fallback) {
    auto v = NumericValue(text);
    return v ? *v : fallback;
}

int WholeNumberOfText(std::string_view text, int fallback) {
    auto v = NumericValue(text);
    if (!v) return fallback;
    if (*v > 32767.0 || *v < -32768.0) return fallback;
    return WholeNumber(*v);
}

double LeadingValue(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && text[i] == ' ')
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    // Blanks between the digits are skipped, as the reading of a typed
    // number always did; the first other character ends the number. A power
    // row's number fits the string's own buffer, so nothing is allocated.
    std::string digits;
    bool point = false;
    bool any = false;
    for (; i < text.size(); ++i) {
        const char ch = text[i];
        if (ch >= '0' && ch <= '9') {
            digits.push_back(ch);
            any = true;
        } else if (ch == '.' && !point) {
            point = true;
            digits.push_back(ch);
        } else if (ch != ' ') {
            break;
        }
    }
    if (!any) return 0.0;
    double value = 0.0;
    if (!point && digits.size() <= 15) {
        long long whole = 0;
        for (const char ch : digits)
            whole = whole * 10 + (ch - '0');
        value = static_cast<double>(whole);
    } else {
        // A number beyond any double reads as text that is no number does.
        value = FixedValue(digits).value_or(0.0);
    }
    return negative ? -value : value;
}

std::string PlainText(float x) { return std::string(General(x, 7).view()); }
std::string PlainText(double x) { return std::string(General(x, 15).view()); }
std::string PlainText(int x) { return std::string(IntegerDigits(x).view()); }
std::string SignedText(float x) { return Signed(General(x, 7)); }
std::string SignedText(double x) { return Signed(General(x, 15)); }
std::string SignedText(int x) { return Signed(IntegerDigits(x)); }

void AppendPlainText(std::string& out, float x) { out += General(x, 7).view(); }
void AppendPlainText(std::string& out, double x) { out += General(x, 15).view(); }
void AppendPlainText(std::string& out, int x) { out += IntegerDigits(x).view(); }
void AppendSignedText(std::string& out, float x) { AppendSigned(out, General(x, 7)); }
void AppendSignedText(std::string& out, double x) { AppendSigned(out, General(x, 15)); }
void AppendSignedText(std::string& out, int x) { AppendSigned(out, IntegerDigits(x)); }

std::string ShortestText(float x) {
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, x);
    return std::string(buf, res.ptr);
}

std::string ShortestText(double x) {
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, x);
    return std::string(buf, res.ptr);
}

std::string TrimLeft(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size() && s[i] == ' ')
        ++i;
    return std::string(s.substr(i));
}

std::string Trim(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size() && s[i] == ' ')
        ++i;
    std::size_t e = s.size();
    while (e > i && s[e - 1] == ' ')
        --e;
    return std::string(s.substr(i, e - i));
}

} // namespace vantorel
