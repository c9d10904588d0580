#include "support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantorel {
namespace {

using testing::AlphaCaptain;
using testing::Hold;
using testing::OmegaCaptain;
using testing::Quietly;
using Rows = std::vector<std::string>;

TEST(Ships, ClassRowsByFactionAndLevel) {
    struct Case {
        const char* name;
        int faction; // -1 unrestricted
        int rankRow;
        Rows expected;
    };
    const Case cases[] = {
        {"federation level 1", 0, 0, {"Cruiser", "Shuttlecraft"}},
        {"federation level 2", 0, 2, {"Cruiser", "Escort", "Shuttlecraft", "Science Vessel"}},
        {"klingon level 1", 1, 1, {"Bird of Prey", "Shuttlecraft "}},
        {"klingon level 6", 1, 6, {"Battle Cruiser", "Bird of Prey", "Carrier", "Raptor", "Shuttlecraft "}},
        {"klingon level 7",
         1,
         7,
         {"Allied Vessel", "Battle Cruiser", "Bird of Prey", "Carrier", "Raptor", "Shuttlecraft "}},
        {"unrestricted",
         -1,
         0,
         {"Unrestricted", "Federation", "   Cruiser", "   Escort", "   Shuttlecraft", "   Science Vessel", "Klingon",
          "   Allied Vessel", "   Battle Cruiser", "   Bird of Prey", "   Carrier", "   Raptor", "   Shuttlecraft "}},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
        AlphaCaptain(c, k.faction, k.rankRow);
        EXPECT_EQ(ClassRows(c, 1), k.expected);
    }
}

TEST(Ships, TierRowsByClassAndLevel) {
    struct Case {
        const char* shipClass;
        int level;
        Rows expected;
    };
    const Case cases[] = {
        {"Cruiser", 1, {"Tier 1- Light Cruiser"}},
        {"Escort", 1, {}},
        {"Escort", 4, {"Tier 2- Escort", "Tier 3- Heavy Escort", "Tier 4- Tactical Escort"}},
        {"Raptor",
         100,
         {"Tier 2- Somraw Raptor", "Tier 3- Qorgh Raptor", "Tier 4- Pach Raptor", "Tier 5- Qin Heavy Raptor"}},
        {"Bird of Prey", 2, {"Tier 1- B'rel Bird of Prey", "Tier 2- Quldun Bird of Prey"}},
        {"Carrier", 4, {}},
        {"Carrier", 5, {"Tier 5"}},
        {"Allied Vessel", 7, {"Tier 5"}},
        {"Shuttlecraft", 1, {"Variable Tier- Shuttlecraft"}},
        {"Shuttlecraft ", 1, {"Variable Tier- Shuttlecraft"}},
        {"Klingon Science Vessel", 3, {"Tier 2- Quldun Bird of Prey", "Tier 3- Norgh Bird of Prey"}},
        {"Federation Allied Vessel", 5, {"Tier 5- Federation Vessel"}},
        {"Unrestricted", 1, {"Tier 1- Unrestricted Vessel"}},
        {"Federation", 2, {"Tier 1- Historical Vessel", "Tier 2- Historical Vessel"}},
        {"Shuttlecraft  ", 7, {}},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(std::string(k.shipClass) + " at level " + std::to_string(k.level));
        EXPECT_EQ(TierRows(k.shipClass, k.level), k.expected);
    }
}

TEST(Ships, SubclassRowsHoldBackTheLevelSevenShips) {
    struct Case {
        const char* shipClass;
        int tier, level;
        Rows expected;
    };
    const Case cases[] = {
        {"Cruiser",
         5,
         5,
         {"Assault Cruiser", "Star Cruiser", "Dreadnought Cruiser", "Advanced Heavy Cruiser Retrofit"}},
        {"Cruiser",
         5,
         7,
         {"Assault Cruiser", "Star Cruiser", "Dreadnought Cruiser", "Advanced Heavy Cruiser Retrofit",
          "Exploration Cruiser Retrofit"}},
        {"Battle Cruiser", 5, 5, {"Negh'Var Heavy Battle Cruiser", "Retrofit Vor'cha Battle Cruiser"}},
        {"Bird of Prey", 5, 6, {"Hegh'ta Heavy Bird of Prey"}},
        {"Bird of Prey", 5, 7, {"Hegh'ta Heavy Bird of Prey", "Retrofit B'rel Bird of Prey"}},
        {"Carrier", 5, 5, {"Vo'Quv Carrier"}},
        {"Carrier", 5, 7, {"Vo'Quv Carrier", "Kar'Fi Battle Carrier"}},
        {"Shuttlecraft", 3, 3, {"Type-8 Shuttle", "Danube Class Runabout", "Tal'Kyr Support Craft"}},
        {"Shuttlecraft ", 1, 1, {"Toron Shuttle"}},
        {"Federation", 4, 100, {"NCC-1701-D U.S.S. Enterprise", "NX-74205 U.S.S. Defiant", "NCC-74656 U.S.S. Voyager"}},
        {"Cruiser", 4, 7, {}},
        {"Klingon Science Vessel", 5, 7, {}},
        {"Federation Allied Vessel", 5, 7, {}},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(std::string(k.shipClass) + " tier " + std::to_string(k.tier) + " level " +
                     std::to_string(k.level));
        EXPECT_EQ(SubclassRows(k.shipClass, k.tier, k.level), k.expected);
    }
}

TEST(Ships, PortsAndConsoleSlots) {
    struct Case {
        const char* name;
        int alphaFaction; // -1 unrestricted
        const char* alphaClass;
        const char* alphaTier;
        int alphaSubclass;
        int omegaFaction, omegaRank; // rows of Omega's own lists
        Vessel asked;
        int forward, rear, list, slots;
    };
    const Case cases[] = {
        {"largest ship", -1, "Unrestricted", "Tier 5- Unrestricted Vessel", -1, 0, 0, 1, 4, 4, 1, 4},
        {"tier 1 cruiser offers dual cannons", 0, "Cruiser", "Tier 1- Light Cruiser", 0, 0, 0, 1, 2, 1, 1, 1},
        {"tier 1 light escort has two slots", 0, "Cruiser", "Tier 1- Light Cruiser", 2, 0, 0, 1, 2, 1, 1, 2},
        {"tier 2 cruiser does not", 0, "Cruiser", "Tier 2- Cruiser", -1, 0, 0, 1, 2, 2, 2, 1},
        {"dreadnought keeps list 1", 0, "Cruiser", "Tier 5- Various", 2, 0, 0, 1, 4, 4, 1, 2},
        {"historical tier 1", -1, "Federation", "Tier 1- Historical Vessel", 1, 0, 0, 1, 2, 1, 1, 2},
        {"type-8 shuttle", 0, "Shuttlecraft", "Variable Tier- Shuttlecraft", 0, 0, 0, 1, 2, 0, 3, 0},
        {"runabout has a slot", 0, "Shuttlecraft", "Variable Tier- Shuttlecraft", 1, 0, 0, 1, 2, 0, 3, 1},
        {"klingon shuttle at level 1", 1, "Shuttlecraft ", "Variable Tier- Shuttlecraft", 0, 0, 1, 2, 2, 0, 3, 0},
        {"escort cut to tier 1", 0, "Escort", "Tier 5- Various", 0, 0, 1, 2, 2, 1, 1, 1},
        {"carrier cut to tier 3", 1, "Carrier", "Tier 5", 0, 0, 4, 2, 3, 2, 1, 1},
        {"carrier cut to tier 4", 1, "Carrier", "Tier 5", 0, 0, 5, 2, 3, 2, 1, 2},
        {"klingon science vessel", 0, "Science Vessel", "Tier 5- Various", 0, 2, 0, 2, 3, 3, 1, 2},
        {"klingon science vessel at tier 1", 0, "Science Vessel", "Tier 5- Various", 0, 2, 1, 2, 2, 1, 1, 1},
        {"allied vessel tier 3, alpha row 1", 1, "Allied Vessel", "Tier 5", 1, 0, 4, 2, 4, 2, 1, 1},
        {"allied vessel tier 3, alpha row 2", 1, "Allied Vessel", "Tier 5", 2, 0, 4, 2, 3, 2, 1, 1},
        {"allied vessel tier 4, alpha row 0", 1, "Allied Vessel", "Tier 5", 0, 0, 5, 2, 4, 2, 1, 2},
        {"federation allied vessel as a cruiser", 1, "Allied Vessel", "Tier 5", 1, 1, 0, 2, 4, 4, 2, 2},
        {"federation allied vessel as an escort", 1, "Allied Vessel", "Tier 5", 0, 1, 4, 2, 3, 2, 1, 3},
        {"federation allied vessel as a science vessel", 1, "Allied Vessel", "Tier 5", 2, 1, 3, 2, 2, 2, 2, 1},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
        AlphaCaptain(c, k.alphaFaction, 7);
        OmegaCaptain(c, 0, k.omegaFaction, k.omegaRank);
        if (k.alphaFaction < 0)
            testing::Select(c.main.ShipClass[1], k.alphaClass);
        else
            Hold(c.main.ShipClass[1], {k.alphaClass}, k.alphaClass);
        Hold(c.main.ShipTier[1], {k.alphaTier}, k.alphaTier);
        Hold(c.main.ShipSubclass[1], {"a", "b", "c"}, "");
        Quietly(c.main.ShipSubclass[1], k.alphaSubclass);
        // Omega's subclass list is hidden for the classes it only reaches by
        // translation: the same-as row alone.
        Hold(c.main.ShipSubclass[2], {"Same As Alpha"}, "Same As Alpha");
        const Ports ports = ShipPorts(c, k.asked);
        EXPECT_EQ(ports.forward, k.forward);
        EXPECT_EQ(ports.rear, k.rear);
        EXPECT_EQ(ports.list, k.list);
        EXPECT_EQ(ConsoleSlots(c, k.asked), k.slots);
    }
}

TEST(Ships, LoreKeepsItsBlanks) {
    EXPECT_EQ(LoreText(1, 0).substr(0, 24), "The Enterprise  (NX-01),");
    EXPECT_EQ(LoreText(1, 1).substr(0, 23), "The U.S.S Enterprise (N");
    EXPECT_EQ(LoreText(2, 0).back(), ' ');
    EXPECT_EQ(LoreText(2, 0), LoreText(2, 5));
    EXPECT_EQ(LoreText(3, 0).substr(LoreText(3, 0).size() - 20), "Khitomer Conference.");
    EXPECT_NE(LoreText(4, 1).find("Defiant"), std::string::npos);
    EXPECT_NE(LoreText(4, 2).find("Voyager"), std::string::npos);
    EXPECT_EQ(LoreText(5, 0).substr(LoreText(5, 0).size() - 11), "existence. ");
    EXPECT_NE(LoreText(5, 1).find("Sovereign"), std::string::npos);
    EXPECT_EQ(LoreText(6, 0), "");
}

} // namespace
} // namespace vantorel
