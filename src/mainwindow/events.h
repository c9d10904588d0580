#pragma once

// The events of the main window's controls: what a click on a list, a check
// box or a button runs, in order. Omega's controls act only while Omega is on
// show, and a disabled list's click does nothing.

#include "engine/records.h"

namespace vantorel {

enum class Side { Forward, Rear };

void PortClicked(Calculator& c, Vessel v, Side side, int i);
void ShipClassClicked(Calculator& c, Vessel v);
void ShipTierClicked(Calculator& c, Vessel v);
void ShipSubclassClicked(Calculator& c, Vessel v);
void PowerLevelClicked(Calculator& c, Vessel v);
void TargetDistanceClicked(Calculator& c, Vessel v);
void ShuttleRankClicked(Calculator& c, Vessel v);
void ShuttleModClicked(Calculator& c, Vessel v);
void SimplifiedClicked(Calculator& c);
void ResetClicked(Calculator& c, Vessel v);

} // namespace vantorel
