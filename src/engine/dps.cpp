#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
float GetRangeMod(int, int) { return 1.0f; }
float BeamSkillModifier(const Calculator&, Vessel) { return 1.0f; }
float CannonSkillModifier(const Calculator&, Vessel, bool) { return 1.0f; }
float SkillPoints(int, int) { return 0.0f; }
float CriticalMultiplier(const Calculator&, Vessel, bool, float, float) { return 1.03375f; }
int GetRange(const Calculator&, Vessel) { return 0; }
float CalculateDPS(Calculator&, int, int, int, int, int, int, int, int, int, Vessel, bool) { return 0.0f; }

} // namespace vantorel
