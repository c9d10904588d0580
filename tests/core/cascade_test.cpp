#include "support.h"

#include <gtest/gtest.h>

#include <set>

namespace vantorel {
namespace {

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
    EXPECT_EQ(c.main.ShipTier[2].rows(), (Rows{"Same As Alpha", "Tier 1- Light Cruiser", "Tier 2- Cruiser",
                                               "Tier 3- Heavy Cruiser", "Tier 4- Exploration Cruiser", "Tier 5- Various"}));
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
        Calculator c;
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
        EXPECT_EQ(Equipped(s), k.equipped);
        EXPECT_EQ(White(s), k.white);
        EXPECT_EQ(s.MatchConsoleLimit.caption(), k.limit);
        EXPECT_FALSE(s.TacticalConsoleEquipped[1].enabled());
    }
}

TEST(Cascade, ShipChangeMatchesConsolesOnlyInCustomMode) {
    Calculator c;
    ChooseClass(c, 1, "Shuttlecraft");
    EXPECT_EQ(Equipped(c.Alpha()), "1111");
    EXPECT_EQ(c.Alpha().MatchConsoleLimit.caption(), "");
    CustomMode(c);
    ChooseClass(c, 1, "Escort");
    EXPECT_EQ(Equipped(c.Alpha()), "1111");
    EXPECT_EQ(c.Alpha().MatchConsoleLimit.caption(), "4");
    ChooseClass(c, 1, "Shuttlecraft");
    EXPECT_EQ(Equipped(c.Alpha()), "0000");
    c.Alpha().MatchConsole.setHandler({});
    c.Alpha().MatchConsole.setValue(0);
    ChooseClass(c, 1, "Escort");
    EXPECT_EQ(Equipped(c.Alpha()), "0000");
    EXPECT_EQ(c.Alpha().MatchConsoleLimit.caption(), "4");
}

} // namespace
} // namespace vantorel
