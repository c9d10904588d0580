#include "settings/consoles.h"

#include "catalogue/cascade.h"
#include "engine/modifiers.h"
#include "engine/numbers.h"
#include "engine/selection.h"
#include "settings/paint.h"

#include <algorithm>

namespace vantorel {

namespace {

constexpr const char* kMarkNames[13] = {"",       "Mk I",    "Mk II", "Mk III", "Mk IV", "Mk V",  "Mk VI",
                                        "Mk VII", "Mk VIII", "Mk IX", "Mk X",   "Mk XI", "Mk XII"};

// The bonus of a console in percent by step k, the mark number plus the
// rarity; beyond the table a rarity is not offered.
constexpr float kBonusByStep[14] = {0, 3.8f, 5.6f, 7.5f, 9.4f, 11, 13, 15, 17, 19, 21, 22, 24, 26};
constexpr int kLastStep = 13;

constexpr const char* kRarityNames[4] = {"Com. (+", "Unc. (+", "Rare (+", "V.Rare(+"};

bool MayOpen(const Calculator& c, Vessel v) { return v == 1 || !OmegaMirrorsAlpha(c); }

// The mark number of the slot: the mark's row, or for "Max" the top mark the
// list offers; 0 while the slot has no mark.
int MarkNumber(const List& mark) {
    if (mark.index() < 0) return 0;
    return mark.index() == 0 ? mark.count() - 1 : mark.index();
}

void PaintSlot(VesselSettings& s, int i, Shade shade) {
    Paint(s.TacticalConsole[i], shade);
    Paint(s.TacticalConsoleMark[i], shade);
    Paint(s.TacticalConsoleRarity[i], shade);
}

// With the limit not matched, every slot is equipped and the player decides.
void EquipAll(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    for (int i = 1; i <= 4; ++i) {
        s.TacticalConsoleEquipped[i].setValue(1);
        s.TacticalConsoleEquipped[i].setEnabled(true);
        PaintSlot(s, i, Shade::Active);
    }
    ModifiedDPS(c, v);
}

} // namespace

std::vector<std::string> ConsoleMarkRows(int r) {
    std::vector<std::string> rows = {"Max"};
    const int top = 2 * std::clamp(r, 1, 6);
    for (int m = 1; m <= top; ++m)
        rows.push_back(kMarkNames[m]);
    return rows;
}

std::vector<std::string> ConsoleRarityRows(int m) {
    std::vector<std::string> rows;
    for (int j = 0; j <= 3; ++j) {
        const int k = m + j;
        if (k < 1 || k > kLastStep) continue;
        rows.push_back(kRarityNames[j] + PlainText(kBonusByStep[k]) + ")");
    }
    return rows;
}

void RebuildConsoleMark(Calculator& c, Vessel v, int i, int r) {
    VesselSettings& s = c.settings[v];
    List& mark = s.TacticalConsoleMark[i];
    int kept = mark.index();
    mark.setEnabled(false);
    mark.clear();
    for (std::string& row : ConsoleMarkRows(r))
        mark.addItem(std::move(row));
    kept = std::min(kept, mark.count() - 1);
    mark.setIndex(kept);
    if (v == 1 || (s.TacticalConsole[i].index() > 0 && !OmegaMirrorsAlpha(c))) mark.setEnabled(true);
}

void TacticalConsoleChanged(Calculator& c, Vessel v, int i) {
    VesselSettings& s = c.settings[v];
    List& console = s.TacticalConsole[i];
    List& mark = s.TacticalConsoleMark[i];
    if (console.index() < 1) {
        // An empty slot forgets its mark and rarity; a later console starts
        // from "Max" again.
        mark.setEnabled(false);
        s.TacticalConsoleRarity[i].setEnabled(false);
        mark.setIndex(-1);
        s.TacticalConsoleRarity[i].setIndex(-1);
        if (console.enabled()) ModifiedDPS(c, v);
    } else if (mark.index() > -1) {
        ModifiedDPS(c, v);
    } else {
        if (MayOpen(c, v)) mark.setEnabled(true);
        mark.setIndex(0);
    }
    if (v == 1 && OmegaMirrorsAlpha(c)) c.Omega().TacticalConsole[i].setIndex(console.index());
}

void TacticalConsoleMarkChanged(Calculator& c, Vessel v, int i) {
    VesselSettings& s = c.settings[v];
    List& mark = s.TacticalConsoleMark[i];
    List& rarity = s.TacticalConsoleRarity[i];
    int kept = rarity.index();
    rarity.clear();
    // A slot without a mark has no rarities to offer.
    if (mark.index() >= 0) {
        for (std::string& row : ConsoleRarityRows(MarkNumber(mark)))
            rarity.addItem(std::move(row));
        if (MayOpen(c, v)) rarity.setEnabled(true);
        kept = std::clamp(kept, 0, std::max(rarity.count() - 1, 0));
        rarity.setIndex(kept);
    }
    if (v == 1 && OmegaMirrorsAlpha(c)) c.Omega().TacticalConsoleMark[i].setIndex(mark.index());
}

void TacticalConsoleRarityChanged(Calculator& c, Vessel v, int i) {
    List& rarity = c.settings[v].TacticalConsoleRarity[i];
    if (rarity.enabled()) ModifiedDPS(c, v);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().TacticalConsoleRarity[i].setIndex(rarity.index());
        if (rarity.enabled()) ModifiedDPS(c, 2);
    }
}

void TacticalConsoleEquippedChanged(Calculator& c, Vessel v, int i) {
    VesselSettings& s = c.settings[v];
    Flag& box = s.TacticalConsoleEquipped[i];
    if (s.MatchConsole.value() == 0) {
        if (box.value() == 0)
            PaintSlot(s, i, Shade::Inactive);
        else if (MayOpen(c, v))
            PaintSlot(s, i, Shade::Active);
        if (box.enabled()) ModifiedDPS(c, v);
    }
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().TacticalConsoleEquipped[i].setValue(box.value());
        if (box.enabled()) ModifiedDPS(c, 2);
    }
}

void MatchConsoleChanged(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    const Flag& match = s.MatchConsole;
    const bool mirrored = OmegaMirrorsAlpha(c);
    // A box ticked while the section is closed (Relative DPS puts it back to
    // 1) changes nothing on the window.
    if (match.value() == 1) {
        if (match.enabled()) MatchConsoleLimit(c, v, 0);
    } else if (v == 1 || !mirrored) {
        EquipAll(c, v);
    }
    if (v == 2 || !mirrored) return;
    VesselSettings& o = c.Omega();
    o.MatchConsole.setValue(match.value());
    if (match.value() == 0) {
        for (int i = 1; i <= 4; ++i)
            o.TacticalConsoleEquipped[i].setValue(s.TacticalConsoleEquipped[i].value());
        ModifiedDPS(c, 2);
    } else {
        MatchConsoleLimit(c, 2, 0);
    }
}

} // namespace vantorel
