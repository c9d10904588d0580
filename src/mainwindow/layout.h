#pragma once

// The geometry of the main window in twips: where the vessel columns stand,
// how the window fits the work area of the screen, and where it opens. The
// rules are pure functions so that every screen size can be tried without a
// screen; FitWindow and ShowMainWindowAtStart apply them to the fields.

#include "engine/records.h"

namespace vantorel {

// The design's window sizes include the frame of the system they were drawn
// on: 120 for the borders, 405 for borders and title bar. A front end whose
// frame differs maps its own frame onto this one, so that the inner area keeps
// the design size.
inline constexpr int kFrameWidth = 120;
inline constexpr int kFrameHeight = 405;
inline constexpr int kScrollBarThickness = 240;
// The outer width of window `Graph` (inner 10995), which the start-up
// placement keeps room for before the window exists.
inline constexpr int kGraphWindowWidth = 10995 + kFrameWidth;

struct WorkArea {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// What the fit does to the windows that follow the main window.
enum class Followers { Unchanged, Normal, Minimised };

struct FitInput {
    bool comparing = false;
    WindowState state = WindowState::Normal;
    int width = 0; // outer size of the window, frame included
    int height = 0;
    WorkArea work;
    bool fitted = false; // the fit has run to its end before
    int frameWidth = kFrameWidth;
    int frameHeight = kFrameHeight;
    int hBarHeight = kScrollBarThickness;
    int vBarWidth = kScrollBarThickness;
    int contentsHeight = 9360;
};

struct BarPlace {
    bool visible = false;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int maximum = 0;
    int smallStep = 1;
    int largeStep = 1;
};

struct FitResult {
    Followers followers = Followers::Unchanged;
    // A minimised window is left as it is; nothing below applies.
    bool minimised = false;
    WindowState state = WindowState::Normal;
    int width = 0;
    int height = 0;
    int innerWidth = 0;
    int innerHeight = 0;
    BarPlace hBar;
    BarPlace vBar;
    int contentsWidth = 0;
    // The page goes back to the left (top) edge when its bar goes away, so
    // that no part of it can stay out of reach.
    bool contentsToLeft = false;
    bool contentsToTop = false;
};

FitResult Fit(const FitInput& in);

struct StartPlace {
    int left = 0;
    int top = 0;
    int alphaWidth = 0; // width of window `Alpha`, chosen by the screen height
};

// Where the main window opens: at the top of the work area, as far right as
// leaves room for the settings and graph windows beside it.
StartPlace PlaceAtStart(const WorkArea& work, int graphWidth);

// Writes the places of the vessel columns into their fields (the middle of
// the window has its places from the start values), the thickness of the
// scroll bars, and the colours of the window and of the rare shuttle array
// check.
void LayOutMainWindow(MainSelection& m);
// The scroll bars move the page: the page's left (top) is minus the value.
void HScroll1Changed(Calculator& c);
void VScroll1Changed(Calculator& c);
// The fit of the main window to the work area, run on every resize.
void FitWindow(Calculator& c);
// The end of the start: the width of `Alpha`, the place and width of the main
// window (which runs the fit), then the splash screen closes and the main
// window is shown.
void ShowMainWindowAtStart(Calculator& c);

} // namespace vantorel
