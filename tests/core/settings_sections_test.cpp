// The four sections of a settings window as a player meets them: what the
// captain's rank opens and closes, what each section holds when it opens,
// and the recalculation each change reaches.

#include "support.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>

namespace vantorel {
namespace {

using testing::Captain;
using Texts5 = std::array<std::string, 5>;
using Texts8 = std::array<std::string, 8>;

Texts5 PowerTexts(const VesselSettings& s) {
    Texts5 t;
    for (int i = 1; i <= 5; ++i)
        t[static_cast<std::size_t>(i - 1)] = s.PowerSkill[i].text();
    return t;
}

Texts8 WeaponTexts(const VesselSettings& s) {
    Texts8 t;
    for (int i = 1; i <= 8; ++i)
        t[static_cast<std::size_t>(i - 1)] = s.WeaponSkill[i].text();
    return t;
}

std::array<std::string, 3> CriticalTexts(const VesselSettings& s) {
    return {s.CriticalSkill[1].text(), s.CriticalSkill[2].text(), s.CriticalSkill[3].text()};
}

// A box is in use exactly when it is white; a closed one holds "N/A".
void ExpectColoursFollowState(const VesselSettings& s, const std::string& name) {
    auto check = [&](const Control& box, const std::string& which) {
        EXPECT_EQ(box.back(), box.enabled() ? White : Grey) << name << ": " << which;
    };
    for (int i = 1; i <= 3; ++i)
        check(s.CriticalSkill[i], "CriticalSkill[" + std::to_string(i) + "]");
    for (int i = 1; i <= 5; ++i)
        check(s.PowerSkill[i], "PowerSkill[" + std::to_string(i) + "]");
    for (int i = 1; i <= 8; ++i)
        check(s.WeaponSkill[i], "WeaponSkill[" + std::to_string(i) + "]");
    check(s.CriticalItem, "CriticalItem");
    check(s.WeaponMark, "WeaponMark");
}

TEST(RankLimits, WhatEachRankOpens) {
    // clang-format off
    struct Case { const char* name; int faction, rankRow; std::array<std::string, 3> critical; bool item; Texts5 power; Texts8 weapon; const char* topMark; int energyTypes, projectileTypes, consoleMarks; } cases[] = {
        {"Ensign", 0, 0, {"9", "N/A", "N/A"}, false, {"7", "N/A", "N/A", "0", "0"}, {"7", "N/A", "N/A", "N/A", "7", "N/A", "N/A", "N/A"}, "Mark II (Max)", 2, 2, 3},
        {"Lieutenant, the same value", 0, 1, {"9", "N/A", "N/A"}, false, {"7", "N/A", "N/A", "0", "0"}, {"7", "N/A", "N/A", "N/A", "7", "N/A", "N/A", "N/A"}, "Mark II (Max)", 2, 2, 3},
        {"Sergeant", 1, 2, {"9", "9", "N/A"}, false, {"7", "N/A", "N/A", "0", "0"}, {"7", "7", "7", "N/A", "7", "7", "7", "N/A"}, "Mark IV (Max)", 3, 3, 5},
        {"Commander", 0, 3, {"9", "9", "9"}, false, {"7", "9", "N/A", "0", "0"}, {"7", "7", "7", "9", "7", "7", "7", "9"}, "Mark VI (Max)", 4, 4, 7},
        {"Captain", 0, 4, {"9", "9", "9"}, false, {"7", "9", "N/A", "0", "0"}, {"7", "7", "7", "9", "7", "7", "7", "9"}, "Mark VIII (Max)", 5, 5, 9},
        {"Rear Admiral", 0, 5, {"9", "9", "9"}, true, {"7", "9", "9", "0", "0"}, {"7", "7", "7", "9", "7", "7", "7", "9"}, "Mark X (Max)", 6, 6, 11},
        {"Lieutenant General", 1, 7, {"9", "9", "9"}, true, {"7", "9", "9", "0", "0"}, {"7", "7", "7", "9", "7", "7", "7", "9"}, "Mark XII (Max)", 6, 6, 13},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        c.state.SuppressPowerWarning = true;
        Captain(c, k.faction, k.rankRow);
        VesselSettings& a = c.Alpha();
        a.CriticalSettings.setValue(0);
        a.ExtrapolatePower.setValue(1);
        a.RelativeDPS.setValue(0);
        EXPECT_EQ(CriticalTexts(a), k.critical) << k.name;
        EXPECT_EQ(a.CriticalItem.enabled(), k.item) << k.name;
        EXPECT_EQ(a.CriticalItem.hint(), k.item ? "Select Equipment Bonuses" : "No Items Available") << k.name;
        EXPECT_EQ(PowerTexts(a), k.power) << k.name;
        EXPECT_EQ(WeaponTexts(a), k.weapon) << k.name;
        EXPECT_EQ(std::tuple(a.WeaponMark.row(0), a.WeaponMark.index(), a.WeaponMark.row(1)),
                  std::tuple(k.topMark, 0, "Standard Issue"))
            << k.name;
        EXPECT_EQ(std::tuple(a.WeaponType[1].count(), a.WeaponType[2].count(), a.TacticalConsoleMark[1].count()),
                  std::tuple(k.energyTypes, k.projectileTypes, k.consoleMarks))
            << k.name;
        // The faction's own energy type is the first offered.
        EXPECT_EQ(a.WeaponType[1].text(), k.faction == 1 ? "Disruptor Weapons" : "Phaser Weapons") << k.name;
        ExpectColoursFollowState(a, k.name);
    }
}

TEST(RankLimits, ARankChangeOpensAndClosesOpenSections) {
    Program c;
    c.state.SuppressPowerWarning = true;
    Captain(c, 0, 1);
    VesselSettings& a = c.Alpha();
    a.CriticalSettings.setValue(0);
    a.ExtrapolatePower.setValue(1);
    a.RelativeDPS.setValue(0);
    a.CriticalSkill[1].setText("4");
    a.PowerSkill[1].setText("5");

    // Up to Commander: "N/A" becomes the default, typed values stay; the
    // equipment list waits for rank value 5.
    a.Rank.setIndex(3);
    EXPECT_EQ(CriticalTexts(a), (std::array<std::string, 3>{"4", "9", "9"}));
    EXPECT_EQ(std::tuple(a.PowerSkill[1].text(), a.PowerSkill[2].text()), std::tuple("5", "9"));
    EXPECT_FALSE(a.CriticalItem.enabled());
    a.Rank.setIndex(5);
    EXPECT_EQ(std::tuple(a.CriticalItem.enabled(), a.CriticalItem.index(), a.CriticalItem.hint()),
              std::tuple(true, -1, "No Items Available"));
    ExpectColoursFollowState(a, "rank up");

    // Down again: "N/A" over what was typed.
    a.CriticalSkill[2].setText("3");
    a.Rank.setIndex(1);
    EXPECT_EQ(CriticalTexts(a), (std::array<std::string, 3>{"4", "N/A", "N/A"}));
    EXPECT_EQ(std::tuple(a.WeaponSkill[2].text(), a.WeaponSkill[4].text()), std::tuple("N/A", "N/A"));
    ExpectColoursFollowState(a, "rank down");
}

TEST(Character, UncheckingCustomisesTheCaptain) {
    Program c;
    c.Alpha().CharacterSettings.setValue(0);
    const VesselSettings& a = c.Alpha();
    EXPECT_EQ(std::tuple(a.Faction.text(), a.Rank.text(), a.Class.text()),
              std::tuple("Federation", "Vice Admiral", "Unrestricted"));
    EXPECT_EQ(std::tuple(a.FactionLabel.fore(), a.Faction.back(), a.RankLabel.fore(), a.Class.enabled()),
              std::tuple(White, White, White, true));
    // The ship lists are limited from now on: no unrestricted rows.
    EXPECT_EQ(testing::RowOf(c.main.ShipClass[1], "Unrestricted"), -1);

    // Checked again: unrestricted, and the rank row is forgotten.
    c.Alpha().Rank.setIndex(3);
    c.Alpha().CharacterSettings.setValue(1);
    EXPECT_EQ(std::tuple(a.Faction.index(), a.Rank.index(), a.Class.index(), a.Faction.enabled(), a.RankLabel.fore()),
              std::tuple(-1, -1, -1, false, Grey));
    EXPECT_EQ(std::tuple(GetRank(c, 1), GetFaction(c, 1)), std::tuple(100, 0));
    EXPECT_NE(testing::RowOf(c.main.ShipClass[1], "Unrestricted"), -1);
    c.Alpha().CharacterSettings.setValue(0);
    EXPECT_EQ(a.Rank.text(), "Vice Admiral");
}

TEST(Character, LowRankLimitsTheShipLists) {
    // clang-format off
    struct Case { const char* name; int faction, rankRow; std::vector<std::string> classes; int tiers; } cases[] = {
        {"Federation Ensign", 0, 0, {"Cruiser", "Shuttlecraft"}, 1},
        {"Federation Commander", 0, 3, {"Cruiser", "Escort", "Shuttlecraft", "Science Vessel"}, 3},
        {"Klingon Sergeant", 1, 2, {"Battle Cruiser", "Bird of Prey", "Raptor", "Shuttlecraft "}, 2},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        Captain(c, k.faction, k.rankRow);
        EXPECT_EQ(c.main.ShipClass[1].rows(), k.classes) << k.name;
        EXPECT_LE(c.main.ShipTier[1].count(), k.tiers) << k.name;
    }
}

TEST(Character, FactionChangeKeepsTheRankRow) {
    Program c;
    Captain(c, 0, 3);
    VesselSettings& a = c.Alpha();
    a.Faction.setIndex(1);
    EXPECT_EQ(std::tuple(a.Rank.index(), a.Rank.text(), a.Rank.row(2)), std::tuple(3, "Commander", "Sergeant"));
}

TEST(Character, AFreeOmegaOnItsSameAsRowFollowsAlpha) {
    Program c;
    c.Omega().SameAsAlpha.setValue(0);
    VesselSettings& o = c.Omega();
    EXPECT_EQ(std::tuple(o.Faction.row(0), o.Rank.row(0)),
              std::tuple("Same As Alpha (Unrestricted)", "Same As Alpha (Unrestricted)"));
    Captain(c, 1, 2);
    EXPECT_EQ(std::tuple(o.Faction.row(0), o.Rank.row(0), o.Rank.index()),
              std::tuple("Same As Alpha (Klingon)", "Same As Alpha (Sergeant)", 0));
    EXPECT_EQ(GetRank(c, 2), 2);
    // Its own lists are limited by Alpha's rank through row 0.
    EXPECT_EQ(std::tuple(o.CriticalSkill[3].text(), o.WeaponType[2].count()), std::tuple("", 3));

    // On a row of its own only the row 0 text changes.
    o.Rank.setIndex(8);
    EXPECT_EQ(GetRank(c, 2), 7);
    c.Alpha().Rank.setIndex(4);
    EXPECT_EQ(std::tuple(o.Rank.row(0), o.Rank.index(), GetRank(c, 2)), std::tuple("Same As Alpha (Captain)", 8, 7));

    // Unrestricted again: both row 0 texts say so.
    o.Rank.setIndex(0);
    c.Alpha().CharacterSettings.setValue(1);
    EXPECT_EQ(std::tuple(o.Faction.row(0), o.Rank.row(0)),
              std::tuple("Same As Alpha (Unrestricted)", "Same As Alpha (Unrestricted)"));
}

TEST(Combat, DefaultSettingsOpenAndClose) {
    Program c;
    VesselSettings& a = c.Alpha();
    a.CriticalSettings.setValue(0);
    EXPECT_EQ(CriticalTexts(a), (std::array<std::string, 3>{"9", "9", "9"}));
    EXPECT_EQ(std::tuple(a.CriticalItem.enabled(), a.CriticalItem.index(), a.CriticalItem.hint()),
              std::tuple(true, -1, "Select Equipment Bonuses"));
    EXPECT_EQ(std::tuple(a.TargetDefense.enabled(), a.CritH.back(), a.HitRateLabel.fore()),
              std::tuple(true, White, White));
    a.TargetResistance.setText("abc");
    a.CriticalItem.setIndex(3);
    a.CriticalSettings.setValue(1);
    EXPECT_EQ(CriticalTexts(a), (std::array<std::string, 3>{"", "", ""}));
    EXPECT_EQ(std::tuple(a.TargetResistance.text(), a.TargetDefense.text(), a.TargetDefense.enabled()),
              std::tuple("11.88", "60", false));
    EXPECT_EQ(std::tuple(a.CriticalItem.index(), a.CritH.back(), a.CritHlabel.fore()), std::tuple(-1, Grey, Grey));
    ExpectColoursFollowState(a, "default again");
    // Entering Default emptied the skills, so leaving it refills them.
    a.CriticalSettings.setValue(0);
    EXPECT_EQ(CriticalTexts(a), (std::array<std::string, 3>{"9", "9", "9"}));
}

TEST(Combat, ResistanceAndAccuracyWorkWithTheDefaults) {
    // clang-format off
    struct Case { const char* name; void (*change)(Calculator&); float row0; const char* omegaBox; } cases[] = {
        {"resistance", [](Calculator& c) { c.Alpha().DamageResistance.setValue(1); }, 89.381f, "89.381"},
        {"accuracy", [](Calculator& c) { c.Alpha().Accuracy.setValue(1); }, 50.0f, "50"},
        {"a closer target", [](Calculator& c) { c.Alpha().Accuracy.setValue(1); c.Alpha().CriticalSettings.setValue(0); c.Alpha().TargetDefense.setText("20"); }, 90.0f, "90"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        c.main.Compare.press();
        c.main.Forward[1].setText("Beam Array");
        c.main.CForward[1].setText("Beam Array");
        CalculateFiringArcs(c);
        k.change(c);
        // A mirrored Omega reaches the same figure, and the boxes are alike.
        EXPECT_FLOAT_EQ(c.state.ArcDPS[0][1], k.row0) << k.name;
        EXPECT_FLOAT_EQ(c.state.ArcDPS[0][2], k.row0) << k.name;
        EXPECT_EQ(c.main.CFiringArcDPS[0].caption(), k.omegaBox) << k.name;
        EXPECT_EQ(c.main.CFiringArcDPS[0].back(), c.main.FiringArcDPS[0].back()) << k.name;
    }
}

TEST(Power, OpeningRaisesTheWarningOnce) {
    Program c;
    VesselSettings& a = c.Alpha();
    a.ExtrapolatePower.setValue(1);
    const NoteWindow& note = c.note;
    EXPECT_EQ(std::tuple(note.Form.visible(), note.CallerCode, note.WarningCheck.value(), c.state.SuppressPowerWarning),
              std::tuple(true, 3, 1, true));
    EXPECT_EQ(note.Form.title(), "Warning- Extrapolated Power Settings Are Only Estimates!");
    EXPECT_EQ(note.InfoText.fore(), 0x0000FFu);
    EXPECT_EQ(std::tuple(c.main.Form1.enabled(), a.Form.enabled(), c.Omega().Form.enabled()),
              std::tuple(false, false, false));
    c.note.Close.press();
    EXPECT_EQ(std::tuple(note.Form.visible(), c.main.Form1.enabled(), a.Form.enabled(), c.Omega().Form.enabled()),
              std::tuple(false, true, true, true));

    // The second time: no warning.
    a.ExtrapolatePower.setValue(0);
    a.ExtrapolatePower.setValue(1);
    EXPECT_FALSE(note.Form.visible());

    // Unless the player cleared the box before closing it.
    c.state.SuppressPowerWarning = false;
    a.ExtrapolatePower.setValue(0);
    a.ExtrapolatePower.setValue(1);
    ASSERT_TRUE(note.Form.visible());
    c.note.WarningCheck.setValue(0);
    EXPECT_FALSE(c.state.SuppressPowerWarning);
    c.note.Form.requestClose();
    a.ExtrapolatePower.setValue(0);
    a.ExtrapolatePower.setValue(1);
    EXPECT_EQ(std::tuple(note.Form.visible(), note.WarningCheck.value(), c.state.SuppressPowerWarning),
              std::tuple(true, 1, true));
}

TEST(Power, OmegasWarningStandsOverOmega) {
    Program c;
    c.main.Compare.press();
    c.Omega().SameAsAlpha.setValue(0);
    c.main.Advanced[2].press();
    c.Omega().ExtrapolatePower.setValue(1);
    const Window& omega = c.Omega().Form;
    EXPECT_EQ(std::tuple(c.note.CallerCode, c.note.Form.top(), c.note.Form.left()),
              std::tuple(4, omega.top() + 5280, (2 * omega.left() + omega.width()) / 2 - c.note.Form.width() / 2));
    // A window that was enabled before stays so.
    c.Alpha().Form.setEnabled(true);
    c.note.Close.press();
    EXPECT_TRUE(c.Alpha().Form.enabled() && omega.enabled() && c.main.Form1.enabled());
}

TEST(Power, TheSectionOpensAndCloses) {
    Program c;
    c.state.SuppressPowerWarning = true;
    c.main.Compare.press();
    VesselSettings& a = c.Alpha();
    VesselSettings& o = c.Omega();
    a.ExtrapolatePower.setValue(1);
    EXPECT_EQ(PowerTexts(a), (Texts5{"7", "9", "9", "0", "0"}));
    // Mirrored: Omega holds the copies and extrapolates too, both lists
    // rebuilt, one warning at most.
    EXPECT_EQ(std::tuple(PowerTexts(o), o.ExtrapolatePower.value()), std::tuple(PowerTexts(a), 1));
    EXPECT_NE(c.main.PowerLevel[1].row(0), "35");
    EXPECT_NE(c.main.PowerLevel[2].row(1), "35");
    a.WarpCore.setValue(1);
    a.PowerCaptain.setIndex(2);
    EXPECT_EQ(std::tuple(o.WarpCore.value(), o.PowerCaptain.index()), std::tuple(1, 2));
    EXPECT_NE(a.PowerBonus.caption(), "");

    a.ExtrapolatePower.setValue(0);
    EXPECT_EQ(PowerTexts(a), (Texts5{"", "", "", "", ""}));
    EXPECT_EQ(std::tuple(a.WarpCore.value(), a.WarpCore.enabled(), a.PowerCaptain.index(), a.PowerCaptain.hint()),
              std::tuple(0, false, -1, "Select Captain Efficiency Trait"));
    EXPECT_EQ(std::tuple(a.PowerBonus.caption(), o.PowerBonus.caption(), a.PowerBonusLabel.caption()),
              std::tuple("", "", "Current Power Bonus (100 Weapon Power)"));
    EXPECT_EQ(std::tuple(o.WarpCore.value(), o.PowerCaptain.index()), std::tuple(0, -1));
    EXPECT_EQ(c.main.PowerLevel[1].row(0), "35");
    ExpectColoursFollowState(a, "power closed");
}

TEST(Weapons, LeavingRelativeDPSOpensTheSection) {
    // clang-format off
    struct Case { const char* name; int faction; const char* energy, *consoleLimit; } cases[] = {
        {"unrestricted", -1, "Phaser Weapons", "4"},
        {"Federation", 0, "Phaser Weapons", "3"},
        {"Klingon", 1, "Disruptor Weapons", "4"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        if (k.faction >= 0) Captain(c, k.faction, 7);
        VesselSettings& a = c.Alpha();
        a.RelativeDPS.setValue(0);
        EXPECT_EQ(std::tuple(a.WeaponMark.text(), a.WeaponMark.enabled()), std::tuple("Mark XII (Max)", true))
            << k.name;
        for (int i = 1; i <= 3; ++i)
            EXPECT_EQ(a.WeaponMod[i].text(), "None") << k.name;
        EXPECT_EQ(a.WeaponType[1].text(), k.energy) << k.name;
        EXPECT_EQ(WeaponTexts(a), (Texts8{"7", "7", "7", "9", "7", "7", "7", "9"})) << k.name;
        for (int i = 1; i <= 4; ++i)
            EXPECT_EQ(a.TacticalConsole[i].text(), "Empty") << k.name;
        EXPECT_EQ(std::tuple(a.WeaponAccolade[1].value(), a.WeaponAccolade[1].enabled(), a.WeaponAccolade[2].enabled()),
                  std::tuple(1, true, true))
            << k.name;
        EXPECT_EQ(a.MatchConsoleLimit.caption(), k.consoleLimit) << k.name;
        EXPECT_NE(a.CalculatedWeaponDPS[4].caption(), "") << k.name;
        ExpectColoursFollowState(a, k.name);

        a.RelativeDPS.setValue(1);
        EXPECT_EQ(std::tuple(a.WeaponMark.index(), a.WeaponType[1].index(), a.WeaponMod[1].index()),
                  std::tuple(-1, -1, -1))
            << k.name;
        EXPECT_EQ(WeaponTexts(a), (Texts8{"", "", "", "", "", "", "", ""})) << k.name;
        EXPECT_EQ(std::tuple(a.CalculatedWeaponDPS[4].caption(), a.DisplayedDPSLabel[1].caption(),
                             a.MatchConsoleLimit.caption()),
                  std::tuple("", "Displayed DPS (100 Weapon Power)", ""))
            << k.name;
        for (int i = 1; i <= 4; ++i) {
            EXPECT_FALSE(a.TacticalConsole[i].enabled() || a.TacticalConsoleMark[i].enabled() ||
                         a.TacticalConsoleEquipped[i].enabled())
                << k.name << ", slot " << i;
        }
        ExpectColoursFollowState(a, k.name);
    }
}

TEST(Weapons, ARankThatLosesTheTypeFallsBack) {
    // clang-format off
    struct Case { const char* name; int faction; const char* energy; } cases[] = {
        {"Federation", 0, "Phaser Weapons"},
        {"Klingon", 1, "Disruptor Weapons"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        Captain(c, k.faction, 7);
        VesselSettings& a = c.Alpha();
        a.RelativeDPS.setValue(0);
        a.WeaponType[1].setIndex(2);
        a.WeaponType[2].setIndex(2);
        a.WeaponMark.setIndex(12);
        a.Rank.setIndex(0);
        EXPECT_EQ(std::tuple(a.WeaponType[1].text(), a.WeaponType[2].text()),
                  std::tuple(k.energy, "Quantum Projectiles"))
            << k.name;
        // The mark falls to the top mark still offered; Max stays Max.
        EXPECT_EQ(std::tuple(a.WeaponMark.index(), a.WeaponMark.text()), std::tuple(3, "Mark II")) << k.name;
        a.WeaponMark.setIndex(0);
        a.Rank.setIndex(4);
        EXPECT_EQ(a.WeaponMark.text(), "Mark VIII (Max)") << k.name;
    }
}

TEST(Weapons, TypesRewriteTheConsoleRows) {
    Program c;
    VesselSettings& a = c.Alpha();
    // In Relative DPS the projectile type still works and recalculates.
    c.main.Forward[1].setText("Torpedo Launcher");
    CalculateFiringArcs(c);
    const float quantum = c.state.ArcDPS[6][1];
    a.WeaponType[2].setIndex(0);
    EXPECT_EQ(a.TacticalConsole[1].row(6), "Photon Detonation Assembly (+Photon Projectiles)");
    EXPECT_NE(c.state.ArcDPS[6][1], quantum);

    // A console on the type's row keeps its place and mark across a change.
    a.RelativeDPS.setValue(0);
    a.TacticalConsole[2].setIndex(3);
    a.TacticalConsoleMark[2].setIndex(5);
    a.WeaponType[1].setIndex(4);
    EXPECT_EQ(std::tuple(a.TacticalConsole[2].index(), a.TacticalConsole[2].text(), a.TacticalConsoleMark[2].text()),
              std::tuple(3, "Polaron Phase Modulator (+Polaron Weapons)", "Mk V"));
    EXPECT_EQ(std::tuple(a.WeaponAccolade[1].caption(), a.CalculatedWeaponDPSLabel[4].caption()),
              std::tuple("Enforcer Accolade Bonus", "Polaron Beam Array"));
}

TEST(Consoles, RarityRowsFollowTheMark) {
    Program c;
    Captain(c, 0, 1);
    VesselSettings& a = c.Alpha();
    a.RelativeDPS.setValue(0);
    // Picking a console in an empty slot selects Max and the first rarity,
    // with the bonus at once: Max at rank value 1 is mark II.
    a.TacticalConsole[1].setIndex(1);
    EXPECT_EQ(std::tuple(a.TacticalConsoleMark[1].text(), a.TacticalConsoleRarity[1].text()),
              std::tuple("Max", "Com. (+5.6)"));
    EXPECT_EQ(a.TacticalConsoleRarity[1].rows(),
              (testing::Rows{"Com. (+5.6)", "Unc. (+7.5)", "Rare (+9.4)", "V.Rare(+11)"}));
    // A rank up rebuilds with the higher numbers.
    a.TacticalConsoleRarity[1].setIndex(2);
    a.Rank.setIndex(5);
    EXPECT_EQ(a.TacticalConsoleRarity[1].text(), "Rare (+24)");
    // At mark XII only two rarities are left: row 2 falls to the last.
    a.Rank.setIndex(6);
    EXPECT_EQ(a.TacticalConsoleRarity[1].rows(), (testing::Rows{"Com. (+24)", "Unc. (+26)"}));
    EXPECT_EQ(a.TacticalConsoleRarity[1].text(), "Unc. (+26)");
    // Down from XII on Unc.: row 1 stays.
    a.Rank.setIndex(3);
    EXPECT_EQ(a.TacticalConsoleRarity[1].text(), "Unc. (+15)");

    // Back to Empty forgets mark and rarity; a new console starts from Max.
    a.TacticalConsole[1].setIndex(0);
    EXPECT_EQ(std::tuple(a.TacticalConsoleMark[1].index(), a.TacticalConsoleRarity[1].index(),
                         a.TacticalConsoleMark[1].enabled()),
              std::tuple(-1, -1, false));
    a.TacticalConsole[1].setIndex(2);
    EXPECT_EQ(std::tuple(a.TacticalConsoleMark[1].index(), a.TacticalConsoleRarity[1].index()), std::tuple(0, 0));
    // After a rank change Alpha's empty slots have their mark lists open.
    a.Rank.setIndex(4);
    EXPECT_TRUE(a.TacticalConsoleMark[3].enabled());
}

TEST(Consoles, MatchingTheShipsLimit) {
    Program c;
    VesselSettings& a = c.Alpha();
    a.RelativeDPS.setValue(0);
    testing::ChooseClass(c, 1, "Shuttlecraft");
    ASSERT_EQ(a.MatchConsoleLimit.caption(), "0");
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(std::tuple(a.TacticalConsoleEquipped[i].value(), a.TacticalConsole[i].back()), std::tuple(0, Grey))
            << "slot " << i;
    }
    // Unchecked: all four equipped and in the player's hands.
    a.MatchConsole.setValue(0);
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(std::tuple(a.TacticalConsoleEquipped[i].value(), a.TacticalConsoleEquipped[i].enabled(),
                             a.TacticalConsole[i].back()),
                  std::tuple(1, true, White))
            << "slot " << i;
    }
    a.TacticalConsoleEquipped[2].setValue(0);
    EXPECT_EQ(a.TacticalConsoleMark[2].back(), Grey);
    // A ship change now only shows the new limit.
    testing::ChooseClass(c, 1, "Cruiser");
    EXPECT_EQ(std::tuple(a.MatchConsoleLimit.caption(), a.TacticalConsoleEquipped[2].value()), std::tuple("3", 0));
}

TEST(Settings, EveryControlThePlayerUsesHasATooltip) {
    Program c;
    const ControlRegistry registry(c);
    for (const ControlRef& ref : registry.all()) {
        if (ref.window != "Alpha" && ref.window != "Omega") continue;
        std::string tip;
        switch (ref.kind()) {
        case ValueKind::Flag:
            tip = std::get<Flag*>(ref.target)->tooltip();
            break;
        case ValueKind::Text:
            tip = std::get<Text*>(ref.target)->tooltip();
            break;
        case ValueKind::List:
            tip = std::get<List*>(ref.target)->tooltip();
            break;
        case ValueKind::Button:
            tip = std::get<Button*>(ref.target)->tooltip();
            break;
        default:
            continue;
        }
        EXPECT_NE(tip, "") << ref.name;
    }
}

} // namespace
} // namespace vantorel
