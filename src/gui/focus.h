#pragma once

// The keyboard on a window: Tab runs down each column of the window's
// controls, and a control that Tab reaches on a page larger than its window
// is scrolled into view by the page's bars, as if the user had moved them.

#include "engine/fields.h"
#include "gui/twips.h"

class QScrollBar;
class QWidget;

namespace vantorel::gui {

// Sets the order of the Tab key over the controls of `window` from their
// places (engine/focus.h): every control, shown or not, so that the order
// holds whatever the window shows. Captions and pictures shape the columns.
// Called once the window's controls stand in their places.
void OrderTabsDownColumns(QWidget* window);

// The bars that move a page, with their fields; a bar may be missing.
struct PageBars {
    QScrollBar* horizontal = nullptr;
    ScrollBar* horizontalField = nullptr;
    QScrollBar* vertical = nullptr;
    ScrollBar* verticalField = nullptr;
};

// Whenever Tab brings the focus to a control on `page`, the bars' fields are
// set so that the control is in view in the page's parent, less the bars on
// show. Called once the page's controls are made.
void ScrollFocusIntoView(QWidget* page, const PageBars& bars, const Twips& twips);

} // namespace vantorel::gui
