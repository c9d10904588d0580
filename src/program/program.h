#pragma once

// The program put together: every window's start values, every field wired
// to its handler, the start-up run. Above every window module, below the
// front ends (the Qt windows, the scripting front end, the tests).

#include "engine/records.h"

#include <functional>

namespace vantorel {

// The calculator as the program stands when its main window first shows.
// `main`, the scripting front end and the tests each own one.
struct Program final : Calculator {
    Program();
    // The same start, with `beforeStart` run once the splash screen has its
    // start values and before anything else is made: the splash shows there.
    explicit Program(const std::function<void(Calculator&)>& beforeStart);
};

// Connects every field's handler to its event function, and the results of a
// recalculation to the windows that show them.
void WireHandlers(Calculator& c);
// The start of the main window: tables, first selections, power lists.
void StartUp(Calculator& c);

} // namespace vantorel
