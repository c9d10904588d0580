#pragma once

// The random-action soak: a fresh program, as its main window first shows,
// takes one action after another that a user could take at that moment on
// any window on show, picked by a seeded generator, and after each action the
// rules that must always hold are checked. The first rule broken ends the run
// with the actions so far as a vantorel-cli script, so that it can be
// replayed.

#include "mainwindow/layout.h"
#include "program/actions.h"
#include "settings/validate.h"

#include <cstdint>
#include <functional>
#include <map>
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
    NumberBox,     // a settings window's number box holds a text that it accepts
    Shade,         // a settings box is white while in use and grey while not
    OmegaReadOnly, // a mirrored Omega's window has only its own few controls open
    OmegaSettings, // a mirrored Omega holds Alpha's settings and combat factors
    OmegaSkills,   // a mirrored Omega has Alpha's skill levels, its window closed
    NoteHolds,     // the note holds the main and settings windows exactly while open
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
    // A change that raised no event, made other than by perform() (by the
    // widgets of a window, say): the results wait for the next
    // recalculation, as after a typed text.
    void awaitRecalculation();

    // Text typed into a list with typing raises no event, nor does a click
    // on a control without a handler, so what the windows show waits for the
    // next recalculation to take it in. Until then the results are not
    // compared with a fresh recalculation.
    bool awaitingRecalculation() const;
    int deepestNesting() const { return m_deepest; }

  private:
    // A number box of a settings window and the limits it keeps.
    struct Box {
        const ControlRef* ref;
        NumberBox kind;
        Vessel vessel;
    };
    // A control of Omega's settings window and Alpha's control of that name.
    struct Pair {
        const ControlRef* omega;
        const ControlRef* alpha;
        std::optional<NumberBox> kind;
    };

    std::optional<Finding> listIndexes() const;
    std::optional<Finding> dpsCaptions() const;
    std::optional<Finding> comparing() const;
    std::optional<Finding> numberBoxes() const;
    std::optional<Finding> shades() const;
    std::optional<Finding> omegaReadOnly() const;
    std::optional<Finding> omegaSettings();
    std::optional<Finding> copied(const Pair& pair) const;
    std::optional<Finding> omegaSkills() const;
    std::optional<Finding> noteHolds() const;
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
    std::vector<Box> m_boxes;
    // The boxes and lists of the settings windows whose colour tells whether
    // they are in use; the console slots take theirs from their equip box.
    std::vector<const ControlRef*> m_shaded;
    // Omega's controls that a user works, but for the few that stay open
    // while it mirrors Alpha.
    std::vector<const ControlRef*> m_omegaInputs;
    std::vector<Pair> m_omegaCopies;
    std::vector<const ControlRef*> m_omegaSkillsInputs;
    // Whether a mirrored Omega's values can be held to Alpha's; see
    // omegaSettings().
    bool m_omegaComparable = true;
    std::vector<std::pair<Control*, std::function<void()>>> m_handlers;
    int m_depth = 0;
    int m_deepest = 0;
    Snapshot m_snapshot;
};

struct SoakOptions {
    // The work area of the screen in twips; the program's own if none.
    std::optional<WorkArea> screen;
};

struct SoakReport {
    std::uint64_t seed = 0;
    long actions = 0; // performed, the one that broke a rule included
    // Actions after which the results were compared with a fresh
    // recalculation: all but those that leave a typed text waiting.
    long compared = 0;
    int deepestNesting = 0;
    // The actions performed on each window's controls, by the window's name.
    std::map<std::string, long> actionsByWindow;
    std::optional<Finding> finding;
    // With a finding: the actions so far as a vantorel-cli script.
    std::string script;
};

// Takes up to `actions` actions on a fresh program, from `seed`.
SoakReport RunSoak(std::uint64_t seed, long actions, const SoakOptions& options = {});

} // namespace vantorel
