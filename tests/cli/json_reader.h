#pragma once

// The scripts print a stream of objects in one of two layouts. Indented: "{",
// one member a line as `  "name": value` with a comma after all but the last,
// then "}". JSON Lines: each object on a line of its own as
// `{"name":value,"name":value}`. This reads either back, member values as raw
// text, and refuses anything else.

#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace vantorel::testing {

using Members = std::vector<std::pair<std::string, std::string>>;

// One object of JSON Lines: the members split at the commas that stand
// outside every string, object and array.
inline std::optional<Members> CompactObject(const std::string& line) {
    if (line.size() < 2 || line.front() != '{' || line.back() != '}') return std::nullopt;
    Members members;
    if (line == "{}") return members;
    const std::size_t close = line.size() - 1;
    for (std::size_t at = 1; at < close;) {
        const std::size_t colon = line.find("\":", at);
        if (line[at] != '"' || colon == std::string::npos) return std::nullopt;
        std::size_t end = colon + 2;
        int depth = 0;
        bool quoted = false;
        for (; end < close && (quoted || depth > 0 || line[end] != ','); ++end) {
            const char ch = line[end];
            if (quoted && ch == '\\') {
                ++end;
            } else if (ch == '"') {
                quoted = !quoted;
            } else if (!quoted && (ch == '{' || ch == '[')) {
                ++depth;
            } else if (!quoted && (ch == '}' || ch == ']')) {
                --depth;
            }
        }
        if (quoted || depth != 0 || end == colon + 2 || end > close) return std::nullopt;
        members.emplace_back(line.substr(at + 1, colon - at - 1), line.substr(colon + 2, end - colon - 2));
        at = end + 1;
        if (end < close && at == close) return std::nullopt; // a comma before the "}"
    }
    return members;
}

inline std::optional<std::vector<Members>> Objects(const std::string& text) {
    std::vector<Members> all;
    std::istringstream in(text);
    bool open = false, comma = false;
    for (std::string line; std::getline(in, line);) {
        if (!open && line == "{") {
            all.emplace_back();
            open = true;
        } else if (!open && line.rfind('{', 0) == 0) {
            std::optional<Members> members = CompactObject(line);
            if (!members) return std::nullopt;
            all.push_back(std::move(*members));
        } else if (open && line == "}" && !comma && !all.back().empty()) {
            open = false;
        } else {
            const std::size_t colon = line.find("\": ");
            if (!open || line.rfind("  \"", 0) != 0 || colon == std::string::npos) return std::nullopt;
            if (!all.back().empty() && !comma) return std::nullopt;
            std::string value = line.substr(colon + 3);
            comma = !value.empty() && value.back() == ',';
            if (comma) value.pop_back();
            if (value.empty()) return std::nullopt;
            all.back().emplace_back(line.substr(3, colon - 3), value);
        }
    }
    if (open) return std::nullopt;
    return all;
}

// The keys of a one-line object value such as {"caption":"a","visible":true};
// none for a value that is not an object.
inline std::vector<std::string> KeysOf(const std::string& object) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : CompactObject(object).value_or(Members{}))
        keys.push_back(key);
    return keys;
}

} // namespace vantorel::testing
