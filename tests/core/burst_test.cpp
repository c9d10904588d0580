#include "support.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

constexpr int kPhoton = 0, kQuantum = 1, kPlasma = 2, kTransphasic = 4, kTricobalt = 5;

struct Skills {
    int highYield = 0, spread = 0, targets = 1, mines = 0, overload = 0;
};

void Load(Calculator& c, int type, const Skills& k, bool relative = true) {
    c.Alpha().WeaponType[2].setIndex(type);
    if (!relative) c.Alpha().RelativeDPS.setValue(0);
    CalculatorState& s = c.state;
    s.TorpedoHighYield[1] = static_cast<std::int16_t>(k.highYield);
    s.TorpedoSpread[1] = static_cast<std::int16_t>(k.spread);
    s.SkillTargets[1] = static_cast<std::int16_t>(k.targets);
    s.MineSkill[1] = static_cast<std::int16_t>(k.mines);
    s.BeamOverload[1] = static_cast<std::int16_t>(k.overload);
}

TEST(Burst, TorpedoSkill) {
    // clang-format off
    struct Case { const char* name; int type; Skills skills; float factor; } cases[] = {
        {"none", kQuantum, {}, 1.0f},
        {"Quantum High Yield 1", kQuantum, {.highYield = 1}, 2.227f},
        {"Transphasic Spread 1", kTransphasic, {.spread = 1}, 1.464f},
        {"Spread at two targets", kQuantum, {.spread = 1, .targets = 2}, 1.893f * 2},
        {"Spread 2: six of nine", kQuantum, {.spread = 2, .targets = 9}, 2.198f * 6},
        {"Spread 1: three of five", kQuantum, {.spread = 1, .targets = 5}, 1.893f * 3},
        {"High Yield first", kQuantum, {.highYield = 1, .spread = 3, .targets = 3}, 2.227f},
        {"Tricobalt High Yield", kTricobalt, {.highYield = 3}, 1.0f},
        {"Tricobalt Spread", kTricobalt, {.spread = 2, .targets = 4}, 1.0f},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        Load(c, k.type, k.skills);
        EXPECT_EQ(GetTorpedoSkill(c, 1), k.factor) << k.name;
    }
}

TEST(Burst, Values) {
    // clang-format off
    struct Case { const char* name; bool relative; int type; Skills skills; int torpedoes, mines; float burst; /* custom mode: on torpedo damage 1000 times the critical factor */ } cases[] = {
        {"nothing", true, kQuantum, {}, 0, 0, 0.0f},
        {"one Quantum launcher", true, kQuantum, {}, 1, 0, 1092.354f},
        {"four burst like one", true, kQuantum, {}, 4, 0, 1092.354f},
        {"mines", true, kQuantum, {}, 0, 1, 1365.443f},
        {"Dispersal Pattern 2", true, kQuantum, {.mines = 2}, 0, 2, 3277.063f},
        {"Spread 2 at nine uses six", true, kQuantum, {.spread = 2, .targets = 9}, 1, 0, 14405.969f},
        {"custom Photon", false, kPhoton, {}, 1, 0, 1.0f},
        {"custom Plasma burns 8.25%", false, kPlasma, {}, 1, 0, 1.0825f},
        {"Heavy Plasma F = 3.48", false, kPlasma, {.highYield = 1, .targets = 3}, 1, 0, 2.594f * 3.48f},
        {"custom Tricobalt T = 1", false, kTricobalt, {.highYield = 2}, 1, 0, 1.0f},
        {"custom Spread at nine", false, kQuantum, {.spread = 2, .targets = 9}, 1, 0, 2.198f * 6},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        Load(c, k.type, k.skills, k.relative);
        if (k.relative) {
            // Relative mode must not look at the custom damage.
            c.state.TorpedoDamage[1] = 99999.0f;
            c.state.MineDamage[1] = 99999.0f;
            EXPECT_EQ(CalculateBurst(c, k.torpedoes, k.mines, 0, 0, 0, 1), k.burst) << k.name;
        } else {
            c.state.TorpedoDamage[1] = 1000.0f;
            const float ratio = CalculateBurst(c, 1, 0, 0, 0, 0, 1) / (1000.0f * CriticalMultiplier(c, 1, false, 0, 0));
            EXPECT_NEAR(ratio, k.burst, 2e-6 * k.burst) << k.name;
        }
    }
}

TEST(Burst, OverloadUsesOneWeaponInOrder) {
    Calculator c;
    Load(c, kQuantum, {.overload = 1});
    const float bank = CalculateBurst(c, 0, 0, 1, 0, 0, 1);
    const float array = CalculateBurst(c, 0, 0, 0, 1, 0, 1);
    const float shuttle = CalculateBurst(c, 0, 0, 0, 0, 1, 1);
    EXPECT_EQ(array, 849.43f);
    EXPECT_GT(bank, 0.0f);
    EXPECT_NE(bank, array);
    EXPECT_EQ(CalculateBurst(c, 0, 0, 1, 1, 1, 1), bank) << "the dual beam bank overloads";
    EXPECT_EQ(CalculateBurst(c, 0, 0, 0, 2, 1, 1), array) << "then a beam array";
    EXPECT_EQ(CalculateBurst(c, 0, 0, 0, 0, 3, 1), shuttle) << "then a shuttle array";
    EXPECT_EQ(CalculateBurst(c, 1, 0, 0, 0, 0, 1), 1092.354f) << "no beam, no overload";
}

TEST(Burst, OverloadMeetsResistanceAndAccuracyTwice) {
    Calculator c;
    Load(c, kQuantum, {.overload = 2});
    const float plain = CalculateBurst(c, 0, 0, 0, 1, 0, 1);
    c.state.ResistanceFactor[1] = 0.5f;
    EXPECT_NEAR(CalculateBurst(c, 0, 0, 0, 1, 0, 1), plain * 0.25f, 0.002f);
    c.state.ResistanceFactor[1] = 1.0f;
    c.state.AccuracyFactor[1] = 0.5f;
    EXPECT_NEAR(CalculateBurst(c, 0, 0, 0, 1, 0, 1), plain * 0.25f, 0.002f);
}

TEST(Burst, ToolTip) {
    // clang-format off
    struct Case { const char* name; int type; Skills skills; int torpedoes, mines, arrays; const char* text; } cases[] = {
        {"nothing", kQuantum, {}, 0, 0, 0, ""},
        {"torpedo", kQuantum, {}, 2, 0, 0, "Quantum Torpedo: 1092.354"},
        {"salvo", kQuantum, {.highYield = 2}, 1, 0, 0, "Quantum Torpedo Salvo 2: 2823.736"},
        {"spread at one", kQuantum, {.spread = 1}, 1, 0, 0, "Quantum Torpedo Spread 1 (1 Target): 2067.827"},
        {"spread's reach", kQuantum, {.spread = 2, .targets = 9}, 1, 0, 0, "Quantum Torpedo Spread 2 (3 Targets): 14405.97"},
        {"plasma burn", kPlasma, {}, 1, 0, 0, "Plasma Torpedo: 771.117, Plasma Burn (33% Chance): 192.779 (63.617)"},
        {"heavy plasma", kPlasma, {.highYield = 1, .targets = 2}, 1, 0, 0, "Heavy Plasma Torpedo 1 (2 Targets): 4000.552, Plasma Burn (2 Targets): 640.088"},
        {"mine cluster", kQuantum, {}, 0, 1, 0, "Mine Cluster: 1365.443"},
        {"dispersal", kQuantum, {.mines = 2}, 0, 1, 0, "Mine Dispersal Pattern 2: 3277.063"},
        {"overload", kQuantum, {.overload = 1}, 0, 0, 1, "Beam Array Overload 1: 849.43"},
        {"all three", kQuantum, {.overload = 1}, 1, 1, 1, "Quantum Torpedo: 1092.354, Mine Cluster: 1365.443, Beam Array Overload 1: 849.43"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Calculator c;
        Load(c, k.type, k.skills);
        EXPECT_EQ(BurstToolTip(c, k.torpedoes, k.mines, 0, k.arrays, 0, 1), k.text) << k.name;
    }
}

} // namespace
} // namespace vantorel
