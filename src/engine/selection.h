#pragma once

// What the selections mean: the only way in which the rest of the program
// reads the captain and ship of a vessel, and the settings that one vessel
// takes from the other. Omega's lists carry a "Same As Alpha" row in front,
// which these queries resolve.

#include "engine/records.h"

#include <string>
#include <string_view>

namespace vantorel {

inline constexpr std::string_view kSameAsAlphaRow = "Same As Alpha";

// The Klingon shuttle's class is "Shuttlecraft " with a trailing blank: that
// blank is the only thing that tells it from the Federation one, so no
// comparison may trim it.
inline bool IsShuttleClass(std::string_view shipClass) {
    return shipClass == "Shuttlecraft" || shipClass == "Shuttlecraft ";
}

// Relative DPS has one value for both vessels; Alpha's field is the one read.
inline bool RelativeMode(const Calculator& c) { return c.Alpha().RelativeDPS.value() != 0; }
// Omega follows Alpha's settings while its window mirrors Alpha's.
inline bool OmegaMirrorsAlpha(const Calculator& c) { return c.Omega().SameAsAlpha.value() == 1; }
// Omega's skills window follows Alpha's while its own box says so.
inline bool OmegaSkillsMirrorAlpha(const Calculator& c) { return c.skills[2].SameAsAlpha.value() == 1; }
// The settings a vessel's combat figures come from: a mirrored Omega reads Alpha's.
inline const VesselSettings& CombatSource(const Calculator& c, Vessel v) {
    return v == 1 || OmegaMirrorsAlpha(c) ? c.Alpha() : c.Omega();
}
inline VesselSettings& CombatSource(Calculator& c, Vessel v) {
    return v == 1 || OmegaMirrorsAlpha(c) ? c.Alpha() : c.Omega();
}
// Alpha always; Omega only while it is on show.
inline bool VesselShown(const Calculator& c, Vessel v) { return v == 1 || c.state.Comparing != 0; }

// 1 while the vessel's captain is unrestricted.
int IsUnrestricted(const Calculator& c, Vessel v);
// 0 unrestricted, 1 Federation, 2 Klingon.
int GetFaction(const Calculator& c, Vessel v);
// The rank value: 1 to 7 for a captain's rank (Ensign and Lieutenant share
// 1), 100 for an unrestricted vessel.
int GetRank(const Calculator& c, Vessel v);
// The vessel's ship class, without the blanks that indent it in its list.
std::string GetClass(const Calculator& c, Vessel v);
int GetTier(const Calculator& c, Vessel v);
int GetSubclass(const Calculator& c, Vessel v);

// The damage types of weapons.
enum class DamageGroup { Energy = 1, Projectile = 2 };
// The type word that port texts begin with, blank included ("Phaser ",
// "Quantum "), or "" where there is none: energy weapons have no type in
// Relative DPS mode. A view of a constant text: every count of the weapons
// reads it, so it is never copied.
std::string_view GetDamageType(const Calculator& c, Vessel v, DamageGroup group);

} // namespace vantorel
