// The delay a user sees after choosing a weapon: one click on a row of a port
// list, through the whole program and the Qt main window, until every widget
// shows the new results and the window has painted them. Runs offscreen.

#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"

#include <QApplication>
#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace vantorel {
namespace {

// Alternates Form1.Forward[1] between a Beam Array and a Cannon: each click
// changes the arcs in use, so boxes appear and disappear as well as change.
void ChooseWeapon(benchmark::State& state) {
    Program calculator;
    MainWindow window(calculator);
    ShowMainWindowAtStart(calculator);
    QApplication::processEvents();

    List& port = calculator.main.Forward[1];
    const int rows[2] = {1, 2};
    int next = 0;
    for (auto _ : state) {
        // What the list widget's activation does.
        port.click(rows[next]);
        next ^= 1;
        // Painting is deferred to the event loop.
        QApplication::processEvents();
    }
}
BENCHMARK(ChooseWeapon)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace vantorel
