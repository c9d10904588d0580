#include "support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantorel {
namespace {

using testing::AlphaCaptain;
using testing::Quietly;

void Relative(Calculator& c, int on) {
    for (Vessel v = 1; v <= 2; ++v) {
        c.settings[v].RelativeDPS.setHandler({});
        c.settings[v].RelativeDPS.setValue(on);
    }
}

// What assigning the type does, also where the list is disabled and so
// stays quiet by itself.
void ChooseType(Calculator& c, Vessel v, int k, int index) {
    Quietly(c.settings[v].WeaponType[k], index);
    WeaponTypeChanged(c, v, k);
}

std::vector<std::string> Captions(const VesselSettings& s) {
    std::vector<std::string> captions;
    for (int i = 1; i <= 7; ++i)
        captions.push_back(s.CalculatedWeaponDPSLabel[i].caption());
    return captions;
}

TEST(WeaponType, StartUpSetsQuantumOnBothVessels) {
    Calculator c;
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
        SCOPED_TRACE(v);
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
        EXPECT_EQ(Captions(s), (std::vector<std::string>{"Dual (Heavy) Cannons", "Dual Beam Bank", "Single Cannon",
                                                         "Beam Array", "Turret", "Torpedo Launcher", "Mine Launcher"}));
    }
}

TEST(WeaponType, EnergyTypeNamesItsConsoleAndAccolade) {
    struct Case {
        int index;
        const char* console;
        const char* accolade;
        const char* tooltip;
    };
    const Case cases[] = {
        {0, "Phaser Relay (+Phaser Weapons)", "Heavy Hitter Accolade Bonus",
         "Check if your captain has attained the Heavy Hitter accolade bonus, which grants a bonus of +2% to the "
         "base damage of Phaser Weapons.  This can be found in the game under: Player Stats > Passive > From "
         "Accolades: Space."},
        {4, "Polaron Phase Modulator (+Polaron Weapons)", "Enforcer Accolade Bonus",
         "Check if your captain has attained the Enforcer Accolade bonus, which grants a bonus of +2% to the base "
         "damage of Polaron Weapons.  This can be found in the game under: Player Stats > Passive > From Accolades: "
         "Space."},
        {5, "Antiproton Mag Regulator (+Antiproton Weapons)", "Strike from the Record Accolade Bonus",
         "Check if your captain has attained the Strike from the Record accolade bonus, which grants a bonus of +2% "
         "to the base damage of Antiproton Weapons.  This can be found in the game under: Player Stats > Passive > "
         "From Accolades: Space."},
        {-1, "Specific Energy Type (+Energy Weapons)", "Energy Weapon Accolade Bonus",
         "Check if your captain has attained an Energy Weapon Type accolade bonus, which grants a bonus of +2% to "
         "the base damage of a specific Energy Weapon Type.  This can be found in the game under: Player Stats > "
         "Passive > From Accolades: Space."},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.index);
        Calculator c;
        ChooseType(c, 1, 1, 2); // away from the case first, so -1 is a change too
        ChooseType(c, 1, 1, k.index);
        EXPECT_EQ(c.Alpha().TacticalConsole[4].row(3), k.console);
        EXPECT_EQ(c.Alpha().WeaponAccolade[1].caption(), k.accolade);
        EXPECT_EQ(c.Alpha().WeaponAccolade[1].tooltip(), k.tooltip);
        EXPECT_EQ(c.Omega().TacticalConsole[4].row(3), k.console);
    }
}

TEST(WeaponType, TypeSkillBoxOpensByRank) {
    struct Case {
        const char* name;
        int k, index, rankRow, relative;
        const char* before;
        const char* text;
        bool enabled;
        Colour back;
    };
    const Case cases[] = {
        {"closed below commander", 1, 0, 2, 0, "", "N/A", false, Grey},
        {"phaser at commander", 1, 0, 3, 0, "", "9", true, White},
        {"no energy type at commander", 1, -1, 3, 0, "", "9", true, White},
        {"plasma weapons need a captain", 1, 2, 3, 0, "", "N/A", false, Grey},
        {"plasma weapons at captain", 1, 2, 4, 0, "N/A", "9", true, White},
        {"polaron needs an admiral", 1, 4, 4, 0, "", "N/A", false, Grey},
        {"polaron at admiral", 1, 4, 5, 0, "", "9", true, White},
        {"a typed skill stays", 1, 0, 7, 0, "5", "5", true, White},
        {"relative mode leaves the energy box shut", 1, 0, 7, 1, "", "", false, White},
        {"chroniton needs an admiral", 2, 3, 4, 0, "", "N/A", false, Grey},
        {"transphasic at captain", 2, 4, 4, 0, "", "9", true, White},
        {"tricobalt needs an admiral", 2, 5, 4, 0, "", "N/A", false, Grey},
        {"projectile box untouched in relative mode", 2, 1, 1, 1, "", "", false, Grey},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
        AlphaCaptain(c, 0, k.rankRow);
        Relative(c, k.relative);
        Text& box = c.Alpha().WeaponSkill[k.k == 1 ? 4 : 8];
        box.setHandler({});
        box.setText(k.before);
        ChooseType(c, 1, k.k, k.index);
        EXPECT_EQ(box.text(), k.text);
        EXPECT_EQ(box.enabled(), k.enabled);
        EXPECT_EQ(box.back(), k.back);
        // A mirrored Omega's box is a copy the type handler leaves alone.
        EXPECT_EQ(c.Omega().WeaponSkill[k.k == 1 ? 4 : 8].text(), "");
    }
}

TEST(WeaponType, ConsoleOnTheRewrittenRowKeepsItsPlace) {
    struct Case {
        const char* name;
        int relative;
        bool open;
    };
    const Case cases[] = {{"custom mode", 0, true}, {"relative mode", 1, false}};
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
        Relative(c, k.relative);
        VesselSettings& a = c.Alpha();
        Quietly(a.TacticalConsole[2], 6);
        Quietly(a.TacticalConsoleMark[2], 3);
        Quietly(a.TacticalConsoleRarity[2], 1);
        ChooseType(c, 1, 2, 4);
        EXPECT_EQ(a.TacticalConsole[2].index(), 6);
        EXPECT_EQ(a.TacticalConsole[2].text(), "Transphasic Compressor (+Transphasic Projectiles)");
        EXPECT_EQ(a.TacticalConsoleMark[2].index(), 3);
        EXPECT_EQ(a.TacticalConsoleRarity[2].index(), 1);
        EXPECT_EQ(a.TacticalConsole[1].enabled(), k.open);
        EXPECT_EQ(a.TacticalConsoleRarity[3].enabled(), k.open);
        // The mirrored Omega follows, its lists closed.
        EXPECT_EQ(c.Omega().WeaponType[2].index(), 4);
        EXPECT_EQ(c.Omega().TacticalConsole[1].row(6), "Transphasic Compressor (+Transphasic Projectiles)");
        EXPECT_FALSE(c.Omega().TacticalConsole[1].enabled());
    }
}

TEST(WeaponType, CaptionsNameTheTypesInCustomMode) {
    Calculator c;
    Relative(c, 0);
    ChooseType(c, 1, 1, 0);
    const std::vector<std::string> named = {
        "Phaser Dual (Heavy) Cannons", "Dual Phaser Beam Bank", "Phaser Cannon", "Phaser Beam Array", "Phaser Turret",
        "Quantum Torpedo Launcher",    "Quantum Mine Launcher"};
    EXPECT_EQ(Captions(c.Alpha()), named);
    EXPECT_EQ(Captions(c.Omega()), named);
}

TEST(WeaponType, OnlyAnEnabledListRefitsTheShip) {
    Calculator c;
    c.Alpha().WeaponType[2].setIndex(0);
    EXPECT_EQ(c.main.Forward[1].row(7), "Photon Torpedo Launcher");
    EXPECT_EQ(c.main.Rear[1].row(4), "Photon Mine Launcher");

    c.Alpha().WeaponType[2].setEnabled(false);
    ChooseType(c, 1, 2, 2);
    EXPECT_EQ(c.main.Forward[1].row(7), "Photon Torpedo Launcher");
    EXPECT_EQ(c.Alpha().TacticalConsole[1].row(6), "Ambiplasma Envelope (+Plasma Projectiles)");
}

TEST(WeaponType, FreeOmegaKeepsItsOwnType) {
    Calculator c;
    c.Omega().SameAsAlpha.setHandler({});
    c.Omega().SameAsAlpha.setValue(0);
    c.Alpha().WeaponType[2].setIndex(0);
    EXPECT_EQ(c.Omega().WeaponType[2].index(), 1);
    EXPECT_EQ(c.Omega().TacticalConsole[1].row(6), "Zero Point Quantum Chamber (+Quantum Projectiles)");
}

} // namespace
} // namespace vantorel
