#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
float CalculateBurst(Calculator&, int, int, int, int, int, Vessel) { return 0.0f; }
std::string BurstToolTip(Calculator&, int, int, int, int, int, Vessel) { return {}; }
float GetTorpedoSkill(const Calculator&, Vessel) { return 1.0f; }

} // namespace vantorel
