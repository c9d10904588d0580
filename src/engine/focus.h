#pragma once

// Where the keyboard's focus goes on a window, as rules over the places of
// its controls: the order in which Tab visits them, and how far a page moves
// to bring the control with the focus into view. Places are in any one unit
// (twips, or the pixels they map to), on the window.

#include <vector>

namespace vantorel {

// A control's place, and whether the user can tab to it. Captions, pictures
// and output boxes take no focus, but they shape the window's columns.
struct FocusBox {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool takesFocus = false;
};

// The order in which Tab visits the boxes that take the focus, as indices
// into `boxes`: down each column of the window, the columns from left to
// right. A column is a strip of the window that nothing crosses, beside
// another strip over the same height, each with controls in more than one
// row; where no such strip stands, the window is read a band of rows at a
// time, each band by its own columns, a single row from left to right.
std::vector<int> TabOrder(const std::vector<FocusBox>& boxes);

// A page that a bar moves: the bar's value and maximum, and how much of the
// page is in view, along one direction.
struct PageView {
    int value = 0;
    int maximum = 0;
    int visible = 0;
};

// The bar's value that brings [start, start + length) of the page into view,
// moving the page as little as it can: unchanged if the span is in view, the
// span's start at the edge of the view if it lies before it or is longer
// than the view, its end at the far edge if it lies beyond it. Never outside
// 0 .. maximum.
int ValueToShow(const PageView& view, int start, int length);

} // namespace vantorel
