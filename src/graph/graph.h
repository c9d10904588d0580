#pragma once

// The graph window `Graph`: the DPS of one or two builds drawn over the arcs,
// also across power levels or ranges.

#include "engine/records.h"

namespace vantorel {

// Redraws the graph; does nothing while the graph window is closed.
void GraphControl(Calculator& c);
// The graph's empty state: no lines, the scale's start captions, no key.
void GraphReset(Calculator& c);
// Places the open graph window beside the main and settings windows.
void DisplayGraph(Calculator& c);
// `GraphResults` on the main window: opens the graph, or closes it.
void GraphResultsClicked(Calculator& c);
// The axis captions and segment ends that follow Simplified.
void SimplifiedGraphAxes(Calculator& c);
// Closes the graph window. It is really closed: the mode, the folded key
// and the bring-to-front choice do not outlive it.
void CloseGraph(Calculator& c);

} // namespace vantorel
