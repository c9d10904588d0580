#pragma once

// Runs scripts of user actions against a Calculator and prints its state.

#include <iosfwd>
#include <string>

namespace vantorel {

// Runs the script text; writes JSON to `out` and errors to `err`. Returns the
// exit status: 0, or 2 for a script with an error (nothing is printed then).
int RunScript(const std::string& script, std::ostream& out, std::ostream& err);

} // namespace vantorel
