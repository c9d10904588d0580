#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
void ShipImageControl(Calculator&) {}
void DrawShip(Calculator&, const std::string&, int, int, const std::string&, int, int) {}
std::string ShipImageName(Calculator&, const std::string&, int, int) { return {}; }
void DecideCline(Calculator&) {}

} // namespace vantorel
