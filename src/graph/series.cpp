#include "graph/series.h"

#include "engine/counting.h"
#include "engine/dps.h"
#include "engine/numbers.h"
#include "engine/power.h"
#include "graph/graph.h"
#include "graph/key.h"
#include "graph/scale.h"
#include "graph/titles.h"

#include <vector>

namespace vantorel {

namespace {

constexpr Colour Rgb(int red, int green, int blue) {
    return static_cast<Colour>(red) + 256u * static_cast<Colour>(green) + 65536u * static_cast<Colour>(blue);
}

constexpr Colour kAlphaColour = Rgb(255, 0, 0);
constexpr Colour kOmegaColour = Rgb(255, 255, 0);
// A single vessel's lines run from red to yellow.
constexpr std::array<Colour, 6> kSingleColours = {Rgb(255, 0, 0),   Rgb(255, 50, 0),  Rgb(255, 100, 0),
                                                  Rgb(255, 150, 0), Rgb(255, 200, 0), Rgb(255, 250, 0)};
constexpr std::array<Colour, 3> kAlphaColours = {Rgb(255, 0, 0), Rgb(255, 50, 0), Rgb(255, 100, 0)};
constexpr std::array<Colour, 3> kOmegaColours = {Rgb(255, 255, 0), Rgb(200, 255, 0), Rgb(150, 255, 0)};

const char* const kDistanceText[10] = {"0-1 km", "2 km", "3 km", "4 km", "5 km",
                                       "6 km",   "7 km", "8 km", "9 km", "10 km"};

GraphLine AtPower(int power, const LineInput& in) { return GraphLine{power, in.range, PlainText(power), 0}; }

GraphLine AtSetting(int setting, const LineInput& in) {
    const int power = PowerAtSetting(setting, in.bonus);
    return GraphLine{power, in.range, SettingText(setting, power), 0};
}

GraphLine AtRange(int range, const LineInput& in) { return GraphLine{in.power, range, kDistanceText[range], 0}; }

// The lowest setting a single vessel's power comparison shows: below 35
// only where the bonus lifts it well into the tested powers.
int LowestSetting(const BonusAt& bonus) {
    if (bonus(25) >= 10.0f) return 25;
    if (bonus(30) >= 5.0f) return 30;
    return 35;
}

float BonusOf(const Calculator& c, Vessel v, int setting) { return PowerBonusAt(c, v, setting); }

bool Extrapolates(const Calculator& c, Vessel v) { return c.settings[v].ExtrapolatePower.value() == 1; }

LineInput InputOf(const Calculator& c, Vessel v, GraphMode mode) {
    LineInput in;
    in.mode = mode;
    in.extrapolate = Extrapolates(c, v);
    in.power = GetPowerLevel(c, v, Bonus::With);
    in.range = GetRange(c, v);
    in.bonus = [&c, v](int setting) { return BonusOf(c, v, setting); };
    return in;
}

bool Simple(const Calculator& c) { return c.main.Simplified.value() == 1; }

// The values that count for the scale: with simplified arcs only forward,
// side and rear.
void Collect(std::vector<float>& values, const ArcValues& arcs, bool simple) {
    if (simple) {
        for (int k : {0, 4, 5})
            values.push_back(arcs[k]);
    } else {
        values.insert(values.end(), arcs.arc.begin(), arcs.arc.end());
    }
}

// The standard graph: the last results of each vessel. False when no build
// has any DPS, so that there is nothing to show.
bool DrawStandard(Calculator& c) {
    const ArcValues alpha = ArcsOf(c.state, 1);
    const ArcValues omega = ArcsOf(c.state, 2);
    std::vector<float> values;
    Collect(values, alpha, Simple(c));
    Collect(values, omega, Simple(c));
    const float largest = CheckMaxDPS(values);
    if (largest == 0.0f) return false;
    GraphScale(c, largest);
    GraphDraw(c, 0, alpha, kAlphaColour);
    if (c.state.Comparing != 0) {
        GraphDraw(c, 1, omega, kOmegaColour);
        KeyControl(c, KeyMode::Shown, KeyTexts{{"Alpha", "Omega"}, "", ""});
    } else {
        KeyControl(c, KeyMode::None, KeyTexts{});
    }
    return true;
}

// Power and range comparisons. The scale comes from the line expected to
// be the highest: the top power, or the nearest distance.
void DrawComparison(Calculator& c, GraphMode mode) {
    const bool comparing = c.state.Comparing != 0;
    std::vector<float> values;
    for (Vessel v = 1; v <= (comparing ? 2 : 1); ++v) {
        int power = GetPowerLevel(c, v, Bonus::With);
        int range = 0;
        if (mode == GraphMode::PowerLevels) {
            range = GetRange(c, v);
            power = Extrapolates(c, v) ? PowerAtSetting(100, [&c, v](int s) { return BonusOf(c, v, s); }) : 125;
        }
        Collect(values, ArcsAt(c, v, power, range), Simple(c));
    }
    GraphScale(c, CheckMaxDPS(values));

    KeyTexts key;
    if (comparing) {
        const std::array<GraphLine, 3> alpha = ComparedLines(InputOf(c, 1, mode), 1);
        const std::array<GraphLine, 3> omega = ComparedLines(InputOf(c, 2, mode), 2);
        for (int i = 0; i < 3; ++i) {
            const auto k = static_cast<std::size_t>(i);
            const ArcValues a = ArcsAt(c, 1, alpha[k].power, alpha[k].range);
            const ArcValues o = ArcsAt(c, 2, omega[k].power, omega[k].range);
            GraphDraw(c, i, a, alpha[k].colour);
            GraphDraw(c, i + 3, o, omega[k].colour);
            key.labels[k] = alpha[k].text;
            key.labels[k + 3] = omega[k].text;
        }
        key.title1 = "Alpha";
        key.title2 = "Omega";
    } else {
        const LineSet set = SingleVesselLines(InputOf(c, 1, mode));
        for (int i = 0; i < set.count; ++i) {
            const GraphLine& line = set.lines[static_cast<std::size_t>(i)];
            GraphDraw(c, i, ArcsAt(c, 1, line.power, line.range), line.colour);
            key.labels[static_cast<std::size_t>(i)] = line.text;
        }
        key.title1 = set.title;
    }
    KeyControl(c, KeyMode::Shown, key);
}

// The fourth arc's name follows the build: a broadside where neither the
// front pocket nor the forward 180 arc is in use.
void FourthArcName(GraphWindow& g, const MainSelection& m) {
    if (!m.FiringArc[6].visible() && !m.FiringArc[3].visible()) {
        g.XAxis[3].setLeft(6855);
        g.XAxis[3].setCaption("Broadside");
        g.XAxis[4].setVisible(false);
    } else {
        g.XAxis[3].setLeft(6135);
        g.XAxis[3].setCaption("Front Pocket");
        g.XAxis[4].setVisible(true);
    }
}

} // namespace

GraphMode GraphModeOf(const GraphWindow& g) {
    const int index = g.GraphMode.index();
    if (index == 1) return GraphMode::PowerLevels;
    if (index == 2) return GraphMode::Ranges;
    return GraphMode::Standard;
}

int PowerAtSetting(int setting, const BonusAt& bonus) {
    return WholeNumber(static_cast<float>(setting) + bonus(setting));
}

std::string SettingText(int setting, int power) { return PlainText(setting) + " (" + PlainText(power) + ")"; }

LineSet SingleVesselLines(const LineInput& in) {
    LineSet set;
    if (in.mode == GraphMode::PowerLevels) {
        set.title = "Weapon Power";
        if (in.extrapolate) {
            const int settings[6] = {100, 85, 70, 55, 40, LowestSetting(in.bonus)};
            for (int setting : settings)
                set.lines[static_cast<std::size_t>(set.count++)] = AtSetting(setting, in);
        } else {
            for (int power : {125, 100, 75, 50, 35})
                set.lines[static_cast<std::size_t>(set.count++)] = AtPower(power, in);
        }
    } else if (in.mode == GraphMode::Ranges) {
        set.title = "Target Distance";
        for (int range : {0, 1, 3, 5, 7, 9})
            set.lines[static_cast<std::size_t>(set.count++)] = AtRange(range, in);
    }
    for (int i = 0; i < set.count; ++i)
        set.lines[static_cast<std::size_t>(i)].colour = kSingleColours[static_cast<std::size_t>(i)];
    return set;
}

std::array<GraphLine, 3> ComparedLines(const LineInput& in, Vessel v) {
    std::array<GraphLine, 3> lines{};
    if (in.mode == GraphMode::Ranges) {
        lines = {AtRange(0, in), AtRange(4, in), AtRange(9, in)};
    } else if (in.extrapolate) {
        lines = {AtSetting(100, in), AtSetting(75, in), AtSetting(50, in)};
    } else {
        lines = {AtPower(125, in), AtPower(100, in), AtPower(50, in)};
    }
    const std::array<Colour, 3>& colours = v == 1 ? kAlphaColours : kOmegaColours;
    for (std::size_t i = 0; i < 3; ++i)
        lines[i].colour = colours[i];
    return lines;
}

ArcValues ArcsAt(Calculator& c, Vessel v, int power, int range) {
    const VesselFactors factors = FactorsOf(c, v);
    ArcValues arcs;
    for (int row = 0; row <= 5; ++row) {
        const FiringSet set{RowCounts(c.state, v, row), power, range};
        arcs[row] = CalculateDPS(c, factors, set, v, SkillEffect::Counted);
    }
    return arcs;
}

void GraphControl(Calculator& c) {
    GraphWindow& g = c.graph;
    if (!g.Form.visible()) return;
    GraphReset(c);
    GraphTitle(c);
    if (!Simple(c)) FourthArcName(g, c.main);

    const GraphMode mode = GraphModeOf(g);
    if (mode == GraphMode::Standard) {
        if (!DrawStandard(c)) return;
    } else {
        DrawComparison(c, mode);
    }
    if (g.DisplayOnUpdate.visible() && g.DisplayOnUpdate.value() == 1) g.Form.bringToFront();
}

} // namespace vantorel
