#include "support.h"

#include <gtest/gtest.h>

#include <tuple>

namespace vantorel {
namespace {

using namespace testing;

void Relative(Calculator& c, int on) {
    for (Vessel v = 1; v <= 2; ++v) {
        c.settings[v].RelativeDPS.setHandler({});
        c.settings[v].RelativeDPS.setValue(on);
    }
}

// Energy index -1 keeps relative DPS mode, where energy weapons have no type.
void DamageTypes(Calculator& c, int energy, int projectile) {
    Relative(c, energy < 0 ? 1 : 0);
    Quietly(c.Alpha().WeaponType[1], energy);
    Quietly(c.Alpha().WeaponType[2], projectile);
}

// What assigning the type does, also where the list is disabled and so stays
// quiet by itself.
void ChooseType(Calculator& c, Vessel v, int k, int index) {
    Quietly(c.settings[v].WeaponType[k], index);
    WeaponTypeChanged(c, v, k);
}

Rows Captions(const VesselSettings& s) {
    Rows captions;
    for (int i = 1; i <= 7; ++i)
        captions.push_back(s.CalculatedWeaponDPSLabel[i].caption());
    return captions;
}

TEST(Ports, DamageTypeWords) {
    Program c;
    EXPECT_EQ(GetDamageType(c, 1, DamageGroup::Projectile), "Quantum ");
    Quietly(c.Alpha().WeaponType[1], 3);
    EXPECT_EQ(GetDamageType(c, 1, DamageGroup::Energy), "") << "relative mode has no energy type";
    Relative(c, 0);
    EXPECT_EQ(GetDamageType(c, 1, DamageGroup::Energy), "Tetryon ");
    Quietly(c.Omega().WeaponType[1], 5);
    EXPECT_EQ(GetDamageType(c, 2, DamageGroup::Energy), "Antiproton ");
    Quietly(c.Alpha().WeaponType[2], 4);
    EXPECT_EQ(GetDamageType(c, 1, DamageGroup::Projectile), "Transphasic ");
    Quietly(c.Alpha().WeaponType[2], -1);
    EXPECT_EQ(GetDamageType(c, 1, DamageGroup::Projectile), "");
}

TEST(Ports, RowsOfEachListKind) {
    Program c;
    DamageTypes(c, 0, 1);
    const Rows rear = {"Empty", "Phaser Beam Array", "Phaser Turret", "Quantum Torpedo Launcher",
                       "Quantum Mine Launcher"};
    const Rows common = {"Empty", "Phaser Beam Array", "Phaser Cannon", "Dual Phaser Beam Bank"};
    const Rows tail = {"Phaser Turret", "Quantum Torpedo Launcher"};
    auto join = [&](Rows middle, Rows end) {
        Rows rows = common;
        rows.insert(rows.end(), middle.begin(), middle.end());
        rows.insert(rows.end(), tail.begin(), tail.end());
        rows.insert(rows.end(), end.begin(), end.end());
        return rows;
    };
    const Rows forward[4] = {{},
                             join({"Phaser Dual Cannons", "Phaser Dual Heavy Cannons"}, {}),
                             join({}, {}),
                             join({}, {"Shuttle Phaser Beam Array"})};
    for (int list = 1; list <= 3; ++list) {
        WeaponAdd(c, list, 1);
        for (int i = 1; i <= 4; ++i) {
            EXPECT_EQ(c.main.Forward[i].rows(), forward[list]) << list;
            EXPECT_EQ(c.main.Rear[i].rows(), rear) << list;
            EXPECT_TRUE(c.main.Forward[i].enabled()) << list;
        }
    }
}

TEST(Ports, WeaponsAreSpeltAnewOnARebuild) {
    // clang-format off
    struct Case { const char* name; int energy, projectile, list; const char *forwardBefore, *rearBefore, *forwardAfter, *rearAfter; } cases[] = {
        {"empty stays empty", 0, 1, 2, "Empty", "Empty", "Empty", "Empty"},
        {"hints stay hints", -1, 1, 1, "Forward Weapon Port 3", "Rear Weapon Port 3", "Forward Weapon Port 3", "Rear Weapon Port 3"},
        {"no text: the hint", -1, 1, 1, "", "", "Forward Weapon Port 3", "Rear Weapon Port 3"},
        {"dhc on a ship without", 1, 1, 2, "Disruptor Dual Heavy Cannons", "Empty", "Dual Disruptor Beam Bank", "Empty"},
        {"dc on a shuttle", 0, 1, 3, "Phaser Dual Cannons", "Empty", "Dual Phaser Beam Bank", "Empty"},
        {"dhc change type, list 1", 1, 1, 1, "Phaser Dual Heavy Cannons", "Phaser Turret", "Disruptor Dual Heavy Cannons", "Disruptor Turret"},
        {"dc are not dhc", 2, 1, 1, "Dual Cannons", "Empty", "Plasma Dual Cannons", "Empty"},
        {"launchers follow", -1, 1, 1, "Photon Torpedo Launcher", "Photon Mine Launcher", "Quantum Torpedo Launcher", "Quantum Mine Launcher"},
        {"rear torpedo stays", -1, 1, 1, "Empty", "Photon Torpedo Launcher", "Empty", "Quantum Torpedo Launcher"},
        {"shuttle array, list 3", -1, 1, 3, "Shuttle Beam Array", "Empty", "Shuttle Beam Array", "Empty"},
        {"shuttle array typed", 1, 1, 3, "Shuttle Phaser Beam Array", "Empty", "Shuttle Disruptor Beam Array", "Empty"},
        {"shuttle array, list 1", 0, 1, 1, "Shuttle Phaser Beam Array", "Empty", "Phaser Beam Array", "Empty"},
        {"shuttle array, list 2", -1, 1, 2, "Shuttle Beam Array", "Empty", "Beam Array", "Empty"},
        {"relative shuttle array typed", 0, 1, 3, "Shuttle Beam Array", "Empty", "Shuttle Phaser Beam Array", "Empty"},
        {"relative dbb typed", 0, 1, 1, "Dual Beam Bank", "Beam Array", "Dual Phaser Beam Bank", "Phaser Beam Array"},
        {"typed, known ending", 0, 1, 1, "my Cannon", "a Turret", "Phaser Cannon", "Phaser Turret"},
        {"typed, no known ending", 0, 1, 1, "Photon Torpedoes", "Mines", "Photon Torpedoes", "Mines"},
        {"relative drops the word", -1, 0, 1, "Polaron Turret", "Polaron Beam Array", "Turret", "Beam Array"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        DamageTypes(c, k.energy, k.projectile);
        c.main.Forward[3].setText(k.forwardBefore);
        c.main.Rear[3].setText(k.rearBefore);
        WeaponAdd(c, k.list, 1);
        EXPECT_EQ(c.main.Forward[3].text(), k.forwardAfter) << k.name;
        EXPECT_EQ(c.main.Rear[3].text(), k.rearAfter) << k.name;
    }
    // A lost dual cannon stays a beam bank when the list comes back.
    Program c;
    DamageTypes(c, 1, 1);
    WeaponAdd(c, 1, 1);
    c.main.Forward[1].setText("Disruptor Dual Heavy Cannons");
    WeaponAdd(c, 2, 1);
    EXPECT_EQ(c.main.Forward[1].index(), 3);
    WeaponAdd(c, 1, 1);
    EXPECT_EQ(c.main.Forward[1].text(), "Dual Disruptor Beam Bank");
}

TEST(Ports, UnlockOpensOnlyThePortsOfTheShip) {
    Program c;
    int recalculations = 0;
    for (int i = 1; i <= 4; ++i) {
        c.main.Forward[i].setText("Beam Array");
        c.main.Rear[i].setText("Turret");
        c.main.Forward[i].setHandler([&] { ++recalculations; });
        c.main.Rear[i].setHandler([&] { ++recalculations; });
    }
    WeaponUnlock(c, 2, 0, 1);
    EXPECT_FALSE(c.main.RearWeaponlabel.visible() || c.main.Rear[1].visible());
    EXPECT_EQ(c.main.Rear[1].text(), "Rear Weapon Port 1");
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

TEST(WeaponType, StartUpSetsQuantumOnBothVessels) {
    Program c;
    // Its handler fitted Alpha's unrestricted tier 5 ship; Omega, not on
    // show, keeps its start rows.
    for (int i = 1; i <= 4; ++i) {
        EXPECT_TRUE(c.main.Forward[i].visible() && c.main.Rear[i].enabled());
        EXPECT_EQ(c.main.Forward[i].text(), "Forward Weapon Port " + std::to_string(i));
        EXPECT_EQ(c.main.Forward[i].row(1), "Beam Array");
        EXPECT_EQ(c.main.Rear[i].row(3), "Quantum Torpedo Launcher");
        EXPECT_EQ(c.main.CRear[i].row(3), "Mine Launcher");
    }
    for (Vessel v = 1; v <= 2; ++v) {
        const VesselSettings& s = c.settings[v];
        EXPECT_EQ(s.WeaponType[2].index(), 1);
        for (int i = 1; i <= 4; ++i) {
            EXPECT_EQ(s.TacticalConsole[i].row(6), "Zero Point Quantum Chamber (+Quantum Projectiles)");
            EXPECT_EQ(s.TacticalConsole[i].row(3), "Specific Energy Type (+Energy)");
            EXPECT_FALSE(s.TacticalConsole[i].enabled());
        }
        EXPECT_EQ(s.WeaponSkill[8].tooltip(),
                  "Quantum Projectiles skill (Commander).  Increases the damage of all Quantum projectile weapons.");
        EXPECT_EQ(s.WeaponSkill[8].text(), "");
        EXPECT_EQ(Captions(s), (Rows{"Dual (Heavy) Cannons", "Dual Beam Bank", "Single Cannon", "Beam Array", "Turret",
                                     "Torpedo Launcher", "Mine Launcher"}));
    }
}

TEST(WeaponType, EnergyTypeNamesItsConsoleAndAccolade) {
    const std::string where = "  This can be found in the game under: Player Stats > Passive > From Accolades: Space.";
    // clang-format off
    struct Case { int index; const char *console, *accolade, *tooltip; } cases[] = {
        {0, "Phaser Relay (+Phaser Weapons)", "Heavy Hitter Accolade Bonus", "Check if your captain has attained the Heavy Hitter accolade bonus, which grants a bonus of +2% to the base damage of Phaser Weapons."},
        {4, "Polaron Phase Modulator (+Polaron Weapons)", "Enforcer Accolade Bonus", "Check if your captain has attained the Enforcer Accolade bonus, which grants a bonus of +2% to the base damage of Polaron Weapons."},
        {5, "Antiproton Mag Regulator (+Antiproton Weapons)", "Strike from the Record Accolade Bonus", "Check if your captain has attained the Strike from the Record accolade bonus, which grants a bonus of +2% to the base damage of Antiproton Weapons."},
        {-1, "Specific Energy Type (+Energy Weapons)", "Energy Weapon Accolade Bonus", "Check if your captain has attained an Energy Weapon Type accolade bonus, which grants a bonus of +2% to the base damage of a specific Energy Weapon Type."},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        ChooseType(c, 1, 1, 2); // away from the case first, so -1 is a change too
        ChooseType(c, 1, 1, k.index);
        EXPECT_EQ(c.Alpha().TacticalConsole[4].row(3), k.console) << k.index;
        EXPECT_EQ(c.Alpha().WeaponAccolade[1].caption(), k.accolade) << k.index;
        EXPECT_EQ(c.Alpha().WeaponAccolade[1].tooltip(), k.tooltip + where) << k.index;
        EXPECT_EQ(c.Omega().TacticalConsole[4].row(3), k.console) << k.index;
    }
}

TEST(WeaponType, TypeSkillBoxOpensByRank) {
    // clang-format off
    struct Case { const char* name; int k, index, rankRow, relative; const char *before, *text; bool enabled; Colour back; } cases[] = {
        {"closed below commander", 1, 0, 2, 0, "", "N/A", false, Grey},
        {"phaser at commander", 1, 0, 3, 0, "", "9", true, White},
        {"no type at commander", 1, -1, 3, 0, "", "9", true, White},
        {"plasma needs a captain", 1, 2, 3, 0, "", "N/A", false, Grey},
        {"plasma at captain", 1, 2, 4, 0, "N/A", "9", true, White},
        {"polaron needs an admiral", 1, 4, 4, 0, "", "N/A", false, Grey},
        {"polaron at admiral", 1, 4, 5, 0, "", "9", true, White},
        {"typed skill stays", 1, 0, 7, 0, "5", "5", true, White},
        {"relative: energy box shut", 1, 0, 7, 1, "", "", false, White},
        {"chroniton needs an admiral", 2, 3, 4, 0, "", "N/A", false, Grey},
        {"transphasic at captain", 2, 4, 4, 0, "", "9", true, White},
        {"tricobalt needs an admiral", 2, 5, 4, 0, "", "N/A", false, Grey},
        {"relative: projectile untouched", 2, 1, 1, 1, "", "", false, Grey},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Program c;
        AlphaCaptain(c, 0, k.rankRow);
        Relative(c, k.relative);
        Text& box = c.Alpha().WeaponSkill[k.k == 1 ? 4 : 8];
        box.setHandler({});
        box.setText(k.before);
        ChooseType(c, 1, k.k, k.index);
        EXPECT_EQ(std::tuple(box.text(), box.enabled(), box.back()), std::tuple(k.text, k.enabled, k.back));
        // A mirrored Omega's box is a copy the type handler leaves alone.
        EXPECT_EQ(c.Omega().WeaponSkill[k.k == 1 ? 4 : 8].text(), "");
    }
}

TEST(WeaponType, ConsoleOnTheRewrittenRowKeepsItsPlace) {
    for (int relative : {0, 1}) {
        SCOPED_TRACE(relative);
        Program c;
        Relative(c, relative);
        VesselSettings& a = c.Alpha();
        Quietly(a.TacticalConsole[2], 6);
        Quietly(a.TacticalConsoleMark[2], 3);
        Quietly(a.TacticalConsoleRarity[2], 1);
        ChooseType(c, 1, 2, 4);
        EXPECT_EQ(a.TacticalConsole[2].text(), "Transphasic Compressor (+Transphasic Projectiles)");
        EXPECT_EQ(std::tuple(a.TacticalConsoleMark[2].index(), a.TacticalConsoleRarity[2].index()), std::tuple(3, 1));
        EXPECT_EQ(a.TacticalConsole[1].enabled(), relative == 0);
        EXPECT_EQ(a.TacticalConsoleMark[3].enabled(), relative == 0);
        EXPECT_EQ(a.TacticalConsoleRarity[2].enabled(), relative == 0);
        // An empty slot's rarity list has no rows of its own yet: it stays closed.
        EXPECT_FALSE(a.TacticalConsoleRarity[3].enabled());
        // The mirrored Omega follows, its lists closed.
        EXPECT_EQ(c.Omega().WeaponType[2].index(), 4);
        EXPECT_EQ(c.Omega().TacticalConsole[1].row(6), "Transphasic Compressor (+Transphasic Projectiles)");
        EXPECT_FALSE(c.Omega().TacticalConsole[1].enabled());
    }
    // Custom mode names the types in the captions.
    Program c;
    Relative(c, 0);
    ChooseType(c, 1, 1, 0);
    const Rows named = {"Phaser Dual (Heavy) Cannons", "Dual Phaser Beam Bank", "Phaser Cannon",
                        "Phaser Beam Array",           "Phaser Turret",         "Quantum Torpedo Launcher",
                        "Quantum Mine Launcher"};
    EXPECT_EQ(std::tuple(Captions(c.Alpha()), Captions(c.Omega())), std::tuple(named, named));
}

TEST(WeaponType, OnlyAnEnabledListRefitsTheShipAndAFreeOmegaKeepsItsType) {
    Program c;
    c.Omega().SameAsAlpha.setHandler({});
    c.Omega().SameAsAlpha.setValue(0);
    c.Alpha().WeaponType[2].setIndex(0);
    EXPECT_EQ(c.main.Forward[1].row(7), "Photon Torpedo Launcher");
    EXPECT_EQ(c.main.Rear[1].row(4), "Photon Mine Launcher");
    EXPECT_EQ(c.Omega().WeaponType[2].index(), 1);
    EXPECT_EQ(c.Omega().TacticalConsole[1].row(6), "Zero Point Quantum Chamber (+Quantum Projectiles)");
    c.Alpha().WeaponType[2].setEnabled(false);
    ChooseType(c, 1, 2, 2);
    EXPECT_EQ(c.main.Forward[1].row(7), "Photon Torpedo Launcher");
    EXPECT_EQ(c.Alpha().TacticalConsole[1].row(6), "Ambiplasma Envelope (+Plasma Projectiles)");
}

} // namespace
} // namespace vantorel
