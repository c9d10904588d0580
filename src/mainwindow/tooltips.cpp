#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
std::string CalculateToolTip(Calculator&, int, int, int, int, int, int, int, int, int, Vessel) { return {}; }

} // namespace vantorel
