#include "engine/calculator.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantorel {
namespace {

TEST(StartUp, FreshCalculator) {
    Calculator c;
    EXPECT_EQ(c.state.Comparing, 0);
    for (int row = 0; row <= 7; ++row) {
        EXPECT_EQ(c.state.ArcDPS[row][1], 0.0f) << row;
        EXPECT_EQ(c.state.ArcDPS[row][2], 0.0f) << row;
    }
    for (int i = 0; i <= 13; ++i) {
        EXPECT_FALSE(c.main.FiringArcDPS[i].visible()) << i;
        EXPECT_FALSE(c.main.CFiringArcDPS[i].visible()) << i;
    }
    EXPECT_EQ(GetPowerLevel(c, 1, false), 100);
    EXPECT_EQ(GetPowerLevel(c, 1, true), 100);
    EXPECT_EQ(GetPowerLevel(c, 2, false), 35);

    const List& alpha = c.main.PowerLevel[1];
    EXPECT_EQ(alpha.rows(), (std::vector<std::string>{"35", "50", "75", "100", "125"}));
    EXPECT_EQ(alpha.index(), 3);
    EXPECT_EQ(alpha.text(), "100");
    EXPECT_TRUE(alpha.enabled());

    const List& omega = c.main.PowerLevel[2];
    EXPECT_EQ(omega.rows(), (std::vector<std::string>{"Same As Alpha- 100", "35", "50", "75", "100", "125"}));
    EXPECT_EQ(omega.index(), 0);

    EXPECT_EQ(c.main.TargetDistance[1].index(), 0);
    EXPECT_EQ(c.main.TargetDistance[2].index(), 0);
    EXPECT_EQ(c.main.ShipClass[1].index(), 0);
    EXPECT_EQ(c.Alpha().WeaponType[2].index(), 1);
    EXPECT_FALSE(c.main.Note.visible());
    EXPECT_FALSE(c.main.ShuttleRank[1].visible());
}

TEST(StartUp, OmegaPowerIgnoredWhileNotComparing) {
    Calculator c;
    for (int i = 0; i < c.main.PowerLevel[2].count(); ++i) {
        c.main.PowerLevel[2].setIndex(i);
        EXPECT_EQ(GetPowerLevel(c, 2, false), 35) << i;
    }
}

} // namespace
} // namespace vantorel
