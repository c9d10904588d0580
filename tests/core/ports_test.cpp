#include "support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantorel {
namespace {

using testing::Quietly;
using Rows = std::vector<std::string>;

// Energy index -1 keeps relative DPS mode, where energy weapons have no type.
void DamageTypes(Calculator& c, Vessel v, int energy, int projectile) {
    VesselSettings& s = c.settings[v];
    c.Alpha().RelativeDPS.setHandler({});
    c.Alpha().RelativeDPS.setValue(energy < 0 ? 1 : 0);
    Quietly(s.WeaponType[1], energy);
    Quietly(s.WeaponType[2], projectile);
}

TEST(Ports, DamageTypeWords) {
    Calculator c;
    EXPECT_EQ(GetDamageType(c, 1, 2), "Quantum ");
    Quietly(c.Alpha().WeaponType[1], 3);
    EXPECT_EQ(GetDamageType(c, 1, 1), ""); // relative mode has no energy type
    c.Alpha().RelativeDPS.setHandler({});
    c.Alpha().RelativeDPS.setValue(0);
    EXPECT_EQ(GetDamageType(c, 1, 1), "Tetryon ");
    Quietly(c.Omega().WeaponType[1], 5);
    EXPECT_EQ(GetDamageType(c, 2, 1), "Antiproton ");
    Quietly(c.Alpha().WeaponType[2], 4);
    EXPECT_EQ(GetDamageType(c, 1, 2), "Transphasic ");
    Quietly(c.Alpha().WeaponType[2], -1);
    EXPECT_EQ(GetDamageType(c, 1, 2), "");
}

TEST(Ports, RowsOfEachListKind) {
    Calculator c;
    DamageTypes(c, 1, 0, 1);
    const Rows rear = {"Empty", "Phaser Beam Array", "Phaser Turret", "Quantum Torpedo Launcher",
                       "Quantum Mine Launcher"};
    struct Case {
        int list;
        Rows forward;
    };
    const Case cases[] = {
        {1,
         {"Empty", "Phaser Beam Array", "Phaser Cannon", "Dual Phaser Beam Bank", "Phaser Dual Cannons",
          "Phaser Dual Heavy Cannons", "Phaser Turret", "Quantum Torpedo Launcher"}},
        {2,
         {"Empty", "Phaser Beam Array", "Phaser Cannon", "Dual Phaser Beam Bank", "Phaser Turret",
          "Quantum Torpedo Launcher"}},
        {3,
         {"Empty", "Phaser Beam Array", "Phaser Cannon", "Dual Phaser Beam Bank", "Phaser Turret",
          "Quantum Torpedo Launcher", "Shuttle Phaser Beam Array"}},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE("list " + std::to_string(k.list));
        WeaponAdd(c, k.list, 1);
        for (int i = 1; i <= 4; ++i) {
            EXPECT_EQ(c.main.Forward[i].rows(), k.forward);
            EXPECT_EQ(c.main.Rear[i].rows(), rear);
            EXPECT_TRUE(c.main.Forward[i].enabled());
        }
    }
}

TEST(Ports, WeaponsAreSpeltAnewOnARebuild) {
    struct Case {
        const char* name;
        int energy, projectile, list;
        const char* forwardBefore;
        const char* rearBefore;
        const char* forwardAfter;
        const char* rearAfter;
    };
    const Case cases[] = {
        {"empty stays empty", 0, 1, 2, "Empty", "Empty", "Empty", "Empty"},
        {"hints stay hints", -1, 1, 1, "Forward Weapon Port 3", "Rear Weapon Port 3", "Forward Weapon Port 3",
         "Rear Weapon Port 3"},
        {"no text becomes the hint", -1, 1, 1, "", "", "Forward Weapon Port 3", "Rear Weapon Port 3"},
        {"dual heavy cannons on a ship without them", 1, 1, 2, "Disruptor Dual Heavy Cannons", "Empty",
         "Dual Disruptor Beam Bank", "Empty"},
        {"dual cannons on a shuttle", 0, 1, 3, "Phaser Dual Cannons", "Empty", "Dual Phaser Beam Bank", "Empty"},
        {"dual heavy cannons change type on list 1", 1, 1, 1, "Phaser Dual Heavy Cannons", "Phaser Turret",
         "Disruptor Dual Heavy Cannons", "Disruptor Turret"},
        {"dual cannons are not heavy ones", 2, 1, 1, "Dual Cannons", "Empty", "Plasma Dual Cannons", "Empty"},
        {"launchers follow the projectile word", -1, 1, 1, "Photon Torpedo Launcher", "Photon Mine Launcher",
         "Quantum Torpedo Launcher", "Quantum Mine Launcher"},
        {"rear torpedo stays a torpedo", -1, 1, 1, "Empty", "Photon Torpedo Launcher", "Empty",
         "Quantum Torpedo Launcher"},
        {"shuttle array stays on list 3", -1, 1, 3, "Shuttle Beam Array", "Empty", "Shuttle Beam Array", "Empty"},
        {"shuttle array follows the energy word", 1, 1, 3, "Shuttle Phaser Beam Array", "Empty",
         "Shuttle Disruptor Beam Array", "Empty"},
        {"shuttle array on list 1", 0, 1, 1, "Shuttle Phaser Beam Array", "Empty", "Phaser Beam Array", "Empty"},
        {"shuttle array on list 2", -1, 1, 2, "Shuttle Beam Array", "Empty", "Beam Array", "Empty"},
        {"relative shuttle array gets the type", 0, 1, 3, "Shuttle Beam Array", "Empty", "Shuttle Phaser Beam Array",
         "Empty"},
        {"relative dual beam bank gets the type", 0, 1, 1, "Dual Beam Bank", "Beam Array", "Dual Phaser Beam Bank",
         "Phaser Beam Array"},
        {"typed text with a known ending", 0, 1, 1, "my Cannon", "a Turret", "Phaser Cannon", "Phaser Turret"},
        {"typed text with no known ending", 0, 1, 1, "Photon Torpedoes", "Mines", "Photon Torpedoes", "Mines"},
        {"relative mode drops the energy word", -1, 0, 1, "Polaron Turret", "Polaron Beam Array", "Turret",
         "Beam Array"},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
        DamageTypes(c, 1, k.energy, k.projectile);
        c.main.Forward[3].setText(k.forwardBefore);
        c.main.Rear[3].setText(k.rearBefore);
        WeaponAdd(c, k.list, 1);
        EXPECT_EQ(c.main.Forward[3].text(), k.forwardAfter);
        EXPECT_EQ(c.main.Rear[3].text(), k.rearAfter);
    }
}

TEST(Ports, ALostDualCannonStaysABeamBank) {
    Calculator c;
    DamageTypes(c, 1, 1, 1);
    WeaponAdd(c, 1, 1);
    c.main.Forward[1].setText("Disruptor Dual Heavy Cannons");
    EXPECT_EQ(c.main.Forward[1].index(), 5);
    WeaponAdd(c, 2, 1);
    EXPECT_EQ(c.main.Forward[1].text(), "Dual Disruptor Beam Bank");
    EXPECT_EQ(c.main.Forward[1].index(), 3);
    WeaponAdd(c, 1, 1);
    EXPECT_EQ(c.main.Forward[1].text(), "Dual Disruptor Beam Bank");
}

TEST(Ports, UnlockOpensOnlyThePortsOfTheShip) {
    Calculator c;
    int recalculations = 0;
    for (int i = 1; i <= 4; ++i) {
        c.main.Forward[i].setText("Beam Array");
        c.main.Rear[i].setText("Turret");
        c.main.Forward[i].setHandler([&] { ++recalculations; });
        c.main.Rear[i].setHandler([&] { ++recalculations; });
    }
    WeaponUnlock(c, 2, 0, 1);
    EXPECT_FALSE(c.main.RearWeaponlabel.visible());
    EXPECT_EQ(c.main.Rear[1].text(), "Rear Weapon Port 1");
    EXPECT_FALSE(c.main.Rear[1].visible());
    EXPECT_EQ(c.main.Forward[2].text(), "Beam Array");
    EXPECT_TRUE(c.main.Forward[2].visible() && c.main.Forward[2].enabled());
    EXPECT_EQ(c.main.Forward[3].text(), "Forward Weapon Port 3");
    EXPECT_FALSE(c.main.Forward[3].visible() || c.main.Forward[3].enabled());

    // Going back to a bigger ship does not bring the weapons back.
    WeaponUnlock(c, 4, 4, 1);
    EXPECT_TRUE(c.main.RearWeaponlabel.visible());
    EXPECT_TRUE(c.main.Forward[3].visible() && c.main.Forward[3].enabled());
    EXPECT_EQ(c.main.Forward[3].text(), "Forward Weapon Port 3");
    EXPECT_TRUE(c.main.Rear[4].visible() && c.main.Rear[4].enabled());
    EXPECT_EQ(recalculations, 0);

    // Omega's heading is its own.
    WeaponUnlock(c, 2, 0, 2);
    EXPECT_FALSE(c.main.CRearWeaponlabel.visible());
    EXPECT_TRUE(c.main.RearWeaponlabel.visible());
    EXPECT_TRUE(c.main.CForward[2].visible() && !c.main.CForward[3].visible());
}

} // namespace
} // namespace vantorel
