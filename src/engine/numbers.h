#pragma once

// Number conventions shared by every formula and every text the program
// writes: rounding half to even, numeric text, plain and signed text.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

// Round to n decimals, half to even, keeping the type. A single is widened
// exactly to double, scaled by 10^n in double, rounded, divided and narrowed.
float Round(float x, int n = 0);
double Round(double x, int n = 0);

// A whole number from a number: half to even ("CInt"). Beyond the range of
// an int it takes the nearer end; NaN gives 0.
int WholeNumber(double x);

// Whether the whole text is a number: blanks around it, a sign and a decimal
// point are accepted; an empty text and a lone sign are not.
bool IsNumeric(std::string_view text);
// The value of a numeric text, or nothing.
std::optional<double> NumericValue(std::string_view text);
// The value of a numeric text, or `fallback`.
double NumericOr(std::string_view text, double fallback = 0.0);
// The value of one to four plain digits with blanks around them (" 9",
// "10"), or nothing: what a skill box nearly always holds, read without the
// general number reading, as skill levels are read on every recalculation.
inline std::optional<int> PlainDigits(std::string_view text) {
    const char* first = text.data();
    const char* last = first + text.size();
    while (first < last && *first == ' ')
        ++first;
    while (last > first && last[-1] == ' ')
        --last;
    if (first == last || last - first > 4) return std::nullopt;
    int whole = 0;
    for (; first < last; ++first) {
        if (*first < '0' || *first > '9') return std::nullopt;
        whole = whole * 10 + (*first - '0');
    }
    return whole;
}
// A whole number read from a numeric text (rounded half to even), or
// `fallback` if the text is not numeric. Plain digits, what a box nearly
// always holds, are read directly, to the same value.
int WholeNumberOfText(std::string_view text, int fallback);
inline int WholeNumberOf(std::string_view text, int fallback = 0) {
    if (const auto digits = PlainDigits(text)) return *digits;
    return WholeNumberOfText(text, fallback);
}
// The leading number of a text, as far as it reads ("100 (115) est." -> 100,
// "abc" -> 0): what the program reads out of a power list row.
double LeadingValue(std::string_view text);

// Plain text: shortest general form, up to 7 significant digits for a
// single and 15 for a double, "0." before a fraction: 100, 282.664, 0.5.
std::string PlainText(float x);
std::string PlainText(double x);
std::string PlainText(int x);
// Signed text: a blank or minus before the digits, no "0" before a
// fraction: " 100", " .5", "-1".
std::string SignedText(float x);
std::string SignedText(double x);
std::string SignedText(int x);

// The same texts appended to `out`, for texts built of many numbers.
void AppendPlainText(std::string& out, float x);
void AppendPlainText(std::string& out, double x);
void AppendPlainText(std::string& out, int x);
void AppendSignedText(std::string& out, float x);
void AppendSignedText(std::string& out, double x);
void AppendSignedText(std::string& out, int x);

// Shortest decimal that reads back to the same single (for JSON output).
std::string ShortestText(float x);
std::string ShortestText(double x);

std::string TrimLeft(std::string_view s);
std::string Trim(std::string_view s);

} // namespace vantorel
