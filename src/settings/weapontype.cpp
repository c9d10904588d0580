#include "settings/settings.h"

#include "catalogue/cascade.h"
#include "engine/numbers.h"
#include "engine/selection.h"

#include <string>

namespace vantorel {

namespace {

// What a damage type changes on the settings window: the console that boosts
// it, the tooltip of its skill box and, for energy types, the accolade.
struct TypeTexts {
    const char* console;
    const char* skillTooltip;
    const char* accolade;    // energy only
    const char* accoladeFor; // energy only: the accolade's name in its tooltip
    const char* weapons;     // energy only
};

constexpr TypeTexts kEnergyTypes[6] = {
    {"Phaser Relay (+Phaser Weapons)", "Phaser Weapons skill (Commander).  Increases the damage of all Phaser weapons.",
     "Heavy Hitter Accolade Bonus", "Heavy Hitter accolade bonus", "Phaser Weapons"},
    {"Disruptor Induction Coil (+Disruptor Weapons)",
     "Disruptor Weapons skill (Commander).  Increases the damage of all Disruptor weapons.",
     "Hull Smasher Accolade Bonus", "Hull Smasher accolade bonus", "Disruptor Weapons"},
    {"Plasma Infuser (+Plasma Weapons)", "Plasma Weapons skill (Captain).  Increases the damage of all Plasma weapons.",
     "Solar Flare Gunner Accolade Bonus", "Solar Flare Gunner accolade bonus", "Plasma Weapons"},
    {"Tetryon Pulse Generator (+Tetryon Weapons)",
     "Tetryon Weapons skill (Captain).  Increases the damage of all Tetryon weapons.",
     "Decloak and Dagger Accolade Bonus", "Decloak and Dagger accolade bonus", "Tetryon Weapons"},
    // The Polaron tooltip has always read "Accolade" with a capital A.
    {"Polaron Phase Modulator (+Polaron Weapons)",
     "Polaron Weapons skill (Admiral).  Increases the damage of all Polaron weapons.", "Enforcer Accolade Bonus",
     "Enforcer Accolade bonus", "Polaron Weapons"},
    {"Antiproton Mag Regulator (+Antiproton Weapons)",
     "Antiproton Weapons skill (Admiral).  Increases the damage of all Antiproton weapons.",
     "Strike from the Record Accolade Bonus", "Strike from the Record accolade bonus", "Antiproton Weapons"},
};

constexpr TypeTexts kNoEnergyType = {
    "Specific Energy Type (+Energy Weapons)",
    "Energy Damage Type skill (Commander+).  Increases the damage of all weapons of this specific energy type.",
    "Energy Weapon Accolade Bonus", nullptr, nullptr};

constexpr TypeTexts kProjectileTypes[6] = {
    {"Photon Detonation Assembly (+Photon Projectiles)",
     "Photon Projectiles skill (Commander).  Increases the damage of all Photon projectile weapons.", nullptr, nullptr,
     nullptr},
    {"Zero Point Quantum Chamber (+Quantum Projectiles)",
     "Quantum Projectiles skill (Commander).  Increases the damage of all Quantum projectile weapons.", nullptr,
     nullptr, nullptr},
    {"Ambiplasma Envelope (+Plasma Projectiles)",
     "Plasma Projectiles skill (Captain).  Increases the damage of all Plasma projectile weapons.", nullptr, nullptr,
     nullptr},
    {"Chroniton Flux Regulator (+Chroniton Projectiles)",
     "Chroniton Projectiles skill (Admiral).  Increases the damage of all Chroniton projectile weapons.", nullptr,
     nullptr, nullptr},
    {"Transphasic Compressor (+Transphasic Projectiles)",
     "Transphasic Projectiles skill (Captain).  Increases the damage of all Transphasic projectile weapons.", nullptr,
     nullptr, nullptr},
    {"TCD Subspace Infuser (+Tricobalt Projectiles)",
     "Tricobalt Projectiles skill (Admiral).  Increases the damage of all Tricobalt projectile weapons.", nullptr,
     nullptr, nullptr},
};

constexpr TypeTexts kNoProjectileType = {
    "Specific Projectile Type (+Kinetic Weapons)",
    "Kinetic Damage Type skill (Commander+).  Increases the damage of all weapons of this specific kinetic damage "
    "type.",
    nullptr, nullptr, nullptr};

const TypeTexts& TextsOf(int k, int index) {
    const bool known = index >= 0 && index <= 5;
    if (k == 1) return known ? kEnergyTypes[index] : kNoEnergyType;
    return known ? kProjectileTypes[index] : kNoProjectileType;
}

std::string AccoladeTooltip(int index) {
    if (index < 0 || index > 5)
        return "Check if your captain has attained an Energy Weapon Type accolade bonus, which grants a bonus of +2% "
               "to "
               "the base damage of a specific Energy Weapon Type.  This can be found in the game under: Player Stats "
               "> Passive > From Accolades: Space.";
    const TypeTexts& t = kEnergyTypes[index];
    return std::string("Check if your captain has attained the ") + t.accoladeFor +
           ", which grants a bonus of +2% to the base damage of " + t.weapons +
           ".  This can be found in the game under: Player Stats > Passive > From Accolades: Space.";
}

// The higher types need a higher rank before their skill can be trained.
bool TypeSkillClosed(int k, int index, int rank) {
    if (rank < 3) return true;
    if (index >= 2 && rank < 4) return true;
    if (k == 1) return index >= 4 && rank < 5;
    return (index == 3 || index == 5) && rank < 5;
}

// The console rows that name a damage type are rewritten in place; the lists
// are quiet meanwhile, and a console on that row keeps its place and mark.
void RewriteConsoleRow(Calculator& c, Vessel v, int row, const std::string& text) {
    VesselSettings& s = c.settings[v];
    if (s.TacticalConsole[1].count() > row && s.TacticalConsole[1].row(row) == text) return;
    const bool open = s.RelativeDPS.value() == 0 && (v == 1 || !OmegaMirrorsAlpha(c));
    for (int i = 1; i <= 4; ++i) {
        List& console = s.TacticalConsole[i];
        List& mark = s.TacticalConsoleMark[i];
        List& rarity = s.TacticalConsoleRarity[i];
        console.setEnabled(false);
        mark.setEnabled(false);
        rarity.setEnabled(false);
        const int consoleIndex = console.index();
        const int markIndex = mark.index();
        const int rarityIndex = rarity.index();
        console.removeItem(row);
        console.insertItem(text, row);
        console.setIndex(consoleIndex);
        mark.setIndex(markIndex);
        rarity.setIndex(rarityIndex);
        if (open) {
            console.setEnabled(true);
            mark.setEnabled(true);
            rarity.setEnabled(true);
        }
    }
}

void UpdateTypeSkillBox(Calculator& c, Vessel v, int k, int index) {
    VesselSettings& s = c.settings[v];
    if (v == 2 && OmegaMirrorsAlpha(c)) return;
    const bool custom = s.RelativeDPS.value() == 0;
    if (k == 2 && !custom) return;
    Text& box = s.WeaponSkill[k == 1 ? 4 : 8];
    if (TypeSkillClosed(k, index, GetRank(c, v))) {
        box.setEnabled(false);
        box.setBack(Grey);
        box.setText("N/A");
        return;
    }
    if (k == 1) {
        if (custom) {
            if (!IsNumeric(box.text())) box.setText("9");
            box.setEnabled(true);
        }
        box.setBack(White);
        return;
    }
    box.setBack(White);
    if (!IsNumeric(box.text())) box.setText("9");
    box.setEnabled(true);
}

// The captions over the displayed damage boxes name the weapons with their
// damage type, except in relative mode where the stored names stand.
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

} // namespace

void WeaponTypeChanged(Calculator& c, Vessel v, int k) {
    VesselSettings& s = c.settings[v];
    List& list = s.WeaponType[k];
    const int index = list.index();
    const TypeTexts& texts = TextsOf(k, index);

    s.WeaponSkill[k == 1 ? 4 : 8].setTooltip(texts.skillTooltip);
    if (k == 1) {
        s.WeaponAccolade[1].setCaption(texts.accolade);
        s.WeaponAccolade[1].setTooltip(AccoladeTooltip(index));
    }
    RewriteConsoleRow(c, v, k == 1 ? 3 : 6, texts.console);
    UpdateTypeSkillBox(c, v, k, index);
    DisplayedDPSUpdate(c, v);

    // Omega's type lists run their handler even while disabled, so the
    // mirrored list rewrites Omega's rows too.
    if (v == 1 && OmegaMirrorsAlpha(c)) c.Omega().WeaponType[k].setIndex(index);
    if (list.enabled()) ShipControl(c);
}

void ResetModifier(Calculator& c) {
    for (Vessel v = 1; v <= 2; ++v) {
        CalculatorState& s = c.state;
        s.BeamModifier[v] = 1.0f;
        s.CannonModifier[v] = 1.0f;
        s.TorpedoDamage[v] = 1.0f;
        s.MineDamage[v] = 1.0f;
        for (int i = 1; i <= 7; ++i) {
            c.settings[v].CalculatedWeaponDPS[i].setCaption("");
            c.settings[v].CalculatedWeaponDPS[i].setTooltip("");
        }
    }
    c.Alpha().MatchConsole.setValue(1);
    for (Vessel v = 1; v <= 2; ++v)
        for (int i = 1; i <= 4; ++i)
            c.settings[v].TacticalConsoleEquipped[i].setValue(1);
    ShipControl(c);
}

} // namespace vantorel
