#pragma once

// What the main window shows of a recalculation: the boxes of the arcs in
// use, the shuttle rank controls, the values and tooltips of the boxes, their
// colours in a comparison, and the note.

#include "engine/records.h"

namespace vantorel {

// Boxes shown by the arcs in use, for both vessels, then the shuttle rank
// controls of each vessel on show. Runs before the rows are worked out.
void ShowArcBoxes(Calculator& c);
// The shuttle rank list of vessel v, rebuilt for its captain's rank.
void ShuttleRankControls(Calculator& c, Vessel v);
// Captions and tooltips of every box, colours, the note, from what the
// recalculation hands over with the rows.
void ShowArcResults(Calculator& c, const ArcRows& rows);
// The one message of the note, or none.
void UpdateNote(Calculator& c);

} // namespace vantorel
