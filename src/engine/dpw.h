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

// The curves of two to eight weapons read at every whole power 35..125 when
// the program starts, from the same constant table the start-up fills the
// state with: [power - 35][kind - 1][count - 2]. A constant: nothing
// calculates before main() runs, so nothing reads it before it is filled.
struct CurveValues {
    double at[91][6][7];
};
extern const CurveValues kCurveValues;
// A curve read at any power from the state's coefficients, rounded to three
// decimals.
double ReadCurve(const CalculatorState& s, int power, int kind, int count);

// Kind 1..6: Dual Heavy Cannons, Dual Cannons, Dual Beam Bank, Cannon, Beam
// Array, Turret. Every term of every DPS and tooltip reads it, so it is
// inline.
inline DPW DPWCalc(const CalculatorState& s, int power, int kind, int count) {
    DPW out;
    if (count == 0) return out;
    if (count == 1) {
        // A lone weapon drains nobody else's power: linear in power, one
        // rounding to single at the end.
        const double p = static_cast<double>(static_cast<float>(power));
        out.type = DPW::Type::Single;
        out.single = static_cast<float>(p * static_cast<double>(s.SingleWeaponDPW[kind]) / 100.0);
        return out;
    }
    out.type = DPW::Type::Double;
    out.dbl = power >= 35 && power <= 125 ? kCurveValues.at[power - 35][kind - 1][count - 2]
                                          : ReadCurve(s, power, kind, count);
    return out;
}

} // namespace vantorel
