#pragma once

// What a user can do with the program at this moment, read off the table of
// named controls: click a row of a list, click a check box, type into a text
// box or a list with typing, press a button, move a scroll bar, close a window
// by its frame. A control is within reach while it is on show and enabled and
// its window is on show and enabled.
// Every action is also one line of a vantorel-cli script, so that a run of
// actions can be replayed. Nothing here names a window: a window joins by
// registering its fields.

#include "program/registry.h"

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

// By the script verb that performs them: select, check, type, click, set,
// close.
enum class ActionKind { SelectRow, CheckBox, Type, Press, Scroll, Close };

struct Action {
    ActionKind kind = ActionKind::Press;
    const ControlRef* control = nullptr;
    // The row clicked, the value the check box takes, the index of the typed
    // text in TypedTexts(), or the scroll bar's new value.
    int value = 0;
};

// What users type, in the order actions number them: texts that are no
// number or no number the program can hold, a long text, text that is not
// plain ASCII or not valid UTF-8 at all, then ordinary values.
std::span<const std::string_view> TypedTexts();

// Whether a user can reach the control now.
bool IsUsable(const ControlRef& ref);

// The entries a user can act on at all: lists, check boxes, text boxes,
// buttons, scroll bars and the windows whose handler answers a close by their
// frame, in the order of the table. A window without one is the main window,
// whose closing ends the program.
std::vector<const ControlRef*> ActionableControls(const ControlRegistry& registry);

// How many actions the control offers now, 0 while it is out of reach, and
// the k-th of them (0 <= k < ActionCount). A list with typing offers its rows
// first, then the typed texts; a scroll bar each value of its range.
int ActionCount(const ControlRef& ref);
Action NthAction(const ControlRef& ref, int k);

// Every action that the controls offer now.
std::vector<Action> UsableActions(std::span<const ControlRef* const> controls);

// One action at random among those the controls offer now: each window with
// a control in reach is as likely as any other, so that a window of three
// buttons gets its share beside the main window; within it each control in
// reach is as likely as any other, a list with typing is clicked or typed into
// with even chances, and then each of the actions of that kind is as likely as
// any other. False if nothing is in reach. `reachable` is scratch space, kept
// by the caller so that a long run does not allocate.
bool PickAction(std::span<const ControlRef* const> controls, std::mt19937_64& random,
                std::vector<const ControlRef*>& reachable, Action& picked);

// Does what the user does. The action must have been offered by the control
// as it stands.
void Perform(const Action& action);

// The action as a script line, without the line's end: `select NAME #3`,
// `check NAME 1`, `type NAME "text"`, `click NAME`, `set NAME 240`,
// `close WINDOW`.
std::string ScriptLine(const Action& action);

} // namespace vantorel
