#pragma once

// Names for every control and engine value, as a user or a test writes them:
// `Window.Control[index]` with the index bases of the program
// (`Form1.Forward[1]`, `Form1.FiringArcDPS[0]`, `Omega.WeaponSkill[8]`), a
// window by its own name (`Form1`, `Alpha`, `OmegaSkills`), and engine values
// under `State` with all indices in one bracket (`State.ArcDPS[0,1]`,
// `State.DPWCoefficient[1,2,1]`). The scripting front end, the widget tests
// and the random-action soak all walk one table, so a field missing here is
// missing everywhere.

#include "engine/records.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace vantorel {

// What a name refers to. The alternatives are in the order of `ValueKind`.
using ValueTarget = std::variant<Window*, Control*, Flag*, Text*, List*, Label*, Button*, Picture*, Line*, ScrollBar*,
                                 std::string*, int*, std::int16_t*, float*, double*, bool*>;

enum class ValueKind {
    Window,
    Control, // a bare control, such as the page `Contents`
    Flag,
    Text,
    List,
    Label,
    Button,
    Picture,
    Line,
    ScrollBar,
    String, // a plain text kept with a record, such as `ShipImageId`
    Int,
    Int16,
    Single,
    Double,
    Bool,
};

struct ControlRef {
    std::string name;   // full name, "Form1.Forward[1]"
    std::string window; // "Form1", "Alpha", "Omega", "AlphaSkills", "OmegaSkills" or "State"
    std::string base;   // the name without its index, "Form1.Forward"
    ValueTarget target;
    // The common part of a control, null for strings and engine values.
    Control* control = nullptr;
    // The window the control stands on (itself for a window), null for State.
    Window* form = nullptr;

    ValueKind kind() const { return static_cast<ValueKind>(target.index()); }
};

// The named entries of the windows, in the order they were added. Each
// window module adds its own record's fields (`RegisterFields` in its header);
// the program puts them together (program/registry.h).
using FieldTable = std::vector<ControlRef>;

// Adds the fields of one window (or of State) under one prefix:
// `Form1.Forward[1]`, `State.ArcDPS[0,1]`.
class FieldNames {
  public:
    FieldNames(FieldTable& refs, std::string window, Window* form)
        : m_refs(refs), m_window(std::move(window)), m_form(form) {}

    template <typename T> void one(const char* field, T& value) { push(m_window + "." + field, {}, value); }

    template <typename T, int First, int Last> void array(const char* field, Indexed<T, First, Last>& values) {
        const std::string base = m_window + "." + field;
        for (int i = First; i <= Last; ++i)
            push(base, "[" + std::to_string(i) + "]", values[i]);
    }

    // Per-vessel arrays inside a per-row array: `ArcDPS[row,vessel]`.
    template <typename T, int First, int Last>
    void rowsByVessel(const char* field, Indexed<PerVessel<T>, First, Last>& values) {
        const std::string base = m_window + "." + field;
        for (int row = First; row <= Last; ++row) {
            for (int v = 1; v <= 2; ++v)
                push(base, "[" + std::to_string(row) + "," + std::to_string(v) + "]", values[row][v]);
        }
    }

    // The window itself, by its own name.
    void window(Window& w) {
        ControlRef ref{m_window, m_window, m_window, &w, &w, &w};
        m_refs.push_back(std::move(ref));
    }

    // An entry whose name is written out in full.
    template <typename T> void named(std::string base, std::string index, T& value) { push(base, index, value); }

  private:
    template <typename T> void push(const std::string& base, const std::string& index, T& value) {
        ControlRef ref;
        ref.name = base + index;
        ref.window = m_window;
        ref.base = base;
        ref.target = &value;
        if constexpr (std::is_base_of_v<Control, T>) ref.control = &value;
        ref.form = ref.control ? m_form : nullptr;
        m_refs.push_back(std::move(ref));
    }

    FieldTable& m_refs;
    std::string m_window;
    Window* m_form;
};

// The engine's own values, under `State`.
void RegisterFields(FieldTable& table, CalculatorState& s);

// The name of a kind for messages: "list", "check box", "engine value", ...
std::string_view KindName(ValueKind kind);

// Drops blanks inside brackets: "State.ArcDPS[0, 1]" -> "State.ArcDPS[0,1]".
std::string NormalName(std::string_view name);

} // namespace vantorel
