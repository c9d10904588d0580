#include "engine/calculator.h"

#include "engine/numbers.h"

#include <string>

namespace vantorel {

namespace {

constexpr Colour Yellow = 0x80FFFF;
constexpr Colour LightGreen = 0xC0FFC0, LightRed = 0xC0C0FF;
constexpr Colour MediumGreen = 0x80FF80, MediumRed = 0x8080FF;
constexpr Colour Green = 0x00FF00, Red = 0x0000FF;

// Row of ArcDPS shown by each box, and the row whose tooltip it carries.
constexpr int kBoxRow[14] = {0, 1, 2, 2, 4, 4, 3, 4, 4, 5, 5, 5, 6, 7};
constexpr int kBoxTipRow[14] = {0, 1, 2, 2, 2, 2, 3, 4, 4, 5, 5, 5, -1, -1};

// Simplified mode keeps three boxes: front, side and rear.
constexpr int kSimpleBox[3] = {2, 7, 9};
constexpr int kSimpleRow[3] = {0, 4, 5};

// The weapons firing in a row, in CalculateDPS's argument order.
struct RowCounts {
    int dhc = 0, dc = 0, dbb = 0, cannons = 0, beamArrays = 0, turrets = 0, shuttles = 0;
};

RowCounts CountsOfRow(const CalculatorState& s, Vessel v, int row) {
    auto n = [&](int slot) { return static_cast<int>(s.WeaponCount[slot][v]); };
    RowCounts r;
    r.turrets = n(6);
    r.shuttles = n(11);
    switch (row) {
    case 0:
        r.dhc = n(1);
        r.dc = n(2);
        r.dbb = n(3);
        r.cannons = n(4);
        r.beamArrays = n(5);
        break;
    case 1:
        r.dbb = n(3);
        r.cannons = n(4);
        r.beamArrays = n(5);
        break;
    case 2:
        r.cannons = n(4);
        r.beamArrays = n(5);
        break;
    case 3:
        r.cannons = n(4);
        r.beamArrays = n(5) + n(7);
        break;
    case 4:
        r.beamArrays = n(5) + n(7);
        break;
    default:
        r.beamArrays = n(7);
        break;
    }
    return r;
}

float FrontBurst(Calculator& c, Vessel v) {
    const CalculatorState& s = c.state;
    return CalculateBurst(c, s.WeaponCount[8][v], 0, s.WeaponCount[3][v], s.WeaponCount[5][v], s.WeaponCount[11][v], v);
}

float RearBurst(Calculator& c, Vessel v) {
    const CalculatorState& s = c.state;
    return CalculateBurst(c, s.WeaponCount[9][v], s.WeaponCount[10][v], 0, s.WeaponCount[7][v], s.WeaponCount[11][v],
                          v);
}

std::string FrontBurstTip(Calculator& c, Vessel v) {
    const CalculatorState& s = c.state;
    return BurstToolTip(c, s.WeaponCount[8][v], 0, s.WeaponCount[3][v], s.WeaponCount[5][v], s.WeaponCount[11][v], v);
}

std::string RearBurstTip(Calculator& c, Vessel v) {
    const CalculatorState& s = c.state;
    return BurstToolTip(c, s.WeaponCount[9][v], s.WeaponCount[10][v], 0, s.WeaponCount[7][v], s.WeaponCount[11][v], v);
}

// Steps 6 and 7 for one vessel: the six rows, then every box of its side.
void ComputeAndShowRows(Calculator& c, Vessel v) {
    CalculatorState& s = c.state;
    MainSelection& m = c.main;
    const int distance = GetRange(c, v);
    // Nothing that the factors or the power read changes while the rows are
    // worked out, so both are read once for all six rows.
    const VesselFactors factors = FactorsOf(c, v);
    const int power = GetPowerLevel(c, v, true);
    std::string tips[6];
    for (int row = 0; row <= 5; ++row) {
        const RowCounts r = CountsOfRow(s, v, row);
        s.ArcDPS[row][v] = CalculateDPS(c, factors, r.dhc, r.dc, r.dbb, r.cannons, r.beamArrays, r.turrets, r.shuttles,
                                        power, distance, v, false);
        tips[row] = CalculateToolTip(c, factors, r.dhc, r.dc, r.dbb, r.cannons, r.beamArrays, r.turrets, r.shuttles,
                                     power, distance, v);
    }

    Indexed<Label, 0, 13>& boxes = v == 1 ? m.FiringArcDPS : m.CFiringArcDPS;
    for (int i = 0; i <= 11; ++i) {
        boxes[i].setCaption(PlainText(s.ArcDPS[kBoxRow[i]][v]));
        boxes[i].setTooltip(tips[kBoxTipRow[i]]);
    }
    if (m.Simplified.value() == 1) {
        for (int k = 0; k < 3; ++k) {
            boxes[kSimpleBox[k]].setCaption(PlainText(s.ArcDPS[kSimpleRow[k]][v]));
            boxes[kSimpleBox[k]].setTooltip(tips[kSimpleRow[k]]);
        }
    }
    boxes[12].setCaption(PlainText(s.ArcDPS[6][v]));
    boxes[12].setTooltip(FrontBurstTip(c, v));
    boxes[13].setCaption(PlainText(s.ArcDPS[7][v]));
    boxes[13].setTooltip(RearBurstTip(c, v));
}

} // namespace

void CalculateFiringArcs(Calculator& c) {
    CalculatorState& s = c.state;
    MainSelection& m = c.main;
    const bool comparing = s.Comparing != 0;

    CountWeapons(c);

    auto both = [&s](int slot) { return s.WeaponCount[slot][1] + s.WeaponCount[slot][2]; };
    const int dhc = both(1), dc = both(2), dbb = both(3), cannons = both(4), fba = both(5), rba = both(7);
    const int any = both(6) + both(11);

    // An arc in use on either vessel shows on both sides.
    bool* shown = &s.ArcShown[0];
    for (int i = 0; i <= 13; ++i)
        shown[i] = false;
    if (m.Simplified.value() == 1) {
        shown[2] = shown[7] = shown[9] = true;
    } else {
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
        } else {
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
    }

    s.ArcDPS[6][1] = FrontBurst(c, 1);
    s.ArcDPS[7][1] = RearBurst(c, 1);
    if (s.ArcDPS[6][1] > 0) shown[12] = true;
    if (s.ArcDPS[7][1] > 0) shown[13] = true;
    if (comparing) {
        s.ArcDPS[6][2] = FrontBurst(c, 2);
        s.ArcDPS[7][2] = RearBurst(c, 2);
        if (s.ArcDPS[6][2] > 0) shown[12] = true;
        if (s.ArcDPS[7][2] > 0) shown[13] = true;
    }

    // The shuttle rank list must be current before the rows read it.
    ShowArcBoxes(c);

    ComputeAndShowRows(c, 1);
    if (comparing) {
        ComputeAndShowRows(c, 2);
        if (m.Simplified.value() == 1) {
            for (int k = 0; k < 3; ++k)
                DifferenceColor(c, kSimpleBox[k], s.ArcDPS[kSimpleRow[k]][1], s.ArcDPS[kSimpleRow[k]][2]);
        } else {
            for (int i = 0; i <= 13; ++i)
                if (shown[i]) DifferenceColor(c, i, s.ArcDPS[kBoxRow[i]][1], s.ArcDPS[kBoxRow[i]][2]);
        }
    } else if (m.Simplified.value() == 1) {
        for (int k = 0; k < 3; ++k)
            m.FiringArcDPS[kSimpleBox[k]].setBack(s.ArcDPS[kSimpleRow[k]][1] == 0.0f ? DarkGrey : White);
    }

    UpdateNote(c);
    GraphControl(c);
}

void DifferenceColor(Calculator& c, int index, float alphaDPS, float omegaDPS) {
    MainSelection& m = c.main;
    if (index == -1) {
        for (int i = 0; i <= 11; ++i) {
            m.FiringArcDPS[i].setBack(White);
            m.CFiringArcDPS[i].setBack(White);
        }
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
