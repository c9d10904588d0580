#include "program/view/windows.h"

#include "graph/view/graphwindow.h"
#include "mainwindow/view/mainwindow.h"
#include "skills/view/skillswindow.h"

namespace vantorel {

ProgramWindows::ProgramWindows(Calculator& c) : m_c(c), m_main(std::make_unique<MainWindow>(c)) {
    for (Vessel v = 1; v <= 2; ++v)
        makeOnFirstShow(c.skills[v].Form, [&c, v] { return std::make_unique<SkillsWindow>(c, v); });
    makeOnFirstShow(c.graph.Form, [&c] { return std::make_unique<GraphWindowView>(c); });
}

// The windows go before the fields' views could reach them.
ProgramWindows::~ProgramWindows() {
    m_made.clear();
    m_main.reset();
}

QWidget* ProgramWindows::widgetOf(const Window& field) const {
    if (&field == &m_c.main.Form1) return m_main.get();
    for (const Made& made : m_made)
        if (made.field == &field) return made.widget.get();
    return nullptr;
}

void ProgramWindows::makeOnFirstShow(Window& field, Factory make) {
    field.setView([this, &field, make = std::move(make)] {
        if (!field.visible() || widgetOf(field)) return;
        // The new window binds itself to the field, which replaces this very
        // view: nothing the view holds may be touched once the window is made.
        ProgramWindows* self = this;
        Window* shown = &field;
        const Factory factory = make;
        std::unique_ptr<QWidget> widget = factory();
        self->m_made.push_back({shown, std::move(widget)});
    });
}

} // namespace vantorel
