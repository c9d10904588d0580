#include "help/note.h"

#include "help/help.h"

namespace vantorel {

namespace {} // namespace

void SetUpNoteWindow(NoteWindow& n) {
    n.Form = Window("");
    n.Form.setBack(Black);
    n.Form.setWidth(kNoteWidth);
    n.Form.setHeight(kNoteHeight);

    n.InfoText = Label("");
    n.InfoText.setFore(White);
    n.InfoText.setBack(Black);
    n.InfoText.setRect({240, 240, 5535, 3375});
    n.WarningCheck = Flag(0, "Don't Show This Warning Again");
    n.WarningCheck.setFore(White);
    n.WarningCheck.setBack(Black);
    n.WarningCheck.setRect({1200, 3720, 3735, 375});
    n.Readme = Button("View Documentation");
    n.Readme.setRect({1200, 4200, 1695, 375});
    n.Close = Button("Close", "It's a \"Close\" button, what do you think it does?");
    n.Close.setRect({3120, 4200, 1695, 375});
    n.CallerCode = 0;
}

void RegisterFields(FieldTable& table, NoteWindow& n) {
    FieldNames b(table, "Note", &n.Form);
    b.window(n.Form);
    b.one("InfoText", n.InfoText);
    b.one("WarningCheck", n.WarningCheck);
    b.one("Readme", n.Readme);
    b.one("Close", n.Close);
    b.one("CallerCode", n.CallerCode);
}

void WarningCheckChanged(Calculator& c) { c.state.SuppressPowerWarning = c.note.WarningCheck.value() != 0; }

void NoteReadmeClicked(Calculator& c) {
    const HelpCaller caller = c.note.CallerCode == 4 ? HelpCaller::Omega : HelpCaller::Alpha;
    DisplayDocumentation(c, caller, HelpPosition(ManualSection::PowerSettings));
}

void CloseNote(Calculator& c) {
    for (Window* held : {&c.main.Form1, &c.Alpha().Form, &c.Omega().Form})
        if (!held->enabled()) held->setEnabled(true);
    c.note.Form.setVisible(false);
}

} // namespace vantorel
