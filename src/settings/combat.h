#pragma once

// The combat section: what goes into critical hits, damage resistance and
// accuracy. "Default Settings" closes the captain's skills and the target
// boxes; unchecked they open as far as the rank allows.

#include "engine/records.h"

namespace vantorel {

// Applies rank value r to the section's skill boxes and equipment list.
void CriticalControl(Calculator& c, Vessel v, int r);

void CriticalSettingsChanged(Calculator& c, Vessel v);
void CriticalSkillChanged(Calculator& c, Vessel v, int i);
void CriticalItemChanged(Calculator& c, Vessel v);
void DamageResistanceChanged(Calculator& c, Vessel v);
void AccuracyChanged(Calculator& c, Vessel v);
void TargetResistanceChanged(Calculator& c, Vessel v);
void TargetDefenseChanged(Calculator& c, Vessel v);

} // namespace vantorel
