#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
void CalculateFiringArcs(Calculator&) {}
void DifferenceColor(Calculator&, int, float, float) {}

} // namespace vantorel
