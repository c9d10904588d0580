#pragma once

// The drawing kit is the program's own (src/gui/art.h), which also draws the
// splash screen; the drawings here use its names as their own.
#include "gui/art.h"

#include <vector>

using namespace vantorel::gui;

struct ShipDrawing {
    const char* name;
    void (*draw)(Artist& art);
};

// Every ship picture of the program, in the order of the list of names.
const std::vector<ShipDrawing>& Ships();
