#include "engine/counting.h"

#include "engine/selection.h"

#include <array>
#include <string>
#include <utility>

namespace vantorel {

namespace {

// The item texts carry the damage type of the vessel, so a port only counts
// while its text matches the vessel's current types exactly. The texts are
// made once per count, not once per port.
struct ItemNames {
    std::array<std::pair<Slot, std::string>, 8> forward;
    std::array<std::pair<Slot, std::string>, 4> rear;
};

ItemNames NamesOf(const Calculator& c, Vessel v) {
    const std::string e = GetDamageType(c, v, DamageGroup::Energy);
    const std::string p = GetDamageType(c, v, DamageGroup::Projectile);
    return ItemNames{{{
                         {Slot::DualHeavyCannons, e + "Dual Heavy Cannons"},
                         {Slot::DualCannons, e + "Dual Cannons"},
                         {Slot::DualBeamBanks, "Dual " + e + "Beam Bank"},
                         {Slot::Cannons, e + "Cannon"},
                         {Slot::ForwardBeamArrays, e + "Beam Array"},
                         {Slot::Turrets, e + "Turret"},
                         {Slot::ForwardTorpedoes, p + "Torpedo Launcher"},
                         {Slot::ShuttleBeamArrays, "Shuttle " + e + "Beam Array"},
                     }},
                     {{
                         {Slot::RearBeamArrays, e + "Beam Array"},
                         {Slot::Turrets, e + "Turret"},
                         {Slot::RearTorpedoes, p + "Torpedo Launcher"},
                         {Slot::Mines, p + "Mine Launcher"},
                     }}};
}

template <std::size_t N>
const Slot* SlotOf(const std::string& text, const std::array<std::pair<Slot, std::string>, N>& order) {
    for (const auto& [slot, name] : order)
        if (text == name) return &slot;
    return nullptr;
}

int Count(const CalculatorState& s, Slot slot, Vessel v) { return s.WeaponCount[slot][v]; }

} // namespace

void CountWeapons(Calculator& c) {
    CalculatorState& s = c.state;
    for (int slot = 1; slot <= 11; ++slot)
        for (Vessel v = 1; v <= 2; ++v)
            s.WeaponCount[slot][v] = 0;

    const ItemNames alpha = NamesOf(c, 1);
    const ItemNames omega = NamesOf(c, 2);
    auto add = [&s](const Slot* slot, Vessel v) {
        if (slot) ++s.WeaponCount[*slot][v];
    };
    for (int i = 1; i <= 4; ++i) {
        add(SlotOf(c.main.Forward[i].text(), alpha.forward), 1);
        add(SlotOf(c.main.CForward[i].text(), omega.forward), 2);
        add(SlotOf(c.main.Rear[i].text(), alpha.rear), 1);
        add(SlotOf(c.main.CRear[i].text(), omega.rear), 2);
    }
}

WeaponCounts RowCounts(const CalculatorState& s, Vessel v, int row) {
    auto n = [&](Slot slot) { return Count(s, slot, v); };
    WeaponCounts r;
    r.turrets = n(Slot::Turrets);
    r.shuttleBeamArrays = n(Slot::ShuttleBeamArrays);
    switch (row) {
    case 0:
        r.dualHeavyCannons = n(Slot::DualHeavyCannons);
        r.dualCannons = n(Slot::DualCannons);
        r.dualBeamBanks = n(Slot::DualBeamBanks);
        r.cannons = n(Slot::Cannons);
        r.beamArrays = n(Slot::ForwardBeamArrays);
        break;
    case 1:
        r.dualBeamBanks = n(Slot::DualBeamBanks);
        r.cannons = n(Slot::Cannons);
        r.beamArrays = n(Slot::ForwardBeamArrays);
        break;
    case 2:
        r.cannons = n(Slot::Cannons);
        r.beamArrays = n(Slot::ForwardBeamArrays);
        break;
    case 3:
        r.cannons = n(Slot::Cannons);
        r.beamArrays = n(Slot::ForwardBeamArrays) + n(Slot::RearBeamArrays);
        break;
    case 4:
        r.beamArrays = n(Slot::ForwardBeamArrays) + n(Slot::RearBeamArrays);
        break;
    default:
        r.beamArrays = n(Slot::RearBeamArrays);
        break;
    }
    return r;
}

BurstCounts FrontBurstCounts(const CalculatorState& s, Vessel v) {
    BurstCounts b;
    b.torpedoes = Count(s, Slot::ForwardTorpedoes, v);
    b.dualBeamBanks = Count(s, Slot::DualBeamBanks, v);
    b.beamArrays = Count(s, Slot::ForwardBeamArrays, v);
    b.shuttleBeamArrays = Count(s, Slot::ShuttleBeamArrays, v);
    return b;
}

BurstCounts RearBurstCounts(const CalculatorState& s, Vessel v) {
    BurstCounts b;
    b.torpedoes = Count(s, Slot::RearTorpedoes, v);
    b.mines = Count(s, Slot::Mines, v);
    b.beamArrays = Count(s, Slot::RearBeamArrays, v);
    b.shuttleBeamArrays = Count(s, Slot::ShuttleBeamArrays, v);
    return b;
}

} // namespace vantorel
