#include "graph/view/graphwindow.h"

#include "engine/records.h"
#include "graph/view/graphplot.h"
#include "gui/binding.h"
#include "gui/focus.h"
#include "gui/listbox.h"
#include "gui/toplevel.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>

namespace vantorel {

namespace {

QString Name(const char* control) { return QStringLiteral("Graph.") + QLatin1String(control); }

} // namespace

GraphWindowView::GraphWindowView(Calculator& c, QWidget* parent)
    : QWidget(parent), m_twips(gui::Twips::forScreen(QGuiApplication::primaryScreen())) {
    GraphWindow& g = c.graph;
    setObjectName(QStringLiteral("Graph"));

    m_plot = new GraphPlot(g, m_twips, this);
    m_plot->setObjectName(Name("Plot"));

    // A narrow face, so that the longest mode fits the list's width.
    auto* mode = new gui::ListBox(m_plot);
    mode->setObjectName(Name("GraphMode"));
    mode->setFont(gui::FrontierFont(8));
    gui::Bind(mode, g.GraphMode, m_twips);

    auto* help = new QPushButton(m_plot);
    help->setObjectName(Name("Help"));
    gui::Bind(help, g.Help, m_twips);

    auto* front = new QCheckBox(m_plot);
    front->setObjectName(Name("DisplayOnUpdate"));
    front->setFont(gui::FrontierFont(11));
    gui::Bind(front, g.DisplayOnUpdate, m_twips);

    // The hide button is small enough to sit in the key's corner.
    auto* hide = new QPushButton(m_plot);
    hide->setObjectName(Name("HideKey"));
    QFont small = hide->font();
    small.setPixelSize(m_twips.toPixelsY(150));
    hide->setFont(small);
    hide->setStyleSheet(QStringLiteral("QPushButton { padding: 0px; }"));
    gui::Bind(hide, g.HideKey, m_twips);

    gui::OrderTabsDownColumns(this);
    m_top = new gui::TopLevel(this, g.Form, m_twips);
    m_top->closeOnEscape();
    const QSize inner = m_top->innerPixels();
    m_plot->setGeometry(0, 0, inner.width(), inner.height());
    setFixedSize(inner);
}

GraphWindowView::~GraphWindowView() = default;

} // namespace vantorel
