#include "mainwindow/shipimage.h"

#include "engine/calculator.h"
#include "engine/numbers.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <string>
#include <string_view>

namespace vantorel {

namespace {

// ---- The ship table ---------------------------------------------------------

// A name by position: the row for classes where only the row counts, the
// tier (from `first`) for classes where only the tier counts.
std::string Pick(std::initializer_list<const char*> names, int at, int first = 0) {
    const int i = at - first;
    if (i < 0 || i >= static_cast<int>(names.size())) return {};
    return *(names.begin() + i);
}

constexpr std::string_view kListedClasses[] = {
    "Unrestricted",  "Federation",     "Cruiser",      "Escort",  "Shuttlecraft", "Science Vessel", "Klingon",
    "Allied Vessel", "Battle Cruiser", "Bird of Prey", "Carrier", "Raptor",       "Shuttlecraft "};

bool IsListedClass(const std::string& shipClass) {
    return std::find(std::begin(kListedClasses), std::end(kListedClasses), shipClass) != std::end(kListedClasses);
}

// The unrestricted Klingon ship: one of five by chance at every drawing.
std::string KlingonByChance(Random& random) {
    const int n = static_cast<int>(random.next() * 5.0);
    return Pick({"bc5", "bc4", "bop1", "bc3", "rap2"}, std::clamp(n, 0, 4));
}

// The id of one vessel's picture, as in "Cruiser/5/2".
std::string ImageId(const std::string& shipClass, int tier, int subclass) {
    if (shipClass == "Unrestricted") return "Unrestricted";
    return shipClass + "/" + PlainText(tier) + "/" + PlainText(subclass);
}

// The Federation counterpart of a Klingon allied vessel is built as an
// escort, a cruiser or a science vessel by the allied vessel's row; its
// picture is the first ship of that class at its tier.
std::string FederationAlliedName(Calculator& c, int tier, int alliedRow) {
    switch (alliedRow) {
    case 0:
        return ShipImageName(c, "Escort", tier, 0);
    case 1:
        return ShipImageName(c, "Cruiser", tier, 0);
    case 2:
        return ShipImageName(c, "Science Vessel", tier, 0);
    default:
        return {};
    }
}

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

std::string ShipImageName(Calculator& c, const std::string& shipClass, int tier, int subclass) {
    const std::string& k = shipClass;
    if (k == "Unrestricted") return "unrestricted";
    if (k == "Klingon") return KlingonByChance(c.random);
    if (k == "Federation") {
        switch (tier) {
        case 1:
            return Pick({"ltcru3", "ltcru2"}, subclass);
        case 2:
            return "cru2";
        case 3:
            return "cru3a";
        case 4:
            return Pick({"cru4", "esc4", "sci4"}, subclass);
        case 5:
            return Pick({"dreadnought", "cru5"}, subclass);
        default:
            return {};
        }
    }
    if (k == "Cruiser") {
        switch (tier) {
        case 1:
            return Pick({"ltcru1", "ltcru2", "ltcru3"}, subclass);
        case 2:
            return "cru2";
        case 3:
            return Pick({"cru3", "cru3a"}, subclass);
        case 4:
            return "cru4";
        case 5:
            return Pick({"cru5", "cru5a", "dreadnought", "cru3a", "cru4"}, subclass);
        default:
            return {};
        }
    }
    if (k == "Escort") {
        if (tier == 5) return Pick({"esc5", "esc5a", "esc4"}, subclass);
        return Pick({"esc2", "esc3", "esc4"}, tier, 2);
    }
    if (k == "Shuttlecraft") return Pick({"shuttle1", "shuttle2", "shuttle3"}, subclass);
    if (k == "Shuttlecraft ") return Pick({"kshuttle1"}, subclass);
    if (k == "Science Vessel") {
        if (tier == 3) return Pick({"sci3", "sci3a"}, subclass);
        if (tier == 5) return Pick({"sci5", "sci5a", "sci3a", "sci4"}, subclass);
        if (tier == 2) return "sci2";
        if (tier == 4) return "sci4";
        return {};
    }
    if (k == "Allied Vessel") return Pick({"allied1", "allied2", "allied3"}, subclass);
    if (k == "Battle Cruiser") {
        if (tier == 5) return Pick({"bc5", "bc4"}, subclass);
        return Pick({"bc2", "bc3", "bc4"}, tier, 2);
    }
    if (k == "Bird of Prey") {
        if (tier == 1) return Pick({"bop1", "bop1a"}, subclass);
        if (tier == 5) return Pick({"bop5", "bop1"}, subclass);
        return Pick({"bop2", "bop3", "bop4"}, tier, 2);
    }
    if (k == "Carrier") return Pick({"car5", "car6"}, subclass);
    if (k == "Raptor") return Pick({"rap2", "rap3", "rap4", "rap5"}, tier, 2);
    return {};
}

void DrawShip(Calculator& c, const std::string& shipClass, int tier, int subclass, const std::string& class2, int tier2,
              int subclass2) {
    MainSelection& m = c.main;

    // Alpha: a class the table does not know shows the unrestricted ship; a
    // known class on a tier or row it has no picture for keeps the last one.
    const std::string alpha = IsListedClass(shipClass) ? ShipImageName(c, shipClass, tier, subclass) : "unrestricted";
    if (!alpha.empty()) m.AlphaImage.setImage(alpha);

    std::string omegaClass = class2;
    if (class2.empty()) {
        m.OmegaImage.setImage("");
    } else {
        if (omegaClass == "Klingon Science Vessel") {
            if (tier2 == 5) {
                omegaClass = "Allied Vessel";
                subclass2 = 2;
            } else {
                omegaClass = "Bird of Prey";
            }
        }
        // The allied Federation ship only arises with Alpha on a Klingon
        // allied vessel, whose row is the one passed for Alpha.
        const std::string omega = omegaClass == "Federation Allied Vessel"
                                      ? FederationAlliedName(c, tier2, subclass)
                                      : ShipImageName(c, omegaClass, tier2, subclass2);
        if (!omega.empty()) m.OmegaImage.setImage(omega);
    }

    m.ShipImageId[1] = ImageId(shipClass, tier, subclass);
    m.ShipImageId[2] = omegaClass.empty() ? std::string() : ImageId(omegaClass, tier2, subclass2);
}

void ShipImageControl(Calculator& c) {
    const std::string c1 = GetClass(c, 1);
    const int t1 = GetTier(c, 1);
    const int s1 = GetSubclass(c, 1);
    if (c.state.Comparing == 0) {
        DrawShip(c, c1, t1, s1, "", 0, 0);
        return;
    }
    const std::string c2 = GetClass(c, 2);
    const int t2 = GetTier(c, 2);
    const int s2 = GetSubclass(c, 2);
    if (c1 == c2 && t1 == t2 && s1 == s2) {
        DrawShip(c, c1, t1, s1, "", 0, 0);
        c.main.Cline.setVisible(false);
        return;
    }
    DrawShip(c, c1, t1, s1, c2, t2, s2);
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
