#pragma once

// The graph window `Graph`: the DPS of one or two builds drawn over the arcs.

#include "engine/records.h"

namespace vantorel {

// Redraws the graph; does nothing while the graph window is closed.
void GraphControl(Calculator& c);

} // namespace vantorel
