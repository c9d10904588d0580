#include "program/view/windows.h"

#include "graph/view/graphwindow.h"
#include "gui/toplevel.h"
#include "help/view/about.h"
#include "help/view/documentation.h"
#include "help/view/notewindow.h"
#include "mainwindow/view/mainwindow.h"
#include "settings/view/settingswindow.h"
#include "skills/view/skillswindow.h"

#include <QDesktopServices>
#include <QPointer>
#include <QString>
#include <QUrl>

#include <string_view>

namespace vantorel {

namespace {

void OpenInBrowser(std::string_view address) {
    QDesktopServices::openUrl(QUrl(QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size()))));
}

} // namespace

ProgramWindows::ProgramWindows(Calculator& c) : m_c(c), m_main(std::make_unique<MainWindow>(c)) {
    // The settings windows are tall pages of many controls: made the first
    // time the player opens them, so the start does not wait for them.
    makeOnFirstShow(c.Alpha().Form, [&c] { return std::make_unique<SettingsWindowView>(c, 1); });
    makeOnFirstShow(c.Omega().Form, [&c] { return std::make_unique<SettingsWindowView>(c, 2); });
    makeOnFirstShow(c.note.Form, [&c] { return std::make_unique<NoteWindowView>(c); });
    for (Vessel v = 1; v <= 2; ++v)
        makeOnFirstShow(c.skills[v].Form, [&c, v] { return std::make_unique<SkillsWindow>(c, v); });
    makeOnFirstShow(c.graph.Form, [&c] { return std::make_unique<GraphWindowView>(c); });
    makeAnewOnEachShow(c.documentation.Form, [&c] { return std::make_unique<DocumentationView>(c); });
    makeAnewOnEachShow(c.about.Form, [&c] { return std::make_unique<AboutView>(c); });
    c.about.openPage = OpenInBrowser;
}

// The windows go before the fields' views could reach them.
ProgramWindows::~ProgramWindows() {
    m_c.about.openPage = nullptr;
    for (Window* anew : {&m_c.documentation.Form, &m_c.about.Form})
        anew->setView(nullptr);
    m_made.clear();
    // Windows closed for good whose deletion the event loop did not reach.
    for (const QPointer<QWidget>& closing : m_closing)
        delete closing.data();
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

namespace vantorel {

void ProgramWindows::makeAnewOnEachShow(Window& field, Factory make) {
    field.setView([this, &field, make = std::move(make)] {
        QWidget* widget = widgetOf(field);
        if (!widget) {
            if (field.visible()) m_made.push_back({&field, make()});
            return;
        }
        if (!field.visible()) {
            closeForGood(field);
            return;
        }
        if (auto* frame = widget->findChild<gui::TopLevel*>(QString(), Qt::FindDirectChildrenOnly)) frame->show();
    });
}

void ProgramWindows::closeForGood(const Window& field) {
    for (auto it = m_made.begin(); it != m_made.end(); ++it) {
        if (it->field != &field) continue;
        QWidget* widget = it->widget.release();
        m_made.erase(it);
        if (auto* frame = widget->findChild<gui::TopLevel*>(QString(), Qt::FindDirectChildrenOnly)) frame->detach();
        widget->hide();
        widget->deleteLater();
        std::erase_if(m_closing, [](const QPointer<QWidget>& w) { return w.isNull(); });
        m_closing.emplace_back(widget);
        return;
    }
}

} // namespace vantorel
