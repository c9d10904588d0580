#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
int GetPowerLevel(const Calculator&, Vessel, bool) { return 100; }
float PowerBonusAt(const Calculator&, Vessel, int) { return 0.0f; }
void CalculatePower(Calculator&, Vessel, bool) {}
void UpdateSameAsAlphaPower(Calculator&) {}
void ModifiedPower(Calculator&, Vessel) {}

} // namespace vantorel
