// Scripts reach the manual and About by their controls' names, under the
// same rules as the other windows: a control of a closed window is refused.

#include "cli/script.h"

#include "help/help.h"
#include "program/program.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace vantorel {
namespace {

TEST(HelpScript, ReachesTheManualAndAbout) {
    const std::string helpCaret = std::to_string(HelpPosition(ManualSection::MainWindow));
    const struct Case {
        const char* name;
        const char* script;
        int status;
        std::string output; // a piece of the output or of the message
    } cases[] = {
        {"Help opens the manual", "click Form1.Help\nprint Documentation.ReadmeCaret\n", 0,
         "\"Documentation.ReadmeCaret\": " + helpCaret},
        {"OK closes it", "click Form1.Help\nclick Documentation.OK\nprint Documentation\n", 0, "\"visible\":false"},
        {"a closed manual's OK is refused", "click Documentation.OK\n", 2,
         "line 1: click Documentation.OK: refused, window Documentation is hidden"},
        {"About's Readme: the manual from its start",
         "click Form1.ShowAbout\nclick About.Readme\nprint Documentation.ReadmeCaret\n", 0,
         "\"Documentation.ReadmeCaret\": 0"},
        {"About's Online without a browser does nothing", "click Form1.ShowAbout\nclick About.Online\nprint About\n", 0,
         "\"visible\":true"},
        {"About's OK closes it", "click Form1.ShowAbout\nclick About.OK\nclick About.OK\n", 2,
         "line 3: click About.OK: refused, window About is hidden"},
        {"the splash pictures are there to read", "print SplashScreen.Splash[1]\n", 0, "\"image\":\"engagement\""},
    };
    for (const Case& k : cases) {
        std::ostringstream out, err;
        EXPECT_EQ(RunScript(k.script, out, err), k.status) << k.name << ": " << err.str();
        EXPECT_NE((k.status == 0 ? out : err).str().find(k.output), std::string::npos) << k.name << ":\n"
                                                                                       << out.str() << err.str();
    }
}

} // namespace
} // namespace vantorel
