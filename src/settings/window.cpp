#include "settings/window.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace vantorel {

namespace {

void GreyLabel(Label& l, std::string caption) {
    l.setCaption(std::move(caption));
    l.setFore(Grey);
}

void ClosedText(Text& t, std::string tooltip) {
    t.setEnabled(false);
    t.setBack(Grey);
    t.setTooltip(std::move(tooltip));
}

void ClosedList(List& l, std::vector<std::string> rows, std::string tooltip) {
    l = List(std::move(rows));
    l.setEnabled(false);
    l.setBack(Grey);
    l.setTooltip(std::move(tooltip));
}

} // namespace

void SetUpSettingsWindow(VesselSettings& s, Vessel v) {
    s.vessel = v;
    const bool omega = v == 2;
    s.Form = Window(omega ? "Omega Vessel- Advanced Settings" : "Alpha Vessel- Advanced Settings");
    s.Form.setBack(Black);

    s.Close = Button("Close", "It's a \"Close\" button, what do you think it does?");
    for (int i = 0; i <= 4; ++i) {
        s.Help[i] = Button("Help");
        if (omega && i > 0) s.Help[i].setEnabled(false);
    }
    const char* const sections[5] = {"", "Character", "Combat", "Power", "Weapon"};
    for (int i = 1; i <= 4; ++i) {
        s.CopySettings[i] = Button(omega ? "Copy From Alpha" : "Copy From Omega",
                                   std::string("Copy the ") + sections[i] + " Settings of the " +
                                       (omega ? "Omega" : "Alpha") + " vessel.");
        s.CopySettings[i].setEnabled(false);
        s.CopySettings[i].setVisible(omega);
    }

    const std::string sameRow = "Same As Alpha";
    auto rows = [&](std::vector<std::string> r) {
        if (omega) r.insert(r.begin(), sameRow);
        return r;
    };

    s.CharacterSettingsLabel = Label("Character Settings");
    s.CharacterSettingsLabel.setFore(omega ? Grey : White);
    s.CharacterSettings = Flag(1, "Unrestricted");
    s.CharacterSettings.setVisible(!omega);
    s.SameAsAlpha = Flag(1, "Same As Alpha");
    s.SameAsAlpha.setVisible(omega);
    GreyLabel(s.FactionLabel, "Faction");
    GreyLabel(s.RankLabel, "Rank");
    GreyLabel(s.ClassLabel, "Career");
    ClosedList(s.Faction, rows({"Federation", "Klingon"}), "Select the faction your captain belongs to.");
    ClosedList(
        s.Rank,
        rows({"Ensign/Warrior", "Lieutenant", "Lt. Commander/Sergeant", "Commander", "Captain",
              "Rear Admiral LH/Brigadier General", "Rear Admiral UH/Major General", "Vice Admiral/Lieutenant General"}),
        "Select the rank of your captain.");
    ClosedList(s.Class, rows({"Unrestricted", "Engineering Officer", "Science Officer", "Tactical Officer"}),
               "Select the career of your captain.");

    s.CriticalSettingsLabel = Label("Combat Settings");
    s.CriticalSettingsLabel.setFore(omega ? Grey : White);
    s.CriticalSettings = Flag(1, "Default Settings");
    s.CriticalSettings.setEnabled(!omega);
    const char* const critNames[4] = {"", "Attack Vectors", "Combat Maneuvers", "Battle Strategy"};
    for (int i = 1; i <= 3; ++i) {
        s.CriticalSkill[i] = Text("");
        ClosedText(s.CriticalSkill[i], "");
        GreyLabel(s.CriticalSkillLabel[i], critNames[i]);
    }
    ClosedList(s.CriticalItem, {"None", "Aegis Hyper-Impulse Engines", "Borg Assimilated Module", "Both"},
               "If your ship is equipped with the Aegis Hyper-Impulse Engines, the Borg Assimilated Module console, "
               "or both, select them from this list.");
    s.DamageResistance = Flag(0, "Calculate Damage Res.");
    s.DamageResistance.setEnabled(!omega);
    s.TargetResistance = Text("11.88");
    ClosedText(s.TargetResistance, "Enter the target's damage resistance.  Default: 11.88 (Max Battle Strategy, plus "
                                   "Damage Received accolade bonus)");
    GreyLabel(s.TargetResistanceLabel, "Target Resistance");
    s.Accuracy = Flag(0, "Calculate Accuracy");
    s.Accuracy.setEnabled(!omega);
    s.TargetDefense = Text("60");
    ClosedText(s.TargetDefense, "");
    GreyLabel(s.TargetDefenseLabel, "Target Defense");
    s.CritH = Label("4.5%", "Critical Chance- Base: 2.5%, Attack Vectors (Max): 2%");
    s.CritD = Label("75%", "Critical Severity- Base: 50%, Battle Strategy (Max): 25%");
    s.DamageReduction = Label("0%");
    s.HitRate = Label("100%");
    for (Label* l : {&s.CritH, &s.CritD, &s.DamageReduction, &s.HitRate})
        l->setBack(Grey);
    GreyLabel(s.CritHlabel, "Critical Chance");
    GreyLabel(s.CritDlabel, "Critical Severity");
    GreyLabel(s.DamageReductionLabel, "Damage Reduction");
    GreyLabel(s.HitRateLabel, omega ? "Accuracy" : "Hit Rate");

    s.PowerSettings = Label("Power Settings");
    s.PowerSettings.setFore(omega ? Grey : White);
    s.ExtrapolatePower = Flag(0, "Extrapolate Additional Power Settings");
    s.ExtrapolatePower.setEnabled(!omega);
    const char* const powerNames[6] = {"",
                                       "Warp Core Training",
                                       "Weapon Efficiency",
                                       "Weapon Performance",
                                       "Efficient Bridge Officers",
                                       "Equipment Bonuses"};
    for (int i = 1; i <= 5; ++i) {
        s.PowerSkill[i] = Text("");
        ClosedText(s.PowerSkill[i], "");
        GreyLabel(s.PowerSkillLabel[i], powerNames[i]);
    }
    ClosedList(s.PowerCaptain, {"None", "Efficient Captain", "Joined Symbiote (Trill)"},
               "If your captain has the Efficient Captain trait, or the Joined Symbiote trait, which improve "
               "Efficiency skills, you may select them from this list.");
    s.WarpCore = Flag(0, "Warp Theorist");
    s.WarpCore.setEnabled(false);
    s.PowerBonus = Label("");
    s.PowerBonus.setBack(Grey);
    GreyLabel(s.PowerBonusLabel, "Current Power Bonus (100 Weapon Power)");

    s.WeaponDamageLabel = Label("Weapon Settings");
    s.WeaponDamageLabel.setFore(omega ? Grey : White);
    s.RelativeDPS = Flag(1, "Relative DPS");
    s.RelativeDPS.setEnabled(!omega);
    GreyLabel(s.WeaponMarklabel, "Weapon Mark");
    GreyLabel(s.WeaponModLabel, "Weapon Mods");
    ClosedList(s.WeaponMark,
               {"Max", "Standard Issue", "Mark I", "Mark II", "Mark III", "Mark IV", "Mark V", "Mark VI", "Mark VII",
                "Mark VIII", "Mark IX", "Mark X", "Mark XI", "Mark XII"},
               "Select the mark of your weapons.");
    for (int i = 1; i <= 3; ++i)
        ClosedList(s.WeaponMod[i], {"None", "[Acc]", "[CrtD]", "[CrtH]", "[Dmg]"},
                   "Select any weapon mod bonuses for your weapons.");
    GreyLabel(s.SkillLabel[1], "Energy Weapon Skills");
    GreyLabel(s.SkillLabel[2], "Projectile Weapon Skills");
    const char* const weaponNames[9] = {"", "Energy Weapons",     "Beam Weapons", "Cannon Weapons",
                                        "", "Projectile Weapons", "Mine Weapons", "Torpedo Weapons",
                                        ""};
    for (int i = 1; i <= 8; ++i) {
        s.WeaponSkill[i] = Text("");
        ClosedText(s.WeaponSkill[i], "");
        GreyLabel(s.WeaponSkillLabel[i], weaponNames[i]);
    }
    ClosedList(s.WeaponType[1],
               {"Phaser Weapons", "Disruptor Weapons", "Plasma Weapons", "Tetryon Weapons", "Polaron Weapons",
                "Antiproton Weapons"},
               "Select the energy damage type of your weapons.");
    ClosedList(s.WeaponType[2],
               {"Photon Projectiles", "Quantum Projectiles", "Plasma Projectiles", "Chroniton Projectiles",
                "Transphasic Projectiles", "Tricobalt Projectiles"},
               "Select the projectile damage type of your weapons.");
    if (!omega) {
        s.WeaponType[2].setEnabled(true);
        s.WeaponType[2].setBack(White);
    }
    s.WeaponAccolade[1] = Flag(1, "Energy Weapon Accolade Bonus");
    s.WeaponAccolade[2] = Flag(1, "Missile Commander Accolade Bonus");
    s.WeaponAccolade[1].setEnabled(false);
    s.WeaponAccolade[2].setEnabled(false);
    GreyLabel(s.TacticalConsoleLabel, "Tactical Consoles");
    s.MatchConsole = Flag(1, "Match Ship Console Limit");
    s.MatchConsole.setEnabled(false);
    s.MatchConsoleLimit = Label("");
    s.MatchConsoleLimit.setBack(Grey);
    for (int i = 1; i <= 4; ++i) {
        s.TacticalConsoleEquipped[i] = Flag(1);
        s.TacticalConsoleEquipped[i].setEnabled(false);
        ClosedList(s.TacticalConsole[i],
                   {"Empty", "Directed Energy Distribution (+Beams)", "Prefire Chamber (+Cannons)",
                    "Specific Energy Type (+Energy)", "Warhead Yield Chamber (+Torpedoes)",
                    "Variable Geometry Detonators (+Mines)", "Specific Kinetic Type (+Kinetic)"},
                   "Select the type of tactical console you wish to equip.");
        ClosedList(s.TacticalConsoleMark[i],
                   {"Max", "Mk I", "Mk II", "Mk III", "Mk IV", "Mk V", "Mk VI", "Mk VII", "Mk VIII", "Mk IX", "Mk X",
                    "Mk XI", "Mk XII"},
                   "Select the equipment mark of the tactical console.");
        ClosedList(s.TacticalConsoleRarity[i], {"Common", "Uncommon", "Rare", "Very Rare"},
                   "Select the quality of the tactical console.  Options: Com (Common); Unc (Uncommon); Rare; V.Rare "
                   "(Very Rare).");
    }
    GreyLabel(s.DisplayedDPSLabel[1], "Displayed DPS (100 Weapon Power)");
    GreyLabel(s.DisplayedDPSLabel[2], "Displayed Burst Damage");
    const char* const displayed[8] = {"",       "Dual (Heavy) Cannons", "Dual Beam Bank", "Single Cannon", "Beam Array",
                                      "Turret", "Torpedo Launcher",     "Mine Launcher"};
    for (int i = 1; i <= 7; ++i) {
        s.CalculatedWeaponDPS[i] = Label("");
        s.CalculatedWeaponDPS[i].setBack(Grey);
        GreyLabel(s.CalculatedWeaponDPSLabel[i], displayed[i]);
    }
}

void RegisterFields(FieldTable& table, VesselSettings& s, const char* window) {
    FieldNames b(table, window, &s.Form);
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

} // namespace vantorel
