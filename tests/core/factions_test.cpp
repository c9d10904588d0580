#include "support.h"

#include <gtest/gtest.h>

#include <string>

namespace vantorel {
namespace {

using testing::AlphaCaptain;
using testing::Hold;
using testing::OmegaCaptain;
using testing::Quietly;
using testing::Select;

TEST(Factions, RankAndFactionOfBothVessels) {
    struct Case {
        const char* name;
        int alphaFaction, alphaRank;            // faction -1: unrestricted
        int omegaSame, omegaFaction, omegaRank; // rows of Omega's own lists
        int rank1, faction1, rank2, faction2, unrestricted2;
    };
    const Case cases[] = {
        {"unrestricted alpha ignores its lists", -1, 0, 1, 0, 0, 100, 0, 100, 0, 1},
        {"ensign is level one, never zero", 0, 0, 1, 0, 0, 1, 1, 1, 1, 0},
        {"lieutenant shares level one", 0, 1, 1, 0, 0, 1, 1, 1, 1, 0},
        {"vice admiral", 0, 7, 1, 0, 0, 7, 1, 7, 1, 0},
        {"free omega on same-as rows follows alpha", 1, 4, 0, 0, 0, 4, 2, 4, 2, 0},
        {"omega rank row 1 is level 1", 1, 4, 0, 0, 1, 4, 2, 1, 2, 0},
        {"omega rank row 3 is level 2", 1, 4, 0, 0, 3, 4, 2, 2, 2, 0},
        {"omega rank row 8 is level 7", 1, 4, 0, 0, 8, 4, 2, 7, 2, 0},
        {"own omega rank holds while alpha is unrestricted", -1, 0, 0, 0, 3, 100, 0, 2, 0, 1},
        {"own omega faction", 0, 5, 0, 2, 0, 5, 1, 5, 2, 0},
        {"own omega faction is restricted under unrestricted alpha", -1, 0, 0, 1, 6, 100, 0, 5, 1, 0},
        {"mirrored omega ignores its faction row", 0, 5, 1, 2, 0, 5, 1, 5, 1, 0},
        {"omega rank row counts even while mirrored", 0, 5, 1, 0, 2, 5, 1, 1, 1, 0},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
        AlphaCaptain(c, k.alphaFaction, k.alphaRank);
        OmegaCaptain(c, k.omegaSame, k.omegaFaction, k.omegaRank);
        EXPECT_EQ(GetRank(c, 1), k.rank1);
        EXPECT_EQ(GetFaction(c, 1), k.faction1);
        EXPECT_EQ(GetRank(c, 2), k.rank2);
        EXPECT_EQ(GetFaction(c, 2), k.faction2);
        EXPECT_EQ(IsUnrestricted(c, 2) != 0, k.unrestricted2 != 0);
    }
}

TEST(Factions, OmegaClassOnItsSameAsRow) {
    struct Case {
        const char* name;
        int alphaFaction; // -1 unrestricted (Alpha's start list), else Alpha holds only its class
        const char* alphaClass;
        const char* alphaTier;
        int omegaFaction; // row of Omega's own faction list
        const char* omegaTier;
        const char* expected;
    };
    const Case cases[] = {
        {"cruiser at tier 1 becomes a bird of prey", 0, "Cruiser", "Tier 1- Light Cruiser", 2, "Same As Alpha",
         "Bird of Prey"},
        {"cruiser above tier 1 becomes a battle cruiser", 0, "Cruiser", "Tier 2- Cruiser", 2, "Same As Alpha",
         "Battle Cruiser"},
        {"omega's own tier 1 row decides too", 0, "Cruiser", "Tier 2- Cruiser", 2, "Tier 1- B'rel Bird of Prey",
         "Bird of Prey"},
        {"bird of prey at tier 1 becomes a cruiser", 1, "Bird of Prey", "Tier 1- B'rel Bird of Prey", 1,
         "Same As Alpha", "Cruiser"},
        {"bird of prey above tier 1 becomes an escort", 1, "Bird of Prey", "Tier 2- Quldun Bird of Prey", 1,
         "Same As Alpha", "Escort"},
        {"federation shuttle becomes the klingon one", 0, "Shuttlecraft", "Variable Tier- Shuttlecraft", 2,
         "Same As Alpha", "Shuttlecraft "},
        {"klingon shuttle becomes the federation one", 1, "Shuttlecraft ", "Variable Tier- Shuttlecraft", 1,
         "Same As Alpha", "Shuttlecraft"},
        {"escort", 0, "Escort", "Tier 3- Heavy Escort", 2, "Same As Alpha", "Raptor"},
        {"raptor", 1, "Raptor", "Tier 3- Qorgh Raptor", 1, "Same As Alpha", "Escort"},
        {"battle cruiser", 1, "Battle Cruiser", "Tier 3- K't'inga Battle Cruiser", 1, "Same As Alpha", "Cruiser"},
        {"carrier", 1, "Carrier", "Tier 5", 1, "Same As Alpha", "Science Vessel"},
        {"science vessel", 0, "Science Vessel", "Tier 5- Various", 2, "Same As Alpha", "Klingon Science Vessel"},
        {"allied vessel", 1, "Allied Vessel", "Tier 5", 1, "Same As Alpha", "Federation Allied Vessel"},
        {"same faction keeps the class", 1, "Carrier", "Tier 5", 2, "Same As Alpha", "Carrier"},
        {"unrestricted vessel stays for federation", -1, "Unrestricted", "Tier 5- Unrestricted Vessel", 1,
         "Same As Alpha", "Unrestricted"},
        {"unrestricted vessel stays for klingon", -1, "Unrestricted", "Tier 5- Unrestricted Vessel", 2, "Same As Alpha",
         "Unrestricted"},
        {"unrestricted science vessel on its own side", -1, "Science Vessel", "Tier 5- Unrestricted Vessel", 1,
         "Same As Alpha", "Science Vessel"},
        {"unrestricted science vessel seen by a klingon", -1, "Science Vessel", "Tier 5- Unrestricted Vessel", 2,
         "Same As Alpha", "Klingon Science Vessel"},
        {"unrestricted klingon shuttle on its own side", -1, "Shuttlecraft ", "Tier 5- Unrestricted Vessel", 2,
         "Same As Alpha", "Shuttlecraft "},
        {"unrestricted federation heading seen by a klingon", -1, "Federation", "Tier 5- Unrestricted Vessel", 2,
         "Same As Alpha", "Klingon"},
        {"unrestricted klingon heading seen by the federation", -1, "Klingon", "Tier 5- Unrestricted Vessel", 1,
         "Same As Alpha", "Federation"},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
        AlphaCaptain(c, k.alphaFaction, 7);
        OmegaCaptain(c, 0, k.omegaFaction, 0);
        if (k.alphaFaction < 0)
            Select(c.main.ShipClass[1], k.alphaClass);
        else
            Hold(c.main.ShipClass[1], {k.alphaClass}, k.alphaClass);
        Hold(c.main.ShipTier[1], {k.alphaTier}, k.alphaTier);
        Hold(c.main.ShipTier[2], {"Same As Alpha", k.omegaTier}, k.omegaTier);
        ASSERT_EQ(c.main.ShipClass[2].text(), "Same As Alpha");
        EXPECT_EQ(GetClass(c, 2), k.expected);
    }
}

TEST(Factions, ClassTextLosesLeadingBlanksOnly) {
    Calculator c;
    Select(c.main.ShipClass[1], "Shuttlecraft ");
    EXPECT_EQ(c.main.ShipClass[1].text(), "   Shuttlecraft ");
    EXPECT_EQ(GetClass(c, 1), "Shuttlecraft ");
    Select(c.main.ShipClass[2], "Escort");
    EXPECT_EQ(GetClass(c, 2), "Escort");
    Quietly(c.main.ShipClass[1], -1);
    EXPECT_EQ(GetClass(c, 1), "");
}

TEST(Factions, TierFromTheListText) {
    struct Case {
        const char* name;
        int alphaRank; // -1: unrestricted
        int omegaRank; // row of Omega's own rank list, 0 same as Alpha
        const char* alphaClass;
        const char* alphaTier;
        const char* omegaTier;
        int tier1, tier2;
    };
    const Case cases[] = {
        {"digit after the word", 7, 0, "Cruiser", "Tier 3- Heavy Cruiser", "Same As Alpha", 3, 3},
        {"no selection counts as tier 5", 7, 0, "Cruiser", "", "Same As Alpha", 5, 5},
        {"same-as tier cut down to omega's rank", -1, 3, "Unrestricted", "Tier 5- Unrestricted Vessel", "Same As Alpha",
         5, 2},
        {"carrier for a level 1 omega", 7, 1, "Carrier", "Tier 5", "Same As Alpha", 5, 1},
        {"omega's own tier row", 7, 0, "Cruiser", "Tier 5- Various", "Tier 2- Cruiser", 5, 2},
        {"shuttle at level 3", 3, 0, "Shuttlecraft", "Variable Tier- Shuttlecraft", "Same As Alpha", 3, 3},
        {"shuttle at level 6", 6, 0, "Shuttlecraft ", "Variable Tier- Shuttlecraft", "Same As Alpha", 5, 5},
        {"unrestricted shuttle", -1, 0, "Shuttlecraft", "Variable Tier- Shuttlecraft", "Same As Alpha", 5, 5},
        {"omega's own shuttle row uses omega's rank", -1, 3, "Shuttlecraft", "Variable Tier- Shuttlecraft",
         "Variable Tier- Shuttlecraft", 5, 2},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
        AlphaCaptain(c, k.alphaRank < 0 ? -1 : 1, k.alphaRank);
        OmegaCaptain(c, 0, 0, k.omegaRank);
        Hold(c.main.ShipClass[1], {k.alphaClass}, k.alphaClass);
        Hold(c.main.ShipTier[1], {k.alphaTier}, k.alphaTier);
        Hold(c.main.ShipTier[2], {"Same As Alpha", k.omegaTier}, k.omegaTier);
        EXPECT_EQ(GetClass(c, 2), k.alphaClass);
        EXPECT_EQ(GetTier(c, 1), k.tier1);
        EXPECT_EQ(GetTier(c, 2), k.tier2);
    }
}

TEST(Factions, SubclassRowOfEachVessel) {
    struct Case {
        const char* name;
        int alphaRows, alphaIndex;
        int omegaRows, omegaIndex; // Omega's rows include its same-as row
        int subclass1, subclass2;
    };
    const Case cases[] = {
        {"alpha's row 2 has no counterpart in two ship rows", 3, 2, 3, 0, 2, 0},
        {"alpha's row 2 exists among three ship rows", 3, 2, 4, 0, 2, 2},
        {"omega's own row", 3, 2, 4, 2, 2, 1},
        {"nothing selected counts as row 0", 0, -1, 0, -1, 0, 0},
        {"hidden omega list on alpha's row", 2, 1, 1, 0, 1, 0},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
        const std::vector<std::string> names = {"Same As Alpha", "a", "b", "c"};
        Hold(c.main.ShipSubclass[1], std::vector<std::string>(names.begin() + 1, names.begin() + 1 + k.alphaRows), "");
        Quietly(c.main.ShipSubclass[1], k.alphaIndex);
        Hold(c.main.ShipSubclass[2], std::vector<std::string>(names.begin(), names.begin() + k.omegaRows), "");
        Quietly(c.main.ShipSubclass[2], k.omegaIndex);
        EXPECT_EQ(GetSubclass(c, 1), k.subclass1);
        EXPECT_EQ(GetSubclass(c, 2), k.subclass2);
    }
}

} // namespace
} // namespace vantorel
