#include "engine/power.h"

#include "engine/dps.h"
#include "engine/modifiers.h"
#include "engine/numbers.h"
#include "engine/selection.h"

#include <algorithm>

namespace vantorel {

namespace {

bool IsTestedLevel(int p) { return p == 35 || p == 50 || p == 75 || p == 100 || p == 125; }

// The tested level nearest to an estimate, for a vessel that cannot read
// estimates off the curves.
int SnapToTested(int p) {
    if (p < 43) return 35;
    if (p < 63) return 50;
    if (p < 87) return 75;
    if (p < 113) return 100;
    return 125;
}

// The setting in a power row: the leading number of its first three
// characters ("100 (115) est." is setting 100). Every DPS reads it; three
// plain digits, the usual case, are read directly.
int SettingOfRow(const std::string& text) {
    const std::string_view head = std::string_view(text).substr(0, 3);
    int setting = 0;
    for (const char ch : head) {
        if (ch < '0' || ch > '9') return WholeNumber(LeadingValue(head));
        setting = setting * 10 + (ch - '0');
    }
    return head.empty() ? 0 : setting;
}

bool Extrapolates(const Calculator& c, Vessel v) { return c.settings[v].ExtrapolatePower.value() == 1; }

int Level(const Text& t) { return WholeNumberOf(t.text(), 0); }

// The terms of the power bonus, read from the vessel's power settings.
struct PowerTerms {
    double core = 0;
    double efficiency = 0;
    double performance = 0;
    double equipment = 0;
};

PowerTerms PowerTermsOf(const VesselSettings& set) {
    PowerTerms t;
    t.core = SkillPoints(1, Level(set.PowerSkill[1]));
    if (set.WarpCore.value() == 1) t.core += 10;
    t.efficiency = SkillPoints(3, Level(set.PowerSkill[2]));
    t.efficiency += 5 * NumericOr(set.PowerSkill[4].text(), 0.0);
    if (set.PowerCaptain.index() == 1) t.efficiency += 10;
    if (set.PowerCaptain.index() == 2) t.efficiency += 3.3;
    t.performance = SkillPoints(3, Level(set.PowerSkill[3]));
    t.equipment = NumericOr(set.PowerSkill[5].text(), 0.0);
    return t;
}

struct EffectiveShip {
    std::string shipClass;
    int subclass;
};

// Ships that borrow the power rule of another class.
EffectiveShip EffectiveClass(const std::string& shipClass, int tier, int subclass) {
    if (shipClass == "Federation Allied Vessel") {
        if (subclass == 0) return {"Escort", 0};
        if (subclass == 1) return {"Cruiser", 0};
        if (subclass == 2) return {"Science Vessel", 0};
        return {shipClass, subclass};
    }
    if (shipClass == "Klingon Science Vessel") {
        if (tier == 5) return {"Klingon Allied", 3};
        return {"Bird of Prey", 0};
    }
    if (shipClass == "Carrier" && tier < 5) return {"Bird of Prey", subclass};
    if (shipClass == "Allied Vessel" && tier < 5) {
        if (subclass == 0) return {"Raptor", subclass};
        if (subclass == 1) return {"Battle Cruiser", subclass};
        return {"Bird of Prey", subclass};
    }
    return {shipClass, subclass};
}

std::int16_t ShipBonusOf(const Calculator& c, Vessel v) {
    const int tier = GetTier(c, v);
    const EffectiveShip ship = EffectiveClass(GetClass(c, v), tier, GetSubclass(c, v));
    const std::string& k = ship.shipClass;
    if (k == "Cruiser" && tier > 1) return 5;
    if (k == "Allied Vessel" && ship.subclass == 1) return 5;
    if (k == "Carrier" && ship.subclass == 0) return 5;
    if (k == "Bird of Prey" || k == "Escort" || k == "Raptor") return 15;
    if (k == "Carrier" && ship.subclass == 1) return 10;
    if (k == "Allied Vessel" && ship.subclass == 0) return 10;
    if (k == "Battle Cruiser") return 10;
    return 0;
}

// Alpha reads estimates while Omega only has the tested curves: Omega then
// takes the tested level nearest to its estimate.
bool OmegaMustSnap(const Calculator& c) { return Extrapolates(c, 1) && !Extrapolates(c, 2); }

} // namespace

float PowerBonusAt(const Calculator& c, Vessel v, int setting) {
    if (!Extrapolates(c, v)) return 0.0f;
    const PowerTerms t = PowerTermsOf(c.settings[v]);
    const int low = std::max(75 - setting, 0);
    const double bonus =
        (t.performance * 3) / 16 + (t.efficiency / 300 + t.core / 200) * low + t.equipment + c.state.ShipPowerBonus[v];
    return static_cast<float>(bonus);
}

int GetPowerLevel(const Calculator& c, Vessel v, Bonus bonus) {
    const MainSelection& m = c.main;
    int p = 0;
    if (v == 1) {
        if (m.PowerLevel[1].index() >= 0) p = SettingOfRow(m.PowerLevel[1].text());
    } else if (c.state.Comparing != 0) {
        p = m.PowerLevel[2].index() < 1 ? SettingOfRow(m.PowerLevel[1].text()) : SettingOfRow(m.PowerLevel[2].text());
    }
    if (bonus == Bonus::With) {
        p = WholeNumber(static_cast<float>(p) + PowerBonusAt(c, v, p));
        if (v == 2 && OmegaMustSnap(c) && !IsTestedLevel(p)) p = SnapToTested(p);
    }
    return std::clamp(p, 35, 125);
}

void CalculatePower(Calculator& c, Vessel v, Rebuild when) {
    const bool force = when == Rebuild::Always;
    if (!Extrapolates(c, v) && !force) return;
    List& list = c.main.PowerLevel[v];
    const int setting = GetPowerLevel(c, v, Bonus::Without);

    if (!Extrapolates(c, v)) {
        const int before = list.index();
        list.clear();
        if (v == 2) UpdateSameAsAlphaPower(c);
        for (const char* row : {"35", "50", "75", "100", "125"})
            list.addItem(row);
        if (v == 2 && before == 0) {
            list.setIndex(0);
            return;
        }
        const int first = v == 2 ? 1 : 0;
        int pick;
        if (setting > 125)
            pick = list.count() - 1;
        else if (setting < 35)
            pick = 0;
        else
            pick = first + (setting < 43 ? 0 : setting < 63 ? 1 : setting < 87 ? 2 : setting < 113 ? 3 : 4);
        list.setIndex(pick);
        return;
    }

    const std::int16_t bonus = ShipBonusOf(c, v);
    if (bonus == c.state.ShipPowerBonus[v] && !force) return;
    c.state.ShipPowerBonus[v] = bonus;

    const int before = list.index();
    list.clear();
    if (v == 2) UpdateSameAsAlphaPower(c);
    for (int s = 25; s <= 100; s += 5) {
        const int level = std::min(WholeNumber(static_cast<float>(s) + PowerBonusAt(c, v, s)), 125);
        if (level < 35) continue;
        std::string row = std::to_string(s);
        if (level != s) row += " (" + std::to_string(level) + ")";
        if (!IsTestedLevel(level)) row += " est.";
        list.addItem(row);
    }

    if (v == 2 && before == 0) {
        list.setIndex(0);
    } else if (setting > 100) {
        list.setIndex(list.count() - 1);
    } else if (setting < 25) {
        list.setIndex(0);
    } else {
        for (int i = 1; i < list.count(); ++i) {
            const auto value = NumericValue(Trim(list.row(i).substr(0, 3)));
            if (value && WholeNumber(*value) == setting) {
                list.setIndex(i);
                ModifiedPower(c, v);
                return;
            }
        }
        list.setIndex(0);
    }
    ModifiedPower(c, v);
}

void UpdateSameAsAlphaPower(Calculator& c) {
    const int p1 = GetPowerLevel(c, 1, Bonus::Without);
    int p2 = std::clamp(WholeNumber(static_cast<float>(p1) + PowerBonusAt(c, 2, p1)), 35, 125);
    if (OmegaMustSnap(c) && !IsTestedLevel(p2)) p2 = SnapToTested(p2);

    std::string text = "Same As Alpha- " + std::to_string(p1);
    if (p2 != p1) text += " (" + std::to_string(p2) + ")";
    if (!IsTestedLevel(p2)) text += " est.";

    List& list = c.main.PowerLevel[2];
    if (list.index() < 0) {
        list.insertItem(text, 0);
        return;
    }
    const int selected = list.index();
    list.removeItem(0);
    list.insertItem(text, 0);
    list.setIndex(selected);
    ModifiedDPS(c, 2);
}

void ModifiedPower(Calculator& c, Vessel v) {
    VesselSettings& set = c.settings[v];
    const int p = GetPowerLevel(c, v, Bonus::Without);
    const int low = std::max(75 - p, 0);

    std::string tip = "Ship Power Bonus:" + SignedText(static_cast<int>(c.state.ShipPowerBonus[v]));
    // A piece keeps the type of its product: the skill points are singles, and
    // a single divided by a whole number stays single, so the three skill
    // pieces are singles ("1.27" where a double gives "1.28"); the pieces with
    // a fractional constant or a typed value are doubles.
    auto piece = [&tip](const std::string& name, auto amount) { tip += name + SignedText(Round(amount, 2)); };
    auto positive = [](const Text& t) {
        const auto value = NumericValue(t.text());
        return value && *value > 0;
    };

    if (positive(set.PowerSkill[1]))
        piece(", Warp Core Training:", SkillPoints(1, Level(set.PowerSkill[1])) / 200 * low);
    if (set.WarpCore.value() == 1) piece(",  Warp Theorist:", low * 0.05);
    if (positive(set.PowerSkill[2]))
        piece(",  Weapon Efficiency:", SkillPoints(3, Level(set.PowerSkill[2])) / 300 * low);
    if (set.PowerCaptain.index() == 1) piece(",  Efficient Captain:", low * 0.0333);
    if (set.PowerCaptain.index() == 2) piece(",  Joined Symbiote:", low * 0.011);
    if (positive(set.PowerSkill[4])) {
        const double officers = NumericOr(set.PowerSkill[4].text());
        piece(",  Efficient Bridge Officers (" + PlainText(officers) + "):", (officers * 5 / 300) * low);
    }
    if (positive(set.PowerSkill[3]))
        piece(",  Weapon Performance:", (SkillPoints(3, Level(set.PowerSkill[3])) * 3) / 16);
    if (positive(set.PowerSkill[5])) piece(",  Equipment Bonus:", NumericOr(set.PowerSkill[5].text()));

    const PowerTerms t = PowerTermsOf(set);
    const double total =
        (t.efficiency / 300 + t.core / 200) * low + (t.performance * 3) / 16 + t.equipment + c.state.ShipPowerBonus[v];
    set.PowerBonus.setCaption(PlainText(Round(total, 2)));
    set.PowerBonus.setTooltip(tip);
    set.PowerBonusLabel.setCaption("Current Power Bonus (" + std::to_string(p) + " Weapon Power)");
}

} // namespace vantorel
