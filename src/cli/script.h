#pragma once

// Runs scripts of user actions against a Calculator and prints its state.
//
// One action a line, ended by LF, CRLF or a lone CR; blank lines and lines
// that start with `#` are skipped:
//   select CONTROL "row text" | #N   click a row of a list
//   check CONTROL 0|1                 set a check box as a click does
//   type CONTROL "text"               replace the text of a text box or of a list with typing
//   click CONTROL                     press a button
//   close WINDOW                      close a window by its frame
//   set CONTROL VALUE                 assign as the program's code does: no click, no checks
//   print [GLOB]                      one JSON object of the matching names
// All but `set` and `print` are a user's actions, refused on a control that is
// hidden or disabled or whose window is hidden or disabled. In a print pattern `*` and `?` are
// wild, and brackets match themselves, since every indexed name has them:
// `print State.ArcDPS[*,2]` prints Omega's rows.

#include "cli/json.h"

#include <cstddef>
#include <iosfwd>
#include <string>

namespace vantorel {

struct Calculator;

// The exit statuses of a script run: it ran and its output was written; the
// output could not be written (a full disk, a closed pipe); the script has
// a fault, or is over a limit, and nothing was written.
inline constexpr int kScriptRan = 0;
inline constexpr int kOutputFailed = 1;
inline constexpr int kBadScript = 2;

// The most a script and one of its lines may hold, in bytes. No script a
// person writes comes near them; they stop a stream without end, such as
// /dev/zero, before it fills the memory.
inline constexpr std::size_t kMaxScriptBytes = 16 * 1024 * 1024;
inline constexpr std::size_t kMaxLineBytes = 64 * 1024;
// The most all `print` lines of a script may write: some 750 prints of the
// whole state.
inline constexpr std::size_t kMaxOutputBytes = 64 * 1024 * 1024;

// Reads a script from `in` a chunk at a time into `text`, and stops as soon
// as a line or the whole is over its limit: what was read then shows the
// fault to RunScript, which refuses it. False if reading failed.
bool ReadScript(std::istream& in, std::string& text);

// Runs the script text on a fresh program whose main window has shown, as
// the program stands once started; writes JSON to `out` in the given layout
// and errors to `err`. Returns the exit status above; with kBadScript nothing
// at all is written to `out`.
int RunScript(const std::string& script, std::ostream& out, std::ostream& err,
              JsonLayout layout = JsonLayout::Indented);

// The same on a given Calculator, which keeps what the script did to it. Its
// windows are as the caller left them: a user can act only on a window on show.
int RunScript(Calculator& calculator, const std::string& script, std::ostream& out, std::ostream& err,
              JsonLayout layout = JsonLayout::Indented);

} // namespace vantorel
