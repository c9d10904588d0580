#include "engine/calculator.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantorel {
namespace {

int RowOf(const List& l, const std::string& text) {
    for (int i = 0; i < l.count(); ++i)
        if (l.row(i) == text) return i;
    return -1;
}

void Captain(Calculator& c, int faction, int rank) {
    VesselSettings& a = c.Alpha();
    a.CharacterSettings.setValue(0);
    a.Faction.setIndex(faction);
    a.Rank.setIndex(rank);
}

std::vector<std::string> Numbered(const std::string& name, int n) {
    std::vector<std::string> rows;
    for (int k = 1; k <= n; ++k)
        rows.push_back(name + " " + std::to_string(k));
    return rows;
}

TEST(MainWindowEvents, ShuttleRankRows) {
    struct Case {
        const char* name;
        int faction, rankRow; // rankRow -1: unrestricted
        std::vector<std::string> rows;
        bool listShown;
    } cases[] = {
        {"unrestricted", 0, -1, Numbered("Vice Admiral", 1), false},
        {"Federation lieutenant", 0, 1, Numbered("Lieutenant", 10), true},
        {"Klingon sergeant", 1, 2, Numbered("Sergeant", 10), true},
        {"Federation lower half", 0, 5, Numbered("Rear Admiral, Lower Half", 5), true},
        {"Klingon major general", 1, 6, Numbered("Major General", 5), true},
        {"Klingon lieutenant general", 1, 7, Numbered("Lieutenant General", 1), false},
    };
    for (const auto& k : cases) {
        Calculator c;
        if (k.rankRow >= 0) Captain(c, k.faction, k.rankRow);
        c.main.Forward[1].setText("Shuttle Beam Array");
        CalculateFiringArcs(c);
        const List& rank = c.main.ShuttleRank[1];
        EXPECT_EQ(rank.rows(), k.rows) << k.name;
        EXPECT_EQ(rank.index(), 0) << k.name;
        EXPECT_EQ(rank.visible(), k.listShown) << k.name;
        EXPECT_EQ(rank.enabled(), k.listShown) << k.name;
        EXPECT_EQ(c.main.ShuttleRankLabel[1].visible(), k.listShown) << k.name;
        EXPECT_TRUE(c.main.ShuttleMod[1].visible()) << k.name;
    }
}

TEST(MainWindowEvents, ShuttleRankSurvivesTheArraysAbsence) {
    Calculator c;
    Captain(c, 0, 3);
    c.main.Forward[1].setText("Shuttle Beam Array");
    CalculateFiringArcs(c);
    c.main.ShuttleRank[1].click(6);
    c.main.Forward[1].setText("Empty");
    CalculateFiringArcs(c);
    EXPECT_FALSE(c.main.ShuttleRank[1].visible());
    EXPECT_FALSE(c.main.ShuttleMod[1].visible());
    EXPECT_FALSE(c.main.ShuttleRankLabel[1].visible());
    c.main.Forward[1].setText("Shuttle Beam Array");
    CalculateFiringArcs(c);
    EXPECT_EQ(c.main.ShuttleRank[1].index(), 6);
    EXPECT_EQ(c.main.ShuttleRank[1].text(), "Commander 7");
}

TEST(MainWindowEvents, ShuttleGradeChangesTheResult) {
    Calculator c;
    Captain(c, 0, 3);
    c.main.Forward[1].setText("Shuttle Beam Array");
    CalculateFiringArcs(c);
    const float low = c.state.ArcDPS[0][1];
    c.main.ShuttleRank[1].click(9);
    EXPECT_GT(c.state.ArcDPS[0][1], low);
    const float high = c.state.ArcDPS[0][1];
    c.main.ShuttleMod[1].click();
    EXPECT_GT(c.state.ArcDPS[0][1], high);
}

TEST(MainWindowEvents, Note) {
    const std::string shuttleNote =
        "Shuttle weapon damage is calculated based on a rank of Vice Admiral.  If you are a "
        "lower rank, please select your rank in the Advanced Settings for accurate shuttle "
        "weapon damage.";
    const std::string dualCannons =
        "Insufficient data to calculate Dual Cannon DPS with more than 7 concurrently firing energy weapons equipped. "
        "For accurate results, please remove a forward energy weapon or rear turret.";
    const std::string tacticalTeam =
        "In order to calculate the effects of Tactical Team, you must disable Relative DPS in the Advanced Settings.";
    struct Case {
        const char* name;
        const char* forward[4];
        const char* rear[4];
        bool restricted, tacticalTeam;
        bool shown;
        std::string text;
    } cases[] = {
        {"nothing to say", {"Beam Array"}, {}, false, false, false, ""},
        {"unrestricted shuttle", {"Shuttle Beam Array"}, {}, false, false, true, shuttleNote},
        {"ranked shuttle", {"Shuttle Beam Array"}, {}, true, false, false, ""},
        {"shuttle comes before dual cannons",
         {"Dual Cannons", "Dual Cannons", "Shuttle Beam Array", "Cannon"},
         {"Turret", "Turret", "Turret", "Turret"},
         false,
         false,
         true,
         shuttleNote},
        {"eight with dual cannons",
         {"Dual Cannons", "Dual Cannons", "Cannon", "Cannon"},
         {"Turret", "Turret", "Turret", "Turret"},
         false,
         true,
         true,
         dualCannons},
        {"tactical team in relative mode", {"Beam Array"}, {}, false, true, true, tacticalTeam},
    };
    for (const auto& k : cases) {
        Calculator c;
        if (k.restricted) Captain(c, 0, 4);
        c.state.TacticalTeam[1] = k.tacticalTeam ? 1 : 0;
        for (int i = 1; i <= 4; ++i) {
            if (k.forward[i - 1]) c.main.Forward[i].setText(k.forward[i - 1]);
            if (k.rear[i - 1]) c.main.Rear[i].setText(k.rear[i - 1]);
        }
        CalculateFiringArcs(c);
        EXPECT_EQ(c.main.Note.visible(), k.shown) << k.name;
        if (k.shown) { EXPECT_EQ(c.main.Note.caption(), k.text) << k.name; }
    }
}

TEST(MainWindowEvents, NoteTellsTheHistoricalVessel) {
    Calculator c;
    const int row = RowOf(c.main.ShipClass[1], "Federation");
    ASSERT_GE(row, 0);
    c.main.ShipClass[1].click(row);
    const std::string lore = LoreText(GetTier(c, 1), GetSubclass(c, 1));
    EXPECT_FALSE(lore.empty());
    EXPECT_TRUE(c.main.Note.visible());
    EXPECT_EQ(c.main.Note.caption(), lore);
}

TEST(MainWindowEvents, OmegaControlsRestWhileOmegaIsHidden) {
    struct Case {
        const char* name;
        void (*act)(Calculator&);
    } cases[] = {
        {"port", [](Calculator& c) { c.main.CForward[1].click(RowOf(c.main.CForward[1], "Beam Array")); }},
        {"distance", [](Calculator& c) { c.main.TargetDistance[2].click(3); }},
        {"power", [](Calculator& c) { c.main.PowerLevel[2].click(2); }},
        {"class", [](Calculator& c) { c.main.ShipClass[2].click(2); }},
    };
    for (const auto& k : cases) {
        Calculator c;
        c.main.Forward[1].setText("Beam Array");
        k.act(c);
        // Nothing recalculated: Alpha's array has not been counted.
        EXPECT_EQ(c.state.WeaponCount[5][1], 0) << k.name;
        EXPECT_EQ(c.state.ArcDPS[4][1], 0.0f) << k.name;
    }
}

TEST(MainWindowEvents, AlphaPortClickRecalculates) {
    Calculator c;
    const int row = RowOf(c.main.Forward[2], "Beam Array");
    ASSERT_GE(row, 0);
    c.main.Forward[2].click(row);
    EXPECT_EQ(c.state.WeaponCount[5][1], 1);
    EXPECT_EQ(c.state.ArcDPS[4][1], 100.0f);
    EXPECT_TRUE(c.main.FiringArcDPS[4].visible());
    EXPECT_EQ(c.main.FiringArcDPS[4].caption(), "100");
}

TEST(MainWindowEvents, DisabledPortClickDoesNothing) {
    Calculator c;
    c.main.Forward[3].setText("Beam Array");
    c.main.Forward[3].setEnabled(false);
    PortClicked(c, 1, true, 3);
    EXPECT_EQ(c.state.WeaponCount[5][1], 0);
}

TEST(MainWindowEvents, DistanceAndPowerChangeTheResults) {
    Calculator c;
    c.main.Forward[1].setText("Beam Array");
    CalculateFiringArcs(c);
    c.main.TargetDistance[1].click(1);
    EXPECT_EQ(c.state.ArcDPS[4][1], CalculateDPS(c, 0, 0, 0, 0, 1, 0, 0, 100, 1, 1, false));
    c.main.TargetDistance[1].click(0);
    c.main.PowerLevel[1].click(RowOf(c.main.PowerLevel[1], "50"));
    EXPECT_EQ(c.state.ArcDPS[4][1], CalculateDPS(c, 0, 0, 0, 0, 1, 0, 0, 50, 0, 1, false));
    EXPECT_EQ(c.main.PowerLevel[2].row(0), "Same As Alpha- 50");
}

TEST(MainWindowEvents, SimplifiedCaptions) {
    Calculator c;
    c.main.Simplified.setValue(1);
    const int boxes[3] = {2, 7, 9};
    const char* simple[3] = {"Forward", "Side", "Rear"};
    const char* full[3] = {"Forward 110", "Broadside", "Rear 110"};
    for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(c.main.FiringArcLabel[boxes[k]].caption(), simple[k]);
        EXPECT_EQ(c.main.CFiringArcLabel[boxes[k]].caption(), simple[k]);
        EXPECT_TRUE(c.main.FiringArcDPS[boxes[k]].visible());
        EXPECT_EQ(c.main.FiringArcDPS[boxes[k]].back(), DarkGrey);
    }
    c.main.Simplified.setValue(0);
    for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(c.main.FiringArcLabel[boxes[k]].caption(), full[k]);
        EXPECT_EQ(c.main.CFiringArcLabel[boxes[k]].caption(), full[k]);
        EXPECT_FALSE(c.main.FiringArcDPS[boxes[k]].visible());
        EXPECT_EQ(c.main.FiringArcDPS[boxes[k]].back(), White);
    }
}

TEST(MainWindowEvents, ResetRestoresHints) {
    Calculator c;
    c.main.Forward[1].setText("Beam Array");
    c.main.Rear[4].setText("Turret");
    CalculateFiringArcs(c);
    c.main.Reset.press();
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(c.main.Forward[i].text(), "Forward Weapon Port " + std::to_string(i));
        EXPECT_EQ(c.main.Rear[i].text(), "Rear Weapon Port " + std::to_string(i));
    }
    EXPECT_EQ(c.state.ArcDPS[4][1], 0.0f);
    EXPECT_FALSE(c.main.FiringArcDPS[4].visible());
}

} // namespace
} // namespace vantorel
