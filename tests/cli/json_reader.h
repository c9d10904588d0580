#pragma once

// The scripts print a stream of objects in one layout: "{", one member a line
// as `  "name": value` with a comma after all but the last, then "}". This
// reads that layout back, member values as raw text, and refuses any other.

#include <optional>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace vantorel::testing {

using Members = std::vector<std::pair<std::string, std::string>>;

inline std::optional<std::vector<Members>> Objects(const std::string& text) {
    std::vector<Members> all;
    std::istringstream in(text);
    bool open = false, comma = false;
    for (std::string line; std::getline(in, line);) {
        if (!open && line == "{") {
            all.emplace_back();
            open = true;
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

// The keys of a one-line object value such as {"caption":"a","visible":true}.
inline std::vector<std::string> KeysOf(const std::string& object) {
    std::vector<std::string> keys;
    static const std::regex key(R"re([{,]"(\w+)":)re");
    for (std::sregex_iterator it(object.begin(), object.end(), key), end; it != end; ++it)
        keys.push_back((*it)[1]);
    return keys;
}

} // namespace vantorel::testing
