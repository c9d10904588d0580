#include "mainwindow/layout.h"
#include "program/program.h"

#include <gtest/gtest.h>

#include <tuple>

namespace vantorel {
namespace {

constexpr WorkArea kLarge{0, 0, 28800, 15600};

FitInput In(bool comparing, WindowState state, int width, int height, WorkArea work, bool fitted) {
    FitInput in;
    in.comparing = comparing;
    in.state = state;
    in.width = width;
    in.height = height;
    in.work = work;
    in.fitted = fitted;
    return in;
}

TEST(Fit, SizesBarsAndPage) {
    const WindowState N = WindowState::Normal, M = WindowState::Maximised;
    // clang-format off
    struct Case { const char* name; FitInput in; int width, height; bool hBar, vBar; int hMax, hSmall, hLarge, vMax, vSmall, vLarge; bool toLeft, toTop; } cases[] = {
        {"single, large screen", In(false, N, 9950, 9765, kLarge, false), 9950, 9765, false, false, 9825 - 9830, 1, 2, 9360 - 9360, 1, 1, true, true},
        {"comparison, large screen", In(true, N, 14115, 9765, kLarge, true), 14115, 9765, false, false, 0, 1, 1, 0, 1, 1, true, true},
        {"one twip too low", In(false, N, 9950, 9765, {0, 0, 28800, 9764}, false), 9950 + 240, 9764, false, true, 9825 - (10070 - 240), 1, 2, 9360 - 9359, 1, 1, true, false},
        {"too narrow", In(false, N, 9950, 9765, {0, 0, 9000, 15600}, false), 9000, 10005, true, false, 9825 - 8880, 60, 237, 9360 - (9600 - 240), 1, 1, false, true},
        {"comparison, narrow", In(true, N, 14115, 10005, {0, 0, 12000, 15600}, true), 12000, 10005, true, false, 13995 - 11880, 133, 529, 0, 1, 1, false, true},
        {"comparison from design height: both bars", In(true, N, 14115, 9765, {0, 0, 12000, 15600}, true), 12000, 9765, true, true, 13995 - 11640, 148, 589, 240, 16, 61, false, false},
        {"narrow and low", In(false, N, 9950, 9765, {0, 0, 8000, 7000}, false), 8000, 7000, true, true, 9825 - (7880 - 240), 137, 547, 9360 - (6595 - 240), 188, 752, false, false},
        {"maximised single", In(false, M, 28800, 15600, kLarge, true), 9950, 9765, false, false, -5, 1, 2, 0, 1, 1, true, true},
        {"maximised comparison", In(true, M, 28800, 15600, kLarge, true), 14115, 9765, false, false, 0, 1, 1, 0, 1, 1, true, true},
        {"pulled larger goes back", In(false, N, 12000, 11000, kLarge, true), 9950, 9765, false, false, -5, 1, 2, 0, 1, 1, true, true},
        {"pulled smaller stays", In(false, N, 8000, 7000, kLarge, true), 8000, 7000, true, true, 9825 - (7880 - 240), 137, 547, 9360 - (6595 - 240), 188, 752, false, false},
        {"first fit ignores the size", In(false, N, 8000, 7000, kLarge, false), 9950, 9765, false, false, -5, 1, 2, 0, 1, 1, true, true},
        {"single after comparison, narrow", In(false, N, 12000, 10005, {0, 0, 12000, 15600}, true), 9950, 9765, false, false, -5, 1, 2, 0, 1, 1, true, true},
        {"design width, low screen: short bar", In(false, N, 9950, 9000, {0, 0, 12000, 9000}, true), 9950, 9000, true, true, 9825 - 9590, 15, 59, 9360 - (8595 - 240), 63, 252, false, false},
        {"one twip narrow: negative maximum", In(false, N, 9950, 9765, {0, 0, 9949, 15600}, false), 9949, 10005, true, false, 9825 - 9829, 1, 2, 9360 - (9600 - 240), 1, 1, false, true},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const FitResult r = Fit(c.in);
        EXPECT_EQ(std::tuple(r.minimised, r.followers == Followers::Normal, r.state == N, r.contentsWidth),
                  std::tuple(false, true, true, c.in.comparing ? 13995 : 9825));
        EXPECT_EQ(std::tuple(r.width, r.height, r.innerWidth, r.innerHeight),
                  std::tuple(c.width, c.height, c.width - kFrameWidth, c.height - kFrameHeight));
        EXPECT_EQ(std::tuple(r.hBar.visible, r.hBar.maximum, r.hBar.smallStep, r.hBar.largeStep),
                  std::tuple(c.hBar, c.hMax, c.hSmall, c.hLarge));
        EXPECT_EQ(std::tuple(r.vBar.visible, r.vBar.maximum, r.vBar.smallStep, r.vBar.largeStep),
                  std::tuple(c.vBar, c.vMax, c.vSmall, c.vLarge));
        EXPECT_EQ(std::tuple(r.contentsToLeft, r.contentsToTop), std::tuple(c.toLeft, c.toTop));
    }
}

// The bars stand along the inner edges, the horizontal one leaving the corner
// to the vertical one; a minimised window takes its followers and keeps its size.
TEST(Fit, BarsAndMinimising) {
    const FitResult both = Fit(In(false, WindowState::Normal, 8000, 7000, kLarge, true));
    EXPECT_EQ(std::tuple(both.hBar.top, both.hBar.width), std::tuple(6595 - 240, 7880 - 240));
    EXPECT_EQ(std::tuple(both.vBar.left, both.vBar.height), std::tuple(7880 - 240, 6595));
    const FitResult one = Fit(In(false, WindowState::Normal, 9950, 9765, {0, 0, 9000, 15600}, false));
    EXPECT_EQ(std::tuple(one.hBar.top, one.hBar.width), std::tuple(9600 - 240, 8880));
    const FitResult r = Fit(In(true, WindowState::Minimised, 5000, 3000, kLarge, true));
    EXPECT_TRUE(r.minimised);
    EXPECT_EQ(std::tuple(r.followers, r.width, r.height), std::tuple(Followers::Minimised, 5000, 3000));
}

TEST(PlaceAtStart, LeavesRoomForTheOtherWindows) {
    // clang-format off
    struct Case { const char* name; WorkArea work; int left, top, alphaWidth; } cases[] = {
        {"very wide: middle", {0, 0, 48000, 15600}, 24000, 0, 9780},
        {"room for two graphs", {0, 0, 38400, 21600}, kGraphWindowWidth, 0, 9780},
        {"settings and graph", {0, 0, 36000, 15600}, 9780, 0, 9780},
        {"settings and graph, low", {0, 0, 36000, 15000}, 9930, 0, 9930},
        {"ordinary: left edge", {0, 0, 28800, 15600}, 0, 0, 9780},
        {"moved by a side panel", {1200, 450, 27600, 15150}, 1200, 450, 9930},
        {"moved and very wide", {1000, 0, 48000, 15600}, 25000, 0, 9780},
        {"odd width keeps the twip", {0, 0, 47795, 15600}, 23898, 0, 9780},
        {"height at the limit", {0, 0, 28800, 15330}, 0, 0, 9780},
        {"one below the limit", {0, 0, 28800, 15329}, 0, 0, 9930},
    };
    // clang-format on
    for (const Case& c : cases) {
        const StartPlace p = PlaceAtStart(c.work, kGraphWindowWidth);
        EXPECT_EQ(std::tuple(p.left, p.top, p.alphaWidth), std::tuple(c.left, c.top, c.alphaWidth)) << c.name;
    }
}

// On a whole calculator: the page comes back to the edge when a bar goes, and
// a smaller range keeps it reachable.
TEST(FitWindow, ThePageStaysReachable) {
    Program c;
    LayOutMainWindow(c.main);
    c.workWidth = 9000;
    c.workHeight = 15600;
    FitWindow(c);
    ASSERT_TRUE(c.main.HScroll1.visible());
    c.main.HScroll1.setValue(c.main.HScroll1.maximum());
    EXPECT_EQ(c.main.Contents.left(), -945);
    c.workWidth = 28800;
    c.main.Form1.setWidth(12000);
    FitWindow(c);
    EXPECT_FALSE(c.main.HScroll1.visible());
    EXPECT_EQ(std::tuple(c.main.Contents.left(), c.main.Form1.width()), std::tuple(0, 9950));
    EXPECT_EQ(c.main.Form1.innerWidth(), 9950 - kFrameWidth);

    Program d;
    LayOutMainWindow(d.main);
    d.workWidth = 8000;
    d.workHeight = 7000;
    FitWindow(d);
    d.main.VScroll1.setValue(d.main.VScroll1.maximum());
    ASSERT_EQ(d.main.Contents.top(), -3005);
    d.workHeight = 15600;
    d.main.Form1.setHeight(9000); // pulled taller: the bar's end moves up, the page with it
    FitWindow(d);
    EXPECT_TRUE(d.main.VScroll1.visible());
    EXPECT_EQ(d.main.VScroll1.maximum(), 9360 - (9000 - kFrameHeight - 240));
    EXPECT_EQ(d.main.VScroll1.value(), d.main.VScroll1.maximum());
    EXPECT_EQ(d.main.Contents.top(), -d.main.VScroll1.maximum());
}

TEST(FitWindow, MinimiseAndRestoreTakeTheSettingsWindows) {
    Program c;
    for (WindowState s : {WindowState::Minimised, WindowState::Normal}) {
        c.main.Form1.setState(s);
        FitWindow(c);
        EXPECT_EQ(std::tuple(c.settings[1].Form.state(), c.settings[2].Form.state()), std::tuple(s, s));
    }
}

} // namespace
} // namespace vantorel
