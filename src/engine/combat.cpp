#include "engine/combat.h"

#include "engine/arcs.h"
#include "engine/dps.h"
#include "engine/numbers.h"
#include "engine/selection.h"

#include <algorithm>
#include <cmath>

namespace vantorel {

namespace {

// Attack Vectors at this level turns critical hits off altogether: a switch
// for players who want to see their damage without them.
constexpr int kCriticalsOff = 47;

// Attack patterns by level 1..3: a fixed part and a part per point of skill.
constexpr double kPatternChance[4] = {0, 1.2, 1.6, 2};
constexpr double kPatternChancePerSkill[4] = {0, 0.012, 0.016, 0.02};
constexpr double kPatternSeverity[4] = {0, 12, 16, 20};
constexpr double kPatternSeverityPerSkill[4] = {0, 0.12, 0.16, 0.2};

int CountMods(const VesselSettings& s, int mod) {
    int n = 0;
    for (int i = 1; i <= 3; ++i)
        if (s.WeaponMod[i].index() == mod) ++n;
    return n;
}

constexpr int kAcc = 1, kCrtD = 2, kCrtH = 3;

// ", Weapon Mod [CrtD]: 20%" for one mod, ", Weapon Mod [CrtD]x2: 40%" for more.
std::string ModPiece(const char* tag, int count, int each) {
    std::string s = ", Weapon Mod [";
    s += tag;
    s += ']';
    if (count > 1) s += 'x' + PlainText(count);
    s += ':' + SignedText(count * each) + '%';
    return s;
}

} // namespace

double GetAttackPatternSkill(const Calculator& c, Vessel v) {
    const VesselSettings& s = CombatSource(c, v);
    if (s.CriticalSettings.value() == 1) {
        const int rank = GetRank(c, v);
        if (rank >= 3) return 100.0;
        if (rank == 2) return 48.0;
        return 18.0;
    }
    float skill = SkillPoints(1, WholeNumberOf(s.CriticalSkill[1].text())) +
                  SkillPoints(2, WholeNumberOf(s.CriticalSkill[2].text())) +
                  SkillPoints(3, WholeNumberOf(s.CriticalSkill[3].text()));
    const int item = s.CriticalItem.index();
    if (item == 1 || item == 3) skill += 10.0f;
    return skill;
}

void ModifiedCritical(Calculator& c, Vessel v) {
    VesselSettings& own = c.settings[v];
    std::string chanceText = "Critical Chance- Base: 2.5%";
    std::string severityText = "Critical Severity- Base: 50%";
    double chance = 0.0;
    double severity = 0.0;
    int vectorsLevel = 0;

    if (own.CriticalSettings.value() == 0) {
        vectorsLevel = WholeNumberOf(own.CriticalSkill[1].text());
        const int strategyLevel = WholeNumberOf(own.CriticalSkill[3].text());
        float vectors = (SkillPoints(1, vectorsLevel) * 2) / 18;
        float strategy = (SkillPoints(3, strategyLevel) * 25) / 52;
        // Omega's window has room for whole numbers only; the rounded values
        // are the ones that count, so box and text agree.
        const int decimals = v == 1 ? 2 : 0;
        vectors = Round(vectors, decimals);
        strategy = Round(strategy, decimals);
        if (vectors > 0) chanceText += ", Attack Vectors:" + SignedText(vectors) + "%";
        if (strategy > 0) severityText += ", Battle Strategy:" + SignedText(strategy) + "%";
        chance = vectors + 2.5;
        severity = strategy + 50.0;
        if (own.CriticalItem.index() >= 2) {
            chance += 0.92;
            severity += 9.2;
            chanceText += ", Borg Assimilated Module: 0.92%";
            severityText += ", Borg Assimilated Module: 9.2%";
        }
    } else {
        chance = 4.5;
        severity = 75.0;
        chanceText = "Critical Chance- Base: 2.5%, Attack Vectors (Max): 2%";
        severityText = "Critical Severity- Base: 50%, Battle Strategy (Max): 25%";
    }

    const float excess = c.state.ExcessAccuracy[v];
    if (excess > 0) {
        chance += excess / 10;
        severity += excess;
        chanceText += ", Excess Accuracy: " + PlainText(Round(excess / 10, 2)) + "%";
        severityText += ", Excess Accuracy: " + PlainText(Round(excess, 2)) + "%";
    }

    if (!RelativeMode(c)) {
        const int crtD = CountMods(own, kCrtD);
        const int crtH = CountMods(own, kCrtH);
        if (crtD > 0) {
            severity += crtD * 20;
            severityText += ModPiece("CrtD", crtD, 20);
        }
        if (crtH > 0) {
            chance += crtH * 2;
            chanceText += ModPiece("CrtH", crtH, 2);
        }
    }

    const int alphaLevel = c.state.AttackPatternAlpha[v];
    if (alphaLevel >= 1 && alphaLevel <= 3) {
        double skill = GetAttackPatternSkill(c, v);
        if (alphaLevel == 1) skill = std::min(skill, 48.0);
        const double chanceGain = kPatternChance[alphaLevel] + kPatternChancePerSkill[alphaLevel] * skill;
        const double severityGain = kPatternSeverity[alphaLevel] + kPatternSeverityPerSkill[alphaLevel] * skill;
        const std::string tag = ", Attack Pattern Alpha " + PlainText(alphaLevel) + ":";
        chance += chanceGain;
        severity += severityGain;
        chanceText += tag + SignedText(chanceGain) + "%";
        severityText += tag + SignedText(severityGain) + "%";
    }

    chance = Round(chance, 2);
    severity = Round(severity, 1);
    if (vectorsLevel == kCriticalsOff) {
        chance = 0.0;
        severity = 0.0;
    }

    own.CritH.setCaption(PlainText(chance) + "%");
    own.CritH.setTooltip(std::move(chanceText));
    own.CritD.setCaption(PlainText(severity) + "%");
    own.CritD.setTooltip(std::move(severityText));

    CalculateFiringArcs(c);
}

void ModifiedAccuracy(Calculator& c, Vessel v) {
    VesselSettings& src = CombatSource(c, v);
    CalculatorState& st = c.state;

    if (src.Accuracy.value() == 0) {
        src.HitRate.setCaption("100%");
        src.HitRate.setTooltip("");
        st.AccuracyFactor[v] = 1.0f;
        if (st.ExcessAccuracy[v] > 0) {
            st.ExcessAccuracy[v] = 0.0f;
            ModifiedCritical(c, v);
        }
        CalculateFiringArcs(c);
        return;
    }

    double level = 9.0;
    double defense = 60.0;
    if (src.CriticalSettings.value() != 1) {
        level = NumericOr(src.CriticalSkill[1].text(), 0.0);
        defense = NumericOr(src.TargetDefense.text(), 0.0);
    }
    const int accuracyMods = RelativeMode(c) ? 0 : 10 * CountMods(src, kAcc);
    // A level far outside the table scores nothing; keep it out of the int.
    const int wholeLevel = std::fabs(level) < 1e6 ? WholeNumber(level) : 0;
    const float vectorsAccuracy = (SkillPoints(1, wholeLevel) * 15) / 18;
    double hit = vectorsAccuracy + 95 + accuracyMods - defense;

    std::string tip = "Hit Rate- Base: 95%, Attack Vectors Skill:" + SignedText(Round(vectorsAccuracy, 2)) + "%";
    if (accuracyMods == 10) tip += ", Weapon Mod [Acc]: 10%";
    if (accuracyMods == 20) tip += ", Weapon Mod [Acc]x2: 20%";
    if (accuracyMods == 30) tip += ", Weapon Mod [Acc]x3: 30%";
    tip += ", Target Defense: -" + PlainText(Round(defense, 2)) + "%";

    if (hit > 100) {
        st.ExcessAccuracy[v] = static_cast<float>(hit - 100);
        hit = 100;
    } else {
        st.ExcessAccuracy[v] = 0.0f;
    }
    if (hit < 25) {
        tip += ", *Minimum Hit Chance: 25%";
        hit = 25;
    }

    ModifiedCritical(c, v);
    st.AccuracyFactor[v] = static_cast<float>(hit / 100);
    Label& box = c.settings[v].HitRate;
    box.setCaption(PlainText(Round(hit + st.ExcessAccuracy[v], 1)) + "%");
    box.setTooltip(std::move(tip));
    CalculateFiringArcs(c);
}

float TargetResistanceValue(const Calculator& c, Vessel v) {
    const VesselSettings& s = CombatSource(c, v);
    if (s.CriticalSettings.value() == 1) return 11.88f;
    return static_cast<float>(NumericOr(s.TargetResistance.text(), 0.0));
}

void ModifiedResistance(Calculator& c, Vessel v) {
    VesselSettings& own = c.settings[v];
    const bool off = v == 1 ? c.Alpha().DamageResistance.value() == 0
                            : (c.Omega().DamageResistance.value() == 0 ||
                               (c.Alpha().DamageResistance.value() == 0 && OmegaMirrorsAlpha(c)));
    if (off) {
        own.DamageReduction.setCaption("0%");
        c.state.ResistanceFactor[v] = 1.0f;
        CalculateFiringArcs(c);
        return;
    }

    float resistance = TargetResistanceValue(c, v);
    const int beta = c.state.AttackPatternBeta[v];
    if (beta >= 1 && beta <= 3) {
        // Beta lowers the resistance by the same amounts as Alpha's severity.
        const double cut = kPatternSeverity[beta] + kPatternSeverityPerSkill[beta] * GetAttackPatternSkill(c, v);
        resistance = static_cast<float>(resistance - cut);
    }
    // By magnitude: a pattern that drives the resistance below zero does not
    // turn it into a damage bonus beyond the same-sized resistance.
    const float factor = 1 / (1 + std::fabs(resistance / 100));
    c.state.ResistanceFactor[v] = factor;
    own.DamageReduction.setCaption(PlainText(Round((1 - factor) * 100, 1)) + "%");
    CalculateFiringArcs(c);
}

} // namespace vantorel
