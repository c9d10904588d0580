#pragma once

// The tooltip of a DPS box: one entry for each kind of weapon in the set,
// with its count, its skill and its part of the DPS.

#include "engine/dps.h"
#include "engine/records.h"

#include <string>

namespace vantorel {

std::string CalculateToolTip(Calculator& c, const FiringSet& set, Vessel v);
// The same with the vessel's factors worked out already.
std::string CalculateToolTip(Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v);
// The two steps of it: what the tooltip shows, and its text written from
// that, appended to `out`, an empty text.
ArcToolTipInputs ToolTipInputsOf(const Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v);
void WriteToolTip(std::string& out, const ArcToolTipInputs& in);

} // namespace vantorel
