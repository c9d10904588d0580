#include "program/wiring.h"

#include "skills/events.h"

namespace vantorel {

namespace {

void WireSkillsWindow(Calculator& c, Vessel v) {
    Calculator* calc = &c;
    VesselSkills& k = c.skills[v];

    struct SkillWiring {
        Skill skill;
        Flag& box;
        List* level;
    };
    for (const SkillWiring& w : {SkillWiring{Skill::BeamFireAtWill, k.BeamSkillActivated, &k.BeamSkillLevel},
                                 SkillWiring{Skill::BeamOverload, k.BeamOverloadActivated, &k.BeamOverloadLevel},
                                 SkillWiring{Skill::Cannon, k.CannonSkillActivated, &k.CannonSkillLevel},
                                 SkillWiring{Skill::DispersalPattern, k.MineSkillActivated, &k.MineSkillLevel},
                                 SkillWiring{Skill::Torpedo, k.TorpedoSkillActivated, &k.TorpedoSkillLevel},
                                 SkillWiring{Skill::TacticalTeam, k.TacticalTeamActivated, &k.TacticalTeamLevel},
                                 SkillWiring{Skill::AttackPattern, k.AttackPatternActivated, &k.AttackPatternLevel},
                                 SkillWiring{Skill::AttackPatternAlpha, k.AttackPatternAlpha, nullptr}}) {
        const Skill skill = w.skill;
        w.box.setHandler([calc, v, skill] { SkillActivatedClicked(*calc, v, skill); });
        if (w.level) w.level->setHandler([calc, v, skill] { SkillLevelClicked(*calc, v, skill); });
    }
    k.AttackPatternAlphaLevel.setHandler([calc, v] { AttackPatternAlphaLevelClicked(*calc, v); });
    k.AttackPatternSelected.setHandler([calc, v] { AttackPatternSelectedClicked(*calc, v); });
    k.CannonSkillSelected.setHandler([calc, v] { CannonSkillSelectedClicked(*calc, v); });
    k.TorpedoSkillSelected.setHandler([calc, v] { TorpedoSkillSelectedClicked(*calc, v); });
    k.MineSkillSelected.setHandler([calc, v] { MineSkillSelectedClicked(*calc, v); });
    // The skills windows' lists answer whatever their state: Omega's are
    // closed while they mirror Alpha's, and Alpha's choices reach them there.
    for (List* list :
         {&k.BeamSkillLevel, &k.BeamOverloadLevel, &k.CannonSkillSelected, &k.CannonSkillLevel, &k.MineSkillSelected,
          &k.MineSkillLevel, &k.TacticalTeamLevel, &k.TorpedoSkillSelected, &k.TorpedoSkillLevel,
          &k.AttackPatternSelected, &k.AttackPatternLevel, &k.AttackPatternAlphaLevel})
        list->setRunsWhenDisabled(true);

    k.Targets.setHandler([calc, v] { TargetsChanged(*calc, v); });
    k.Close.setHandler([calc, v] { SkillsCloseClicked(*calc, v); });
    // The frame's close only hides: the window's choices live on.
    k.Form.setHandler([calc, v] { SkillsCloseClicked(*calc, v); });
    if (v == 1)
        k.Help.setHandler([calc] { SkillsHelpClicked(*calc); });
    else
        k.SameAsAlpha.setHandler([calc] { SkillsSameAsAlphaClicked(*calc); });
}

} // namespace

void WireSkillsWindows(Calculator& c) {
    WireSkillsWindow(c, 1);
    WireSkillsWindow(c, 2);
}

} // namespace vantorel
