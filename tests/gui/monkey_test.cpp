// A monkey at the mouse and the keyboard: for about a minute, random clicks,
// typing and keys on the real widgets of every window on show, on a laptop's
// virtual screen of 1366 x 768 at 96 dpi. Windows open through the program's
// own buttons and close by their frames, as a user's do. After every step
// each widget must show what its field holds, and Qt must have had nothing to
// warn about. A walk follows its seed step by step, so a failure replays:
//   VANTOREL_MONKEY_SEED     the seed (a fixed one unless given)
//   VANTOREL_MONKEY_SECONDS  how long the walk goes on (55 seconds unless given)
//   VANTOREL_MONKEY_STEPS    exactly this many steps, however long they take
//   VANTOREL_MONKEY_TRACE=1  every action on the error stream as it is taken
// A failure, a crash among them, prints the seed, the step and the last
// actions.

#include "agreement.h"
#include "mainwindow/view/mainwindow.h"
#include "program/registry.h"
#include "program/soak.h"
#include "program/view/start.h"
#include "program/view/windows.h"
#include "screen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QStyleHints>
#include <QTest>
#include <QTextEdit>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

using namespace vantorel;
using test::Q;

namespace {

constexpr std::uint64_t kSeed = 1701;
constexpr double kSeconds = 55;

// The last actions, kept in plain memory, so that a crash can still print
// them from its signal handler.
class Trail final {
  public:
    static constexpr int kKept = 20;

    void begin(std::uint64_t seed, bool traced) {
        m_seed = seed;
        m_traced = traced;
        m_steps = 0;
        m_lines = {};
    }
    void add(const QString& action) {
        ++m_steps;
        const QByteArray text = action.toUtf8();
        std::snprintf(m_lines[static_cast<std::size_t>(m_steps % kKept)].data(), kWidth, "  step %ld: %s\n", m_steps,
                      text.constData());
        if (m_traced) Write(STDERR_FILENO, m_lines[static_cast<std::size_t>(m_steps % kKept)].data());
        std::snprintf(m_header.data(), m_header.size(),
                      "The monkey's walk from seed %llu failed at step %ld (replay with VANTOREL_MONKEY_SEED=%llu "
                      "VANTOREL_MONKEY_STEPS=%ld). The last actions:\n",
                      static_cast<unsigned long long>(m_seed), m_steps, static_cast<unsigned long long>(m_seed),
                      m_steps);
    }
    long steps() const { return m_steps; }
    // Only what a signal handler may call.
    void writeTo(int fd) const {
        Write(fd, m_header.data());
        for (long step = m_steps - kKept + 1; step <= m_steps; ++step)
            if (step > 0) Write(fd, m_lines[static_cast<std::size_t>(step % kKept)].data());
    }
    QString text() const {
        QString all = QString::fromUtf8(m_header.data());
        for (long step = m_steps - kKept + 1; step <= m_steps; ++step)
            if (step > 0) all += QString::fromUtf8(m_lines[static_cast<std::size_t>(step % kKept)].data());
        return all;
    }

  private:
    static constexpr std::size_t kWidth = 300;
    static void Write(int fd, const char* s) {
        std::size_t left = std::strlen(s);
        while (left > 0) {
            const ssize_t n = ::write(fd, s, left);
            if (n <= 0) return;
            s += n;
            left -= static_cast<std::size_t>(n);
        }
    }

    std::uint64_t m_seed = 0;
    bool m_traced = false;
    long m_steps = 0;
    std::array<std::array<char, kWidth>, kKept> m_lines{};
    std::array<char, 240> m_header{};
};

// One walk at a time: the signal and message handlers reach it here.
Trail g_trail;
QStringList g_heard;
QtMessageHandler g_qtHandler = nullptr;
constexpr std::array kFatalSignals = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};
std::array<struct sigaction, kFatalSignals.size()> g_beforeSignals{};

void OnFatalSignal(int signal) {
    g_trail.writeTo(STDERR_FILENO);
    // Qt Test's own handler, or the system's, goes on from here.
    for (std::size_t i = 0; i < kFatalSignals.size(); ++i)
        if (kFatalSignals[i] == signal) sigaction(signal, &g_beforeSignals[i], nullptr);
    std::raise(signal);
}

// The offscreen platform has no window manager and no input devices, and says
// so when a window is asked to come to the front or tells of its smallest and
// largest size, or a drop-down takes the keyboard and the mouse to itself; a
// desktop's platform does these.
const QStringList kPlatformNotices = {QStringLiteral("This plugin does not support raise()"),
                                      QStringLiteral("This plugin does not support propagateSizeHints()"),
                                      QStringLiteral("This plugin does not support grabbing the keyboard"),
                                      QStringLiteral("This plugin does not support grabbing the mouse")};

// Every other warning of Qt's fails the walk.
void Listen(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtWarningMsg && kPlatformNotices.contains(message)) return;
    if (type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg) g_heard << message;
    if (type == QtFatalMsg) g_trail.writeTo(STDERR_FILENO);
    if (g_qtHandler) g_qtHandler(type, context, message);
}

// Qt's messages and fatal signals reach the walk while this lasts.
class Watch final {
  public:
    Watch() {
        g_heard.clear();
        g_qtHandler = qInstallMessageHandler(Listen);
        struct sigaction on {};
        on.sa_handler = OnFatalSignal;
        on.sa_flags = SA_ONSTACK;
        sigemptyset(&on.sa_mask);
        for (std::size_t i = 0; i < kFatalSignals.size(); ++i)
            sigaction(kFatalSignals[i], &on, &g_beforeSignals[i]);
    }
    ~Watch() {
        for (std::size_t i = 0; i < kFatalSignals.size(); ++i)
            sigaction(kFatalSignals[i], &g_beforeSignals[i], nullptr);
        qInstallMessageHandler(g_qtHandler);
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
};

// The name of the control a widget belongs to: a list's own line edit and
// drop-down stand for their list, a box's bars for their box.
QString NameOf(const QWidget* w) {
    for (const QWidget* at = w; at; at = at->parentWidget())
        if (!at->objectName().isEmpty() && !at->objectName().startsWith(QLatin1String("qt_"))) return at->objectName();
    return w ? QString::fromLatin1(w->metaObject()->className()) : QStringLiteral("(nothing)");
}

QString Shown(const QString& text) {
    constexpr int kLongest = 40;
    QString s = text.left(kLongest);
    s.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    return QLatin1Char('"') + s +
           (text.size() > kLongest ? QStringLiteral("...\" (%1 characters)").arg(text.size()) : QStringLiteral("\""));
}

// The buttons a user presses to open each window, in order; the last one that
// can be pressed is pressed, so that a step goes as far as it can.
struct Opening {
    const char* window;
    std::vector<const char*> buttons;
};
const std::vector<Opening> kOpenings = {
    {"Alpha", {"Form1.Advanced[1]"}},     {"Omega", {"Form1.Compare", "Form1.Advanced[2]"}},
    {"AlphaSkills", {"Form1.Skills[1]"}}, {"OmegaSkills", {"Form1.Compare", "Form1.Skills[2]"}},
    {"Graph", {"Form1.GraphResults"}},    {"Documentation", {"Form1.Help"}},
    {"About", {"Form1.ShowAbout"}},       {"Note", {"Form1.Advanced[1]", "Alpha.ExtrapolatePower"}},
};

// Keys on the control that has the focus.
struct Press {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* name;
};
const std::vector<Press> kPresses = {
    {Qt::Key_Tab, Qt::NoModifier, "Tab"},
    {Qt::Key_Backtab, Qt::ShiftModifier, "Shift+Tab"},
    {Qt::Key_Return, Qt::NoModifier, "Return"},
    {Qt::Key_Enter, Qt::KeypadModifier, "Enter"},
    {Qt::Key_Space, Qt::NoModifier, "Space"},
    {Qt::Key_Escape, Qt::NoModifier, "Escape"},
    {Qt::Key_Up, Qt::NoModifier, "Up"},
    {Qt::Key_Down, Qt::NoModifier, "Down"},
    {Qt::Key_Left, Qt::NoModifier, "Left"},
    {Qt::Key_Right, Qt::NoModifier, "Right"},
    {Qt::Key_PageUp, Qt::NoModifier, "PageUp"},
    {Qt::Key_PageDown, Qt::NoModifier, "PageDown"},
    {Qt::Key_Home, Qt::NoModifier, "Home"},
    {Qt::Key_End, Qt::NoModifier, "End"},
    {Qt::Key_Backspace, Qt::NoModifier, "Backspace"},
    {Qt::Key_Delete, Qt::NoModifier, "Delete"},
    {Qt::Key_Down, Qt::AltModifier, "Alt+Down"},
    {Qt::Key_F4, Qt::NoModifier, "F4"},
    {Qt::Key_A, Qt::ControlModifier, "Ctrl+A"},
    {Qt::Key_Z, Qt::ControlModifier, "Ctrl+Z"},
    {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, "Ctrl+Shift+Z"},
    {Qt::Key_C, Qt::ControlModifier, "Ctrl+C"},
    {Qt::Key_X, Qt::ControlModifier, "Ctrl+X"},
    {Qt::Key_V, Qt::ControlModifier, "Ctrl+V"},
};

// Keys in an open drop-down.
const std::vector<Press> kDropDownPresses = {
    {Qt::Key_Up, Qt::NoModifier, "Up"},         {Qt::Key_Down, Qt::NoModifier, "Down"},
    {Qt::Key_PageUp, Qt::NoModifier, "PageUp"}, {Qt::Key_PageDown, Qt::NoModifier, "PageDown"},
    {Qt::Key_Home, Qt::NoModifier, "Home"},     {Qt::Key_End, Qt::NoModifier, "End"},
    {Qt::Key_Return, Qt::NoModifier, "Return"}, {Qt::Key_Enter, Qt::KeypadModifier, "Enter"},
    {Qt::Key_Escape, Qt::NoModifier, "Escape"}, {Qt::Key_Tab, Qt::NoModifier, "Tab"},
};

// The random walk over one program, and the program anew whenever the walk
// ends it by closing its main window.
class Monkey final {
  public:
    explicit Monkey(std::uint64_t seed) : m_random(seed) {
        // A menu that runs an event loop of its own (a scroll bar's) holds
        // the step that opened it until it closes: the monkey works it from
        // inside that loop.
        m_insideMenu.setInterval(0);
        QObject::connect(&m_insideMenu, &QTimer::timeout, &m_insideMenu, [this] {
            if (QThread::currentThread()->loopLevel() == 0) return;
            if (QWidget* popup = QApplication::activePopupWidget()) inDropDown(popup);
        });
        start();
    }

    // One action, written to the trail before it is taken.
    void step() {
        const std::vector<std::string> quiet = quietValues();
        m_insideMenu.start();
        act();
        m_insideMenu.stop();
        if (quietValues() != quiet) m_rules->awaitRecalculation();
    }

    // The rules of the program that a user works, as the random-action soak
    // checks them; the first that does not hold, if any.
    QString brokenRule() {
        const std::optional<Finding> finding = m_rules->check();
        return finding ? Q(std::string(InvariantName(finding->invariant)) + ": " + finding->detail) : QString();
    }

    // What differs between the windows and their fields, by name.
    QStringList disagreements() const {
        QStringList wrong;
        for (const ControlRef* form : m_forms) {
            const QWidget* w = widgetOf(*form->form);
            if (!w) {
                if (form->form->visible()) wrong << Q(form->name) + ": shown, with no window";
                continue;
            }
            wrong << test::WindowDisagreements(*w, *form->form, form->window);
            wrong << test::Disagreements(*w, *m_registry, form->window,
                                         form->window == "Graph" ? test::kDrawnOnGraph : test::kDrawnOnMain);
        }
        return wrong;
    }

    const QMap<QString, long>& actionsByWindow() const { return m_byWindow; }
    int programs() const { return m_programs; }

  private:
    std::unique_ptr<StartedProgram> m_program;
    std::unique_ptr<ControlRegistry> m_registry;
    std::unique_ptr<Invariants> m_rules;
    std::vector<const ControlRef*> m_quiet;
    std::vector<const ControlRef*> m_forms;
    std::mt19937_64 m_random;
    QMap<QString, long> m_byWindow;
    int m_programs = 0;
    QTimer m_insideMenu;

    void act() {
        if (QWidget* popup = QApplication::activePopupWidget()) return inDropDown(popup);
        const int roll = below(1000);
        if (roll < 2) return endAndStartAgain();
        if (roll < 10) return minimiseOrRestore();
        if (roll < 20) return moveOrResize();
        if (roll < 45) return closeByFrame();
        if (roll < 130) return openThroughTheProgram();
        if (roll < 180) return activate();
        if (roll < 330) return type();
        if (roll < 550) return press();
        return click();
    }

    // A number from 0 up to but not including n, the same on every
    // standard library.
    int below(int n) { return n <= 1 ? 0 : static_cast<int>(m_random() % static_cast<std::uint64_t>(n)); }
    template <typename T> const T& pick(const std::vector<T>& from) {
        return from[static_cast<std::size_t>(below(static_cast<int>(from.size())))];
    }
    bool chance(int percent) { return below(100) < percent; }

    void start() {
        m_rules.reset();
        m_registry.reset();
        m_program.reset();
        m_program = std::make_unique<StartedProgram>(Splash::Skipped);
        m_program->showMainWindow();
        m_registry = std::make_unique<ControlRegistry>(m_program->calculator());
        m_forms.clear();
        m_quiet.clear();
        for (const ControlRef& ref : m_registry->all()) {
            if (ref.form && ref.control == ref.form) m_forms.push_back(&ref);
            const ValueKind kind = ref.kind();
            const bool input = kind == ValueKind::Flag || kind == ValueKind::Text || kind == ValueKind::List ||
                               kind == ValueKind::ScrollBar;
            const bool typed = kind == ValueKind::List && std::get<List*>(ref.target)->typing();
            if (input && (typed || !ref.control->hasHandler())) m_quiet.push_back(&ref);
        }
        m_rules = std::make_unique<Invariants>(m_program->calculator(), *m_registry);
        ++m_programs;
    }

    // What the controls hold whose changes raise no event: a text typed into
    // a list that takes typing, a control without a handler. Such a change
    // waits for the next recalculation to be taken in.
    std::vector<std::string> quietValues() const {
        std::vector<std::string> all;
        all.reserve(m_quiet.size());
        for (const ControlRef* ref : m_quiet) {
            all.push_back(std::visit(
                [](auto* target) -> std::string {
                    using T = std::remove_pointer_t<decltype(target)>;
                    if constexpr (std::is_same_v<T, Flag> || std::is_same_v<T, ScrollBar>)
                        return std::to_string(target->value());
                    else if constexpr (std::is_same_v<T, Text>)
                        return target->text();
                    else if constexpr (std::is_same_v<T, List>)
                        return std::to_string(target->index()) + ' ' + target->text();
                    else
                        return std::string();
                },
                ref->target));
        }
        return all;
    }

    void note(const QString& action, const QWidget* on = nullptr) {
        g_trail.add(action);
        if (on) ++m_byWindow[NameOf(on->window()).section(QLatin1Char('.'), 0, 0)];
    }

    QWidget* widgetOf(const Window& field) const {
        Program& c = m_program->calculator();
        if (&field == &c.main.Form1) return &m_program->windows().mainWindow();
        return m_program->windows().widgetOf(field);
    }

    // The windows a user can reach now: on show, not minimised, not held.
    std::vector<QWidget*> reachable() const {
        std::vector<QWidget*> all;
        for (const ControlRef* form : m_forms) {
            QWidget* w = widgetOf(*form->form);
            if (w && w->isVisible() && w->isEnabled() && !w->isMinimized()) all.push_back(w);
        }
        return all;
    }

    // The widget that a control's name gives, on any window.
    QWidget* control(const char* name) const {
        const ControlRef* ref = m_registry->find(name);
        QWidget* window = ref && ref->form ? widgetOf(*ref->form) : nullptr;
        return window ? window->findChild<QWidget*>(QLatin1String(name)) : nullptr;
    }

    // A point of `w` that shows on the screen, in its window's coordinates.
    // A window that first shows minimised keeps the offscreen platform's
    // first size once restored, whatever size its widget takes; a point
    // beyond it is in no window.
    std::optional<QPoint> pointOn(const QWidget* w) {
        if (!w->isVisible() || !w->isEnabled()) return std::nullopt;
        QRegion region = w->visibleRegion();
        const QWidget* window = w->window();
        const QRect screen = window->screen()->geometry();
        region &= QRect(w->mapFromGlobal(screen.topLeft()), screen.size());
        region &= QRect(w->mapFrom(window, QPoint(0, 0)), window->windowHandle()->size());
        if (region.isEmpty()) return std::nullopt;
        const QRect r = *(region.begin() + below(region.rectCount()));
        return w->mapTo(window, QPoint(r.x() + below(r.width()), r.y() + below(r.height())));
    }

    // A click where the user clicks: the window comes to the front and the
    // widget at that point takes the click.
    void clickAt(QWidget* window, QPoint at, const QString& what) {
        note(QStringLiteral("click %1 at %2,%3").arg(what).arg(at.x()).arg(at.y()), window);
        bringToFront(window);
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at);
    }

    // A click in a window behind the others brings it to the front first.
    static void bringToFront(QWidget* window) {
        if (!window->isActiveWindow() && !QApplication::activePopupWidget()) window->activateWindow();
    }

    // The widgets of a window that a user works with the mouse.
    std::vector<QWidget*> controls(const QWidget* window) const {
        std::vector<QWidget*> all;
        for (QWidget* w : window->findChildren<QWidget*>()) {
            const bool works = qobject_cast<QAbstractButton*>(w) || qobject_cast<QComboBox*>(w) ||
                               qobject_cast<QAbstractSlider*>(w) || qobject_cast<QLineEdit*>(w) ||
                               qobject_cast<QTextEdit*>(w);
            if (works && w->isVisible() && w->isEnabled()) all.push_back(w);
        }
        return all;
    }

    // The mouse on a control: mostly a click, sometimes the other button, a
    // drag to elsewhere in the window, or the wheel.
    void click() {
        const std::vector<QWidget*> windows = reachable();
        if (windows.empty()) return restoreMain();
        QWidget* window = pick(windows);
        const std::vector<QWidget*> all = controls(window);
        if (all.empty()) return;
        QWidget* target = pick(all);
        const std::optional<QPoint> at = pointOn(target);
        if (!at) return;
        const int roll = below(100);
        if (roll < 80) return clickAt(window, *at, NameOf(target));
        QWindow* handle = window->windowHandle();
        if (roll < 88) {
            note(QStringLiteral("right-click %1 at %2,%3").arg(NameOf(target)).arg(at->x()).arg(at->y()), window);
            bringToFront(window);
            QTest::mouseClick(handle, Qt::RightButton, {}, *at);
            return;
        }
        if (roll < 95) {
            const QPoint to(below(window->width()), below(window->height()));
            note(QStringLiteral("drag %1 from %2,%3 to %4,%5")
                     .arg(NameOf(target))
                     .arg(at->x())
                     .arg(at->y())
                     .arg(to.x())
                     .arg(to.y()),
                 window);
            bringToFront(window);
            QTest::mousePress(handle, Qt::LeftButton, {}, *at);
            QTest::mouseMove(handle, to);
            QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
            return;
        }
        // The wheel turns what is under the mouse, in steps of a notch.
        const int notches = (chance(50) ? 1 : -1) * (1 + below(3));
        note(QStringLiteral("turn the wheel %1 notches over %2").arg(notches).arg(NameOf(target)), window);
        const QPoint local = target->mapFrom(window, *at);
        QWheelEvent wheel(local, target->mapToGlobal(local), QPoint(),
                          QPoint(0, notches * QWheelEvent::DefaultDeltasPerStep), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &wheel);
    }

    void openThroughTheProgram() {
        std::vector<const Opening*> closed;
        for (const Opening& opening : kOpenings) {
            const ControlRef* form = m_registry->find(opening.window);
            if (form && !form->form->visible()) closed.push_back(&opening);
        }
        if (closed.empty()) return click();
        const Opening& opening = *pick(closed);
        const std::vector<QWidget*> windows = reachable();
        for (auto it = opening.buttons.rbegin(); it != opening.buttons.rend(); ++it) {
            QWidget* button = control(*it);
            if (!button || !std::count(windows.begin(), windows.end(), button->window())) continue;
            if (const std::optional<QPoint> at = pointOn(button))
                return clickAt(button->window(), *at, NameOf(button) + QStringLiteral(" to open ") + opening.window);
        }
        click();
    }

    void activate() {
        const std::vector<QWidget*> windows = reachable();
        if (windows.empty()) return restoreMain();
        QWidget* window = pick(windows);
        note(QStringLiteral("bring %1 to the front").arg(NameOf(window)), window);
        window->raise();
        window->activateWindow();
    }

    // Text into a box or a list with typing, clicked first as a user does;
    // sometimes what was there is cleared first.
    void type() {
        const std::vector<QWidget*> windows = reachable();
        if (windows.empty()) return restoreMain();
        QWidget* window = pick(windows);
        std::vector<QWidget*> boxes;
        for (QWidget* w : controls(window))
            if (qobject_cast<QLineEdit*>(w)) boxes.push_back(w);
        if (boxes.empty()) return press();
        QWidget* box = pick(boxes);
        const std::optional<QPoint> at = pointOn(box);
        if (!at) return;
        clickAt(window, *at, NameOf(box));
        QWindow* keyboard = QGuiApplication::focusWindow();
        if (!keyboard) return;
        if (chance(40)) {
            note(QStringLiteral("clear %1").arg(NameOf(QApplication::focusWidget())), window);
            QTest::keyClick(keyboard, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClick(keyboard, Qt::Key_Backspace);
        }
        const QString text = randomText();
        if (text.isEmpty()) return;
        note(QStringLiteral("type %1 into %2").arg(Shown(text), NameOf(QApplication::focusWidget())), window);
        // One key for each character; one that no key of the keyboard
        // carries comes as the text of a key without a code, as an input
        // method sends it.
        for (const QChar ch : text) {
            if (!QGuiApplication::focusWindow()) return;
            if (ch.unicode() >= 0x20 && ch.unicode() < 0x7F)
                QTest::keyClick(QGuiApplication::focusWindow(), static_cast<char>(ch.unicode()));
            else
                QTest::sendKeyEvent(QTest::Click, QGuiApplication::focusWindow(), Qt::Key_unknown, QString(ch),
                                    Qt::NoModifier);
        }
    }

    QString randomText() {
        static const QString kDigits = QStringLiteral("0123456789");
        static const QString kNumber = QStringLiteral("0123456789.,-+eE ");
        static const QString kLetters = QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
        static const QString kAny = kNumber + kLetters + QStringLiteral("!\"#$%&'()*/:;<=>?@[\\]^_`{|}~");
        static const QString kForeign = QString::fromUtf8("éü½²−٣€ßЖ中");
        auto from = [this](const QString& set, int length) {
            QString s;
            for (int i = 0; i < length; ++i)
                s += set[below(static_cast<int>(set.size()))];
            return s;
        };
        switch (below(9)) {
        case 0:
            return QString();
        case 1:
            return from(kDigits, 1 + below(4));
        case 2:
            return QString::number(below(2000) - 1000);
        case 3:
            return (chance(50) ? QStringLiteral("-") : QStringLiteral("+")) + from(kDigits, 1 + below(12));
        case 4:
            return from(kNumber, 1 + below(8));
        case 5:
            return from(kLetters, 1 + below(10));
        case 6:
            return from(kAny, 1 + below(20));
        case 7:
            return from(kForeign + kDigits, 1 + below(6));
        default: // far longer than any box
            return from(chance(50) ? kDigits : kAny, 120 + below(180));
        }
    }

    // A key on the control that has the focus, in the window at the front or,
    // sometimes, in another that the user brings to the front first.
    void press() {
        const std::vector<QWidget*> windows = reachable();
        if (windows.empty()) return restoreMain();
        // A minimised window, or one that the warning holds, takes no keys.
        const bool atTheFront = std::count(windows.begin(), windows.end(), QApplication::activeWindow()) != 0;
        if (!atTheFront || chance(10)) {
            QWidget* window = pick(windows);
            note(QStringLiteral("bring %1 to the front").arg(NameOf(window)), window);
            window->activateWindow();
        }
        QWindow* keyboard = QGuiApplication::focusWindow();
        if (!keyboard) return;
        QWidget* to = QApplication::focusWidget();
        if (!to) to = QApplication::activeWindow();
        if (chance(15)) {
            static const QString kKeys = QStringLiteral("aAbckKmSz0159 -.+");
            const QChar key = kKeys[below(static_cast<int>(kKeys.size()))];
            note(QStringLiteral("press %1 on %2").arg(Shown(QString(key)), NameOf(to)), to);
            QTest::keyClick(keyboard, key.toLatin1());
            return;
        }
        const Press& p = pick(kPresses);
        note(QStringLiteral("press %1 on %2").arg(QLatin1String(p.name), NameOf(to)), to);
        QTest::keyClick(keyboard, p.key, p.modifiers);
    }

    // An open drop-down or menu: a row clicked, a key, or a click beside it.
    void inDropDown(QWidget* popup) {
        auto* view = popup->findChild<QAbstractItemView*>();
        const QString list = NameOf(popup);
        const int roll = below(100);
        if (auto* menu = qobject_cast<QMenu*>(popup); menu && roll < 55) {
            std::vector<QAction*> entries;
            for (QAction* entry : menu->actions())
                if (entry->isVisible() && entry->isEnabled() && !entry->isSeparator()) entries.push_back(entry);
            if (!entries.empty()) {
                QAction* entry = pick(entries);
                const QPoint at = menu->actionGeometry(entry).center();
                note(QStringLiteral("choose %1 in the menu of %2").arg(Shown(entry->text()), list), popup);
                moveAndClick(popup, {at});
                return;
            }
        }
        if (view && roll < 55) {
            std::vector<QModelIndex> rows;
            const QRect shown = view->viewport()->rect();
            for (int row = 0; row < view->model()->rowCount(); ++row) {
                const QModelIndex index = view->model()->index(row, 0);
                if (view->visualRect(index).intersects(shown)) rows.push_back(index);
            }
            if (!rows.empty()) {
                const QModelIndex index = pick(rows);
                const QRect r = view->visualRect(index) & shown;
                const QPoint at = view->viewport()->mapTo(popup, r.center());
                note(QStringLiteral("choose row %1 of %2").arg(index.row()).arg(list), popup);
                // The mouse comes from afar, as a user's does: the drop-down
                // takes no click near the one that opened it.
                moveAndClick(popup, {QPoint(1, 1), QPoint(popup->width() - 2, popup->height() - 2), at});
                return;
            }
        }
        if (roll < 92) {
            const Press& p = pick(kDropDownPresses);
            note(QStringLiteral("press %1 in the drop-down of %2").arg(QLatin1String(p.name), list), popup);
            QTest::keyClick(popup->windowHandle(), p.key, p.modifiers);
            return;
        }
        // A click on a window beneath, beside the drop-down.
        const std::vector<QWidget*> windows = reachable();
        if (windows.empty()) return;
        QWidget* window = pick(windows);
        const QPoint at(below(window->width()), below(window->height()));
        if (popup->geometry().contains(window->mapToGlobal(at))) return;
        note(QStringLiteral("click %1 at %2,%3 beside the drop-down of %4")
                 .arg(NameOf(window))
                 .arg(at.x())
                 .arg(at.y())
                 .arg(list),
             window);
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at);
    }

    // The mouse over a drop-down or menu along `path`, then a click at its
    // end. Qt Test lets the events of each move run, and the drop-down may
    // close on the way.
    static void moveAndClick(QWidget* popup, const std::vector<QPoint>& path) {
        const QPointer<QWindow> window = popup->windowHandle();
        for (const QPoint& at : path)
            if (window) QTest::mouseMove(window, at);
        if (window) QTest::mouseClick(window, Qt::LeftButton, {}, path.back());
    }

    void closeByFrame() {
        std::vector<QWidget*> windows;
        for (QWidget* w : reachable())
            if (w != &m_program->windows().mainWindow()) windows.push_back(w);
        if (windows.empty()) return click();
        QWidget* window = pick(windows);
        note(QStringLiteral("close %1 by its frame").arg(NameOf(window)), window);
        window->close();
    }

    void minimiseOrRestore() {
        MainWindow& main = m_program->windows().mainWindow();
        if (main.isMinimized()) return restoreMain();
        if (!main.isVisible() || !main.isEnabled()) return click();
        note(QStringLiteral("minimise Form1"), &main);
        main.setWindowState(main.windowState() | Qt::WindowMinimized);
    }

    void restoreMain() {
        MainWindow& main = m_program->windows().mainWindow();
        note(QStringLiteral("restore Form1"), &main);
        main.setWindowState(main.windowState() & ~Qt::WindowMinimized);
    }

    // Any window moves; the main window and the manual also take a size, or
    // fill the screen and come back.
    void moveOrResize() {
        const std::vector<QWidget*> windows = reachable();
        if (windows.empty()) return restoreMain();
        QWidget* window = pick(windows);
        const QRect screen = window->screen()->availableGeometry();
        const bool sized = window == &m_program->windows().mainWindow() ||
                           window == widgetOf(m_program->calculator().documentation.Form);
        if (sized && window->isMaximized()) {
            note(QStringLiteral("restore %1 from the whole screen").arg(NameOf(window)), window);
            window->setWindowState(window->windowState() & ~Qt::WindowMaximized);
            return;
        }
        if (sized && chance(20)) {
            note(QStringLiteral("maximise %1").arg(NameOf(window)), window);
            window->setWindowState(window->windowState() | Qt::WindowMaximized);
            return;
        }
        if (sized && chance(60)) {
            const QSize size(100 + below(screen.width()), 100 + below(screen.height()));
            note(QStringLiteral("size %1 to %2 x %3").arg(NameOf(window)).arg(size.width()).arg(size.height()), window);
            window->resize(size);
            return;
        }
        const QPoint to(below(screen.width()) - 100, below(screen.height()) - 50);
        note(QStringLiteral("move %1 to %2,%3").arg(NameOf(window)).arg(to.x()).arg(to.y()), window);
        window->move(to);
    }

    // The main window closed by its frame ends the program; the user starts
    // it again.
    void endAndStartAgain() {
        MainWindow& main = m_program->windows().mainWindow();
        if (!main.isVisible() || !main.isEnabled()) return click();
        note(QStringLiteral("close Form1 by its frame, and start the program again"), &main);
        main.close();
        QApplication::processEvents();
        start();
        QApplication::processEvents();
    }
};

struct Budget {
    std::uint64_t seed = kSeed;
    double seconds = kSeconds;
    long steps = 0; // 0: as many as the seconds allow
    bool traced = false;
};

Budget BudgetFromEnvironment() {
    Budget b;
    bool ok = false;
    if (const qulonglong seed = qEnvironmentVariable("VANTOREL_MONKEY_SEED").toULongLong(&ok); ok) b.seed = seed;
    if (const double seconds = qEnvironmentVariable("VANTOREL_MONKEY_SECONDS").toDouble(&ok); ok) b.seconds = seconds;
    if (const long steps = qEnvironmentVariable("VANTOREL_MONKEY_STEPS").toLong(&ok); ok && steps > 0) b.steps = steps;
    b.traced = qEnvironmentVariableIntValue("VANTOREL_MONKEY_TRACE") != 0;
    return b;
}

} // namespace

class MonkeyTest final : public QObject {
    Q_OBJECT

  public Q_SLOTS:
    // About's forum button asks the system for a browser: not here.
    void ignore(const QUrl&) {}

  private Q_SLOTS:
    void initTestCase() {
        for (const char* scheme : {"http", "https"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "ignore");
    }

    void cleanupTestCase() {
        for (const char* scheme : {"http", "https"})
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    }

    void walk() {
        const Budget budget = BudgetFromEnvironment();
        g_trail.begin(budget.seed, budget.traced);
        const Watch watch;
        QElapsedTimer clock;
        clock.start();
        {
            Monkey monkey(budget.seed);
            const qint64 until = static_cast<qint64>(budget.seconds * 1000);
            while (budget.steps > 0 ? g_trail.steps() < budget.steps : clock.elapsed() < until) {
                QStringList wrong;
                try {
                    monkey.step();
                } catch (...) {
                    // The rules' count of nested events throws when a chain
                    // runs too deep.
                    wrong << QStringLiteral("an event threw, or events nested more than %1 deep")
                                 .arg(Invariants::kMaxNesting);
                }
                QApplication::processEvents();
                wrong << g_heard << monkey.disagreements();
                if (const QString rule = monkey.brokenRule(); !rule.isEmpty()) wrong << rule;
                if (!wrong.isEmpty()) {
                    const QString report =
                        g_trail.text() + QStringLiteral("Found:\n  ") + wrong.join(QStringLiteral("\n  "));
                    QFAIL(qPrintable(report));
                }
            }
            QStringList byWindow;
            for (auto it = monkey.actionsByWindow().cbegin(); it != monkey.actionsByWindow().cend(); ++it)
                byWindow << QStringLiteral("%1 %2").arg(it.key()).arg(it.value());
            qInfo("The monkey took %ld steps in %.1f s from seed %llu, over %d programs; actions by window: %s",
                  g_trail.steps(), static_cast<double>(clock.elapsed()) / 1000,
                  static_cast<unsigned long long>(budget.seed), monkey.programs(),
                  qPrintable(byWindow.join(QStringLiteral(", "))));
        }
    }
};

int main(int argc, char* argv[]) {
    const test::VirtualScreen screen("Laptop", 1366, 768);
    QApplication app(argc, argv);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    // The walk ends the program by closing its main window and starts it
    // anew; the test goes on.
    QApplication::setQuitOnLastWindowClosed(false);
    // Double clicks, and a drop-down's refusal of the release of the click
    // that opened it, depend on the time between events, which differs from
    // run to run; without them a seed replays step by step.
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
    // Qt Test ends a test function that runs five minutes, which a walk
    // asked to take longer would; a walk that hangs still ends five minutes
    // after its time.
    if (!qEnvironmentVariableIsSet("QTEST_FUNCTION_TIMEOUT")) {
        const Budget budget = BudgetFromEnvironment();
        const qint64 seconds = budget.steps > 0 ? 24 * 3600 : static_cast<qint64>(budget.seconds) + 300;
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(seconds * 1000));
    }
    MonkeyTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "monkey_test.moc"
