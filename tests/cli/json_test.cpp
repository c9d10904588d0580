#include "cli/json.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

namespace vantorel {
namespace {

TEST(Json, EscapesWhatJsonCannotHoldAsIs) {
    // clang-format off
    struct Case { const char* name; std::string text; std::string expected; } cases[] = {
        {"plain", "Beam Array", R"("Beam Array")"},
        {"quote", R"(It's a "Close" button)", R"("It's a \"Close\" button")"},
        {"backslash", R"(\Images\Alpha\)", R"("\\Images\\Alpha\\")"},
        {"newline and tab", "a\nb\tc\r", R"("a\nb\tc\r")"},
        {"other control characters", std::string("\x01\x1f\x7f", 3), R"("\u0001\u001f\u007f")"},
        {"nul", std::string("a\0b", 3), R"("a\u0000b")"},
        {"utf-8 passes through", "caf\xc3\xa9 \xe2\x86\x92", "\"caf\xc3\xa9 \xe2\x86\x92\""},
        {"stray byte read as latin-1", "caf\xe9", R"("caf\u00e9")"},
        {"cut sequence", "\xe2\x86", R"("\u00e2\u0086")"},
        {"overlong form", "\xc0\xaf", R"("\u00c0\u00af")"},
        {"surrogate", "\xed\xa0\x80", R"("\u00ed\u00a0\u0080")"},
        {"trailing blank kept", "Shuttlecraft ", R"("Shuttlecraft ")"},
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(JsonString(c.text), c.expected) << c.name;
}

TEST(Json, WritesSinglesAsTheShortestTextThatReadsBack) {
    // clang-format off
    struct Case { const char* name; float x; const char* expected; } cases[] = {
        {"whole", 100.0f, "100"},
        {"a tenth", 0.1f, "0.1"},
        {"three decimals", 282.664f, "282.664"},
        {"negative, missing data", -1.0f, "-1"},
        {"zero", 0.0f, "0"},
        {"infinity", std::numeric_limits<float>::infinity(), "null"},
        {"not a number", std::numeric_limits<float>::quiet_NaN(), "null"},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(JsonNumber(c.x), c.expected) << c.name;
        if (std::string(c.expected) != "null") { EXPECT_EQ(std::strtof(c.expected, nullptr), c.x) << c.name; }
    }
}

TEST(Json, MatchesNamesLikeAShellPattern) {
    // clang-format off
    struct Case { const char* pattern; const char* name; bool matches; } cases[] = {
        {"*", "Form1.Forward[1]", true},
        {"Form1.Forward*", "Form1.Forward[1]", true},
        {"Form1.Forward*", "Form1.ForwardWeaponlabel", true},
        {"Form1.Forward*", "Form1.CForward[1]", false},
        {"Form1.Forward[1]", "Form1.Forward[1]", true},
        {"Form1.Forward[1]", "Form1.Forward[2]", false},
        {"Form1.Forward[12]", "Form1.Forward[1]", false},
        {"Form1.Forward[?]", "Form1.Forward[4]", true},
        {"Form1.FiringArcDPS[?]", "Form1.FiringArcDPS[12]", false},
        {"Form1.FiringArcDPS[*]", "Form1.FiringArcDPS[12]", true},
        {"State.ArcDPS[*,1]", "State.ArcDPS[3,1]", true},
        {"State.ArcDPS[*,1]", "State.ArcDPS[3,2]", false},
        {"*DPS*", "Alpha.RelativeDPS", true},
        {"*.Targets", "AlphaSkills.Targets", true},
        {"*.Targets", "AlphaSkills.TargetsLabel", false},
        {"Alpha", "AlphaSkills", false},
        {"Alpha*", "AlphaSkills.Targets", true},
        {"a*b*c", "aXbYbZc", true},
        {"a*b*c", "aXbYcZ", false},
        {"", "", true},
        {"", "Form1", false},
        {"**", "", true},
        {"Form1.Note", "form1.note", false},
        {"Form1.***Forward**[*]", "Form1.Forward[1]", true},
        {"***", "", true},
        {"a***", "a", true},
        {"*?*", "", false},
        {"**?**", "x", true},
        {"*[*,2]", "State.ArcDPS[0,1]", false},
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(GlobMatch(c.pattern, c.name), c.matches) << c.pattern << " ~ " << c.name;
}

// A megabyte of `*` once cost a walk of the megabyte for every name.
TEST(Json, APatternCostsAboutTheNameNotThePatternLength) {
    std::vector<std::string> names;
    for (int i = 0; i < 10000; ++i)
        names.push_back("Form1.FiringArcDPS[" + std::to_string(i) + "]");
    // clang-format off
    struct Case { const char* name; std::string pattern; int matches; } cases[] = {
        {"stars", std::string(1 << 20, '*'), 10000},
        {"stars around a digit", std::string(1 << 20, '*') + "7" + std::string(1 << 20, '*'), 3439},
        {"a long tail", "*" + std::string(1 << 20, 'x'), 0},
        {"stars and queries", [] { std::string p; for (int i = 0; i < 1 << 19; ++i) p += "*?"; return p; }(), 0},
    };
    // clang-format on
    // A pattern that costs its length for every character of every name
    // would not finish here; one that collapses its stars matches at once.
    for (const Case& c : cases) {
        const NamePattern pattern(c.pattern);
        int matches = 0;
        for (const std::string& name : names)
            matches += pattern.matches(name) ? 1 : 0;
        EXPECT_EQ(matches, c.matches) << c.name;
    }
}

} // namespace
} // namespace vantorel
