#include "settings/frame.h"

#include "graph/graph.h"
#include "help/help.h"
#include "settings/placement.h"
#include "settings/settings.h"

#include <algorithm>

namespace vantorel {

namespace {

void Hide(Calculator& c, Vessel v) {
    c.settings[v].Form.setVisible(false);
    c.main.Advanced[v].setCaption("Show Settings");
}

void Position(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    const VesselSettings& other = c.settings[v == 1 ? 2 : 1];
    const Window& main = c.main.Form1;

    SettingsPlaceInput in;
    in.work = {c.workLeft, c.workTop, c.workWidth, c.workHeight};
    in.main = {main.left(), main.top(), main.width(), main.height()};
    in.prefers = v == 1 ? Beside::Left : Beside::Right;
    in.contentsHeight = s.Contents.height();
    in.otherShown = other.Form.visible();
    in.otherLeft = other.Form.left();
    in.otherTop = other.Form.top();
    const SettingsPlace p = PlaceSettingsWindow(in);

    s.Form.setLeft(p.window.left);
    s.Form.setTop(p.window.top);
    s.Form.setWidth(p.window.width);
    s.Form.setHeight(p.window.height);

    ScrollBar& bar = s.VScroll1;
    bar.setLeft(p.bar.left);
    bar.setTop(p.bar.top);
    bar.setWidth(p.bar.width);
    bar.setHeight(p.bar.height);
    bar.setRange(p.bar.maximum, p.bar.smallStep, p.bar.largeStep);
    // With no bar, or a shorter reach, the page comes back into view: moving
    // the bar moves the page.
    const int end = p.bar.visible ? std::max(p.bar.maximum, 0) : 0;
    if (bar.value() > end) bar.setValue(end);
    bar.setVisible(p.bar.visible);
}

constexpr ManualSection kHelpSections[5] = {ManualSection::AdvancedSettings, ManualSection::CharacterSettings,
                                            ManualSection::CombatSettings, ManualSection::PowerSettings,
                                            ManualSection::WeaponSettings};

} // namespace

void PositionAlpha(Calculator& c) { Position(c, 1); }
void PositionOmega(Calculator& c) { Position(c, 2); }

void AdvancedClicked(Calculator& c, Vessel v) {
    Window& form = c.settings[v].Form;
    if (form.visible()) {
        form.setState(WindowState::Normal);
        Hide(c, v);
    } else {
        Position(c, v);
        form.setVisible(true);
        c.main.Advanced[v].setCaption("Hide Settings");
    }
    if (c.graph.Form.visible()) DisplayGraph(c);
}

void SettingsCloseClicked(Calculator& c, Vessel v) {
    Hide(c, v);
    if (c.graph.Form.visible()) DisplayGraph(c);
}

void SettingsCloseRequested(Calculator& c, Vessel v) {
    c.settings[v].Form.setState(WindowState::Normal);
    Hide(c, v);
    if (c.graph.Form.visible()) DisplayGraph(c);
}

void SettingsHelpClicked(Calculator& c, Vessel v, int i) {
    if (i < 0 || i > 4) return;
    DisplayDocumentation(c, v == 1 ? HelpCaller::Alpha : HelpCaller::Omega, HelpPosition(kHelpSections[i]));
}

void SettingsScrolled(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    s.Contents.setTop(-s.VScroll1.value());
}

} // namespace vantorel
