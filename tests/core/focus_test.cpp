#include "engine/focus.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantorel {
namespace {

// A box by name; captions ("c...") take no focus, controls do.
struct Named {
    const char* name;
    int left, top, width, height;
};

std::string Tabbed(const std::vector<Named>& boxes) {
    std::vector<FocusBox> places;
    for (const Named& b : boxes)
        places.push_back({b.left, b.top, b.width, b.height, b.name[0] != 'c'});
    std::string order;
    for (int i : TabOrder(places))
        order += (order.empty() ? "" : " ") + std::string(boxes[static_cast<std::size_t>(i)].name);
    return order;
}

TEST(TabOrder, RunsDownEachColumn) {
    // clang-format off
    struct Case { const char* name; std::vector<Named> boxes; const char* order; } cases[] = {
        {"nothing", {}, ""},
        {"captions only", {{"c1", 0, 0, 10, 10}}, ""},
        {"one column, given out of order", {{"B", 0, 30, 50, 20}, {"A", 0, 0, 50, 20}, {"C", 0, 60, 50, 20}}, "A B C"},
        {"two columns: the left one first",
         {{"A1", 0, 0, 50, 20}, {"B1", 100, 0, 50, 20}, {"A2", 0, 30, 50, 20}, {"B2", 100, 30, 50, 20}},
         "A1 A2 B1 B2"},
        {"columns of captions and boxes: the boxes go down",
         {{"c1", 0, 0, 60, 20}, {"A", 70, 0, 30, 20}, {"c2", 0, 30, 60, 20}, {"B", 70, 30, 30, 20},
          {"c3", 150, 0, 60, 20}, {"C", 220, 0, 30, 20}, {"c4", 150, 30, 60, 20}, {"D", 220, 30, 30, 20}},
         "A B C D"},
        {"a heading row across both columns comes first, left to right",
         {{"H1", 60, 0, 100, 20}, {"H2", 200, 0, 40, 20}, {"A1", 0, 40, 80, 20}, {"B1", 120, 40, 80, 20},
          {"A2", 0, 70, 80, 20}, {"B2", 120, 70, 80, 20}},
         "H1 H2 A1 A2 B1 B2"},
        {"the heading's own row starts higher: still left to right",
         {{"Check", 60, 5, 100, 20}, {"Help", 200, 0, 40, 25}}, "Check Help"},
        {"a section line ends the columns above it",
         {{"A1", 0, 0, 80, 20}, {"B1", 120, 0, 80, 20}, {"A2", 0, 30, 80, 20}, {"B2", 120, 30, 80, 20},
          {"cLine", 0, 60, 200, 2}, {"A3", 0, 70, 80, 20}, {"B3", 120, 70, 80, 20}, {"A4", 0, 100, 80, 20},
          {"B4", 120, 100, 80, 20}},
         "A1 A2 B1 B2 A3 A4 B3 B4"},
        {"a grid goes down each of its columns",
         {{"E1", 0, 0, 20, 20}, {"L1", 30, 0, 60, 20}, {"E2", 0, 30, 20, 20}, {"L2", 30, 30, 60, 20}},
         "E1 E2 L1 L2"},
        {"a list in the captions' column stands in its row",
         {{"c5", 0, 0, 60, 20}, {"S5", 70, 0, 30, 20}, {"c6", 0, 30, 60, 20}, {"S6", 70, 30, 30, 20},
          {"Type", 0, 60, 60, 20}, {"S8", 70, 60, 30, 20}},
         "S5 S6 Type S8"},
        {"a button high above a column stays at its top",
         {{"Top", 120, 0, 40, 20}, {"cPicture", 0, 40, 160, 200}, {"Check", 30, 250, 80, 15},
          {"B1", 0, 280, 40, 20}, {"B2", 60, 280, 40, 20}},
         "Top Check B1 B2"},
        {"a vessel column, the middle and the other vessel's column",
         {{"A1", 0, 40, 50, 20}, {"A2", 0, 70, 50, 20}, {"Top", 120, 0, 40, 20}, {"cBox", 60, 60, 40, 20},
          {"cPicture", 100, 40, 60, 100}, {"Check", 80, 150, 60, 15}, {"O1", 200, 40, 50, 20},
          {"O2", 200, 70, 50, 20}},
         "A1 A2 Top Check O1 O2"},
        {"two controls in one place: the higher first", {{"Hide", 0, 0, 40, 20}, {"Show", 0, 0, 40, 20}},
         "Hide Show"},
        {"a control of no size still has its place",
         {{"A", 0, 0, 50, 20}, {"Hidden", 0, 30, 0, 0}, {"B", 0, 60, 50, 20}}, "A Hidden B"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Tabbed(c.boxes), c.order);
    }
}

TEST(ValueToShow, MovesThePageAsLittleAsItCan) {
    // clang-format off
    struct Case { const char* name; PageView view; int start, length, value; } cases[] = {
        {"in view: unchanged", {300, 1000, 500}, 400, 100, 300},
        {"filling the view exactly", {300, 1000, 500}, 300, 500, 300},
        {"above the view: its start at the top", {300, 1000, 500}, 100, 50, 100},
        {"below the view: its end at the bottom", {300, 1000, 500}, 900, 100, 500},
        {"longer than the view: its start at the top", {0, 1000, 500}, 200, 800, 200},
        {"beyond the page's end: the bar's end", {0, 400, 500}, 1200, 100, 400},
        {"a page that fits: nowhere to go", {0, -20, 500}, 600, 100, 0},
        {"above a bar that stood past its end", {900, 400, 500}, 950, 10, 400},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(ValueToShow(c.view, c.start, c.length), c.value);
    }
}

} // namespace
} // namespace vantorel
