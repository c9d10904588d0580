#pragma once

// Vantorel in five lines:
//  - records: MainSelection, VesselSettings, VesselSkills hold the controls of
//    the windows as fields; CalculatorState holds what the engine works out;
//  - fields: assigning a field runs its handler at once (engine/fields.h);
//  - handlers: plain functions over the records, one header per module, nested;
//  - views: Qt widgets bound one-to-one to fields, no state of their own.
//
// The engine reads and writes these records and nothing above them. The
// windows' own start values (captions, rows, places, colours) are written by
// their modules; the values here are those the engine itself starts from.

#include "engine/fields.h"
#include "engine/kept.h"
#include "engine/windows.h"

#include <cstdint>
#include <random>
#include <string>

namespace vantorel {

using Vessel = std::int16_t; // 1 Alpha, 2 Omega

// The selections of the main window `Form1`, both vessels. Alpha's ports have
// no prefix, Omega's a "C"; lists by vessel carry the vessel as index.
struct MainSelection {
    Window Form1;
    Control Contents; // the page all controls stand on; left/top move it

    Indexed<List, 1, 4> Forward, Rear, CForward, CRear;
    PerVessel<List> ShipClass, ShipTier, ShipSubclass, PowerLevel, TargetDistance, ShuttleRank;
    PerVessel<Flag> ShuttleMod;
    Flag Simplified;

    PerVessel<Label> ShipClasslabel, ShipTierlabel, ShipSubclassLabel, PowerLevellabel, TargetDistancelabel,
        ShuttleRankLabel;
    Label ForwardWeaponlabel, CForwardWeaponlabel, RearWeaponlabel, CRearWeaponlabel;
    Button Reset, CReset;
    PerVessel<Button> Skills, Advanced;
    Button GraphResults, Help, ShowAbout, Compare, HideCompare;
    Label Primarylabel, Secondarylabel, Note, FiringArcsLabel;

    Indexed<Label, 0, 13> FiringArcLabel, FiringArcDPS, CFiringArcLabel, CFiringArcDPS;
    Indexed<Picture, 0, 11> FiringArc, CFiringArc;
    Picture AlphaImage, OmegaImage;
    Line Cline;
    PerVessel<std::string> ShipImageId;

    ScrollBar HScroll1, VScroll1;
};

// The advanced settings of one vessel: window `Alpha` (vessel 1) or `Omega`.
struct VesselSettings {
    Vessel vessel = 1;
    Window Form;
    Control Contents; // the tall page of the four sections; VScroll1 moves it

    Button Close;
    Indexed<Button, 0, 4> Help;
    Indexed<Button, 1, 4> CopySettings;

    // Character section.
    Label CharacterSettingsLabel;
    Flag CharacterSettings{1}; // Alpha only
    Flag SameAsAlpha{1};       // Omega only
    Label FactionLabel, RankLabel, ClassLabel;
    List Faction, Rank, Class;

    // Combat section.
    Label CriticalSettingsLabel;
    Flag CriticalSettings{1};
    Indexed<Text, 1, 3> CriticalSkill;
    Indexed<Label, 1, 3> CriticalSkillLabel;
    List CriticalItem;
    Flag DamageResistance{0};
    Text TargetResistance{"11.88"};
    Label TargetResistanceLabel;
    Flag Accuracy{0};
    Text TargetDefense{"60"};
    Label TargetDefenseLabel;
    Label CritH, CritHlabel, CritD, CritDlabel, DamageReduction, DamageReductionLabel, HitRate, HitRateLabel;

    // Power section.
    Label PowerSettings;
    Flag ExtrapolatePower{0};
    Indexed<Text, 1, 5> PowerSkill;
    Indexed<Label, 1, 5> PowerSkillLabel;
    List PowerCaptain;
    Flag WarpCore{0};
    Label PowerBonus, PowerBonusLabel;

    // Weapon section.
    Label WeaponDamageLabel;
    Flag RelativeDPS{1};
    Label WeaponMarklabel, WeaponModLabel;
    List WeaponMark;
    Indexed<List, 1, 3> WeaponMod;
    Indexed<Label, 1, 2> SkillLabel;
    Indexed<Text, 1, 8> WeaponSkill;
    Indexed<Label, 1, 8> WeaponSkillLabel;
    Indexed<List, 1, 2> WeaponType;
    Indexed<Flag, 1, 2> WeaponAccolade;
    Label TacticalConsoleLabel;
    Flag MatchConsole{1};
    Label MatchConsoleLimit;
    Indexed<Flag, 1, 4> TacticalConsoleEquipped;
    Indexed<List, 1, 4> TacticalConsole, TacticalConsoleMark, TacticalConsoleRarity;
    Indexed<Label, 1, 2> DisplayedDPSLabel;
    Indexed<Label, 1, 7> CalculatedWeaponDPS, CalculatedWeaponDPSLabel;

    ScrollBar VScroll1;
};

// The activated skills of one vessel: window `AlphaSkills` or `OmegaSkills`.
struct VesselSkills {
    Vessel vessel = 1;
    Window Form;

    Flag BeamSkillActivated, BeamOverloadActivated, CannonSkillActivated, MineSkillActivated, TacticalTeamActivated,
        TorpedoSkillActivated, AttackPatternActivated, AttackPatternAlpha;
    List BeamSkillLevel, BeamOverloadLevel, CannonSkillSelected, CannonSkillLevel, MineSkillSelected, MineSkillLevel,
        TacticalTeamLevel, TorpedoSkillSelected, TorpedoSkillLevel, AttackPatternSelected, AttackPatternLevel,
        AttackPatternAlphaLevel;
    Label AttackPatternAlphaDescription;
    Text Targets{"1"};
    Label TargetsLabel;
    Button Close, Help;
    Flag SameAsAlpha{1}; // Omega only
};

// What the engine works out and keeps between calculations.
struct CalculatorState {
    int Comparing = 0; // -1 while Omega is shown
    bool SuppressPowerWarning = false;
    int WindowFitted = 0;

    Indexed<float, 1, 6> SingleWeaponDPW{};
    double DPWCoefficient[7][9][6]{}; // [kind 1..6][count 2..8][k 1..5]

    Indexed<PerVessel<std::int16_t>, 1, 11> WeaponCount{};
    Indexed<PerVessel<float>, 0, 7> ArcDPS{};
    Indexed<bool, 0, 13> ArcShown{};

    PerVessel<float> BeamModifier{}, CannonModifier{}, TorpedoDamage{}, MineDamage{};
    PerVessel<float> ResistanceFactor{}, AccuracyFactor{}, ExcessAccuracy{};
    PerVessel<std::int16_t> ShipPowerBonus{};

    PerVessel<std::int16_t> SkillTargets{}, TorpedoHighYield{}, TorpedoSpread{}, MineSkill{}, BeamOverload{},
        RapidFire{}, ScatterVolley{}, BeamSkill{}, TacticalTeam{}, AttackPatternBeta{}, AttackPatternAlpha{},
        AttackPatternOmega{};
};

// The one pseudo-random sequence of the program, the same on every start.
class Random {
  public:
    // 0 up to but not including 1.
    double next() { return static_cast<double>(m_engine()) / 4294967296.0; }

  private:
    std::mt19937 m_engine{20101017u};
};

struct Calculator;
struct ArcRows; // engine/arcs.h

// How a recalculation reaches the windows. The engine works out the numbers
// of the firing arcs; the main window shows them. The program sets both steps
// once at its start; without them a recalculation only works out numbers.
struct ResultsView {
    // The arcs in use are decided: show their boxes and rebuild the shuttle
    // rank lists, whose selection the DPS of the rows then reads.
    void (*showArcs)(Calculator&) = nullptr;
    // The rows are worked out: captions, tooltips, colours, the note, the
    // graph, from what the recalculation hands over with them.
    void (*showResults)(Calculator&, const ArcRows& rows) = nullptr;
};

// Everything the program knows. `main` (or a test, or the CLI) owns one,
// through the program's start-up (program/program.h), which writes every
// window's start values, wires the handlers and runs the start.
struct Calculator {
    Calculator() = default;
    Calculator(const Calculator&) = delete;
    Calculator& operator=(const Calculator&) = delete;

    MainSelection main;
    PerVessel<VesselSettings> settings;
    PerVessel<VesselSkills> skills;
    CalculatorState state;
    GraphWindow graph;
    DocumentationWindow documentation;
    AboutWindow about;
    NoteWindow note;
    SplashWindow splash;
    Random random;
    ResultsView results;
    // Texts and counts of past recalculations, with their inputs (engine/kept.h).
    Kept kept;

    // Work area of the primary screen in twips, given by the front end.
    int workLeft = 0, workTop = 0, workWidth = 19200, workHeight = 15600;

    VesselSettings& Alpha() { return settings[1]; }
    VesselSettings& Omega() { return settings[2]; }
    const VesselSettings& Alpha() const { return settings[1]; }
    const VesselSettings& Omega() const { return settings[2]; }
};

} // namespace vantorel
