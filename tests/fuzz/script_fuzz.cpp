// Fuzzes vantorel-cli's scripts: each input is a whole script, read as the
// command line reads a file and run on a fresh program, as the command line
// runs it. The script either runs, and prints one well-formed JSON object for
// each of its `print` lines (or the whole state when it has none), or it is
// refused with one message naming an action line, and prints nothing. Run
// again, in the other layout, it gives the same objects and the same message.
//
// A finding aborts with the rule it broke, so that libFuzzer keeps the input
// as a crash; the output itself is thrown away.

#include "cli/script.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {
namespace {

[[noreturn]] void Fault(const char* rule, std::string_view detail = {}) {
    std::fprintf(stderr, "script_fuzz: %s\n%.*s\n", rule, static_cast<int>(detail.size()), detail.data());
    std::abort();
}

// A strict reader of JSON text: it accepts only what the grammar allows,
// strings of valid UTF-8 with every control character escaped, and writes
// each value again without the blanks between tokens, so that two layouts of
// the same objects compare equal.
class JsonCheck {
  public:
    explicit JsonCheck(std::string_view text) : m_text(text) {}

    // The values of the text, one after another; false if any is malformed.
    bool values(std::vector<std::string>& out) {
        blanks();
        while (m_at < m_text.size()) {
            m_canonical.clear();
            m_keys.clear();
            if (!object(0)) return false;
            out.push_back(m_canonical);
            blanks();
        }
        return true;
    }

    bool hasNull() const { return m_null; }

  private:
    static constexpr int kDeepest = 32;

    void blanks() {
        while (m_at < m_text.size() &&
               (m_text[m_at] == ' ' || m_text[m_at] == '\n' || m_text[m_at] == '\t' || m_text[m_at] == '\r'))
            ++m_at;
    }

    bool take(char ch) {
        blanks();
        if (m_at >= m_text.size() || m_text[m_at] != ch) return false;
        m_canonical.push_back(ch);
        ++m_at;
        return true;
    }

    bool literal(std::string_view word) {
        if (m_text.substr(m_at, word.size()) != word) return false;
        m_canonical += word;
        m_at += word.size();
        return true;
    }

    bool value(int depth) {
        blanks();
        if (m_at >= m_text.size() || depth > kDeepest) return false;
        switch (m_text[m_at]) {
        case '{':
            return object(depth);
        case '[':
            return array(depth);
        case '"':
            return string(nullptr);
        case 't':
            return literal("true");
        case 'f':
            return literal("false");
        case 'n':
            m_null = true;
            return literal("null");
        default:
            return number();
        }
    }

    bool object(int depth) {
        if (!take('{')) return false;
        if (take('}')) return true;
        do {
            blanks();
            std::string key;
            if (!string(&key) || !take(':') || !value(depth + 1)) return false;
            // The names of one printed object are the names of distinct controls.
            if (depth == 0 && !m_keys.insert(key).second) return false;
        } while (take(','));
        return take('}');
    }

    bool array(int depth) {
        if (!take('[')) return false;
        if (take(']')) return true;
        do {
            if (!value(depth + 1)) return false;
        } while (take(','));
        return take(']');
    }

    bool string(std::string* raw) {
        const std::size_t start = m_at;
        if (m_at >= m_text.size() || m_text[m_at++] != '"') return false;
        while (m_at < m_text.size()) {
            const auto byte = static_cast<unsigned char>(m_text[m_at]);
            if (byte == '"') {
                ++m_at;
                const std::string_view whole = m_text.substr(start, m_at - start);
                m_canonical += whole;
                if (raw) raw->assign(whole);
                return true;
            }
            if (byte < 0x20) return false;
            if (byte == '\\') {
                if (!escape()) return false;
            } else if (byte >= 0x80) {
                if (!utf8()) return false;
            } else {
                ++m_at;
            }
        }
        return false;
    }

    bool escape() {
        ++m_at;
        if (m_at >= m_text.size()) return false;
        const char ch = m_text[m_at++];
        if (std::string_view("\"\\/bfnrt").find(ch) != std::string_view::npos) return true;
        if (ch != 'u' || m_at + 4 > m_text.size()) return false;
        for (int i = 0; i < 4; ++i) {
            if (!std::isxdigit(static_cast<unsigned char>(m_text[m_at++]))) return false;
        }
        return true;
    }

    // One character of valid UTF-8: no overlong form, no surrogate, nothing
    // beyond U+10FFFF.
    bool utf8() {
        const auto byte = [this](std::size_t k) { return static_cast<unsigned char>(m_text[k]); };
        const unsigned lead = byte(m_at);
        std::size_t n = 0;
        unsigned code = 0, least = 0;
        if (lead >= 0xC2 && lead <= 0xDF) {
            n = 2, code = lead & 0x1Fu, least = 0x80;
        } else if (lead >= 0xE0 && lead <= 0xEF) {
            n = 3, code = lead & 0x0Fu, least = 0x800;
        } else if (lead >= 0xF0 && lead <= 0xF4) {
            n = 4, code = lead & 0x07u, least = 0x10000;
        } else {
            return false;
        }
        if (m_at + n > m_text.size()) return false;
        for (std::size_t k = 1; k < n; ++k) {
            if ((byte(m_at + k) & 0xC0u) != 0x80u) return false;
            code = (code << 6) | (byte(m_at + k) & 0x3Fu);
        }
        if (code < least || (code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF) return false;
        m_at += n;
        return true;
    }

    bool digits() {
        const std::size_t start = m_at;
        while (m_at < m_text.size() && m_text[m_at] >= '0' && m_text[m_at] <= '9')
            ++m_at;
        return m_at > start;
    }

    bool number() {
        const std::size_t start = m_at;
        if (m_text[m_at] == '-') ++m_at;
        if (m_at < m_text.size() && m_text[m_at] == '0') {
            ++m_at;
        } else if (!digits()) {
            return false;
        }
        if (m_at < m_text.size() && m_text[m_at] == '.') {
            ++m_at;
            if (!digits()) return false;
        }
        if (m_at < m_text.size() && (m_text[m_at] == 'e' || m_text[m_at] == 'E')) {
            ++m_at;
            if (m_at < m_text.size() && (m_text[m_at] == '+' || m_text[m_at] == '-')) ++m_at;
            if (!digits()) return false;
        }
        m_canonical += m_text.substr(start, m_at - start);
        return true;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    std::string m_canonical;
    std::set<std::string> m_keys;
    bool m_null = false;
};

// The script's lines as the runner counts them: ended by LF, CRLF or a lone
// CR, after a byte order mark.
std::vector<std::string_view> Lines(std::string_view script) {
    if (script.substr(0, 3) == "\xEF\xBB\xBF") script.remove_prefix(3);
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    for (std::size_t i = 0; i < script.size(); ++i) {
        if (script[i] != '\r' && script[i] != '\n') continue;
        lines.push_back(script.substr(start, i - start));
        if (script[i] == '\r' && i + 1 < script.size() && script[i + 1] == '\n') ++i;
        start = i + 1;
    }
    if (start < script.size()) lines.push_back(script.substr(start));
    return lines;
}

std::string_view FirstWord(std::string_view line) {
    std::size_t start = 0;
    while (start < line.size() && (line[start] == ' ' || line[start] == '\t'))
        ++start;
    std::size_t end = start;
    while (end < line.size() && line[end] != ' ' && line[end] != '\t')
        ++end;
    return line.substr(start, end - start);
}

bool IsAction(std::string_view line) {
    const std::string_view word = FirstWord(line);
    return !word.empty() && word.front() != '#';
}

struct Run {
    int status;
    std::string out, err;
};

Run RunOnce(const std::string& script, JsonLayout layout) {
    std::ostringstream out, err;
    const int status = RunScript(script, out, err, layout);
    return {status, out.str(), err.str()};
}

// The objects of a run's output, each in one form; one object a line in
// JSON Lines.
std::vector<std::string> Objects(const Run& run, JsonLayout layout, bool& null) {
    std::vector<std::string> objects;
    JsonCheck json(run.out);
    if (!json.values(objects)) Fault("the output is not well-formed JSON objects", run.out);
    null = json.hasNull();
    if (layout == JsonLayout::Lines) {
        std::size_t lines = 0;
        for (const char ch : run.out)
            lines += ch == '\n' ? 1 : 0;
        if (lines != objects.size() || run.out.back() != '\n')
            Fault("JSON Lines do not hold one object a line", run.out);
    }
    return objects;
}

// The message of a refused script: one line, "line N: ...", where line N is
// one of the script's actions.
void CheckRefusal(const Run& run, const std::vector<std::string_view>& lines) {
    if (!run.out.empty()) Fault("a refused script printed", run.out);
    if (run.err.empty() || run.err.back() != '\n' || run.err.find('\n') != run.err.size() - 1)
        Fault("the message of a refused script is not one line", run.err);
    if (run.err.rfind("line ", 0) != 0) Fault("the message of a refused script names no line", run.err);
    const std::size_t colon = run.err.find(": ");
    if (colon == std::string::npos) Fault("the message of a refused script names no line", run.err);
    std::size_t number = 0;
    for (std::size_t i = 5; i < colon; ++i) {
        const char ch = run.err[i];
        if (ch < '0' || ch > '9' || number > lines.size()) Fault("the line number is malformed", run.err);
        number = number * 10 + static_cast<std::size_t>(ch - '0');
    }
    if (number < 1 || number > lines.size()) Fault("the message names a line the script does not have", run.err);
    if (!IsAction(lines[number - 1])) Fault("the message names a blank line or a comment", run.err);
}

} // namespace
} // namespace vantorel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantorel;
    const std::string input(reinterpret_cast<const char*>(data), size);
    std::istringstream in(input);
    std::string script;
    if (!ReadScript(in, script)) Fault("a script in memory could not be read");
    if (script != input) Fault("a script under every limit was not read whole");

    const Run lines = RunOnce(script, JsonLayout::Lines);
    const std::vector<std::string_view> scriptLines = Lines(script);
    if (lines.status == kBadScript) {
        CheckRefusal(lines, scriptLines);
    } else if (lines.status != kScriptRan) {
        Fault("a script run into memory failed to write", lines.err);
    } else if (!lines.err.empty()) {
        Fault("a script that ran wrote a message", lines.err);
    }

    bool null = false;
    const std::vector<std::string> objects =
        lines.status == kScriptRan ? Objects(lines, JsonLayout::Lines, null) : std::vector<std::string>{};

    // The same script again, indented, for one input in four (a run costs
    // milliseconds): the same result, object for object. Which inputs is
    // decided by the input alone, so that a finding reproduces.
    if (std::hash<std::string>{}(input) % 4 == 0) {
        const Run indented = RunOnce(script, JsonLayout::Indented);
        if (indented.status != lines.status || indented.err != lines.err)
            Fault("the script ran differently the second time", lines.err + indented.err);
        bool indentedNull = false;
        if (lines.status == kScriptRan && Objects(indented, JsonLayout::Indented, indentedNull) != objects)
            Fault("the two layouts hold different objects", lines.out);
    }
    if (lines.status != kScriptRan) return 0;

    std::size_t prints = 0;
    bool sets = false;
    for (const std::string_view line : scriptLines) {
        prints += FirstWord(line) == "print" ? 1 : 0;
        sets = sets || FirstWord(line) == "set";
    }
    if (objects.size() != std::max<std::size_t>(prints, 1)) Fault("not one object for each print", lines.out);
    // Only an engine value assigned past every check may reach a value JSON
    // cannot write; a user's actions never do.
    if (null && !sets) Fault("a user's actions made a value that is no number", lines.out);
    return 0;
}
