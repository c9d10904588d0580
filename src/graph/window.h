#pragma once

// Window `Graph` as a record: its start values and the names of its fields.

#include "engine/registry.h"
#include "engine/windows.h"

namespace vantorel {

// Writes the start values of window `Graph`.
void SetUpGraphWindow(GraphWindow& g);
// Names the window's fields: `Graph.Line1[0]`, ...
void RegisterFields(FieldTable& table, GraphWindow& g);

} // namespace vantorel
