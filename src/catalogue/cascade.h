#pragma once

// The ship selection cascade: a change of captain, class, tier or subclass
// rebuilds the lists below it, down to the ports, the power list, the
// pictures and the results.

#include "engine/records.h"

namespace vantorel {

// The class list of vessel v, for its captain.
void ShipClassControl(Calculator& c, Vessel v);
// The tier lists, then the subclass lists, of the vessels on show.
void ShipTierControl(Calculator& c);
void ShipSubclassControl(Calculator& c);
// Ports, power lists, pictures and console slots of the vessels on show, then
// the results.
void ShipControl(Calculator& c);
// Equips the vessel's console slots up to its ship's limit (keep 0), or only
// shows the limit (keep -1); then the damage modifiers.
void MatchConsoleLimit(Calculator& c, Vessel v, int keep);

} // namespace vantorel
