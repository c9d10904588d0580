#pragma once

// Critical hits, accuracy and the target's damage resistance, with the
// output boxes of the vessel's settings window that show them.

#include "engine/records.h"

namespace vantorel {

// The vessel's total attack pattern skill.
double GetAttackPatternSkill(const Calculator& c, Vessel v);
// Critical chance and severity boxes, then the results.
void ModifiedCritical(Calculator& c, Vessel v);
// AccuracyFactor and ExcessAccuracy, the hit rate box, the critical boxes
// (excess accuracy raises them), then the results.
void ModifiedAccuracy(Calculator& c, Vessel v);
// ResistanceFactor and the damage reduction box, then the results.
void ModifiedResistance(Calculator& c, Vessel v);
// The target's resistance in percent as the vessel's settings give it.
float TargetResistanceValue(const Calculator& c, Vessel v);

} // namespace vantorel
