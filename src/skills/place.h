#pragma once

// Where a skills window opens: below the main window, or as low as the work
// area allows. Twips throughout.

#include "engine/records.h"
#include "mainwindow/layout.h"

namespace vantorel {

struct SkillsPlacement {
    Vessel vessel = 1;
    // The main window's outer rectangle.
    int mainLeft = 0, mainTop = 0, mainWidth = 0, mainHeight = 0;
    // The skills window's outer size.
    int width = 0, height = 0;
    WorkArea work;
};

struct SkillsPlace {
    int left = 0;
    int top = 0;
};

// Alpha's window stands under the main window's left edge, Omega's under its
// right edge; both just below it if they fit above the work area's bottom,
// else with their bottom on it.
SkillsPlace PlaceSkillsWindow(const SkillsPlacement& p);

} // namespace vantorel
