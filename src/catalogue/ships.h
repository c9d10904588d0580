#pragma once

// The ship catalogue: the class, tier and subclass rows each captain may
// choose, every ship's weapon ports and tactical console slots, and the lore
// of the historical vessels.

#include "engine/records.h"

#include <string>
#include <vector>

namespace vantorel {

// A ship's weapon ports, and which list of forward weapons it offers (1 all,
// 2 no dual cannons, 3 also shuttle beam arrays).
struct Ports {
    int forward = 0;
    int rear = 0;
    int list = 1;
};
// The rows of the vessel's class list for its captain.
std::vector<std::string> ClassRows(const Calculator& c, Vessel v);
Ports ShipPorts(const Calculator& c, Vessel v);
int ConsoleSlots(const Calculator& c, Vessel v);
// Tier rows of a class, at a level; the subclass rows of a class and tier.
std::vector<std::string> TierRows(const std::string& shipClass, int level);
std::vector<std::string> SubclassRows(const std::string& shipClass, int tier, int level);
// The lore text of a historical vessel ("" if none).
std::string LoreText(int tier, int row);

} // namespace vantorel
