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

using vantorel::kBadScript;

const char* const kUsage = "usage: vantorel-cli [SCRIPT]\n"
                           "Runs the actions of SCRIPT (standard input if absent or \"-\") and prints JSON.\n"
                           "Exit status: 0 done; 1 the output could not be written; 2 a bad script, one over\n"
                           "64 KiB a line or 16 MiB in all, or one that cannot be read.\n";

} // namespace

int main(int argc, char** argv) {
    const std::string path = argc > 1 ? argv[1] : "-";
    if (argc > 2) {
        std::cerr << kUsage;
        return kBadScript;
    }
    if (path == "--help" || path == "-h") {
        errno = 0;
        std::cout << kUsage << std::flush;
        if (!std::cout) {
            std::cerr << "vantorel-cli: cannot write the output"
                      << (errno ? std::string(": ") + std::strerror(errno) : "") << '\n';
            return vantorel::kOutputFailed;
        }
        return vantorel::kScriptRan;
    }

    std::string script;
    if (path == "-") {
        if (!vantorel::ReadScript(std::cin, script)) {
            std::cerr << "vantorel-cli: cannot read standard input\n";
            return kBadScript;
        }
    } else {
        std::error_code ec;
        if (std::filesystem::is_directory(path, ec)) {
            std::cerr << "vantorel-cli: cannot read " << path << ": it is a directory\n";
            return kBadScript;
        }
        std::ifstream file(path, std::ios::binary);
        if (!file) {
            std::cerr << "vantorel-cli: cannot read " << path << ": " << std::strerror(errno) << '\n';
            return kBadScript;
        }
        if (!vantorel::ReadScript(file, script)) {
            std::cerr << "vantorel-cli: cannot read " << path << '\n';
            return kBadScript;
        }
    }
    return vantorel::RunScript(script, std::cout, std::cerr);
}
