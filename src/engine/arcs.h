#pragma once

// The firing arcs: which arcs are in use, the DPS of the six weapon sets and
// the two bursts of each vessel on show, and the colours that compare them.
// Every input of the program ends in CalculateFiringArcs.

#include "engine/dps.h"
#include "engine/records.h"

#include <array>

namespace vantorel {

// The full recalculation. Counts the weapons, decides the arcs in use (for
// both vessels at once), works out the bursts, lets the main window show the
// arcs' boxes (ResultsView::showArcs), works out the six rows of each vessel
// on show, and lets the windows show the results (ResultsView::showResults).
void CalculateFiringArcs(Calculator& c);

// What a recalculation hands to the results view: the factors of each vessel
// on show, which its bursts were worked out with, and the tooltips' inputs of
// its six rows, worked out with their DPS.
struct ArcRows {
    PerVessel<VesselFactors> factors;
    PerVessel<std::array<ArcToolTipInputs, 6>> tooltips;
};

// The six arc values of one vessel, rows 0 to 5 of ArcDPS: one line of the
// graph.
struct ArcValues {
    std::array<float, 6> arc{};
    float operator[](int i) const { return arc[static_cast<std::size_t>(i)]; }
    float& operator[](int i) { return arc[static_cast<std::size_t>(i)]; }
};
ArcValues ArcsOf(const CalculatorState& s, Vessel v);

// Colours box `index` of both vessels by how their values compare.
void DifferenceColor(Calculator& c, int index, float alphaDPS, float omegaDPS);
// Boxes 0 to 11 of both vessels back to white.
void ClearDifferenceColours(Calculator& c);

} // namespace vantorel
