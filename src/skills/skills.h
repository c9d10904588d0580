#pragma once

// The operations of the activated skills windows, `AlphaSkills` and
// `OmegaSkills`, that other windows run on them: the settings windows rebuild
// the level lists that depend on the captain's rank, combat settings and
// torpedo type, and the main window shows and hides the skills windows.

#include "engine/records.h"

namespace vantorel {

// Rebuilds AttackPatternLevel and TacticalTeamLevel from the vessel's attack
// pattern skill and Relative DPS, and opens or closes their check boxes.
void AttackPatternUpdate(Calculator& c, Vessel v);
// Rebuilds AttackPatternAlphaLevel for the vessel's rank; a mirrored Omega
// then matches Alpha's version as closely as its rank allows.
void AttackPatternAlphaUpdate(Calculator& c, Vessel v);
// Rebuilds TorpedoSkillLevel (and MineSkillLevel for Tricobalt) for the
// vessel's torpedo type.
void TorpedoUpdate(Calculator& c, Vessel v);
// Omega's AttackPatternAlphaLevel follows Alpha's selection as closely as
// Omega's rank allows.
void AttackPatternAlphaMatch(Calculator& c);

// `Skills[v]` on the main window: shows the vessel's skills window below the
// main window, or hides it.
void SkillsClicked(Calculator& c, Vessel v);

} // namespace vantorel
