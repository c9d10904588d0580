#pragma once

#include "art.h"

#include <vector>

struct ShipDrawing {
    const char* name;
    void (*draw)(Artist& art);
};

// Every ship picture of the program, in the order of the list of names.
const std::vector<ShipDrawing>& Ships();
