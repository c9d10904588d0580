#pragma once

// The windows that the engine never reads: the graph, the manual, About, the
// warning note and the splash screen. Their modules write their start values
// and handle their events; the records stand here so that one Calculator
// holds every window of the program, and any window module can reach another
// window's fields as the program's events require.

#include "engine/fields.h"

#include <functional>
#include <string_view>

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

// Window `Documentation`: the manual. The box shows the manual's own text
// (help/manual.h), so the field holds only its place and its caret.
struct DocumentationWindow {
    Window Form;
    Control ReadmeBox; // a rich text box
    Button OK;
    // The caret of `ReadmeBox`: a character position in the manual. The box
    // opens with the caret there and the text scrolled to bring it into view.
    int ReadmeCaret = 0;
};

// Window `About`: the program's name, licence and links. The licence text
// is the program's own (help/manual.h); `License` holds the box's place.
struct AboutWindow {
    Window Form;
    Label Aboutlabel2; // `Aboutlabel[2]`: the program's name
    Label Aboutlabel0; // `Aboutlabel[0]`: the author line
    Control License;   // a rich text box
    Button Readme;
    Button Online;
    Button OK;
    // Opens a page in the system's web browser. The front end that can open
    // one sets it; without it `Online` does nothing, as when no browser starts.
    std::function<void(std::string_view address)> openPage;
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

// Window `SplashScreen`: a picture while the program starts. Each picture
// names the scene that its view draws.
struct SplashWindow {
    Window Form;
    Indexed<Picture, 0, 2> Splash;
};

} // namespace vantorel
