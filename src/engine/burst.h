#pragma once

// The average damage of one burst: the torpedoes or mines of a side and one
// Beam Overload, after skills, critical hits, resistance and accuracy.

#include "engine/counting.h"
#include "engine/dps.h"
#include "engine/records.h"

#include <string>
#include <string_view>

namespace vantorel {

// Rounded to three decimals.
float CalculateBurst(Calculator& c, const BurstCounts& n, Vessel v);
// The same with the vessel's factors worked out already.
float CalculateBurst(Calculator& c, const VesselFactors& f, const BurstCounts& n, Vessel v);
// The burst box's tooltip: one entry for each kind that fires.
std::string BurstToolTip(Calculator& c, const BurstCounts& n, Vessel v);
std::string BurstToolTip(Calculator& c, const VesselFactors& f, const BurstCounts& n, Vessel v);
// The two steps of it: what the tooltip shows, and its text written from
// that, appended to `out`, an empty text.
BurstToolTipInputs BurstToolTipInputsOf(Calculator& c, const VesselFactors& f, const BurstCounts& n, Vessel v);
void WriteBurstToolTip(std::string& out, const BurstToolTipInputs& in);

} // namespace vantorel
