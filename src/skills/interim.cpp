// Interim wiring of the skills fields.
//
// The skills windows (AlphaSkills, OmegaSkills) are not built yet. Until they
// are, each of their fields gets a handler that runs the recalculation chain
// that the window's own event will run, so that the engine can be driven
// through the fields alone (tests, the command line). The window code
// replaces all of this.

#include "skills/interim.h"

#include "engine/combat.h"
#include "engine/modifiers.h"
#include "engine/selection.h"
#include "engine/skillstate.h"

#include <initializer_list>

namespace vantorel {

namespace {

void SetEnabled(std::initializer_list<Control*> controls, bool on) {
    for (Control* ctl : controls)
        ctl->setEnabled(on);
}

// Which Modified... operation follows SkillUpdate for a skill.
enum class Follow { None, Damage, Resistance, Critical };

void SkillChanged(Calculator& c, Vessel v, Follow follow) {
    // A mirrored Omega reads Alpha's skills, so Alpha's change moves it too.
    for (Vessel w = v; w <= 2; ++w) {
        if (w == 2 && v == 1 && !OmegaSkillsMirrorAlpha(c)) break;
        SkillUpdate(c, w);
        if (follow == Follow::Resistance) ModifiedResistance(c, w);
        if (follow == Follow::Critical) ModifiedCritical(c, w);
        if (follow != Follow::None && !RelativeMode(c)) ModifiedDPS(c, w);
    }
}

void WireSkills(Calculator& c, Vessel v) {
    Calculator* calc = &c;
    VesselSkills& k = c.skills[v];

    // A check box always counts; a level list only while its box is ticked.
    auto wire = [calc, v](Flag& box, std::initializer_list<List*> lists, Follow follow) {
        box.setHandler([calc, v, follow] { SkillChanged(*calc, v, follow); });
        const Flag* ticked = &box;
        for (List* list : lists)
            list->setHandler([calc, v, follow, ticked] {
                if (ticked->value() == 1) SkillChanged(*calc, v, follow);
            });
    };
    wire(k.BeamSkillActivated, {&k.BeamSkillLevel}, Follow::None);
    wire(k.BeamOverloadActivated, {&k.BeamOverloadLevel}, Follow::None);
    wire(k.CannonSkillActivated, {&k.CannonSkillSelected, &k.CannonSkillLevel}, Follow::None);
    wire(k.MineSkillActivated, {&k.MineSkillLevel}, Follow::None);
    wire(k.TorpedoSkillActivated, {&k.TorpedoSkillSelected, &k.TorpedoSkillLevel}, Follow::None);
    wire(k.TacticalTeamActivated, {&k.TacticalTeamLevel}, Follow::Damage);
    wire(k.AttackPatternActivated, {&k.AttackPatternSelected, &k.AttackPatternLevel}, Follow::Resistance);
    wire(k.AttackPatternAlpha, {&k.AttackPatternAlphaLevel}, Follow::Critical);
    k.Targets.setHandler([calc, v] { SkillChanged(*calc, v, Follow::None); });
    if (v == 2) {
        k.SameAsAlpha.setHandler([calc] {
            VesselSkills& own = calc->skills[2];
            const bool free = own.SameAsAlpha.value() == 0;
            SetEnabled({&own.BeamSkillLevel, &own.BeamOverloadLevel, &own.CannonSkillSelected, &own.CannonSkillLevel,
                        &own.MineSkillSelected, &own.MineSkillLevel, &own.TacticalTeamLevel, &own.TorpedoSkillSelected,
                        &own.TorpedoSkillLevel, &own.AttackPatternSelected, &own.AttackPatternLevel,
                        &own.AttackPatternAlphaLevel},
                       free);
            SkillUpdate(*calc, 2);
            ModifiedResistance(*calc, 2);
            ModifiedCritical(*calc, 2);
            ModifiedDPS(*calc, 2);
        });
    }
}

} // namespace

void WireInterimSkillsHandlers(Calculator& c) {
    for (Vessel v = 1; v <= 2; ++v)
        WireSkills(c, v);
}

} // namespace vantorel
