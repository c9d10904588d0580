#include "settings/combat.h"

#include "engine/combat.h"
#include "engine/numbers.h"
#include "engine/selection.h"
#include "settings/paint.h"
#include "settings/validate.h"
#include "skills/skills.h"

namespace vantorel {

namespace {

constexpr const char* kDefaultResistance = "11.88";
constexpr const char* kDefaultDefense = "60";
constexpr const char* kItemHint = "Select Equipment Bonuses";
constexpr const char* kNoItemHint = "No Items Available";

// The rank value from which each captain skill can be trained, and from
// which the engines and consoles of the equipment list are available.
constexpr int kSkillFromRank[4] = {0, 1, 2, 3};
constexpr int kItemFromRank = 5;

// Attack patterns grow with these skills: both updates of the skills window.
void PatternUpdates(Calculator& c, Vessel v) {
    AttackPatternUpdate(c, v);
    AttackPatternAlphaUpdate(c, v);
}

void CloseSkill(Text& box, Label& label) {
    box.setEnabled(false);
    Paint(box, label, Shade::Inactive);
    box.setText("N/A");
}

void OpenSkill(Text& box, Label& label) {
    if (!IsNumeric(box.text())) box.setText("9");
    box.setEnabled(true);
    Paint(box, label, Shade::Active);
}

// The prompt of the equipment list is what the list shows while nothing is
// selected: a mirrored Omega shows the same.
void SetItemHint(Calculator& c, Vessel v, const char* hint) {
    c.settings[v].CriticalItem.setHint(hint);
    if (v == 1 && OmegaMirrorsAlpha(c)) c.Omega().CriticalItem.setHint(hint);
}

// Skill boxes 2 and 3 and the equipment list by rank. A mirrored Omega only
// closes: what opens there arrives as Alpha's copy.
void LimitByRank(Calculator& c, Vessel v, int r) {
    VesselSettings& s = c.settings[v];
    const bool keepOpen = v == 2 && OmegaMirrorsAlpha(c);
    for (int i = 2; i <= 3; ++i) {
        if (r < kSkillFromRank[i])
            CloseSkill(s.CriticalSkill[i], s.CriticalSkillLabel[i]);
        else if (!keepOpen)
            OpenSkill(s.CriticalSkill[i], s.CriticalSkillLabel[i]);
    }
    if (r < kItemFromRank) {
        s.CriticalItem.setEnabled(false);
        Paint(s.CriticalItem, Shade::Inactive);
        s.CriticalItem.setIndex(-1);
        SetItemHint(c, v, kNoItemHint);
    } else if (!keepOpen) {
        // The hint it had stays until a row is picked.
        s.CriticalItem.setEnabled(true);
        Paint(s.CriticalItem, Shade::Active);
    }
}

void PaintOutputs(VesselSettings& s, Shade shade) {
    Paint(s.CritH, s.CritHlabel, shade);
    Paint(s.CritD, s.CritDlabel, shade);
    Paint(s.DamageReduction, s.DamageReductionLabel, shade);
    Paint(s.HitRate, s.HitRateLabel, shade);
}

void OpenTarget(Text& box, Label& label, const char* fallback, bool testText) {
    if (testText && !IsNumeric(box.text())) box.setText(fallback);
    box.setEnabled(true);
    Paint(box, label, Shade::Active);
}

void CloseTarget(Text& box, Label& label, const char* fallback) {
    // Quiet first: the default text then runs no recalculation of its own.
    box.setEnabled(false);
    box.setText(fallback);
    Paint(box, label, Shade::Inactive);
}

void OpenSection(Calculator& c, Vessel v, int r) {
    VesselSettings& s = c.settings[v];
    OpenSkill(s.CriticalSkill[1], s.CriticalSkillLabel[1]);
    LimitByRank(c, v, r);
    // Alpha refills target boxes that hold no number; Omega's hold Alpha's
    // copies and open as they are.
    OpenTarget(s.TargetResistance, s.TargetResistanceLabel, kDefaultResistance, v == 1);
    OpenTarget(s.TargetDefense, s.TargetDefenseLabel, kDefaultDefense, v == 1);
    PaintOutputs(s, Shade::Active);
}

void CloseSection(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    for (int i = 1; i <= 3; ++i) {
        s.CriticalSkill[i].setEnabled(false);
        s.CriticalSkill[i].setText("");
        Paint(s.CriticalSkill[i], s.CriticalSkillLabel[i], Shade::Inactive);
    }
    CloseTarget(s.TargetResistance, s.TargetResistanceLabel, kDefaultResistance);
    CloseTarget(s.TargetDefense, s.TargetDefenseLabel, kDefaultDefense);
    PaintOutputs(s, Shade::Inactive);
    s.CriticalItem.setEnabled(false);
    s.CriticalItem.setIndex(-1);
    SetItemHint(c, v, kItemHint);
    Paint(s.CriticalItem, Shade::Inactive);
}

} // namespace

void CriticalControl(Calculator& c, Vessel v, int r) {
    if (c.settings[v].CriticalSettings.value() == 1) return;
    LimitByRank(c, v, r);
    ModifiedCritical(c, v);
}

void CriticalSettingsChanged(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    const bool mirrored = OmegaMirrorsAlpha(c);
    if (v == 2 && mirrored) return;
    if (v == 1 && mirrored) c.Omega().CriticalSettings.setValue(s.CriticalSettings.value());

    if (s.CriticalSettings.value() == 0)
        OpenSection(c, v, GetRank(c, v));
    else
        CloseSection(c, v);

    // Opening or closing the section changes the Attack Vectors level, the
    // target's defense and its resistance that the figures are made of, while
    // the boxes change quietly: every figure that reads them is worked out
    // again, accuracy first, since the critical figures read its excess.
    ModifiedAccuracy(c, v);
    ModifiedCritical(c, v);
    ModifiedResistance(c, v);
    PatternUpdates(c, v);
    if (v == 1 && mirrored) {
        ModifiedAccuracy(c, 2);
        ModifiedCritical(c, 2);
        ModifiedResistance(c, 2);
        PatternUpdates(c, 2);
    }
}

void CriticalSkillChanged(Calculator& c, Vessel v, int i) {
    VesselSettings& s = c.settings[v];
    Text& box = s.CriticalSkill[i];
    if (Validate(box, NumberBox::CriticalSkill, v)) return;
    // Only Attack Vectors feeds accuracy.
    auto recalculate = [&c, i](Vessel w) {
        if (i == 1) ModifiedAccuracy(c, w);
        ModifiedCritical(c, w);
        PatternUpdates(c, w);
    };
    if (box.enabled()) recalculate(v);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().CriticalSkill[i].setText(box.text());
        if (box.enabled()) recalculate(2);
    }
}

void CriticalItemChanged(Calculator& c, Vessel v) {
    List& item = c.settings[v].CriticalItem;
    if (item.enabled()) {
        ModifiedCritical(c, v);
        PatternUpdates(c, v);
    }
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        List& copy = c.Omega().CriticalItem;
        copy.setIndex(item.index());
        copy.setHint(item.hint());
        if (item.enabled()) {
            ModifiedCritical(c, 2);
            PatternUpdates(c, 2);
        }
    }
}

void DamageResistanceChanged(Calculator& c, Vessel v) {
    Flag& box = c.settings[v].DamageResistance;
    if (box.enabled()) {
        ModifiedResistance(c, v);
        AttackPatternUpdate(c, v);
    }
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().DamageResistance.setValue(box.value());
        ModifiedResistance(c, 2);
        AttackPatternUpdate(c, 2);
    }
}

void AccuracyChanged(Calculator& c, Vessel v) {
    Flag& box = c.settings[v].Accuracy;
    if (box.enabled()) ModifiedAccuracy(c, v);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().Accuracy.setValue(box.value());
        if (box.enabled()) ModifiedAccuracy(c, 2);
    }
}

void TargetResistanceChanged(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    Text& box = s.TargetResistance;
    if (Validate(box, NumberBox::TargetResistance, v)) return;
    if (v == 2) {
        if (box.enabled()) ModifiedResistance(c, 2);
        return;
    }
    const bool counts = box.enabled() && s.DamageResistance.value() == 1;
    if (counts) ModifiedResistance(c, 1);
    if (OmegaMirrorsAlpha(c)) {
        c.Omega().TargetResistance.setText(box.text());
        if (counts) ModifiedResistance(c, 2);
    }
}

void TargetDefenseChanged(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    Text& box = s.TargetDefense;
    if (Validate(box, NumberBox::TargetDefense, v)) return;
    const bool counts = box.enabled() && s.Accuracy.value() == 1;
    if (counts) ModifiedAccuracy(c, v);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().TargetDefense.setText(box.text());
        if (counts) ModifiedAccuracy(c, 2);
    }
}

} // namespace vantorel
