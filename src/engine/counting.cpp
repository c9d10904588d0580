#include "engine/calculator.h"

#include <array>
#include <utility>

namespace vantorel {

namespace {

enum Slot {
    DualHeavyCannons = 1,
    DualCannons = 2,
    DualBeamBanks = 3,
    Cannons = 4,
    ForwardBeamArrays = 5,
    Turrets = 6,
    RearBeamArrays = 7,
    ForwardTorpedoes = 8,
    RearTorpedoes = 9,
    Mines = 10,
    ShuttleBeamArrays = 11,
};

// The item texts carry the damage type of the vessel, so a port only counts
// while its text matches the vessel's current types exactly. The texts are
// made once per count, not once per port.
struct ItemNames {
    std::array<std::pair<Slot, std::string>, 8> forward;
    std::array<std::pair<Slot, std::string>, 4> rear;
};

ItemNames NamesOf(const Calculator& c, Vessel v) {
    const std::string e = GetDamageType(c, v, 1);
    const std::string p = GetDamageType(c, v, 2);
    return ItemNames{{{
                         {DualHeavyCannons, e + "Dual Heavy Cannons"},
                         {DualCannons, e + "Dual Cannons"},
                         {DualBeamBanks, "Dual " + e + "Beam Bank"},
                         {Cannons, e + "Cannon"},
                         {ForwardBeamArrays, e + "Beam Array"},
                         {Turrets, e + "Turret"},
                         {ForwardTorpedoes, p + "Torpedo Launcher"},
                         {ShuttleBeamArrays, "Shuttle " + e + "Beam Array"},
                     }},
                     {{
                         {RearBeamArrays, e + "Beam Array"},
                         {Turrets, e + "Turret"},
                         {RearTorpedoes, p + "Torpedo Launcher"},
                         {Mines, p + "Mine Launcher"},
                     }}};
}

template <std::size_t N> int SlotOf(const std::string& text, const std::array<std::pair<Slot, std::string>, N>& order) {
    for (const auto& [slot, name] : order)
        if (text == name) return slot;
    return 0;
}

} // namespace

void CountWeapons(Calculator& c) {
    CalculatorState& s = c.state;
    for (int slot = 1; slot <= 11; ++slot)
        for (Vessel v = 1; v <= 2; ++v)
            s.WeaponCount[slot][v] = 0;

    const ItemNames alpha = NamesOf(c, 1);
    const ItemNames omega = NamesOf(c, 2);
    auto add = [&s](int slot, Vessel v) {
        if (slot > 0) ++s.WeaponCount[slot][v];
    };
    for (int i = 1; i <= 4; ++i) {
        add(SlotOf(c.main.Forward[i].text(), alpha.forward), 1);
        add(SlotOf(c.main.CForward[i].text(), omega.forward), 2);
        add(SlotOf(c.main.Rear[i].text(), alpha.rear), 1);
        add(SlotOf(c.main.CRear[i].text(), omega.rear), 2);
    }
}

} // namespace vantorel
