#include "support.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using testing::Captain;
using testing::Fit;
using testing::RowOf;

std::vector<std::string> Numbered(const std::string& name, int n) {
    std::vector<std::string> rows;
    for (int k = 1; k <= n; ++k)
        rows.push_back(name + " " + std::to_string(k));
    return rows;
}

// A shuttle array on Alpha with a captain of the rank row (-1 unrestricted),
// at the grade row of the shuttle rank list.
void Shuttle(Calculator& c, int faction, int rankRow, int grade = 0, int rare = 0) {
    if (rankRow >= 0) Captain(c, faction, rankRow);
    c.main.Forward[1].setText("Shuttle Beam Array");
    CalculateFiringArcs(c);
    c.main.ShuttleRank[1].setIndex(grade);
    c.main.ShuttleMod[1].setValue(rare);
}

TEST(Shuttles, RankRows) {
    // clang-format off
    struct Case { const char* name; int faction, rankRow; std::vector<std::string> rows; bool listShown; } cases[] = {
        {"unrestricted", 0, -1, Numbered("Vice Admiral", 1), false},
        {"Federation lieutenant", 0, 1, Numbered("Lieutenant", 10), true},
        {"Klingon sergeant", 1, 2, Numbered("Sergeant", 10), true},
        {"lower half", 0, 5, Numbered("Rear Admiral, Lower Half", 5), true},
        {"major general", 1, 6, Numbered("Major General", 5), true},
        {"lieutenant general", 1, 7, Numbered("Lieutenant General", 1), false},
    };
    // clang-format on
    for (const auto& k : cases) {
        Calculator c;
        Shuttle(c, k.faction, k.rankRow);
        const List& rank = c.main.ShuttleRank[1];
        EXPECT_EQ(rank.rows(), k.rows) << k.name;
        EXPECT_EQ(rank.index(), 0) << k.name;
        EXPECT_EQ(rank.visible() && rank.enabled() && c.main.ShuttleRankLabel[1].visible(), k.listShown) << k.name;
        EXPECT_TRUE(c.main.ShuttleMod[1].visible()) << k.name;
    }
}

TEST(Shuttles, RankSurvivesTheArraysAbsenceAndRaisesTheResult) {
    Calculator c;
    Shuttle(c, 0, 3);
    const float low = c.state.ArcDPS[0][1];
    c.main.ShuttleRank[1].click(6);
    EXPECT_GT(c.state.ArcDPS[0][1], low);
    const float high = c.state.ArcDPS[0][1];
    c.main.ShuttleMod[1].click();
    EXPECT_GT(c.state.ArcDPS[0][1], high);
    c.main.Forward[1].setText("Empty");
    CalculateFiringArcs(c);
    EXPECT_FALSE(c.main.ShuttleRank[1].visible() || c.main.ShuttleMod[1].visible() ||
                 c.main.ShuttleRankLabel[1].visible());
    c.main.Forward[1].setText("Shuttle Beam Array");
    CalculateFiringArcs(c);
    EXPECT_EQ(c.main.ShuttleRank[1].text(), "Commander 7");
}

TEST(Shuttles, Marks) {
    struct Case {
        int rankRow, mark; // rank row -1: unrestricted
    } byRank[] = {{-1, 12}, {0, 2}, {1, 2}, {2, 4}, {3, 6}, {4, 8}, {5, 10}, {6, 12}, {7, 12}};
    for (const auto& k : byRank) {
        Calculator c;
        if (k.rankRow >= 0) Captain(c, 0, k.rankRow);
        EXPECT_EQ(GetMark(c, 1), k.mark) << "relative mode, rank row " << k.rankRow;
    }
    struct Listed {
        int row, mark;
    } listed[] = {{0, 12}, {1, 0}, {2, 1}, {13, 12}}; // Max, Standard Issue, Mark I, Mark XII
    for (const auto& k : listed) {
        Calculator c;
        c.Alpha().RelativeDPS.setValue(0);
        c.Alpha().WeaponMark.setIndex(k.row);
        EXPECT_EQ(GetMark(c, 1), k.mark) << "row " << k.row;
    }
    struct Graded {
        int rankRow, grade;
        float mark;
    } graded[] = {{-1, 0, 9.9f}, {2, 0, 1.9f}, {3, 4, 4.7f}, {6, 2, 9.3f}};
    for (const auto& k : graded) {
        Calculator c;
        Shuttle(c, 0, k.rankRow, k.grade);
        EXPECT_FLOAT_EQ(GetRankMark(c, 1), k.mark) << k.rankRow << " grade " << k.grade;
    }
}

TEST(Shuttles, ArrayFactorInRelativeMode) {
    // The rare array's extra critical chance on one array of one.
    const float rare = (0.065f * 0.75f + 1.0f) / 1.03375f;
    const float rearAdmiral3 = 0.70715f + (0.70885f - 0.70715f) / 5 * 2;
    // clang-format off
    struct Case { const char* name; int rankRow, grade, rare; float factor; } cases[] = {
        {"unrestricted is vice admiral", -1, 0, 0, 0.71044f},
        {"rare steps up a rank", -1, 0, 1, 0.73141f * rare},
        {"lieutenant", 1, 0, 0, 0.62918f},
        {"commander grade 5", 3, 4, 0, 0.68402f + (0.7034f - 0.68402f) / 10 * 4},
        {"rear admiral grade 3 in fives", 5, 2, 0, rearAdmiral3},
        {"captain grade 8, rare", 4, 7, 1, rearAdmiral3 * rare},
    };
    // clang-format on
    for (const auto& k : cases) {
        Calculator c;
        Shuttle(c, 0, k.rankRow, k.grade, k.rare);
        EXPECT_NEAR(ShuttleArrayModifier(c, 1, 1), k.factor, 1e-6) << k.name;
    }
}

TEST(Shuttles, ArrayFactorFromTheBeamModifier) {
    Calculator c;
    c.Alpha().RelativeDPS.setValue(0);
    c.Alpha().WeaponMark.setIndex(0);
    c.state.BeamModifier[1] = 1.5f;
    const double scale = 8.0 / 50 * 0.8889786, base = 1.5 - 12 * scale + 9.9 * scale;
    EXPECT_NEAR(ShuttleArrayModifier(c, 1, 1), base * 0.76, 1e-5);
    c.main.ShuttleMod[1].setValue(1);
    const double rare = (0.065 * 0.75 + 1) / 1.03375;
    EXPECT_NEAR(ShuttleArrayModifier(c, 1, 2), (base + 7.2 / 50 * 0.8889786 / 2) * ((rare - 1) / 2 + 1) * 0.76, 1e-5);
}

TEST(Shuttles, PartialCriticalBonus) {
    // clang-format off
    struct Case { const char* name; float chance, severity, share; int weapons; float expected; } cases[] = {
        {"no extra", 0.0f, 0.0f, 1.0f, 1, 1.0f},
        {"2% on one of one", 0.02f, 0.0f, 1.0f, 1, (0.065f * 0.75f + 1.0f) / 1.03375f},
        {"2% on one of two", 0.02f, 0.0f, 1.0f, 2, ((0.065f * 0.75f + 1.0f) / 1.03375f - 1.0f) / 2 + 1.0f},
        {"20% severity on half", 0.0f, 0.2f, 0.5f, 1, ((0.045f * 0.95f + 1.0f) / 1.03375f - 1.0f) / 2 + 1.0f},
    };
    // clang-format on
    for (const auto& k : cases) {
        Calculator c;
        EXPECT_NEAR(PartialCriticalBonus(c, 1, false, k.chance, k.severity, k.share, k.weapons), k.expected, 1e-6)
            << k.name;
    }
}

TEST(MainWindowEvents, Note) {
    const std::string shuttle = "Shuttle weapon damage is calculated based on a rank of Vice Admiral.  If you are a "
                                "lower rank, please select your rank in the Advanced Settings for accurate shuttle "
                                "weapon damage.";
    const std::string dualCannons = "Insufficient data to calculate Dual Cannon DPS with more than 7 concurrently "
                                    "firing energy weapons equipped. For accurate results, please remove a forward "
                                    "energy weapon or rear turret.";
    const std::string team = "In order to calculate the effects of Tactical Team, you must disable Relative DPS in "
                             "the Advanced Settings.";
    const char* const turrets[4] = {"Turret", "Turret", "Turret", "Turret"};
    // clang-format off
    struct Case { const char* name; const char* forward[4]; bool fourTurrets, restricted, tacticalTeam; std::string text; /* "" for no note */ } cases[] = {
        {"nothing to say", {"Beam Array"}, false, false, false, ""},
        {"unrestricted shuttle", {"Shuttle Beam Array"}, false, false, false, shuttle},
        {"ranked shuttle", {"Shuttle Beam Array"}, false, true, false, ""},
        {"shuttle before dual cannons", {"Dual Cannons", "Dual Cannons", "Shuttle Beam Array", "Cannon"}, true, false, false, shuttle},
        {"eight with dual cannons", {"Dual Cannons", "Dual Cannons", "Cannon", "Cannon"}, true, false, true, dualCannons},
        {"tactical team, relative", {"Beam Array"}, false, false, true, team},
    };
    // clang-format on
    const char* const none[4] = {};
    for (const auto& k : cases) {
        Calculator c;
        if (k.restricted) Captain(c, 0, 4);
        c.state.TacticalTeam[1] = k.tacticalTeam ? 1 : 0;
        Fit(c, k.forward, k.fourTurrets ? turrets : none);
        CalculateFiringArcs(c);
        EXPECT_EQ(c.main.Note.visible(), !k.text.empty()) << k.name;
        if (!k.text.empty()) { EXPECT_EQ(c.main.Note.caption(), k.text) << k.name; }
    }
    // The historical vessel tells its story.
    Calculator c;
    c.main.ShipClass[1].click(RowOf(c.main.ShipClass[1], "Federation"));
    const std::string lore = LoreText(GetTier(c, 1), GetSubclass(c, 1));
    EXPECT_FALSE(lore.empty());
    EXPECT_TRUE(c.main.Note.visible());
    EXPECT_EQ(c.main.Note.caption(), lore);
}

TEST(MainWindowEvents, OmegaControlsRestWhileOmegaIsHidden) {
    void (*acts[])(Calculator&) = {
        [](Calculator& c) { c.main.CForward[1].click(RowOf(c.main.CForward[1], "Beam Array")); },
        [](Calculator& c) { c.main.TargetDistance[2].click(3); },
        [](Calculator& c) { c.main.PowerLevel[2].click(2); },
        [](Calculator& c) { c.main.ShipClass[2].click(2); },
    };
    for (auto act : acts) {
        Calculator c;
        c.main.Forward[1].setText("Beam Array");
        act(c);
        // Nothing recalculated: Alpha's array has not been counted.
        EXPECT_EQ(c.state.WeaponCount[5][1], 0);
        EXPECT_EQ(c.state.ArcDPS[4][1], 0.0f);
    }
}

TEST(MainWindowEvents, PortsDistanceAndPowerRecalculate) {
    Calculator c;
    c.main.Forward[3].setText("Beam Array");
    c.main.Forward[3].setEnabled(false);
    PortClicked(c, 1, true, 3);
    EXPECT_EQ(c.state.WeaponCount[5][1], 0) << "a disabled port does nothing";
    c.main.Forward[3].setText("Empty");
    c.main.Forward[2].click(RowOf(c.main.Forward[2], "Beam Array"));
    EXPECT_EQ(c.state.WeaponCount[5][1], 1);
    EXPECT_EQ(c.state.ArcDPS[4][1], 100.0f);
    EXPECT_TRUE(c.main.FiringArcDPS[4].visible());
    EXPECT_EQ(c.main.FiringArcDPS[4].caption(), "100");
    c.main.TargetDistance[1].click(1);
    EXPECT_EQ(c.state.ArcDPS[4][1], CalculateDPS(c, 0, 0, 0, 0, 1, 0, 0, 100, 1, 1, false));
    c.main.TargetDistance[1].click(0);
    c.main.PowerLevel[1].click(RowOf(c.main.PowerLevel[1], "50"));
    EXPECT_EQ(c.state.ArcDPS[4][1], CalculateDPS(c, 0, 0, 0, 0, 1, 0, 0, 50, 0, 1, false));
    EXPECT_EQ(c.main.PowerLevel[2].row(0), "Same As Alpha- 50");
    // Reset brings the hints back.
    c.main.Rear[4].setText("Turret");
    c.main.Reset.press();
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(c.main.Forward[i].text(), "Forward Weapon Port " + std::to_string(i));
        EXPECT_EQ(c.main.Rear[i].text(), "Rear Weapon Port " + std::to_string(i));
    }
    EXPECT_EQ(c.state.ArcDPS[4][1], 0.0f);
    EXPECT_FALSE(c.main.FiringArcDPS[4].visible());
}

TEST(MainWindowEvents, SimplifiedCaptions) {
    Calculator c;
    const int boxes[3] = {2, 7, 9};
    const char* simple[3] = {"Forward", "Side", "Rear"};
    const char* full[3] = {"Forward 110", "Broadside", "Rear 110"};
    for (int on : {1, 0}) {
        c.main.Simplified.setValue(on);
        for (int k = 0; k < 3; ++k) {
            const int b = boxes[k];
            EXPECT_EQ(c.main.FiringArcLabel[b].caption(), on ? simple[k] : full[k]);
            EXPECT_EQ(c.main.CFiringArcLabel[b].caption(), on ? simple[k] : full[k]);
            EXPECT_EQ(c.main.FiringArcDPS[b].visible(), on == 1);
            EXPECT_EQ(c.main.FiringArcDPS[b].back(), on ? DarkGrey : White);
        }
    }
}

} // namespace
} // namespace vantorel
