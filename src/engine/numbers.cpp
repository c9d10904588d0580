#include "engine/numbers.h"

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
std::string General(double x, int digits) {
    if (x == 0.0) return "0";
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::general, digits);
    std::string s(buf, res.ptr);
    // "1e+07" style exponents: write as the program's own "1E+07".
    for (auto& ch : s) {
        if (ch == 'e') ch = 'E';
    }
    return s;
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
    const std::size_t n = text.size();
    while (i < n && text[i] == ' ')
        ++i;
    std::size_t end = n;
    while (end > i && text[end - 1] == ' ')
        --end;
    if (i == end) return std::nullopt;
    std::string cleaned;
    std::size_t p = i;
    if (text[p] == '+' || text[p] == '-') {
        if (text[p] == '-') cleaned.push_back('-');
        ++p;
    }
    bool digits = false;
    bool point = false;
    for (; p < end; ++p) {
        const char ch = text[p];
        if (ch >= '0' && ch <= '9') {
            digits = true;
            cleaned.push_back(ch);
        } else if (ch == '.' && !point) {
            point = true;
            cleaned.push_back(ch);
        } else {
            return std::nullopt;
        }
    }
    if (!digits) return std::nullopt;
    return std::strtod(cleaned.c_str(), nullptr);
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
    std::string cleaned;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        if (text[i] == '-') cleaned.push_back('-');
        ++i;
    }
    bool point = false;
    for (; i < text.size(); ++i) {
        const char ch = text[i];
        if (ch >= '0' && ch <= '9') {
            cleaned.push_back(ch);
        } else if (ch == '.' && !point) {
            point = true;
            cleaned.push_back(ch);
        } else if (ch != ' ') {
            break;
        }
    }
    if (cleaned.empty() || cleaned == "-" || cleaned == "." || cleaned == "-.") return 0.0;
    return std::strtod(cleaned.c_str(), nullptr);
}

std::string PlainText(float x) { return General(static_cast<double>(x), 7); }
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
