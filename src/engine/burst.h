#pragma once

// The average damage of one burst: the torpedoes or mines of a side and one
// Beam Overload, after skills, critical hits, resistance and accuracy.

#include "engine/counting.h"
#include "engine/records.h"

#include <string>
#include <string_view>

namespace vantorel {

// Rounded to three decimals.
float CalculateBurst(Calculator& c, const BurstCounts& n, Vessel v);
// The burst box's tooltip: one entry for each kind that fires.
std::string BurstToolTip(Calculator& c, const BurstCounts& n, Vessel v);
// The factor of the activated torpedo skill on the vessel's torpedo type.
float GetTorpedoSkill(const Calculator& c, Vessel v);

// The two torpedo skills that share the skills window's Torpedo box.
enum class TorpedoSkill { HighYield, Spread };
// The damage factor of one torpedo of a skill at level 1 to 3 on a torpedo
// type ("Quantum", without the trailing blank). Tricobalt torpedoes, an
// unknown type and a level outside 1 to 3 give 1: no skill acts on them.
float TorpedoSkillFactor(std::string_view type, TorpedoSkill skill, int level);

} // namespace vantorel
