// Every window without a mouse, on a laptop's virtual screen of 1366 x 768 at
// 96 dpi, lower than a settings window's page. The windows are opened as a
// user opens them; from then on only keys reach them, sent to the control
// that has the focus, as a keyboard's are.

#include "agreement.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "program/registry.h"
#include "program/view/windows.h"
#include "screen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <QUrl>

#include <memory>
#include <type_traits>

using namespace vantorel;
using test::Q;

namespace {

// The name of the control that has the focus: a list's own line edit
// stands for its list.
QString Focused() {
    for (const QWidget* w = QApplication::focusWidget(); w; w = w->parentWidget())
        if (!w->objectName().isEmpty()) return w->objectName();
    return QStringLiteral("(nothing)");
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* to = QApplication::focusWidget();
    if (!to) to = QApplication::activeWindow();
    QVERIFY(to);
    QTest::keyClick(to, key, modifiers);
}

// What every field and engine value holds, by name: two programs that did
// the same thing hold the same.
QStringList Snapshot(const ControlRegistry& registry) {
    QStringList all;
    for (const ControlRef& ref : registry.all()) {
        QString value = std::visit(
            [](auto* target) -> QString {
                using T = std::remove_pointer_t<decltype(target)>;
                if constexpr (std::is_same_v<T, Flag>)
                    return QString::number(target->value()) + Q(target->caption());
                else if constexpr (std::is_same_v<T, Text>)
                    return Q(target->text());
                else if constexpr (std::is_same_v<T, List>)
                    return QString::number(target->index()) + Q(target->text()) + QString::number(target->count());
                else if constexpr (std::is_same_v<T, Label> || std::is_same_v<T, Button>)
                    return Q(target->caption()) + Q(target->tooltip());
                else if constexpr (std::is_same_v<T, ScrollBar>)
                    return QString::number(target->value()) + "/" + QString::number(target->maximum());
                else if constexpr (std::is_same_v<T, Window>)
                    return Q(target->title());
                else if constexpr (std::is_same_v<T, std::string>)
                    return Q(*target);
                else if constexpr (std::is_arithmetic_v<T>)
                    return QString::number(static_cast<double>(*target), 'g', 17);
                else
                    return QString();
            },
            ref.target);
        if (ref.control)
            value += QStringLiteral(" %1%2 %3")
                         .arg(ref.control->visible())
                         .arg(ref.control->enabled())
                         .arg(ref.control->back());
        all << Q(ref.name) + "=" + value;
    }
    return all;
}

// The windows a test opens, by the names the registry gives them.
enum class Opened { Main, Comparing, Alpha, Customised, AlphaSkills, Graph, Documentation, About, Note };

} // namespace

Q_DECLARE_METATYPE(Opened)
Q_DECLARE_METATYPE(Qt::Key)

// One program with its windows on the screen.
struct Session {
    std::unique_ptr<Program> c = std::make_unique<Program>();
    std::unique_ptr<ProgramWindows> windows = std::make_unique<ProgramWindows>(*c);

    QWidget* main() const { return &windows->mainWindow(); }
    QWidget* of(const Window& field) const { return windows->widgetOf(field); }
    template <typename W = QWidget> W* find(const QWidget* window, const QString& name) const {
        return window ? window->findChild<W*>(name) : nullptr;
    }
    void click(const QWidget* window, const QString& name) const {
        auto* w = find<QAbstractButton>(window, name);
        QVERIFY2(w && w->isVisible() && w->isEnabled(), qPrintable(name));
        QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(8, w->height() / 2));
    }
    void mainButton(const char* name) const { click(main(), QStringLiteral("Form1.") + QLatin1String(name)); }
    // The window as the user opens it, active, its first control focused.
    QWidget* open(Opened which) const {
        QWidget* w = openOnly(which);
        if (!w) return nullptr;
        w->activateWindow();
        if (!QTest::qWaitForWindowActive(w)) return nullptr;
        return w;
    }

  private:
    QWidget* openOnly(Opened which) const {
        switch (which) {
        case Opened::Main:
            return main();
        case Opened::Comparing:
            mainButton("Compare");
            return main();
        case Opened::Alpha:
            mainButton("Advanced[1]");
            return of(c->Alpha().Form);
        case Opened::Customised: {
            mainButton("Advanced[1]");
            QWidget* alpha = of(c->Alpha().Form);
            for (const char* box : {"Alpha.CharacterSettings", "Alpha.CriticalSettings", "Alpha.RelativeDPS"})
                click(alpha, QLatin1String(box));
            return alpha;
        }
        case Opened::AlphaSkills:
            mainButton("Skills[1]");
            return of(c->skills[1].Form);
        case Opened::Graph:
            mainButton("Compare");
            mainButton("GraphResults");
            return of(c->graph.Form);
        case Opened::Documentation:
            mainButton("Help");
            return of(c->documentation.Form);
        case Opened::About:
            mainButton("ShowAbout");
            return of(c->about.Form);
        case Opened::Note: {
            mainButton("Advanced[1]");
            click(of(c->Alpha().Form), QStringLiteral("Alpha.ExtrapolatePower"));
            return of(c->note.Form);
        }
        }
        return nullptr;
    }
};

class KeyboardTest final : public QObject {
    Q_OBJECT

  public Q_SLOTS:
    // About's forum button asks the system for a browser: not here.
    void ignore(const QUrl&) {}

  private:
    std::unique_ptr<Session> m_s;

    // The controls that Tab visits from the one with the focus, once round.
    QStringList tabbedRound(Qt::Key key) {
        QStringList seen{Focused()};
        for (int i = 0; i < 300; ++i) {
            Press(key);
            if (Focused() == seen.first()) return seen;
            seen << Focused();
        }
        return seen << QStringLiteral("(no way round)");
    }

  private Q_SLOTS:
    void initTestCase() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "ignore"); }

    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    void init() {
        m_s = std::make_unique<Session>();
        ShowMainWindowAtStart(*m_s->c);
        QVERIFY(QTest::qWaitForWindowExposed(m_s->main()));
        QCOMPARE(m_s->main()->screen()->availableGeometry().size(), QSize(1366, 768));
    }

    void cleanup() {
        m_s.reset();
        QApplication::processEvents();
    }

    void tabRunsDownEachColumn_data() {
        QTest::addColumn<Opened>("window");
        QTest::addColumn<QStringList>("order");
        auto names = [](const char* window, std::initializer_list<const char*> controls) {
            QStringList all;
            for (const char* c : controls)
                all << QLatin1String(window) + QLatin1Char('.') + QLatin1String(c);
            return all;
        };
        QTest::newRow("main window: Alpha's column, then the middle")
            << Opened::Main
            << names("Form1", {"ShipClass[1]", "ShipTier[1]",   "Forward[1]",        "Forward[2]", "Forward[3]",
                               "Forward[4]",   "Rear[1]",       "Rear[2]",           "Rear[3]",    "Rear[4]",
                               "Reset",        "PowerLevel[1]", "TargetDistance[1]", "Skills[1]",  "Advanced[1]",
                               "Compare",      "Simplified",    "GraphResults",      "Help",       "ShowAbout"});
        QTest::newRow("main window comparing: Omega's column last")
            << Opened::Comparing
            << names("Form1", {"ShipClass[1]", "ShipTier[1]",   "Forward[1]",        "Forward[2]",  "Forward[3]",
                               "Forward[4]",   "Rear[1]",       "Rear[2]",           "Rear[3]",     "Rear[4]",
                               "Reset",        "PowerLevel[1]", "TargetDistance[1]", "Skills[1]",   "Advanced[1]",
                               "HideCompare",  "Simplified",    "GraphResults",      "Help",        "ShowAbout",
                               "ShipClass[2]", "ShipTier[2]",   "CForward[1]",       "CForward[2]", "CForward[3]",
                               "CForward[4]",  "CRear[1]",      "CRear[2]",          "CRear[3]",    "CRear[4]",
                               "CReset",       "PowerLevel[2]", "TargetDistance[2]", "Skills[2]",   "Advanced[2]"});
        QTest::newRow("settings at the start: the controls open in the default modes")
            << Opened::Alpha
            << names("Alpha",
                     {"CharacterSettings", "Help[1]", "CriticalSettings", "Help[2]", "DamageResistance", "Accuracy",
                      "ExtrapolatePower", "Help[3]", "RelativeDPS", "Help[4]", "WeaponType[2]", "Help[0]", "Close"});
        // Section by section; the mark and the mods head both columns of
        // the weapons in one row.
        QTest::newRow("settings, everything open: each section down its columns")
            << Opened::Customised
            << names("Alpha", {"CharacterSettings",
                               "Help[1]",
                               "Faction",
                               "Rank",
                               "Class",
                               "CriticalSettings",
                               "Help[2]",
                               "CriticalSkill[1]",
                               "CriticalSkill[2]",
                               "CriticalSkill[3]",
                               "CriticalItem",
                               "DamageResistance",
                               "TargetResistance",
                               "Accuracy",
                               "TargetDefense",
                               "ExtrapolatePower",
                               "Help[3]",
                               "RelativeDPS",
                               "Help[4]",
                               "WeaponMark",
                               "WeaponMod[1]",
                               "WeaponMod[2]",
                               "WeaponMod[3]",
                               "WeaponSkill[1]",
                               "WeaponSkill[2]",
                               "WeaponSkill[3]",
                               "WeaponType[1]",
                               "WeaponSkill[4]",
                               "WeaponAccolade[1]",
                               "WeaponSkill[5]",
                               "WeaponSkill[6]",
                               "WeaponSkill[7]",
                               "WeaponType[2]",
                               "WeaponSkill[8]",
                               "WeaponAccolade[2]",
                               "MatchConsole",
                               "TacticalConsole[1]",
                               "TacticalConsole[2]",
                               "TacticalConsole[3]",
                               "TacticalConsole[4]",
                               "Help[0]",
                               "Close"});
        QTest::newRow("skills: the left column, then the right, then the buttons")
            << Opened::AlphaSkills
            << names("AlphaSkills", {"BeamSkillActivated",
                                     "BeamSkillLevel",
                                     "BeamOverloadActivated",
                                     "BeamOverloadLevel",
                                     "CannonSkillActivated",
                                     "CannonSkillSelected",
                                     "CannonSkillLevel",
                                     "TorpedoSkillActivated",
                                     "TorpedoSkillSelected",
                                     "TorpedoSkillLevel",
                                     "MineSkillActivated",
                                     "MineSkillSelected",
                                     "MineSkillLevel",
                                     "TacticalTeamLevel",
                                     "AttackPatternSelected",
                                     "AttackPatternLevel",
                                     "AttackPatternAlphaLevel",
                                     "Targets",
                                     "Help",
                                     "Close"});
        QTest::newRow("graph of two builds")
            << Opened::Graph << names("Graph", {"GraphMode", "Help", "DisplayOnUpdate"});
        QTest::newRow("manual") << Opened::Documentation << names("Documentation", {"ReadmeBox", "OK"});
        QTest::newRow("About") << Opened::About << names("About", {"License", "Readme", "Online", "OK"});
        QTest::newRow("warning") << Opened::Note << names("Note", {"WarningCheck", "Readme", "Close"});
    }

    void tabRunsDownEachColumn() {
        QFETCH(Opened, window);
        QFETCH(QStringList, order);
        QVERIFY(m_s->open(window));
        // A window opens on its first control, unless the mouse that set it
        // up left the focus elsewhere.
        if (window != Opened::Comparing && window != Opened::Customised) QCOMPARE(Focused(), order.first());
        m_s->find<QWidget>(QApplication::activeWindow(), order.first())->setFocus(Qt::TabFocusReason);
        // Tab goes round; Shift+Tab goes round the other way.
        QCOMPARE(tabbedRound(Qt::Key_Tab), order);
        QStringList back = order.mid(1);
        std::reverse(back.begin(), back.end());
        back.prepend(order.first());
        QCOMPARE(tabbedRound(Qt::Key_Backtab), back);
    }

    void enterAndSpacePressAFocusedButton_data() {
        QTest::addColumn<Opened>("window");
        QTest::addColumn<QString>("button");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("shows");
        QTest::addColumn<bool>("shown");
        QTest::newRow("Return opens the skills")
            << Opened::Main << "Form1.Skills[1]" << Qt::Key_Return << "AlphaSkills" << true;
        QTest::newRow("the keypad's Enter opens them")
            << Opened::Main << "Form1.Skills[1]" << Qt::Key_Enter << "AlphaSkills" << true;
        QTest::newRow("Space opens them")
            << Opened::Main << "Form1.Skills[1]" << Qt::Key_Space << "AlphaSkills" << true;
        QTest::newRow("Return on About") << Opened::Main << "Form1.ShowAbout" << Qt::Key_Return << "About" << true;
        QTest::newRow("Space closes the skills")
            << Opened::AlphaSkills << "AlphaSkills.Close" << Qt::Key_Space << "AlphaSkills" << false;
        QTest::newRow("Return closes the settings")
            << Opened::Alpha << "Alpha.Close" << Qt::Key_Return << "Alpha" << false;
        QTest::newRow("Return on the warning's Close")
            << Opened::Note << "Note.Close" << Qt::Key_Return << "Note" << false;
        QTest::newRow("Return on About's OK") << Opened::About << "About.OK" << Qt::Key_Return << "About" << false;
        QTest::newRow("Return on the manual's OK")
            << Opened::Documentation << "Documentation.OK" << Qt::Key_Return << "Documentation" << false;
    }

    void enterAndSpacePressAFocusedButton() {
        QFETCH(Opened, window);
        QFETCH(QString, button);
        QFETCH(Qt::Key, key);
        QFETCH(QString, shows);
        QFETCH(bool, shown);
        QWidget* w = m_s->open(window);
        QVERIFY(w);
        auto* b = m_s->find<QPushButton>(w, button);
        QVERIFY(b);
        b->setFocus(Qt::TabFocusReason);
        QCOMPARE(Focused(), button);
        Press(key);
        const ControlRegistry registry(*m_s->c);
        const ControlRef* form = registry.find(shows.toStdString());
        QVERIFY(form && form->form);
        QCOMPARE(form->form->visible(), shown);
        QWidget* onScreen = m_s->of(*form->form);
        QCOMPARE(onScreen && onScreen->isVisible(), shown);
    }

    // A row chosen by a key on the closed list is the same event as a
    // click on that row in the drop-down: two programs, one driven by the
    // key and one by the click, end up holding the same.
    void aKeyOnAListChoosesAsAClickDoes_data() {
        QTest::addColumn<Opened>("window");
        QTest::addColumn<QString>("list");
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Down on the ship class") << Opened::Main << "Form1.ShipClass[1]" << Qt::Key_Down;
        QTest::newRow("End on the ship class") << Opened::Main << "Form1.ShipClass[1]" << Qt::Key_End;
        QTest::newRow("a typed initial on the ship class") << Opened::Main << "Form1.ShipClass[1]" << Qt::Key_K;
        QTest::newRow("Up on the tier") << Opened::Main << "Form1.ShipTier[1]" << Qt::Key_Up;
        QTest::newRow("Down on a weapon port, a list with typing")
            << Opened::Main << "Form1.Forward[1]" << Qt::Key_Down;
        QTest::newRow("Page Down on the power level") << Opened::Main << "Form1.PowerLevel[1]" << Qt::Key_PageDown;
        QTest::newRow("Down on Omega's distance") << Opened::Comparing << "Form1.TargetDistance[2]" << Qt::Key_Down;
        QTest::newRow("Up on the rank") << Opened::Customised << "Alpha.Rank" << Qt::Key_Up;
        QTest::newRow("End on the weapon mark") << Opened::Customised << "Alpha.WeaponMark" << Qt::Key_End;
        QTest::newRow("Down on a console") << Opened::Customised << "Alpha.TacticalConsole[2]" << Qt::Key_Down;
        QTest::newRow("Down on a skill") << Opened::AlphaSkills << "AlphaSkills.CannonSkillSelected" << Qt::Key_Down;
        QTest::newRow("Down on the graph's mode") << Opened::Graph << "Graph.GraphMode" << Qt::Key_Down;
    }

    void aKeyOnAListChoosesAsAClickDoes() {
        QFETCH(Opened, window);
        QFETCH(QString, list);
        QFETCH(Qt::Key, key);
        QWidget* w = m_s->open(window);
        auto* byKey = m_s->find<QComboBox>(w, list);
        QVERIFY(byKey && byKey->isEnabled());
        // Clicked first, as the other program's list is: the page stays.
        byKey->setFocus(Qt::MouseFocusReason);
        const int before = byKey->currentIndex();
        Press(key);
        const ControlRegistry keyed(*m_s->c);
        const ControlRef* field = keyed.find(list.toStdString());
        QVERIFY(field);
        const int row = std::get<List*>(field->target)->index();
        QVERIFY2(row >= 0 && row != before, qPrintable(QStringLiteral("row %1 from %2").arg(row).arg(before)));

        Session clicked;
        ShowMainWindowAtStart(*clicked.c);
        QVERIFY(QTest::qWaitForWindowExposed(clicked.main()));
        auto* byClick = clicked.find<QComboBox>(clicked.open(window), list);
        QVERIFY(byClick);
        test::ChooseRow(byClick, row);
        const QStringList a = Snapshot(keyed);
        const QStringList b = Snapshot(ControlRegistry(*clicked.c));
        QCOMPARE(a.size(), b.size());
        for (int i = 0; i < a.size(); ++i)
            QCOMPARE(a[i], b[i]);
        QCOMPARE(test::Disagreements(*w, keyed, w->objectName().toStdString(),
                                     window == Opened::Graph ? test::kDrawnOnGraph : test::kDrawnOnMain),
                 QStringList());
    }

    void escapeClosesTheWindow_data() {
        QTest::addColumn<Opened>("window");
        QTest::addColumn<QString>("form");
        QTest::addColumn<bool>("closes");
        QTest::newRow("settings") << Opened::Alpha << "Alpha" << true;
        QTest::newRow("skills") << Opened::AlphaSkills << "AlphaSkills" << true;
        QTest::newRow("graph") << Opened::Graph << "Graph" << true;
        QTest::newRow("manual") << Opened::Documentation << "Documentation" << true;
        QTest::newRow("About") << Opened::About << "About" << true;
        QTest::newRow("warning") << Opened::Note << "Note" << true;
        QTest::newRow("not the main window") << Opened::Main << "Form1" << false;
    }

    void escapeClosesTheWindow() {
        QFETCH(Opened, window);
        QFETCH(QString, form);
        QFETCH(bool, closes);
        QWidget* w = m_s->open(window);
        QVERIFY(w && w->isVisible());
        const ControlRegistry registry(*m_s->c);
        const Window& field = *registry.find(form.toStdString())->form;
        Press(Qt::Key_Escape);
        QApplication::processEvents();
        QCOMPARE(field.visible(), !closes);
        QWidget* onScreen = m_s->of(field);
        QCOMPARE(onScreen && onScreen->isVisible(), !closes);
        // The warning let the windows it held go.
        QVERIFY(m_s->main()->isEnabled());
    }

    // Escape in an open drop-down closes the drop-down, not the window.
    void escapeInADropDownClosesOnlyIt() {
        QWidget* w = m_s->open(Opened::AlphaSkills);
        auto* list = m_s->find<QComboBox>(w, QStringLiteral("AlphaSkills.BeamSkillLevel"));
        list->setFocus(Qt::TabFocusReason);
        Press(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(list->view()->isVisible());
        QTest::keyClick(list->view(), Qt::Key_Escape);
        QVERIFY(!list->view()->isVisible());
        QVERIFY(w->isVisible() && m_s->c->skills[1].Form.visible());
        // Without a window manager nothing gives the window its activation
        // back from the closed drop-down; a desktop's does.
        w->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w));
        QCOMPARE(Focused(), QStringLiteral("AlphaSkills.BeamSkillLevel"));
        Press(Qt::Key_Escape);
        QVERIFY(!m_s->c->skills[1].Form.visible());
    }

    // On a screen lower than the settings page, the control that Tab
    // reaches is moved into view by the page's bar, as the user would move
    // it; so is one on a main window made smaller than its page.
    void theFocusedControlComesIntoView() {
        QWidget* alpha = m_s->open(Opened::Alpha);
        auto* bar = m_s->find<QScrollBar>(alpha, QStringLiteral("Alpha.VScroll1"));
        QVERIFY(bar && bar->isVisible());
        auto inView = [](const QWidget* window, const QString& name) {
            const QWidget* w = window->findChild<QWidget*>(name);
            return w && window->rect().contains(QRect(w->mapTo(window, QPoint(0, 0)), w->size()));
        };
        QCOMPARE(Focused(), QStringLiteral("Alpha.CharacterSettings"));
        QVERIFY(!inView(alpha, QStringLiteral("Alpha.Close")));
        Press(Qt::Key_Backtab);
        QCOMPARE(Focused(), QStringLiteral("Alpha.Close"));
        QVERIFY(inView(alpha, QStringLiteral("Alpha.Close")));
        QCOMPARE(bar->value(), m_s->c->Alpha().VScroll1.value());
        QVERIFY(bar->value() > 0);
        Press(Qt::Key_Tab);
        QVERIFY(inView(alpha, QStringLiteral("Alpha.CharacterSettings")));
        QVERIFY(m_s->c->Alpha().VScroll1.value() < bar->pageStep());
        // A click leaves the page where it is.
        const int at = bar->value();
        m_s->find<QWidget>(alpha, QStringLiteral("Alpha.Help[0]"))->setFocus(Qt::MouseFocusReason);
        QCOMPARE(m_s->c->Alpha().VScroll1.value(), at);

        // The main window pulled smaller than its page: both bars show.
        QWidget* main = m_s->open(Opened::Comparing);
        main->resize(main->width() / 2, main->height() / 2);
        QApplication::processEvents();
        QVERIFY(m_s->c->main.HScroll1.visible() && m_s->c->main.VScroll1.visible());
        const QWidget* client = static_cast<MainWindow*>(main)->centralWidget();
        for (const char* name : {"Form1.ShowAbout", "Form1.Advanced[2]", "Form1.ShipClass[1]"}) {
            m_s->find<QWidget>(main, QLatin1String(name))->setFocus(Qt::TabFocusReason);
            const QWidget* w = m_s->find<QWidget>(main, QLatin1String(name));
            const QRect at(w->mapTo(client, QPoint(0, 0)), w->size());
            const QRect view(0, 0,
                             client->width() - m_s->find<QWidget>(main, QStringLiteral("Form1.VScroll1"))->width(),
                             client->height() - m_s->find<QWidget>(main, QStringLiteral("Form1.HScroll1"))->height());
            QVERIFY2(view.contains(at), name);
        }
        QCOMPARE(test::Disagreements(*main, ControlRegistry(*m_s->c), "Form1"), QStringList());
    }

    // Typing inside a port's text keeps the caret where the user types.
    void typingInAListKeepsTheCaret() {
        m_s->open(Opened::Main);
        auto* port = m_s->find<QComboBox>(m_s->main(), QStringLiteral("Form1.Forward[1]"));
        port->setFocus(Qt::TabFocusReason);
        QLineEdit* edit = port->lineEdit();
        edit->setCursorPosition(7);
        QTest::keyClicks(edit, QStringLiteral("ab"));
        QCOMPARE(Q(m_s->c->main.Forward[1].text()), QStringLiteral("Forwardab Weapon Port 1"));
        QCOMPARE(edit->cursorPosition(), 9);
        QTest::keyClick(edit, Qt::Key_Backspace);
        QCOMPARE(edit->cursorPosition(), 8);
        QCOMPARE(Q(m_s->c->main.Forward[1].text()), QStringLiteral("Forwarda Weapon Port 1"));
    }

    // The manual and the licence are read with the keys.
    void theTextBoxesScrollWithTheKeys() {
        for (const auto& [opened, box] :
             {std::pair{Opened::Documentation, "Documentation.ReadmeBox"}, std::pair{Opened::About, "About.License"}}) {
            QWidget* w = m_s->open(opened);
            auto* text = m_s->find<QTextEdit>(w, QLatin1String(box));
            QVERIFY(text);
            text->setFocus(Qt::TabFocusReason);
            const int before = text->verticalScrollBar()->value();
            Press(Qt::Key_PageDown);
            QVERIFY2(text->verticalScrollBar()->value() > before, box);
            Press(Qt::Key_Escape);
            QApplication::processEvents();
        }
    }
};

int main(int argc, char* argv[]) {
    const test::VirtualScreen screen("Laptop", 1366, 768);
    QApplication app(argc, argv);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    KeyboardTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "keyboard_test.moc"
