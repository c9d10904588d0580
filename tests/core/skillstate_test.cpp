#include "engine/calculator.h"

#include <gtest/gtest.h>

#include <memory>

namespace vantorel {
namespace {

struct Levels {
    int beam = 0, overload = 0, rapid = 0, scatter = 0, mine = 0, team = 0, highYield = 0, spread = 0, beta = 0,
        omega = 0, alpha = 0, targets = 1;
};

Levels Read(const CalculatorState& s, Vessel v) {
    return {s.BeamSkill[v],         s.BeamOverload[v],       s.RapidFire[v],          s.ScatterVolley[v],
            s.MineSkill[v],         s.TacticalTeam[v],       s.TorpedoHighYield[v],   s.TorpedoSpread[v],
            s.AttackPatternBeta[v], s.AttackPatternOmega[v], s.AttackPatternAlpha[v], s.SkillTargets[v]};
}

bool operator==(const Levels& a, const Levels& b) {
    return a.beam == b.beam && a.overload == b.overload && a.rapid == b.rapid && a.scatter == b.scatter &&
           a.mine == b.mine && a.team == b.team && a.highYield == b.highYield && a.spread == b.spread &&
           a.beta == b.beta && a.omega == b.omega && a.alpha == b.alpha && a.targets == b.targets;
}

void PrintTo(const Levels& l, std::ostream* os) {
    *os << "beam " << l.beam << " overload " << l.overload << " rapid " << l.rapid << " scatter " << l.scatter
        << " mine " << l.mine << " team " << l.team << " highYield " << l.highYield << " spread " << l.spread
        << " beta " << l.beta << " omega " << l.omega << " alpha " << l.alpha << " targets " << l.targets;
}

// The list indices stand for level - 1, as in the windows.
void Tick(Flag& box, List& level, int index) {
    level.setIndex(index);
    box.setValue(1);
}

TEST(SkillState, Levels) {
    struct Case {
        const char* name;
        void (*setUp)(VesselSkills&);
        Levels expected;
    } cases[] = {
        {"nothing ticked", [](VesselSkills&) {}, {}},
        {"every skill with its own box",
         [](VesselSkills& k) {
             Tick(k.BeamSkillActivated, k.BeamSkillLevel, 1);
             Tick(k.BeamOverloadActivated, k.BeamOverloadLevel, 2);
             Tick(k.MineSkillActivated, k.MineSkillLevel, 0);
             Tick(k.TacticalTeamActivated, k.TacticalTeamLevel, 2);
         },
         {.beam = 2, .overload = 3, .mine = 1, .team = 3}},
        {"a level without its box counts nothing", [](VesselSkills& k) { k.BeamSkillLevel.setIndex(2); }, {}},
        {"Rapid Fire", [](VesselSkills& k) { Tick(k.CannonSkillActivated, k.CannonSkillLevel, 2); }, {.rapid = 3}},
        {"Scatter Volley",
         [](VesselSkills& k) {
             k.CannonSkillSelected.setIndex(1);
             Tick(k.CannonSkillActivated, k.CannonSkillLevel, 1);
         },
         {.scatter = 2}},
        {"cannon box off whatever is selected",
         [](VesselSkills& k) {
             k.CannonSkillSelected.setIndex(1);
             k.CannonSkillLevel.setIndex(2);
         },
         {}},
        {"High Yield",
         [](VesselSkills& k) { Tick(k.TorpedoSkillActivated, k.TorpedoSkillLevel, 0); },
         {.highYield = 1}},
        {"Spread",
         [](VesselSkills& k) {
             k.TorpedoSkillSelected.setIndex(1);
             Tick(k.TorpedoSkillActivated, k.TorpedoSkillLevel, 2);
         },
         {.spread = 3}},
        {"Beta",
         [](VesselSkills& k) {
             k.AttackPatternSelected.setIndex(0);
             Tick(k.AttackPatternActivated, k.AttackPatternLevel, 1);
         },
         {.beta = 2}},
        {"Delta feeds Beta's level",
         [](VesselSkills& k) {
             k.AttackPatternSelected.setIndex(1);
             Tick(k.AttackPatternActivated, k.AttackPatternLevel, 1);
         },
         {.beta = 2}},
        {"Omega", [](VesselSkills& k) { Tick(k.AttackPatternActivated, k.AttackPatternLevel, 0); }, {.omega = 1}},
        {"Attack Pattern Alpha reads its level text, blanks ignored",
         [](VesselSkills& k) { Tick(k.AttackPatternAlpha, k.AttackPatternAlphaLevel, 2); },
         {.alpha = 3}},
        {"targets", [](VesselSkills& k) { k.Targets.setText("4"); }, {.targets = 4}},
        {"targets that are not a number count as one", [](VesselSkills& k) { k.Targets.setText("x"); }, {}},
        {"empty targets count as one", [](VesselSkills& k) { k.Targets.setText(""); }, {}},
        {"numeric targets stay as they are", [](VesselSkills& k) { k.Targets.setText("0"); }, {.targets = 0}},
        {"targets round half to even", [](VesselSkills& k) { k.Targets.setText(" 2.5 "); }, {.targets = 2}},
    };
    for (const Case& k : cases) {
        auto c = std::make_unique<Calculator>();
        k.setUp(c->skills[1]);
        SkillUpdate(*c, 1);
        EXPECT_EQ(Read(c->state, 1), k.expected) << k.name;
    }
}

TEST(SkillState, MirroredOmegaKeepsItsOwnAttackPatternAlphaLevel) {
    auto c = std::make_unique<Calculator>();
    VesselSkills& a = c->skills[1];
    VesselSkills& o = c->skills[2];
    Tick(a.CannonSkillActivated, a.CannonSkillLevel, 1);
    Tick(a.AttackPatternAlpha, a.AttackPatternAlphaLevel, 2);
    a.Targets.setText("3");
    // The Omega window's own choices, which a mirror does not read...
    o.Targets.setText("7");
    o.BeamSkillActivated.setValue(1);
    // ...except the version of Attack Pattern Alpha.
    o.AttackPatternAlphaLevel.setIndex(0);

    SkillUpdate(*c, 2);
    EXPECT_EQ(Read(c->state, 2), (Levels{.rapid = 2, .alpha = 1, .targets = 3}));

    o.SameAsAlpha.setValue(0);
    SkillUpdate(*c, 2);
    EXPECT_EQ(Read(c->state, 2), (Levels{.beam = 1, .targets = 7}));
}

} // namespace
} // namespace vantorel
