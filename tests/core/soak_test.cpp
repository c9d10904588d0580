#include "support.h"

#include "program/actions.h"
#include "program/registry.h"
#include "program/soak.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>

namespace vantorel {
namespace {

// 800 x 600 pixels less a task bar: both scroll bars show in a comparison.
constexpr WorkArea kSmallScreen{0, 0, 12000, 8550};

TEST(Soak, TwentyThousandActionsBreakNoRule) {
    struct Run {
        std::uint64_t seed;
        long actions;
        std::optional<WorkArea> screen;
    } runs[] = {{1, 5000, {}}, {2, 5000, kSmallScreen}, {3, 5000, {}}, {4, 5000, kSmallScreen}};
    long total = 0;
    std::map<std::string, long> byWindow;
    for (const Run& run : runs) {
        SoakOptions options;
        options.screen = run.screen;
        const SoakReport report = RunSoak(run.seed, run.actions, options);
        total += report.actions;
        ASSERT_FALSE(report.finding.has_value()) << report.script;
        EXPECT_EQ(report.actions, run.actions) << "seed " << run.seed;
        // Most actions leave no typed text waiting, so most are compared.
        EXPECT_GT(report.compared, run.actions / 2) << "seed " << run.seed;
        for (const auto& [window, count] : report.actionsByWindow)
            byWindow[window] += count;
    }
    EXPECT_EQ(total, 20000);
    // Every window is opened by its own button and worked; only the splash
    // screen is gone before the first action.
    for (const char* window :
         {"Form1", "Alpha", "Omega", "AlphaSkills", "OmegaSkills", "Graph", "Documentation", "About", "Note"})
        EXPECT_GT(byWindow[window], 0) << window;
}

// A program as its main window first shows, with its table.
struct Shown {
    Program c;
    ControlRegistry registry{c};
    std::vector<const ControlRef*> controls = ActionableControls(registry);
    Shown() { ShowMainWindowAtStart(c); }

    const ControlRef& ref(const char* name) const {
        const ControlRef* r = registry.find(name);
        if (!r) throw std::invalid_argument(name);
        return *r;
    }
    bool offered(const char* name) const {
        const std::vector<Action> all = UsableActions(controls);
        return std::any_of(all.begin(), all.end(), [&](const Action& a) { return a.control->name == name; });
    }
};

TEST(Actions, OnlyWhatIsWithinReachIsOffered) {
    Shown p;
    // clang-format off
    struct Case { const char* name; bool offered; } atStart[] = {
        {"Form1.Forward[1]", true}, {"Form1.Compare", true}, {"Form1.Simplified", true},
        {"Form1.HideCompare", false},     // hidden
        {"Form1.CForward[1]", false},     // Omega's column is hidden
        {"Form1.ShuttleRank[1]", false},  // hidden and disabled without a shuttle array
        {"Form1.HScroll1", false},        // the screen is large enough
        {"Alpha.RelativeDPS", false},     // its window is hidden
        {"Form1.FiringArcDPS[0]", false}, // a label takes no action
    };
    // clang-format on
    for (const Case& k : atStart)
        EXPECT_EQ(p.offered(k.name), k.offered) << k.name;

    // A window joins as soon as it shows, with only its enabled controls.
    p.c.main.Advanced[1].press();
    EXPECT_TRUE(p.offered("Alpha.RelativeDPS"));
    EXPECT_FALSE(p.offered("Alpha.WeaponMark")) << "disabled in Relative DPS";
    p.c.main.Advanced[1].press();
    EXPECT_FALSE(p.offered("Alpha.RelativeDPS"));
    p.c.main.Compare.press();
    EXPECT_TRUE(p.offered("Form1.CForward[1]") && p.offered("Form1.HideCompare") && !p.offered("Form1.Compare"));
}

TEST(Actions, CountsAndScriptLines) {
    Shown p;
    const int typed = static_cast<int>(TypedTexts().size());
    EXPECT_EQ(ActionCount(p.ref("Form1.Forward[1]")), 8 + typed) << "rows, then typed texts";
    EXPECT_EQ(ActionCount(p.ref("Form1.TargetDistance[1]")), 10) << "no typing";
    p.c.Alpha().Form.setVisible(true);
    p.c.Alpha().WeaponType[2].setEnabled(true);
    const auto at = [&p](const char* name, int k) { return ScriptLine(NthAction(p.ref(name), k)); };
    // clang-format off
    struct Case { std::string line, expected; } cases[] = {
        {at("Form1.Forward[1]", 3), "select Form1.Forward[1] #3"},
        {at("Form1.Forward[1]", 8 + 6), "type Form1.Forward[1] \"7.5\""},
        {at("Form1.Forward[1]", 8 + 8), "type Form1.Forward[1] \"" + std::string(TypedTexts()[8]) + "\""},
        {at("Form1.Simplified", 0), "check Form1.Simplified 1"},
        {at("Form1.Compare", 0), "click Form1.Compare"},
        {at("Form1.VScroll1", 240), "set Form1.VScroll1 240"},
        {at("Alpha.RelativeDPS", 0), "check Alpha.RelativeDPS 0"},
    };
    // clang-format on
    for (const Case& k : cases)
        EXPECT_EQ(k.line, k.expected);
    EXPECT_EQ(TypedTexts()[8].size(), 300u);

    // A small screen brings the scroll bars in, a value for each step of
    // their range.
    Program small;
    small.workWidth = kSmallScreen.width;
    small.workHeight = kSmallScreen.height;
    ShowMainWindowAtStart(small);
    const ControlRegistry registry(small);
    EXPECT_EQ(ActionCount(*registry.find("Form1.VScroll1")), small.main.VScroll1.maximum() + 1);
    EXPECT_GT(small.main.VScroll1.maximum(), 0);
}

// A program broken on purpose, then an action (if any) and the checks.
struct Broken {
    const char* name;
    std::function<void(Calculator&)> breakIt; // before the checks wrap the handlers
    const char* act;                          // a control whose first action is taken, or null
    std::optional<Invariant> expected;
};

void ShowRowPlusOne(Calculator& c, const ArcRows& rows) {
    c.state.ArcDPS[0][1] += 1.0f;
    ShowArcResults(c, rows);
}

TEST(Invariants, EachRuleFiresOnABrokenProgram) {
    // A list keeps its index among its rows by itself; a list without
    // typing can still be given a text that is none of its rows.
    // clang-format off
    const Broken cases[] = {
        {"a fresh program", [](Calculator&) {}, nullptr, std::nullopt},
        {"a click on a row", [](Calculator&) {}, "Form1.Forward[2]", std::nullopt},
        {"a box that reads nan", [](Calculator& c) { c.main.FiringArcDPS[4].setCaption("nan"); }, nullptr,
         Invariant::DPSCaption},
        {"Omega's box with a comma", [](Calculator& c) { c.main.CFiringArcDPS[13].setCaption("1,5"); }, nullptr,
         Invariant::DPSCaption},
        {"comparing while Compare shows", [](Calculator& c) { c.state.Comparing = -1; }, nullptr,
         Invariant::Comparing},
        {"Comparing neither 0 nor -1", [](Calculator& c) { c.state.Comparing = 1; }, nullptr, Invariant::Comparing},
        {"a comparison without CReset", [](Calculator& c) { c.main.Compare.press(); c.main.CReset.setVisible(false); },
         nullptr, Invariant::Comparing},
        {"an Omega port in the single layout", [](Calculator& c) { c.main.CForward[2].setVisible(true); }, nullptr,
         Invariant::Comparing},
        {"a mirrored Omega with its own accuracy",
         [](Calculator& c) { c.main.Compare.press(); c.state.AccuracyFactor[2] = 0.9f; }, nullptr,
         Invariant::OmegaSettings},
        {"Omega's accuracy while not comparing", [](Calculator& c) { c.state.AccuracyFactor[2] = 0.9f; }, nullptr,
         std::nullopt},
        {"mirrored skills with a beam skill of Omega's own", [](Calculator& c) { c.state.BeamSkill[2] = 2; },
         nullptr, Invariant::OmegaSkills},
        {"a list without typing that shows no row", [](Calculator& c) { c.main.ShipClass[1].setText("Starbase"); },
         nullptr, Invariant::ListIndex},
        {"a skill box over its limit",
         [](Calculator& c) { c.Alpha().WeaponSkill[2].setHandler({}); c.Alpha().WeaponSkill[2].setText("12"); },
         nullptr, Invariant::NumberBox},
        {"47 switches Alpha's criticals off", [](Calculator& c) { c.Alpha().CriticalSkill[1].setText("47"); }, nullptr,
         std::nullopt},
        {"a closed box that is white", [](Calculator& c) { c.Alpha().TargetDefense.setBack(White); }, nullptr,
         Invariant::Shade},
        {"a closed list that is white", [](Calculator& c) { c.Alpha().WeaponMark.setBack(White); }, nullptr,
         Invariant::Shade},
        {"a console slot takes its equip box's colour", [](Calculator& c) { c.Alpha().TacticalConsole[1].setBack(Grey); },
         nullptr, std::nullopt},
        {"a mirrored Omega with a list open",
         [](Calculator& c) { c.Omega().WeaponType[2].setEnabled(true); c.Omega().WeaponType[2].setBack(White); },
         nullptr, Invariant::OmegaReadOnly},
        {"a free Omega with a list open",
         [](Calculator& c) { c.Omega().SameAsAlpha.setValue(0); c.Omega().WeaponType[2].setEnabled(true); }, nullptr,
         std::nullopt},
        {"a mirrored Omega with a weapon type of its own",
         [](Calculator& c) { c.Omega().WeaponType[2].setHandler({}); c.Omega().WeaponType[2].setIndex(2); }, nullptr,
         Invariant::OmegaSettings},
        {"a mirrored Omega's faction not one row below Alpha's",
         [](Calculator& c) { c.Omega().Faction.setHandler({}); c.Omega().Faction.setIndex(2); }, nullptr,
         Invariant::OmegaSettings},
        {"a mirrored Omega's box with its own target defense",
         [](Calculator& c) { c.Omega().TargetDefense.setHandler({}); c.Omega().TargetDefense.setText("20"); }, nullptr,
         Invariant::OmegaSettings},
        {"Omega's skills window open while it follows",
         [](Calculator& c) { c.skills[2].Targets.setEnabled(true); }, nullptr, Invariant::OmegaSkills},
        {"a note that holds nothing", [](Calculator& c) { c.note.Form.setVisible(true); }, nullptr,
         Invariant::NoteHolds},
        {"a window held without a note", [](Calculator& c) { c.Omega().Form.setEnabled(false); }, nullptr,
         Invariant::NoteHolds},
        {"a port set by code and not taken in",
         [](Calculator& c) { c.main.Forward[1].setText(c.main.Forward[1].row(1)); }, nullptr,
         Invariant::Recalculation},
        {"a count that a recalculation corrects", [](Calculator& c) { c.state.WeaponCount[5][1] = 2; }, nullptr,
         Invariant::Recalculation},
        {"rows shown other than worked out", [](Calculator& c) { c.results.showResults = ShowRowPlusOne; CalculateFiringArcs(c); }, nullptr,
         Invariant::ArcDPS},
        {"an endless chain of events",
         [](Calculator& c) { c.main.Simplified.setHandler([&c] { c.main.Simplified.click(); }); },
         "Form1.Simplified", Invariant::Nesting},
        {"a handler that throws",
         [](Calculator& c) { c.main.Reset.setHandler([] { throw std::out_of_range("row 9"); }); }, "Form1.Reset",
         Invariant::Failure},
    };
    // clang-format on
    for (const Broken& k : cases) {
        Shown p;
        k.breakIt(p.c);
        Invariants checks(p.c, p.registry);
        std::optional<Finding> finding;
        if (k.act) finding = checks.perform(NthAction(p.ref(k.act), 0));
        if (!finding) finding = checks.check();
        const auto named = [](const std::optional<Invariant>& i) { return i ? InvariantName(*i) : "none"; };
        EXPECT_EQ(named(finding ? std::optional(finding->invariant) : std::nullopt), named(k.expected))
            << k.name << ": " << (finding ? finding->detail : "");
    }
}

TEST(Invariants, FindingsNameWhatBroke) {
    Shown p;
    p.c.main.Simplified.setHandler([&p] { p.c.main.Simplified.click(); });
    p.c.state.WeaponCount[5][1] = 2;
    Invariants checks(p.c, p.registry);
    EXPECT_EQ(checks.check()->detail, "State.WeaponCount[5,1] value: 2 -> 0");
    const std::optional<Finding> nested = checks.perform(NthAction(p.ref("Form1.Simplified"), 0));
    ASSERT_TRUE(nested.has_value());
    EXPECT_EQ(nested->detail.find("Form1.Simplified > Form1.Simplified > "), nested->detail.find("Form1."));
    EXPECT_EQ(checks.deepestNesting(), Invariants::kMaxNesting + 1);
}

TEST(Invariants, ATypedTextWaitsForTheNextEvent) {
    Shown p;
    Invariants checks(p.c, p.registry);
    const auto act = [&](const char* name, int k) {
        const std::optional<Finding> f = checks.perform(NthAction(p.ref(name), k));
        return f ? f : checks.check();
    };
    ASSERT_FALSE(act("Form1.Forward[1]", 1)) << "a Beam Array";
    const float atFull = p.c.state.ArcDPS[2][1];
    ASSERT_GT(atFull, 0.0f);
    // "47" is no row: the power list's text counts for nothing from the next
    // recalculation on, and typing raises none.
    ASSERT_EQ(TypedTexts()[15], "47");
    ASSERT_FALSE(act("Form1.PowerLevel[1]", p.c.main.PowerLevel[1].count() + 15));
    EXPECT_TRUE(checks.awaitingRecalculation());
    EXPECT_EQ(p.c.state.ArcDPS[2][1], atFull);
    ASSERT_FALSE(act("Form1.Simplified", 0));
    EXPECT_FALSE(checks.awaitingRecalculation());
    EXPECT_LT(p.c.state.ArcDPS[2][1], atFull) << "the lowest power";
}

} // namespace
} // namespace vantorel
