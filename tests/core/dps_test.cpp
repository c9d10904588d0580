#include "support.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

float Dps(Calculator& c, int dhc, int dc, int dbb, int cannons, int arrays, int turrets, int shuttles,
          int power = 100, int distance = 0, bool noSkills = false) {
    return CalculateDPS(c, dhc, dc, dbb, cannons, arrays, turrets, shuttles, power, distance, 1, noSkills);
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
    Calculator c;
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
        EXPECT_EQ(GetRangeMod(k.distance, k.group), k.expected) << k.distance << "/" << k.group;
    // Cannons lose nothing at 2 km; a lone weapon is summed in single precision.
    Calculator c;
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
        Calculator c;
        VesselSettings& a = c.Alpha();
        a.CriticalSettings.setValue(k.criticalSettings);
        a.CriticalSkill[1].setText(k.vectors);
        a.CriticalSkill[3].setText(k.strategy);
        a.CriticalItem.setIndex(k.item);
        EXPECT_EQ(CriticalMultiplier(c, 1, k.boosted, 0.0f, 0.0f), k.expected) << k.name;
    }
    // Weapon mods count only outside relative mode.
    Calculator c;
    c.Alpha().WeaponMod[1].setIndex(2);
    c.Alpha().WeaponMod[2].setIndex(3);
    EXPECT_EQ(CriticalMultiplier(c, 1, false, 0.0f, 0.0f), 1.03375f);
    c.Alpha().RelativeDPS.setValue(0);
    EXPECT_EQ(CriticalMultiplier(c, 1, false, 0.0f, 0.0f), (0.045f + 0.02f) * (0.75f + 0.2f) + 1.0f);
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
        Calculator c;
        c.state.BeamSkill[1] = static_cast<std::int16_t>(k.beam);
        c.state.RapidFire[1] = static_cast<std::int16_t>(k.rapid);
        c.state.ScatterVolley[1] = static_cast<std::int16_t>(k.scatter);
        c.state.SkillTargets[1] = static_cast<std::int16_t>(k.targets);
        EXPECT_EQ(BeamSkillModifier(c, 1), k.beamFactor) << k.name;
        EXPECT_EQ(CannonSkillModifier(c, 1, false), k.cannonFactor) << k.name;
        EXPECT_EQ(CannonSkillModifier(c, 1, true), k.turretFactor) << k.name;
    }
    // The no-skills pass ignores activated skills.
    Calculator c;
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
        Calculator c;
        c.main.TargetDistance[1].setIndex(k.alpha);
        c.main.TargetDistance[2].setIndex(k.omega);
        EXPECT_EQ(GetRange(c, 2), k.expected) << k.name;
    }
}

} // namespace
} // namespace vantorel
