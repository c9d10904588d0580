#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
std::string GetDamageType(const Calculator&, Vessel, int) { return {}; }
void WeaponAdd(Calculator&, int, Vessel) {}
void WeaponUnlock(Calculator&, int, int, Vessel) {}
std::string ForwardHint(int i) { return "Forward Weapon Port " + std::to_string(i); }
std::string RearHint(int i) { return "Rear Weapon Port " + std::to_string(i); }

} // namespace vantorel
