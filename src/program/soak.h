#pragma once

// The random-action soak: a fresh program, as its main window first shows,
// takes one action after another that a user could take at that moment,
// picked by a seeded generator, and after each action the rules that must
// always hold are checked. The first rule broken ends the run with the
// actions so far as a vantorel-cli script, so that it can be replayed.

#include "mainwindow/layout.h"
#include "program/actions.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel {

// The rules, in the order they are checked.
enum class Invariant {
    Failure,       // the program threw while it handled the action
    Nesting,       // events nest no deeper than Invariants::kMaxNesting
    ListIndex,     // a list's index is -1 or one of its rows, whose text it shows
    DPSCaption,    // a DPS box shows a number in plain text, or nothing
    Comparing,     // State.Comparing agrees with what the main window shows
    OmegaSettings, // a mirrored Omega has Alpha's combat factors
    OmegaSkills,   // a mirrored Omega has Alpha's skill levels
    Recalculation, // a recalculation now would change nothing
    ArcDPS,        // each row of a vessel on show is the DPS of its weapons
};
std::string_view InvariantName(Invariant invariant);

struct Finding {
    Invariant invariant = Invariant::Failure;
    std::string detail;
};

// Every field and engine value of the table, kept as bytes: what the
// program shows before a recalculation, to be compared with it afterwards.
class Snapshot final {
  public:
    void take(const FieldTable& table);
    // The first entry that differs from the snapshot, null if none.
    const ControlRef* firstChange(const FieldTable& table) const;
    // What differs in the entry, "caption: \"1\" -> \"2\"; ...".
    std::string describeChange(const FieldTable& table, const ControlRef& ref) const;

  private:
    std::vector<char> m_bytes;       // grows to the largest snapshot taken
    std::vector<std::size_t> m_ends; // where each entry's bytes end
};

// The rules of a program that a user works, checked after each action. The
// calculator and the registry must outlive the checks.
class Invariants final {
  public:
    // No chain of events of the program runs deeper than this.
    static constexpr int kMaxNesting = 12;

    // Wraps the handler of every control in the table to count how deeply
    // events nest, and hands them back at the end.
    Invariants(Calculator& c, const ControlRegistry& registry);
    ~Invariants();
    Invariants(const Invariants&) = delete;
    Invariants& operator=(const Invariants&) = delete;

    // Performs the action; a finding if the program failed on it or its
    // events nested too deeply.
    std::optional<Finding> perform(const Action& action);
    // The first rule that does not hold now, if any. A recalculation is part
    // of the check; when the rules hold it changes nothing.
    std::optional<Finding> check();

    // Text typed into a list with typing raises no event, nor does a click
    // on a control without a handler, so what the windows show waits for the
    // next recalculation to take it in. Until then the results are not
    // compared with a fresh recalculation.
    bool awaitingRecalculation() const { return m_awaiting; }
    int deepestNesting() const { return m_deepest; }

  private:
    std::optional<Finding> listIndexes() const;
    std::optional<Finding> dpsCaptions() const;
    std::optional<Finding> comparing() const;
    std::optional<Finding> omegaSettings() const;
    std::optional<Finding> omegaSkills() const;
    std::optional<Finding> recalculation();
    std::optional<Finding> arcDPS();

    Calculator& m_c;
    const ControlRegistry& m_registry;
    std::vector<const ControlRef*> m_lists;
    // The controls that State.Comparing decides the showing of.
    const ControlRef* m_compare;
    const ControlRef* m_hideCompare;
    std::vector<const ControlRef*> m_omegaColumn;
    std::vector<const ControlRef*> m_omegaOnlyWhileComparing;
    std::vector<std::pair<Control*, std::function<void()>>> m_handlers;
    int m_depth = 0;
    int m_deepest = 0;
    bool m_awaiting = false;
    Snapshot m_snapshot;
};

struct SoakOptions {
    // The work area of the screen in twips; the program's own if none.
    std::optional<WorkArea> screen;
    // Run on the program after its start, before the checks and the first
    // action: for runs that reach further than the program's own controls
    // do yet. Its script then replays only on a program prepared alike.
    std::function<void(Calculator&)> prepare;
};

struct SoakReport {
    std::uint64_t seed = 0;
    long actions = 0; // performed, the one that broke a rule included
    // Actions after which the results were compared with a fresh
    // recalculation: all but those that leave a typed text waiting.
    long compared = 0;
    int deepestNesting = 0;
    std::optional<Finding> finding;
    // With a finding: the actions so far as a vantorel-cli script.
    std::string script;
};

// A preparation that lets `Advanced[v]` and `Skills[v]` show and hide their
// vessel's settings and skills windows, as they will once those windows are
// built, so that a run reaches the windows' controls.
void OpenWindowsByTheirButtons(Calculator& c);

// Takes up to `actions` actions on a fresh program, from `seed`.
SoakReport RunSoak(std::uint64_t seed, long actions, const SoakOptions& options = {});

} // namespace vantorel
