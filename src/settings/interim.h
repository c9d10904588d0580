#pragma once

// Until the settings windows are built, their fields' handlers run the
// recalculation chain that the window's event will run.

#include "engine/records.h"

namespace vantorel {

void WireInterimSettingsHandlers(Calculator& c);

} // namespace vantorel
