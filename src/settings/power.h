#pragma once

// The power section: the captain's power skills, traits and equipment, which
// turn the main window's power list from the five tested levels into finer
// settings with the actual power each gives. Because those are estimates,
// opening the section raises a warning, once unless the player asks again.

#include "engine/records.h"

namespace vantorel {

// Applies rank value r to the section's skill boxes, then rebuilds the
// vessel's power list.
void PowerControl(Calculator& c, Vessel v, int r);

void ExtrapolatePowerChanged(Calculator& c, Vessel v);
void PowerSkillChanged(Calculator& c, Vessel v, int i);
void PowerCaptainChanged(Calculator& c, Vessel v);
void WarpCoreChanged(Calculator& c, Vessel v);

// Shows the warning window over the vessel's settings window and holds the
// main and settings windows until it is closed.
void RaisePowerWarning(Calculator& c, Vessel v);

} // namespace vantorel
