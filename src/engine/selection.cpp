#include "engine/selection.h"

#include "engine/numbers.h"

#include <algorithm>
#include <string>

namespace vantorel {

namespace {

constexpr std::string_view kEnergyWords[6] = {"Phaser ",  "Disruptor ", "Plasma ",
                                              "Tetryon ", "Polaron ",   "Antiproton "};
constexpr std::string_view kProjectileWords[6] = {"Photon ",    "Quantum ",     "Plasma ",
                                                  "Chroniton ", "Transphasic ", "Tricobalt "};

// Alpha's level 100 lets every rank gate through.
constexpr int kNoRankLimit = 100;

// The Klingon side has no tier 1 cruiser and the Federation side no tier 1
// escort, so those two swap at tier 1. The test reads the list texts, not
// GetTier, because it must hold while Omega's own tier list is stale.
bool TierOneTest(const Calculator& c) {
    const std::string& omegaTier = c.main.ShipTier[2].text();
    if (omegaTier.rfind("Tier 1", 0) == 0) return true;
    return c.main.ShipTier[1].text().rfind("Tier 1", 0) == 0 && omegaTier == kSameAsAlphaRow;
}

// Alpha's class seen from the other faction.
std::string OppositeClass(const Calculator& c, const std::string& a) {
    if (a == "Cruiser") return TierOneTest(c) ? "Bird of Prey" : "Battle Cruiser";
    if (a == "Escort") return "Raptor";
    if (a == "Science Vessel") return "Klingon Science Vessel";
    if (a == "Bird of Prey") return TierOneTest(c) ? "Cruiser" : "Escort";
    if (a == "Raptor") return "Escort";
    if (a == "Battle Cruiser") return "Cruiser";
    if (a == "Carrier") return "Science Vessel";
    if (a == "Allied Vessel") return "Federation Allied Vessel";
    if (a == "Federation") return "Klingon";
    if (a == "Klingon") return "Federation";
    // The trailing blank is the whole difference between the two shuttles.
    if (a == "Shuttlecraft") return "Shuttlecraft ";
    if (a == "Shuttlecraft ") return "Shuttlecraft";
    return a;
}

} // namespace

int IsUnrestricted(const Calculator& c, Vessel v) {
    if (v == 1) return c.Alpha().CharacterSettings.value();
    if (OmegaMirrorsAlpha(c) || c.Omega().Faction.index() == 0) return IsUnrestricted(c, 1);
    return 0;
}

int GetFaction(const Calculator& c, Vessel v) {
    if (IsUnrestricted(c, v) != 0) return 0;
    const int alphaFaction = c.Alpha().Faction.index() + 1;
    if (v == 1) return alphaFaction;
    if (OmegaMirrorsAlpha(c)) return alphaFaction;
    if (c.Omega().Faction.index() != 0) return c.Omega().Faction.index();
    return alphaFaction;
}

int GetRank(const Calculator& c, Vessel v) {
    int rank = 0;
    if (v == 1) {
        rank = IsUnrestricted(c, 1) != 0 ? kNoRankLimit : c.Alpha().Rank.index();
    } else if (c.Omega().Rank.index() >= 1) {
        // An Omega rank of its own holds even while Alpha is unrestricted.
        rank = c.Omega().Rank.index() - 1;
    } else {
        rank = GetRank(c, 1);
    }
    // Ensign and Lieutenant share level 1.
    return rank == 0 ? 1 : rank;
}

std::string GetClass(const Calculator& c, Vessel v) {
    std::string own = TrimLeft(c.main.ShipClass[v].text());
    if (own != kSameAsAlphaRow) return own;

    std::string a = TrimLeft(c.main.ShipClass[1].text());
    const int alphaFaction = GetFaction(c, 1);
    const int omegaFaction = GetFaction(c, 2);
    if (alphaFaction == omegaFaction) return a;
    if (alphaFaction == 0) {
        // The unrestricted list holds the Federation block in rows 0 to 5.
        const int side = c.main.ShipClass[1].index() < 6 ? 1 : 2;
        if (side == omegaFaction) return a;
    }
    return OppositeClass(c, a);
}

int GetTier(const Calculator& c, Vessel v) {
    const std::string shipClass = GetClass(c, v);
    const std::string& text = c.main.ShipTier[v].text();
    if (text == kSameAsAlphaRow) return std::min(GetTier(c, 1), GetRank(c, 2));
    if (!IsShuttleClass(shipClass)) {
        if (text.size() >= 6 && text[5] >= '0' && text[5] <= '9') return text[5] - '0';
        return 5;
    }
    // A shuttle's tier is its captain's rank; an unrestricted one counts as 5.
    return std::min(GetRank(c, v), 5);
}

int GetSubclass(const Calculator& c, Vessel v) {
    const List& alpha = c.main.ShipSubclass[1];
    const List& omega = c.main.ShipSubclass[2];
    int subclass = 0;
    if (v == 1) {
        subclass = alpha.index();
    } else if (omega.index() == 0) {
        // Omega's list holds the same-as row too: Alpha's row may have no
        // counterpart there.
        subclass = alpha.index() > omega.count() - 2 ? 0 : alpha.index();
    } else {
        subclass = omega.index() - 1;
    }
    return std::max(subclass, 0);
}

std::string_view GetDamageType(const Calculator& c, Vessel v, DamageGroup group) {
    // Relative DPS measures every energy weapon against one untyped beam
    // array; projectiles keep their type.
    if (group == DamageGroup::Energy && RelativeMode(c)) return {};
    const int index = c.settings[v].WeaponType[static_cast<int>(group)].index();
    if (index < 0 || index > 5) return {};
    return group == DamageGroup::Energy ? kEnergyWords[index] : kProjectileWords[index];
}

} // namespace vantorel
