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
// The text written from what the tooltip shows (ToolTipInputsOf), appended
// to `out`, an empty text.
void WriteToolTip(std::string& out, const ArcToolTipInputs& in);

} // namespace vantorel
