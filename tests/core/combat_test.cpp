#include "support.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using testing::CustomCombat;

void AccMods(Calculator& c, int count) {
    c.Alpha().RelativeDPS.setValue(0);
    for (int i = 1; i <= 3; ++i)
        c.Alpha().WeaponMod[i].setIndex(i <= count ? 1 : 0);
}

TEST(Combat, DefaultsGiveTheStandardCriticalFactor) {
    Calculator c;
    ModifiedCritical(c, 1);
    EXPECT_EQ(CriticalMultiplier(c, 1, false, 0, 0), 1.03375f);
    EXPECT_EQ(c.Alpha().CritH.caption(), "4.5%");
    EXPECT_EQ(c.Alpha().CritH.tooltip(), "Critical Chance- Base: 2.5%, Attack Vectors (Max): 2%");
    EXPECT_EQ(c.Alpha().CritD.caption(), "75%");
    EXPECT_EQ(c.Alpha().CritD.tooltip(), "Critical Severity- Base: 50%, Battle Strategy (Max): 25%");
    // The reserved Attack Vectors level is not read with the defaults.
    c.Alpha().CriticalSkill[1].setText("47");
    ModifiedCritical(c, 1);
    EXPECT_EQ(c.Alpha().CritH.caption(), "4.5%");
}

TEST(Combat, HitRate) {
    // clang-format off
    struct Case { const char* name; void (*setUp)(Calculator&); const char *box, *tip; float factor, excess; const char *critH, *critD; } cases[] = {
        {"defaults", [](Calculator&) {}, "50%", "Hit Rate- Base: 95%, Attack Vectors Skill: 15%, Target Defense: -60%", 0.5f, 0.0f, "4.5%", "75%"},
        {"excess from three [Acc]", [](Calculator& c) { CustomCombat(c, 1, "9", "", ""); c.Alpha().TargetDefense.setText("0"); AccMods(c, 3); },
         "140%", "Hit Rate- Base: 95%, Attack Vectors Skill: 15%, Weapon Mod [Acc]x3: 30%, Target Defense: -0%", 1.0f, 40.0f, "8.5%", "90%"},
        {"one [Acc]", [](Calculator& c) { AccMods(c, 1); }, "60%", "Hit Rate- Base: 95%, Attack Vectors Skill: 15%, Weapon Mod [Acc]: 10%, Target Defense: -60%", 0.6f, 0.0f, "4.5%", "75%"},
        {"minimum hit chance", [](Calculator& c) { CustomCombat(c, 1, "", "", ""); c.Alpha().TargetDefense.setText("100"); },
         "25%", "Hit Rate- Base: 95%, Attack Vectors Skill: 0%, Target Defense: -100%, *Minimum Hit Chance: 25%", 0.25f, 0.0f, "2.5%", "50%"},
        {"fractional level rounds", [](Calculator& c) { CustomCombat(c, 1, "4.5", "", ""); c.Alpha().TargetDefense.setText("60.25"); },
         "46.4%", "Hit Rate- Base: 95%, Attack Vectors Skill: 11.67%, Target Defense: -60.25%", 0.4641667f, 0.0f, nullptr, nullptr},
        {"relative mode ignores mods", [](Calculator& c) { AccMods(c, 3); c.Alpha().RelativeDPS.setValue(1); for (int i = 1; i <= 3; ++i) c.Alpha().WeaponMod[i].setIndex(1); },
         "50%", "Hit Rate- Base: 95%, Attack Vectors Skill: 15%, Target Defense: -60%", 0.5f, 0.0f, "4.5%", "75%"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        k.setUp(c);
        c.Alpha().Accuracy.setValue(1);
        ModifiedAccuracy(c, 1);
        EXPECT_EQ(c.Alpha().HitRate.caption(), k.box) << k.name;
        EXPECT_EQ(c.Alpha().HitRate.tooltip(), k.tip) << k.name;
        EXPECT_FLOAT_EQ(c.state.AccuracyFactor[1], k.factor) << k.name;
        EXPECT_EQ(c.state.ExcessAccuracy[1], k.excess) << k.name;
        if (k.critH) { EXPECT_EQ(c.Alpha().CritH.caption(), k.critH) << k.name; }
        if (k.critD) { EXPECT_EQ(c.Alpha().CritD.caption(), k.critD) << k.name; }
    }
}

TEST(Combat, ExcessAccuracyFeedsTheCriticalTexts) {
    Calculator c;
    CustomCombat(c, 1, "9", "", "");
    c.Alpha().TargetDefense.setText("0");
    AccMods(c, 3);
    c.Alpha().Accuracy.setValue(1);
    EXPECT_EQ(c.Alpha().CritH.tooltip(), "Critical Chance- Base: 2.5%, Attack Vectors: 2%, Excess Accuracy: 4%");
    EXPECT_EQ(c.Alpha().CritD.tooltip(), "Critical Severity- Base: 50%, Excess Accuracy: 40%");
    // Switching accuracy off drops the excess and recomputes the criticals.
    c.Alpha().Accuracy.setValue(0);
    ModifiedAccuracy(c, 1);
    EXPECT_EQ(c.Alpha().HitRate.caption(), "100%");
    EXPECT_EQ(c.Alpha().HitRate.tooltip(), "");
    EXPECT_EQ(c.state.ExcessAccuracy[1], 0.0f);
    EXPECT_EQ(c.state.AccuracyFactor[1], 1.0f);
    EXPECT_EQ(c.Alpha().CritH.caption(), "4.5%");
    EXPECT_EQ(c.Alpha().CritD.caption(), "50%");
}

TEST(Combat, CriticalBoxes) {
    // clang-format off
    struct Case { const char* name; Vessel vessel; const char *vectors, *strategy; int item; const char* mods; /* custom weapons with these mod indices in slots 1..3; relative mode if null */ const char *critH, *chanceTip, *critD, *severityTip; } cases[] = {
        {"Alpha: two decimals", 1, "5", "5", -1, nullptr, "4.17%", "Critical Chance- Base: 2.5%, Attack Vectors: 1.67%", "67.3%", "Critical Severity- Base: 50%, Battle Strategy: 17.31%"},
        {"Omega: whole numbers", 2, "5", "5", -1, nullptr, "4.5%", "Critical Chance- Base: 2.5%, Attack Vectors: 2%", "67%", "Critical Severity- Base: 50%, Battle Strategy: 17%"},
        {"empty skills", 1, "", "N/A", -1, nullptr, "2.5%", "Critical Chance- Base: 2.5%", "50%", "Critical Severity- Base: 50%"},
        {"Borg", 1, "9", "9", 2, nullptr, "5.42%", "Critical Chance- Base: 2.5%, Attack Vectors: 2%, Borg Assimilated Module: 0.92%", "84.2%", "Critical Severity- Base: 50%, Battle Strategy: 25%, Borg Assimilated Module: 9.2%"},
        {"Aegis", 1, "9", "9", 1, nullptr, "4.5%", "Critical Chance- Base: 2.5%, Attack Vectors: 2%", "75%", "Critical Severity- Base: 50%, Battle Strategy: 25%"},
        {"both items", 1, "9", "9", 3, nullptr, "5.42%", nullptr, "84.2%", nullptr},
        {"reserved level 47", 1, "47", "9", 2, nullptr, "0%", nullptr, "0%", nullptr},
        {"[CrtD]x3", 1, "9", "9", -1, "222", "4.5%", nullptr, "135%", "Critical Severity- Base: 50%, Battle Strategy: 25%, Weapon Mod [CrtD]x3: 60%"},
        {"one [CrtD]", 1, "9", "9", -1, "200", "4.5%", nullptr, "95%", "Critical Severity- Base: 50%, Battle Strategy: 25%, Weapon Mod [CrtD]: 20%"},
        {"[CrtH]x3", 1, "9", "9", -1, "333", "10.5%", "Critical Chance- Base: 2.5%, Attack Vectors: 2%, Weapon Mod [CrtH]x3: 6%", "75%", nullptr},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        CustomCombat(c, k.vessel, k.vectors, "", k.strategy, k.item);
        if (k.mods) {
            c.Alpha().RelativeDPS.setValue(0);
            for (int i = 1; i <= 3; ++i)
                c.settings[k.vessel].WeaponMod[i].setIndex(k.mods[i - 1] - '0');
        }
        ModifiedCritical(c, k.vessel);
        const VesselSettings& s = c.settings[k.vessel];
        EXPECT_EQ(s.CritH.caption(), k.critH) << k.name;
        EXPECT_EQ(s.CritD.caption(), k.critD) << k.name;
        if (k.chanceTip) { EXPECT_EQ(s.CritH.tooltip(), k.chanceTip) << k.name; }
        if (k.severityTip) { EXPECT_EQ(s.CritD.tooltip(), k.severityTip) << k.name; }
    }
}

TEST(Combat, AttackPatternSkill) {
    // clang-format off
    struct Case { const char *name, *vectors, *maneuvers, *strategy; int item; double skill; } cases[] = {
        {"all nine", "9", "9", "9", -1, 100.0},   {"Aegis adds ten", "9", "9", "9", 1, 110.0},
        {"Borg adds none", "9", "9", "9", 2, 100.0}, {"both add ten", "9", "9", "9", 3, 110.0},
        {"closed boxes", "1", "N/A", "N/A", -1, 6.0}, {"eight", "8", "", "", -1, 17.5},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        CustomCombat(c, 1, k.vectors, k.maneuvers, k.strategy, k.item);
        EXPECT_EQ(GetAttackPatternSkill(c, 1), k.skill) << k.name;
        EXPECT_EQ(GetAttackPatternSkill(c, 2), k.skill) << k.name << ": a mirrored Omega reads Alpha's";
    }
}

TEST(Combat, AttackPatternAlphaInTheCriticalBoxes) {
    // clang-format off
    struct Case { int level; const char *critH, *chancePiece, *critD, *severityPiece; } cases[] = {
        // Level 1 counts the skill of 100 as 48.
        {1, "6.28%", ", Attack Pattern Alpha 1: 1.776%", "92.8%", ", Attack Pattern Alpha 1: 17.76%"},
        {2, "7.7%", ", Attack Pattern Alpha 2: 3.2%", "107%", ", Attack Pattern Alpha 2: 32%"},
        {3, "8.5%", ", Attack Pattern Alpha 3: 4%", "115%", ", Attack Pattern Alpha 3: 40%"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        CustomCombat(c, 1, "9", "9", "9");
        c.state.AttackPatternAlpha[1] = static_cast<std::int16_t>(k.level);
        ModifiedCritical(c, 1);
        EXPECT_EQ(c.Alpha().CritH.caption(), k.critH) << k.level;
        EXPECT_EQ(c.Alpha().CritD.caption(), k.critD) << k.level;
        EXPECT_EQ(c.Alpha().CritH.tooltip(), std::string("Critical Chance- Base: 2.5%, Attack Vectors: 2%") + k.chancePiece);
        EXPECT_EQ(c.Alpha().CritD.tooltip(),
                  std::string("Critical Severity- Base: 50%, Battle Strategy: 25%") + k.severityPiece);
    }
}

TEST(Combat, Resistance) {
    // clang-format off
    struct Case { const char* name; void (*setUp)(Calculator&); Vessel vessel; float factor; const char* box; } cases[] = {
        {"off", [](Calculator&) {}, 1, 1.0f, "0%"},
        {"default", [](Calculator& c) { c.Alpha().DamageResistance.setValue(1); }, 1, 1 / 1.1188f, "10.6%"},
        {"not a number", [](Calculator& c) { CustomCombat(c, 1, "9", "9", "9"); c.Alpha().DamageResistance.setValue(1); c.Alpha().TargetResistance.setText("abc"); }, 1, 1.0f, "0%"},
        {"100 halves", [](Calculator& c) { CustomCombat(c, 1, "9", "9", "9"); c.Alpha().DamageResistance.setValue(1); c.Alpha().TargetResistance.setText("100"); }, 1, 0.5f, "50%"},
        // 11.88 - (20 + 20) counts by its magnitude.
        {"Beta below zero", [](Calculator& c) { CustomCombat(c, 1, "9", "9", "9"); c.Alpha().DamageResistance.setValue(1); c.state.AttackPatternBeta[1] = 3; }, 1, 1 / 1.2812f, "21.9%"},
        {"mirrored Omega", [](Calculator& c) { c.Omega().DamageResistance.setValue(1); c.Alpha().DamageResistance.setValue(0); }, 2, 1.0f, "0%"},
        {"free Omega", [](Calculator& c) { c.Omega().SameAsAlpha.setValue(0); c.Omega().DamageResistance.setValue(1); }, 2, 1 / 1.1188f, "10.6%"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        k.setUp(c);
        ModifiedResistance(c, k.vessel);
        EXPECT_FLOAT_EQ(c.state.ResistanceFactor[k.vessel], k.factor) << k.name;
        EXPECT_EQ(c.settings[k.vessel].DamageReduction.caption(), k.box) << k.name;
    }
}

} // namespace
} // namespace vantorel
