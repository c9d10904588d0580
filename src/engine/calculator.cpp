#include "engine/calculator.h"

#include "engine/numbers.h"
#include "mainwindow/layout.h"

namespace vantorel {

namespace {

const std::vector<std::string> kUnrestrictedClassStart = {
    "Unrestricted",    "Federation", "   Cruiser",       "   Escort",         "   Science Vessel",
    "   Shuttlecraft", "Klingon",    "   Allied Vessel", "   Battle Cruiser", "   Bird of Prey",
    "   Carrier",      "   Raptor",  "   Shuttlecraft "};

const std::vector<std::string> kUnrestrictedTiers = {"Tier 1- Unrestricted Vessel", "Tier 2- Unrestricted Vessel",
                                                     "Tier 3- Unrestricted Vessel", "Tier 4- Unrestricted Vessel",
                                                     "Tier 5- Unrestricted Vessel"};

const std::vector<std::string> kForwardStart = {"Empty",        "Beam Array",         "Cannon", "Dual Beam Bank",
                                                "Dual Cannons", "Dual Heavy Cannons", "Turret", "Torpedo Launcher"};
const std::vector<std::string> kRearStart = {"Empty", "Beam Array", "Turret", "Mine Launcher", "Torpedo Launcher"};

const std::vector<std::string> kDistances = {"0-1 km", "2 km", "3 km", "4 km", "5 km",
                                             "6 km",   "7 km", "8 km", "9 km", "10 km"};

std::vector<std::string> WithSameAsAlpha(std::vector<std::string> rows) {
    rows.insert(rows.begin(), "Same As Alpha");
    return rows;
}

std::vector<std::string> StartPowerRows() {
    std::vector<std::string> rows;
    for (int p = 35; p <= 125; p += 5)
        rows.push_back(std::to_string(p) + " (" + std::to_string(p) + ")");
    return rows;
}

// Where each result box and its caption stand on the window, by box index.
constexpr int kLabelTop[14] = {2520, 3240, 3960, 3960, 5400, 5400, 4680, 5400, 6120, 6840, 6840, 5400, 1800, 7560};
constexpr int kBoxTop[14] = {2760, 3480, 4200, 4200, 5640, 5640, 4920, 5640, 6360, 7080, 7080, 5640, 2040, 7800};
const char* const kBoxCaption[14] = {"Forward 45", "Forward 90",   "Forward 110", "Forward 180", "Forward 250",
                                     "Full 360",   "Front Pocket", "Broadside",   "Rear Pocket", "Rear 110",
                                     "Rear 180",   "Rear 250",     "Front Burst", "Rear Burst"};

void Place(Control& ctl, int left, int top, int width, int height) {
    ctl.setLeft(left);
    ctl.setTop(top);
    ctl.setWidth(width);
    ctl.setHeight(height);
}

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

MainSelection::MainSelection() {
    Form1.setWidth(9950);
    Form1.setHeight(9765);
    Place(Contents, 0, 0, 9825, 9360);
    Contents.setBack(Black);

    const std::string weaponsTip = "Select your starship's weapons.";
    for (int i = 1; i <= 4; ++i) {
        Forward[i] = List(kForwardStart, true);
        CForward[i] = List(kForwardStart, true);
        Rear[i] = List(kRearStart, true);
        CRear[i] = List(kRearStart, true);
        Forward[i].setText("Forward Weapon Port " + std::to_string(i));
        CForward[i].setText("Forward Weapon Port " + std::to_string(i));
        Rear[i].setText("Rear Weapon Port " + std::to_string(i));
        CRear[i].setText("Rear Weapon Port " + std::to_string(i));
        for (List* l : {&Forward[i], &CForward[i], &Rear[i], &CRear[i]})
            l->setTooltip(weaponsTip);
        CForward[i].setVisible(false);
        CRear[i].setVisible(false);
    }

    for (Vessel v = 1; v <= 2; ++v) {
        const bool omega = v == 2;
        ShipClass[v] = List(omega ? WithSameAsAlpha(kUnrestrictedClassStart) : kUnrestrictedClassStart);
        ShipTier[v] = List(omega ? WithSameAsAlpha(kUnrestrictedTiers) : kUnrestrictedTiers);
        ShipSubclass[v] = List();
        PowerLevel[v] = List(omega ? WithSameAsAlpha(StartPowerRows()) : StartPowerRows(), true);
        TargetDistance[v] = List(omega ? WithSameAsAlpha(kDistances) : kDistances);
        ShuttleRank[v] = List();
        ShuttleMod[v] = Flag(0, "Rare Shuttle Array");

        // The start-up selects their rows while they are disabled.
        for (List* l : {&ShipClass[v], &ShipTier[v], &PowerLevel[v], &TargetDistance[v]})
            l->setEnabled(false);

        ShipClass[v].setTooltip("Select your starship's class.");
        ShipTier[v].setTooltip("Select your starship's tier.");
        ShipSubclass[v].setTooltip("Select the exact subclass of your starship.");
        PowerLevel[v].setTooltip("Calculated using the results of my weapon scaling tests.");
        TargetDistance[v].setTooltip("Calculated using Tolmar's data at the Hollow Ember blog.");
        ShuttleRank[v].setTooltip("Select your exact rank, so the program can accurately determine the damage of "
                                  "shuttle beam arrays.");
        ShuttleMod[v].setTooltip("Check if you have the rare shuttle beam array, which is received from completing "
                                 "The Vault feature episode a second time.");

        ShipClasslabel[v] = Label("Ship Class");
        ShipTierlabel[v] = Label("Ship Tier");
        ShipSubclassLabel[v] = Label("Ship Sub-Class");
        PowerLevellabel[v] = Label("Weapon Power Setting");
        TargetDistancelabel[v] = Label("Target Distance");
        ShuttleRankLabel[v] = Label("Rank (Shuttle Weapons)");
        Skills[v] = Button("Activate Skills", "Click to show the Activated Skills Window, which will allow you to "
                                              "select various Captain and Bridge Officer skills.");
        Advanced[v] = Button("Show Settings",
                             "Click to show the Advanced Settings Window.  By customizing the advanced settings, you "
                             "can tailor the program's output to more closely match your in-game results.");

        ShipSubclassLabel[v].setVisible(false);
        ShipSubclass[v].setVisible(false);
        ShuttleRankLabel[v].setVisible(false);
        ShuttleRank[v].setVisible(false);
        ShuttleRank[v].setEnabled(false);
        ShuttleMod[v].setVisible(false);
        for (Label* l : {&ShipClasslabel[v], &ShipTierlabel[v], &ShipSubclassLabel[v], &PowerLevellabel[v],
                         &TargetDistancelabel[v], &ShuttleRankLabel[v]})
            l->setFore(White);

        if (omega) {
            for (Control* ctl :
                 std::initializer_list<Control*>{&ShipClass[2], &ShipTier[2], &ShipSubclass[2], &PowerLevel[2],
                                                 &TargetDistance[2], &Skills[2], &Advanced[2]})
                ctl->setVisible(false);
        }
    }
    Simplified = Flag(0, "Simplified Firing Arcs");
    Simplified.setTooltip("Check to enable Simplified Firing Arcs mode, which draws only the front, side and rear "
                          "arcs.  Uncheck to allow the drawing of all firing arcs.");
    Simplified.setFore(White);
    Simplified.setBack(Black);
    Place(Simplified, 5640, 8160, 2775, 495);

    ForwardWeaponlabel = Label("Forward Weapons");
    CForwardWeaponlabel = Label("Forward Weapons");
    RearWeaponlabel = Label("Rear Weapons");
    CRearWeaponlabel = Label("Rear Weapons");
    for (Label* l : {&ForwardWeaponlabel, &CForwardWeaponlabel, &RearWeaponlabel, &CRearWeaponlabel})
        l->setFore(White);

    Reset = Button("Reset", "Click to clear the starship's weapon selections.");
    CReset = Button("Reset", "Click to clear the starship's weapon selections.");
    CReset.setVisible(false);
    GraphResults = Button("Graph Results", "Click to display the Graph Window.");
    Help = Button("Help", "Click to display the Main Window section of the program's documentation.");
    ShowAbout = Button("About", "Click to view the program's license and documentation.");
    Compare = Button("Compare  >>");
    HideCompare = Button("<<  Hide");
    HideCompare.setVisible(false);
    Place(GraphResults, 4920, 8880, 1335, 375);
    Place(Help, 6360, 8880, 1335, 375);
    Place(ShowAbout, 7800, 8880, 1335, 375);
    Place(Compare, 8400, 120, 1335, 375);
    Place(HideCompare, 9720, 120, 1335, 375);

    Primarylabel = Label("Alpha");
    Primarylabel.setFore(0x0000FF);
    Primarylabel.setVisible(false);
    Place(Primarylabel, 120, 120, 1095, 375);
    Secondarylabel = Label("Omega");
    Secondarylabel.setFore(0x00FFFF);
    Place(Secondarylabel, 11400, 120, 1215, 375);
    Note = Label("");
    Note.setFore(0x0000FF);
    Note.setVisible(false);
    Place(Note, 2880, 480, 6855, 1215);
    FiringArcsLabel = Label("Firing Arcs");
    FiringArcsLabel.setFore(White);
    Place(FiringArcsLabel, 4320, 2160, 5415, 495);
    for (Label* l : {&Primarylabel, &Secondarylabel, &Note, &FiringArcsLabel})
        l->setBack(Black);

    for (int i = 0; i <= 13; ++i) {
        FiringArcLabel[i] = Label(kBoxCaption[i]);
        CFiringArcLabel[i] = Label(kBoxCaption[i]);
        FiringArcDPS[i] = Label("");
        CFiringArcDPS[i] = Label("");
        Place(FiringArcLabel[i], 3000, kLabelTop[i], 1335, 240);
        Place(CFiringArcLabel[i], 9720, kLabelTop[i], 1335, 240);
        Place(FiringArcDPS[i], 3000, kBoxTop[i], 1335, 375);
        Place(CFiringArcDPS[i], 9720, kBoxTop[i], 1335, 375);
        for (Label* l : {&FiringArcLabel[i], &CFiringArcLabel[i]}) {
            l->setFore(White);
            l->setBack(Black);
        }
        for (Label* l : {&FiringArcLabel[i], &CFiringArcLabel[i], &FiringArcDPS[i], &CFiringArcDPS[i]})
            l->setVisible(false);
    }
    for (int i = 0; i <= 11; ++i) {
        FiringArc[i].setVisible(false);
        CFiringArc[i].setVisible(false);
    }
    Place(AlphaImage, 4320, 2880, 5400, 5400);
    Place(OmegaImage, 4320, 2880, 5400, 5400);
    Cline.setVisible(false);
    HScroll1.setVisible(false);
    VScroll1.setVisible(false);
    LayOutMainWindow(*this);
}

void VesselSettings::SetUp(Vessel v) {
    vessel = v;
    const bool omega = v == 2;
    Form = Window(omega ? "Omega Vessel- Advanced Settings" : "Alpha Vessel- Advanced Settings");
    Form.setBack(Black);

    Close = Button("Close", "It's a \"Close\" button, what do you think it does?");
    for (int i = 0; i <= 4; ++i) {
        Help[i] = Button("Help");
        if (omega && i > 0) Help[i].setEnabled(false);
    }
    const char* const sections[5] = {"", "Character", "Combat", "Power", "Weapon"};
    for (int i = 1; i <= 4; ++i) {
        CopySettings[i] = Button(omega ? "Copy From Alpha" : "Copy From Omega",
                                 std::string("Copy the ") + sections[i] + " Settings of the " +
                                     (omega ? "Omega" : "Alpha") + " vessel.");
        CopySettings[i].setEnabled(false);
        CopySettings[i].setVisible(omega);
    }

    const std::string sameRow = "Same As Alpha";
    auto rows = [&](std::vector<std::string> r) {
        if (omega) r.insert(r.begin(), sameRow);
        return r;
    };

    CharacterSettingsLabel = Label("Character Settings");
    CharacterSettingsLabel.setFore(omega ? Grey : White);
    CharacterSettings = Flag(1, "Unrestricted");
    CharacterSettings.setVisible(!omega);
    SameAsAlpha = Flag(1, "Same As Alpha");
    SameAsAlpha.setVisible(omega);
    GreyLabel(FactionLabel, "Faction");
    GreyLabel(RankLabel, "Rank");
    GreyLabel(ClassLabel, "Career");
    ClosedList(Faction, rows({"Federation", "Klingon"}), "Select the faction your captain belongs to.");
    ClosedList(
        Rank,
        rows({"Ensign/Warrior", "Lieutenant", "Lt. Commander/Sergeant", "Commander", "Captain",
              "Rear Admiral LH/Brigadier General", "Rear Admiral UH/Major General", "Vice Admiral/Lieutenant General"}),
        "Select the rank of your captain.");
    ClosedList(Class, rows({"Unrestricted", "Engineering Officer", "Science Officer", "Tactical Officer"}),
               "Select the career of your captain.");

    CriticalSettingsLabel = Label("Combat Settings");
    CriticalSettingsLabel.setFore(omega ? Grey : White);
    CriticalSettings = Flag(1, "Default Settings");
    CriticalSettings.setEnabled(!omega);
    const char* const critNames[4] = {"", "Attack Vectors", "Combat Maneuvers", "Battle Strategy"};
    for (int i = 1; i <= 3; ++i) {
        CriticalSkill[i] = Text("");
        ClosedText(CriticalSkill[i], "");
        GreyLabel(CriticalSkillLabel[i], critNames[i]);
    }
    ClosedList(CriticalItem, {"None", "Aegis Hyper-Impulse Engines", "Borg Assimilated Module", "Both"},
               "If your ship is equipped with the Aegis Hyper-Impulse Engines, the Borg Assimilated Module console, "
               "or both, select them from this list.");
    DamageResistance = Flag(0, "Calculate Damage Res.");
    DamageResistance.setEnabled(!omega);
    TargetResistance = Text("11.88");
    ClosedText(TargetResistance, "Enter the target's damage resistance.  Default: 11.88 (Max Battle Strategy, plus "
                                 "Damage Received accolade bonus)");
    GreyLabel(TargetResistanceLabel, "Target Resistance");
    Accuracy = Flag(0, "Calculate Accuracy");
    Accuracy.setEnabled(!omega);
    TargetDefense = Text("60");
    ClosedText(TargetDefense, "");
    GreyLabel(TargetDefenseLabel, "Target Defense");
    CritH = Label("4.5%", "Critical Chance- Base: 2.5%, Attack Vectors (Max): 2%");
    CritD = Label("75%", "Critical Severity- Base: 50%, Battle Strategy (Max): 25%");
    DamageReduction = Label("0%");
    HitRate = Label("100%");
    for (Label* l : {&CritH, &CritD, &DamageReduction, &HitRate})
        l->setBack(Grey);
    GreyLabel(CritHlabel, "Critical Chance");
    GreyLabel(CritDlabel, "Critical Severity");
    GreyLabel(DamageReductionLabel, "Damage Reduction");
    GreyLabel(HitRateLabel, omega ? "Accuracy" : "Hit Rate");

    PowerSettings = Label("Power Settings");
    PowerSettings.setFore(omega ? Grey : White);
    ExtrapolatePower = Flag(0, "Extrapolate Additional Power Settings");
    ExtrapolatePower.setEnabled(!omega);
    const char* const powerNames[6] = {"",
                                       "Warp Core Training",
                                       "Weapon Efficiency",
                                       "Weapon Performance",
                                       "Efficient Bridge Officers",
                                       "Equipment Bonuses"};
    for (int i = 1; i <= 5; ++i) {
        PowerSkill[i] = Text("");
        ClosedText(PowerSkill[i], "");
        GreyLabel(PowerSkillLabel[i], powerNames[i]);
    }
    ClosedList(PowerCaptain, {"None", "Efficient Captain", "Joined Symbiote (Trill)"},
               "If your captain has the Efficient Captain trait, or the Joined Symbiote trait, which improve "
               "Efficiency skills, you may select them from this list.");
    WarpCore = Flag(0, "Warp Theorist");
    WarpCore.setEnabled(false);
    PowerBonus = Label("");
    PowerBonus.setBack(Grey);
    GreyLabel(PowerBonusLabel, "Current Power Bonus (100 Weapon Power)");

    WeaponDamageLabel = Label("Weapon Settings");
    WeaponDamageLabel.setFore(omega ? Grey : White);
    RelativeDPS = Flag(1, "Relative DPS");
    RelativeDPS.setEnabled(!omega);
    GreyLabel(WeaponMarklabel, "Weapon Mark");
    GreyLabel(WeaponModLabel, "Weapon Mods");
    ClosedList(WeaponMark,
               {"Max", "Standard Issue", "Mark I", "Mark II", "Mark III", "Mark IV", "Mark V", "Mark VI", "Mark VII",
                "Mark VIII", "Mark IX", "Mark X", "Mark XI", "Mark XII"},
               "Select the mark of your weapons.");
    for (int i = 1; i <= 3; ++i)
        ClosedList(WeaponMod[i], {"None", "[Acc]", "[CrtD]", "[CrtH]", "[Dmg]"},
                   "Select any weapon mod bonuses for your weapons.");
    GreyLabel(SkillLabel[1], "Energy Weapon Skills");
    GreyLabel(SkillLabel[2], "Projectile Weapon Skills");
    const char* const weaponNames[9] = {"", "Energy Weapons",     "Beam Weapons", "Cannon Weapons",
                                        "", "Projectile Weapons", "Mine Weapons", "Torpedo Weapons",
                                        ""};
    for (int i = 1; i <= 8; ++i) {
        WeaponSkill[i] = Text("");
        ClosedText(WeaponSkill[i], "");
        GreyLabel(WeaponSkillLabel[i], weaponNames[i]);
    }
    ClosedList(WeaponType[1],
               {"Phaser Weapons", "Disruptor Weapons", "Plasma Weapons", "Tetryon Weapons", "Polaron Weapons",
                "Antiproton Weapons"},
               "Select the energy damage type of your weapons.");
    ClosedList(WeaponType[2],
               {"Photon Projectiles", "Quantum Projectiles", "Plasma Projectiles", "Chroniton Projectiles",
                "Transphasic Projectiles", "Tricobalt Projectiles"},
               "Select the projectile damage type of your weapons.");
    if (!omega) {
        WeaponType[2].setEnabled(true);
        WeaponType[2].setBack(White);
    }
    WeaponAccolade[1] = Flag(1, "Energy Weapon Accolade Bonus");
    WeaponAccolade[2] = Flag(1, "Missile Commander Accolade Bonus");
    WeaponAccolade[1].setEnabled(false);
    WeaponAccolade[2].setEnabled(false);
    GreyLabel(TacticalConsoleLabel, "Tactical Consoles");
    MatchConsole = Flag(1, "Match Ship Console Limit");
    MatchConsole.setEnabled(false);
    MatchConsoleLimit = Label("");
    MatchConsoleLimit.setBack(Grey);
    for (int i = 1; i <= 4; ++i) {
        TacticalConsoleEquipped[i] = Flag(1);
        TacticalConsoleEquipped[i].setEnabled(false);
        ClosedList(TacticalConsole[i],
                   {"Empty", "Directed Energy Distribution (+Beams)", "Prefire Chamber (+Cannons)",
                    "Specific Energy Type (+Energy)", "Warhead Yield Chamber (+Torpedoes)",
                    "Variable Geometry Detonators (+Mines)", "Specific Kinetic Type (+Kinetic)"},
                   "Select the type of tactical console you wish to equip.");
        ClosedList(TacticalConsoleMark[i],
                   {"Max", "Mk I", "Mk II", "Mk III", "Mk IV", "Mk V", "Mk VI", "Mk VII", "Mk VIII", "Mk IX", "Mk X",
                    "Mk XI", "Mk XII"},
                   "Select the equipment mark of the tactical console.");
        ClosedList(TacticalConsoleRarity[i], {"Common", "Uncommon", "Rare", "Very Rare"},
                   "Select the quality of the tactical console.  Options: Com (Common); Unc (Uncommon); Rare; V.Rare "
                   "(Very Rare).");
    }
    GreyLabel(DisplayedDPSLabel[1], "Displayed DPS (100 Weapon Power)");
    GreyLabel(DisplayedDPSLabel[2], "Displayed Burst Damage");
    const char* const displayed[8] = {"",       "Dual (Heavy) Cannons", "Dual Beam Bank", "Single Cannon", "Beam Array",
                                      "Turret", "Torpedo Launcher",     "Mine Launcher"};
    for (int i = 1; i <= 7; ++i) {
        CalculatedWeaponDPS[i] = Label("");
        CalculatedWeaponDPS[i].setBack(Grey);
        GreyLabel(CalculatedWeaponDPSLabel[i], displayed[i]);
    }
}

void VesselSkills::SetUp(Vessel v) {
    vessel = v;
    const bool omega = v == 2;
    Form = Window(omega ? "Omega Vessel- Activated Skills" : "Alpha Vessel- Activated Skills");
    Form.setBack(Black);

    BeamSkillActivated = Flag(0, "Beam Fire At Will");
    BeamOverloadActivated = Flag(0, "Beam Overload");
    CannonSkillActivated = Flag(0, "Cannon");
    MineSkillActivated = Flag(0, "Dispersal Pattern");
    TacticalTeamActivated = Flag(0, "Tactical Team");
    TorpedoSkillActivated = Flag(0, "Torpedo");
    AttackPatternActivated = Flag(0, "Attack Pattern");
    AttackPatternAlpha = Flag(0, "Attack Pattern Alpha ");

    const std::string relativeOnly = "Requires Relative DPS to be disabled.";
    BeamSkillLevel =
        List({"1 (+20% Beam DPS, + hits random extra target)", "2 (+27.5% Beam DPS, + hits random extra target)",
              "3 (+35% Beam DPS, + hits random extra target)"});
    BeamOverloadLevel = List({"1 (600% Beam Damage)", "2 (725% Beam Damage)", "3 (850% Beam Damage)"});
    CannonSkillSelected = List({"Rapid Fire", "Scatter Volley"});
    CannonSkillLevel = List({"1 (+30% Cannon Damage)", "2 (+40% Cannon Damage)", "3 (+50% Cannon Damage)"});
    MineSkillSelected = List({"Alpha", "Beta"});
    MineSkillLevel = List({"1 (160% Mine Count)", "2 (240% Mine Count)", "3 (320% Mine Count)"});
    TacticalTeamLevel = List({relativeOnly, relativeOnly, relativeOnly});
    TorpedoSkillSelected = List({"High Yield", "Spread"});
    TorpedoSkillLevel = List({"1 (223% Torpedo Damage)", "2 (258% Torpedo Damage)", "3 (295% Torpedo Damage)"});
    AttackPatternSelected = List({"Beta", "Delta", "Omega"});
    AttackPatternLevel = List({relativeOnly, relativeOnly, relativeOnly});
    AttackPatternAlphaLevel = List({"1 ", "2 ", "3 "});
    AttackPatternAlphaDescription = Label(relativeOnly);
    Targets = Text("1");
    TargetsLabel = Label("Number Of Targets");
    Close = Button("Close", "It's a \"Close\" button, what do you think it does?");
    Help = Button("Help", "Click to display the program's documentation.");
    Help.setVisible(!omega);
    SameAsAlpha = Flag(1, "Same As Alpha");
    SameAsAlpha.setVisible(omega);

    // The start values as the window's creation leaves them.
    AttackPatternSelected.setIndex(2);
    BeamOverloadLevel.setIndex(0);
    BeamSkillLevel.setIndex(0);
    CannonSkillSelected.setIndex(0);
    TacticalTeamLevel.setIndex(0);
    MineSkillSelected.setIndex(0);
    MineSkillLevel.setIndex(0);
    TorpedoSkillSelected.setIndex(0);
    CannonSkillLevel.setIndex(0);
    TorpedoSkillLevel.setIndex(0);
    AttackPatternLevel.setIndex(0);
    AttackPatternAlphaLevel.setIndex(2);
    TacticalTeamActivated.setEnabled(false);
    AttackPatternActivated.setEnabled(false);
    AttackPatternAlpha.setEnabled(false);

    if (omega) {
        for (Control* ctl : std::initializer_list<Control*>{
                 &AttackPatternLevel, &AttackPatternSelected, &BeamSkillActivated, &BeamSkillLevel,
                 &BeamOverloadActivated, &BeamOverloadLevel, &CannonSkillActivated, &CannonSkillSelected,
                 &CannonSkillLevel, &MineSkillActivated, &MineSkillSelected, &MineSkillLevel, &TacticalTeamLevel,
                 &TorpedoSkillActivated, &TorpedoSkillSelected, &TorpedoSkillLevel, &AttackPatternAlphaLevel, &Targets})
            ctl->setEnabled(false);
        Targets.setBack(Grey);
        TargetsLabel.setFore(Grey);
    }
}

Calculator::Calculator() {
    settings[1].SetUp(1);
    settings[2].SetUp(2);
    skills[1].SetUp(1);
    skills[2].SetUp(2);
    WireHandlers(*this);
    StartUp(*this);
}

void StartUp(Calculator& c) {
    CalculatorState& s = c.state;
    MainSelection& m = c.main;

    s.Comparing = 0;
    for (Vessel v = 1; v <= 2; ++v) {
        s.BeamModifier[v] = 1.0f;
        s.CannonModifier[v] = 1.0f;
        s.ResistanceFactor[v] = 1.0f;
        s.AccuracyFactor[v] = 1.0f;
        s.ExcessAccuracy[v] = 0.0f;
    }
    FillDPWTables(s);

    // The lists are still disabled, so these selections run no handler.
    for (Vessel v = 1; v <= 2; ++v) {
        m.ShipClass[v].setIndex(0);
        m.TargetDistance[v].setIndex(0);
        m.ShipClass[v].setEnabled(true);
        m.TargetDistance[v].setEnabled(true);
    }
    m.ShipTier[1].setIndex(4);
    m.ShipTier[2].setIndex(0);
    m.ShipTier[1].setEnabled(true);
    m.ShipTier[2].setEnabled(true);
    m.PowerLevel[1].setIndex(13);
    m.PowerLevel[2].setIndex(0);
    m.PowerLevel[1].setEnabled(true);
    m.PowerLevel[2].setEnabled(true);

    c.Alpha().WeaponType[2].setIndex(1);

    CalculatePower(c, 1, true);
    CalculatePower(c, 2, true);
}

void WireHandlers(Calculator& c) {
    MainSelection& m = c.main;
    Calculator* calc = &c;
    for (int i = 1; i <= 4; ++i) {
        m.Forward[i].setHandler([calc, i] { PortClicked(*calc, 1, true, i); });
        m.Rear[i].setHandler([calc, i] { PortClicked(*calc, 1, false, i); });
        m.CForward[i].setHandler([calc, i] { PortClicked(*calc, 2, true, i); });
        m.CRear[i].setHandler([calc, i] { PortClicked(*calc, 2, false, i); });
    }
    for (Vessel v = 1; v <= 2; ++v) {
        m.ShipClass[v].setHandler([calc, v] { ShipClassClicked(*calc, v); });
        m.ShipTier[v].setHandler([calc, v] { ShipTierClicked(*calc, v); });
        m.ShipSubclass[v].setHandler([calc, v] { ShipSubclassClicked(*calc, v); });
        m.PowerLevel[v].setHandler([calc, v] { PowerLevelClicked(*calc, v); });
        m.TargetDistance[v].setHandler([calc, v] { TargetDistanceClicked(*calc, v); });
        m.ShuttleRank[v].setHandler([calc, v] { ShuttleRankClicked(*calc, v); });
        m.ShuttleMod[v].setHandler([calc, v] { ShuttleModClicked(*calc, v); });
    }
    m.Simplified.setHandler([calc] { SimplifiedClicked(*calc); });
    m.Reset.setHandler([calc] { ResetClicked(*calc, 1); });
    m.CReset.setHandler([calc] { ResetClicked(*calc, 2); });
    m.Compare.setHandler([calc] { CompareClicked(*calc); });
    WireScrollBars(c);
    m.HideCompare.setHandler([calc] { HideCompareClicked(*calc); });

    for (Vessel v = 1; v <= 2; ++v) {
        for (int k = 1; k <= 2; ++k)
            c.settings[v].WeaponType[k].setHandler([calc, v, k] { WeaponTypeChanged(*calc, v, k); });
    }
    WireInterimSettingsHandlers(c);
}

} // namespace vantorel
