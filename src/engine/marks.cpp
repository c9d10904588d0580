#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
int GetMark(const Calculator&, Vessel) { return 0; }
float GetRankMark(const Calculator&, Vessel) { return 0.0f; }
float ShuttleArrayModifier(const Calculator&, Vessel, int) { return 1.0f; }
float PartialCriticalBonus(const Calculator&, Vessel, bool, float, float, float, int) { return 1.0f; }

} // namespace vantorel
