#include "support.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

namespace vantorel {
namespace {

using namespace testing;

// Alpha's ship without the handlers: an unrestricted captain picks from the
// start list, a restricted one holds only its class.
void AlphaShip(Calculator& c, int faction, const char* shipClass, const char* tier) {
    if (faction < 0)
        Select(c.main.ShipClass[1], shipClass);
    else
        Hold(c.main.ShipClass[1], {shipClass}, shipClass);
    Hold(c.main.ShipTier[1], {tier}, tier);
}

TEST(Ships, ClassRowsByFactionAndLevel) {
    // clang-format off
    struct Case { int faction, rankRow; /* faction -1 unrestricted */ Rows expected; } cases[] = {
        {0, 0, {"Cruiser", "Shuttlecraft"}},
        {0, 2, {"Cruiser", "Escort", "Shuttlecraft", "Science Vessel"}},
        {1, 1, {"Bird of Prey", "Shuttlecraft "}},
        {1, 6, {"Battle Cruiser", "Bird of Prey", "Carrier", "Raptor", "Shuttlecraft "}},
        {1, 7, {"Allied Vessel", "Battle Cruiser", "Bird of Prey", "Carrier", "Raptor", "Shuttlecraft "}},
        {-1, 0, {"Unrestricted", "Federation", "   Cruiser", "   Escort", "   Shuttlecraft", "   Science Vessel", "Klingon", "   Allied Vessel", "   Battle Cruiser", "   Bird of Prey", "   Carrier", "   Raptor", "   Shuttlecraft "}},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        AlphaCaptain(c, k.faction, k.rankRow);
        EXPECT_EQ(ClassRows(c, 1), k.expected) << k.faction << "/" << k.rankRow;
    }
}

TEST(Ships, TierAndSubclassRows) {
    // clang-format off
    struct Case { const char* shipClass; int tier, level; /* tier 0: the tier rows */ Rows expected; } cases[] = {
        {"Escort", 0, 1, {}},
        {"Escort", 0, 4, {"Tier 2- Escort", "Tier 3- Heavy Escort", "Tier 4- Tactical Escort"}},
        {"Bird of Prey", 0, 2, {"Tier 1- B'rel Bird of Prey", "Tier 2- Quldun Bird of Prey"}},
        {"Carrier", 0, 4, {}},
        {"Carrier", 0, 5, {"Tier 5"}},
        {"Shuttlecraft", 0, 1, {"Variable Tier- Shuttlecraft"}},
        {"Shuttlecraft ", 0, 1, {"Variable Tier- Shuttlecraft"}},
        {"Klingon Science Vessel", 0, 3, {"Tier 2- Quldun Bird of Prey", "Tier 3- Norgh Bird of Prey"}},
        {"Federation Allied Vessel", 0, 5, {"Tier 5- Federation Vessel"}},
        {"Federation", 0, 2, {"Tier 1- Historical Vessel", "Tier 2- Historical Vessel"}},
        {"Shuttlecraft  ", 0, 7, {}},
        {"Cruiser", 5, 5, {"Assault Cruiser", "Star Cruiser", "Dreadnought Cruiser", "Advanced Heavy Cruiser Retrofit"}},
        {"Cruiser", 5, 7, {"Assault Cruiser", "Star Cruiser", "Dreadnought Cruiser", "Advanced Heavy Cruiser Retrofit", "Exploration Cruiser Retrofit"}},
        {"Bird of Prey", 5, 6, {"Hegh'ta Heavy Bird of Prey"}},
        {"Bird of Prey", 5, 7, {"Hegh'ta Heavy Bird of Prey", "Retrofit B'rel Bird of Prey"}},
        {"Carrier", 5, 5, {"Vo'Quv Carrier"}},
        {"Carrier", 5, 7, {"Vo'Quv Carrier", "Kar'Fi Battle Carrier"}},
        {"Shuttlecraft ", 1, 1, {"Toron Shuttle"}},
        {"Federation", 4, 100, {"NCC-1701-D U.S.S. Enterprise", "NX-74205 U.S.S. Defiant", "NCC-74656 U.S.S. Voyager"}},
        {"Cruiser", 4, 7, {}},
        {"Klingon Science Vessel", 5, 7, {}},
        {"Federation Allied Vessel", 5, 7, {}},
    };
    // clang-format on
    for (const Case& k : cases) {
        const Rows rows = k.tier ? SubclassRows(k.shipClass, k.tier, k.level) : TierRows(k.shipClass, k.level);
        EXPECT_EQ(rows, k.expected) << '"' << k.shipClass << "\" tier " << k.tier << " level " << k.level;
    }
}

TEST(Ships, PortsAndConsoleSlots) {
    // clang-format off
    struct Case { const char* name; int alphaFaction; /* -1 unrestricted */ const char *alphaClass, *alphaTier; int alphaSubclass, omegaFaction, omegaRank; /* rows of Omega's own lists */ Vessel asked; int forward, rear, list, slots; } cases[] = {
        {"largest ship", -1, "Unrestricted", "Tier 5- Unrestricted Vessel", -1, 0, 0, 1, 4, 4, 1, 4},
        {"tier 1 cruiser: dual cannons", 0, "Cruiser", "Tier 1- Light Cruiser", 0, 0, 0, 1, 2, 1, 1, 1},
        {"tier 1 light escort: two slots", 0, "Cruiser", "Tier 1- Light Cruiser", 2, 0, 0, 1, 2, 1, 1, 2},
        {"tier 2 cruiser", 0, "Cruiser", "Tier 2- Cruiser", -1, 0, 0, 1, 2, 2, 2, 1},
        {"dreadnought keeps list 1", 0, "Cruiser", "Tier 5- Various", 2, 0, 0, 1, 4, 4, 1, 2},
        {"historical tier 1", -1, "Federation", "Tier 1- Historical Vessel", 1, 0, 0, 1, 2, 1, 1, 2},
        {"type-8 shuttle", 0, "Shuttlecraft", "Variable Tier- Shuttlecraft", 0, 0, 0, 1, 2, 0, 3, 0},
        {"runabout has a slot", 0, "Shuttlecraft", "Variable Tier- Shuttlecraft", 1, 0, 0, 1, 2, 0, 3, 1},
        {"klingon shuttle, level 1", 1, "Shuttlecraft ", "Variable Tier- Shuttlecraft", 0, 0, 1, 2, 2, 0, 3, 0},
        {"escort cut to tier 1", 0, "Escort", "Tier 5- Various", 0, 0, 1, 2, 2, 1, 1, 1},
        {"carrier cut to tier 3", 1, "Carrier", "Tier 5", 0, 0, 4, 2, 3, 2, 1, 1},
        {"carrier cut to tier 4", 1, "Carrier", "Tier 5", 0, 0, 5, 2, 3, 2, 1, 2},
        {"klingon science vessel", 0, "Science Vessel", "Tier 5- Various", 0, 2, 0, 2, 3, 3, 1, 2},
        {"klingon science vessel, tier 1", 0, "Science Vessel", "Tier 5- Various", 0, 2, 1, 2, 2, 1, 1, 1},
        {"allied tier 3, row 1", 1, "Allied Vessel", "Tier 5", 1, 0, 4, 2, 4, 2, 1, 1},
        {"allied tier 3, row 2", 1, "Allied Vessel", "Tier 5", 2, 0, 4, 2, 3, 2, 1, 1},
        {"allied tier 4, row 0", 1, "Allied Vessel", "Tier 5", 0, 0, 5, 2, 4, 2, 1, 2},
        {"federation allied as cruiser", 1, "Allied Vessel", "Tier 5", 1, 1, 0, 2, 4, 4, 2, 2},
        {"federation allied as escort", 1, "Allied Vessel", "Tier 5", 0, 1, 4, 2, 3, 2, 1, 3},
        {"federation allied as science", 1, "Allied Vessel", "Tier 5", 2, 1, 3, 2, 2, 2, 2, 1},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Program c;
        AlphaCaptain(c, k.alphaFaction, 7);
        OmegaCaptain(c, 0, k.omegaFaction, k.omegaRank);
        AlphaShip(c, k.alphaFaction, k.alphaClass, k.alphaTier);
        Hold(c.main.ShipSubclass[1], {"a", "b", "c"}, "");
        Quietly(c.main.ShipSubclass[1], k.alphaSubclass);
        // Omega's subclass list is hidden for the classes it only reaches by
        // translation: the same-as row alone.
        Hold(c.main.ShipSubclass[2], {"Same As Alpha"}, "Same As Alpha");
        const Ports ports = ShipPorts(c, k.asked);
        EXPECT_EQ(std::tuple(ports.forward, ports.rear, ports.list), std::tuple(k.forward, k.rear, k.list));
        EXPECT_EQ(ConsoleSlots(c, k.asked), k.slots);
    }
}

TEST(Ships, LoreKeepsItsBlanks) {
    EXPECT_EQ(LoreText(1, 0).substr(0, 24), "The Enterprise  (NX-01),");
    EXPECT_EQ(LoreText(1, 1).substr(0, 23), "The U.S.S Enterprise (N");
    EXPECT_EQ(std::tuple(LoreText(2, 0).back(), LoreText(2, 0)), std::tuple(' ', LoreText(2, 5)));
    EXPECT_EQ(LoreText(3, 0).substr(LoreText(3, 0).size() - 20), "Khitomer Conference.");
    EXPECT_NE(LoreText(4, 2).find("Voyager"), std::string::npos);
    EXPECT_EQ(LoreText(5, 0).substr(LoreText(5, 0).size() - 11), "existence. ");
    EXPECT_EQ(LoreText(6, 0), "");
}

TEST(Factions, RankAndFactionOfBothVessels) {
    // clang-format off
    struct Case { const char* name; int alphaFaction, alphaRank;            /* faction -1: unrestricted */ int omegaSame, omegaFaction, omegaRank; /* rows of Omega's own lists */ int rank1, faction1, rank2, faction2, unrestricted2; } cases[] = {
        {"unrestricted alpha ignores its lists", -1, 0, 1, 0, 0, 100, 0, 100, 0, 1},
        {"ensign is level one", 0, 0, 1, 0, 0, 1, 1, 1, 1, 0},
        {"lieutenant shares level one", 0, 1, 1, 0, 0, 1, 1, 1, 1, 0},
        {"vice admiral", 0, 7, 1, 0, 0, 7, 1, 7, 1, 0},
        {"free omega on same-as rows", 1, 4, 0, 0, 0, 4, 2, 4, 2, 0},
        {"omega rank row 1: level 1", 1, 4, 0, 0, 1, 4, 2, 1, 2, 0},
        {"omega rank row 3: level 2", 1, 4, 0, 0, 3, 4, 2, 2, 2, 0},
        {"omega rank row 8: level 7", 1, 4, 0, 0, 8, 4, 2, 7, 2, 0},
        {"own omega rank, alpha unrestricted", -1, 0, 0, 0, 3, 100, 0, 2, 0, 1},
        {"own omega faction", 0, 5, 0, 2, 0, 5, 1, 5, 2, 0},
        {"own omega faction is restricted", -1, 0, 0, 1, 6, 100, 0, 5, 1, 0},
        {"mirrored omega ignores its faction", 0, 5, 1, 2, 0, 5, 1, 5, 1, 0},
        {"omega rank row counts when mirrored", 0, 5, 1, 0, 2, 5, 1, 1, 1, 0},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Program c;
        AlphaCaptain(c, k.alphaFaction, k.alphaRank);
        OmegaCaptain(c, k.omegaSame, k.omegaFaction, k.omegaRank);
        EXPECT_EQ(std::tuple(GetRank(c, 1), GetFaction(c, 1), GetRank(c, 2)), std::tuple(k.rank1, k.faction1, k.rank2));
        EXPECT_EQ(GetFaction(c, 2), k.faction2);
        EXPECT_EQ(IsUnrestricted(c, 2) != 0, k.unrestricted2 != 0);
    }
}

TEST(Factions, OmegaClassOnItsSameAsRow) {
    // clang-format off
    struct Case { int alphaFaction; /* -1 unrestricted */ const char *alphaClass, *alphaTier; int omegaFaction; /* row of Omega's own faction list */ const char *omegaTier, *expected; } cases[] = {
        {0, "Cruiser", "Tier 1- Light Cruiser", 2, "Same As Alpha", "Bird of Prey"},
        {0, "Cruiser", "Tier 2- Cruiser", 2, "Same As Alpha", "Battle Cruiser"},
        {0, "Cruiser", "Tier 2- Cruiser", 2, "Tier 1- B'rel Bird of Prey", "Bird of Prey"},
        {1, "Bird of Prey", "Tier 1- B'rel Bird of Prey", 1, "Same As Alpha", "Cruiser"},
        {1, "Bird of Prey", "Tier 2- Quldun Bird of Prey", 1, "Same As Alpha", "Escort"},
        {0, "Shuttlecraft", "Variable Tier- Shuttlecraft", 2, "Same As Alpha", "Shuttlecraft "},
        {1, "Shuttlecraft ", "Variable Tier- Shuttlecraft", 1, "Same As Alpha", "Shuttlecraft"},
        {0, "Escort", "Tier 3- Heavy Escort", 2, "Same As Alpha", "Raptor"},
        {1, "Raptor", "Tier 3- Qorgh Raptor", 1, "Same As Alpha", "Escort"},
        {1, "Battle Cruiser", "Tier 3- K't'inga Battle Cruiser", 1, "Same As Alpha", "Cruiser"},
        {1, "Carrier", "Tier 5", 1, "Same As Alpha", "Science Vessel"},
        {0, "Science Vessel", "Tier 5- Various", 2, "Same As Alpha", "Klingon Science Vessel"},
        {1, "Allied Vessel", "Tier 5", 1, "Same As Alpha", "Federation Allied Vessel"},
        {1, "Carrier", "Tier 5", 2, "Same As Alpha", "Carrier"},
        {-1, "Unrestricted", "Tier 5- Unrestricted Vessel", 1, "Same As Alpha", "Unrestricted"},
        {-1, "Unrestricted", "Tier 5- Unrestricted Vessel", 2, "Same As Alpha", "Unrestricted"},
        {-1, "Science Vessel", "Tier 5- Unrestricted Vessel", 1, "Same As Alpha", "Science Vessel"},
        {-1, "Science Vessel", "Tier 5- Unrestricted Vessel", 2, "Same As Alpha", "Klingon Science Vessel"},
        {-1, "Shuttlecraft ", "Tier 5- Unrestricted Vessel", 2, "Same As Alpha", "Shuttlecraft "},
        {-1, "Federation", "Tier 5- Unrestricted Vessel", 2, "Same As Alpha", "Klingon"},
        {-1, "Klingon", "Tier 5- Unrestricted Vessel", 1, "Same As Alpha", "Federation"},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(std::string(k.alphaClass) + ", " + k.alphaTier + " for Omega's faction row " +
                     std::to_string(k.omegaFaction));
        Program c;
        AlphaCaptain(c, k.alphaFaction, 7);
        OmegaCaptain(c, 0, k.omegaFaction, 0);
        AlphaShip(c, k.alphaFaction, k.alphaClass, k.alphaTier);
        Hold(c.main.ShipTier[2], {"Same As Alpha", k.omegaTier}, k.omegaTier);
        ASSERT_EQ(c.main.ShipClass[2].text(), "Same As Alpha");
        EXPECT_EQ(GetClass(c, 2), k.expected);
    }
    // The class text loses its leading blanks only.
    Program c;
    Select(c.main.ShipClass[1], "Shuttlecraft ");
    EXPECT_EQ(std::tuple(c.main.ShipClass[1].text(), GetClass(c, 1)), std::tuple("   Shuttlecraft ", "Shuttlecraft "));
    Quietly(c.main.ShipClass[1], -1);
    EXPECT_EQ(GetClass(c, 1), "");
}

TEST(Factions, TierFromTheListText) {
    // clang-format off
    struct Case { const char* name; int alphaRank; /* -1: unrestricted */ int omegaRank; /* row of Omega's own rank list, 0 same as Alpha */ const char *alphaClass, *alphaTier, *omegaTier; int tier1, tier2; } cases[] = {
        {"digit after the word", 7, 0, "Cruiser", "Tier 3- Heavy Cruiser", "Same As Alpha", 3, 3},
        {"no selection: tier 5", 7, 0, "Cruiser", "", "Same As Alpha", 5, 5},
        {"cut to omega's rank", -1, 3, "Unrestricted", "Tier 5- Unrestricted Vessel", "Same As Alpha", 5, 2},
        {"carrier, level 1 omega", 7, 1, "Carrier", "Tier 5", "Same As Alpha", 5, 1},
        {"omega's own row", 7, 0, "Cruiser", "Tier 5- Various", "Tier 2- Cruiser", 5, 2},
        {"shuttle at level 3", 3, 0, "Shuttlecraft", "Variable Tier- Shuttlecraft", "Same As Alpha", 3, 3},
        {"shuttle at level 6", 6, 0, "Shuttlecraft ", "Variable Tier- Shuttlecraft", "Same As Alpha", 5, 5},
        {"unrestricted shuttle", -1, 0, "Shuttlecraft", "Variable Tier- Shuttlecraft", "Same As Alpha", 5, 5},
        {"omega's own shuttle row", -1, 3, "Shuttlecraft", "Variable Tier- Shuttlecraft", "Variable Tier- Shuttlecraft", 5, 2},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Program c;
        AlphaCaptain(c, k.alphaRank < 0 ? -1 : 1, k.alphaRank);
        OmegaCaptain(c, 0, 0, k.omegaRank);
        AlphaShip(c, 1, k.alphaClass, k.alphaTier);
        Hold(c.main.ShipTier[2], {"Same As Alpha", k.omegaTier}, k.omegaTier);
        EXPECT_EQ(std::tuple(GetClass(c, 2), GetTier(c, 1), GetTier(c, 2)), std::tuple(k.alphaClass, k.tier1, k.tier2));
    }
}

TEST(Factions, SubclassRowOfEachVessel) {
    // clang-format off
    struct Case { const char* name; int alphaRows, alphaIndex, omegaRows, omegaIndex; /* Omega's rows include its same-as row */ int subclass1, subclass2; } cases[] = {
        {"no counterpart in two rows", 3, 2, 3, 0, 2, 0}, {"counterpart in three rows", 3, 2, 4, 0, 2, 2},
        {"omega's own row", 3, 2, 4, 2, 2, 1},            {"nothing selected: row 0", 0, -1, 0, -1, 0, 0},
        {"hidden omega list", 2, 1, 1, 0, 1, 0},
    };
    // clang-format on
    const Rows names = {"Same As Alpha", "a", "b", "c"};
    for (const Case& k : cases) {
        Program c;
        Hold(c.main.ShipSubclass[1], Rows(names.begin() + 1, names.begin() + 1 + k.alphaRows), "");
        Quietly(c.main.ShipSubclass[1], k.alphaIndex);
        Hold(c.main.ShipSubclass[2], Rows(names.begin(), names.begin() + k.omegaRows), "");
        Quietly(c.main.ShipSubclass[2], k.omegaIndex);
        EXPECT_EQ(std::tuple(GetSubclass(c, 1), GetSubclass(c, 2)), std::tuple(k.subclass1, k.subclass2)) << k.name;
    }
}

using namespace testing;

TEST(Cascade, TierCarriesOverToTheNewClass) {
    // clang-format off
    struct Case { const char* name; int faction, rankRow; /* faction -1 unrestricted */ const char *fromClass, *fromTier, *toClass, *expected; } cases[] = {
        {"escort to cruiser", -1, 0, "Escort", "Tier 5- Various", "Cruiser", "Tier 5- Various"},
        {"escort to carrier", -1, 0, "Escort", "Tier 5- Various", "Carrier", "Tier 5"},
        {"bop 1 to raptor", -1, 0, "Bird of Prey", "Tier 1- B'rel Bird of Prey", "Raptor", "Tier 5- Qin Heavy Raptor"},
        {"bop 4 to escort", -1, 0, "Bird of Prey", "Tier 4- Ki'tang Bird of Prey", "Escort", "Tier 4- Tactical Escort"},
        {"escorts begin at 2", 0, 3, "Cruiser", "Tier 3- Heavy Cruiser", "Escort", "Tier 3- Heavy Escort"},
        {"klingon shuttle", 1, 7, "Battle Cruiser", "Tier 4- Vor'cha Battle Cruiser", "Shuttlecraft ", "Variable Tier- Shuttlecraft"},
        {"escort 2 to cruiser", 0, 7, "Escort", "Tier 2- Escort", "Cruiser", "Tier 2- Cruiser"},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Program c;
        AlphaCaptain(c, k.faction, k.rankRow);
        ApplyAlphaCaptain(c);
        ChooseClass(c, 1, k.fromClass);
        ChooseTier(c, 1, k.fromTier);
        ASSERT_EQ(c.main.ShipTier[1].text(), k.fromTier);
        ChooseClass(c, 1, k.toClass);
        EXPECT_EQ(c.main.ShipTier[1].text(), k.expected);
        EXPECT_TRUE(c.main.ShipTier[1].enabled());
    }
}

TEST(Cascade, CaptainChangesRebuildTheClassList) {
    const Rows fed = {"Cruiser", "Escort", "Shuttlecraft", "Science Vessel"};
    const Rows kdf = {"Allied Vessel", "Battle Cruiser", "Bird of Prey", "Carrier", "Raptor", "Shuttlecraft "};
    // clang-format off
    struct Case { const char* name; int faction, rankRow; /* faction -1 unrestricted */ const char* shipClass; int newFaction, newRankRow; Rows classes; const char *selectedClass, *selectedTier; } cases[] = {
        {"rank drop cuts the tier", 0, 7, "Cruiser", 0, 3, fed, "Cruiser", "Tier 3- Heavy Cruiser"},
        {"science vessel at 2", 0, 4, "Science Vessel", 0, 2, fed, "Science Vessel", "Tier 2- Science Vessel"},
        {"science vessel gone at 1", 0, 4, "Science Vessel", 0, 1, {"Cruiser", "Shuttlecraft"}, "Cruiser", "Tier 1- Light Cruiser"},
        {"unrestricted escort stays", -1, 0, "Escort", 0, 7, fed, "Escort", "Tier 5- Various"},
        {"other faction: row 0", 0, 7, "Escort", 1, 7, kdf, "Allied Vessel", "Tier 5"},
        {"shuttles differ by faction", 0, 7, "Shuttlecraft", 1, 7, kdf, "Allied Vessel", "Tier 5"},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Program c;
        AlphaCaptain(c, k.faction, k.rankRow);
        ApplyAlphaCaptain(c);
        ChooseClass(c, 1, k.shipClass);
        AlphaCaptain(c, k.newFaction, k.newRankRow);
        ApplyAlphaCaptain(c);
        EXPECT_EQ(c.main.ShipClass[1].rows(), k.classes);
        EXPECT_EQ(c.main.ShipClass[1].text(), k.selectedClass);
        EXPECT_EQ(c.main.ShipTier[1].text(), k.selectedTier);
        EXPECT_TRUE(c.main.ShipClass[1].enabled());
    }
}

TEST(Cascade, SubclassBeyondTheNewListGoesToTheFirstRow) {
    Program c;
    ChooseClass(c, 1, "Cruiser");
    Quietly(c.main.ShipSubclass[1], 4);
    ShipControl(c);
    EXPECT_EQ(c.main.ShipSubclass[1].text(), "Exploration Cruiser Retrofit");
    ChooseTier(c, 1, "Tier 3- Heavy Cruiser");
    EXPECT_EQ(c.main.ShipSubclass[1].rows(), (Rows{"Heavy Cruiser", "Advanced Heavy Cruiser"}));
    EXPECT_EQ(c.main.ShipSubclass[1].index(), 0);
    EXPECT_TRUE(c.main.ShipSubclass[1].visible() && c.main.ShipSubclassLabel[1].visible());
    ChooseTier(c, 1, "Tier 4- Exploration Cruiser");
    EXPECT_FALSE(c.main.ShipSubclass[1].visible() || c.main.ShipSubclassLabel[1].visible());
    EXPECT_EQ(c.main.ShipSubclass[1].index(), -1);
}

TEST(Cascade, HistoricalVesselIsDrawnOnEveryRebuild) {
    Program c;
    ChooseClass(c, 1, "Federation");
    ChooseTier(c, 1, "Tier 4- Historical Vessel");
    std::set<int> drawn;
    for (int n = 0; n < 40; ++n) {
        ShipSubclassControl(c);
        drawn.insert(c.main.ShipSubclass[1].index());
    }
    EXPECT_EQ(drawn, (std::set<int>{0, 1, 2}));
    // Tier 2 has one ship and nothing to draw.
    ChooseTier(c, 1, "Tier 2- Historical Vessel");
    EXPECT_EQ(c.main.ShipSubclass[1].text(), "NCC-1701-A U.S.S. Enterprise");
}

TEST(Cascade, OmegaFollowsAlphaInTheSamePass) {
    Program c;
    c.state.Comparing = -1;
    ChooseClass(c, 1, "Bird of Prey");
    ChooseTier(c, 1, "Tier 1- B'rel Bird of Prey");
    OmegaCaptain(c, 0, 1, 0); // a Federation Omega on its same-as rows
    ChooseClass(c, 1, "Bird of Prey");
    EXPECT_EQ(GetClass(c, 2), "Cruiser");
    EXPECT_EQ(c.main.ShipTier[2].rows(),
              (Rows{"Same As Alpha", "Tier 1- Light Cruiser", "Tier 2- Cruiser", "Tier 3- Heavy Cruiser",
                    "Tier 4- Exploration Cruiser", "Tier 5- Various"}));
    EXPECT_EQ(c.main.ShipTier[2].index(), 0);
    EXPECT_EQ(c.main.ShipSubclass[2].rows(), (Rows{"Same As Alpha", "Miranda Class Frigate",
                                                   "Constitution Class Light Cruiser", "NX Class Light Escort"}));
    EXPECT_TRUE(c.main.CForward[2].visible());
    EXPECT_FALSE(c.main.CForward[3].visible());
    EXPECT_EQ(c.main.CForward[1].row(4), "Dual Cannons");
}

TEST(Cascade, OmegasOwnClassStaysWhenAlphaChanges) {
    Program c;
    c.state.Comparing = -1;
    Select(c.main.ShipClass[2], "Raptor");
    ShipTierControl(c);
    ASSERT_EQ(c.main.ShipTier[2].index(), 0);
    Select(c.main.ShipTier[2], "Tier 3- Qorgh Raptor");
    ChooseClass(c, 1, "Cruiser");
    EXPECT_EQ(c.main.ShipClass[2].text(), "   Raptor");
    EXPECT_EQ(c.main.ShipTier[2].rows(), (Rows{"Same As Alpha", "Tier 2- Somraw Raptor", "Tier 3- Qorgh Raptor",
                                               "Tier 4- Pach Raptor", "Tier 5- Qin Heavy Raptor"}));
    EXPECT_EQ(c.main.ShipTier[2].text(), "Tier 3- Qorgh Raptor");
}

// Custom mode as it stands when the player has unchecked Relative DPS,
// without the settings window's handlers.
void CustomMode(Calculator& c) {
    for (Vessel v = 1; v <= 2; ++v) {
        c.settings[v].RelativeDPS.setHandler({});
        c.settings[v].RelativeDPS.setValue(0);
        for (int i = 1; i <= 4; ++i)
            c.settings[v].TacticalConsoleEquipped[i].setHandler({});
    }
}

// Per console slot: '1' equipped, '0' not.
std::string Equipped(const VesselSettings& s) {
    std::string flags;
    for (int i = 1; i <= 4; ++i)
        flags += s.TacticalConsoleEquipped[i].value() ? '1' : '0';
    return flags;
}

// Per console slot: 'w' if all three lists are white.
std::string White(const VesselSettings& s) {
    std::string white;
    for (int i = 1; i <= 4; ++i)
        white += s.TacticalConsole[i].back() == vantorel::White && s.TacticalConsoleMark[i].back() == vantorel::White &&
                         s.TacticalConsoleRarity[i].back() == vantorel::White
                     ? 'w'
                     : '-';
    return white;
}

TEST(Cascade, ConsoleLimitOfTheShip) {
    // clang-format off
    struct Case { const char *name, *shipClass; Vessel v; int keep, sameAsAlpha; const char *equipped, *white, *limit; } cases[] = {
        {"type-8 unequips all", "Shuttlecraft", 1, 0, 1, "0000", "----", "0"},
        {"unrestricted: four", "Unrestricted", 1, 0, 1, "1111", "wwww", "4"},
        {"science vessel: three", "Science Vessel", 1, 0, 1, "1110", "www-", "3"},
        {"keep leaves the flags", "Shuttlecraft", 1, -1, 1, "1010", "----", "0"},
        {"mirrored omega stays grey", "Science Vessel", 2, 0, 1, "1110", "----", "3"},
        {"free omega turns white", "Science Vessel", 2, 0, 0, "1110", "www-", "3"},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Program c;
        c.state.Comparing = -1;
        CustomMode(c);
        OmegaCaptain(c, k.sameAsAlpha, 0, 0);
        ChooseClass(c, 1, k.shipClass);
        VesselSettings& s = c.settings[k.v];
        for (int i = 1; i <= 4; ++i) {
            s.TacticalConsoleEquipped[i].setValue(i % 2);
            s.TacticalConsole[i].setBack(Grey);
            s.TacticalConsoleMark[i].setBack(Grey);
            s.TacticalConsoleRarity[i].setBack(Grey);
        }
        MatchConsoleLimit(c, k.v, k.keep);
        EXPECT_EQ(std::tuple(Equipped(s), White(s)), std::tuple(k.equipped, k.white));
        EXPECT_EQ(s.MatchConsoleLimit.caption(), k.limit);
        EXPECT_FALSE(s.TacticalConsoleEquipped[1].enabled());
    }
}

TEST(Cascade, ShipChangeMatchesConsolesOnlyInCustomMode) {
    Program c;
    ChooseClass(c, 1, "Shuttlecraft");
    EXPECT_EQ(std::tuple(Equipped(c.Alpha()), c.Alpha().MatchConsoleLimit.caption()), std::tuple("1111", ""));
    CustomMode(c);
    ChooseClass(c, 1, "Escort");
    EXPECT_EQ(std::tuple(Equipped(c.Alpha()), c.Alpha().MatchConsoleLimit.caption()), std::tuple("1111", "4"));
    ChooseClass(c, 1, "Shuttlecraft");
    EXPECT_EQ(Equipped(c.Alpha()), "0000");
    c.Alpha().MatchConsole.setHandler({});
    c.Alpha().MatchConsole.setValue(0);
    ChooseClass(c, 1, "Escort");
    EXPECT_EQ(std::tuple(Equipped(c.Alpha()), c.Alpha().MatchConsoleLimit.caption()), std::tuple("0000", "4"));
}

} // namespace
} // namespace vantorel
