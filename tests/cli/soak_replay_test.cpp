#include "cli/script.h"
#include "mainwindow/layout.h"
#include "program/actions.h"
#include "program/program.h"
#include "program/registry.h"
#include "program/soak.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <sstream>
#include <string>

namespace vantorel {
namespace {

// The soak hands its findings over as scripts: every action it takes must be
// a line that vantorel-cli accepts and that leaves the program as the action
// itself did, down to the last caption.
TEST(SoakReplay, RandomActionsReplayAsAScript) {
    struct Run {
        std::uint64_t seed;
        std::optional<WorkArea> screen;
    } runs[] = {{11, std::nullopt}, {12, WorkArea{0, 0, 12000, 8550}}};
    for (const Run& run : runs) {
        const auto start = [&run](Program& p) {
            if (run.screen) {
                p.workWidth = run.screen->width;
                p.workHeight = run.screen->height;
            }
            ShowMainWindowAtStart(p);
        };
        Program acted;
        start(acted);
        const ControlRegistry actedTable(acted);
        const std::vector<const ControlRef*> controls = ActionableControls(actedTable);
        std::mt19937_64 random(run.seed);
        std::vector<const ControlRef*> reachable;
        std::string script;
        for (int i = 0; i < 1500; ++i) {
            Action action;
            ASSERT_TRUE(PickAction(controls, random, reachable, action));
            script += ScriptLine(action) + "\n";
            Perform(action);
        }

        Program replayed;
        start(replayed);
        std::ostringstream out, err;
        ASSERT_EQ(RunScript(replayed, script, out, err), 0) << "seed " << run.seed << ": " << err.str();
        const ControlRegistry replayedTable(replayed);
        Snapshot snapshot;
        snapshot.take(actedTable.all());
        const ControlRef* differs = snapshot.firstChange(replayedTable.all());
        EXPECT_EQ(differs, nullptr) << "seed " << run.seed << ": " << differs->name << " "
                                    << snapshot.describeChange(replayedTable.all(), *differs);
    }
}

} // namespace
} // namespace vantorel
