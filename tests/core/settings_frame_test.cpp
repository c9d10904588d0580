// The settings windows as windows: what a typed number becomes, where the
// windows open, and how they show, hide and scroll.

#include "help/note.h"
#include "settings/placement.h"
#include "settings/validate.h"
#include "support.h"

#include <gtest/gtest.h>

#include <tuple>

namespace vantorel {
namespace {

// One box of each kind.
Text& Box(Calculator& c, Vessel v, NumberBox kind) {
    VesselSettings& s = c.settings[v];
    switch (kind) {
    case NumberBox::WeaponSkill:
        return s.WeaponSkill[2];
    case NumberBox::CriticalSkill:
        return s.CriticalSkill[1];
    case NumberBox::PowerSkill:
        return s.PowerSkill[3];
    case NumberBox::BridgeOfficers:
        return s.PowerSkill[4];
    case NumberBox::EquipmentBonus:
        return s.PowerSkill[5];
    case NumberBox::TargetDefense:
        return s.TargetDefense;
    case NumberBox::TargetResistance:
        break;
    }
    return s.TargetResistance;
}

// More digits than any double holds: no number, so the box is cleared.
const std::string kBeyondAnyDouble(400, '9');

TEST(NumberBoxes, TypedTextIsCorrectedInTheBox) {
    // clang-format off
    struct Case { NumberBox box; Vessel v; bool enabled; const char* typed; const char* shown; } cases[] = {
        {NumberBox::WeaponSkill, 1, true, "15", "9"},           {NumberBox::WeaponSkill, 1, true, "-3", "0"},
        {NumberBox::WeaponSkill, 1, true, "abc", ""},           {NumberBox::WeaponSkill, 1, false, "abc", "abc"},
        {NumberBox::WeaponSkill, 1, false, "N/A", "N/A"},       {NumberBox::WeaponSkill, 1, true, "7.5", "7.5"},
        {NumberBox::WeaponSkill, 1, true, "9.9", "9.9"},        {NumberBox::WeaponSkill, 1, true, "-0.5", "0"},
        {NumberBox::WeaponSkill, 1, true, " 5 ", " 5 "},        {NumberBox::WeaponSkill, 1, true, "-", ""},
        {NumberBox::WeaponSkill, 1, false, "15", "9"},          {NumberBox::WeaponSkill, 2, true, "10", "9"},
        {NumberBox::CriticalSkill, 1, true, "47", "47"},        {NumberBox::CriticalSkill, 1, true, "47.9", "47.9"},
        {NumberBox::CriticalSkill, 1, true, "48", "9"},         {NumberBox::CriticalSkill, 2, true, "47", "9"},
        {NumberBox::PowerSkill, 1, true, "10", "9"},            {NumberBox::BridgeOfficers, 1, true, "6", "5"},
        {NumberBox::BridgeOfficers, 1, true, "5", "5"},         {NumberBox::EquipmentBonus, 1, true, "100", "99"},
        {NumberBox::EquipmentBonus, 1, true, "99.5", "99.5"},   {NumberBox::EquipmentBonus, 2, true, "-1", "0"},
        {NumberBox::TargetDefense, 1, true, "-", "-"},          {NumberBox::TargetDefense, 1, true, "-40", "-35"},
        {NumberBox::TargetDefense, 1, true, "150", "100"},      {NumberBox::TargetDefense, 1, true, "-35.5", "-35"},
        {NumberBox::TargetDefense, 1, true, "100.5", "100"},    {NumberBox::TargetDefense, 1, false, "abc", ""},
        {NumberBox::TargetDefense, 2, true, "-", "-"},          {NumberBox::TargetResistance, 1, true, "-", "-"},
        {NumberBox::TargetResistance, 1, true, "-5", "0"},      {NumberBox::TargetResistance, 1, true, "1000", "999"},
        {NumberBox::TargetResistance, 1, true, "998.9", "998.9"}, {NumberBox::TargetResistance, 1, true, "", ""},
        {NumberBox::WeaponSkill, 1, true, kBeyondAnyDouble.c_str(), ""},
        {NumberBox::TargetResistance, 1, true, kBeyondAnyDouble.c_str(), ""},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        c.Omega().SameAsAlpha.setValue(0);
        Text& box = Box(c, k.v, k.box);
        box.setEnabled(k.enabled);
        box.setText(k.typed);
        const std::string name = "box kind " + std::to_string(static_cast<int>(k.box)) + " of vessel " +
                                 std::to_string(k.v) + ": \"" + k.typed + "\"";
        EXPECT_EQ(box.text(), k.shown) << name;
        EXPECT_EQ(CorrectedText(k.box, k.v, box.text(), k.enabled), std::nullopt) << name << ": what it shows is valid";
    }
}

TEST(NumberBoxes, MirroredCopiesAreValidatedInOmega) {
    // clang-format off
    struct Case { const char* name; void (*type)(Calculator&); Text& (*alpha)(Calculator&); Text& (*omega)(Calculator&); const char *alphaShows, *omegaShows; } cases[] = {
        {"47 stays in Alpha only", [](Calculator& c) { c.Alpha().CriticalSettings.setValue(0); c.Alpha().CriticalSkill[1].setText("47"); },
         [](Calculator& c) -> Text& { return c.Alpha().CriticalSkill[1]; }, [](Calculator& c) -> Text& { return c.Omega().CriticalSkill[1]; }, "47", "9"},
        {"a lone minus is copied", [](Calculator& c) { c.Alpha().CriticalSettings.setValue(0); c.Alpha().TargetDefense.setText("-"); },
         [](Calculator& c) -> Text& { return c.Alpha().TargetDefense; }, [](Calculator& c) -> Text& { return c.Omega().TargetDefense; }, "-", "-"},
        {"a correction is copied", [](Calculator& c) { c.Alpha().ExtrapolatePower.setValue(1); c.Alpha().PowerSkill[5].setText("250"); },
         [](Calculator& c) -> Text& { return c.Alpha().PowerSkill[5]; }, [](Calculator& c) -> Text& { return c.Omega().PowerSkill[5]; }, "99", "99"},
    };
    // clang-format on
    for (const auto& k : cases) {
        Program c;
        c.state.SuppressPowerWarning = true;
        k.type(c);
        EXPECT_EQ(std::tuple(k.alpha(c).text(), k.omega(c).text()), std::tuple(k.alphaShows, k.omegaShows)) << k.name;
    }
}

SettingsPlaceInput PlaceIn(WorkArea work, TwipsRect main, Beside side) {
    SettingsPlaceInput in;
    in.work = work;
    in.main = main;
    in.prefers = side;
    in.contentsHeight = 14955;
    return in;
}

TEST(Placement, SettingsWindowBesideTheMainWindow) {
    const Beside L = Beside::Left, R = Beside::Right;
    // clang-format off
    struct Case { const char* name; SettingsPlaceInput in; int left, top, width, height; bool bar; int barMax, small, large; } cases[] = {
        {"left of the main window", PlaceIn({0, 0, 30000, 16000}, {12000, 600, 9950, 9765}, L), 2220, 600, 9780, 15330, false, 0, 1, 1},
        {"pushed up to fit", PlaceIn({0, 0, 30000, 16000}, {12000, 1000, 9950, 9765}, L), 2220, 670, 9780, 15330, false, 0, 1, 1},
        {"main at the left edge: right of it", PlaceIn({0, 0, 30000, 16000}, {0, 0, 9950, 9765}, L), 9950, 0, 9780, 15330, false, 0, 1, 1},
        {"fits neither side: against the right edge", PlaceIn({0, 0, 19200, 15600}, {0, 0, 9950, 9765}, L), 9420, 0, 9780, 15330, false, 0, 1, 1},
        {"Omega right of the main window", PlaceIn({0, 0, 30000, 16000}, {2000, 0, 9950, 9765}, R), 11950, 0, 9780, 15330, false, 0, 1, 1},
        {"Omega left when the right is full", PlaceIn({0, 0, 30000, 16000}, {12000, 0, 14115, 9765}, R), 2220, 0, 9780, 15330, false, 0, 1, 1},
        {"Omega fits neither side", PlaceIn({0, 0, 19200, 15600}, {0, 0, 14115, 9765}, R), 9420, 0, 9780, 15330, false, 0, 1, 1},
        {"exactly 15330 high: no bar", PlaceIn({0, 0, 30000, 15330}, {12000, 0, 9950, 9765}, L), 2220, 0, 9780, 15330, false, 0, 1, 1},
        {"15329 high: the bar", PlaceIn({0, 0, 30000, 15329}, {12000, 0, 9950, 9765}, L), 2070, 0, 9930, 15329, true, 14955 - 14924, 2, 8},
        {"a laptop: the page scrolls", PlaceIn({0, 0, 20490, 11520}, {10540, 0, 9950, 9765}, L), 610, 0, 9930, 11520, true, 14955 - 11115, 241, 961},
        {"a work area beside a task bar", PlaceIn({1500, 300, 28500, 15000}, {11500, 300, 9950, 9765}, L), 1570, 300, 9930, 15000, true, 14955 - 14595, 23, 91},
        {"no room at all", PlaceIn({0, 0, 0, 0}, {0, 0, 9950, 9765}, L), -9930, 0, 9930, 0, true, 14955, 935, 3739},
    };
    // clang-format on
    for (const Case& k : cases) {
        const SettingsPlace p = PlaceSettingsWindow(k.in);
        EXPECT_EQ(std::tuple(p.window.left, p.window.top, p.window.width, p.window.height),
                  std::tuple(k.left, k.top, k.width, k.height))
            << k.name;
        EXPECT_EQ(std::tuple(p.bar.visible, p.bar.maximum, p.bar.smallStep, p.bar.largeStep),
                  std::tuple(k.bar, k.barMax, k.small, k.large))
            << k.name;
        // The bar runs down the window's inner right edge.
        EXPECT_EQ(std::tuple(p.bar.left + p.bar.width, p.bar.height),
                  std::tuple(k.width - kFrameWidth, std::max(k.height - kFrameHeight, 0)))
            << k.name;
    }
}

TEST(Placement, TheSecondWindowOnTheSameSpotMovesAside) {
    // clang-format off
    struct Case { const char* name; int workWidth, mainLeft, otherLeft, otherTop; bool otherShown; int left, top; } cases[] = {
        {"down and to the right", 40000, 20000, 10220, 0, true, 10520, 300},
        {"to the left at the right edge", 19200, 0, 9420, 0, true, 9120, 300},
        {"another spot: stays", 19200, 0, 9000, 0, true, 9420, 0},
        {"another top: stays", 19200, 0, 9420, 15, true, 9420, 0},
        {"hidden: stays", 19200, 0, 9420, 0, false, 9420, 0},
    };
    // clang-format on
    for (const Case& k : cases) {
        SettingsPlaceInput in = PlaceIn({0, 0, k.workWidth, 15600}, {k.mainLeft, 0, 9950, 9765}, Beside::Left);
        in.otherShown = k.otherShown;
        in.otherLeft = k.otherLeft;
        in.otherTop = k.otherTop;
        const SettingsPlace p = PlaceSettingsWindow(in);
        EXPECT_EQ(std::tuple(p.window.left, p.window.top), std::tuple(k.left, k.top)) << k.name;
    }
}

TEST(Placement, NoteCentredOnItsCaller) {
    // clang-format off
    struct Case { TwipsRect caller; int left, top; } cases[] = {
        {{1000, 500, 9780, 15330}, 1000 + 4890 - 3052, 5780},
        {{0, 0, 9930, 11520}, 4965 - 3052, 5280},
        {{-9930, 0, 9930, 0}, -9930 + 4965 - 3052, 5280},
    };
    // clang-format on
    for (const Case& k : cases) {
        const NotePlace p = PlaceNote(k.caller, kNoteWidth);
        EXPECT_EQ(std::tuple(p.left, p.top), std::tuple(k.left, k.top)) << k.caller.left;
    }
}

TEST(SettingsWindow, AdvancedShowsAndHides) {
    Program c;
    Window& alpha = c.Alpha().Form;
    Button& advanced = c.main.Advanced[1];
    EXPECT_EQ(std::tuple(alpha.visible(), advanced.caption()), std::tuple(false, "Show Settings"));
    advanced.press();
    EXPECT_EQ(std::tuple(alpha.visible(), advanced.caption()), std::tuple(true, "Hide Settings"));
    // Placed beside the main window before it showed, with the tall layout on
    // the scripts' screen of 15600 twips.
    EXPECT_EQ(std::tuple(alpha.width(), alpha.height(), c.Alpha().VScroll1.visible()), std::tuple(9780, 15330, false));
    alpha.setState(WindowState::Minimised);
    advanced.press();
    EXPECT_EQ(std::tuple(alpha.visible(), alpha.state(), advanced.caption()),
              std::tuple(false, WindowState::Normal, "Show Settings"));
}

TEST(SettingsWindow, CloseAndTheFrameOnlyHide) {
    // clang-format off
    struct Case { const char* name; void (*close)(Calculator&, Vessel); } cases[] = {
        {"Close", [](Calculator& c, Vessel v) { c.settings[v].Close.press(); }},
        {"the frame", [](Calculator& c, Vessel v) { c.settings[v].Form.requestClose(); }},
    };
    // clang-format on
    for (const Case& k : cases) {
        for (Vessel v = 1; v <= 2; ++v) {
            Program c;
            c.main.Compare.press();
            c.Omega().SameAsAlpha.setValue(0);
            c.main.Advanced[v].press();
            c.settings[v].CriticalSettings.setValue(0);
            c.settings[v].Form.setState(WindowState::Minimised);
            k.close(c, v);
            EXPECT_EQ(std::tuple(c.settings[v].Form.visible(), c.main.Advanced[v].caption()),
                      std::tuple(false, "Show Settings"))
                << k.name << ", vessel " << v;
            // Hidden, not gone: what was set stays.
            EXPECT_EQ(c.settings[v].CriticalSettings.value(), 0) << k.name;
            if (std::string(k.name) == "the frame") {
                EXPECT_EQ(c.settings[v].Form.state(), WindowState::Normal) << k.name;
            }
        }
    }
}

TEST(SettingsWindow, ScrollsOnAShortScreen) {
    Program c;
    c.workHeight = 11520;
    c.main.Advanced[1].press();
    ScrollBar& bar = c.Alpha().VScroll1;
    ASSERT_TRUE(bar.visible());
    EXPECT_EQ(std::tuple(c.Alpha().Form.height(), bar.maximum()), std::tuple(11520, 14955 - 11115));
    bar.setValue(2000);
    EXPECT_EQ(c.Alpha().Contents.top(), -2000);
    // A taller screen takes the bar away and brings the page back.
    c.workHeight = 15600;
    PositionAlpha(c);
    EXPECT_EQ(std::tuple(bar.visible(), bar.value(), c.Alpha().Contents.top()), std::tuple(false, 0, 0));
}

TEST(SettingsWindow, FollowsTheMainWindow) {
    Program c;
    c.workWidth = 40000;
    c.main.Form1.setLeft(15000);
    c.main.Advanced[1].press();
    EXPECT_EQ(c.Alpha().Form.left(), 15000 - 9780);
    // Comparison widens the main window: Omega opens on its right.
    c.main.Compare.press();
    c.main.Advanced[2].press();
    EXPECT_EQ(c.Omega().Form.left(), 15000 + c.main.Form1.width());
    c.main.Form1.setLeft(16000);
    FitWindow(c);
    EXPECT_EQ(std::tuple(c.Alpha().Form.left(), c.Omega().Form.left()),
              std::tuple(16000 - 9780, 16000 + c.main.Form1.width()));
    // Leaving the comparison closes Omega's window, mirrored again.
    c.Omega().SameAsAlpha.setValue(0);
    c.main.HideCompare.press();
    EXPECT_EQ(std::tuple(c.Omega().Form.visible(), c.main.Advanced[2].caption(), c.Omega().SameAsAlpha.value()),
              std::tuple(false, "Show Settings", 1));
    c.main.Form1.setState(WindowState::Minimised);
    FitWindow(c);
    EXPECT_EQ(c.Alpha().Form.state(), WindowState::Minimised);
}

} // namespace
} // namespace vantorel
