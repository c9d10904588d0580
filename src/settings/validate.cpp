#include "settings/validate.h"

#include "engine/numbers.h"

#include <cmath>

namespace vantorel {

namespace {

struct Limits {
    NumberBox box;
    double lowest;
    double highest;
    // Skill levels are whole: "7.5" is level 7 and stays as typed; the
    // target values are tested as they stand.
    bool wholePart;
    // A lone "-" stays, so that a negative number can be typed.
    bool keepsMinus;
};

constexpr Limits kLimits[] = {
    {NumberBox::WeaponSkill, 0, 9, true, false},        {NumberBox::CriticalSkill, 0, 9, true, false},
    {NumberBox::PowerSkill, 0, 9, true, false},         {NumberBox::BridgeOfficers, 0, 5, true, false},
    {NumberBox::EquipmentBonus, 0, 99, true, false},    {NumberBox::TargetDefense, -35, 100, false, true},
    {NumberBox::TargetResistance, 0, 999, false, true},
};

const Limits& LimitsOf(NumberBox box) {
    for (const Limits& l : kLimits)
        if (l.box == box) return l;
    return kLimits[0];
}

// Level 47 of a captain skill on Alpha is the switch that turns critical
// hits off: no limit applies to it.
constexpr double kCriticalSwitch = 47;

} // namespace

NumberBox PowerSkillBox(int i) {
    if (i == 4) return NumberBox::BridgeOfficers;
    if (i == 5) return NumberBox::EquipmentBonus;
    return NumberBox::PowerSkill;
}

std::optional<std::string> CorrectedText(NumberBox box, Vessel v, std::string_view text, bool enabled) {
    const Limits& l = LimitsOf(box);
    const std::optional<double> value = NumericValue(text);
    if (!value) {
        if (l.keepsMinus) {
            if (text == "-" || text.empty()) return std::nullopt;
            return std::string();
        }
        if (!enabled || text.empty()) return std::nullopt;
        return std::string();
    }
    const double tested = l.wholePart ? std::floor(*value) : *value;
    if (box == NumberBox::CriticalSkill && v == 1 && tested == kCriticalSwitch) return std::nullopt;
    if (tested > l.highest) return PlainText(l.highest);
    if (tested < l.lowest) return PlainText(l.lowest);
    return std::nullopt;
}

bool Validate(Text& box, NumberBox kind, Vessel v) {
    std::optional<std::string> corrected = CorrectedText(kind, v, box.text(), box.enabled());
    if (!corrected) return false;
    box.setText(std::move(*corrected));
    return true;
}

} // namespace vantorel
