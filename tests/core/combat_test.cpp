#include "support.h"

#include <gtest/gtest.h>

#include <tuple>

namespace vantorel {
namespace {

using testing::CustomCombat;

void AccMods(Calculator& c, int count) {
    c.Alpha().RelativeDPS.setValue(0);
    for (int i = 1; i <= 3; ++i)
        c.Alpha().WeaponMod[i].setIndex(i <= count ? 1 : 0);
}

TEST(Combat, DefaultsGiveTheStandardCriticalFactor) {
    Program c;
    ModifiedCritical(c, 1);
    EXPECT_EQ(CriticalMultiplier(c, 1, Severity::Plain, 0, 0), 1.03375f);
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
        Program c;
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
    Program c;
    CustomCombat(c, 1, "9", "", "");
    c.Alpha().TargetDefense.setText("0");
    AccMods(c, 3);
    c.Alpha().Accuracy.setValue(1);
    EXPECT_EQ(c.Alpha().CritH.tooltip(), "Critical Chance- Base: 2.5%, Attack Vectors: 2%, Excess Accuracy: 4%");
    EXPECT_EQ(c.Alpha().CritD.tooltip(), "Critical Severity- Base: 50%, Excess Accuracy: 40%");
    // Switching accuracy off drops the excess and recomputes the criticals.
    c.Alpha().Accuracy.setValue(0);
    ModifiedAccuracy(c, 1);
    EXPECT_EQ(std::tuple(c.Alpha().HitRate.caption(), c.Alpha().HitRate.tooltip()), std::tuple("100%", ""));
    EXPECT_EQ(std::tuple(c.state.ExcessAccuracy[1], c.state.AccuracyFactor[1]), std::tuple(0.0f, 1.0f));
    EXPECT_EQ(std::tuple(c.Alpha().CritH.caption(), c.Alpha().CritD.caption()), std::tuple("4.5%", "50%"));
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
        Program c;
        CustomCombat(c, k.vessel, k.vectors, "", k.strategy, k.item);
        if (k.mods) {
            c.Alpha().RelativeDPS.setValue(0);
            for (int i = 1; i <= 3; ++i)
                c.settings[k.vessel].WeaponMod[i].setIndex(k.mods[i - 1] - '0');
        }
        ModifiedCritical(c, k.vessel);
        const VesselSettings& s = c.settings[k.vessel];
        EXPECT_EQ(std::tuple(s.CritH.caption(), s.CritD.caption()), std::tuple(k.critH, k.critD)) << k.name;
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
        Program c;
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
        Program c;
        CustomCombat(c, 1, "9", "9", "9");
        c.state.AttackPatternAlpha[1] = static_cast<std::int16_t>(k.level);
        ModifiedCritical(c, 1);
        EXPECT_EQ(c.Alpha().CritH.caption(), k.critH) << k.level;
        EXPECT_EQ(c.Alpha().CritD.caption(), k.critD) << k.level;
        EXPECT_EQ(c.Alpha().CritH.tooltip(),
                  std::string("Critical Chance- Base: 2.5%, Attack Vectors: 2%") + k.chancePiece);
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
        Program c;
        k.setUp(c);
        ModifiedResistance(c, k.vessel);
        EXPECT_FLOAT_EQ(c.state.ResistanceFactor[k.vessel], k.factor) << k.name;
        EXPECT_EQ(c.settings[k.vessel].DamageReduction.caption(), k.box) << k.name;
    }
}

// A change of a settings or skills field must reach the numbers through the
// same chain as the window's event: these drive the fields alone and look at
// the results.

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
        Program c;
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
    Program c;
    c.Alpha().RelativeDPS.setValue(0);
    EXPECT_EQ(c.Omega().RelativeDPS.value(), 0);
    // A mirrored Omega holds Alpha's choices, closed.
    EXPECT_TRUE(c.Alpha().WeaponMark.enabled() && !c.Omega().WeaponMod[3].enabled());
    EXPECT_EQ(c.Omega().WeaponMod[3].index(), c.Alpha().WeaponMod[3].index());
    EXPECT_NE(c.Alpha().CalculatedWeaponDPS[4].caption(), "");
    // A free Omega changes it for both.
    c.Omega().SameAsAlpha.setValue(0);
    EXPECT_TRUE(c.Omega().WeaponMod[3].enabled());
    c.Omega().RelativeDPS.setValue(1);
    EXPECT_EQ(c.Alpha().RelativeDPS.value(), 1);
    EXPECT_FALSE(c.Alpha().WeaponMark.enabled());
    EXPECT_EQ(std::tuple(c.Alpha().CalculatedWeaponDPS[4].caption(), c.state.BeamModifier[1]), std::tuple("", 1.0f));
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
        Program c;
        k.change(c);
        EXPECT_EQ(k.box(c).caption(), k.caption) << k.name;
    }
}

TEST(Chains, MirroredOmegaFollowsAlpha) {
    Program c;
    c.main.Forward[1].setText("Beam Array");
    CalculateFiringArcs(c);
    c.state.Comparing = -1;
    c.skills[1].BeamSkillActivated.setValue(1);
    EXPECT_EQ(c.state.BeamSkill[2], 1) << "skills";
    c.Alpha().Accuracy.setValue(1);
    EXPECT_EQ(c.state.AccuracyFactor[2], 0.5f) << "combat settings";
    EXPECT_FLOAT_EQ(c.state.ArcDPS[0][2], 0.0f) << "Omega has no weapons";
    c.skills[2].SameAsAlpha.setValue(0);
    EXPECT_EQ(c.state.BeamSkill[2], 1) << "a free Omega keeps the choices it copied";
    EXPECT_TRUE(c.skills[2].BeamSkillLevel.enabled());
    c.skills[2].BeamSkillActivated.setValue(0);
    EXPECT_EQ(std::tuple(c.state.BeamSkill[1], c.state.BeamSkill[2]), std::tuple(1, 0))
        << "a free Omega reads its own window";
}

// Custom weapons with nothing on them: no mods, skills or consoles.
void PlainCustom(Calculator& c) {
    testing::PlainCustomWeapons(c);
    VesselSettings& a = c.Alpha();
    for (int i = 1; i <= 3; ++i)
        a.WeaponMod[i].setIndex(0);
    for (int i = 1; i <= 8; ++i)
        a.WeaponSkill[i].setText("");
    for (int i = 1; i <= 4; ++i)
        a.TacticalConsole[i].setIndex(0);
    ModifiedDPS(c, 1);
}

const std::string kBare = "Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0";

TEST(Modifiers, BareReferenceWeapon) {
    Program c;
    PlainCustom(c);
    const VesselSettings& a = c.Alpha();
    EXPECT_EQ(std::tuple(c.state.CannonModifier[1], c.state.BeamModifier[1]), std::tuple(1.4223658f, 1.4223658f));
    EXPECT_EQ(std::tuple(c.state.TorpedoDamage[1], c.state.MineDamage[1]), std::tuple(1503.0f, 1878.75f));
    EXPECT_EQ(a.DisplayedDPSLabel[1].caption(), "Displayed DPS (100 Weapon Power)");
    const char* captions[8] = {"", "232", "208", "192", "160", "120", "1503", "1879"};
    for (int i = 1; i <= 7; ++i)
        EXPECT_EQ(a.CalculatedWeaponDPS[i].caption(), captions[i]) << i;
    EXPECT_EQ(a.CalculatedWeaponDPS[4].tooltip(), "Base Damage: 160, " + kBare);
    EXPECT_EQ(a.CalculatedWeaponDPS[1].tooltip(), "Base Damage: 232, " + kBare);
    EXPECT_EQ(a.CalculatedWeaponDPS[7].tooltip(), "Base Damage: 1878.8, " + kBare);
}

TEST(Modifiers, BreakdownPieces) {
    // clang-format off
    struct Case { const char* name; void (*setUp)(Calculator&); int box; const char *caption, *tooltip; } cases[] = {
        {"mark, skill, accolade, TT", [](Calculator& c) { c.Alpha().WeaponMark.setIndex(13); c.Alpha().WeaponSkill[2].setText("8"); c.Alpha().WeaponAccolade[1].setValue(1); c.state.TacticalTeam[1] = 2; },
         4, "440", "Base Damage: 160, Mark Bonus: 192, Skill Bonus:  46.4, Console Bonus:  0, accolade bonus:  3.2, Tactical Team 2: 38.4"},
        {"[Dmg]x3", [](Calculator& c) { for (int i = 1; i <= 3; ++i) c.Alpha().WeaponMod[i].setIndex(4); },
         4, "196", "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Weapon Mod [Dmg]x3: 24, Weapon Rarity (V.Rare): 12"},
        {"[Acc], None, [Dmg]", [](Calculator& c) { c.Alpha().WeaponMod[1].setIndex(1); c.Alpha().WeaponMod[3].setIndex(4); },
         4, "176", "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Weapon Mod [Dmg]: 8, Weapon Rarity (Rare): 8"},
        {"one [CrtH] is uncommon", [](Calculator& c) { c.Alpha().WeaponMod[2].setIndex(3); },
         4, "164", "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Weapon Rarity (Unc.): 4"},
        {"dual cannons x1.45", [](Calculator& c) { for (int i = 1; i <= 3; ++i) c.Alpha().WeaponMod[i].setIndex(4); c.Alpha().WeaponSkill[3].setText("1"); },
         1, "303", "Base Damage: 232, Mark Bonus: 0, Skill Bonus:  18.6, Console Bonus:  0, accolade bonus:  0, Weapon Mod [Dmg]x3: 34.8, Weapon Rarity (V.Rare): 17.4"},
        {"APA 1 caps the skill at 48", [](Calculator& c) { Nines(c); c.state.AttackPatternAlpha[1] = 1; },
         4, "203", "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Attack Pattern Alpha 1: 42.6"},
        {"APA 3 full skill", [](Calculator& c) { Nines(c); c.state.AttackPatternAlpha[1] = 3; },
         4, "256", "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Attack Pattern Alpha 3: 96"},
        {"APO 1 not capped", [](Calculator& c) { Nines(c); c.state.AttackPatternOmega[1] = 1; },
         4, "208", "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Attack Pattern Omega 1: 48"},
        {"torpedo", [](Calculator& c) { c.Alpha().WeaponAccolade[2].setValue(1); },
         6, "1533", "Base Damage: 1503, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  30.1"},
        {"mine carries 1.25", [](Calculator& c) { c.Alpha().WeaponAccolade[2].setValue(1); },
         7, "1916", "Base Damage: 1878.8, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  37.6"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        PlainCustom(c);
        k.setUp(c);
        ModifiedDPS(c, 1);
        EXPECT_EQ(c.Alpha().CalculatedWeaponDPS[k.box].caption(), k.caption) << k.name;
        EXPECT_EQ(c.Alpha().CalculatedWeaponDPS[k.box].tooltip(), k.tooltip) << k.name;
    }
}

TEST(Modifiers, OmegaAndRelativeMode) {
    Program c;
    PlainCustom(c);
    c.state.Comparing = -1;
    VesselSettings& o = c.Omega();
    o.WeaponMark.setIndex(1);
    o.WeaponAccolade[1].setValue(0);
    o.WeaponAccolade[2].setValue(0);
    o.WeaponMod[1].setIndex(4);
    ModifiedDPS(c, 2);
    // A damage mod is worth a whole mark on Omega; its breakdown shows the
    // rarity piece too, so its parts add up.
    EXPECT_EQ(o.CalculatedWeaponDPS[4].caption(), "180");
    EXPECT_EQ(o.CalculatedWeaponDPS[4].tooltip(),
              "Base Damage: 160, " + kBare + ", Weapon Mod [Dmg]: 16, Weapon Rarity (Unc.): 4");

    // Relative mode and a hidden Omega are left alone.
    Program r;
    ModifiedDPS(r, 1);
    EXPECT_EQ(std::tuple(r.state.BeamModifier[1], r.Alpha().CalculatedWeaponDPS[4].caption()), std::tuple(1.0f, ""));
    Program h;
    PlainCustom(h);
    h.state.CannonModifier[2] = 0.5f;
    ModifiedDPS(h, 2);
    EXPECT_EQ(std::tuple(h.state.CannonModifier[2], h.Omega().CalculatedWeaponDPS[4].caption()), std::tuple(0.5f, ""));
}

TEST(Modifiers, WeaponSkillBonus) {
    // clang-format off
    struct Case { const char* name; int kind; const char* boxes[9]; /* [1..8] */ float bonus; } cases[] = {
        {"beams", 1, {"", "7", "7", "1", "9", "", "", "", ""}, 17 + 52 + 28},
        {"cannons", 2, {"", "7", "1", "7", "9", "", "", "", ""}, 17 + 52 + 28},
        {"torpedoes", 3, {"", "", "", "", "", "7", "1", "7", "9"}, 17 + 28 + 52},
        {"mines", 4, {"", "", "", "", "", "7", "7", "1", "9"}, 17 + 28 + 52},
        {"fraction cut", 1, {"", "7.9", "", "", "", "", "", "", ""}, 17},
        {"closed and empty", 1, {"", "N/A", "", "abc", "", "", "", "", ""}, 0},
        {"above the table", 1, {"", "10", "", "", "", "", "", "", ""}, 0},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        testing::PlainSettings(c);
        for (int i = 1; i <= 8; ++i)
            c.Alpha().WeaponSkill[i].setText(k.boxes[i]);
        EXPECT_EQ(WeaponSkillBonus(c, static_cast<BonusKind>(k.kind), 1), k.bonus) << k.name;
    }
}

TEST(Modifiers, ConsoleBonus) {
    // clang-format off
    struct Case { const char* name; int console, mark, rarity, equipped, kind; float bonus; } cases[] = {
        {"beam, Mk I common", 1, 1, 0, 1, 1, 3.8f},
        {"beam console, cannons", 1, 1, 0, 1, 2, 0.0f},
        {"energy type, cannons", 3, 2, 1, 1, 2, 7.5f},
        {"energy type, beams", 3, 2, 1, 1, 1, 7.5f},
        {"kinetic, mines", 6, 10, 3, 1, 4, 26.0f},
        {"torpedo, torpedoes", 4, 12, 2, 1, 3, 28.0f},
        {"Max is the top mark", 2, 0, 1, 1, 2, 26.0f},
        {"step 15 outside the table", 1, 12, 3, 1, 1, 0.0f},
        {"unequipped", 1, 12, 0, 0, 1, 0.0f},
        {"empty slot", 0, 12, 0, 1, 1, 0.0f},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        testing::PlainSettings(c);
        VesselSettings& a = c.Alpha();
        a.TacticalConsole[2].setIndex(k.console);
        a.TacticalConsoleMark[2].setIndex(k.mark);
        a.TacticalConsoleRarity[2].setIndex(k.rarity);
        for (int i = 1; i <= 4; ++i)
            a.TacticalConsoleEquipped[i].setValue(i == 2 ? k.equipped : 0);
        EXPECT_EQ(ConsoleBonus(c, static_cast<BonusKind>(k.kind), 1), k.bonus) << k.name;
    }
}

TEST(Modifiers, ResetModifierReturnsToOne) {
    Program c;
    PlainCustom(c);
    ASSERT_NE(c.state.BeamModifier[1], 1.0f);
    // Back in relative mode nothing recomputes the modifiers afterwards.
    c.Alpha().RelativeDPS.setValue(1);
    c.state.BeamModifier[2] = 2.0f;
    c.Alpha().CalculatedWeaponDPS[3].setCaption("x");
    c.Alpha().TacticalConsoleEquipped[3].setValue(0);
    c.Omega().TacticalConsoleEquipped[1].setValue(0);
    ResetModifier(c);
    for (Vessel v = 1; v <= 2; ++v) {
        const CalculatorState& s = c.state;
        EXPECT_EQ(s.BeamModifier[v] + s.CannonModifier[v] + s.TorpedoDamage[v] + s.MineDamage[v], 4.0f);
        for (int i = 1; i <= 7; ++i)
            EXPECT_EQ(c.settings[v].CalculatedWeaponDPS[i].caption() + c.settings[v].CalculatedWeaponDPS[i].tooltip(),
                      "");
        for (int i = 1; i <= 4; ++i)
            EXPECT_EQ(c.settings[v].TacticalConsoleEquipped[i].value(), 1);
    }
    EXPECT_EQ(c.Alpha().MatchConsole.value(), 1);
}

} // namespace
} // namespace vantorel
