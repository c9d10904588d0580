#pragma once

// Every named control and engine value of the program, in one table: the
// windows' fields as each window module names them, then the engine's values.
// The scripting front end, the widget tests and the random-action soak walk
// this table, so a window joins them all by registering its fields.

#include "engine/registry.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace vantorel {

class ControlRegistry {
  public:
    // The table of one Calculator. It points into the calculator, which must
    // outlive it; the calculator's fields never move, so it never goes stale.
    explicit ControlRegistry(Calculator& c);

    // In the order of the records: Form1, Alpha, Omega, AlphaSkills,
    // OmegaSkills, Graph, Documentation, About, Note, SplashScreen, State;
    // within each, the order of the fields.
    const FieldTable& all() const { return m_refs; }
    // Exact name, after blanks inside brackets are dropped; null if none.
    const ControlRef* find(std::string_view name) const;
    // Whether some name is `base[...]`, so a wrong index can be told from a
    // wrong name.
    bool isArray(std::string_view base) const;

  private:
    FieldTable m_refs;
    std::unordered_map<std::string, std::size_t> m_byName;
    std::unordered_set<std::string> m_arrays;
};

} // namespace vantorel
