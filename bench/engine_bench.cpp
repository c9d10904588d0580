// The cost of one recalculation: every input ends in CalculateFiringArcs, so
// its time is the delay a user sees after each click. Measured on a heavy
// case: two compared vessels with eight weapons each, custom weapons, custom
// combat settings and activated skills, so every factor, caption and tooltip
// is worked out.

#include "engine/arcs.h"
#include "engine/burst.h"
#include "engine/counting.h"
#include "engine/dps.h"
#include "engine/modifiers.h"
#include "engine/power.h"
#include "mainwindow/tooltips.h"
#include "program/program.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace vantorel {
namespace {

void Fit(Calculator& c, Vessel v, const char* const forward[4], const char* const rear[4]) {
    Indexed<List, 1, 4>& f = v == 1 ? c.main.Forward : c.main.CForward;
    Indexed<List, 1, 4>& r = v == 1 ? c.main.Rear : c.main.CRear;
    for (int i = 1; i <= 4; ++i) {
        f[i].setText(forward[i - 1]);
        r[i].setText(rear[i - 1]);
    }
}

void Skills(Calculator& c, Vessel v) {
    VesselSkills& k = c.skills[v];
    k.BeamSkillActivated.setValue(1);
    k.BeamOverloadActivated.setValue(1);
    k.CannonSkillLevel.setIndex(2);
    k.CannonSkillActivated.setValue(1);
    k.TorpedoSkillActivated.setValue(1);
    k.MineSkillActivated.setValue(1);
    k.TacticalTeamActivated.setValue(1);
    k.AttackPatternAlpha.setValue(1);
    k.Targets.setText("3");
}

std::unique_ptr<Program> HeavyCase() {
    auto c = std::make_unique<Program>();
    c->state.Comparing = -1;
    VesselSettings& a = c->Alpha();
    a.RelativeDPS.setValue(0);
    a.WeaponMark.setIndex(0);
    for (int i = 1; i <= 3; ++i)
        a.WeaponMod[i].setIndex(i + 1);
    for (int i = 1; i <= 8; ++i)
        a.WeaponSkill[i].setText("7");
    a.CriticalSettings.setValue(0);
    for (int i = 1; i <= 3; ++i)
        a.CriticalSkill[i].setText("9");
    a.Accuracy.setValue(1);
    a.DamageResistance.setValue(1);

    const char* const forward[4] = {"Dual Heavy Cannons", "Dual Beam Bank", "Beam Array", "Quantum Torpedo Launcher"};
    const char* const rear[4] = {"Beam Array", "Turret", "Turret", "Quantum Mine Launcher"};
    const char* const cforward[4] = {"Dual Cannons", "Cannon", "Beam Array", "Quantum Torpedo Launcher"};
    const char* const crear[4] = {"Beam Array", "Beam Array", "Turret", "Quantum Torpedo Launcher"};
    Fit(*c, 1, forward, rear);
    Fit(*c, 2, cforward, crear);
    Skills(*c, 1);
    c->skills[2].SameAsAlpha.setValue(0);
    Skills(*c, 2);
    ModifiedDPS(*c, 1);
    ModifiedDPS(*c, 2);
    return c;
}

void FullRecalculation(benchmark::State& state) {
    auto c = HeavyCase();
    for (auto _ : state) {
        CalculateFiringArcs(*c);
        benchmark::DoNotOptimize(c->state.ArcDPS[0][2]);
    }
}
BENCHMARK(FullRecalculation);

// What CalculateFiringArcs works out, without captions and tooltips: the two
// bursts and six rows of each vessel.
void NumbersOnly(benchmark::State& state) {
    auto c = HeavyCase();
    CalculatorState& s = c->state;
    for (auto _ : state) {
        for (Vessel v = 1; v <= 2; ++v) {
            // As the recalculation does: the vessel's factors, power and
            // distance once, then the bursts and the rows.
            const VesselFactors f = FactorsOf(*c, v);
            s.ArcDPS[6][v] = CalculateBurst(*c, f, FrontBurstCounts(s, v), v);
            s.ArcDPS[7][v] = CalculateBurst(*c, f, RearBurstCounts(s, v), v);
            for (int row = 0; row <= 5; ++row)
                s.ArcDPS[row][v] =
                    CalculateDPS(*c, f, {RowCounts(s, v, row), f.power, f.distance}, v, SkillEffect::Counted);
        }
        benchmark::DoNotOptimize(s.ArcDPS[5][2]);
    }
}
BENCHMARK(NumbersOnly);

void OneCalculateDPS(benchmark::State& state) {
    auto c = HeavyCase();
    for (auto _ : state)
        benchmark::DoNotOptimize(CalculateDPS(*c, {{1, 1, 1, 1, 2, 2, 0}, 100, 0}, 1, SkillEffect::Counted));
}
BENCHMARK(OneCalculateDPS);

void OneToolTip(benchmark::State& state) {
    auto c = HeavyCase();
    for (auto _ : state)
        benchmark::DoNotOptimize(CalculateToolTip(*c, {{1, 1, 1, 1, 2, 2, 0}, 100, 0}, 1));
}
BENCHMARK(OneToolTip);

// ModifiedDPS ends in a full recalculation, which is included.
void ModifiedDamage(benchmark::State& state) {
    auto c = HeavyCase();
    for (auto _ : state) {
        ModifiedDPS(*c, 1);
        benchmark::DoNotOptimize(c->state.BeamModifier[1]);
    }
}
BENCHMARK(ModifiedDamage);

} // namespace
} // namespace vantorel
