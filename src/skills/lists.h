#pragma once

// The texts of the skills windows' level lists that are worked out from the
// captain's skill, rank and torpedo type.

#include "engine/burst.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

// A row of AttackPatternLevel for Attack Pattern Omega at level 1 to 3:
// "1 (Target: +17.7% Base Damage Strength)" for a skill of 18.
std::string AttackPatternLevelRow(int level, double skill);

// What Attack Pattern Alpha's version `level` ("1", "2", "3") gives at an
// attack pattern skill: "+26.6% Base Dmg, +1.8% Crit H, +17.8% Crit D".
// Version 1 counts at most 48 points of skill.
std::string AttackPatternAlphaDescription(int level, double skill);

// The versions of Attack Pattern Alpha that a captain of the rank value (1
// to 7, 100 unrestricted) can have, and how the window shows them.
struct AttackPatternAlphaVersions {
    std::vector<std::string> rows;
    std::string caption; // of the check box; names the version when it is the only one
    bool listShown = true;
    bool keepsSelection = true; // the version chosen before stays chosen if offered
};
AttackPatternAlphaVersions AttackPatternAlphaVersionsFor(int rank);

// A row of TorpedoSkillLevel for a torpedo type ("Quantum"):
// "2 (258% Torpedo Damage)", "1 (189% Torpedo Damage, Max Targets: 2)".
std::string TorpedoLevelRow(std::string_view type, TorpedoSkill skill, int level);

// Text of a typed number of targets held to 1 to 10: "0" -> "1", "12" ->
// "10", any other text that is not a number -> "1". Empty if the text stands
// (a number within the limits, or no text at all).
std::string TargetsCorrection(std::string_view text);

} // namespace vantorel
