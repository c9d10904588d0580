#include "skills/window.h"

#include <initializer_list>
#include <string>

namespace vantorel {

void SetUpSkillsWindow(VesselSkills& k, Vessel v) {
    k.vessel = v;
    const bool omega = v == 2;
    k.Form = Window(omega ? "Omega Vessel- Activated Skills" : "Alpha Vessel- Activated Skills");
    k.Form.setBack(Black);

    k.BeamSkillActivated = Flag(0, "Beam Fire At Will");
    k.BeamOverloadActivated = Flag(0, "Beam Overload");
    k.CannonSkillActivated = Flag(0, "Cannon");
    k.MineSkillActivated = Flag(0, "Dispersal Pattern");
    k.TacticalTeamActivated = Flag(0, "Tactical Team");
    k.TorpedoSkillActivated = Flag(0, "Torpedo");
    k.AttackPatternActivated = Flag(0, "Attack Pattern");
    k.AttackPatternAlpha = Flag(0, "Attack Pattern Alpha ");

    const std::string relativeOnly = "Requires Relative DPS to be disabled.";
    k.BeamSkillLevel =
        List({"1 (+20% Beam DPS, + hits random extra target)", "2 (+27.5% Beam DPS, + hits random extra target)",
              "3 (+35% Beam DPS, + hits random extra target)"});
    k.BeamOverloadLevel = List({"1 (600% Beam Damage)", "2 (725% Beam Damage)", "3 (850% Beam Damage)"});
    k.CannonSkillSelected = List({"Rapid Fire", "Scatter Volley"});
    k.CannonSkillLevel = List({"1 (+30% Cannon Damage)", "2 (+40% Cannon Damage)", "3 (+50% Cannon Damage)"});
    k.MineSkillSelected = List({"Alpha", "Beta"});
    k.MineSkillLevel = List({"1 (160% Mine Count)", "2 (240% Mine Count)", "3 (320% Mine Count)"});
    k.TacticalTeamLevel = List({relativeOnly, relativeOnly, relativeOnly});
    k.TorpedoSkillSelected = List({"High Yield", "Spread"});
    k.TorpedoSkillLevel = List({"1 (223% Torpedo Damage)", "2 (258% Torpedo Damage)", "3 (295% Torpedo Damage)"});
    k.AttackPatternSelected = List({"Beta", "Delta", "Omega"});
    k.AttackPatternLevel = List({relativeOnly, relativeOnly, relativeOnly});
    k.AttackPatternAlphaLevel = List({"1 ", "2 ", "3 "});
    k.AttackPatternAlphaDescription = Label(relativeOnly);
    k.Targets = Text("1");
    k.TargetsLabel = Label("Number Of Targets");
    k.Close = Button("Close", "It's a \"Close\" button, what do you think it does?");
    k.Help = Button("Help", "Click to display the program's documentation.");
    k.Help.setVisible(!omega);
    k.SameAsAlpha = Flag(1, "Same As Alpha");
    k.SameAsAlpha.setVisible(omega);

    // The start values as the window's creation leaves them.
    k.AttackPatternSelected.setIndex(2);
    k.BeamOverloadLevel.setIndex(0);
    k.BeamSkillLevel.setIndex(0);
    k.CannonSkillSelected.setIndex(0);
    k.TacticalTeamLevel.setIndex(0);
    k.MineSkillSelected.setIndex(0);
    k.MineSkillLevel.setIndex(0);
    k.TorpedoSkillSelected.setIndex(0);
    k.CannonSkillLevel.setIndex(0);
    k.TorpedoSkillLevel.setIndex(0);
    k.AttackPatternLevel.setIndex(0);
    k.AttackPatternAlphaLevel.setIndex(2);
    k.TacticalTeamActivated.setEnabled(false);
    k.AttackPatternActivated.setEnabled(false);
    k.AttackPatternAlpha.setEnabled(false);

    if (omega) {
        for (Control* ctl : std::initializer_list<Control*>{
                 &k.AttackPatternLevel, &k.AttackPatternSelected, &k.BeamSkillActivated, &k.BeamSkillLevel,
                 &k.BeamOverloadActivated, &k.BeamOverloadLevel, &k.CannonSkillActivated, &k.CannonSkillSelected,
                 &k.CannonSkillLevel, &k.MineSkillActivated, &k.MineSkillSelected, &k.MineSkillLevel,
                 &k.TacticalTeamLevel, &k.TorpedoSkillActivated, &k.TorpedoSkillSelected, &k.TorpedoSkillLevel,
                 &k.AttackPatternAlphaLevel, &k.Targets})
            ctl->setEnabled(false);
        k.Targets.setBack(Grey);
        k.TargetsLabel.setFore(Grey);
    }
}

void RegisterFields(FieldTable& table, VesselSkills& k, const char* window) {
    FieldNames b(table, window, &k.Form);
    b.window(k.Form);
    b.one("BeamSkillActivated", k.BeamSkillActivated);
    b.one("BeamOverloadActivated", k.BeamOverloadActivated);
    b.one("CannonSkillActivated", k.CannonSkillActivated);
    b.one("MineSkillActivated", k.MineSkillActivated);
    b.one("TacticalTeamActivated", k.TacticalTeamActivated);
    b.one("TorpedoSkillActivated", k.TorpedoSkillActivated);
    b.one("AttackPatternActivated", k.AttackPatternActivated);
    b.one("AttackPatternAlpha", k.AttackPatternAlpha);
    b.one("BeamSkillLevel", k.BeamSkillLevel);
    b.one("BeamOverloadLevel", k.BeamOverloadLevel);
    b.one("CannonSkillSelected", k.CannonSkillSelected);
    b.one("CannonSkillLevel", k.CannonSkillLevel);
    b.one("MineSkillSelected", k.MineSkillSelected);
    b.one("MineSkillLevel", k.MineSkillLevel);
    b.one("TacticalTeamLevel", k.TacticalTeamLevel);
    b.one("TorpedoSkillSelected", k.TorpedoSkillSelected);
    b.one("TorpedoSkillLevel", k.TorpedoSkillLevel);
    b.one("AttackPatternSelected", k.AttackPatternSelected);
    b.one("AttackPatternLevel", k.AttackPatternLevel);
    b.one("AttackPatternAlphaLevel", k.AttackPatternAlphaLevel);
    b.one("AttackPatternAlphaDescription", k.AttackPatternAlphaDescription);
    b.one("Targets", k.Targets);
    b.one("TargetsLabel", k.TargetsLabel);
    b.one("Close", k.Close);
    b.one("Help", k.Help);
    b.one("SameAsAlpha", k.SameAsAlpha);
}

} // namespace vantorel
