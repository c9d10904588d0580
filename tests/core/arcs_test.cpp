#include "engine/calculator.h"
#include "engine/numbers.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace vantorel {
namespace {

constexpr Colour Yellow = 0x80FFFF, LightGreen = 0xC0FFC0, LightRed = 0xC0C0FF, MediumGreen = 0x80FF80,
                 MediumRed = 0x8080FF, Green = 0x00FF00, Red = 0x0000FF;

void Fit(Calculator& c, const char* const (&forward)[4], const char* const (&rear)[4]) {
    for (int i = 1; i <= 4; ++i) {
        if (forward[i - 1]) c.main.Forward[i].setText(forward[i - 1]);
        if (rear[i - 1]) c.main.Rear[i].setText(rear[i - 1]);
    }
}

TEST(FiringArcs, BoxesInUseByLoadout) {
    struct Case {
        const char* name;
        const char* forward[4];
        const char* rear[4];
        bool simplified;
        std::set<int> boxes;
        const char* box5;
    } cases[] = {
        {"empty loadout", {}, {}, false, {}, nullptr},
        {"only turrets", {"Turret"}, {"Turret"}, false, {5}, "Full 360"},
        {"dual cannons and turrets", {"Dual Cannons"}, {"Turret"}, false, {0, 5}, "Other 315"},
        {"heavy cannons and turrets", {"Dual Heavy Cannons"}, {"Turret"}, false, {0, 5}, "Other 315"},
        {"dual beam banks and turrets", {"Dual Beam Bank", "Dual Cannons"}, {"Turret"}, false, {0, 1, 5}, "Other 270"},
        {"forward and rear arrays", {"Beam Array"}, {"Beam Array"}, false, {2, 7, 9}, nullptr},
        {"forward arrays only", {"Beam Array"}, {}, false, {4}, nullptr},
        {"forward arrays and a turret", {"Beam Array"}, {"Turret"}, false, {4, 9}, nullptr},
        {"rear arrays with turrets", {"Turret"}, {"Beam Array"}, false, {2, 11}, nullptr},
        {"rear arrays only", {}, {"Beam Array"}, false, {11}, nullptr},
        {"cannons and both arrays", {"Cannon", "Beam Array"}, {"Beam Array"}, false, {2, 6, 8, 9}, nullptr},
        {"cannons and forward arrays", {"Cannon", "Beam Array"}, {}, false, {3, 8}, nullptr},
        {"cannons, forward arrays, turret", {"Cannon", "Beam Array"}, {"Turret"}, false, {3, 8, 9}, nullptr},
        {"cannons and rear arrays", {"Cannon"}, {"Beam Array"}, false, {2, 6, 10}, nullptr},
        {"cannons only", {"Cannon"}, {}, false, {3}, nullptr},
        {"cannons and a shuttle array", {"Cannon", "Shuttle Beam Array"}, {}, false, {3, 10}, nullptr},
        {"simplified, empty", {}, {}, true, {2, 7, 9}, nullptr},
        {"simplified, cannons", {"Dual Cannons"}, {"Beam Array"}, true, {2, 7, 9}, nullptr},
    };
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
    }
}

TEST(FiringArcs, EmptyLoadoutHasNoResults) {
    Calculator c;
    CalculateFiringArcs(c);
    for (int row = 0; row <= 7; ++row)
        EXPECT_EQ(c.state.ArcDPS[row][1], 0.0f) << row;
}

TEST(FiringArcs, EachBoxShowsItsRow) {
    Calculator c;
    Fit(c, {"Beam Array", "Beam Array"}, {"Beam Array"});
    CalculateFiringArcs(c);
    const float forward = CalculateDPS(c, 0, 0, 0, 0, 2, 0, 0, 100, 0, 1, false);
    const float all = CalculateDPS(c, 0, 0, 0, 0, 3, 0, 0, 100, 0, 1, false);
    EXPECT_EQ(c.main.FiringArcDPS[2].caption(), PlainText(forward));
    EXPECT_EQ(c.main.FiringArcDPS[7].caption(), PlainText(all));
    EXPECT_EQ(c.main.FiringArcDPS[9].caption(), "100");
    EXPECT_EQ(c.state.ArcDPS[5][1], 100.0f);
}

TEST(FiringArcs, EightWeaponsWithDualCannons) {
    Calculator c;
    Fit(c, {"Dual Cannons", "Dual Cannons", "Beam Array", "Beam Array"}, {"Turret", "Turret", "Turret", "Turret"});
    CalculateFiringArcs(c);
    EXPECT_EQ(c.state.ArcDPS[0][1], -1.0f);
    EXPECT_EQ(c.main.FiringArcDPS[0].caption(), "-1");
    for (int row = 1; row <= 5; ++row)
        EXPECT_GT(c.state.ArcDPS[row][1], 0.0f) << row;
    EXPECT_TRUE(c.main.Note.visible());
    EXPECT_EQ(c.main.Note.caption(),
              "Insufficient data to calculate Dual Cannon DPS with more than 7 concurrently firing energy weapons "
              "equipped. For accurate results, please remove a forward energy weapon or rear turret.");
}

TEST(FiringArcs, SimplifiedShowsFrontSideAndRearRows) {
    Calculator c;
    c.main.Simplified.setValue(1);
    Fit(c, {"Beam Array", "Dual Cannons"}, {});
    CalculateFiringArcs(c);
    EXPECT_EQ(c.main.FiringArcDPS[2].caption(), PlainText(c.state.ArcDPS[0][1]));
    EXPECT_EQ(c.main.FiringArcDPS[7].caption(), "100");
    EXPECT_EQ(c.main.FiringArcDPS[9].caption(), "0");
    EXPECT_EQ(c.main.FiringArcDPS[2].back(), White);
    EXPECT_EQ(c.main.FiringArcDPS[9].back(), DarkGrey);
}

TEST(FiringArcs, TorpedoesAloneUseTheFrontBurst) {
    Calculator c;
    c.main.Forward[1].setText(GetDamageType(c, 1, 2) + "Torpedo Launcher");
    CalculateFiringArcs(c);
    for (int i = 0; i <= 11; ++i)
        EXPECT_FALSE(c.state.ArcShown[i]) << i;
    EXPECT_TRUE(c.state.ArcShown[12]);
    EXPECT_FALSE(c.state.ArcShown[13]);
    EXPECT_GT(c.state.ArcDPS[6][1], 0.0f);
}

TEST(FiringArcs, DifferenceColourBands) {
    struct Case {
        const char* name;
        float alpha, omega;
        Colour alphaBack, omegaBack;
    } cases[] = {
        {"even", 100.0f, 100.0f, Yellow, Yellow},
        {"exactly 1.05 is still even", 100.0f, 105.0f, Yellow, Yellow},
        {"just above 1.05", 100.0f, 106.0f, LightRed, LightGreen},
        {"exactly 1.2, Omega ahead", 100.0f, 120.0f, LightRed, LightGreen},
        {"exactly 1.2, Alpha ahead", 120.0f, 100.0f, LightGreen, LightRed},
        {"1.3", 130.0f, 100.0f, MediumGreen, MediumRed},
        {"exactly 1.4", 100.0f, 140.0f, MediumRed, MediumGreen},
        {"above 1.4", 100.0f, 150.0f, Red, Green},
        {"both zero", 0.0f, 0.0f, DarkGrey, DarkGrey},
        {"Alpha zero", 0.0f, 50.0f, DarkGrey, Green},
        {"Omega zero", 50.0f, 0.0f, Green, DarkGrey},
        {"missing data against a value", -1.0f, 300.0f, Yellow, Yellow},
    };
    for (const auto& k : cases) {
        Calculator c;
        DifferenceColor(c, 4, k.alpha, k.omega);
        EXPECT_EQ(c.main.FiringArcDPS[4].back(), k.alphaBack) << k.name;
        EXPECT_EQ(c.main.CFiringArcDPS[4].back(), k.omegaBack) << k.name;
    }
}

TEST(FiringArcs, DifferenceColourMinusOneClearsTheArcBoxes) {
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
    for (int i : {0, 4}) {
        EXPECT_TRUE(c.main.FiringArcDPS[i].visible()) << i;
        EXPECT_TRUE(c.main.CFiringArcDPS[i].visible()) << i;
    }
    EXPECT_EQ(c.state.ArcDPS[4][1], 0.0f);
    EXPECT_EQ(c.state.ArcDPS[4][2], 100.0f);
    EXPECT_EQ(c.main.CFiringArcDPS[4].caption(), "100");
    EXPECT_EQ(c.main.FiringArcDPS[4].caption(), "0");
    EXPECT_EQ(c.main.FiringArcDPS[4].back(), DarkGrey);
    EXPECT_EQ(c.main.CFiringArcDPS[4].back(), Green);
    // One dual cannon against one beam array: 138.56 to 100.
    EXPECT_EQ(c.main.FiringArcDPS[0].back(), MediumGreen);
    EXPECT_EQ(c.main.CFiringArcDPS[0].back(), MediumRed);
}

TEST(FiringArcs, OmegaBoxFiveCopiesAlphasCaption) {
    Calculator c;
    CompareClicked(c);
    c.main.Forward[1].setText("Dual Beam Bank");
    c.main.CRear[1].setText("Turret");
    CalculateFiringArcs(c);
    EXPECT_EQ(c.main.FiringArcLabel[5].caption(), "Other 270");
    EXPECT_EQ(c.main.CFiringArcLabel[5].caption(), "Other 270");
    EXPECT_TRUE(c.main.CFiringArcDPS[5].visible());
}

} // namespace
} // namespace vantorel
