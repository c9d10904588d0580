#include "help/help.h"
#include "help/placement.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vantorel {

namespace {

const Window& WindowOf(const Calculator& c, HelpCaller caller) {
    switch (caller) {
    case HelpCaller::Graph:
        return c.graph.Form;
    case HelpCaller::Alpha:
        return c.Alpha().Form;
    case HelpCaller::Omega:
        return c.Omega().Form;
    case HelpCaller::MainWindow:
        break;
    }
    return c.main.Form1;
}

// A section's help position: a screenful below its heading in the box as it
// opens, but never beyond the section's own end, so that the heading is
// still the one above the caret.
int ScreenfulOfSection(ManualSection section) {
    if (section == ManualSection::Start) return 0;
    const int heading = SectionStart(section);
    const DocumentationLayout start = LayOutDocumentation(kDocumentationWidth, kDocumentationHeight);
    return std::min(ScreenfulBelow(heading, start.box.width, start.box.height), SectionEndAt(heading));
}

} // namespace

int HelpPosition(ManualSection section) {
    constexpr std::size_t kSections = static_cast<std::size_t>(ManualSection::WeaponSettings) + 1;
    static const std::array<int, kSections> positions = [] {
        std::array<int, kSections> p{};
        for (std::size_t i = 0; i < kSections; ++i)
            p[i] = ScreenfulOfSection(static_cast<ManualSection>(i));
        return p;
    }();
    const auto index = static_cast<std::size_t>(section);
    return index < positions.size() ? positions[index] : 0;
}

void DisplayDocumentation(Calculator& c, HelpCaller caller, int position) {
    DocumentationWindow& d = c.documentation;
    if (d.Form.visible()) CloseDocumentation(c);

    // The window is made anew: its start size, and the box and button after it.
    d.Form.setState(WindowState::Normal);
    d.Form.setWidth(kDocumentationWidth);
    d.Form.setHeight(kDocumentationHeight);
    DocumentationResized(c);

    const Window& o = WindowOf(c, caller);
    const Place p = PlaceDocumentation({caller, o.left(), o.top(), o.width()}, d.Form.width(),
                                       {c.workLeft, c.workTop, c.workWidth, c.workHeight});
    d.Form.setLeft(p.left);
    d.Form.setTop(p.top);
    d.ReadmeCaret = std::clamp(position, 0, static_cast<int>(ManualText().size()));
    d.Form.setVisible(true);
}

void CloseDocumentation(Calculator& c) { c.documentation.Form.setVisible(false); }

void DocumentationResized(Calculator& c) {
    DocumentationWindow& d = c.documentation;
    if (d.Form.state() == WindowState::Minimised) return;
    const DocumentationLayout l = LayOutDocumentation(d.Form.width(), d.Form.height());
    d.Form.setWidth(l.width);
    d.Form.setHeight(l.height);
    d.ReadmeBox.setRect(l.box);
    d.OK.setRect(l.ok);
}

} // namespace vantorel
