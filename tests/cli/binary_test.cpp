// Runs the built vantorel-cli as a user would: files, standard input, exit
// statuses, and the example scripts against the engine's own numbers.

#include "cli/script.h"

#include "engine/dps.h"
#include "engine/power.h"
#include "json_reader.h"
#include "mainwindow/layout.h"
#include "program/program.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <termios.h>
#include <tuple>
#include <unistd.h>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

struct Outcome {
    int status = -1;
    std::string out, err;
};

std::string Slurp(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

std::string Quoted(const fs::path& path) { return "'" + path.string() + "'"; }

class Binary : public ::testing::Test {
  protected:
    void SetUp() override {
        m_dir = fs::temp_directory_path() / ("vantorel-cli-test-" + std::to_string(::getpid()) + "-" +
                                             ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directories(m_dir);
    }
    void TearDown() override { fs::remove_all(m_dir); }

    fs::path write(const std::string& name, const std::string& text) {
        const fs::path path = m_dir / name;
        std::ofstream(path, std::ios::binary) << text;
        return path;
    }

    // `args` go to the shell as they are; `input`, if any, is standard input.
    Outcome run(const std::string& args, const std::string* input = nullptr) {
        return runFrom(args, input ? write("stdin", *input) : fs::path("/dev/null"));
    }

    // Standard output goes to `out` if given, such as /dev/full, and is then
    // not read back.
    Outcome runFrom(const std::string& args, const fs::path& in, const fs::path& out = {}) {
        const fs::path to = out.empty() ? m_dir / "out" : out, err = m_dir / "err";
        std::string command = "'" + std::string(VANTOREL_CLI) + "' " + args + " < " + Quoted(in);
        command += " > " + Quoted(to) + " 2> " + Quoted(err);
        const int raw = std::system(command.c_str());
        return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, out.empty() ? Slurp(to) : "", Slurp(err)};
    }

    fs::path m_dir;
};

TEST_F(Binary, ReadsTheScriptFromAFileOrFromStandardInput) {
    const std::string script = "# power of Alpha\nprint State.ArcDPS[0,1]\n";
    const Outcome fromFile = run(Quoted(write("script.txt", script)));
    for (const char* args : {"-", ""}) {
        const Outcome o = run(args, &script);
        EXPECT_EQ(o.status, 0) << o.err;
        EXPECT_EQ(o.err, "");
        EXPECT_EQ(o.out, fromFile.out) << '"' << args << '"';
    }
    EXPECT_EQ(fromFile.out, "{\"State.ArcDPS[0,1]\":0}\n");
}

TEST_F(Binary, ExitsWithTwoAndPrintsNothingOnAFailure) {
    const std::string bad = "print Form1.Note\nselect Form1.ShipClass[2] #1\nprint Form1.Note\n";
    // clang-format off
    struct Case { const char* name; std::string args; const std::string* input; const char* says; } cases[] = {
        {"bad line", "-", &bad, "line 2: select Form1.ShipClass[2]: refused, the list is hidden\n"},
        {"missing file", Quoted(m_dir / "absent.txt"), nullptr, "absent.txt"},
        {"a directory", Quoted(m_dir), nullptr, "directory"},
        {"two scripts", "a.txt b.txt", nullptr, "vantorel-cli: one script at a time\nusage"},
        {"unknown option", "--jsonlines", nullptr, "vantorel-cli: unknown option --jsonlines\nusage"},
    };
    // clang-format on
    for (const Case& c : cases) {
        const Outcome o = run(c.args, c.input);
        EXPECT_EQ(std::tuple(o.status, o.out), std::tuple(2, "")) << c.name;
        EXPECT_NE(o.err.find(c.says), std::string::npos) << c.name << ": " << o.err;
    }
}

// A terminal for standard output. The test holds both ends open, so what the
// program wrote waits to be read after it has ended.
class Terminal {
  public:
    Terminal() {
        m_master = ::posix_openpt(O_RDWR | O_NOCTTY);
        if (m_master < 0 || ::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0) return;
        m_path = ::ptsname(m_master);
        m_slave = ::open(m_path.c_str(), O_RDWR | O_NOCTTY);
        termios raw{};
        if (m_slave < 0 || ::tcgetattr(m_slave, &raw) != 0) return;
        ::cfmakeraw(&raw); // no CR before each LF
        ::tcsetattr(m_slave, TCSANOW, &raw);
        ::fcntl(m_master, F_SETFL, ::fcntl(m_master, F_GETFL) | O_NONBLOCK);
    }
    ~Terminal() {
        if (m_slave >= 0) ::close(m_slave);
        if (m_master >= 0) ::close(m_master);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    bool open() const { return m_slave >= 0; }
    const std::string& path() const { return m_path; }
    std::string written() {
        std::string text;
        char chunk[4096];
        for (ssize_t n; (n = ::read(m_master, chunk, sizeof chunk)) > 0;)
            text.append(chunk, static_cast<std::size_t>(n));
        return text;
    }

  private:
    int m_master = -1, m_slave = -1;
    std::string m_path;
};

TEST_F(Binary, WritesIndentedObjectsOnATerminalAndJsonLinesElsewhere) {
    const fs::path script = write("script.txt", "print State.ArcDPS[0,1]\nprint State.Comparing\n");
    const std::string indented = "{\n  \"State.ArcDPS[0,1]\": 0\n}\n{\n  \"State.Comparing\": 0\n}\n";
    const std::string lines = "{\"State.ArcDPS[0,1]\":0}\n{\"State.Comparing\":0}\n";
    // clang-format off
    struct Case { const char* name; const char* args; bool terminal; const std::string& expected; } cases[] = {
        {"a file", "-", false, lines},
        {"a terminal", "-", true, indented},
        {"--json-lines on a terminal", "--json-lines -", true, lines},
        {"--pretty into a file", "--pretty -", false, indented},
        {"the last option counts", "--pretty --json-lines", false, lines},
        {"an option after the script", "- --pretty", false, indented},
        {"a script named like an option", "--pretty -- -", false, indented},
    };
    // clang-format on
    for (const Case& c : cases) {
        Terminal terminal;
        // A machine without pseudo-terminals cannot show the terminal rows.
        if (c.terminal && !terminal.open()) {
            std::cout << c.name << ": skipped, no terminal to be had\n";
            continue;
        }
        const Outcome o = runFrom(c.args, script, c.terminal ? fs::path(terminal.path()) : fs::path());
        EXPECT_EQ(std::tuple(o.status, o.err), std::tuple(0, "")) << c.name;
        EXPECT_EQ(c.terminal ? terminal.written() : o.out, c.expected) << c.name;
    }
}

TEST_F(Binary, StopsReadingInputWithoutEndAtTheLimitOfALine) {
    // clang-format off
    struct Case { const char* name; std::string args; fs::path in; } cases[] = {
        {"a file", "/dev/zero", "/dev/null"},
        {"standard input", "-", "/dev/zero"},
    };
    // clang-format on
    for (const Case& c : cases) {
        const Outcome o = runFrom(c.args, c.in);
        EXPECT_EQ(std::tuple(o.status, o.out), std::tuple(2, "")) << c.name;
        EXPECT_EQ(o.err.rfind("line 1: the line is over 64 KiB, more than a line may hold: \\u0000", 0), 0u)
            << c.name << ": " << o.err;
    }
}

TEST_F(Binary, ExitsWithOneWhenTheOutputCannotBeWritten) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "no /dev/full";
    const std::string script = "print Form1.Note\n";
    // clang-format off
    struct Case { const char* name; std::string args; fs::path in; int status; const char* says; } cases[] = {
        {"a print", "-", write("script.txt", script), 1, "cannot write the output: No space left on device\n"},
        {"the whole state", "-", "/dev/null", 1, "cannot write the output: No space left on device\n"},
        {"the help", "--help", "/dev/null", 1, "vantorel-cli: cannot write the output: No space left on device\n"},
        {"a bad script still says where", "-", write("bad.txt", "bogus\n"), 2, "line 1: unknown verb \"bogus\"; the verbs are select, check, type, click, close, set and print\n"},
    };
    // clang-format on
    for (const Case& c : cases) {
        const Outcome o = runFrom(c.args, c.in, "/dev/full");
        EXPECT_EQ(std::tuple(o.status, o.err), std::tuple(c.status, c.says)) << c.name;
    }
}

// The last value printed for each name, over all objects.
std::map<std::string, std::string> LastPrinted(const std::string& out) {
    std::map<std::string, std::string> values;
    const auto objects = testing::Objects(out);
    EXPECT_TRUE(objects.has_value()) << out;
    for (const testing::Members& members : objects.value_or(std::vector<testing::Members>{}))
        for (const auto& [key, value] : members)
            values[key] = value;
    return values;
}

TEST_F(Binary, ExamplesPrintTheArcValuesThatTheEngineComputes) {
    // Known values: 2 Beam Arrays and 1 Dual Beam Bank give 282.664; one of
    // each forward cannon kind, a bank and a turret 457.993.
    const std::map<std::string, std::map<std::string, std::string>> known = {
        {"beam-boat.txt", {{"State.ArcDPS[1,1]", "282.664"}}},
        {"cannon-escort.txt", {{"State.ArcDPS[0,1]", "457.993"}}},
        {"comparison.txt", {{"State.ArcDPS[1,1]", "282.664"}, {"State.ArcDPS[0,2]", "457.993"}}},
    };
    int examples = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(VANTOREL_SOURCE_DIR) / "examples")) {
        if (entry.path().extension() != ".txt") continue;
        ++examples;
        const std::string file = entry.path().filename().string();
        SCOPED_TRACE(file);
        const Outcome o = run(Quoted(entry.path()));
        ASSERT_EQ(o.status, 0) << o.err;
        const std::map<std::string, std::string> printed = LastPrinted(o.out);
        if (known.count(file)) {
            for (const auto& [name, value] : known.at(file))
                EXPECT_EQ(printed.count(name) ? printed.at(name) : "<none>", value) << name;
        }

        // The same script in this process, then each row worked out again
        // from the counts the script left, as the firing arcs assemble them.
        Program c;
        ShowMainWindowAtStart(c);
        std::ostringstream ignored, err;
        ASSERT_EQ(RunScript(c, Slurp(entry.path()), ignored, err), 0) << err.str();
        const auto& n = c.state.WeaponCount;
        for (Vessel v = 1; v <= (c.state.Comparing ? 2 : 1); ++v) {
            const int dhc = n[1][v], dc = n[2][v], dbb = n[3][v], cannons = n[4][v], fba = n[5][v];
            const int turrets = n[6][v], rba = n[7][v], shuttles = n[11][v];
            const int rows[6][5] = {{dhc, dc, dbb, cannons, fba},  {0, 0, dbb, cannons, fba}, {0, 0, 0, cannons, fba},
                                    {0, 0, 0, cannons, fba + rba}, {0, 0, 0, 0, fba + rba},   {0, 0, 0, 0, rba}};
            const int distance = v == 1 ? c.main.TargetDistance[1].index() : GetRange(c, 2);
            for (int row = 0; row <= 5; ++row) {
                const std::string name = "State.ArcDPS[" + std::to_string(row) + "," + std::to_string(v) + "]";
                if (!printed.count(name)) continue;
                const int* k = rows[row];
                const WeaponCounts weapons{k[0], k[1], k[2], k[3], k[4], turrets, shuttles};
                const float expected =
                    CalculateDPS(c, {weapons, GetPowerLevel(c, v, Bonus::With), distance}, v, SkillEffect::Counted);
                EXPECT_EQ(std::strtof(printed.at(name).c_str(), nullptr), expected) << name;
            }
        }
    }
    EXPECT_GT(examples, 0);
}

} // namespace
} // namespace vantorel
