#pragma once

// Weapon marks, and the damage of shuttle beam arrays by the captain's rank.

#include "engine/dps.h"
#include "engine/records.h"

namespace vantorel {

// The mark of the vessel's weapons: by rank in Relative DPS mode, else the
// selected mark ("Max" being the highest the list offers).
int GetMark(const Calculator& c, Vessel v);
// The mark that the captain's rank and grade give a shuttle beam array.
float GetRankMark(const Calculator& c, Vessel v);
// The factor that turns the Beam Array's DPW into that of `count` shuttle
// arrays of the vessel, the second with the vessel's critical rates read
// already.
float ShuttleArrayModifier(const Calculator& c, Vessel v, int count);
float ShuttleArrayModifier(const Calculator& c, const CriticalRates& rates, Vessel v, int count);

// What a critical bonus on a share of `weapons` weapons adds to the damage
// of all of them.
struct PartialCritical {
    Severity boost = Severity::Plain;
    float chance = 0.0f;
    float severity = 0.0f;
    float share = 1.0f;
    int weapons = 1;
};
float PartialCriticalBonus(const Calculator& c, Vessel v, const PartialCritical& bonus);
float PartialCriticalBonus(const CriticalRates& rates, const PartialCritical& bonus);

} // namespace vantorel
