#include "support.h"

#include <gtest/gtest.h>

#include <regex>
#include <tuple>

namespace vantorel {
namespace {

float Dps(Calculator& c, int dhc, int dc, int dbb, int cannons, int arrays, int turrets, int shuttles, int power = 100,
          int distance = 0, bool noSkills = false) {
    const WeaponCounts n{dhc, dc, dbb, cannons, arrays, turrets, shuttles};
    return CalculateDPS(c, {n, power, distance}, 1, noSkills ? SkillEffect::Ignored : SkillEffect::Counted);
}

TEST(DpwCurves, BeamArrayCheckTable) {
    CalculatorState s;
    FillDPWTables(s);
    const int powers[5] = {35, 50, 75, 100, 125};
    // clang-format off
    const double expected[7][5] = {
        {27.62, 42.51, 67.142, 90.707, 114.3},  {19.936, 34.975, 59.093, 82.654, 106.912},
        {12.882, 26.423, 51.46, 74.552, 98.893}, {7.464, 19.035, 44.404, 66.733, 91.438},
        {5.566, 10.776, 36.518, 58.668, 83.23},  {4.488, 8.793, 28.382, 51.648, 75.595},
        {3.34, 6.879, 20.695, 44.472, 68.994},
    };
    // clang-format on
    for (int count = 2; count <= 8; ++count) {
        for (int p = 0; p < 5; ++p) {
            const DPW d = DPWCalc(s, powers[p], 5, count);
            EXPECT_EQ(d.type, DPW::Type::Double);
            EXPECT_EQ(d.dbl, expected[count - 2][p]) << "count " << count << " power " << powers[p];
        }
    }
}

TEST(DpwCurves, PathsAndEdgeCases) {
    CalculatorState s;
    FillDPWTables(s);
    using T = DPW::Type;
    // clang-format off
    struct Case { const char* name; int power, kind, count; DPW::Type type; double value; } cases[] = {
        {"lone array 100", 100, 5, 1, T::Single, static_cast<double>(96.735f)},
        {"lone array 50", 50, 5, 1, T::Single, static_cast<double>(static_cast<float>(48.3675))},
        {"lone array 125", 125, 5, 1, T::Single, static_cast<double>(static_cast<float>(120.91875))},
        {"dhc pair", 100, 1, 2, T::Double, 132.777},
        {"dc pair", 100, 2, 2, T::Double, 127.892},
        {"dbb pair", 100, 3, 2, T::Double, 117.94},
        {"cannon pair", 100, 4, 2, T::Double, 105.157},
        {"turret pair", 100, 6, 2, T::Double, 65.787},
        {"dhc at eight", 100, 1, 8, T::Double, 0.0},
        {"dc at eight", 100, 2, 8, T::Double, 0.0},
        {"dbb at eight", 100, 3, 8, T::Double, 65.239},
        {"turret at eight", 100, 6, 8, T::Double, 44.123},
        {"none", 100, 3, 0, T::Zero, 0.0},
        {"none at 35", 35, 1, 0, T::Zero, 0.0},
    };
    // clang-format on
    for (const Case& c : cases) {
        const DPW d = DPWCalc(s, c.power, c.kind, c.count);
        EXPECT_EQ(d.type, c.type) << c.name;
        EXPECT_EQ(d.type == T::Single ? static_cast<double>(d.single) : d.dbl, c.value) << c.name;
    }
}

TEST(DpsAssembly, DefaultSettingsAtFullPower) {
    // clang-format off
    struct Case { const char* name; int dhc, dc, dbb, cannons, arrays, turrets, shuttles; float expected; } cases[] = {
        {"nothing", 0, 0, 0, 0, 0, 0, 0, 0.0f},
        {"one array", 0, 0, 0, 0, 1, 0, 0, 100.0f},
        {"dhc, dc, cannon", 1, 1, 0, 1, 0, 0, 0, 350.341f},
        {"dbb, dc, turrets", 0, 1, 2, 0, 0, 3, 0, 426.173f},
        {"dbb, cannons", 0, 0, 2, 2, 0, 0, 0, 391.955f},
        {"dc, turrets", 0, 3, 0, 0, 0, 2, 0, 428.669f},
        {"dhc, dbb, turrets", 2, 0, 1, 0, 0, 2, 0, 440.832f},
        {"cannons, dbb, array, turrets", 0, 0, 1, 2, 1, 2, 0, 412.191f},
        {"arrays and a dbb", 0, 0, 1, 0, 2, 0, 0, 282.664f},
        {"one of each but arrays", 1, 1, 1, 1, 0, 1, 0, 457.993f},
        {"eight with dc", 0, 2, 2, 0, 2, 2, 0, -1.0f},
        {"eight with dhc", 1, 0, 0, 3, 0, 4, 0, -1.0f},
    };
    // clang-format on
    Program c;
    for (const Case& l : cases)
        EXPECT_EQ(Dps(c, l.dhc, l.dc, l.dbb, l.cannons, l.arrays, l.turrets, l.shuttles), l.expected) << l.name;
    EXPECT_GT(Dps(c, 0, 0, 0, 0, 4, 4, 0), 0.0f) << "eight without dual cannons have data";
}

TEST(DpsAssembly, RangeFactors) {
    struct Case {
        int distance, group;
        float expected;
    } cases[] = {{0, 1, 1.0f}, {1, 1, 0.9611111f}, {9, 1, 0.65f}, {1, 2, 1.0f}, {2, 2, 0.91875f}, {9, 2, 0.35f}};
    for (const Case& k : cases)
        EXPECT_EQ(GetRangeMod(k.distance, static_cast<RangeGroup>(k.group)), k.expected)
            << k.distance << "/" << k.group;
    // Cannons lose nothing at 2 km; a lone weapon is summed in single precision.
    Program c;
    EXPECT_EQ(Dps(c, 0, 0, 0, 1, 0, 0, 0, 100, 1), Dps(c, 0, 0, 0, 1, 0, 0, 0, 100, 0));
    EXPECT_EQ(Dps(c, 0, 0, 0, 0, 1, 0, 0, 100, 1), Round(96.735f * 0.9611111f * 1.0f * 1.0f * 1.03375f, 3));
}

TEST(DpsAssembly, CriticalMultiplier) {
    // clang-format off
    struct Case { const char* name; int criticalSettings; const char* vectors; const char* strategy; int item; bool boosted; float expected; } cases[] = {
        {"defaults", 1, "", "", -1, false, 1.03375f},
        {"defaults, dhc", 1, "", "", -1, true, 0.045f * (0.75f + 0.1f) + 1.0f},
        {"defaults ignore 47", 1, "47", "", -1, false, 1.03375f},
        {"reserved level 47", 0, "47", "9", -1, false, 1.0f},
        {"47, boosted", 0, "47", "9", 3, true, 1.0f},
        {"no skills", 0, "", "N/A", 0, false, 0.025f * 0.5f + 1.0f},
        {"maximum skills", 0, "9", "9", 0, false, (0.025f + (18.0f * 2.0f) / 1800.0f) * (0.5f + (52.0f * 25.0f) / 5200.0f) + 1.0f},
        {"Borg", 0, "", "", 2, false, (0.025f + 0.0092f) * (0.5f + 0.092f) + 1.0f},
        {"Aegis", 0, "", "", 1, false, 0.025f * 0.5f + 1.0f},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        testing::PlainSettings(c);
        VesselSettings& a = c.Alpha();
        a.CriticalSettings.setValue(k.criticalSettings);
        a.CriticalSkill[1].setText(k.vectors);
        a.CriticalSkill[3].setText(k.strategy);
        a.CriticalItem.setIndex(k.item);
        EXPECT_EQ(CriticalMultiplier(c, 1, k.boosted ? Severity::Boosted : Severity::Plain, 0.0f, 0.0f), k.expected)
            << k.name;
    }
    // Weapon mods count only outside relative mode.
    Program c;
    testing::PlainSettings(c);
    c.Alpha().WeaponMod[1].setIndex(2);
    c.Alpha().WeaponMod[2].setIndex(3);
    EXPECT_EQ(CriticalMultiplier(c, 1, Severity::Plain, 0.0f, 0.0f), 1.03375f);
    c.Alpha().RelativeDPS.setValue(0);
    EXPECT_EQ(CriticalMultiplier(c, 1, Severity::Plain, 0.0f, 0.0f), (0.045f + 0.02f) * (0.75f + 0.2f) + 1.0f);
}

TEST(DpsAssembly, SkillFactors) {
    // clang-format off
    struct Case { const char* name; int beam, rapid, scatter, targets; float beamFactor, cannonFactor, turretFactor; } cases[] = {
        {"none", 0, 0, 0, 1, 1.0f, 1.0f, 1.0f},
        {"FAW 1", 1, 0, 0, 1, 1.2f, 1.0f, 1.0f},
        {"FAW 1, 2 targets", 1, 0, 0, 2, 2.4f, 1.0f, 1.0f},
        {"FAW 3, 5 targets as 2", 3, 0, 0, 5, 2.7f, 1.0f, 1.0f},
        {"RF 2", 0, 2, 0, 1, 1.0f, 1.4f, 1.4f},
        {"RF wins over SV", 0, 3, 2, 3, 1.0f, 1.5f, 1.5f},
        {"SV 1", 0, 0, 1, 1, 1.0f, 1.15f, 1.168f},
        {"SV 3, 5 targets as 3", 0, 0, 3, 5, 1.0f, 1.25f * 3.0f, 1.733f * 3.0f},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        std::tie(c.state.BeamSkill[1], c.state.RapidFire[1], c.state.ScatterVolley[1], c.state.SkillTargets[1]) =
            std::tuple(k.beam, k.rapid, k.scatter, k.targets);
        EXPECT_EQ(std::tuple(BeamSkillModifier(c, 1), CannonSkillModifier(c, 1, CannonMount::Fixed),
                             CannonSkillModifier(c, 1, CannonMount::Turret)),
                  std::tuple(k.beamFactor, k.cannonFactor, k.turretFactor))
            << k.name;
    }
    // The no-skills pass ignores activated skills.
    Program c;
    const float plain = Dps(c, 0, 1, 1, 0, 0, 1, 0, 100, 0, true);
    c.state.RapidFire[1] = 3;
    c.state.BeamSkill[1] = 2;
    c.state.SkillTargets[1] = 2;
    EXPECT_EQ(Dps(c, 0, 1, 1, 0, 0, 1, 0, 100, 0, true), plain);
    EXPECT_GT(Dps(c, 0, 1, 1, 0, 0, 1, 0, 100, 0, false), plain);
}

TEST(DpsAssembly, OmegaRangeFollowsAlphaOnItsSameAsRow) {
    struct Case {
        const char* name;
        int alpha, omega, expected;
    } cases[] = {{"same as alpha", 3, 0, 3}, {"own row", 3, 1, 0}, {"own last row", 0, 10, 9}, {"none", 0, -1, 0}};
    for (const Case& k : cases) {
        Program c;
        c.main.TargetDistance[1].setIndex(k.alpha);
        c.main.TargetDistance[2].setIndex(k.omega);
        EXPECT_EQ(GetRange(c, 2), k.expected) << k.name;
    }
}

constexpr int kPhoton = 0, kQuantum = 1, kPlasma = 2, kTransphasic = 4, kTricobalt = 5;

struct Skills {
    int highYield = 0, spread = 0, targets = 1, mines = 0, overload = 0;
};

void Load(Calculator& c, int type, const Skills& k, bool relative = true) {
    c.Alpha().WeaponType[2].setIndex(type);
    if (!relative) c.Alpha().RelativeDPS.setValue(0);
    CalculatorState& s = c.state;
    std::tie(s.TorpedoHighYield[1], s.TorpedoSpread[1], s.SkillTargets[1], s.MineSkill[1], s.BeamOverload[1]) =
        std::tuple(k.highYield, k.spread, k.targets, k.mines, k.overload);
}

TEST(Burst, TorpedoSkill) {
    // clang-format off
    struct Case { const char* name; int type; Skills skills; float factor; } cases[] = {
        {"none", kQuantum, {}, 1.0f},
        {"Quantum High Yield 1", kQuantum, {.highYield = 1}, 2.227f},
        {"Transphasic Spread 1", kTransphasic, {.spread = 1}, 1.464f},
        {"Spread at two targets", kQuantum, {.spread = 1, .targets = 2}, 1.893f * 2},
        {"Spread 2: six of nine", kQuantum, {.spread = 2, .targets = 9}, 2.198f * 6},
        {"Spread 1: three of five", kQuantum, {.spread = 1, .targets = 5}, 1.893f * 3},
        {"High Yield first", kQuantum, {.highYield = 1, .spread = 3, .targets = 3}, 2.227f},
        {"Tricobalt High Yield", kTricobalt, {.highYield = 3}, 1.0f},
        {"Tricobalt Spread", kTricobalt, {.spread = 2, .targets = 4}, 1.0f},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        Load(c, k.type, k.skills);
        EXPECT_EQ(GetTorpedoSkill(c, 1), k.factor) << k.name;
    }
}

TEST(Burst, Values) {
    // clang-format off
    struct Case { const char* name; bool relative; int type; Skills skills; int torpedoes, mines; float burst; /* custom mode: on torpedo damage 1000 times the critical factor */ } cases[] = {
        {"nothing", true, kQuantum, {}, 0, 0, 0.0f},
        {"one Quantum launcher", true, kQuantum, {}, 1, 0, 1092.354f},
        {"four burst like one", true, kQuantum, {}, 4, 0, 1092.354f},
        {"mines", true, kQuantum, {}, 0, 1, 1365.443f},
        {"Dispersal Pattern 2", true, kQuantum, {.mines = 2}, 0, 2, 3277.063f},
        {"Spread 2 at nine uses six", true, kQuantum, {.spread = 2, .targets = 9}, 1, 0, 14405.969f},
        {"custom Photon", false, kPhoton, {}, 1, 0, 1.0f},
        {"custom Plasma burns 8.25%", false, kPlasma, {}, 1, 0, 1.0825f},
        {"Heavy Plasma F = 3.48", false, kPlasma, {.highYield = 1, .targets = 3}, 1, 0, 2.594f * 3.48f},
        {"custom Tricobalt T = 1", false, kTricobalt, {.highYield = 2}, 1, 0, 1.0f},
        {"custom Spread at nine", false, kQuantum, {.spread = 2, .targets = 9}, 1, 0, 2.198f * 6},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        Load(c, k.type, k.skills, k.relative);
        if (k.relative) {
            // Relative mode must not look at the custom damage.
            c.state.TorpedoDamage[1] = 99999.0f;
            c.state.MineDamage[1] = 99999.0f;
            EXPECT_EQ(CalculateBurst(c, {k.torpedoes, k.mines, 0, 0, 0}, 1), k.burst) << k.name;
        } else {
            c.state.TorpedoDamage[1] = 1000.0f;
            const float ratio =
                CalculateBurst(c, {1, 0, 0, 0, 0}, 1) / (1000.0f * CriticalMultiplier(c, 1, Severity::Plain, 0, 0));
            EXPECT_NEAR(ratio, k.burst, 2e-6 * k.burst) << k.name;
        }
    }
}

TEST(Burst, OverloadUsesOneWeaponInOrder) {
    Program c;
    Load(c, kQuantum, {.overload = 1});
    const float bank = CalculateBurst(c, {0, 0, 1, 0, 0}, 1);
    const float array = CalculateBurst(c, {0, 0, 0, 1, 0}, 1);
    const float shuttle = CalculateBurst(c, {0, 0, 0, 0, 1}, 1);
    EXPECT_EQ(array, 849.43f);
    EXPECT_GT(bank, 0.0f);
    EXPECT_NE(bank, array);
    EXPECT_EQ(CalculateBurst(c, {0, 0, 1, 1, 1}, 1), bank) << "the dual beam bank overloads";
    EXPECT_EQ(CalculateBurst(c, {0, 0, 0, 2, 1}, 1), array) << "then a beam array";
    EXPECT_EQ(CalculateBurst(c, {0, 0, 0, 0, 3}, 1), shuttle) << "then a shuttle array";
    EXPECT_EQ(CalculateBurst(c, {1, 0, 0, 0, 0}, 1), 1092.354f) << "no beam, no overload";
}

TEST(Burst, OverloadMeetsResistanceAndAccuracyTwice) {
    Program c;
    Load(c, kQuantum, {.overload = 2});
    const float plain = CalculateBurst(c, {0, 0, 0, 1, 0}, 1);
    c.state.ResistanceFactor[1] = 0.5f;
    EXPECT_NEAR(CalculateBurst(c, {0, 0, 0, 1, 0}, 1), plain * 0.25f, 0.002f);
    c.state.ResistanceFactor[1] = 1.0f;
    c.state.AccuracyFactor[1] = 0.5f;
    EXPECT_NEAR(CalculateBurst(c, {0, 0, 0, 1, 0}, 1), plain * 0.25f, 0.002f);
}

TEST(Burst, ToolTip) {
    // clang-format off
    struct Case { const char* name; int type; Skills skills; int torpedoes, mines, arrays; const char* text; } cases[] = {
        {"nothing", kQuantum, {}, 0, 0, 0, ""},
        {"torpedo", kQuantum, {}, 2, 0, 0, "Quantum Torpedo: 1092.354"},
        {"salvo", kQuantum, {.highYield = 2}, 1, 0, 0, "Quantum Torpedo Salvo 2: 2823.736"},
        {"spread at one", kQuantum, {.spread = 1}, 1, 0, 0, "Quantum Torpedo Spread 1 (1 Target): 2067.827"},
        {"spread's reach", kQuantum, {.spread = 2, .targets = 9}, 1, 0, 0, "Quantum Torpedo Spread 2 (3 Targets): 14405.97"},
        {"plasma burn", kPlasma, {}, 1, 0, 0, "Plasma Torpedo: 771.117, Plasma Burn (33% Chance): 192.779 (63.617)"},
        {"heavy plasma", kPlasma, {.highYield = 1, .targets = 2}, 1, 0, 0, "Heavy Plasma Torpedo 1 (2 Targets): 4000.552, Plasma Burn (2 Targets): 640.088"},
        {"mine cluster", kQuantum, {}, 0, 1, 0, "Mine Cluster: 1365.443"},
        {"dispersal", kQuantum, {.mines = 2}, 0, 1, 0, "Mine Dispersal Pattern 2: 3277.063"},
        {"overload", kQuantum, {.overload = 1}, 0, 0, 1, "Beam Array Overload 1: 849.43"},
        {"all three", kQuantum, {.overload = 1}, 1, 1, 1, "Quantum Torpedo: 1092.354, Mine Cluster: 1365.443, Beam Array Overload 1: 849.43"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        Load(c, k.type, k.skills);
        EXPECT_EQ(BurstToolTip(c, {k.torpedoes, k.mines, 0, k.arrays, 0}, 1), k.text) << k.name;
    }
}

std::string Tip(Calculator& c, const WeaponCounts& n) { return CalculateToolTip(c, {n, 100, 0}, 1); }

TEST(ToolTips, Texts) {
    // clang-format off
    struct Case { const char* name; void (*setUp)(CalculatorState&); WeaponCounts counts; const char* pattern; /* whole text; N: a number in signed form, @: the box's value */ } cases[] = {
        {"no weapon", [](CalculatorState&) {}, {}, ""},
        {"one array", [](CalculatorState&) {}, {.beamArrays = 1}, "1 Beam Array: 100"},
        {"below one", [](CalculatorState& s) { s.AccuracyFactor[1] = 0.005f; }, {.beamArrays = 1}, "1 Beam Array: .5"},
        {"1 dhc", [](CalculatorState&) {}, {.dualHeavyCannons = 1}, "1 Dual Heavy Cannons:@"},
        {"3 dhc", [](CalculatorState&) {}, {.dualHeavyCannons = 3}, "3 Dual Heavy Cannons:@"},
        {"2 dc", [](CalculatorState&) {}, {.dualCannons = 2}, "2 Dual Cannons:@"},
        {"1 dbb", [](CalculatorState&) {}, {.dualBeamBanks = 1}, "1 Dual Beam Bank:@"},
        {"2 dbb", [](CalculatorState&) {}, {.dualBeamBanks = 2}, "2 Dual Beam Banks:@"},
        {"1 cannon", [](CalculatorState&) {}, {.cannons = 1}, "1 Cannon:@"},
        {"4 cannons", [](CalculatorState&) {}, {.cannons = 4}, "4 Cannons:@"},
        {"8 arrays", [](CalculatorState&) {}, {.beamArrays = 8}, "8 Beam Arrays:@"},
        {"1 turret", [](CalculatorState&) {}, {.turrets = 1}, "1 Turret:@"},
        {"3 turrets", [](CalculatorState&) {}, {.turrets = 3}, "3 Turrets:@"},
        {"2 shuttle arrays", [](CalculatorState&) {}, {.shuttleBeamArrays = 2}, "2 Shuttle Beam Arrays:@"},
        {"three kinds in order", [](CalculatorState&) {}, {.dualCannons = 2, .cannons = 1, .turrets = 1}, "2 Dual Cannons: N, 1 Cannon: N, 1 Turret: N"},
        {"all seven in order", [](CalculatorState&) {}, {1, 1, 1, 1, 1, 1, 1}, "1 Dual Heavy Cannons: N, 1 Dual Cannons: N, 1 Dual Beam Bank: N, 1 Cannon: N, 1 Beam Array: N, 1 Turret: N, 1 Shuttle Beam Array: N"},
        {"FAW, one target", [](CalculatorState& s) { s.BeamSkill[1] = 2; }, {.beamArrays = 2}, "2 Beam Arrays \\(Fire At Will 2, 1 Target\\): N"},
        {"FAW, every target", [](CalculatorState& s) { s.BeamSkill[1] = 3; s.SkillTargets[1] = 5; }, {.shuttleBeamArrays = 2}, "2 Shuttle Beam Arrays \\(Fire At Will 3, 5 Targets\\): N"},
        {"RF alone of both", [](CalculatorState& s) { s.RapidFire[1] = 3; s.ScatterVolley[1] = 1; }, {.dualCannons = 2}, "2 Dual Cannons \\(Rapid Fire 3\\): N"},
        {"SV, one target", [](CalculatorState& s) { s.ScatterVolley[1] = 2; }, {.cannons = 1}, "1 Cannon \\(Scatter Volley 2, 1 Target\\): N"},
        {"SV, three of five", [](CalculatorState& s) { s.ScatterVolley[1] = 1; s.SkillTargets[1] = 5; }, {.turrets = 3}, "3 Turrets \\(Scatter Volley 1, 3 Targets\\): N"},
        {"cannon skills spare beams", [](CalculatorState& s) { s.RapidFire[1] = 1; }, {.dualBeamBanks = 1, .cannons = 1}, "1 Dual Beam Bank: N, 1 Cannon \\(Rapid Fire 1\\): N"},
        {"dc without data: 0", [](CalculatorState&) {}, {.dualCannons = 1, .beamArrays = 7}, "1 Dual Cannons: 0, 7 Beam Arrays: N"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        k.setUp(c.state);
        const WeaponCounts& n = k.counts;
        // With one kind in the row and relative mode, the entry is the box's value.
        const float box = CalculateDPS(c, {n, 100, 0}, 1, SkillEffect::Counted);
        std::string pattern = std::regex_replace(k.pattern, std::regex("N"), "[0-9]*\\.?[0-9]+");
        pattern =
            std::regex_replace(pattern, std::regex("@"), std::regex_replace(SignedText(box), std::regex("\\."), "\\."));
        const std::string text = Tip(c, n);
        EXPECT_TRUE(std::regex_match(text, std::regex(pattern))) << k.name << ": " << text;
    }
    // Custom mode adds to the critical factor: 96.735 x (1.03375 + 0.03375),
    // where the box multiplies by 1.03375.
    Program c;
    c.Alpha().RelativeDPS.setValue(0);
    c.state.BeamModifier[1] = 1.0f;
    EXPECT_EQ(Tip(c, {.beamArrays = 1}), "1 Beam Array: 103.265");
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
        // The engine takes any number; the box's own event holds it to 1 to 10.
        {"targets 0 stays", [](VesselSkills& k) { k.Targets.setHandler({}); k.Targets.setText("0"); }, {.targets = 0}},
        {"targets half to even", [](VesselSkills& k) { k.Targets.setText(" 2.5 "); }, {.targets = 2}},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        k.setUp(c.skills[1]);
        SkillUpdate(c, 1);
        EXPECT_EQ(Read(c.state, 1), k.expected) << k.name;
    }
}

TEST(SkillState, MirroredOmegaKeepsItsOwnAttackPatternAlphaLevel) {
    Program c;
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
    // Free again, Omega reads its own window: the cannon skill that Alpha's
    // events copied into it, and the box ticked there while it mirrored.
    o.SameAsAlpha.setValue(0);
    SkillUpdate(c, 2);
    EXPECT_EQ(Read(c.state, 2), (Levels{.beam = 1, .rapid = 2, .targets = 7}));
}

} // namespace
} // namespace vantorel
