#pragma once

// What the two settings windows share as windows: closing (they are only
// ever hidden), the help buttons and the scroll bar of their tall page.

#include "engine/records.h"

namespace vantorel {

void SettingsCloseClicked(Calculator& c, Vessel v);
// The frame's close button: the window is hidden, never destroyed.
void SettingsCloseRequested(Calculator& c, Vessel v);
// `Help[i]`: the manual at the window's section, i 0 for the window itself.
void SettingsHelpClicked(Calculator& c, Vessel v, int i);
// `VScroll1` moves the page.
void SettingsScrolled(Calculator& c, Vessel v);

} // namespace vantorel
