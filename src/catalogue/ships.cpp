#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
std::vector<std::string> ClassRows(const Calculator&, Vessel) { return {}; }
Ports ShipPorts(const Calculator&, Vessel) { return {4, 4, 1}; }
int ConsoleSlots(const Calculator&, Vessel) { return 4; }
std::vector<std::string> TierRows(const std::string&, int) { return {}; }
std::vector<std::string> SubclassRows(const std::string&, int, int) { return {}; }
std::string LoreText(int, int) { return {}; }

} // namespace vantorel
