#include "catalogue_setup.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace vantorel {
namespace {

using testing::AlphaCaptain;
using testing::ApplyAlphaCaptain;
using testing::ChooseClass;
using testing::ChooseSubclass;
using testing::ChooseTier;
using testing::OmegaCaptain;
using testing::Quietly;
using Rows = std::vector<std::string>;

TEST(Cascade, TierCarriesOverToTheNewClass) {
    struct Case {
        const char* name;
        int faction, rankRow; // faction -1 unrestricted
        const char* fromClass;
        const char* fromTier;
        const char* toClass;
        const char* expected;
    };
    const Case cases[] = {
        {"escort to cruiser", -1, 0, "Escort", "Tier 5- Various", "Cruiser", "Tier 5- Various"},
        {"escort to carrier", -1, 0, "Escort", "Tier 5- Various", "Carrier", "Tier 5"},
        {"bird of prey tier 1 to raptor", -1, 0, "Bird of Prey", "Tier 1- B'rel Bird of Prey", "Raptor",
         "Tier 5- Qin Heavy Raptor"},
        {"bird of prey tier 4 to escort", -1, 0, "Bird of Prey", "Tier 4- Ki'tang Bird of Prey", "Escort",
         "Tier 4- Tactical Escort"},
        {"escort rows begin at tier 2", 0, 3, "Cruiser", "Tier 3- Heavy Cruiser", "Escort", "Tier 3- Heavy Escort"},
        {"klingon shuttle is a single row", 1, 7, "Battle Cruiser", "Tier 4- Vor'cha Battle Cruiser", "Shuttlecraft ",
         "Variable Tier- Shuttlecraft"},
        {"escort tier 2 to cruiser", 0, 7, "Escort", "Tier 2- Escort", "Cruiser", "Tier 2- Cruiser"},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
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
    struct Case {
        const char* name;
        int faction, rankRow; // faction -1 unrestricted
        const char* shipClass;
        int newFaction, newRankRow;
        Rows classes;
        const char* selectedClass;
        const char* selectedTier;
    };
    const Case cases[] = {
        {"rank drop cuts the tier",
         0,
         7,
         "Cruiser",
         0,
         3,
         {"Cruiser", "Escort", "Shuttlecraft", "Science Vessel"},
         "Cruiser",
         "Tier 3- Heavy Cruiser"},
        {"science vessel still listed at level 2",
         0,
         4,
         "Science Vessel",
         0,
         2,
         {"Cruiser", "Escort", "Shuttlecraft", "Science Vessel"},
         "Science Vessel",
         "Tier 2- Science Vessel"},
        {"science vessel gone at level 1",
         0,
         4,
         "Science Vessel",
         0,
         1,
         {"Cruiser", "Shuttlecraft"},
         "Cruiser",
         "Tier 1- Light Cruiser"},
        {"unrestricted escort keeps its class",
         -1,
         0,
         "Escort",
         0,
         7,
         {"Cruiser", "Escort", "Shuttlecraft", "Science Vessel"},
         "Escort",
         "Tier 5- Various"},
        {"a class of the old faction falls to row 0",
         0,
         7,
         "Escort",
         1,
         7,
         {"Allied Vessel", "Battle Cruiser", "Bird of Prey", "Carrier", "Raptor", "Shuttlecraft "},
         "Allied Vessel",
         "Tier 5"},
        {"the federation shuttle is not the klingon one",
         0,
         7,
         "Shuttlecraft",
         1,
         7,
         {"Allied Vessel", "Battle Cruiser", "Bird of Prey", "Carrier", "Raptor", "Shuttlecraft "},
         "Allied Vessel",
         "Tier 5"},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
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
    Calculator c;
    ChooseClass(c, 1, "Cruiser");
    ChooseSubclass(c, 1, 4);
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
    Calculator c;
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
    Calculator c;
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
    Calculator c;
    c.state.Comparing = -1;
    testing::Select(c.main.ShipClass[2], "Raptor");
    ShipTierControl(c);
    ASSERT_EQ(c.main.ShipTier[2].index(), 0);
    testing::Select(c.main.ShipTier[2], "Tier 3- Qorgh Raptor");
    ChooseClass(c, 1, "Cruiser");
    EXPECT_EQ(c.main.ShipClass[2].text(), "   Raptor");
    EXPECT_EQ(c.main.ShipTier[2].rows(), (Rows{"Same As Alpha", "Tier 2- Somraw Raptor", "Tier 3- Qorgh Raptor",
                                               "Tier 4- Pach Raptor", "Tier 5- Qin Heavy Raptor"}));
    EXPECT_EQ(c.main.ShipTier[2].text(), "Tier 3- Qorgh Raptor");
}

// Custom mode without the settings window's handlers: the flags as they
// stand when the player has unchecked Relative DPS.
void CustomMode(Calculator& c) {
    for (Vessel v = 1; v <= 2; ++v) {
        c.settings[v].RelativeDPS.setHandler({});
        c.settings[v].RelativeDPS.setValue(0);
        for (int i = 1; i <= 4; ++i)
            c.settings[v].TacticalConsoleEquipped[i].setHandler({});
    }
}

std::vector<int> Equipped(const VesselSettings& s) {
    std::vector<int> flags;
    for (int i = 1; i <= 4; ++i)
        flags.push_back(s.TacticalConsoleEquipped[i].value());
    return flags;
}

std::vector<bool> White(const VesselSettings& s) {
    std::vector<bool> white;
    for (int i = 1; i <= 4; ++i) {
        const bool all = s.TacticalConsole[i].back() == vantorel::White &&
                         s.TacticalConsoleMark[i].back() == vantorel::White &&
                         s.TacticalConsoleRarity[i].back() == vantorel::White;
        white.push_back(all);
    }
    return white;
}

TEST(Cascade, ConsoleLimitOfTheShip) {
    struct Case {
        const char* name;
        const char* shipClass;
        Vessel v;
        int keep;
        int sameAsAlpha;
        std::vector<int> equipped;
        std::vector<bool> white;
        const char* limit;
    };
    const Case cases[] = {
        {"type-8 shuttle unequips all", "Shuttlecraft", 1, 0, 1, {0, 0, 0, 0}, {false, false, false, false}, "0"},
        {"unrestricted ship equips four", "Unrestricted", 1, 0, 1, {1, 1, 1, 1}, {true, true, true, true}, "4"},
        {"tier 5 science vessel equips three", "Science Vessel", 1, 0, 1, {1, 1, 1, 0}, {true, true, true, false}, "3"},
        {"keep leaves the flags alone", "Shuttlecraft", 1, -1, 1, {1, 0, 1, 0}, {false, false, false, false}, "0"},
        {"mirrored omega stays grey", "Science Vessel", 2, 0, 1, {1, 1, 1, 0}, {false, false, false, false}, "3"},
        {"free omega turns white", "Science Vessel", 2, 0, 0, {1, 1, 1, 0}, {true, true, true, false}, "3"},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        Calculator c;
        c.state.Comparing = -1;
        CustomMode(c);
        OmegaCaptain(c, k.sameAsAlpha, 0, 0);
        ChooseClass(c, 1, k.shipClass);
        VesselSettings& s = c.settings[k.v];
        const int preset[4] = {1, 0, 1, 0};
        for (int i = 1; i <= 4; ++i) {
            s.TacticalConsoleEquipped[i].setValue(preset[i - 1]);
            s.TacticalConsole[i].setBack(Grey);
            s.TacticalConsoleMark[i].setBack(Grey);
            s.TacticalConsoleRarity[i].setBack(Grey);
        }
        MatchConsoleLimit(c, k.v, k.keep);
        EXPECT_EQ(Equipped(s), k.equipped);
        EXPECT_EQ(White(s), k.white);
        EXPECT_EQ(s.MatchConsoleLimit.caption(), k.limit);
        EXPECT_FALSE(s.TacticalConsoleEquipped[1].enabled());
    }
}

TEST(Cascade, ShipChangeMatchesConsolesOnlyInCustomMode) {
    Calculator c;
    ChooseClass(c, 1, "Shuttlecraft");
    EXPECT_EQ(Equipped(c.Alpha()), (std::vector<int>{1, 1, 1, 1}));
    EXPECT_EQ(c.Alpha().MatchConsoleLimit.caption(), "");

    CustomMode(c);
    ChooseClass(c, 1, "Escort");
    EXPECT_EQ(Equipped(c.Alpha()), (std::vector<int>{1, 1, 1, 1}));
    EXPECT_EQ(c.Alpha().MatchConsoleLimit.caption(), "4");
    ChooseClass(c, 1, "Shuttlecraft");
    EXPECT_EQ(Equipped(c.Alpha()), (std::vector<int>{0, 0, 0, 0}));

    c.Alpha().MatchConsole.setHandler({});
    c.Alpha().MatchConsole.setValue(0);
    ChooseClass(c, 1, "Escort");
    EXPECT_EQ(Equipped(c.Alpha()), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(c.Alpha().MatchConsoleLimit.caption(), "4");
}

} // namespace
} // namespace vantorel
