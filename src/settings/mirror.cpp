#include "settings/mirror.h"

#include "catalogue/cascade.h"
#include "engine/combat.h"
#include "engine/modifiers.h"
#include "engine/power.h"
#include "engine/selection.h"
#include "settings/character.h"
#include "settings/combat.h"
#include "settings/paint.h"
#include "settings/power.h"
#include "settings/weapons.h"

#include <initializer_list>
#include <utility>

namespace vantorel {

namespace {

// Omega's row n + 1 is Alpha's row n: row 0 of Omega's lists follows Alpha.
constexpr int kOmegaShift = 1;

// A control of Omega goes quiet and grey, then takes Alpha's value.
void Follow(List& omega, const List& alpha, int shift = 0) {
    omega.setEnabled(false);
    Paint(omega, Shade::Inactive);
    omega.setIndex(alpha.index() + shift);
}
void Follow(Text& omega, const Text& alpha) {
    omega.setEnabled(false);
    omega.setText(alpha.text());
    Paint(omega, Shade::Inactive);
}
void Follow(Flag& omega, const Flag& alpha) {
    omega.setEnabled(false);
    omega.setValue(alpha.value());
}

void FollowWeapons(Calculator& c) {
    VesselSettings& o = c.Omega();
    const VesselSettings& a = c.Alpha();
    Follow(o.WeaponMark, a.WeaponMark);
    PaintLabel(o.WeaponMarklabel, Shade::Inactive);
    PaintLabel(o.WeaponModLabel, Shade::Inactive);
    for (int i = 1; i <= 3; ++i)
        Follow(o.WeaponMod[i], a.WeaponMod[i]);
    Follow(o.WeaponAccolade[1], a.WeaponAccolade[1]);
    Follow(o.WeaponAccolade[2], a.WeaponAccolade[2]);
    PaintLabels({&o.TacticalConsoleLabel, &o.DisplayedDPSLabel[1], &o.DisplayedDPSLabel[2]}, Shade::Inactive);
    Follow(o.MatchConsole, a.MatchConsole);
    Paint(o.MatchConsoleLimit, Shade::Inactive);
    PaintLabels({&o.SkillLabel[1], &o.SkillLabel[2]}, Shade::Inactive);
    // The type is copied while the list is still open, then closed.
    o.WeaponType[1].setIndex(a.WeaponType[1].index());
    Paint(o.WeaponType[1], Shade::Inactive);
    o.WeaponType[1].setEnabled(false);
    for (int i = 1; i <= 7; ++i)
        Paint(o.CalculatedWeaponDPS[i], o.CalculatedWeaponDPSLabel[i], Shade::Inactive);
    // Closed before the copy arrives: an "N/A" that Alpha's rank wrote is
    // kept as it is, where an open box would clear it as no number.
    for (int i = 1; i <= 8; ++i) {
        o.WeaponSkill[i].setEnabled(false);
        o.WeaponSkill[i].setText(a.WeaponSkill[i].text());
        Paint(o.WeaponSkill[i], Shade::Inactive);
        if (i != 4 && i != 8) PaintLabel(o.WeaponSkillLabel[i], Shade::Inactive);
    }
    for (int i = 1; i <= 4; ++i) {
        Follow(o.TacticalConsole[i], a.TacticalConsole[i]);
        Follow(o.TacticalConsoleMark[i], a.TacticalConsoleMark[i]);
        Follow(o.TacticalConsoleRarity[i], a.TacticalConsoleRarity[i]);
        Follow(o.TacticalConsoleEquipped[i], a.TacticalConsoleEquipped[i]);
    }
    if (o.MatchConsole.value() == 1) MatchConsoleLimit(c, 2, 0);
}

void Mirror(Calculator& c) {
    VesselSettings& o = c.Omega();
    VesselSettings& a = c.Alpha();
    PaintLabels({&o.CharacterSettingsLabel, &o.WeaponDamageLabel}, Shade::Inactive);
    Follow(o.Faction, a.Faction, kOmegaShift);
    PaintLabel(o.FactionLabel, Shade::Inactive);
    Follow(o.Rank, a.Rank, kOmegaShift);
    PaintLabel(o.RankLabel, Shade::Inactive);
    // Omega's lists held the rows its own rank offered: they take those of
    // Alpha's rank, so that every row Alpha may copy is there.
    WeaponControl(c, 2, GetRank(c, 2));
    o.Class.setEnabled(false);
    Paint(o.Class, o.ClassLabel, Shade::Inactive);
    o.Class.setIndex(-1);
    o.RelativeDPS.setEnabled(false);
    Follow(o.WeaponType[2], a.WeaponType[2]);
    Follow(o.ExtrapolatePower, a.ExtrapolatePower);
    PaintLabel(o.PowerSettings, Shade::Inactive);
    for (int i = 1; i <= 4; ++i) {
        o.CopySettings[i].setEnabled(false);
        a.CopySettings[i].setEnabled(false);
        o.Help[i].setEnabled(false);
    }
    if (o.RelativeDPS.value() == 0) {
        FollowWeapons(c);
    } else {
        // Closed on both sides, the weapon section is left out; only the
        // console match, which going back to Relative DPS resets on Alpha
        // alone, is taken, so that it agrees when the section opens again.
        Follow(o.MatchConsole, a.MatchConsole);
    }
    ModifiedDPS(c, 2);

    for (int i = 1; i <= 5; ++i) {
        Follow(o.PowerSkill[i], a.PowerSkill[i]);
        PaintLabel(o.PowerSkillLabel[i], Shade::Inactive);
    }
    Follow(o.PowerCaptain, a.PowerCaptain);
    o.PowerCaptain.setHint(a.PowerCaptain.hint());
    Follow(o.WarpCore, a.WarpCore);
    Paint(o.PowerBonus, o.PowerBonusLabel, Shade::Inactive);
    CalculatePower(c, 2, Rebuild::Always);
    if (o.ExtrapolatePower.value() == 0) o.PowerBonus.setCaption("");

    Follow(o.CriticalSettings, a.CriticalSettings);
    PaintLabel(o.CriticalSettingsLabel, Shade::Inactive);
    for (int i = 1; i <= 3; ++i) {
        Follow(o.CriticalSkill[i], a.CriticalSkill[i]);
        PaintLabel(o.CriticalSkillLabel[i], Shade::Inactive);
    }
    Follow(o.CriticalItem, a.CriticalItem);
    o.CriticalItem.setHint(a.CriticalItem.hint());
    Follow(o.DamageResistance, a.DamageResistance);
    Follow(o.TargetResistance, a.TargetResistance);
    PaintLabel(o.TargetResistanceLabel, Shade::Inactive);
    Follow(o.Accuracy, a.Accuracy);
    Follow(o.TargetDefense, a.TargetDefense);
    PaintLabel(o.TargetDefenseLabel, Shade::Inactive);
    Paint(o.CritH, o.CritHlabel, Shade::Inactive);
    Paint(o.CritD, o.CritDlabel, Shade::Inactive);
    Paint(o.DamageReduction, o.DamageReductionLabel, Shade::Inactive);
    Paint(o.HitRate, o.HitRateLabel, Shade::Inactive);
    ModifiedAccuracy(c, 2);
    ModifiedCritical(c, 2);
    ModifiedResistance(c, 2);
}

// Values stay what they are; only the controls open, and the sections'
// own handlers open them as far as Omega's rank allows.
void Free(Calculator& c) {
    VesselSettings& o = c.Omega();
    VesselSettings& a = c.Alpha();
    FactionUpdate(c);
    PaintLabels({&o.CharacterSettingsLabel, &o.WeaponDamageLabel}, Shade::Active);
    o.Rank.setIndex(0);
    o.Faction.setEnabled(true);
    o.Rank.setEnabled(true);
    Paint(o.Faction, o.FactionLabel, Shade::Active);
    o.Faction.setIndex(0);
    Paint(o.Rank, o.RankLabel, Shade::Active);
    o.Class.setEnabled(true);
    Paint(o.Class, o.ClassLabel, Shade::Active);
    o.Class.setIndex(0);
    o.RelativeDPS.setEnabled(true);
    o.WeaponType[2].setEnabled(true);
    Paint(o.WeaponType[2], Shade::Active);
    if (o.RelativeDPS.value() == 0) RelativeDPSChanged(c, 2);
    o.ExtrapolatePower.setEnabled(true);
    PaintLabel(o.PowerSettings, Shade::Active);
    // It keeps the copied numbers, and may raise the power warning.
    if (o.ExtrapolatePower.value() == 1) ExtrapolatePowerChanged(c, 2);
    o.CriticalSettings.setEnabled(true);
    PaintLabel(o.CriticalSettingsLabel, Shade::Active);
    o.DamageResistance.setEnabled(true);
    o.Accuracy.setEnabled(true);
    CriticalSettingsChanged(c, 2);
    for (int i = 1; i <= 4; ++i) {
        o.CopySettings[i].setEnabled(true);
        o.Help[i].setEnabled(true);
        a.CopySettings[i].setEnabled(true);
    }
}

// Copies a control into the window if the control there is open: a box that
// the window's rank closed keeps its "N/A".
template <typename T> void CopyIfOpen(T& into, const T& from);
template <> void CopyIfOpen(Text& into, const Text& from) {
    if (into.enabled()) into.setText(from.text());
}
template <> void CopyIfOpen(Flag& into, const Flag& from) {
    if (into.enabled()) into.setValue(from.value());
}
template <> void CopyIfOpen(List& into, const List& from) {
    if (into.enabled()) into.setIndex(from.index());
}

// The other vessel's row if this list has it, else `otherwise`.
int RowOr(const List& into, const List& from, int otherwise) {
    return from.index() <= into.count() - 1 ? from.index() : otherwise;
}

void CopyCharacter(Calculator& c, Vessel into) {
    VesselSettings& a = c.Alpha();
    VesselSettings& o = c.Omega();
    if (into == 1) {
        // Omega's same-as row leaves Alpha's list alone.
        for (auto [alpha, omega] :
             {std::pair{&a.Faction, &o.Faction}, std::pair{&a.Rank, &o.Rank}, std::pair{&a.Class, &o.Class}})
            if (omega->index() > 0) alpha->setIndex(omega->index() - kOmegaShift);
        return;
    }
    const bool custom = a.CharacterSettings.value() == 0;
    for (auto [alpha, omega] :
         {std::pair{&a.Faction, &o.Faction}, std::pair{&a.Rank, &o.Rank}, std::pair{&a.Class, &o.Class}})
        omega->setIndex(custom ? alpha->index() + kOmegaShift : 0);
}

void CopyCombat(VesselSettings& w, const VesselSettings& s) {
    if (s.CriticalSettings.value() == 0) {
        if (w.CriticalSettings.value() == 1) w.CriticalSettings.setValue(0);
        for (int i = 1; i <= 3; ++i)
            CopyIfOpen(w.CriticalSkill[i], s.CriticalSkill[i]);
        CopyIfOpen(w.CriticalItem, s.CriticalItem);
        CopyIfOpen(w.DamageResistance, s.DamageResistance);
        CopyIfOpen(w.TargetResistance, s.TargetResistance);
        CopyIfOpen(w.Accuracy, s.Accuracy);
        CopyIfOpen(w.TargetDefense, s.TargetDefense);
        return;
    }
    if (w.CriticalSettings.value() == 0) w.CriticalSettings.setValue(1);
    CopyIfOpen(w.Accuracy, s.Accuracy);
    CopyIfOpen(w.DamageResistance, s.DamageResistance);
}

void CopyPower(VesselSettings& w, const VesselSettings& s) {
    if (s.ExtrapolatePower.value() == 1) {
        // Opening the section can raise the power warning.
        if (w.ExtrapolatePower.value() == 0) w.ExtrapolatePower.setValue(1);
        for (int i = 1; i <= 5; ++i)
            CopyIfOpen(w.PowerSkill[i], s.PowerSkill[i]);
        w.PowerCaptain.setIndex(s.PowerCaptain.index());
        w.WarpCore.setValue(s.WarpCore.value());
        return;
    }
    if (w.ExtrapolatePower.value() == 1) w.ExtrapolatePower.setValue(0);
}

void CopyWeapons(VesselSettings& w, const VesselSettings& s) {
    if (w.RelativeDPS.value() == 1) {
        w.WeaponType[2].setIndex(RowOr(w.WeaponType[2], s.WeaponType[2], w.WeaponType[2].index()));
        return;
    }
    // What the lower rank has no row for: the mark goes to Max, the types
    // stay where they were.
    w.WeaponMark.setIndex(RowOr(w.WeaponMark, s.WeaponMark, 0));
    for (int k = 1; k <= 2; ++k)
        w.WeaponType[k].setIndex(RowOr(w.WeaponType[k], s.WeaponType[k], w.WeaponType[k].index()));
    for (int i = 1; i <= 8; ++i)
        CopyIfOpen(w.WeaponSkill[i], s.WeaponSkill[i]);
    for (int i = 1; i <= 3; ++i)
        w.WeaponMod[i].setIndex(s.WeaponMod[i].index());
    for (int i = 1; i <= 2; ++i)
        w.WeaponAccolade[i].setValue(s.WeaponAccolade[i].value());
    w.MatchConsole.setValue(s.MatchConsole.value());
    for (int i = 1; i <= 4; ++i) {
        w.TacticalConsole[i].setIndex(s.TacticalConsole[i].index());
        List& mark = w.TacticalConsoleMark[i];
        mark.setIndex(RowOr(mark, s.TacticalConsoleMark[i], 0));
        List& rarity = w.TacticalConsoleRarity[i];
        rarity.setIndex(RowOr(rarity, s.TacticalConsoleRarity[i], rarity.count() - 1));
        if (s.MatchConsole.value() == 0) w.TacticalConsoleEquipped[i].setValue(s.TacticalConsoleEquipped[i].value());
    }
}

} // namespace

void SameAsAlphaChanged(Calculator& c) {
    if (c.Omega().SameAsAlpha.value() == 1)
        Mirror(c);
    else
        Free(c);
}

void CopySettingsClicked(Calculator& c, Vessel v, Section section) {
    VesselSettings& into = c.settings[v];
    const VesselSettings& from = c.settings[v == 1 ? 2 : 1];
    switch (section) {
    case Section::Character:
        CopyCharacter(c, v);
        break;
    case Section::Combat:
        CopyCombat(into, from);
        break;
    case Section::Power:
        CopyPower(into, from);
        break;
    case Section::Weapon:
        CopyWeapons(into, from);
        break;
    }
}

} // namespace vantorel
