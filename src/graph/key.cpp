#include "graph/key.h"

#include "engine/numbers.h"
#include "graph/graph.h"
#include "graph/scale.h"

#include <algorithm>
#include <initializer_list>

namespace vantorel {

namespace {

constexpr int kIconSize = 255;
constexpr int kItemHeight = 255;
constexpr int kTitleGap = 100;
// The hide button takes this much off the height the rows share.
constexpr int kButtonRoom = 50;

// The points of a series that lie under a box at the right or the left:
// the two under it (near) and the next one towards the middle (wide).
enum class Side { Right, Left };
enum class Reach { Near, Wide };

struct Points {
    std::array<int, 3> y{};
    int count = 0;
};

Points PointsOf(const SeriesYs& s, Side side, Reach reach) {
    if (side == Side::Right)
        return reach == Reach::Wide ? Points{{s.y1[3], s.y1[4], s.y2[4]}, 3} : Points{{s.y1[4], s.y2[4], 0}, 2};
    return reach == Reach::Wide ? Points{{s.y1[0], s.y2[0], s.y2[1]}, 3} : Points{{s.y1[0], s.y2[0], 0}, 2};
}

enum class Band { Bottom, Top, Middle };

// Whether a line runs through the box's band: the two conditions may hold
// on different points.
bool RunsThrough(const Points& p, Band band) {
    const auto any = [&](auto test) { return std::any_of(p.y.begin(), p.y.begin() + p.count, test); };
    switch (band) {
    case Band::Bottom:
        return any([](int y) { return y > 6950; }) && any([](int y) { return y < kPlotZero; });
    case Band::Top:
        return any([](int y) { return y < 3430; });
    case Band::Middle:
        return any([](int y) { return y > 4280; }) && any([](int y) { return y < 6100; });
    }
    return false;
}

struct Candidate {
    Side side;
    Reach reach;
    Band band;
    int top;
    int left;
    bool button;
};

// The twelve places in the order they are tried: first the places whose
// wider stretch of line is clear, then those with only the points right
// under the box clear, which keep the hide button.
constexpr int kRightLeft = 7560;
constexpr int kLeftLeft = 1440;
constexpr Candidate kPlaces[12] = {
    {Side::Right, Reach::Wide, Band::Bottom, 7020, kRightLeft, false},
    {Side::Left, Reach::Wide, Band::Bottom, 7020, kLeftLeft, false},
    {Side::Right, Reach::Wide, Band::Top, 1680, kRightLeft, false},
    {Side::Left, Reach::Wide, Band::Top, 1680, kLeftLeft, false},
    {Side::Right, Reach::Wide, Band::Middle, 4350, kRightLeft, false},
    {Side::Left, Reach::Wide, Band::Middle, 4350, kLeftLeft, false},
    {Side::Right, Reach::Near, Band::Bottom, 7020, kRightLeft, true},
    {Side::Left, Reach::Near, Band::Bottom, 7020, kLeftLeft, true},
    {Side::Right, Reach::Near, Band::Top, 1680, kRightLeft, true},
    {Side::Left, Reach::Near, Band::Top, 1680, kLeftLeft, true},
    {Side::Right, Reach::Near, Band::Middle, 4350, kRightLeft, false},
    {Side::Left, Reach::Near, Band::Middle, 4350, kLeftLeft, true},
};

void HideAll(GraphWindow& g) {
    for (int i = 0; i <= 5; ++i) {
        g.KeyIcon[i].setVisible(false);
        g.KeyLabel[i].setVisible(false);
        g.KeyLabel[i].setCaption("");
    }
    for (int i = 0; i <= 1; ++i) {
        g.KeyTitle[i].setCaption("");
        g.KeyTitle[i].setVisible(false);
    }
    g.Key.setVisible(false);
}

void Place(Control& ctl, const KeyItemPlace& at) {
    ctl.setLeft(at.left);
    ctl.setTop(at.top);
}

void ShowKey(GraphWindow& g, int count, const KeyTexts& texts) {
    std::array<SeriesYs, 6> series{};
    for (int s = 0; s < count; ++s)
        series[static_cast<std::size_t>(s)] = SeriesYsOf(g, s);
    const KeyPlace place = FindKeyPlace(std::span<const SeriesYs>(series.data(), static_cast<std::size_t>(count)));
    g.Key.setTop(place.top);
    g.Key.setLeft(place.left);
    g.HideKey.setVisible(place.button);

    KeyLayoutInput in;
    in.left = g.Key.left();
    in.top = g.Key.top();
    in.width = g.Key.width();
    in.height = g.Key.height();
    in.buttonShown = g.HideKey.visible();
    in.count = count;
    for (int i = 0; i < count; ++i)
        in.longest = std::max(in.longest, static_cast<int>(g.KeyLabel[i].caption().size()));
    in.title1 = !texts.title1.empty();
    in.title2 = !texts.title2.empty();
    const KeyLayout layout = LayOutKey(in);

    const std::string* titles[2] = {&texts.title1, &texts.title2};
    for (int t = 0; t <= 1; ++t) {
        if (!layout.titleShown[static_cast<std::size_t>(t)]) continue;
        Label& title = g.KeyTitle[t];
        const KeyItemPlace& at = layout.titles[static_cast<std::size_t>(t)];
        Place(title, at);
        title.setWidth(at.width);
        title.setCaption(*titles[t]);
        title.setFontSize(14.0);
        title.setVisible(true);
    }
    for (int i = 0; i < count; ++i) {
        const auto k = static_cast<std::size_t>(i);
        Place(g.KeyIcon[i], layout.icons[k]);
        Place(g.KeyLabel[i], layout.labels[k]);
        g.KeyLabel[i].setWidth(layout.labels[k].width);
        g.KeyLabel[i].setFontSize(layout.labelSize);
        g.KeyIcon[i].setVisible(true);
        g.KeyLabel[i].setVisible(true);
    }
    g.Key.setVisible(true);
}

} // namespace

SeriesYs SeriesYsOf(const GraphWindow& g, int series) {
    SeriesYs s;
    for (int k = 0; k <= 4; ++k) {
        const Line& line = g.Line1[5 * series + k];
        s.y1[static_cast<std::size_t>(k)] = line.y1();
        s.y2[static_cast<std::size_t>(k)] = line.y2();
    }
    return s;
}

KeyPlace FindKeyPlace(std::span<const SeriesYs> series) {
    for (int p = 0; p < 12; ++p) {
        const Candidate& at = kPlaces[p];
        const bool taken = std::any_of(series.begin(), series.end(), [&](const SeriesYs& s) {
            return RunsThrough(PointsOf(s, at.side, at.reach), at.band);
        });
        if (!taken) return KeyPlace{p, at.top, at.left, at.button};
    }
    return KeyPlace{};
}

KeyLayout LayOutKey(const KeyLayoutInput& in) {
    KeyLayout out;
    const double w = in.width;
    const double h = in.height - (in.buttonShown ? kButtonRoom : 0);
    const double half = kItemHeight / 2.0;
    const int count = std::clamp(in.count, 0, 6);
    const bool titled = in.title1;
    // The top of a row's item, its middle on the row's line.
    const auto rowTop = [&](int row, int rows) { return WholeNumber(in.top + row * (h / rows) - half); };

    if (titled) {
        out.titleShown[0] = true;
        out.titles[0] = {in.left, in.top + kTitleGap, in.width};
    }

    if (count <= 3) {
        const int rows = count + 1 + (titled ? 1 : 0);
        out.labelSize = 14.0;
        constexpr int labelWidth = 915;
        constexpr int gap = 400;
        for (int i = 0; i < count; ++i) {
            const auto k = static_cast<std::size_t>(i);
            const int row = i + (titled ? 2 : 1);
            KeyItemPlace& icon = out.icons[k];
            icon.width = kIconSize;
            icon.top = rowTop(row, rows);
            icon.left = WholeNumber(in.left + w / 2 - (kIconSize + gap + labelWidth) / 2.0);
            // The labels stand a little lower than their icons, a step that
            // grows by one twip a row.
            out.labels[k] = {icon.left + kIconSize + gap, WholeNumber(in.top + row * (h / rows + 1) - half),
                             labelWidth};
        }
        return out;
    }

    int rows = 4;
    if (in.title1 && in.title2) {
        rows = 5;
        out.titleShown = {true, true};
        // Each centred over its column, as wide as the column.
        const int halfWidth = WholeNumber(w / 2);
        out.titles[0] = {in.left, in.top + kTitleGap, halfWidth};
        out.titles[1] = {WholeNumber(in.left + w / 2), in.top + kTitleGap, halfWidth};
    } else if (in.title1) {
        rows = 5;
    }
    const bool wide = in.longest > 6;
    out.labelSize = 12.0;
    constexpr int labelWidth = 950;
    for (int i = 0; i < count; ++i) {
        const auto k = static_cast<std::size_t>(i);
        int row = i + (titled ? 2 : 1);
        KeyItemPlace& icon = out.icons[k];
        icon.width = kIconSize;
        if (i < 3) {
            icon.left = in.left + (wide ? 100 : 200);
        } else {
            row -= 3;
            icon.left = WholeNumber(in.left + w / 2 + (wide ? 50 : 150));
        }
        icon.top = rowTop(row, rows);
        out.labels[k] = {icon.left + kIconSize + (wide ? 75 : 100), icon.top, labelWidth};
    }
    return out;
}

void KeyControl(Calculator& c, KeyMode mode, const KeyTexts& texts) {
    GraphWindow& g = c.graph;
    for (int i = 0; i <= 5; ++i) {
        const std::string& label = texts.labels[static_cast<std::size_t>(i)];
        if (!label.empty()) g.KeyLabel[i].setCaption(label);
    }
    int count = 0;
    for (int i = 0; i <= 5; ++i)
        if (!g.KeyLabel[i].caption().empty()) ++count;
    if (count == 0) count = 2;

    if (mode == KeyMode::Shown && g.KeyShown) {
        g.HideKey.setVisible(true);
        ShowKey(g, count, texts);
    } else {
        HideAll(g);
        g.HideKey.setVisible(mode != KeyMode::None);
    }

    if (g.KeyShown) {
        // Inside the box, in its lower right corner.
        g.HideKey.setLeft(g.Key.left() + g.Key.width() - g.HideKey.width());
        g.HideKey.setTop(g.Key.top() + g.Key.height() - g.HideKey.height());
    } else {
        g.HideKey.setLeft(9600);
        g.HideKey.setTop(8760);
    }
}

void HideKeyClicked(Calculator& c) {
    GraphWindow& g = c.graph;
    if (g.KeyShown) {
        g.KeyShown = false;
        g.HideKey.setWidth(975);
        g.HideKey.setHeight(255);
        g.HideKey.setCaption("Show Key");
        KeyControl(c, KeyMode::Hidden, KeyTexts{});
    } else {
        g.KeyShown = true;
        g.HideKey.setWidth(555);
        g.HideKey.setHeight(200);
        g.HideKey.setCaption("Hide");
        GraphControl(c);
    }
}

} // namespace vantorel
