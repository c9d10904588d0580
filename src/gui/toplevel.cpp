#include "gui/toplevel.h"

#include "gui/binding.h"

#include <QCloseEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QWidget>

namespace vantorel::gui {

namespace {

// The frame that the design's outer sizes include: 120 twips of borders, 405
// of borders and title bar.
constexpr int kDesignFrameWidth = 120;
constexpr int kDesignFrameHeight = 405;

} // namespace

TopLevel::TopLevel(QWidget* window, Window& field, const Twips& twips, Following following)
    : QObject(window), m_window(window), m_field(field), m_twips(twips), m_followingBy(following),
      m_frontRequests(field.frontRequests()) {
    // Only the main window's closing ends the program.
    window->setAttribute(Qt::WA_QuitOnClose, false);
    window->installEventFilter(this);
    if (following == Following::OwnHook) field.setView([this] { show(); });
    show();
}

TopLevel::~TopLevel() {
    if (m_followingBy == Following::OwnHook) m_field.setView(nullptr);
}

void TopLevel::followUserSize(std::function<void()> resized) { m_resized = std::move(resized); }

void TopLevel::detach() {
    m_detached = true;
    m_resized = nullptr;
}

QSize TopLevel::innerPixels() const {
    const int width = m_field.innerWidth() > 0 ? m_field.innerWidth() : m_field.width() - kDesignFrameWidth;
    const int height = m_field.innerHeight() > 0 ? m_field.innerHeight() : m_field.height() - kDesignFrameHeight;
    return QSize(m_twips.toPixelsX(width), m_twips.toPixelsY(height));
}

void TopLevel::show() {
    if (m_following || m_detached) return;
    const QScopedValueRollback following(m_following, true);
    const Window& f = m_field;

    const QString title = QString::fromStdString(f.title());
    if (m_window->windowTitle() != title) m_window->setWindowTitle(title);
    const QColor back = ToQColor(f.back());
    if (m_window->palette().color(QPalette::Window) != back) {
        QPalette palette = m_window->palette();
        palette.setColor(QPalette::Window, back);
        m_window->setPalette(palette);
        m_window->setAutoFillBackground(true);
    }
    if (m_window->isEnabled() != f.enabled()) m_window->setEnabled(f.enabled());

    Qt::WindowStates states = m_window->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    if (f.state() == WindowState::Minimised) states |= Qt::WindowMinimized;
    if (f.state() == WindowState::Maximised) states |= Qt::WindowMaximized;
    if (states != m_window->windowState()) m_window->setWindowState(states);

    const QSize inner = innerPixels();
    if (!inner.isEmpty() && m_window->size() != inner) m_window->resize(inner);
    const QPoint place(m_twips.toPixelsX(f.left()), m_twips.toPixelsY(f.top()));
    if (m_window->pos() != place) m_window->move(place);

    if (m_window->isVisible() != f.visible()) {
        m_window->setVisible(f.visible());
        // A window asked to show again comes to the front.
        if (f.visible()) m_window->raise();
    }
    if (f.frontRequests() != m_frontRequests) {
        m_frontRequests = f.frontRequests();
        if (f.visible()) m_window->raise();
    }
}

bool TopLevel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_window || m_following || m_detached) return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Close: {
        // The frame's close button: the field decides; the widget itself
        // never closes on its own.
        event->ignore();
        m_field.requestClose();
        return true;
    }
    case QEvent::KeyPress: {
        const auto* key = static_cast<const QKeyEvent*>(event);
        if (!m_escapeCloses || key->key() != Qt::Key_Escape || key->modifiers() != Qt::NoModifier) break;
        m_field.requestClose();
        return true;
    }
    case QEvent::Move: {
        if (m_window->isMinimized()) break;
        const QScopedValueRollback following(m_following, true);
        m_field.setLeft(m_twips.fromPixelsX(m_window->x()));
        m_field.setTop(m_twips.fromPixelsY(m_window->y()));
        break;
    }
    case QEvent::Resize: {
        if (!m_resized || m_window->isMinimized()) break;
        const QSize size = static_cast<QResizeEvent*>(event)->size();
        if (size == innerPixels()) break;
        {
            const QScopedValueRollback following(m_following, true);
            m_field.setWidth(m_twips.fromPixelsX(size.width()) + kDesignFrameWidth);
            m_field.setHeight(m_twips.fromPixelsY(size.height()) + kDesignFrameHeight);
        }
        // The rule may give the window another size, which it then takes.
        const std::function<void()> resized = m_resized;
        resized();
        show();
        break;
    }
    case QEvent::WindowStateChange: {
        const WindowState now = m_window->isMinimized()   ? WindowState::Minimised
                                : m_window->isMaximized() ? WindowState::Maximised
                                                          : WindowState::Normal;
        if (now != m_field.state()) {
            const QScopedValueRollback following(m_following, true);
            m_field.setState(now);
        }
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace vantorel::gui
