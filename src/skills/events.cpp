#include "skills/events.h"

#include "engine/combat.h"
#include "engine/modifiers.h"
#include "engine/selection.h"
#include "engine/skillstate.h"
#include "help/help.h"
#include "skills/lists.h"
#include "skills/skills.h"

#include <algorithm>
#include <array>
#include <variant>

namespace vantorel {

namespace {

// What a skill feeds besides the skill levels, and so which recalculation
// follows SkillUpdate.
enum class Feeds {
    Levels,       // the levels alone
    Damage,       // Tactical Team raises the weapon skills
    Resistance,   // the attack patterns: Beta lowers the target's resistance, Omega raises the damage
    CriticalHits, // Attack Pattern Alpha raises critical chance and severity, and the damage
};

struct SkillControls {
    Flag VesselSkills::*box;
    List VesselSkills::*level; // null for Attack Pattern Alpha, whose list has its own event
    Feeds feeds;
};

SkillControls ControlsOf(Skill skill) {
    switch (skill) {
    case Skill::BeamFireAtWill:
        return {&VesselSkills::BeamSkillActivated, &VesselSkills::BeamSkillLevel, Feeds::Levels};
    case Skill::BeamOverload:
        return {&VesselSkills::BeamOverloadActivated, &VesselSkills::BeamOverloadLevel, Feeds::Levels};
    case Skill::Cannon:
        return {&VesselSkills::CannonSkillActivated, &VesselSkills::CannonSkillLevel, Feeds::Levels};
    case Skill::DispersalPattern:
        return {&VesselSkills::MineSkillActivated, &VesselSkills::MineSkillLevel, Feeds::Levels};
    case Skill::Torpedo:
        return {&VesselSkills::TorpedoSkillActivated, &VesselSkills::TorpedoSkillLevel, Feeds::Levels};
    case Skill::TacticalTeam:
        return {&VesselSkills::TacticalTeamActivated, &VesselSkills::TacticalTeamLevel, Feeds::Damage};
    case Skill::AttackPattern:
        return {&VesselSkills::AttackPatternActivated, &VesselSkills::AttackPatternLevel, Feeds::Resistance};
    case Skill::AttackPatternAlpha:
        break;
    }
    return {&VesselSkills::AttackPatternAlpha, nullptr, Feeds::CriticalHits};
}

bool Mirrored(const Calculator& c) { return OmegaSkillsMirrorAlpha(c); }

// The vessel's skill levels, then the factors that the skill feeds. The
// weapon modifiers only count outside Relative DPS.
void Recalculate(Calculator& c, Vessel v, Feeds feeds) {
    SkillUpdate(c, v);
    if (feeds == Feeds::Resistance) ModifiedResistance(c, v);
    if (feeds == Feeds::CriticalHits) ModifiedCritical(c, v);
    if (feeds != Feeds::Levels && !RelativeMode(c)) ModifiedDPS(c, v);
}

// Alpha's choice of a row, copied into a mirroring Omega.
void CopyIndex(Calculator& c, List VesselSkills::*list) { (c.skills[2].*list).setIndex((c.skills[1].*list).index()); }
void CopyValue(Calculator& c, Flag VesselSkills::*box) { (c.skills[2].*box).setValue((c.skills[1].*box).value()); }

// Every control that a mirroring Omega window closes, and the order in
// which it copies Alpha's: a list that chooses the skill before its level
// list, so that the level list is rebuilt before its row is chosen.
using SkillField = std::variant<Flag VesselSkills::*, List VesselSkills::*>;
constexpr std::array<SkillField, 19> kMirrored = {
    &VesselSkills::AttackPatternActivated, &VesselSkills::AttackPatternSelected, &VesselSkills::AttackPatternLevel,
    &VesselSkills::BeamSkillActivated,     &VesselSkills::BeamSkillLevel,        &VesselSkills::BeamOverloadActivated,
    &VesselSkills::BeamOverloadLevel,      &VesselSkills::CannonSkillActivated,  &VesselSkills::CannonSkillSelected,
    &VesselSkills::CannonSkillLevel,       &VesselSkills::MineSkillActivated,    &VesselSkills::MineSkillSelected,
    &VesselSkills::MineSkillLevel,         &VesselSkills::TacticalTeamActivated, &VesselSkills::TacticalTeamLevel,
    &VesselSkills::TorpedoSkillActivated,  &VesselSkills::TorpedoSkillSelected,  &VesselSkills::TorpedoSkillLevel,
    &VesselSkills::AttackPatternAlpha};

Control& ControlOf(VesselSkills& k, const SkillField& field) {
    if (const auto* box = std::get_if<Flag VesselSkills::*>(&field)) return k.**box;
    return k.*std::get<List VesselSkills::*>(field);
}

// The boxes that open by their own rules when Omega's window goes free: a
// skill that Relative DPS or the chosen pattern closes stays closed.
bool OpensByItsOwnRule(const SkillField& field) {
    return field == SkillField(&VesselSkills::AttackPatternActivated) ||
           field == SkillField(&VesselSkills::TacticalTeamActivated) ||
           field == SkillField(&VesselSkills::AttackPatternAlpha);
}

void RebuildCannonLevels(VesselSkills& k) {
    static constexpr std::array<const char*, 3> kRapidFire = {"1 (+30% Cannon Damage)", "2 (+40% Cannon Damage)",
                                                              "3 (+50% Cannon Damage)"};
    static constexpr std::array<const char*, 3> kScatterVolley = {"1 (+15% Cannon Damage, Max Targets: 3)",
                                                                  "2 (+20% Cannon Damage, Max Targets: 3)",
                                                                  "3 (+25% Cannon Damage, Max Targets: 3)"};
    List& level = k.CannonSkillLevel;
    const int index = std::max(level.index(), 0);
    level.clear();
    // Row 0 is Rapid Fire; any other feeds Scatter Volley, as the skill
    // levels read it.
    for (const char* row : k.CannonSkillSelected.index() == 0 ? kRapidFire : kScatterVolley)
        level.addItem(row);
    // The restored row runs the level list's event: a ticked cannon skill
    // is recalculated as the other skill.
    level.setIndex(index);
}

} // namespace

void SkillActivatedClicked(Calculator& c, Vessel v, Skill skill) {
    const SkillControls f = ControlsOf(skill);
    if (v == 2) {
        if (!Mirrored(c)) Recalculate(c, 2, f.feeds);
        return;
    }
    Recalculate(c, 1, f.feeds);
    if (!Mirrored(c)) return;
    CopyValue(c, f.box);
    Recalculate(c, 2, f.feeds);
}

void SkillLevelClicked(Calculator& c, Vessel v, Skill skill) {
    const SkillControls f = ControlsOf(skill);
    if (f.level == nullptr) return;
    // A level counts only while its skill is ticked.
    auto ticked = [&c, &f](Vessel w) { return (c.skills[w].*f.box).value() == 1; };
    if (v == 2) {
        if (!Mirrored(c) && ticked(2)) Recalculate(c, 2, f.feeds);
        return;
    }
    if (ticked(1)) Recalculate(c, 1, f.feeds);
    if (!Mirrored(c)) return;
    CopyIndex(c, f.level);
    if (ticked(1)) Recalculate(c, 2, f.feeds);
}

void AttackPatternAlphaLevelClicked(Calculator& c, Vessel v) {
    VesselSkills& k = c.skills[v];
    const double skill = GetAttackPatternSkill(c, v);
    if (RelativeMode(c)) {
        k.AttackPatternAlphaDescription.setCaption("Requires Relative DPS to be disabled.");
        k.AttackPatternAlpha.setEnabled(false);
        k.AttackPatternAlpha.setValue(0);
    } else {
        if (v == 1 || !Mirrored(c)) k.AttackPatternAlpha.setEnabled(true);
        // The rows that still carry a blank from the window's start describe
        // nothing until the first rebuild.
        const std::string& version = k.AttackPatternAlphaLevel.text();
        if (version == "1" || version == "2" || version == "3")
            k.AttackPatternAlphaDescription.setCaption(AttackPatternAlphaDescription(version[0] - '0', skill));
    }

    if (v == 2) {
        if (!Mirrored(c) && k.AttackPatternAlpha.value() == 1) {
            SkillUpdate(c, 2);
            ModifiedDPS(c, 2);
            ModifiedCritical(c, 2);
        }
        return;
    }
    if (k.AttackPatternAlpha.value() == 1) {
        SkillUpdate(c, 1);
        ModifiedDPS(c, 1);
        ModifiedCritical(c, 1);
    }
    // Omega's list moves with Alpha's at once; vessel Omega's numbers follow
    // at its next update.
    if (Mirrored(c)) AttackPatternAlphaMatch(c);
}

void AttackPatternSelectedClicked(Calculator& c, Vessel v) {
    AttackPatternUpdate(c, v);
    if (v == 1 && Mirrored(c)) CopyIndex(c, &VesselSkills::AttackPatternSelected);
}

void CannonSkillSelectedClicked(Calculator& c, Vessel v) {
    RebuildCannonLevels(c.skills[v]);
    if (v == 1 && Mirrored(c)) CopyIndex(c, &VesselSkills::CannonSkillSelected);
}

void TorpedoSkillSelectedClicked(Calculator& c, Vessel v) {
    TorpedoUpdate(c, v);
    if (v == 1 && Mirrored(c)) CopyIndex(c, &VesselSkills::TorpedoSkillSelected);
}

// The two Dispersal Patterns act alike; the choice is only copied.
void MineSkillSelectedClicked(Calculator& c, Vessel v) {
    if (v == 1 && Mirrored(c)) CopyIndex(c, &VesselSkills::MineSkillSelected);
}

void TargetsChanged(Calculator& c, Vessel v) {
    if (v == 2 && Mirrored(c)) return;
    Text& targets = c.skills[v].Targets;
    const std::string corrected = TargetsCorrection(targets.text());
    if (!corrected.empty()) {
        // The corrected text runs this event again, which does the rest.
        targets.setText(corrected);
        return;
    }
    SkillUpdate(c, v);
    if (v == 2 || !Mirrored(c)) return;
    c.skills[2].Targets.setText(targets.text());
    SkillUpdate(c, 2);
}

void SkillsSameAsAlphaClicked(Calculator& c) {
    VesselSkills& omega = c.skills[2];
    if (!Mirrored(c)) {
        for (const SkillField& field : kMirrored)
            if (!OpensByItsOwnRule(field)) ControlOf(omega, field).setEnabled(true);
        omega.AttackPatternAlphaLevel.setEnabled(true);
        omega.Targets.setEnabled(true);
        omega.Targets.setBack(White);
        omega.TargetsLabel.setFore(White);
        // The copied selections stay; the two lists' rebuilds open the boxes
        // that their rules allow.
        AttackPatternUpdate(c, 2);
        AttackPatternAlphaUpdate(c, 2);
        return;
    }

    for (const SkillField& field : kMirrored)
        ControlOf(omega, field).setEnabled(false);
    omega.AttackPatternAlphaLevel.setEnabled(false);
    omega.Targets.setEnabled(false);
    omega.Targets.setBack(Grey);
    omega.TargetsLabel.setFore(Grey);
    for (const SkillField& field : kMirrored) {
        if (const auto* box = std::get_if<Flag VesselSkills::*>(&field))
            CopyValue(c, *box);
        else
            CopyIndex(c, std::get<List VesselSkills::*>(field));
    }
    // Omega keeps its own captain's version of Attack Pattern Alpha, as near
    // to Alpha's as its rank allows.
    AttackPatternAlphaUpdate(c, 2);
    omega.Targets.setText(c.skills[1].Targets.text());
    SkillUpdate(c, 2);
    ModifiedDPS(c, 2);
    ModifiedResistance(c, 2);
    ModifiedCritical(c, 2);
}

void SkillsHelpClicked(Calculator& c) {
    DisplayDocumentation(c, HelpCaller::MainWindow, HelpPosition(ManualSection::ActivatedSkills));
}

} // namespace vantorel
