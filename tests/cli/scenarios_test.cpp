// The scripts in tests/cli/scenarios play the long chains of the settings
// windows as a user would, through the windows' own controls, and say what
// they must print in their "# expect:" lines.

#include "expectations.h"

namespace vantorel {
namespace {

TEST(Scenarios, EachScriptPrintsWhatItExpects) {
    const std::filesystem::path folder = std::filesystem::path(VANTOREL_SOURCE_DIR) / "tests" / "cli" / "scenarios";
    EXPECT_GE(testing::ExpectEachScriptPrintsWhatItExpects(folder), 5);
}

} // namespace
} // namespace vantorel
