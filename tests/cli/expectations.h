#pragma once

// Scripts that say what they must print: each "# expect: " line of a script
// names a piece of its output, which must appear and not go on with more
// digits.

#include "cli/script.h"

#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace vantorel::testing {

// `wanted` stands in `printed`, and does not go on with more digits.
inline bool Printed(const std::string& printed, const std::string& wanted) {
    for (std::size_t at = printed.find(wanted); at != std::string::npos; at = printed.find(wanted, at + 1)) {
        const std::size_t next = at + wanted.size();
        if (next == printed.size() ||
            (!std::isdigit(static_cast<unsigned char>(printed[next])) && printed[next] != '.'))
            return true;
    }
    return false;
}

// Runs every script of the folder on a fresh program; returns how many ran.
inline int ExpectEachScriptPrintsWhatItExpects(const std::filesystem::path& folder) {
    int scripts = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path());
        std::stringstream script;
        script << file.rdbuf();
        std::ostringstream out, err;
        EXPECT_EQ(RunScript(script.str(), out, err), 0) << entry.path() << ": " << err.str();
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
    return scripts;
}

} // namespace vantorel::testing
