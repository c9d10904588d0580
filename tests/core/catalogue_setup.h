#pragma once

// Building ship and captain situations for the catalogue tests. Selections
// are made with the list disabled, so no handler of another window runs;
// the tests then call the cascade steps the way their real callers do.

#include "engine/calculator.h"
#include "engine/numbers.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantorel::testing {

inline void Quietly(List& list, int index) {
    const bool on = list.enabled();
    list.setEnabled(false);
    list.setIndex(index);
    list.setEnabled(on);
}

// Row whose text, leading blanks aside, is `text`; -1 if none.
inline int RowOf(const List& list, std::string_view text) {
    for (int i = 0; i < list.count(); ++i) {
        if (TrimLeft(list.row(i)) == text) return i;
    }
    return -1;
}

inline void Select(List& list, std::string_view text) { Quietly(list, RowOf(list, text)); }

inline void Hold(List& list, const std::vector<std::string>& rows, std::string_view selected) {
    const bool on = list.enabled();
    list.setEnabled(false);
    list.clear();
    for (const std::string& row : rows)
        list.addItem(row);
    list.setIndex(RowOf(list, selected));
    list.setEnabled(on);
}

// Alpha's captain. Faction -1 is unrestricted; 0 Federation, 1 Klingon, with
// the row of the rank list.
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

inline void ChooseSubclass(Calculator& c, Vessel v, int row) {
    Quietly(c.main.ShipSubclass[v], row);
    ShipControl(c);
}

// What a change of Alpha's captain runs on the main window.
inline void ApplyAlphaCaptain(Calculator& c) {
    ShipClassControl(c, 1);
    ShipTierControl(c);
    ShipSubclassControl(c);
    ShipControl(c);
}

} // namespace vantorel::testing
