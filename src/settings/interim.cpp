// Interim wiring of the settings fields.
//
// The settings windows (Alpha, Omega) and the skills windows (AlphaSkills,
// OmegaSkills) are not built yet. Until they are, each of their fields gets a
// handler that runs the recalculation chain that the window's own event will
// run, so that the engine can be driven through the fields alone (tests, the
// command line). What the windows add on top is left out on purpose: number
// box validation, colours, rank limits, mirroring Alpha's values into a
// mirrored Omega. Opening a section only enables the lists that it holds,
// since a disabled list runs no handler. The window code replaces all of this.

#include "settings/interim.h"

#include "catalogue/cascade.h"
#include "engine/combat.h"
#include "engine/modifiers.h"
#include "engine/power.h"
#include "engine/selection.h"
#include "settings/settings.h"

#include <initializer_list>

namespace vantorel {

namespace {

void SetEnabled(std::initializer_list<Control*> controls, bool on) {
    for (Control* ctl : controls)
        ctl->setEnabled(on);
}

// Combat settings feed critical hits, accuracy, resistance and, through the
// attack pattern skill, the damage of the attack patterns. A mirrored Omega
// reads Alpha's combat settings, so its numbers move too.
void CombatChanged(Calculator& c, Vessel v) {
    for (Vessel w = v; w <= 2; ++w) {
        if (w == 2 && v == 1 && !OmegaMirrorsAlpha(c)) break;
        const VesselSettings& source = CombatSource(c, w);
        // Accuracy first: it settles the excess that the criticals read, and
        // runs ModifiedCritical itself while accuracy counts.
        ModifiedAccuracy(c, w);
        if (source.Accuracy.value() != 1) ModifiedCritical(c, w);
        ModifiedResistance(c, w);
        ModifiedDPS(c, w);
    }
}

void WireSettings(Calculator& c, Vessel v) {
    Calculator* calc = &c;
    VesselSettings& s = c.settings[v];

    s.CriticalSettings.setHandler([calc, v] {
        VesselSettings& own = calc->settings[v];
        SetEnabled({&own.CriticalItem}, own.CriticalSettings.value() == 0);
        CombatChanged(*calc, v);
    });
    for (int i = 1; i <= 3; ++i)
        s.CriticalSkill[i].setHandler([calc, v] { CombatChanged(*calc, v); });
    s.CriticalItem.setHandler([calc, v] { CombatChanged(*calc, v); });
    s.Accuracy.setHandler([calc, v] { CombatChanged(*calc, v); });
    s.TargetDefense.setHandler([calc, v] { CombatChanged(*calc, v); });
    s.DamageResistance.setHandler([calc, v] { ModifiedResistance(*calc, v); });
    s.TargetResistance.setHandler([calc, v] { ModifiedResistance(*calc, v); });
    if (v == 2) s.SameAsAlpha.setHandler([calc] { CombatChanged(*calc, 2); });

    s.ExtrapolatePower.setHandler([calc, v] {
        VesselSettings& own = calc->settings[v];
        SetEnabled({&own.PowerCaptain}, own.ExtrapolatePower.value() == 1);
        CalculatePower(*calc, v, Rebuild::Always);
        ModifiedDPS(*calc, v);
    });
    for (int i = 1; i <= 5; ++i)
        s.PowerSkill[i].setHandler([calc, v] { CalculatePower(*calc, v, Rebuild::Always); });
    s.PowerCaptain.setHandler([calc, v] { CalculatePower(*calc, v, Rebuild::Always); });
    s.WarpCore.setHandler([calc, v] { CalculatePower(*calc, v, Rebuild::Always); });

    // One value for both vessels: a change on either side is copied to the
    // other, whose handler then finds nothing to copy back.
    s.RelativeDPS.setHandler([calc, v] {
        VesselSettings& own = calc->settings[v];
        VesselSettings& other = calc->settings[v == 1 ? 2 : 1];
        const int value = own.RelativeDPS.value();
        if (other.RelativeDPS.value() != value) other.RelativeDPS.setValue(value);
        const bool custom = value == 0;
        SetEnabled({&own.WeaponMark, &own.WeaponMod[1], &own.WeaponMod[2], &own.WeaponMod[3]}, custom);
        for (int i = 1; i <= 4; ++i)
            SetEnabled({&own.TacticalConsole[i], &own.TacticalConsoleMark[i], &own.TacticalConsoleRarity[i]}, custom);
        ResetModifier(*calc);
        // ResetModifier's ShipControl re-equips the consoles and reaches
        // ModifiedDPS; asking for it here as well keeps the chain whole
        // whatever the catalogue does.
        ModifiedDPS(*calc, v);
        CombatChanged(*calc, v);
    });

    auto damage = [calc, v] { ModifiedDPS(*calc, v); };
    s.WeaponMark.setHandler(damage);
    for (int i = 1; i <= 8; ++i)
        s.WeaponSkill[i].setHandler(damage);
    for (int i = 1; i <= 2; ++i)
        s.WeaponAccolade[i].setHandler(damage);
    for (int i = 1; i <= 4; ++i) {
        s.TacticalConsole[i].setHandler(damage);
        s.TacticalConsoleMark[i].setHandler(damage);
        s.TacticalConsoleRarity[i].setHandler(damage);
        s.TacticalConsoleEquipped[i].setHandler(damage);
    }
    // A mod changes damage, accuracy ("[Acc]") and criticals ("[CrtD]", "[CrtH]").
    for (int i = 1; i <= 3; ++i)
        s.WeaponMod[i].setHandler([calc, v] {
            ModifiedDPS(*calc, v);
            ModifiedAccuracy(*calc, v);
            ModifiedCritical(*calc, v);
        });
}

} // namespace

void WireInterimSettingsHandlers(Calculator& c) {
    for (Vessel v = 1; v <= 2; ++v)
        WireSettings(c, v);
}

} // namespace vantorel
