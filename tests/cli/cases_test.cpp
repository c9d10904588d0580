// The scripts in examples/cases each reproduce one case of the custom damage
// rules and say what they must print in their "# expect:" lines.

#include "cli/script.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace vantorel {
namespace {

// `wanted` stands in `printed`, and does not go on with more digits.
bool Printed(const std::string& printed, const std::string& wanted) {
    for (std::size_t at = printed.find(wanted); at != std::string::npos; at = printed.find(wanted, at + 1)) {
        const std::size_t next = at + wanted.size();
        if (next == printed.size() ||
            (!std::isdigit(static_cast<unsigned char>(printed[next])) && printed[next] != '.'))
            return true;
    }
    return false;
}

TEST(Cases, EachScriptPrintsWhatItExpects) {
    const std::filesystem::path folder = std::filesystem::path(VANTOREL_SOURCE_DIR) / "examples" / "cases";
    int scripts = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path());
        std::stringstream script;
        script << file.rdbuf();
        std::ostringstream out, err;
        ASSERT_EQ(RunScript(script.str(), out, err), 0) << entry.path() << ": " << err.str();
        std::istringstream lines(script.str());
        int expectations = 0;
        for (std::string line; std::getline(lines, line);) {
            const std::string tag = "# expect: ";
            if (line.rfind(tag, 0) != 0) continue;
            ++expectations;
            EXPECT_TRUE(Printed(out.str(), line.substr(tag.size()))) << entry.path().filename() << ": " << line;
        }
        EXPECT_GT(expectations, 0) << entry.path();
        ++scripts;
    }
    EXPECT_GE(scripts, 14);
}

} // namespace
} // namespace vantorel
