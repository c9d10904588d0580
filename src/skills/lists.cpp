#include "skills/lists.h"
#include "skills/skills.h"

#include "engine/combat.h"
#include "engine/numbers.h"
#include "engine/selection.h"

#include <algorithm>
#include <array>

namespace vantorel {

namespace {

constexpr const char* kRelativeOnly = "Requires Relative DPS to be disabled.";
constexpr const char* kPatternDisabled = "Currently disabled, see documentation.";

constexpr std::array<const char*, 3> kTacticalTeamRows = {"1 (+18 Energy/Projectile Weapons Training)",
                                                          "2 (+24 Energy/Projectile Weapons Training)",
                                                          "3 (+30 Energy/Projectile Weapons Training)"};
constexpr std::array<const char*, 3> kMineRows = {"1 (160% Mine Count)", "2 (240% Mine Count)", "3 (320% Mine Count)"};
constexpr std::array<const char*, 3> kTricobaltMineRows = {"1 (Does Not Effect Tricobalt Mines)",
                                                           "2 (Does Not Effect Tricobalt Mines)",
                                                           "3 (Does Not Effect Tricobalt Mines)"};
constexpr std::array<const char*, 3> kTricobaltTorpedoRows = {"1 (Does Not Effect Tricobalt Torpedoes)",
                                                              "2 (Does Not Effect Tricobalt Torpedoes)",
                                                              "3 (Does Not Effect Tricobalt Torpedoes)"};

// A number in a list text: rounded half to even, then its plain text.
std::string Decimals(double x, int n) { return PlainText(Round(x, n)); }

void AddRows(List& list, const std::array<const char*, 3>& rows) {
    for (const char* row : rows)
        list.addItem(row);
}

void AddThrice(List& list, const char* row) {
    for (int i = 0; i < 3; ++i)
        list.addItem(row);
}

// New rows for a list whose selection stays on the same row. Restoring the
// selection runs the list's event, as a click on that row would.
void Refill(List& list, const std::array<const char*, 3>& rows) {
    const int index = list.index();
    list.clear();
    AddRows(list, rows);
    list.setIndex(index);
}

// A closed skill cannot stay ticked: clearing the box runs its event, which
// takes the skill out of the results.
void Close(Flag& box) {
    box.setValue(0);
    box.setEnabled(false);
}

// Omega's boxes open only while its window chooses its own skills.
bool MayOpen(const Calculator& c, Vessel v) { return v == 1 || !OmegaSkillsMirrorAlpha(c); }

} // namespace

std::string AttackPatternLevelRow(int level, double skill) {
    struct Level {
        double base, perSkill;
    };
    static constexpr Level kLevels[3] = {{15, 0.15}, {20, 0.2}, {25, 0.25}};
    if (level < 1 || level > 3) return {};
    const double value = kLevels[level - 1].base + kLevels[level - 1].perSkill * skill;
    return PlainText(level) + " (Target: +" + Decimals(value, 2) + "% Base Damage Strength)";
}

std::string AttackPatternAlphaDescription(int level, double skill) {
    struct Version {
        double base, basePerSkill, chance, chancePerSkill, severity, severityPerSkill;
    };
    static constexpr Version kVersions[3] = {
        {18, 0.18, 1.2, 0.012, 12, 0.12},
        {24, 0.24, 1.6, 0.016, 16, 0.16},
        {30, 0.3, 2, 0.02, 20, 0.2},
    };
    if (level < 1 || level > 3) return {};
    const Version& k = kVersions[level - 1];
    // The first version grows with the skill only up to 48 points.
    const double s = level == 1 ? std::min(skill, 48.0) : skill;
    return "+" + Decimals(k.base + k.basePerSkill * s, 1) + "% Base Dmg, +" +
           Decimals(k.chance + k.chancePerSkill * s, 1) + "% Crit H, +" +
           Decimals(k.severity + k.severityPerSkill * s, 1) + "% Crit D";
}

AttackPatternAlphaVersions AttackPatternAlphaVersionsFor(int rank) {
    switch (rank) {
    case 100:
        return {{"1", "2", "3"}, "Attack Pattern Alpha", true, true};
    case 1:
        return {{"1"}, "Attack Pattern Alpha 1", false, false};
    case 2:
        return {{"1", "2"}, "Attack Pattern Alpha", true, true};
    case 3:
        return {{"2", "3"}, "Attack Pattern Alpha", true, true};
    default:
        return {{"3"}, "Attack Pattern Alpha 3", false, false};
    }
}

std::string TorpedoLevelRow(std::string_view type, TorpedoSkill skill, int level) {
    // The percentage of a single-precision factor, rounded half to even:
    // 2.565 gives 256.
    const float factor = TorpedoSkillFactor(type, skill, level);
    const std::string percent = PlainText(WholeNumber(static_cast<double>(factor * 100.0f)));
    if (skill == TorpedoSkill::HighYield) return PlainText(level) + " (" + percent + "% Torpedo Damage)";
    // A spread of level n fires at n + 1 targets.
    return PlainText(level) + " (" + percent + "% Torpedo Damage, Max Targets: " + PlainText(level + 1) + ")";
}

std::string TargetsCorrection(std::string_view text) {
    const std::optional<double> value = NumericValue(text);
    if (!value) return text.empty() ? std::string() : std::string("1");
    if (*value < 1.0) return "1";
    if (*value > 10.0) return "10";
    return {};
}

void AttackPatternUpdate(Calculator& c, Vessel v) {
    VesselSkills& k = c.skills[v];
    const double skill = GetAttackPatternSkill(c, v);
    const bool relative = RelativeMode(c);

    List& pattern = k.AttackPatternLevel;
    const int patternIndex = std::max(pattern.index(), 0);
    pattern.clear();
    const int selected = k.AttackPatternSelected.index();
    if (selected == 0 || selected == 1) {
        // Beta and Delta: their effect on the target is not modelled.
        Close(k.AttackPatternActivated);
        AddThrice(pattern, kPatternDisabled);
    } else if (relative) {
        AddThrice(pattern, kRelativeOnly);
        Close(k.AttackPatternActivated);
    } else {
        for (int level = 1; level <= 3; ++level)
            pattern.addItem(AttackPatternLevelRow(level, skill));
        if (MayOpen(c, v)) k.AttackPatternActivated.setEnabled(true);
    }
    pattern.setIndex(patternIndex);

    List& team = k.TacticalTeamLevel;
    const int teamIndex = team.index();
    team.clear();
    if (relative) {
        AddThrice(team, kRelativeOnly);
        Close(k.TacticalTeamActivated);
    } else {
        AddRows(team, kTacticalTeamRows);
        if (MayOpen(c, v)) k.TacticalTeamActivated.setEnabled(true);
    }
    team.setIndex(teamIndex);
}

void AttackPatternAlphaUpdate(Calculator& c, Vessel v) {
    VesselSkills& k = c.skills[v];
    List& list = k.AttackPatternAlphaLevel;
    const std::string remembered = list.text();
    list.clear();
    AttackPatternAlphaVersions versions = AttackPatternAlphaVersionsFor(GetRank(c, v));
    for (std::string& row : versions.rows)
        list.addItem(std::move(row));
    k.AttackPatternAlpha.setCaption(std::move(versions.caption));
    list.setVisible(versions.listShown);

    if (versions.keepsSelection) {
        for (int i = 0; i < list.count(); ++i) {
            if (list.row(i) == remembered) {
                list.setIndex(i);
                break;
            }
        }
    }
    // A version the rank no longer offers gives way to the highest one.
    if (list.index() < 0) list.setIndex(list.count() - 1);
    if (v == 2 && OmegaSkillsMirrorAlpha(c)) AttackPatternAlphaMatch(c);
}

void AttackPatternAlphaMatch(Calculator& c) {
    const std::string wanted = c.skills[1].AttackPatternAlphaLevel.text();
    List& list = c.skills[2].AttackPatternAlphaLevel;
    for (int i = 0; i < list.count(); ++i) {
        if (list.row(i) == wanted) {
            list.setIndex(i);
            return;
        }
    }
    if (list.count() == 0) return;
    // Omega's captain outranks Alpha's: its lowest version is the closest to
    // the lower one Alpha has. Otherwise its highest is.
    list.setIndex(GetRank(c, 2) > GetRank(c, 1) ? 0 : list.count() - 1);
}

void TorpedoUpdate(Calculator& c, Vessel v) {
    VesselSkills& k = c.skills[v];
    const std::string type = Trim(GetDamageType(c, v, DamageGroup::Projectile));

    List& torpedo = k.TorpedoSkillLevel;
    const int index = torpedo.index();
    torpedo.clear();
    if (type == "Tricobalt") {
        AddRows(torpedo, kTricobaltTorpedoRows);
        Refill(k.MineSkillLevel, kTricobaltMineRows);
    } else {
        if (k.MineSkillLevel.count() > 0 && k.MineSkillLevel.row(0) == kTricobaltMineRows[0])
            Refill(k.MineSkillLevel, kMineRows);
        // Row 0 of the skill list is High Yield; any other feeds Spread, as
        // the skill levels read it.
        const TorpedoSkill skill = k.TorpedoSkillSelected.index() == 0 ? TorpedoSkill::HighYield : TorpedoSkill::Spread;
        for (int level = 1; level <= 3; ++level)
            torpedo.addItem(TorpedoLevelRow(type, skill, level));
    }
    torpedo.setIndex(std::max(index, 0));
}

} // namespace vantorel
