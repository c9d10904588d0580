#include "skills/window.h"

#include <initializer_list>
#include <string>

namespace vantorel {

namespace {

// The window in twips: two columns of skills, each a check box with the list
// that chooses between the skills of that box beside it and the level list
// below; the weapon skills on the left, the captain's on the right.
constexpr int kMargin = 240;
constexpr int kColumnWidth = 5400;
constexpr int kColumnLeft[2] = {kMargin, 2 * kMargin + kColumnWidth};
constexpr int kRowStep = 840;
constexpr int kCheckHeight = 285;
constexpr int kListHeight = 315;
constexpr int kLevelBelow = 345;
constexpr int kChoiceLeft = 3000;
constexpr int kButtonWidth = 1200;
constexpr int kButtonHeight = 375;
constexpr int kButtonsTop = kMargin + 5 * kRowStep;
constexpr int kInnerWidth = 3 * kMargin + 2 * kColumnWidth;
constexpr int kInnerHeight = kButtonsTop + kButtonHeight + kMargin;
// The design's frame: 120 twips of borders, 405 of borders and title bar.
constexpr int kOuterWidth = kInnerWidth + 120;
constexpr int kOuterHeight = kInnerHeight + 405;

int RowTop(int row) { return kMargin + row * kRowStep; }

// A skill's block: its check box across the column, or beside the list that
// chooses the skill, and its level list below.
void PlaceSkill(Flag& box, List* choice, List& level, int column, int row) {
    const int left = kColumnLeft[column];
    const int top = RowTop(row);
    box.setRect({left, top, choice ? kChoiceLeft - 120 : kColumnWidth, kCheckHeight});
    if (choice) choice->setRect({left + kChoiceLeft, top - 15, kColumnWidth - kChoiceLeft, kListHeight});
    level.setRect({left, top + kLevelBelow, kColumnWidth, kListHeight});
}

void LayOut(VesselSkills& k) {
    PlaceSkill(k.BeamSkillActivated, nullptr, k.BeamSkillLevel, 0, 0);
    PlaceSkill(k.BeamOverloadActivated, nullptr, k.BeamOverloadLevel, 0, 1);
    PlaceSkill(k.CannonSkillActivated, &k.CannonSkillSelected, k.CannonSkillLevel, 0, 2);
    PlaceSkill(k.TorpedoSkillActivated, &k.TorpedoSkillSelected, k.TorpedoSkillLevel, 0, 3);
    PlaceSkill(k.MineSkillActivated, &k.MineSkillSelected, k.MineSkillLevel, 0, 4);
    PlaceSkill(k.TacticalTeamActivated, nullptr, k.TacticalTeamLevel, 1, 0);
    PlaceSkill(k.AttackPatternActivated, &k.AttackPatternSelected, k.AttackPatternLevel, 1, 1);

    // Attack Pattern Alpha: the version beside the box, what it gives below.
    const int right = kColumnLeft[1];
    const int alphaTop = RowTop(2);
    constexpr int kVersionWidth = 900;
    k.AttackPatternAlpha.setRect({right, alphaTop, kColumnWidth - kVersionWidth - 120, kCheckHeight});
    k.AttackPatternAlphaLevel.setRect(
        {right + kColumnWidth - kVersionWidth, alphaTop - 15, kVersionWidth, kListHeight});
    k.AttackPatternAlphaDescription.setRect({right, alphaTop + kLevelBelow, kColumnWidth, kCheckHeight});

    const int targetsTop = RowTop(3);
    constexpr int kTargetsWidth = 900;
    k.TargetsLabel.setRect({right, targetsTop, kColumnWidth - kTargetsWidth - 120, kCheckHeight});
    k.Targets.setRect({right + kColumnWidth - kTargetsWidth, targetsTop - 15, kTargetsWidth, kListHeight});
    k.SameAsAlpha.setRect({right, RowTop(4), kColumnWidth, kCheckHeight});

    const int closeLeft = right + kColumnWidth - kButtonWidth;
    k.Close.setRect({closeLeft, kButtonsTop, kButtonWidth, kButtonHeight});
    k.Help.setRect({closeLeft - 120 - kButtonWidth, kButtonsTop, kButtonWidth, kButtonHeight});
}

std::string Activates(const char* skill) {
    return std::string("Check to activate ") + skill + ".  Uncheck to deactivate.";
}

// A white caption on the window's black.
void OnBlack(Control& ctl) {
    ctl.setBack(Black);
    ctl.setFore(White);
}

} // namespace

void SetUpSkillsWindow(VesselSkills& k, Vessel v) {
    k.vessel = v;
    const bool omega = v == 2;
    k.Form = Window(omega ? "Omega Vessel- Activated Skills" : "Alpha Vessel- Activated Skills");
    k.Form.setBack(Black);
    k.Form.setWidth(kOuterWidth);
    k.Form.setHeight(kOuterHeight);

    struct Box {
        Flag& box;
        const char* caption;
        const char* tooltipName;
    };
    for (const Box& b : {Box{k.BeamSkillActivated, "Beam Fire At Will", "Beam Fire At Will"},
                         Box{k.BeamOverloadActivated, "Beam Overload", "Beam Overload (Burst Damage only)"},
                         Box{k.CannonSkillActivated, "Cannon", "Cannon skills"},
                         Box{k.MineSkillActivated, "Dispersal Pattern", "Dispersal Pattern skills"},
                         Box{k.TacticalTeamActivated, "Tactical Team", "Tactical Team"},
                         Box{k.TorpedoSkillActivated, "Torpedo", "Torpedo skills"},
                         Box{k.AttackPatternActivated, "Attack Pattern", "Attack Pattern skills"},
                         // The blank goes with the first rebuild for the captain's rank.
                         Box{k.AttackPatternAlpha, "Attack Pattern Alpha ", "Attack Pattern Alpha"}}) {
        b.box = Flag(0, b.caption);
        b.box.setTooltip(Activates(b.tooltipName));
        OnBlack(b.box);
    }

    // The level lists that depend on another choice start empty: the start
    // selections below fill them through their events.
    k.BeamSkillLevel =
        List({"1 (+20% Beam DPS, + hits random extra target)", "2 (+27.5% Beam DPS, + hits random extra target)",
              "3 (+35% Beam DPS, + hits random extra target)"});
    k.BeamOverloadLevel = List({"1 (600% Beam Damage)", "2 (725% Beam Damage)", "3 (850% Beam Damage)"});
    k.CannonSkillSelected = List({"Rapid Fire", "Scatter Volley"});
    k.CannonSkillLevel = List();
    k.MineSkillSelected = List({"Alpha", "Beta"});
    k.MineSkillLevel = List({"1 (160% Mine Count)", "2 (240% Mine Count)", "3 (320% Mine Count)"});
    k.TacticalTeamLevel = List();
    k.TorpedoSkillSelected = List({"High Yield", "Spread"});
    k.TorpedoSkillLevel = List();
    k.AttackPatternSelected = List({"Beta", "Delta", "Omega"});
    k.AttackPatternLevel = List();
    // Blanks as in the box's caption, until the first rebuild.
    k.AttackPatternAlphaLevel = List({"1 ", "2 ", "3 "});
    const char* levelTip = "Select the rank of the skill you wish to activate.";
    for (List* level : {&k.BeamSkillLevel, &k.BeamOverloadLevel, &k.CannonSkillLevel, &k.MineSkillLevel,
                        &k.TacticalTeamLevel, &k.TorpedoSkillLevel, &k.AttackPatternLevel})
        level->setTooltip(levelTip);
    k.CannonSkillSelected.setTooltip("Select the Cannon skill you wish to activate.");
    k.MineSkillSelected.setTooltip("Select the Dispersal Pattern skill you wish to activate.");
    k.TorpedoSkillSelected.setTooltip("Select the Torpedo skill you wish to activate.");
    k.AttackPatternSelected.setTooltip("Select the Attack Pattern you wish to activate.");
    k.AttackPatternAlphaLevel.setTooltip("Select the version of Attack Pattern Alpha which your captain has.");

    k.AttackPatternAlphaDescription = Label();
    OnBlack(k.AttackPatternAlphaDescription);
    k.Targets = Text("1");
    k.Targets.setTooltip(
        "For multiple target skills: select the number of targets within the firing arc or damage radius.");
    k.TargetsLabel = Label("Number Of Targets");
    OnBlack(k.TargetsLabel);
    k.Close = Button("Close", "It's a \"Close\" button, what do you think it does?");
    k.Help = Button("Help", "Click to display the program's documentation.");
    k.Help.setVisible(!omega);
    k.SameAsAlpha = Flag(1, "Same As Alpha");
    k.SameAsAlpha.setTooltip("Check to automatically match the skill selections of the Alpha vessel.  Uncheck to "
                             "select the skills of both vessels separately.");
    OnBlack(k.SameAsAlpha);
    k.SameAsAlpha.setVisible(omega);
    LayOut(k);

    // Omega's window starts as a copy of Alpha's, closed to the user.
    if (omega) {
        for (Control* ctl : std::initializer_list<Control*>{
                 &k.AttackPatternActivated, &k.AttackPatternSelected,   &k.AttackPatternLevel,
                 &k.BeamSkillActivated,     &k.BeamSkillLevel,          &k.BeamOverloadActivated,
                 &k.BeamOverloadLevel,      &k.CannonSkillActivated,    &k.CannonSkillSelected,
                 &k.CannonSkillLevel,       &k.MineSkillActivated,      &k.MineSkillSelected,
                 &k.MineSkillLevel,         &k.TacticalTeamActivated,   &k.TacticalTeamLevel,
                 &k.TorpedoSkillActivated,  &k.TorpedoSkillSelected,    &k.TorpedoSkillLevel,
                 &k.AttackPatternAlpha,     &k.AttackPatternAlphaLevel, &k.Targets})
            ctl->setEnabled(false);
        k.Targets.setBack(Grey);
        k.TargetsLabel.setFore(Grey);
    }
}

void StartSkillsWindow(Calculator& c, Vessel v) {
    VesselSkills& k = c.skills[v];
    // Each selection runs its list's event: the three that choose a skill
    // fill their level lists here.
    k.AttackPatternSelected.setIndex(2);
    k.BeamOverloadLevel.setIndex(0);
    k.BeamSkillLevel.setIndex(0);
    k.CannonSkillSelected.setIndex(0);
    if (v == 1) k.TacticalTeamLevel.setIndex(0);
    k.MineSkillSelected.setIndex(0);
    k.MineSkillLevel.setIndex(0);
    k.TorpedoSkillSelected.setIndex(0);
    if (v == 2) k.TacticalTeamLevel.setIndex(0);
    k.AttackPatternAlphaLevel.setIndex(k.AttackPatternAlphaLevel.count() - 1);
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
