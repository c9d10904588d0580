#include "help/view/notewindow.h"

#include "gui/binding.h"
#include "gui/focus.h"
#include "gui/toplevel.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

namespace vantorel {

NoteWindowView::NoteWindowView(Calculator& c, QWidget* parent)
    : QWidget(parent), m_twips(gui::Twips::forScreen(QGuiApplication::primaryScreen())) {
    NoteWindow& n = c.note;
    setObjectName(QStringLiteral("Note"));

    auto* text = new QLabel(this);
    text->setObjectName(QStringLiteral("Note.InfoText"));
    text->setFont(gui::FrontierFont(10));
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    text->setWordWrap(true);
    gui::Bind(text, n.InfoText, m_twips);

    auto* check = new QCheckBox(this);
    check->setObjectName(QStringLiteral("Note.WarningCheck"));
    check->setFont(gui::FrontierFont(11));
    gui::Bind(check, n.WarningCheck, m_twips);

    // The buttons' captions in the window's own small face, so that "View
    // Documentation" fits its button.
    const QFont buttons = gui::SansSerifFont(8);
    auto* readme = new QPushButton(this);
    readme->setObjectName(QStringLiteral("Note.Readme"));
    readme->setFont(buttons);
    gui::Bind(readme, n.Readme, m_twips);
    auto* close = new QPushButton(this);
    close->setObjectName(QStringLiteral("Note.Close"));
    close->setFont(buttons);
    gui::Bind(close, n.Close, m_twips);

    gui::OrderTabsDownColumns(this);
    auto* frame = new gui::TopLevel(this, n.Form, m_twips);
    frame->closeOnEscape();
}

} // namespace vantorel
