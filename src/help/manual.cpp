#include "help/manual.h"

#include <array>
#include <cstddef>

namespace vantorel {
namespace {

using enum ManualStyle;

constexpr std::string_view kAuthorLine = "by the Vantorel developers";

// The manual, paragraph by paragraph. The headings follow the order in which
// the program's windows and their settings are met; the help buttons find
// their sections by these heading texts, so a heading is renamed together
// with kSectionHeadings below.
constexpr ManualParagraph kManual[] = {
    {Title, "Vantorel v 4.0"},
    {Author, kAuthorLine},
    {Heading, "Features"},
    {Bullet, "Calculates the DPS (damage per second) of a starship configuration in every firing arc of "
             "the ship."},
    {Bullet, "Calculates the average burst damage of torpedoes, mines and Beam Overload."},
    {Bullet, "Compares two builds side by side, with colour coded results that show at a glance which "
             "build is stronger in each arc, and by how much."},
    {Bullet, "Draws graphs of one build or of two builds across the firing arcs."},
    {Bullet, "Shows how the DPS of a build changes with weapon power level or with range."},
    {Bullet, "Takes combat parameters into account: critical hits, the target's damage resistance and its "
             "defense rating."},
    {Bullet, "Lets you customise a build by rank, equipment, weapon marks, mods, tactical consoles, "
             "captain skills and bridge officer skills."},
    {Bullet, "Works out the weapon power level that you actually reach at a power setting."},
    {Bullet, "Shows the damage of each weapon type as the game's own tooltips display it."},
    {Heading, "Introduction"},
    {Body, "Vantorel is a calculator for the starship weapons of Star Trek Online. It is meant as a "
           "first step when you compare starship configurations: which weapons to fit in which ports, "
           "and what a change of ship, skills or equipment does to your damage in each firing arc. "
           "Instead of flying the same mission again and again with different loadouts, you can try "
           "them out here in a few clicks and take only the most promising ones into the game."},
    {Body, "The numbers do not come from guesses about the game's formulas. They rest on weapon scaling "
           "tests: long series of firing tests in which the damage of every energy weapon type was "
           "measured at several weapon power levels, with one to eight weapons equipped at the same "
           "time."},
    {Body, "Keep in mind that the results are best case results. They assume that every weapon in an "
           "arc fires at the target all the time, at the weapon power you selected. In a real fight you "
           "turn, you divert power, targets move in and out of your arcs, and shields and skills change "
           "from moment to moment. Vantorel tells you what a build can do; it is no replacement for "
           "playing it. Use it to narrow down your choices, then try the best candidates in the game."},
    {Heading, "How Does It Work?"},
    {Body, "The key idea is the damage per weapon, or DPW: the DPS that one energy weapon adds when a "
           "certain number of energy weapons fire together. All your energy weapons draw on the same "
           "weapon power. The more weapons you fire at once, the faster that power drains, and the less "
           "damage each single weapon does. So the DPW of a weapon drops as more weapons are equipped."},
    {Body, "An example at 100 weapon power: one Beam Array firing alone has a DPW of 96.735. With two "
           "weapons firing it drops to 90.707 per array, with three to 82.654, with four to 74.552, and "
           "with eight weapons it is down to 44.472. Every weapon type has its own figures. The tests "
           "measured them at five weapon power levels, 35, 50, 75, 100 and 125, for one to eight "
           "weapons, and each series is held as a curve through the tested values."},
    {Body, "To find the DPS of a firing arc, Vantorel counts all the energy weapons that can fire into "
           "that arc, looks up the DPW of each of them for that total number, and adds them up. Then it "
           "applies everything else: the distance to the target, your activated skills, your equipment, "
           "critical hits, and, if you ask for them, the target's damage resistance and your accuracy. "
           "Three Beam Arrays and a Dual Beam Bank firing into the same arc count as four weapons, so "
           "each of them gets the DPW for four weapons."},
    {Body, "This is why the result depends so much on the arc. Dual Cannons and Dual Heavy Cannons fire "
           "only into a 45 degree arc straight ahead, a Dual Beam Bank into 90 degrees, a single Cannon "
           "into 180 degrees, a Beam Array into 250 degrees, and a Turret all around. A wide arc has "
           "fewer weapons firing into it, and those get a higher DPW each, while in a narrow arc ahead "
           "of the ship all your weapons may fire at once."},
    {Body, "Torpedoes and mines are not energy weapons and have no DPW. They are reported separately, "
           "as the average damage of one burst."},
    {Heading, "How Accurate Is It?"},
    {Body, "The calculated results were checked against real combat: builds were flown against a "
           "target, their damage was measured from combat logs, and the measured DPS was compared to "
           "what Vantorel calculates for the same build. Across all the builds that were checked, the "
           "margin of error is about 0.6% on average, and 1.29% at worst."},
    {Body, "Some examples at 100 weapon power and 0-1 km, in Relative DPS mode:"},
    {Bullet, "1 Beam Array: calculated 100, actual 100.41."},
    {Bullet, "2 Turrets: calculated 136.015, actual 135.55."},
    {Bullet, "3 Cannons: calculated 304.189, actual 302.61."},
    {Bullet, "2 Dual Heavy Cannons: calculated 275.711, actual 277.89."},
    {Bullet, "4 Dual Cannons: calculated 451.05, actual 453.08."},
    {Bullet, "4 Beam Arrays: calculated 308.273, actual 312.25."},
    {Body, "This holds at the five tested power levels. Results at other power levels are estimates "
           "(see Power Settings)."},
    {Heading, "Basic Mode: Understanding Relative DPS"},
    {Body, "When you start the program it is in Relative DPS mode. In this mode all damage is measured "
           "against one yardstick: a single Beam Array at 100 weapon power, with default combat "
           "settings, counts as 100 DPS. A build that shows 300 in an arc does three times the damage "
           "of one Beam Array there."},
    {Body, "Relative DPS is the default because it answers the question most players ask first: which "
           "weapons, in which ports, on which ship, give the most damage in the arcs I fight in? That "
           "answer depends little on your weapon marks, consoles or weapon skills, so in this mode they "
           "are left out, the ports show the weapons without an energy type (\"Beam Array\" rather than "
           "\"Phaser Beam Array\"), and you only have to pick the weapons. Activated skills such as Beam "
           "Fire At Will, Rapid Fire or Torpedo High Yield still count, and so do the combat settings."},
    {Body, "Leave Relative DPS mode when you want the numbers in the game's own terms, or when what you "
           "want to compare is your equipment: a higher weapon mark, another tactical console, more "
           "points in a weapon skill. Tactical Team and the Attack Patterns also need it off, because "
           "they work on the base damage of your weapons. To leave the mode, uncheck Relative DPS in "
           "the Weapon Settings section of the Advanced Settings."},
    {Heading, "Known Limitations"},
    {Body, "The weapon tests have no data for Dual Cannons or Dual Heavy Cannons with eight energy "
           "weapons firing at once. A ship with four forward energy weapons, among them Dual Cannons or "
           "Dual Heavy Cannons, and four Turrets at the rear, such as a tier 5 Battle Cruiser, "
           "therefore cannot be calculated in its Forward 45 arc. The box shows -1 and the note at the "
           "top of the window explains why; the wider arcs are calculated as usual. Remove one forward "
           "energy weapon or one rear Turret to get a result."},
    {Body, "Plasma Mines are calculated like other mines: their plasma burn is not included. The plasma "
           "burn of Plasma Torpedoes is included, at its average."},
    {Body, "The program does not check whether your ship has the bridge officer stations for the skills "
           "you activate, and it saves nothing: all settings are lost when you close it."},
    {Heading, "Using the Vantorel"},
    {Body, "The main window opens with an unrestricted tier 5 vessel, called Alpha, with four forward "
           "and four rear weapon ports, at 100 weapon power and a target distance of 0-1 km. The short "
           "course:"},
    {Bullet, "Choose your ship class and tier at the top left, then a weapon for each forward and rear "
             "weapon port."},
    {Bullet, "Read the firing arcs in the middle of the window. Each box shows the DPS in one arc of your "
             "ship, and the picture shows which arc it is. The boxes at the top and bottom show the "
             "average burst damage of your front and rear projectiles. Hold the mouse over a box to see "
             "how its number is made up."},
    {Bullet, "Press Compare to set up a second build, Omega, beside the first one. The boxes are then "
             "coloured to show which build does more damage in each arc."},
    {Bullet, "Press Graph Results to draw your builds across the arcs, or across power levels or ranges."},
    {Bullet, "Check Simplified Firing Arcs to see only three boxes: Forward, Side and Rear."},
    {Bullet, "Press Show Settings to open the Advanced Settings, where you enter your rank, skills and "
             "equipment, and can leave Relative DPS mode."},
    {Body, "The Help buttons of the main window, the graph, Alpha's skills window and the settings "
           "windows open this documentation at the section that describes them."},
    {WindowHeading, "Main Window"},
    {Body, "The main window holds Alpha's build on the left, the firing arc display in the middle and, "
           "in comparison mode, Omega's build on the right. If your screen is too small for the window, "
           "scroll bars appear."},
    {Subheading, "Ship Class/Ship Tier/Ship Sub-Class"},
    {Body, "These lists select your ship. The class list offers the classes that your captain's faction "
           "and rank allow. In unrestricted mode (see Character Settings) it offers the classes of both "
           "factions under the headings Federation and Klingon. The headings can be selected too, for "
           "the historical Federation vessels and an unrestricted Klingon ship, and the first row, "
           "Unrestricted, is a generic vessel with the ports and console slots typical of its tier."},
    {Body, "The tier list offers the tiers of the class that your rank allows. When you change the "
           "class, the tier is kept if the new class has it; otherwise the highest tier of the new "
           "class is selected. Shuttlecraft have a variable tier, which follows your rank."},
    {Body, "Where a class and tier come in several variants, a third list, Ship Sub-Class, appears. "
           "Variants can differ in their forward and rear ports, in the weapons they mount (only some "
           "cruisers take dual cannons) and in their tactical console slots. Some are only offered to a "
           "Vice Admiral or Lieutenant General. For the historical Federation vessels the variant is "
           "picked anew whenever you change the class or tier."},
    {Body, "On the Omega side each list starts with \"Same As Alpha\": Omega flies the same ship as "
           "Alpha. If Omega's captain is of the other faction, Omega flies the closest ship of its own "
           "faction instead: a Cruiser becomes a Battle Cruiser, an Escort a Raptor, a Carrier a "
           "Science Vessel, and so on; at tier 1 Cruiser and Bird of Prey swap. If Omega's rank is "
           "below the tier of Alpha's ship, Omega's tier is cut down to its rank."},
    {Subheading, "Forward Weapons/Rear Weapons"},
    {Body, "A ship has up to four forward and four rear weapon ports, and only the ports it really has "
           "are shown. Choose a weapon for each port from its list. The forward ports offer Beam Array, "
           "Cannon, Dual Beam Bank, Dual Cannons, Dual Heavy Cannons, Turret and Torpedo Launcher; "
           "ships that cannot mount dual cannons do not offer them, and shuttlecraft add a Shuttle Beam "
           "Array. The rear ports offer Beam Array, Turret, Torpedo Launcher and Mine Launcher. \"Empty\" "
           "leaves a port empty. You can type into a port, but only the weapons of the list count."},
    {Body, "The names carry your damage types, as in \"Phaser Beam Array\" or \"Quantum Torpedo Launcher\", "
           "and change with them. When you change the ship, each port keeps its weapon if the new ship "
           "has that port; Dual Cannons on a ship that cannot mount them become a Dual Beam Bank, and "
           "the weapons of ports that the new ship lacks are removed."},
    {Body, "When a vessel has a Shuttle Beam Array, two more controls appear below its lists: Rank "
           "(Shuttle Weapons) and Rare Shuttle Array. The damage of a shuttle beam array depends on "
           "your exact grade within your rank, so choose it in the rank list, which names your rank "
           "with a grade from 1 to 10, or 1 to 5 for the two ranks below Vice Admiral. From Vice "
           "Admiral or Lieutenant General on the list is not needed and stays hidden. Check Rare "
           "Shuttle Array if you have the rare shuttle beam array that a second completion of its "
           "feature episode awards. An unrestricted vessel is calculated as a Vice Admiral's, and the "
           "note at the top of the window says so."},
    {Subheading, "Reset"},
    {Body, "Reset clears all weapon ports of its vessel, so that you can start a new loadout. Each "
           "vessel has its own Reset button."},
    {Subheading, "Firing Arc Display"},
    {Body, "In the middle of the window stands a picture of your ship seen from above, with the firing "
           "arcs in use drawn around it, each joined by a line to its result box. A box's caption names "
           "its arc by the width in degrees, centred on the bow or the stern. Forward 45 is the narrow "
           "arc of dual cannons, Forward 90 that of dual beam banks, Forward 180 that of single cannons "
           "and Forward 250 that of forward Beam Arrays. Forward 110 is the part ahead of the ship that "
           "rear Beam Arrays cannot reach. The broadside, where forward and rear Beam Arrays overlap, "
           "shows as Broadside, or as Front Pocket and Rear Pocket where single cannons reach only its "
           "front half. Rear 110, Rear 180 and Rear 250 are the arcs behind the ship. A ship with only "
           "Turrets shows Full 360; with dual weapons and Turrets the last box reads Other 315 or Other "
           "270, the arc outside the dual weapons."},
    {Body, "Only the boxes of arcs that your weapons create are shown. Each box shows the DPS of all "
           "energy weapons that can fire into its arc, as told under How Does It Work?. A value of -1 "
           "means that there is no test data for that combination of weapons (see Known Limitations)."},
    {Body, "The boxes Front Burst, above the arcs, and Rear Burst, below them, show the average damage "
           "of one burst. Front Burst counts your forward torpedoes and a Beam Overload fired from a "
           "Dual Beam Bank, a forward Beam Array or a Shuttle Beam Array. Rear Burst counts your rear "
           "torpedoes, your mines and a Beam Overload from a rear Beam Array or a Shuttle Beam Array. "
           "The figure is one volley, so a second launcher of the same kind does not raise it. Critical "
           "hits are included, and so are resistance and accuracy when you switch them on."},
    {Body, "Hold the mouse over a box to see how its number is made up. The tooltip lists each weapon "
           "type firing into the arc with its number, the activated skill working on it and its share "
           "of the DPS, for example \"1 Dual Beam Bank: 111.777, 2 Beam Arrays: 170.887\". A burst "
           "tooltip lists each torpedo, mine or overload with its damage, and the plasma burn of plasma "
           "torpedoes. With Relative DPS off, the parts of a tooltip can differ from the box by a "
           "fraction of a percent, as the tooltip adds up critical hits slightly differently."},
    {Body, "In comparison mode, Alpha's name appears in red above the left column and Omega's in yellow "
           "above the right one. The picture shows Alpha's ship on its left half and Omega's on its "
           "right half, when the ships differ. Alpha's boxes stand left of the picture and Omega's "
           "right of it, and both sides show every arc that either vessel uses; a vessel without "
           "weapons in an arc shows 0 there."},
    {Body, "The boxes of both vessels are then colour coded. The program divides the higher value of an "
           "arc by the lower one and colours both boxes by that ratio:"},
    {Bullet, "Yellow, both boxes: the ratio is 1.05 or less, so the builds are within 5% of each other."},
    {Bullet, "Light green and light red: the ratio is above 1.05 and up to 1.2. The higher box is green, "
             "the lower red."},
    {Bullet, "Medium green and medium red: the ratio is above 1.2 and up to 1.4."},
    {Bullet, "Green and red: the ratio is above 1.4."},
    {Bullet, "Green and grey: only one vessel has anything in that arc. Both boxes are grey if neither "
             "has."},
    {Body, "A ratio that lies exactly on a bound takes the lower band: exactly 1.2 gives light green "
           "and light red."},
    {Subheading, "Simplified Firing Arcs"},
    {Body, "Check Simplified Firing Arcs to reduce the display to three boxes, Forward, Side and Rear, "
           "and the burst boxes. Forward shows the arc in which all your forward energy weapons fire "
           "together, the value of Forward 45; Side shows all your Beam Arrays and Turrets, the "
           "broadside; Rear shows your rear Beam Arrays and Turrets. Without comparison a box whose "
           "value is 0 turns grey. In comparison mode the three boxes are colour coded, the burst boxes "
           "are not. The graph then draws three points per line."},
    {Subheading, "Weapon Power"},
    {Body, "The Weapon Power Setting list selects the weapon power at which the DPS is calculated. "
           "Normally it offers the five tested levels, 35, 50, 75, 100 and 125. With Extrapolate "
           "Additional Power Settings checked in the Advanced Settings, it offers the power settings 25 "
           "to 100 in steps of 5 instead, each followed by the actual power that your skills, ship and "
           "equipment give at that setting, as in \"75 (92) est.\". The mark \" est.\" stands on every "
           "level that was not tested. Settings whose actual power stays below 35 are left out, and no "
           "actual power goes above 125."},
    {Body, "On the Omega side the first row reads \"Same As Alpha- \" and Alpha's setting, followed by "
           "Omega's own actual power in brackets where it differs. Omega then uses Alpha's setting with "
           "its own bonuses. If Alpha extrapolates and Omega does not, Omega uses the tested level "
           "nearest to Alpha's setting."},
    {Subheading, "Target Distance"},
    {Body, "The distance to the target, from \"0-1 km\" to \"10 km\". Beam weapons lose damage steadily "
           "with distance, down to 65% at 10 km. Cannons and Turrets keep their full damage up to 2 km "
           "and then lose it faster, down to 35% at 10 km. Torpedoes and mines do not depend on "
           "distance. Omega's list starts with \"Same As Alpha\", which takes Alpha's distance."},
    {Subheading, "Activated Skill"},
    {Body, "The Activate Skills button opens the Activated Skills window of its vessel below the main "
           "window; while it is open the button reads Hide Skills. See Activated Skills Window."},
    {Subheading, "Advanced Settings"},
    {Body, "The Show Settings button opens the Advanced Settings window of its vessel beside the main "
           "window; while it is open the button reads Hide Settings. See Advanced Settings Window."},
    {Subheading, "Show Graph/Hide Graph"},
    {Body, "The Graph Results button opens the graph window; while the graph is open the button reads "
           "Hide Graph and closes it. See Graph Window."},
    {Subheading, "Compare"},
    {Body, "Compare widens the window and adds vessel Omega on the right. Omega starts on \"Same As "
           "Alpha\" in its ship, power and distance lists, with skills and settings that follow Alpha's "
           "and with empty weapon ports, so that you only have to choose its weapons to compare two "
           "loadouts on the same ship. Change any of its lists to make it differ from Alpha there."},
    {Body, "The Hide button ends the comparison. The window returns to its single size, Omega's weapons "
           "are cleared, its class, power and distance return to \"Same As Alpha\", and its skills and "
           "settings windows close and follow Alpha again. Its tier list keeps its row."},
    {Subheading, "About"},
    {Body, "The About button shows the program's version and licence, with two buttons: View "
           "Documentation opens this documentation at the start, and View Forum Post opens the "
           "program's forum page in your web browser."},
    {Body, "The note at the top of the window shows a message when one is needed: the rank used for "
           "shuttle weapons, the missing data for dual cannons with eight weapons firing, a reminder "
           "that Tactical Team needs Relative DPS to be disabled, or a few lines about the historical "
           "Federation vessel you selected."},
    {WindowHeading, "Activated Skills Window"},
    {Subheading, "Overview"},
    {Body, "Each vessel has its own Activated Skills window, opened with the Activate Skills button of "
           "the vessel. Here you switch on the bridge officer and captain skills that are active while "
           "you fire, and their effect appears in the results at once. Close hides the window; your "
           "selections stay until the program ends."},
    {Body, "Skills of one kind that can never be active together share one check box: Rapid Fire and "
           "Scatter Volley, High Yield and Spread, and the Attack Patterns. Beam Fire At Will and Beam "
           "Overload can be used together, so each has its own. Beam Overload, the torpedo skills and "
           "Dispersal Pattern change only the burst damage."},
    {Subheading, "Activate Skill Checkbox"},
    {Body, "A skill counts only while its check box is checked. Tactical Team, Attack Pattern and "
           "Attack Pattern Alpha cannot be checked while Relative DPS is on, and they show \"Requires "
           "Relative DPS to be disabled.\"."},
    {Subheading, "Skill Selection"},
    {Body, "Where one check box serves several skills, a list beside it selects the active one: Rapid "
           "Fire or Scatter Volley for cannons, High Yield or Spread for torpedoes, Alpha or Beta for "
           "Dispersal Pattern, and Beta, Delta or Omega for Attack Pattern. Both Dispersal Patterns are "
           "calculated alike."},
    {Subheading, "Rank Selection"},
    {Body, "The level list of each skill selects its rank, 1 to 3, and tells what that rank does: Beam "
           "Fire At Will +20%, +27.5% or +35% beam DPS; Beam Overload 600%, 725% or 850% beam damage; "
           "Rapid Fire +30%, +40% or +50% cannon damage; Scatter Volley +15%, +20% or +25% on up to "
           "three targets; Dispersal Pattern 160%, 240% or 320% of the mines; Tactical Team +18, +24 or "
           "+30 weapons training. The torpedo skills show the damage for your torpedo type, such as "
           "223% for Quantum High Yield 1; Tricobalt torpedoes and mines are not affected by them. "
           "Attack Pattern Omega shows its bonus to base damage, which grows with your attack pattern "
           "skill (see Combat Settings)."},
    {Body, "The version of Attack Pattern Alpha depends on your captain's rank: a Lieutenant has "
           "version 1, a Lieutenant Commander versions 1 and 2, a Commander versions 2 and 3, and from "
           "Captain up version 3. Where only one version exists, it is part of the check box's caption "
           "and the list is hidden; unrestricted captains choose any. The line below shows what the "
           "version adds to base damage, critical chance and critical severity."},
    {Subheading, "Number Of Targets"},
    {Body, "The number of targets within the firing arc or damage radius, 1 to 10. With two or more "
           "targets, Beam Fire At Will counts double, as every beam also hits an extra target; more "
           "targets add nothing. Scatter Volley is multiplied by the targets, up to three. Torpedo "
           "Spread counts each target that its torpedoes reach, and a Heavy Plasma Torpedo burns each "
           "target. Other skills ignore this number."},
    {Subheading, "Same As Alpha (Omega Vessel)"},
    {Body, "The Omega window has a Same As Alpha check box, checked at the start. While it is checked, "
           "the other controls are disabled and Omega uses Alpha's skills. The one exception is the "
           "version of Attack Pattern Alpha, which depends on rank: Omega takes Alpha's version if its "
           "rank allows, and otherwise the closest one it has. Uncheck the box to choose Omega's skills "
           "separately, starting from the copied selections. Ending the comparison checks it again."},
    {Subheading, "Attack Pattern Beta/Delta"},
    {Body, "Attack Pattern Beta and Delta are listed but disabled in this version. When you select "
           "either, its level list reads \"Currently disabled, see documentation.\" and the Attack "
           "Pattern check box is cleared and cannot be checked. Delta mainly protects your own ship, "
           "and Beta's effect on the target is not calculated. Select Omega to use Attack Pattern Omega."},
    {WindowHeading, "Graph Window"},
    {Subheading, "Overview"},
    {Body, "The graph window draws the DPS of your build as a line across six firing arcs: Forward 45, "
           "Forward 90, Forward 110, Front Pocket, Rear Pocket and Rear 110; for some builds the two "
           "pockets are labelled Broadside. With Simplified Firing Arcs checked, a line has three "
           "points: Forward, Side and Rear. Burst damage is not drawn."},
    {Body, "Alpha's line is red and, in comparison mode, Omega's is yellow. The graph is redrawn with "
           "every change you make, and its scale ends just above the highest value, at a multiple of 50 "
           "below 500 and of 100 from there. A line that runs over an earlier one is drawn dotted, so "
           "that both stay visible."},
    {Body, "The title names the kind of graph and the ship or ships; the second line gives weapon "
           "power, range and weaponry, and a third line the activated skills in short form: APA and APO "
           "for Attack Pattern Alpha and Omega, FAW for Beam Fire At Will, CRF for Rapid Fire, CSV for "
           "Scatter Volley and TT for Tactical Team, with levels and targets."},
    {Body, "The graph stands beside the main window, or beside the Advanced Settings windows when they "
           "are open. If the screen has no room, it goes to the lower right corner and a Display Graph "
           "On Update check box appears: check it to bring the graph to the front whenever it is "
           "redrawn. Closing the graph returns it to the standard graph."},
    {Subheading, "Graph Mode"},
    {Body, "The list at the bottom left selects one of three graphs."},
    {Body, "Standard Graph draws the current results: one line for Alpha and, in comparison mode, one "
           "for Omega."},
    {Body, "Power Level Comparison draws one line per power level at the selected distance; the "
           "selected power is ignored. For one vessel the lines are 125, 100, 75, 50 and 35. With "
           "Extrapolate Additional Power Settings they are the settings 100, 85, 70, 55 and 40, and a "
           "sixth, lowest one: 25 if your bonus there is at least 10, 30 if your bonus there is at "
           "least 5, else 35. The key shows each setting with its actual power, as in \"70 (87)\". In "
           "comparison mode each vessel gets three lines: 125, 100 and 50, or the settings 100, 75 and "
           "50."},
    {Body, "Range Comparison draws one line per distance at the selected power; the selected distance "
           "is ignored. For one vessel the lines are 0-1 km, 2 km, 4 km, 6 km, 8 km and 10 km; in "
           "comparison mode each vessel gets 0-1 km, 5 km and 10 km."},
    {Body, "In both, Alpha's lines run from red through orange and Omega's from yellow to yellow-green. "
           "The scale is taken from the line that should be highest, so in rare cases another line can "
           "rise above it."},
    {Subheading, "Hide/Show Key"},
    {Body, "When a graph has more than one line, a key inside the graph names them, with the columns "
           "Alpha and Omega in a comparison. The program puts the key in a corner or at a side where no "
           "line runs. If it has to stand where a line may run, the key gets a small Hide button in its "
           "lower right corner. Press it to fold the key away; the button then reads Show Key and "
           "brings the key back. The key stays hidden until you show it or close the graph."},
    {WindowHeading, "Advanced Settings Window"},
    {Subheading, "Overview"},
    {Body, "Each vessel has an Advanced Settings window, opened with the Show Settings button of the "
           "vessel. With these settings you tailor the results to your own captain, ship and equipment. "
           "The window has four sections, Character, Combat, Power and Weapon Settings, each with its "
           "own Help button."},
    {Body, "White boxes and lists can be changed; grey ones are closed, because a check box has "
           "switched their section off or because your rank does not allow them yet. A box that your "
           "rank closes reads \"N/A\". Typed numbers are kept in range: a skill box takes 0 to 9, and a "
           "value outside is replaced by the nearest one allowed. Close hides the window. All settings "
           "stay until the program ends, but nothing is saved between runs."},
    {Subheading, "Same As Alpha (Omega Vessel)"},
    {Body, "The Omega window has a Same As Alpha check box, checked at the start. While it is checked, "
           "the window is a read-only copy of Alpha's settings, and each change to Alpha is made to "
           "Omega too; only the tactical consoles that Omega equips follow the console slots of Omega's "
           "ship."},
    {Body, "Uncheck it to give Omega settings of its own: the copied values stay and the window opens "
           "for editing. Omega's faction and rank then stand on their first rows, such as \"Same As "
           "Alpha (Vice Admiral)\", and follow Alpha until you choose another row. Ending the comparison "
           "checks the box again."},
    {Subheading, "Copy From Alpha/Omega"},
    {Body, "Each section has a copy button: Copy From Alpha on the Omega window, and Copy From Omega on "
           "the Alpha window, shown only in comparison mode. They work while Omega's Same As Alpha is "
           "unchecked, and copy a section once from the other vessel; both stay free to change "
           "afterwards."},
    {Body, "Copying takes what the receiving vessel's rank allows. Boxes its rank closes keep \"N/A\", a "
           "weapon mark it cannot have becomes Max, a damage type it cannot have stays as it was, and a "
           "console rarity that is too high becomes the highest one left. Copying Combat or Power "
           "Settings also copies whether the section is switched on."},
    {Heading, "Character Settings"},
    {Subheading, "Unrestricted"},
    {Body, "Checked at the start. An unrestricted captain has no faction and no rank limit: all ships, "
           "tiers, marks, damage types and skill boxes are available. Uncheck it to enter your own "
           "captain. The faction becomes Federation, the rank Vice Admiral and the career Unrestricted, "
           "and the main window only offers the ships that this captain can fly."},
    {Subheading, "Faction"},
    {Body, "Federation or Klingon. It decides the ship classes and rank names you see, and whether the "
           "energy type starts on Phaser or Disruptor Weapons."},
    {Subheading, "Rank"},
    {Body, "The rank of your captain, from Ensign (or Warrior) to Vice Admiral (or Lieutenant General). "
           "Ensign and Lieutenant count alike. Each rank opens ships, equipment and skills:"},
    {Bullet, "Ensign, Lieutenant: Cruisers, Birds of Prey and shuttlecraft at tier 1; marks up to II; "
             "Phaser and Disruptor Weapons, Photon and Quantum Projectiles; the boxes Energy Weapons, "
             "Projectile Weapons, Attack Vectors, Warp Core Training, Efficient Bridge Officers and "
             "Equipment Bonuses."},
    {Bullet, "Lieutenant Commander or Sergeant: Escorts, Science Vessels, Battle Cruisers and Raptors, "
             "tier 2; marks up to IV; Plasma Weapons and Projectiles; Beam, Cannon, Mine and Torpedo "
             "Weapons and Combat Maneuvers."},
    {Bullet, "Commander: tier 3; marks up to VI; Tetryon Weapons and Chroniton Projectiles; Battle "
             "Strategy, Weapon Efficiency, and the type skills of Phaser, Disruptor, Photon and Quantum."},
    {Bullet, "Captain: tier 4; marks up to VIII; Polaron Weapons and Transphasic Projectiles; the type "
             "skills of Plasma and Tetryon Weapons and of Plasma and Transphasic Projectiles."},
    {Bullet, "Rear Admiral, Lower Half or Brigadier General: Carriers and tier 5; marks up to X; "
             "Antiproton Weapons and Tricobalt Projectiles; Weapon Performance, the Equipment Bonuses "
             "list of the combat section, and the type skills of Polaron, Antiproton, Chroniton and "
             "Tricobalt."},
    {Bullet, "Rear Admiral, Upper Half or Major General: marks up to XII."},
    {Bullet, "Vice Admiral or Lieutenant General: the Klingon Allied Vessels and some more tier 5 "
             "variants."},
    {Body, "When you lower the rank, what the new rank cannot have is taken away: the tier falls to the "
           "highest one left, the mark to the highest one offered, and closed boxes read \"N/A\"."},
    {Subheading, "Career"},
    {Body, "Engineering, Science or Tactical Officer, or Unrestricted. The career is kept with your "
           "settings, but in this version it changes no result."},
    {Heading, "Combat Settings"},
    {Subheading, "Default Settings"},
    {Body, "Checked at the start: the program uses a critical chance of 4.5% and a critical severity of "
           "75%, as for a captain with the critical skills at their maximum. Your attack pattern skill "
           "then depends on your rank: 18 for a Lieutenant, 48 for a Lieutenant Commander, 100 from "
           "Commander up. Uncheck Default Settings to enter your own skills and equipment; the skill "
           "boxes that your rank allows are filled with 9, the others read \"N/A\"."},
    {Subheading, "Attack Vectors, Combat Maneuvers, Battle Strategy"},
    {Body, "Your points in these starship skills, 0 to 9. Attack Vectors (from Lieutenant) raises your "
           "critical chance, by 2% at 9 points, and your accuracy. Battle Strategy (from Commander) "
           "raises your critical severity, by 25% at 9 points. Combat Maneuvers (from Lieutenant "
           "Commander) only counts toward the attack pattern skill, to which all three add. That skill "
           "sets the strength of Attack Pattern Alpha and Omega."},
    {Body, "Typing 47 into Attack Vectors in the Alpha window is a special switch: it turns critical "
           "hits off, and the critical boxes show 0%, so that you see a build's damage without critical "
           "hits. The Omega window does not take it; there the box holds at most 9."},
    {Subheading, "Equipment Bonuses"},
    {Body, "From Rear Admiral, Lower Half, select the Aegis Hyper-Impulse Engines, the Borg Assimilated "
           "Module, or both. The Aegis engines add 10 to your attack pattern skill; the Borg module "
           "adds 0.92% critical chance and 9.2% critical severity."},
    {Subheading, "Calculate Damage Resistance"},
    {Body, "Check to include the target's damage resistance in the DPS and burst results. It works with "
           "Default Settings too."},
    {Subheading, "Target Resistance"},
    {Body, "The target's damage resistance, by default 11.88, that of a target with maximum Battle "
           "Strategy and the Damage Received accolade bonus. Resistance has diminishing returns: your "
           "damage is divided by 1 plus the resistance in hundreds, so 11.88 removes 10.6% and 100 "
           "removes half."},
    {Subheading, "Calculate Accuracy"},
    {Body, "Check to include misses. Your hit rate is 95%, plus the accuracy of Attack Vectors (15 at 9 "
           "points) and of [Acc] weapon mods, minus the target's defense, and at least 25%; with the "
           "defaults it is 50%. A hit rate above 100% cannot hit more often, but the excess adds a "
           "tenth of itself to your critical chance and all of itself to your critical severity."},
    {Subheading, "Target Defense"},
    {Body, "The target's defense rating, by default 60, from -35 to 100. A stationary target has -15 "
           "and one at full speed 60; add 10 each for an escort's speed bonus, the Elusive trait and "
           "the Aegis equipment bonus. If you have the Accurate trait, subtract 10."},
    {Subheading, "Results"},
    {Body, "Four boxes show the outcome: Critical Chance, Critical Severity, Damage Reduction and Hit "
           "Rate (on the Omega window, Accuracy). Their tooltips list the parts of each number. Damage "
           "Reduction shows 0% and Hit Rate 100% while their check boxes are off."},
    {Heading, "Power Settings"},
    {Subheading, "Extrapolate Additional Power Settings"},
    {Body, "Unchecked at the start: the weapon power list of the main window offers only the five "
           "tested levels, 35, 50, 75, 100 and 125, and this section is closed. Check it to have the "
           "program add the bonuses of your skills, traits, ship and equipment. The power list then "
           "offers the power settings 25 to 100, each with the actual weapon power that you reach at "
           "it, and the calculation uses that actual power. None of the bonuses below counts while the "
           "box is unchecked."},
    {Body, "For this the program has to predict results at power levels that were never tested. It "
           "takes the five known power level results and fits a curve through them by quartic "
           "regression. THESE ARE ONLY ESTIMATES. They should be in the right ballpark, but they can be "
           "wrong, particularly at power levels below 50 when 6 or more weapons are equipped. Every "
           "estimated row of the power list is marked \" est.\". The first time you check the box a "
           "warning says so; uncheck Don't Show This Warning Again in it to see it every time. For "
           "exact results, use settings whose actual power is a tested level."},
    {Subheading, "Warp Core Training, Weapon Efficiency, Weapon Performance"},
    {Body, "Your points in these captain skills, 0 to 9. Warp Core Training (from Lieutenant, 7 when "
           "the section opens) and Weapon Efficiency (from Commander, 9) add weapon power only at "
           "settings below 75, and the more, the lower the setting. Weapon Performance (from Rear "
           "Admiral, Lower Half, 9) adds at every setting, 9.75 at 9 points."},
    {Subheading, "Captain Efficiency Trait"},
    {Body, "Select Efficient Captain or Joined Symbiote (Trill) if your captain has that trait. Both "
           "improve your efficiency below setting 75, Efficient Captain the most."},
    {Subheading, "Efficient Bridge Officers"},
    {Body, "The number of bridge officers with the Efficient trait on your ship, 0 to 5. Each adds to "
           "your efficiency below setting 75."},
    {Subheading, "Warp Theorist"},
    {Body, "Check if your captain has the Warp Theorist trait, which adds 10 to Warp Core Training."},
    {Subheading, "Equipment Bonuses"},
    {Body, "The total weapon power, 0 to 99, that your equipment adds: Plasma Distribution Manifold "
           "consoles, the Borg Assimilated Module, the Efficient Impulse Engine or anything else. It "
           "counts at every setting."},
    {Subheading, "Ship Power Bonus"},
    {Body, "Some ships have extra weapon power by design, which the program adds for you: Escorts, "
           "Raptors and Birds of Prey 15, Battle Cruisers 10, Cruisers from tier 2 up 5, and carriers "
           "and allied vessels by variant. The Current Power Bonus box shows your total bonus at the "
           "setting selected in the main window, and its tooltip lists the parts."},
    {Heading, "Weapon Settings"},
    {Subheading, "Relative DPS"},
    {Body, "Checked at the start (see Basic Mode: Understanding Relative DPS). While it is checked, "
           "most of this section is closed and only the projectile type can be chosen. Uncheck it to "
           "enter your weapons, skills and consoles. It is one setting for both vessels: changing it on "
           "one window changes it on the other. Checking it again clears the section, which starts from "
           "its defaults the next time."},
    {Subheading, "Weapon Mark"},
    {Body, "The mark of your weapons. Max, the first row, is the highest mark that your rank allows, as "
           "in \"Mark XII (Max)\". Each mark adds to the base damage of your energy weapons, torpedoes "
           "and mines."},
    {Subheading, "Weapon Mods"},
    {Body, "Three lists for the mods of your weapons: [Acc] adds 10 accuracy when Calculate Accuracy is "
           "on, [CrtD] 20% critical severity, [CrtH] 2% critical chance, and [Dmg] base damage. Every "
           "mod also raises the rarity of the weapon, which adds a little damage of its own."},
    {Subheading, "Skills"},
    {Body, "Your points in the captain's weapon skills, 0 to 9: Energy Weapons, Beam Weapons and Cannon "
           "Weapons, the skill of your energy type, Projectile Weapons, Mine Weapons, Torpedo Weapons "
           "and the skill of your projectile type. The general skills open with 7 points, the type "
           "skills with 9. Which boxes are open depends on your rank and, for the type skills, on the "
           "type (see Character Settings)."},
    {Subheading, "Energy Weapon Type"},
    {Body, "Your energy damage type, Phaser to Antiproton, and your projectile type, Photon to "
           "Tricobalt. The types name the weapons in your ports, the type skill and console that apply, "
           "and the accolade. Two check boxes add the accolade bonus of your energy type and the "
           "Missile Commander accolade, each +2% base damage; the game lists your accolades under "
           "Player Stats, Passive, From Accolades: Space. The projectile type can be chosen in Relative "
           "DPS mode too, as torpedo types differ in damage."},
    {Subheading, "Tactical Consoles"},
    {Body, "Four console slots. Choose the console, then its mark and rarity; the rarity list shows the "
           "bonus at that mark, as in \"Rare (+17)\". Directed Energy Distribution adds to beams, Prefire "
           "Chamber to cannons and turrets, the energy type console to both, Warhead Yield Chamber to "
           "torpedoes, Variable Geometry Detonators to mines, and the projectile type console to both "
           "of those. The check box of a slot equips the console; an unequipped slot keeps its "
           "selection."},
    {Subheading, "Match Ship Console Limit"},
    {Body, "Checked by default: the program equips as many consoles as your ship has tactical console "
           "slots, from the top slot down, and shows that limit. Consoles in the lower slots are kept "
           "for a ship with more slots. Uncheck it to equip the slots yourself."},
    {Subheading, "Displayed DPS and Displayed Burst Damage"},
    {Body, "These boxes show the damage that the game's own tooltips would display for each weapon type "
           "with your settings: Dual (Heavy) Cannons, Dual Beam Bank, Single Cannon, Beam Array and "
           "Turret at the weapon power named in the heading, and Torpedo Launcher and Mine Launcher. "
           "Compare them with your weapons' tooltips in the game to check your settings. The tooltip of "
           "each box lists the parts of its number: Base Damage, Mark Bonus, Skill Bonus, Console Bonus "
           "and accolade bonus, and where they apply the [Dmg] mod, the weapon rarity, Attack Pattern "
           "Alpha or Omega and Tactical Team."},
};

struct SectionHeading {
    ManualSection section;
    ManualStyle style;
    std::string_view text;
};

// The heading that each help button brings into view.
constexpr SectionHeading kSectionHeadings[] = {
    {ManualSection::Start, Title, "Vantorel v 4.0"},
    {ManualSection::MainWindow, WindowHeading, "Main Window"},
    {ManualSection::ActivatedSkills, WindowHeading, "Activated Skills Window"},
    {ManualSection::GraphWindow, WindowHeading, "Graph Window"},
    {ManualSection::AdvancedSettings, WindowHeading, "Advanced Settings Window"},
    {ManualSection::CharacterSettings, Heading, "Character Settings"},
    {ManualSection::CombatSettings, Heading, "Combat Settings"},
    {ManualSection::PowerSettings, Heading, "Power Settings"},
    {ManualSection::WeaponSettings, Heading, "Weapon Settings"},
};

// Position of the paragraph with this style and text in the joined text, or
// -1 if the manual has none.
constexpr int PositionOf(ManualStyle style, std::string_view text) {
    std::size_t position = 0;
    for (const ManualParagraph& paragraph : kManual) {
        if (paragraph.style == style && paragraph.text == text) return static_cast<int>(position);
        position += paragraph.text.size() + 1;
    }
    return -1;
}

constexpr std::array<int, std::size(kSectionHeadings)> SectionStarts() {
    std::array<int, std::size(kSectionHeadings)> starts{};
    for (std::size_t i = 0; i < std::size(kSectionHeadings); ++i)
        starts[i] = PositionOf(kSectionHeadings[i].style, kSectionHeadings[i].text);
    return starts;
}

constexpr std::array<int, std::size(kSectionHeadings)> kSectionStarts = SectionStarts();

constexpr bool EveryHelpTargetExists() {
    for (std::size_t i = 0; i < std::size(kSectionHeadings); ++i)
        if (static_cast<std::size_t>(kSectionHeadings[i].section) != i || kSectionStarts[i] < 0) return false;
    return true;
}
static_assert(EveryHelpTargetExists(), "every help button needs its heading, in the order of ManualSection");

constexpr std::string_view kLicence =
    "Copyright (c) the Vantorel developers.\n\n"
    "Vantorel is free software. You may use it, copy it, change it and pass it on, alone or as "
    "part of other work, for any purpose and with or without charge, provided that this notice "
    "stays with every copy and with every substantial part of the program.\n\n"
    "Vantorel is a calculator made by players for players. It is not made, endorsed or "
    "supported by the makers of the game, and the names from the game belong to their owners.\n\n"
    "The program comes as it is, without any warranty. Its results are estimates drawn from "
    "test data, and the developers are not liable for any loss or harm that comes from using "
    "the program or from relying on its numbers.";

constexpr std::string_view kForumAddress = "https://vantorel.example.org/forum/vantorel-4-0";

} // namespace

std::span<const ManualParagraph> ManualParagraphs() { return kManual; }

ManualFormat FormatOf(ManualStyle style) {
    switch (style) {
    case Title:
        return {.points = 24.0, .bold = true, .centred = true, .spaceAfter = 60};
    case Author:
        return {.points = 12.0, .italic = true, .centred = true, .spaceAfter = 240};
    case Heading:
        return {.points = 14.0, .bold = true, .spaceBefore = 240, .spaceAfter = 80};
    case WindowHeading:
        return {.points = 14.0, .bold = true, .underline = true, .spaceBefore = 240, .spaceAfter = 80};
    case Subheading:
        return {.points = 12.0, .bold = true, .spaceBefore = 120, .spaceAfter = 40};
    case Body:
        return {.points = 12.0, .spaceAfter = 100};
    case Bullet:
        return {.points = 12.0, .spaceAfter = 40};
    }
    return {};
}

bool StartsSection(ManualStyle style) { return style == Title || style == Heading || style == WindowHeading; }

const std::string& ManualText() {
    static const std::string text = [] {
        std::string joined;
        for (const ManualParagraph& paragraph : kManual) {
            if (!joined.empty()) joined += '\n';
            joined += paragraph.text;
        }
        return joined;
    }();
    return text;
}

int SectionStart(ManualSection section) {
    const auto index = static_cast<std::size_t>(section);
    return index < kSectionStarts.size() ? kSectionStarts[index] : 0;
}

int SectionHeadingAt(int position) {
    int heading = 0;
    int at = 0;
    for (const ManualParagraph& paragraph : kManual) {
        if (at > position) break;
        if (StartsSection(paragraph.style)) heading = at;
        at += static_cast<int>(paragraph.text.size()) + 1;
    }
    return heading;
}

int SectionEndAt(int position) {
    const int heading = SectionHeadingAt(position);
    int at = 0;
    for (const ManualParagraph& paragraph : kManual) {
        if (at > heading && StartsSection(paragraph.style)) return at - 1;
        at += static_cast<int>(paragraph.text.size()) + 1;
    }
    return static_cast<int>(ManualText().size());
}

std::string_view AboutAuthorLine() { return kAuthorLine; }

std::string_view AboutLicence() { return kLicence; }

std::string_view ForumAddress() { return kForumAddress; }

} // namespace vantorel
