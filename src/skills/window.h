#pragma once

// An activated skills window, `AlphaSkills` or `OmegaSkills`, as a record:
// its start values and the names of its fields.

#include "engine/records.h"
#include "engine/registry.h"

namespace vantorel {

// Writes the captions, rows, tooltips, places and colours of window
// `AlphaSkills` (v = 1) or `OmegaSkills`.
void SetUpSkillsWindow(VesselSkills& k, Vessel v);
// The window's start selections, made once its fields have their events:
// they fill the level lists that depend on another choice. Alpha's first,
// whose choices a mirroring Omega copies.
void StartSkillsWindow(Calculator& c, Vessel v);
// Names the window's fields under `window`: "AlphaSkills" or "OmegaSkills".
void RegisterFields(FieldTable& table, VesselSkills& k, const char* window);

} // namespace vantorel
