#include "mainwindow/tooltips.h"

#include "engine/dpw.h"
#include "engine/numbers.h"
#include "engine/selection.h"

#include <algorithm>
#include <iterator>

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

// " (Rapid Fire 2):", " (Scatter Volley 1, 2 Targets):" or ":".
void AppendCannonSkill(std::string& out, const ArcToolTipInputs& in) {
    if (in.rapidFire > 0) {
        out += " (Rapid Fire";
        AppendSignedText(out, static_cast<int>(in.rapidFire));
        out += "):";
    } else if (in.scatterVolley > 0) {
        out += " (Scatter Volley";
        AppendSignedText(out, static_cast<int>(in.scatterVolley));
        if (in.targets < 2) {
            out += ", 1 Target):";
        } else {
            // A volley reaches three targets at most.
            out += ',';
            AppendSignedText(out, std::min<int>(in.targets, 3));
            out += " Targets):";
        }
    } else {
        out += ':';
    }
}

// " (Fire At Will 1, 1 Target):" or ":".
void AppendBeamSkill(std::string& out, const ArcToolTipInputs& in) {
    if (in.beamSkill == 0) {
        out += ':';
        return;
    }
    out += " (Fire At Will";
    AppendSignedText(out, static_cast<int>(in.beamSkill));
    if (in.targets < 2) {
        out += ", 1 Target):";
        return;
    }
    out += ',';
    AppendSignedText(out, static_cast<int>(in.targets));
    out += " Targets):";
}

} // namespace

std::string CalculateToolTip(Calculator& c, const FiringSet& set, Vessel v) {
    return CalculateToolTip(c, FactorsOf(c, v), set, v);
}

std::string CalculateToolTip(Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v) {
    std::string text;
    WriteToolTip(text, ToolTipInputsOf(c, f, set, v));
    return text;
}

ArcToolTipInputs ToolTipInputsOf(const Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v) {
    const CalculatorState& s = c.state;
    float boosted = f.criticalBoosted;
    float plain = f.critical;
    // An addition where the DPS multiplies by 1.03375: the parts of a custom
    // tooltip need not add up to the box.
    if (!RelativeMode(c)) {
        boosted += 0.03375f;
        plain += 0.03375f;
    }
    const WeaponTerms terms = TermsOf(c, f, set, v, SkillEffect::Counted);
    const int total = set.weapons.total();
    const int power = set.power;

    ArcToolTipInputs in;
    for (std::size_t i = 0; i < terms.size(); ++i) {
        const WeaponTerm& k = terms[i];
        if (k.count <= 0) continue;
        in.counts[i] = k.count;
        in.values[i] = EntryValue(DPWCalc(s, power, k.row, total), k.count, k.range, k.skill, k.modifier,
                                  k.boosted ? boosted : plain, s.ResistanceFactor[v], s.AccuracyFactor[v]);
    }
    in.beamSkill = s.BeamSkill[v];
    in.rapidFire = s.RapidFire[v];
    in.scatterVolley = s.ScatterVolley[v];
    in.targets = s.SkillTargets[v];
    return in;
}

void WriteToolTip(std::string& out, const ArcToolTipInputs& in) {
    // The words of the kinds, in the order of the terms; dual cannons of
    // both kinds are named in the plural even alone. Beams name Fire At
    // Will, the others the cannon skills.
    struct Word {
        const char* text;
        bool plural;
        bool beam;
    };
    static constexpr Word kWords[7] = {{" Dual Heavy Cannons", false, false}, {" Dual Cannons", false, false},
                                       {" Dual Beam Bank", true, true},       {" Cannon", true, false},
                                       {" Beam Array", true, true},           {" Turret", true, false},
                                       {" Shuttle Beam Array", true, true}};
    for (std::size_t i = 0; i < std::size(kWords); ++i) {
        const int count = in.counts[i];
        if (count <= 0) continue;
        if (!out.empty()) out += ", ";
        AppendPlainText(out, count);
        out += kWords[i].text;
        if (kWords[i].plural && count > 1) out += 's';
        if (kWords[i].beam)
            AppendBeamSkill(out, in);
        else
            AppendCannonSkill(out, in);
        AppendSignedText(out, in.values[i]);
    }
}

} // namespace vantorel
