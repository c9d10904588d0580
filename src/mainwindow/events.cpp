#include "mainwindow/events.h"

#include "catalogue/cascade.h"
#include "catalogue/ports.h"
#include "engine/arcs.h"
#include "engine/modifiers.h"
#include "engine/power.h"
#include "engine/selection.h"
#include "graph/graph.h"

#include <string>

namespace vantorel {

namespace {

List& Port(Calculator& c, Vessel v, Side side, int i) {
    MainSelection& m = c.main;
    const bool forward = side == Side::Forward;
    if (v == 1) return forward ? m.Forward[i] : m.Rear[i];
    return forward ? m.CForward[i] : m.CRear[i];
}

} // namespace

void PortClicked(Calculator& c, Vessel v, Side side, int i) {
    if (!Port(c, v, side, i).enabled()) return;
    if (v == 2 && c.state.Comparing == 0) return;
    CalculateFiringArcs(c);
}

void ShipClassClicked(Calculator& c, Vessel v) {
    if (!VesselShown(c, v) || !c.main.ShipClass[v].enabled()) return;
    ShipTierControl(c);
    ShipSubclassControl(c);
    ShipControl(c);
}

void ShipTierClicked(Calculator& c, Vessel v) {
    if (!VesselShown(c, v) || !c.main.ShipTier[v].enabled()) return;
    ShipSubclassControl(c);
    ShipControl(c);
}

void ShipSubclassClicked(Calculator& c, Vessel v) {
    if (!VesselShown(c, v) || !c.main.ShipSubclass[v].enabled()) return;
    ShipControl(c);
}

void PowerLevelClicked(Calculator& c, Vessel v) {
    if (!VesselShown(c, v)) return;
    if (c.main.PowerLevel[v].enabled()) CalculateFiringArcs(c);
    if (v == 1) UpdateSameAsAlphaPower(c);
    if (c.settings[v].ExtrapolatePower.value() == 1) {
        ModifiedPower(c, v);
        if (!RelativeMode(c)) ModifiedDPS(c, v);
    }
    ModifiedDPS(c, v);
}

void TargetDistanceClicked(Calculator& c, Vessel v) {
    if (!VesselShown(c, v)) return;
    if (c.main.TargetDistance[v].enabled()) CalculateFiringArcs(c);
}

void ShuttleRankClicked(Calculator& c, Vessel v) {
    if (c.main.ShuttleRank[v].enabled()) CalculateFiringArcs(c);
}

void ShuttleModClicked(Calculator& c, Vessel v) {
    if (c.main.ShuttleMod[v].enabled()) CalculateFiringArcs(c);
}

void SimplifiedClicked(Calculator& c) {
    MainSelection& m = c.main;
    const bool simple = m.Simplified.value() == 1;
    const char* const captions[3] = {simple ? "Forward" : "Forward 110", simple ? "Side" : "Broadside",
                                     simple ? "Rear" : "Rear 110"};
    const int boxes[3] = {2, 7, 9};
    for (int k = 0; k < 3; ++k) {
        m.FiringArcLabel[boxes[k]].setCaption(captions[k]);
        m.CFiringArcLabel[boxes[k]].setCaption(captions[k]);
        // Simplified mode greys empty boxes; the full diagram never does.
        if (!simple) m.FiringArcDPS[boxes[k]].setBack(White);
    }
    SimplifiedGraphAxes(c);
    CalculateFiringArcs(c);
}

void ResetClicked(Calculator& c, Vessel v) {
    for (int i = 1; i <= 4; ++i) {
        Port(c, v, Side::Forward, i).setText(ForwardHint(i));
        Port(c, v, Side::Rear, i).setText(RearHint(i));
    }
    CalculateFiringArcs(c);
}

} // namespace vantorel
