#pragma once

// Results kept with the inputs they were made from. Every click ends in a
// recalculation that writes each caption and tooltip of the results again,
// and most of them come out as they were: a text whose inputs equal those it
// was last written from is taken as it stands, and is otherwise written anew
// into the same buffer. A kept text belongs to one box, so what is fixed for
// that box (its words, its factor's type) is not part of its inputs. The
// weapon count is kept the same way.
//
// The inputs are everything a text shows, in one record: the records below
// list them. Numbers are compared by value; the texts write a negative zero
// as "0", like a positive one. The calculator owns what is kept (`kept`).

#include "engine/fields.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantorel {

template <typename Inputs> class KeptText {
  public:
    // The text for `inputs`: the kept one if they equal the inputs it was
    // written from, else what `write(text, inputs)` appends to an empty text.
    template <typename Write> const std::string& of(const Inputs& inputs, Write write) {
        if (m_written && inputs == m_inputs) return m_text;
        m_written = false; // a write that fails leaves no text to be taken
        m_text.clear();
        write(m_text, inputs);
        m_inputs = inputs;
        m_written = true;
        return m_text;
    }

  private:
    Inputs m_inputs{};
    std::string m_text;
    bool m_written = false;
};

// What the tooltip of a DPS box shows: for each kind of weapon, in the order
// of the DPS terms, its count and its part of the DPS (0 where none fire),
// and the levels and targets of the skills its entries name.
struct ArcToolTipInputs {
    std::array<int, 7> counts{};
    std::array<float, 7> values{};
    std::int16_t beamSkill = 0;
    std::int16_t rapidFire = 0;
    std::int16_t scatterVolley = 0;
    std::int16_t targets = 0;
    bool operator==(const ArcToolTipInputs&) const = default;
};

// What the tooltip of a burst box shows: the torpedo entry (its type word,
// skill levels, targets, damage and burn), the mine entry and the overload
// entry, each only where it fires.
struct BurstToolTipInputs {
    bool torpedoes = false;
    std::string_view typeWord; // a constant text, "Quantum "
    bool plasma = false;
    int highYield = 0;
    int spread = 0;
    int targets = 0;
    float damage = 0.0f;
    float burn = 0.0f;
    bool mines = false;
    int mineLevel = 0;
    float mineDamage = 0.0f;
    int overloadWeapon = 0; // 0 for no overload entry
    int overloadLevel = 0;
    float overloadDamage = 0.0f;
    bool operator==(const BurstToolTipInputs&) const = default;
};

// The kept texts of one vessel's boxes on the main window.
struct ArcBoxTexts {
    std::array<KeptText<float>, 8> captions;                   // by row of ArcDPS
    std::array<KeptText<ArcToolTipInputs>, 6> tooltips;        // rows 0 to 5
    std::array<KeptText<BurstToolTipInputs>, 2> burstTooltips; // front, rear
};

// What the breakdown of a displayed damage box shows: the factor of its
// weapon kind, the pieces of its damage (each a single, or a double for the
// mines, kept here as the double it widens to exactly), and the mods and
// skills it names.
struct DamageBoxInputs {
    double factor = 0.0;
    std::array<double, 10> pieces{};
    int damageMods = 0;
    float rarityMods = 0.0f;
    int alphaLevel = 0;
    int omegaLevel = 0;
    int teamLevel = 0;
    bool operator==(const DamageBoxInputs&) const = default;
};

// What the caption of a displayed damage box shows: its total times the
// factor of its weapon kind, rounded.
struct DamageCaptionInputs {
    double factor = 0.0;
    float total = 0.0f;
    bool operator==(const DamageCaptionInputs&) const = default;
};

// The kept texts of one displayed damage box.
struct DamageBoxTexts {
    KeptText<DamageCaptionInputs> caption;
    KeptText<DamageBoxInputs> breakdown;
};

// The weapon count as last made, with everything it was made from: the texts
// of the sixteen ports (Alpha's forward, Omega's forward, Alpha's rear and
// Omega's rear port of each number 1 to 4, in that order) and the four type
// words (energy and projectile of Alpha, then of Omega). The ports change
// only when a weapon is chosen, and every other input ends in a count too.
struct KeptCount {
    std::array<std::string, 16> ports;
    std::array<std::string_view, 4> typeWords; // constant texts
    std::array<std::int16_t, 22> counts{};     // WeaponCount[slot][vessel], slot 1 to 11, Alpha first
    bool made = false;
};

// What the recalculation keeps with the inputs it was made from: the weapon
// count, and the texts of the results as last written: the boxes of the main
// window, and on each vessel's settings window the displayed damage boxes
// (CalculatedWeaponDPS[1..7]) and the caption over them, which names the
// weapon power.
struct Kept {
    KeptCount count;
    PerVessel<ArcBoxTexts> arcBoxes;
    PerVessel<Indexed<DamageBoxTexts, 1, 7>> damageBoxes;
    PerVessel<KeptText<int>> displayedDPSCaptions;
};

} // namespace vantorel
