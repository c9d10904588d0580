#include "support.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using testing::RowOf;

// Extrapolation on, with the whole bonus given as equipment.
void Extrapolate(Calculator& c, Vessel v, const char* equipment) {
    c.settings[v].ExtrapolatePower.setValue(1);
    c.settings[v].PowerSkill[5].setText(equipment);
    CalculatePower(c, v, true);
}

TEST(PowerModel, TestedLevelsWithoutExtrapolation) {
    Calculator c;
    const int expected[5] = {35, 50, 75, 100, 125};
    for (int i = 0; i < 5; ++i) {
        c.main.PowerLevel[1].click(i);
        EXPECT_EQ(GetPowerLevel(c, 1, false), expected[i]);
        EXPECT_EQ(GetPowerLevel(c, 1, true), expected[i]);
    }
    c.main.PowerLevel[1].setText("abc");
    EXPECT_EQ(GetPowerLevel(c, 1, false), 35) << "nothing selected";
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
        Calculator c;
        Extrapolate(c, 1, k.equipment);
        const List& power = c.main.PowerLevel[1];
        for (const std::string& row : k.present)
            EXPECT_GE(RowOf(power, row), 0) << k.equipment << ": " << row;
        for (const std::string& row : k.absent)
            EXPECT_LT(RowOf(power, row), 0) << k.equipment << ": " << row;
        EXPECT_EQ(power.row(0), k.first) << k.equipment;
    }
    // The extrapolated power is the actual power.
    Calculator c;
    Extrapolate(c, 1, "15");
    EXPECT_EQ(c.main.PowerLevel[1].text(), "100 (115) est.");
    EXPECT_EQ(GetPowerLevel(c, 1, false), 100);
    EXPECT_EQ(GetPowerLevel(c, 1, true), 115);
    EXPECT_FLOAT_EQ(PowerBonusAt(c, 1, 100), 15.0f);
    c.settings[1].ExtrapolatePower.setValue(0);
    EXPECT_EQ(PowerBonusAt(c, 1, 100), 0.0f);
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
        Calculator c;
        c.main.ShipClass[1].click(RowOf(c.main.ShipClass[1], k.shipClass));
        const List& tiers = c.main.ShipTier[1];
        for (int i = 0; i < tiers.count(); ++i)
            if (tiers.row(i).rfind(k.tier, 0) == 0) c.main.ShipTier[1].click(i);
        if (k.subclass > 0) c.main.ShipSubclass[1].click(k.subclass);
        c.Alpha().ExtrapolatePower.setValue(1);
        CalculatePower(c, 1, true);
        EXPECT_EQ(c.state.ShipPowerBonus[1], k.bonus) << k.shipClass << ", " << k.tier << ", " << k.subclass;
        if (std::string(k.shipClass) == "Bird of Prey") {
            EXPECT_EQ(c.main.PowerLevel[1].text(), "100 (115) est.");
            EXPECT_EQ(GetPowerLevel(c, 1, true), 115);
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
        Calculator c;
        CompareClicked(c);
        Extrapolate(c, 1, "0");
        const int row = RowOf(c.main.PowerLevel[1], k.alphaRow);
        ASSERT_GE(row, 0) << k.alphaRow;
        c.main.PowerLevel[1].click(row);
        EXPECT_EQ(c.main.PowerLevel[2].index(), 0) << k.alphaRow;
        EXPECT_EQ(GetPowerLevel(c, 2, true), k.omegaPower) << k.alphaRow;
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
        Calculator c;
        VesselSettings& a = c.Alpha();
        c.main.PowerLevel[1].click(k.setting);
        for (int i = 1; i <= 5; ++i)
            a.PowerSkill[i].setText(k.skills[i - 1]);
        a.WarpCore.setValue(k.warpCore);
        a.PowerCaptain.setIndex(k.captain);
        c.state.ShipPowerBonus[1] = 0;
        ModifiedPower(c, 1);
        EXPECT_EQ(a.PowerBonus.caption(), k.bonus) << k.name;
        EXPECT_EQ(a.PowerBonus.tooltip(), k.tooltip) << k.name;
        EXPECT_EQ(a.PowerBonusLabel.caption(), k.label) << k.name;
    }
    // The low-setting skills act only below 75: (52 / 300 + 18 / 200) x 40.
    Calculator c;
    c.Alpha().ExtrapolatePower.setValue(1);
    c.Alpha().PowerSkill[1].setText("9");
    c.Alpha().PowerSkill[2].setText("9");
    c.state.ShipPowerBonus[1] = 0;
    EXPECT_EQ(PowerBonusAt(c, 1, 75) + PowerBonusAt(c, 1, 100), 0.0f);
    EXPECT_FLOAT_EQ(PowerBonusAt(c, 1, 35), static_cast<float>((52.0 / 300 + 18.0 / 200) * 40));
}

} // namespace
} // namespace vantorel
