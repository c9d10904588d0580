#pragma once

// The manual and the licence as rich text, in the manual's serif face.

#include "gui/twips.h"

#include <QFont>

class QTextDocument;

namespace vantorel {

// "Times New Roman" by name; where it is missing a close serif stands in.
QFont ManualFont(double points);
// Writes the manual into `document`, paragraph by paragraph in its styles,
// bullet items as lists. Each paragraph is one block, so a position in the
// manual's plain text is the same position in the document.
void WriteManual(QTextDocument& document, const gui::Twips& twips);
// Writes the licence text of About, a paragraph to each block.
void WriteLicence(QTextDocument& document, const gui::Twips& twips);

} // namespace vantorel
