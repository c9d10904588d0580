#include "engine/counting.h"

#include "engine/selection.h"

#include <string_view>

namespace vantorel {

namespace {

// The item texts carry the damage type of the vessel, so a port only counts
// while its text matches the vessel's current types exactly. A name is its
// type word between a head and a tail ("Dual " + "Phaser " + "Beam Bank"),
// compared in place: the count runs on every recalculation and builds no text.
struct ItemName {
    Slot slot;
    std::string_view head;
    DamageGroup type;
    std::string_view tail;
};

// In the order a port's text is tried.
constexpr ItemName kForwardNames[8] = {
    {Slot::DualHeavyCannons, "", DamageGroup::Energy, "Dual Heavy Cannons"},
    {Slot::DualCannons, "", DamageGroup::Energy, "Dual Cannons"},
    {Slot::DualBeamBanks, "Dual ", DamageGroup::Energy, "Beam Bank"},
    {Slot::Cannons, "", DamageGroup::Energy, "Cannon"},
    {Slot::ForwardBeamArrays, "", DamageGroup::Energy, "Beam Array"},
    {Slot::Turrets, "", DamageGroup::Energy, "Turret"},
    {Slot::ForwardTorpedoes, "", DamageGroup::Projectile, "Torpedo Launcher"},
    {Slot::ShuttleBeamArrays, "Shuttle ", DamageGroup::Energy, "Beam Array"},
};
constexpr ItemName kRearNames[4] = {
    {Slot::RearBeamArrays, "", DamageGroup::Energy, "Beam Array"},
    {Slot::Turrets, "", DamageGroup::Energy, "Turret"},
    {Slot::RearTorpedoes, "", DamageGroup::Projectile, "Torpedo Launcher"},
    {Slot::Mines, "", DamageGroup::Projectile, "Mine Launcher"},
};

// The vessel's two type words, read once per count.
struct TypeWords {
    std::string_view energy;
    std::string_view projectile;
    std::string_view of(DamageGroup group) const { return group == DamageGroup::Energy ? energy : projectile; }
};

// The names a port on one side of a vessel can hold, with their lengths,
// worked out once per count: a port's text is compared only with the names
// of its own length, and most names are told apart by it.
template <std::size_t N> class PortNames {
  public:
    PortNames(const ItemName (&order)[N], const TypeWords& words) : m_order(order), m_words(words) {
        for (std::size_t i = 0; i < N; ++i)
            m_length[i] = order[i].head.size() + words.of(order[i].type).size() + order[i].tail.size();
    }

    const Slot* slotOf(std::string_view text) const {
        for (std::size_t i = 0; i < N; ++i) {
            if (text.size() != m_length[i]) continue;
            const ItemName& name = m_order[i];
            const std::string_view type = m_words.of(name.type);
            if (text.starts_with(name.head) && text.compare(name.head.size(), type.size(), type) == 0 &&
                text.ends_with(name.tail))
                return &name.slot;
        }
        return nullptr;
    }

  private:
    const ItemName (&m_order)[N];
    TypeWords m_words;
    std::size_t m_length[N];
};

int Count(const CalculatorState& s, Slot slot, Vessel v) { return s.WeaponCount[slot][v]; }

} // namespace

void CountWeapons(Calculator& c) {
    CalculatorState& s = c.state;
    for (int slot = 1; slot <= 11; ++slot)
        for (Vessel v = 1; v <= 2; ++v)
            s.WeaponCount[slot][v] = 0;

    const TypeWords alpha{GetDamageType(c, 1, DamageGroup::Energy), GetDamageType(c, 1, DamageGroup::Projectile)};
    const TypeWords omega{GetDamageType(c, 2, DamageGroup::Energy), GetDamageType(c, 2, DamageGroup::Projectile)};
    const PortNames alphaForward(kForwardNames, alpha), omegaForward(kForwardNames, omega);
    const PortNames alphaRear(kRearNames, alpha), omegaRear(kRearNames, omega);
    auto add = [&s](const Slot* slot, Vessel v) {
        if (slot) ++s.WeaponCount[*slot][v];
    };
    for (int i = 1; i <= 4; ++i) {
        add(alphaForward.slotOf(c.main.Forward[i].text()), 1);
        add(omegaForward.slotOf(c.main.CForward[i].text()), 2);
        add(alphaRear.slotOf(c.main.Rear[i].text()), 1);
        add(omegaRear.slotOf(c.main.CRear[i].text()), 2);
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
