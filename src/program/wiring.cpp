// Every field's handler, in one place: which event function a user's action
// on each control runs. Each window's wiring stands in a file of its own
// (wire_*.cpp).

#include "program/wiring.h"
#include "program/program.h"

#include "graph/graph.h"
#include "mainwindow/results.h"

namespace vantorel {

namespace {

void ShowResults(Calculator& c, const ArcRows& rows) {
    ShowArcResults(c, rows);
    GraphControl(c);
}

} // namespace

void WireHandlers(Calculator& c) {
    c.results.showArcs = ShowArcBoxes;
    c.results.showResults = ShowResults;
    WireMainWindow(c);
    WireSettingsWindows(c);
    WireSkillsWindows(c);
    WireGraphWindow(c);
    WireHelpWindows(c);
    WireNoteWindow(c);
}

} // namespace vantorel
