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
// Opens the manual beside the caller's window at a character position.
void DisplayDocumentation(Calculator& c, HelpCaller caller, int position);
// `ShowAbout` on the main window: opens About over the main window.
void ShowAboutClicked(Calculator& c);

} // namespace vantorel
