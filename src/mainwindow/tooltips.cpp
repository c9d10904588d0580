#include "mainwindow/tooltips.h"

#include "engine/dpw.h"
#include "engine/numbers.h"
#include "engine/selection.h"

#include <algorithm>

namespace vantorel {

namespace {

// The product of one entry, in the order of the formula. Each step takes the
// wider type: all single for a lone weapon, double once the DPW is a double.
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

std::string CannonSkillPart(const CalculatorState& s, Vessel v) {
    if (s.RapidFire[v] > 0) return " (Rapid Fire" + SignedText(static_cast<int>(s.RapidFire[v])) + "):";
    if (s.ScatterVolley[v] > 0) {
        const std::string head = " (Scatter Volley" + SignedText(static_cast<int>(s.ScatterVolley[v]));
        if (s.SkillTargets[v] < 2) return head + ", 1 Target):";
        // A volley reaches three targets at most.
        return head + "," + SignedText(std::min<int>(s.SkillTargets[v], 3)) + " Targets):";
    }
    return ":";
}

std::string BeamSkillPart(const CalculatorState& s, Vessel v) {
    if (s.BeamSkill[v] == 0) return ":";
    const std::string head = " (Fire At Will" + SignedText(static_cast<int>(s.BeamSkill[v]));
    if (s.SkillTargets[v] < 2) return head + ", 1 Target):";
    return head + "," + SignedText(static_cast<int>(s.SkillTargets[v])) + " Targets):";
}

} // namespace

std::string CalculateToolTip(Calculator& c, const FiringSet& set, Vessel v) {
    return CalculateToolTip(c, FactorsOf(c, v), set, v);
}

std::string CalculateToolTip(Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v) {
    const CalculatorState& s = c.state;
    float boosted = f.criticalBoosted;
    float plain = f.critical;
    // An addition where the DPS multiplies by 1.03375: the parts of a custom
    // tooltip need not add up to the box.
    if (!RelativeMode(c)) {
        boosted += 0.03375f;
        plain += 0.03375f;
    }
    // The words of the kinds, in the order of the terms; dual cannons of
    // both kinds are named in the plural even alone.
    struct Word {
        const char* text;
        bool plural;
    };
    static constexpr Word kWords[7] = {
        {" Dual Heavy Cannons", false}, {" Dual Cannons", false}, {" Dual Beam Bank", true},    {" Cannon", true},
        {" Beam Array", true},          {" Turret", true},        {" Shuttle Beam Array", true}};
    const WeaponTerms terms = TermsOf(c, f, set, v, SkillEffect::Counted);
    const int total = set.weapons.total();
    const int power = set.power;

    std::string text;
    std::string cannonPart;
    std::string beamPart;
    for (std::size_t i = 0; i < terms.size(); ++i) {
        const WeaponTerm& k = terms[i];
        if (k.count <= 0) continue;
        const float value = EntryValue(DPWCalc(s, power, k.row, total), k.count, k.range, k.skill, k.modifier,
                                       k.boosted ? boosted : plain, s.ResistanceFactor[v], s.AccuracyFactor[v]);
        std::string& skillPart = k.beam ? beamPart : cannonPart;
        if (skillPart.empty()) skillPart = k.beam ? BeamSkillPart(s, v) : CannonSkillPart(s, v);
        if (text.empty())
            text.reserve(192);
        else
            text += ", ";
        AppendPlainText(text, k.count);
        text += kWords[i].text;
        if (kWords[i].plural && k.count > 1) text += 's';
        text += skillPart;
        AppendSignedText(text, value);
    }
    return text;
}

} // namespace vantorel
