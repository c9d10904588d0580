#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
void ShipClassControl(Calculator&, Vessel) {}
void ShipTierControl(Calculator&) {}
void ShipSubclassControl(Calculator&) {}
void ShipControl(Calculator&) {}
void MatchConsoleLimit(Calculator&, Vessel, int) {}

} // namespace vantorel
