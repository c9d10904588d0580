#pragma once

// The weapon section: Relative DPS, or the real damage of the vessel's
// weapons with their mark, mods, skills, damage types, accolades and
// tactical consoles. Relative DPS is one setting for both vessels.

#include "engine/records.h"

#include <string>
#include <vector>

namespace vantorel {

// The rows of the damage type lists, 1 energy and 2 projectile, in full.
const std::vector<std::string>& DamageTypeRows(int k);
// The rows of the weapon mark list at rank value r: the top mark the rank
// allows, "Standard Issue", then the marks. r 100 gives the full list.
std::vector<std::string> WeaponMarkRows(int r);

// Applies rank value r to the section: the damage types, the marks and the
// skill boxes that the rank opens.
void WeaponControl(Calculator& c, Vessel v, int r);
// The captions over the displayed damage boxes, with the vessel's damage
// types outside Relative DPS.
void DisplayedDPSUpdate(Calculator& c, Vessel v);

void RelativeDPSChanged(Calculator& c, Vessel v);
void WeaponMarkChanged(Calculator& c, Vessel v);
void WeaponModChanged(Calculator& c, Vessel v, int i);
// Every number box runs its handler as its text changes, Omega's weapon
// skills too: a free Omega's box is then validated and recalculated as soon
// as the player changes it, and a copy written by Alpha finds its text
// already valid.
void WeaponSkillChanged(Calculator& c, Vessel v, int i);
void WeaponAccoladeChanged(Calculator& c, Vessel v, int i);

} // namespace vantorel
