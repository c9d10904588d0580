#pragma once

// Weapon power: the setting chosen on the main window, the bonus that ship,
// skills, traits and equipment add to it, and the power lists that show
// both.

#include "engine/records.h"

namespace vantorel {

// Whether a power level includes the vessel's bonus.
enum class Bonus { Without, With };
// The vessel's power level, 35 to 125. Omega reads nothing while it is off
// show.
int GetPowerLevel(const Calculator& c, Vessel v, Bonus bonus);
// The bonus that the vessel's ship and power settings add at a setting.
float PowerBonusAt(const Calculator& c, Vessel v, int setting);

// A power list rebuilds only for a vessel that extrapolates and whose ship
// bonus changed, unless asked to rebuild always.
enum class Rebuild { IfChanged, Always };
void CalculatePower(Calculator& c, Vessel v, Rebuild when);
// Row 0 of Omega's power list, which names Alpha's setting.
void UpdateSameAsAlphaPower(Calculator& c);
// The power bonus box of the vessel's settings window, with its parts.
void ModifiedPower(Calculator& c, Vessel v);

} // namespace vantorel
