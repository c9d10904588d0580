#pragma once

// The weapons in the ports, counted by slot, and the sets of them that fire
// together in each firing arc and burst.

#include "engine/records.h"

namespace vantorel {

// The slots of `WeaponCount`, in the program's own numbering.
enum class Slot {
    DualHeavyCannons = 1,
    DualCannons = 2,
    DualBeamBanks = 3,
    Cannons = 4,
    ForwardBeamArrays = 5,
    Turrets = 6,
    RearBeamArrays = 7,
    ForwardTorpedoes = 8,
    RearTorpedoes = 9,
    Mines = 10,
    ShuttleBeamArrays = 11,
};

// The energy weapons of a set that fire together, by kind, in the order the
// DPS sums them.
struct WeaponCounts {
    int dualHeavyCannons = 0;
    int dualCannons = 0;
    int dualBeamBanks = 0;
    int cannons = 0;
    int beamArrays = 0;
    int turrets = 0;
    int shuttleBeamArrays = 0;

    int total() const {
        return dualHeavyCannons + dualCannons + dualBeamBanks + cannons + beamArrays + turrets + shuttleBeamArrays;
    }
    bool operator==(const WeaponCounts&) const = default;
};

// The weapons of a burst: launchers, and the beams one of which overloads.
struct BurstCounts {
    int torpedoes = 0;
    int mines = 0;
    int dualBeamBanks = 0;
    int beamArrays = 0;
    int shuttleBeamArrays = 0;
    bool operator==(const BurstCounts&) const = default;
};

// Ports to WeaponCount, both vessels. A port counts only while its text is
// one of its vessel's weapon rows, damage type included.
void CountWeapons(Calculator& c);

// The six sets of the firing arcs, rows 0 to 5: Forward 45, Forward 90,
// Forward 110, the pocket or broadside, Rear Pocket, Rear 110. Turrets and
// shuttle arrays fire in every arc.
WeaponCounts RowCounts(const CalculatorState& s, Vessel v, int row);
// The first of rows 0 to `row` whose set equals that of `row`: `row` itself
// where no earlier row has the same weapons.
inline int SameSetBefore(const WeaponCounts (&rows)[6], int row) {
    int same = 0;
    while (same < row && !(rows[same] == rows[row]))
        ++same;
    return same;
}
// The burst sets: the forward torpedoes with the forward beams, the rear
// torpedoes and mines with the rear beams.
BurstCounts FrontBurstCounts(const CalculatorState& s, Vessel v);
BurstCounts RearBurstCounts(const CalculatorState& s, Vessel v);

} // namespace vantorel
