// vantorel-soak [--actions N] [--seed S] [--per-run L] [--scripts DIR]
//
// Walks N random user actions (default 1,000,000) through fresh programs of L
// actions each (default 10,000), seeded S, S+1, ... (default 1), on every
// window that the program's own buttons open; every other program opens on a
// small screen, so that the scroll bars take part. Prints the actions walked,
// the time, the actions on each window and every finding; with --scripts,
// writes each finding's actions as a vantorel-cli script into DIR.

#include "program/soak.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <string_view>

namespace {

constexpr int kBadUsage = 2;
constexpr unsigned long long kShownPerRule = 3;

const char* const kUsage = "usage: vantorel-soak [--actions N] [--seed S] [--per-run L] [--scripts DIR]\n";

bool ReadNumber(const char* text, unsigned long long& value) {
    char* end = nullptr;
    errno = 0;
    value = std::strtoull(text, &end, 10);
    return errno == 0 && end != text && *end == '\0' && text[0] != '-';
}

} // namespace

int main(int argc, char** argv) {
    unsigned long long total = 1000000, seed = 1, perRun = 10000;
    std::string scripts;
    for (int i = 1; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            std::cout << kUsage;
            return 0;
        }
        if (i + 1 >= argc) {
            std::cerr << kUsage;
            return kBadUsage;
        }
        const char* value = argv[++i];
        bool ok = true;
        if (arg == "--actions")
            ok = ReadNumber(value, total);
        else if (arg == "--seed")
            ok = ReadNumber(value, seed);
        else if (arg == "--per-run")
            ok = ReadNumber(value, perRun) && perRun > 0;
        else if (arg == "--scripts")
            scripts = value;
        else
            ok = false;
        if (!ok) {
            std::cerr << "vantorel-soak: bad argument " << arg << " " << value << "\n" << kUsage;
            return kBadUsage;
        }
    }

    // 800 x 600 pixels less a task bar: both scroll bars in a comparison.
    const vantorel::WorkArea smallScreen{0, 0, 12000, 8550};
    const auto start = std::chrono::steady_clock::now();
    unsigned long long walked = 0, compared = 0, runs = 0, findings = 0;
    int deepest = 0;
    std::map<std::string, unsigned long long> byRule;
    std::map<std::string, unsigned long long> byWindow;
    for (unsigned long long s = seed; walked < total; ++s) {
        vantorel::SoakOptions options;
        if (runs % 2 == 1) options.screen = smallScreen;
        const long length = static_cast<long>(std::min(perRun, total - walked));
        const vantorel::SoakReport report = vantorel::RunSoak(s, length, options);
        ++runs;
        walked += static_cast<unsigned long long>(report.actions);
        compared += static_cast<unsigned long long>(report.compared);
        deepest = std::max(deepest, report.deepestNesting);
        for (const auto& [window, count] : report.actionsByWindow)
            byWindow[window] += static_cast<unsigned long long>(count);
        if (!report.finding) continue;
        ++findings;
        const std::string rule(vantorel::InvariantName(report.finding->invariant));
        // The first few of each rule in full; the rest only count. A run
        // that ends early is made up by the next seeds.
        if (++byRule[rule] <= kShownPerRule) {
            std::cout << "finding: seed " << s << ", action " << report.actions << ": " << rule << ": "
                      << report.finding->detail << "\n";
            if (!scripts.empty()) {
                std::filesystem::create_directories(scripts);
                const std::string path = scripts + "/soak-" + std::to_string(s) + ".txt";
                std::ofstream(path, std::ios::binary) << report.script;
                std::cout << "  script: " << path << "\n";
            }
        }
        // A program that breaks a rule before any action does so on every seed.
        if (report.actions == 0) break;
    }
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::cout << "actions walked: " << walked << " in " << runs << " programs\n"
              << "time: " << seconds << " s (" << (seconds > 0 ? walked / seconds : 0.0) << " actions/s)\n"
              << "compared with a fresh recalculation after " << compared << " of them\n"
              << "deepest chain of events: " << deepest << "\n"
              << "findings: " << findings << "\n";
    std::cout << "actions by window:\n";
    for (const auto& [window, count] : byWindow)
        std::cout << "  " << window << ": " << count << "\n";
    for (const auto& [rule, count] : byRule)
        std::cout << "  " << count << " x " << rule << "\n";
    return findings == 0 ? 0 : 1;
}
