#include "graph/graph.h"

namespace vantorel {

// The graph window is not built yet: there is nothing to draw or place.
void GraphControl(Calculator&) {}
void GraphReset(Calculator&) {}
void DisplayGraph(Calculator&) {}
void GraphResultsClicked(Calculator&) {}
void SimplifiedGraphAxes(Calculator&) {}

} // namespace vantorel
