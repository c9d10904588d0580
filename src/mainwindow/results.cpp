#include "mainwindow/results.h"

#include "catalogue/ships.h"
#include "engine/arcs.h"
#include "engine/burst.h"
#include "engine/counting.h"
#include "engine/dps.h"
#include "engine/numbers.h"
#include "engine/selection.h"
#include "mainwindow/shipimage.h"
#include "mainwindow/tooltips.h"

#include <string>

namespace vantorel {

namespace {

// Row of ArcDPS shown by each box, and the row whose tooltip it carries.
constexpr int kBoxRow[14] = {0, 1, 2, 2, 4, 4, 3, 4, 4, 5, 5, 5, 6, 7};
constexpr int kBoxTipRow[14] = {0, 1, 2, 2, 2, 2, 3, 4, 4, 5, 5, 5, -1, -1};

// Simplified mode keeps three boxes: front, side and rear.
constexpr int kSimpleBox[3] = {2, 7, 9};
constexpr int kSimpleRow[3] = {0, 4, 5};

// One side of the diagram: show what is in use, hide what is not, and leave
// the captions alone either way.
void ShowSide(Indexed<Picture, 0, 11>& arcs, Indexed<Label, 0, 13>& labels, Indexed<Label, 0, 13>& boxes,
              const Indexed<bool, 0, 13>& shown) {
    for (int i = 0; i <= 13; ++i) {
        if (shown[i] == boxes[i].visible()) continue;
        if (i < 12) arcs[i].setVisible(shown[i]);
        labels[i].setVisible(shown[i]);
        boxes[i].setVisible(shown[i]);
    }
}

// The values and tooltips of one vessel's boxes. Each text is taken from
// the vessel's kept texts, which write it again only for new inputs.
void ShowRows(Calculator& c, const ArcRows& rows, Vessel v) {
    const CalculatorState& s = c.state;
    MainSelection& m = c.main;
    ArcBoxTexts& kept = c.kept.arcBoxes[v];
    const VesselFactors& factors = rows.factors[v];

    const std::string* tips[6];
    for (std::size_t row = 0; row < 6; ++row)
        tips[row] = &kept.tooltips[row].of(rows.tooltips[v][row], WriteToolTip);
    const std::string* values[8];
    for (int row = 0; row <= 7; ++row) {
        values[row] = &kept.captions[static_cast<std::size_t>(row)].of(
            s.ArcDPS[row][v], [](std::string& out, float value) { AppendPlainText(out, value); });
    }

    Indexed<Label, 0, 13>& boxes = v == 1 ? m.FiringArcDPS : m.CFiringArcDPS;
    for (int i = 0; i <= 11; ++i) {
        boxes[i].setCaption(*values[kBoxRow[i]]);
        boxes[i].setTooltip(*tips[kBoxTipRow[i]]);
    }
    if (m.Simplified.value() == 1) {
        for (int k = 0; k < 3; ++k) {
            boxes[kSimpleBox[k]].setCaption(*values[kSimpleRow[k]]);
            boxes[kSimpleBox[k]].setTooltip(*tips[kSimpleRow[k]]);
        }
    }
    boxes[12].setCaption(*values[6]);
    boxes[12].setTooltip(
        kept.burstTooltips[0].of(BurstToolTipInputsOf(c, factors, FrontBurstCounts(s, v), v), WriteBurstToolTip));
    boxes[13].setCaption(*values[7]);
    boxes[13].setTooltip(
        kept.burstTooltips[1].of(BurstToolTipInputsOf(c, factors, RearBurstCounts(s, v), v), WriteBurstToolTip));
}

std::string ShuttleRankName(int faction, int level) {
    static const char* const kFederation[8] = {"",
                                               "Lieutenant",
                                               "Lieutenant Commander",
                                               "Commander",
                                               "Captain",
                                               "Rear Admiral, Lower Half",
                                               "Rear Admiral, Upper Half",
                                               "Vice Admiral"};
    static const char* const kKlingon[8] = {"",        "Lieutenant",        "Sergeant",      "Commander",
                                            "Captain", "Brigadier General", "Major General", "Lieutenant General"};
    const int row = level < 1 ? 1 : level > 7 ? 7 : level;
    return faction < 2 ? kFederation[row] : kKlingon[row];
}

const char* const kShuttleRankNote =
    "Shuttle weapon damage is calculated based on a rank of Vice Admiral.  If you are a lower rank, please select "
    "your rank in the Advanced Settings for accurate shuttle weapon damage.";
const char* const kDualCannonNote =
    "Insufficient data to calculate Dual Cannon DPS with more than 7 concurrently firing energy weapons equipped. For "
    "accurate results, please remove a forward energy weapon or rear turret.";
const char* const kTacticalTeamNote =
    "In order to calculate the effects of Tactical Team, you must disable Relative DPS in the Advanced Settings.";

void ShowNote(Label& note, const std::string& text) {
    note.setCaption(text);
    note.setVisible(true);
}

} // namespace

void ShowArcBoxes(Calculator& c) {
    MainSelection& m = c.main;
    ShowSide(m.FiringArc, m.FiringArcLabel, m.FiringArcDPS, c.state.ArcShown);
    if (c.state.Comparing != 0) {
        m.CFiringArcLabel[5].setCaption(m.FiringArcLabel[5].caption());
        ShowSide(m.CFiringArc, m.CFiringArcLabel, m.CFiringArcDPS, c.state.ArcShown);
        DecideCline(c);
    }
    ShuttleRankControls(c, 1);
    if (c.state.Comparing != 0) ShuttleRankControls(c, 2);
}

void ShowArcResults(Calculator& c, const ArcRows& rows) {
    const CalculatorState& s = c.state;
    MainSelection& m = c.main;
    ShowRows(c, rows, 1);
    if (s.Comparing != 0) {
        ShowRows(c, rows, 2);
        if (m.Simplified.value() == 1) {
            for (int k = 0; k < 3; ++k)
                DifferenceColor(c, kSimpleBox[k], s.ArcDPS[kSimpleRow[k]][1], s.ArcDPS[kSimpleRow[k]][2]);
        } else {
            for (int i = 0; i <= 13; ++i)
                if (s.ArcShown[i]) DifferenceColor(c, i, s.ArcDPS[kBoxRow[i]][1], s.ArcDPS[kBoxRow[i]][2]);
        }
    } else if (m.Simplified.value() == 1) {
        for (int k = 0; k < 3; ++k)
            m.FiringArcDPS[kSimpleBox[k]].setBack(s.ArcDPS[kSimpleRow[k]][1] == 0.0f ? DarkGrey : White);
    }
    UpdateNote(c);
}

void ShuttleRankControls(Calculator& c, Vessel v) {
    MainSelection& m = c.main;
    List& list = m.ShuttleRank[v];
    if (c.state.WeaponCount[Slot::ShuttleBeamArrays][v] == 0) {
        // The list keeps its rows and selection until an array comes back.
        m.ShuttleRankLabel[v].setVisible(false);
        list.setVisible(false);
        m.ShuttleMod[v].setVisible(false);
        return;
    }
    const int level = GetRank(c, v);
    list.setEnabled(false);
    const int kept = list.index();
    list.clear();
    // Rear Admirals and up have five grades per rank; a Vice Admiral is the
    // top of the scale.
    const int rows = level < 5 ? 10 : level < 7 ? 5 : 1;
    const std::string name = ShuttleRankName(GetFaction(c, v), level);
    for (int k = 1; k <= rows; ++k)
        list.addItem(name + " " + std::to_string(k));
    list.setIndex(kept >= 0 && kept < rows ? kept : 0);
    const bool choose = level < 7;
    list.setVisible(choose);
    list.setEnabled(choose);
    m.ShuttleRankLabel[v].setVisible(choose);
    m.ShuttleMod[v].setVisible(true);
}

void UpdateNote(Calculator& c) {
    const CalculatorState& s = c.state;
    Label& note = c.main.Note;
    const auto shuttles = [&s](Vessel v) { return s.WeaponCount[Slot::ShuttleBeamArrays][v]; };
    if (shuttles(1) > 0 || shuttles(2) > 0) {
        bool unrestricted = false;
        for (Vessel v = 1; v <= 2; ++v)
            if (shuttles(v) > 0 && GetRank(c, v) == 100) unrestricted = true;
        if (unrestricted)
            ShowNote(note, kShuttleRankNote);
        else
            note.setVisible(false);
        return;
    }
    if (s.ArcDPS[0][1] == -1.0f || s.ArcDPS[0][2] == -1.0f) {
        ShowNote(note, kDualCannonNote);
        return;
    }
    if (RelativeMode(c) && (s.TacticalTeam[1] > 0 || (s.TacticalTeam[2] > 0 && s.Comparing != 0))) {
        ShowNote(note, kTacticalTeamNote);
        return;
    }
    if (GetClass(c, 1) == "Federation") {
        ShowNote(note, LoreText(GetTier(c, 1), GetSubclass(c, 1)));
        return;
    }
    note.setVisible(false);
}

} // namespace vantorel
