#include "program/wiring.h"

namespace vantorel {

// The graph window has no controls yet.
void WireGraphWindow(Calculator&) {}

} // namespace vantorel
