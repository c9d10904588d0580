#pragma once

// The ship picture's plain data: the square it stands in, and the geometry of
// the twelve firing arc overlays that the window paints over it. Pixels of
// the 360 by 360 picture, y growing downwards; angles are bearings in degrees
// from the bow, which points up, growing clockwise (to starboard).

#include "engine/records.h"

#include <array>

namespace vantorel {

// Where the picture stands on the main window, twips, and its size in pixels.
inline constexpr int ShipPictureLeft = 4320;
inline constexpr int ShipPictureTop = 2880;
inline constexpr int ShipPictureTwips = 5400;
inline constexpr int ShipPicturePixels = 360;
inline constexpr int TwipsPerPicturePixel = ShipPictureTwips / ShipPicturePixels;

struct ArcPoint {
    double x = 0.0;
    double y = 0.0;
};

// The ship's turning point, common centre of every arc.
inline constexpr ArcPoint ArcCentre{179.5, 193.5};
// The ring that most arcs end on; arcs 0 and 1 reach beyond it.
inline constexpr double CommonRing = 142.0;

// One stretch of outline, bearings from `from` clockwise to `to` (to > from).
// A pair of side sectors gives two sweeps; a sector about the bow or the
// stern gives one that crosses it (-22.5 .. 22.5, 125 .. 235).
struct ArcSweep {
    double from = 0.0;
    double to = 0.0;
};

struct ArcGeometry {
    double fromDegrees = 0.0; // the sector as the arc table tells it, one side
    double toDegrees = 0.0;
    bool wholeCircle = false; // a circle with no straight edges
    double radius = 0.0;
    double bandInner = 0.0; // > 0: a black band from here out to `radius`
    int sweepCount = 0;
    std::array<ArcSweep, 2> sweeps{};
    int leaderRow = 0;    // row of the leader lines at the picture's edges
    ArcPoint leftAnchor;  // where the leader from the left edge meets the outline
    ArcPoint rightAnchor; // the same on the right (Omega's leader)
};

// A point at `radius` from the centre on `bearing` degrees from the bow.
ArcPoint PointOnBearing(double bearing, double radius);

// The overlay of FiringArc[i] / CFiringArc[i], i in 0..11. Any other index
// gives an empty geometry (radius 0, no sweeps).
ArcGeometry FiringArcGeometry(int i);

// The line between Alpha's and Omega's halves of the picture: shown while the
// two vessels have different pictures, from the top of the arcs in use.
void DecideCline(Calculator& c);

} // namespace vantorel
