#include "program/wiring.h"

#include "help/help.h"

namespace vantorel {

// The manual and About are really closed, by their `OK` and by their frames.
// The splash screen has neither frame nor buttons.
void WireHelpWindows(Calculator& c) {
    Calculator* calc = &c;
    DocumentationWindow& d = c.documentation;
    d.Form.setHandler([calc] { CloseDocumentation(*calc); });
    d.OK.setHandler([calc] { CloseDocumentation(*calc); });

    AboutWindow& a = c.about;
    a.Form.setHandler([calc] { CloseAbout(*calc); });
    a.OK.setHandler([calc] { CloseAbout(*calc); });
    a.Readme.setHandler([calc] { AboutReadmeClicked(*calc); });
    a.Online.setHandler([calc] { AboutOnlineClicked(*calc); });
}

} // namespace vantorel
