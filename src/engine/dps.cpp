#include "engine/dps.h"

#include "engine/combat.h"
#include "engine/dpw.h"
#include "engine/marks.h"
#include "engine/numbers.h"
#include "engine/power.h"
#include "engine/selection.h"

#include <algorithm>
#include <string_view>
#include <type_traits>

namespace vantorel {

namespace {

// Beams fall off evenly from the first km; cannons and turrets hold full
// damage to 2 km and then fall off faster.
constexpr float kBeamRange[10] = {1.0f,       0.9611111f,  0.9222222f, 0.8833333f, 0.84444445f,
                                  0.8055556f, 0.76666665f, 0.7277778f, 0.6888889f, 0.65f};
constexpr float kCannonRange[10] = {1.0f,   1.0f,     0.91875f, 0.8375f,  0.75625f,
                                    0.675f, 0.59375f, 0.5125f,  0.43125f, 0.35f};

constexpr float kSkillPoints[3][9] = {
    {6.0f, 10.0f, 12.0f, 14.0f, 15.0f, 16.0f, 17.0f, 17.5f, 18.0f},
    {8.0f, 14.0f, 18.0f, 22.0f, 24.0f, 26.0f, 28.0f, 29.0f, 30.0f},
    {10.0f, 18.0f, 24.0f, 30.0f, 36.0f, 40.0f, 44.0f, 48.0f, 52.0f},
};

// The Attack Vectors level that switches critical hits off altogether.
constexpr int kNoCriticalLevel = 47;

// One weapon term, ((((count × D) × R) × S) × M) × C, in the precision of
// the DPW: a lone weapon is summed in single, a group in double.
template <typename T> T Term(int count, T dpw, float range, float skill, float modifier, float critical) {
    T t = static_cast<T>(count) * dpw;
    t = t * static_cast<T>(range);
    t = t * static_cast<T>(skill);
    t = t * static_cast<T>(modifier);
    t = t * static_cast<T>(critical);
    return t;
}

template <typename T> T ValueOf(const DPW& d) {
    if constexpr (std::is_same_v<T, float>)
        return d.single;
    else
        return d.dbl;
}

// The terms added in the order of the kinds, then scaled by resistance and
// accuracy. A term of no weapons adds nothing and is left out. `each` is
// shown each term that adds, with its DPW.
template <typename T, typename Each>
T SumOfTerms(const CalculatorState& s, const WeaponTerms& terms, int power, int total, float crit, float critBoosted,
             float resistance, float accuracy, Each each) {
    T sum = 0;
    for (std::size_t i = 0; i < terms.size(); ++i) {
        const WeaponTerm& w = terms[i];
        if (w.count == 0) continue;
        const DPW dpw = DPWCalc(s, power, w.row, total);
        each(i, dpw);
        sum = sum + Term(w.count, ValueOf<T>(dpw), w.range, w.skill, w.modifier, w.boosted ? critBoosted : crit);
    }
    sum = sum * static_cast<T>(resistance);
    sum = sum * static_cast<T>(accuracy);
    return sum;
}

// The DPS of a set from its terms, rounded to three decimals; `each` is shown
// each term that adds to it, with its DPW.
template <typename Each>
float DPSOf(const Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v, const WeaponTerms& terms,
            Each each) {
    const WeaponCounts& counts = set.weapons;
    const int power = set.power;
    const int total = counts.total();

    float crit = f.critical;
    float critBoosted = f.criticalBoosted;
    if (!RelativeMode(c)) {
        crit = static_cast<float>(crit * 1.03375);
        critBoosted = static_cast<float>(critBoosted * 1.03375);
    }
    const float resistance = c.state.ResistanceFactor[v];
    const float accuracy = c.state.AccuracyFactor[v];

    float result = 0.0f;
    if (total == 1) {
        result =
            Round(SumOfTerms<float>(c.state, terms, power, total, crit, critBoosted, resistance, accuracy, each), 3);
    } else if (total >= 2) {
        result = static_cast<float>(
            Round(SumOfTerms<double>(c.state, terms, power, total, crit, critBoosted, resistance, accuracy, each), 3));
    }

    // No test ever fired dual cannons of either kind among eight weapons.
    if (total > 7 && (counts.dualHeavyCannons > 0 || counts.dualCannons > 0)) return -1.0f;
    return result;
}

// The product of one tooltip entry, in the order of the formula. Each step
// takes the wider type: all single for a lone weapon, double once the DPW is
// a double.
template <typename T>
float EntryValue(T dpw, int count, float range, float skill, float modifier, float critical, float resistance,
                 float accuracy) {
    const auto value = dpw * static_cast<T>(count) * range * skill * modifier * critical * resistance * accuracy;
    return Round(static_cast<float>(value), 3);
}

float EntryValue(const DPW& dpw, int count, float range, float skill, float modifier, float critical, float resistance,
                 float accuracy) {
    switch (dpw.type) {
    case DPW::Type::Double:
        return EntryValue(dpw.dbl, count, range, skill, modifier, critical, resistance, accuracy);
    case DPW::Type::Single:
        return EntryValue(dpw.single, count, range, skill, modifier, critical, resistance, accuracy);
    case DPW::Type::Zero:
        break;
    }
    return 0.0f;
}

// The tooltip of a set from its terms: each entry as the DPW of its term
// gives it, and the skill levels its words name.
class ToolTipParts {
  public:
    ToolTipParts(const Calculator& c, const VesselFactors& f, const WeaponTerms& terms, Vessel v)
        : m_terms(terms), m_resistance(c.state.ResistanceFactor[v]), m_accuracy(c.state.AccuracyFactor[v]) {
        const CalculatorState& s = c.state;
        m_boosted = f.criticalBoosted;
        m_plain = f.critical;
        // An addition where the DPS multiplies by 1.03375: the parts of a
        // custom tooltip need not add up to the box.
        if (!RelativeMode(c)) {
            m_boosted += 0.03375f;
            m_plain += 0.03375f;
        }
        m_inputs.beamSkill = s.BeamSkill[v];
        m_inputs.rapidFire = s.RapidFire[v];
        m_inputs.scatterVolley = s.ScatterVolley[v];
        m_inputs.targets = s.SkillTargets[v];
    }

    // The entry of term `i`, which has weapons.
    void add(std::size_t i, const DPW& dpw) {
        const WeaponTerm& k = m_terms[i];
        m_inputs.counts[i] = k.count;
        m_inputs.values[i] = EntryValue(dpw, k.count, k.range, k.skill, k.modifier, k.boosted ? m_boosted : m_plain,
                                        m_resistance, m_accuracy);
    }

    const ArcToolTipInputs& inputs() const { return m_inputs; }

  private:
    const WeaponTerms& m_terms;
    float m_resistance;
    float m_accuracy;
    float m_boosted = 1.0f;
    float m_plain = 1.0f;
    ArcToolTipInputs m_inputs;
};

// The torpedo type without its trailing blank: "Quantum", "Plasma", ...
std::string_view TorpedoType(const Calculator& c, Vessel v) {
    std::string_view type = GetDamageType(c, v, DamageGroup::Projectile);
    while (!type.empty() && type.back() == ' ')
        type.remove_suffix(1);
    return type;
}

// One torpedo's damage factor under each level of the two torpedo skills.
struct TorpedoFactors {
    std::string_view type;
    float highYield[3];
    float spread[3];
};

constexpr TorpedoFactors kTorpedoFactors[] = {
    {"Quantum", {2.227f, 2.585f, 2.947f}, {1.893f, 2.198f, 2.506f}},
    {"Photon", {2.167f, 2.565f, 2.97f}, {1.843f, 2.182f, 2.524f}},
    {"Plasma", {2.594f, 3.0f, 3.405f}, {1.832f, 2.169f, 2.51f}},
    {"Chroniton", {1.723f, 1.97f, 2.219f}, {1.446f, 1.674f, 1.886f}},
    {"Transphasic", {1.723f, 1.97f, 2.219f}, {1.464f, 1.674f, 1.886f}},
};

const TorpedoFactors* TorpedoFactorsOf(std::string_view type) {
    for (const TorpedoFactors& row : kTorpedoFactors)
        if (row.type == type) return &row;
    return nullptr;
}

// The factor of the activated torpedo skill on a torpedo type.
float TorpedoSkillOf(const Calculator& c, Vessel v, std::string_view type) {
    const CalculatorState& s = c.state;
    // Tricobalt, or no type at all: no skill multiplies it.
    if (TorpedoFactorsOf(type) == nullptr) return 1.0f;

    const int highYield = s.TorpedoHighYield[v];
    if (highYield >= 1 && highYield <= 3) return TorpedoSkillFactor(type, TorpedoSkill::HighYield, highYield);
    const int spread = s.TorpedoSpread[v];
    if (spread >= 1 && spread <= 3) {
        const int targets = std::min<int>(s.SkillTargets[v], 3 * spread);
        return TorpedoSkillFactor(type, TorpedoSkill::Spread, spread) * static_cast<float>(targets);
    }
    return 1.0f;
}

} // namespace

float GetRangeMod(int distance, RangeGroup group) {
    const int d = std::clamp(distance, 0, 9);
    return group == RangeGroup::Beams ? kBeamRange[d] : kCannonRange[d];
}

float BeamSkillModifier(const Calculator& c, Vessel v) {
    static constexpr float kFactor[4] = {1.0f, 1.2f, 1.275f, 1.35f};
    const int level = std::clamp<int>(c.state.BeamSkill[v], 0, 3);
    float factor = kFactor[level];
    // Fire At Will reaches one extra target at most.
    if (level >= 1 && c.state.SkillTargets[v] > 1) factor = factor * 2.0f;
    return factor;
}

float CannonSkillModifier(const Calculator& c, Vessel v, CannonMount mount) {
    static constexpr float kRapid[3] = {1.3f, 1.4f, 1.5f};
    static constexpr float kScatter[3] = {1.15f, 1.2f, 1.25f};
    static constexpr float kScatterTurret[3] = {1.168f, 1.45f, 1.733f};
    const int rapid = c.state.RapidFire[v];
    if (rapid >= 1) return kRapid[std::min(rapid, 3) - 1];
    const int scatter = c.state.ScatterVolley[v];
    if (scatter >= 1) {
        const int level = std::min(scatter, 3) - 1;
        const float factor = mount == CannonMount::Turret ? kScatterTurret[level] : kScatter[level];
        const int targets = std::min<int>(c.state.SkillTargets[v], 3);
        return factor * static_cast<float>(targets);
    }
    return 1.0f;
}

float SkillPoints(int table, int level) {
    if (level < 1 || level > 9 || table < 1) return 0.0f;
    return kSkillPoints[std::min(table, 3) - 1][level - 1];
}

CriticalRates CriticalRatesOf(const Calculator& c, Vessel v) {
    const VesselSettings& set = c.settings[v];
    float ch;
    float sev;
    int vectors = 0;
    if (set.CriticalSettings.value() == 0) {
        vectors = WholeNumberOf(set.CriticalSkill[1].text(), 0);
        const int strategy = WholeNumberOf(set.CriticalSkill[3].text(), 0);
        ch = 0.025f + (SkillPoints(1, vectors) * 2.0f) / 1800.0f;
        sev = 0.5f + (SkillPoints(3, strategy) * 25.0f) / 5200.0f;
        if (set.CriticalItem.index() >= 2) {
            ch += 0.0092f;
            sev += 0.092f;
        }
    } else {
        ch = 0.045f;
        sev = 0.75f;
    }
    // Every bonus below is added to both severities in the same order.
    float plain = sev;
    float boosted = sev + 0.1f;
    auto addSeverity = [&plain, &boosted](float amount) {
        plain += amount;
        boosted += amount;
    };

    const float excess = c.state.ExcessAccuracy[v];
    ch += excess / 1000.0f;
    addSeverity(excess / 100.0f);

    if (!RelativeMode(c)) {
        for (int i = 1; i <= 3; ++i) {
            const int mod = set.WeaponMod[i].index();
            if (mod == 2) addSeverity(0.2f);
            if (mod == 3) ch += 0.02f;
        }
    }

    const int alpha = c.state.AttackPatternAlpha[v];
    if (alpha > 0) {
        const float skill = static_cast<float>(GetAttackPatternSkill(c, v));
        switch (alpha) {
        case 1:
            ch += 0.012f + 0.00012f * skill;
            addSeverity(0.12f + 0.0012f * skill);
            break;
        case 2:
            ch += 0.016f + 0.00016f * skill;
            addSeverity(0.16f + 0.0016f * skill);
            break;
        default:
            ch += 0.02f + 0.0002f * skill;
            addSeverity(0.2f + 0.002f * skill);
            break;
        }
    }
    return {ch, plain, boosted, vectors == kNoCriticalLevel};
}

float CriticalMultiplier(const CriticalRates& rates, Severity boost, float chance, float severity) {
    if (rates.off) return 1.0f;
    const float ch = rates.chance + chance;
    const float sev = (boost == Severity::Boosted ? rates.boostedSeverity : rates.severity) + severity;
    return ch * sev + 1.0f;
}

float CriticalMultiplier(const Calculator& c, Vessel v, Severity boost, float chance, float severity) {
    return CriticalMultiplier(CriticalRatesOf(c, v), boost, chance, severity);
}

int GetRange(const Calculator& c, Vessel v) {
    int index;
    if (v == 1) {
        index = c.main.TargetDistance[1].index();
    } else {
        const int own = c.main.TargetDistance[2].index();
        index = own == 0 ? c.main.TargetDistance[1].index() : own - 1;
    }
    return std::max(index, 0);
}

float TorpedoSkillFactor(std::string_view type, TorpedoSkill skill, int level) {
    const TorpedoFactors* row = TorpedoFactorsOf(type);
    if (row == nullptr || level < 1 || level > 3) return 1.0f;
    return skill == TorpedoSkill::HighYield ? row->highYield[level - 1] : row->spread[level - 1];
}

float GetTorpedoSkill(const Calculator& c, Vessel v) { return TorpedoSkillOf(c, v, TorpedoType(c, v)); }

VesselFactors FactorsOf(const Calculator& c, Vessel v) {
    VesselFactors f;
    f.beamSkill = BeamSkillModifier(c, v);
    f.cannonSkill = CannonSkillModifier(c, v, CannonMount::Fixed);
    f.turretSkill = CannonSkillModifier(c, v, CannonMount::Turret);
    f.rates = CriticalRatesOf(c, v);
    f.critical = CriticalMultiplier(f.rates, Severity::Plain, 0.0f, 0.0f);
    f.criticalBoosted = CriticalMultiplier(f.rates, Severity::Boosted, 0.0f, 0.0f);
    f.power = GetPowerLevel(c, v, Bonus::With);
    f.distance = GetRange(c, v);
    const CalculatorState& s = c.state;
    const std::string_view torpedoes = TorpedoType(c, v);
    if (s.TorpedoHighYield[v] > 0 || s.TorpedoSpread[v] > 0) f.torpedoSkill = TorpedoSkillOf(c, v, torpedoes);
    f.plasmaTorpedoes = torpedoes == "Plasma";
    return f;
}

float CalculateDPS(Calculator& c, const FiringSet& set, Vessel v, SkillEffect skills) {
    return CalculateDPS(c, FactorsOf(c, v), set, v, skills);
}

WeaponTerms TermsOf(const Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v, SkillEffect skills) {
    const WeaponCounts& n = set.weapons;
    const int distance = set.distance;
    const bool counted = skills == SkillEffect::Counted;
    const float beamSkill = counted ? f.beamSkill : 1.0f;
    const float cannonSkill = counted ? f.cannonSkill : 1.0f;
    const float turretSkill = counted ? f.turretSkill : 1.0f;
    const float beamRange = GetRangeMod(distance, RangeGroup::Beams);
    const float cannonRange = GetRangeMod(distance, RangeGroup::Cannons);
    const float cannonMod = c.state.CannonModifier[v];
    const float beamMod = c.state.BeamModifier[v];
    // A shuttle array is read as a Beam Array and scaled to its own damage.
    const float shuttleMod = n.shuttleBeamArrays > 0 ? ShuttleArrayModifier(c, f.rates, v, n.shuttleBeamArrays) : 0.0f;
    return {{
        {n.dualHeavyCannons, 1, false, cannonRange, cannonSkill, cannonMod, true},
        {n.dualCannons, 2, false, cannonRange, cannonSkill, cannonMod, false},
        {n.dualBeamBanks, 3, true, beamRange, beamSkill, beamMod, false},
        {n.cannons, 4, false, cannonRange, cannonSkill, cannonMod, false},
        {n.beamArrays, 5, true, beamRange, beamSkill, beamMod, false},
        {n.turrets, 6, false, cannonRange, turretSkill, cannonMod, false},
        {n.shuttleBeamArrays, 5, true, beamRange, beamSkill, shuttleMod, false},
    }};
}

float CalculateDPS(Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v, SkillEffect skills) {
    return DPSOf(c, f, set, v, TermsOf(c, f, set, v, skills), [](std::size_t, const DPW&) {});
}

ArcToolTipInputs ToolTipInputsOf(const Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v) {
    const WeaponTerms terms = TermsOf(c, f, set, v, SkillEffect::Counted);
    const int total = set.weapons.total();
    ToolTipParts parts(c, f, terms, v);
    for (std::size_t i = 0; i < terms.size(); ++i)
        if (terms[i].count > 0) parts.add(i, DPWCalc(c.state, set.power, terms[i].row, total));
    return parts.inputs();
}

RowResult CalculateRow(Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v) {
    const WeaponTerms terms = TermsOf(c, f, set, v, SkillEffect::Counted);
    ToolTipParts parts(c, f, terms, v);
    const float dps = DPSOf(c, f, set, v, terms, [&parts](std::size_t i, const DPW& dpw) { parts.add(i, dpw); });
    return {dps, parts.inputs()};
}

} // namespace vantorel
