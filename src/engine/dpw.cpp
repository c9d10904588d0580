#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
void FillDPWTables(CalculatorState&) {}
DPW DPWCalc(const CalculatorState&, int, int, int) { return {}; }

} // namespace vantorel
