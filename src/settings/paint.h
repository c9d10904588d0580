#pragma once

// How a control of the settings windows shows whether it is in use: an
// active box or list has a white background and its label white text, an
// inactive one grey for both. The same code that opens or closes a control
// paints it, so the colour always tells the state.

#include "engine/fields.h"

#include <initializer_list>

namespace vantorel {

inline Colour StateColour(bool active) { return active ? White : Grey; }

// A box, list or output box: its background.
inline void Paint(Control& box, bool active) { box.setBack(StateColour(active)); }
// A caption: its text.
inline void PaintLabel(Label& label, bool active) { label.setFore(StateColour(active)); }
inline void PaintLabels(std::initializer_list<Label*> labels, bool active) {
    for (Label* label : labels)
        PaintLabel(*label, active);
}
// A box and the caption beside it, together.
inline void Paint(Control& box, Label& label, bool active) {
    Paint(box, active);
    PaintLabel(label, active);
}

} // namespace vantorel
