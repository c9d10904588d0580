#include "help/help.h"
#include "help/manual.h"
#include "help/placement.h"
#include "help/splash.h"
#include "mainwindow/layout.h"
#include "program/program.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace vantorel {
namespace {

constexpr int kWide = 19200; // the work area of scripts and tests

TEST(HelpPlacement, TheManualOpensBesideItsCaller) {
    const WorkArea work{0, 0, kWide, 15600};
    const WorkArea offset{-2000, 300, 12000, 9000}; // a work area that does not start at 0
    const int d = kDocumentationWidth;
    const struct Case {
        const char* name;
        CallerWindow caller;
        WorkArea work;
        int left;
    } cases[] = {
        {"room on the right", {HelpCaller::MainWindow, 0, 600, 9000}, work, 9000},
        {"exactly room on the right", {HelpCaller::Alpha, kWide - 9780 - d, 0, 9780}, work, kWide - d},
        {"no room right, room left", {HelpCaller::Alpha, 10000, 0, 9000}, work, 10000 - d},
        {"one twip short on the left: flush left", {HelpCaller::Alpha, d - 1, 0, 9000}, work, 0},
        {"exactly room on the left", {HelpCaller::Graph, d, 0, kWide - d}, work, 0},
        {"neither side, more room right", {HelpCaller::Omega, 1000, 0, 12000}, work, kWide - d},
        {"neither side, more room left", {HelpCaller::MainWindow, 6000, 0, 12000}, work, 0},
        {"equal room, main window: right", {HelpCaller::MainWindow, 3600, 0, 12000}, work, kWide - d},
        {"equal room, graph: left", {HelpCaller::Graph, 3600, 0, 12000}, work, 0},
        {"equal room, Alpha: left", {HelpCaller::Alpha, 3600, 0, 12000}, work, 0},
        {"equal room, Omega: left", {HelpCaller::Omega, 3600, 0, 12000}, work, 0},
        {"work area off the origin, right", {HelpCaller::MainWindow, -2000, 0, 100}, offset, -1900},
        {"work area off the origin, flush left", {HelpCaller::Alpha, 500, 0, 9000}, offset, -2000},
        {"work area off the origin, flush right", {HelpCaller::Alpha, -1500, 0, 9000}, offset, 10000 - d},
    };
    for (const Case& k : cases) {
        const Place p = PlaceDocumentation(k.caller, d, k.work);
        EXPECT_EQ(std::tuple(p.left, p.top), std::tuple(k.left, k.caller.top)) << k.name;
    }
}

TEST(HelpPlacement, TheManualKeepsItsSmallestSizeAndItsBoxFollows) {
    const struct Case {
        const char* name;
        int width, height;
        DocumentationLayout expected;
    } cases[] = {
        {"the start size", 9885, 8070, {9885, 8070, {120, 120, 9495, 6855}, {4035, 7080, 1815, 495}}},
        {"the smallest size", 4882, 4035, {4882, 4035, {120, 120, 4492, 2820}, {1533, 3045, 1815, 495}}},
        {"too small both ways", 100, -50, {4882, 4035, {120, 120, 4492, 2820}, {1533, 3045, 1815, 495}}},
        {"too narrow only", 4881, 9000, {4882, 9000, {120, 120, 4492, 7785}, {1533, 8010, 1815, 495}}},
        {"too low only", 12000, 4034, {12000, 4035, {120, 120, 11610, 2820}, {5092, 3045, 1815, 495}}},
        {"large", 20000, 15000, {20000, 15000, {120, 120, 19610, 13785}, {9092, 14010, 1815, 495}}},
    };
    const auto flat = [](const DocumentationLayout& l) {
        return std::vector<int>{l.width,      l.height,  l.box.left, l.box.top,  l.box.width,
                                l.box.height, l.ok.left, l.ok.top,   l.ok.width, l.ok.height};
    };
    for (const Case& k : cases)
        EXPECT_EQ(flat(LayOutDocumentation(k.width, k.height)), flat(k.expected)) << k.name;
}

TEST(HelpPlacement, AboutAndSplashPlaces) {
    const struct About {
        const char* name;
        TwipsRect main;
        int left, top;
    } about[] = {
        {"single layout", {4800, 0, 9950, 9765}, 4800 + 2005, 2840},
        {"comparison", {0, 120, 14115, 9765}, 4087, 2960},
        {"main window narrower than About", {300, 0, 4000, 9765}, 300 - 970, 2840},
    };
    for (const About& k : about) {
        const Place p = PlaceAbout(k.main, kAboutWidth);
        EXPECT_EQ(std::tuple(p.left, p.top), std::tuple(k.left, k.top)) << k.name;
    }

    const struct Splash {
        const char* name;
        WorkArea screen;
        int left, top;
    } splash[] = {
        {"1920 by 1080", {0, 0, 28800, 16200}, 10245, 5497},
        {"second screen to the left", {-19200, 0, 19200, 14400}, -19200 + 5445, 4597},
        {"smaller than the splash", {0, 0, 6000, 4000}, -1155, -602},
    };
    for (const Splash& k : splash) {
        const Place p = CentreOnScreen(k.screen, kSplashWidth, kSplashHeight);
        EXPECT_EQ(std::tuple(p.left, p.top), std::tuple(k.left, k.top)) << k.name;
    }
}

TEST(Splash, PictureByTheFractionOfTheSecond) {
    const struct Case {
        const char* name;
        std::int64_t milliseconds;
        int picture;
    } cases[] = {
        {"midnight", 0, 0},
        {"fraction .33 exactly", 12'330, 0},
        {"just after .33", 12'331, 1},
        {"fraction .66 exactly", 86'399'660, 1},
        {"just after .66", 86'399'661, 2},
        {"last millisecond of a second", 999, 2},
        {"a whole second", 41'000, 0},
        {"before midnight, fraction .999", -1, 2},
        {"far out of range, fraction .904", std::int64_t{1} << 62, 2},
    };
    for (const Case& k : cases)
        EXPECT_EQ(SplashPicture(k.milliseconds), k.picture) << k.name;
}

TEST(Splash, ShowsOnePictureInTheMiddleOfTheScreenAndClosesAsTheMainWindowShows) {
    Program c;
    EXPECT_FALSE(c.splash.Form.visible());
    for (int i = 0; i <= 2; ++i)
        EXPECT_FALSE(c.splash.Splash[i].visible()) << i;

    ShowSplash(c.splash, 500, {0, 0, 28800, 16200});
    EXPECT_TRUE(c.splash.Form.visible());
    EXPECT_EQ(
        (std::vector<bool>{c.splash.Splash[0].visible(), c.splash.Splash[1].visible(), c.splash.Splash[2].visible()}),
        (std::vector<bool>{false, true, false}));
    EXPECT_EQ(std::tuple(c.splash.Form.left(), c.splash.Form.top()), std::tuple(10245, 5497));

    ShowMainWindowAtStart(c);
    EXPECT_FALSE(c.splash.Form.visible());
    EXPECT_TRUE(c.main.Form1.visible());
}

// Where each help button's position lands: in its own section, about a
// screenful below the heading, so that the heading shows near the top.
TEST(HelpPosition, LandsAScreenfulBelowItsHeading) {
    EXPECT_EQ(HelpPosition(ManualSection::Start), 0);
    int previous = 0;
    for (int s = 1; s <= static_cast<int>(ManualSection::WeaponSettings); ++s) {
        const auto section = static_cast<ManualSection>(s);
        const int heading = SectionStart(section);
        const int position = HelpPosition(section);
        EXPECT_EQ(SectionHeadingAt(position), heading) << s;
        const int below = position - heading;
        // Some 900 to 2000 characters, fewer where headings and short items
        // take the room; a section shorter than a screenful ends sooner.
        const bool shortSection = position == SectionEndAt(heading);
        EXPECT_TRUE(below >= 800 || shortSection) << s << ": " << below;
        EXPECT_LE(below, 2000) << s;
        EXPECT_GT(position, previous) << s;
        previous = position;
    }
    EXPECT_EQ(HelpPosition(static_cast<ManualSection>(42)), 0);
}

TEST(HelpPosition, AScreenfulGrowsWithTheBox) {
    const int heading = SectionStart(ManualSection::MainWindow);
    const int small = ScreenfulBelow(heading, 4492, 2820);
    const int start = ScreenfulBelow(heading, 9495, 6855);
    const int tall = ScreenfulBelow(heading, 9495, 13000);
    const int wide = ScreenfulBelow(heading, 19000, 6855);
    EXPECT_LT(heading, small);
    EXPECT_LT(small, start);
    EXPECT_LT(start, tall);
    EXPECT_LT(start, wide);
    // From the middle of a paragraph the screenful counts from there; a box
    // too small for a line reaches nowhere.
    EXPECT_GT(ScreenfulBelow(heading + 200, 9495, 6855), start);
    EXPECT_EQ(ScreenfulBelow(heading, 9495, 100), heading);
    // The last screenful ends with the text.
    EXPECT_EQ(ScreenfulBelow(static_cast<int>(ManualText().size()) - 10, 9495, 6855),
              static_cast<int>(ManualText().size()));
}

TEST(Manual, SectionsByPosition) {
    const int size = static_cast<int>(ManualText().size());
    const int main = SectionStart(ManualSection::MainWindow);
    const int skills = SectionStart(ManualSection::ActivatedSkills);
    const int weapons = SectionStart(ManualSection::WeaponSettings);
    const struct Case {
        const char* name;
        int position, heading, end;
    } cases[] = {
        {"before the text", -20, 0, SectionEndAt(0)},
        {"on a heading", main, main, skills - 1},
        {"inside a section", main + 100, main, skills - 1},
        {"on the line break before the next heading", skills - 1, main, skills - 1},
        {"in the last section", weapons + 10, weapons, size},
        {"beyond the text", size + 500, weapons, size},
    };
    for (const Case& k : cases) {
        EXPECT_EQ(std::tuple(SectionHeadingAt(k.position), SectionEndAt(k.position)), std::tuple(k.heading, k.end))
            << k.name;
    }
    // The title's section is "Vantorel v 4.0" with its author line, up to
    // "Features".
    EXPECT_EQ(ManualText().substr(static_cast<std::size_t>(SectionEndAt(0)) + 1, 8), "Features");
}

class HelpWindows : public ::testing::Test {
  protected:
    Program c;
    DocumentationWindow& d = c.documentation;

    void SetUp() override { ShowMainWindowAtStart(c); }
};

TEST_F(HelpWindows, DisplayDocumentationOpensBesideEachCaller) {
    // The main window opens at the left of the work area, too wide for the
    // manual on its right: the manual goes flush right.
    const Window& main = c.main.Form1;
    ASSERT_EQ(std::tuple(main.left(), main.top(), main.width()), std::tuple(0, 0, 9950));
    const auto put = [](Window& w, int left, int top, int width) {
        w.setLeft(left);
        w.setTop(top);
        w.setWidth(width);
    };
    put(c.graph.Form, 0, 4000, 9000);
    put(c.Alpha().Form, 10000, 300, 9780);
    put(c.Omega().Form, 0, 500, 5000);
    const struct Case {
        const char* name;
        HelpCaller caller;
        int left, top;
    } cases[] = {
        {"main window", HelpCaller::MainWindow, kWide - kDocumentationWidth, 0},
        {"graph", HelpCaller::Graph, 9000, 4000},
        {"Alpha", HelpCaller::Alpha, 10000 - kDocumentationWidth, 300},
        {"Omega", HelpCaller::Omega, 5000, 500},
        {"no such caller: the main window's", static_cast<HelpCaller>(9), kWide - kDocumentationWidth, 0},
    };
    for (const Case& k : cases) {
        DisplayDocumentation(c, k.caller, 100);
        EXPECT_TRUE(d.Form.visible()) << k.name;
        EXPECT_EQ(std::tuple(d.Form.left(), d.Form.top()), std::tuple(k.left, k.top)) << k.name;
        EXPECT_EQ(d.ReadmeCaret, 100) << k.name;
    }
}

TEST_F(HelpWindows, AnOpenManualIsMadeAnew) {
    DisplayDocumentation(c, HelpCaller::MainWindow, HelpPosition(ManualSection::MainWindow));
    d.Form.setWidth(15000);
    d.Form.setHeight(3000);
    DocumentationResized(c);
    EXPECT_EQ(std::tuple(d.Form.width(), d.Form.height(), d.ReadmeBox.width(), d.OK.top()),
              std::tuple(15000, kDocumentationMinHeight, 15000 - 390, kDocumentationMinHeight - 990));

    // Closed on the way: the view of the window sees it go and come back.
    std::vector<bool> shown;
    d.Form.setView([this, &shown] {
        if (shown.empty() || shown.back() != d.Form.visible()) shown.push_back(d.Form.visible());
    });
    DisplayDocumentation(c, HelpCaller::Alpha, HelpPosition(ManualSection::CombatSettings));
    d.Form.setView(nullptr);
    EXPECT_EQ(shown, (std::vector<bool>{false, true}));
    EXPECT_EQ(std::tuple(d.Form.width(), d.Form.height(), d.ReadmeBox.width(), d.ReadmeBox.height(), d.OK.left()),
              std::tuple(kDocumentationWidth, kDocumentationHeight, 9495, 6855, 4035));
    EXPECT_EQ(d.ReadmeCaret, HelpPosition(ManualSection::CombatSettings));
}

TEST_F(HelpWindows, TheCaretStaysInTheText) {
    const int size = static_cast<int>(ManualText().size());
    const struct Case {
        int position, caret;
    } cases[] = {{-1, 0}, {-100000, 0}, {0, 0}, {size, size}, {size + 1, size}, {1 << 30, size}};
    for (const Case& k : cases) {
        DisplayDocumentation(c, HelpCaller::MainWindow, k.position);
        EXPECT_EQ(d.ReadmeCaret, k.caret) << k.position;
    }
}

TEST_F(HelpWindows, OkAndTheFrameCloseTheManual) {
    c.main.Help.press();
    EXPECT_TRUE(d.Form.visible());
    EXPECT_EQ(d.ReadmeCaret, HelpPosition(ManualSection::MainWindow));
    d.OK.press();
    EXPECT_FALSE(d.Form.visible());
    c.main.Help.press();
    d.Form.requestClose();
    EXPECT_FALSE(d.Form.visible());
}

TEST_F(HelpWindows, AMinimisedManualKeepsItsSize) {
    c.main.Help.press();
    d.Form.setState(WindowState::Minimised);
    d.Form.setWidth(100);
    DocumentationResized(c);
    EXPECT_EQ(d.Form.width(), 100);
    d.Form.setState(WindowState::Normal);
    DocumentationResized(c);
    EXPECT_EQ(d.Form.width(), kDocumentationMinWidth);
}

TEST_F(HelpWindows, AboutOpensOverTheMainWindowAndItsButtonsWork) {
    const Window& main = c.main.Form1;
    c.main.ShowAbout.press();
    EXPECT_TRUE(c.about.Form.visible());
    EXPECT_EQ(std::tuple(c.about.Form.left(), c.about.Form.top()),
              std::tuple(main.left() + (main.width() - kAboutWidth) / 2, main.top() + 2840));

    // Online asks the front end to open the forum page; without one it does
    // nothing, as when no browser starts.
    c.about.Online.press();
    std::vector<std::string> opened;
    c.about.openPage = [&opened](std::string_view address) { opened.emplace_back(address); };
    c.about.Online.press();
    EXPECT_EQ(opened, std::vector<std::string>{std::string(ForumAddress())});

    // Readme opens the manual at its start beside the main window; About stays.
    c.about.Readme.press();
    EXPECT_TRUE(d.Form.visible());
    EXPECT_EQ(d.ReadmeCaret, 0);
    EXPECT_EQ(d.Form.top(), main.top());
    EXPECT_TRUE(c.about.Form.visible());

    c.about.OK.press();
    EXPECT_FALSE(c.about.Form.visible());
    c.main.ShowAbout.press();
    c.about.Form.requestClose();
    EXPECT_FALSE(c.about.Form.visible());
}

TEST_F(HelpWindows, MinimisingTheMainWindowTakesTheManualAndAboutAlong) {
    c.main.Help.press();
    c.main.ShowAbout.press();
    c.main.Form1.setState(WindowState::Minimised);
    FitWindow(c);
    EXPECT_EQ(std::tuple(d.Form.state(), c.about.Form.state()),
              std::tuple(WindowState::Minimised, WindowState::Minimised));
    c.main.Form1.setState(WindowState::Normal);
    FitWindow(c);
    EXPECT_EQ(std::tuple(d.Form.state(), c.about.Form.state()), std::tuple(WindowState::Normal, WindowState::Normal));
}

} // namespace
} // namespace vantorel
