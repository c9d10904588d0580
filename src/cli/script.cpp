#include "cli/script.h"

#include "cli/json.h"
#include "mainwindow/layout.h"
#include "program/program.h"
#include "program/registry.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <exception>
#include <istream>
#include <optional>
#include <ostream>
#include <string_view>
#include <type_traits>
#include <vector>

namespace vantorel {

namespace {

// A bad line: its message, without the line number.
struct ScriptError {
    std::string message;
};

[[noreturn]] void Fail(std::string message) { throw ScriptError{std::move(message)}; }

// "a list", "an engine value".
std::string Article(std::string_view noun) {
    const bool vowel = !noun.empty() && std::string_view("aeiou").find(noun.front()) != std::string_view::npos;
    return (vowel ? "an " : "a ") + std::string(noun);
}

bool IsBlank(char ch) { return ch == ' ' || ch == '\t'; }

// A piece of the script as a message quotes it: its first hundred characters,
// "..." where it is cut, and control characters as JSON writes them, so a
// line of 64 KiB or of zero bytes still makes a message that can be read.
std::string Shown(std::string_view text) {
    constexpr std::size_t kShownCharacters = 100;
    std::string out;
    std::size_t characters = 0;
    for (const char ch : text) {
        const auto byte = static_cast<unsigned char>(ch);
        // A byte 10xxxxxx goes on with the character before it.
        if ((byte & 0xC0u) != 0x80u && characters++ == kShownCharacters) return out + "...";
        if ((byte < 0x20 && ch != '\t') || byte == 0x7F) {
            const std::string escaped = JsonString(std::string_view(&ch, 1));
            out.append(escaped, 1, escaped.size() - 2);
        } else {
            out.push_back(ch);
        }
    }
    return out;
}

enum class Reading { Number, Malformed, OutOfRange };

// A number as a script writes it: an optional minus and digits, and for a
// single or double a decimal point and an exponent too. A number that is
// well written but does not fit the type is out of range, not malformed;
// a denormal the type can hold is read as the value it is. Infinity and NaN
// are no numbers here: JSON cannot print them back.
template <typename T> Reading ReadNumber(std::string_view text, T& value) {
    const std::size_t sign = text.rfind('-', 0) == 0 ? 1 : 0;
    const bool digitFirst = text.size() > sign && text[sign] >= '0' && text[sign] <= '9';
    if (!digitFirst && !(std::is_floating_point_v<T> && text.size() > sign && text[sign] == '.'))
        return Reading::Malformed;
    const char* end = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), end, value);
    if (ptr != end || ec == std::errc::invalid_argument) return Reading::Malformed;
    return ec == std::errc::result_out_of_range ? Reading::OutOfRange : Reading::Number;
}

// "a 16-bit whole number", for messages.
template <typename T> const char* NumberName() {
    if constexpr (std::is_same_v<T, std::int16_t>) return "a 16-bit whole number";
    if constexpr (std::is_same_v<T, int>) return "a 32-bit whole number";
    if constexpr (std::is_same_v<T, float>) return "a single";
    return "a double";
}

// A value as written: "quoted text", #row, or a bare word such as 0, 1 or 2.5.
struct Value {
    enum class Form { Quoted, Row, Bare } form = Form::Bare;
    std::string text;       // unescaped text, or the word; for a row, the digits
    std::optional<int> row; // none for a number beyond any list

    std::string written() const {
        switch (form) {
        case Form::Quoted:
            return JsonString(text);
        case Form::Row:
            return "#" + text;
        case Form::Bare:
            return text;
        }
        return text;
    }
};

class LineReader {
  public:
    explicit LineReader(std::string_view line) : m_rest(line) {}

    bool atEnd() {
        skipBlanks();
        return m_rest.empty();
    }

    std::string word() {
        skipBlanks();
        std::size_t n = 0;
        while (n < m_rest.size() && !IsBlank(m_rest[n]))
            ++n;
        std::string w(m_rest.substr(0, n));
        m_rest.remove_prefix(n);
        return w;
    }

    // A name may hold blanks inside its brackets: `State.ArcDPS[0, 1]`.
    std::string name() {
        skipBlanks();
        std::size_t n = 0;
        int depth = 0;
        while (n < m_rest.size() && (depth > 0 || !IsBlank(m_rest[n]))) {
            if (m_rest[n] == '[') ++depth;
            if (m_rest[n] == ']' && depth > 0) --depth;
            ++n;
        }
        std::string w(m_rest.substr(0, n));
        m_rest.remove_prefix(n);
        return w;
    }

    bool startsQuoted() { return !atEnd() && m_rest.front() == '"'; }

    std::optional<Value> value() {
        skipBlanks();
        if (m_rest.empty()) return std::nullopt;
        Value v;
        if (m_rest.front() == '"') {
            v.form = Value::Form::Quoted;
            v.text = quoted();
        } else if (m_rest.front() == '#') {
            v.form = Value::Form::Row;
            m_rest.remove_prefix(1);
            v.text = word();
            int row = 0;
            const Reading reading = ReadNumber(v.text, row);
            if (reading == Reading::Malformed)
                Fail("malformed row number #" + Shown(v.text) + ", expected #0, #1, ...");
            if (reading == Reading::Number) v.row = row;
        } else {
            v.text = word();
        }
        return v;
    }

    // What is left after the value, if anything: always an error.
    void expectEnd(const std::string& what) {
        if (!atEnd()) Fail(what + ": unexpected text after the value: " + Shown(m_rest));
    }

  private:
    void skipBlanks() {
        while (!m_rest.empty() && IsBlank(m_rest.front()))
            m_rest.remove_prefix(1);
    }

    std::string quoted() {
        m_rest.remove_prefix(1);
        std::string out;
        while (!m_rest.empty()) {
            const char ch = m_rest.front();
            m_rest.remove_prefix(1);
            if (ch == '"') return out;
            if (ch == '\\') {
                if (m_rest.empty() || (m_rest.front() != '"' && m_rest.front() != '\\'))
                    Fail("malformed text: only \\\" and \\\\ may follow a backslash");
                out.push_back(m_rest.front());
                m_rest.remove_prefix(1);
            } else {
                out.push_back(ch);
            }
        }
        Fail("malformed text: the closing \" is missing");
    }

    std::string_view m_rest;
};

class Runner {
  public:
    Runner(Calculator& c, JsonLayout layout) : m_registry(c), m_layout(layout) {}

    void run(std::string_view line) {
        LineReader in(line);
        const std::string verb = in.word();
        if (verb == "print") return print(in);
        if (verb != "select" && verb != "check" && verb != "type" && verb != "click" && verb != "set" &&
            verb != "close")
            Fail("unknown verb \"" + Shown(verb) +
                 "\"; the verbs are select, check, type, click, close, set and print");

        const std::string name = in.name();
        if (name.empty()) Fail(verb + ": the name of a control is missing");
        closed(name);
        const ControlRef& ref = lookup(name);
        const std::string what = verb + " " + ref.name;
        std::optional<Value> value = in.value();
        in.expectEnd(what);

        if (verb == "select") return select(ref, what, value);
        if (verb == "check") return check(ref, what, value);
        if (verb == "type") return type(ref, what, value);
        if (verb == "click") return click(ref, what, value);
        if (verb == "close") return close(ref, what, value);
        return set(ref, what, value);
    }

    bool printed() const { return m_printed; }
    const std::string& output() const { return m_output; }

    void printAll() {
        std::vector<const ControlRef*> refs;
        for (const ControlRef& ref : m_registry.all())
            refs.push_back(&ref);
        m_output += JsonObject(refs, m_layout);
    }

  private:
    // An open bracket would swallow the rest of the line into the name.
    static void closed(const std::string& name) {
        if (std::count(name.begin(), name.end(), '[') != std::count(name.begin(), name.end(), ']'))
            Fail("malformed name " + Shown(name) + ": a bracket is not closed");
    }

    const ControlRef& lookup(const std::string& written) {
        if (const ControlRef* ref = m_registry.find(written)) return *ref;
        const std::string name = NormalName(written);
        const std::size_t bracket = name.find('[');
        const std::string base = name.substr(0, bracket);
        if (m_registry.isArray(base)) {
            if (bracket == std::string::npos) Fail(base + " is a control array: give an index, as in " + range(base));
            Fail(Shown(name) + ": index out of range; " + range(base));
        }
        if (bracket != std::string::npos && m_registry.find(base)) Fail(Shown(name) + ": " + base + " is not an array");
        Fail("unknown control " + Shown(written));
    }

    // "Form1.Forward[1] to Form1.Forward[4]": the first and last names.
    std::string range(const std::string& base) const {
        const ControlRef* first = nullptr;
        const ControlRef* last = nullptr;
        for (const ControlRef& ref : m_registry.all()) {
            if (ref.base != base || ref.name == base) continue;
            if (!first) first = &ref;
            last = &ref;
        }
        return first ? first->name + " to " + last->name : base;
    }

    // A user can only reach a control that is on show and enabled, on a
    // window that is on show and enabled (a warning holds the windows it
    // disables).
    static void usable(const ControlRef& ref, const std::string& what) {
        if (!ref.control) Fail(what + ": refused, an engine value is not a control; use set");
        const std::string kind(KindName(ref.kind()));
        if (!ref.control->visible()) Fail(what + ": refused, the " + kind + " is hidden");
        if (!ref.control->enabled()) Fail(what + ": refused, the " + kind + " is disabled");
        if (ref.form && ref.form != ref.control && !ref.form->visible())
            Fail(what + ": refused, window " + ref.window + " is hidden");
        if (ref.form && ref.form != ref.control && !ref.form->enabled())
            Fail(what + ": refused, window " + ref.window + " is disabled");
    }

    static void wrongKind(const ControlRef& ref, const std::string& what, const char* wanted) {
        std::string hint;
        switch (ref.kind()) {
        case ValueKind::List:
            hint = "; use select";
            break;
        case ValueKind::Flag:
            hint = "; use check";
            break;
        case ValueKind::Button:
            hint = "; use click";
            break;
        case ValueKind::Text:
            hint = "; use type";
            break;
        default:
            break;
        }
        Fail(what + ": not " + wanted + " but " + Article(KindName(ref.kind())) + hint);
    }

    static int flagValue(const std::string& what, const std::optional<Value>& value) {
        if (!value) Fail(what + ": the value 0 or 1 is missing");
        if (value->form != Value::Form::Bare || (value->text != "0" && value->text != "1"))
            Fail(what + ": malformed value " + Shown(value->written()) + ", expected 0 or 1");
        return value->text == "1" ? 1 : 0;
    }

    static int rowOf(const List& list, const std::string& what, const Value& value) {
        if (value.form == Value::Form::Row) {
            if (!value.row || *value.row < 0 || *value.row >= list.count()) {
                if (list.count() == 0) Fail(what + ": no row #" + Shown(value.text) + ", the list is empty");
                Fail(what + ": no row #" + Shown(value.text) + ", the list has rows #0 to #" +
                     std::to_string(list.count() - 1));
            }
            return *value.row;
        }
        for (int i = 0; i < list.count(); ++i) {
            if (list.row(i) == value.text) return i;
        }
        Fail(what + ": no row " + Shown(value.written()));
    }

    static void select(const ControlRef& ref, const std::string& what, const std::optional<Value>& value) {
        if (ref.kind() != ValueKind::List) wrongKind(ref, what, "a list");
        if (!value || value->form == Value::Form::Bare)
            Fail(what + ": expected a row as \"row text\" or #N" + (value ? ", got " + Shown(value->written()) : ""));
        List& list = *std::get<List*>(ref.target);
        usable(ref, what);
        list.click(rowOf(list, what, *value));
    }

    static void check(const ControlRef& ref, const std::string& what, const std::optional<Value>& value) {
        if (ref.kind() != ValueKind::Flag) wrongKind(ref, what, "a check box");
        const int wanted = flagValue(what, value);
        usable(ref, what);
        // A click toggles, so a box that already holds the value is left alone.
        Flag& flag = *std::get<Flag*>(ref.target);
        if (flag.value() != wanted) flag.click();
    }

    static void type(const ControlRef& ref, const std::string& what, const std::optional<Value>& value) {
        const bool typingList = ref.kind() == ValueKind::List && std::get<List*>(ref.target)->typing();
        if (ref.kind() != ValueKind::Text && !typingList) {
            if (ref.kind() == ValueKind::List) Fail(what + ": refused, the list takes no typing; select a row");
            wrongKind(ref, what, "a text box or a list with typing");
        }
        if (!value || value->form != Value::Form::Quoted)
            Fail(what + ": expected \"text\"" + (value ? ", got " + Shown(value->written()) : ""));
        usable(ref, what);
        if (typingList) {
            std::get<List*>(ref.target)->setText(value->text);
        } else {
            std::get<Text*>(ref.target)->setText(value->text);
        }
    }

    static void click(const ControlRef& ref, const std::string& what, const std::optional<Value>& value) {
        if (ref.kind() != ValueKind::Button) wrongKind(ref, what, "a button");
        if (value) Fail(what + ": a button takes no value, got " + Shown(value->written()));
        usable(ref, what);
        std::get<Button*>(ref.target)->press();
    }

    static void close(const ControlRef& ref, const std::string& what, const std::optional<Value>& value) {
        if (ref.kind() != ValueKind::Window) wrongKind(ref, what, "a window");
        if (value) Fail(what + ": a window's frame takes no value, got " + Shown(value->written()));
        usable(ref, what);
        std::get<Window*>(ref.target)->requestClose();
    }

    template <typename T> static T number(const std::string& what, const Value& value) {
        T n{};
        const Reading reading = value.form == Value::Form::Bare ? ReadNumber(value.text, n) : Reading::Malformed;
        if (reading == Reading::Malformed) {
            Fail(what + ": malformed value " + Shown(value.written()) + ", expected " +
                 (std::is_integral_v<T> ? "a whole number" : "a number"));
        }
        if (reading == Reading::OutOfRange)
            Fail(what + ": " + Shown(value.text) + " is out of range of " + NumberName<T>());
        return n;
    }

    // A scroll bar runs from 0 to its maximum, and one with a negative maximum
    // has nowhere to go; its handler moves the page by minus the value, so a
    // value outside the bar is refused as a row that does not exist is.
    static int scrollValue(const ScrollBar& bar, const std::string& what, const Value& value) {
        int n = 0;
        const Reading reading = value.form == Value::Form::Bare ? ReadNumber(value.text, n) : Reading::Malformed;
        if (reading == Reading::Malformed)
            Fail(what + ": malformed value " + Shown(value.written()) + ", expected a whole number");
        const int top = std::max(bar.maximum(), 0);
        if (reading == Reading::OutOfRange || n < 0 || n > top)
            Fail(what + ": " + Shown(value.text) + " is out of range of the scroll bar, 0 to " + std::to_string(top));
        return n;
    }

    static std::string quotedText(const std::string& what, const Value& value) {
        if (value.form != Value::Form::Quoted) Fail(what + ": expected \"text\", got " + Shown(value.written()));
        return value.text;
    }

    static void set(const ControlRef& ref, const std::string& what, const std::optional<Value>& value) {
        if (!value) Fail(what + ": the value is missing");
        const Value& v = *value;
        switch (ref.kind()) {
        case ValueKind::Flag:
            std::get<Flag*>(ref.target)->setValue(flagValue(what, value));
            return;
        case ValueKind::Text:
            std::get<Text*>(ref.target)->setText(quotedText(what, v));
            return;
        case ValueKind::Label:
            std::get<Label*>(ref.target)->setCaption(quotedText(what, v));
            return;
        case ValueKind::Button:
            std::get<Button*>(ref.target)->setCaption(quotedText(what, v));
            return;
        case ValueKind::Picture:
            std::get<Picture*>(ref.target)->setImage(quotedText(what, v));
            return;
        case ValueKind::String:
            *std::get<std::string*>(ref.target) = quotedText(what, v);
            return;
        case ValueKind::ScrollBar: {
            ScrollBar& bar = *std::get<ScrollBar*>(ref.target);
            bar.setValue(scrollValue(bar, what, v));
            return;
        }
        case ValueKind::List: {
            List& list = *std::get<List*>(ref.target);
            if (v.form == Value::Form::Row) {
                // -1 is a real assignment: it clears the selection.
                if (v.row != -1) rowOf(list, what, v);
                list.setIndex(*v.row);
            } else if (v.form == Value::Form::Quoted) {
                // Only a list with typing can hold a text that is not a row.
                if (!list.typing()) rowOf(list, what, v);
                list.setText(v.text);
            } else {
                Fail(what + ": expected #N or \"text\", got " + Shown(v.written()));
            }
            return;
        }
        case ValueKind::Int:
            *std::get<int*>(ref.target) = number<int>(what, v);
            return;
        case ValueKind::Int16:
            *std::get<std::int16_t*>(ref.target) = number<std::int16_t>(what, v);
            return;
        case ValueKind::Single:
            *std::get<float*>(ref.target) = number<float>(what, v);
            return;
        case ValueKind::Double:
            *std::get<double*>(ref.target) = number<double>(what, v);
            return;
        case ValueKind::Bool:
            *std::get<bool*>(ref.target) = flagValue(what, value) == 1;
            return;
        case ValueKind::Window:
        case ValueKind::Control:
        case ValueKind::Line:
            Fail(what + ": " + Article(KindName(ref.kind())) + " has no value to set");
        }
    }

    void print(LineReader& in) {
        std::string pattern = "*";
        if (in.startsQuoted()) {
            pattern = in.value()->text;
        } else if (!in.atEnd()) {
            pattern = NormalName(in.name());
            closed(pattern);
        }
        in.expectEnd("print " + Shown(pattern));
        const NamePattern glob(pattern);
        std::vector<const ControlRef*> refs;
        for (const ControlRef& ref : m_registry.all()) {
            if (glob.matches(ref.name)) refs.push_back(&ref);
        }
        if (refs.empty()) Fail("print " + Shown(pattern) + ": no control or engine value matches");
        // The output waits for the end of the script, so that a bad line
        // prints nothing; a script of 16 MiB of `print` would need far more.
        const std::string object = JsonObject(refs, m_layout);
        if (m_output.size() + object.size() > kMaxOutputBytes)
            Fail("print " + Shown(pattern) + ": the output is over " + std::to_string(kMaxOutputBytes / (1024 * 1024)) +
                 " MiB, more than a script may print");
        m_output += object;
        m_printed = true;
    }

    ControlRegistry m_registry;
    JsonLayout m_layout;
    std::string m_output;
    bool m_printed = false;
};

} // namespace

bool ReadScript(std::istream& in, std::string& text) {
    text.clear();
    std::size_t lineBytes = 0;
    char chunk[4096];
    while (in.read(chunk, sizeof chunk) || in.gcount() > 0) {
        const std::string_view got(chunk, static_cast<std::size_t>(in.gcount()));
        for (std::size_t i = 0; i < got.size(); ++i) {
            lineBytes = got[i] == '\r' || got[i] == '\n' ? 0 : lineBytes + 1;
            if (lineBytes > kMaxLineBytes || text.size() + i + 1 > kMaxScriptBytes) {
                text.append(got.substr(0, i + 1));
                return true;
            }
        }
        text.append(got);
    }
    return !in.bad();
}

int RunScript(const std::string& script, std::ostream& out, std::ostream& err, JsonLayout layout) {
    // A script runs on the program as it stands once its main window shows.
    Program calculator;
    ShowMainWindowAtStart(calculator);
    return RunScript(calculator, script, out, err, layout);
}

int RunScript(Calculator& calculator, const std::string& script, std::ostream& out, std::ostream& err,
              JsonLayout layout) {
    if (script.size() > kMaxScriptBytes) {
        err << "the script is over " << kMaxScriptBytes / (1024 * 1024) << " MiB, more than a script may hold\n";
        return kBadScript;
    }
    Runner runner(calculator, layout);
    // Editors on Windows like to open a file with a byte order mark.
    std::size_t start = script.rfind("\xEF\xBB\xBF", 0) == 0 ? 3 : 0;
    int number = 0;
    while (start < script.size()) {
        // A line ends in LF, CRLF or a lone CR, as editors on every system write them.
        std::size_t end = script.find_first_of("\r\n", start);
        if (end == std::string::npos) end = script.size();
        std::string_view line(script.data() + start, end - start);
        start = end + (script.compare(end, 2, "\r\n") == 0 ? 2 : 1);
        ++number;
        if (line.size() > kMaxLineBytes) {
            err << "line " << number << ": the line is over " << kMaxLineBytes / 1024
                << " KiB, more than a line may hold: " << Shown(line) << '\n';
            return kBadScript;
        }

        while (!line.empty() && IsBlank(line.front()))
            line.remove_prefix(1);
        if (line.empty() || line.front() == '#') continue;
        try {
            runner.run(line);
        } catch (const ScriptError& e) {
            err << "line " << number << ": " << e.message << '\n';
            return kBadScript;
        } catch (const std::exception& e) {
            // A fault of the program, not of the script; still, no partial output.
            err << "line " << number << ": the program failed: " << e.what() << '\n';
            return kBadScript;
        }
    }
    if (!runner.printed()) runner.printAll();
    // A full disk or a closed pipe must not pass for a script that ran.
    errno = 0;
    out << runner.output() << std::flush;
    if (!out) {
        err << "cannot write the output" << (errno ? std::string(": ") + std::strerror(errno) : "") << '\n';
        return kOutputFailed;
    }
    return kScriptRan;
}

} // namespace vantorel
