#include "program/wiring.h"

#include "settings/interim.h"
#include "settings/settings.h"

namespace vantorel {

void WireSettingsWindows(Calculator& c) {
    Calculator* calc = &c;
    for (Vessel v = 1; v <= 2; ++v) {
        for (int k = 1; k <= 2; ++k) {
            List& type = c.settings[v].WeaponType[k];
            type.setRunsWhenDisabled(true);
            type.setHandler([calc, v, k] { WeaponTypeChanged(*calc, v, k); });
        }
    }
    WireInterimSettingsHandlers(c);
}

} // namespace vantorel
