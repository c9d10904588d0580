#include "engine/counting.h"

#include "engine/selection.h"

#include <array>
#include <string>
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
    const MainSelection& m = c.main;
    const std::array<std::string_view, 4> words{
        GetDamageType(c, 1, DamageGroup::Energy), GetDamageType(c, 1, DamageGroup::Projectile),
        GetDamageType(c, 2, DamageGroup::Energy), GetDamageType(c, 2, DamageGroup::Projectile)};
    const std::array<const std::string*, 16> ports{
        &m.Forward[1].text(), &m.CForward[1].text(), &m.Rear[1].text(), &m.CRear[1].text(),
        &m.Forward[2].text(), &m.CForward[2].text(), &m.Rear[2].text(), &m.CRear[2].text(),
        &m.Forward[3].text(), &m.CForward[3].text(), &m.Rear[3].text(), &m.CRear[3].text(),
        &m.Forward[4].text(), &m.CForward[4].text(), &m.Rear[4].text(), &m.CRear[4].text()};

    // The count is made anew only when a port or a type word differs from
    // those it was last made from (see KeptCount).
    KeptCount& kept = c.kept.count;
    bool same = kept.made && kept.typeWords == words;
    for (std::size_t i = 0; same && i < ports.size(); ++i)
        same = kept.ports[i] == *ports[i];
    if (!same) {
        kept.made = false;
        const TypeWords alpha{words[0], words[1]};
        const TypeWords omega{words[2], words[3]};
        const PortNames alphaForward(kForwardNames, alpha), omegaForward(kForwardNames, omega);
        const PortNames alphaRear(kRearNames, alpha), omegaRear(kRearNames, omega);
        const Slot* slots[16];
        for (std::size_t i = 0; i < ports.size(); i += 4) {
            slots[i] = alphaForward.slotOf(*ports[i]);
            slots[i + 1] = omegaForward.slotOf(*ports[i + 1]);
            slots[i + 2] = alphaRear.slotOf(*ports[i + 2]);
            slots[i + 3] = omegaRear.slotOf(*ports[i + 3]);
        }
        kept.counts.fill(0);
        for (std::size_t i = 0; i < ports.size(); ++i) {
            // Alpha's ports are the first and third of each four.
            const std::size_t vessel = i % 2;
            if (slots[i]) ++kept.counts[(static_cast<std::size_t>(*slots[i]) - 1) * 2 + vessel];
            kept.ports[i] = *ports[i];
        }
        kept.typeWords = words;
        kept.made = true;
    }

    CalculatorState& s = c.state;
    for (int slot = 1; slot <= 11; ++slot)
        for (Vessel v = 1; v <= 2; ++v)
            s.WeaponCount[slot][v] = kept.counts[static_cast<std::size_t>((slot - 1) * 2 + (v - 1))];
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
