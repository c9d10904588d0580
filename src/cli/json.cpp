#include "cli/json.h"

#include "engine/numbers.h"

#include <cmath>
#include <cstdio>

namespace vantorel {

namespace {

// Length of the valid UTF-8 sequence at `i`, or 0 if there is none.
std::size_t Utf8Length(std::string_view s, std::size_t i) {
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
    const unsigned char lead = byte(i);
    std::size_t n = 0;
    unsigned min = 0;
    unsigned code = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        n = 2, code = lead & 0x1Fu, min = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        n = 3, code = lead & 0x0Fu, min = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        n = 4, code = lead & 0x07u, min = 0x10000;
    } else {
        return 0;
    }
    if (i + n > s.size()) return 0;
    for (std::size_t k = 1; k < n; ++k) {
        if ((byte(i + k) & 0xC0u) != 0x80u) return 0;
        code = (code << 6) | (byte(i + k) & 0x3Fu);
    }
    // Overlong forms, surrogates and code points beyond Unicode are not text.
    if (code < min || (code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF) return 0;
    return n;
}

std::string Unicode(unsigned code) {
    char buf[8];
    std::snprintf(buf, sizeof buf, "\\u%04x", code);
    return buf;
}

std::string Bool(bool b) { return b ? "true" : "false"; }

std::string Int(int i) { return std::to_string(i); }

// The members every control has, after the ones of its kind.
std::string Common(const Control& c) {
    return "\"enabled\":" + Bool(c.enabled()) + ",\"visible\":" + Bool(c.visible()) +
           ",\"back\":" + Int(static_cast<int>(c.back())) + ",\"fore\":" + Int(static_cast<int>(c.fore())) + "}";
}

std::string Captioned(const std::string& caption, const std::string& tooltip, const Control& c) {
    return "{\"caption\":" + JsonString(caption) + ",\"tooltip\":" + JsonString(tooltip) + "," + Common(c);
}

const char* StateName(WindowState s) {
    switch (s) {
    case WindowState::Normal:
        return "normal";
    case WindowState::Minimised:
        return "minimised";
    case WindowState::Maximised:
        return "maximised";
    }
    return "normal";
}

struct ValueWriter {
    std::string operator()(Window* w) const {
        return "{\"title\":" + JsonString(w->title()) + ",\"state\":\"" + StateName(w->state()) +
               "\",\"left\":" + Int(w->left()) + ",\"top\":" + Int(w->top()) + ",\"width\":" + Int(w->width()) +
               ",\"height\":" + Int(w->height()) + ",\"innerWidth\":" + Int(w->innerWidth()) +
               ",\"innerHeight\":" + Int(w->innerHeight()) + "," + Common(*w);
    }
    std::string operator()(Control* c) const {
        return "{\"left\":" + Int(c->left()) + ",\"top\":" + Int(c->top()) + ",\"width\":" + Int(c->width()) +
               ",\"height\":" + Int(c->height()) + "," + Common(*c);
    }
    std::string operator()(Flag* f) const {
        return "{\"value\":" + Int(f->value()) + ",\"caption\":" + JsonString(f->caption()) +
               ",\"tooltip\":" + JsonString(f->tooltip()) + "," + Common(*f);
    }
    std::string operator()(Text* t) const {
        return "{\"text\":" + JsonString(t->text()) + ",\"tooltip\":" + JsonString(t->tooltip()) + "," + Common(*t);
    }
    std::string operator()(List* l) const {
        std::string rows = "[";
        for (int i = 0; i < l->count(); ++i)
            rows += (i ? "," : "") + JsonString(l->row(i));
        rows += "]";
        // A prompt shows only on the lists that have one.
        const std::string hint = l->hint().empty() ? "" : ",\"hint\":" + JsonString(l->hint());
        return "{\"rows\":" + rows + ",\"index\":" + Int(l->index()) + ",\"text\":" + JsonString(l->text()) + hint +
               ",\"tooltip\":" + JsonString(l->tooltip()) + "," + Common(*l);
    }
    std::string operator()(Label* l) const { return Captioned(l->caption(), l->tooltip(), *l); }
    std::string operator()(Button* b) const { return Captioned(b->caption(), b->tooltip(), *b); }
    std::string operator()(Picture* p) const { return "{\"image\":" + JsonString(p->image()) + "," + Common(*p); }
    std::string operator()(Line* l) const {
        return "{\"x1\":" + Int(l->x1()) + ",\"y1\":" + Int(l->y1()) + ",\"x2\":" + Int(l->x2()) +
               ",\"y2\":" + Int(l->y2()) + ",\"style\":\"" + (l->style() == LineStyle::Dotted ? "dotted" : "solid") +
               "\"," + Common(*l);
    }
    std::string operator()(ScrollBar* s) const {
        return "{\"value\":" + Int(s->value()) + ",\"maximum\":" + Int(s->maximum()) +
               ",\"smallStep\":" + Int(s->smallStep()) + ",\"largeStep\":" + Int(s->largeStep()) + "," + Common(*s);
    }
    std::string operator()(std::string* s) const { return JsonString(*s); }
    std::string operator()(int* i) const { return Int(*i); }
    std::string operator()(std::int16_t* i) const { return Int(*i); }
    std::string operator()(float* x) const { return JsonNumber(*x); }
    std::string operator()(double* x) const { return JsonNumber(*x); }
    std::string operator()(bool* b) const { return Bool(*b); }
};

} // namespace

std::string JsonString(std::string_view text) {
    std::string out = "\"";
    for (std::size_t i = 0; i < text.size();) {
        const auto ch = static_cast<unsigned char>(text[i]);
        if (ch >= 0x80) {
            if (const std::size_t n = Utf8Length(text, i)) {
                out.append(text.substr(i, n));
                i += n;
            } else {
                out += Unicode(ch);
                ++i;
            }
            continue;
        }
        switch (ch) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\b':
            out += "\\b";
            break;
        case '\f':
            out += "\\f";
            break;
        default:
            if (ch < 0x20 || ch == 0x7F) {
                out += Unicode(ch);
            } else {
                out.push_back(static_cast<char>(ch));
            }
        }
        ++i;
    }
    out.push_back('"');
    return out;
}

std::string JsonNumber(float x) { return std::isfinite(x) ? ShortestText(x) : "null"; }
std::string JsonNumber(double x) { return std::isfinite(x) ? ShortestText(x) : "null"; }

std::string JsonValue(const ControlRef& ref) { return std::visit(ValueWriter{}, ref.target); }

std::string JsonObject(const std::vector<const ControlRef*>& refs, JsonLayout layout) {
    const bool indented = layout == JsonLayout::Indented;
    std::string out = "{";
    bool first = true;
    for (const ControlRef* ref : refs) {
        if (indented) {
            out += first ? "\n  " : ",\n  ";
        } else if (!first) {
            out += ",";
        }
        first = false;
        out += JsonString(ref->name) + (indented ? ": " : ":") + JsonValue(*ref);
    }
    out += first || !indented ? "}\n" : "\n}\n";
    return out;
}

bool GlobMatch(std::string_view pattern, std::string_view name) { return NamePattern(pattern).matches(name); }

NamePattern::NamePattern(std::string_view pattern) {
    m_pattern.reserve(pattern.size());
    for (const char ch : pattern) {
        if (ch != '*' || m_pattern.empty() || m_pattern.back() != '*') m_pattern.push_back(ch);
    }
}

bool NamePattern::matches(std::string_view name) const {
    // Greedy match with one backtrack point, the last `*` seen: a later `*`
    // can take up whatever an earlier one would, so the earlier one is
    // never tried again.
    const std::string_view pattern = m_pattern;
    std::size_t p = 0, n = 0;
    std::size_t star = std::string_view::npos, resume = 0;
    while (n < name.size()) {
        if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
            ++p;
            ++n;
        } else if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    // Stars are collapsed, so at most one is left before the end.
    if (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

} // namespace vantorel
