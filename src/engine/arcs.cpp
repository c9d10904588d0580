#include "engine/arcs.h"

#include "engine/burst.h"
#include "engine/counting.h"
#include "engine/dps.h"

namespace vantorel {

namespace {

constexpr Colour Yellow = 0x80FFFF;
constexpr Colour LightGreen = 0xC0FFC0, LightRed = 0xC0C0FF;
constexpr Colour MediumGreen = 0x80FF80, MediumRed = 0x8080FF;
constexpr Colour Green = 0x00FF00, Red = 0x0000FF;

int Both(const CalculatorState& s, Slot slot) { return s.WeaponCount[slot][1] + s.WeaponCount[slot][2]; }

// Which boxes the weapons of both vessels put to use; an arc in use on
// either vessel shows on both sides.
void DecideArcsShown(Calculator& c) {
    CalculatorState& s = c.state;
    MainSelection& m = c.main;
    const int dhc = Both(s, Slot::DualHeavyCannons), dc = Both(s, Slot::DualCannons);
    const int dbb = Both(s, Slot::DualBeamBanks), cannons = Both(s, Slot::Cannons);
    const int fba = Both(s, Slot::ForwardBeamArrays), rba = Both(s, Slot::RearBeamArrays);
    const int any = Both(s, Slot::Turrets) + Both(s, Slot::ShuttleBeamArrays);

    bool* shown = &s.ArcShown[0];
    for (int i = 0; i <= 13; ++i)
        shown[i] = false;
    if (m.Simplified.value() == 1) {
        shown[2] = shown[7] = shown[9] = true;
        return;
    }
    if (dhc > 0 || dc > 0) shown[0] = true;
    if (dbb > 0) shown[1] = true;
    if (cannons > 0) {
        if (fba > 0 && rba > 0) {
            shown[2] = shown[6] = shown[8] = shown[9] = true;
        } else if (fba > 0) {
            shown[3] = shown[8] = true;
            if (any > 0) shown[9] = true;
        } else if (rba > 0) {
            shown[2] = shown[6] = shown[10] = true;
        } else {
            shown[3] = true;
            if (any > 0) shown[10] = true;
        }
        return;
    }
    if (fba > 0 && rba > 0) {
        shown[2] = shown[7] = shown[9] = true;
    } else if (fba > 0) {
        shown[4] = true;
        if (any > 0) shown[9] = true;
    } else if (rba > 0) {
        shown[11] = true;
        if (any > 0) shown[2] = true;
    } else if (any > 0) {
        shown[5] = true;
        // The all-round box leaves out what the forward boxes show.
        if (dbb > 0)
            m.FiringArcLabel[5].setCaption("Other 270");
        else if (dhc > 0 || dc > 0)
            m.FiringArcLabel[5].setCaption("Other 315");
        else
            m.FiringArcLabel[5].setCaption("Full 360");
    }
}

void WorkOutBursts(Calculator& c, const VesselFactors& f, Vessel v) {
    CalculatorState& s = c.state;
    s.ArcDPS[6][v] = CalculateBurst(c, f, FrontBurstCounts(s, v), v);
    s.ArcDPS[7][v] = CalculateBurst(c, f, RearBurstCounts(s, v), v);
    if (s.ArcDPS[6][v] > 0) s.ArcShown[12] = true;
    if (s.ArcDPS[7][v] > 0) s.ArcShown[13] = true;
}

// The DPS of the six rows, and what their tooltips show.
void WorkOutRows(Calculator& c, const VesselFactors& f, Vessel v, std::array<ArcToolTipInputs, 6>& tooltips) {
    CalculatorState& s = c.state;
    WeaponCounts counts[6];
    for (int row = 0; row <= 5; ++row) {
        counts[row] = RowCounts(s, v, row);
        const auto r = static_cast<std::size_t>(row);
        // A row of the same weapons as an earlier one has its DPS and
        // tooltip: a vessel with few kinds of weapon fires the same set in
        // several arcs.
        const int same = SameSetBefore(counts, row);
        if (same < row) {
            s.ArcDPS[row][v] = s.ArcDPS[same][v];
            tooltips[r] = tooltips[static_cast<std::size_t>(same)];
            continue;
        }
        const RowResult result = CalculateRow(c, f, {counts[row], f.power, f.distance}, v);
        s.ArcDPS[row][v] = result.dps;
        tooltips[r] = result.tooltip;
    }
}

} // namespace

void CalculateFiringArcs(Calculator& c) {
    const bool comparing = c.state.Comparing != 0;
    CountWeapons(c);
    DecideArcsShown(c);
    // The factors read the settings, skills, power and distance of a vessel,
    // which nothing below changes: showing the arcs only shows and hides
    // boxes and rebuilds the shuttle rank lists, which no factor reads. So
    // they are read once for the bursts, all six rows and their texts.
    ArcRows rows;
    rows.factors[1] = FactorsOf(c, 1);
    if (comparing) rows.factors[2] = FactorsOf(c, 2);
    WorkOutBursts(c, rows.factors[1], 1);
    if (comparing) WorkOutBursts(c, rows.factors[2], 2);
    if (c.results.showArcs) c.results.showArcs(c);
    // A burst of shuttle arrays reads the grade in the shuttle rank list,
    // which the main window has only now rebuilt for the captain's rank: work
    // it out again with the grade it is shown with. The grade scales a burst
    // and never turns it to 0, so the boxes shown stay right.
    for (Vessel v = 1; v <= (comparing ? 2 : 1); ++v)
        if (c.state.WeaponCount[Slot::ShuttleBeamArrays][v] > 0) WorkOutBursts(c, rows.factors[v], v);
    WorkOutRows(c, rows.factors[1], 1, rows.tooltips[1]);
    if (comparing) WorkOutRows(c, rows.factors[2], 2, rows.tooltips[2]);
    if (c.results.showResults) c.results.showResults(c, rows);
}

ArcValues ArcsOf(const CalculatorState& s, Vessel v) {
    ArcValues a;
    for (int row = 0; row <= 5; ++row)
        a[row] = s.ArcDPS[row][v];
    return a;
}

void ClearDifferenceColours(Calculator& c) {
    MainSelection& m = c.main;
    for (int i = 0; i <= 11; ++i) {
        m.FiringArcDPS[i].setBack(White);
        m.CFiringArcDPS[i].setBack(White);
    }
}

void DifferenceColor(Calculator& c, int index, float alphaDPS, float omegaDPS) {
    MainSelection& m = c.main;
    if (index == -1) {
        ClearDifferenceColours(c);
        return;
    }

    float ratio = 0.0f;
    if (alphaDPS > 0.0f && alphaDPS < omegaDPS)
        ratio = omegaDPS / alphaDPS;
    else if (omegaDPS > 0.0f)
        ratio = alphaDPS / omegaDPS;

    // Each bound belongs to the band below it.
    Colour higher, lower;
    if (ratio <= 1.05f) {
        higher = lower = Yellow;
    } else if (ratio <= 1.2f) {
        higher = LightGreen;
        lower = LightRed;
    } else if (ratio <= 1.4f) {
        higher = MediumGreen;
        lower = MediumRed;
    } else {
        higher = Green;
        lower = Red;
    }
    if (alphaDPS == 0.0f && omegaDPS == 0.0f) {
        higher = lower = DarkGrey;
    } else if (alphaDPS == 0.0f || omegaDPS == 0.0f) {
        higher = Green;
        lower = DarkGrey;
    }

    if (alphaDPS > omegaDPS) {
        m.FiringArcDPS[index].setBack(higher);
        m.CFiringArcDPS[index].setBack(lower);
    } else {
        m.FiringArcDPS[index].setBack(lower);
        m.CFiringArcDPS[index].setBack(higher);
    }
}

} // namespace vantorel
