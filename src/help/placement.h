#pragma once

// Where the help windows stand, how the manual's window lays itself out, and
// how far a screenful of the manual reaches: pure rules over twips, so that
// every screen and window size can be tried without a screen.

#include "help/help.h"
#include "mainwindow/layout.h"

namespace vantorel {

// Outer sizes, frame included, as the design measures windows.
inline constexpr int kDocumentationWidth = 9765 + kFrameWidth;
inline constexpr int kDocumentationHeight = 7665 + kFrameHeight;
inline constexpr int kDocumentationMinWidth = 4882;
inline constexpr int kDocumentationMinHeight = 4035;
inline constexpr int kAboutWidth = 5820 + kFrameWidth;
inline constexpr int kAboutHeight = 4650 + kFrameHeight;
// The splash screen has no frame.
inline constexpr int kSplashWidth = 8310;
inline constexpr int kSplashHeight = 5205;

struct Place {
    int left = 0;
    int top = 0;
};

// The window whose help button was pressed, outer measures.
struct CallerWindow {
    HelpCaller caller = HelpCaller::MainWindow;
    int left = 0;
    int top = 0;
    int width = 0;
};

// Where the manual, `width` wide, opens: right of its caller if it fits in
// the work area, else left of it, else against the side with more room (on
// equal room the main window's manual goes right, the others' left). Its top
// is the caller's.
Place PlaceDocumentation(const CallerWindow& caller, int width, const WorkArea& work);

struct DocumentationLayout {
    int width = 0; // the window's outer size, kept to its smallest
    int height = 0;
    TwipsRect box;
    TwipsRect ok;
};
// The manual's window at an outer size: the box fills it, `OK` stands
// centred below it.
DocumentationLayout LayOutDocumentation(int width, int height);

// About over the main window: centred on it across, 2840 below its top.
Place PlaceAbout(const TwipsRect& main, int aboutWidth);

// A window centred on the screen.
Place CentreOnScreen(const WorkArea& screen, int width, int height);

// How far a box of the manual's text, `boxWidth` by `boxHeight`, reaches
// when the paragraph at `start` stands at its top: the position of the last
// line that is still wholly in view. The text's measures are those of the
// widest serif face the manual may be set in, so that the line at the
// position is in view in whatever face the system gives.
int ScreenfulBelow(int start, int boxWidth, int boxHeight);

} // namespace vantorel
