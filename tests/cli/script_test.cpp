#include "cli/script.h"

#include "cli/json.h"
#include "json_reader.h"
#include "program/program.h"
#include "program/registry.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace vantorel {
namespace {

using testing::Members;
using Names = std::vector<std::string>;

struct Result {
    int status = 0;
    std::string out, err;
};

Result RunOn(Calculator& c, const std::string& script) {
    std::ostringstream out, err;
    Result r;
    r.status = RunScript(c, script, out, err);
    r.out = out.str();
    r.err = err.str();
    return r;
}

std::vector<Members> Objects(const Result& r) {
    EXPECT_EQ(r.status, 0) << r.err;
    auto objects = testing::Objects(r.out);
    EXPECT_TRUE(objects.has_value()) << "not in the printed form:\n" << r.out;
    return objects.value_or(std::vector<Members>{});
}

Names Keys(const Members& members) {
    Names keys;
    for (const auto& [key, value] : members)
        keys.push_back(key);
    return keys;
}

// The raw JSON of one member of the only object printed.
std::string Printed(const Result& r, const std::string& name) {
    const std::vector<Members> objects = Objects(r);
    if (objects.size() != 1) return "<" + std::to_string(objects.size()) + " objects>";
    for (const auto& [key, value] : objects[0])
        if (key == name) return value;
    return "<" + name + " not printed>";
}

// Handlers are replaced by counters, so the verbs are told apart by the
// events they raise, whatever the engine does.
TEST(Script, EachVerbRaisesTheEventsOfItsControl) {
    Program c;
    int port = 0, box = 0, power = 0, targets = 0, reset = 0;
    c.main.Forward[1].setHandler([&] { ++port; });
    c.main.Simplified.setHandler([&] { ++box; });
    c.main.PowerLevel[1].setHandler([&] { ++power; });
    c.skills[1].Targets.setHandler([&] { ++targets; });
    c.main.Reset.setHandler([&] { ++reset; });
    c.skills[1].Form.setVisible(true);
    const Result r = RunOn(c, "select Form1.Forward[1] \"Beam Array\"\nselect Form1.Forward[1] #1\n"
                              "check Form1.Simplified 1\ncheck Form1.Simplified 1\ncheck Form1.Simplified 0\n"
                              "check Form1.Simplified 1\ntype Form1.PowerLevel[1] \"87\"\n"
                              "type AlphaSkills.Targets \"3\"\nclick Form1.Reset\nclick Form1.Reset\n");
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(c.main.Forward[1].text(), "Beam Array");
    EXPECT_EQ(port, 2) << "select clicks a row even when it is selected";
    EXPECT_EQ(c.main.Simplified.value(), 1);
    EXPECT_EQ(box, 3) << "a box already at the value is not clicked";
    EXPECT_EQ(std::tuple(c.main.PowerLevel[1].text(), c.main.PowerLevel[1].index()), std::tuple("87", -1));
    EXPECT_EQ(power, 0) << "typing into a list raises no event";
    EXPECT_EQ(std::tuple(c.skills[1].Targets.text(), targets, reset), std::tuple("3", 1, 2));
}

TEST(Script, SetAssignsAsTheProgramDoesEvenOnHiddenControls) {
    // clang-format off
    struct Case { const char* name; const char* script; /* ends by printing exactly one name */ const char* printed; const char* expected; /* a part of the printed value */ } cases[] = {
        {"hidden list index", "set Form1.ShipClass[2] #3", "Form1.ShipClass[2]", "\"index\":3,"},
        {"index -1 clears", "set Form1.ShipClass[1] #-1", "Form1.ShipClass[1]", "\"index\":-1,\"text\":\"\""},
        {"typing list text", "set Form1.PowerLevel[1] \"87\"", "Form1.PowerLevel[1]", "\"text\":\"87\""},
        {"plain list text picks the row", "set Form1.TargetDistance[1] \"2 km\"", "Form1.TargetDistance[1]", "\"index\":1,\"text\":\"2 km\""},
        {"check box", "set Form1.ShuttleMod[2] 1", "Form1.ShuttleMod[2]", "\"value\":1,"},
        {"box on a hidden window", "set Alpha.Accuracy 1", "Alpha.Accuracy", "\"value\":1,"},
        {"text box", "set Omega.TargetDefense \"45\"", "Omega.TargetDefense", "\"text\":\"45\""},
        {"label", "set Form1.Note \"Hello\"", "Form1.Note", "\"caption\":\"Hello\""},
        {"button", "set Form1.Advanced[2] \"Hide Settings\"", "Form1.Advanced[2]", "\"caption\":\"Hide Settings\""},
        {"plain text", "set Form1.ShipImageId[1] \"Cruiser/5/2\"", "Form1.ShipImageId[1]", "\"Cruiser/5/2\""},
        {"16-bit", "set State.SkillTargets[1] 3", "State.SkillTargets[1]", "3"},
        {"whole number", "set State.WindowFitted -1", "State.WindowFitted", "-1"},
        {"single", "set State.ArcDPS[0,1] 282.664", "State.ArcDPS[0,1]", "282.664"},
        {"blanks in the index", "set State.ArcDPS[ 3 , 2 ] 0.1", "State.ArcDPS[3,2]", "0.1"},
        {"double", "set State.DPWCoefficient[1,2,1] -0.5", "State.DPWCoefficient[1,2,1]", "-0.5"},
        {"boolean", "set State.ArcShown[13] 1", "State.ArcShown[13]", "true"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        const Result r = RunOn(c, std::string(k.script) + "\nprint " + k.printed + "\n");
        const std::string value = Printed(r, k.printed);
        EXPECT_NE(value.find(k.expected), std::string::npos) << k.name << ": " << value << "\n" << r.err;
    }
}

TEST(Script, BadLinesNameTheirLineAndControlAndPrintNothing) {
    const std::function<void(Calculator&)> none;
    // clang-format off
    struct Case { const char* name; std::function<void(Calculator&)> setup; const char* script; const char* expected; /* the whole message */ } cases[] = {
        {"unknown verb", none, "\n# a comment\npress Form1.Reset", "line 3: unknown verb \"press\"; the verbs are select, check, type, click, set and print"},
        {"unknown control", none, "click Form1.Rest", "line 1: unknown control Form1.Rest"},
        {"unknown window", none, "check Gamma.RelativeDPS 1", "line 1: unknown control Gamma.RelativeDPS"},
        {"missing control", none, "click", "line 1: click: the name of a control is missing"},
        {"index too high", none, "select Form1.Forward[5] #1", "line 1: Form1.Forward[5]: index out of range; Form1.Forward[1] to Form1.Forward[4]"},
        {"index of another base", none, "print Form1.FiringArcDPS[0]\nselect Form1.FiringArc[12] #0", "line 2: Form1.FiringArc[12]: index out of range; Form1.FiringArc[0] to Form1.FiringArc[11]"},
        {"array without index", none, "select Form1.Forward #1", "line 1: Form1.Forward is a control array: give an index, as in Form1.Forward[1] to Form1.Forward[4]"},
        {"index on a single", none, "check Form1.Simplified[1] 1", "line 1: Form1.Simplified[1]: Form1.Simplified is not an array"},
        {"unknown row", none, "select Form1.Forward[1] \"Beam Arry\"", "line 1: select Form1.Forward[1]: no row \"Beam Arry\""},
        {"row differs in blanks", none, "select Form1.TargetDistance[1] \"2 km \"", "line 1: select Form1.TargetDistance[1]: no row \"2 km \""},
        {"row number too high", none, "select Form1.TargetDistance[1] #10", "line 1: select Form1.TargetDistance[1]: no row #10, the list has rows #0 to #9"},
        {"empty list", [](Calculator& c) { c.main.ShuttleRank[1] = List(); }, "set Form1.ShuttleRank[1] #0", "line 1: set Form1.ShuttleRank[1]: no row #0, the list is empty"},
        {"malformed row number", none, "select Form1.Forward[1] #one", "line 1: malformed row number #one, expected #0, #1, ..."},
        {"row as a bare word", none, "select Form1.Forward[1] 1", "line 1: select Form1.Forward[1]: expected a row as \"row text\" or #N, got 1"},
        {"check 2", none, "check Form1.Simplified 2", "line 1: check Form1.Simplified: malformed value 2, expected 0 or 1"},
        {"check no value", none, "check Form1.Simplified", "line 1: check Form1.Simplified: the value 0 or 1 is missing"},
        {"unterminated text", none, "type Form1.Forward[1] \"Beam Array", "line 1: malformed text: the closing \" is missing"},
        {"unknown escape", none, "type Form1.Forward[1] \"a\\nb\"", "line 1: malformed text: only \\\" and \\\\ may follow a backslash"},
        {"text after the value", none, "check Form1.Simplified 1 0", "line 1: check Form1.Simplified: unexpected text after the value: 0"},
        {"value for a button", none, "click Form1.Reset now", "line 1: click Form1.Reset: a button takes no value, got now"},
        {"wrong verb", none, "click Form1.Simplified", "line 1: click Form1.Simplified: not a button but a check box; use check"},
        {"user verb on state", none, "check State.SuppressPowerWarning 1", "line 1: check State.SuppressPowerWarning: not a check box but an engine value"},
        {"typing refused", none, "type Form1.ShipClass[1] \"Escort\"", "line 1: type Form1.ShipClass[1]: refused, the list takes no typing; select a row"},
        {"hidden list", none, "select Form1.ShipClass[2] #1", "line 1: select Form1.ShipClass[2]: refused, the list is hidden"},
        {"hidden button", none, "click Form1.HideCompare", "line 1: click Form1.HideCompare: refused, the button is hidden"},
        {"disabled", [](Calculator& c) { c.main.Forward[3].setEnabled(false); }, "select Form1.Forward[3] \"Beam Array\"", "line 1: select Form1.Forward[3]: refused, the list is disabled"},
        {"hidden window", [](Calculator& c) { c.settings[1].Form.setVisible(false); }, "check Alpha.RelativeDPS 0", "line 1: check Alpha.RelativeDPS: refused, window Alpha is hidden"},
        {"set: malformed number", none, "set State.ArcDPS[0,1] 1,5", "line 1: set State.ArcDPS[0,1]: malformed value 1,5, expected a number"},
        {"set: 16-bit overflow", none, "set State.WeaponCount[1,1] 40000", "line 1: set State.WeaponCount[1,1]: 40000 is out of range of a 16-bit whole number"},
        {"set: text for a box", none, "set Form1.Simplified \"1\"", "line 1: set Form1.Simplified: malformed value \"1\", expected 0 or 1"},
        {"set: missing row", none, "set Form1.ShipClass[1] \"Gamma\"", "line 1: set Form1.ShipClass[1]: no row \"Gamma\""},
        {"set: a line", none, "set Form1.Cline 1", "line 1: set Form1.Cline: a line has no value to set"},
        {"print: no match", none, "print Form1.Nothing*", "line 1: print Form1.Nothing*: no control or engine value matches"},
        {"unclosed bracket", none, "select Form1.Forward[1 \"Beam Array\"", "line 1: malformed name Form1.Forward[1 \"Beam Array\": a bracket is not closed"},
        {"print: extra text", none, "print Form1.Note Form1.Help", "line 1: print Form1.Note: unexpected text after the value: Form1.Help"},
        {"blank and comment lines count", none, "   \n# a comment\n\t# indented\r\n\r\nclick Form1.Reset\r\n\nbogus\n", "line 7: unknown verb \"bogus\"; the verbs are select, check, type, click, set and print"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        if (k.setup) k.setup(c);
        const Result r = RunOn(c, k.script);
        EXPECT_EQ(std::tuple(r.status, r.err, r.out), std::tuple(2, std::string(k.expected) + "\n", "")) << k.name;
    }
}

TEST(Script, ReadsAScriptThatStartsWithAByteOrderMark) {
    std::ostringstream out, err;
    EXPECT_EQ(RunScript("\xEF\xBB\xBFprint State.Comparing\n", out, err), 0) << err.str();
    EXPECT_EQ(out.str(), "{\n  \"State.Comparing\": 0\n}\n");
}

TEST(Script, WithoutPrintWritesTheWholeStateOnceInRecordOrder) {
    Program c;
    const std::vector<Members> objects = Objects(RunOn(c, "# nothing but a comment\n"));
    ASSERT_EQ(objects.size(), 1u);
    const ControlRegistry registry(c);
    ASSERT_EQ(objects[0].size(), registry.all().size());
    for (std::size_t i = 0; i < objects[0].size(); ++i)
        ASSERT_EQ(objects[0][i].first, registry.all()[i].name) << i;
}

TEST(Script, EachPrintWritesOneObjectOfTheMatchingNamesInRecordOrder) {
    Program c;
    const std::vector<Members> objects = Objects(RunOn(c, "print Form1.Forward*\nprint State.ArcDPS[?,2]\n"
                                                          "print State.ArcDPS[ 0, 1 ]\nprint \"Form1.Note\"\n"));
    ASSERT_EQ(objects.size(), 4u);
    EXPECT_EQ(Keys(objects[0]), (Names{"Form1.Forward[1]", "Form1.Forward[2]", "Form1.Forward[3]", "Form1.Forward[4]",
                                       "Form1.ForwardWeaponlabel"}));
    EXPECT_EQ(std::tuple(Keys(objects[1]).size(), Keys(objects[1]).back()), std::tuple(8u, "State.ArcDPS[7,2]"));
    EXPECT_EQ(Keys(objects[2]), (Names{"State.ArcDPS[0,1]"}));
    EXPECT_EQ(Keys(objects[3]), (Names{"Form1.Note"}));
}

TEST(Script, PrintsEachKindInItsOwnForm) {
    // clang-format off
    struct Case { const char* name; Names keys; /* empty for a plain value */ } cases[] = {
        {"Form1", {"title", "state", "width", "height", "innerWidth", "innerHeight", "enabled", "visible", "back", "fore"}},
        {"Form1.Contents", {"left", "top", "width", "height", "enabled", "visible", "back", "fore"}},
        {"Form1.Simplified", {"value", "caption", "tooltip", "enabled", "visible", "back", "fore"}},
        {"Alpha.TargetResistance", {"text", "tooltip", "enabled", "visible", "back", "fore"}},
        {"Form1.Forward[1]", {"rows", "index", "text", "tooltip", "enabled", "visible", "back", "fore"}},
        {"Form1.FiringArcDPS[0]", {"caption", "tooltip", "enabled", "visible", "back", "fore"}},
        {"Form1.Compare", {"caption", "tooltip", "enabled", "visible", "back", "fore"}},
        {"Form1.AlphaImage", {"image", "enabled", "visible", "back", "fore"}},
        {"Form1.Cline", {"x1", "y1", "x2", "y2", "style", "enabled", "visible", "back", "fore"}},
        {"Form1.VScroll1", {"value", "maximum", "smallStep", "largeStep", "enabled", "visible", "back", "fore"}},
        {"State.ArcDPS[0,1]", {}},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        const std::string value = Printed(RunOn(c, std::string("print ") + k.name), k.name);
        EXPECT_EQ(testing::KeysOf(value), k.keys) << k.name << ": " << value;
        EXPECT_EQ(value.front() == '{', !k.keys.empty()) << k.name << ": " << value;
    }
}

TEST(Script, TextsRoundTripThroughEscapes) {
    // clang-format off
    struct Case { const char* name; const char* written; /* as in the script, quotes included */ std::string meant; } cases[] = {
        {"quotes", R"("say \"hi\"")", "say \"hi\""},   {"backslashes", R"("C:\\Images\\")", "C:\\Images\\"},
        {"tab kept", "\"a\tb\"", "a\tb"},              {"blanks kept", "\"  two  \"", "  two  "},
        {"empty", "\"\"", ""},                         {"hash inside", "\"#1\"", "#1"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        const Result r = RunOn(c, std::string("set Form1.Note ") + k.written + "\nprint Form1.Note\n");
        EXPECT_EQ(Printed(r, "Form1.Note").rfind("{\"caption\":" + JsonString(k.meant) + ",", 0), 0u) << k.name;
        EXPECT_EQ(c.main.Note.caption(), k.meant) << k.name;
    }
}

} // namespace
} // namespace vantorel
