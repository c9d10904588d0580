#include "settings/window.h"

#include "settings/consoles.h"
#include "settings/paint.h"
#include "settings/placement.h"
#include "settings/weapons.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace vantorel {

namespace {

// The page: four sections top to bottom, each with its heading, its main
// check box and its copy and help buttons on the first row, then two
// columns of captions with their boxes. Every row of a column is one pitch
// below the last, so the boxes of both columns line up.
constexpr int kPageWidth = 9615;
constexpr int kAlphaPageHeight = 14955;
constexpr int kOmegaPageHeight = 14995;

constexpr int kMargin = 240;
constexpr int kColumnWidth = 4320;
constexpr int kLeftColumn = kMargin;
constexpr int kRightColumn = 5040;
constexpr int kBoxWidth = 900;
constexpr int kBoxGap = 120;
constexpr int kCaptionWidth = kColumnWidth - kBoxWidth - kBoxGap;
constexpr int kRowHeight = 315;
constexpr int kPitch = 360;
constexpr int kCaptionHeight = 255;

// The first row of a section.
constexpr int kHeadingWidth = 2400;
constexpr int kHeadingHeight = 375;
constexpr int kSectionCheckLeft = 2520;
constexpr int kCopyLeft = 6480;
constexpr int kCopyWidth = 1800;
constexpr int kHelpLeft = 8400;
constexpr int kHelpWidth = 960;
constexpr int kSectionCheckWidth = kCopyLeft - kBoxGap - kSectionCheckLeft;
constexpr int kButtonHeight = 345;

constexpr int kCharacterTop = 120;
constexpr int kCombatTop = 1440;
constexpr int kPowerTop = 4350;
constexpr int kWeaponTop = 6840;
constexpr int kFootTop = 14520;

int ColumnLeft(int column) { return column == 0 ? kLeftColumn : kRightColumn; }

// A caption and its box on row `top` of a column.
void PlaceRow(Label& caption, Control& box, int column, int top) {
    caption.setRect({ColumnLeft(column), top, kCaptionWidth, kRowHeight});
    box.setRect({ColumnLeft(column) + kCaptionWidth + kBoxGap, top, kBoxWidth, kRowHeight});
}

// A control across the whole column.
void PlaceWide(Control& ctl, int column, int top, int height = kRowHeight) {
    ctl.setRect({ColumnLeft(column), top, kColumnWidth, height});
}

void PlaceHeading(VesselSettings& s, int section, Label& heading, Flag* check, int top) {
    heading.setRect({kMargin, top, kHeadingWidth, kHeadingHeight});
    if (check) check->setRect({kSectionCheckLeft, top + 30, kSectionCheckWidth, kRowHeight});
    s.CopySettings[section].setRect({kCopyLeft, top + 15, kCopyWidth, kButtonHeight});
    s.Help[section].setRect({kHelpLeft, top + 15, kHelpWidth, kButtonHeight});
}

void LayOut(VesselSettings& s, bool omega) {
    s.Contents.setRect({0, 0, kPageWidth, omega ? kOmegaPageHeight : kAlphaPageHeight});
    s.VScroll1.setRect({9600, 0, kSettingsBarWidth, 0});

    // Character.
    // Alpha's "Unrestricted" and Omega's "Same As Alpha" share the place;
    // each window shows its own.
    PlaceHeading(s, 1, s.CharacterSettingsLabel, &s.CharacterSettings, kCharacterTop);
    s.SameAsAlpha.setRect({kSectionCheckLeft, kCharacterTop + 30, kSectionCheckWidth, kRowHeight});
    constexpr int kPageRight = kRightColumn + kColumnWidth;
    const int third = (kPageRight - kMargin - 4 * kBoxGap) / 3;
    Label* captions[3] = {&s.FactionLabel, &s.RankLabel, &s.ClassLabel};
    List* lists[3] = {&s.Faction, &s.Rank, &s.Class};
    for (int i = 0; i < 3; ++i) {
        const int left = kMargin + i * (third + 2 * kBoxGap);
        captions[i]->setRect({left, kCharacterTop + 465, third, kCaptionHeight});
        lists[i]->setRect({left, kCharacterTop + 735, third, kRowHeight});
    }

    // Combat: the captain's skills and equipment on the left, the target on
    // the right, what they come to below.
    PlaceHeading(s, 2, s.CriticalSettingsLabel, &s.CriticalSettings, kCombatTop);
    int top = kCombatTop + 465;
    for (int i = 1; i <= 3; ++i)
        PlaceRow(s.CriticalSkillLabel[i], s.CriticalSkill[i], 0, top + (i - 1) * kPitch);
    PlaceWide(s.CriticalItem, 0, top + 3 * kPitch);
    PlaceWide(s.DamageResistance, 1, top);
    PlaceRow(s.TargetResistanceLabel, s.TargetResistance, 1, top + kPitch);
    PlaceWide(s.Accuracy, 1, top + 2 * kPitch);
    PlaceRow(s.TargetDefenseLabel, s.TargetDefense, 1, top + 3 * kPitch);
    top += 4 * kPitch + 60;
    PlaceRow(s.CritHlabel, s.CritH, 0, top);
    PlaceRow(s.CritDlabel, s.CritD, 0, top + kPitch);
    PlaceRow(s.DamageReductionLabel, s.DamageReduction, 1, top);
    PlaceRow(s.HitRateLabel, s.HitRate, 1, top + kPitch);

    // Power: the skills on the left, traits and the bonus on the right.
    PlaceHeading(s, 3, s.PowerSettings, &s.ExtrapolatePower, kPowerTop);
    top = kPowerTop + 465;
    for (int i = 1; i <= 5; ++i)
        PlaceRow(s.PowerSkillLabel[i], s.PowerSkill[i], 0, top + (i - 1) * kPitch);
    PlaceWide(s.PowerCaptain, 1, top);
    PlaceWide(s.WarpCore, 1, top + kPitch);
    PlaceWide(s.PowerBonusLabel, 1, top + 2 * kPitch);
    s.PowerBonus.setRect({kRightColumn + kCaptionWidth + kBoxGap, top + 3 * kPitch, kBoxWidth, kRowHeight});

    // Weapons: mark and mods, the energy and projectile skills side by side,
    // the consoles, and the damage the game's tooltips would show.
    PlaceHeading(s, 4, s.WeaponDamageLabel, &s.RelativeDPS, kWeaponTop);
    top = kWeaponTop + 465;
    PlaceWide(s.WeaponMarklabel, 0, top, kCaptionHeight);
    PlaceWide(s.WeaponModLabel, 1, top, kCaptionHeight);
    top += 270;
    PlaceWide(s.WeaponMark, 0, top);
    const int modWidth = (kColumnWidth - 2 * kBoxGap) / 3;
    for (int i = 1; i <= 3; ++i)
        s.WeaponMod[i].setRect({kRightColumn + (i - 1) * (modWidth + kBoxGap), top, modWidth, kRowHeight});
    top += 465;
    PlaceWide(s.SkillLabel[1], 0, top);
    PlaceWide(s.SkillLabel[2], 1, top);
    top += 330;
    for (int row = 0; row < 3; ++row) {
        PlaceRow(s.WeaponSkillLabel[row + 1], s.WeaponSkill[row + 1], 0, top + row * kPitch);
        PlaceRow(s.WeaponSkillLabel[row + 5], s.WeaponSkill[row + 5], 1, top + row * kPitch);
    }
    top += 3 * kPitch;
    // The type lists stand where a caption would, beside their skill box.
    PlaceRow(s.WeaponSkillLabel[4], s.WeaponSkill[4], 0, top);
    PlaceRow(s.WeaponSkillLabel[8], s.WeaponSkill[8], 1, top);
    s.WeaponType[1].setRect({kLeftColumn, top, kCaptionWidth, kRowHeight});
    s.WeaponType[2].setRect({kRightColumn, top, kCaptionWidth, kRowHeight});
    top += 390;
    PlaceWide(s.WeaponAccolade[1], 0, top);
    PlaceWide(s.WeaponAccolade[2], 1, top);
    top += 420;
    PlaceWide(s.TacticalConsoleLabel, 0, top);
    s.MatchConsole.setRect({kRightColumn, top, kCaptionWidth, kRowHeight});
    s.MatchConsoleLimit.setRect({kRightColumn + kCaptionWidth + kBoxGap, top, kBoxWidth, kRowHeight});
    top += kPitch;
    constexpr int kEquipWidth = 300;
    constexpr int kConsoleLeft = kMargin + kEquipWidth + 60;
    constexpr int kConsoleWidth = 4560;
    constexpr int kMarkLeft = kConsoleLeft + kConsoleWidth + kBoxGap;
    constexpr int kMarkWidth = 1680;
    constexpr int kRarityLeft = kMarkLeft + kMarkWidth + kBoxGap;
    constexpr int kRarityWidth = kRightColumn + kColumnWidth - kRarityLeft;
    for (int i = 1; i <= 4; ++i) {
        const int rowTop = top + (i - 1) * kPitch;
        s.TacticalConsoleEquipped[i].setRect({kMargin, rowTop, kEquipWidth, kRowHeight});
        s.TacticalConsole[i].setRect({kConsoleLeft, rowTop, kConsoleWidth, kRowHeight});
        s.TacticalConsoleMark[i].setRect({kMarkLeft, rowTop, kMarkWidth, kRowHeight});
        s.TacticalConsoleRarity[i].setRect({kRarityLeft, rowTop, kRarityWidth, kRowHeight});
    }
    top += 4 * kPitch + 90;
    PlaceWide(s.DisplayedDPSLabel[1], 0, top);
    PlaceWide(s.DisplayedDPSLabel[2], 1, top);
    top += 330;
    for (int i = 1; i <= 5; ++i)
        PlaceRow(s.CalculatedWeaponDPSLabel[i], s.CalculatedWeaponDPS[i], 0, top + (i - 1) * kPitch);
    for (int i = 6; i <= 7; ++i)
        PlaceRow(s.CalculatedWeaponDPSLabel[i], s.CalculatedWeaponDPS[i], 1, top + (i - 6) * kPitch);

    // The foot.
    constexpr int kFootButton = 1320;
    constexpr int kCloseLeft = kRightColumn + kColumnWidth - kFootButton;
    s.Close.setRect({kCloseLeft, kFootTop, kFootButton, kHeadingHeight});
    s.Help[0].setRect({kCloseLeft - kBoxGap - kFootButton, kFootTop, kFootButton, kHeadingHeight});
}

void Caption(Label& l, std::string caption, Shade shade = Shade::Inactive) {
    l.setCaption(std::move(caption));
    PaintLabel(l, shade);
}

// Whether a check box can be used at the start.
enum class Start { Open, Closed };
Start OpenIf(bool open) { return open ? Start::Open : Start::Closed; }
Shade ActiveIf(bool active) { return active ? Shade::Active : Shade::Inactive; }

// A check box stands on the black page with white text, whatever its state.
void Check(Flag& f, int value, std::string caption, std::string tooltip, Start start) {
    f = Flag(value, std::move(caption));
    f.setTooltip(std::move(tooltip));
    f.setEnabled(start == Start::Open);
    f.setFore(White);
    f.setBack(Black);
}

void ClosedText(Text& t, std::string start, std::string tooltip) {
    t = Text(std::move(start));
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

void OutputBox(Label& l, std::string caption, std::string tooltip = {}) {
    l = Label(std::move(caption), std::move(tooltip));
    l.setBack(Grey);
    l.setFore(Black);
}

} // namespace

void SetUpSettingsWindow(VesselSettings& s, Vessel v) {
    s.vessel = v;
    const bool omega = v == 2;
    s.Form = Window(omega ? "Omega Vessel- Advanced Settings" : "Alpha Vessel- Advanced Settings");
    s.Form.setBack(Black);
    s.Contents.setBack(Black);

    s.Close = Button("Close", "It's a \"Close\" button, what do you think it does?");
    const char* const helpTips[5] = {
        "Click to display the Advanced Settings Window section of the program's documentation.",
        "Click to display the Character Settings section of the program's documentation.",
        "Click to display the Combat Settings section of the program's documentation.",
        "Click to display the Power Settings section of the program's documentation.",
        "Click to display the Weapon Settings section of the program's documentation."};
    for (int i = 0; i <= 4; ++i) {
        s.Help[i] = Button("Help", helpTips[i]);
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

    // Character.
    Caption(s.CharacterSettingsLabel, "Character Settings", ActiveIf(!omega));
    Check(s.CharacterSettings, 1, "Unrestricted",
          "Check to set character settings to unrestricted mode.  Uncheck to allow advance character customization.",
          Start::Open);
    s.CharacterSettings.setVisible(!omega);
    Check(s.SameAsAlpha, 1, "Same As Alpha",
          "Check to automatically match the settings of the Alpha vessel.  Uncheck to allow advanced customization of "
          "this vessel.",
          Start::Open);
    s.SameAsAlpha.setVisible(omega);
    Caption(s.FactionLabel, "Faction");
    Caption(s.RankLabel, "Rank");
    Caption(s.ClassLabel, "Career");
    ClosedList(s.Faction, rows({"Federation", "Klingon"}), "Select the faction your captain belongs to.");
    ClosedList(
        s.Rank,
        rows({"Ensign/Warrior", "Lieutenant", "Lt. Commander/Sergeant", "Commander", "Captain",
              "Rear Admiral LH/Brigadier General", "Rear Admiral UH/Major General", "Vice Admiral/Lieutenant General"}),
        "Select the rank of your captain.");
    ClosedList(s.Class, rows({"Unrestricted", "Engineering Officer", "Science Officer", "Tactical Officer"}),
               "Select the career of your captain.");

    // Combat.
    Caption(s.CriticalSettingsLabel, "Combat Settings", ActiveIf(!omega));
    Check(s.CriticalSettings, 1, "Default Settings",
          "Uncheck to customize the skills and equipment which determine your critical hit chance, critical "
          "severity, and the effectiveness of Attack Patterns.  Check to use default settings: 4.5% Critical Chance, "
          "75% Critical Severity.",
          OpenIf(!omega));
    const char* const critNames[4] = {"", "Attack Vectors", "Combat Maneuvers", "Battle Strategy"};
    const std::string critTips[4] = {
        "",
        "Starship Attack Vectors skill (Lieutenant).  Increases the accuracy and critical chance of your Starship's "
        "weapons, as well as the effectiveness of Attack Patterns.",
        std::string("Starship Combat Maneuvers skill (Lieutenant Commander).  Increases the ") +
            (omega ? "defense" : "Defense") +
            " and turn rate of your Starship, as well as the effectiveness of Attack Patterns.",
        "Starship Battle Strategy skill (Commander).  Increases you Starship's damage resistance, the critical "
        "severity of your Starship's weapons, as well as the effectiveness of Attack Patterns."};
    for (int i = 1; i <= 3; ++i) {
        ClosedText(s.CriticalSkill[i], "", critTips[i]);
        Caption(s.CriticalSkillLabel[i], critNames[i]);
    }
    ClosedList(s.CriticalItem, {"None", "Aegis Hyper-Impulse Engines", "Borg Assimilated Module", "Both"},
               "If your ship is equipped with the Aegis Hyper-Impulse Engines, the Borg Assimilated Module console, "
               "or both, select them from this list.");
    s.CriticalItem.setHint("Select Equipment Bonuses");
    Check(s.DamageResistance, 0, "Calculate Damage Res.",
          "Check to include the effects of damage resistance in the DPS and average Burst Damage calculations.",
          OpenIf(!omega));
    ClosedText(s.TargetResistance, "11.88",
               "Enter the target's damage resistance.  Default: 11.88 (Max Battle Strategy, plus Damage Received "
               "accolade bonus)");
    Caption(s.TargetResistanceLabel, "Target Resistance");
    Check(s.Accuracy, 0, "Calculate Accuracy",
          "Check to include the effects of misses in the DPS and average Burst Damage calculations.", OpenIf(!omega));
    ClosedText(s.TargetDefense, "60",
               "Enter the target's defense rating.  Base Values: -15 stationary target, 60 max speed.  Bonus Values: "
               "+10 Escort speed bonus, +10 Elusive trait, +10 Aegis equipment bonus.  If you have the Accurate "
               "trait, subtract 10 from the target's defense rating.");
    Caption(s.TargetDefenseLabel, "Target Defense");
    OutputBox(s.CritH, "4.5%", "Critical Chance- Base: 2.5%, Attack Vectors (Max): 2%");
    OutputBox(s.CritD, "75%", "Critical Severity- Base: 50%, Battle Strategy (Max): 25%");
    OutputBox(s.DamageReduction, "0%");
    OutputBox(s.HitRate, "100%");
    Caption(s.CritHlabel, "Critical Chance");
    Caption(s.CritDlabel, "Critical Severity");
    Caption(s.DamageReductionLabel, "Damage Reduction");
    Caption(s.HitRateLabel, omega ? "Accuracy" : "Hit Rate");

    // Power.
    Caption(s.PowerSettings, "Power Settings", ActiveIf(!omega));
    Check(s.ExtrapolatePower, 0, "Extrapolate Additional Power Settings",
          "Check to allow the program to derive additional power setting estimates from the test data.   Uncheck to "
          "list only power settings based on hard test data.",
          OpenIf(!omega));
    const char* const powerNames[6] = {"",
                                       "Warp Core Training",
                                       "Weapon Efficiency",
                                       "Weapon Performance",
                                       "Efficient Bridge Officers",
                                       "Equipment Bonuses"};
    const char* const powerTips[6] = {
        "",
        "Warp Core Training skill (Lieutenant).  Increases your power levels at low power settings (settings below "
        "75).",
        "Energy Weapon Efficiency skill (Commander).  Increases your weapon power level at low power settings "
        "(settings below 75).",
        "Energy Weapon Performance skill (Admiral).  Increases your weapon power level, regardless of power setting.",
        "If applicable, enter the number of Bridge Officers with the Efficient trait that you have assigned to your "
        "vessel.",
        "Enter the TOTAL amount of weapon power added from Plasma Distribution Manifold consoles, the Borg "
        "Assimilated Module console, the Efficient Impulse Engine, or any other equipment."};
    for (int i = 1; i <= 5; ++i) {
        ClosedText(s.PowerSkill[i], "", powerTips[i]);
        Caption(s.PowerSkillLabel[i], powerNames[i]);
    }
    ClosedList(s.PowerCaptain, {"None", "Efficient Captain", "Joined Symbiote (Trill)"},
               "If your captain has the Efficient Captain trait, or the Joined Symbiote trait, which improve "
               "Efficiency skills, you may select them from this list.");
    s.PowerCaptain.setHint("Select Captain Efficiency Trait");
    Check(s.WarpCore, 0, "Warp Theorist",
          "Check if your captain has the Warp Theorist trait, which provides a +10 bonus to Warp Core Training.",
          Start::Closed);
    OutputBox(s.PowerBonus, "");
    Caption(s.PowerBonusLabel, "Current Power Bonus (100 Weapon Power)");

    // Weapons.
    Caption(s.WeaponDamageLabel, "Weapon Settings", ActiveIf(!omega));
    Check(s.RelativeDPS, 1, "Relative DPS",
          "Check to enable Relative DPS mode.  Uncheck to allow advanced weapon customization.", OpenIf(!omega));
    Caption(s.WeaponMarklabel, "Weapon Mark");
    Caption(s.WeaponModLabel, "Weapon Mods");
    ClosedList(s.WeaponMark,
               {"Max", "Standard Issue", "Mark I", "Mark II", "Mark III", "Mark IV", "Mark V", "Mark VI", "Mark VII",
                "Mark VIII", "Mark IX", "Mark X", "Mark XI", "Mark XII"},
               "Select the mark of your weapons.");
    for (int i = 1; i <= 3; ++i)
        ClosedList(s.WeaponMod[i], {"None", "[Acc]", "[CrtD]", "[CrtH]", "[Dmg]"},
                   "Select any weapon mod bonuses for your weapons.");
    Caption(s.SkillLabel[1], "Energy Weapon Skills");
    Caption(s.SkillLabel[2], "Projectile Weapon Skills");
    const char* const weaponNames[9] = {"", "Energy Weapons",     "Beam Weapons", "Cannon Weapons",
                                        "", "Projectile Weapons", "Mine Weapons", "Torpedo Weapons",
                                        ""};
    const char* const weaponTips[9] = {
        "",
        "Energy Weapons skill (Lieutenant).  Increases the damage of all energy weapons.",
        "Beam Weapons skill (Lieutenant Commander).  Increases the damage of all Dual Beam Banks and Beam Arrays.",
        "Cannon Weapons skill (Lieutenant Commander).  Increases the damage of all Dual and Single Cannons, as well "
        "as Turrets.",
        "Energy Damage Type skill (Commander+).  Increases the damage of all weapons of this specific energy damage "
        "type.",
        "Projectile Weapons skill (Lieutenant).  Increases the damage of all projectile weapons.",
        "Mine Weapons skill (Lieutenant Commander).  Increases the damage of all Mine weapons.",
        "Torpedo Weapons skill (Lieutenant Commander).  Increases the damage of all Torpedo weapons.",
        "Projectile Damage Type skill (Commander+).  Increases the damage of all weapons of this specific projectile "
        "damage type."};
    for (int i = 1; i <= 8; ++i) {
        ClosedText(s.WeaponSkill[i], "", weaponTips[i]);
        Caption(s.WeaponSkillLabel[i], weaponNames[i]);
        // The type lists stand in the place of the type skills' captions.
        if (i == 4 || i == 8) s.WeaponSkillLabel[i].setVisible(false);
    }
    ClosedList(s.WeaponType[1], DamageTypeRows(1), "Select the energy damage type of your weapons.");
    ClosedList(s.WeaponType[2], DamageTypeRows(2), "Select the projectile damage type of your weapons.");
    if (!omega) {
        s.WeaponType[2].setEnabled(true);
        s.WeaponType[2].setBack(White);
    }
    Check(s.WeaponAccolade[1], 1, "Energy Weapon Accolade Bonus",
          omega ? "Check if your captain has attained an Energy Weapon Type accolade bonus, which grants a bonus of "
                  "+2% to the base damage of a specific Energy Weapon Type.  This can be found in the game under: "
                  "Player Stats > Passive > From Accolades: Space."
                : "Check this box if your captain has attained an Energy Weapon Type Accolade Bonus, which grants a "
                  "bonus of +2% to the base damage of a specific Energy Weapon Type.  This can be found in the game "
                  "under: Player Stats > Passive > From Accolades: Space.",
          Start::Closed);
    Check(s.WeaponAccolade[2], 1, "Missile Commander Accolade Bonus",
          std::string("Check if your captain has attained the Missile Commander ") +
              (omega ? "Accolade Bonus" : "accolade bonus") +
              ", which grants a bonus of +2% to the base damage of projectile weapons.  This can be found in the "
              "game under: Player Stats > Passive > From Accolades: Space.",
          Start::Closed);
    Caption(s.TacticalConsoleLabel, "Tactical Consoles");
    Check(s.MatchConsole, 1, "Match Ship Console Limit",
          "Automatically equips the number of tactical consoles available on your selected ship.  Consoles are "
          "equipped from the top down.  Unequipped consoles may still be customized, and will be used automatically "
          "if you switch to a ship with more consoles.",
          Start::Closed);
    OutputBox(s.MatchConsoleLimit, "");
    for (int i = 1; i <= 4; ++i) {
        Check(s.TacticalConsoleEquipped[i], 1, "", "Check to equip this console.  Uncheck to unequip.", Start::Closed);
        ClosedList(s.TacticalConsole[i],
                   {"Empty", "Directed Energy Distribution (+Beams)", "Prefire Chamber (+Cannons)",
                    "Specific Energy Type (+Energy)", "Warhead Yield Chamber (+Torpedoes)",
                    "Variable Geometry Detonators (+Mines)", "Specific Kinetic Type (+Kinetic)"},
                   "Select the type of tactical console you wish to equip.");
        ClosedList(s.TacticalConsoleMark[i], ConsoleMarkRows(100),
                   "Select the equipment mark of the tactical console.");
        ClosedList(s.TacticalConsoleRarity[i], {"Common", "Uncommon", "Rare", "Very Rare"},
                   "Select the quality of the tactical console.  Options: Com (Common); Unc (Uncommon); Rare; V.Rare "
                   "(Very Rare).");
    }
    Caption(s.DisplayedDPSLabel[1], "Displayed DPS (100 Weapon Power)");
    Caption(s.DisplayedDPSLabel[2], "Displayed Burst Damage");
    const char* const displayed[8] = {"",       "Dual (Heavy) Cannons", "Dual Beam Bank", "Single Cannon", "Beam Array",
                                      "Turret", "Torpedo Launcher",     "Mine Launcher"};
    for (int i = 1; i <= 7; ++i) {
        OutputBox(s.CalculatedWeaponDPS[i], "");
        Caption(s.CalculatedWeaponDPSLabel[i], displayed[i]);
    }

    s.VScroll1 = ScrollBar();
    s.VScroll1.setVisible(false);
    LayOut(s, omega);
}

void RegisterFields(FieldTable& table, VesselSettings& s, const char* window) {
    FieldNames b(table, window, &s.Form);
    b.window(s.Form);
    b.one("Contents", s.Contents);
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
