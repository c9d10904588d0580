#pragma once

// Shared set-up for the core tests. Selections are made with the list
// disabled, so no handler of another window runs; the tests then call the
// cascade steps the way their real callers do.

#include "catalogue/cascade.h"
#include "catalogue/pictures.h"
#include "catalogue/ports.h"
#include "catalogue/ships.h"
#include "engine/arcs.h"
#include "engine/burst.h"
#include "engine/combat.h"
#include "engine/counting.h"
#include "engine/dps.h"
#include "engine/dpw.h"
#include "engine/marks.h"
#include "engine/modifiers.h"
#include "engine/numbers.h"
#include "engine/power.h"
#include "engine/selection.h"
#include "engine/skillstate.h"
#include "mainwindow/compare.h"
#include "mainwindow/events.h"
#include "mainwindow/layout.h"
#include "mainwindow/results.h"
#include "mainwindow/tooltips.h"
#include "program/program.h"
#include "program/registry.h"
#include "settings/settings.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel::testing {

using Rows = std::vector<std::string>;

inline void Quietly(List& list, int index) {
    const bool on = list.enabled();
    list.setEnabled(false);
    list.setIndex(index);
    list.setEnabled(on);
}

// Row whose text, leading blanks aside, is `text`; -1 if none.
inline int RowOf(const List& list, std::string_view text) {
    for (int i = 0; i < list.count(); ++i)
        if (TrimLeft(list.row(i)) == text) return i;
    return -1;
}

inline void Select(List& list, std::string_view text) { Quietly(list, RowOf(list, text)); }

inline void Hold(List& list, const Rows& rows, std::string_view selected) {
    const bool on = list.enabled();
    list.setEnabled(false);
    list.clear();
    for (const std::string& row : rows)
        list.addItem(row);
    list.setIndex(RowOf(list, selected));
    list.setEnabled(on);
}

// A restricted captain chosen through the window's own handlers (faction row
// 0 Federation, 1 Klingon).
inline void Captain(Calculator& c, int faction, int rankRow) {
    VesselSettings& a = c.Alpha();
    a.CharacterSettings.setValue(0);
    a.Faction.setIndex(faction);
    a.Rank.setIndex(rankRow);
}

// Alpha's captain without the handlers. Faction -1 is unrestricted.
inline void AlphaCaptain(Calculator& c, int faction, int rankRow = 7) {
    VesselSettings& a = c.Alpha();
    a.CharacterSettings.setHandler({});
    a.Faction.setHandler({});
    a.Rank.setHandler({});
    a.CharacterSettings.setValue(faction < 0 ? 1 : 0);
    Quietly(a.Faction, faction);
    Quietly(a.Rank, faction < 0 ? -1 : rankRow);
}

// Omega's captain: mirrored or not, and the rows of its own lists (row 0 is
// the same-as row).
inline void OmegaCaptain(Calculator& c, int sameAsAlpha, int factionRow, int rankRow) {
    VesselSettings& o = c.Omega();
    o.SameAsAlpha.setHandler({});
    o.Faction.setHandler({});
    o.Rank.setHandler({});
    o.SameAsAlpha.setValue(sameAsAlpha);
    Quietly(o.Faction, factionRow);
    Quietly(o.Rank, rankRow);
}

// What the handlers of the main window's ship lists run.
inline void ChooseClass(Calculator& c, Vessel v, std::string_view shipClass) {
    Select(c.main.ShipClass[v], shipClass);
    ShipTierControl(c);
    ShipSubclassControl(c);
    ShipControl(c);
}

inline void ChooseTier(Calculator& c, Vessel v, std::string_view tier) {
    Select(c.main.ShipTier[v], tier);
    ShipSubclassControl(c);
    ShipControl(c);
}

// What a change of Alpha's captain runs on the main window.
inline void ApplyAlphaCaptain(Calculator& c) {
    ShipClassControl(c, 1);
    ShipTierControl(c);
    ShipSubclassControl(c);
    ShipControl(c);
}

// Alpha's ports as typed; null leaves a port as it is.
inline void Fit(Calculator& c, const char* const (&forward)[4], const char* const (&rear)[4]) {
    for (int i = 1; i <= 4; ++i) {
        if (forward[i - 1]) c.main.Forward[i].setText(forward[i - 1]);
        if (rear[i - 1]) c.main.Rear[i].setText(rear[i - 1]);
    }
}

// Custom weapons with nothing on them: mark 0 ("Standard Issue"), no
// accolades, and the skill boxes that opening the section fills emptied.
inline void PlainCustomWeapons(Calculator& c) {
    VesselSettings& a = c.Alpha();
    a.RelativeDPS.setValue(0);
    a.WeaponAccolade[1].setValue(0);
    a.WeaponAccolade[2].setValue(0);
    a.WeaponMark.setIndex(1);
    for (int i = 1; i <= 8; ++i)
        a.WeaponSkill[i].setText("");
}

// The settings windows' fields as plain values: no handler runs when a test
// writes them, so an engine rule can be tried on any value, also one that
// the window would correct or could not offer.
inline void PlainSettings(Calculator& c) {
    const ControlRegistry registry(c);
    for (const ControlRef& ref : registry.all())
        if ((ref.window == "Alpha" || ref.window == "Omega") && ref.control) ref.control->setHandler({});
}

// Custom combat settings; "" leaves a box empty.
inline void CustomCombat(Calculator& c, Vessel v, const char* vectors, const char* maneuvers, const char* strategy,
                         int item = -1) {
    VesselSettings& s = c.settings[v];
    if (v == 2) c.Omega().SameAsAlpha.setValue(0);
    s.CriticalSettings.setValue(0);
    s.CriticalSkill[1].setText(vectors);
    s.CriticalSkill[2].setText(maneuvers);
    s.CriticalSkill[3].setText(strategy);
    s.CriticalItem.setIndex(item);
}

} // namespace vantorel::testing
