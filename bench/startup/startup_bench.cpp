// Start-up of the program against a bare Qt program: time from the start of
// the process to its window painted, and the peak resident memory, over
// several runs of each, taken in turns so that all see the same machine. The
// program runs twice: without its splash screen, and as it starts for the
// user, splash first. The second yardstick draws one line of text, which
// shows what any window with text pays before it has a widget of its own.
//
//   vantorel-startup-bench [RUNS]     (default 15; QT_QPA_PLATFORM defaults to offscreen)

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

extern char** environ;

namespace {

struct Run {
    double milliseconds = 0;
    long peakKilobytes = 0;
    bool ok = false;
};

Run Once(const char* program, const char* option) {
    Run run;
    int out[2];
    if (pipe(out) != 0) return run;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, out[0]);
    char* argv[] = {const_cast<char*>(program), const_cast<char*>(option), nullptr};

    const auto start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    const int spawned = posix_spawn(&pid, program, &actions, nullptr, argv, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(out[1]);
    if (spawned != 0) {
        close(out[0]);
        return run;
    }
    std::string said;
    char buffer[64];
    ssize_t n = 0;
    while (said.find("painted") == std::string::npos && (n = read(out[0], buffer, sizeof buffer)) > 0)
        said.append(buffer, static_cast<std::size_t>(n));
    const auto painted = std::chrono::steady_clock::now();
    close(out[0]);

    int status = 0;
    rusage usage{};
    wait4(pid, &status, 0, &usage);
    run.milliseconds = std::chrono::duration<double, std::milli>(painted - start).count();
    run.peakKilobytes = usage.ru_maxrss;
    run.ok = said.find("painted") != std::string::npos && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return run;
}

template <typename T> T Median(std::vector<T> v) {
    std::sort(v.begin(), v.end());
    const std::size_t mid = v.size() / 2;
    return v.size() % 2 ? v[mid] : (v[mid - 1] + v[mid]) / 2;
}

} // namespace

int main(int argc, char* argv[]) {
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    struct Program {
        const char* name;
        const char* path;
        const char* option;
    };
    const Program programs[] = {
        {"vantorel", VANTOREL_PROBE, nullptr},
        {"vantorel with splash", VANTOREL_PROBE, "--splash"},
        {"bare Qt", BARE_PROBE, nullptr},
        {"bare+text", BARE_PROBE, "--label"},
    };
    constexpr int count = sizeof programs / sizeof programs[0];
    std::vector<double> times[count];
    std::vector<long> memory[count];
    // One unmeasured run each, so that all start from a warm file cache.
    for (const Program& p : programs)
        Once(p.path, p.option);
    for (int i = 0; i < runs; ++i) {
        for (int p = 0; p < count; ++p) {
            const Run run = Once(programs[p].path, programs[p].option);
            if (!run.ok) {
                std::fprintf(stderr, "%s did not paint its window\n", programs[p].name);
                return EXIT_FAILURE;
            }
            times[p].push_back(run.milliseconds);
            memory[p].push_back(run.peakKilobytes);
        }
    }
    double time[count];
    long peak[count];
    for (int p = 0; p < count; ++p) {
        time[p] = Median(times[p]);
        peak[p] = Median(memory[p]);
    }
    std::printf("runs: %d each, medians\n", runs);
    std::printf("%-24s %9s %12s\n", "", "ms", "peak KiB");
    for (int p = 0; p < count; ++p)
        std::printf("%-24s %9.1f %12ld\n", programs[p].name, time[p], peak[p]);
    std::printf("%-24s %9.2f %12.2f\n", "ratio vantorel/bare Qt", time[0] / time[2],
                static_cast<double>(peak[0]) / static_cast<double>(peak[2]));
    std::printf("%-24s %9.2f %12.2f\n", "ratio vantorel/bare+text", time[0] / time[3],
                static_cast<double>(peak[0]) / static_cast<double>(peak[3]));
    std::printf("%-24s %9.2f %12.2f\n", "ratio splash/no splash", time[1] / time[0],
                static_cast<double>(peak[1]) / static_cast<double>(peak[0]));
    return EXIT_SUCCESS;
}
