#pragma once

// One widget shows one field. The field tells its widget of every change
// through its view hook, and the widget is brought up to date under a signal
// blocker, so that showing a value never raises an event; a user's action on
// the widget assigns the field, whose handler does the rest. The widget holds
// nothing the field does not.

#include "engine/fields.h"
#include "gui/twips.h"

#include <QColor>
#include <QFont>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QWidget;

namespace vantorel::gui {

// 0xBBGGRR as the program stores colours.
QColor ToQColor(Colour c);

// "Final Frontier" by name; where it is missing a narrow face stands in, so
// that captions sized for it keep to their places.
QFont FrontierFont(double points, bool bold = false);
// "MS Sans Serif" by name, the face of the output boxes and of the note's
// buttons; where it is missing a face of Arial's widths stands in (Liberation
// Sans), so that a caption sized for it keeps within its box.
QFont SansSerifFont(double points);

// A label is drawn on its page; a box that shows its background colour has
// autoFillBackground set by its window.
void Bind(QLabel* widget, Label& field, const Twips& twips);
void Bind(QComboBox* widget, List& field, const Twips& twips);
void Bind(QCheckBox* widget, Flag& field, const Twips& twips);
void Bind(QPushButton* widget, Button& field, const Twips& twips);
void Bind(QScrollBar* widget, ScrollBar& field, const Twips& twips);
// A text box: what the user types is the field's text at once, and a
// correction that the field's handler makes shows at once too.
void Bind(QLineEdit* widget, Text& field, const Twips& twips);
// A page or panel: place, visibility and background.
void BindPage(QWidget* widget, Control& field, const Twips& twips);

} // namespace vantorel::gui
