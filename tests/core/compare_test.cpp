#include "support.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using testing::Rows;

std::vector<Control*> OmegaColumn(MainSelection& m) {
    return {&m.ShipClass[2],      &m.ShipTier[2], &m.ShipSubclass[2], &m.PowerLevel[2],
            &m.TargetDistance[2], &m.Skills[2],   &m.Advanced[2],     &m.CReset};
}

TEST(StartUp, FreshCalculator) {
    Calculator c;
    EXPECT_EQ(c.state.Comparing, 0);
    for (int row = 0; row <= 7; ++row)
        EXPECT_EQ(c.state.ArcDPS[row][1] + c.state.ArcDPS[row][2], 0.0f) << row;
    for (int i = 0; i <= 13; ++i)
        EXPECT_FALSE(c.main.FiringArcDPS[i].visible() || c.main.CFiringArcDPS[i].visible()) << i;
    EXPECT_EQ(GetPowerLevel(c, 1, false), 100);
    EXPECT_EQ(GetPowerLevel(c, 1, true), 100);
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
        EXPECT_EQ(GetPowerLevel(c, 2, false), 35) << i;
        EXPECT_EQ(GetPowerLevel(c, 2, true), 35) << i;
    }
}

TEST(Comparison, CompareShowsOmega) {
    Calculator c;
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
    EXPECT_EQ(GetPowerLevel(c, 2, false), 100);
}

TEST(Comparison, HideCompareResetsOmega) {
    Calculator c;
    MainSelection& m = c.main;
    m.Compare.press();
    m.Forward[1].setText("Beam Array");
    m.CForward[1].setText("Dual Cannons");
    m.CRear[1].setText("Turret");
    m.ShipClass[2].click(2);
    m.TargetDistance[2].click(4);
    c.Omega().Form.setVisible(true);
    c.Omega().SameAsAlpha.setValue(0);
    c.skills[2].SameAsAlpha.setValue(0);
    m.Advanced[2].setCaption("Hide Settings");
    CalculateFiringArcs(c);
    c.state.ArcDPS[6][2] = 50.0f;
    ASSERT_NE(c.state.ArcDPS[0][2], 0.0f);
    ASSERT_NE(m.FiringArcDPS[0].back(), White);

    m.HideCompare.press();
    EXPECT_EQ(c.state.Comparing, 0);
    EXPECT_FALSE(c.Omega().Form.visible());
    EXPECT_EQ(c.Omega().SameAsAlpha.value() + c.skills[2].SameAsAlpha.value(), 2);
    EXPECT_EQ(m.Advanced[2].caption(), "Show Settings");
    EXPECT_EQ(m.Form1.width(), 9950);
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
        EXPECT_EQ(m.FiringArcDPS[i].back(), White) << i;
        EXPECT_EQ(m.CFiringArcDPS[i].back(), White) << i;
    }
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(m.CForward[i].text(), "Forward Weapon Port " + std::to_string(i));
        EXPECT_EQ(m.CRear[i].text(), "Rear Weapon Port " + std::to_string(i));
        EXPECT_FALSE(m.CForward[i].visible() || m.CRear[i].visible() || c.Alpha().CopySettings[i].visible());
    }
    EXPECT_EQ(m.ShipClass[2].index() + m.TargetDistance[2].index() + m.PowerLevel[2].index(), 0);
    for (int row = 0; row <= 5; ++row)
        EXPECT_EQ(c.state.ArcDPS[row][2], 0.0f) << row;
    EXPECT_EQ(c.state.ArcDPS[6][2], 50.0f);
    // Alpha is calculated alone again, and a hidden Omega counts nothing.
    EXPECT_EQ(c.state.WeaponCount[2][2], 0);
    EXPECT_EQ(c.state.ArcDPS[4][1], 100.0f);
    EXPECT_FALSE(m.FiringArcDPS[0].visible());
}

TEST(Comparison, HideCompareKeepsOmegasTierRow) {
    Calculator c;
    c.main.Compare.press();
    c.main.ShipTier[2].click(2);
    const int tier = c.main.ShipTier[2].index();
    c.main.HideCompare.press();
    EXPECT_EQ(c.main.ShipTier[2].index(), tier);
}

TEST(Comparison, OmegaFollowsAlphaOnItsSameAsRows) {
    Calculator c;
    c.main.Compare.press();
    c.main.Forward[1].setText("Beam Array");
    c.main.CForward[1].setText("Beam Array");
    c.main.TargetDistance[1].click(5);
    EXPECT_EQ(c.state.ArcDPS[4][2], c.state.ArcDPS[4][1]);
    EXPECT_EQ(c.main.FiringArcDPS[4].back(), 0x80FFFF);
    EXPECT_EQ(c.main.CFiringArcDPS[4].back(), 0x80FFFF);
}

} // namespace
} // namespace vantorel
