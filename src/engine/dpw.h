#pragma once

// The measured damage per weapon: one lone weapon at power 100 by kind, and
// for two to eight weapons firing together a quartic in weapon power.

#include "engine/records.h"

namespace vantorel {

void FillDPWTables(CalculatorState& s);

// The numeric type of the result depends on the path: integer 0 for count 0,
// a single for count 1, a double for counts 2..8. `DPW` keeps that type.
struct DPW {
    enum class Type { Zero, Single, Double } type = Type::Zero;
    float single = 0.0f;
    double dbl = 0.0;
};
// Kind 1..6: Dual Heavy Cannons, Dual Cannons, Dual Beam Bank, Cannon, Beam
// Array, Turret.
DPW DPWCalc(const CalculatorState& s, int power, int kind, int count);

} // namespace vantorel
