#pragma once

// The plot of window `Graph`: its frame in twips, the vertical scale, and the
// drawing of one series as five segments of `Line1`.

#include "engine/arcs.h"
#include "engine/records.h"

#include <array>
#include <span>

namespace vantorel {

// The frame of the plot. The value 0 lies on the bottom edge, the top of the
// scale on the top edge, ten grid steps of 762 between them.
inline constexpr int kPlotLeft = 1200;
inline constexpr int kPlotRight = 10560;
inline constexpr int kPlotTop = 1380;
inline constexpr int kPlotZero = 9000;
inline constexpr int kPlotHeight = kPlotZero - kPlotTop;
inline constexpr int kGridStep = 762;
// The x of the six arcs, and of the side point that stands for arcs 1 to 4
// with simplified arcs.
inline constexpr std::array<int, 6> kArcX = {2160, 3660, 5160, 6660, 8160, 9660};
inline constexpr int kSimplifiedSideX = 5880;
// Two segments closer than this at both ends lie on top of each other.
inline constexpr int kOverlapTwips = 20;

// The largest of the values, but at least 0. A -1 (no test data) never
// raises the scale.
float CheckMaxDPS(std::span<const float> values);
// The top of the scale for a largest value: a whole number of steps of 50
// (below 500) or 100, always above the largest value.
int GraphScaleTop(float max);
// The scale's top as the caption of `YAxis[10]` holds it; 0 if the caption
// holds no positive number.
int ScaleTopOf(const GraphWindow& g);
// Where a value lies on the plot for a scale top: 9000 for 0, 1380 for the
// top. A scale top of 0 puts every value on the axis.
int PlotY(float value, int top);

// The empty graph: every segment hidden on the axis, the scale 100 to 1000,
// no key.
void GraphReset(Calculator& c);
// The scale's captions for a largest value.
void GraphScale(Calculator& c, float max);
// Series 0 to 5 through the six arcs, in a colour. A segment that runs on top
// of one of an earlier series is dotted, so that the earlier one shows.
void GraphDraw(Calculator& c, int series, const ArcValues& arcs, Colour colour);

} // namespace vantorel
