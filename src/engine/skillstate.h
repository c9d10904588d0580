#pragma once

// The activated skills of a vessel's skills window, digested into the
// engine's skill levels.

#include "engine/records.h"

namespace vantorel {

// Reads the vessel's skills (Alpha's window for a mirrored Omega) into the
// skill levels of CalculatorState, then recalculates the results.
void SkillUpdate(Calculator& c, Vessel v);

} // namespace vantorel
