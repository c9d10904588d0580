#include "engine/numbers.h"

#include <gtest/gtest.h>

#include <charconv>
#include <optional>
#include <string>

namespace vantorel {
namespace {

TEST(Numbers, RoundsHalfToEvenKeepingTheType) {
    struct Case {
        const char* name;
        double x;
        int n;
        double expected;
    } cases[] = {
        {"half down to even", 2.5, 0, 2.0},       {"half up to even", 3.5, 0, 4.0}, {"negative half", -2.5, 0, -2.0},
        {"three decimals", 282.6645, 3, 282.664}, {"below half", 0.1249, 2, 0.12},  {"whole", 7.0, 2, 7.0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Round(c.x, c.n), c.expected) << c.name;
}

TEST(Numbers, RoundsASingleThroughAnExactDouble) {
    // The single nearest 2.675 lies just below the half, so it rounds down.
    EXPECT_EQ(Round(2.675f, 2), 2.67f);
    static_assert(std::is_same_v<decltype(Round(1.0f, 1)), float>);
    static_assert(std::is_same_v<decltype(Round(1.0, 1)), double>);
    EXPECT_EQ(Round(100.0004f, 3), 100.0f);
}

TEST(Numbers, NumericText) {
    struct Case {
        const char* text;
        std::optional<double> value;
    } cases[] = {
        {"", std::nullopt},    {"-", std::nullopt},
        {"+", std::nullopt},   {" ", std::nullopt},
        {"N/A", std::nullopt}, {"abc", std::nullopt},
        {"1e5", std::nullopt}, {"7.5.1", std::nullopt},
        {".", std::nullopt},   {"7", 7.0},
        {" 7 ", 7.0},          {"-40", -40.0},
        {"+3", 3.0},           {"11.88", 11.88},
        {".5", 0.5},           {"5.", 5.0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(NumericValue(c.text), c.value) << '"' << c.text << '"';
        EXPECT_EQ(IsNumeric(c.text), c.value.has_value()) << '"' << c.text << '"';
    }
}

TEST(Numbers, WholeNumbersFromTextRoundHalfToEven) {
    EXPECT_EQ(WholeNumberOf("2.5"), 2);
    EXPECT_EQ(WholeNumberOf("3.5"), 4);
    EXPECT_EQ(WholeNumberOf(" 9 "), 9);
    EXPECT_EQ(WholeNumberOf("x", 1), 1);
    EXPECT_EQ(WholeNumberOf("", 0), 0);
}

TEST(Numbers, LeadingValueOfPowerRows) {
    struct Case {
        const char* text;
        double value;
    } cases[] = {{"100", 100}, {"100 (115) est.", 100}, {"35 (50) est.", 35}, {"abc", 0}, {"", 0}, {"75", 75}};
    for (const Case& c : cases)
        EXPECT_EQ(LeadingValue(c.text), c.value) << c.text;
}

TEST(Numbers, PlainAndSignedText) {
    struct Case {
        const char* name;
        std::string got;
        const char* expected;
    } cases[] = {
        {"single whole", PlainText(100.0f), "100"},
        {"single fraction", PlainText(282.664f), "282.664"},
        {"single below one", PlainText(0.5f), "0.5"},
        {"single seven digits", PlainText(120.91875f), "120.9187"},
        {"double fifteen digits", PlainText(1.0 / 3.0), "0.333333333333333"},
        {"negative", PlainText(-1.0f), "-1"},
        {"zero", PlainText(0.0f), "0"},
        {"signed whole", SignedText(100.0f), " 100"},
        {"signed fraction", SignedText(0.5f), " .5"},
        {"signed negative", SignedText(-1.0f), "-1"},
        {"signed negative fraction", SignedText(-0.25), "-.25"},
        {"signed int", SignedText(3), " 3"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(c.got, c.expected) << c.name;
}

// The quick writer of plain text must agree with the general form at 7 and
// 15 significant digits over the values results take.
TEST(Numbers, PlainTextIsTheGeneralForm) {
    auto general = [](double x, int digits) {
        char buf[64];
        auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::general, digits);
        std::string s(buf, res.ptr);
        for (char& ch : s)
            if (ch == 'e') ch = 'E';
        return s;
    };
    int checked = 0;
    for (int i = -20000; i <= 400000; i += 7) {
        const float f = Round(static_cast<float>(i) / 1000.0f + 0.0004f * static_cast<float>(i % 3), 3);
        ASSERT_EQ(PlainText(f), general(static_cast<double>(f), 7)) << i;
        const double d = static_cast<double>(i) / 1000.0 + 1.0 / 3.0;
        ASSERT_EQ(PlainText(d), general(d, 15)) << i;
        ++checked;
    }
    for (float f : {1e-5f, 0.0001f, 1234567.5f, 12345678.0f, 1e7f, 0.00012345678f, -0.5f, 3.4e38f})
        EXPECT_EQ(PlainText(f), general(static_cast<double>(f), 7)) << f;
    EXPECT_GT(checked, 1000);
}

TEST(Numbers, ShortestTextReadsBackToTheSameSingle) {
    for (float f : {96.735f, 0.1f, 1.4223658f, 1.03375f, 120.91875f, -1.0f}) {
        const std::string s = ShortestText(f);
        EXPECT_EQ(std::stof(s), f) << s;
    }
    EXPECT_EQ(ShortestText(0.1f), "0.1");
}

} // namespace
} // namespace vantorel
