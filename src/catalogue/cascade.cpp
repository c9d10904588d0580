#include "catalogue/cascade.h"

#include "catalogue/pictures.h"
#include "catalogue/ports.h"
#include "catalogue/ships.h"
#include "engine/arcs.h"
#include "engine/modifiers.h"
#include "engine/numbers.h"
#include "engine/power.h"
#include "engine/selection.h"

#include <string>
#include <utility>
#include <vector>

namespace vantorel {

namespace {

// Alpha always; Omega only while it is on show.
int ShownVessels(const Calculator& c) { return c.state.Comparing != 0 ? 2 : 1; }

// Where the tier rows of a class begin decides how a tier number maps to a
// row: a single row, rows from tier 1, or rows from tier 2.
enum class TierRowsStart { Single, TierOne, TierTwo };

TierRowsStart RowsStartOf(const std::string& shipClass) {
    // The Klingon shuttle, with its trailing blank, is not in the first group.
    if (shipClass == "Allied Vessel" || shipClass == "Carrier" || shipClass == "Shuttlecraft")
        return TierRowsStart::Single;
    if (shipClass == "Federation" || shipClass == "Unrestricted" || shipClass == "Klingon" ||
        shipClass == "Bird of Prey" || shipClass == "Cruiser")
        return TierRowsStart::TierOne;
    return TierRowsStart::TierTwo;
}

} // namespace

void ShipClassControl(Calculator& c, Vessel v) {
    List& list = c.main.ShipClass[v];
    const std::string keep = v == 2 && list.index() == 0 ? std::string(kSameAsAlphaRow) : GetClass(c, v);

    list.setEnabled(false);
    list.clear();
    if (v == 2) list.addItem(std::string(kSameAsAlphaRow));
    for (std::string& row : ClassRows(c, v))
        list.addItem(std::move(row));

    // Leading blanks only indent; a trailing blank names the Klingon shuttle
    // and must still count.
    for (int i = 0; i < list.count(); ++i) {
        if (TrimLeft(list.row(i)) == keep) {
            list.setIndex(i);
            break;
        }
    }
    if (list.count() > 0 && list.index() < 0) list.setIndex(0);
    list.setEnabled(true);
}

void ShipTierControl(Calculator& c) {
    for (Vessel v = 1; v <= ShownVessels(c); ++v) {
        List& list = c.main.ShipTier[v];
        list.setEnabled(false);
        const int level = GetRank(c, v);
        const std::string shipClass = GetClass(c, v);
        // Read before the list is cleared: GetTier reads its text.
        const int saved = v == 2 && (list.index() <= 0) ? -1 : GetTier(c, v);

        list.clear();
        if (v == 2) list.addItem(std::string(kSameAsAlphaRow));
        for (std::string& row : TierRows(shipClass, level))
            list.addItem(std::move(row));

        const int last = list.count() - 1;
        int i = 0;
        if (saved != -1) {
            switch (RowsStartOf(shipClass)) {
            case TierRowsStart::Single:
                i = v == 1 ? 0 : 1;
                break;
            case TierRowsStart::TierOne:
                i = v == 1 ? saved - 1 : saved;
                break;
            case TierRowsStart::TierTwo:
                if (v == 2)
                    i = saved - 1;
                else
                    i = saved == 1 ? last : saved - 2;
                break;
            }
        }
        // What the new class lacks goes to its highest row.
        if (i > last) i = last;
        list.setIndex(i);
        list.setEnabled(true);
    }
}

void ShipSubclassControl(Calculator& c) {
    for (Vessel v = 1; v <= ShownVessels(c); ++v) {
        List& list = c.main.ShipSubclass[v];
        list.setEnabled(false);
        const int level = GetRank(c, v);
        const std::string shipClass = GetClass(c, v);
        const int tier = GetTier(c, v);
        int saved = list.index() < 0 ? 0 : list.index();

        list.clear();
        if (v == 2) list.addItem(std::string(kSameAsAlphaRow));
        const std::vector<std::string> rows = SubclassRows(shipClass, tier, level);
        for (const std::string& row : rows)
            list.addItem(row);
        const bool shown = !rows.empty();
        c.main.ShipSubclassLabel[v].setVisible(shown);
        list.setVisible(shown);

        // Alpha's historical vessel is drawn anew on every rebuild.
        if (shipClass == "Federation" && v == 1 && (tier == 1 || tier == 4 || tier == 5)) {
            const double r = c.random.next();
            saved = static_cast<int>(r * (tier == 4 ? 3 : 2));
        }
        if (list.visible()) {
            // Unlike the tier, a lost subclass falls to the first row.
            if (saved > list.count() - 1) saved = 0;
            list.setIndex(saved);
        }
        list.setEnabled(true);
    }
}

void ShipControl(Calculator& c) {
    for (Vessel v = 1; v <= ShownVessels(c); ++v) {
        const Ports ports = ShipPorts(c, v);
        WeaponAdd(c, ports.list, v);
        WeaponUnlock(c, ports.forward, ports.rear, v);
        CalculatePower(c, v, Rebuild::IfChanged);
    }
    ShipImageControl(c);
    if (!RelativeMode(c)) {
        MatchConsoleLimit(c, 1, c.Alpha().MatchConsole.value() == 1 ? 0 : -1);
        if (c.state.Comparing != 0) MatchConsoleLimit(c, 2, c.Omega().MatchConsole.value() == 1 ? 0 : -1);
    }
    if (RelativeMode(c)) CalculateFiringArcs(c);
}

void MatchConsoleLimit(Calculator& c, Vessel v, int keep) {
    VesselSettings& s = c.settings[v];
    const int slots = ConsoleSlots(c, v);
    if (keep == 0) {
        for (int i = 1; i <= 4; ++i) {
            s.TacticalConsoleEquipped[i].setValue(0);
            s.TacticalConsoleEquipped[i].setEnabled(false);
            s.TacticalConsole[i].setBack(Grey);
            s.TacticalConsoleMark[i].setBack(Grey);
            s.TacticalConsoleRarity[i].setBack(Grey);
        }
        // A mirrored Omega window stays grey: it is a read-only copy.
        const bool paint = v == 1 || !OmegaMirrorsAlpha(c);
        for (int i = 1; i <= slots; ++i) {
            s.TacticalConsoleEquipped[i].setValue(1);
            if (!paint) continue;
            s.TacticalConsole[i].setBack(White);
            s.TacticalConsoleMark[i].setBack(White);
            s.TacticalConsoleRarity[i].setBack(White);
        }
    }
    s.MatchConsoleLimit.setCaption(std::to_string(slots));
    ModifiedDPS(c, v);
}

} // namespace vantorel
