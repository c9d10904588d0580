#pragma once

// The weapon port lists of the main window: their rows for a ship and its
// damage types, and which ports a ship opens.

#include "engine/records.h"

#include <string>

namespace vantorel {

// Rebuilds the rows of the vessel's eight ports for list 1, 2 or 3 (see
// Ports); a weapon in a port is kept, spelt with the present damage types.
void WeaponAdd(Calculator& c, int list, Vessel v);
// Opens the first `forward` and `rear` ports, closes and clears the rest.
void WeaponUnlock(Calculator& c, int forward, int rear, Vessel v);
// The port hints: "Forward Weapon Port 1" .. / "Rear Weapon Port 1" ..
std::string ForwardHint(int i);
std::string RearHint(int i);

} // namespace vantorel
