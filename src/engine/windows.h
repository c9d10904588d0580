#pragma once

// The windows that the engine never reads: the graph, the manual, About, the
// warning note and the splash screen. Their modules write their start values
// and handle their events; the records stand here so that one Calculator
// holds every window of the program, and any window module can reach another
// window's fields as the program's events require.

#include "engine/fields.h"

namespace vantorel {

// Window `Graph`: the DPS of the builds as lines over the arcs. The plot is
// made of shapes that each redraw moves and colours: the frame and grid, the
// axis captions, thirty segments (series s owns Line1[5s] to Line1[5s + 4])
// and the key, whose place is chosen by reading the segments back.
struct GraphWindow {
    Window Form;

    Label Title, Subtitle, skilltitle;
    List GraphMode; // 0 standard, 1 power levels, 2 ranges
    Button Help;
    Flag DisplayOnUpdate;
    Button HideKey;
    Label XAxisLabel;
    Picture YAxisLabel; // the word DPS, turned to read upwards

    Indexed<Line, 0, 3> Border;
    Indexed<Line, 1, 9> AxisLine;
    Indexed<Label, 0, 5> XAxis;
    Indexed<Label, 0, 10> YAxis; // YAxis[10] holds the top of the scale
    Indexed<Line, 0, 29> Line1;

    Control Key;                    // the key's box: back is its fill, fore its border
    Indexed<Control, 0, 5> KeyIcon; // a filled square in the series' colour (back)
    Indexed<Label, 0, 5> KeyLabel;
    Indexed<Label, 0, 1> KeyTitle;

    // The key may be shown; false after the player has hidden it.
    bool KeyShown = true;
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
};

// Window `SplashScreen`: a picture while the program starts.
struct SplashWindow {
    Window Form;
};

} // namespace vantorel
