#include "settings/character.h"

#include "catalogue/cascade.h"
#include "engine/selection.h"
#include "settings/combat.h"
#include "settings/paint.h"
#include "settings/power.h"
#include "settings/weapons.h"
#include "skills/skills.h"

#include <string>

namespace vantorel {

namespace {

constexpr const char* kFederationRanks[8] = {"Ensign",
                                             "Lieutenant",
                                             "Lt. Commander",
                                             "Commander",
                                             "Captain",
                                             "Rear Admiral, Lower Half",
                                             "Rear Admiral, Upper Half",
                                             "Vice Admiral"};
constexpr const char* kKlingonRanks[8] = {"Warrior", "Lieutenant",        "Sergeant",      "Commander",
                                          "Captain", "Brigadier General", "Major General", "Lieutenant General"};

// A captain without a rank row of their own stands at the top rank.
constexpr int kTopRankRow = 7;
// The rank value of an unrestricted vessel: every rank gate lets it through.
constexpr int kUnrestrictedRank = 100;

void AddRanks(List& rank, bool klingon) {
    for (const char* name : klingon ? kKlingonRanks : kFederationRanks)
        rank.addItem(name);
}

std::string FactionRowZero(const Calculator& c) {
    switch (c.Alpha().Faction.index()) {
    case -1:
        return "Same As Alpha (Unrestricted)";
    case 0:
        return "Same As Alpha (Federation)";
    default:
        return "Same As Alpha (Klingon)";
    }
}

std::string RankRowZero(const Calculator& c) {
    if (c.Alpha().CharacterSettings.value() == 1) return "Same As Alpha (Unrestricted)";
    return "Same As Alpha (" + c.Alpha().Rank.text() + ")";
}

// Row 0 of an Omega list is rewritten in place; the list is quiet meanwhile
// and keeps its selection.
void RewriteRowZero(Calculator& c, List& list, const std::string& text) {
    list.setEnabled(false);
    const int kept = list.index();
    list.removeItem(0);
    list.insertItem(text, 0);
    list.setIndex(kept);
    if (!OmegaMirrorsAlpha(c)) list.setEnabled(true);
}

// What a new rank value changes in the vessel's other sections.
void ApplyRank(Calculator& c, Vessel v, int r) {
    WeaponControl(c, v, r);
    PowerControl(c, v, r);
    CriticalControl(c, v, r);
    AttackPatternAlphaUpdate(c, v);
}

void RebuildShipLists(Calculator& c, Vessel v) {
    ShipClassControl(c, v);
    ShipTierControl(c);
    ShipSubclassControl(c);
    ShipControl(c);
}

void OpenList(List& list, Label& label) {
    list.setEnabled(true);
    Paint(list, label, Shade::Active);
}

void CloseList(List& list, Label& label) {
    list.setEnabled(false);
    Paint(list, label, Shade::Inactive);
    list.setIndex(-1);
}

} // namespace

void SetRanks(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    int kept = s.Rank.index();
    if (v == 1) {
        if (kept < 0) kept = kTopRankRow;
        s.Rank.clear();
        AddRanks(s.Rank, s.Faction.index() != 0);
    } else {
        if (kept < 0) kept = 0;
        s.Rank.clear();
        s.Rank.addItem(RankRowZero(c));
        AddRanks(s.Rank, GetFaction(c, 2) >= 2);
    }
    s.Rank.setIndex(kept);
}

void FactionUpdate(Calculator& c) {
    List& faction = c.Omega().Faction;
    RewriteRowZero(c, faction, FactionRowZero(c));
    if (faction.index() == 0) SetRanks(c, 2);
}

void RankUpdate(Calculator& c) {
    List& rank = c.Omega().Rank;
    RewriteRowZero(c, rank, RankRowZero(c));
    if (OmegaMirrorsAlpha(c) || rank.index() != 0) return;
    // A free Omega on its same-as row takes Alpha's new rank.
    const int r = GetRank(c, 2);
    AttackPatternAlphaUpdate(c, 2);
    WeaponControl(c, 2, r);
    PowerControl(c, 2, r);
    CriticalControl(c, 2, r);
    ShipClassControl(c, 2);
}

void CharacterSettingsChanged(Calculator& c) {
    VesselSettings& a = c.Alpha();
    VesselSettings& o = c.Omega();
    const bool mirrored = OmegaMirrorsAlpha(c);
    if (a.CharacterSettings.value() == 0) {
        a.Faction.setEnabled(true);
        a.Rank.setEnabled(true);
        Paint(a.Faction, a.FactionLabel, Shade::Active);
        // The faction's handler fills the rank list and lands on the top
        // rank, which runs the whole recalculation. A faction row already
        // there (set by a copy while unrestricted) is taken as chosen anew.
        if (a.Faction.index() == 0)
            FactionChanged(c, 1);
        else
            a.Faction.setIndex(0);
        Paint(a.Rank, a.RankLabel, Shade::Active);
        OpenList(a.Class, a.ClassLabel);
        a.Class.setIndex(0);
        return;
    }

    // Unrestricted: the rank row is forgotten.
    CloseList(a.Faction, a.FactionLabel);
    CloseList(a.Rank, a.RankLabel);
    CloseList(a.Class, a.ClassLabel);
    if (mirrored) {
        o.Faction.setIndex(-1);
        o.Rank.setIndex(-1);
        o.Class.setIndex(-1);
        PowerControl(c, 2, kUnrestrictedRank);
        CriticalControl(c, 2, kUnrestrictedRank);
        WeaponControl(c, 2, kUnrestrictedRank);
        AttackPatternAlphaUpdate(c, 2);
        ShipClassControl(c, 2);
    } else {
        if (o.Faction.index() == 0) FactionUpdate(c);
        if (o.Rank.index() == 0) RankUpdate(c);
    }
    PowerControl(c, 1, kUnrestrictedRank);
    CriticalControl(c, 1, kUnrestrictedRank);
    WeaponControl(c, 1, kUnrestrictedRank);
    AttackPatternAlphaUpdate(c, 1);
    RebuildShipLists(c, 1);
}

void FactionChanged(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    if (!s.Faction.enabled()) return;
    if (v == 2) {
        if (s.Faction.index() > -1) SetRanks(c, 2);
        return;
    }
    const bool mirrored = OmegaMirrorsAlpha(c);
    if (mirrored) {
        c.Omega().Faction.setIndex(s.Faction.index() + 1);
        SetRanks(c, 2);
        FactionUpdate(c);
    }
    if (s.Faction.index() > -1) SetRanks(c, 1);
    if (!mirrored) FactionUpdate(c);
}

void RankChanged(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    if (!s.Rank.enabled()) return;
    const int r = GetRank(c, v);
    if (v == 2) {
        ApplyRank(c, 2, r);
        RebuildShipLists(c, 2);
        return;
    }
    ApplyRank(c, 1, r);
    RankUpdate(c);
    if (OmegaMirrorsAlpha(c)) {
        c.Omega().Rank.setIndex(s.Rank.index() + 1);
        ApplyRank(c, 2, r);
        ShipClassControl(c, 2);
    }
    RebuildShipLists(c, 1);
}

} // namespace vantorel
