#pragma once

// The splash screen: one of three pictures while the program starts. It
// shows before the main window is made and closes as the main window shows,
// so it stays exactly as long as the start takes.

#include "engine/records.h"
#include "mainwindow/layout.h"

#include <cstdint>

namespace vantorel {

// Which picture shows: by the fraction of the seconds since midnight, so
// that it varies from start to start. Up to .33 the first, up to .66 the
// second, else the third; the fraction is counted in whole milliseconds.
int SplashPicture(std::int64_t millisecondsSinceMidnight);
// The start of the splash screen: its picture, its place in the middle of
// the screen, shown.
void ShowSplash(SplashWindow& s, std::int64_t millisecondsSinceMidnight, const WorkArea& screen);
// The last step of the start: the splash screen goes.
void CloseSplash(Calculator& c);

} // namespace vantorel
