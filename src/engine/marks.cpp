#include "engine/marks.h"

#include "engine/selection.h"

#include <algorithm>

namespace vantorel {

namespace {

// Damage of a shuttle beam array relative to a ship's beam array, by rank
// level 1..8; level 8 is the step beyond Vice Admiral that the rare array
// reaches.
constexpr float kShuttleRankFactor[9] = {0.0f,     0.62918f, 0.66025f, 0.68402f, 0.7034f,
                                         0.70715f, 0.70885f, 0.71044f, 0.73141f};

// The scale of one weapon mark in the damage of a beam array.
constexpr float kMarkScale = 0.8889786f;

// The rare shuttle array adds 2% critical chance, shared by the arrays.
PartialCritical RareArrayBonus(int count) {
    PartialCritical b;
    b.chance = 0.02f;
    b.weapons = count;
    return b;
}

} // namespace

int GetMark(const Calculator& c, Vessel v) {
    if (RelativeMode(c)) {
        switch (GetRank(c, v)) {
        case 1:
            return 2;
        case 2:
            return 4;
        case 3:
            return 6;
        case 4:
            return 8;
        case 5:
            return 10;
        default:
            return 12;
        }
    }
    const List& mark = c.settings[v].WeaponMark;
    // Row 0 is "Max": the highest mark the list offers.
    if (mark.index() == 0) return mark.count() - 2;
    return mark.index() - 1;
}

float GetRankMark(const Calculator& c, Vessel v) {
    const int rank = GetRank(c, v);
    int base;
    switch (rank) {
    case 1:
        base = 0;
        break;
    case 2:
        base = 2;
        break;
    case 3:
        base = 4;
        break;
    case 4:
        base = 6;
        break;
    case 5:
        base = 8;
        break;
    case 6:
        base = 9;
        break;
    default:
        base = 10;
        break;
    }
    double mark = base;
    if (rank < 7) mark = mark + c.main.ShuttleRank[v].index() / 5.0;
    return static_cast<float>(mark - 0.1);
}

float ShuttleArrayModifier(const Calculator& c, Vessel v, int count) {
    return ShuttleArrayModifier(c, CriticalRatesOf(c, v), v, count);
}

float ShuttleArrayModifier(const Calculator& c, const CriticalRates& rates, Vessel v, int count) {
    const bool rare = c.main.ShuttleMod[v].value() == 1;
    if (!RelativeMode(c)) {
        // The beam modifier already holds the vessel's mark; a shuttle array
        // has the mark of the captain's rank instead.
        double m = c.state.BeamModifier[v];
        m = m - (GetMark(c, v) * 8 / 50.0) * kMarkScale;
        m = m + (GetRankMark(c, v) * 8.0f / 50.0f) * kMarkScale;
        if (rare) {
            m = m + (7.2 / 50 * 0.8889786005020142) / count;
            m = m * PartialCriticalBonus(rates, RareArrayBonus(count));
        }
        return static_cast<float>(m * 0.76);
    }

    int rank = GetRank(c, v);
    if (rank == 100) rank = 7;
    int step = std::max(c.main.ShuttleRank[v].index(), 0);
    if (rare) step += 5;
    if (step >= 10) {
        step -= 10;
        rank += 1;
    }
    rank = std::clamp(rank, 1, 8);
    const float low = kShuttleRankFactor[rank];
    const float high = rank + 1 <= 8 ? kShuttleRankFactor[rank + 1] : low;
    float increment = (high - low) / 10.0f;
    // From Rear Admiral on, a rank has five grades instead of ten.
    if (rank >= 5) increment = increment * 2.0f;
    float modifier = low + increment * static_cast<float>(step);
    if (rare) modifier = modifier * PartialCriticalBonus(rates, RareArrayBonus(count));
    return modifier;
}

float PartialCriticalBonus(const Calculator& c, Vessel v, const PartialCritical& bonus) {
    return PartialCriticalBonus(CriticalRatesOf(c, v), bonus);
}

float PartialCriticalBonus(const CriticalRates& rates, const PartialCritical& bonus) {
    const float with = CriticalMultiplier(rates, bonus.boost, bonus.chance, bonus.severity);
    const float without = CriticalMultiplier(rates, bonus.boost, 0.0f, 0.0f);
    return ((with / without - 1.0f) * bonus.share / static_cast<float>(bonus.weapons)) + 1.0f;
}

} // namespace vantorel
