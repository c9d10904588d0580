#include "graph/scale.h"

#include "engine/numbers.h"
#include "graph/graph.h"
#include "graph/key.h"

#include <cmath>
#include <cstdlib>
#include <optional>

namespace vantorel {

namespace {

// Beyond any DPS a build can have; larger values are someone's typing.
constexpr float kLargestScale = 1.0e8f;

void Segment(Line& line, int y1, int y2, Colour colour) {
    line.setY1(y1);
    line.setY2(y2);
    line.setVisible(true);
    line.setStyle(LineStyle::Solid);
    line.setFore(colour);
}

bool Overlaps(const Line& a, const Line& b) {
    return std::abs(a.y1() - b.y1()) < kOverlapTwips && std::abs(a.y2() - b.y2()) < kOverlapTwips;
}

} // namespace

float CheckMaxDPS(std::span<const float> values) {
    float largest = 0.0f;
    for (float v : values)
        if (v > largest) largest = v;
    return largest;
}

int GraphScaleTop(float max) {
    if (!(max <= kLargestScale)) max = kLargestScale;
    const int step = max < 500.0f ? 50 : 100;
    int top = step * WholeNumber(max / static_cast<float>(step));
    if (!(static_cast<float>(top) > max)) top += step;
    return top;
}

int ScaleTopOf(const GraphWindow& g) {
    const std::optional<double> top = NumericValue(g.YAxis[10].caption());
    if (!top || !(*top >= 0.5 && *top <= kLargestScale * 2.0)) return 0;
    return WholeNumber(*top);
}

int PlotY(float value, int top) {
    if (top <= 0) return kPlotZero;
    const float y = static_cast<float>(kPlotZero) - (value / static_cast<float>(top)) * static_cast<float>(kPlotHeight);
    // A value far off the scale still lands somewhere a window can hold.
    constexpr float kFar = 1.0e8f;
    if (std::isnan(y)) return kPlotZero;
    if (y < -kFar) return -static_cast<int>(kFar);
    if (y > kFar) return static_cast<int>(kFar);
    return WholeNumber(y);
}

void GraphReset(Calculator& c) {
    GraphWindow& g = c.graph;
    for (int i = 0; i <= 29; ++i) {
        g.Line1[i].setVisible(false);
        g.Line1[i].setY1(kPlotZero);
        g.Line1[i].setY2(kPlotZero);
    }
    for (int i = 1; i <= 10; ++i)
        g.YAxis[i].setCaption(PlainText(100 * i));
    KeyControl(c, KeyMode::None, KeyTexts{});
}

void GraphScale(Calculator& c, float max) {
    const int top = GraphScaleTop(max);
    // In double, so that the tenths come out as whole numbers in the text.
    for (int i = 1; i <= 10; ++i)
        c.graph.YAxis[i].setCaption(PlainText(i * 0.1 * top));
}

void GraphDraw(Calculator& c, int series, const ArcValues& arcs, Colour colour) {
    if (series < 0 || series > 5) return;
    GraphWindow& g = c.graph;
    const int top = ScaleTopOf(g);
    const int base = 5 * series;
    if (c.main.Simplified.value() == 1) {
        // Forward, side and rear: the segments between stay on the axis.
        Segment(g.Line1[base], PlotY(arcs[0], top), PlotY(arcs[4], top), colour);
        Segment(g.Line1[base + 4], PlotY(arcs[4], top), PlotY(arcs[5], top), colour);
    } else {
        for (int k = 0; k <= 4; ++k)
            Segment(g.Line1[base + k], PlotY(arcs[k], top), PlotY(arcs[k + 1], top), colour);
    }
    g.KeyIcon[series].setBack(colour);

    // The later line lets the earlier one show through where they meet.
    for (int j = 0; j < series; ++j) {
        for (int k = 0; k <= 4; ++k)
            if (Overlaps(g.Line1[base + k], g.Line1[5 * j + k])) g.Line1[base + k].setStyle(LineStyle::Dotted);
    }
}

void SimplifiedGraphAxes(Calculator& c) {
    GraphWindow& g = c.graph;
    const bool simple = c.main.Simplified.value() == 1;
    g.XAxis[0].setCaption(simple ? "Forward" : "Forward 45");
    g.XAxis[1].setCaption(simple ? "Side" : "Forward 90");
    g.XAxis[1].setLeft(simple ? 5332 : 3135);
    g.XAxis[5].setCaption(simple ? "Rear" : "Rear 110");
    for (int i = 2; i <= 4; ++i)
        g.XAxis[i].setVisible(!simple);
    for (int s = 0; s <= 5; ++s) {
        g.Line1[5 * s].setX2(simple ? kSimplifiedSideX : kArcX[1]);
        g.Line1[5 * s + 4].setX1(simple ? kSimplifiedSideX : kArcX[4]);
    }
}

} // namespace vantorel
