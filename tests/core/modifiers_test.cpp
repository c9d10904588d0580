#include "support.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

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

void Nines(Calculator& c) { testing::CustomCombat(c, 1, "9", "9", "9"); }

const std::string kBare = "Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0";

TEST(Modifiers, BareReferenceWeapon) {
    Calculator c;
    PlainCustom(c);
    const VesselSettings& a = c.Alpha();
    EXPECT_EQ(c.state.CannonModifier[1], 1.4223658f);
    EXPECT_EQ(c.state.BeamModifier[1], 1.4223658f);
    EXPECT_EQ(c.state.TorpedoDamage[1], 1503.0f);
    EXPECT_EQ(c.state.MineDamage[1], 1878.75f);
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
        Calculator c;
        PlainCustom(c);
        k.setUp(c);
        ModifiedDPS(c, 1);
        EXPECT_EQ(c.Alpha().CalculatedWeaponDPS[k.box].caption(), k.caption) << k.name;
        EXPECT_EQ(c.Alpha().CalculatedWeaponDPS[k.box].tooltip(), k.tooltip) << k.name;
    }
}

TEST(Modifiers, OmegaAndRelativeMode) {
    Calculator c;
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
    Calculator r;
    ModifiedDPS(r, 1);
    EXPECT_EQ(r.state.BeamModifier[1], 1.0f);
    EXPECT_EQ(r.Alpha().CalculatedWeaponDPS[4].caption(), "");
    Calculator h;
    PlainCustom(h);
    h.state.CannonModifier[2] = 0.5f;
    ModifiedDPS(h, 2);
    EXPECT_EQ(h.state.CannonModifier[2], 0.5f);
    EXPECT_EQ(h.Omega().CalculatedWeaponDPS[4].caption(), "");
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
        Calculator c;
        for (int i = 1; i <= 8; ++i)
            c.Alpha().WeaponSkill[i].setText(k.boxes[i]);
        EXPECT_EQ(WeaponSkillBonus(c, k.kind, 1), k.bonus) << k.name;
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
        Calculator c;
        VesselSettings& a = c.Alpha();
        a.TacticalConsole[2].setIndex(k.console);
        a.TacticalConsoleMark[2].setIndex(k.mark);
        a.TacticalConsoleRarity[2].setIndex(k.rarity);
        for (int i = 1; i <= 4; ++i)
            a.TacticalConsoleEquipped[i].setValue(i == 2 ? k.equipped : 0);
        EXPECT_EQ(ConsoleBonus(c, k.kind, 1), k.bonus) << k.name;
    }
}

TEST(Modifiers, ResetModifierReturnsToOne) {
    Calculator c;
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
            EXPECT_EQ(c.settings[v].CalculatedWeaponDPS[i].caption() + c.settings[v].CalculatedWeaponDPS[i].tooltip(), "");
        for (int i = 1; i <= 4; ++i)
            EXPECT_EQ(c.settings[v].TacticalConsoleEquipped[i].value(), 1);
    }
    EXPECT_EQ(c.Alpha().MatchConsole.value(), 1);
}

} // namespace
} // namespace vantorel
