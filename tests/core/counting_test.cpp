#include "engine/calculator.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantorel {
namespace {

struct Expect {
    int slot;
    int count;
};

struct Case {
    const char* name;
    bool relative;
    const char* forward[4];
    const char* rear[4];
    std::vector<Expect> expected; // slots not named count 0
};

void Load(Calculator& c, const Case& k) {
    if (!k.relative) {
        c.Alpha().RelativeDPS.setValue(0);
        c.Alpha().WeaponType[1].setIndex(0); // Phaser
    }
    c.Alpha().WeaponType[2].setIndex(2); // Plasma projectiles
    for (int i = 1; i <= 4; ++i) {
        if (k.forward[i - 1]) c.main.Forward[i].setText(k.forward[i - 1]);
        if (k.rear[i - 1]) c.main.Rear[i].setText(k.rear[i - 1]);
    }
}

TEST(WeaponCounting, PortTextsToSlots) {
    const Case cases[] = {
        {"nothing but hints", true, {}, {}, {}},
        {"forward and rear arrays", true, {"Beam Array"}, {"Beam Array"}, {{5, 1}, {7, 1}}},
        {"turrets share one slot", true, {nullptr, "Turret"}, {"Turret"}, {{6, 2}}},
        {"shuttle array and dual bank", true, {"Shuttle Beam Array", "Dual Beam Bank"}, {}, {{11, 1}, {3, 1}}},
        {"each cannon kind",
         true,
         {"Dual Heavy Cannons", "Dual Cannons", "Cannon", "Empty"},
         {},
         {{1, 1}, {2, 1}, {4, 1}}},
        {"typed nonsense counts nothing", true, {"beam array", "Beam Array "}, {"Dual Cannons"}, {}},
        {"typed phaser arrays", false, {"Phaser Beam Array"}, {"Phaser Beam Array"}, {{5, 1}, {7, 1}}},
        {"phaser shuttle and bank",
         false,
         {"Shuttle Phaser Beam Array", "Dual Phaser Beam Bank"},
         {},
         {{11, 1}, {3, 1}}},
        {"phaser turrets", false, {nullptr, "Phaser Turret"}, {"Phaser Turret"}, {{6, 2}}},
        {"untyped array outside relative mode", false, {"Beam Array"}, {}, {}},
        {"plasma torpedoes and mines",
         false,
         {"Plasma Torpedo Launcher"},
         {"Plasma Torpedo Launcher", "Plasma Mine Launcher"},
         {{8, 1}, {9, 1}, {10, 1}}},
        {"eight energy weapons",
         true,
         {"Dual Cannons", "Beam Array", "Cannon", "Shuttle Beam Array"},
         {"Turret", "Beam Array", "Beam Array", "Turret"},
         {{2, 1}, {5, 1}, {4, 1}, {11, 1}, {6, 2}, {7, 2}}},
    };
    for (const Case& k : cases) {
        Calculator c;
        Load(c, k);
        CountWeapons(c);
        for (int slot = 1; slot <= 11; ++slot) {
            int want = 0;
            for (const Expect& e : k.expected)
                if (e.slot == slot) want = e.count;
            EXPECT_EQ(c.state.WeaponCount[slot][1], want) << k.name << ", slot " << slot;
            EXPECT_EQ(c.state.WeaponCount[slot][2], 0) << k.name << ", Omega slot " << slot;
        }
    }
}

TEST(WeaponCounting, ATypeChangeLeavesOldNamesUncounted) {
    Calculator c;
    c.Alpha().RelativeDPS.setValue(0);
    c.Alpha().WeaponType[1].setIndex(0);
    c.main.Forward[1].setText("Phaser Beam Array");
    CountWeapons(c);
    EXPECT_EQ(c.state.WeaponCount[5][1], 1);
    c.Alpha().WeaponType[1].setEnabled(false); // change the type without rebuilding the ports
    c.Alpha().WeaponType[1].setIndex(1);
    c.main.Forward[1].setText("Phaser Beam Array");
    CountWeapons(c);
    EXPECT_EQ(c.state.WeaponCount[5][1], 0);
}

TEST(WeaponCounting, OmegaPortsCountForOmega) {
    Calculator c;
    c.main.CForward[2].setText("Beam Array");
    c.main.CRear[1].setText("Turret");
    CountWeapons(c);
    EXPECT_EQ(c.state.WeaponCount[5][2], 1);
    EXPECT_EQ(c.state.WeaponCount[6][2], 1);
    EXPECT_EQ(c.state.WeaponCount[5][1], 0);
}

} // namespace
} // namespace vantorel
