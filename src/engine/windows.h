#pragma once

// The windows that the engine never reads: the graph, the manual, About, the
// warning note and the splash screen. Their modules write their start values
// and handle their events; the records stand here so that one Calculator
// holds every window of the program, and any window module can reach another
// window's fields as the program's events require.

#include "engine/fields.h"

namespace vantorel {

// Window `Graph`: the DPS of the builds as lines over the arcs.
struct GraphWindow {
    Window Form;
};

// Window `Documentation`: the manual.
struct DocumentationWindow {
    Window Form;
};

// Window `About`: the program's name, licence and links.
struct AboutWindow {
    Window Form;
};

// Window `Note`: a warning that holds the other windows until it is closed.
struct NoteWindow {
    Window Form;
    Label InfoText; // the warning itself, written by the caller
    Flag WarningCheck;
    Button Readme, Close;
    // Which window raised the warning: 3 `Alpha`, 4 `Omega`. The manual
    // opens beside it.
    int CallerCode = 0;
};

// Window `SplashScreen`: a picture while the program starts.
struct SplashWindow {
    Window Form;
};

} // namespace vantorel
