#pragma once

// A strict reader of the JSON the scripts print, for the tests: it checks the
// grammar and hands back the members of each top-level object, in order,
// with their values as raw text.

#include <cctype>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel::testing {

using Members = std::vector<std::pair<std::string, std::string>>;

class JsonReader {
  public:
    explicit JsonReader(std::string_view text) : m_text(text) {}

    // The objects of a stream of objects, or nothing if any is malformed.
    std::optional<std::vector<Members>> objects() {
        std::vector<Members> all;
        blanks();
        while (m_at < m_text.size()) {
            Members members;
            if (!object(&members)) return std::nullopt;
            all.push_back(std::move(members));
            blanks();
        }
        return all;
    }

    // The value of one string literal, escapes decoded (\uXXXX below 0x100 only).
    static std::optional<std::string> Unquote(std::string_view literal) {
        JsonReader r(literal);
        std::string out;
        if (!r.string(&out) || r.m_at != literal.size()) return std::nullopt;
        return out;
    }

  private:
    void blanks() {
        while (m_at < m_text.size() && std::isspace(static_cast<unsigned char>(m_text[m_at])))
            ++m_at;
    }
    bool eat(char ch) {
        blanks();
        if (m_at < m_text.size() && m_text[m_at] == ch) {
            ++m_at;
            return true;
        }
        return false;
    }

    bool value() {
        blanks();
        if (m_at >= m_text.size()) return false;
        const char ch = m_text[m_at];
        if (ch == '{') return object(nullptr);
        if (ch == '[') return array();
        if (ch == '"') return string(nullptr);
        for (std::string_view word : {"true", "false", "null"}) {
            if (m_text.substr(m_at, word.size()) == word) {
                m_at += word.size();
                return true;
            }
        }
        return number();
    }

    bool object(Members* members) {
        if (!eat('{')) return false;
        if (eat('}')) return true;
        do {
            blanks();
            std::string key;
            if (!string(&key) || !eat(':')) return false;
            blanks();
            const std::size_t start = m_at;
            if (!value()) return false;
            if (members) members->emplace_back(key, std::string(m_text.substr(start, m_at - start)));
        } while (eat(','));
        return eat('}');
    }

    bool array() {
        if (!eat('[')) return false;
        if (eat(']')) return true;
        do {
            if (!value()) return false;
        } while (eat(','));
        return eat(']');
    }

    bool string(std::string* out) {
        if (m_at >= m_text.size() || m_text[m_at] != '"') return false;
        ++m_at;
        while (m_at < m_text.size()) {
            const char ch = m_text[m_at++];
            if (ch == '"') return true;
            if (static_cast<unsigned char>(ch) < 0x20) return false;
            if (ch != '\\') {
                if (out) out->push_back(ch);
                continue;
            }
            if (m_at >= m_text.size()) return false;
            const char esc = m_text[m_at++];
            const std::string_view simple = "\"\\/bfnrt";
            const std::string_view meant = "\"\\/\b\f\n\r\t";
            if (const std::size_t k = simple.find(esc); k != std::string_view::npos) {
                if (out) out->push_back(meant[k]);
            } else if (esc == 'u') {
                if (m_at + 4 > m_text.size()) return false;
                const std::string hex(m_text.substr(m_at, 4));
                char* end = nullptr;
                const long code = std::strtol(hex.c_str(), &end, 16);
                if (end != hex.c_str() + 4) return false;
                m_at += 4;
                if (out) out->push_back(static_cast<char>(code));
            } else {
                return false;
            }
        }
        return false;
    }

    bool number() {
        const std::size_t start = m_at;
        if (m_at < m_text.size() && m_text[m_at] == '-') ++m_at;
        const auto digits = [&] {
            const std::size_t from = m_at;
            while (m_at < m_text.size() && std::isdigit(static_cast<unsigned char>(m_text[m_at])))
                ++m_at;
            return m_at > from;
        };
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
        return m_at > start;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

} // namespace vantorel::testing
