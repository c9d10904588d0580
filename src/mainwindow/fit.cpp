#include "mainwindow/layout.h"

#include "graph/graph.h"
#include "settings/settings.h"

#include <algorithm>

namespace vantorel {

namespace {

void PlaceBar(ScrollBar& bar, const BarPlace& p) {
    bar.setLeft(p.left);
    bar.setTop(p.top);
    bar.setWidth(p.width);
    bar.setHeight(p.height);
    bar.setRange(p.maximum, p.smallStep, p.largeStep);
    // A value beyond the new end would leave the page where no bar position
    // can reach it; moving the bar moves the page with it.
    const int end = std::max(p.maximum, 0);
    if (bar.value() > end) bar.setValue(end);
    bar.setVisible(p.visible);
}

} // namespace

void FitWindow(Calculator& c) {
    MainSelection& m = c.main;
    Window& form = m.Form1;

    FitInput in;
    in.comparing = c.state.Comparing != 0;
    in.state = form.state();
    in.width = form.width();
    in.height = form.height();
    in.work = {c.workLeft, c.workTop, c.workWidth, c.workHeight};
    in.fitted = c.state.WindowFitted != 0;
    if (m.HScroll1.height() > 0) in.hBarHeight = m.HScroll1.height();
    if (m.VScroll1.width() > 0) in.vBarWidth = m.VScroll1.width();
    in.contentsHeight = m.Contents.height();
    const FitResult r = Fit(in);

    if (r.followers != Followers::Unchanged) {
        // The skills windows and the note stay as they are.
        const WindowState follow = r.followers == Followers::Minimised ? WindowState::Minimised : WindowState::Normal;
        for (Window* w : {&c.about.Form, &c.Alpha().Form, &c.documentation.Form, &c.graph.Form, &c.Omega().Form})
            w->setState(follow);
    }
    if (r.minimised) return;

    form.setState(r.state);
    form.setInnerSize(r.innerWidth, r.innerHeight);
    form.setWidth(r.width);
    form.setHeight(r.height);
    m.Contents.setWidth(r.contentsWidth);

    PlaceBar(m.HScroll1, r.hBar);
    PlaceBar(m.VScroll1, r.vBar);
    if (r.contentsToTop) {
        if (m.VScroll1.value() != 0) m.VScroll1.setValue(0);
        m.Contents.setTop(0);
    }
    if (r.contentsToLeft) {
        if (m.HScroll1.value() != 0) m.HScroll1.setValue(0);
        m.Contents.setLeft(0);
    }
    if (c.Alpha().Form.visible()) PositionAlpha(c);
    if (c.Omega().Form.visible()) PositionOmega(c);
    if (c.graph.Form.visible()) DisplayGraph(c);
    c.state.WindowFitted = -1;
}

} // namespace vantorel
