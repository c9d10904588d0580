// A change of a settings or skills field must reach the numbers through the
// same chain as the window's event: these drive the fields alone and look at
// the results.

#include "support.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using testing::PlainCustomWeapons;

void Nines(Calculator& c) { testing::CustomCombat(c, 1, "9", "9", "9"); }

TEST(Chains, FieldsReachTheArcs) {
    // clang-format off
    struct Case { const char* name; void (*change)(Calculator&); float row0; /* 0: only that the skill raised it above plain custom weapons */ } cases[] = {
        {"relative mode", [](Calculator&) {}, 100.0f},
        {"accuracy", [](Calculator& c) { c.Alpha().Accuracy.setValue(1); }, 50.0f},
        {"accuracy on and off", [](Calculator& c) { c.Alpha().Accuracy.setValue(1); c.Alpha().Accuracy.setValue(0); }, 100.0f},
        {"resistance", [](Calculator& c) { c.Alpha().DamageResistance.setValue(1); }, 89.381f},
        {"custom weapons", PlainCustomWeapons, 147.037f},
        {"custom and back", [](Calculator& c) { PlainCustomWeapons(c); c.Alpha().RelativeDPS.setValue(1); }, 100.0f},
        {"weapon skill", [](Calculator& c) { PlainCustomWeapons(c); c.Alpha().WeaponSkill[2].setText("8"); }, 0.0f},
        {"Fire At Will", [](Calculator& c) { c.skills[1].BeamSkillActivated.setValue(1); }, 120.0f},
        {"FAW, two targets", [](Calculator& c) { c.skills[1].BeamSkillActivated.setValue(1); c.skills[1].Targets.setText("2"); }, 240.0f},
        {"FAW level 3", [](Calculator& c) { c.skills[1].BeamSkillActivated.setValue(1); c.skills[1].BeamSkillLevel.setIndex(2); }, 135.0f},
        {"reserved level 47", [](Calculator& c) { c.Alpha().CriticalSettings.setValue(0); c.Alpha().CriticalSkill[1].setText("47"); }, 96.735f},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        c.main.Forward[1].setText("Beam Array");
        CalculateFiringArcs(c);
        k.change(c);
        if (k.row0 == 0.0f) {
            EXPECT_GT(c.state.ArcDPS[0][1], 147.037f) << k.name;
        } else {
            EXPECT_FLOAT_EQ(c.state.ArcDPS[0][1], k.row0) << k.name;
        }
    }
}

TEST(Chains, RelativeDPSIsOneSettingForBothVessels) {
    Calculator c;
    c.Alpha().RelativeDPS.setValue(0);
    EXPECT_EQ(c.Omega().RelativeDPS.value(), 0);
    EXPECT_TRUE(c.Alpha().WeaponMark.enabled() && c.Omega().WeaponMod[3].enabled());
    EXPECT_NE(c.Alpha().CalculatedWeaponDPS[4].caption(), "");
    c.Omega().RelativeDPS.setValue(1);
    EXPECT_EQ(c.Alpha().RelativeDPS.value(), 1);
    EXPECT_FALSE(c.Alpha().WeaponMark.enabled());
    EXPECT_EQ(c.Alpha().CalculatedWeaponDPS[4].caption(), "");
    EXPECT_EQ(c.state.BeamModifier[1], 1.0f);
}

TEST(Chains, SettingsBoxes) {
    // clang-format off
    struct Case { const char* name; void (*change)(Calculator&); const Label& (*box)(const Calculator&); const char* caption; } cases[] = {
        {"displayed damage", PlainCustomWeapons, [](const Calculator& c) -> const Label& { return c.Alpha().CalculatedWeaponDPS[4]; }, "160"},
        {"Tactical Team", [](Calculator& c) { PlainCustomWeapons(c); c.skills[1].TacticalTeamActivated.setValue(1); }, [](const Calculator& c) -> const Label& { return c.Alpha().CalculatedWeaponDPS[4]; }, "189"},
        {"target defense", [](Calculator& c) { c.Alpha().Accuracy.setValue(1); Nines(c); c.Alpha().TargetDefense.setText("20"); }, [](const Calculator& c) -> const Label& { return c.Alpha().HitRate; }, "90%"},
        {"an [Acc] mod", [](Calculator& c) { c.Alpha().Accuracy.setValue(1); PlainCustomWeapons(c); c.Alpha().WeaponMod[1].setIndex(1); }, [](const Calculator& c) -> const Label& { return c.Alpha().HitRate; }, "60%"},
        {"a [CrtD] mod", [](Calculator& c) { PlainCustomWeapons(c); c.Alpha().WeaponMod[2].setIndex(2); }, [](const Calculator& c) -> const Label& { return c.Alpha().CritD; }, "95%"},
        {"Borg module", [](Calculator& c) { Nines(c); c.Alpha().CriticalItem.setIndex(2); }, [](const Calculator& c) -> const Label& { return c.Alpha().CritH; }, "5.42%"},
        {"Attack Pattern Alpha", [](Calculator& c) { Nines(c); PlainCustomWeapons(c); c.skills[1].AttackPatternAlphaLevel.setIndex(0); c.skills[1].AttackPatternAlpha.setValue(1); }, [](const Calculator& c) -> const Label& { return c.Alpha().CritH; }, "6.28%"},
        {"target resistance", [](Calculator& c) { Nines(c); c.Alpha().DamageResistance.setValue(1); c.Alpha().TargetResistance.setText("100"); }, [](const Calculator& c) -> const Label& { return c.Alpha().DamageReduction; }, "50%"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        k.change(c);
        EXPECT_EQ(k.box(c).caption(), k.caption) << k.name;
    }
}

TEST(Chains, MirroredOmegaFollowsAlpha) {
    Calculator c;
    c.main.Forward[1].setText("Beam Array");
    CalculateFiringArcs(c);
    c.state.Comparing = -1;
    c.skills[1].BeamSkillActivated.setValue(1);
    EXPECT_EQ(c.state.BeamSkill[2], 1) << "skills";
    c.Alpha().Accuracy.setValue(1);
    EXPECT_EQ(c.state.AccuracyFactor[2], 0.5f) << "combat settings";
    EXPECT_FLOAT_EQ(c.state.ArcDPS[0][2], 0.0f) << "Omega has no weapons";
    c.skills[2].SameAsAlpha.setValue(0);
    EXPECT_EQ(c.state.BeamSkill[2], 0) << "a free Omega reads its own window";
    EXPECT_TRUE(c.skills[2].BeamSkillLevel.enabled());
}

} // namespace
} // namespace vantorel
