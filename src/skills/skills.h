#pragma once

// The handlers of the activated skills windows, `AlphaSkills` and
// `OmegaSkills`, and the operations that the settings windows run on them.

#include "engine/records.h"

namespace vantorel {

// Rebuilds AttackPatternLevel and TacticalTeamLevel from the vessel's attack
// pattern skill and Relative DPS, and opens or closes their check boxes.
void AttackPatternUpdate(Calculator& c, Vessel v);
// Rebuilds AttackPatternAlphaLevel for the vessel's rank.
void AttackPatternAlphaUpdate(Calculator& c, Vessel v);
// Rebuilds TorpedoSkillLevel (and MineSkillLevel for Tricobalt) for the
// vessel's torpedo type.
void TorpedoUpdate(Calculator& c, Vessel v);
// `Skills[v]` on the main window: shows the vessel's skills window below the
// main window, or hides it.
void SkillsClicked(Calculator& c, Vessel v);

} // namespace vantorel
