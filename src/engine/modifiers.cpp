#include "engine/modifiers.h"

#include "engine/arcs.h"
#include "engine/combat.h"
#include "engine/dps.h"
#include "engine/marks.h"
#include "engine/numbers.h"
#include "engine/power.h"
#include "engine/selection.h"

#include <algorithm>
#include <cmath>

namespace vantorel {

namespace {

// Turns the damage of the reference weapon, per 50 points, into the factor on
// the tested DPW. A single, like every value of this file unless said.
constexpr float kDamageToDPW = 0.8889786f;

// Console bonus in percent by power step (rarity + mark); steps 1..14.
constexpr float kConsoleStep[15] = {0, 3.8f, 5.6f, 7.5f, 9.4f, 11, 13, 15, 17, 19, 21, 22, 24, 26, 28};

constexpr int kDmgMod = 4;

// Skill level from a weapon skill box: a typed "7.9" is level 7.
int TruncatedLevel(const Text& box) {
    if (const auto digits = PlainDigits(box.text())) return *digits;
    const auto value = NumericValue(box.text());
    if (!value) return 0;
    const double whole = std::trunc(*value);
    if (whole < -32768.0 || whole > 32767.0) return 0;
    return static_cast<int>(whole);
}

// The pieces of one displayed box, in the order of its tooltip.
template <typename T> struct Pieces { T base, mark, skill, console, accolade, damage, rarity, alpha, omega, team; };

struct BreakdownInfo {
    int damageMods; // count of "[Dmg]" mods
    float rarityMods;
    int alphaLevel, omegaLevel, teamLevel;
};

// The breakdown of one box. The factor's type matters: the fractional
// factors are doubles, so their products are formed in double.
template <typename T, typename F>
void WriteBreakdown(std::string& tip, F f, const Pieces<T>& p, const BreakdownInfo& info) {
    auto number = [&tip, f](T part) { AppendSignedText(tip, Round(part * f, 1)); };
    tip += "Base Damage:";
    number(p.base);
    tip += ", Mark Bonus:";
    number(p.mark);
    tip += ", Skill Bonus: ";
    number(p.skill);
    tip += ", Console Bonus: ";
    number(p.console);
    tip += ", accolade bonus: ";
    number(p.accolade);
    if (info.damageMods > 0) {
        tip += ", Weapon Mod [Dmg]";
        if (info.damageMods > 1) {
            tip += 'x';
            AppendPlainText(tip, info.damageMods);
        }
        tip += ':';
        number(p.damage);
    }
    // Shown on both vessels: the totals of both hold the rarity bonus, and a
    // breakdown whose parts do not add up to its caption explains nothing.
    if (info.rarityMods > 0) {
        const char* name = info.rarityMods == 0.25f ? "Unc." : info.rarityMods == 0.5f ? "Rare" : "V.Rare";
        tip += ", Weapon Rarity (";
        tip += name;
        tip += "):";
        number(p.rarity);
    }
    auto skill = [&](const char* name, int level, T part) {
        if (level <= 0) return;
        tip += name;
        AppendSignedText(tip, level);
        tip += ':';
        number(part);
    };
    skill(", Attack Pattern Alpha", info.alphaLevel, p.alpha);
    skill(", Attack Pattern Omega", info.omegaLevel, p.omega);
    skill(", Tactical Team", info.teamLevel, p.team);
}

// Writes caption and breakdown of one box, each kept with its inputs, as
// ModifiedDPS runs on every change of power.
template <typename T, typename F>
void FillBox(Label& box, DamageBoxTexts& kept, float total, F f, const Pieces<T>& p, const BreakdownInfo& info) {
    const DamageCaptionInputs caption{static_cast<double>(f), total};
    box.setCaption(kept.caption.of(
        caption, [&](std::string& text, const DamageCaptionInputs&) { AppendPlainText(text, Round(total * f, 0)); }));
    const DamageBoxInputs breakdown{
        static_cast<double>(f),
        {p.base, p.mark, p.skill, p.console, p.accolade, p.damage, p.rarity, p.alpha, p.omega, p.team},
        info.damageMods,
        info.rarityMods,
        info.alphaLevel,
        info.omegaLevel,
        info.teamLevel};
    box.setTooltip(kept.breakdown.of(
        breakdown, [&](std::string& tip, const DamageBoxInputs&) { WriteBreakdown(tip, f, p, info); }));
}

} // namespace

float WeaponSkillBonus(const Calculator& c, BonusKind bonusKind, Vessel v) {
    const int kind = static_cast<int>(bonusKind);
    // Per kind: the Lieutenant, Commander and Lieutenant Commander skill boxes.
    static constexpr int kFields[5][3] = {{0, 0, 0}, {1, 4, 2}, {1, 4, 3}, {5, 8, 7}, {5, 8, 6}};
    if (kind < 1 || kind > 4) return 0.0f;
    const auto& skill = c.settings[v].WeaponSkill;
    return SkillPoints(1, TruncatedLevel(skill[kFields[kind][0]])) +
           SkillPoints(3, TruncatedLevel(skill[kFields[kind][1]])) +
           SkillPoints(2, TruncatedLevel(skill[kFields[kind][2]]));
}

float ConsoleBonus(const Calculator& c, BonusKind bonusKind, Vessel v) {
    const int kind = static_cast<int>(bonusKind);
    // Per kind: the console for that weapon and the one for its damage type.
    static constexpr int kConsoles[5][2] = {{-2, -2}, {1, 3}, {2, 3}, {4, 6}, {5, 6}};
    if (kind < 1 || kind > 4) return 0.0f;
    const VesselSettings& s = c.settings[v];
    float bonus = 0.0f;
    for (int i = 1; i <= 4; ++i) {
        if (s.TacticalConsoleEquipped[i].value() != 1) continue;
        const int console = s.TacticalConsole[i].index();
        if (console != kConsoles[kind][0] && console != kConsoles[kind][1]) continue;
        int mark = s.TacticalConsoleMark[i].index();
        if (mark == 0) mark = s.TacticalConsoleMark[i].count() - 1; // "Max": the top mark the rank offers
        const int step = s.TacticalConsoleRarity[i].index() + mark;
        if (step >= 1 && step <= 14) bonus += kConsoleStep[step];
    }
    return bonus;
}

float BaseProjectileDamage(const Calculator& c, Vessel v) {
    // Relative mode keeps projectiles in the unit of the beam array tests.
    static constexpr float kRelative[6] = {950.53f, 1056.691f, 745.941f, 813.786f, 687.587f, 4607.82f};
    static constexpr float kActual[6] = {1352, 1503, 1061, 1157.5f, 978, 6554};
    const int type = c.settings[v].WeaponType[2].index();
    if (type < 0 || type > 5) return 0.0f;
    return RelativeMode(c) ? kRelative[type] : kActual[type];
}

void ModifiedDPS(Calculator& c, Vessel v) {
    if ((v == 2 && c.state.Comparing == 0) || RelativeMode(c)) return;
    const VesselSettings& settings = c.settings[v];
    CalculatorState& st = c.state;

    float energyAccolade = settings.WeaponAccolade[1].value() == 1 ? 1.6f : 0.0f;
    const float projectileAccolade = settings.WeaponAccolade[2].value() == 1 ? 0.02f : 0.0f;

    const int team = st.TacticalTeam[v];
    static constexpr float kTeamProjectile[4] = {0, 18, 24, 30};
    static constexpr float kTeamEnergy[4] = {0, 14.4f, 19.2f, 24};
    float teamProjectile = team >= 1 && team <= 3 ? kTeamProjectile[team] : 0.0f;
    float teamEnergy = team >= 1 && team <= 3 ? kTeamEnergy[team] : 0.0f;

    const int alphaLevel = st.AttackPatternAlpha[v];
    const int omegaLevel = st.AttackPatternOmega[v];
    // The share of base damage that each level of the two attack patterns
    // adds, base + per skill point; level 1 of Alpha counts 48 points at most.
    static constexpr double kAlphaBase[4] = {0, 0.18, 0.24, 0.3}, kAlphaPerPoint[4] = {0, 0.0018, 0.0024, 0.003};
    static constexpr double kOmegaBase[4] = {0, 0.15, 0.2, 0.25}, kOmegaPerPoint[4] = {0, 0.0015, 0.002, 0.0025};
    double alphaFraction = 0.0;
    double omegaFraction = 0.0;
    if (alphaLevel > 0 || omegaLevel > 0) {
        const double skill = GetAttackPatternSkill(c, v);
        if (alphaLevel >= 1 && alphaLevel <= 3) {
            const double points = alphaLevel == 1 ? std::min(skill, 48.0) : skill;
            alphaFraction = kAlphaBase[alphaLevel] + kAlphaPerPoint[alphaLevel] * points;
        }
        if (omegaLevel >= 1 && omegaLevel <= 3)
            omegaFraction = kOmegaBase[omegaLevel] + kOmegaPerPoint[omegaLevel] * skill;
    }
    float alphaEnergy = static_cast<float>(alphaFraction * 80);
    float omegaEnergy = static_cast<float>(omegaFraction * 80);

    float skillBeam = static_cast<float>(WeaponSkillBonus(c, BonusKind::Beams, v) * 0.8);
    float consoleBeam = static_cast<float>(ConsoleBonus(c, BonusKind::Beams, v) * 0.8);
    float skillCannon = static_cast<float>(WeaponSkillBonus(c, BonusKind::Cannons, v) * 0.8);
    float consoleCannon = static_cast<float>(ConsoleBonus(c, BonusKind::Cannons, v) * 0.8);
    float skillTorpedo = WeaponSkillBonus(c, BonusKind::Torpedoes, v);
    float consoleTorpedo = ConsoleBonus(c, BonusKind::Torpedoes, v);
    float skillMine = WeaponSkillBonus(c, BonusKind::Mines, v);
    float consoleMine = ConsoleBonus(c, BonusKind::Mines, v);

    const int mark = GetMark(c, v);

    // One "[Dmg]" mod is worth half a mark on Alpha and a whole mark on Omega.
    float damageMods = 0.0f;
    float rarityMods = 0.0f;
    int dmgCount = 0;
    for (int i = 1; i <= 3; ++i) {
        const int mod = settings.WeaponMod[i].index();
        if (mod == kDmgMod) {
            damageMods += v == 1 ? 0.5f : 1.0f;
            ++dmgCount;
        }
        if (mod > 0) rarityMods += 0.25f;
    }

    float base = 80.0f;
    float markBonus = static_cast<float>(mark * 8);
    float damageBonus = damageMods * 8;
    float rarityBonus = rarityMods * 8;

    // The totals add in double; every part is a single.
    float cannonTotal =
        static_cast<float>(static_cast<double>(skillCannon) + consoleCannon + markBonus + base + energyAccolade +
                           damageBonus + rarityBonus + teamEnergy + omegaEnergy + alphaEnergy);
    float beamTotal =
        static_cast<float>(static_cast<double>(consoleBeam) + skillBeam + markBonus + base + energyAccolade +
                           damageBonus + rarityBonus + teamEnergy + omegaEnergy + alphaEnergy);

    st.CannonModifier[v] = (cannonTotal / 50) * kDamageToDPW;
    st.BeamModifier[v] = (beamTotal / 50) * kDamageToDPW;

    const float projectileBase = BaseProjectileDamage(c, v);
    const float accoladeShare = projectileAccolade * projectileBase;
    const float damageShare = (projectileBase / 10) * damageMods;
    const float rarityShare = (projectileBase / 10) * rarityMods;
    const float markShare = (projectileBase / 10) * static_cast<float>(mark);
    skillMine = (skillMine * projectileBase) / 100;
    consoleMine = (consoleMine * projectileBase) / 100;
    skillTorpedo = (skillTorpedo * projectileBase) / 100;
    consoleTorpedo = (consoleTorpedo * projectileBase) / 100;
    teamProjectile = (teamProjectile * projectileBase) / 100;
    const float alphaShare = static_cast<float>(alphaFraction * projectileBase);
    const float omegaShare = static_cast<float>(omegaFraction * projectileBase);

    // Sums of singles: every partial sum is a single.
    float torpedo = consoleTorpedo;
    for (float part : {skillTorpedo, markShare, projectileBase, accoladeShare, damageShare, rarityShare, teamProjectile,
                       omegaShare, alphaShare})
        torpedo += part;
    st.TorpedoDamage[v] = torpedo;
    float mine = consoleMine;
    for (float part : {skillMine, markShare, projectileBase, accoladeShare, damageShare, rarityShare, teamProjectile,
                       omegaShare, alphaShare})
        mine += part;
    st.MineDamage[v] = mine * 1.25f;

    // What the game's tooltip shows depends on weapon power; the modifiers
    // above do not, since the DPW curves carry the power already.
    const int power = GetPowerLevel(c, v, Bonus::With);
    for (float* value : {&base, &energyAccolade, &markBonus, &skillBeam, &consoleBeam, &skillCannon, &consoleCannon,
                         &teamEnergy, &beamTotal, &cannonTotal, &damageBonus, &rarityBonus, &omegaEnergy, &alphaEnergy})
        *value = (static_cast<float>(power) * *value) / 50;

    VesselSettings& out = c.settings[v];
    Indexed<DamageBoxTexts, 1, 7>& kept = c.kept.damageBoxes[v];
    out.DisplayedDPSLabel[1].setCaption(c.kept.displayedDPSCaptions[v].of(power, [](std::string& text, int p) {
        text += "Displayed DPS (";
        AppendPlainText(text, p);
        text += " Weapon Power)";
    }));

    const BreakdownInfo info{dmgCount, rarityMods, alphaLevel, omegaLevel, team};
    const Pieces<float> cannon{base,        markBonus,   skillCannon, consoleCannon, energyAccolade,
                               damageBonus, rarityBonus, alphaEnergy, omegaEnergy,   teamEnergy};
    const Pieces<float> beam{base,        markBonus,   skillBeam,   consoleBeam, energyAccolade,
                             damageBonus, rarityBonus, alphaEnergy, omegaEnergy, teamEnergy};
    FillBox(out.CalculatedWeaponDPS[1], kept[1], cannonTotal, 1.45, cannon, info);
    FillBox(out.CalculatedWeaponDPS[2], kept[2], beamTotal, 1.3, beam, info);
    FillBox(out.CalculatedWeaponDPS[3], kept[3], cannonTotal, 1.2, cannon, info);
    FillBox(out.CalculatedWeaponDPS[4], kept[4], beamTotal, 1, beam, info);
    FillBox(out.CalculatedWeaponDPS[5], kept[5], cannonTotal, 0.75, cannon, info);

    const Pieces<float> torpedoPieces{projectileBase, markShare,   skillTorpedo, consoleTorpedo, accoladeShare,
                                      damageShare,    rarityShare, alphaShare,   omegaShare,     teamProjectile};
    FillBox(out.CalculatedWeaponDPS[6], kept[6], st.TorpedoDamage[v], 1, torpedoPieces, info);
    // The mine total carries a factor 1.25, so its pieces do too.
    auto mines = [](float x) { return x * 1.25; };
    const Pieces<double> minePieces{mines(projectileBase), mines(markShare),     mines(skillMine),   mines(consoleMine),
                                    mines(accoladeShare),  mines(damageShare),   mines(rarityShare), mines(alphaShare),
                                    mines(omegaShare),     mines(teamProjectile)};
    FillBox(out.CalculatedWeaponDPS[7], kept[7], st.MineDamage[v], 1, minePieces, info);

    CalculateFiringArcs(c);
}

} // namespace vantorel
