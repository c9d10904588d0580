#pragma once

// The JSON form of controls and engine values, and the name patterns of
// `print`. Written by hand: the output is small and its form is fixed.

#include "engine/registry.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

// A JSON string literal. Valid UTF-8 passes through; control characters are
// escaped; a byte that is not part of valid UTF-8 is read as Latin-1, so the
// output stays valid JSON whatever a caption holds.
std::string JsonString(std::string_view text);

// A single or double as the shortest decimal that reads back to the same
// value; JSON has no infinity or NaN, so those are written as null.
std::string JsonNumber(float x);
std::string JsonNumber(double x);

// The JSON value of one control or engine value: an object for a control, a
// number (or true/false) for an engine value.
std::string JsonValue(const ControlRef& ref);

// How the objects of a script are laid out: indented, one entry a line, for a
// person at a terminal; or JSON Lines, one compact object a line, which a
// program reads a line at a time as one document each.
enum class JsonLayout { Indented, Lines };

// One JSON object of the given entries, keyed by name, ending in a newline.
std::string JsonObject(const std::vector<const ControlRef*>& refs, JsonLayout layout);

// Shell-style match of a whole name: `*` any run of characters, `?` any one.
// Every other character, `[` and `]` included, matches itself, so a pattern
// can spell a name as it is written: `Form1.Forward[1]`, `State.ArcDPS[*,1]`.
bool GlobMatch(std::string_view pattern, std::string_view name);

// The same pattern made ready for many names. A run of `*` matches as one
// does, so it is kept as one: a match then costs about the square of the
// name's length at worst, however long the pattern, where a megabyte of `*`
// would otherwise be walked again for every name.
class NamePattern {
  public:
    explicit NamePattern(std::string_view pattern);
    bool matches(std::string_view name) const;

  private:
    std::string m_pattern;
};

} // namespace vantorel
