#pragma once

// The handlers of the advanced settings windows, `Alpha` and `Omega`.

#include "engine/records.h"

namespace vantorel {

// A damage type list `WeaponType[k]` (1 energy, 2 projectile) changed. It
// runs whatever the list's enabled state: it rewrites the type's console
// rows, tooltips and captions, and mirrors Alpha's choice into Omega.
void WeaponTypeChanged(Calculator& c, Vessel v, int k);
// Leaving or entering Relative DPS: the equipment factors back to 1, the
// displayed damage boxes emptied, every console slot equipped, then the ship
// lists rebuilt.
void ResetModifier(Calculator& c);

// Size and place window `Alpha` or `Omega` beside the main window, against
// the work area; run before it shows and again when the main window changes.
void PositionAlpha(Calculator& c);
void PositionOmega(Calculator& c);
// `Advanced[v]` on the main window: shows the vessel's settings window, or
// hides it.
void AdvancedClicked(Calculator& c, Vessel v);

} // namespace vantorel
