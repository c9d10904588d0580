#include "graph/placement.h"

#include "engine/records.h"
#include "graph/graph.h"

#include <array>
#include <initializer_list>

namespace vantorel {

namespace {

ShownWindow RectOf(const Window& w) { return ShownWindow{w.left(), w.top(), w.width(), w.height(), w.visible()}; }

} // namespace

GraphPlacement PlaceGraph(const GraphPlacementInput& in) {
    const int gw = in.graphWidth;
    const int gh = in.graphHeight;
    const int wl = in.workLeft;
    const int wr = in.workRight;
    const int ml = in.main.left;
    const int mr = in.main.right();

    // The main window's top, unless the graph would reach below the work
    // area there.
    const int gt = gh + in.main.top > in.workBottom ? in.workBottom - gh : in.main.top;
    const int gb = gt + gh;

    std::array<bool, 8> taken{};
    const auto take = [&](std::initializer_list<int> places) {
        for (int p : places)
            taken[static_cast<std::size_t>(p)] = true;
    };
    if (mr + gw > wr) take({0, 2, 6});
    if (mr + gw > wr + kOffScreenTolerance) take({4});
    if (ml - gw < wl) take({1, 3, 7});
    if (ml - gw < wl - kOffScreenTolerance) take({5});

    for (const ShownWindow* w : {&in.alpha, &in.omega}) {
        // Only a settings window that shares rows with the graph is in its way.
        if (!w->visible || !(w->top < gb) || !(w->bottom() > gt)) continue;
        const int we = w->right();
        if (w->left < ml) {
            if (ml - gw < we) take({1});
            if (ml - gw < we - kOverlapTolerance) take({5});
            if (w->left - gw < wl) take({3});
            if (w->left - gw < wl - kOffScreenTolerance) take({7});
        } else if (we > mr) {
            if (mr + gw > w->left) take({0});
            if (mr + gw > w->left + kOverlapTolerance) take({4});
            if (we + gw > wr) take({2});
            if (we + gw > wr + kOffScreenTolerance) take({6});
        }
    }

    // Omega stands further out than Alpha where it is on show beside the
    // graph's present rows.
    const bool omegaBeside = in.omega.visible && in.omega.top < gb && in.omega.bottom() > in.graphTop;
    for (int p = 0; p < 8; ++p) {
        if (taken[static_cast<std::size_t>(p)]) continue;
        int left = 0;
        switch (p % 4) {
        case 0:
            left = mr;
            break;
        case 1:
            left = ml - gw;
            break;
        case 2:
            left = omegaBeside && in.omega.right() > in.alpha.right() ? in.omega.right() : in.alpha.right();
            break;
        default:
            left = (omegaBeside && in.omega.left < in.alpha.left ? in.omega.left : in.alpha.left) - gw;
            break;
        }
        return GraphPlacement{left, gt, p};
    }
    return GraphPlacement{wr - gw, in.workBottom - gh, -1};
}

void DisplayGraph(Calculator& c) {
    GraphWindow& g = c.graph;
    g.DisplayOnUpdate.setVisible(false);

    GraphPlacementInput in;
    in.workLeft = c.workLeft;
    in.workTop = c.workTop;
    in.workRight = c.workLeft + c.workWidth;
    in.workBottom = c.workTop + c.workHeight;
    in.main = RectOf(c.main.Form1);
    in.alpha = RectOf(c.Alpha().Form);
    in.omega = RectOf(c.Omega().Form);
    in.graphWidth = g.Form.width();
    in.graphHeight = g.Form.height();
    in.graphTop = g.Form.top();

    const GraphPlacement at = PlaceGraph(in);
    g.Form.setLeft(at.left);
    g.Form.setTop(at.top);
    // In the corner the graph lies over other windows: the player may want
    // it brought to the front on every update.
    if (at.corner()) g.DisplayOnUpdate.setVisible(true);
}

} // namespace vantorel
