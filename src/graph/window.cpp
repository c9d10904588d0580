#include "graph/window.h"

namespace vantorel {

void SetUpGraphWindow(GraphWindow& g) { g.Form = Window("DPS Graph"); }

void RegisterFields(FieldTable& table, GraphWindow& g) {
    FieldNames b(table, "Graph", &g.Form);
    b.window(g.Form);
}

} // namespace vantorel
