#include "mainwindow/shipimage.h"

#include "engine/records.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantorel {

namespace {

// ---- Arc overlays -----------------------------------------------------------

struct ArcRow {
    double from, to, radius;
    int leaderRow;
};

// By overlay index: the sector on one side, outer radius, leader row.
constexpr ArcRow kArcs[12] = {
    {0.0, 22.5, 172.0, 5},     {0.0, 45.0, 156.0, 52},     {0.0, 55.0, 142.0, 100},   {0.0, 90.0, 142.0, 100},
    {0.0, 125.0, 142.0, 197},  {0.0, 180.0, 142.0, 197},   {55.0, 90.0, 157.0, 148},  {55.0, 125.0, 157.0, 196},
    {90.0, 125.0, 157.0, 244}, {125.0, 180.0, 142.0, 292}, {90.0, 180.0, 142.0, 292}, {55.0, 180.0, 142.0, 197},
};

constexpr double kDegree = std::numbers::pi / 180.0;

// The point of the port-side outline that the leader from the left edge at
// `row` meets: straight across where the row crosses the outer arc, else the
// nearest point of that arc.
ArcPoint PortAnchor(const ArcRow& a, int row) {
    const double across = (ArcCentre.y - row) / a.radius;
    if (across >= -1.0 && across <= 1.0) {
        const double bearing = std::acos(across) / kDegree;
        if (bearing >= a.from && bearing <= a.to)
            return {ArcCentre.x - a.radius * std::sin(bearing * kDegree), 1.0 * row};
    }
    const double toward = std::atan2(ArcCentre.x, ArcCentre.y - row) / kDegree;
    const double bearing = std::clamp(toward, a.from, a.to);
    return {ArcCentre.x - a.radius * std::sin(bearing * kDegree), ArcCentre.y - a.radius * std::cos(bearing * kDegree)};
}

} // namespace

ArcPoint PointOnBearing(double bearing, double radius) {
    return {ArcCentre.x + radius * std::sin(bearing * kDegree), ArcCentre.y - radius * std::cos(bearing * kDegree)};
}

ArcGeometry FiringArcGeometry(int i) {
    ArcGeometry g;
    if (i < 0 || i > 11) return g;
    const ArcRow& a = kArcs[i];
    g.fromDegrees = a.from;
    g.toDegrees = a.to;
    g.radius = a.radius;
    g.bandInner = a.radius > CommonRing && a.from == 0.0 ? CommonRing : 0.0;
    g.leaderRow = a.leaderRow;
    if (a.from == 0.0 && a.to == 180.0) {
        g.wholeCircle = true;
        g.sweepCount = 1;
        g.sweeps[0] = {0.0, 360.0};
    } else if (a.from == 0.0) {
        g.sweepCount = 1;
        g.sweeps[0] = {-a.to, a.to};
    } else if (a.to == 180.0) {
        g.sweepCount = 1;
        g.sweeps[0] = {a.from, 360.0 - a.from};
    } else {
        g.sweepCount = 2;
        g.sweeps[0] = {-a.to, -a.from};
        g.sweeps[1] = {a.from, a.to};
    }
    g.leftAnchor = PortAnchor(a, a.leaderRow);
    g.rightAnchor = {2.0 * ArcCentre.x - g.leftAnchor.x, g.leftAnchor.y};
    return g;
}

void DecideCline(Calculator& c) {
    MainSelection& m = c.main;
    if (m.ShipImageId[2].empty() || m.ShipImageId[2] == m.ShipImageId[1]) {
        m.Cline.setVisible(false);
        return;
    }
    m.Cline.setY1(c.state.ArcShown[0] ? 3215 : c.state.ArcShown[1] ? 3455 : 3675);
    m.Cline.setVisible(true);
}

} // namespace vantorel
