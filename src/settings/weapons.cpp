#include "settings/weapons.h"

#include "catalogue/cascade.h"
#include "engine/combat.h"
#include "engine/modifiers.h"
#include "engine/numbers.h"
#include "engine/selection.h"
#include "settings/consoles.h"
#include "settings/paint.h"
#include "settings/settings.h"
#include "settings/validate.h"
#include "skills/skills.h"

#include <algorithm>
#include <initializer_list>

namespace vantorel {

namespace {

constexpr const char* kRoman[13] = {"", "I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI", "XII"};
constexpr const char* kDisplayedAtStart = "Displayed DPS (100 Weapon Power)";

// Each rank step brings one new damage type of each group and two marks.
int TypesAtRank(int r) { return std::clamp(r, 1, 5) + 1; }
int MarksAtRank(int r) { return 2 * std::clamp(r, 1, 6); }

// The skill boxes 2, 3, 6 and 7 open at rank value 2; 1 and 5 always.
constexpr int kRankedSkills[4] = {2, 3, 6, 7};
constexpr int kRankedSkillsFrom = 2;

bool HasLabel(int i) { return i != 4 && i != 8; }

void Enable(std::initializer_list<Control*> controls) {
    for (Control* ctl : controls)
        ctl->setEnabled(true);
}
void Disable(std::initializer_list<Control*> controls) {
    for (Control* ctl : controls)
        ctl->setEnabled(false);
}

// In Omega, what opens here opens only while the window is its own.
bool MayOpen(const Calculator& c, Vessel v) { return v == 1 || !OmegaMirrorsAlpha(c); }

// Refills a type list with the rows the rank offers. A row the rank no
// longer offers falls back to `fallback`. The type's handler runs whatever
// the list's state, so its console rows and skill box follow.
void RebuildTypeList(Calculator& c, Vessel v, int k, int r, int fallback) {
    List& list = c.settings[v].WeaponType[k];
    list.setEnabled(false);
    int kept = list.index();
    list.clear();
    const std::vector<std::string>& rows = DamageTypeRows(k);
    for (int i = 0; i < TypesAtRank(r); ++i)
        list.addItem(rows[static_cast<std::size_t>(i)]);
    if (kept > list.count() - 1) kept = fallback;
    list.setIndex(kept);
    if (MayOpen(c, v)) list.setEnabled(true);
}

void RankedSkillBoxes(Calculator& c, Vessel v, int r) {
    VesselSettings& s = c.settings[v];
    for (int i : kRankedSkills)
        s.WeaponSkill[i].setEnabled(false);
    if (r < kRankedSkillsFrom) {
        for (int i : kRankedSkills) {
            Paint(s.WeaponSkill[i], s.WeaponSkillLabel[i], Shade::Inactive);
            s.WeaponSkill[i].setText("N/A");
        }
        return;
    }
    for (int i : kRankedSkills) {
        Paint(s.WeaponSkill[i], s.WeaponSkillLabel[i], Shade::Active);
        if (!IsNumeric(s.WeaponSkill[i].text())) s.WeaponSkill[i].setText("7");
    }
    for (int i : kRankedSkills)
        s.WeaponSkill[i].setEnabled(true);
}

void PatternUpdates(Calculator& c, Vessel v) {
    AttackPatternUpdate(c, v);
    AttackPatternAlphaUpdate(c, v);
}

// The section opens for custom damage. Alpha starts from the defaults; a free
// Omega keeps what copying or mirroring put there.
void Customise(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    const bool fresh = v == 1;
    const bool mirrored = OmegaMirrorsAlpha(c);

    Paint(s.WeaponMark, Shade::Active);
    if (fresh || s.WeaponMark.index() < 0) s.WeaponMark.setIndex(0);
    PaintLabels({&s.WeaponMarklabel, &s.TacticalConsoleLabel, &s.DisplayedDPSLabel[1], &s.DisplayedDPSLabel[2],
                 &s.WeaponModLabel},
                Shade::Active);
    for (int i = 1; i <= 3; ++i) {
        Paint(s.WeaponMod[i], Shade::Active);
        if (fresh || s.WeaponMod[i].index() == -1) s.WeaponMod[i].setIndex(0);
        s.WeaponMod[i].setEnabled(true);
    }
    Paint(s.WeaponType[1], Shade::Active);
    PaintLabels({&s.SkillLabel[1], &s.SkillLabel[2]}, Shade::Active);
    if (fresh || s.WeaponType[1].index() == -1) {
        const bool klingon = fresh ? c.Alpha().Faction.index() == 1 : GetFaction(c, 2) == 2;
        s.WeaponType[1].setIndex(klingon ? 1 : 0);
    }
    for (int i : {1, 5}) {
        Paint(s.WeaponSkill[i], s.WeaponSkillLabel[i], Shade::Active);
        if (fresh || !IsNumeric(s.WeaponSkill[i].text())) s.WeaponSkill[i].setText("7");
    }
    const int r = GetRank(c, v);
    WeaponControl(c, v, r);
    if (fresh && mirrored) WeaponControl(c, 2, r);
    for (int i = 1; i <= 4; ++i) {
        if (fresh || s.TacticalConsole[i].index() < 0) s.TacticalConsole[i].setIndex(0);
        if (fresh || s.TacticalConsoleEquipped[i].value() == 1) {
            Paint(s.TacticalConsole[i], Shade::Active);
            Paint(s.TacticalConsoleMark[i], Shade::Active);
            Paint(s.TacticalConsoleRarity[i], Shade::Active);
        }
    }
    for (int i = 1; i <= 7; ++i)
        Paint(s.CalculatedWeaponDPS[i], s.CalculatedWeaponDPSLabel[i], Shade::Active);
    Paint(s.MatchConsoleLimit, Shade::Active);
    Enable({&s.WeaponAccolade[1], &s.WeaponAccolade[2], &s.MatchConsole, &s.WeaponMark, &s.WeaponType[1],
            &s.WeaponSkill[1], &s.WeaponSkill[5]});
    for (int i = 1; i <= 4; ++i) {
        s.TacticalConsole[i].setEnabled(true);
        if (!fresh && s.MatchConsole.value() == 0) s.TacticalConsoleEquipped[i].setEnabled(true);
    }
    if (fresh) {
        PatternUpdates(c, 1);
        ShipControl(c);
        if (mirrored) PatternUpdates(c, 2);
    } else {
        PatternUpdates(c, 2);
        ShipControl(c);
    }
}

// Back to Relative DPS: the section closes and forgets its values.
void BackToRelative(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    Disable({&s.WeaponMark, &s.MatchConsole, &s.WeaponType[1], &s.WeaponAccolade[1], &s.WeaponAccolade[2]});
    // The accolades go back to checked while closed, where their handler
    // passes nothing on: a mirrored Omega takes the same values here.
    for (int i = 1; i <= 2; ++i) {
        s.WeaponAccolade[i].setValue(1);
        if (v == 1 && OmegaMirrorsAlpha(c)) c.Omega().WeaponAccolade[i].setValue(1);
    }

    PaintLabels({&s.WeaponModLabel, &s.WeaponMarklabel, &s.TacticalConsoleLabel, &s.DisplayedDPSLabel[1],
                 &s.DisplayedDPSLabel[2]},
                Shade::Inactive);
    Paint(s.WeaponMark, Shade::Inactive);
    s.WeaponMark.setIndex(-1);
    s.DisplayedDPSLabel[1].setCaption(kDisplayedAtStart);
    Paint(s.MatchConsoleLimit, Shade::Inactive);
    s.MatchConsoleLimit.setCaption("");

    Paint(s.WeaponType[1], Shade::Inactive);
    s.WeaponType[1].setIndex(-1);
    PaintLabels({&s.SkillLabel[1], &s.SkillLabel[2]}, Shade::Inactive);

    for (int i = 1; i <= 8; ++i) {
        s.WeaponSkill[i].setEnabled(false);
        Paint(s.WeaponSkill[i], Shade::Inactive);
        s.WeaponSkill[i].setText("");
        if (HasLabel(i)) PaintLabel(s.WeaponSkillLabel[i], Shade::Inactive);
        if (i <= 3) {
            s.WeaponMod[i].setEnabled(false);
            Paint(s.WeaponMod[i], Shade::Inactive);
            s.WeaponMod[i].setIndex(-1);
        }
        if (i <= 4) {
            // The whole slot closes; its mark and rarity keep their rows
            // until a console is chosen again.
            for (List* list : {&s.TacticalConsole[i], &s.TacticalConsoleMark[i], &s.TacticalConsoleRarity[i]}) {
                list->setEnabled(false);
                Paint(*list, Shade::Inactive);
            }
            s.TacticalConsoleEquipped[i].setEnabled(false);
            s.TacticalConsole[i].setIndex(-1);
            s.TacticalConsoleEquipped[i].setValue(0);
        }
        if (i <= 7) {
            Paint(s.CalculatedWeaponDPS[i], s.CalculatedWeaponDPSLabel[i], Shade::Inactive);
            s.CalculatedWeaponDPS[i].setCaption("");
        }
    }
    if (v == 1) {
        ResetModifier(c);
        PatternUpdates(c, 1);
        if (OmegaMirrorsAlpha(c)) PatternUpdates(c, 2);
    } else {
        PatternUpdates(c, 2);
        ResetModifier(c);
    }
    // The mods went quietly, their lists closed: the hit rate and the
    // critical figures that they fed are worked out again without them, or a
    // hit rate of a custom [Acc] would stay in Relative DPS.
    for (Vessel w = v; w <= 2; ++w) {
        if (w == 2 && v == 1 && !OmegaMirrorsAlpha(c)) break;
        ModifiedAccuracy(c, w);
        ModifiedCritical(c, w);
    }
}

} // namespace

const std::vector<std::string>& DamageTypeRows(int k) {
    static const std::vector<std::string> energy = {"Phaser Weapons",  "Disruptor Weapons", "Plasma Weapons",
                                                    "Tetryon Weapons", "Polaron Weapons",   "Antiproton Weapons"};
    static const std::vector<std::string> projectile = {"Photon Projectiles",      "Quantum Projectiles",
                                                        "Plasma Projectiles",      "Chroniton Projectiles",
                                                        "Transphasic Projectiles", "Tricobalt Projectiles"};
    return k == 1 ? energy : projectile;
}

std::vector<std::string> WeaponMarkRows(int r) {
    const int top = MarksAtRank(r);
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(top) + 2);
    rows.push_back(std::string("Mark ") + kRoman[top] + " (Max)");
    rows.push_back("Standard Issue");
    for (int m = 1; m <= top; ++m)
        rows.push_back(std::string("Mark ") + kRoman[m]);
    return rows;
}

void WeaponControl(Calculator& c, Vessel v, int r) {
    VesselSettings& s = c.settings[v];
    // A projectile type the rank does not reach falls back to Quantum.
    RebuildTypeList(c, v, 2, r, 1);
    if (s.RelativeDPS.value() == 1) return;

    // An energy type the rank does not reach falls back to the faction's
    // own, Disruptor for a Klingon captain; Alpha's faction decides for both.
    RebuildTypeList(c, v, 1, r, GetFaction(c, 1) == 2 ? 1 : 0);

    List& mark = s.WeaponMark;
    int kept = mark.index();
    mark.setEnabled(false);
    mark.clear();
    for (std::string& row : WeaponMarkRows(r))
        mark.addItem(std::move(row));
    kept = std::min(kept, mark.count() - 1);
    mark.setIndex(kept);
    if (MayOpen(c, v)) mark.setEnabled(true);

    for (int i = 1; i <= 4; ++i)
        RebuildConsoleMark(c, v, i, r);

    if (MayOpen(c, v)) RankedSkillBoxes(c, v, r);
}

void DisplayedDPSUpdate(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    if (s.RelativeDPS.value() == 1) {
        const char* const stored[8] = {
            "",       "Dual (Heavy) Cannons", "Dual Beam Bank", "Single Cannon", "Beam Array",
            "Turret", "Torpedo Launcher",     "Mine Launcher"};
        for (int i = 1; i <= 7; ++i)
            s.CalculatedWeaponDPSLabel[i].setCaption(stored[i]);
    } else {
        const std::string e(GetDamageType(c, v, DamageGroup::Energy));
        const std::string p(GetDamageType(c, v, DamageGroup::Projectile));
        const std::string named[8] = {
            "",           e + "Dual (Heavy) Cannons", "Dual " + e + "Beam Bank", e + "Cannon", e + "Beam Array",
            e + "Turret", p + "Torpedo Launcher",     p + "Mine Launcher"};
        for (int i = 1; i <= 7; ++i)
            s.CalculatedWeaponDPSLabel[i].setCaption(named[i]);
    }
    if (v == 1 && OmegaMirrorsAlpha(c)) DisplayedDPSUpdate(c, 2);
}

void RelativeDPSChanged(Calculator& c, Vessel v) {
    VesselSettings& s = c.settings[v];
    if (v == 2 && OmegaMirrorsAlpha(c)) return;
    const int value = s.RelativeDPS.value();
    // One setting for both vessels: the other side's handler acts on it too.
    VesselSettings& other = c.settings[v == 1 ? 2 : 1];
    if (other.RelativeDPS.value() != value) other.RelativeDPS.setValue(value);
    if (value == 0)
        Customise(c, v);
    else
        BackToRelative(c, v);
}

void WeaponMarkChanged(Calculator& c, Vessel v) {
    List& mark = c.settings[v].WeaponMark;
    if (mark.enabled()) ModifiedDPS(c, v);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().WeaponMark.setIndex(mark.index());
        if (mark.enabled()) ModifiedDPS(c, 2);
    }
}

void WeaponModChanged(Calculator& c, Vessel v, int i) {
    List& mod = c.settings[v].WeaponMod[i];
    // A mod changes damage, accuracy ("[Acc]") and criticals ("[CrtD]", "[CrtH]").
    auto recalculate = [&c](Vessel w) {
        ModifiedDPS(c, w);
        ModifiedAccuracy(c, w);
        ModifiedCritical(c, w);
    };
    if (mod.enabled()) recalculate(v);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().WeaponMod[i].setIndex(mod.index());
        if (mod.enabled()) recalculate(2);
    }
}

void WeaponSkillChanged(Calculator& c, Vessel v, int i) {
    Text& box = c.settings[v].WeaponSkill[i];
    if (Validate(box, NumberBox::WeaponSkill, v)) return;
    if (box.enabled()) ModifiedDPS(c, v);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().WeaponSkill[i].setText(box.text());
        if (box.enabled()) ModifiedDPS(c, 2);
    }
}

void WeaponAccoladeChanged(Calculator& c, Vessel v, int i) {
    Flag& box = c.settings[v].WeaponAccolade[i];
    if (!box.enabled()) return;
    ModifiedDPS(c, v);
    if (v == 1 && OmegaMirrorsAlpha(c)) {
        c.Omega().WeaponAccolade[i].setValue(box.value());
        ModifiedDPS(c, 2);
    }
}

} // namespace vantorel
