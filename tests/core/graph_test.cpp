// GCC 12 at -O3 reports the inlined destructors of the std::function members
// in the series table below as reading uninitialized memory, which they do not
// (a false positive of that release). Only this file, only that warning.
#if defined(__GNUC__) && !defined(__clang__) && __GNUC__ == 12
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include "graph/graph.h"
#include "graph/key.h"
#include "graph/placement.h"
#include "graph/scale.h"
#include "graph/series.h"
#include "graph/titles.h"
#include "support.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace vantorel {
namespace {

using testing::Fit;

std::vector<std::string> Captions(const GraphWindow& g, int first, int last) {
    std::vector<std::string> out;
    for (int i = first; i <= last; ++i)
        out.push_back(g.YAxis[i].caption());
    return out;
}

TEST(GraphScale, TopIsAWholeStepAboveTheLargestValue) {
    // clang-format off
    struct Case { const char* name; float max; int top; std::vector<std::string> captions; } cases[] = {
        {"432 rounds to 450", 432.0f, 450, {"45", "90", "135", "180", "225", "270", "315", "360", "405", "450"}},
        {"449 rounds to 450", 449.0f, 450, {"45", "90", "135", "180", "225", "270", "315", "360", "405", "450"}},
        {"451 rounds to 500", 451.0f, 500, {"50", "100", "150", "200", "250", "300", "350", "400", "450", "500"}},
        {"500 steps by 100, one above", 500.0f, 600, {"60", "120", "180", "240", "300", "360", "420", "480", "540", "600"}},
        {"649 rounds down, one above", 649.0f, 700, {"70", "140", "210", "280", "350", "420", "490", "560", "630", "700"}},
        {"650: half to even, one above", 650.0f, 700, {"70", "140", "210", "280", "350", "420", "490", "560", "630", "700"}},
        {"0 gives the first step", 0.0f, 50, {"5", "10", "15", "20", "25", "30", "35", "40", "45", "50"}},
        {"0.4 gives the first step", 0.4f, 50, {"5", "10", "15", "20", "25", "30", "35", "40", "45", "50"}},
        {"475 is exactly on a step", 475.0f, 500, {"50", "100", "150", "200", "250", "300", "350", "400", "450", "500"}},
        {"a typed infinity stays finite", std::numeric_limits<float>::infinity(), 100000100, {"10000010", "20000020", "30000030", "40000040", "50000050", "60000060", "70000070", "80000080", "90000090", "100000100"}},
    };
    // clang-format on
    Program c;
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        EXPECT_EQ(GraphScaleTop(k.max), k.top);
        GraphScale(c, k.max);
        EXPECT_EQ(Captions(c.graph, 1, 10), k.captions);
        EXPECT_EQ(ScaleTopOf(c.graph), k.top);
    }
    GraphReset(c);
    EXPECT_EQ(Captions(c.graph, 1, 10),
              (std::vector<std::string>{"100", "200", "300", "400", "500", "600", "700", "800", "900", "1000"}));
    EXPECT_EQ(c.graph.YAxis[0].caption(), "0");
}

TEST(GraphScale, LargestValueIgnoresMissingDataAndNonsense) {
    // clang-format off
    struct Case { const char* name; std::vector<float> values; float max; } cases[] = {
        {"nothing", {}, 0.0f},
        {"all zero", {0, 0, 0}, 0.0f},
        {"missing data is below 0", {-1, -1}, 0.0f},
        {"the largest", {12.5f, 300.25f, -1, 299}, 300.25f},
        {"not a number", {std::numeric_limits<float>::quiet_NaN(), 7}, 7.0f},
    };
    // clang-format on
    for (const Case& k : cases)
        EXPECT_EQ(CheckMaxDPS(k.values), k.max) << k.name;
}

TEST(GraphScale, ValuesLandOnThePlot) {
    // clang-format off
    struct Case { const char* name; float value; int top; int y; } cases[] = {
        {"zero on the axis", 0.0f, 450, 9000},
        {"the top on the top edge", 450.0f, 450, 1380},
        {"half way", 225.0f, 450, 5190},
        {"missing data just below the axis", -1.0f, 7620, 9001},
        {"above the scale, not clipped", 900.0f, 450, -6240},
        {"no scale: all on the axis", 300.0f, 0, 9000},
        {"not a number: on the axis", std::numeric_limits<float>::quiet_NaN(), 450, 9000},
    };
    // clang-format on
    for (const Case& k : cases)
        EXPECT_EQ(PlotY(k.value, k.top), k.y) << k.name;

    Program c;
    for (const char* caption : {"abc", "", "-50", "1e300"}) {
        c.graph.YAxis[10].setCaption(caption);
        EXPECT_EQ(ScaleTopOf(c.graph), 0) << caption;
    }
}

struct Styles {
    std::vector<LineStyle> of;
};

std::vector<LineStyle> StylesOf(const GraphWindow& g, int series) {
    std::vector<LineStyle> out;
    for (int k = 0; k <= 4; ++k)
        out.push_back(g.Line1[5 * series + k].style());
    return out;
}

ArcValues Arcs(float a0, float a1, float a2, float a3, float a4, float a5) {
    return ArcValues{{a0, a1, a2, a3, a4, a5}};
}

TEST(GraphDraw, LaterSegmentsOnTopOfEarlierOnesAreDotted) {
    const LineStyle S = LineStyle::Solid, D = LineStyle::Dotted;
    // With a scale top of 7620 one unit of DPS is one twip.
    // clang-format off
    struct Case { const char* name; ArcValues first, second; std::vector<LineStyle> styles; } cases[] = {
        {"identical series", Arcs(100, 200, 300, 400, 500, 600), Arcs(100, 200, 300, 400, 500, 600), {D, D, D, D, D}},
        {"19 twips apart at both ends", Arcs(100, 200, 300, 400, 500, 600), Arcs(119, 219, 319, 419, 519, 619), {D, D, D, D, D}},
        {"20 twips apart", Arcs(100, 200, 300, 400, 500, 600), Arcs(120, 220, 320, 420, 520, 620), {S, S, S, S, S}},
        {"19 below", Arcs(100, 200, 300, 400, 500, 600), Arcs(81, 181, 281, 381, 481, 581), {D, D, D, D, D}},
        {"close at one end only", Arcs(100, 200, 300, 400, 500, 600), Arcs(100, 240, 300, 400, 500, 600), {S, S, D, D, D}},
        {"crossing lines", Arcs(0, 100, 200, 300, 400, 500), Arcs(500, 400, 300, 200, 100, 0), {S, S, S, S, S}},
    };
    // clang-format on
    Program c;
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        GraphReset(c);
        c.graph.YAxis[10].setCaption("7620");
        GraphDraw(c, 0, k.first, 255);
        GraphDraw(c, 1, k.second, 65535);
        EXPECT_EQ(StylesOf(c.graph, 0), std::vector<LineStyle>(5, S));
        EXPECT_EQ(StylesOf(c.graph, 1), k.styles);
    }
}

TEST(GraphDraw, PlacesColoursAndRedrawsSolid) {
    Program c;
    GraphWindow& g = c.graph;
    GraphReset(c);
    g.YAxis[10].setCaption("7620");
    GraphDraw(c, 0, Arcs(0, 0, 0, 0, 0, 0), 255);
    GraphDraw(c, 2, Arcs(0, 0, 0, 0, 0, 0), 0x0032FF);
    for (int k = 0; k <= 4; ++k) {
        const Line& zero = g.Line1[k];
        EXPECT_EQ(std::tuple(zero.y1(), zero.y2(), zero.visible(), zero.fore()), std::tuple(9000, 9000, true, 255u));
        // The hidden series 1 lies on the axis as well: it counts too.
        EXPECT_EQ(g.Line1[10 + k].style(), LineStyle::Dotted);
        EXPECT_FALSE(g.Line1[5 + k].visible());
    }
    EXPECT_EQ(g.KeyIcon[2].back(), 0x0032FFu);

    // Drawn again apart from series 0, every segment is solid.
    GraphDraw(c, 2, Arcs(1000, 1000, 1000, 1000, 1000, 1000), 0x0032FF);
    EXPECT_EQ(StylesOf(g, 2), std::vector<LineStyle>(5, LineStyle::Solid));
    EXPECT_EQ(std::tuple(g.Line1[10].x1(), g.Line1[10].y1(), g.Line1[14].x2(), g.Line1[14].y2()),
              std::tuple(2160, 8000, 9660, 8000));

    // Out of range series draw nothing.
    GraphDraw(c, 6, Arcs(1, 1, 1, 1, 1, 1), 1);
    GraphDraw(c, -1, Arcs(1, 1, 1, 1, 1, 1), 1);
}

TEST(GraphDraw, SimplifiedDrawsForwardSideAndRear) {
    Program c;
    GraphWindow& g = c.graph;
    c.main.Simplified.setValue(1);
    EXPECT_EQ(std::tuple(g.XAxis[0].caption(), g.XAxis[1].caption(), g.XAxis[1].left(), g.XAxis[5].caption()),
              std::tuple(std::string("Forward"), std::string("Side"), 5332, std::string("Rear")));
    EXPECT_FALSE(g.XAxis[2].visible() || g.XAxis[3].visible() || g.XAxis[4].visible());

    GraphReset(c);
    g.YAxis[10].setCaption("7620");
    GraphDraw(c, 1, Arcs(100, 200, 300, 400, 500, 600), 255);
    const Line& forward = g.Line1[5];
    const Line& rear = g.Line1[9];
    EXPECT_EQ(std::tuple(forward.x1(), forward.y1(), forward.x2(), forward.y2()), std::tuple(2160, 8900, 5880, 8500));
    EXPECT_EQ(std::tuple(rear.x1(), rear.y1(), rear.x2(), rear.y2()), std::tuple(5880, 8500, 9660, 8400));
    for (int k = 6; k <= 8; ++k)
        EXPECT_EQ(std::tuple(g.Line1[k].visible(), g.Line1[k].y1(), g.Line1[k].y2()), std::tuple(false, 9000, 9000));

    c.main.Simplified.setValue(0);
    EXPECT_EQ(
        std::tuple(g.XAxis[0].caption(), g.XAxis[1].caption(), g.XAxis[1].left(), g.Line1[5].x2(), g.Line1[9].x1()),
        std::tuple(std::string("Forward 45"), std::string("Forward 90"), 3135, 3660, 8160));
    EXPECT_TRUE(g.XAxis[2].visible() && g.XAxis[3].visible() && g.XAxis[4].visible());
}

// A series through six points, as GraphDraw leaves its segments.
SeriesYs Through(int p0, int p1, int p2, int p3, int p4, int p5) {
    const int p[6] = {p0, p1, p2, p3, p4, p5};
    SeriesYs s;
    for (std::size_t k = 0; k < 5; ++k) {
        s.y1[k] = p[k];
        s.y2[k] = p[k + 1];
    }
    return s;
}

// With simplified arcs: the middle segments stay on the axis.
SeriesYs Simplified(int forward, int side, int rear) {
    SeriesYs s = Through(forward, 9000, 9000, 9000, side, rear);
    s.y2[0] = side;
    s.y1[1] = 9000;
    return s;
}

TEST(GraphKey, TakesTheFirstPlaceNoLineRunsThrough) {
    // clang-format off
    struct Case { const char* name; std::vector<SeriesYs> series; int place, top, left; bool button; } cases[] = {
        {"no line at all", {}, 0, 7020, 7560, false},
        {"zeros do not block", {Through(9000, 9000, 9000, 9000, 9000, 9000)}, 0, 7020, 7560, false},
        {"missing data below the axis does not block", {Through(9001, 9001, 9001, 9001, 9001, 9001)}, 0, 7020, 7560, false},
        {"low on the right: left bottom", {Through(2000, 2000, 2000, 8000, 8000, 8000), Through(2500, 2500, 2500, 7000, 7000, 7000)}, 1, 7020, 1440, false},
        {"low everywhere: right top", {Through(8000, 8000, 8000, 8000, 8000, 8000)}, 2, 1680, 7560, false},
        {"one point in the band is enough", {Through(2000, 2000, 2000, 2000, 2000, 6951)}, 1, 7020, 1440, false},
        {"two conditions on two points", {Through(9000, 9000, 9000, 6000, 9000, 9000), Through(6000, 9000, 6500, 9000, 9000, 9000)}, 2, 1680, 7560, false},
        {"wide stretches taken: near bottom right keeps the button", {Through(8000, 8000, 8000, 8000, 2000, 2000), Through(2000, 2000, 5000, 2000, 2000, 2000)}, 6, 7020, 7560, true},
        {"every band on both sides: none free", {Through(8000, 8000, 8000, 8000, 8000, 8000), Through(2000, 2000, 2000, 2000, 2000, 2000), Through(5000, 5000, 5000, 5000, 5000, 5000)}, -1, 7020, 7560, true},
        {"simplified: bottom places go once a point is above the axis", {Simplified(8500, 8500, 8500)}, 2, 1680, 7560, false},
        {"simplified zeros leave the bottom free", {Simplified(9000, 9000, 9000)}, 0, 7020, 7560, false},
    };
    // clang-format on
    for (const Case& k : cases) {
        const KeyPlace p = FindKeyPlace(k.series);
        EXPECT_EQ(std::tuple(p.place, p.top, p.left, p.button), std::tuple(k.place, k.top, k.left, k.button)) << k.name;
    }
}

TEST(GraphKey, LaysOutOneOrTwoColumns) {
    struct Item {
        int left, top;
    };
    // clang-format off
    struct Case { const char* name; KeyLayoutInput in; std::vector<Item> icons, labels; int labelWidth; double size; bool t0, t1; KeyItemPlace title0, title1; } cases[] = {
        {"two lines, with button", {7560, 7020, 2775, 1680, true, 2, 5, false, false},
         {{8162, 7436}, {8162, 7979}}, {{8817, 7437}, {8817, 7981}}, 915, 14, false, false, {}, {}},
        {"two lines, no button", {1440, 1680, 2775, 1680, false, 2, 5, false, false},
         {{2042, 2112}, {2042, 2672}}, {{2697, 2114}, {2697, 2674}}, 915, 14, false, false, {}, {}},
        {"three lines under a title", {1440, 4350, 2775, 1680, false, 3, 5, true, false},
         {{2042, 4894}, {2042, 5230}, {2042, 5566}}, {{2697, 4896}, {2697, 5234}, {2697, 5570}}, 915, 14, true, false, {1440, 4450, 2775}, {}},
        {"five short labels, one title", {7560, 7020, 2775, 1680, true, 5, 3, true, false},
         {{7760, 7544}, {7760, 7870}, {7760, 8196}, {9098, 7544}, {9098, 7870}}, {{8115, 7544}, {8115, 7870}, {8115, 8196}, {9453, 7544}, {9453, 7870}}, 950, 12, true, false, {7560, 7120, 2775}, {}},
        {"six long labels: narrow margins", {1440, 1680, 2775, 1680, false, 6, 9, true, false},
         {{1540, 2224}, {1540, 2560}, {1540, 2896}, {2878, 2224}, {2878, 2560}, {2878, 2896}}, {{1870, 2224}, {1870, 2560}, {1870, 2896}, {3208, 2224}, {3208, 2560}, {3208, 2896}}, 950, 12, true, false, {1440, 1780, 2775}, {}},
        {"two vessels' columns under their names", {7560, 7020, 2775, 1680, false, 6, 3, true, true},
         {{7760, 7564}, {7760, 7900}, {7760, 8236}, {9098, 7564}, {9098, 7900}, {9098, 8236}}, {{8115, 7564}, {8115, 7900}, {8115, 8236}, {9453, 7564}, {9453, 7900}, {9453, 8236}}, 950, 12, true, true, {7560, 7120, 1388}, {8948, 7120, 1388}},
        {"six characters keep the wide margins", {1440, 1680, 2775, 1680, false, 4, 6, false, false},
         {{1640, 1972}, {1640, 2392}, {1640, 2812}, {2978, 1972}}, {{1995, 1972}, {1995, 2392}, {1995, 2812}, {3333, 1972}}, 950, 12, false, false, {}, {}},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        const KeyLayout out = LayOutKey(k.in);
        for (std::size_t i = 0; i < k.icons.size(); ++i) {
            EXPECT_EQ(std::tuple(out.icons[i].left, out.icons[i].top), std::tuple(k.icons[i].left, k.icons[i].top))
                << "icon " << i;
            EXPECT_EQ(std::tuple(out.labels[i].left, out.labels[i].top, out.labels[i].width),
                      std::tuple(k.labels[i].left, k.labels[i].top, k.labelWidth))
                << "label " << i;
        }
        EXPECT_EQ(out.labelSize, k.size);
        EXPECT_EQ(std::tuple(out.titleShown[0], out.titleShown[1]), std::tuple(k.t0, k.t1));
        const KeyItemPlace titles[2] = {k.t0 ? k.title0 : KeyItemPlace{}, k.t1 ? k.title1 : KeyItemPlace{}};
        for (std::size_t t = 0; t < 2; ++t)
            EXPECT_EQ(std::tuple(out.titles[t].left, out.titles[t].top, out.titles[t].width),
                      std::tuple(titles[t].left, titles[t].top, titles[t].width))
                << "title " << t;
    }
}

TitleVessel Cruiser(int power = 100, int distanceIndex = 1, const char* distance = "2 km") {
    TitleVessel v;
    v.shipClass = "Cruiser";
    v.tier = 5;
    v.power = power;
    v.distanceIndex = distanceIndex;
    v.distance = distance;
    v.mark = "Mark XII";
    return v;
}

TitleFacts Facts(int mode, bool comparing, bool relative, TitleVessel alpha,
                 TitleVessel omega = Cruiser(100, 0, "Same As Alpha")) {
    return TitleFacts{mode, comparing, relative, std::move(alpha), std::move(omega)};
}

TitleVessel With(TitleVessel v, void (*change)(TitleVessel&)) {
    change(v);
    return v;
}

TEST(GraphTitle, ShortTextsOfBothVessels) {
    // clang-format off
    struct Case { const char* name; TitleFacts facts; std::string title, window, subtitle, skills; int titleTop, subtitleTop; } cases[] = {
        {"tier 5 cruiser alone", Facts(0, false, true, Cruiser()),
         "DPS Graph (Tier 5 Cruiser)", "DPS Graph (Tier 5 Cruiser)", " 100 Weapon Power, 2 km Range, Relative DPS", "", 240, 720},
        {"unrestricted, power levels", Facts(1, false, true, With(Cruiser(), [](TitleVessel& v) { v.shipClass = "Unrestricted"; })),
         "Power Level Comparison (Unrestricted Vessel)", "Power Level Comparison (Unrestricted Vessel)", "2 km Range, Relative DPS", "", 240, 720},
        {"ranges: power only, trailing blank of the class dropped", Facts(2, false, true, With(Cruiser(75), [](TitleVessel& v) { v.shipClass = "Shuttlecraft "; v.tier = 1; })),
         "Range Comparison (Tier 1 Shuttlecraft)", "Range Comparison (Tier 1 Shuttlecraft)", " 75 Weapon Power, Relative DPS", "", 240, 720},
        {"alike but for the torpedo", Facts(0, true, true, Cruiser()),
         "DPS Comparison (Tier 5 Cruiser vs Tier 5 Cruiser)", "DPS Comparison (Tier  5 Cruiser vs Tier 5 Cruiser)", " 100 Weapon Power, 2 km Range, Relative DPS", "", 240, 720},
        {"power levels 100 and 75", Facts(0, true, true, Cruiser(), Cruiser(75, 2)),
         "DPS Comparison (Tier 5 Cruiser vs Tier 5 Cruiser)", "DPS Comparison (Tier  5 Cruiser vs Tier 5 Cruiser)", " 100 vs  75 WP, 2 km Range, Relative DPS", "", 240, 720},
        {"other ranges, power comparison", Facts(1, true, true, Cruiser(), Cruiser(75, 5, "5 km")),
         "Power Level Comparison (Tier 5 Cruiser vs Tier 5 Cruiser)", "Power Level Comparison (Tier  5 Cruiser vs Tier 5 Cruiser)", "2 km vs 5 km Range, Relative DPS", "", 240, 720},
        {"unrestricted against a cruiser", Facts(2, true, true, With(Cruiser(), [](TitleVessel& v) { v.shipClass = "Unrestricted"; })),
         "Range Comparison (Unrestricted vs Tier 5 Cruiser)", "Range Comparison (Unrestricted vs Tier 5 Cruiser)", " 100 Weapon Power, Relative DPS", "", 240, 720},
        {"weapons alone: mark not shortened", Facts(0, false, false, With(Cruiser(), [](TitleVessel& v) { v.mark = "Mark X"; v.crtD = 1; v.acc = 2; })),
         "DPS Graph (Tier 5 Cruiser)", "DPS Graph (Tier 5 Cruiser)", " 100 Weapon Power, 2 km Range, Mark X [CrtD] [Acc]x2 Weaponry", "", 240, 720},
        {"standard issue stays, marks shorten", Facts(0, true, false, With(Cruiser(), [](TitleVessel& v) { v.mark = "Standard Issue"; v.dmg = 3; })),
         "DPS Comparison (Tier 5 Cruiser vs Tier 5 Cruiser)", "DPS Comparison (Tier  5 Cruiser vs Tier 5 Cruiser)", " 100 Weapon Power, 2 km Range, Standard Issue [Dmg]x3 vs  Mk XII Weaponry", "", 240, 720},
        {"same weapons named once", Facts(0, true, false, Cruiser()),
         "DPS Comparison (Tier 5 Cruiser vs Tier 5 Cruiser)", "DPS Comparison (Tier  5 Cruiser vs Tier 5 Cruiser)", " 100 Weapon Power, 2 km Range, Mk XII Weaponry", "", 240, 720},
        {"a skill on Alpha only moves the titles up", Facts(0, true, true, With(Cruiser(), [](TitleVessel& v) { v.fireAtWill = 2; v.targets = 3; })),
         "DPS Comparison (Tier 5 Cruiser vs Tier 5 Cruiser)", "DPS Comparison (Tier  5 Cruiser vs Tier 5 Cruiser)", " 100 Weapon Power, 2 km Range, Relative DPS", "Skills: FAW2, 3 Targets  vs None", 120, 570},
        {"a skill on Omega only", Facts(0, true, true, Cruiser(), With(Cruiser(100, 0), [](TitleVessel& v) { v.tacticalTeam = 3; })),
         "DPS Comparison (Tier 5 Cruiser vs Tier 5 Cruiser)", "DPS Comparison (Tier  5 Cruiser vs Tier 5 Cruiser)", " 100 Weapon Power, 2 km Range, Relative DPS", "Skills: None vs TT3", 120, 570},
        {"same skills on both, printed once", Facts(0, true, true, With(Cruiser(), [](TitleVessel& v) { v.scatterVolley = 1; v.attackPatternAlpha = 3; }), With(Cruiser(100, 0), [](TitleVessel& v) { v.scatterVolley = 1; v.attackPatternAlpha = 3; })),
         "DPS Comparison (Tier 5 Cruiser vs Tier 5 Cruiser)", "DPS Comparison (Tier  5 Cruiser vs Tier 5 Cruiser)", " 100 Weapon Power, 2 km Range, Relative DPS", "Skills: APA3, CSV1, 1 Target", 120, 570},
        {"every skill in its order", Facts(0, false, true, With(Cruiser(), [](TitleVessel& v) { v.tacticalTeam = 1; v.rapidFire = 2; v.attackPatternOmega = 3; v.attackPatternAlpha = 1; })),
         "DPS Graph (Tier 5 Cruiser)", "DPS Graph (Tier 5 Cruiser)", " 100 Weapon Power, 2 km Range, Relative DPS", "Skills: APA1, APO3, CRF2, TT1", 120, 570},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        const GraphTitles t = MakeGraphTitles(k.facts);
        EXPECT_EQ(std::tuple(t.title, t.windowTitle, t.subtitle, t.skills),
                  std::tuple(k.title, k.window, k.subtitle, k.skills));
        EXPECT_EQ(std::tuple(t.titleTop, t.subtitleTop), std::tuple(k.titleTop, k.subtitleTop));
    }
}

TEST(GraphTitle, FontShrinksAsTheTextGrows) {
    // The subtitle of a lone vessel is 42 characters and the mark.
    // clang-format off
    struct Case { std::size_t subtitleLength; double size; } subtitles[] = {
        {79, 14}, {80, 12}, {94, 12}, {95, 11}, {100, 11}, {101, 10},
    };
    // clang-format on
    for (const Case& k : subtitles) {
        TitleVessel v = Cruiser(100, 0, "0-1 km");
        v.mark = std::string(k.subtitleLength - 42, 'M');
        const GraphTitles t = MakeGraphTitles(Facts(0, false, false, v));
        ASSERT_EQ(t.subtitle.size(), k.subtitleLength);
        EXPECT_EQ(t.subtitleSize, k.size) << k.subtitleLength;
    }
    // "DPS Graph (Tier 5 " and ")" around the class.
    for (const auto& [length, size] : {std::pair{65u, 18.0}, std::pair{66u, 16.0}}) {
        TitleVessel v = Cruiser();
        v.shipClass = std::string(length - 19, 'C');
        const GraphTitles t = MakeGraphTitles(Facts(0, false, true, v));
        ASSERT_EQ(t.title.size(), length);
        EXPECT_EQ(t.titleSize, size) << length;
    }
    // clang-format off
    struct Skills { const char* name; std::array<int, 6> alpha, omega; int targets; std::size_t length; double size; } skills[] = {
        {"short", {1, 1, 1, 0, 0, 1}, {2, 2, 0, 0, 0, 2}, 1, 58, 14},
        {"longer", {1, 1, 1, 1, 1, 1}, {0, 0, 3, 0, 0, 0}, 3, 73, 12},
        {"long", {0, 1, 1, 1, 1, 1}, {0, 2, 2, 2, 2, 2}, 3, 90, 11},
        {"longest", {1, 1, 1, 1, 1, 1}, {2, 2, 2, 2, 2, 2}, 3, 102, 10},
    };
    // clang-format on
    const auto skilled = [](const std::array<int, 6>& l, int targets) {
        TitleVessel v = Cruiser();
        v.attackPatternAlpha = l[0];
        v.attackPatternOmega = l[1];
        v.fireAtWill = l[2];
        v.rapidFire = l[3];
        v.scatterVolley = l[4];
        v.tacticalTeam = l[5];
        v.targets = targets;
        return v;
    };
    for (const Skills& k : skills) {
        const GraphTitles t =
            MakeGraphTitles(Facts(0, true, true, skilled(k.alpha, k.targets), skilled(k.omega, k.targets)));
        EXPECT_EQ(std::tuple(t.skills.size(), t.skillsSize), std::tuple(k.length, k.size))
            << k.name << ": " << t.skills;
    }
}

// A bonus by setting; settings not named give 0.
BonusAt Bonuses(std::map<int, float> at) {
    return [at](int setting) {
        const auto it = at.find(setting);
        return it == at.end() ? 0.0f : it->second;
    };
}

std::vector<std::string> Texts(const LineSet& set) {
    std::vector<std::string> out;
    for (int i = 0; i < set.count; ++i)
        out.push_back(set.lines[static_cast<std::size_t>(i)].text);
    return out;
}

TEST(GraphSeries, LinesOfOneVessel) {
    using Texts_ = std::vector<std::string>;
    // clang-format off
    struct Case { const char* name; LineInput in; Texts_ texts; std::vector<int> powers, ranges; std::string title; } cases[] = {
        {"tested power levels: five lines", {GraphMode::PowerLevels, false, 100, 3, Bonuses({})},
         {"125", "100", "75", "50", "35"}, {125, 100, 75, 50, 35}, {3, 3, 3, 3, 3}, "Weapon Power"},
        {"bonus 12 at 25: down to 25", {GraphMode::PowerLevels, true, 100, 0, Bonuses({{100, 15}, {85, 15}, {70, 15}, {55, 15}, {40, 15}, {25, 12}})},
         {"100 (115)", "85 (100)", "70 (85)", "55 (70)", "40 (55)", "25 (37)"}, {115, 100, 85, 70, 55, 37}, {0, 0, 0, 0, 0, 0}, "Weapon Power"},
        {"bonus 8 at 25, 6 at 30: down to 30", {GraphMode::PowerLevels, true, 100, 0, Bonuses({{25, 8}, {30, 6}})},
         {"100 (100)", "85 (85)", "70 (70)", "55 (55)", "40 (40)", "30 (36)"}, {100, 85, 70, 55, 40, 36}, {0, 0, 0, 0, 0, 0}, "Weapon Power"},
        {"a smaller bonus: down to 35", {GraphMode::PowerLevels, true, 100, 0, Bonuses({{25, 9.9f}, {30, 4.9f}, {35, 4.5f}})},
         {"100 (100)", "85 (85)", "70 (70)", "55 (55)", "40 (40)", "35 (40)"}, {100, 85, 70, 55, 40, 40}, {0, 0, 0, 0, 0, 0}, "Weapon Power"},
        {"half a level rounds to even", {GraphMode::PowerLevels, true, 100, 0, Bonuses({{100, 2.5f}, {85, 2.5f}})},
         {"100 (102)", "85 (88)", "70 (70)", "55 (55)", "40 (40)", "35 (35)"}, {102, 88, 70, 55, 40, 35}, {0, 0, 0, 0, 0, 0}, "Weapon Power"},
        {"ranges at the vessel's power", {GraphMode::Ranges, false, 115, 4, Bonuses({})},
         {"0-1 km", "2 km", "4 km", "6 km", "8 km", "10 km"}, {115, 115, 115, 115, 115, 115}, {0, 1, 3, 5, 7, 9}, "Target Distance"},
        {"standard: none", {GraphMode::Standard, false, 100, 0, Bonuses({})}, {}, {}, {}, ""},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        const LineSet set = SingleVesselLines(k.in);
        EXPECT_EQ(Texts(set), k.texts);
        std::vector<int> powers, ranges;
        for (int i = 0; i < set.count; ++i) {
            powers.push_back(set.lines[static_cast<std::size_t>(i)].power);
            ranges.push_back(set.lines[static_cast<std::size_t>(i)].range);
        }
        EXPECT_EQ(std::tuple(powers, ranges, set.title), std::tuple(k.powers, k.ranges, k.title));
    }
    // Red to yellow.
    const LineSet six = SingleVesselLines({GraphMode::Ranges, false, 100, 0, Bonuses({})});
    EXPECT_EQ(std::tuple(six.lines[0].colour, six.lines[1].colour, six.lines[5].colour),
              std::tuple(0x0000FFu, 0x0032FFu, 0x00FAFFu));
}

TEST(GraphSeries, LinesOfTwoVessels) {
    using Texts_ = std::array<std::string, 3>;
    // clang-format off
    struct Case { const char* name; LineInput in; Vessel v; Texts_ texts; std::array<int, 3> powers, ranges; std::array<Colour, 3> colours; } cases[] = {
        {"Alpha extrapolates: settings", {GraphMode::PowerLevels, true, 100, 2, Bonuses({{100, 15}, {75, 15}, {50, 20}})}, 1,
         {"100 (115)", "75 (90)", "50 (70)"}, {115, 90, 70}, {2, 2, 2}, {0x0000FF, 0x0032FF, 0x0064FF}},
        {"Omega does not: tested levels", {GraphMode::PowerLevels, false, 100, 5, Bonuses({})}, 2,
         {"125", "100", "50"}, {125, 100, 50}, {5, 5, 5}, {0x00FFFF, 0x00FFC8, 0x00FF96}},
        {"ranges", {GraphMode::Ranges, false, 75, 5, Bonuses({})}, 1,
         {"0-1 km", "5 km", "10 km"}, {75, 75, 75}, {0, 4, 9}, {0x0000FF, 0x0032FF, 0x0064FF}},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        const std::array<GraphLine, 3> lines = ComparedLines(k.in, k.v);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(std::tuple(lines[i].text, lines[i].power, lines[i].range, lines[i].colour),
                      std::tuple(k.texts[i], k.powers[i], k.ranges[i], k.colours[i]));
    }
}

constexpr int kGraphWidth = 11115;
constexpr int kGraphHeight = 10815;

GraphPlacementInput Screen(int workRight, int workBottom, ShownWindow main) {
    GraphPlacementInput in;
    in.workRight = workRight;
    in.workBottom = workBottom;
    in.main = main;
    in.alpha = ShownWindow{0, 0, 9780, 11000, false};
    in.omega = ShownWindow{0, 0, 9780, 11000, false};
    in.graphWidth = kGraphWidth;
    in.graphHeight = kGraphHeight;
    return in;
}

GraphPlacementInput WithSettings(GraphPlacementInput in, ShownWindow alpha, ShownWindow omega = {0, 0, 0, 0, false}) {
    in.alpha = alpha;
    in.omega = omega;
    return in;
}

TEST(GraphPlacement, BesideTheMainWindowThenTheSettingsThenTheCorner) {
    // clang-format off
    struct Case { const char* name; GraphPlacementInput in; int place, left, top; } cases[] = {
        {"alone on a wide screen: right, same top", Screen(40000, 16000, {5000, 300, 9950, 9765}), 0, 14950, 300},
        {"no room below: moved up", Screen(40000, 12000, {5000, 2000, 9950, 9765}), 0, 14950, 12000 - kGraphHeight},
        {"no room at the right: left of the main window", Screen(30000, 16000, {12000, 0, 9950, 9765}), 1, 12000 - kGraphWidth, 0},
        {"500 off the right edge is accepted", Screen(26000, 16000, {5000, 0, 9950, 9765}), 4, 14950, 0},
        {"500 off the left edge is accepted", Screen(26000, 16000, {10615, 0, 14115, 9765}), 5, 10615 - kGraphWidth, 0},
        {"501 off both: the corner", Screen(25000, 16000, {10614, 0, 14000, 9765}), -1, 25000 - kGraphWidth, 16000 - kGraphHeight},
        {"settings at the right: beyond them", WithSettings(Screen(40000, 16000, {0, 0, 9950, 9765}), {9950, 0, 9780, 11000}), 2, 19730, 0},
        {"settings at the right, no room beyond: left of the main window", WithSettings(Screen(32000, 16000, {11200, 0, 9950, 9765}), {21150, 0, 9780, 11000}), 1, 11200 - kGraphWidth, 0},
        {"200 of overlap with the settings is accepted", WithSettings(Screen(40000, 16000, {0, 0, 9950, 9765}), {20865, 0, 9780, 11000}), 4, 9950, 0},
        {"settings below the graph's rows are not in its way", WithSettings(Screen(40000, 30000, {0, 0, 9950, 9765}), {9950, 10815, 9780, 11000}), 0, 9950, 0},
        {"hidden settings are not in the way", WithSettings(Screen(40000, 16000, {0, 0, 9950, 9765}), {9950, 0, 9780, 11000, false}), 0, 9950, 0},
        {"settings at the left: left of them", WithSettings(Screen(24000, 16000, {22000, 0, 1000, 9765}), {12000, 0, 9780, 11000}), 3, 12000 - kGraphWidth, 0},
        {"Omega further out at the right", WithSettings(Screen(50000, 16000, {0, 0, 9950, 9765}), {9950, 0, 9780, 11000}, {19730, 0, 9780, 11000}), 2, 29510, 0},
    };
    // clang-format on
    for (const Case& k : cases) {
        const GraphPlacement p = PlaceGraph(k.in);
        EXPECT_EQ(std::tuple(p.place, p.left, p.top), std::tuple(k.place, k.left, k.top)) << k.name;
        EXPECT_EQ(p.corner(), k.place < 0) << k.name;
    }
}

// The program with the graph open, through the main window's button.
struct OpenGraph {
    Program c;
    OpenGraph(const char* const (&forward)[4], const char* const (&rear)[4]) {
        c.workWidth = 40000;
        ShowMainWindowAtStart(c);
        Fit(c, forward, rear);
        CalculateFiringArcs(c);
        c.main.GraphResults.press();
    }
    GraphWindow& g() { return c.graph; }
    int visibleLines() const {
        int n = 0;
        for (int i = 0; i <= 29; ++i)
            n += c.graph.Line1[i].visible() ? 1 : 0;
        return n;
    }
    std::vector<std::string> keyLabels() const {
        std::vector<std::string> out;
        for (int i = 0; i <= 5; ++i)
            if (c.graph.KeyLabel[i].visible()) out.push_back(c.graph.KeyLabel[i].caption());
        return out;
    }
};

constexpr const char* kBeams[4] = {"Beam Array", "Dual Beam Bank", "Cannon", nullptr};
constexpr const char* kRearBeams[4] = {"Beam Array", "Beam Array", "Turret", nullptr};
constexpr const char* kNothing[4] = {nullptr, nullptr, nullptr, nullptr};

TEST(GraphWindow, OpensBesideTheMainWindowAndCloses) {
    OpenGraph o(kBeams, kRearBeams);
    GraphWindow& g = o.g();
    EXPECT_TRUE(g.Form.visible());
    EXPECT_EQ(o.c.main.GraphResults.caption(), "Hide Graph");
    EXPECT_EQ(std::tuple(g.Form.left(), g.Form.top()),
              std::tuple(o.c.main.Form1.left() + o.c.main.Form1.width(), o.c.main.Form1.top()));
    EXPECT_EQ(std::tuple(g.Title.caption(), g.Form.title(), g.Subtitle.caption()),
              std::tuple(std::string("DPS Graph (Unrestricted Vessel)"), std::string("DPS Graph (Unrestricted Vessel)"),
                         std::string(" 100 Weapon Power, 0-1 km Range, Relative DPS")));

    // A single standard line: red, no key, no button.
    EXPECT_EQ(o.visibleLines(), 5);
    EXPECT_EQ(g.Line1[0].fore(), 255u);
    EXPECT_FALSE(g.Key.visible() || g.HideKey.visible());
    EXPECT_EQ(g.XAxis[3].caption(), "Front Pocket");

    g.GraphMode.click(2);
    g.HideKey.press();
    g.DisplayOnUpdate.setValue(1);
    EXPECT_FALSE(g.KeyShown);
    o.c.main.GraphResults.press();
    EXPECT_FALSE(g.Form.visible());
    EXPECT_EQ(std::tuple(g.GraphMode.index(), g.KeyShown, g.HideKey.caption(), g.DisplayOnUpdate.value(),
                         o.c.main.GraphResults.caption()),
              std::tuple(0, true, std::string("Hide"), 0, std::string("Graph Results")));

    // The frame's close button closes it just the same.
    o.c.main.GraphResults.press();
    g.GraphMode.click(1);
    g.Form.requestClose();
    EXPECT_EQ(std::tuple(g.Form.visible(), g.GraphMode.index(), o.c.main.GraphResults.caption()),
              std::tuple(false, 0, std::string("Graph Results")));
}

TEST(GraphWindow, ComparisonsDrawTheirLinesAndKeys) {
    OpenGraph o(kBeams, kRearBeams);
    GraphWindow& g = o.g();
    // clang-format off
    struct Case { const char* name; int mode; bool comparing; int lines; std::vector<std::string> labels; std::string title1, title2; } cases[] = {
        {"power levels", 1, false, 25, {"125", "100", "75", "50", "35"}, "Weapon Power", ""},
        {"ranges", 2, false, 30, {"0-1 km", "2 km", "4 km", "6 km", "8 km", "10 km"}, "Target Distance", ""},
        {"standard, compared", 0, true, 10, {"Alpha", "Omega"}, "", ""},
        {"power levels, compared", 1, true, 30, {"125", "100", "50", "125", "100", "50"}, "Alpha", "Omega"},
        {"ranges, compared", 2, true, 30, {"0-1 km", "5 km", "10 km", "0-1 km", "5 km", "10 km"}, "Alpha", "Omega"},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        if (k.comparing && o.c.state.Comparing == 0) {
            o.c.main.Compare.press();
            o.c.main.CForward[1].setText("Dual Cannons");
            CalculateFiringArcs(o.c);
        }
        g.GraphMode.click(k.mode);
        EXPECT_EQ(o.visibleLines(), k.lines);
        EXPECT_EQ(o.keyLabels(), k.labels);
        EXPECT_TRUE(g.Key.visible());
        EXPECT_EQ(std::tuple(g.KeyTitle[0].caption(), g.KeyTitle[1].caption()), std::tuple(k.title1, k.title2));
    }
}

TEST(GraphWindow, PowerComparisonIgnoresTheSelectedPower) {
    OpenGraph o(kBeams, kRearBeams);
    GraphWindow& g = o.g();
    g.GraphMode.click(1);
    const SeriesYs at100 = SeriesYsOf(g, 2);
    const std::string top = g.YAxis[10].caption();
    testing::Select(o.c.main.PowerLevel[1], "50");
    CalculateFiringArcs(o.c);
    EXPECT_EQ(std::tuple(SeriesYsOf(g, 2).y1, SeriesYsOf(g, 2).y2, g.YAxis[10].caption()),
              std::tuple(at100.y1, at100.y2, top));
    // In a range comparison it counts.
    g.GraphMode.click(2);
    const std::string atFifty = g.YAxis[10].caption();
    testing::Select(o.c.main.PowerLevel[1], "125");
    CalculateFiringArcs(o.c);
    EXPECT_NE(g.YAxis[10].caption(), atFifty);
}

TEST(GraphWindow, NoDpsDrawsTitlesOnly) {
    OpenGraph o(kNothing, kNothing);
    GraphWindow& g = o.g();
    g.DisplayOnUpdate.setVisible(true);
    g.DisplayOnUpdate.setValue(1);
    const int before = g.Form.frontRequests();
    GraphControl(o.c);
    EXPECT_EQ(std::tuple(o.visibleLines(), g.Key.visible(), g.Form.frontRequests(), g.YAxis[10].caption()),
              std::tuple(0, false, before, std::string("1000")));
    EXPECT_EQ(g.Title.caption(), "DPS Graph (Unrestricted Vessel)");
    // Something to show: brought to the front.
    Fit(o.c, kBeams, kNothing);
    CalculateFiringArcs(o.c);
    EXPECT_EQ(g.Form.frontRequests(), before + 1);
}

TEST(GraphWindow, StandardScaleCountsTheArcsOnShow) {
    // clang-format off
    struct Case { const char* name; int simplified; ArcValues alpha, omega; std::string top; int lines; } cases[] = {
        {"every arc counts", 0, Arcs(100, 1000, 100, 100, 100, 100), Arcs(0, 0, 0, 0, 0, 0), "1100", 5},
        {"Omega's values count too", 0, Arcs(100, 100, 100, 100, 100, 100), Arcs(0, 0, 0, 0, 730, 0), "800", 5},
        {"simplified: only forward, side and rear", 1, Arcs(100, 1000, 1000, 1000, 120, 90), Arcs(0, 0, 0, 0, 0, 0), "150", 2},
        {"missing data does not raise the scale", 0, Arcs(-1, -1, 20, -1, -1, -1), Arcs(0, 0, 0, 0, 0, 0), "50", 5},
        {"nothing to show: no line", 0, Arcs(-1, 0, 0, -1, 0, 0), Arcs(0, 0, 0, 0, 0, 0), "1000", 0},
    };
    // clang-format on
    OpenGraph o(kNothing, kNothing);
    for (const Case& k : cases) {
        SCOPED_TRACE(k.name);
        o.c.main.Simplified.setValue(k.simplified);
        for (int row = 0; row <= 5; ++row) {
            o.c.state.ArcDPS[row][1] = k.alpha[row];
            o.c.state.ArcDPS[row][2] = k.omega[row];
        }
        GraphControl(o.c);
        EXPECT_EQ(std::tuple(o.g().YAxis[10].caption(), o.visibleLines()), std::tuple(k.top, k.lines));
    }
    // A closed graph is left as it is.
    o.c.main.GraphResults.press();
    o.c.state.ArcDPS[0][1] = 5000;
    GraphControl(o.c);
    EXPECT_EQ(o.g().YAxis[10].caption(), "1000");
}

TEST(GraphWindow, HiddenKeyStaysHiddenAcrossRedraws) {
    OpenGraph o(kBeams, kRearBeams);
    GraphWindow& g = o.g();
    g.GraphMode.click(2);
    ASSERT_TRUE(g.Key.visible());
    EXPECT_EQ(std::tuple(g.HideKey.left() + g.HideKey.width(), g.HideKey.top() + g.HideKey.height()),
              std::tuple(g.Key.left() + g.Key.width(), g.Key.top() + g.Key.height()));

    g.HideKey.press();
    EXPECT_EQ(std::tuple(g.Key.visible(), g.HideKey.visible(), g.HideKey.caption(), g.HideKey.left(), g.HideKey.top(),
                         g.HideKey.width(), g.HideKey.height()),
              std::tuple(false, true, std::string("Show Key"), 9600, 8760, 975, 255));
    EXPECT_EQ(o.keyLabels(), std::vector<std::string>{});

    // A single standard line: no button, though still "Show Key".
    g.GraphMode.click(0);
    EXPECT_EQ(std::tuple(g.HideKey.visible(), g.HideKey.caption()), std::tuple(false, std::string("Show Key")));
    g.GraphMode.click(1);
    EXPECT_EQ(std::tuple(g.Key.visible(), g.HideKey.visible()), std::tuple(false, true));

    g.HideKey.press();
    EXPECT_EQ(std::tuple(g.KeyShown, g.Key.visible(), g.HideKey.caption(), g.HideKey.width(), g.HideKey.height()),
              std::tuple(true, true, std::string("Hide"), 555, 200));
}

TEST(GraphWindow, BroadsideNamesTheFourthArc) {
    // Forward and rear arrays without cannons: a broadside.
    OpenGraph o(kBeams, kRearBeams);
    GraphWindow& g = o.g();
    o.c.main.Forward[3].setText("Beam Array");
    CalculateFiringArcs(o.c);
    EXPECT_EQ(std::tuple(g.XAxis[3].caption(), g.XAxis[3].left(), g.XAxis[4].visible()),
              std::tuple(std::string("Broadside"), 6855, false));
    o.c.main.Forward[3].setText("Cannon");
    CalculateFiringArcs(o.c);
    EXPECT_EQ(std::tuple(g.XAxis[3].caption(), g.XAxis[3].left(), g.XAxis[4].visible()),
              std::tuple(std::string("Front Pocket"), 6135, true));
}

TEST(GraphWindow, CornerOffersToBringItToTheFront) {
    Program c;
    c.workWidth = 12000;
    c.workHeight = 9000;
    c.main.GraphResults.press();
    EXPECT_EQ(std::tuple(c.graph.Form.left(), c.graph.Form.top(), c.graph.DisplayOnUpdate.visible()),
              std::tuple(12000 - kGraphWidth, 9000 - kGraphHeight, true));
    c.workWidth = 40000;
    c.workHeight = 20000;
    DisplayGraph(c);
    EXPECT_FALSE(c.graph.DisplayOnUpdate.visible());
}

} // namespace
} // namespace vantorel
