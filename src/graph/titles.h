#pragma once

// The three title lines over the plot and the window's own title: the kind of
// graph and the ships, then power, range and weapons, then the activated
// skills, each in a short form that keeps a comparison to one line, in a font
// that shrinks as the text grows.

#include "engine/records.h"

#include <string>

namespace vantorel {

// What the titles say of one vessel.
struct TitleVessel {
    std::string shipClass; // as GetClass gives it
    int tier = 0;
    int power = 0; // the actual power level
    int distanceIndex = 0;
    std::string distance; // the text of the vessel's distance list
    std::string mark;     // the weapon mark's row, "Max" already read as the top mark
    // Weapon mods by count.
    int acc = 0;
    int dmg = 0;
    int crtD = 0;
    int crtH = 0;
    // Activated skill levels, 0 when off.
    int attackPatternAlpha = 0;
    int attackPatternOmega = 0;
    int fireAtWill = 0;
    int rapidFire = 0;
    int scatterVolley = 0;
    int tacticalTeam = 0;
    int targets = 1;
};

struct TitleFacts {
    int mode = 0; // 0 standard, 1 power levels, 2 ranges
    bool comparing = false;
    bool relative = true;
    TitleVessel alpha;
    TitleVessel omega;
};

struct GraphTitles {
    std::string title;
    std::string windowTitle;
    std::string subtitle;
    std::string skills;
    int titleTop = 240;
    int subtitleTop = 720;
    double titleSize = 18.0;
    double subtitleSize = 14.0;
    double skillsSize = 14.0;
};

// "Mark X [CrtD] [Acc]x2 ": the mark, the single mods, then the repeated
// ones; a comparison shortens "Mark" to "Mk".
enum class MarkText { AsListed, Shortened };
std::string ShortWeaponText(const TitleVessel& v, MarkText mark);
// "FAW2, 3 Targets , ": each skill on and its level, then the targets of
// the skills that hit several.
std::string ShortSkillText(const TitleVessel& v);
GraphTitles MakeGraphTitles(const TitleFacts& facts);

// What the titles read of the calculator now.
TitleFacts TitleFactsOf(const Calculator& c);
// Writes the titles, their places and sizes, and the window's title.
void GraphTitle(Calculator& c);

} // namespace vantorel
