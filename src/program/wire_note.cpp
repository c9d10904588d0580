#include "program/wiring.h"

#include "help/note.h"

namespace vantorel {

void WireNoteWindow(Calculator& c) {
    Calculator* calc = &c;
    NoteWindow& n = c.note;
    n.WarningCheck.setHandler([calc] { WarningCheckChanged(*calc); });
    n.Readme.setHandler([calc] { NoteReadmeClicked(*calc); });
    n.Close.setHandler([calc] { CloseNote(*calc); });
    n.Form.setHandler([calc] { CloseNote(*calc); });
}

} // namespace vantorel
