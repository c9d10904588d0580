#pragma once

// The DPS of a set of energy weapons firing together: the DPW of each kind
// for the whole count, scaled by distance, skills, equipment and critical
// hits, then by the target's resistance and the share of hits.

#include "engine/counting.h"
#include "engine/records.h"

#include <array>
#include <string_view>

namespace vantorel {

// Beams and cannons fall off differently with distance.
enum class RangeGroup { Beams = 1, Cannons = 2 };
float GetRangeMod(int distance, RangeGroup group);

// Turrets take their own factor from Scatter Volley.
enum class CannonMount { Fixed, Turret };
float BeamSkillModifier(const Calculator& c, Vessel v);
float CannonSkillModifier(const Calculator& c, Vessel v, CannonMount mount);
// Skill points of a skill level 1..9 in table 1..3 (0 outside).
float SkillPoints(int table, int level);

// Dual Heavy Cannons hit with a boosted severity.
enum class Severity { Plain, Boosted };
// The vessel's own critical chance and severity, read from its settings and
// skills once: every DPS, burst and tooltip of a recalculation multiplies by
// them. The boost is added to the severity before the other bonuses, so the
// boosted severity is summed apart from the plain one, not derived from it.
struct CriticalRates {
    float chance = 0.0f;
    float severity = 0.0f;        // Severity::Plain
    float boostedSeverity = 0.0f; // Severity::Boosted
    bool off = false;             // the Attack Vectors level that switches critical hits off
};
CriticalRates CriticalRatesOf(const Calculator& c, Vessel v);
// The critical factor, chance × severity + 1, with `chance` and `severity`
// added on top of the vessel's own.
float CriticalMultiplier(const CriticalRates& rates, Severity boost, float chance, float severity);
float CriticalMultiplier(const Calculator& c, Vessel v, Severity boost, float chance, float severity);
// The distance index 0..9 of the vessel's selection.
int GetRange(const Calculator& c, Vessel v);

// The factors of the formula that depend on the vessel and not on its
// weapons. A recalculation works them out once per vessel and hands them to
// every burst, row DPS and tooltip; they cannot change in between.
struct VesselFactors {
    float beamSkill = 1.0f;
    float cannonSkill = 1.0f;
    float turretSkill = 1.0f;
    CriticalRates rates;          // what a partial critical bonus adds to
    float critical = 1.0f;        // CriticalMultiplier(v, Plain, 0, 0)
    float criticalBoosted = 1.0f; // CriticalMultiplier(v, Boosted, 0, 0)
    int power = 100;              // GetPowerLevel(v, With)
    int distance = 0;             // GetRange(v)
    float torpedoSkill = 1.0f;    // GetTorpedoSkill(v) while a torpedo skill is active
    bool plasmaTorpedoes = false; // plasma torpedoes burn
};
VesselFactors FactorsOf(const Calculator& c, Vessel v);
// The factor of the activated torpedo skill on the vessel's torpedo type.
float GetTorpedoSkill(const Calculator& c, Vessel v);

// The two torpedo skills that share the skills window's Torpedo box.
enum class TorpedoSkill { HighYield, Spread };
// The damage factor of one torpedo of a skill at level 1 to 3 on a torpedo
// type ("Quantum", without the trailing blank). Tricobalt torpedoes, an
// unknown type and a level outside 1 to 3 give 1: no skill acts on them.
float TorpedoSkillFactor(std::string_view type, TorpedoSkill skill, int level);

// Beam Overload's own DPS leaves the activated skills out.
enum class SkillEffect { Counted, Ignored };

// A set of energy weapons firing together, at a power level and a distance
// index: what a DPS and its tooltip are worked out for.
struct FiringSet {
    WeaponCounts weapons;
    int power = 100;
    int distance = 0;
};

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
WeaponTerms TermsOf(const Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v, SkillEffect skills);

// A set's DPS, rounded to three decimals; -1 for a set the tests never
// covered (dual cannons of either kind among eight weapons).
float CalculateDPS(Calculator& c, const FiringSet& set, Vessel v, SkillEffect skills);
// The same with the vessel's factors worked out already.
float CalculateDPS(Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v, SkillEffect skills);
// What the tooltip of a set's box shows: each kind's count and its part of
// the DPS, which the main window writes out.
ArcToolTipInputs ToolTipInputsOf(const Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v);
// A row of the firing arcs, skills counted: its DPS and its tooltip's
// inputs, in one pass over the terms of its set.
struct RowResult {
    float dps = 0.0f;
    ArcToolTipInputs tooltip;
};
RowResult CalculateRow(Calculator& c, const VesselFactors& f, const FiringSet& set, Vessel v);

} // namespace vantorel
