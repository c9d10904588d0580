#pragma once

// The lines of window `Graph`. The standard graph draws the results of the
// last recalculation; the power and range comparisons work each line's six
// arcs out again at the power level or distance that the line stands for.

#include "engine/arcs.h"
#include "engine/records.h"

#include <array>
#include <functional>
#include <string>

namespace vantorel {

enum class GraphMode { Standard = 0, PowerLevels = 1, Ranges = 2 };
// Anything but the two comparisons counts as the standard graph.
GraphMode GraphModeOf(const GraphWindow& g);

// One line of a comparison: the power level and distance index its arcs are
// worked out at, its name in the key, its colour.
struct GraphLine {
    int power = 0;
    int range = 0;
    std::string text;
    Colour colour = 0;
};

// A vessel's power bonus at a power setting.
using BonusAt = std::function<float(int setting)>;

// What a comparison of one vessel depends on.
struct LineInput {
    GraphMode mode = GraphMode::PowerLevels;
    bool extrapolate = false; // the vessel's own ExtrapolatePower
    int power = 100;          // its actual power level
    int range = 0;            // its distance index
    BonusAt bonus;
};

// A single vessel's comparison: five or six lines, red to yellow, and the
// key's title.
struct LineSet {
    std::array<GraphLine, 6> lines{};
    int count = 0;
    std::string title;
};
LineSet SingleVesselLines(const LineInput& in);
// One vessel's three lines in a comparison of two: Alpha red to orange,
// Omega yellow to green.
std::array<GraphLine, 3> ComparedLines(const LineInput& in, Vessel v);
// The power level of a setting with its bonus, and the key's text of it,
// "75 (92)".
int PowerAtSetting(int setting, const BonusAt& bonus);
std::string SettingText(int setting, int power);

// The six arcs of a vessel at a power level and distance index.
ArcValues ArcsAt(Calculator& c, Vessel v, int power, int range);

} // namespace vantorel
