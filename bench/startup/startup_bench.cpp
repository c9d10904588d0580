// Start-up of the program against a bare Qt program: time from the start of
// the process to its window painted, and the peak resident memory, over
// several runs of each, taken in turns so that both see the same machine.
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

Run Once(const char* program) {
    Run run;
    int out[2];
    if (pipe(out) != 0) return run;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, out[0]);
    char* argv[] = {const_cast<char*>(program), nullptr};

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
    const char* programs[2] = {VANTOREL_PROBE, BARE_PROBE};
    std::vector<double> times[2];
    std::vector<long> memory[2];
    // One unmeasured run each, so that both start from a warm file cache.
    for (const char* program : programs)
        Once(program);
    for (int i = 0; i < runs; ++i) {
        for (int p = 0; p < 2; ++p) {
            const Run run = Once(programs[p]);
            if (!run.ok) {
                std::fprintf(stderr, "%s did not paint its window\n", programs[p]);
                return EXIT_FAILURE;
            }
            times[p].push_back(run.milliseconds);
            memory[p].push_back(run.peakKilobytes);
        }
    }
    const double time[2] = {Median(times[0]), Median(times[1])};
    const long peak[2] = {Median(memory[0]), Median(memory[1])};
    std::printf("runs: %d each, medians\n", runs);
    std::printf("%-10s %9s %12s\n", "", "ms", "peak KiB");
    std::printf("%-10s %9.1f %12ld\n", "vantorel", time[0], peak[0]);
    std::printf("%-10s %9.1f %12ld\n", "bare Qt", time[1], peak[1]);
    std::printf("ratio      %9.2f %12.2f\n", time[0] / time[1], static_cast<double>(peak[0]) / peak[1]);
    return EXIT_SUCCESS;
}
