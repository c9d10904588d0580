#include "program/wiring.h"

#include "skills/interim.h"

namespace vantorel {

void WireSkillsWindows(Calculator& c) { WireInterimSkillsHandlers(c); }

} // namespace vantorel
