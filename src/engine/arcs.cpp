#include "engine/arcs.h"

#include "engine/burst.h"
#include "engine/counting.h"
#include "engine/dps.h"
#include "engine/power.h"

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

void WorkOutBursts(Calculator& c, Vessel v) {
    CalculatorState& s = c.state;
    s.ArcDPS[6][v] = CalculateBurst(c, FrontBurstCounts(s, v), v);
    s.ArcDPS[7][v] = CalculateBurst(c, RearBurstCounts(s, v), v);
    if (s.ArcDPS[6][v] > 0) s.ArcShown[12] = true;
    if (s.ArcDPS[7][v] > 0) s.ArcShown[13] = true;
}

void WorkOutRows(Calculator& c, Vessel v) {
    CalculatorState& s = c.state;
    const int distance = GetRange(c, v);
    // Nothing that the factors or the power read changes while the rows are
    // worked out, so both are read once for all six rows.
    const VesselFactors factors = FactorsOf(c, v);
    const int power = GetPowerLevel(c, v, Bonus::With);
    for (int row = 0; row <= 5; ++row)
        s.ArcDPS[row][v] = CalculateDPS(c, factors, {RowCounts(s, v, row), power, distance}, v, SkillEffect::Counted);
}

} // namespace

void CalculateFiringArcs(Calculator& c) {
    const bool comparing = c.state.Comparing != 0;
    CountWeapons(c);
    DecideArcsShown(c);
    WorkOutBursts(c, 1);
    if (comparing) WorkOutBursts(c, 2);
    if (c.results.showArcs) c.results.showArcs(c);
    // A burst of shuttle arrays reads the grade in the shuttle rank list,
    // which the main window has only now rebuilt for the captain's rank: work
    // it out again with the grade it is shown with. The grade scales a burst
    // and never turns it to 0, so the boxes shown stay right.
    for (Vessel v = 1; v <= (comparing ? 2 : 1); ++v)
        if (c.state.WeaponCount[Slot::ShuttleBeamArrays][v] > 0) WorkOutBursts(c, v);
    WorkOutRows(c, 1);
    if (comparing) WorkOutRows(c, 2);
    if (c.results.showResults) c.results.showResults(c);
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
