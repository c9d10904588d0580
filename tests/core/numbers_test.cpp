#include "engine/fields.h"
#include "engine/numbers.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace vantorel {
namespace {

TEST(Numbers, RoundsHalfToEvenKeepingTheType) {
    struct Case {
        double x;
        int n;
        double expected;
    } cases[] = {{2.5, 0, 2.0},          {3.5, 0, 4.0},     {-2.5, 0, -2.0},
                 {282.6645, 3, 282.664}, {0.1249, 2, 0.12}, {7.0, 2, 7.0}};
    for (const Case& c : cases)
        EXPECT_EQ(Round(c.x, c.n), c.expected) << c.x << " to " << c.n;
    // The single nearest 2.675 lies just below the half, so it rounds down.
    EXPECT_EQ(Round(2.675f, 2), 2.67f);
    static_assert(std::is_same_v<decltype(Round(1.0f, 1)), float>);
    EXPECT_EQ(std::tuple(Round(100.0004f, 3), WholeNumberOf("2.5"), WholeNumberOf("3.5")), std::tuple(100.0f, 2, 4));
    EXPECT_EQ(std::tuple(WholeNumberOf(" 9 "), WholeNumberOf("x", 1)), std::tuple(9, 1));
    // Far beyond an int: the nearer end, as a range check after it expects.
    EXPECT_EQ(std::tuple(WholeNumber(1e10), WholeNumber(-1e300), WholeNumber(std::nan(""))),
              std::tuple(std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), 0));
}

TEST(Numbers, NumericText) {
    // clang-format off
    struct Case { const char* text; std::optional<double> value; } cases[] = {
        {"", {}},   {"-", {}},      {"+", {}},   {" ", {}},    {"N/A", {}},   {"abc", {}},   {"1e5", {}},  {"7.5.1", {}},
        {".", {}},  {"7", 7.0},     {" 7 ", 7.0}, {"-40", -40.0}, {"+3", 3.0}, {"11.88", 11.88}, {".5", 0.5}, {"5.", 5.0},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(NumericValue(c.text), c.value) << '"' << c.text << '"';
        EXPECT_EQ(IsNumeric(c.text), c.value.has_value()) << '"' << c.text << '"';
    }
    for (const char* power : {"100", "100 (115) est.", "abc", ""})
        EXPECT_EQ(LeadingValue(power), *power == '1' ? 100 : 0) << power;
}

// A typed number may run to hundreds of digits. One beyond any double is no
// number, since 0 in its place would pass every range check; one below the
// smallest double is 0; the leading value reads every digit.
TEST(Numbers, ManyDigits) {
    const std::string zeros(400, '0');
    const std::string ones(70, '1');
    // clang-format off
    struct Case { const char* name; std::string text; std::optional<double> value; double leading; } cases[] = {
        {"400 nines", std::string(400, '9'), {}, 0.0},
        {"minus 1E400 and a half", "-1" + zeros + ".5", {}, 0.0},
        {"1E-401", "0." + zeros + "1", 0.0, 0.0},
        {"1E300", "1" + zeros.substr(0, 300), 1e300, 1e300},
        {"70 ones", ones, std::stod(ones), std::stod(ones)},
        {"1E300 leading a row", "1" + zeros.substr(0, 300) + " (115) est.", {}, 1e300},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(NumericValue(c.text), c.value) << c.name;
        EXPECT_EQ(LeadingValue(c.text), c.leading) << c.name;
    }
}

// Skill boxes of plain digits are read without the general reading; both
// must give the same level for whatever a box may hold.
TEST(Numbers, PlainDigitsReadAsTheGeneralReadingDoes) {
    for (const char* text :
         {"9", " 9 ", "0009", "10", "9999", "12345", "9a", "+9", "-9", "9.5", "9 9", " ", "", "47"}) {
        EXPECT_EQ(WholeNumberOf(text, -7), WholeNumberOfText(text, -7)) << '"' << text << '"';
        if (const auto digits = PlainDigits(text)) { EXPECT_EQ(*digits, NumericValue(text).value()) << text; }
    }
}

TEST(Numbers, PlainAndSignedText) {
    // clang-format off
    struct Case { std::string got; const char* expected; } cases[] = {
        {PlainText(100.0f), "100"},    {PlainText(282.664f), "282.664"},     {PlainText(0.5f), "0.5"},
        {PlainText(120.91875f), "120.9187"}, {PlainText(1.0 / 3.0), "0.333333333333333"}, {PlainText(-1.0f), "-1"},
        {PlainText(0.0f), "0"},        {SignedText(100.0f), " 100"},         {SignedText(0.5f), " .5"},
        {SignedText(-1.0f), "-1"},     {SignedText(-0.25), "-.25"},          {SignedText(3), " 3"},
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(c.got, c.expected);
    for (float f : {96.735f, 0.1f, 1.4223658f, 1.03375f, 120.91875f, -1.0f})
        EXPECT_EQ(std::stof(ShortestText(f)), f) << ShortestText(f);
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
    for (int i = -20000; i <= 400000; i += 7) {
        const float f = Round(static_cast<float>(i) / 1000.0f + 0.0004f * static_cast<float>(i % 3), 3);
        ASSERT_EQ(PlainText(f), general(static_cast<double>(f), 7)) << i;
        const double d = static_cast<double>(i) / 1000.0 + 1.0 / 3.0;
        ASSERT_EQ(PlainText(d), general(d, 15)) << i;
    }
    for (float f : {1e-5f, 0.0001f, 1234567.5f, 12345678.0f, 1e7f, 0.00012345678f, -0.5f, 3.4e38f})
        EXPECT_EQ(PlainText(f), general(static_cast<double>(f), 7)) << f;
}

// Handlers nest: an assignment inside a handler runs the inner handler to its
// end before the outer one goes on.
TEST(Fields, HandlersRunNestedToTheirEnd) {
    std::vector<std::string> log;
    Flag outer;
    List inner({"a", "b"});
    inner.setHandler([&] { log.push_back("inner " + inner.text()); });
    outer.setHandler([&] {
        log.push_back("outer start");
        inner.setIndex(1);
        log.push_back("outer end");
    });
    outer.setValue(1);
    EXPECT_EQ(log, (std::vector<std::string>{"outer start", "inner b", "outer end"}));
}

TEST(Fields, WhenAListRaisesItsEvent) {
    int runs = 0;
    List list({"a", "b", "c"});
    list.setHandler([&] { ++runs; });
    list.setEnabled(false);
    list.setIndex(2);
    EXPECT_EQ(runs, 0) << "a disabled list is quiet";
    EXPECT_EQ(list.text(), "c");
    list.setEnabled(true);
    list.setIndex(0);
    list.setIndex(0);
    EXPECT_EQ(runs, 1) << "an assignment runs only on a new index";
    list.click(0);
    EXPECT_EQ(runs, 2) << "a click always runs";
    list.setIndex(5);
    list.click(-1);
    EXPECT_EQ(runs, 2) << "out of range is ignored";
    EXPECT_EQ(list.index(), 0);
    // Typed text is free and raises no event.
    List port({"Empty", "Beam Array"}, true);
    port.setHandler([&] { ++runs; });
    port.setText("Forward Weapon Port 1");
    EXPECT_EQ(port.index(), -1);
    port.setText("Beam Array");
    EXPECT_EQ(std::tuple(port.index(), runs), std::tuple(1, 2));
}

TEST(Fields, ListRowsAndSelectionStayInStep) {
    // clang-format off
    struct Case { const char* name; void (*edit)(List&); int index; std::string text; } cases[] = {
        {"clear", [](List& l) { l.clear(); }, -1, ""},
        {"insert before", [](List& l) { l.insertItem("x", 0); }, 2, "b"},
        {"insert after", [](List& l) { l.insertItem("x", 2); }, 1, "b"},
        {"remove before", [](List& l) { l.removeItem(0); }, 0, "b"},
        {"remove the selection", [](List& l) { l.removeItem(1); }, -1, ""},
        {"remove after", [](List& l) { l.removeItem(2); }, 1, "b"},
    };
    // clang-format on
    for (const Case& c : cases) {
        List list({"a", "b", "c"});
        list.setIndex(1);
        c.edit(list);
        EXPECT_EQ(std::tuple(list.index(), list.text()), std::tuple(c.index, c.text)) << c.name;
    }
}

TEST(Fields, ViewsAndIndexBases) {
    int refreshes = 0;
    Label box;
    box.setView([&] { ++refreshes; });
    box.setCaption("100");
    box.setCaption("100"); // no change, no refresh
    box.setBack(0x80FFFF);
    box.setVisible(false);
    EXPECT_EQ(refreshes, 3);
    Indexed<int, 1, 4> ports{};
    ports[1] = 10;
    ports[4] = 40;
    EXPECT_EQ(std::tuple(ports.items.front(), ports.items.back()), std::tuple(10, 40));
    EXPECT_THROW(ports[0], std::out_of_range);
    EXPECT_THROW(ports[5], std::out_of_range);
}

} // namespace
} // namespace vantorel
