#pragma once

// The key of window `Graph`: a box inside the plot that names the lines. It
// looks for a corner or side where no line runs, reading the lines just drawn
// back from `Line1`; where it had to cover lines, a small button lets the
// player fold it away.

#include "engine/records.h"

#include <array>
#include <span>
#include <string>

namespace vantorel {

// 0: no key and no button; 1: the key for the labels given; 3: the key
// folded away, its button left.
enum class KeyMode { None = 0, Shown = 1, Hidden = 3 };

// What a key names: one label per series (empty for none) and the titles
// over its one or two columns.
struct KeyTexts {
    std::array<std::string, 6> labels{};
    std::string title1;
    std::string title2;
};

// The y of the five segments of one series, as its lines hold them.
struct SeriesYs {
    std::array<int, 5> y1{};
    std::array<int, 5> y2{};
};
SeriesYs SeriesYsOf(const GraphWindow& g, int series);

// Where the key's box goes: one of the twelve places, or none free.
struct KeyPlace {
    int place = -1; // 0 to 11; -1 when every place is taken
    int top = 7020;
    int left = 7560;
    bool button = true; // the hide button stays on show
};
// The first of the twelve places that no series runs through.
KeyPlace FindKeyPlace(std::span<const SeriesYs> series);

struct KeyItemPlace {
    int left = 0;
    int top = 0;
    int width = 0;
};

// What the layout inside the box goes by.
struct KeyLayoutInput {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool buttonShown = false;
    int count = 0;   // series named, 1 to 6
    int longest = 0; // characters of the longest label
    bool title1 = false;
    bool title2 = false;
};

// The places of the icons, labels and titles inside the box: one column for
// up to three series, two columns beyond.
struct KeyLayout {
    std::array<KeyItemPlace, 6> icons{};
    std::array<KeyItemPlace, 6> labels{};
    double labelSize = 14.0;
    std::array<bool, 2> titleShown{};
    std::array<KeyItemPlace, 2> titles{};
};
KeyLayout LayOutKey(const KeyLayoutInput& in);

// Shows, lays out or folds the key, and puts its button in place.
void KeyControl(Calculator& c, KeyMode mode, const KeyTexts& texts);
// `HideKey`: folds the key away, or brings it back with a redraw.
void HideKeyClicked(Calculator& c);

} // namespace vantorel
