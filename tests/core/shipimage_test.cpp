#include "engine/calculator.h"
#include "mainwindow/shipimage.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

namespace vantorel {
namespace {

// A picture name that no drawing produces: it stays only if nothing loads.
const std::string kLast = "last";

void ShowLast(Calculator& c) {
    c.main.AlphaImage.setImage(kLast);
    c.main.OmegaImage.setImage(kLast);
}

TEST(ShipImage, EveryRowOfTheShipTableNamesItsPicture) {
    struct Case {
        const char* shipClass;
        int tier;
        int row;
        const char* name;
        const char* id;
    } cases[] = {
        {"Unrestricted", 3, 2, "unrestricted", "Unrestricted"},
        {"Federation", 1, 0, "ltcru3", "Federation/1/0"},
        {"Federation", 1, 1, "ltcru2", "Federation/1/1"},
        {"Federation", 2, 0, "cru2", "Federation/2/0"},
        {"Federation", 2, 3, "cru2", "Federation/2/3"},
        {"Federation", 3, 1, "cru3a", "Federation/3/1"},
        {"Federation", 4, 0, "cru4", "Federation/4/0"},
        {"Federation", 4, 1, "esc4", "Federation/4/1"},
        {"Federation", 4, 2, "sci4", "Federation/4/2"},
        {"Federation", 5, 0, "dreadnought", "Federation/5/0"},
        {"Federation", 5, 1, "cru5", "Federation/5/1"},
        {"Cruiser", 1, 0, "ltcru1", "Cruiser/1/0"},
        {"Cruiser", 1, 1, "ltcru2", "Cruiser/1/1"},
        {"Cruiser", 1, 2, "ltcru3", "Cruiser/1/2"},
        {"Cruiser", 2, 4, "cru2", "Cruiser/2/4"},
        {"Cruiser", 3, 0, "cru3", "Cruiser/3/0"},
        {"Cruiser", 3, 1, "cru3a", "Cruiser/3/1"},
        {"Cruiser", 4, 2, "cru4", "Cruiser/4/2"},
        {"Cruiser", 5, 0, "cru5", "Cruiser/5/0"},
        {"Cruiser", 5, 1, "cru5a", "Cruiser/5/1"},
        {"Cruiser", 5, 2, "dreadnought", "Cruiser/5/2"},
        {"Cruiser", 5, 3, "cru3a", "Cruiser/5/3"},
        {"Cruiser", 5, 4, "cru4", "Cruiser/5/4"},
        {"Escort", 2, 1, "esc2", "Escort/2/1"},
        {"Escort", 3, 0, "esc3", "Escort/3/0"},
        {"Escort", 4, 2, "esc4", "Escort/4/2"},
        {"Escort", 5, 0, "esc5", "Escort/5/0"},
        {"Escort", 5, 1, "esc5a", "Escort/5/1"},
        {"Escort", 5, 2, "esc4", "Escort/5/2"},
        {"Shuttlecraft", 1, 0, "shuttle1", "Shuttlecraft/1/0"},
        {"Shuttlecraft", 5, 1, "shuttle2", "Shuttlecraft/5/1"},
        {"Shuttlecraft", 3, 2, "shuttle3", "Shuttlecraft/3/2"},
        {"Science Vessel", 2, 1, "sci2", "Science Vessel/2/1"},
        {"Science Vessel", 3, 0, "sci3", "Science Vessel/3/0"},
        {"Science Vessel", 3, 1, "sci3a", "Science Vessel/3/1"},
        {"Science Vessel", 4, 0, "sci4", "Science Vessel/4/0"},
        {"Science Vessel", 5, 0, "sci5", "Science Vessel/5/0"},
        {"Science Vessel", 5, 1, "sci5a", "Science Vessel/5/1"},
        {"Science Vessel", 5, 2, "sci3a", "Science Vessel/5/2"},
        {"Science Vessel", 5, 3, "sci4", "Science Vessel/5/3"},
        {"Allied Vessel", 5, 0, "allied1", "Allied Vessel/5/0"},
        {"Allied Vessel", 2, 1, "allied2", "Allied Vessel/2/1"},
        {"Allied Vessel", 4, 2, "allied3", "Allied Vessel/4/2"},
        {"Battle Cruiser", 2, 0, "bc2", "Battle Cruiser/2/0"},
        {"Battle Cruiser", 3, 1, "bc3", "Battle Cruiser/3/1"},
        {"Battle Cruiser", 4, 0, "bc4", "Battle Cruiser/4/0"},
        {"Battle Cruiser", 5, 0, "bc5", "Battle Cruiser/5/0"},
        {"Battle Cruiser", 5, 1, "bc4", "Battle Cruiser/5/1"},
        {"Bird of Prey", 1, 0, "bop1", "Bird of Prey/1/0"},
        {"Bird of Prey", 1, 1, "bop1a", "Bird of Prey/1/1"},
        {"Bird of Prey", 2, 0, "bop2", "Bird of Prey/2/0"},
        {"Bird of Prey", 3, 2, "bop3", "Bird of Prey/3/2"},
        {"Bird of Prey", 4, 0, "bop4", "Bird of Prey/4/0"},
        {"Bird of Prey", 5, 0, "bop5", "Bird of Prey/5/0"},
        {"Bird of Prey", 5, 1, "bop1", "Bird of Prey/5/1"},
        {"Carrier", 5, 0, "car5", "Carrier/5/0"},
        {"Carrier", 2, 1, "car6", "Carrier/2/1"},
        {"Raptor", 2, 0, "rap2", "Raptor/2/0"},
        {"Raptor", 3, 1, "rap3", "Raptor/3/1"},
        {"Raptor", 4, 0, "rap4", "Raptor/4/0"},
        {"Raptor", 5, 2, "rap5", "Raptor/5/2"},
        {"Shuttlecraft ", 4, 0, "kshuttle1", "Shuttlecraft /4/0"},
    };
    Calculator c;
    for (const Case& k : cases) {
        ShowLast(c);
        DrawShip(c, k.shipClass, k.tier, k.row, k.shipClass, k.tier, k.row);
        EXPECT_EQ(c.main.AlphaImage.image(), k.name) << k.id;
        EXPECT_EQ(c.main.OmegaImage.image(), k.name) << k.id;
        EXPECT_EQ(c.main.ShipImageId[1], k.id);
        EXPECT_EQ(c.main.ShipImageId[2], k.id);
    }
}

TEST(ShipImage, ATierOrRowTheTableLacksKeepsTheLastPicture) {
    struct Case {
        const char* shipClass;
        int tier;
        int row;
    } cases[] = {
        {"Escort", 1, 0},         {"Federation", 1, 2},     {"Federation", 4, 3},    {"Federation", 5, 2},
        {"Cruiser", 1, 3},        {"Cruiser", 3, 2},        {"Cruiser", 5, 5},       {"Science Vessel", 1, 0},
        {"Science Vessel", 3, 2}, {"Science Vessel", 5, 4}, {"Escort", 5, 3},        {"Battle Cruiser", 1, 0},
        {"Battle Cruiser", 5, 2}, {"Bird of Prey", 1, 2},   {"Bird of Prey", 5, 2},  {"Raptor", 1, 0},
        {"Carrier", 5, 2},        {"Shuttlecraft", 1, 3},   {"Shuttlecraft ", 1, 1}, {"Allied Vessel", 5, 3},
    };
    Calculator c;
    for (const Case& k : cases) {
        ShowLast(c);
        DrawShip(c, k.shipClass, k.tier, k.row, k.shipClass, k.tier, k.row);
        const std::string what = std::string(k.shipClass) + "/" + std::to_string(k.tier) + "/" + std::to_string(k.row);
        EXPECT_EQ(c.main.AlphaImage.image(), kLast) << what;
        EXPECT_EQ(c.main.OmegaImage.image(), kLast) << what;
        EXPECT_EQ(c.main.ShipImageId[1], what);
    }
}

TEST(ShipImage, AnUnknownClassShowsTheUnrestrictedShipOnAlphaOnly) {
    struct Case {
        const char* shipClass;
        const char* omega; // Omega keeps its last picture; "" empties it
    } cases[] = {{"", ""}, {"Starbase", "last"}, {"Cruiser ", "last"}, {"cruiser", "last"}};
    Calculator c;
    for (const Case& k : cases) {
        ShowLast(c);
        DrawShip(c, k.shipClass, 5, 0, k.shipClass, 5, 0);
        EXPECT_EQ(c.main.AlphaImage.image(), "unrestricted") << '"' << k.shipClass << '"';
        EXPECT_EQ(c.main.OmegaImage.image(), k.omega) << '"' << k.shipClass << '"';
    }
}

TEST(ShipImage, KlingonDrawsAlphaThenOmegaFromTheOneSequence) {
    const char* const names[] = {"bc5", "bc4", "bop1", "bc3", "rap2"};
    Calculator c;
    Random probe = c.random;
    std::set<std::string> seen;
    for (int draw = 0; draw < 40; ++draw) {
        DrawShip(c, "Klingon", 1 + draw % 5, draw % 3, "Klingon", 5, 0);
        const std::string alpha = names[static_cast<int>(probe.next() * 5.0)];
        const std::string omega = names[static_cast<int>(probe.next() * 5.0)];
        EXPECT_EQ(c.main.AlphaImage.image(), alpha) << "draw " << draw;
        EXPECT_EQ(c.main.OmegaImage.image(), omega) << "draw " << draw;
        seen.insert(alpha);
        seen.insert(omega);
    }
    EXPECT_EQ(seen.size(), 5u);
    // Without a second ship only Alpha draws.
    DrawShip(c, "Klingon", 5, 0, "", 0, 0);
    EXPECT_EQ(c.main.AlphaImage.image(), names[static_cast<int>(probe.next() * 5.0)]);
    EXPECT_EQ(c.random.next(), probe.next());
}

TEST(ShipImage, AKlingonScienceVesselIsDrawnAsItsCounterpart) {
    struct Case {
        int tier;
        int row;
        const char* name;
        const char* id;
    } cases[] = {
        {3, 0, "bop3", "Bird of Prey/3/0"},     {2, 0, "bop2", "Bird of Prey/2/0"},
        {4, 1, "bop4", "Bird of Prey/4/1"},     {1, 1, "bop1a", "Bird of Prey/1/1"},
        {5, 0, "allied3", "Allied Vessel/5/2"}, {5, 1, "allied3", "Allied Vessel/5/2"},
    };
    Calculator c;
    for (const Case& k : cases) {
        ShowLast(c);
        DrawShip(c, "Science Vessel", k.tier, 0, "Klingon Science Vessel", k.tier, k.row);
        EXPECT_EQ(c.main.OmegaImage.image(), k.name) << k.id;
        EXPECT_EQ(c.main.ShipImageId[2], k.id);
    }
}

TEST(ShipImage, AFederationAlliedVesselTakesTheFormOfAlphasAlliedRow) {
    struct Case {
        int alliedRow; // Alpha's row of "Allied Vessel"
        int tier;
        const char* name; // "last": no picture for that form and tier
    } cases[] = {
        {0, 5, "esc5"}, {1, 5, "cru5"},   {2, 5, "sci5"}, {0, 4, "esc4"}, {1, 4, "cru4"},
        {2, 3, "sci3"}, {1, 1, "ltcru1"}, {0, 1, "last"}, {2, 1, "last"},
    };
    Calculator c;
    for (const Case& k : cases) {
        ShowLast(c);
        DrawShip(c, "Allied Vessel", 5, k.alliedRow, "Federation Allied Vessel", k.tier, 0);
        EXPECT_EQ(c.main.AlphaImage.image(), "allied" + std::to_string(k.alliedRow + 1));
        EXPECT_EQ(c.main.OmegaImage.image(), k.name) << k.alliedRow << " at tier " << k.tier;
        EXPECT_EQ(c.main.ShipImageId[2], "Federation Allied Vessel/" + std::to_string(k.tier) + "/0");
    }
}

TEST(ShipImage, OmegaWithoutATierRowKeepsItsLastPicture) {
    Calculator c;
    DrawShip(c, "Cruiser", 5, 0, "Escort", 2, 0);
    ASSERT_EQ(c.main.OmegaImage.image(), "esc2");
    DrawShip(c, "Cruiser", 5, 0, "Escort", 1, 0);
    EXPECT_EQ(c.main.AlphaImage.image(), "cru5");
    EXPECT_EQ(c.main.OmegaImage.image(), "esc2");
    EXPECT_EQ(c.main.ShipImageId[2], "Escort/1/0");
}

TEST(ShipImage, ClineFollowsTheIdsAndTheWidestForwardArc) {
    struct Case {
        const char* name;
        const char* id1;
        const char* id2;
        bool arc0;
        bool arc1;
        bool visible;
        int y1;
    } cases[] = {
        {"no Omega picture", "Cruiser/5/0", "", true, true, false, 3675},
        {"equal ids", "Cruiser/5/0", "Cruiser/5/0", false, false, false, 3675},
        {"forward 45 in use", "Cruiser/5/0", "Escort/5/0", true, true, true, 3215},
        {"forward 90 in use", "Cruiser/5/0", "Escort/5/0", false, true, true, 3455},
        {"neither", "Cruiser/5/0", "Escort/5/0", false, false, true, 3675},
        {"only forward 45", "Unrestricted", "Klingon/5/0", true, false, true, 3215},
    };
    for (const Case& k : cases) {
        Calculator c;
        c.main.ShipImageId[1] = k.id1;
        c.main.ShipImageId[2] = k.id2;
        c.state.ArcShown[0] = k.arc0;
        c.state.ArcShown[1] = k.arc1;
        c.main.Cline.setVisible(!k.visible);
        DecideCline(c);
        EXPECT_EQ(c.main.Cline.visible(), k.visible) << k.name;
        EXPECT_EQ(c.main.Cline.y1(), k.y1) << k.name;
        EXPECT_EQ(c.main.Cline.y2(), 7890) << k.name;
    }
}

TEST(ShipImage, TwoShipsWithOnePictureStillShowTheLine) {
    Calculator c;
    DrawShip(c, "Federation", 2, 0, "Cruiser", 2, 0);
    EXPECT_EQ(c.main.AlphaImage.image(), "cru2");
    EXPECT_EQ(c.main.OmegaImage.image(), "cru2");
    DecideCline(c);
    EXPECT_TRUE(c.main.Cline.visible());
}

TEST(ShipImage, EqualShipsAfterUnequalOnesShowOnePicture) {
    Calculator c;
    DrawShip(c, "Cruiser", 4, 0, "Escort", 4, 0);
    DecideCline(c);
    ASSERT_TRUE(c.main.Cline.visible());
    DrawShip(c, "Cruiser", 4, 0, "", 0, 0);
    EXPECT_EQ(c.main.AlphaImage.image(), "cru4");
    EXPECT_EQ(c.main.OmegaImage.image(), "");
    EXPECT_EQ(c.main.ShipImageId[2], "");
    DecideCline(c);
    EXPECT_FALSE(c.main.Cline.visible());
}

TEST(ShipImage, ShipImageControlDrawsOneWholePictureForOneShip) {
    // At the start Omega is on its same-as rows: the same ship as Alpha.
    struct Case {
        const char* name;
        int comparing;
        bool clineAfter;
    } cases[] = {
        {"not comparing: the line is left alone", 0, true},
        {"comparing equal ships: the line goes", -1, false},
    };
    for (const Case& k : cases) {
        Calculator c;
        c.state.Comparing = k.comparing;
        c.main.OmegaImage.setImage(kLast);
        c.main.ShipImageId[2] = "Escort/5/0";
        c.main.Cline.setVisible(true);
        ShipImageControl(c);
        EXPECT_EQ(c.main.AlphaImage.image(), "unrestricted") << k.name;
        EXPECT_EQ(c.main.OmegaImage.image(), "") << k.name;
        EXPECT_EQ(c.main.ShipImageId[1], "Unrestricted") << k.name;
        EXPECT_EQ(c.main.ShipImageId[2], "") << k.name;
        EXPECT_EQ(c.main.Cline.visible(), k.clineAfter) << k.name;
    }
}

TEST(ShipImage, ArcOverlayGeometry) {
    struct Case {
        int i;
        double from, to, radius, band;
        int row;
        int sweeps;
        double sweepFrom, sweepTo; // the first sweep
    } cases[] = {
        {0, 0, 22.5, 172, 142, 5, 1, -22.5, 22.5}, {1, 0, 45, 156, 142, 52, 1, -45, 45},
        {2, 0, 55, 142, 0, 100, 1, -55, 55},       {3, 0, 90, 142, 0, 100, 1, -90, 90},
        {4, 0, 125, 142, 0, 197, 1, -125, 125},    {5, 0, 180, 142, 0, 197, 1, 0, 360},
        {6, 55, 90, 157, 0, 148, 2, -90, -55},     {7, 55, 125, 157, 0, 196, 2, -125, -55},
        {8, 90, 125, 157, 0, 244, 2, -125, -90},   {9, 125, 180, 142, 0, 292, 1, 125, 235},
        {10, 90, 180, 142, 0, 292, 1, 90, 270},    {11, 55, 180, 142, 0, 197, 1, 55, 305},
    };
    for (const Case& k : cases) {
        const ArcGeometry g = FiringArcGeometry(k.i);
        EXPECT_EQ(g.fromDegrees, k.from) << k.i;
        EXPECT_EQ(g.toDegrees, k.to) << k.i;
        EXPECT_EQ(g.radius, k.radius) << k.i;
        EXPECT_EQ(g.bandInner, k.band) << k.i;
        EXPECT_EQ(g.leaderRow, k.row) << k.i;
        EXPECT_EQ(g.wholeCircle, k.i == 5) << k.i;
        ASSERT_EQ(g.sweepCount, k.sweeps) << k.i;
        EXPECT_EQ(g.sweeps[0].from, k.sweepFrom) << k.i;
        EXPECT_EQ(g.sweeps[0].to, k.sweepTo) << k.i;
        if (k.sweeps == 2) {
            EXPECT_EQ(g.sweeps[1].from, -k.sweepTo) << k.i;
            EXPECT_EQ(g.sweeps[1].to, -k.sweepFrom) << k.i;
        }
        // The leaders end on the outer arc, inside the sector, mirrored.
        const double dx = ArcCentre.x - g.leftAnchor.x, dy = ArcCentre.y - g.leftAnchor.y;
        EXPECT_NEAR(std::hypot(dx, dy), k.radius, 1e-9) << k.i;
        const double bearing = std::atan2(dx, dy) * 180.0 / 3.14159265358979323846;
        EXPECT_GE(bearing, k.from - 1e-9) << k.i;
        EXPECT_LE(bearing, k.to + 1e-9) << k.i;
        EXPECT_DOUBLE_EQ(g.rightAnchor.x, 359.0 - g.leftAnchor.x) << k.i;
        EXPECT_EQ(g.rightAnchor.y, g.leftAnchor.y) << k.i;
        // Where the row crosses the arc the leader runs straight across.
        if (k.i != 0) { EXPECT_EQ(g.leftAnchor.y, k.row) << k.i; }
    }
    // Row 5 lies above the reach of Forward 45: its leader meets the corner.
    const ArcGeometry g0 = FiringArcGeometry(0);
    const ArcPoint corner = PointOnBearing(-22.5, 172);
    EXPECT_NEAR(g0.leftAnchor.x, corner.x, 1e-9);
    EXPECT_NEAR(g0.leftAnchor.y, corner.y, 1e-9);
    EXPECT_EQ(FiringArcGeometry(12).sweepCount, 0);
}

} // namespace
} // namespace vantorel
