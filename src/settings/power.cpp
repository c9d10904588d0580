#include "settings/power.h"

#include "engine/modifiers.h"
#include "engine/numbers.h"
#include "engine/power.h"
#include "engine/selection.h"
#include "help/note.h"
#include "settings/paint.h"
#include "settings/placement.h"
#include "settings/validate.h"

namespace vantorel {

namespace {

// What each box holds when the section opens, and the rank value from which
// it can be trained (0: always).
struct PowerBox {
    const char* opened;
    int fromRank;
};
constexpr PowerBox kPowerBoxes[6] = {{"", 0}, {"7", 0}, {"9", 3}, {"9", 5}, {"0", 0}, {"0", 0}};

constexpr const char* kCaptainHint = "Select Captain Efficiency Trait";
constexpr const char* kBonusAtStart = "Current Power Bonus (100 Weapon Power)";

constexpr const char* kWarningTitle = "Warning- Extrapolated Power Settings Are Only Estimates!";
constexpr const char* kWarningText =
    "Extrapolate Additional Power Settings takes the five known power level results (35, 50, 75, 100, 125) and "
    "tries to predict the results at additional power levels using quartic regression.\n\n"
    "While this method should generally provide results that are in the right ballpark, it should be noted that "
    "THESE ARE ONLY ESTIMATES!  The results may not be accurate in all situations, particularly at power levels "
    "less than 50, when 6 or more weapons are equipped!\n\n"
    "For more information, please view the program documentation.";
constexpr Colour kWarningRed = 0x0000FF;

void CloseBox(Text& box, Label& label) {
    box.setEnabled(false);
    Paint(box, label, Shade::Inactive);
    box.setText("N/A");
}

void OpenSection(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    const int r = GetRank(c, v);
    for (int i = 1; i <= 5; ++i) {
        Text& box = s.PowerSkill[i];
        if (r < kPowerBoxes[i].fromRank) {
            Paint(box, Shade::Inactive);
            box.setEnabled(false);
            box.setText("N/A");
            PaintLabel(s.PowerSkillLabel[i], Shade::Inactive);
            continue;
        }
        Paint(box, s.PowerSkillLabel[i], Shade::Active);
        // Alpha starts the section afresh; a free Omega keeps the values it
        // holds, such as those copied from Alpha while it followed.
        if (v == 1 || !IsNumeric(box.text())) box.setText(kPowerBoxes[i].opened);
        box.setEnabled(true);
    }
    s.PowerCaptain.setEnabled(true);
    Paint(s.PowerCaptain, Shade::Active);
    s.WarpCore.setEnabled(true);
    Paint(s.PowerBonus, s.PowerBonusLabel, Shade::Active);
}

void CloseSection(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    for (int i = 1; i <= 5; ++i) {
        s.PowerSkill[i].setEnabled(false);
        Paint(s.PowerSkill[i], s.PowerSkillLabel[i], Shade::Inactive);
        s.PowerSkill[i].setText("");
    }
    s.PowerCaptain.setEnabled(false);
    Paint(s.PowerCaptain, Shade::Inactive);
    s.PowerCaptain.setIndex(-1);
    s.PowerCaptain.setHint(kCaptainHint);
    s.WarpCore.setEnabled(false);
    s.WarpCore.setValue(0);
    PaintLabel(s.PowerBonusLabel, Shade::Inactive);
    s.PowerBonusLabel.setCaption(kBonusAtStart);
    Paint(s.PowerBonus, Shade::Inactive);
    s.PowerBonus.setCaption("");
    if (v == 1 && OmegaMirrorsAlpha(c)) c.Omega().PowerBonus.setCaption("");
}

} // namespace

void PowerControl(Calculator& c, Vessel v, int r) {
    VesselSettings& s = c.settings[v];
    if (s.ExtrapolatePower.value() == 0) return;
    const bool keepOpen = v == 2 && OmegaMirrorsAlpha(c);
    for (int i = 2; i <= 3; ++i) {
        Text& box = s.PowerSkill[i];
        if (r < kPowerBoxes[i].fromRank) {
            CloseBox(box, s.PowerSkillLabel[i]);
        } else if (!keepOpen) {
            Paint(box, s.PowerSkillLabel[i], Shade::Active);
            if (!IsNumeric(box.text())) box.setText(kPowerBoxes[i].opened);
            box.setEnabled(true);
        }
    }
    CalculatePower(c, v, Rebuild::Always);
}

void ExtrapolatePowerChanged(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    const bool mirrored = OmegaMirrorsAlpha(c);
    if (v == 2 && mirrored) return;
    const int value = s.ExtrapolatePower.value();
    if (v == 1 && mirrored) c.Omega().ExtrapolatePower.setValue(value);

    if (value == 1)
        OpenSection(c, v);
    else
        CloseSection(c, v);

    CalculatePower(c, v, Rebuild::Always);
    ModifiedDPS(c, v);
    if (v == 1 && mirrored) {
        CalculatePower(c, 2, Rebuild::Always);
        ModifiedDPS(c, 2);
    }
    if (value == 1 && !c.state.SuppressPowerWarning) RaisePowerWarning(c, v);
}

void PowerSkillChanged(Calculator& c, Vessel v, int i) {
    Text& box = c.settings[v].PowerSkill[i];
    if (Validate(box, PowerSkillBox(i), v)) return;
    if (box.enabled()) CalculatePower(c, v, Rebuild::Always);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().PowerSkill[i].setText(box.text());
        if (box.enabled()) CalculatePower(c, 2, Rebuild::Always);
    }
}

void PowerCaptainChanged(Calculator& c, Vessel v) {
    List& list = c.settings[v].PowerCaptain;
    if (list.enabled()) CalculatePower(c, v, Rebuild::Always);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().PowerCaptain.setIndex(list.index());
        if (list.enabled()) CalculatePower(c, 2, Rebuild::Always);
    }
}

void WarpCoreChanged(Calculator& c, Vessel v) {
    Flag& box = c.settings[v].WarpCore;
    if (box.enabled()) CalculatePower(c, v, Rebuild::Always);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().WarpCore.setValue(box.value());
        if (box.enabled()) CalculatePower(c, 2, Rebuild::Always);
    }
}

void RaisePowerWarning(Calculator& c, Vessel v) {
    const Window& caller = c.settings[v].Form;
    NoteWindow& note = c.note;
    c.main.Form1.setEnabled(false);
    c.Alpha().Form.setEnabled(false);
    c.Omega().Form.setEnabled(false);

    // Ticked, the box means "once": its handler suppresses the next warning.
    // A box still ticked from the last warning is taken as ticked anew.
    if (note.WarningCheck.value() == 1)
        WarningCheckChanged(c);
    else
        note.WarningCheck.setValue(1);

    note.Form.setTitle(kWarningTitle);
    note.InfoText.setFore(kWarningRed);
    note.InfoText.setCaption(kWarningText);
    const NotePlace place =
        PlaceNote({caller.left(), caller.top(), caller.width(), caller.height()}, note.Form.width());
    note.Form.setLeft(place.left);
    note.Form.setTop(place.top);
    note.CallerCode = v == 1 ? 3 : 4;
    note.Form.setVisible(true);
}

} // namespace vantorel
