#pragma once

// Where the settings windows stand on the screen, and the warning over them.
// Pure rules over twips: the work area and the windows' rectangles in, a
// place out. PositionAlpha and PositionOmega apply them to the fields.

#include "mainwindow/layout.h"

namespace vantorel {

// A settings window is 15330 twips high where the screen allows: the whole
// page with no scroll bar, at the narrower width.
inline constexpr int kSettingsTallHeight = 15330;
inline constexpr int kSettingsWidth = 9780;
inline constexpr int kSettingsWidthWithBar = 9930;
inline constexpr int kSettingsBarWidth = 255;
// A window that would open exactly over the other vessel's moves this far
// down and aside, so that both stay in sight.
inline constexpr int kSettingsCascade = 300;

// Alpha's window prefers the main window's left, Omega's its right.
enum class Beside { Left, Right };

struct SettingsPlaceInput {
    WorkArea work;
    TwipsRect main; // the main window, outer size
    Beside prefers = Beside::Left;
    int contentsHeight = 0;  // the window's page
    bool otherShown = false; // the other vessel's settings window
    int otherLeft = 0;
    int otherTop = 0;
    int frameWidth = kFrameWidth;
    int frameHeight = kFrameHeight;
};

struct SettingsPlace {
    TwipsRect window;
    BarPlace bar; // VScroll1, on the window's right edge
};

SettingsPlace PlaceSettingsWindow(const SettingsPlaceInput& in);

// The warning stands centred on the window that raised it, 5280 twips below
// that window's top.
struct NotePlace {
    int left = 0;
    int top = 0;
};
NotePlace PlaceNote(const TwipsRect& caller, int noteWidth);

} // namespace vantorel
