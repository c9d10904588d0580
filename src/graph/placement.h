#pragma once

// Where window `Graph` stands: beside the main window if it can, beside the
// advanced settings windows otherwise, a little overlap or a little off the
// screen accepted, and only as a last resort in the lower right corner of the
// work area, over the other windows.

namespace vantorel {

// A window's outer rectangle in twips, and whether it is on show.
struct ShownWindow {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool visible = true;
    int right() const { return left + width; }
    int bottom() const { return top + height; }
};

struct GraphPlacementInput {
    int workLeft = 0;
    int workTop = 0;
    int workRight = 0;
    int workBottom = 0;
    ShownWindow main;  // `Form1`
    ShownWindow alpha; // the settings windows `Alpha` and `Omega`
    ShownWindow omega;
    int graphWidth = 0;
    int graphHeight = 0;
    int graphTop = 0; // the graph's top before it is placed
};

// Up to 200 twips of overlap with a settings window and up to 500 off the
// work area are accepted at the places tried last.
inline constexpr int kOverlapTolerance = 200;
inline constexpr int kOffScreenTolerance = 500;

struct GraphPlacement {
    int left = 0;
    int top = 0;
    // 0 right of the main window, 1 left of it, 2 right of the settings
    // windows, 3 left of them; 4 to 7 the same with the tolerances; -1 the
    // corner.
    int place = -1;
    bool corner() const { return place < 0; }
};
GraphPlacement PlaceGraph(const GraphPlacementInput& in);

} // namespace vantorel
