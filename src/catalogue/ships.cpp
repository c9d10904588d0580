#include "catalogue/ships.h"

#include "engine/selection.h"

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

namespace {

// A row of a class list, offered from `level` on (0: always).
struct ClassRow {
    std::string_view text;
    int level;
};

// The unrestricted list keeps its blanks: they indent the ship classes under
// the two faction headings, which are selectable rows of their own.
constexpr ClassRow kUnrestrictedClasses[] = {
    {"Unrestricted", 5},      {"Federation", 0},        {"   Cruiser", 0}, {"   Escort", 2},
    {"   Shuttlecraft", 0},   {"   Science Vessel", 2}, {"Klingon", 0},    {"   Allied Vessel", 5},
    {"   Battle Cruiser", 2}, {"   Bird of Prey", 0},   {"   Carrier", 5}, {"   Raptor", 2},
    {"   Shuttlecraft ", 0},
};

constexpr ClassRow kFederationClasses[] = {
    {"Cruiser", 0},
    {"Escort", 2},
    {"Shuttlecraft", 0},
    {"Science Vessel", 2},
};

constexpr ClassRow kKlingonClasses[] = {
    {"Allied Vessel", 7}, {"Battle Cruiser", 2}, {"Bird of Prey", 0},
    {"Carrier", 5},       {"Raptor", 2},         {"Shuttlecraft ", 0},
};

// A row of a tier list. Rows marked `always` show at any level; the others
// from the level that equals their tier.
struct TierRow {
    std::string_view shipClass;
    int tier;
    bool always;
    std::string_view text;
};

constexpr TierRow kTierRows[] = {
    {"Unrestricted", 1, true, "Tier 1- Unrestricted Vessel"},
    {"Unrestricted", 2, false, "Tier 2- Unrestricted Vessel"},
    {"Unrestricted", 3, false, "Tier 3- Unrestricted Vessel"},
    {"Unrestricted", 4, false, "Tier 4- Unrestricted Vessel"},
    {"Unrestricted", 5, false, "Tier 5- Unrestricted Vessel"},
    {"Federation", 1, true, "Tier 1- Historical Vessel"},
    {"Federation", 2, false, "Tier 2- Historical Vessel"},
    {"Federation", 3, false, "Tier 3- Historical Vessel"},
    {"Federation", 4, false, "Tier 4- Historical Vessel"},
    {"Federation", 5, false, "Tier 5- Historical Vessel"},
    {"Klingon", 1, true, "Tier 1- Unrestricted Klingon"},
    {"Klingon", 2, false, "Tier 2- Unrestricted Klingon"},
    {"Klingon", 3, false, "Tier 3- Unrestricted Klingon"},
    {"Klingon", 4, false, "Tier 4- Unrestricted Klingon"},
    {"Klingon", 5, false, "Tier 5- Unrestricted Klingon"},
    {"Cruiser", 1, true, "Tier 1- Light Cruiser"},
    {"Cruiser", 2, false, "Tier 2- Cruiser"},
    {"Cruiser", 3, false, "Tier 3- Heavy Cruiser"},
    {"Cruiser", 4, false, "Tier 4- Exploration Cruiser"},
    {"Cruiser", 5, false, "Tier 5- Various"},
    {"Escort", 2, false, "Tier 2- Escort"},
    {"Escort", 3, false, "Tier 3- Heavy Escort"},
    {"Escort", 4, false, "Tier 4- Tactical Escort"},
    {"Escort", 5, false, "Tier 5- Various"},
    {"Science Vessel", 2, false, "Tier 2- Science Vessel"},
    {"Science Vessel", 3, false, "Tier 3- Research Science Vessel"},
    {"Science Vessel", 4, false, "Tier 4- Long Range Science Vessel"},
    {"Science Vessel", 5, false, "Tier 5- Various"},
    {"Bird of Prey", 1, true, "Tier 1- B'rel Bird of Prey"},
    {"Bird of Prey", 2, false, "Tier 2- Quldun Bird of Prey"},
    {"Bird of Prey", 3, false, "Tier 3- Norgh Bird of Prey"},
    {"Bird of Prey", 4, false, "Tier 4- Ki'tang Bird of Prey"},
    {"Bird of Prey", 5, false, "Tier 5- Various"},
    {"Battle Cruiser", 2, false, "Tier 2- K'tanco Battle Cruiser"},
    {"Battle Cruiser", 3, false, "Tier 3- K't'inga Battle Cruiser"},
    {"Battle Cruiser", 4, false, "Tier 4- Vor'cha Battle Cruiser"},
    {"Battle Cruiser", 5, false, "Tier 5- Various"},
    {"Raptor", 2, false, "Tier 2- Somraw Raptor"},
    {"Raptor", 3, false, "Tier 3- Qorgh Raptor"},
    {"Raptor", 4, false, "Tier 4- Pach Raptor"},
    {"Raptor", 5, false, "Tier 5- Qin Heavy Raptor"},
    {"Carrier", 5, false, "Tier 5"},
    {"Allied Vessel", 5, false, "Tier 5"},
    {"Shuttlecraft", 0, true, "Variable Tier- Shuttlecraft"},
    {"Shuttlecraft ", 0, true, "Variable Tier- Shuttlecraft"},
    {"Klingon Science Vessel", 2, false, "Tier 2- Quldun Bird of Prey"},
    {"Klingon Science Vessel", 3, false, "Tier 3- Norgh Bird of Prey"},
    {"Klingon Science Vessel", 4, false, "Tier 4- Ki'tang Bird of Prey"},
    {"Klingon Science Vessel", 5, false, "Tier 5- Varanus Fleet Support Vessel"},
    {"Federation Allied Vessel", 5, false, "Tier 5- Federation Vessel"},
};

// One ship a list can select: tier 0 is "any tier" (the shuttles), an empty
// subclass a tier without a subclass list, level 7 a row held back to that
// level. List is the forward weapon list: 1 with dual cannons, 2 without,
// 3 the shuttle list.
struct ShipRow {
    std::string_view shipClass;
    int tier;
    std::string_view subclass;
    int level;
    int forward, rear, list, slots;
};

constexpr ShipRow kShips[] = {
    {"Unrestricted", 1, "", 0, 2, 1, 1, 2},
    {"Unrestricted", 2, "", 0, 3, 2, 1, 2},
    {"Unrestricted", 3, "", 0, 4, 3, 1, 3},
    {"Unrestricted", 4, "", 0, 4, 3, 1, 3},
    {"Unrestricted", 5, "", 0, 4, 4, 1, 4},
    {"Federation", 1, "NX-01 Enterprise", 0, 2, 1, 1, 2},
    {"Federation", 1, "NCC-1701 U.S.S. Enterprise", 0, 2, 1, 1, 2},
    {"Federation", 2, "NCC-1701-A U.S.S. Enterprise", 0, 3, 2, 1, 2},
    {"Federation", 3, "NCC-2000 U.S.S. Excelsior", 0, 3, 3, 1, 3},
    {"Federation", 4, "NCC-1701-D U.S.S. Enterprise", 0, 4, 3, 1, 3},
    {"Federation", 4, "NX-74205 U.S.S. Defiant", 0, 4, 3, 1, 3},
    {"Federation", 4, "NCC-74656 U.S.S. Voyager", 0, 4, 3, 1, 3},
    {"Federation", 5, "NCC-1701-D Future U.S.S. Enterprise", 0, 4, 4, 1, 4},
    {"Federation", 5, "NCC-1701-E U.S.S. Enterprise", 0, 4, 4, 1, 4},
    {"Klingon", 1, "", 0, 2, 1, 1, 1},
    {"Klingon", 2, "", 0, 3, 2, 1, 2},
    {"Klingon", 3, "", 0, 4, 2, 1, 3},
    {"Klingon", 4, "", 0, 4, 3, 1, 3},
    {"Klingon", 5, "", 0, 4, 4, 1, 4},
    {"Cruiser", 1, "Miranda Class Frigate", 0, 2, 1, 1, 1},
    {"Cruiser", 1, "Constitution Class Light Cruiser", 0, 2, 1, 1, 1},
    {"Cruiser", 1, "NX Class Light Escort", 0, 2, 1, 1, 2},
    {"Cruiser", 2, "", 0, 2, 2, 2, 1},
    {"Cruiser", 3, "Heavy Cruiser", 0, 3, 3, 2, 1},
    {"Cruiser", 3, "Advanced Heavy Cruiser", 0, 3, 3, 2, 1},
    {"Cruiser", 4, "", 0, 4, 3, 2, 2},
    {"Cruiser", 5, "Assault Cruiser", 0, 4, 4, 2, 3},
    {"Cruiser", 5, "Star Cruiser", 0, 4, 4, 2, 2},
    {"Cruiser", 5, "Dreadnought Cruiser", 0, 4, 4, 1, 2},
    {"Cruiser", 5, "Advanced Heavy Cruiser Retrofit", 0, 4, 4, 2, 3},
    {"Cruiser", 5, "Exploration Cruiser Retrofit", 7, 4, 4, 2, 2},
    {"Escort", 2, "", 0, 3, 1, 1, 2},
    {"Escort", 3, "", 0, 3, 2, 1, 3},
    {"Escort", 4, "", 0, 4, 2, 1, 3},
    {"Escort", 5, "Advanced Escort", 0, 4, 3, 1, 4},
    {"Escort", 5, "Fleet Escort", 0, 4, 3, 1, 4},
    {"Escort", 5, "Tactical Escort Retrofit", 7, 4, 3, 1, 4},
    {"Science Vessel", 2, "", 0, 2, 2, 2, 1},
    {"Science Vessel", 3, "Research Science Vessel", 0, 3, 2, 2, 1},
    {"Science Vessel", 3, "Advanced Research Science Vessel", 0, 3, 2, 2, 1},
    {"Science Vessel", 4, "", 0, 3, 3, 2, 2},
    {"Science Vessel", 5, "Reconnaissance Science Vessel", 0, 3, 3, 2, 3},
    {"Science Vessel", 5, "Deep Space Science Vessel", 0, 3, 3, 2, 2},
    {"Science Vessel", 5, "Advanced Research Science Vessel Retrofit", 0, 3, 3, 2, 2},
    {"Science Vessel", 5, "Long Range Science Vessel Retrofit", 7, 3, 3, 2, 2},
    {"Shuttlecraft", 0, "Type-8 Shuttle", 0, 2, 0, 3, 0},
    {"Shuttlecraft", 0, "Danube Class Runabout", 0, 2, 0, 3, 1},
    {"Shuttlecraft", 0, "Tal'Kyr Support Craft", 0, 2, 0, 3, 0},
    {"Battle Cruiser", 2, "", 0, 2, 2, 1, 1},
    {"Battle Cruiser", 3, "", 0, 4, 2, 1, 2},
    {"Battle Cruiser", 4, "", 0, 4, 3, 1, 2},
    {"Battle Cruiser", 5, "Negh'Var Heavy Battle Cruiser", 0, 4, 4, 1, 3},
    {"Battle Cruiser", 5, "Retrofit Vor'cha Battle Cruiser", 0, 4, 4, 1, 3},
    {"Bird of Prey", 1, "B'Rel Bird of Prey", 0, 2, 1, 1, 1},
    {"Bird of Prey", 1, "Koloth Bird of Prey", 0, 2, 1, 1, 1},
    {"Bird of Prey", 2, "", 0, 3, 1, 1, 2},
    {"Bird of Prey", 3, "", 0, 3, 2, 1, 2},
    {"Bird of Prey", 4, "", 0, 3, 2, 1, 3},
    {"Bird of Prey", 5, "Hegh'ta Heavy Bird of Prey", 0, 4, 2, 1, 3},
    {"Bird of Prey", 5, "Retrofit B'rel Bird of Prey", 7, 4, 2, 1, 3},
    {"Raptor", 2, "", 0, 3, 1, 1, 2},
    {"Raptor", 3, "", 0, 3, 2, 1, 3},
    {"Raptor", 4, "", 0, 4, 2, 1, 3},
    {"Raptor", 5, "", 0, 4, 3, 1, 4},
    {"Carrier", 5, "Vo'Quv Carrier", 0, 3, 3, 1, 2},
    {"Carrier", 5, "Kar'Fi Battle Carrier", 7, 4, 3, 1, 3},
    {"Allied Vessel", 5, "Guramaba Siege Destroyer", 0, 4, 3, 1, 4},
    {"Allied Vessel", 5, "Marauder Patrol Cruiser", 0, 4, 4, 2, 2},
    {"Allied Vessel", 5, "Varanus Fleet Support Vessel", 0, 3, 3, 2, 2},
    {"Shuttlecraft ", 0, "Toron Shuttle", 0, 2, 0, 3, 0},
};

// Rows no list offers, reached only by an Omega whose rank or faction
// turns Alpha's ship into another.
struct FillRow {
    std::string_view shipClass;
    int tier;
    int forward, rear, list, slots;
};

constexpr FillRow kOmegaOnlyShips[] = {
    {"Carrier", 2, 3, 1, 1, 1},
    {"Carrier", 3, 3, 2, 1, 1},
    {"Carrier", 4, 3, 2, 1, 2},
    {"Klingon Science Vessel", 2, 3, 1, 1, 2},
    {"Klingon Science Vessel", 3, 3, 2, 1, 2},
    {"Klingon Science Vessel", 4, 3, 2, 1, 3},
    {"Klingon Science Vessel", 5, 3, 3, 1, 2},
};

// "Allied Vessel" below tier 5 and "Federation Allied Vessel" follow Alpha's
// allied vessel: its subclass row decides which ship they stand for. Row -1
// stands for "any other row".
struct AlliedRow {
    int tier;
    int alphaSubclass;
    int forward, rear, list, slots;
};

constexpr AlliedRow kLowTierAllied[] = {
    {2, 1, 2, 2, 1, 1}, {2, -1, 3, 1, 1, 1}, {3, 1, 4, 2, 1, 1},  {3, -1, 3, 2, 1, 1},
    {4, 0, 4, 2, 1, 2}, {4, 1, 4, 3, 1, 2},  {4, -1, 3, 2, 1, 2},
};

// Row 0 stands for an "Escort", row 1 for a "Cruiser", row 2 for a
// "Science Vessel" of the Federation.
constexpr AlliedRow kFederationAllied[] = {
    {2, 0, 3, 1, 1, 2},  {2, -1, 2, 2, 2, 1}, {3, 0, 3, 2, 1, 3},  {3, 1, 3, 3, 2, 1},
    {3, -1, 3, 2, 2, 1}, {4, 0, 4, 2, 1, 3},  {4, 1, 4, 3, 2, 2},  {4, -1, 3, 3, 2, 2},
    {5, 0, 4, 3, 1, 4},  {5, 1, 4, 4, 2, 2},  {5, -1, 3, 3, 2, 2},
};

struct Fitting {
    int forward = 0;
    int rear = 0;
    int list = 1;
    int slots = 0;
};

Fitting FromAllied(const AlliedRow* first, const AlliedRow* last, int tier, int alphaSubclass) {
    for (const AlliedRow* row = first; row != last; ++row) {
        if (row->tier == tier && (row->alphaSubclass == alphaSubclass || row->alphaSubclass == -1))
            return {row->forward, row->rear, row->list, row->slots};
    }
    return {};
}

// The rows of one class at one tier, in list order; false if there are none.
// A subclass index past the rows takes the first row.
bool FromShipTable(std::string_view shipClass, int tier, int subclass, Fitting& out) {
    std::vector<const ShipRow*> rows;
    for (const ShipRow& row : kShips) {
        if (row.shipClass == shipClass && row.tier == tier) rows.push_back(&row);
    }
    if (rows.empty()) return false;
    const ShipRow* row = subclass >= 0 && subclass < static_cast<int>(rows.size()) ? rows[subclass] : rows[0];
    out = {row->forward, row->rear, row->list, row->slots};
    return true;
}

// Shuttle rows first, then tier 1, then the class's own table: a class with
// no tier 1 ship still answers at tier 1, as an Omega of low rank needs.
Fitting Fit(const Calculator& c, Vessel v) {
    const std::string shipClass = GetClass(c, v);
    const int tier = GetTier(c, v);
    const int subclass = GetSubclass(c, v);
    Fitting fit;

    if (IsShuttleClass(shipClass)) {
        FromShipTable(shipClass, 0, subclass, fit);
        return fit;
    }
    if (tier == 1) {
        if (!FromShipTable(shipClass, 1, subclass, fit)) fit = {2, 1, 1, 1};
        return fit;
    }
    if (shipClass == "Allied Vessel" && tier < 5)
        return FromAllied(std::begin(kLowTierAllied), std::end(kLowTierAllied), tier, GetSubclass(c, 1));
    if (shipClass == "Federation Allied Vessel")
        return FromAllied(std::begin(kFederationAllied), std::end(kFederationAllied), tier, GetSubclass(c, 1));
    for (const FillRow& row : kOmegaOnlyShips) {
        if (row.shipClass == shipClass && row.tier == tier) return {row.forward, row.rear, row.list, row.slots};
    }
    FromShipTable(shipClass, tier, subclass, fit);
    return fit;
}

template <std::size_t N> void AddClassRows(const ClassRow (&table)[N], int level, std::vector<std::string>& out) {
    for (const ClassRow& row : table) {
        if (row.level == 0 || level >= row.level) out.emplace_back(row.text);
    }
}

} // namespace

std::vector<std::string> ClassRows(const Calculator& c, Vessel v) {
    std::vector<std::string> rows;
    const int level = GetRank(c, v);
    if (IsUnrestricted(c, v) != 0) {
        AddClassRows(kUnrestrictedClasses, level, rows);
    } else if (GetFaction(c, v) == 1) {
        AddClassRows(kFederationClasses, level, rows);
    } else if (GetFaction(c, v) == 2) {
        AddClassRows(kKlingonClasses, level, rows);
    }
    return rows;
}

Ports ShipPorts(const Calculator& c, Vessel v) {
    const Fitting fit = Fit(c, v);
    return {fit.forward, fit.rear, fit.list};
}

int ConsoleSlots(const Calculator& c, Vessel v) { return Fit(c, v).slots; }

std::vector<std::string> TierRows(const std::string& shipClass, int level) {
    std::vector<std::string> rows;
    for (const TierRow& row : kTierRows) {
        if (row.shipClass == shipClass && (row.always || level >= row.tier)) rows.emplace_back(row.text);
    }
    return rows;
}

std::vector<std::string> SubclassRows(const std::string& shipClass, int tier, int level) {
    std::vector<std::string> rows;
    for (const ShipRow& row : kShips) {
        if (row.shipClass != shipClass || row.subclass.empty()) continue;
        if (row.tier != tier && row.tier != 0) continue;
        if (row.level == 0 || level >= row.level) rows.emplace_back(row.subclass);
    }
    return rows;
}

std::string LoreText(int tier, int row) {
    switch (tier) {
    case 1:
        if (row == 0)
            return "The Enterprise  (NX-01), under the command of Jonathan Archer was Earth's first Warp 5 capable "
                   "starship.  It established United Earth as a legitimate interstellar power, and eventually paved "
                   "the way for the establishment of the United Federation of Planets.";
        return "The U.S.S Enterprise (NCC-1701), under the command of James T. Kirk embarked on a 5 year mission of "
               "deep space exploration.  From 2265 to 2270, the Enterprise visited over 70 different worlds, and "
               "encountered representatives from over 60 different species.";
    case 2:
        return "The U.S.S. Enterprise (NCC-1701-A), under the command of James T. Kirk, saved Earth from an alien "
               "probe by traveling back in time to retrieve a pair of extinct humpback whales.  It also broke through "
               "the Great Barrier, and helped prevent the assassination of the Federation President at the Khitomer "
               "Conference. ";
    case 3:
        return "The U.S.S. Excelsior (NCC-2000) was the first Starfleet vessel equipped with a transwarp drive.  It "
               "also served as the prototype for a successful line of starships.  Under the command of Hikaru Sulu, "
               "the Excelsior helped prevent the assassination of the Federation President at the Khitomer Conference.";
    case 4:
        if (row == 0)
            return "The U.S.S. Enterprise (NCC-1701-D), under the command of Jean-Luc Picard, was the flagship of "
                   "Starfleet from 2363 until it was destroyed in 2371.  During this time, the Enterprise was "
                   "instrumental in protecting Earth from the Borg threat after Starfleet's defeat at Wolf 359.";
        if (row == 1)
            return "The U.S.S. Defiant (NX-74205), was a prototype vessel designed to serve as a counter to the Borg "
                   "threat.  Under the command of Benjamin Sisko, the Defiant played a pivotal role in the Dominion "
                   "War, ultimately helping to usher in the final defeat of the Dominion and Cardassian forces.";
        return "While under the command of Katherine Janeway, The U.S.S. Voyager (NCC-74656) became trapped in the "
               "Delta Quadrant.  Over the course of its seven year journey home, Voyager explored previously uncharted "
               "territory and made contact with numerous species, while still strictly upholding the Prime Directive.";
    case 5:
        if (row == 0)
            return "In an unknown future timeline, the U.S.S. Enterprise (NCC-1701-D) was retrofitted with a third "
                   "warp nacelle.  Under the command of Admiral William Riker, the future Enterprise assisted Captain "
                   "Picard in collapsing an anti-time anomaly which was threatening humanity's existence. ";
        return "The Sovereign class U.S.S. Enterprise (NCC-1701-E) replaced the NCC-1701-D which had been destroyed in "
               "battle.  Under the command of Jean-Luc Picard, the Enterprise was instrumental in the defeat of the "
               "Borg during the Battle of Sector 001, as well as the defeat of the Reman forces under Praetor Shinzon.";
    default:
        return {};
    }
}

} // namespace vantorel
