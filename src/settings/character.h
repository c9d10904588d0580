#pragma once

// The character section: the captain's faction, rank and career. Faction and
// rank limit the ships of the main window and, through the rank value, what
// the other sections offer. Omega's lists carry a first row that follows
// Alpha, so Omega's row n + 1 is Alpha's row n.

#include "engine/records.h"

namespace vantorel {

// Rebuilds the rank list of the vessel's window for its faction, keeping the
// rank row, and selects it again (which runs the rank handler).
void SetRanks(Calculator& c, Vessel v);
// Rewrite row 0 of Omega's faction and rank lists, which name what Alpha
// holds.
void FactionUpdate(Calculator& c);
void RankUpdate(Calculator& c);

// `CharacterSettings` of Alpha: unchecked customises the captain, checked
// makes the vessel unrestricted again.
void CharacterSettingsChanged(Calculator& c);
void FactionChanged(Calculator& c, Vessel v);
void RankChanged(Calculator& c, Vessel v);

} // namespace vantorel
