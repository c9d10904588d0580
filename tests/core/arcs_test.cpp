#include "support.h"

#include <gtest/gtest.h>

#include <set>

namespace vantorel {
namespace {

using testing::Fit;

constexpr Colour Yellow = 0x80FFFF, LightGreen = 0xC0FFC0, LightRed = 0xC0C0FF, MediumGreen = 0x80FF80,
                 MediumRed = 0x8080FF, Green = 0x00FF00, Red = 0x0000FF;

TEST(WeaponCounting, PortTextsToSlots) {
    // clang-format off
    struct Case { const char* name; bool relative; const char* forward[4]; const char* rear[4]; std::vector<std::pair<int, int>> counts; /* slot, count; slots not named count 0 */ } cases[] = {
        {"hints only", true, {}, {}, {}},
        {"arrays", true, {"Beam Array"}, {"Beam Array"}, {{5, 1}, {7, 1}}},
        {"turrets share a slot", true, {nullptr, "Turret"}, {"Turret"}, {{6, 2}}},
        {"shuttle array, bank", true, {"Shuttle Beam Array", "Dual Beam Bank"}, {}, {{11, 1}, {3, 1}}},
        {"each cannon kind", true, {"Dual Heavy Cannons", "Dual Cannons", "Cannon", "Empty"}, {}, {{1, 1}, {2, 1}, {4, 1}}},
        {"typed nonsense", true, {"beam array", "Beam Array "}, {"Dual Cannons"}, {}},
        {"phaser arrays", false, {"Phaser Beam Array"}, {"Phaser Beam Array"}, {{5, 1}, {7, 1}}},
        {"phaser shuttle, bank", false, {"Shuttle Phaser Beam Array", "Dual Phaser Beam Bank"}, {}, {{11, 1}, {3, 1}}},
        {"phaser turrets", false, {nullptr, "Phaser Turret"}, {"Phaser Turret"}, {{6, 2}}},
        {"untyped array, custom", false, {"Beam Array"}, {}, {}},
        {"plasma launchers", false, {"Plasma Torpedo Launcher"}, {"Plasma Torpedo Launcher", "Plasma Mine Launcher"}, {{8, 1}, {9, 1}, {10, 1}}},
        {"eight energy weapons", true, {"Dual Cannons", "Beam Array", "Cannon", "Shuttle Beam Array"}, {"Turret", "Beam Array", "Beam Array", "Turret"}, {{2, 1}, {5, 1}, {4, 1}, {11, 1}, {6, 2}, {7, 2}}},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        if (!k.relative) {
            c.Alpha().RelativeDPS.setValue(0);
            c.Alpha().WeaponType[1].setIndex(0); // Phaser
        }
        c.Alpha().WeaponType[2].setIndex(2); // Plasma projectiles
        Fit(c, k.forward, k.rear);
        CountWeapons(c);
        for (int slot = 1; slot <= 11; ++slot) {
            int want = 0;
            for (const auto& [s, n] : k.counts)
                if (s == slot) want = n;
            EXPECT_EQ(c.state.WeaponCount[slot][1], want) << k.name << ", slot " << slot;
            EXPECT_EQ(c.state.WeaponCount[slot][2], 0) << k.name << ", Omega slot " << slot;
        }
    }
}

TEST(WeaponCounting, OldNamesAndOmegaPorts) {
    Calculator c;
    c.Alpha().RelativeDPS.setValue(0);
    c.Alpha().WeaponType[1].setIndex(0);
    c.main.Forward[1].setText("Phaser Beam Array");
    c.main.CForward[2].setText("Beam Array");
    c.main.CRear[1].setText("Turret");
    CountWeapons(c);
    EXPECT_EQ(c.state.WeaponCount[5][1], 1);
    EXPECT_EQ(c.state.WeaponCount[5][2], 1);
    EXPECT_EQ(c.state.WeaponCount[6][2], 1);
    // A type change without rebuilding the ports leaves the old names uncounted.
    c.Alpha().WeaponType[1].setEnabled(false);
    c.Alpha().WeaponType[1].setIndex(1);
    c.main.Forward[1].setText("Phaser Beam Array");
    CountWeapons(c);
    EXPECT_EQ(c.state.WeaponCount[5][1], 0);
}

TEST(FiringArcs, BoxesInUseByLoadout) {
    // clang-format off
    struct Case { const char* name; const char* forward[4]; const char* rear[4]; bool simplified; std::set<int> boxes; const char* box5; } cases[] = {
        {"empty", {}, {}, false, {}, nullptr},
        {"only turrets", {"Turret"}, {"Turret"}, false, {5}, "Full 360"},
        {"dc and turrets", {"Dual Cannons"}, {"Turret"}, false, {0, 5}, "Other 315"},
        {"dhc and turrets", {"Dual Heavy Cannons"}, {"Turret"}, false, {0, 5}, "Other 315"},
        {"dbb and turrets", {"Dual Beam Bank", "Dual Cannons"}, {"Turret"}, false, {0, 1, 5}, "Other 270"},
        {"both arrays", {"Beam Array"}, {"Beam Array"}, false, {2, 7, 9}, nullptr},
        {"forward arrays", {"Beam Array"}, {}, false, {4}, nullptr},
        {"forward array, turret", {"Beam Array"}, {"Turret"}, false, {4, 9}, nullptr},
        {"rear arrays, turrets", {"Turret"}, {"Beam Array"}, false, {2, 11}, nullptr},
        {"rear arrays", {}, {"Beam Array"}, false, {11}, nullptr},
        {"cannons, both arrays", {"Cannon", "Beam Array"}, {"Beam Array"}, false, {2, 6, 8, 9}, nullptr},
        {"cannons, forward arrays", {"Cannon", "Beam Array"}, {}, false, {3, 8}, nullptr},
        {"cannons, array, turret", {"Cannon", "Beam Array"}, {"Turret"}, false, {3, 8, 9}, nullptr},
        {"cannons, rear arrays", {"Cannon"}, {"Beam Array"}, false, {2, 6, 10}, nullptr},
        {"cannons", {"Cannon"}, {}, false, {3}, nullptr},
        {"cannons, shuttle array", {"Cannon", "Shuttle Beam Array"}, {}, false, {3, 10}, nullptr},
        {"simplified, empty", {}, {}, true, {2, 7, 9}, nullptr},
        {"simplified, cannons", {"Dual Cannons"}, {"Beam Array"}, true, {2, 7, 9}, nullptr},
    };
    // clang-format on
    for (const auto& k : cases) {
        Calculator c;
        c.main.Simplified.setValue(k.simplified ? 1 : 0);
        Fit(c, k.forward, k.rear);
        CalculateFiringArcs(c);
        for (int i = 0; i <= 13; ++i) {
            const bool used = k.boxes.count(i) > 0;
            EXPECT_EQ(c.state.ArcShown[i], used) << k.name << ", box " << i;
            EXPECT_EQ(c.main.FiringArcDPS[i].visible(), used) << k.name << ", box " << i;
            EXPECT_EQ(c.main.FiringArcLabel[i].visible(), used) << k.name << ", label " << i;
            if (i < 12) { EXPECT_EQ(c.main.FiringArc[i].visible(), used) << k.name << ", arc " << i; }
            EXPECT_FALSE(c.main.CFiringArcDPS[i].visible()) << k.name << ", Omega box " << i;
        }
        if (k.box5) { EXPECT_EQ(c.main.FiringArcLabel[5].caption(), k.box5) << k.name; }
        if (k.boxes.empty()) {
            for (int row = 0; row <= 7; ++row)
                EXPECT_EQ(c.state.ArcDPS[row][1], 0.0f) << row;
        }
    }
}

TEST(FiringArcs, EachBoxShowsItsRow) {
    Calculator c;
    Fit(c, {"Beam Array", "Beam Array"}, {"Beam Array"});
    CalculateFiringArcs(c);
    EXPECT_EQ(c.main.FiringArcDPS[2].caption(), PlainText(CalculateDPS(c, 0, 0, 0, 0, 2, 0, 0, 100, 0, 1, false)));
    EXPECT_EQ(c.main.FiringArcDPS[7].caption(), PlainText(CalculateDPS(c, 0, 0, 0, 0, 3, 0, 0, 100, 0, 1, false)));
    EXPECT_EQ(c.main.FiringArcDPS[9].caption(), "100");
    EXPECT_EQ(c.state.ArcDPS[5][1], 100.0f);
    // Simplified shows the front, side and rear rows.
    Calculator s;
    s.main.Simplified.setValue(1);
    Fit(s, {"Beam Array", "Dual Cannons"}, {});
    CalculateFiringArcs(s);
    EXPECT_EQ(s.main.FiringArcDPS[2].caption(), PlainText(s.state.ArcDPS[0][1]));
    EXPECT_EQ(s.main.FiringArcDPS[7].caption(), "100");
    EXPECT_EQ(s.main.FiringArcDPS[9].caption(), "0");
    EXPECT_EQ(s.main.FiringArcDPS[2].back(), White);
    EXPECT_EQ(s.main.FiringArcDPS[9].back(), DarkGrey);
}

TEST(FiringArcs, EightWeaponsWithDualCannons) {
    Calculator c;
    Fit(c, {"Dual Cannons", "Dual Cannons", "Beam Array", "Beam Array"}, {"Turret", "Turret", "Turret", "Turret"});
    CalculateFiringArcs(c);
    EXPECT_EQ(c.state.ArcDPS[0][1], -1.0f);
    EXPECT_EQ(c.main.FiringArcDPS[0].caption(), "-1");
    for (int row = 1; row <= 5; ++row)
        EXPECT_GT(c.state.ArcDPS[row][1], 0.0f) << row;
}

TEST(FiringArcs, TorpedoesAloneUseTheFrontBurst) {
    Calculator c;
    c.main.Forward[1].setText(GetDamageType(c, 1, 2) + "Torpedo Launcher");
    CalculateFiringArcs(c);
    for (int i = 0; i <= 13; ++i)
        EXPECT_EQ(c.state.ArcShown[i], i == 12) << i;
    EXPECT_GT(c.state.ArcDPS[6][1], 0.0f);
}

TEST(FiringArcs, DifferenceColourBands) {
    // clang-format off
    struct Case { const char* name; float alpha, omega; Colour alphaBack, omegaBack; } cases[] = {
        {"even", 100.0f, 100.0f, Yellow, Yellow},
        {"exactly 1.05", 100.0f, 105.0f, Yellow, Yellow},
        {"above 1.05", 100.0f, 106.0f, LightRed, LightGreen},
        {"1.2, Omega ahead", 100.0f, 120.0f, LightRed, LightGreen},
        {"1.2, Alpha ahead", 120.0f, 100.0f, LightGreen, LightRed},
        {"1.3", 130.0f, 100.0f, MediumGreen, MediumRed},
        {"exactly 1.4", 100.0f, 140.0f, MediumRed, MediumGreen},
        {"above 1.4", 100.0f, 150.0f, Red, Green},
        {"both zero", 0.0f, 0.0f, DarkGrey, DarkGrey},
        {"Alpha zero", 0.0f, 50.0f, DarkGrey, Green},
        {"Omega zero", 50.0f, 0.0f, Green, DarkGrey},
        {"missing data", -1.0f, 300.0f, Yellow, Yellow},
    };
    // clang-format on
    for (const auto& k : cases) {
        Calculator c;
        DifferenceColor(c, 4, k.alpha, k.omega);
        EXPECT_EQ(c.main.FiringArcDPS[4].back(), k.alphaBack) << k.name;
        EXPECT_EQ(c.main.CFiringArcDPS[4].back(), k.omegaBack) << k.name;
    }
    // -1 clears the arc boxes only.
    Calculator c;
    for (int i = 0; i <= 13; ++i)
        DifferenceColor(c, i, 10.0f, 0.0f);
    DifferenceColor(c, -1, 0.0f, 0.0f);
    for (int i = 0; i <= 11; ++i) {
        EXPECT_EQ(c.main.FiringArcDPS[i].back(), White) << i;
        EXPECT_EQ(c.main.CFiringArcDPS[i].back(), White) << i;
    }
    EXPECT_EQ(c.main.FiringArcDPS[12].back(), Green);
}

TEST(FiringArcs, ComparisonShowsEachSidesOwnValues) {
    Calculator c;
    CompareClicked(c);
    c.main.Forward[1].setText("Dual Cannons");
    c.main.CForward[1].setText("Beam Array");
    CalculateFiringArcs(c);
    for (int i : {0, 4})
        EXPECT_TRUE(c.main.FiringArcDPS[i].visible() && c.main.CFiringArcDPS[i].visible()) << i;
    EXPECT_EQ(c.state.ArcDPS[4][1], 0.0f);
    EXPECT_EQ(c.main.CFiringArcDPS[4].caption(), "100");
    EXPECT_EQ(c.main.FiringArcDPS[4].caption(), "0");
    EXPECT_EQ(c.main.FiringArcDPS[4].back(), DarkGrey);
    EXPECT_EQ(c.main.CFiringArcDPS[4].back(), Green);
    // One dual cannon against one beam array: 138.56 to 100.
    EXPECT_EQ(c.main.FiringArcDPS[0].back(), MediumGreen);
    EXPECT_EQ(c.main.CFiringArcDPS[0].back(), MediumRed);
    // Omega's box 5 copies Alpha's caption.
    Calculator d;
    CompareClicked(d);
    d.main.Forward[1].setText("Dual Beam Bank");
    d.main.CRear[1].setText("Turret");
    CalculateFiringArcs(d);
    EXPECT_EQ(d.main.FiringArcLabel[5].caption(), "Other 270");
    EXPECT_EQ(d.main.CFiringArcLabel[5].caption(), "Other 270");
    EXPECT_TRUE(d.main.CFiringArcDPS[5].visible());
}

} // namespace
} // namespace vantorel
