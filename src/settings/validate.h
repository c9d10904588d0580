#pragma once

// The one validation of every number box of the settings windows. A box's
// handler validates its text before any recalculation; a text out of range is
// replaced by the limit it passed, and that replacement runs the handler
// again on the new text.

#include "engine/records.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

// The kinds of number box, by their limits.
enum class NumberBox {
    WeaponSkill,      // WeaponSkill[1..8]
    CriticalSkill,    // CriticalSkill[1..3]
    PowerSkill,       // PowerSkill[1..3]
    BridgeOfficers,   // PowerSkill[4]
    EquipmentBonus,   // PowerSkill[5]
    TargetDefense,    // TargetDefense
    TargetResistance, // TargetResistance
};

NumberBox PowerSkillBox(int i);

// What the box must hold instead of `text`, or nothing if the text stays
// exactly as typed. `enabled` is the box's state: a disabled skill box keeps
// a text that is not a number ("N/A").
std::optional<std::string> CorrectedText(NumberBox box, Vessel v, std::string_view text, bool enabled);

// Validates the box on its window. True if its text was replaced: the
// handler has then run again on the new text, which did the rest, and the
// calling handler stops.
bool Validate(Text& box, NumberBox kind, Vessel v);

} // namespace vantorel
