#include "engine/burst.h"

#include "engine/dps.h"
#include "engine/modifiers.h"
#include "engine/numbers.h"
#include "engine/selection.h"

#include <algorithm>
#include <string_view>

namespace vantorel {

namespace {

// Everything here is single precision, constants included.
constexpr float kPlasmaBurn = 1.0825f;    // 8.25% on top, the burn at its average
constexpr float kHeavyPlasmaBurn = 1.16f; // 16% on each target of a Heavy Plasma Torpedo
constexpr float kBurnShare = 0.0825f;
constexpr float kHeavyBurnShare = 0.16f;
constexpr float kBurnChance = 0.33f;
constexpr float kMinesPerTorpedo = 1.25f;
constexpr float kOverloadPower = 0.8f;
constexpr float kDamageToDPW = 0.8889786f;
constexpr float kMineFactor[4] = {1, 1.6f, 2.4f, 3.2f};
constexpr float kOverloadFactor[4] = {0, 6.041f, 7.253f, 8.467f};

float MineFactor(int level) { return level >= 0 && level <= 3 ? kMineFactor[level] : 1.0f; }

// The one weapon that overloads: the first present of dual beam bank, beam
// array, shuttle beam array. 0 for none.
int OverloadWeapon(const BurstCounts& n) {
    if (n.dualBeamBanks > 0) return 1;
    if (n.beamArrays > 0) return 2;
    if (n.shuttleBeamArrays > 0) return 3;
    return 0;
}

// Overload term before the last rounding: the plain DPS of that one weapon.
float OverloadTerm(Calculator& c, const VesselFactors& f, int weapon, Vessel v) {
    FiringSet one;
    one.weapons.dualBeamBanks = weapon == 1 ? 1 : 0;
    one.weapons.beamArrays = weapon == 2 ? 1 : 0;
    one.weapons.shuttleBeamArrays = weapon == 3 ? 1 : 0;
    one.power = f.power;
    one.distance = f.distance;
    const float dps = CalculateDPS(c, f, one, v, SkillEffect::Ignored);
    const CalculatorState& s = c.state;
    const float factor = kOverloadFactor[std::clamp<int>(s.BeamOverload[v], 0, 3)];
    // Applied a second time on purpose: the weapon's DPS holds both already.
    return ((dps * factor) / kOverloadPower / kDamageToDPW) * s.ResistanceFactor[v] * s.AccuracyFactor[v];
}

float MineTerm(const Calculator& c, float critical, Vessel v) {
    const CalculatorState& s = c.state;
    const float m = MineFactor(s.MineSkill[v]);
    if (RelativeMode(c))
        return BaseProjectileDamage(c, v) * kMinesPerTorpedo * critical * s.ResistanceFactor[v] * s.AccuracyFactor[v] *
               m;
    return m * s.MineDamage[v] * critical * s.ResistanceFactor[v] * s.AccuracyFactor[v];
}

// " (1 Target):", " (3 Targets):".
void AppendTargets(std::string& out, int n) {
    if (n == 1) {
        out += " (1 Target):";
        return;
    }
    out += " (";
    AppendPlainText(out, n);
    out += " Targets):";
}

} // namespace

float CalculateBurst(Calculator& c, const BurstCounts& n, Vessel v) { return CalculateBurst(c, FactorsOf(c, v), n, v); }

float CalculateBurst(Calculator& c, const VesselFactors& f, const BurstCounts& n, Vessel v) {
    const CalculatorState& s = c.state;
    float sum = 0.0f;
    const float critical = f.critical;

    if (n.torpedoes > 0) {
        const float t = f.torpedoSkill;
        float withBurn = 1.0f;
        if (f.plasmaTorpedoes)
            withBurn =
                s.TorpedoHighYield[v] > 0 ? static_cast<float>(s.SkillTargets[v]) * kHeavyPlasmaBurn : kPlasmaBurn;
        if (RelativeMode(c))
            sum = BaseProjectileDamage(c, v) * critical * withBurn * s.ResistanceFactor[v] * s.AccuracyFactor[v] * t;
        else
            sum = t * s.TorpedoDamage[v] * critical * withBurn * s.ResistanceFactor[v] * s.AccuracyFactor[v];
    }
    if (n.mines > 0) sum += MineTerm(c, critical, v);
    if (s.BeamOverload[v] > 0) {
        const int weapon = OverloadWeapon(n);
        if (weapon != 0) sum += OverloadTerm(c, f, weapon, v);
    }
    return Round(sum, 3);
}

std::string BurstToolTip(Calculator& c, const BurstCounts& n, Vessel v) {
    return BurstToolTip(c, FactorsOf(c, v), n, v);
}

std::string BurstToolTip(Calculator& c, const VesselFactors& f, const BurstCounts& n, Vessel v) {
    std::string text;
    WriteBurstToolTip(text, BurstToolTipInputsOf(c, f, n, v));
    return text;
}

BurstToolTipInputs BurstToolTipInputsOf(Calculator& c, const VesselFactors& f, const BurstCounts& n, Vessel v) {
    const CalculatorState& s = c.state;
    const float critical = f.critical;
    BurstToolTipInputs in;

    if (n.torpedoes > 0) {
        in.torpedoes = true;
        in.typeWord = GetDamageType(c, v, DamageGroup::Projectile);
        in.plasma = f.plasmaTorpedoes;
        const float t = f.torpedoSkill;
        float d = RelativeMode(c) ? Round(BaseProjectileDamage(c, v) * t * critical, 3)
                                  : Round(t * s.TorpedoDamage[v] * critical, 3);
        d = d * s.ResistanceFactor[v] * s.AccuracyFactor[v];
        in.highYield = s.TorpedoHighYield[v];
        in.spread = s.TorpedoSpread[v];
        in.targets = s.SkillTargets[v];
        if (in.plasma && in.highYield > 0) {
            d = static_cast<float>(in.targets) * d * s.ResistanceFactor[v] * s.AccuracyFactor[v];
            in.burn = Round(d * kHeavyBurnShare, 3);
        } else if (in.plasma) {
            in.burn = Round(d * kBurnShare, 3) * s.ResistanceFactor[v] * s.AccuracyFactor[v];
        }
        in.damage = d;
    }

    if (n.mines > 0) {
        in.mines = true;
        in.mineLevel = s.MineSkill[v];
        in.mineDamage = MineTerm(c, critical, v);
    }

    const int overload = s.BeamOverload[v];
    const int weapon = overload > 0 ? OverloadWeapon(n) : 0;
    if (weapon != 0) {
        in.overloadWeapon = weapon;
        in.overloadLevel = overload;
        in.overloadDamage = Round(OverloadTerm(c, f, weapon, v), 3);
    }
    return in;
}

void WriteBurstToolTip(std::string& out, const BurstToolTipInputs& in) {
    auto nextEntry = [&out] {
        if (!out.empty()) out += ", ";
    };

    if (in.torpedoes) {
        nextEntry();
        if (in.plasma && in.highYield > 0) {
            out += "Heavy Plasma Torpedo";
            AppendSignedText(out, in.highYield);
            AppendTargets(out, in.targets);
            AppendSignedText(out, in.damage);
            out += ", Plasma Burn";
            AppendTargets(out, in.targets);
            AppendSignedText(out, in.burn);
        } else {
            out += in.typeWord;
            if (in.highYield > 0) {
                out += "Torpedo Salvo";
                AppendSignedText(out, in.highYield);
                out += ':';
            } else if (in.spread > 0) {
                out += "Torpedo Spread";
                AppendSignedText(out, in.spread);
                // The targets that a spread can reach.
                AppendTargets(out, std::min(in.targets, in.spread + 1));
            } else {
                out += "Torpedo:";
            }
            AppendSignedText(out, in.damage);
            if (in.plasma) {
                out += ", Plasma Burn (33% Chance):";
                AppendSignedText(out, Round(in.burn / kBurnChance, 3));
                out += " (";
                AppendPlainText(out, in.burn);
                out += ')';
            }
        }
    }

    if (in.mines) {
        nextEntry();
        if (in.mineLevel > 0) {
            out += "Mine Dispersal Pattern";
            AppendSignedText(out, in.mineLevel);
            out += ':';
        } else {
            out += "Mine Cluster:";
        }
        AppendSignedText(out, in.mineDamage);
    }

    if (in.overloadWeapon != 0) {
        static constexpr std::string_view kNames[4] = {"", "Dual Beam Bank Overload", "Beam Array Overload",
                                                       "Shuttle Beam Array Overload"};
        nextEntry();
        out += kNames[in.overloadWeapon];
        AppendSignedText(out, in.overloadLevel);
        out += ':';
        AppendSignedText(out, in.overloadDamage);
    }
}

} // namespace vantorel
