#include "help/window.h"

#include "help/manual.h"
#include "help/placement.h"

namespace vantorel {

namespace {

constexpr Colour kFace = 0xF0F0F0;

// A caption in white on the black of About.
void WhiteOnBlack(Label& label) {
    label.setFore(White);
    label.setBack(Black);
}

} // namespace

void SetUpDocumentationWindow(DocumentationWindow& d) {
    d.Form = Window("Vantorel Documentation");
    d.Form.setBack(kFace);
    d.Form.setWidth(kDocumentationWidth);
    d.Form.setHeight(kDocumentationHeight);
    d.ReadmeBox.setRect({120, 120, 9495, 6855});
    d.OK = Button("OK");
    d.OK.setRect({3840, 7080, 1815, 495});
    d.ReadmeCaret = 0;
}

void SetUpAboutWindow(AboutWindow& a) {
    a.Form = Window("About- Vantorel 4.0");
    a.Form.setBack(Black);
    a.Form.setWidth(kAboutWidth);
    a.Form.setHeight(kAboutHeight);
    a.Aboutlabel2 = Label("Vantorel v 4.0");
    a.Aboutlabel2.setRect({0, 240, 5895, 255});
    WhiteOnBlack(a.Aboutlabel2);
    a.Aboutlabel0 = Label(std::string(AboutAuthorLine()));
    a.Aboutlabel0.setRect({240, 720, 5295, 255});
    WhiteOnBlack(a.Aboutlabel0);
    a.License.setRect({240, 1200, 5295, 2655});
    a.Readme = Button("View Documentation", "View the program's documentation.");
    a.Readme.setRect({240, 4080, 1695, 375});
    a.Online = Button("View Forum Post", "View the program's forum post in the game's forums.");
    a.Online.setRect({2040, 4080, 1695, 375});
    a.OK = Button("OK", "OK");
    a.OK.setRect({3840, 4080, 1695, 375});
}

void SetUpSplashWindow(SplashWindow& s) {
    s.Form = Window("");
    s.Form.setBack(Black);
    s.Form.setWidth(kSplashWidth);
    s.Form.setHeight(kSplashHeight);
    s.Form.setInnerSize(kSplashWidth, kSplashHeight);
    // The scenes that the view draws, one to a picture; each fills the window.
    const char* const scenes[] = {"departure", "engagement", "firing arcs"};
    for (int i = 0; i <= 2; ++i) {
        Picture& picture = s.Splash[i];
        picture.setImage(scenes[i]);
        picture.setBack(Black);
        picture.setRect({0, 0, kSplashWidth, kSplashHeight});
        picture.setVisible(false);
    }
}

void RegisterFields(FieldTable& table, DocumentationWindow& d) {
    FieldNames names(table, "Documentation", &d.Form);
    names.window(d.Form);
    names.one("ReadmeBox", d.ReadmeBox);
    names.one("OK", d.OK);
    names.one("ReadmeCaret", d.ReadmeCaret);
}

void RegisterFields(FieldTable& table, AboutWindow& a) {
    FieldNames names(table, "About", &a.Form);
    names.window(a.Form);
    names.named("About.Aboutlabel", "[2]", a.Aboutlabel2);
    names.named("About.Aboutlabel", "[0]", a.Aboutlabel0);
    names.one("License", a.License);
    names.one("Readme", a.Readme);
    names.one("Online", a.Online);
    names.one("OK", a.OK);
}

void RegisterFields(FieldTable& table, SplashWindow& s) {
    FieldNames names(table, "SplashScreen", &s.Form);
    names.window(s.Form);
    names.array("Splash", s.Splash);
}

} // namespace vantorel
