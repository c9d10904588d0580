// The scripts in examples/cases each reproduce one case of the custom damage
// rules and say what they must print in their "# expect:" lines.

#include "expectations.h"

namespace vantorel {
namespace {

TEST(Cases, EachScriptPrintsWhatItExpects) {
    const std::filesystem::path folder = std::filesystem::path(VANTOREL_SOURCE_DIR) / "examples" / "cases";
    EXPECT_GE(testing::ExpectEachScriptPrintsWhatItExpects(folder), 14);
}

} // namespace
} // namespace vantorel
