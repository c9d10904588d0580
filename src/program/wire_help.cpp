#include "program/wiring.h"

namespace vantorel {

// The help windows have no controls yet.
void WireHelpWindows(Calculator&) {}

} // namespace vantorel
