#include "help/view/about.h"

#include "gui/binding.h"
#include "gui/focus.h"
#include "gui/toplevel.h"
#include "help/view/manualtext.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTextCursor>
#include <QTextEdit>

namespace vantorel {

AboutView::AboutView(Calculator& c, QWidget* parent)
    : QWidget(parent), m_twips(gui::Twips::forScreen(QGuiApplication::primaryScreen())) {
    AboutWindow& a = c.about;
    setObjectName(QStringLiteral("About"));

    auto label = [&](Label& field, const QString& name, double points) {
        auto* w = new QLabel(this);
        w->setObjectName(name);
        w->setFont(gui::FrontierFont(points));
        w->setAlignment(Qt::AlignCenter);
        gui::Bind(w, field, m_twips);
    };
    label(a.Aboutlabel2, QStringLiteral("About.Aboutlabel[2]"), 12);
    label(a.Aboutlabel0, QStringLiteral("About.Aboutlabel[0]"), 12);

    auto* licence = new QTextEdit(this);
    licence->setObjectName(QStringLiteral("About.License"));
    licence->setReadOnly(true);
    licence->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    WriteLicence(*licence->document(), m_twips);
    licence->moveCursor(QTextCursor::Start);
    gui::BindPage(licence, a.License, m_twips);

    // The buttons are narrow for their captions: the captions' own face, small.
    auto button = [&](Button& field, const QString& name) {
        auto* w = new QPushButton(this);
        w->setObjectName(name);
        w->setFont(gui::FrontierFont(8.25));
        gui::Bind(w, field, m_twips);
    };
    button(a.Readme, QStringLiteral("About.Readme"));
    button(a.Online, QStringLiteral("About.Online"));
    button(a.OK, QStringLiteral("About.OK"));

    gui::OrderTabsDownColumns(this);
    auto* frame = new gui::TopLevel(this, a.Form, m_twips, gui::Following::Owner);
    frame->closeOnEscape();
}

} // namespace vantorel
