#include "program/program.h"
#include "program/registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <tuple>

namespace vantorel {
namespace {

struct Span {
    std::uintptr_t start = 0, end = 0;
    std::size_t align = 1;
    std::string name;
};

Span SpanOf(const ControlRef& ref) {
    return std::visit(
        [&](auto* p) {
            using T = std::remove_pointer_t<decltype(p)>;
            const auto start = reinterpret_cast<std::uintptr_t>(p);
            return Span{start, start + sizeof(T), alignof(T), ref.name};
        },
        ref.target);
}

std::uintptr_t AlignUp(std::uintptr_t at, std::size_t align) { return (at + align - 1) / align * align; }

template <typename T> std::uintptr_t At(const T& field) { return reinterpret_cast<std::uintptr_t>(&field); }

// The spans of the entries that lie inside [begin, end).
std::vector<Span> SpansWithin(const ControlRegistry& registry, std::uintptr_t begin, std::uintptr_t end) {
    std::vector<Span> spans;
    for (const ControlRef& ref : registry.all()) {
        const Span s = SpanOf(ref);
        if (s.start >= begin && s.start < end) spans.push_back(s);
    }
    return spans;
}

// The table is written by hand, so a field left out would be missing from
// the scripts and from the widget checks. Every byte from `from` to the end
// of the record must be covered by an entry or be padding before the next.
void ExpectCovered(std::vector<Span> spans, std::uintptr_t from, std::uintptr_t end, std::size_t align,
                   const std::string& window) {
    ASSERT_FALSE(spans.empty()) << window;
    std::sort(spans.begin(), spans.end(), [](const Span& a, const Span& b) { return a.start < b.start; });
    std::uintptr_t at = from;
    for (const Span& s : spans) {
        EXPECT_EQ(s.start, AlignUp(at, s.align)) << window << ": a field is missing before " << s.name;
        at = std::max(at, s.end);
    }
    EXPECT_EQ(AlignUp(at, align), end) << window << ": a field is missing after " << spans.back().name;
}

template <typename Record>
void ExpectCovered(const ControlRegistry& registry, const Record& record, const std::string& window,
                   std::uintptr_t from = 0) {
    const auto begin = At(record), end = begin + sizeof(Record);
    ExpectCovered(SpansWithin(registry, begin, end), from ? from : begin, end, alignof(Record), window);
}

TEST(Registry, CoversEveryFieldOfEveryRecord) {
    Program c;
    const ControlRegistry registry(c);
    ExpectCovered(registry, c.main, "Form1");
    for (Vessel v = 1; v <= 2; ++v) {
        // `vessel` is the record's own bookkeeping, not a control.
        ExpectCovered(registry, c.settings[v], "settings " + std::to_string(v),
                      At(c.settings[v].vessel) + sizeof(Vessel));
        ExpectCovered(registry, c.skills[v], "skills " + std::to_string(v), At(c.skills[v].vessel) + sizeof(Vessel));
    }
    ExpectCovered(registry, c.graph, "Graph");
    ExpectCovered(registry, c.documentation, "Documentation");
    ExpectCovered(registry, c.splash, "SplashScreen");
    // About's way to a browser is the front end's hook, not a control.
    const auto about = At(c.about), hook = At(c.about.openPage);
    ExpectCovered(SpansWithin(registry, about, hook), about, hook, alignof(decltype(c.about.openPage)), "About");
    ExpectCovered(registry, c.note, "Note");
    // Only [1..6][2..8][1..5] of the coefficients have names; the array
    // counts as one.
    const auto begin = At(c.state), end = begin + sizeof c.state;
    const auto coefficients = At(c.state.DPWCoefficient),
               coefficientsEnd = coefficients + sizeof c.state.DPWCoefficient;
    std::vector<Span> spans;
    for (const Span& s : SpansWithin(registry, begin, end))
        if (s.start < coefficients || s.start >= coefficientsEnd) spans.push_back(s);
    spans.push_back(Span{coefficients, coefficientsEnd, alignof(double), "State.DPWCoefficient"});
    ExpectCovered(spans, begin, end, alignof(CalculatorState), "State");
    EXPECT_EQ(SpansWithin(registry, coefficients, coefficientsEnd).size(), 6u * 7u * 5u);
}

TEST(Registry, NamesAreUniqueAndPointAtDistinctFields) {
    Program c;
    const ControlRegistry registry(c);
    std::set<std::string> names;
    std::set<std::uintptr_t> places;
    for (const ControlRef& ref : registry.all()) {
        EXPECT_TRUE(names.insert(ref.name).second) << "twice: " << ref.name;
        EXPECT_TRUE(places.insert(SpanOf(ref).start).second) << "shares its field: " << ref.name;
    }
}

TEST(Registry, FindsFieldsByTheProgramsNamesAndIndexBases) {
    Program c;
    const ControlRegistry registry(c);
    // clang-format off
    struct Case { const char* name; std::uintptr_t field; ValueKind kind; } cases[] = {
        {"Form1", At(c.main.Form1), ValueKind::Window},
        {"Form1.Forward[1]", At(c.main.Forward[1]), ValueKind::List},
        {"Form1.FiringArcDPS[0]", At(c.main.FiringArcDPS[0]), ValueKind::Label},
        {"Form1.CFiringArc[11]", At(c.main.CFiringArc[11]), ValueKind::Picture},
        {"Form1.ShipImageId[2]", At(c.main.ShipImageId[2]), ValueKind::String},
        {"Alpha.Help[0]", At(c.settings[1].Help[0]), ValueKind::Button},
        {"Omega.WeaponSkill[8]", At(c.settings[2].WeaponSkill[8]), ValueKind::Text},
        {"Alpha.Contents", At(c.settings[1].Contents), ValueKind::Control},
        {"Note.CallerCode", At(c.note.CallerCode), ValueKind::Int},
        {"State.ArcDPS[ 7 , 2 ]", At(c.state.ArcDPS[7][2]), ValueKind::Single},
        {"State.WeaponCount[11,2]", At(c.state.WeaponCount[11][2]), ValueKind::Int16},
        {"State.ArcShown[13]", At(c.state.ArcShown[13]), ValueKind::Bool},
        {"State.DPWCoefficient[6,8,5]", At(c.state.DPWCoefficient[6][8][5]), ValueKind::Double},
        {"Graph.Line1[29]", At(c.graph.Line1[29]), ValueKind::Line},
        {"Graph.AxisLine[1]", At(c.graph.AxisLine[1]), ValueKind::Line},
        {"Graph.KeyIcon[5]", At(c.graph.KeyIcon[5]), ValueKind::Control},
        {"Graph.KeyShown", At(c.graph.KeyShown), ValueKind::Bool},
        {"Documentation.ReadmeBox", At(c.documentation.ReadmeBox), ValueKind::Control},
        {"Documentation.ReadmeCaret", At(c.documentation.ReadmeCaret), ValueKind::Int},
        {"About.Aboutlabel[2]", At(c.about.Aboutlabel2), ValueKind::Label},
        {"About.Aboutlabel[0]", At(c.about.Aboutlabel0), ValueKind::Label},
        {"SplashScreen.Splash[2]", At(c.splash.Splash[2]), ValueKind::Picture},
    };
    // clang-format on
    for (const Case& k : cases) {
        const ControlRef* ref = registry.find(k.name);
        ASSERT_NE(ref, nullptr) << k.name;
        EXPECT_EQ(std::tuple(k.field, ref->kind()), std::tuple(SpanOf(*ref).start, k.kind)) << k.name;
    }
    // Outside the bases, or a name that differs: nothing.
    for (const char* name : {"Form1.Forward[0]", "State.ArcDPS[0,3]", "State.DPWCoefficient[1,1,1]", "form1.Forward[1]",
                             "Graph.AxisLine[0]", "Graph.Line1[30]", "About.Aboutlabel[1]"})
        EXPECT_EQ(registry.find(name), nullptr) << name;
    EXPECT_TRUE(registry.isArray("State.DPWCoefficient"));
    EXPECT_FALSE(registry.isArray("Form1.Simplified"));
}

} // namespace
} // namespace vantorel
