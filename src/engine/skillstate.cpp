#include "engine/skillstate.h"

#include "engine/arcs.h"
#include "engine/numbers.h"
#include "engine/selection.h"

namespace vantorel {

namespace {

// A skill with its own check box: the level list's row plus one while ticked.
std::int16_t LevelOf(const Flag& activated, const List& level) {
    if (activated.value() != 1) return 0;
    return static_cast<std::int16_t>(level.index() + 1);
}

} // namespace

void SkillUpdate(Calculator& c, Vessel v) {
    CalculatorState& s = c.state;
    // A mirrored Omega window is only a view of Alpha's choices.
    const VesselSkills& src = (v == 1 || OmegaSkillsMirrorAlpha(c)) ? c.skills[1] : c.skills[2];

    s.BeamSkill[v] = LevelOf(src.BeamSkillActivated, src.BeamSkillLevel);
    s.BeamOverload[v] = LevelOf(src.BeamOverloadActivated, src.BeamOverloadLevel);
    s.MineSkill[v] = LevelOf(src.MineSkillActivated, src.MineSkillLevel);
    s.TacticalTeam[v] = LevelOf(src.TacticalTeamActivated, src.TacticalTeamLevel);

    // Skills that share one check box can never run together: the selected
    // member takes the level, the other is off.
    const std::int16_t cannon = LevelOf(src.CannonSkillActivated, src.CannonSkillLevel);
    const bool rapidFire = src.CannonSkillSelected.index() == 0;
    s.RapidFire[v] = rapidFire ? cannon : std::int16_t{0};
    s.ScatterVolley[v] = rapidFire ? std::int16_t{0} : cannon;

    const std::int16_t torpedo = LevelOf(src.TorpedoSkillActivated, src.TorpedoSkillLevel);
    const bool highYield = src.TorpedoSkillSelected.index() == 0;
    s.TorpedoHighYield[v] = highYield ? torpedo : std::int16_t{0};
    s.TorpedoSpread[v] = highYield ? std::int16_t{0} : torpedo;

    // Beta and Delta act alike, so both feed one level.
    const std::int16_t pattern = LevelOf(src.AttackPatternActivated, src.AttackPatternLevel);
    const int selected = src.AttackPatternSelected.index();
    s.AttackPatternBeta[v] = (selected == 0 || selected == 1) ? pattern : std::int16_t{0};
    s.AttackPatternOmega[v] = selected == 2 ? pattern : std::int16_t{0};

    // The version of Attack Pattern Alpha is the captain's own, so it comes
    // from the vessel's own window even while Omega mirrors Alpha.
    s.AttackPatternAlpha[v] = src.AttackPatternAlpha.value() == 1
                                  ? static_cast<std::int16_t>(WholeNumberOf(c.skills[v].AttackPatternAlphaLevel.text()))
                                  : std::int16_t{0};

    s.SkillTargets[v] = static_cast<std::int16_t>(WholeNumberOf(src.Targets.text(), 1));

    CalculateFiringArcs(c);
}

} // namespace vantorel
