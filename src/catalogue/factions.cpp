#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
int IsUnrestricted(const Calculator&, Vessel) { return 1; }
int GetFaction(const Calculator&, Vessel) { return 0; }
int GetRank(const Calculator&, Vessel) { return 100; }
std::string GetClass(const Calculator&, Vessel) { return "Unrestricted"; }
int GetTier(const Calculator&, Vessel) { return 5; }
int GetSubclass(const Calculator&, Vessel) { return 0; }

} // namespace vantorel
