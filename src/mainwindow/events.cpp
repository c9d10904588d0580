#include "engine/calculator.h"

#include <string>

namespace vantorel {

namespace {

// Omega's controls only act while Omega is on show.
bool VesselShown(const Calculator& c, Vessel v) { return v == 1 || c.state.Comparing != 0; }

List& Port(Calculator& c, Vessel v, bool forward, int i) {
    MainSelection& m = c.main;
    if (v == 1) return forward ? m.Forward[i] : m.Rear[i];
    return forward ? m.CForward[i] : m.CRear[i];
}

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

void PortClicked(Calculator& c, Vessel v, bool forward, int i) {
    if (!Port(c, v, forward, i).enabled()) return;
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
    CalculateFiringArcs(c);
}

void ResetClicked(Calculator& c, Vessel v) {
    for (int i = 1; i <= 4; ++i) {
        Port(c, v, true, i).setText(ForwardHint(i));
        Port(c, v, false, i).setText(RearHint(i));
    }
    CalculateFiringArcs(c);
}

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

void ShuttleRankControls(Calculator& c, Vessel v) {
    MainSelection& m = c.main;
    List& list = m.ShuttleRank[v];
    if (c.state.WeaponCount[11][v] == 0) {
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
    if (s.WeaponCount[11][1] > 0 || s.WeaponCount[11][2] > 0) {
        bool unrestricted = false;
        for (Vessel v = 1; v <= 2; ++v)
            if (s.WeaponCount[11][v] > 0 && GetRank(c, v) == 100) unrestricted = true;
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
