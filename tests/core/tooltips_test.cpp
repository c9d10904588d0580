#include "engine/calculator.h"
#include "engine/numbers.h"

#include <gtest/gtest.h>

#include <memory>
#include <regex>
#include <string>

namespace vantorel {
namespace {

struct Counts {
    int dhc = 0, dc = 0, dbb = 0, cannons = 0, arrays = 0, turrets = 0, shuttles = 0;
};

std::string Tip(Calculator& c, const Counts& n, Vessel v = 1) {
    return CalculateToolTip(c, n.dhc, n.dc, n.dbb, n.cannons, n.arrays, n.turrets, n.shuttles, 100, 0, v);
}

float Dps(Calculator& c, const Counts& n) {
    return CalculateDPS(c, n.dhc, n.dc, n.dbb, n.cannons, n.arrays, n.turrets, n.shuttles, 100, 0, 1, false);
}

// With one kind in the row and relative mode, the entry is the box's value.
TEST(ToolTips, OneKindMatchesTheBox) {
    struct Case {
        const char* entry;
        Counts counts;
    } cases[] = {
        {"1 Dual Heavy Cannons:", {.dhc = 1}},
        {"3 Dual Heavy Cannons:", {.dhc = 3}},
        {"1 Dual Cannons:", {.dc = 1}},
        {"2 Dual Cannons:", {.dc = 2}},
        {"1 Dual Beam Bank:", {.dbb = 1}},
        {"2 Dual Beam Banks:", {.dbb = 2}},
        {"1 Cannon:", {.cannons = 1}},
        {"4 Cannons:", {.cannons = 4}},
        {"1 Beam Array:", {.arrays = 1}},
        {"8 Beam Arrays:", {.arrays = 8}},
        {"1 Turret:", {.turrets = 1}},
        {"3 Turrets:", {.turrets = 3}},
        {"2 Shuttle Beam Arrays:", {.shuttles = 2}},
    };
    for (const Case& k : cases) {
        auto c = std::make_unique<Calculator>();
        EXPECT_EQ(Tip(*c, k.counts), k.entry + SignedText(Dps(*c, k.counts))) << k.entry;
    }
}

TEST(ToolTips, Texts) {
    struct Case {
        const char* name;
        void (*setUp)(CalculatorState&);
        Counts counts;
        const char* pattern; // whole text; N stands for a number in signed form
    } cases[] = {
        {"no weapon", [](CalculatorState&) {}, {}, ""},
        {"one beam array", [](CalculatorState&) {}, {.arrays = 1}, "1 Beam Array: 100"},
        {"a value below one",
         [](CalculatorState& s) { s.AccuracyFactor[1] = 0.005f; },
         {.arrays = 1},
         "1 Beam Array: .5"},
        {"three kinds in order",
         [](CalculatorState&) {},
         {.dc = 2, .cannons = 1, .turrets = 1},
         "2 Dual Cannons: N, 1 Cannon: N, 1 Turret: N"},
        {"all seven kinds in order",
         [](CalculatorState&) {},
         {.dhc = 1, .dc = 1, .dbb = 1, .cannons = 1, .arrays = 1, .turrets = 1, .shuttles = 1},
         "1 Dual Heavy Cannons: N, 1 Dual Cannons: N, 1 Dual Beam Bank: N, 1 Cannon: N, 1 Beam Array: N, 1 Turret: N, "
         "1 Shuttle Beam Array: N"},
        {"Fire At Will at one target",
         [](CalculatorState& s) { s.BeamSkill[1] = 2; },
         {.arrays = 2},
         "2 Beam Arrays \\(Fire At Will 2, 1 Target\\): N"},
        {"Fire At Will writes every target",
         [](CalculatorState& s) {
             s.BeamSkill[1] = 3;
             s.SkillTargets[1] = 5;
         },
         {.shuttles = 2},
         "2 Shuttle Beam Arrays \\(Fire At Will 3, 5 Targets\\): N"},
        {"Rapid Fire alone when both cannon skills are set",
         [](CalculatorState& s) {
             s.RapidFire[1] = 3;
             s.ScatterVolley[1] = 1;
         },
         {.dc = 2},
         "2 Dual Cannons \\(Rapid Fire 3\\): N"},
        {"Scatter Volley at one target",
         [](CalculatorState& s) { s.ScatterVolley[1] = 2; },
         {.cannons = 1},
         "1 Cannon \\(Scatter Volley 2, 1 Target\\): N"},
        {"Scatter Volley writes three of five targets",
         [](CalculatorState& s) {
             s.ScatterVolley[1] = 1;
             s.SkillTargets[1] = 5;
         },
         {.turrets = 3},
         "3 Turrets \\(Scatter Volley 1, 3 Targets\\): N"},
        {"cannon skills leave beams alone",
         [](CalculatorState& s) { s.RapidFire[1] = 1; },
         {.dbb = 1, .cannons = 1},
         "1 Dual Beam Bank: N, 1 Cannon \\(Rapid Fire 1\\): N"},
        {"dual cannons without data show 0",
         [](CalculatorState&) {},
         {.dc = 1, .arrays = 7},
         "1 Dual Cannons: 0, 7 Beam Arrays: N"},
    };
    for (const Case& k : cases) {
        auto c = std::make_unique<Calculator>();
        k.setUp(c->state);
        std::string pattern = k.pattern;
        for (std::size_t at = pattern.find('N'); at != std::string::npos; at = pattern.find('N', at))
            pattern.replace(at, 1, "[0-9]*\\.?[0-9]+");
        const std::string text = Tip(*c, k.counts);
        EXPECT_TRUE(std::regex_match(text, std::regex(pattern))) << k.name << ": " << text;
    }
}

TEST(ToolTips, CustomModeAddsToTheCriticalFactor) {
    auto c = std::make_unique<Calculator>();
    c->Alpha().RelativeDPS.setValue(0);
    c->state.BeamModifier[1] = 1.0f;
    // 96.735 x (1.03375 + 0.03375), where the box multiplies by 1.03375.
    EXPECT_EQ(Tip(*c, {.arrays = 1}), "1 Beam Array: 103.265");
}

} // namespace
} // namespace vantorel
