#include "support.h"

#include <gtest/gtest.h>

#include <regex>

namespace vantorel {
namespace {

struct Counts {
    int dhc = 0, dc = 0, dbb = 0, cannons = 0, arrays = 0, turrets = 0, shuttles = 0;
};

std::string Tip(Calculator& c, const Counts& n) {
    return CalculateToolTip(c, n.dhc, n.dc, n.dbb, n.cannons, n.arrays, n.turrets, n.shuttles, 100, 0, 1);
}

TEST(ToolTips, Texts) {
    // clang-format off
    struct Case { const char* name; void (*setUp)(CalculatorState&); Counts counts; const char* pattern; /* whole text; N: a number in signed form, @: the box's value */ } cases[] = {
        {"no weapon", [](CalculatorState&) {}, {}, ""},
        {"one array", [](CalculatorState&) {}, {.arrays = 1}, "1 Beam Array: 100"},
        {"below one", [](CalculatorState& s) { s.AccuracyFactor[1] = 0.005f; }, {.arrays = 1}, "1 Beam Array: .5"},
        {"1 dhc", [](CalculatorState&) {}, {.dhc = 1}, "1 Dual Heavy Cannons:@"},
        {"3 dhc", [](CalculatorState&) {}, {.dhc = 3}, "3 Dual Heavy Cannons:@"},
        {"2 dc", [](CalculatorState&) {}, {.dc = 2}, "2 Dual Cannons:@"},
        {"1 dbb", [](CalculatorState&) {}, {.dbb = 1}, "1 Dual Beam Bank:@"},
        {"2 dbb", [](CalculatorState&) {}, {.dbb = 2}, "2 Dual Beam Banks:@"},
        {"1 cannon", [](CalculatorState&) {}, {.cannons = 1}, "1 Cannon:@"},
        {"4 cannons", [](CalculatorState&) {}, {.cannons = 4}, "4 Cannons:@"},
        {"8 arrays", [](CalculatorState&) {}, {.arrays = 8}, "8 Beam Arrays:@"},
        {"1 turret", [](CalculatorState&) {}, {.turrets = 1}, "1 Turret:@"},
        {"3 turrets", [](CalculatorState&) {}, {.turrets = 3}, "3 Turrets:@"},
        {"2 shuttle arrays", [](CalculatorState&) {}, {.shuttles = 2}, "2 Shuttle Beam Arrays:@"},
        {"three kinds in order", [](CalculatorState&) {}, {.dc = 2, .cannons = 1, .turrets = 1}, "2 Dual Cannons: N, 1 Cannon: N, 1 Turret: N"},
        {"all seven in order", [](CalculatorState&) {}, {1, 1, 1, 1, 1, 1, 1}, "1 Dual Heavy Cannons: N, 1 Dual Cannons: N, 1 Dual Beam Bank: N, 1 Cannon: N, 1 Beam Array: N, 1 Turret: N, 1 Shuttle Beam Array: N"},
        {"FAW, one target", [](CalculatorState& s) { s.BeamSkill[1] = 2; }, {.arrays = 2}, "2 Beam Arrays \\(Fire At Will 2, 1 Target\\): N"},
        {"FAW, every target", [](CalculatorState& s) { s.BeamSkill[1] = 3; s.SkillTargets[1] = 5; }, {.shuttles = 2}, "2 Shuttle Beam Arrays \\(Fire At Will 3, 5 Targets\\): N"},
        {"RF alone of both", [](CalculatorState& s) { s.RapidFire[1] = 3; s.ScatterVolley[1] = 1; }, {.dc = 2}, "2 Dual Cannons \\(Rapid Fire 3\\): N"},
        {"SV, one target", [](CalculatorState& s) { s.ScatterVolley[1] = 2; }, {.cannons = 1}, "1 Cannon \\(Scatter Volley 2, 1 Target\\): N"},
        {"SV, three of five", [](CalculatorState& s) { s.ScatterVolley[1] = 1; s.SkillTargets[1] = 5; }, {.turrets = 3}, "3 Turrets \\(Scatter Volley 1, 3 Targets\\): N"},
        {"cannon skills spare beams", [](CalculatorState& s) { s.RapidFire[1] = 1; }, {.dbb = 1, .cannons = 1}, "1 Dual Beam Bank: N, 1 Cannon \\(Rapid Fire 1\\): N"},
        {"dc without data: 0", [](CalculatorState&) {}, {.dc = 1, .arrays = 7}, "1 Dual Cannons: 0, 7 Beam Arrays: N"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        k.setUp(c.state);
        const Counts& n = k.counts;
        // With one kind in the row and relative mode, the entry is the box's value.
        const float box = CalculateDPS(c, n.dhc, n.dc, n.dbb, n.cannons, n.arrays, n.turrets, n.shuttles, 100, 0, 1, false);
        std::string pattern = std::regex_replace(k.pattern, std::regex("N"), "[0-9]*\\.?[0-9]+");
        pattern = std::regex_replace(pattern, std::regex("@"), std::regex_replace(SignedText(box), std::regex("\\."), "\\."));
        const std::string text = Tip(c, n);
        EXPECT_TRUE(std::regex_match(text, std::regex(pattern))) << k.name << ": " << text;
    }
    // Custom mode adds to the critical factor: 96.735 x (1.03375 + 0.03375),
    // where the box multiplies by 1.03375.
    Calculator c;
    c.Alpha().RelativeDPS.setValue(0);
    c.state.BeamModifier[1] = 1.0f;
    EXPECT_EQ(Tip(c, {.arrays = 1}), "1 Beam Array: 103.265");
}

struct Levels {
    int beam = 0, overload = 0, rapid = 0, scatter = 0, mine = 0, team = 0, highYield = 0, spread = 0, beta = 0,
        omega = 0, alpha = 0, targets = 1;
    auto operator<=>(const Levels&) const = default;
};

Levels Read(const CalculatorState& s, Vessel v) {
    return {s.BeamSkill[v],         s.BeamOverload[v],       s.RapidFire[v],          s.ScatterVolley[v],
            s.MineSkill[v],         s.TacticalTeam[v],       s.TorpedoHighYield[v],   s.TorpedoSpread[v],
            s.AttackPatternBeta[v], s.AttackPatternOmega[v], s.AttackPatternAlpha[v], s.SkillTargets[v]};
}

void PrintTo(const Levels& l, std::ostream* os) {
    *os << "beam " << l.beam << " overload " << l.overload << " rapid " << l.rapid << " scatter " << l.scatter
        << " mine " << l.mine << " team " << l.team << " highYield " << l.highYield << " spread " << l.spread
        << " beta " << l.beta << " omega " << l.omega << " alpha " << l.alpha << " targets " << l.targets;
}

// The list indices stand for level - 1, as in the windows.
void Tick(Flag& box, List& level, int index) {
    level.setIndex(index);
    box.setValue(1);
}

TEST(SkillState, Levels) {
    // clang-format off
    struct Case { const char* name; void (*setUp)(VesselSkills&); Levels expected; } cases[] = {
        {"nothing ticked", [](VesselSkills&) {}, {}},
        {"own boxes", [](VesselSkills& k) { Tick(k.BeamSkillActivated, k.BeamSkillLevel, 1); Tick(k.BeamOverloadActivated, k.BeamOverloadLevel, 2); Tick(k.MineSkillActivated, k.MineSkillLevel, 0); Tick(k.TacticalTeamActivated, k.TacticalTeamLevel, 2); }, {.beam = 2, .overload = 3, .mine = 1, .team = 3}},
        {"level without box", [](VesselSkills& k) { k.BeamSkillLevel.setIndex(2); }, {}},
        {"Rapid Fire", [](VesselSkills& k) { Tick(k.CannonSkillActivated, k.CannonSkillLevel, 2); }, {.rapid = 3}},
        {"Scatter Volley", [](VesselSkills& k) { k.CannonSkillSelected.setIndex(1); Tick(k.CannonSkillActivated, k.CannonSkillLevel, 1); }, {.scatter = 2}},
        {"cannon box off", [](VesselSkills& k) { k.CannonSkillSelected.setIndex(1); k.CannonSkillLevel.setIndex(2); }, {}},
        {"High Yield", [](VesselSkills& k) { Tick(k.TorpedoSkillActivated, k.TorpedoSkillLevel, 0); }, {.highYield = 1}},
        {"Spread", [](VesselSkills& k) { k.TorpedoSkillSelected.setIndex(1); Tick(k.TorpedoSkillActivated, k.TorpedoSkillLevel, 2); }, {.spread = 3}},
        {"Beta", [](VesselSkills& k) { k.AttackPatternSelected.setIndex(0); Tick(k.AttackPatternActivated, k.AttackPatternLevel, 1); }, {.beta = 2}},
        {"Delta feeds Beta", [](VesselSkills& k) { k.AttackPatternSelected.setIndex(1); Tick(k.AttackPatternActivated, k.AttackPatternLevel, 1); }, {.beta = 2}},
        {"Omega", [](VesselSkills& k) { Tick(k.AttackPatternActivated, k.AttackPatternLevel, 0); }, {.omega = 1}},
        {"APA from its level text", [](VesselSkills& k) { Tick(k.AttackPatternAlpha, k.AttackPatternAlphaLevel, 2); }, {.alpha = 3}},
        {"targets", [](VesselSkills& k) { k.Targets.setText("4"); }, {.targets = 4}},
        {"targets not a number", [](VesselSkills& k) { k.Targets.setText("x"); }, {}},
        {"targets empty", [](VesselSkills& k) { k.Targets.setText(""); }, {}},
        {"targets 0 stays", [](VesselSkills& k) { k.Targets.setText("0"); }, {.targets = 0}},
        {"targets half to even", [](VesselSkills& k) { k.Targets.setText(" 2.5 "); }, {.targets = 2}},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        k.setUp(c.skills[1]);
        SkillUpdate(c, 1);
        EXPECT_EQ(Read(c.state, 1), k.expected) << k.name;
    }
}

TEST(SkillState, MirroredOmegaKeepsItsOwnAttackPatternAlphaLevel) {
    Calculator c;
    VesselSkills& a = c.skills[1];
    VesselSkills& o = c.skills[2];
    Tick(a.CannonSkillActivated, a.CannonSkillLevel, 1);
    Tick(a.AttackPatternAlpha, a.AttackPatternAlphaLevel, 2);
    a.Targets.setText("3");
    // The Omega window's own choices, which a mirror does not read...
    o.Targets.setText("7");
    o.BeamSkillActivated.setValue(1);
    // ...except the version of Attack Pattern Alpha.
    o.AttackPatternAlphaLevel.setIndex(0);
    SkillUpdate(c, 2);
    EXPECT_EQ(Read(c.state, 2), (Levels{.rapid = 2, .alpha = 1, .targets = 3}));
    o.SameAsAlpha.setValue(0);
    SkillUpdate(c, 2);
    EXPECT_EQ(Read(c.state, 2), (Levels{.beam = 1, .targets = 7}));
}

} // namespace
} // namespace vantorel
