#pragma once

// The operations of the program, as plain functions over the records. Each
// group names the file that defines it. Booleans passed as arguments are
// plain bool here; the program's -1/0 convention only matters where a value
// is stored in a field.

#include "engine/records.h"

#include <array>

#include <string>

namespace vantorel {

// Relative DPS has one value for both vessels; Alpha's field is the one read.
inline bool RelativeMode(const Calculator& c) { return c.Alpha().RelativeDPS.value() != 0; }
// Omega follows Alpha's settings while its window mirrors Alpha's.
inline bool OmegaMirrorsAlpha(const Calculator& c) { return c.Omega().SameAsAlpha.value() == 1; }
// The settings a vessel's combat figures come from: a mirrored Omega reads Alpha's.
inline const VesselSettings& CombatSource(const Calculator& c, Vessel v) {
    return v == 1 || OmegaMirrorsAlpha(c) ? c.Alpha() : c.Omega();
}
inline VesselSettings& CombatSource(Calculator& c, Vessel v) {
    return v == 1 || OmegaMirrorsAlpha(c) ? c.Alpha() : c.Omega();
}

// ---- Start-up and wiring of handlers (engine/calculator.cpp) -------------
// Runs steps 1 to 6 of the start of the main window. Called by Calculator().
void StartUp(Calculator& c);
// Connects every field's handler to its event function below.
void WireHandlers(Calculator& c);
// Does nothing while the graph window is closed (graph/graph.cpp).
void GraphControl(Calculator& c);

// ---- DPW curves (engine/dpw.cpp) ----------------------------------------
void FillDPWTables(CalculatorState& s);
// The numeric type of the result depends on the path: integer 0 for count 0,
// a single for count 1, a double for counts 2..8. `DPW` keeps that type.
struct DPW {
    enum class Type { Zero, Single, Double } type = Type::Zero;
    float single = 0.0f;
    double dbl = 0.0;
};
DPW DPWCalc(const CalculatorState& s, int power, int kind, int count);

// ---- DPS assembly (engine/dps.cpp) ---------------------------------------
float GetRangeMod(int distance, int group);
float BeamSkillModifier(const Calculator& c, Vessel v);
float CannonSkillModifier(const Calculator& c, Vessel v, bool turret);
float SkillPoints(int table, int level);
float CriticalMultiplier(const Calculator& c, Vessel v, bool boosted, float chance, float severity);
int GetRange(const Calculator& c, Vessel v);
// The factors of the formula that depend on the vessel and not on its
// weapons. A recalculation works them out once per vessel and hands them to
// every row's DPS and tooltip; they cannot change in between.
struct VesselFactors {
    float beamSkill = 1.0f;
    float cannonSkill = 1.0f;
    float turretSkill = 1.0f;
    float critical = 1.0f;        // CriticalMultiplier(v, false, 0, 0)
    float criticalBoosted = 1.0f; // CriticalMultiplier(v, true, 0, 0)
};
VesselFactors FactorsOf(const Calculator& c, Vessel v);
// One kind of energy weapon in a set, with the factors of its term: the DPW
// row it is read from, its distance, skill and equipment factors, and whether
// it takes the severity-boosted critical factor. The DPS sums the terms; the
// results tooltip writes one entry for each.
struct WeaponTerm {
    int count = 0;
    int row = 0;
    bool beam = false;
    float range = 1.0f;
    float skill = 1.0f;
    float modifier = 1.0f;
    bool boosted = false;
};
using WeaponTerms = std::array<WeaponTerm, 7>;
WeaponTerms TermsOf(const Calculator& c, const VesselFactors& f, int dualHeavyCannons, int dualCannons,
                    int dualBeamBanks, int cannons, int beamArrays, int turrets, int shuttleBeamArrays, int distance,
                    Vessel v, bool noSkills);
float CalculateDPS(Calculator& c, const VesselFactors& f, int dualHeavyCannons, int dualCannons, int dualBeamBanks,
                   int cannons, int beamArrays, int turrets, int shuttleBeamArrays, int power, int distance, Vessel v,
                   bool noSkills);
float CalculateDPS(Calculator& c, int dualHeavyCannons, int dualCannons, int dualBeamBanks, int cannons, int beamArrays,
                   int turrets, int shuttleBeamArrays, int power, int distance, Vessel v, bool noSkills);

// ---- Weapon counting (engine/counting.cpp) -------------------------------
void CountWeapons(Calculator& c);

// ---- Firing arcs (engine/arcs.cpp) ---------------------------------------
void CalculateFiringArcs(Calculator& c);
// Index -1 clears the colours of boxes 0..11 on both sides.
void DifferenceColor(Calculator& c, int index, float alphaDPS, float omegaDPS);

// ---- Weapon damage modifiers (engine/modifiers.cpp) -----------------------
void ModifiedDPS(Calculator& c, Vessel v);
void ResetModifier(Calculator& c);
float WeaponSkillBonus(const Calculator& c, int kind, Vessel v);
float ConsoleBonus(const Calculator& c, int kind, Vessel v);
float BaseProjectileDamage(const Calculator& c, Vessel v);

// ---- Critical hits, accuracy, resistance (engine/combat.cpp) ---------------
double GetAttackPatternSkill(const Calculator& c, Vessel v);
void ModifiedCritical(Calculator& c, Vessel v);
void ModifiedAccuracy(Calculator& c, Vessel v);
void ModifiedResistance(Calculator& c, Vessel v);
float TargetResistanceValue(const Calculator& c, Vessel v);

// ---- Power model (engine/power.cpp) --------------------------------------
int GetPowerLevel(const Calculator& c, Vessel v, bool withBonus);
float PowerBonusAt(const Calculator& c, Vessel v, int setting);
void CalculatePower(Calculator& c, Vessel v, bool force);
void UpdateSameAsAlphaPower(Calculator& c);
void ModifiedPower(Calculator& c, Vessel v);

// ---- Burst damage (engine/burst.cpp) -------------------------------------
float CalculateBurst(Calculator& c, int torpedoes, int mines, int dualBeamBanks, int beamArrays, int shuttleBeamArrays,
                     Vessel v);
std::string BurstToolTip(Calculator& c, int torpedoes, int mines, int dualBeamBanks, int beamArrays,
                         int shuttleBeamArrays, Vessel v);
float GetTorpedoSkill(const Calculator& c, Vessel v);

// ---- Activated skill state (engine/skillstate.cpp) -----------------------
void SkillUpdate(Calculator& c, Vessel v);

// ---- Marks and shuttle arrays (engine/marks.cpp) --------------------------
int GetMark(const Calculator& c, Vessel v);
float GetRankMark(const Calculator& c, Vessel v);
float ShuttleArrayModifier(const Calculator& c, Vessel v, int count);
float PartialCriticalBonus(const Calculator& c, Vessel v, bool boosted, float chance, float severity, float share,
                           int weapons);

// ---- Factions, ranks and tiers (catalogue/factions.cpp) ------------------
int IsUnrestricted(const Calculator& c, Vessel v);
int GetFaction(const Calculator& c, Vessel v);
int GetRank(const Calculator& c, Vessel v);
std::string GetClass(const Calculator& c, Vessel v);
int GetTier(const Calculator& c, Vessel v);
int GetSubclass(const Calculator& c, Vessel v);

// ---- Ship catalogue (catalogue/ships.cpp) --------------------------------
struct Ports {
    int forward = 0;
    int rear = 0;
    int list = 1;
};
std::vector<std::string> ClassRows(const Calculator& c, Vessel v);
Ports ShipPorts(const Calculator& c, Vessel v);
int ConsoleSlots(const Calculator& c, Vessel v);
// Tier rows of a class, at a level; the subclass rows of a class and tier.
std::vector<std::string> TierRows(const std::string& shipClass, int level);
std::vector<std::string> SubclassRows(const std::string& shipClass, int tier, int level);
// The lore text of a historical vessel ("" if none).
std::string LoreText(int tier, int row);

// ---- Weapon ports and lists (catalogue/ports.cpp) ------------------------
std::string GetDamageType(const Calculator& c, Vessel v, int group);
void WeaponAdd(Calculator& c, int list, Vessel v);
void WeaponUnlock(Calculator& c, int forward, int rear, Vessel v);
// The port hints: "Forward Weapon Port 1" .. / "Rear Weapon Port 1" ..
std::string ForwardHint(int i);
std::string RearHint(int i);

// ---- Ship selection cascade (catalogue/cascade.cpp) -----------------------
void ShipClassControl(Calculator& c, Vessel v);
void ShipTierControl(Calculator& c);
void ShipSubclassControl(Calculator& c);
void ShipControl(Calculator& c);
void MatchConsoleLimit(Calculator& c, Vessel v, int keep);

// ---- Main window events (mainwindow/events.cpp) ---------------------------
void PortClicked(Calculator& c, Vessel v, bool forward, int i);
void ShipClassClicked(Calculator& c, Vessel v);
void ShipTierClicked(Calculator& c, Vessel v);
void ShipSubclassClicked(Calculator& c, Vessel v);
void PowerLevelClicked(Calculator& c, Vessel v);
void TargetDistanceClicked(Calculator& c, Vessel v);
void ShuttleRankClicked(Calculator& c, Vessel v);
void ShuttleModClicked(Calculator& c, Vessel v);
void SimplifiedClicked(Calculator& c);
void ResetClicked(Calculator& c, Vessel v);
// Display duties of CalculateFiringArcs: boxes shown by the flags, the
// shuttle rank controls, the note.
void ShowArcBoxes(Calculator& c);
void ShuttleRankControls(Calculator& c, Vessel v);
void UpdateNote(Calculator& c);

// ---- Comparison mode (mainwindow/compare.cpp) -----------------------------
void CompareClicked(Calculator& c);
void HideCompareClicked(Calculator& c);
// ---- Window fit (mainwindow/fit.cpp) ----------------------------------------
// The fit of the main window to the work area, run on every resize.
void FitWindow(Calculator& c);

// ---- Results tooltips (mainwindow/tooltips.cpp) ---------------------------
std::string CalculateToolTip(Calculator& c, const VesselFactors& f, int dualHeavyCannons, int dualCannons,
                             int dualBeamBanks, int cannons, int beamArrays, int turrets, int shuttleBeamArrays,
                             int power, int distance, Vessel v);
std::string CalculateToolTip(Calculator& c, int dualHeavyCannons, int dualCannons, int dualBeamBanks, int cannons,
                             int beamArrays, int turrets, int shuttleBeamArrays, int power, int distance, Vessel v);

// ---- Ship image (mainwindow/shipimage.cpp) --------------------------------
void ShipImageControl(Calculator& c);
void DrawShip(Calculator& c, const std::string& shipClass, int tier, int subclass, const std::string& class2, int tier2,
              int subclass2);
// The file name (without folder and ending) for a ship, or "" if the table
// has none; "Klingon" draws one of five by chance.
std::string ShipImageName(Calculator& c, const std::string& shipClass, int tier, int subclass);
void DecideCline(Calculator& c);

// ---- Settings windows (settings/*.cpp) -------------------------------------
void WeaponTypeChanged(Calculator& c, Vessel v, int k);
// Until the settings and skills windows exist, their fields' handlers run the
// recalculation chain that the window's event will run.
void WireInterimSettingsHandlers(Calculator& c);

} // namespace vantorel
