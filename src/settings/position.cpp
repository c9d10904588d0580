#include "settings/settings.h"

namespace vantorel {

// The settings windows are not built yet: they never show.
void PositionAlpha(Calculator&) {}
void PositionOmega(Calculator&) {}
void AdvancedClicked(Calculator&, Vessel) {}

} // namespace vantorel
