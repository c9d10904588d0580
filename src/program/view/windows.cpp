#include "program/view/windows.h"

#include "help/view/notewindow.h"
#include "mainwindow/view/mainwindow.h"
#include "settings/view/settingswindow.h"

namespace vantorel {

ProgramWindows::ProgramWindows(Calculator& c) : m_c(c), m_main(std::make_unique<MainWindow>(c)) {
    // The settings windows are tall pages of many controls: made the first
    // time the player opens them, so the start does not wait for them.
    makeOnFirstShow(c.Alpha().Form, [&c] { return std::make_unique<SettingsWindowView>(c, 1); });
    makeOnFirstShow(c.Omega().Form, [&c] { return std::make_unique<SettingsWindowView>(c, 2); });
    makeOnFirstShow(c.note.Form, [&c] { return std::make_unique<NoteWindowView>(c); });
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
