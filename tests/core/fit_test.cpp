#include "engine/calculator.h"
#include "mainwindow/layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantorel {
namespace {

constexpr WorkArea kLargeScreen{0, 0, 28800, 15600};

struct FitCase {
    std::string name;
    FitInput in;
    // Expected outcome.
    WindowState state;
    int width, height;
    bool hBar, vBar;
    int hMax, hSmall, hLarge;
    int vMax, vSmall, vLarge;
    bool toLeft, toTop;
};

FitInput Input(bool comparing, WindowState state, int width, int height, WorkArea work, bool fitted) {
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
    const WindowState N = WindowState::Normal;
    const WindowState M = WindowState::Maximised;
    const std::vector<FitCase> cases = {
        {"single on a large screen", Input(false, N, 9950, 9765, kLargeScreen, false), N, 9950, 9765, false, false,
         9825 - 9830, 1, 2, 9360 - 9360, 1, 1, true, true},
        {"comparison on a large screen", Input(true, N, 14115, 9765, kLargeScreen, true), N, 14115, 9765, false, false,
         0, 1, 1, 0, 1, 1, true, true},
        {"work area one twip too low", Input(false, N, 9950, 9765, {0, 0, 28800, 9764}, false), N, 9950 + 240, 9764,
         false, true, 9825 - (10070 - 240), 1, 2, 9360 - 9359, 1, 1, true, false},
        {"work area too narrow", Input(false, N, 9950, 9765, {0, 0, 9000, 15600}, false), N, 9000, 10005, true, false,
         9825 - 8880, 60, 237, 9360 - (9600 - 240), 1, 1, false, true},
        {"comparison on a narrow screen", Input(true, N, 14115, 10005, {0, 0, 12000, 15600}, true), N, 12000, 10005,
         true, false, 13995 - 11880, 133, 529, 0, 1, 1, false, true},
        {"comparison from the design height keeps it: both bars",
         Input(true, N, 14115, 9765, {0, 0, 12000, 15600}, true), N, 12000, 9765, true, true, 13995 - 11640, 148, 589,
         240, 16, 61, false, false},
        {"narrow and low: both bars", Input(false, N, 9950, 9765, {0, 0, 8000, 7000}, false), N, 8000, 7000, true, true,
         9825 - (7880 - 240), 137, 547, 9360 - (6595 - 240), 188, 752, false, false},
        {"maximised single", Input(false, M, 28800, 15600, kLargeScreen, true), N, 9950, 9765, false, false, -5, 1, 2,
         0, 1, 1, true, true},
        {"maximised comparison", Input(true, M, 28800, 15600, kLargeScreen, true), N, 14115, 9765, false, false, 0, 1,
         1, 0, 1, 1, true, true},
        {"pulled larger goes back", Input(false, N, 12000, 11000, kLargeScreen, true), N, 9950, 9765, false, false, -5,
         1, 2, 0, 1, 1, true, true},
        {"pulled smaller stays", Input(false, N, 8000, 7000, kLargeScreen, true), N, 8000, 7000, true, true,
         9825 - (7880 - 240), 137, 547, 9360 - (6595 - 240), 188, 752, false, false},
        {"first fit ignores the window's size", Input(false, N, 8000, 7000, kLargeScreen, false), N, 9950, 9765, false,
         false, -5, 1, 2, 0, 1, 1, true, true},
        {"single again after comparison on a narrow screen", Input(false, N, 12000, 10005, {0, 0, 12000, 15600}, true),
         N, 9950, 9765, false, false, -5, 1, 2, 0, 1, 1, true, true},
        {"single from the design width on a low screen keeps a short bar",
         Input(false, N, 9950, 9000, {0, 0, 12000, 9000}, true), N, 9950, 9000, true, true, 9825 - 9590, 15, 59,
         9360 - (8595 - 240), 63, 252, false, false},
        {"one twip narrower than the design: negative maximum", Input(false, N, 9950, 9765, {0, 0, 9949, 15600}, false),
         N, 9949, 10005, true, false, 9825 - 9829, 1, 2, 9360 - (9600 - 240), 1, 1, false, true},
    };
    for (const FitCase& c : cases) {
        SCOPED_TRACE(c.name);
        const FitResult r = Fit(c.in);
        EXPECT_FALSE(r.minimised);
        EXPECT_EQ(r.followers, Followers::Normal);
        EXPECT_EQ(r.state, c.state);
        EXPECT_EQ(r.width, c.width);
        EXPECT_EQ(r.height, c.height);
        EXPECT_EQ(r.innerWidth, c.width - kFrameWidth);
        EXPECT_EQ(r.innerHeight, c.height - kFrameHeight);
        EXPECT_EQ(r.contentsWidth, c.in.comparing ? 13995 : 9825);
        EXPECT_EQ(r.hBar.visible, c.hBar);
        EXPECT_EQ(r.vBar.visible, c.vBar);
        EXPECT_EQ(r.hBar.maximum, c.hMax);
        EXPECT_EQ(r.hBar.smallStep, c.hSmall);
        EXPECT_EQ(r.hBar.largeStep, c.hLarge);
        EXPECT_EQ(r.vBar.maximum, c.vMax);
        EXPECT_EQ(r.vBar.smallStep, c.vSmall);
        EXPECT_EQ(r.vBar.largeStep, c.vLarge);
        EXPECT_EQ(r.contentsToLeft, c.toLeft);
        EXPECT_EQ(r.contentsToTop, c.toTop);
    }
}

// The bars stand along the inner edges, the horizontal one leaving the corner
// to the vertical one, so that neither covers the other.
TEST(Fit, BarsStandAlongTheInnerEdges) {
    struct Case {
        std::string name;
        FitInput in;
        int hTop, hWidth, vLeft, vHeight;
    };
    const std::vector<Case> cases = {
        {"both bars", Input(false, WindowState::Normal, 8000, 7000, kLargeScreen, true), 6595 - 240, 7880 - 240,
         7880 - 240, 6595},
        {"horizontal bar only", Input(false, WindowState::Normal, 9950, 9765, {0, 0, 9000, 15600}, false), 9600 - 240,
         8880, 8880 - 240, 9600},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const FitResult r = Fit(c.in);
        EXPECT_EQ(r.hBar.top, c.hTop);
        EXPECT_EQ(r.hBar.width, c.hWidth);
        EXPECT_EQ(r.vBar.left, c.vLeft);
        EXPECT_EQ(r.vBar.height, c.vHeight);
    }
}

TEST(Fit, MinimisedTakesTheFollowersAndChangesNothingElse) {
    const FitResult r = Fit(Input(true, WindowState::Minimised, 5000, 3000, kLargeScreen, true));
    EXPECT_TRUE(r.minimised);
    EXPECT_EQ(r.followers, Followers::Minimised);
    EXPECT_EQ(r.width, 5000);
    EXPECT_EQ(r.height, 3000);
}

TEST(PlaceAtStart, LeavesRoomForTheOtherWindows) {
    struct Case {
        std::string name;
        WorkArea work;
        int left, top, alphaWidth;
    };
    const std::vector<Case> cases = {
        {"very wide: middle of the screen", {0, 0, 48000, 15600}, 24000, 0, 9780},
        {"room for two graphs", {0, 0, 38400, 21600}, kGraphWindowWidth, 0, 9780},
        {"room for settings and graph", {0, 0, 36000, 15600}, 9780, 0, 9780},
        {"room for settings and graph, low screen", {0, 0, 36000, 15000}, 9930, 0, 9930},
        {"ordinary screen: left edge", {0, 0, 28800, 15600}, 0, 0, 9780},
        {"work area moved by a side panel", {1200, 450, 27600, 15150}, 1200, 450, 9930},
        {"moved and very wide", {1000, 0, 48000, 15600}, 25000, 0, 9780},
        {"odd width keeps the twip", {0, 0, 47795, 15600}, 23898, 0, 9780},
        {"height at the limit", {0, 0, 28800, 15330}, 0, 0, 9780},
        {"height one below the limit", {0, 0, 28800, 15329}, 0, 0, 9930},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const StartPlace p = PlaceAtStart(c.work, kGraphWindowWidth);
        EXPECT_EQ(p.left, c.left);
        EXPECT_EQ(p.top, c.top);
        EXPECT_EQ(p.alphaWidth, c.alphaWidth);
    }
}

// FitWindow on a whole calculator: the fields a user sees follow the rule,
// and the page comes back to the left edge when the horizontal bar goes.
TEST(FitWindow, HiddenBarBringsThePageBack) {
    Calculator c;
    LayOutMainWindow(c.main);
    WireScrollBars(c);
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
    EXPECT_EQ(c.main.Contents.left(), 0);
    EXPECT_EQ(c.main.Form1.width(), 9950);
    EXPECT_EQ(c.main.Form1.innerWidth(), 9950 - kFrameWidth);
}

TEST(FitWindow, SmallerRangeKeepsThePageReachable) {
    Calculator c;
    LayOutMainWindow(c.main);
    WireScrollBars(c);
    c.workWidth = 8000;
    c.workHeight = 7000;
    FitWindow(c);
    c.main.VScroll1.setValue(c.main.VScroll1.maximum());
    ASSERT_EQ(c.main.Contents.top(), -3005);

    // The user pulls the window taller: the bar's end moves up, the page with it.
    c.workHeight = 15600;
    c.main.Form1.setHeight(9000);
    FitWindow(c);
    EXPECT_TRUE(c.main.VScroll1.visible());
    EXPECT_EQ(c.main.VScroll1.maximum(), 9360 - (9000 - kFrameHeight - 240));
    EXPECT_EQ(c.main.VScroll1.value(), c.main.VScroll1.maximum());
    EXPECT_EQ(c.main.Contents.top(), -c.main.VScroll1.maximum());
}

TEST(FitWindow, MinimiseAndRestoreTakeTheSettingsWindows) {
    Calculator c;
    c.main.Form1.setState(WindowState::Minimised);
    FitWindow(c);
    EXPECT_EQ(c.settings[1].Form.state(), WindowState::Minimised);
    EXPECT_EQ(c.settings[2].Form.state(), WindowState::Minimised);
    c.main.Form1.setState(WindowState::Normal);
    FitWindow(c);
    EXPECT_EQ(c.settings[1].Form.state(), WindowState::Normal);
    EXPECT_EQ(c.settings[2].Form.state(), WindowState::Normal);
}

} // namespace
} // namespace vantorel
