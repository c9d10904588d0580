#include "graph/window.h"

#include "graph/scale.h"

#include <string>

namespace vantorel {

namespace {

constexpr int kLabelHeight = 255;

// White on the window's black.
Label Caption(std::string text, int left, int top, int width, int height) {
    Label l(std::move(text));
    l.setFore(White);
    l.setBack(Black);
    l.setRect({left, top, width, height});
    return l;
}

Line GridLine(int x1, int y1, int x2, int y2) {
    Line l(x1, y1, x2, y2);
    l.setFore(DarkGrey);
    return l;
}

// The arc names under the points, and where they stand.
struct ArcName {
    const char* caption;
    int left, top, width;
};
constexpr ArcName kArcNames[6] = {{"Forward 45", 1635, 9150, 1095},  {"Forward 90", 3135, 9150, 1095},
                                  {"Forward 110", 4635, 9120, 1095}, {"Front Pocket", 6135, 9150, 1095},
                                  {"Rear Pocket", 7575, 9150, 1215}, {"Rear 110", 9135, 9150, 1095}};
constexpr int kScaleTops[11] = {8880, 8130, 7365, 6600, 5835, 5070, 4305, 3540, 2790, 2025, 1260};

} // namespace

void SetUpGraphWindow(GraphWindow& g) {
    // The inner area is 10995 by 10410; the design's sizes count the frame.
    g.Form = Window("DPS Graph");
    g.Form.setBack(Black);
    g.Form.setWidth(10995 + 120);
    g.Form.setHeight(10410 + 405);

    g.Title = Caption("DPS Graph", 240, 240, 10680, 375);
    g.Title.setFontSize(18.0);
    g.Subtitle = Caption("", 240, 720, 10800, kLabelHeight);
    g.Subtitle.setFontSize(14.0);
    g.skilltitle = Caption("", 240, 960, 10800, kLabelHeight);
    g.skilltitle.setFontSize(14.0);

    g.GraphMode = List({"Standard Graph", "Power Level Comparison", "Range Comparison"});
    g.GraphMode.setIndex(0);
    g.GraphMode.setRect({480, 9875, 2295, 315});
    g.Help = Button("Help", "Click to display the Graph Window section of the program's documentation.");
    g.Help.setRect({2880, 9875, 855, 315});
    g.DisplayOnUpdate = Flag(0, "Display Graph On Update");
    g.DisplayOnUpdate.setTooltip(
        "Check to have the Graph Window automatically brought to the front whenever it is updated.");
    g.DisplayOnUpdate.setFore(White);
    g.DisplayOnUpdate.setBack(Black);
    g.DisplayOnUpdate.setVisible(false);
    g.DisplayOnUpdate.setRect({7680, 9840, 3135, 315});
    g.HideKey = Button("Hide");
    g.HideKey.setRect({9240, 8760, 555, 200});
    g.HideKey.setVisible(false);

    g.XAxisLabel = Caption("Firing Arcs", 4635, 9840, 2595, 375);
    g.YAxisLabel = Picture();
    g.YAxisLabel.setImage("DPS");
    g.YAxisLabel.setFore(White);
    g.YAxisLabel.setBack(Black);
    g.YAxisLabel.setRect({120, 4665, 420, 1050});

    g.Border[0] = GridLine(kPlotLeft, kPlotTop, kPlotLeft, kPlotZero + 9);
    g.Border[1] = GridLine(kPlotLeft, kPlotZero, kPlotRight, kPlotZero);
    g.Border[2] = GridLine(kPlotLeft, kPlotTop, kPlotRight, kPlotTop);
    g.Border[3] = GridLine(kPlotRight, kPlotTop, kPlotRight, kPlotZero + 9);
    for (int k = 1; k <= 9; ++k)
        g.AxisLine[k] = GridLine(kPlotLeft, kPlotZero - kGridStep * k, kPlotRight, kPlotZero - kGridStep * k);

    for (int i = 0; i <= 5; ++i) {
        const ArcName& a = kArcNames[i];
        g.XAxis[i] = Caption(a.caption, a.left, a.top, a.width, kLabelHeight);
    }
    g.YAxis[0] = Caption("0", 600, kScaleTops[0], 495, kLabelHeight);
    for (int i = 1; i <= 10; ++i)
        g.YAxis[i] = Caption(std::to_string(100 * i), 360, kScaleTops[i], 735, kLabelHeight);

    for (int s = 0; s <= 5; ++s) {
        for (int k = 0; k <= 4; ++k) {
            Line& line = g.Line1[5 * s + k];
            line =
                Line(kArcX[static_cast<std::size_t>(k)], kPlotZero, kArcX[static_cast<std::size_t>(k) + 1], kPlotZero);
            line.setVisible(false);
        }
    }

    g.Key.setRect({7560, 7020, 2775, 1680});
    g.Key.setBack(Black);
    g.Key.setFore(DarkGrey);
    g.Key.setVisible(false);
    for (int i = 0; i <= 5; ++i) {
        g.KeyIcon[i].setRect({0, 0, 255, 255});
        g.KeyIcon[i].setVisible(false);
        g.KeyLabel[i] = Caption("", 0, 0, 915, kLabelHeight);
        g.KeyLabel[i].setVisible(false);
    }
    for (int i = 0; i <= 1; ++i) {
        g.KeyTitle[i] = Caption("", 0, 0, 2775, kLabelHeight);
        g.KeyTitle[i].setVisible(false);
    }
    g.KeyShown = true;
}

void RegisterFields(FieldTable& table, GraphWindow& g) {
    FieldNames b(table, "Graph", &g.Form);
    b.window(g.Form);
    b.one("Title", g.Title);
    b.one("Subtitle", g.Subtitle);
    b.one("skilltitle", g.skilltitle);
    b.one("GraphMode", g.GraphMode);
    b.one("Help", g.Help);
    b.one("DisplayOnUpdate", g.DisplayOnUpdate);
    b.one("HideKey", g.HideKey);
    b.one("XAxisLabel", g.XAxisLabel);
    b.one("YAxisLabel", g.YAxisLabel);
    b.array("Border", g.Border);
    b.array("AxisLine", g.AxisLine);
    b.array("XAxis", g.XAxis);
    b.array("YAxis", g.YAxis);
    b.array("Line1", g.Line1);
    b.one("Key", g.Key);
    b.array("KeyIcon", g.KeyIcon);
    b.array("KeyLabel", g.KeyLabel);
    b.array("KeyTitle", g.KeyTitle);
    b.one("KeyShown", g.KeyShown);
}

} // namespace vantorel
