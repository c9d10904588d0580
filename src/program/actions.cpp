#include "program/actions.h"

#include <array>

namespace vantorel {

namespace {

// 300 characters: digits, so that it is also a number far beyond any range.
constexpr std::array<char, 300> kLongText = [] {
    std::array<char, 300> text{};
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char>('0' + (i + 1) % 10);
    return text;
}();

constexpr std::string_view kTypedTexts[] = {
    "",
    "-",
    "--1",
    "1e309",
    "nan",
    "9999999999",
    "7.5",
    " 3 ",
    std::string_view(kLongText.data(), kLongText.size()),
    "Plasmawerfer \xE2\x80\x93 \xC3\x98 7\xC2\xBD km \xE6\x88\xA6",
    "\xED\xA0\x80", // half of a surrogate pair on its own: not valid UTF-8
    "0",
    "1",
    "5",
    "9",
    "47",
    "15",
    "-3",
    "99",
    "100",
    "11.88",
    "60",
};

constexpr int kTypedCount = static_cast<int>(std::size(kTypedTexts));

bool TypingList(const ControlRef& ref) {
    return ref.kind() == ValueKind::List && std::get<List*>(ref.target)->typing();
}

// Quoted as a script reads it: only `"` and `\` are escaped.
std::string Quoted(std::string_view text) {
    std::string out = "\"";
    for (const char ch : text) {
        if (ch == '"' || ch == '\\') out += '\\';
        out += ch;
    }
    out += '"';
    return out;
}

} // namespace

std::span<const std::string_view> TypedTexts() { return kTypedTexts; }

bool IsUsable(const ControlRef& ref) {
    if (!ref.control || !ref.control->visible() || !ref.control->enabled()) return false;
    // A window must be on show, and not held by a warning that disables it.
    return !ref.form || ref.form == ref.control || (ref.form->visible() && ref.form->enabled());
}

std::vector<const ControlRef*> ActionableControls(const ControlRegistry& registry) {
    std::vector<const ControlRef*> controls;
    for (const ControlRef& ref : registry.all()) {
        switch (ref.kind()) {
        case ValueKind::List:
        case ValueKind::Flag:
        case ValueKind::Text:
        case ValueKind::Button:
        case ValueKind::ScrollBar:
            controls.push_back(&ref);
            break;
        case ValueKind::Window:
            if (ref.control->hasHandler()) controls.push_back(&ref);
            break;
        default:
            break;
        }
    }
    return controls;
}

int ActionCount(const ControlRef& ref) {
    if (!IsUsable(ref)) return 0;
    switch (ref.kind()) {
    case ValueKind::List: {
        const List& list = *std::get<List*>(ref.target);
        return list.count() + (list.typing() ? kTypedCount : 0);
    }
    case ValueKind::Text:
        return kTypedCount;
    case ValueKind::Flag:
    case ValueKind::Button:
        return 1;
    case ValueKind::Window:
        return ref.control->hasHandler() ? 1 : 0;
    case ValueKind::ScrollBar: {
        const int maximum = std::get<ScrollBar*>(ref.target)->maximum();
        return (maximum > 0 ? maximum : 0) + 1;
    }
    default:
        return 0;
    }
}

Action NthAction(const ControlRef& ref, int k) {
    Action a;
    a.control = &ref;
    a.value = k;
    switch (ref.kind()) {
    case ValueKind::List: {
        const int rows = std::get<List*>(ref.target)->count();
        if (k < rows) {
            a.kind = ActionKind::SelectRow;
        } else {
            a.kind = ActionKind::Type;
            a.value = k - rows;
        }
        break;
    }
    case ValueKind::Text:
        a.kind = ActionKind::Type;
        break;
    case ValueKind::Flag:
        a.kind = ActionKind::CheckBox;
        a.value = std::get<Flag*>(ref.target)->value() ? 0 : 1;
        break;
    case ValueKind::ScrollBar:
        a.kind = ActionKind::Scroll;
        break;
    case ValueKind::Window:
        a.kind = ActionKind::Close;
        a.value = 0;
        break;
    default:
        a.kind = ActionKind::Press;
        a.value = 0;
        break;
    }
    return a;
}

std::vector<Action> UsableActions(std::span<const ControlRef* const> controls) {
    std::vector<Action> actions;
    for (const ControlRef* ref : controls) {
        const int n = ActionCount(*ref);
        for (int k = 0; k < n; ++k)
            actions.push_back(NthAction(*ref, k));
    }
    return actions;
}

bool PickAction(std::span<const ControlRef* const> controls, std::mt19937_64& random,
                std::vector<const ControlRef*>& reachable, Action& picked) {
    // The table lists each window's controls together, so the controls in
    // reach come in one run per window.
    reachable.clear();
    int windows = 0;
    for (const ControlRef* ref : controls) {
        if (ActionCount(*ref) == 0) continue;
        if (reachable.empty() || reachable.back()->form != ref->form) ++windows;
        reachable.push_back(ref);
    }
    if (reachable.empty()) return false;
    const auto below = [&random](int n) {
        return static_cast<int>(std::uniform_int_distribution<int>(0, n - 1)(random));
    };
    std::size_t first = 0;
    for (int window = below(windows); window > 0; --window) {
        const Window* form = reachable[first]->form;
        while (reachable[first]->form == form)
            ++first;
    }
    std::size_t end = first;
    while (end < reachable.size() && reachable[end]->form == reachable[first]->form)
        ++end;
    const ControlRef& ref = *reachable[first + static_cast<std::size_t>(below(static_cast<int>(end - first)))];
    const int n = ActionCount(ref);
    if (TypingList(ref)) {
        const int rows = std::get<List*>(ref.target)->count();
        const bool type = rows == 0 || below(2) == 1;
        picked = NthAction(ref, type ? rows + below(kTypedCount) : below(rows));
    } else {
        picked = NthAction(ref, below(n));
    }
    return true;
}

void Perform(const Action& action) {
    const ControlRef& ref = *action.control;
    switch (action.kind) {
    case ActionKind::SelectRow:
        std::get<List*>(ref.target)->click(action.value);
        return;
    case ActionKind::CheckBox: {
        Flag& box = *std::get<Flag*>(ref.target);
        if (box.value() != action.value) box.click();
        return;
    }
    case ActionKind::Type: {
        const std::string text(kTypedTexts[action.value]);
        if (ref.kind() == ValueKind::List)
            std::get<List*>(ref.target)->setText(text);
        else
            std::get<Text*>(ref.target)->setText(text);
        return;
    }
    case ActionKind::Press:
        std::get<Button*>(ref.target)->press();
        return;
    case ActionKind::Scroll:
        std::get<ScrollBar*>(ref.target)->setValue(action.value);
        return;
    case ActionKind::Close:
        std::get<Window*>(ref.target)->requestClose();
        return;
    }
}

std::string ScriptLine(const Action& action) {
    const std::string& name = action.control->name;
    switch (action.kind) {
    case ActionKind::SelectRow:
        return "select " + name + " #" + std::to_string(action.value);
    case ActionKind::CheckBox:
        return "check " + name + " " + std::to_string(action.value);
    case ActionKind::Type:
        return "type " + name + " " + Quoted(kTypedTexts[action.value]);
    case ActionKind::Press:
        return "click " + name;
    case ActionKind::Scroll:
        return "set " + name + " " + std::to_string(action.value);
    case ActionKind::Close:
        return "close " + name;
    }
    return {};
}

} // namespace vantorel
