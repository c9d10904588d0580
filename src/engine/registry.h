#pragma once

// Every named control and engine value of a Calculator, by the name a user or
// a test writes for it: `Window.Control[index]` with the index bases of the
// program (`Form1.Forward[1]`, `Form1.FiringArcDPS[0]`, `Omega.WeaponSkill[8]`),
// a window by its own name (`Form1`, `Alpha`, `OmegaSkills`), and engine values
// under `State` with all indices in one bracket (`State.ArcDPS[0,1]`,
// `State.DPWCoefficient[1,2,1]`). The scripting front end and the widget tests
// both walk this one table, so a field missing here is missing everywhere.

#include "engine/records.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
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

// The table of one Calculator. It points into the calculator, which must
// outlive it; the calculator's fields never move, so it never goes stale.
class ControlRegistry {
  public:
    explicit ControlRegistry(Calculator& c);

    // In the order of the records: Form1, Alpha, Omega, AlphaSkills,
    // OmegaSkills, State; within each, the order of the fields.
    const std::vector<ControlRef>& all() const { return m_refs; }
    // Exact name, after blanks inside brackets are dropped; null if none.
    const ControlRef* find(std::string_view name) const;
    // Whether some name is `base[...]`, so a wrong index can be told from a
    // wrong name.
    bool isArray(std::string_view base) const;

  private:
    std::vector<ControlRef> m_refs;
    std::unordered_map<std::string, std::size_t> m_byName;
    std::unordered_set<std::string> m_arrays;
};

// The name of a kind for messages: "list", "check box", "engine value", ...
std::string_view KindName(ValueKind kind);

// Drops blanks inside brackets: "State.ArcDPS[0, 1]" -> "State.ArcDPS[0,1]".
std::string NormalName(std::string_view name);

} // namespace vantorel
