// vantorel-cli [--json-lines | --pretty] [SCRIPT]: runs a script of user
// actions and prints the state as JSON. The script comes from SCRIPT, or from
// standard input when SCRIPT is absent or "-".

#include "cli/script.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

using vantorel::JsonLayout;
using vantorel::kBadScript;

const char* const kUsage =
    "usage: vantorel-cli [--json-lines | --pretty] [SCRIPT]\n"
    "Runs the actions of SCRIPT (standard input if absent or \"-\") and prints JSON: on a\n"
    "terminal an indented object for each print, otherwise JSON Lines, one compact object a line.\n"
    "  --json-lines  JSON Lines, on a terminal too\n"
    "  --pretty      indented objects, into a file or a pipe too\n"
    "Exit status: 0 done; 1 the output could not be written; 2 a bad script, one over\n"
    "64 KiB a line or 16 MiB in all, or one that cannot be read.\n";

bool OutputIsTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stdout)) != 0;
#else
    return isatty(fileno(stdout)) != 0;
#endif
}

int Usage(const std::string& fault) {
    std::cerr << "vantorel-cli: " << fault << '\n' << kUsage;
    return kBadScript;
}

int Help() {
    errno = 0;
    std::cout << kUsage << std::flush;
    if (std::cout) return vantorel::kScriptRan;
    std::cerr << "vantorel-cli: cannot write the output" << (errno ? std::string(": ") + std::strerror(errno) : "")
              << '\n';
    return vantorel::kOutputFailed;
}

} // namespace

int main(int argc, char** argv) {
    std::optional<std::string> path;
    std::optional<JsonLayout> layout;
    bool options = true; // until "--"
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (options && arg == "--") {
            options = false;
        } else if (options && (arg == "--help" || arg == "-h")) {
            return Help();
        } else if (options && arg == "--json-lines") {
            layout = JsonLayout::Lines;
        } else if (options && arg == "--pretty") {
            layout = JsonLayout::Indented;
        } else if (options && arg.size() > 1 && arg.front() == '-') {
            return Usage("unknown option " + arg);
        } else if (path) {
            return Usage("one script at a time");
        } else {
            path = arg;
        }
    }
    if (!layout) layout = OutputIsTerminal() ? JsonLayout::Indented : JsonLayout::Lines;

    std::string script;
    if (!path || *path == "-") {
        if (!vantorel::ReadScript(std::cin, script)) {
            std::cerr << "vantorel-cli: cannot read standard input\n";
            return kBadScript;
        }
    } else {
        std::error_code ec;
        if (std::filesystem::is_directory(*path, ec)) {
            std::cerr << "vantorel-cli: cannot read " << *path << ": it is a directory\n";
            return kBadScript;
        }
        std::ifstream file(*path, std::ios::binary);
        if (!file) {
            std::cerr << "vantorel-cli: cannot read " << *path << ": " << std::strerror(errno) << '\n';
            return kBadScript;
        }
        if (!vantorel::ReadScript(file, script)) {
            std::cerr << "vantorel-cli: cannot read " << *path << '\n';
            return kBadScript;
        }
    }
    return vantorel::RunScript(script, std::cout, std::cerr, *layout);
}
