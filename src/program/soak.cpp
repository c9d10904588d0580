#include "program/soak.h"

#include "engine/arcs.h"
#include "engine/counting.h"
#include "engine/dps.h"
#include "engine/numbers.h"
#include "engine/power.h"
#include "engine/selection.h"
#include "mainwindow/results.h"
#include "program/program.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstring>
#include <exception>
#include <stdexcept>
#include <type_traits>

namespace vantorel {

namespace {

// What every control has, as one block without padding.
struct Common {
    std::int32_t enabled, visible;
    std::uint32_t back, fore;
    std::int32_t left, top, width, height;
};

// The parts of an entry that the program shows or keeps, given one by one to
// `out` with their names: the bytes of a snapshot, a comparison with them, or
// the text of a change.
template <typename Out> void Parts(Out& out, const Control& c) {
    out("", Common{c.enabled(), c.visible(), c.back(), c.fore(), c.left(), c.top(), c.width(), c.height()});
}

template <typename Out> void Parts(Out& out, const Window& w) {
    Parts(out, static_cast<const Control&>(w));
    out("title", w.title());
    out("state", static_cast<int>(w.state()));
    out("innerWidth", w.innerWidth());
    out("innerHeight", w.innerHeight());
}

template <typename Out> void Parts(Out& out, const Flag& f) {
    Parts(out, static_cast<const Control&>(f));
    out("value", f.value());
    out("caption", f.caption());
    out("tooltip", f.tooltip());
}

template <typename Out> void Parts(Out& out, const Text& t) {
    Parts(out, static_cast<const Control&>(t));
    out("text", t.text());
    out("tooltip", t.tooltip());
}

template <typename Out> void Parts(Out& out, const List& l) {
    Parts(out, static_cast<const Control&>(l));
    out("rows", l.rows());
    out("index", l.index());
    out("text", l.text());
    out("tooltip", l.tooltip());
    out("runsWhenDisabled", l.runsWhenDisabled());
}

template <typename Out> void Parts(Out& out, const Label& l) {
    Parts(out, static_cast<const Control&>(l));
    out("caption", l.caption());
    out("tooltip", l.tooltip());
}

template <typename Out> void Parts(Out& out, const Button& b) { Parts(out, static_cast<const Label&>(b)); }

template <typename Out> void Parts(Out& out, const Picture& p) {
    Parts(out, static_cast<const Control&>(p));
    out("image", p.image());
}

template <typename Out> void Parts(Out& out, const Line& l) {
    Parts(out, static_cast<const Control&>(l));
    out("x1", l.x1());
    out("y1", l.y1());
    out("x2", l.x2());
    out("y2", l.y2());
}

template <typename Out> void Parts(Out& out, const ScrollBar& s) {
    Parts(out, static_cast<const Control&>(s));
    out("value", s.value());
    out("maximum", s.maximum());
    out("smallStep", s.smallStep());
    out("largeStep", s.largeStep());
}

template <typename Out, typename T>
requires std::is_arithmetic_v<T> || std::is_same_v<T, std::string>
void Parts(Out& out, const T& value) { out("value", value); }

template <typename Out> void Visit(Out& out, const ControlRef& ref) {
    std::visit([&out](const auto* p) { Parts(out, *p); }, ref.target);
}

// Numbers and blocks go in and are compared bit for bit, so that a value
// that turns into NaN, or from 0 to -0, counts as a change.
template <typename T>
concept Plain = std::is_trivially_copyable_v<T>;

// Appends the parts as bytes to a buffer that only grows.
class Writer {
  public:
    explicit Writer(std::vector<char>& bytes) : m_bytes(bytes) {
        if (m_bytes.empty()) m_bytes.resize(1 << 16);
        m_at = m_bytes.data();
        m_end = m_at + m_bytes.size();
    }
    std::size_t size() const { return static_cast<std::size_t>(m_at - m_bytes.data()); }

    template <Plain T> void operator()(const char*, const T& value) { put(&value, sizeof value); }
    void operator()(const char*, const std::string& s) {
        const std::size_t n = s.size();
        put(&n, sizeof n);
        put(s.data(), n);
    }
    void operator()(const char* name, const std::vector<std::string>& rows) {
        const std::size_t n = rows.size();
        put(&n, sizeof n);
        for (const std::string& row : rows)
            (*this)(name, row);
    }

  private:
    void put(const void* p, std::size_t n) {
        if (static_cast<std::size_t>(m_end - m_at) < n) {
            const std::size_t used = size();
            m_bytes.resize(std::max(2 * m_bytes.size(), used + n));
            m_at = m_bytes.data() + used;
            m_end = m_bytes.data() + m_bytes.size();
        }
        std::memcpy(m_at, p, n);
        m_at += n;
    }

    std::vector<char>& m_bytes;
    char* m_at;
    char* m_end;
};

// Compares the parts with the bytes of one entry, in place.
class Matcher {
  public:
    Matcher(const char* at, const char* end) : m_at(at), m_end(end) {}
    bool same() const { return m_same && m_at == m_end; }

    template <Plain T> void operator()(const char*, const T& value) { match(&value, sizeof value); }
    void operator()(const char*, const std::string& s) {
        const std::size_t n = s.size();
        match(&n, sizeof n);
        match(s.data(), n);
    }
    void operator()(const char* name, const std::vector<std::string>& rows) {
        const std::size_t n = rows.size();
        match(&n, sizeof n);
        for (const std::string& row : rows)
            (*this)(name, row);
    }

  private:
    void match(const void* p, std::size_t n) {
        if (!m_same) return;
        if (static_cast<std::size_t>(m_end - m_at) < n || std::memcmp(m_at, p, n) != 0) {
            m_same = false;
            return;
        }
        m_at += n;
    }

    const char* m_at;
    const char* m_end;
    bool m_same = true;
};

std::string Shown(bool b) { return b ? "true" : "false"; }
std::string Shown(float x) { return ShortestText(x); }
std::string Shown(double x) { return ShortestText(x); }
template <typename T>
requires std::is_integral_v<T> std::string Shown(T n) { return std::to_string(n); }
std::string Shown(std::string_view s) {
    constexpr std::size_t kLongest = 60;
    std::string out = "\"";
    out += s.substr(0, kLongest);
    if (s.size() > kLongest) out += "...";
    out += '"';
    return out;
}

// Reads the parts of a snapshot back and writes down those that differ from
// the entry as it is now.
struct Differ {
    std::string_view before;
    std::string changes;

    template <typename T> T read() {
        T value{};
        if (before.size() >= sizeof value) std::memcpy(&value, before.data(), sizeof value);
        before.remove_prefix(std::min(before.size(), sizeof value));
        return value;
    }
    std::string_view readText() {
        const std::size_t n = std::min(read<std::size_t>(), before.size());
        const std::string_view text = before.substr(0, n);
        before.remove_prefix(n);
        return text;
    }
    void note(const char* name, const std::string& was, const std::string& now) {
        if (!changes.empty()) changes += "; ";
        changes += std::string(name) + ": " + was + " -> " + now;
    }

    template <typename T>
    requires std::is_arithmetic_v<T>
    void operator()(const char* name, T now) {
        const T was = read<T>();
        if (std::memcmp(&was, &now, sizeof now) != 0) note(name, Shown(was), Shown(now));
    }
    void operator()(const char*, const Common& now) {
        const Common was = read<Common>();
        const auto one = [this](const char* name, std::int64_t a, std::int64_t b) {
            if (a != b) note(name, Shown(a), Shown(b));
        };
        one("enabled", was.enabled, now.enabled);
        one("visible", was.visible, now.visible);
        one("back", was.back, now.back);
        one("fore", was.fore, now.fore);
        one("left", was.left, now.left);
        one("top", was.top, now.top);
        one("width", was.width, now.width);
        one("height", was.height, now.height);
    }
    void operator()(const char* name, const std::string& now) {
        const std::string_view was = readText();
        if (was != now) note(name, Shown(was), Shown(now));
    }
    void operator()(const char* name, const std::vector<std::string>& now) {
        const std::size_t count = read<std::size_t>();
        std::string first;
        for (std::size_t i = 0; i < count; ++i) {
            const std::string_view was = readText();
            if (first.empty() && (i >= now.size() || was != now[i]))
                first = "row " + std::to_string(i) + " " + Shown(was) + " -> " +
                        (i < now.size() ? Shown(now[i]) : std::string("none"));
        }
        if (count != now.size())
            note(name, std::to_string(count) + " rows", std::to_string(now.size()) + " rows");
        else if (!first.empty())
            note(name, first, "");
    }
};

// A chain of events deeper than the bound, thrown from the innermost handler
// so that an endless chain ends too.
struct NestedTooDeep {
    std::string chain;
};

// While a typed text waits to be taken in, the arcs are shown through this
// once: it puts the main window's own step back, which tells the checks that
// a recalculation ran.
void ShowArcsOnce(Calculator& c) {
    c.results.showArcs = &ShowArcBoxes;
    ShowArcBoxes(c);
}

bool IsPlainNumber(std::string_view s) {
    std::size_t i = 0;
    const auto digits = [&s, &i] {
        const std::size_t start = i;
        while (i < s.size() && s[i] >= '0' && s[i] <= '9')
            ++i;
        return i > start;
    };
    if (s.empty()) return true;
    if (s[i] == '-') ++i;
    if (!digits()) return false;
    if (i < s.size() && s[i] == '.') {
        ++i;
        if (!digits()) return false;
    }
    if (i < s.size() && s[i] == 'E') {
        ++i;
        if (i == s.size() || (s[i] != '+' && s[i] != '-')) return false;
        ++i;
        if (!digits()) return false;
    }
    return i == s.size();
}

// 0xBBGGRR, as the colours are written.
std::string ColourText(Colour colour) {
    char text[16];
    const auto end = std::to_chars(text, text + sizeof text, colour, 16).ptr;
    std::string digits(text, end);
    for (char& ch : digits)
        ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    return "0x" + std::string(6 - std::min<std::size_t>(digits.size(), 6), '0') + digits;
}

template <typename T> bool SameBits(const T& a, const T& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

// The skill levels that a mirrored Omega takes from Alpha. Attack Pattern
// Alpha is not among them: its version is the vessel's own.
struct SkillLevel {
    const char* name;
    PerVessel<std::int16_t> CalculatorState::*levels;
};
constexpr SkillLevel kMirroredSkills[] = {
    {"SkillTargets", &CalculatorState::SkillTargets},
    {"TorpedoHighYield", &CalculatorState::TorpedoHighYield},
    {"TorpedoSpread", &CalculatorState::TorpedoSpread},
    {"MineSkill", &CalculatorState::MineSkill},
    {"BeamOverload", &CalculatorState::BeamOverload},
    {"RapidFire", &CalculatorState::RapidFire},
    {"ScatterVolley", &CalculatorState::ScatterVolley},
    {"BeamSkill", &CalculatorState::BeamSkill},
    {"TacticalTeam", &CalculatorState::TacticalTeam},
    {"AttackPatternBeta", &CalculatorState::AttackPatternBeta},
    {"AttackPatternOmega", &CalculatorState::AttackPatternOmega},
};

struct CombatFactor {
    const char* name;
    PerVessel<float> CalculatorState::*factors;
};
constexpr CombatFactor kMirroredFactors[] = {
    {"ResistanceFactor", &CalculatorState::ResistanceFactor},
    {"AccuracyFactor", &CalculatorState::AccuracyFactor},
    {"ExcessAccuracy", &CalculatorState::ExcessAccuracy},
};

// Omega's column of the main window: on show exactly while comparing.
constexpr const char* kOmegaColumn[] = {
    "Form1.ShipClass[2]", "Form1.ShipTier[2]", "Form1.PowerLevel[2]", "Form1.TargetDistance[2]",
    "Form1.Skills[2]",    "Form1.Advanced[2]", "Form1.CReset",
};
// Omega's controls that only some ships or weapons show: hidden while not
// comparing. Omega's labels are not among them: in the single layout they
// stand beyond the edge of the page, which hides them.
constexpr const char* kOmegaOnlyWhileComparing[] = {
    "Form1.ShipSubclass[2]", "Form1.ShuttleRank[2]", "Form1.ShuttleRankLabel[2]",
    "Form1.ShuttleMod[2]",   "Form1.Primarylabel",   "Form1.Cline",
};
constexpr const char* kOmegaArrays[] = {"Form1.CForward", "Form1.CRear", "Form1.CFiringArcDPS", "Form1.CFiringArcLabel",
                                        "Form1.CFiringArc"};

const ControlRef& Find(const ControlRegistry& registry, const std::string& name) {
    const ControlRef* ref = registry.find(name);
    if (!ref || !ref->control) throw std::logic_error("the checks need the control " + name);
    return *ref;
}

std::string Indexed(const char* base, int i) { return std::string(base) + "[" + std::to_string(i) + "]"; }

// The number boxes of one settings window by their field names.
std::vector<std::pair<std::string, NumberBox>> NumberBoxes() {
    std::vector<std::pair<std::string, NumberBox>> boxes;
    for (int i = 1; i <= 8; ++i)
        boxes.emplace_back(Indexed("WeaponSkill", i), NumberBox::WeaponSkill);
    for (int i = 1; i <= 3; ++i)
        boxes.emplace_back(Indexed("CriticalSkill", i), NumberBox::CriticalSkill);
    for (int i = 1; i <= 5; ++i)
        boxes.emplace_back(Indexed("PowerSkill", i), PowerSkillBox(i));
    boxes.emplace_back("TargetDefense", NumberBox::TargetDefense);
    boxes.emplace_back("TargetResistance", NumberBox::TargetResistance);
    return boxes;
}

// The name of a control without its window: "WeaponSkill[3]".
std::string_view FieldOf(const ControlRef& ref) {
    return std::string_view(ref.name).substr(std::min(ref.window.size() + 1, ref.name.size()));
}

bool StartsWith(std::string_view s, std::string_view prefix) { return s.substr(0, prefix.size()) == prefix; }

// What a user works: boxes, lists, check boxes and buttons.
bool IsInput(ValueKind kind) {
    return kind == ValueKind::Text || kind == ValueKind::List || kind == ValueKind::Flag || kind == ValueKind::Button;
}

// The controls of a mirrored Omega that stay open: the box that frees it,
// the window's Close and its general help.
constexpr std::string_view kOmegaLive[] = {"SameAsAlpha", "Close", "Help[0]"};
// What a mirrored Omega does not copy from Alpha: its faction and rank stand
// one row lower (row 0 follows Alpha), its class on none, its equip boxes by
// its own ship when the consoles match.
constexpr std::string_view kOmegaOwn[] = {"Faction", "Rank", "Class", "SameAsAlpha", "CharacterSettings"};
constexpr std::string_view kOmegaEquipped = "TacticalConsoleEquipped";

} // namespace

std::string_view InvariantName(Invariant invariant) {
    switch (invariant) {
    case Invariant::Failure:
        return "the program failed";
    case Invariant::Nesting:
        return "events nest too deeply";
    case Invariant::ListIndex:
        return "a list's selection is not one of its rows";
    case Invariant::DPSCaption:
        return "a DPS box shows no plain number";
    case Invariant::Comparing:
        return "State.Comparing disagrees with the main window";
    case Invariant::NumberBox:
        return "a number box holds a text that it refuses";
    case Invariant::Shade:
        return "a settings box is not white in use and grey out of use";
    case Invariant::OmegaReadOnly:
        return "a mirrored Omega has a control open";
    case Invariant::OmegaSettings:
        return "a mirrored Omega does not hold Alpha's settings";
    case Invariant::OmegaSkills:
        return "a mirrored Omega does not follow Alpha's skills";
    case Invariant::NoteHolds:
        return "the note does not hold exactly the windows it holds while open";
    case Invariant::Recalculation:
        return "a recalculation changes what is shown";
    case Invariant::ArcDPS:
        return "an arc's DPS is not the DPS of its weapons";
    }
    return "?";
}

void Snapshot::take(const FieldTable& table) {
    m_ends.clear();
    Writer out(m_bytes);
    for (const ControlRef& ref : table) {
        Visit(out, ref);
        m_ends.push_back(out.size());
    }
}

const ControlRef* Snapshot::firstChange(const FieldTable& table) const {
    std::size_t start = 0;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (i >= m_ends.size()) return &table[i];
        Matcher match(m_bytes.data() + start, m_bytes.data() + m_ends[i]);
        Visit(match, table[i]);
        if (!match.same()) return &table[i];
        start = m_ends[i];
    }
    return nullptr;
}

std::string Snapshot::describeChange(const FieldTable& table, const ControlRef& ref) const {
    const auto i = static_cast<std::size_t>(&ref - table.data());
    if (i >= m_ends.size()) return "not in the snapshot";
    const std::size_t start = i == 0 ? 0 : m_ends[i - 1];
    Differ differ{std::string_view(m_bytes.data() + start, m_ends[i] - start), {}};
    Visit(differ, ref);
    return differ.changes;
}

Invariants::Invariants(Calculator& c, const ControlRegistry& registry)
    : m_c(c), m_registry(registry), m_compare(&Find(registry, "Form1.Compare")),
      m_hideCompare(&Find(registry, "Form1.HideCompare")) {
    if (c.results.showArcs != &ShowArcBoxes)
        throw std::logic_error("the checks expect the main window to show the arcs of a recalculation");
    for (const char* name : kOmegaColumn)
        m_omegaColumn.push_back(&Find(registry, name));
    for (const char* name : kOmegaOnlyWhileComparing)
        m_omegaOnlyWhileComparing.push_back(&Find(registry, name));
    for (const ControlRef& ref : registry.all()) {
        if (ref.kind() == ValueKind::List) m_lists.push_back(&ref);
        for (const char* base : kOmegaArrays)
            if (ref.base == base) m_omegaOnlyWhileComparing.push_back(&ref);
    }
    for (Vessel v = 1; v <= 2; ++v) {
        const std::string window = v == 1 ? "Alpha." : "Omega.";
        for (const auto& [field, kind] : NumberBoxes())
            m_boxes.push_back({&Find(registry, window + field), kind, v});
    }
    for (const ControlRef& ref : registry.all()) {
        if (!ref.control || ref.control == ref.form) continue;
        const std::string_view field = FieldOf(ref);
        if (ref.window == "Alpha" || ref.window == "Omega") {
            if (ref.kind() == ValueKind::Text ||
                (ref.kind() == ValueKind::List && !StartsWith(field, "TacticalConsole")))
                m_shaded.push_back(&ref);
        }
        if (ref.window == "Omega" && IsInput(ref.kind())) {
            const bool live = std::find(std::begin(kOmegaLive), std::end(kOmegaLive), field) != std::end(kOmegaLive);
            if (!live) m_omegaInputs.push_back(&ref);
            const bool own = std::find(std::begin(kOmegaOwn), std::end(kOmegaOwn), field) != std::end(kOmegaOwn) ||
                             StartsWith(field, kOmegaEquipped);
            if (!own && ref.kind() != ValueKind::Button) {
                Pair pair{&ref, &Find(registry, "Alpha." + std::string(field)), std::nullopt};
                for (const Box& box : m_boxes)
                    if (box.ref == &ref) pair.kind = box.kind;
                m_omegaCopies.push_back(pair);
            }
        }
        if (ref.window == "OmegaSkills" && field != "SameAsAlpha" &&
            (ref.kind() == ValueKind::Text || ref.kind() == ValueKind::List || ref.kind() == ValueKind::Flag))
            m_omegaSkillsInputs.push_back(&ref);
    }
    for (const ControlRef& ref : registry.all()) {
        Control* control = ref.control;
        if (!control || !control->hasHandler()) continue;
        m_handlers.emplace_back(control, control->handler());
        control->setHandler([this, name = &ref.name, inner = control->handler()] {
            struct Depth {
                int& depth;
                explicit Depth(int& d) : depth(++d) {}
                ~Depth() { --depth; }
                Depth(const Depth&) = delete;
                Depth& operator=(const Depth&) = delete;
            } depth(m_depth);
            if (m_depth > m_deepest) m_deepest = m_depth;
            if (m_depth > kMaxNesting) throw NestedTooDeep{*name};
            try {
                inner();
            } catch (NestedTooDeep& e) {
                e.chain = *name + " > " + e.chain;
                throw;
            }
        });
    }
}

Invariants::~Invariants() {
    for (auto& [control, handler] : m_handlers)
        control->setHandler(std::move(handler));
    m_c.results.showArcs = &ShowArcBoxes;
}

std::optional<Finding> Invariants::perform(const Action& action) {
    const List* typedInto = action.kind == ActionKind::Type && action.control->kind() == ValueKind::List
                                ? std::get<List*>(action.control->target)
                                : nullptr;
    // A click on a control that has no handler raises no event either, and
    // waits like a typed text: the graph's "Display on update" box, a
    // settings window's class list, are read by the next recalculation.
    const bool silent = (typedInto && typedInto->text() != TypedTexts()[action.value]) ||
                        (action.kind != ActionKind::Press && !action.control->control->hasHandler());
    try {
        Perform(action);
    } catch (const NestedTooDeep& e) {
        return Finding{Invariant::Nesting, "more than " + std::to_string(kMaxNesting) + " events: " + e.chain};
    } catch (const std::exception& e) { return Finding{Invariant::Failure, ScriptLine(action) + ": " + e.what()}; }
    if (silent) awaitRecalculation();
    return std::nullopt;
}

void Invariants::awaitRecalculation() { m_c.results.showArcs = &ShowArcsOnce; }

bool Invariants::awaitingRecalculation() const { return m_c.results.showArcs == &ShowArcsOnce; }

std::optional<Finding> Invariants::check() {
    try {
        for (auto rule : {&Invariants::listIndexes, &Invariants::dpsCaptions, &Invariants::comparing,
                          &Invariants::numberBoxes, &Invariants::shades, &Invariants::omegaReadOnly})
            if (auto finding = (this->*rule)()) return finding;
        if (auto finding = omegaSettings()) return finding;
        if (auto finding = omegaSkills()) return finding;
        if (auto finding = noteHolds()) return finding;
        if (awaitingRecalculation()) return std::nullopt;
        if (auto finding = recalculation()) return finding;
        return arcDPS();
    } catch (const NestedTooDeep& e) {
        return Finding{Invariant::Nesting,
                       "more than " + std::to_string(kMaxNesting) + " events in a recalculation: " + e.chain};
    } catch (const std::exception& e) {
        return Finding{Invariant::Failure, std::string("while checking: ") + e.what()};
    }
}

std::optional<Finding> Invariants::listIndexes() const {
    for (const ControlRef* ref : m_lists) {
        const List& list = *std::get<List*>(ref->target);
        const int index = list.index();
        if (index < -1 || index >= list.count())
            return Finding{Invariant::ListIndex, ref->name + " has index " + std::to_string(index) + " of " +
                                                     std::to_string(list.count()) + " rows"};
        // Only a list with typing holds a text that is not its selected row.
        if (!list.typing() && list.text() != (index >= 0 ? list.row(index) : std::string()))
            return Finding{Invariant::ListIndex,
                           ref->name + " shows " + Shown(list.text()) + " with index " + std::to_string(index)};
    }
    return std::nullopt;
}

std::optional<Finding> Invariants::dpsCaptions() const {
    const MainSelection& m = m_c.main;
    for (int i = 0; i <= 13; ++i) {
        for (const auto* boxes : {&m.FiringArcDPS, &m.CFiringArcDPS}) {
            const std::string& caption = (*boxes)[i].caption();
            if (!IsPlainNumber(caption))
                return Finding{Invariant::DPSCaption,
                               std::string(boxes == &m.FiringArcDPS ? "Form1.FiringArcDPS[" : "Form1.CFiringArcDPS[") +
                                   std::to_string(i) + "] shows " + Shown(caption)};
        }
    }
    return std::nullopt;
}

std::optional<Finding> Invariants::comparing() const {
    const int state = m_c.state.Comparing;
    if (state != 0 && state != -1)
        return Finding{Invariant::Comparing, "State.Comparing is " + std::to_string(state) + ", neither 0 nor -1"};
    const bool on = state != 0;
    const auto expect = [on](const ControlRef* ref, bool shown) -> std::optional<Finding> {
        if (ref->control->visible() == shown) return std::nullopt;
        return Finding{Invariant::Comparing, ref->name + (shown ? " is hidden" : " is shown") +
                                                 (on ? " while comparing" : " while not comparing")};
    };
    if (auto f = expect(m_compare, !on)) return f;
    if (auto f = expect(m_hideCompare, on)) return f;
    for (const ControlRef* ref : m_omegaColumn)
        if (auto f = expect(ref, on)) return f;
    if (on) return std::nullopt;
    for (const ControlRef* ref : m_omegaOnlyWhileComparing)
        if (auto f = expect(ref, false)) return f;
    return std::nullopt;
}

std::optional<Finding> Invariants::numberBoxes() const {
    for (const Box& box : m_boxes) {
        const Text& text = *std::get<Text*>(box.ref->target);
        if (CorrectedText(box.kind, box.vessel, text.text(), text.enabled()))
            return Finding{Invariant::NumberBox,
                           box.ref->name + " holds " + Shown(text.text()) + (text.enabled() ? "" : " while closed")};
    }
    return std::nullopt;
}

std::optional<Finding> Invariants::shades() const {
    for (const ControlRef* ref : m_shaded) {
        const Control& control = *ref->control;
        if (control.back() != (control.enabled() ? White : Grey))
            return Finding{Invariant::Shade, ref->name + (control.enabled() ? " is open" : " is closed") +
                                                 " and its colour is " + ColourText(control.back())};
    }
    return std::nullopt;
}

std::optional<Finding> Invariants::omegaReadOnly() const {
    if (m_c.Omega().SameAsAlpha.value() != 1) return std::nullopt;
    for (const ControlRef* ref : m_omegaInputs)
        if (ref->control->visible() && ref->control->enabled())
            return Finding{Invariant::OmegaReadOnly, ref->name + " is open"};
    return std::nullopt;
}

std::optional<Finding> Invariants::omegaSettings() {
    const VesselSettings& alpha = m_c.Alpha();
    const VesselSettings& omega = m_c.Omega();
    const CalculatorState& s = m_c.state;
    if (omega.SameAsAlpha.value() != 1) {
        m_omegaComparable = true;
        return std::nullopt;
    }
    // A rank row copied into an unrestricted Alpha becomes Omega's own rank
    // once mirrored, and the lists that rank limits hold other rows than
    // Alpha's; from then on Omega is held to Alpha's values again only after
    // it was free and followed anew.
    if (GetRank(m_c, 1) != GetRank(m_c, 2)) m_omegaComparable = false;
    if (m_omegaComparable) {
        for (const List* list : {&omega.Faction, &omega.Rank}) {
            const List& alphas = list == &omega.Faction ? alpha.Faction : alpha.Rank;
            if (std::max(list->index() - 1, -1) != alphas.index())
                return Finding{Invariant::OmegaSettings,
                               std::string(list == &omega.Faction ? "Omega.Faction" : "Omega.Rank") + " is on row " +
                                   Shown(list->index()) + ", Alpha's on " + Shown(alphas.index())};
        }
        for (const Pair& pair : m_omegaCopies)
            if (auto finding = copied(pair)) return finding;
    }
    // Omega's factors are worked out only while it is on show. Attack
    // Pattern Beta lowers the resistance by the vessel's own skills, which
    // may be free while its settings follow.
    if (s.Comparing == 0) return std::nullopt;
    const bool sameResistance = s.AttackPatternBeta[1] == s.AttackPatternBeta[2];
    for (const CombatFactor& f : kMirroredFactors) {
        if (f.factors == &CalculatorState::ResistanceFactor && !sameResistance) continue;
        const PerVessel<float>& factor = s.*f.factors;
        if (!SameBits(factor[1], factor[2]))
            return Finding{Invariant::OmegaSettings, "State." + std::string(f.name) + "[2] is " + Shown(factor[2]) +
                                                         ", Alpha's " + Shown(factor[1])};
    }
    return std::nullopt;
}

std::optional<Finding> Invariants::copied(const Pair& pair) const {
    const ControlRef& o = *pair.omega;
    const ControlRef& a = *pair.alpha;
    switch (o.kind()) {
    case ValueKind::Text: {
        // What only Alpha accepts (47) arrives as Omega's box makes it.
        const Text& box = *std::get<Text*>(o.target);
        std::string expected = std::get<Text*>(a.target)->text();
        if (pair.kind) expected = CorrectedText(*pair.kind, 2, expected, box.enabled()).value_or(expected);
        if (box.text() != expected)
            return Finding{Invariant::OmegaSettings, o.name + " holds " + Shown(box.text()) + ", Alpha's " +
                                                         Shown(std::get<Text*>(a.target)->text())};
        return std::nullopt;
    }
    case ValueKind::List: {
        const int omegas = std::get<List*>(o.target)->index();
        const int alphas = std::get<List*>(a.target)->index();
        if (omegas != alphas)
            return Finding{Invariant::OmegaSettings,
                           o.name + " is on row " + Shown(omegas) + ", Alpha's on " + Shown(alphas)};
        return std::nullopt;
    }
    case ValueKind::Flag: {
        const int omegas = std::get<Flag*>(o.target)->value();
        const int alphas = std::get<Flag*>(a.target)->value();
        if (omegas != alphas)
            return Finding{Invariant::OmegaSettings, o.name + " is " + Shown(omegas) + ", Alpha's " + Shown(alphas)};
        return std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

std::optional<Finding> Invariants::noteHolds() const {
    const bool held = m_c.note.Form.visible();
    for (const Window* w : {&m_c.main.Form1, &m_c.Alpha().Form, &m_c.Omega().Form}) {
        if (w->enabled() != held) continue;
        const char* name = w == &m_c.main.Form1 ? "Form1" : w == &m_c.Alpha().Form ? "Alpha" : "Omega";
        return Finding{Invariant::NoteHolds,
                       std::string(name) + (held ? " is open while the note shows" : " is held without the note")};
    }
    return std::nullopt;
}

std::optional<Finding> Invariants::omegaSkills() const {
    if (m_c.skills[2].SameAsAlpha.value() != 1) return std::nullopt;
    for (const ControlRef* ref : m_omegaSkillsInputs)
        if (ref->control->enabled())
            return Finding{Invariant::OmegaSkills, ref->name + " is open while Omega follows Alpha's skills"};
    for (const SkillLevel& k : kMirroredSkills) {
        const PerVessel<std::int16_t>& level = m_c.state.*k.levels;
        // Targets are counted from 0 until a vessel's first SkillUpdate; every
        // formula reads 0 and 1 alike, as one target.
        const bool targets = k.levels == &CalculatorState::SkillTargets;
        if (targets && std::max<int>(level[1], 1) == std::max<int>(level[2], 1)) continue;
        if (level[1] != level[2])
            return Finding{Invariant::OmegaSkills, "State." + std::string(k.name) + "[2] is " + Shown(level[2]) +
                                                       ", Alpha's " + Shown(level[1])};
    }
    return std::nullopt;
}

std::optional<Finding> Invariants::recalculation() {
    const FieldTable& table = m_registry.all();
    m_snapshot.take(table);
    CalculateFiringArcs(m_c);
    if (const ControlRef* changed = m_snapshot.firstChange(table))
        return Finding{Invariant::Recalculation, changed->name + " " + m_snapshot.describeChange(table, *changed)};
    return std::nullopt;
}

std::optional<Finding> Invariants::arcDPS() {
    const CalculatorState& s = m_c.state;
    for (Vessel v = 1; v <= (s.Comparing != 0 ? 2 : 1); ++v) {
        const int power = GetPowerLevel(m_c, v, Bonus::With);
        const int distance = GetRange(m_c, v);
        for (int row = 0; row <= 5; ++row) {
            const float dps = CalculateDPS(m_c, {RowCounts(s, v, row), power, distance}, v, SkillEffect::Counted);
            if (!SameBits(dps, s.ArcDPS[row][v]))
                return Finding{Invariant::ArcDPS, "State.ArcDPS[" + std::to_string(row) + "," + std::to_string(v) +
                                                      "] is " + Shown(s.ArcDPS[row][v]) + ", its weapons give " +
                                                      Shown(dps)};
        }
    }
    return std::nullopt;
}

SoakReport RunSoak(std::uint64_t seed, long actions, const SoakOptions& options) {
    SoakReport report;
    report.seed = seed;

    Program program;
    if (options.screen) {
        program.workLeft = options.screen->left;
        program.workTop = options.screen->top;
        program.workWidth = options.screen->width;
        program.workHeight = options.screen->height;
    }
    ShowMainWindowAtStart(program);
    const ControlRegistry registry(program);
    const std::vector<const ControlRef*> controls = ActionableControls(registry);
    Invariants invariants(program, registry);

    std::mt19937_64 random(seed);
    std::vector<const ControlRef*> reachable;
    std::vector<Action> done;
    std::optional<Finding> finding = invariants.check();
    while (!finding && report.actions < actions) {
        Action action;
        if (!PickAction(controls, random, reachable, action)) {
            finding = Finding{Invariant::Failure, "no control is within a user's reach"};
            break;
        }
        done.push_back(action);
        ++report.actions;
        ++report.actionsByWindow[action.control->window];
        finding = invariants.perform(action);
        if (finding) break;
        if (!invariants.awaitingRecalculation()) ++report.compared;
        finding = invariants.check();
    }
    report.deepestNesting = invariants.deepestNesting();
    if (!finding) return report;

    std::string detail = finding->detail;
    for (char& ch : detail)
        if (ch == '\n' || ch == '\r') ch = ' ';
    report.script = "# vantorel-soak, seed " + std::to_string(seed) + ", action " + std::to_string(report.actions) +
                    ": " + std::string(InvariantName(finding->invariant)) + ": " + detail + "\n";
    if (options.screen)
        report.script += "# on a work area of " + std::to_string(options.screen->width) + " x " +
                         std::to_string(options.screen->height) + " twips\n";
    for (const Action& action : done)
        report.script += ScriptLine(action) + "\n";
    report.finding = std::move(finding);
    return report;
}

} // namespace vantorel
