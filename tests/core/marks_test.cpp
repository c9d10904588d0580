#include "engine/calculator.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

// A restricted captain of the given faction row (0 Federation, 1 Klingon)
// and rank row.
void Captain(Calculator& c, int faction, int rank) {
    VesselSettings& a = c.Alpha();
    a.CharacterSettings.setValue(0);
    a.Faction.setIndex(faction);
    a.Rank.setIndex(rank);
}

TEST(Marks, MarkByRankInRelativeMode) {
    struct Case {
        int rankRow; // -1 for unrestricted
        int mark;
    } cases[] = {{-1, 12}, {0, 2}, {1, 2}, {2, 4}, {3, 6}, {4, 8}, {5, 10}, {6, 12}, {7, 12}};
    for (const auto& k : cases) {
        Calculator c;
        if (k.rankRow >= 0) Captain(c, 0, k.rankRow);
        EXPECT_EQ(GetMark(c, 1), k.mark) << k.rankRow;
    }
}

TEST(Marks, MarkFromTheList) {
    struct Case {
        const char* name;
        int row, mark;
    } cases[] = {{"Max", 0, 12}, {"Standard Issue", 1, 0}, {"Mark I", 2, 1}, {"Mark XII", 13, 12}};
    for (const auto& k : cases) {
        Calculator c;
        c.Alpha().RelativeDPS.setValue(0);
        c.Alpha().WeaponMark.setIndex(k.row);
        EXPECT_EQ(GetMark(c, 1), k.mark) << k.name;
    }
}

TEST(Marks, ShuttleRankMark) {
    struct Case {
        const char* name;
        int rankRow, grade;
        float mark;
    } cases[] = {
        {"unrestricted", -1, 0, 9.9f},
        {"lieutenant commander, grade 1", 2, 0, 1.9f},
        {"commander, grade 5", 3, 4, 4.7f},
        {"rear admiral upper half, grade 3", 6, 2, 9.3f},
    };
    for (const auto& k : cases) {
        Calculator c;
        if (k.rankRow >= 0) Captain(c, 0, k.rankRow);
        c.main.Forward[1].setText("Shuttle Beam Array");
        CalculateFiringArcs(c);
        c.main.ShuttleRank[1].setIndex(k.grade);
        EXPECT_FLOAT_EQ(GetRankMark(c, 1), k.mark) << k.name;
    }
}

TEST(Marks, ShuttleArrayFactorInRelativeMode) {
    // The rare array's extra critical chance on one array of one.
    const float rare = (0.065f * 0.75f + 1.0f) / 1.03375f;
    struct Case {
        const char* name;
        int rankRow, grade;
        bool rareArray;
        float factor;
    } cases[] = {
        {"unrestricted counts as vice admiral", -1, 0, false, 0.71044f},
        {"vice admiral with the rare array steps up a rank", -1, 0, true, 0.73141f * rare},
        {"lieutenant", 1, 0, false, 0.62918f},
        {"commander, grade 5", 3, 4, false, 0.68402f + (0.7034f - 0.68402f) / 10 * 4},
        {"rear admiral, grade 3 in fives", 5, 2, false, 0.70715f + (0.70885f - 0.70715f) / 5 * 2},
        {"captain grade 8, rare: rear admiral grade 3", 4, 7, true, (0.70715f + (0.70885f - 0.70715f) / 5 * 2) * rare},
    };
    for (const auto& k : cases) {
        Calculator c;
        if (k.rankRow >= 0) Captain(c, 0, k.rankRow);
        c.main.Forward[1].setText("Shuttle Beam Array");
        CalculateFiringArcs(c);
        c.main.ShuttleRank[1].setIndex(k.grade);
        c.main.ShuttleMod[1].setValue(k.rareArray ? 1 : 0);
        EXPECT_NEAR(ShuttleArrayModifier(c, 1, 1), k.factor, 1e-6) << k.name;
    }
}

TEST(Marks, ShuttleArrayFactorFromTheBeamModifier) {
    Calculator c;
    c.Alpha().RelativeDPS.setValue(0);
    c.Alpha().WeaponMark.setIndex(0);
    c.state.BeamModifier[1] = 1.5f;
    const double scale = 8.0 / 50 * 0.8889786;
    EXPECT_NEAR(ShuttleArrayModifier(c, 1, 1), (1.5 - 12 * scale + 9.9 * scale) * 0.76, 1e-5);
    c.main.ShuttleMod[1].setValue(1);
    const double rare = (0.065 * 0.75 + 1) / 1.03375;
    EXPECT_NEAR(ShuttleArrayModifier(c, 1, 2),
                ((1.5 - 12 * scale + 9.9 * scale) + 7.2 / 50 * 0.8889786 / 2) * ((rare - 1) / 2 + 1) * 0.76, 1e-5);
}

TEST(Marks, PartialCriticalBonus) {
    struct Case {
        const char* name;
        float chance, severity, share;
        int weapons;
        float expected;
    } cases[] = {
        {"no extra", 0.0f, 0.0f, 1.0f, 1, 1.0f},
        {"2% chance on one of one", 0.02f, 0.0f, 1.0f, 1, (0.065f * 0.75f + 1.0f) / 1.03375f},
        {"2% chance on one of two", 0.02f, 0.0f, 1.0f, 2, ((0.065f * 0.75f + 1.0f) / 1.03375f - 1.0f) / 2 + 1.0f},
        {"20% severity on half", 0.0f, 0.2f, 0.5f, 1, ((0.045f * 0.95f + 1.0f) / 1.03375f - 1.0f) / 2 + 1.0f},
    };
    for (const auto& k : cases) {
        Calculator c;
        EXPECT_NEAR(PartialCriticalBonus(c, 1, false, k.chance, k.severity, k.share, k.weapons), k.expected, 1e-6)
            << k.name;
    }
}

} // namespace
} // namespace vantorel
