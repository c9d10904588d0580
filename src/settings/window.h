#pragma once

// An advanced settings window, `Alpha` or `Omega`, as a record: its start
// values (captions, rows, colours, tooltips, states) and the names of its
// fields.

#include "engine/records.h"
#include "engine/registry.h"

namespace vantorel {

// Writes the start values of window `Alpha` (v = 1) or `Omega` (v = 2).
void SetUpSettingsWindow(VesselSettings& s, Vessel v);
// Names the window's fields under `window`: "Alpha" or "Omega".
void RegisterFields(FieldTable& table, VesselSettings& s, const char* window);

} // namespace vantorel
