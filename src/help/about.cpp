#include "help/help.h"
#include "help/placement.h"

namespace vantorel {

void ShowAboutClicked(Calculator& c) {
    Window& about = c.about.Form;
    const Window& main = c.main.Form1;
    const Place p = PlaceAbout({main.left(), main.top(), main.width(), main.height()}, about.width());
    about.setLeft(p.left);
    about.setTop(p.top);
    about.setVisible(true);
}

void CloseAbout(Calculator& c) { c.about.Form.setVisible(false); }

void AboutReadmeClicked(Calculator& c) {
    DisplayDocumentation(c, HelpCaller::MainWindow, HelpPosition(ManualSection::Start));
}

void AboutOnlineClicked(Calculator& c) {
    // No answer is looked at: without a browser the button simply does nothing.
    if (c.about.openPage) c.about.openPage(ForumAddress());
}

} // namespace vantorel
