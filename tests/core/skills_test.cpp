#include "support.h"

#include "skills/events.h"
#include "skills/lists.h"
#include "skills/place.h"
#include "skills/skills.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

namespace vantorel {
namespace {

using testing::AlphaCaptain;
using testing::OmegaCaptain;
using testing::Rows;

const std::string kRelativeOnly = "Requires Relative DPS to be disabled.";
const Rows kRelativeRows(3, kRelativeOnly);

// Leaving Relative DPS, with the rebuilds that the settings window runs on
// the skills windows then.
void Custom(Calculator& c) {
    c.Alpha().RelativeDPS.setValue(0);
    for (Vessel v = 1; v <= 2; ++v) {
        AttackPatternUpdate(c, v);
        AttackPatternAlphaUpdate(c, v);
    }
}

// What the settings window runs after a change of the projectile type.
void TorpedoType(Calculator& c, int index) {
    c.Alpha().WeaponType[2].setIndex(index);
    TorpedoUpdate(c, 1);
}

TEST(SkillsWindows, StartInRelativeDPS) {
    const Rows torpedoes = {"1 (223% Torpedo Damage)", "2 (258% Torpedo Damage)", "3 (295% Torpedo Damage)"};
    const Rows cannons = {"1 (+30% Cannon Damage)", "2 (+40% Cannon Damage)", "3 (+50% Cannon Damage)"};
    Program c;
    for (Vessel v = 1; v <= 2; ++v) {
        SCOPED_TRACE(v == 1 ? "AlphaSkills" : "OmegaSkills");
        const VesselSkills& k = c.skills[v];
        // Filled by the start selections' events.
        EXPECT_EQ(std::tuple(k.CannonSkillLevel.rows(), k.CannonSkillLevel.index()), std::tuple(cannons, 0));
        EXPECT_EQ(std::tuple(k.TorpedoSkillLevel.rows(), k.TorpedoSkillLevel.index()), std::tuple(torpedoes, 0));
        EXPECT_EQ(
            std::tuple(k.AttackPatternSelected.index(), k.AttackPatternLevel.rows(), k.AttackPatternLevel.index()),
            std::tuple(2, kRelativeRows, 0));
        EXPECT_EQ(std::tuple(k.TacticalTeamLevel.rows(), k.TacticalTeamLevel.index()), std::tuple(kRelativeRows, 0));
        EXPECT_EQ(std::tuple(k.AttackPatternAlphaLevel.text(), k.AttackPatternAlpha.caption()),
                  std::tuple("3 ", "Attack Pattern Alpha "));
        EXPECT_EQ(k.AttackPatternAlphaDescription.caption(), kRelativeOnly);
        for (const Flag* closed : {&k.AttackPatternActivated, &k.TacticalTeamActivated, &k.AttackPatternAlpha})
            EXPECT_EQ(std::tuple(closed->enabled(), closed->value()), std::tuple(false, 0)) << closed->caption();
        EXPECT_EQ(k.BeamSkillActivated.enabled(), v == 1);
        EXPECT_EQ(k.Targets.back(), v == 1 ? White : Grey);
    }
    EXPECT_EQ(c.state.SkillTargets[1], 0) << "no skill level is read before the first change";
}

TEST(SkillsWindows, AttackPatternRowsRoundHalfToEven) {
    // clang-format off
    struct Case { const char* name; int level; double skill; const char* row; } cases[] = {
        {"skill 18", 1, 18, "1 (Target: +17.7% Base Damage Strength)"},
        {"whole result", 3, 100, "3 (Target: +50% Base Damage Strength)"},
        {"Aegis skill", 1, 110, "1 (Target: +31.5% Base Damage Strength)"},
        {"half a hundredth goes to even", 3, 17.5, "3 (Target: +29.38% Base Damage Strength)"},
        {"below half a hundredth", 1, 17.5, "1 (Target: +17.62% Base Damage Strength)"},
    };
    // clang-format on
    for (const Case& k : cases)
        EXPECT_EQ(AttackPatternLevelRow(k.level, k.skill), k.row) << k.name;
}

TEST(SkillsWindows, AttackPatternListFollowsRelativeDPSAndTheChosenPattern) {
    const Rows disabled(3, "Currently disabled, see documentation.");
    const Rows rank1 = {"1 (Target: +17.7% Base Damage Strength)", "2 (Target: +23.6% Base Damage Strength)",
                        "3 (Target: +29.5% Base Damage Strength)"};
    const Rows team = {"1 (+18 Energy/Projectile Weapons Training)", "2 (+24 Energy/Projectile Weapons Training)",
                       "3 (+30 Energy/Projectile Weapons Training)"};
    // clang-format off
    struct Case { const char* name; bool custom; int pattern; Rows rows; bool open; Rows teamRows; } cases[] = {
        {"Omega, relative", false, 2, kRelativeRows, false, kRelativeRows},
        {"Omega, custom", true, 2, rank1, true, team},
        {"Beta, custom", true, 0, disabled, false, team},
        {"Delta, custom", true, 1, disabled, false, team},
        {"Beta, relative", false, 0, disabled, false, kRelativeRows},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        AlphaCaptain(c, 0, 1); // a lieutenant's default skill of 18
        if (k.custom) Custom(c);
        VesselSkills& a = c.skills[1];
        a.AttackPatternSelected.click(k.pattern);
        EXPECT_EQ(std::tuple(a.AttackPatternLevel.rows(), a.AttackPatternActivated.enabled()),
                  std::tuple(k.rows, k.open))
            << k.name;
        EXPECT_EQ(std::tuple(a.TacticalTeamLevel.rows(), a.TacticalTeamActivated.enabled()),
                  std::tuple(k.teamRows, k.custom))
            << k.name;
    }
}

TEST(SkillsWindows, ClosingASkillTakesItOutOfTheResults) {
    // clang-format off
    struct Case { const char* name; void (*close)(Calculator&); } cases[] = {
        {"Beta chosen", [](Calculator& c) { c.skills[1].AttackPatternSelected.click(0); }},
        {"back to Relative DPS", [](Calculator& c) { c.Alpha().RelativeDPS.setValue(1); AttackPatternUpdate(c, 1); }},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        c.state.Comparing = -1;
        Custom(c);
        VesselSkills& a = c.skills[1];
        a.AttackPatternLevel.click(1);
        a.AttackPatternActivated.setValue(1);
        ASSERT_EQ(std::tuple(c.state.AttackPatternOmega[1], c.state.AttackPatternOmega[2]), std::tuple(2, 2));
        k.close(c);
        EXPECT_EQ(std::tuple(a.AttackPatternActivated.value(), a.AttackPatternActivated.enabled()),
                  std::tuple(0, false))
            << k.name;
        EXPECT_EQ(std::tuple(c.state.AttackPatternOmega[1], c.state.AttackPatternOmega[2]), std::tuple(0, 0)) << k.name;
        EXPECT_EQ(c.skills[2].AttackPatternActivated.value(), 0) << k.name;
    }
}

TEST(SkillsWindows, AttackPatternAlphaVersionsByRank) {
    // clang-format off
    struct Case { const char* name; int rankRow; /* -1 unrestricted */ const char* before; Rows rows; const char* caption; bool shown; const char* selected; } cases[] = {
        {"unrestricted keeps 2", -1, "2", {"1", "2", "3"}, "Attack Pattern Alpha", true, "2"},
        {"rank 1: only 1", 1, "3", {"1"}, "Attack Pattern Alpha 1", false, "1"},
        {"rank 2 keeps 1", 2, "1", {"1", "2"}, "Attack Pattern Alpha", true, "1"},
        {"rank 2 loses 3", 2, "3", {"1", "2"}, "Attack Pattern Alpha", true, "2"},
        {"rank 3 loses 1 to the last", 3, "1", {"2", "3"}, "Attack Pattern Alpha", true, "3"},
        {"rank 3 keeps 2", 3, "2", {"2", "3"}, "Attack Pattern Alpha", true, "2"},
        {"rank 4: only 3", 4, "1", {"3"}, "Attack Pattern Alpha 3", false, "3"},
        {"vice admiral: only 3", 7, "2", {"3"}, "Attack Pattern Alpha 3", false, "3"},
        {"a start row's blank matches no version", -1, "1 ", {"1", "2", "3"}, "Attack Pattern Alpha", true, "3"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        List& list = c.skills[1].AttackPatternAlphaLevel;
        if (std::string(k.before) != "1 ") AttackPatternAlphaUpdate(c, 1);
        list.click(testing::RowOf(list, k.before));
        ASSERT_EQ(list.text(), k.before) << k.name;
        AlphaCaptain(c, k.rankRow < 0 ? -1 : 0, k.rankRow);
        AttackPatternAlphaUpdate(c, 1);
        EXPECT_EQ(std::tuple(list.rows(), list.text()), std::tuple(k.rows, k.selected)) << k.name;
        EXPECT_EQ(std::tuple(c.skills[1].AttackPatternAlpha.caption(), list.visible()), std::tuple(k.caption, k.shown))
            << k.name;
    }
}

TEST(SkillsWindows, AttackPatternAlphaDescription) {
    // clang-format off
    struct Case { const char* name; int level; double skill; const char* text; } cases[] = {
        {"version 1 counts 48 of 100", 1, 100, "+26.6% Base Dmg, +1.8% Crit H, +17.8% Crit D"},
        {"version 3 at 100", 3, 100, "+60% Base Dmg, +4% Crit H, +40% Crit D"},
        {"version 1 below 48", 1, 18, "+21.2% Base Dmg, +1.4% Crit H, +14.2% Crit D"},
        {"version 2 at 110", 2, 110, "+50.4% Base Dmg, +3.4% Crit H, +33.6% Crit D"},
    };
    // clang-format on
    for (const Case& k : cases)
        EXPECT_EQ(AttackPatternAlphaDescription(k.level, k.skill), k.text) << k.name;

    // On the window: Relative DPS closes the skill. Leaving it rebuilds the
    // versions; the start row "1 " with its blank is no version, so the last,
    // "3", is chosen, and the description follows each choice.
    Program c;
    VesselSkills& a = c.skills[1];
    a.AttackPatternAlphaLevel.click(0);
    EXPECT_EQ(a.AttackPatternAlphaDescription.caption(), kRelativeOnly);
    c.Alpha().RelativeDPS.setValue(0);
    EXPECT_EQ(std::tuple(a.AttackPatternAlpha.enabled(), a.AttackPatternAlphaLevel.text(),
                         a.AttackPatternAlphaDescription.caption()),
              std::tuple(true, "3", "+60% Base Dmg, +4% Crit H, +40% Crit D"));
    a.AttackPatternAlphaLevel.click(0);
    EXPECT_EQ(a.AttackPatternAlphaDescription.caption(), "+26.6% Base Dmg, +1.8% Crit H, +17.8% Crit D");
    a.AttackPatternAlpha.setValue(1);
    EXPECT_EQ(c.state.AttackPatternAlpha[1], 1);
    a.AttackPatternAlphaLevel.click(2);
    EXPECT_EQ(c.state.AttackPatternAlpha[1], 3) << "a ticked skill takes the new version at once";
    c.Alpha().RelativeDPS.setValue(1);
    a.AttackPatternAlphaLevel.click(1);
    EXPECT_EQ(std::tuple(a.AttackPatternAlpha.value(), a.AttackPatternAlpha.enabled(), c.state.AttackPatternAlpha[1]),
              std::tuple(0, false, 0));
}

TEST(SkillsWindows, TorpedoRowsByType) {
    // clang-format off
    struct Case { int type; Rows highYield, spread; } cases[] = {
        {0, {"1 (217% Torpedo Damage)", "2 (256% Torpedo Damage)", "3 (297% Torpedo Damage)"},
            {"1 (184% Torpedo Damage, Max Targets: 2)", "2 (218% Torpedo Damage, Max Targets: 3)", "3 (252% Torpedo Damage, Max Targets: 4)"}},
        {1, {"1 (223% Torpedo Damage)", "2 (258% Torpedo Damage)", "3 (295% Torpedo Damage)"},
            {"1 (189% Torpedo Damage, Max Targets: 2)", "2 (220% Torpedo Damage, Max Targets: 3)", "3 (251% Torpedo Damage, Max Targets: 4)"}},
        {2, {"1 (259% Torpedo Damage)", "2 (300% Torpedo Damage)", "3 (340% Torpedo Damage)"},
            {"1 (183% Torpedo Damage, Max Targets: 2)", "2 (217% Torpedo Damage, Max Targets: 3)", "3 (251% Torpedo Damage, Max Targets: 4)"}},
        {3, {"1 (172% Torpedo Damage)", "2 (197% Torpedo Damage)", "3 (222% Torpedo Damage)"},
            {"1 (145% Torpedo Damage, Max Targets: 2)", "2 (167% Torpedo Damage, Max Targets: 3)", "3 (189% Torpedo Damage, Max Targets: 4)"}},
        {4, {"1 (172% Torpedo Damage)", "2 (197% Torpedo Damage)", "3 (222% Torpedo Damage)"},
            {"1 (146% Torpedo Damage, Max Targets: 2)", "2 (167% Torpedo Damage, Max Targets: 3)", "3 (189% Torpedo Damage, Max Targets: 4)"}},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        TorpedoType(c, k.type);
        List& level = c.skills[1].TorpedoSkillLevel;
        level.click(2);
        EXPECT_EQ(level.rows(), k.highYield) << c.Alpha().WeaponType[2].text();
        c.skills[1].TorpedoSkillSelected.click(1);
        EXPECT_EQ(std::tuple(level.rows(), level.index()), std::tuple(k.spread, 2)) << c.Alpha().WeaponType[2].text();
    }
}

TEST(SkillsWindows, TricobaltRewritesTheTorpedoAndMineRows) {
    const Rows mines = {"1 (160% Mine Count)", "2 (240% Mine Count)", "3 (320% Mine Count)"};
    const Rows tricobaltMines = {"1 (Does Not Effect Tricobalt Mines)", "2 (Does Not Effect Tricobalt Mines)",
                                 "3 (Does Not Effect Tricobalt Mines)"};
    const Rows tricobaltTorpedoes = {"1 (Does Not Effect Tricobalt Torpedoes)",
                                     "2 (Does Not Effect Tricobalt Torpedoes)",
                                     "3 (Does Not Effect Tricobalt Torpedoes)"};
    Program c;
    VesselSkills& a = c.skills[1];
    a.MineSkillLevel.click(2);
    a.TorpedoSkillLevel.click(1);
    a.MineSkillActivated.setValue(1);
    TorpedoType(c, 5);
    EXPECT_EQ(std::tuple(a.TorpedoSkillLevel.rows(), a.TorpedoSkillLevel.index()), std::tuple(tricobaltTorpedoes, 1));
    EXPECT_EQ(std::tuple(a.MineSkillLevel.rows(), a.MineSkillLevel.index()), std::tuple(tricobaltMines, 2));
    EXPECT_EQ(c.state.MineSkill[1], 3);
    // Another torpedo skill on Tricobalt changes nothing in its rows.
    a.TorpedoSkillSelected.click(1);
    EXPECT_EQ(a.TorpedoSkillLevel.rows(), tricobaltTorpedoes);
    TorpedoType(c, 0);
    EXPECT_EQ(std::tuple(a.MineSkillLevel.rows(), a.MineSkillLevel.index()), std::tuple(mines, 2));
    EXPECT_EQ(std::tuple(a.TorpedoSkillLevel.row(1), a.TorpedoSkillLevel.index()),
              std::tuple("2 (218% Torpedo Damage, Max Targets: 3)", 1));
    EXPECT_EQ(c.state.MineSkill[1], 3);
}

TEST(SkillsWindows, ScatterVolleyRowsReplaceRapidFireRows) {
    Program c;
    VesselSkills& a = c.skills[1];
    a.CannonSkillLevel.click(1);
    a.CannonSkillActivated.setValue(1);
    ASSERT_EQ(std::tuple(c.state.RapidFire[1], c.state.ScatterVolley[1]), std::tuple(2, 0));
    a.CannonSkillSelected.click(1);
    EXPECT_EQ(a.CannonSkillLevel.rows(),
              (Rows{"1 (+15% Cannon Damage, Max Targets: 3)", "2 (+20% Cannon Damage, Max Targets: 3)",
                    "3 (+25% Cannon Damage, Max Targets: 3)"}));
    EXPECT_EQ(a.CannonSkillLevel.index(), 1);
    EXPECT_EQ(std::tuple(c.state.RapidFire[1], c.state.ScatterVolley[1]), std::tuple(0, 2))
        << "the level list's event recalculates the other skill";
    a.CannonSkillSelected.click(0);
    EXPECT_EQ(a.CannonSkillLevel.row(2), "3 (+50% Cannon Damage)");
    EXPECT_EQ(std::tuple(c.state.RapidFire[1], c.state.ScatterVolley[1]), std::tuple(2, 0));
}

TEST(SkillsWindows, TargetsHeldToOneToTen) {
    // clang-format off
    struct Case { const char* typed; const char* shown; int targets; } cases[] = {
        {"0", "1", 1}, {"-3", "1", 1}, {"0.4", "1", 1}, {"11", "10", 10}, {"10.5", "10", 10},
        {"99999999999999999999", "10", 10}, {"x", "1", 1}, {"3x", "1", 1}, {"-", "1", 1},
        {"", "", 1}, {"10", "10", 10}, {" 7 ", " 7 ", 7}, {"2.5", "2.5", 2}, {"3.5", "3.5", 4},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        c.state.Comparing = -1;
        c.skills[1].Targets.setText(k.typed);
        EXPECT_EQ(std::tuple(c.skills[1].Targets.text(), c.state.SkillTargets[1]), std::tuple(k.shown, k.targets))
            << '"' << k.typed << '"';
        EXPECT_EQ(std::tuple(c.skills[2].Targets.text(), c.state.SkillTargets[2]), std::tuple(k.shown, k.targets))
            << "mirrored, \"" << k.typed << '"';
    }
    // A free Omega holds its own box to the same limits and leaves Alpha's.
    Program c;
    c.state.Comparing = -1;
    c.skills[2].SameAsAlpha.setValue(0);
    c.skills[2].Targets.setText("12");
    EXPECT_EQ(std::tuple(c.skills[2].Targets.text(), c.state.SkillTargets[2]), std::tuple("10", 10));
    c.skills[1].Targets.setText("4");
    EXPECT_EQ(std::tuple(c.skills[2].Targets.text(), c.state.SkillTargets[1]), std::tuple("10", 4));
}

TEST(SkillsWindows, OmegaMatchesAlphasVersion) {
    // clang-format off
    struct Case { const char* name; int alphaRankRow; /* -1 unrestricted */ const char* alpha; int omegaRankRow; /* row of Omega's own list, 0 same as Alpha */ const char* omega; } cases[] = {
        {"same rank", -1, "2", 0, "2"},
        {"Omega lower: its last", -1, "3", 1, "1"},
        {"Omega offers it", -1, "2", 4, "2"},
        {"Omega lower, lacks it: its last", -1, "1", 4, "3"},
        {"Omega higher, lacks it: its first", 2, "1", 4, "2"},
        {"Omega higher at its single version", 2, "2", 5, "3"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        AlphaCaptain(c, k.alphaRankRow < 0 ? -1 : 0, k.alphaRankRow);
        OmegaCaptain(c, 1, 0, k.omegaRankRow);
        AttackPatternAlphaUpdate(c, 1);
        AttackPatternAlphaUpdate(c, 2);
        List& alpha = c.skills[1].AttackPatternAlphaLevel;
        alpha.click(testing::RowOf(alpha, k.alpha));
        EXPECT_EQ(c.skills[2].AttackPatternAlphaLevel.text(), k.omega) << k.name;
    }
}

TEST(SkillsWindows, AlphasVersionReachesOmegasNumbersOnlyAtItsNextUpdate) {
    Program c;
    c.state.Comparing = -1;
    Custom(c);
    VesselSkills& a = c.skills[1];
    a.AttackPatternAlpha.setValue(1);
    ASSERT_EQ(std::tuple(c.state.AttackPatternAlpha[1], c.state.AttackPatternAlpha[2]), std::tuple(3, 3));
    a.AttackPatternAlphaLevel.click(0);
    EXPECT_EQ(c.skills[2].AttackPatternAlphaLevel.text(), "1");
    EXPECT_EQ(c.skills[2].AttackPatternAlphaDescription.caption(), "+26.6% Base Dmg, +1.8% Crit H, +17.8% Crit D");
    EXPECT_EQ(std::tuple(c.state.AttackPatternAlpha[1], c.state.AttackPatternAlpha[2]), std::tuple(1, 3));
    a.BeamSkillActivated.setValue(1);
    EXPECT_EQ(c.state.AttackPatternAlpha[2], 1);
}

// The skills as the user leaves them on Alpha's window in custom mode.
void ChooseAlphaSkills(Calculator& c) {
    VesselSkills& a = c.skills[1];
    a.BeamSkillLevel.click(2);
    a.BeamSkillActivated.setValue(1);
    a.CannonSkillSelected.click(1);
    a.CannonSkillLevel.click(1);
    a.CannonSkillActivated.setValue(1);
    a.TorpedoSkillSelected.click(1);
    a.TorpedoSkillActivated.setValue(1);
    a.MineSkillSelected.click(1);
    a.TacticalTeamLevel.click(2);
    a.TacticalTeamActivated.setValue(1);
    a.AttackPatternLevel.click(1);
    a.AttackPatternActivated.setValue(1);
    a.Targets.setText("5");
}

struct Copied {
    int beam, beamLevel, cannon, cannonChoice, cannonLevel, torpedoChoice, mineChoice, team, pattern, patternLevel;
    std::string targets;
    auto operator<=>(const Copied&) const = default;
};

Copied Choices(const VesselSkills& k) {
    return {k.BeamSkillActivated.value(),
            k.BeamSkillLevel.index(),
            k.CannonSkillActivated.value(),
            k.CannonSkillSelected.index(),
            k.CannonSkillLevel.index(),
            k.TorpedoSkillSelected.index(),
            k.MineSkillSelected.index(),
            k.TacticalTeamActivated.value(),
            k.AttackPatternActivated.value(),
            k.AttackPatternLevel.index(),
            k.Targets.text()};
}

void PrintTo(const Copied& k, std::ostream* os) {
    *os << k.beam << k.beamLevel << k.cannon << k.cannonChoice << k.cannonLevel << k.torpedoChoice << k.mineChoice
        << k.team << k.pattern << k.patternLevel << " targets " << k.targets;
}

TEST(SkillsWindows, MirroredOmegaCopiesEveryChoice) {
    Program c;
    c.state.Comparing = -1;
    Custom(c);
    c.main.Forward[1].setText("Beam Array");
    c.main.CForward[1].setText("Beam Array");
    ChooseAlphaSkills(c);
    const VesselSkills& o = c.skills[2];
    EXPECT_EQ(Choices(o), Choices(c.skills[1]));
    EXPECT_EQ(o.CannonSkillLevel.rows(), c.skills[1].CannonSkillLevel.rows());
    EXPECT_EQ(c.state.ArcDPS[0][2], c.state.ArcDPS[0][1]);
    EXPECT_EQ(std::tuple(c.state.ScatterVolley[2], c.state.TorpedoSpread[2], c.state.SkillTargets[2]),
              std::tuple(2, 1, 5));
    // The copies are closed to the user.
    for (const Control* ctl :
         {static_cast<const Control*>(&o.BeamSkillActivated), static_cast<const Control*>(&o.Targets),
          static_cast<const Control*>(&o.AttackPatternActivated)})
        EXPECT_FALSE(ctl->enabled());
}

TEST(SkillsWindows, ClearingSameAsAlphaKeepsTheCopyAndTheResults) {
    Program c;
    c.state.Comparing = -1;
    Custom(c);
    c.main.Forward[1].setText("Beam Array");
    c.main.CForward[1].setText("Beam Array");
    ChooseAlphaSkills(c);
    const float before = c.state.ArcDPS[0][2];
    VesselSkills& o = c.skills[2];
    o.SameAsAlpha.setValue(0);
    EXPECT_EQ(Choices(o), Choices(c.skills[1]));
    EXPECT_EQ(c.state.ArcDPS[0][2], before);
    EXPECT_EQ(std::tuple(o.Targets.enabled(), o.Targets.back(), o.TargetsLabel.fore()), std::tuple(true, White, White));
    EXPECT_TRUE(o.CannonSkillLevel.enabled() && o.BeamSkillActivated.enabled() && o.AttackPatternAlphaLevel.enabled());
    // Relative DPS is off and Omega's pattern is chosen: the boxes that
    // their rules close open with the window.
    EXPECT_TRUE(o.AttackPatternActivated.enabled() && o.TacticalTeamActivated.enabled() &&
                o.AttackPatternAlpha.enabled());

    // From now on each window is its own.
    c.skills[1].BeamSkillActivated.setValue(0);
    EXPECT_EQ(std::tuple(o.BeamSkillActivated.value(), c.state.BeamSkill[2]), std::tuple(1, 3));
    o.CannonSkillActivated.setValue(0);
    EXPECT_EQ(std::tuple(c.state.ScatterVolley[1], c.state.ScatterVolley[2]), std::tuple(2, 0));
}

TEST(SkillsWindows, TickingSameAsAlphaCopiesAlphaAgain) {
    Program c;
    c.state.Comparing = -1;
    Custom(c);
    VesselSkills& o = c.skills[2];
    o.SameAsAlpha.setValue(0);
    o.BeamOverloadActivated.setValue(1);
    o.TorpedoSkillSelected.click(1);
    o.Targets.setText("8");
    ASSERT_EQ(std::tuple(c.state.BeamOverload[2], c.state.SkillTargets[2]), std::tuple(1, 8));
    ChooseAlphaSkills(c);
    EXPECT_NE(Choices(o), Choices(c.skills[1])) << "a free Omega is left alone";

    o.SameAsAlpha.setValue(1);
    EXPECT_EQ(Choices(o), Choices(c.skills[1]));
    EXPECT_EQ(std::tuple(o.Targets.enabled(), o.Targets.back(), o.TargetsLabel.fore()), std::tuple(false, Grey, Grey));
    EXPECT_FALSE(o.AttackPatternAlphaLevel.enabled() || o.AttackPatternAlpha.enabled() ||
                 o.MineSkillSelected.enabled());
    EXPECT_EQ(std::tuple(c.state.BeamOverload[2], c.state.BeamSkill[2], c.state.SkillTargets[2]), std::tuple(0, 3, 5));
}

TEST(SkillsWindows, HideCompareMirrorsAndHidesOmegasWindow) {
    Program c;
    c.main.Compare.press();
    c.main.Skills[2].press();
    c.skills[2].SameAsAlpha.setValue(0);
    c.skills[2].BeamSkillActivated.setValue(1);
    c.main.HideCompare.press();
    EXPECT_EQ(std::tuple(c.skills[2].Form.visible(), c.skills[2].SameAsAlpha.value()), std::tuple(false, 1));
    EXPECT_EQ(std::tuple(c.skills[2].BeamSkillActivated.value(), c.skills[2].BeamSkillActivated.enabled()),
              std::tuple(0, false));
}

TEST(SkillsWindows, PlacedBelowTheMainWindow) {
    const WorkArea screen{0, 0, 19200, 15600};
    // clang-format off
    struct Case { const char* name; Vessel vessel; int mainLeft, mainTop, mainWidth, mainHeight; WorkArea work; int left, top; } cases[] = {
        {"Alpha below", 1, 3000, 0, 9950, 9765, screen, 3000, 9765},
        {"Omega under the right edge", 2, 3000, 0, 14115, 9765, screen, 3000 + 14115 - 9960, 9765},
        {"exactly fits", 1, 0, 15600 - 5580 - 9765, 9950, 9765, screen, 0, 15600 - 5580},
        {"a twip too low: bottom on the work area's", 1, 0, 15600 - 5580 - 9765 + 1, 9950, 9765, screen, 0, 15600 - 5580},
        {"work area below a top bar", 1, 0, 600, 9950, 9765, {0, 600, 19200, 12000}, 0, 12600 - 5580},
        {"main window lower than the screen", 2, 0, 0, 14115, 16000, screen, 14115 - 9960, 15600 - 5580},
    };
    // clang-format on
    for (const Case& k : cases) {
        SkillsPlacement p{k.vessel, k.mainLeft, k.mainTop, k.mainWidth, k.mainHeight, 9960, 5580, k.work};
        const SkillsPlace place = PlaceSkillsWindow(p);
        EXPECT_EQ(std::tuple(place.left, place.top), std::tuple(k.left, k.top)) << k.name;
    }
}

TEST(SkillsWindows, SkillsButtonShowsAndHides) {
    Program c;
    Button& button = c.main.Skills[1];
    Window& form = c.skills[1].Form;
    ShowMainWindowAtStart(c);
    button.press();
    EXPECT_EQ(std::tuple(form.visible(), button.caption()), std::tuple(true, "Hide Skills"));
    EXPECT_EQ(std::tuple(form.left(), form.top()),
              std::tuple(c.main.Form1.left(), c.main.Form1.top() + c.main.Form1.height()));
    button.press();
    EXPECT_EQ(std::tuple(form.visible(), button.caption()), std::tuple(false, "Activate Skills"));

    // Close and the frame's close only hide, and the choices stay.
    for (void (*close)(Calculator&) :
         {+[](Calculator& k) { k.skills[1].Close.press(); }, +[](Calculator& k) { k.skills[1].Form.requestClose(); }}) {
        button.press();
        c.skills[1].BeamSkillActivated.setValue(1);
        close(c);
        EXPECT_EQ(std::tuple(form.visible(), button.caption(), c.skills[1].BeamSkillActivated.value()),
                  std::tuple(false, "Activate Skills", 1));
    }
}

// Random user actions on both windows, with the settings changes that
// rebuild their lists in between: the windows must stay consistent.
TEST(SkillsWindows, RandomActionsKeepTheWindowsConsistent) {
    Program c;
    std::mt19937 random(20101017u);
    auto pick = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const char* const typed[] = {"0", "1", "5", "10", "11", "-2", "2.5", "x", "", " 3 ", "1e5", "10.0001", "."};
    auto lists = [](VesselSkills& k) {
        return std::vector<List*>{&k.BeamSkillLevel,        &k.BeamOverloadLevel,    &k.CannonSkillSelected,
                                  &k.CannonSkillLevel,      &k.MineSkillSelected,    &k.MineSkillLevel,
                                  &k.TacticalTeamLevel,     &k.TorpedoSkillSelected, &k.TorpedoSkillLevel,
                                  &k.AttackPatternSelected, &k.AttackPatternLevel,   &k.AttackPatternAlphaLevel};
    };
    auto boxes = [](VesselSkills& k) {
        return std::vector<Flag*>{&k.BeamSkillActivated,     &k.BeamOverloadActivated, &k.CannonSkillActivated,
                                  &k.MineSkillActivated,     &k.TacticalTeamActivated, &k.TorpedoSkillActivated,
                                  &k.AttackPatternActivated, &k.AttackPatternAlpha,    &k.SameAsAlpha};
    };
    for (int step = 0; step < 3000; ++step) {
        VesselSkills& k = c.skills[static_cast<Vessel>(1 + pick(2))];
        switch (pick(9)) {
        case 0:
        case 1:
        case 2: {
            List* list = lists(k)[static_cast<std::size_t>(pick(12))];
            if (list->enabled() && list->visible()) list->click(pick(list->count() + 1));
            break;
        }
        case 3:
        case 4: {
            Flag* box = boxes(k)[static_cast<std::size_t>(pick(9))];
            if (box->enabled() && box->visible()) box->click();
            break;
        }
        case 5:
            if (k.Targets.enabled()) k.Targets.setText(typed[pick(13)]);
            break;
        case 6:
            c.Alpha().RelativeDPS.setValue(pick(2));
            Custom(c); // the rebuilds; leaves Relative DPS off
            if (pick(2)) {
                c.Alpha().RelativeDPS.setValue(1);
                for (Vessel v = 1; v <= 2; ++v) {
                    AttackPatternUpdate(c, v);
                    AttackPatternAlphaUpdate(c, v);
                }
            }
            break;
        case 7:
            AlphaCaptain(c, pick(3) - 1, pick(8));
            testing::CustomCombat(c, 1, typed[pick(13)], "9", typed[pick(4)]);
            for (Vessel v = 1; v <= 2; ++v) {
                AttackPatternUpdate(c, v);
                AttackPatternAlphaUpdate(c, v);
            }
            break;
        case 8:
            TorpedoType(c, pick(6));
            TorpedoUpdate(c, 2);
            if (pick(4) == 0) (c.state.Comparing ? c.main.HideCompare : c.main.Compare).press();
            break;
        }

        const bool relative = RelativeMode(c);
        for (Vessel v = 1; v <= 2; ++v) {
            SCOPED_TRACE("step " + std::to_string(step) + ", vessel " + std::to_string(v));
            VesselSkills& w = c.skills[v];
            for (List* list : lists(w)) {
                ASSERT_TRUE(list->index() >= 0 && list->index() < list->count());
            }
            for (const List* level : {&w.BeamSkillLevel, &w.BeamOverloadLevel, &w.CannonSkillLevel, &w.MineSkillLevel,
                                      &w.TacticalTeamLevel, &w.TorpedoSkillLevel, &w.AttackPatternLevel})
                ASSERT_EQ(level->count(), 3);
            ASSERT_EQ(w.CannonSkillLevel.row(0).find("Max Targets") != std::string::npos,
                      w.CannonSkillSelected.index() == 1);
            const std::string& targets = w.Targets.text();
            const std::optional<double> n = NumericValue(targets);
            ASSERT_TRUE(targets.empty() || (n && *n >= 1 && *n <= 10)) << targets;
            const bool free = v == 1 || c.skills[2].SameAsAlpha.value() == 0;
            if (free) {
                for (const Flag* closed : {&w.AttackPatternActivated, &w.TacticalTeamActivated, &w.AttackPatternAlpha})
                    ASSERT_TRUE(closed->enabled() || closed->value() == 0) << closed->caption();
            }
            if (relative) {
                ASSERT_EQ(
                    std::tuple(c.state.TacticalTeam[v], c.state.AttackPatternOmega[v], c.state.AttackPatternAlpha[v]),
                    std::tuple(0, 0, 0));
            }
        }
        if (c.skills[2].SameAsAlpha.value() == 1) {
            ASSERT_EQ(Choices(c.skills[2]), Choices(c.skills[1])) << "step " << step;
        }
    }
}

} // namespace
} // namespace vantorel
