#pragma once

// The vessel's equipment as factors on the tested damage: marks, mods,
// skills, tactical consoles, accolades and the skills that raise base damage,
// with the damage figures that the game's own tooltips would show.

#include "engine/records.h"

namespace vantorel {

// Recomputes BeamModifier, CannonModifier, TorpedoDamage and MineDamage and
// the displayed damage boxes of the vessel's settings window, then the
// results. Does nothing in Relative DPS mode, or for Omega off show.
void ModifiedDPS(Calculator& c, Vessel v);

// The weapon kinds of the skill and console bonuses.
enum class BonusKind { Beams = 1, Cannons = 2, Torpedoes = 3, Mines = 4 };
float WeaponSkillBonus(const Calculator& c, BonusKind kind, Vessel v);
float ConsoleBonus(const Calculator& c, BonusKind kind, Vessel v);
// One torpedo's damage before any bonus, by the vessel's projectile type.
float BaseProjectileDamage(const Calculator& c, Vessel v);

} // namespace vantorel
