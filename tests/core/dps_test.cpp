#include "engine/calculator.h"
#include "engine/numbers.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

struct Loadout {
    const char* name;
    int dhc, dc, dbb, cannons, beamArrays, turrets, shuttles;
    float expected;
};

TEST(DpsAssembly, DefaultSettingsAtFullPower) {
    Calculator c;
    const Loadout cases[] = {
        {"nothing", 0, 0, 0, 0, 0, 0, 0, 0.0f},
        {"one beam array", 0, 0, 0, 0, 1, 0, 0, 100.0f},
        {"heavy, dual and single cannon", 1, 1, 0, 1, 0, 0, 0, 350.341f},
        {"banks, dual cannons and turrets", 0, 1, 2, 0, 0, 3, 0, 426.173f},
        {"banks and cannons", 0, 0, 2, 2, 0, 0, 0, 391.955f},
        {"dual cannons and turrets", 0, 3, 0, 0, 0, 2, 0, 428.669f},
        {"heavies, bank and turrets", 2, 0, 1, 0, 0, 2, 0, 440.832f},
        {"cannons, bank, array and turrets", 0, 0, 1, 2, 1, 2, 0, 412.191f},
        {"arrays and a bank", 0, 0, 1, 0, 2, 0, 0, 282.664f},
        {"one of each but arrays", 1, 1, 1, 1, 0, 1, 0, 457.993f},
        {"eight with dual cannons", 0, 2, 2, 0, 2, 2, 0, -1.0f},
        {"eight with dual heavy cannons", 1, 0, 0, 3, 0, 4, 0, -1.0f},
    };
    for (const Loadout& l : cases)
        EXPECT_EQ(CalculateDPS(c, l.dhc, l.dc, l.dbb, l.cannons, l.beamArrays, l.turrets, l.shuttles, 100, 0, 1, false),
                  l.expected)
            << l.name;
}

TEST(DpsAssembly, EightWithoutDualCannonsHaveData) {
    Calculator c;
    const float dps = CalculateDPS(c, 0, 0, 0, 0, 4, 4, 0, 100, 0, 1, false);
    EXPECT_GT(dps, 0.0f);
}

TEST(DpsAssembly, RangeFactors) {
    struct Case {
        int distance, group;
        float expected;
    } cases[] = {
        {0, 1, 1.0f}, {1, 1, 0.9611111f}, {9, 1, 0.65f}, {1, 2, 1.0f}, {2, 2, 0.91875f}, {9, 2, 0.35f},
    };
    for (const Case& k : cases)
        EXPECT_EQ(GetRangeMod(k.distance, k.group), k.expected) << k.distance << "/" << k.group;
}

TEST(DpsAssembly, DistanceSparesCannonsAtTwoKilometres) {
    Calculator c;
    EXPECT_EQ(CalculateDPS(c, 0, 0, 0, 1, 0, 0, 0, 100, 1, 1, false),
              CalculateDPS(c, 0, 0, 0, 1, 0, 0, 0, 100, 0, 1, false));
    // A lone weapon is summed in single precision.
    const float beam = 96.735f * 0.9611111f * 1.0f * 1.0f * 1.03375f;
    EXPECT_EQ(CalculateDPS(c, 0, 0, 0, 0, 1, 0, 0, 100, 1, 1, false), Round(beam, 3));
}

TEST(DpsAssembly, CriticalMultiplier) {
    struct Case {
        const char* name;
        int criticalSettings;
        const char* vectors;
        const char* strategy;
        int item;
        bool boosted;
        float expected;
    } cases[] = {
        {"defaults", 1, "", "", -1, false, 1.03375f},
        {"defaults, dual heavy cannons", 1, "", "", -1, true, 0.045f * (0.75f + 0.1f) + 1.0f},
        {"defaults ignore the reserved level", 1, "47", "", -1, false, 1.03375f},
        {"reserved Attack Vectors level", 0, "47", "9", -1, false, 1.0f},
        {"reserved level, boosted", 0, "47", "9", 3, true, 1.0f},
        {"no skills", 0, "", "N/A", 0, false, 0.025f * 0.5f + 1.0f},
        {"maximum skills match the defaults", 0, "9", "9", 0, false,
         (0.025f + (18.0f * 2.0f) / 1800.0f) * (0.5f + (52.0f * 25.0f) / 5200.0f) + 1.0f},
        {"Borg module", 0, "", "", 2, false, (0.025f + 0.0092f) * (0.5f + 0.092f) + 1.0f},
        {"Aegis only changes attack patterns", 0, "", "", 1, false, 0.025f * 0.5f + 1.0f},
    };
    for (const Case& k : cases) {
        Calculator c;
        VesselSettings& a = c.Alpha();
        a.CriticalSettings.setValue(k.criticalSettings);
        a.CriticalSkill[1].setText(k.vectors);
        a.CriticalSkill[3].setText(k.strategy);
        a.CriticalItem.setIndex(k.item);
        EXPECT_EQ(CriticalMultiplier(c, 1, k.boosted, 0.0f, 0.0f), k.expected) << k.name;
    }
}

TEST(DpsAssembly, WeaponModsCountOnlyOutsideRelativeMode) {
    Calculator c;
    c.Alpha().WeaponMod[1].setIndex(2);
    c.Alpha().WeaponMod[2].setIndex(3);
    EXPECT_EQ(CriticalMultiplier(c, 1, false, 0.0f, 0.0f), 1.03375f);
    c.Alpha().RelativeDPS.setValue(0);
    EXPECT_EQ(CriticalMultiplier(c, 1, false, 0.0f, 0.0f), (0.045f + 0.02f) * (0.75f + 0.2f) + 1.0f);
}

TEST(DpsAssembly, SkillFactors) {
    struct Case {
        const char* name;
        int beam, rapid, scatter, targets;
        float beamFactor, cannonFactor, turretFactor;
    } cases[] = {
        {"no skills", 0, 0, 0, 1, 1.0f, 1.0f, 1.0f},
        {"fire at will 1, one target", 1, 0, 0, 1, 1.2f, 1.0f, 1.0f},
        {"fire at will 1, two targets", 1, 0, 0, 2, 2.4f, 1.0f, 1.0f},
        {"fire at will 3, five targets like two", 3, 0, 0, 5, 2.7f, 1.0f, 1.0f},
        {"rapid fire 2", 0, 2, 0, 1, 1.0f, 1.4f, 1.4f},
        {"rapid fire wins over scatter volley", 0, 3, 2, 3, 1.0f, 1.5f, 1.5f},
        {"scatter volley 1, one target", 0, 0, 1, 1, 1.0f, 1.15f, 1.168f},
        {"scatter volley 3, five targets count three", 0, 0, 3, 5, 1.0f, 1.25f * 3.0f, 1.733f * 3.0f},
    };
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
}

TEST(DpsAssembly, NoSkillsIgnoresActivatedSkills) {
    Calculator c;
    const float plain = CalculateDPS(c, 0, 1, 1, 0, 0, 1, 0, 100, 0, 1, true);
    c.state.RapidFire[1] = 3;
    c.state.BeamSkill[1] = 2;
    c.state.SkillTargets[1] = 2;
    EXPECT_EQ(CalculateDPS(c, 0, 1, 1, 0, 0, 1, 0, 100, 0, 1, true), plain);
    EXPECT_GT(CalculateDPS(c, 0, 1, 1, 0, 0, 1, 0, 100, 0, 1, false), plain);
}

TEST(DpsAssembly, OmegaRangeFollowsAlphaOnItsSameAsRow) {
    struct Case {
        const char* name;
        int alpha, omega, expected;
    } cases[] = {
        {"same as alpha", 3, 0, 3},
        {"own row", 3, 1, 0},
        {"own last row", 0, 10, 9},
        {"nothing selected", 0, -1, 0},
    };
    for (const Case& k : cases) {
        Calculator c;
        c.main.TargetDistance[1].setIndex(k.alpha);
        c.main.TargetDistance[2].setIndex(k.omega);
        EXPECT_EQ(GetRange(c, 2), k.expected) << k.name;
    }
}

} // namespace
} // namespace vantorel
