#pragma once

// How a control of the settings windows shows whether it is in use: an
// active box or list has a white background and its label white text, an
// inactive one grey for both. The same code that opens or closes a control
// paints it, so the colour always tells the state.

#include "engine/fields.h"

#include <initializer_list>

namespace vantorel {

enum class Shade { Active, Inactive };

inline Colour ColourOf(Shade shade) { return shade == Shade::Active ? White : Grey; }

// A box, list or output box: its background.
inline void Paint(Control& box, Shade shade) { box.setBack(ColourOf(shade)); }
// A caption: its text.
inline void PaintLabel(Label& label, Shade shade) { label.setFore(ColourOf(shade)); }
inline void PaintLabels(std::initializer_list<Label*> labels, Shade shade) {
    for (Label* label : labels)
        PaintLabel(*label, shade);
}
// A box and the caption beside it, together.
inline void Paint(Control& box, Label& label, Shade shade) {
    Paint(box, shade);
    PaintLabel(label, shade);
}

} // namespace vantorel
