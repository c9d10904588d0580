#include "mainwindow/view/mainwindow.h"

#include "engine/records.h"
#include "gui/binding.h"
#include "gui/focus.h"
#include "gui/listbox.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/shipview.h"

#include <QCheckBox>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMoveEvent>
#include <QPushButton>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>

namespace vantorel {

namespace {

QString Name(const char* control) { return QStringLiteral("Form1.") + QLatin1String(control); }
QString Name(const char* control, int index) { return Name(control) + QStringLiteral("[%1]").arg(index); }

// The boxes' own face, asked for by name like the captions.
QFont BoxFont() { return gui::SansSerifFont(9.75); }

} // namespace

MainWindow::MainWindow(Calculator& c, QWidget* parent)
    : QMainWindow(parent), m_c(c), m_twips(gui::Twips::forScreen(QGuiApplication::primaryScreen())) {
    MainSelection& m = c.main;

    setObjectName(QStringLiteral("Form1"));
    auto* client = new QWidget(this);
    client->setAutoFillBackground(true);
    setCentralWidget(client);

    auto* page = new QWidget(client);
    page->setObjectName(Name("Contents"));
    gui::BindPage(page, m.Contents, m_twips);

    buildMiddle(page);
    buildColumn(page, 1);
    buildColumn(page, 2);

    // The bars stand on the window, above the page they move.
    auto* hBar = new QScrollBar(Qt::Horizontal, client);
    hBar->setObjectName(Name("HScroll1"));
    gui::Bind(hBar, m.HScroll1, m_twips);
    auto* vBar = new QScrollBar(Qt::Vertical, client);
    vBar->setObjectName(Name("VScroll1"));
    gui::Bind(vBar, m.VScroll1, m_twips);
    gui::OrderTabsDownColumns(this);
    gui::ScrollFocusIntoView(page, {hBar, &m.HScroll1, vBar, &m.VScroll1}, m_twips);

    if (QScreen* screen = QGuiApplication::primaryScreen())
        connect(screen, &QScreen::availableGeometryChanged, this, &MainWindow::takeWorkArea);
    takeWorkArea();
    m.Form1.setView([this] { showForm(); });
    showForm();
}

// The calculator may outlive its window; the controls' views guard their
// widgets themselves.
MainWindow::~MainWindow() { m_c.main.Form1.setView(nullptr); }

void MainWindow::buildMiddle(QWidget* page) {
    MainSelection& m = m_c.main;

    // The picture lies under the boxes and captions that border it.
    auto* picture = new ShipView(m_c, page);
    picture->setObjectName(Name("AlphaImage"));
    picture->move(m_twips.rect(m.AlphaImage).topLeft());

    auto label = [&](Label& field, const QString& name, const QFont& font, Qt::Alignment align) {
        auto* w = new QLabel(page);
        w->setObjectName(name);
        w->setFont(font);
        w->setAlignment(align);
        gui::Bind(w, field, m_twips);
        return w;
    };
    const Qt::Alignment leftMiddle = Qt::AlignLeft | Qt::AlignVCenter;
    label(m.FiringArcsLabel, Name("FiringArcsLabel"), gui::FrontierFont(24), Qt::AlignCenter);
    label(m.Primarylabel, Name("Primarylabel"), gui::FrontierFont(18), leftMiddle);
    label(m.Secondarylabel, Name("Secondarylabel"), gui::FrontierFont(18), leftMiddle);
    label(m.Note, Name("Note"), gui::FrontierFont(12), Qt::AlignLeft | Qt::AlignTop)->setWordWrap(true);
    for (int i = 0; i <= 13; ++i) {
        label(m.FiringArcLabel[i], Name("FiringArcLabel", i), gui::FrontierFont(12), leftMiddle);
        label(m.CFiringArcLabel[i], Name("CFiringArcLabel", i), gui::FrontierFont(12), leftMiddle);
        for (QLabel* box : {label(m.FiringArcDPS[i], Name("FiringArcDPS", i), BoxFont(), Qt::AlignCenter),
                            label(m.CFiringArcDPS[i], Name("CFiringArcDPS", i), BoxFont(), Qt::AlignCenter)}) {
            box->setFrameStyle(QFrame::Panel | QFrame::Sunken);
            box->setAutoFillBackground(true);
        }
    }

    auto* simplified = new QCheckBox(page);
    simplified->setObjectName(Name("Simplified"));
    simplified->setFont(gui::FrontierFont(12));
    gui::Bind(simplified, m.Simplified, m_twips);

    auto button = [&](Button& field, const QString& name) {
        auto* w = new QPushButton(page);
        w->setObjectName(name);
        gui::Bind(w, field, m_twips);
    };
    button(m.GraphResults, Name("GraphResults"));
    button(m.Help, Name("Help"));
    button(m.ShowAbout, Name("ShowAbout"));
    button(m.Compare, Name("Compare"));
    button(m.HideCompare, Name("HideCompare"));
}

void MainWindow::buildColumn(QWidget* page, Vessel v) {
    MainSelection& m = m_c.main;
    const bool alpha = v == 1;

    auto label = [&](Label& field, const QString& name) {
        auto* w = new QLabel(page);
        w->setObjectName(name);
        w->setFont(gui::FrontierFont(12));
        w->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        gui::Bind(w, field, m_twips);
    };
    auto list = [&](List& field, const QString& name) {
        auto* w = new gui::ListBox(page);
        w->setObjectName(name);
        gui::Bind(w, field, m_twips);
    };
    auto button = [&](Button& field, const QString& name) {
        auto* w = new QPushButton(page);
        w->setObjectName(name);
        gui::Bind(w, field, m_twips);
    };

    label(m.ShipClasslabel[v], Name("ShipClasslabel", v));
    list(m.ShipClass[v], Name("ShipClass", v));
    label(m.ShipTierlabel[v], Name("ShipTierlabel", v));
    list(m.ShipTier[v], Name("ShipTier", v));
    label(m.ShipSubclassLabel[v], Name("ShipSubclassLabel", v));
    list(m.ShipSubclass[v], Name("ShipSubclass", v));
    label(alpha ? m.ForwardWeaponlabel : m.CForwardWeaponlabel,
          Name(alpha ? "ForwardWeaponlabel" : "CForwardWeaponlabel"));
    for (int i = 1; i <= 4; ++i)
        list(alpha ? m.Forward[i] : m.CForward[i], Name(alpha ? "Forward" : "CForward", i));
    label(alpha ? m.RearWeaponlabel : m.CRearWeaponlabel, Name(alpha ? "RearWeaponlabel" : "CRearWeaponlabel"));
    for (int i = 1; i <= 4; ++i)
        list(alpha ? m.Rear[i] : m.CRear[i], Name(alpha ? "Rear" : "CRear", i));
    button(alpha ? m.Reset : m.CReset, Name(alpha ? "Reset" : "CReset"));
    label(m.PowerLevellabel[v], Name("PowerLevellabel", v));
    list(m.PowerLevel[v], Name("PowerLevel", v));
    label(m.TargetDistancelabel[v], Name("TargetDistancelabel", v));
    list(m.TargetDistance[v], Name("TargetDistance", v));
    button(m.Skills[v], Name("Skills", v));
    button(m.Advanced[v], Name("Advanced", v));
    label(m.ShuttleRankLabel[v], Name("ShuttleRankLabel", v));
    list(m.ShuttleRank[v], Name("ShuttleRank", v));

    auto* mod = new QCheckBox(page);
    mod->setObjectName(Name("ShuttleMod", v));
    mod->setFont(gui::FrontierFont(9.75, true));
    gui::Bind(mod, m.ShuttleMod[v], m_twips);
}

QSize MainWindow::innerPixels() const {
    const Window& form = m_c.main.Form1;
    const int width = form.innerWidth() > 0 ? form.innerWidth() : form.width() - kFrameWidth;
    const int height = form.innerHeight() > 0 ? form.innerHeight() : form.height() - kFrameHeight;
    return QSize(m_twips.toPixelsX(width), m_twips.toPixelsY(height));
}

void MainWindow::showForm() {
    if (m_following) return;
    const QScopedValueRollback following(m_following, true);
    const Window& form = m_c.main.Form1;

    const QString title = QString::fromStdString(form.title());
    if (windowTitle() != title) setWindowTitle(title);
    QWidget* client = centralWidget();
    const QColor back = gui::ToQColor(form.back());
    if (client->palette().color(QPalette::Window) != back) {
        QPalette palette = client->palette();
        palette.setColor(QPalette::Window, back);
        client->setPalette(palette);
    }

    // The warning note holds the main window while it is open.
    if (isEnabled() != form.enabled()) setEnabled(form.enabled());

    Qt::WindowStates states = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (form.state() == WindowState::Minimised) states |= Qt::WindowMinimized;
    if (form.state() == WindowState::Maximised) states |= Qt::WindowMaximized;
    if (states != windowState()) setWindowState(states);

    const QSize inner = innerPixels();
    if (!inner.isEmpty() && size() != inner) resize(inner);
    const QPoint place(m_twips.toPixelsX(form.left()), m_twips.toPixelsY(form.top()));
    if (pos() != place) move(place);

    if (isVisible() != form.visible()) setVisible(form.visible());
}

void MainWindow::takeWorkArea() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    const QRect area = screen->availableGeometry();
    // The fit measures windows with the design's frame. Where our frame is
    // another, the fit sees the work area grown or shrunk by the difference:
    // the inner area keeps the design size and the window still fits.
    int frameWidth = kFrameWidth;
    int frameHeight = kFrameHeight;
    if (isVisible()) {
        const QSize frame = frameGeometry().size() - size();
        frameWidth = m_twips.fromPixelsX(frame.width());
        frameHeight = m_twips.fromPixelsY(frame.height());
    }
    m_c.workLeft = m_twips.fromPixelsX(area.x());
    m_c.workTop = m_twips.fromPixelsY(area.y());
    m_c.workWidth = m_twips.fromPixelsX(area.width()) - frameWidth + kFrameWidth;
    m_c.workHeight = m_twips.fromPixelsY(area.height()) - frameHeight + kFrameHeight;
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (m_following || isMinimized() || isMaximized()) return;
    if (event->size() == innerPixels()) return;
    {
        const QScopedValueRollback following(m_following, true);
        Window& form = m_c.main.Form1;
        const int width = m_twips.fromPixelsX(event->size().width());
        const int height = m_twips.fromPixelsY(event->size().height());
        form.setInnerSize(width, height);
        form.setWidth(width + kFrameWidth);
        form.setHeight(height + kFrameHeight);
    }
    takeWorkArea();
    FitWindow(m_c);
}

void MainWindow::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    if (m_following || isMinimized()) return;
    const QScopedValueRollback following(m_following, true);
    m_c.main.Form1.setLeft(m_twips.fromPixelsX(pos().x()));
    m_c.main.Form1.setTop(m_twips.fromPixelsY(pos().y()));
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || m_following) return;
    const WindowState now = isMinimized()   ? WindowState::Minimised
                            : isMaximized() ? WindowState::Maximised
                                            : WindowState::Normal;
    Window& form = m_c.main.Form1;
    if (now == form.state()) return;
    {
        const QScopedValueRollback following(m_following, true);
        form.setState(now);
    }
    takeWorkArea();
    FitWindow(m_c);
}

} // namespace vantorel
