#include "engine/registry.h"

#include <type_traits>

namespace vantorel {

namespace {

template <typename T> Control* CommonPart(T* p) {
    if constexpr (std::is_base_of_v<Control, T>) {
        return p;
    } else {
        return nullptr;
    }
}

// Adds the fields of one window (or of State) under one prefix.
class Builder {
  public:
    Builder(std::vector<ControlRef>& refs, std::string window, Window* form)
        : m_refs(refs), m_window(std::move(window)), m_form(form) {}

    template <typename T> void one(const char* field, T& value) { push(m_window + "." + field, {}, value); }

    template <typename T, int First, int Last> void array(const char* field, Indexed<T, First, Last>& values) {
        const std::string base = m_window + "." + field;
        for (int i = First; i <= Last; ++i)
            push(base, "[" + std::to_string(i) + "]", values[i]);
    }

    // Per-vessel arrays inside a per-row array: `ArcDPS[row,vessel]`.
    template <typename T, int First, int Last>
    void rowsByVessel(const char* field, Indexed<PerVessel<T>, First, Last>& values) {
        const std::string base = m_window + "." + field;
        for (int row = First; row <= Last; ++row) {
            for (int v = 1; v <= 2; ++v)
                push(base, "[" + std::to_string(row) + "," + std::to_string(v) + "]", values[row][v]);
        }
    }

    void window(Window& w) {
        ControlRef ref{m_window, m_window, m_window, &w, &w, &w};
        m_refs.push_back(std::move(ref));
    }

  private:
    template <typename T> void push(const std::string& base, const std::string& index, T& value) {
        ControlRef ref;
        ref.name = base + index;
        ref.window = m_window;
        ref.base = base;
        ref.target = &value;
        ref.control = CommonPart(&value);
        ref.form = ref.control ? m_form : nullptr;
        m_refs.push_back(std::move(ref));
    }

    std::vector<ControlRef>& m_refs;
    std::string m_window;
    Window* m_form;
};

void AddMain(std::vector<ControlRef>& refs, MainSelection& m) {
    Builder b(refs, "Form1", &m.Form1);
    b.window(m.Form1);
    b.one("Contents", m.Contents);
    b.array("Forward", m.Forward);
    b.array("Rear", m.Rear);
    b.array("CForward", m.CForward);
    b.array("CRear", m.CRear);
    b.array("ShipClass", m.ShipClass);
    b.array("ShipTier", m.ShipTier);
    b.array("ShipSubclass", m.ShipSubclass);
    b.array("PowerLevel", m.PowerLevel);
    b.array("TargetDistance", m.TargetDistance);
    b.array("ShuttleRank", m.ShuttleRank);
    b.array("ShuttleMod", m.ShuttleMod);
    b.one("Simplified", m.Simplified);
    b.array("ShipClasslabel", m.ShipClasslabel);
    b.array("ShipTierlabel", m.ShipTierlabel);
    b.array("ShipSubclassLabel", m.ShipSubclassLabel);
    b.array("PowerLevellabel", m.PowerLevellabel);
    b.array("TargetDistancelabel", m.TargetDistancelabel);
    b.array("ShuttleRankLabel", m.ShuttleRankLabel);
    b.one("ForwardWeaponlabel", m.ForwardWeaponlabel);
    b.one("CForwardWeaponlabel", m.CForwardWeaponlabel);
    b.one("RearWeaponlabel", m.RearWeaponlabel);
    b.one("CRearWeaponlabel", m.CRearWeaponlabel);
    b.one("Reset", m.Reset);
    b.one("CReset", m.CReset);
    b.array("Skills", m.Skills);
    b.array("Advanced", m.Advanced);
    b.one("GraphResults", m.GraphResults);
    b.one("Help", m.Help);
    b.one("ShowAbout", m.ShowAbout);
    b.one("Compare", m.Compare);
    b.one("HideCompare", m.HideCompare);
    b.one("Primarylabel", m.Primarylabel);
    b.one("Secondarylabel", m.Secondarylabel);
    b.one("Note", m.Note);
    b.one("FiringArcsLabel", m.FiringArcsLabel);
    b.array("FiringArcLabel", m.FiringArcLabel);
    b.array("FiringArcDPS", m.FiringArcDPS);
    b.array("CFiringArcLabel", m.CFiringArcLabel);
    b.array("CFiringArcDPS", m.CFiringArcDPS);
    b.array("FiringArc", m.FiringArc);
    b.array("CFiringArc", m.CFiringArc);
    b.one("AlphaImage", m.AlphaImage);
    b.one("OmegaImage", m.OmegaImage);
    b.one("Cline", m.Cline);
    b.array("ShipImageId", m.ShipImageId);
    b.one("HScroll1", m.HScroll1);
    b.one("VScroll1", m.VScroll1);
}

void AddSettings(std::vector<ControlRef>& refs, VesselSettings& s, const char* window) {
    Builder b(refs, window, &s.Form);
    b.window(s.Form);
    b.one("Close", s.Close);
    b.array("Help", s.Help);
    b.array("CopySettings", s.CopySettings);

    b.one("CharacterSettingsLabel", s.CharacterSettingsLabel);
    b.one("CharacterSettings", s.CharacterSettings);
    b.one("SameAsAlpha", s.SameAsAlpha);
    b.one("FactionLabel", s.FactionLabel);
    b.one("RankLabel", s.RankLabel);
    b.one("ClassLabel", s.ClassLabel);
    b.one("Faction", s.Faction);
    b.one("Rank", s.Rank);
    b.one("Class", s.Class);

    b.one("CriticalSettingsLabel", s.CriticalSettingsLabel);
    b.one("CriticalSettings", s.CriticalSettings);
    b.array("CriticalSkill", s.CriticalSkill);
    b.array("CriticalSkillLabel", s.CriticalSkillLabel);
    b.one("CriticalItem", s.CriticalItem);
    b.one("DamageResistance", s.DamageResistance);
    b.one("TargetResistance", s.TargetResistance);
    b.one("TargetResistanceLabel", s.TargetResistanceLabel);
    b.one("Accuracy", s.Accuracy);
    b.one("TargetDefense", s.TargetDefense);
    b.one("TargetDefenseLabel", s.TargetDefenseLabel);
    b.one("CritH", s.CritH);
    b.one("CritHlabel", s.CritHlabel);
    b.one("CritD", s.CritD);
    b.one("CritDlabel", s.CritDlabel);
    b.one("DamageReduction", s.DamageReduction);
    b.one("DamageReductionLabel", s.DamageReductionLabel);
    b.one("HitRate", s.HitRate);
    b.one("HitRateLabel", s.HitRateLabel);

    b.one("PowerSettings", s.PowerSettings);
    b.one("ExtrapolatePower", s.ExtrapolatePower);
    b.array("PowerSkill", s.PowerSkill);
    b.array("PowerSkillLabel", s.PowerSkillLabel);
    b.one("PowerCaptain", s.PowerCaptain);
    b.one("WarpCore", s.WarpCore);
    b.one("PowerBonus", s.PowerBonus);
    b.one("PowerBonusLabel", s.PowerBonusLabel);

    b.one("WeaponDamageLabel", s.WeaponDamageLabel);
    b.one("RelativeDPS", s.RelativeDPS);
    b.one("WeaponMarklabel", s.WeaponMarklabel);
    b.one("WeaponModLabel", s.WeaponModLabel);
    b.one("WeaponMark", s.WeaponMark);
    b.array("WeaponMod", s.WeaponMod);
    b.array("SkillLabel", s.SkillLabel);
    b.array("WeaponSkill", s.WeaponSkill);
    b.array("WeaponSkillLabel", s.WeaponSkillLabel);
    b.array("WeaponType", s.WeaponType);
    b.array("WeaponAccolade", s.WeaponAccolade);
    b.one("TacticalConsoleLabel", s.TacticalConsoleLabel);
    b.one("MatchConsole", s.MatchConsole);
    b.one("MatchConsoleLimit", s.MatchConsoleLimit);
    b.array("TacticalConsoleEquipped", s.TacticalConsoleEquipped);
    b.array("TacticalConsole", s.TacticalConsole);
    b.array("TacticalConsoleMark", s.TacticalConsoleMark);
    b.array("TacticalConsoleRarity", s.TacticalConsoleRarity);
    b.array("DisplayedDPSLabel", s.DisplayedDPSLabel);
    b.array("CalculatedWeaponDPS", s.CalculatedWeaponDPS);
    b.array("CalculatedWeaponDPSLabel", s.CalculatedWeaponDPSLabel);

    b.one("VScroll1", s.VScroll1);
}

void AddSkills(std::vector<ControlRef>& refs, VesselSkills& k, const char* window) {
    Builder b(refs, window, &k.Form);
    b.window(k.Form);
    b.one("BeamSkillActivated", k.BeamSkillActivated);
    b.one("BeamOverloadActivated", k.BeamOverloadActivated);
    b.one("CannonSkillActivated", k.CannonSkillActivated);
    b.one("MineSkillActivated", k.MineSkillActivated);
    b.one("TacticalTeamActivated", k.TacticalTeamActivated);
    b.one("TorpedoSkillActivated", k.TorpedoSkillActivated);
    b.one("AttackPatternActivated", k.AttackPatternActivated);
    b.one("AttackPatternAlpha", k.AttackPatternAlpha);
    b.one("BeamSkillLevel", k.BeamSkillLevel);
    b.one("BeamOverloadLevel", k.BeamOverloadLevel);
    b.one("CannonSkillSelected", k.CannonSkillSelected);
    b.one("CannonSkillLevel", k.CannonSkillLevel);
    b.one("MineSkillSelected", k.MineSkillSelected);
    b.one("MineSkillLevel", k.MineSkillLevel);
    b.one("TacticalTeamLevel", k.TacticalTeamLevel);
    b.one("TorpedoSkillSelected", k.TorpedoSkillSelected);
    b.one("TorpedoSkillLevel", k.TorpedoSkillLevel);
    b.one("AttackPatternSelected", k.AttackPatternSelected);
    b.one("AttackPatternLevel", k.AttackPatternLevel);
    b.one("AttackPatternAlphaLevel", k.AttackPatternAlphaLevel);
    b.one("AttackPatternAlphaDescription", k.AttackPatternAlphaDescription);
    b.one("Targets", k.Targets);
    b.one("TargetsLabel", k.TargetsLabel);
    b.one("Close", k.Close);
    b.one("Help", k.Help);
    b.one("SameAsAlpha", k.SameAsAlpha);
}

void AddState(std::vector<ControlRef>& refs, CalculatorState& s) {
    Builder b(refs, "State", nullptr);
    b.one("Comparing", s.Comparing);
    b.one("SuppressPowerWarning", s.SuppressPowerWarning);
    b.one("WindowFitted", s.WindowFitted);
    b.array("SingleWeaponDPW", s.SingleWeaponDPW);

    // Only kinds 1..6, counts 2..8 and terms 1..5 hold curves; the rest of
    // the C array is the unused base of the program's index ranges.
    for (int kind = 1; kind <= 6; ++kind) {
        for (int count = 2; count <= 8; ++count) {
            for (int k = 1; k <= 5; ++k) {
                ControlRef ref;
                ref.base = "State.DPWCoefficient";
                ref.name =
                    ref.base + "[" + std::to_string(kind) + "," + std::to_string(count) + "," + std::to_string(k) + "]";
                ref.window = "State";
                ref.target = &s.DPWCoefficient[kind][count][k];
                refs.push_back(std::move(ref));
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

} // namespace

ControlRegistry::ControlRegistry(Calculator& c) {
    AddMain(m_refs, c.main);
    AddSettings(m_refs, c.settings[1], "Alpha");
    AddSettings(m_refs, c.settings[2], "Omega");
    AddSkills(m_refs, c.skills[1], "AlphaSkills");
    AddSkills(m_refs, c.skills[2], "OmegaSkills");
    AddState(m_refs, c.state);

    m_byName.reserve(m_refs.size());
    for (std::size_t i = 0; i < m_refs.size(); ++i) {
        m_byName.emplace(m_refs[i].name, i);
        if (m_refs[i].base != m_refs[i].name) m_arrays.insert(m_refs[i].base);
    }
}

const ControlRef* ControlRegistry::find(std::string_view name) const {
    auto it = m_byName.find(NormalName(name));
    return it == m_byName.end() ? nullptr : &m_refs[it->second];
}

bool ControlRegistry::isArray(std::string_view base) const { return m_arrays.count(std::string(base)) != 0; }

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
