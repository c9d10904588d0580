#pragma once

// The events of the controls of the skills windows. Alpha's events update
// vessel Alpha and, while Omega's window mirrors Alpha's, copy the change
// into Omega's window and update vessel Omega. Omega's own events act only
// while its window chooses its own skills; the ones that rebuild a level list
// run in both cases, since Alpha's copies land in these lists.

#include "engine/records.h"

namespace vantorel {

// A skill with its own check box and level list.
enum class Skill {
    BeamFireAtWill,
    BeamOverload,
    Cannon,
    DispersalPattern,
    Torpedo,
    TacticalTeam,
    AttackPattern,
    AttackPatternAlpha
};

// The skill's check box: BeamSkillActivated, ..., AttackPatternAlpha.
void SkillActivatedClicked(Calculator& c, Vessel v, Skill skill);
// The skill's level list: BeamSkillLevel, ..., AttackPatternLevel. Attack
// Pattern Alpha's version list has its own event below.
void SkillLevelClicked(Calculator& c, Vessel v, Skill skill);
void AttackPatternAlphaLevelClicked(Calculator& c, Vessel v);

// The lists that choose between the skills of one check box.
void AttackPatternSelectedClicked(Calculator& c, Vessel v);
void CannonSkillSelectedClicked(Calculator& c, Vessel v);
void TorpedoSkillSelectedClicked(Calculator& c, Vessel v);
void MineSkillSelectedClicked(Calculator& c, Vessel v);

// The text of `Targets` changed: held to 1 to 10, then the vessel updated.
void TargetsChanged(Calculator& c, Vessel v);
// Omega's `SameAsAlpha`: ticked, the window becomes a read-only copy of
// Alpha's; cleared, it keeps that copy and opens for its own choices.
void SkillsSameAsAlphaClicked(Calculator& c);

// `Close`, and a close from the window's frame: the window is only hidden.
void SkillsCloseClicked(Calculator& c, Vessel v);
// `Help` on Alpha's window: the manual at the skills windows' section.
void SkillsHelpClicked(Calculator& c);

} // namespace vantorel
