#include "skills/skills.h"

namespace vantorel {

// The skills windows are not built yet: their lists keep the rows they start
// with, and their buttons on the main window do nothing.
void AttackPatternUpdate(Calculator&, Vessel) {}
void AttackPatternAlphaUpdate(Calculator&, Vessel) {}
void TorpedoUpdate(Calculator&, Vessel) {}
void SkillsClicked(Calculator&, Vessel) {}

} // namespace vantorel
