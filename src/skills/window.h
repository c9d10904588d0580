#pragma once

// An activated skills window, `AlphaSkills` or `OmegaSkills`, as a record:
// its start values and the names of its fields.

#include "engine/records.h"
#include "engine/registry.h"

namespace vantorel {

// Writes the start values of window `AlphaSkills` (v = 1) or `OmegaSkills`.
void SetUpSkillsWindow(VesselSkills& k, Vessel v);
// Names the window's fields under `window`: "AlphaSkills" or "OmegaSkills".
void RegisterFields(FieldTable& table, VesselSkills& k, const char* window);

} // namespace vantorel
