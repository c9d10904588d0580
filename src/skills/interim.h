#pragma once

// Until the skills windows are built, their fields' handlers run the
// recalculation chain that the window's event will run.

#include "engine/records.h"

namespace vantorel {

void WireInterimSkillsHandlers(Calculator& c);

} // namespace vantorel
