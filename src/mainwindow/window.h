#pragma once

// The main window `Form1` as a record: its start values (captions, rows,
// places in twips, colours, tooltips) and the names of its fields.

#include "engine/records.h"
#include "engine/registry.h"

namespace vantorel {

// Writes the start values of every control of the main window.
void SetUpMainWindow(MainSelection& m);
// Names the main window's fields: `Form1.Forward[1]`, ...
void RegisterFields(FieldTable& table, MainSelection& m);

} // namespace vantorel
