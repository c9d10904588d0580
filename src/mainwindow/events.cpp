#include "engine/calculator.h"

namespace vantorel {

// Not yet built: answers that keep the rest running.
void PortClicked(Calculator&, Vessel, bool, int) {}
void ShipClassClicked(Calculator&, Vessel) {}
void ShipTierClicked(Calculator&, Vessel) {}
void ShipSubclassClicked(Calculator&, Vessel) {}
void PowerLevelClicked(Calculator&, Vessel) {}
void TargetDistanceClicked(Calculator&, Vessel) {}
void ShuttleRankClicked(Calculator&, Vessel) {}
void ShuttleModClicked(Calculator&, Vessel) {}
void SimplifiedClicked(Calculator&) {}
void ResetClicked(Calculator&, Vessel) {}
void ShowArcBoxes(Calculator&) {}
void ShuttleRankControls(Calculator&, Vessel) {}
void UpdateNote(Calculator&) {}

} // namespace vantorel
