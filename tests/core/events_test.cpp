#include "support.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>

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
        Program c;
        Shuttle(c, k.faction, k.rankRow);
        const List& rank = c.main.ShuttleRank[1];
        EXPECT_EQ(std::tuple(rank.rows(), rank.index()), std::tuple(k.rows, 0)) << k.name;
        EXPECT_EQ(rank.visible() && rank.enabled() && c.main.ShuttleRankLabel[1].visible(), k.listShown) << k.name;
        EXPECT_TRUE(c.main.ShuttleMod[1].visible()) << k.name;
    }
}

TEST(Shuttles, RankSurvivesTheArraysAbsenceAndRaisesTheResult) {
    Program c;
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
        Program c;
        if (k.rankRow >= 0) Captain(c, 0, k.rankRow);
        EXPECT_EQ(GetMark(c, 1), k.mark) << "relative mode, rank row " << k.rankRow;
    }
    struct Listed {
        int row, mark;
    } listed[] = {{0, 12}, {1, 0}, {2, 1}, {13, 12}}; // Max, Standard Issue, Mark I, Mark XII
    for (const auto& k : listed) {
        Program c;
        c.Alpha().RelativeDPS.setValue(0);
        c.Alpha().WeaponMark.setIndex(k.row);
        EXPECT_EQ(GetMark(c, 1), k.mark) << "row " << k.row;
    }
    struct Graded {
        int rankRow, grade;
        float mark;
    } graded[] = {{-1, 0, 9.9f}, {2, 0, 1.9f}, {3, 4, 4.7f}, {6, 2, 9.3f}};
    for (const auto& k : graded) {
        Program c;
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
        Program c;
        Shuttle(c, 0, k.rankRow, k.grade, k.rare);
        EXPECT_NEAR(ShuttleArrayModifier(c, 1, 1), k.factor, 1e-6) << k.name;
    }
}

TEST(Shuttles, ArrayFactorFromTheBeamModifier) {
    Program c;
    c.Alpha().RelativeDPS.setValue(0);
    c.Alpha().WeaponMark.setIndex(0);
    c.state.BeamModifier[1] = 1.5f;
    const double scale = 8.0 / 50 * 0.8889786, base = 1.5 - 12 * scale + 9.9 * scale;
    EXPECT_NEAR(ShuttleArrayModifier(c, 1, 1), base * 0.76, 1e-5);
    c.main.ShuttleMod[1].setValue(1);
    const double rare = (0.065 * 0.75 + 1) / 1.03375;
    EXPECT_NEAR(ShuttleArrayModifier(c, 1, 2), (base + 7.2 / 50 * 0.8889786 / 2) * ((rare - 1) / 2 + 1) * 0.76, 1e-5);
}

// The bursts read the shuttle rank list too, so they must wait for its
// rebuild like the rows: one recalculation, not the next, shows the burst.
TEST(Shuttles, BurstReadsTheRebuiltRankList) {
    // clang-format off
    struct Case { const char* name; int relative, rankRow, grade, newRankRow; } cases[] = {
        {"a first array, custom weapons", 0, 3, -1, 3},
        {"a grade beyond the rows of a higher rank", 1, 3, 7, 5},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        Captain(c, 0, k.rankRow);
        c.Alpha().RelativeDPS.setValue(k.relative);
        c.skills[1].BeamOverloadActivated.setValue(1);
        if (k.grade >= 0) Shuttle(c, 0, k.rankRow, k.grade);
        c.Alpha().Rank.setIndex(k.newRankRow);
        c.main.Forward[1].setText("Shuttle " + std::string(GetDamageType(c, 1, DamageGroup::Energy)) + "Beam Array");
        CalculateFiringArcs(c);
        const float shown = c.state.ArcDPS[6][1];
        CalculateFiringArcs(c);
        EXPECT_GT(shown, 0.0f) << k.name;
        EXPECT_EQ(shown, c.state.ArcDPS[6][1]) << k.name;
        EXPECT_EQ(c.main.FiringArcDPS[12].caption(), PlainText(c.state.ArcDPS[6][1])) << k.name;
    }
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
        Program c;
        EXPECT_NEAR(PartialCriticalBonus(c, 1, {Severity::Plain, k.chance, k.severity, k.share, k.weapons}), k.expected,
                    1e-6)
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
        Program c;
        if (k.restricted) Captain(c, 0, 4);
        c.state.TacticalTeam[1] = k.tacticalTeam ? 1 : 0;
        Fit(c, k.forward, k.fourTurrets ? turrets : none);
        CalculateFiringArcs(c);
        EXPECT_EQ(c.main.Note.visible(), !k.text.empty()) << k.name;
        if (!k.text.empty()) { EXPECT_EQ(c.main.Note.caption(), k.text) << k.name; }
    }
    // The historical vessel tells its story.
    Program c;
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
        Program c;
        c.main.Forward[1].setText("Beam Array");
        act(c);
        // Nothing recalculated: Alpha's array has not been counted.
        EXPECT_EQ(std::tuple(c.state.WeaponCount[5][1], c.state.ArcDPS[4][1]), std::tuple(0, 0.0f));
    }
}

TEST(MainWindowEvents, PortsDistanceAndPowerRecalculate) {
    Program c;
    c.main.Forward[3].setText("Beam Array");
    c.main.Forward[3].setEnabled(false);
    PortClicked(c, 1, Side::Forward, 3);
    EXPECT_EQ(c.state.WeaponCount[5][1], 0) << "a disabled port does nothing";
    c.main.Forward[3].setText("Empty");
    c.main.Forward[2].click(RowOf(c.main.Forward[2], "Beam Array"));
    EXPECT_EQ(std::tuple(c.state.WeaponCount[5][1], c.state.ArcDPS[4][1]), std::tuple(1, 100.0f));
    EXPECT_TRUE(c.main.FiringArcDPS[4].visible());
    EXPECT_EQ(c.main.FiringArcDPS[4].caption(), "100");
    c.main.TargetDistance[1].click(1);
    EXPECT_EQ(c.state.ArcDPS[4][1], CalculateDPS(c, {{.beamArrays = 1}, 100, 1}, 1, SkillEffect::Counted));
    c.main.TargetDistance[1].click(0);
    c.main.PowerLevel[1].click(RowOf(c.main.PowerLevel[1], "50"));
    EXPECT_EQ(c.state.ArcDPS[4][1], CalculateDPS(c, {{.beamArrays = 1}, 50, 0}, 1, SkillEffect::Counted));
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
    Program c;
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

using testing::Rows;

std::vector<Control*> OmegaColumn(MainSelection& m) {
    return {&m.ShipClass[2],      &m.ShipTier[2], &m.ShipSubclass[2], &m.PowerLevel[2],
            &m.TargetDistance[2], &m.Skills[2],   &m.Advanced[2],     &m.CReset};
}

TEST(StartUp, FreshCalculator) {
    Program c;
    EXPECT_EQ(c.state.Comparing, 0);
    for (int row = 0; row <= 7; ++row)
        EXPECT_EQ(c.state.ArcDPS[row][1] + c.state.ArcDPS[row][2], 0.0f) << row;
    for (int i = 0; i <= 13; ++i)
        EXPECT_FALSE(c.main.FiringArcDPS[i].visible() || c.main.CFiringArcDPS[i].visible()) << i;
    EXPECT_EQ(std::tuple(GetPowerLevel(c, 1, Bonus::Without), GetPowerLevel(c, 1, Bonus::With)), std::tuple(100, 100));
    EXPECT_EQ(c.main.PowerLevel[1].rows(), (Rows{"35", "50", "75", "100", "125"}));
    EXPECT_EQ(c.main.PowerLevel[1].text(), "100");
    EXPECT_TRUE(c.main.PowerLevel[1].enabled());
    EXPECT_EQ(c.main.PowerLevel[2].rows(), (Rows{"Same As Alpha- 100", "35", "50", "75", "100", "125"}));
    EXPECT_EQ(c.main.PowerLevel[2].index(), 0);
    EXPECT_EQ(c.main.TargetDistance[1].index() + c.main.TargetDistance[2].index() + c.main.ShipClass[1].index(), 0);
    EXPECT_EQ(c.Alpha().WeaponType[2].index(), 1);
    EXPECT_FALSE(c.main.Note.visible() || c.main.ShuttleRank[1].visible());
    // A hidden Omega reads no power of its own.
    for (int i = 0; i < c.main.PowerLevel[2].count(); ++i) {
        c.main.PowerLevel[2].setIndex(i);
        EXPECT_EQ(std::tuple(GetPowerLevel(c, 2, Bonus::Without), GetPowerLevel(c, 2, Bonus::With)), std::tuple(35, 35))
            << i;
    }
}

TEST(Comparison, CompareShowsOmega) {
    Program c;
    MainSelection& m = c.main;
    m.Compare.press();
    EXPECT_NE(c.state.Comparing, 0);
    // The subclass list shows only where the class has subclasses.
    for (Control* ctl : OmegaColumn(m))
        if (ctl != &m.ShipSubclass[2]) { EXPECT_TRUE(ctl->visible()); }
    EXPECT_EQ(m.Form1.width(), 14115);
    EXPECT_TRUE(m.Primarylabel.visible() && m.HideCompare.visible());
    EXPECT_FALSE(m.Compare.visible());
    EXPECT_EQ(m.Note.left(), 3720);
    for (int i = 1; i <= 4; ++i)
        EXPECT_TRUE(c.Alpha().CopySettings[i].visible()) << i;
    EXPECT_EQ(GetPowerLevel(c, 2, Bonus::Without), 100);
}

TEST(Comparison, HideCompareResetsOmega) {
    Program c;
    MainSelection& m = c.main;
    m.Compare.press();
    m.Forward[1].setText("Beam Array");
    m.CForward[1].setText("Dual Cannons");
    m.CRear[1].setText("Turret");
    m.ShipClass[2].click(2);
    m.TargetDistance[2].click(4);
    m.PowerLevel[2].click(2);
    c.Omega().Form.setVisible(true);
    c.Omega().SameAsAlpha.setValue(0);
    c.skills[2].SameAsAlpha.setValue(0);
    m.Advanced[2].setCaption("Hide Settings");
    m.Skills[2].setCaption("Hide Skills");
    CalculateFiringArcs(c);
    c.state.ArcDPS[6][2] = 50.0f;
    ASSERT_NE(c.state.ArcDPS[0][2], 0.0f);
    ASSERT_NE(m.FiringArcDPS[0].back(), White);

    m.HideCompare.press();
    EXPECT_EQ(c.state.Comparing, 0);
    EXPECT_FALSE(c.Omega().Form.visible());
    EXPECT_EQ(c.Omega().SameAsAlpha.value() + c.skills[2].SameAsAlpha.value(), 2);
    EXPECT_EQ(std::tuple(m.Advanced[2].caption(), m.Skills[2].caption(), m.Form1.width()),
              std::tuple("Show Settings", "Activate Skills", 9950));
    EXPECT_FALSE(m.Primarylabel.visible() || m.HideCompare.visible() || m.Cline.visible());
    EXPECT_TRUE(m.Compare.visible());
    for (Control* ctl : OmegaColumn(m))
        EXPECT_FALSE(ctl->visible());
    EXPECT_EQ(m.Note.left(), 2880);
    EXPECT_FALSE(m.ShuttleRank[2].visible() || m.ShuttleMod[2].visible());
    for (int i = 0; i <= 13; ++i) {
        EXPECT_FALSE(m.CFiringArcDPS[i].visible() || m.CFiringArcLabel[i].visible()) << i;
        if (i > 11) continue;
        EXPECT_FALSE(m.CFiringArc[i].visible()) << i;
        EXPECT_EQ(std::tuple(m.FiringArcDPS[i].back(), m.CFiringArcDPS[i].back()), std::tuple(White, White)) << i;
    }
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(m.CForward[i].text(), "Forward Weapon Port " + std::to_string(i));
        EXPECT_EQ(m.CRear[i].text(), "Rear Weapon Port " + std::to_string(i));
        EXPECT_FALSE(m.CForward[i].visible() || m.CRear[i].visible() || c.Alpha().CopySettings[i].visible());
    }
    // Class, distance and power go back to their "Same As Alpha" rows; the tier
    // keeps its row.
    EXPECT_EQ(std::tuple(m.ShipClass[2].index(), m.TargetDistance[2].index(), m.PowerLevel[2].index()),
              std::tuple(0, 0, 0));
    for (int row = 0; row <= 5; ++row)
        EXPECT_EQ(c.state.ArcDPS[row][2], 0.0f) << row;
    EXPECT_EQ(c.state.ArcDPS[6][2], 50.0f);
    // Alpha is calculated alone again, and a hidden Omega counts nothing.
    EXPECT_EQ(std::tuple(c.state.WeaponCount[2][2], c.state.ArcDPS[4][1]), std::tuple(0, 100.0f));
    EXPECT_FALSE(m.FiringArcDPS[0].visible());
}

TEST(Comparison, HideCompareKeepsOmegasTierRow) {
    Program c;
    c.main.Compare.press();
    c.main.ShipTier[2].click(2);
    const int tier = c.main.ShipTier[2].index();
    c.main.HideCompare.press();
    EXPECT_EQ(c.main.ShipTier[2].index(), tier);
}

TEST(Comparison, OmegaFollowsAlphaOnItsSameAsRows) {
    Program c;
    c.main.Compare.press();
    c.main.Forward[1].setText("Beam Array");
    c.main.CForward[1].setText("Beam Array");
    c.main.TargetDistance[1].click(5);
    EXPECT_EQ(c.state.ArcDPS[4][2], c.state.ArcDPS[4][1]);
    EXPECT_EQ(c.main.FiringArcDPS[4].back(), 0x80FFFF);
    EXPECT_EQ(c.main.CFiringArcDPS[4].back(), 0x80FFFF);
}

using testing::RowOf;

// Extrapolation on, with the given power skills and none other: opening
// the section fills the boxes, which are emptied first.
void ExtrapolateWith(Calculator& c, Vessel v, const std::array<const char*, 5>& skills) {
    c.settings[v].ExtrapolatePower.setValue(1);
    for (int i = 1; i <= 5; ++i)
        c.settings[v].PowerSkill[i].setText(skills[static_cast<std::size_t>(i - 1)]);
    CalculatePower(c, v, Rebuild::Always);
}

// Extrapolation on, with the whole bonus given as equipment.
void Extrapolate(Calculator& c, Vessel v, const char* equipment) { ExtrapolateWith(c, v, {"", "", "", "", equipment}); }

TEST(PowerModel, TestedLevelsWithoutExtrapolation) {
    Program c;
    const int expected[5] = {35, 50, 75, 100, 125};
    for (int i = 0; i < 5; ++i) {
        c.main.PowerLevel[1].click(i);
        EXPECT_EQ(GetPowerLevel(c, 1, Bonus::Without), expected[i]);
        EXPECT_EQ(GetPowerLevel(c, 1, Bonus::With), expected[i]);
    }
    c.main.PowerLevel[1].setText("abc");
    EXPECT_EQ(GetPowerLevel(c, 1, Bonus::Without), 35) << "nothing selected";
}

TEST(PowerModel, ExtrapolatedRows) {
    // clang-format off
    struct Case { const char* equipment; std::vector<std::string> present, absent; const char* first; } cases[] = {
        {"0", {"35", "40 est.", "50", "100"}, {"25", "30", "25 (25) est."}, "35"},
        {"15", {"25 (40) est.", "35 (50)", "60 (75)", "100 (115) est."}, {"35"}, "25 (40) est."},
        {"40", {"85 (125)", "90 (125)", "100 (125)", "80 (120) est."}, {}, "25 (65) est."}, // capped at 125
    };
    // clang-format on
    for (const auto& k : cases) {
        Program c;
        Extrapolate(c, 1, k.equipment);
        const List& power = c.main.PowerLevel[1];
        for (const std::string& row : k.present)
            EXPECT_GE(RowOf(power, row), 0) << k.equipment << ": " << row;
        for (const std::string& row : k.absent)
            EXPECT_LT(RowOf(power, row), 0) << k.equipment << ": " << row;
        EXPECT_EQ(power.row(0), k.first) << k.equipment;
    }
    // The extrapolated power is the actual power.
    Program c;
    Extrapolate(c, 1, "15");
    EXPECT_EQ(std::tuple(c.main.PowerLevel[1].text(), GetPowerLevel(c, 1, Bonus::Without)),
              std::tuple("100 (115) est.", 100));
    EXPECT_EQ(GetPowerLevel(c, 1, Bonus::With), 115);
    EXPECT_FLOAT_EQ(PowerBonusAt(c, 1, 100), 15.0f);
    c.settings[1].ExtrapolatePower.setValue(0);
    EXPECT_EQ(PowerBonusAt(c, 1, 100), 0.0f);
}

// A bonus beyond any ship's only takes the power to its ends; the rows stay
// whole numbers and the level stays within 35 to 125.
TEST(PowerModel, BonusFarOutOfRange) {
    const std::string digits300(300, '9');
    // clang-format off
    struct Case { std::string equipment; int level; const char* firstRow; } cases[] = {
        {"9999999999", 125, "25 (125)"},
        {digits300, 125, "25 (125)"},
        {"-9999999999", 35, nullptr}, // no setting reaches 35
    };
    // clang-format on
    for (const auto& k : cases) {
        Program c;
        // The text as it reaches the engine: the box's own check would have
        // held it to 99.
        c.Alpha().PowerSkill[5].setHandler({});
        Extrapolate(c, 1, k.equipment.c_str());
        const List& power = c.main.PowerLevel[1];
        EXPECT_EQ(GetPowerLevel(c, 1, Bonus::With), k.level) << k.equipment.substr(0, 12);
        EXPECT_EQ(power.count() > 0 ? power.row(0) : std::string(), k.firstRow ? k.firstRow : "")
            << k.equipment.substr(0, 12);
    }
}

TEST(PowerModel, ShipBonusByClassAndTier) {
    // clang-format off
    struct Case { const char* shipClass; const char* tier; /* start of the tier row */ int subclass, bonus; } cases[] = {
        {"Cruiser", "Tier 1", 0, 0},         {"Cruiser", "Tier 5", 0, 5},        {"Escort", "Tier 5", 0, 15},
        {"Science Vessel", "Tier 5", 0, 0},  {"Battle Cruiser", "Tier 5", 0, 10}, {"Bird of Prey", "Tier 1", 0, 15},
        {"Carrier", "Tier 5", 0, 5},         {"Carrier", "Tier 5", 1, 10},
    };
    // clang-format on
    for (const auto& k : cases) {
        Program c;
        c.main.ShipClass[1].click(RowOf(c.main.ShipClass[1], k.shipClass));
        const List& tiers = c.main.ShipTier[1];
        for (int i = 0; i < tiers.count(); ++i)
            if (tiers.row(i).rfind(k.tier, 0) == 0) c.main.ShipTier[1].click(i);
        if (k.subclass > 0) c.main.ShipSubclass[1].click(k.subclass);
        Extrapolate(c, 1, "");
        EXPECT_EQ(c.state.ShipPowerBonus[1], k.bonus) << k.shipClass << ", " << k.tier << ", " << k.subclass;
        if (std::string(k.shipClass) == "Bird of Prey") {
            EXPECT_EQ(c.main.PowerLevel[1].text(), "100 (115) est.");
            EXPECT_EQ(GetPowerLevel(c, 1, Bonus::With), 115);
        }
    }
}

TEST(PowerModel, OmegaSnapsToATestedLevel) {
    // clang-format off
    struct Case { const char* alphaRow; int omegaPower; const char* sameAsRow; } cases[] = {
        {"60 est.", 50, "Same As Alpha- 60 (50)"}, {"40 est.", 35, "Same As Alpha- 40 (35)"},
        {"70 est.", 75, "Same As Alpha- 70 (75)"}, {"90 est.", 100, "Same As Alpha- 90 (100)"},
        {"75", 75, "Same As Alpha- 75"},
    };
    // clang-format on
    for (const auto& k : cases) {
        Program c;
        CompareClicked(c);
        // A mirrored Omega would extrapolate with Alpha; a free one keeps the
        // tested levels.
        c.Omega().SameAsAlpha.setValue(0);
        Extrapolate(c, 1, "0");
        const int row = RowOf(c.main.PowerLevel[1], k.alphaRow);
        ASSERT_GE(row, 0) << k.alphaRow;
        c.main.PowerLevel[1].click(row);
        EXPECT_EQ(c.main.PowerLevel[2].index(), 0) << k.alphaRow;
        EXPECT_EQ(GetPowerLevel(c, 2, Bonus::With), k.omegaPower) << k.alphaRow;
        EXPECT_EQ(c.main.PowerLevel[2].row(0), k.sameAsRow) << k.alphaRow;
    }
}

TEST(PowerModel, BonusDisplay) {
    // clang-format off
    struct Case { const char* name; int setting; /* row of the tested list */ const char* skills[5]; int warpCore, captain; const char *bonus, *tooltip, *label; } cases[] = {
        {"nothing", 3, {"", "", "", "", ""}, 0, 0, "0", "Ship Power Bonus: 0", "Current Power Bonus (100 Weapon Power)"},
        {"everything at 35", 0, {"9", "9", "9", "2", "3"}, 1, 1, "27.95", "Ship Power Bonus: 0, Warp Core Training: 3.6,  Warp Theorist: 2,  Weapon Efficiency: 6.93,  Efficient Captain: 1.33,  Efficient Bridge Officers (2): 1.33,  Weapon Performance: 9.75,  Equipment Bonus: 3", "Current Power Bonus (35 Weapon Power)"},
        {"above 75", 3, {"9", "9", "9", "", "3"}, 0, 2, "12.75", "Ship Power Bonus: 0, Warp Core Training: 0,  Weapon Efficiency: 0,  Joined Symbiote: 0,  Weapon Performance: 9.75,  Equipment Bonus: 3", "Current Power Bonus (100 Weapon Power)"},
        {"not numbers", 1, {"N/A", "x", "", "", "-2"}, 0, 0, "-2", "Ship Power Bonus: 0", "Current Power Bonus (50 Weapon Power)"},
    };
    // clang-format on
    for (const auto& k : cases) {
        Program c;
        testing::PlainSettings(c);
        VesselSettings& a = c.Alpha();
        c.main.PowerLevel[1].click(k.setting);
        for (int i = 1; i <= 5; ++i)
            a.PowerSkill[i].setText(k.skills[i - 1]);
        a.WarpCore.setValue(k.warpCore);
        a.PowerCaptain.setIndex(k.captain);
        c.state.ShipPowerBonus[1] = 0;
        ModifiedPower(c, 1);
        EXPECT_EQ(std::tuple(a.PowerBonus.caption(), a.PowerBonus.tooltip()), std::tuple(k.bonus, k.tooltip)) << k.name;
        EXPECT_EQ(a.PowerBonusLabel.caption(), k.label) << k.name;
    }
    // The skill pieces are singles: 17 / 200 x 15 is 1.2749999 in single
    // precision, where a double would give 1.2750000000000001 and "1.28".
    {
        Program w;
        VesselSettings& a = w.Alpha();
        ExtrapolateWith(w, 1, {"7", "", "", "", ""});
        List& power = w.main.PowerLevel[1];
        for (int row = 0; row < power.count(); ++row)
            if (power.row(row).rfind("60", 0) == 0) power.click(row);
        ASSERT_EQ(GetPowerLevel(w, 1, Bonus::Without), 60);
        w.state.ShipPowerBonus[1] = 0;
        ModifiedPower(w, 1);
        EXPECT_EQ(a.PowerBonus.tooltip(), "Ship Power Bonus: 0, Warp Core Training: 1.27");
    }
    // The low-setting skills act only below 75: (52 / 300 + 18 / 200) x 40.
    Program c;
    ExtrapolateWith(c, 1, {"9", "9", "", "", ""});
    c.state.ShipPowerBonus[1] = 0;
    EXPECT_EQ(PowerBonusAt(c, 1, 75) + PowerBonusAt(c, 1, 100), 0.0f);
    EXPECT_FLOAT_EQ(PowerBonusAt(c, 1, 35), static_cast<float>((52.0 / 300 + 18.0 / 200) * 40));
}

} // namespace
} // namespace vantorel
