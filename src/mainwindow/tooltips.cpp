#include "mainwindow/tooltips.h"

#include "engine/numbers.h"

#include <algorithm>
#include <iterator>

namespace vantorel {

namespace {

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
