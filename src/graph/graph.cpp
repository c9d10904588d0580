#include "graph/graph.h"

namespace vantorel {

namespace {

// The window as it is made: the standard graph, the key free to show.
void NewGraphWindow(GraphWindow& g) {
    g.GraphMode.setIndex(0);
    g.KeyShown = true;
    g.HideKey.setCaption("Hide");
    g.HideKey.setWidth(555);
    g.HideKey.setHeight(200);
    g.DisplayOnUpdate.setValue(0);
}

} // namespace

void CloseGraph(Calculator& c) {
    GraphWindow& g = c.graph;
    g.Form.setVisible(false);
    c.main.GraphResults.setCaption("Graph Results");
    NewGraphWindow(g);
}

void GraphResultsClicked(Calculator& c) {
    GraphWindow& g = c.graph;
    if (g.Form.visible()) {
        CloseGraph(c);
        return;
    }
    NewGraphWindow(g);
    DisplayGraph(c);
    g.Form.setVisible(true);
    GraphControl(c);
    c.main.GraphResults.setCaption("Hide Graph");
}

} // namespace vantorel
