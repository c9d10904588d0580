#include "program/wiring.h"

#include "settings/character.h"
#include "settings/combat.h"
#include "settings/consoles.h"
#include "settings/frame.h"
#include "settings/mirror.h"
#include "settings/power.h"
#include "settings/settings.h"
#include "settings/weapons.h"

#include <functional>
#include <utility>

namespace vantorel {

namespace {

// The lists of these windows run their handler whatever their state, as the
// boxes do: each handler asks for its own state where it matters, so that a
// quiet list still passes its value on to a mirrored Omega.
void Wire(List& list, std::function<void()> handler) {
    list.setRunsWhenDisabled(true);
    list.setHandler(std::move(handler));
}

void WireWindow(Calculator& c, Vessel v) {
    Calculator* calc = &c;
    VesselSettings& s = c.settings[v];

    s.Form.setHandler([calc, v] { SettingsCloseRequested(*calc, v); });
    s.Close.setHandler([calc, v] { SettingsCloseClicked(*calc, v); });
    for (int i = 0; i <= 4; ++i)
        s.Help[i].setHandler([calc, v, i] { SettingsHelpClicked(*calc, v, i); });
    for (int i = 1; i <= 4; ++i)
        s.CopySettings[i].setHandler([calc, v, i] { CopySettingsClicked(*calc, v, static_cast<Section>(i)); });
    s.VScroll1.setHandler([calc, v] { SettingsScrolled(*calc, v); });

    if (v == 1)
        s.CharacterSettings.setHandler([calc] { CharacterSettingsChanged(*calc); });
    else
        s.SameAsAlpha.setHandler([calc] { SameAsAlphaChanged(*calc); });
    Wire(s.Faction, [calc, v] { FactionChanged(*calc, v); });
    Wire(s.Rank, [calc, v] { RankChanged(*calc, v); });
    // The career is copied like the other two lists, but nothing reads it.
    s.Class.setRunsWhenDisabled(true);

    s.CriticalSettings.setHandler([calc, v] { CriticalSettingsChanged(*calc, v); });
    for (int i = 1; i <= 3; ++i)
        s.CriticalSkill[i].setHandler([calc, v, i] { CriticalSkillChanged(*calc, v, i); });
    Wire(s.CriticalItem, [calc, v] { CriticalItemChanged(*calc, v); });
    s.DamageResistance.setHandler([calc, v] { DamageResistanceChanged(*calc, v); });
    s.Accuracy.setHandler([calc, v] { AccuracyChanged(*calc, v); });
    s.TargetResistance.setHandler([calc, v] { TargetResistanceChanged(*calc, v); });
    s.TargetDefense.setHandler([calc, v] { TargetDefenseChanged(*calc, v); });

    s.ExtrapolatePower.setHandler([calc, v] { ExtrapolatePowerChanged(*calc, v); });
    for (int i = 1; i <= 5; ++i)
        s.PowerSkill[i].setHandler([calc, v, i] { PowerSkillChanged(*calc, v, i); });
    Wire(s.PowerCaptain, [calc, v] { PowerCaptainChanged(*calc, v); });
    s.WarpCore.setHandler([calc, v] { WarpCoreChanged(*calc, v); });

    s.RelativeDPS.setHandler([calc, v] { RelativeDPSChanged(*calc, v); });
    Wire(s.WeaponMark, [calc, v] { WeaponMarkChanged(*calc, v); });
    for (int i = 1; i <= 3; ++i)
        Wire(s.WeaponMod[i], [calc, v, i] { WeaponModChanged(*calc, v, i); });
    for (int i = 1; i <= 8; ++i)
        s.WeaponSkill[i].setHandler([calc, v, i] { WeaponSkillChanged(*calc, v, i); });
    for (int k = 1; k <= 2; ++k)
        Wire(s.WeaponType[k], [calc, v, k] { WeaponTypeChanged(*calc, v, k); });
    for (int i = 1; i <= 2; ++i)
        s.WeaponAccolade[i].setHandler([calc, v, i] { WeaponAccoladeChanged(*calc, v, i); });

    s.MatchConsole.setHandler([calc, v] { MatchConsoleChanged(*calc, v); });
    for (int i = 1; i <= 4; ++i) {
        Wire(s.TacticalConsole[i], [calc, v, i] { TacticalConsoleChanged(*calc, v, i); });
        Wire(s.TacticalConsoleMark[i], [calc, v, i] { TacticalConsoleMarkChanged(*calc, v, i); });
        Wire(s.TacticalConsoleRarity[i], [calc, v, i] { TacticalConsoleRarityChanged(*calc, v, i); });
        s.TacticalConsoleEquipped[i].setHandler([calc, v, i] { TacticalConsoleEquippedChanged(*calc, v, i); });
    }
}

} // namespace

void WireSettingsWindows(Calculator& c) {
    WireWindow(c, 1);
    WireWindow(c, 2);
}

} // namespace vantorel
