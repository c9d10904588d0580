#include "engine/focus.h"

#include <algorithm>
#include <climits>

namespace vantorel {

namespace {

// [start, end): a box's extent along one direction. A box of no size still
// stands somewhere.
struct Span {
    int start = 0;
    int end = 0;
};

Span Across(const FocusBox& b) { return {b.left, b.left + std::max(b.width, 1)}; }
Span Down(const FocusBox& b) { return {b.top, b.top + std::max(b.height, 1)}; }

bool Overlap(Span a, Span b) { return a.start < b.end && b.start < a.end; }

using Boxes = std::vector<FocusBox>;
using Set = std::vector<int>;

// The pieces of `set` between the gaps that cross all of it along one
// direction, in order. Boxes that touch stand together.
std::vector<Set> Strips(const Boxes& boxes, const Set& set, Span (*along)(const FocusBox&)) {
    Set sorted = set;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](int a, int b) { return along(boxes[a]).start < along(boxes[b]).start; });
    std::vector<Set> strips;
    int end = INT_MIN;
    for (int i : sorted) {
        const Span s = along(boxes[i]);
        if (strips.empty() || s.start > end) strips.emplace_back();
        strips.back().push_back(i);
        end = std::max(end, s.end);
    }
    return strips;
}

Span Extent(const Boxes& boxes, const Set& set, Span (*along)(const FocusBox&)) {
    Span all{INT_MAX, INT_MIN};
    for (int i : set) {
        const Span s = along(boxes[i]);
        all.start = std::min(all.start, s.start);
        all.end = std::max(all.end, s.end);
    }
    return all;
}

Set TakingFocus(const Boxes& boxes, const Set& set) {
    Set focus;
    for (int i : set)
        if (boxes[i].takesFocus) focus.push_back(i);
    return focus;
}

// Whether the controls of `set` stand in more than one row: a column of
// them, not a control beside the others.
bool InRows(const Boxes& boxes, const Set& set) { return Strips(boxes, TakingFocus(boxes, set), Down).size() > 1; }

// The columns of `set`, left to right: the strips between the gaps that
// cross it from top to bottom, where what stands left of a gap and what
// stands right of it share some height and both hold controls in rows.
std::vector<Set> Columns(const Boxes& boxes, const Set& set) {
    const std::vector<Set> strips = Strips(boxes, set, Across);
    std::vector<Set> columns;
    Set left;
    for (std::size_t k = 0; k < strips.size(); ++k) {
        if (columns.empty()) columns.emplace_back();
        columns.back().insert(columns.back().end(), strips[k].begin(), strips[k].end());
        left.insert(left.end(), strips[k].begin(), strips[k].end());
        if (k + 1 == strips.size()) break;
        Set right;
        for (std::size_t r = k + 1; r < strips.size(); ++r)
            right.insert(right.end(), strips[r].begin(), strips[r].end());
        if (Overlap(Extent(boxes, left, Down), Extent(boxes, right, Down)) && InRows(boxes, left) &&
            InRows(boxes, right))
            columns.emplace_back();
    }
    return columns;
}

void Append(Set& to, const Set& more) { to.insert(to.end(), more.begin(), more.end()); }

Set Order(const Boxes& boxes, const Set& set) {
    const Set focus = TakingFocus(boxes, set);
    if (focus.size() <= 1) return focus;

    const std::vector<Set> columns = Columns(boxes, set);
    Set order;
    if (columns.size() > 1) {
        for (const Set& column : columns)
            Append(order, Order(boxes, column));
        return order;
    }

    // No column runs the whole height: bands of rows, each as long as its
    // rows keep a column beside another.
    const std::vector<Set> rows = Strips(boxes, set, Down);
    if (rows.size() > 1) {
        Set band = rows[0];
        for (std::size_t r = 1; r < rows.size(); ++r) {
            Set wider = band;
            Append(wider, rows[r]);
            if (Columns(boxes, wider).size() > 1) {
                band = std::move(wider);
                continue;
            }
            Append(order, Order(boxes, band));
            band = rows[r];
        }
        Append(order, Order(boxes, band));
        return order;
    }

    // One row: captions that join controls standing one above the other
    // no longer count; the controls alone go left to right, those in the
    // same strip from the top.
    if (focus.size() < set.size()) return Order(boxes, focus);
    for (Set strip : Strips(boxes, focus, Across)) {
        std::stable_sort(strip.begin(), strip.end(), [&](int a, int b) {
            return boxes[a].top != boxes[b].top ? boxes[a].top < boxes[b].top : boxes[a].left < boxes[b].left;
        });
        Append(order, strip);
    }
    return order;
}

} // namespace

std::vector<int> TabOrder(const std::vector<FocusBox>& boxes) {
    Set all(boxes.size());
    for (std::size_t i = 0; i < boxes.size(); ++i)
        all[i] = static_cast<int>(i);
    return Order(boxes, all);
}

int ValueToShow(const PageView& view, int start, int length) {
    int value = view.value;
    if (start < value || length > view.visible)
        value = start;
    else if (start + length > value + view.visible)
        value = start + length - view.visible;
    return std::clamp(value, 0, std::max(view.maximum, 0));
}

} // namespace vantorel
