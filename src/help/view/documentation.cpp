#include "help/view/documentation.h"

#include "gui/binding.h"
#include "gui/focus.h"
#include "gui/toplevel.h"
#include "help/help.h"
#include "help/manual.h"
#include "help/placement.h"
#include "help/view/manualtext.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QShowEvent>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

#include <algorithm>

namespace vantorel {

DocumentationView::DocumentationView(Calculator& c, QWidget* parent)
    : QWidget(parent), m_c(c), m_twips(gui::Twips::forScreen(QGuiApplication::primaryScreen())) {
    DocumentationWindow& d = c.documentation;
    setObjectName(QStringLiteral("Documentation"));

    m_box = new QTextEdit(this);
    m_box->setObjectName(QStringLiteral("Documentation.ReadmeBox"));
    // The manual is read, not edited; the caret still moves with the keys.
    m_box->setReadOnly(true);
    m_box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    WriteManual(*m_box->document(), m_twips);
    gui::BindPage(m_box, d.ReadmeBox, m_twips);

    auto* ok = new QPushButton(this);
    ok->setObjectName(QStringLiteral("Documentation.OK"));
    gui::Bind(ok, d.OK, m_twips);

    // The window's frame is the system's own; the design's smallest size is
    // an outer one.
    setMinimumSize(m_twips.toPixelsX(kDocumentationMinWidth - kFrameWidth),
                   m_twips.toPixelsY(kDocumentationMinHeight - kFrameHeight));
    gui::OrderTabsDownColumns(this);
    auto* frame = new gui::TopLevel(this, d.Form, m_twips, gui::Following::Owner);
    frame->closeOnEscape();
    frame->followUserSize([&c] { DocumentationResized(c); });
}

void DocumentationView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (m_atCaret) return;
    m_atCaret = true;
    moveToCaret();
    m_box->setFocus();
}

void DocumentationView::moveToCaret() {
    QTextDocument* document = m_box->document();
    const int position = std::clamp(m_c.documentation.ReadmeCaret, 0, document->characterCount() - 1);
    QTextCursor cursor(document);
    cursor.setPosition(position);
    m_box->setTextCursor(cursor);
    // The text moves just far enough to bring the caret into view at the
    // bottom of the box.
    m_box->ensureCursorVisible();

    // Then the heading of the caret's section goes to the top of the box, if
    // the caret stays in view: the help positions lie about a screenful
    // below their headings, and a face other than the one they were reckoned
    // for would leave the heading somewhere else.
    // The layout's box of a block starts below its top margin.
    const QTextBlock heading = document->findBlock(SectionHeadingAt(position));
    const int headingTop = static_cast<int>(document->documentLayout()->blockBoundingRect(heading).top());
    QScrollBar* bar = m_box->verticalScrollBar();
    const int caretBottom = m_box->cursorRect().bottom() + bar->value();
    if (caretBottom - headingTop < m_box->viewport()->height()) bar->setValue(headingTop);
}

} // namespace vantorel
