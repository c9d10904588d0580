#include "cli/script.h"

#include "cli/json.h"
#include "json_reader.h"
#include "mainwindow/layout.h"
#include "program/program.h"
#include "program/registry.h"

#include <gtest/gtest.h>

#include <algorithm>
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

// The script runs as on a started program: the main window shows.
Result RunOn(Calculator& c, const std::string& script) {
    if (!c.main.Form1.visible()) ShowMainWindowAtStart(c);
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

// A frame's close runs the window's own answer: the settings and skills
// windows hide, the graph really closes; a window without one just hides.
TEST(Script, CloseAsksTheWindowsFrame) {
    Program c;
    int asked = 0;
    c.settings[1].Form.setHandler([&] { ++asked; });
    c.settings[1].Form.setVisible(true);
    c.graph.Form.setVisible(true);
    const Result r = RunOn(c, "close Alpha\nclose Graph\n");
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(c.settings[1].Form.visible()) << "the handler decides";
    EXPECT_FALSE(c.graph.Form.visible());
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
    struct Case { const char* name; std::function<void(Calculator&)> setup; std::string script; std::string expected; /* the whole message */ } cases[] = {
        {"unknown verb", none, "\n# a comment\npress Form1.Reset", "line 3: unknown verb \"press\"; the verbs are select, check, type, click, close, set and print"},
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
        {"close a button", none, "close Form1.Reset", "line 1: close Form1.Reset: not a window but a button; use click"},
        {"close a hidden window", none, "close Alpha", "line 1: close Alpha: refused, the window is hidden"},
        {"value for a frame", [](Calculator& c) { c.graph.Form.setVisible(true); }, "close Graph now", "line 1: close Graph: a window's frame takes no value, got now"},
        {"close a held window", [](Calculator& c) { c.settings[1].Form.setVisible(true); c.settings[1].Form.setEnabled(false); }, "close Alpha", "line 1: close Alpha: refused, the window is disabled"},
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
        {"long name cut", none, "click Form1." + std::string(300, 'X'), "line 1: unknown control Form1." + std::string(94, 'X') + "..."},
        {"a hundred characters are not cut", none, "click " + std::string(100, 'c'), "line 1: unknown control " + std::string(100, 'c')},
        {"long verb cut", none, std::string(150, 'v') + " Form1.Reset", "line 1: unknown verb \"" + std::string(100, 'v') + "...\"; the verbs are select, check, type, click, close, set and print"},
        {"cut after a whole character", none, "click " + std::string(99, 'a') + "\xc3\xa9zz", "line 1: unknown control " + std::string(99, 'a') + "\xc3\xa9..."},
        {"control characters escaped", none, "click Form1.\x01\x7f", "line 1: unknown control Form1.\\u0001\\u007f"},
        {"long value cut", none, "check Form1.Simplified " + std::string(200, '7'), "line 1: check Form1.Simplified: malformed value " + std::string(100, '7') + "..., expected 0 or 1"},
        {"long index cut", none, "select Form1.Forward[" + std::string(200, '9') + "] #1", "line 1: Form1.Forward[" + std::string(86, '9') + "...: index out of range; Form1.Forward[1] to Form1.Forward[4]"},
        {"long text after the value cut", none, "check Form1.Simplified 1 " + std::string(200, 'x'), "line 1: check Form1.Simplified: unexpected text after the value: " + std::string(100, 'x') + "..."},
        {"long pattern cut", none, "print Nothing" + std::string(200, '?'), "line 1: print Nothing" + std::string(93, '?') + "...: no control or engine value matches"},
        {"blank and comment lines count", none, "   \n# a comment\n\t# indented\r\n\r\nclick Form1.Reset\r\n\nbogus\n", "line 7: unknown verb \"bogus\"; the verbs are select, check, type, click, close, set and print"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        if (k.setup) k.setup(c);
        const Result r = RunOn(c, k.script);
        EXPECT_EQ(std::tuple(r.status, r.err, r.out), std::tuple(2, std::string(k.expected) + "\n", "")) << k.name;
    }
}

TEST(Script, ANumberThatDoesNotFitIsOutOfRangeAndANonNumberMalformed) {
    // clang-format off
    struct Case { const char* name; const char* field; const char* written; const char* outcome; /* the printed value, or the message after "set FIELD: " */ } cases[] = {
        {"32-bit largest", "State.WindowFitted", "2147483647", "2147483647"},
        {"32-bit smallest", "State.WindowFitted", "-2147483648", "-2147483648"},
        {"32-bit over", "State.WindowFitted", "2147483648", "2147483648 is out of range of a 32-bit whole number"},
        {"32-bit under", "State.WindowFitted", "-2147483649", "-2147483649 is out of range of a 32-bit whole number"},
        {"32-bit far over", "State.WindowFitted", "99999999999999999999999", "99999999999999999999999 is out of range of a 32-bit whole number"},
        {"32-bit fraction", "State.WindowFitted", "1.5", "malformed value 1.5, expected a whole number"},
        {"16-bit largest", "State.RapidFire[1]", "32767", "32767"},
        {"16-bit smallest", "State.RapidFire[1]", "-32768", "-32768"},
        {"16-bit over", "State.RapidFire[1]", "32768", "32768 is out of range of a 16-bit whole number"},
        {"16-bit beyond 32 bits", "State.RapidFire[1]", "2147483648", "2147483648 is out of range of a 16-bit whole number"},
        {"16-bit exponent", "State.RapidFire[1]", "1e3", "malformed value 1e3, expected a whole number"},
        {"whole with a plus", "State.RapidFire[1]", "+1", "malformed value +1, expected a whole number"},
        {"whole, minus alone", "State.RapidFire[1]", "-", "malformed value -, expected a whole number"},
        {"single denormal", "State.ArcDPS[0,1]", "1e-45", "1e-45"},
        {"single below its denormals", "State.ArcDPS[0,1]", "1e-46", "1e-46 is out of range of a single"},
        {"single over", "State.ArcDPS[0,1]", "1e39", "1e39 is out of range of a single"},
        {"single, a point first", "State.ArcDPS[0,1]", "-.5", "-0.5"},
        {"single infinity", "State.ArcDPS[0,1]", "inf", "malformed value inf, expected a number"},
        {"single not a number", "State.ArcDPS[0,1]", "nan", "malformed value nan, expected a number"},
        {"single, minus infinity", "State.ArcDPS[0,1]", "-infinity", "malformed value -infinity, expected a number"},
        {"double denormal", "State.DPWCoefficient[1,2,1]", "5e-324", "5e-324"},
        {"double below its denormals", "State.DPWCoefficient[1,2,1]", "2e-324", "2e-324 is out of range of a double"},
        {"double over", "State.DPWCoefficient[1,2,1]", "1e309", "1e309 is out of range of a double"},
        {"double exponent too long", "State.DPWCoefficient[1,2,1]", "1e99999999999999999999", "1e99999999999999999999 is out of range of a double"},
        {"double hexadecimal", "State.DPWCoefficient[1,2,1]", "0x10", "malformed value 0x10, expected a number"},
        {"double, exponent cut", "State.DPWCoefficient[1,2,1]", "1e", "malformed value 1e, expected a number"},
        {"double, a point alone", "State.DPWCoefficient[1,2,1]", ".", "malformed value ., expected a number"},
        {"double as text", "State.DPWCoefficient[1,2,1]", "\"1\"", "malformed value \"1\", expected a number"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        const std::string set = std::string("set ") + k.field;
        const Result r = RunOn(c, set + " " + k.written + "\nprint " + k.field + "\n");
        const std::string outcome = r.status == 0 ? Printed(r, k.field) : r.err;
        const std::string expected = r.status == 0 ? k.outcome : "line 1: " + set + ": " + k.outcome + "\n";
        EXPECT_EQ(outcome, expected) << k.name;
    }
}

TEST(Script, ARowNumberBeyondEveryListIsARowThatDoesNotExist) {
    // clang-format off
    struct Case { const char* name; const char* script; const char* expected; } cases[] = {
        {"beyond 32 bits", "select Form1.TargetDistance[1] #99999999999", "line 1: select Form1.TargetDistance[1]: no row #99999999999, the list has rows #0 to #9"},
        {"below -1", "set Form1.TargetDistance[1] #-99999999999", "line 1: set Form1.TargetDistance[1]: no row #-99999999999, the list has rows #0 to #9"},
        {"a fraction", "select Form1.TargetDistance[1] #1.5", "line 1: malformed row number #1.5, expected #0, #1, ..."},
        {"a plus", "select Form1.TargetDistance[1] #+1", "line 1: malformed row number #+1, expected #0, #1, ..."},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        const Result r = RunOn(c, k.script);
        EXPECT_EQ(std::tuple(r.status, r.err), std::tuple(2, std::string(k.expected) + "\n")) << k.name;
    }
}

TEST(Script, AScrollBarTakesOnlyTheValuesBetweenZeroAndItsMaximum) {
    // clang-format off
    struct Case { const char* name; const char* bar; int maximum; const char* written; const char* refusal; /* after "set BAR: ", null if taken */ } cases[] = {
        {"inside", "Form1.HScroll1", 4000, "120", nullptr},
        {"at the maximum", "Form1.VScroll1", 4000, "4000", nullptr},
        {"zero on a bar with no room", "Form1.VScroll1", 0, "0", nullptr},
        {"one past the maximum", "Form1.HScroll1", 4000, "4001", "4001 is out of range of the scroll bar, 0 to 4000"},
        {"below zero", "Form1.HScroll1", 4000, "-1", "-1 is out of range of the scroll bar, 0 to 4000"},
        {"the most negative whole number", "Form1.VScroll1", 0, "-2147483648", "-2147483648 is out of range of the scroll bar, 0 to 0"},
        {"the most negative, across", "Form1.HScroll1", 4000, "-2147483648", "-2147483648 is out of range of the scroll bar, 0 to 4000"},
        {"a negative maximum counts as 0", "Alpha.VScroll1", -500, "1", "1 is out of range of the scroll bar, 0 to 0"},
        {"beyond 32 bits", "Omega.VScroll1", 4000, "99999999999", "99999999999 is out of range of the scroll bar, 0 to 4000"},
        {"a fraction", "Form1.VScroll1", 4000, "1.5", "malformed value 1.5, expected a whole number"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        ShowMainWindowAtStart(c);
        ScrollBar& bar = *std::get<ScrollBar*>(ControlRegistry(c).find(k.bar)->target);
        bar.setRange(k.maximum, 1, 1);
        const std::string set = std::string("set ") + k.bar;
        const Result r = RunOn(c, set + " " + k.written + "\nprint " + k.bar + "\n");
        if (k.refusal) {
            EXPECT_EQ(std::tuple(r.status, r.err), std::tuple(2, "line 1: " + set + ": " + k.refusal + "\n")) << k.name;
            EXPECT_EQ(bar.value(), 0) << k.name;
        } else {
            const std::string value = Printed(r, k.bar);
            EXPECT_EQ(value.rfind("{\"value\":" + std::string(k.written) + ",", 0), 0u) << k.name << ": " << value;
        }
    }
}

TEST(Script, LfCrlfAndALoneCrEachEndALine) {
    // clang-format off
    struct Case { const char* name; const char* script; /* sets Form1.Note to "a" */ const char* expected; /* the message; "" when the script runs */ } cases[] = {
        {"lone CR", "# a note\rset Form1.Note \"a\"\rbogus\r", "line 3: unknown verb \"bogus\"; the verbs are select, check, type, click, close, set and print"},
        {"lone CR, no error", "# a note\rset Form1.Note \"a\"\rprint Form1.Note", ""},
        {"CRLF is one end", "# a note\r\n\r\nset Form1.Note \"a\"\r\nbogus", "line 4: unknown verb \"bogus\"; the verbs are select, check, type, click, close, set and print"},
        {"LF then CR are two", "# a note\n\rset Form1.Note \"a\"\nbogus", "line 4: unknown verb \"bogus\"; the verbs are select, check, type, click, close, set and print"},
        {"mixed", "set Form1.Note \"a\"\r# b\nprint Form1.Note\r\n", ""},
        {"CR ends a text", "set Form1.Note \"a\"\rset Form1.Note \"b\r\"", "line 2: malformed text: the closing \" is missing"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        const Result r = RunOn(c, k.script);
        EXPECT_EQ(std::tuple(r.status, r.err),
                  std::tuple(*k.expected ? 2 : 0, *k.expected ? std::string(k.expected) + "\n" : ""))
            << k.name;
        EXPECT_EQ(c.main.Note.caption(), "a") << k.name;
    }
}

TEST(Script, ReadingStopsOneBytePastALineOrAScriptOverItsLimit) {
    const std::string line(kMaxLineBytes, '#');
    std::string lines;
    while (lines.size() <= kMaxScriptBytes)
        lines += line + "\n";
    // clang-format off
    struct Case { const char* name; std::string input; std::size_t read; /* bytes */ } cases[] = {
        {"a short script", "print\n", 6},
        {"a line at its limit", line + "\nprint", kMaxLineBytes + 6},
        {"a line over its limit", line + "xyz\nprint", kMaxLineBytes + 1},
        {"CR ends a line too", line + "\r" + line + "\r" + line, 3 * kMaxLineBytes + 2},
        {"zero bytes without end", std::string(2 * kMaxLineBytes, '\0'), kMaxLineBytes + 1},
        {"a script over its limit", lines, kMaxScriptBytes + 1},
    };
    // clang-format on
    for (const Case& k : cases) {
        std::istringstream in(k.input);
        std::string text;
        EXPECT_TRUE(ReadScript(in, text)) << k.name;
        EXPECT_EQ(text.size(), k.read) << k.name;
        EXPECT_EQ(text, k.input.substr(0, k.read)) << k.name;
    }
}

TEST(Script, ALineOrAScriptOverItsLimitIsRefused) {
    const std::string tail = ", more than a line may hold: ";
    // clang-format off
    struct Case { const char* name; std::string script; std::string expected; /* the message; "" when the script runs */ } cases[] = {
        {"a comment at the limit", "# " + std::string(kMaxLineBytes - 2, 'x') + "\nprint Form1.Note", ""},
        {"a comment over the limit", "print Form1.Note\n# " + std::string(kMaxLineBytes - 1, 'x'), "line 2: the line is over 64 KiB" + tail + "# " + std::string(98, 'x') + "..."},
        {"zero bytes", std::string(kMaxLineBytes + 1, '\0'), "line 1: the line is over 64 KiB" + tail + [] { std::string z; for (int i = 0; i < 100; ++i) z += "\\u0000"; return z; }() + "..."},
        {"blanks count", std::string(kMaxLineBytes, ' ') + "x", "line 1: the line is over 64 KiB" + tail + std::string(100, ' ') + "..."},
        {"a script at the limit", std::string(kMaxScriptBytes - 16, '\n') + "print Form1.Note", ""},
        {"a script over the limit", std::string(kMaxScriptBytes - 15, '\n') + "print Form1.Note", "the script is over 16 MiB, more than a script may hold"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        const Result r = RunOn(c, k.script);
        EXPECT_EQ(std::tuple(r.status, r.err),
                  std::tuple(k.expected.empty() ? 0 : 2, k.expected.empty() ? "" : k.expected + "\n"))
            << k.name;
    }
}

// The output waits in memory for the end of the script; a script of 16 MiB
// of `print` would otherwise ask for hundreds of gigabytes.
TEST(Script, PrintsStopWhereTheOutputWouldPassItsLimit) {
    Program once;
    const std::size_t whole = RunOn(once, "print").out.size();
    const std::size_t fit = kMaxOutputBytes / whole;
    std::string script;
    for (std::size_t n = 0; n <= fit; ++n)
        script += "print\n";
    Program c;
    const Result r = RunOn(c, script);
    EXPECT_EQ(std::tuple(r.status, r.err, r.out),
              std::tuple(2,
                         "line " + std::to_string(fit + 1) +
                             ": print *: the output is over 64 MiB, more than a script may print\n",
                         ""));
}

// A stream that takes nothing, as a full disk or a closed pipe.
class Refusing final : public std::streambuf {
  protected:
    int_type overflow(int_type) override { return traits_type::eof(); }
    std::streamsize xsputn(const char*, std::streamsize) override { return 0; }
};

TEST(Script, AnOutputThatCannotBeWrittenIsAFailureOfItsOwn) {
    // clang-format off
    struct Case { const char* name; const char* script; int status; const char* says; } cases[] = {
        {"a print", "print Form1.Note", kOutputFailed, "cannot write the output\n"},
        {"the whole state", "# nothing", kOutputFailed, "cannot write the output\n"},
        {"a bad line comes first", "print Form1.Note\nbogus", kBadScript, "line 2: unknown verb \"bogus\"; the verbs are select, check, type, click, close, set and print\n"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Refusing refusing;
        std::ostream out(&refusing);
        std::ostringstream err;
        const int status = RunScript(k.script, out, err);
        EXPECT_EQ(std::tuple(status, err.str()), std::tuple(k.status, k.says)) << k.name;
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

TEST(Script, JsonLinesHoldTheSameMembersOneObjectALine) {
    // clang-format off
    struct Case { const char* name; const char* script; std::size_t objects; } cases[] = {
        {"several prints", "set Form1.Note \"a,\\\"b\\\"}{ [x]\"\nprint Form1.No*\nprint State.ArcDPS[*,1]\nprint Form1.Forward[1]\n", 3},
        {"the whole state", "# nothing but a comment", 1},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program indentedRun, linesRun;
        ShowMainWindowAtStart(linesRun);
        const Result indented = RunOn(indentedRun, k.script);
        std::ostringstream out, err;
        ASSERT_EQ(RunScript(linesRun, k.script, out, err, JsonLayout::Lines), 0) << k.name << ": " << err.str();
        const std::string lines = out.str();
        EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), static_cast<std::ptrdiff_t>(k.objects)) << k.name;
        EXPECT_EQ(lines.find("\n "), std::string::npos) << k.name;
        const auto read = testing::Objects(lines);
        ASSERT_TRUE(read.has_value()) << k.name << ": " << lines;
        EXPECT_EQ(*read, Objects(indented)) << k.name;
    }
}

TEST(Script, PrintsEachKindInItsOwnForm) {
    // clang-format off
    struct Case { const char* name; Names keys; /* empty for a plain value */ } cases[] = {
        {"Form1", {"title", "state", "left", "top", "width", "height", "innerWidth", "innerHeight", "enabled", "visible", "back", "fore"}},
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
