#pragma once

// Window `Note`: a warning that holds the main and settings windows until it
// is closed. Its caller writes the title, the text, the place and which
// window it speaks for; the note itself only answers its three controls.

#include "engine/records.h"
#include "engine/registry.h"

namespace vantorel {

// The note's outer size: an inner area of 5985 by 4725 in the design's frame.
inline constexpr int kNoteWidth = 5985 + 120;
inline constexpr int kNoteHeight = 4725 + 405;

void SetUpNoteWindow(NoteWindow& n);
// Names the note's fields: `Note.WarningCheck`, `Note.CallerCode`, ...
void RegisterFields(FieldTable& table, NoteWindow& n);

// "Don't Show This Warning Again": ticked, the warning stays away.
void WarningCheckChanged(Calculator& c);
// "View Documentation": the manual at the power settings, beside the window
// that raised the warning. The note stays open.
void NoteReadmeClicked(Calculator& c);
// `Close`, or the frame's close button: the windows the note held are
// enabled again and the note goes.
void CloseNote(Calculator& c);

} // namespace vantorel
