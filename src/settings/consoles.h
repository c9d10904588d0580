#pragma once

// The tactical consoles of the weapon section: four slots of console, mark
// and rarity, each equipped or not, and the match to the ship's console
// limit. The rarity rows tell the bonus each rarity gives at the chosen mark.

#include "engine/records.h"

#include <string>
#include <vector>

namespace vantorel {

// The rows of a console mark list at rank value r: "Max" and the marks.
std::vector<std::string> ConsoleMarkRows(int r);
// The rows of a rarity list for mark number m: each rarity with its bonus,
// as far as the bonus table reaches.
std::vector<std::string> ConsoleRarityRows(int m);

// Rebuilds the mark list of slot i for rank value r, keeping its row.
void RebuildConsoleMark(Calculator& c, Vessel v, int i, int r);

void TacticalConsoleChanged(Calculator& c, Vessel v, int i);
// Runs whatever the list's state: it rebuilds the slot's rarity rows.
void TacticalConsoleMarkChanged(Calculator& c, Vessel v, int i);
void TacticalConsoleRarityChanged(Calculator& c, Vessel v, int i);
void TacticalConsoleEquippedChanged(Calculator& c, Vessel v, int i);
void MatchConsoleChanged(Calculator& c, Vessel v);

} // namespace vantorel
