#include "graph/graph.h"

namespace vantorel {

// The graph window is not built yet: there is nothing to redraw.
void GraphControl(Calculator&) {}

} // namespace vantorel
