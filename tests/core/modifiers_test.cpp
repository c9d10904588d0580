#include "engine/calculator.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace vantorel {
namespace {

// Custom weapons with nothing on them: mark 0 ("Standard Issue"), no mods,
// no accolades, no skills, no consoles.
std::unique_ptr<Calculator> PlainCustom() {
    auto c = std::make_unique<Calculator>();
    VesselSettings& a = c->Alpha();
    a.RelativeDPS.setValue(0);
    a.WeaponMark.setIndex(1);
    a.WeaponAccolade[1].setValue(0);
    a.WeaponAccolade[2].setValue(0);
    for (int i = 1; i <= 3; ++i)
        a.WeaponMod[i].setIndex(0);
    for (int i = 1; i <= 8; ++i)
        a.WeaponSkill[i].setText("");
    for (int i = 1; i <= 4; ++i)
        a.TacticalConsole[i].setIndex(0);
    ModifiedDPS(*c, 1);
    return c;
}

TEST(Modifiers, BareReferenceWeapon) {
    auto c = PlainCustom();
    const VesselSettings& a = c->Alpha();
    EXPECT_EQ(c->state.CannonModifier[1], 1.4223658f);
    EXPECT_EQ(c->state.BeamModifier[1], 1.4223658f);
    EXPECT_EQ(c->state.TorpedoDamage[1], 1503.0f);
    EXPECT_EQ(c->state.MineDamage[1], 1878.75f);
    EXPECT_EQ(a.DisplayedDPSLabel[1].caption(), "Displayed DPS (100 Weapon Power)");

    const char* captions[8] = {"", "232", "208", "192", "160", "120", "1503", "1879"};
    for (int i = 1; i <= 7; ++i)
        EXPECT_EQ(a.CalculatedWeaponDPS[i].caption(), captions[i]) << i;
    EXPECT_EQ(a.CalculatedWeaponDPS[4].tooltip(),
              "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0");
    EXPECT_EQ(a.CalculatedWeaponDPS[1].tooltip(),
              "Base Damage: 232, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0");
    EXPECT_EQ(a.CalculatedWeaponDPS[7].tooltip(),
              "Base Damage: 1878.8, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0");
}

TEST(Modifiers, BreakdownPieces) {
    struct Case {
        const char* name;
        void (*setUp)(Calculator&);
        int box;
        const char* caption;
        const char* tooltip;
    } cases[] = {
        {"mark, skill, accolade and Tactical Team",
         [](Calculator& c) {
             c.Alpha().WeaponMark.setIndex(13); // Mark XII
             c.Alpha().WeaponSkill[2].setText("8");
             c.Alpha().WeaponAccolade[1].setValue(1);
             c.state.TacticalTeam[1] = 2;
         },
         4, "440",
         "Base Damage: 160, Mark Bonus: 192, Skill Bonus:  46.4, Console Bonus:  0, accolade bonus:  3.2, Tactical "
         "Team 2: 38.4"},
        {"three [Dmg] mods",
         [](Calculator& c) {
             for (int i = 1; i <= 3; ++i)
                 c.Alpha().WeaponMod[i].setIndex(4);
         },
         4, "196",
         "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Weapon Mod "
         "[Dmg]x3: 24, Weapon Rarity (V.Rare): 12"},
        {"[Acc], None, [Dmg]",
         [](Calculator& c) {
             c.Alpha().WeaponMod[1].setIndex(1);
             c.Alpha().WeaponMod[3].setIndex(4);
         },
         4, "176",
         "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Weapon Mod [Dmg]: "
         "8, Weapon Rarity (Rare): 8"},
        {"one [CrtH] is uncommon", [](Calculator& c) { c.Alpha().WeaponMod[2].setIndex(3); }, 4, "164",
         "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Weapon Rarity "
         "(Unc.): 4"},
        {"dual cannons scale every piece by 1.45",
         [](Calculator& c) {
             for (int i = 1; i <= 3; ++i)
                 c.Alpha().WeaponMod[i].setIndex(4);
             c.Alpha().WeaponSkill[3].setText("1");
         },
         1, "303",
         "Base Damage: 232, Mark Bonus: 0, Skill Bonus:  18.6, Console Bonus:  0, accolade bonus:  0, Weapon Mod "
         "[Dmg]x3: 34.8, Weapon Rarity (V.Rare): 17.4"},
        {"Attack Pattern Alpha 1 counts the skill as 48",
         [](Calculator& c) {
             c.Alpha().CriticalSettings.setValue(0);
             for (int i = 1; i <= 3; ++i)
                 c.Alpha().CriticalSkill[i].setText("9");
             c.state.AttackPatternAlpha[1] = 1;
         },
         4, "203",
         "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Attack Pattern "
         "Alpha 1: 42.6"},
        {"Attack Pattern Alpha 3 uses the full skill",
         [](Calculator& c) {
             c.Alpha().CriticalSettings.setValue(0);
             for (int i = 1; i <= 3; ++i)
                 c.Alpha().CriticalSkill[i].setText("9");
             c.state.AttackPatternAlpha[1] = 3;
         },
         4, "256",
         "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Attack Pattern "
         "Alpha 3: 96"},
        {"Attack Pattern Omega 1 is not capped",
         [](Calculator& c) {
             c.Alpha().CriticalSettings.setValue(0);
             for (int i = 1; i <= 3; ++i)
                 c.Alpha().CriticalSkill[i].setText("9");
             c.state.AttackPatternOmega[1] = 1;
         },
         4, "208",
         "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  0, Attack Pattern "
         "Omega 1: 48"},
        {"torpedo pieces", [](Calculator& c) { c.Alpha().WeaponAccolade[2].setValue(1); }, 6, "1533",
         "Base Damage: 1503, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  30.1"},
        {"mine pieces carry the 1.25", [](Calculator& c) { c.Alpha().WeaponAccolade[2].setValue(1); }, 7, "1916",
         "Base Damage: 1878.8, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  0, accolade bonus:  37.6"},
    };
    for (const Case& k : cases) {
        auto c = PlainCustom();
        k.setUp(*c);
        ModifiedDPS(*c, 1);
        EXPECT_EQ(c->Alpha().CalculatedWeaponDPS[k.box].caption(), k.caption) << k.name;
        EXPECT_EQ(c->Alpha().CalculatedWeaponDPS[k.box].tooltip(), k.tooltip) << k.name;
    }
}

TEST(Modifiers, DamageModIsWorthAWholeMarkOnOmega) {
    auto c = PlainCustom();
    c->state.Comparing = -1;
    VesselSettings& o = c->Omega();
    o.WeaponMark.setIndex(1);
    o.WeaponAccolade[1].setValue(0);
    o.WeaponAccolade[2].setValue(0);
    o.WeaponMod[1].setIndex(4);
    ModifiedDPS(*c, 2);
    // Omega's breakdown shows the rarity piece too, so its parts add up.
    EXPECT_EQ(o.CalculatedWeaponDPS[4].caption(), "180");
    EXPECT_EQ(o.CalculatedWeaponDPS[4].tooltip(),
              "Base Damage: 160, Mark Bonus: 0, Skill Bonus:  0, Console Bonus:  "
              "0, accolade bonus:  0, Weapon Mod [Dmg]: 16, Weapon Rarity (Unc.): 4");
}

TEST(Modifiers, ModifiedDPSLeavesRelativeModeAndHiddenOmegaAlone) {
    auto c = std::make_unique<Calculator>();
    ModifiedDPS(*c, 1);
    EXPECT_EQ(c->state.BeamModifier[1], 1.0f);
    EXPECT_EQ(c->Alpha().CalculatedWeaponDPS[4].caption(), "");

    auto d = PlainCustom();
    d->state.CannonModifier[2] = 0.5f;
    ModifiedDPS(*d, 2);
    EXPECT_EQ(d->state.CannonModifier[2], 0.5f);
    EXPECT_EQ(d->Omega().CalculatedWeaponDPS[4].caption(), "");
}

TEST(Modifiers, WeaponSkillBonus) {
    struct Case {
        const char* name;
        int kind;
        const char* boxes[9]; // [1..8]
        float bonus;
    } cases[] = {
        {"beams", 1, {"", "7", "7", "1", "9", "", "", "", ""}, 17 + 52 + 28},
        {"cannons", 2, {"", "7", "1", "7", "9", "", "", "", ""}, 17 + 52 + 28},
        {"torpedoes", 3, {"", "", "", "", "", "7", "1", "7", "9"}, 17 + 28 + 52},
        {"mines", 4, {"", "", "", "", "", "7", "7", "1", "9"}, 17 + 28 + 52},
        {"a fraction is cut, not rounded", 1, {"", "7.9", "", "", "", "", "", "", ""}, 17},
        {"closed and empty boxes", 1, {"", "N/A", "", "abc", "", "", "", "", ""}, 0},
        {"level above the table", 1, {"", "10", "", "", "", "", "", "", ""}, 0},
    };
    for (const Case& k : cases) {
        auto c = std::make_unique<Calculator>();
        for (int i = 1; i <= 8; ++i)
            c->Alpha().WeaponSkill[i].setText(k.boxes[i]);
        EXPECT_EQ(WeaponSkillBonus(*c, k.kind, 1), k.bonus) << k.name;
    }
}

TEST(Modifiers, ConsoleBonus) {
    struct Case {
        const char* name;
        int console, mark, rarity, equipped, kind;
        float bonus;
    } cases[] = {
        {"beam console, Mk I common", 1, 1, 0, 1, 1, 3.8f},
        {"beam console does nothing for cannons", 1, 1, 0, 1, 2, 0.0f},
        {"energy type console counts for cannons", 3, 2, 1, 1, 2, 7.5f},
        {"energy type console counts for beams", 3, 2, 1, 1, 1, 7.5f},
        {"kinetic console for mines", 6, 10, 3, 1, 4, 26.0f},
        {"torpedo console for torpedoes", 4, 12, 2, 1, 3, 28.0f},
        {"Max is the list's top mark", 2, 0, 1, 1, 2, 26.0f},
        {"step 15 is outside the table", 1, 12, 3, 1, 1, 0.0f},
        {"unequipped", 1, 12, 0, 0, 1, 0.0f},
        {"empty slot", 0, 12, 0, 1, 1, 0.0f},
    };
    for (const Case& k : cases) {
        auto c = std::make_unique<Calculator>();
        VesselSettings& a = c->Alpha();
        a.TacticalConsole[2].setIndex(k.console);
        a.TacticalConsoleMark[2].setIndex(k.mark);
        a.TacticalConsoleRarity[2].setIndex(k.rarity);
        for (int i = 1; i <= 4; ++i)
            a.TacticalConsoleEquipped[i].setValue(i == 2 ? k.equipped : 0);
        EXPECT_EQ(ConsoleBonus(*c, k.kind, 1), k.bonus) << k.name;
    }
}

TEST(Modifiers, ResetModifierReturnsToOne) {
    auto c = PlainCustom();
    ASSERT_NE(c->state.BeamModifier[1], 1.0f);
    // Back in relative mode nothing recomputes the modifiers afterwards.
    c->Alpha().RelativeDPS.setValue(1);
    c->state.BeamModifier[2] = 2.0f;
    c->Alpha().CalculatedWeaponDPS[3].setCaption("x");
    c->Alpha().TacticalConsoleEquipped[3].setValue(0);
    c->Omega().TacticalConsoleEquipped[1].setValue(0);
    ResetModifier(*c);
    for (Vessel v = 1; v <= 2; ++v) {
        EXPECT_EQ(c->state.BeamModifier[v], 1.0f);
        EXPECT_EQ(c->state.CannonModifier[v], 1.0f);
        EXPECT_EQ(c->state.TorpedoDamage[v], 1.0f);
        EXPECT_EQ(c->state.MineDamage[v], 1.0f);
        for (int i = 1; i <= 7; ++i) {
            EXPECT_EQ(c->settings[v].CalculatedWeaponDPS[i].caption(), "");
            EXPECT_EQ(c->settings[v].CalculatedWeaponDPS[i].tooltip(), "");
        }
        for (int i = 1; i <= 4; ++i)
            EXPECT_EQ(c->settings[v].TacticalConsoleEquipped[i].value(), 1);
    }
    EXPECT_EQ(c->Alpha().MatchConsole.value(), 1);
}

} // namespace
} // namespace vantorel
