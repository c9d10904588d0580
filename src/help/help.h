#pragma once

// The help and information windows: the manual (`Documentation`), `About`,
// the warning `Note` and the splash screen.

#include "engine/records.h"
#include "help/manual.h"

namespace vantorel {

// The window beside which the manual opens.
enum class HelpCaller { MainWindow = 1, Graph = 2, Alpha = 3, Omega = 4 };
// The character position that a help button opens the manual at: far enough
// below the section's heading that moving the caret there brings the heading
// near the top of the box.
int HelpPosition(ManualSection section);
// Opens the manual beside the caller's window at a character position. An
// open manual is closed first and made anew: its scroll position and size
// are gone.
void DisplayDocumentation(Calculator& c, HelpCaller caller, int position);
// `OK` of the manual, and its frame's close button: the window is closed.
void CloseDocumentation(Calculator& c);
// The manual's window has a new size: it keeps to its smallest size, and its
// box and `OK` follow the size. Nothing happens while it is minimised.
void DocumentationResized(Calculator& c);

// `ShowAbout` on the main window: opens About over the main window.
void ShowAboutClicked(Calculator& c);
// `OK` of About, and its frame's close button.
void CloseAbout(Calculator& c);
// `Readme` of About: the manual from its start, beside the main window.
void AboutReadmeClicked(Calculator& c);
// `Online` of About: the program's forum page in the system's browser.
void AboutOnlineClicked(Calculator& c);

} // namespace vantorel
