#include "program/wiring.h"

#include "graph/graph.h"
#include "graph/key.h"
#include "help/help.h"

namespace vantorel {

void WireGraphWindow(Calculator& c) {
    Calculator* calc = &c;
    GraphWindow& g = c.graph;
    g.Form.setHandler([calc] { CloseGraph(*calc); });
    g.GraphMode.setHandler([calc] { GraphControl(*calc); });
    g.Help.setHandler(
        [calc] { DisplayDocumentation(*calc, HelpCaller::Graph, HelpPosition(ManualSection::GraphWindow)); });
    g.HideKey.setHandler([calc] { HideKeyClicked(*calc); });
}

} // namespace vantorel
