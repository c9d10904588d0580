#pragma once

// The wiring of each window's fields, one function per window, each in its
// own file; WireHandlers runs them all.

#include "engine/records.h"

namespace vantorel {

void WireMainWindow(Calculator& c);
void WireSettingsWindows(Calculator& c);
void WireSkillsWindows(Calculator& c);
void WireGraphWindow(Calculator& c);
void WireHelpWindows(Calculator& c);
void WireNoteWindow(Calculator& c);

} // namespace vantorel
