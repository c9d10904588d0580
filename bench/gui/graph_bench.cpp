// The cost of one graph redraw after a change of build: the recalculation
// that every change ends in, the graph's model (lines, scale, titles, key),
// and the painting of the window. Measured on two compared vessels with a
// full loadout each, in every mode; the comparisons work out eighteen more
// rows of DPS per redraw. The paint is the whole window rendered into an
// image of its size, as a repaint of it would be.

#include "graph/graph.h"
#include "graph/view/graphplot.h"
#include "graph/view/graphwindow.h"
#include "mainwindow/layout.h"
#include "program/program.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <memory>

namespace vantorel {
namespace {

void Ports(Indexed<List, 1, 4>& ports, const char* const (&texts)[4]) {
    for (int i = 1; i <= 4; ++i)
        ports[i].setText(texts[i - 1]);
}

// Two builds side by side; the graph window open in `mode`.
struct Open {
    Program c;
    std::unique_ptr<GraphWindowView> view;
    QImage image;

    explicit Open(int mode, bool graphOpen = true) {
        c.workWidth = 40000;
        ShowMainWindowAtStart(c);
        c.main.Compare.press();
        Ports(c.main.Forward, {"Dual Heavy Cannons", "Dual Beam Bank", "Beam Array", "Cannon"});
        Ports(c.main.Rear, {"Beam Array", "Turret", "Turret", "Mine Launcher"});
        Ports(c.main.CForward, {"Dual Beam Bank", "Beam Array", "Beam Array", "Torpedo Launcher"});
        Ports(c.main.CRear, {"Beam Array", "Beam Array", "Beam Array", "Turret"});
        view = std::make_unique<GraphWindowView>(c);
        if (graphOpen) c.main.GraphResults.press();
        c.graph.GraphMode.click(mode);
        image = QImage(view->size(), QImage::Format_ARGB32_Premultiplied);
    }

    // A user's change of a port: one weapon for another.
    void changeBuild(int round) {
        List& port = c.main.Forward[2];
        port.setText(round % 2 ? "Dual Beam Bank" : "Cannon");
        port.click(port.index());
    }

    void paint() {
        QPainter painter(&image);
        view->render(&painter);
    }
};

// The baseline: the same change with the graph closed.
void ChangeWithGraphClosed(benchmark::State& state) {
    Open o(0, false);
    int round = 0;
    for (auto _ : state)
        o.changeBuild(++round);
}
BENCHMARK(ChangeWithGraphClosed)->Unit(benchmark::kMicrosecond);

// The change with the graph open: recalculation and the graph's model.
void ChangeAndModel(benchmark::State& state) {
    Open o(static_cast<int>(state.range(0)));
    int round = 0;
    for (auto _ : state)
        o.changeBuild(++round);
}
BENCHMARK(ChangeAndModel)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

// The graph's model alone, as GraphControl redraws it.
void ModelOnly(benchmark::State& state) {
    Open o(static_cast<int>(state.range(0)));
    for (auto _ : state)
        GraphControl(o.c);
}
BENCHMARK(ModelOnly)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

// The painting of the whole window: plot, captions, list and buttons.
void PaintOnly(benchmark::State& state) {
    Open o(static_cast<int>(state.range(0)));
    for (auto _ : state)
        o.paint();
}
BENCHMARK(PaintOnly)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

// One redraw as the window system sees it: the change, then the event loop
// repaints what the change made dirty into the window's backing store.
void RedrawOnScreen(benchmark::State& state) {
    Open o(static_cast<int>(state.range(0)));
    int round = 0;
    for (auto _ : state) {
        o.changeBuild(++round);
        QApplication::processEvents();
    }
}
BENCHMARK(RedrawOnScreen)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

// One redraw, the whole window painted: change, model and paint.
void Redraw(benchmark::State& state) {
    Open o(static_cast<int>(state.range(0)));
    int round = 0;
    for (auto _ : state) {
        o.changeBuild(++round);
        o.paint();
    }
}
BENCHMARK(Redraw)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace vantorel
