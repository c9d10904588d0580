#include "engine/registry.h"

namespace vantorel {

void RegisterFields(FieldTable& table, CalculatorState& s) {
    FieldNames b(table, "State", nullptr);
    b.one("Comparing", s.Comparing);
    b.one("SuppressPowerWarning", s.SuppressPowerWarning);
    b.one("WindowFitted", s.WindowFitted);
    b.array("SingleWeaponDPW", s.SingleWeaponDPW);

    // Only kinds 1..6, counts 2..8 and terms 1..5 hold curves; the rest of
    // the C array is the unused base of the program's index ranges.
    for (int kind = 1; kind <= 6; ++kind) {
        for (int count = 2; count <= 8; ++count) {
            for (int k = 1; k <= 5; ++k) {
                b.named("State.DPWCoefficient",
                        "[" + std::to_string(kind) + "," + std::to_string(count) + "," + std::to_string(k) + "]",
                        s.DPWCoefficient[kind][count][k]);
            }
        }
    }

    b.rowsByVessel("WeaponCount", s.WeaponCount);
    b.rowsByVessel("ArcDPS", s.ArcDPS);
    b.array("ArcShown", s.ArcShown);
    b.array("BeamModifier", s.BeamModifier);
    b.array("CannonModifier", s.CannonModifier);
    b.array("TorpedoDamage", s.TorpedoDamage);
    b.array("MineDamage", s.MineDamage);
    b.array("ResistanceFactor", s.ResistanceFactor);
    b.array("AccuracyFactor", s.AccuracyFactor);
    b.array("ExcessAccuracy", s.ExcessAccuracy);
    b.array("ShipPowerBonus", s.ShipPowerBonus);
    b.array("SkillTargets", s.SkillTargets);
    b.array("TorpedoHighYield", s.TorpedoHighYield);
    b.array("TorpedoSpread", s.TorpedoSpread);
    b.array("MineSkill", s.MineSkill);
    b.array("BeamOverload", s.BeamOverload);
    b.array("RapidFire", s.RapidFire);
    b.array("ScatterVolley", s.ScatterVolley);
    b.array("BeamSkill", s.BeamSkill);
    b.array("TacticalTeam", s.TacticalTeam);
    b.array("AttackPatternBeta", s.AttackPatternBeta);
    b.array("AttackPatternAlpha", s.AttackPatternAlpha);
    b.array("AttackPatternOmega", s.AttackPatternOmega);
}

std::string_view KindName(ValueKind kind) {
    switch (kind) {
    case ValueKind::Window:
        return "window";
    case ValueKind::Control:
        return "page";
    case ValueKind::Flag:
        return "check box";
    case ValueKind::Text:
        return "text box";
    case ValueKind::List:
        return "list";
    case ValueKind::Label:
        return "label";
    case ValueKind::Button:
        return "button";
    case ValueKind::Picture:
        return "picture";
    case ValueKind::Line:
        return "line";
    case ValueKind::ScrollBar:
        return "scroll bar";
    case ValueKind::String:
        return "text value";
    case ValueKind::Int:
    case ValueKind::Int16:
    case ValueKind::Single:
    case ValueKind::Double:
    case ValueKind::Bool:
        return "engine value";
    }
    return "value";
}

std::string NormalName(std::string_view name) {
    std::string out;
    out.reserve(name.size());
    int depth = 0;
    for (char ch : name) {
        if (ch == '[') ++depth;
        if (ch == ']' && depth > 0) --depth;
        if (depth > 0 && (ch == ' ' || ch == '\t')) continue;
        out.push_back(ch);
    }
    return out;
}

} // namespace vantorel
