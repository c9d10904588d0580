// vantorel-cli [SCRIPT]: runs a script of user actions and prints the state as
// JSON. The script comes from SCRIPT, or from standard input when SCRIPT is
// absent or "-".

#include "cli/script.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace {

constexpr int kBadInput = 2;

const char* const kUsage = "usage: vantorel-cli [SCRIPT]\n"
                           "Runs the actions of SCRIPT (standard input if absent or \"-\") and prints JSON.\n";

} // namespace

int main(int argc, char** argv) {
    const std::string path = argc > 1 ? argv[1] : "-";
    if (argc > 2) {
        std::cerr << kUsage;
        return kBadInput;
    }
    if (path == "--help" || path == "-h") {
        std::cout << kUsage;
        return 0;
    }

    std::string script;
    if (path == "-") {
        if (!vantorel::ReadScript(std::cin, script)) {
            std::cerr << "vantorel-cli: cannot read standard input\n";
            return kBadInput;
        }
    } else {
        std::error_code ec;
        if (std::filesystem::is_directory(path, ec)) {
            std::cerr << "vantorel-cli: cannot read " << path << ": it is a directory\n";
            return kBadInput;
        }
        std::ifstream file(path, std::ios::binary);
        if (!file) {
            std::cerr << "vantorel-cli: cannot read " << path << ": " << std::strerror(errno) << '\n';
            return kBadInput;
        }
        if (!vantorel::ReadScript(file, script)) {
            std::cerr << "vantorel-cli: cannot read " << path << '\n';
            return kBadInput;
        }
    }
    return vantorel::RunScript(script, std::cout, std::cerr);
}
