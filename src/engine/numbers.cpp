#include "engine/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace vantorel {

namespace {

double PowerOfTen(int n) {
    double p = 1.0;
    for (int i = 0; i < n; ++i)
        p *= 10.0;
    return p;
}

// General form with `digits` significant digits, trailing zeros dropped.
std::string GeneralSlow(double x, int digits) {
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::general, digits);
    std::string s(buf, res.ptr);
    // "1e+07" style exponents: write as the program's own "1E+07".
    for (auto& ch : s) {
        if (ch == 'e') ch = 'E';
    }
    return s;
}

// The shortest text that reads back to the same value has at most `digits`
// significant digits in nearly every case the program meets (its numbers are
// rounded to three decimals), and then it is the general form as well: the
// value lies within half a unit of its last place of that text. Writing the
// shortest text is several times faster, and results are written thousands
// of times a second while the user drags through a list.
template <typename T> std::string General(T x, int digits) {
    if (x == 0) return "0";
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::fixed);
    if (res.ec != std::errc()) return GeneralSlow(static_cast<double>(x), digits);
    const char* p = buf;
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
    if (significant <= digits && exponent >= -4 && exponent < digits) return std::string(buf, res.ptr);
    return GeneralSlow(static_cast<double>(x), digits);
}

std::string Signed(std::string plain) {
    if (plain.empty()) return plain;
    std::string sign = " ";
    if (plain[0] == '-') {
        sign = "-";
        plain.erase(0, 1);
    }
    if (plain.size() > 1 && plain[0] == '0' && plain[1] == '.') plain.erase(0, 1);
    return sign + plain;
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

int WholeNumber(double x) { return static_cast<int>(std::nearbyint(x)); }

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
    long long whole = 0;
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
    double value = 0.0;
    if (plainWhole) {
        value = static_cast<double>(whole);
    } else {
        const char* first = text.data() + i;
        const char* last = text.data() + end;
        std::string padded; // from_chars wants a digit before a leading point
        if (*first == '.') {
            padded = "0";
            padded.append(first, last);
            first = padded.data();
            last = padded.data() + padded.size();
        }
        std::from_chars(first, last, value, std::chars_format::fixed);
    }
    return negative ? -value : value;
}

bool IsNumeric(std::string_view text) { return NumericValue(text).has_value(); }

double NumericOr(std::string_view text, double fallback) {
    auto v = NumericValue(text);
    return v ? *v : fallback;
}

int WholeNumberOf(std::string_view text, int fallback) {
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
    // number always did; the first other character ends the number.
    char digits[64];
    std::size_t n = 0;
    bool point = false;
    bool any = false;
    for (; i < text.size() && n + 1 < sizeof digits; ++i) {
        const char ch = text[i];
        if (ch >= '0' && ch <= '9') {
            digits[n++] = ch;
            any = true;
        } else if (ch == '.' && !point) {
            point = true;
            digits[n++] = ch;
        } else if (ch != ' ') {
            break;
        }
    }
    if (!any) return 0.0;
    double value = 0.0;
    if (digits[0] == '.') {
        char padded[65] = {'0'};
        std::copy(digits, digits + n, padded + 1);
        std::from_chars(padded, padded + n + 1, value, std::chars_format::fixed);
    } else {
        std::from_chars(digits, digits + n, value, std::chars_format::fixed);
    }
    return negative ? -value : value;
}

std::string PlainText(float x) { return General(x, 7); }
std::string PlainText(double x) { return General(x, 15); }
std::string PlainText(int x) { return std::to_string(x); }
std::string SignedText(float x) { return Signed(PlainText(x)); }
std::string SignedText(double x) { return Signed(PlainText(x)); }
std::string SignedText(int x) { return Signed(PlainText(x)); }

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
