#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
double GetAttackPatternSkill(const Calculator&, Vessel) { return 0.0; }
void ModifiedCritical(Calculator&, Vessel) {}
void ModifiedAccuracy(Calculator&, Vessel) {}
void ModifiedResistance(Calculator&, Vessel) {}
float TargetResistanceValue(const Calculator&, Vessel) { return 0.0f; }

} // namespace vantorel
