#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
void ModifiedDPS(Calculator&, Vessel) {}
void ResetModifier(Calculator&) {}
float WeaponSkillBonus(const Calculator&, int, Vessel) { return 0.0f; }
float ConsoleBonus(const Calculator&, int, Vessel) { return 0.0f; }
float BaseProjectileDamage(const Calculator&, Vessel) { return 0.0f; }

} // namespace vantorel
