// What a player of the settings windows waits for, through the Qt windows
// on a virtual screen: a digit typed into a skill box, through validation,
// the recalculation and every widget that shows a changed field; and the
// first show of a settings window, from nothing to its first paint.
//
// The build is a heavy one: two compared vessels with eight weapons each,
// custom weapons and combat settings, both settings windows open, Omega
// following Alpha, so a change on Alpha is worked out for both.

#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "program/view/windows.h"
#include "settings/view/settingswindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <memory>

namespace vantorel {
namespace {

void Fit(Indexed<List, 1, 4>& forward, Indexed<List, 1, 4>& rear, const char* const f[4], const char* const r[4]) {
    for (int i = 1; i <= 4; ++i) {
        forward[i].setText(f[i - 1]);
        rear[i].setText(r[i - 1]);
    }
}

struct Session {
    Program c;
    ProgramWindows windows{c};

    Session() {
        ShowMainWindowAtStart(c);
        MainSelection& m = c.main;
        const char* const forward[4] = {"Dual Heavy Cannons", "Dual Beam Bank", "Beam Array",
                                        "Quantum Torpedo Launcher"};
        const char* const rear[4] = {"Beam Array", "Turret", "Turret", "Quantum Mine Launcher"};
        m.Compare.press();
        Fit(m.Forward, m.Rear, forward, rear);
        Fit(m.CForward, m.CRear, forward, rear);
        m.Advanced[1].press();
        m.Advanced[2].press();
        VesselSettings& a = c.Alpha();
        a.RelativeDPS.setValue(0);
        a.CriticalSettings.setValue(0);
        a.Accuracy.setValue(1);
        a.DamageResistance.setValue(1);
        a.TacticalConsole[1].setIndex(1);
        QApplication::processEvents();
    }
};

// A key typed into the focused box, as the keyboard delivers it.
void Type(QLineEdit* box, const QString& digit) {
    box->selectAll();
    QKeyEvent press(QEvent::KeyPress, digit.at(0).unicode(), Qt::NoModifier, digit);
    QApplication::sendEvent(box, &press);
}

void TypedSkillToUpdatedWidgets(benchmark::State& state) {
    Session s;
    QWidget* alpha = s.windows.widgetOf(s.c.Alpha().Form);
    auto* box = alpha->findChild<QLineEdit*>(QStringLiteral("Alpha.WeaponSkill[2]"));
    if (!box || !box->isEnabled()) {
        state.SkipWithError("no open skill box");
        return;
    }
    box->setFocus();
    int n = 0;
    for (auto _ : state) {
        // "15" would be corrected to "9", so every other value runs the
        // handler twice.
        Type(box, (++n % 2) ? QStringLiteral("6") : QStringLiteral("8"));
        benchmark::DoNotOptimize(s.c.state.ArcDPS[0][2]);
    }
    if (box->text() != QStringLiteral("8") && box->text() != QStringLiteral("6")) state.SkipWithError("not typed");
}
BENCHMARK(TypedSkillToUpdatedWidgets)->Unit(benchmark::kMicrosecond);

void TypedValueCorrectedInTheBox(benchmark::State& state) {
    Session s;
    QWidget* alpha = s.windows.widgetOf(s.c.Alpha().Form);
    auto* box = alpha->findChild<QLineEdit*>(QStringLiteral("Alpha.TargetResistance"));
    box->setFocus();
    for (auto _ : state) {
        // Typed after a "9" selected as a whole: "-" then "-5", which the box
        // brings to "0".
        box->setText(QStringLiteral("-"));
        Type(box, QStringLiteral("9"));
        box->end(false);
        QKeyEvent minus(QEvent::KeyPress, Qt::Key_Minus, Qt::NoModifier, QStringLiteral("-"));
        box->selectAll();
        QApplication::sendEvent(box, &minus);
        QKeyEvent five(QEvent::KeyPress, Qt::Key_5, Qt::NoModifier, QStringLiteral("5"));
        QApplication::sendEvent(box, &five);
        benchmark::DoNotOptimize(s.c.state.ResistanceFactor[2]);
    }
    if (box->text() != QStringLiteral("0")) state.SkipWithError("not corrected");
}
BENCHMARK(TypedValueCorrectedInTheBox)->Unit(benchmark::kMicrosecond);

// The window is made when the player first opens it: its controls, their
// bindings, and the first paint.
void FirstShowOfASettingsWindow(benchmark::State& state) {
    Program c;
    MainWindow main(c);
    ShowMainWindowAtStart(c);
    c.Alpha().RelativeDPS.setValue(0);
    QApplication::processEvents();
    for (auto _ : state) {
        auto window = std::make_unique<SettingsWindowView>(c, 1);
        c.Alpha().Form.setVisible(true);
        window->repaint();
        benchmark::DoNotOptimize(window.get());
        state.PauseTiming();
        c.Alpha().Form.setVisible(false);
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(FirstShowOfASettingsWindow)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vantorel
