#include "engine/calculator.h"

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

struct Prefixes {
    std::string energy;
    std::string projectile;
};

// The item texts carry the damage type of the vessel, so a port only counts
// while its text matches the vessel's current types exactly.
int ForwardSlot(const std::string& text, const Prefixes& p) {
    const std::pair<Slot, std::string> order[] = {
        {DualHeavyCannons, p.energy + "Dual Heavy Cannons"},
        {DualCannons, p.energy + "Dual Cannons"},
        {DualBeamBanks, "Dual " + p.energy + "Beam Bank"},
        {Cannons, p.energy + "Cannon"},
        {ForwardBeamArrays, p.energy + "Beam Array"},
        {Turrets, p.energy + "Turret"},
        {ForwardTorpedoes, p.projectile + "Torpedo Launcher"},
        {ShuttleBeamArrays, "Shuttle " + p.energy + "Beam Array"},
    };
    for (const auto& [slot, name] : order)
        if (text == name) return slot;
    return 0;
}

int RearSlot(const std::string& text, const Prefixes& p) {
    const std::pair<Slot, std::string> order[] = {
        {RearBeamArrays, p.energy + "Beam Array"},
        {Turrets, p.energy + "Turret"},
        {RearTorpedoes, p.projectile + "Torpedo Launcher"},
        {Mines, p.projectile + "Mine Launcher"},
    };
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

    const PerVessel<Prefixes> prefixes{{Prefixes{GetDamageType(c, 1, 1), GetDamageType(c, 1, 2)},
                                        Prefixes{GetDamageType(c, 2, 1), GetDamageType(c, 2, 2)}}};
    auto add = [&s](int slot, Vessel v) {
        if (slot > 0) ++s.WeaponCount[slot][v];
    };
    for (int i = 1; i <= 4; ++i) {
        add(ForwardSlot(c.main.Forward[i].text(), prefixes[1]), 1);
        add(ForwardSlot(c.main.CForward[i].text(), prefixes[2]), 2);
        add(RearSlot(c.main.Rear[i].text(), prefixes[1]), 1);
        add(RearSlot(c.main.CRear[i].text(), prefixes[2]), 2);
    }
}

} // namespace vantorel
