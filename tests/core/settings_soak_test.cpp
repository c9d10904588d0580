// Random user actions on every control a player can reach: the main window,
// both settings windows and the warning note. Whatever the order, nothing
// breaks and the windows keep their promises: typed numbers are valid, a
// mirrored Omega stays a read-only copy, colours tell the state, and the note
// holds the other windows exactly while it is open.

#include "settings/validate.h"
#include "support.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <optional>
#include <random>

namespace vantorel {
namespace {

std::optional<NumberBox> KindOf(const std::string& field) {
    if (field.rfind("WeaponSkill[", 0) == 0) return NumberBox::WeaponSkill;
    if (field.rfind("CriticalSkill[", 0) == 0) return NumberBox::CriticalSkill;
    if (field == "PowerSkill[4]") return NumberBox::BridgeOfficers;
    if (field == "PowerSkill[5]") return NumberBox::EquipmentBonus;
    if (field.rfind("PowerSkill[", 0) == 0) return NumberBox::PowerSkill;
    if (field == "TargetDefense") return NumberBox::TargetDefense;
    if (field == "TargetResistance") return NumberBox::TargetResistance;
    return std::nullopt;
}

bool OnSettings(const ControlRef& ref) { return ref.window == "Alpha" || ref.window == "Omega"; }

// What a player can reach: a control on show and enabled, on a window on
// show and enabled. The main window is open all along.
bool Reachable(const Calculator& c, const ControlRef& ref) {
    if (!ref.control || ref.control == ref.form) return false;
    const ValueKind kind = ref.kind();
    if (kind != ValueKind::List && kind != ValueKind::Flag && kind != ValueKind::Text && kind != ValueKind::Button &&
        kind != ValueKind::ScrollBar)
        return false;
    if (!ref.control->visible() || !ref.control->enabled()) return false;
    if (ref.window == "Form1") return c.main.Form1.enabled();
    return ref.form && ref.form->visible() && ref.form->enabled();
}

class Player {
  public:
    explicit Player(unsigned seed) : m_random(seed) {}

    void act(Calculator& c, const ControlRegistry& registry) {
        // A window first, then one of its controls: the small windows get
        // their share of the actions.
        std::map<std::string, std::vector<const ControlRef*>> reachable;
        for (const ControlRef& ref : registry.all())
            if (Reachable(c, ref)) reachable[ref.window].push_back(&ref);
        ASSERT_FALSE(reachable.empty());
        auto window = reachable.begin();
        std::advance(window, static_cast<std::ptrdiff_t>(pick(reachable.size())));
        const ControlRef& ref = *window->second[pick(window->second.size())];
        m_last = ref.name;
        switch (ref.kind()) {
        case ValueKind::List: {
            List& list = *std::get<List*>(ref.target);
            if (list.count() > 0) list.click(static_cast<int>(pick(static_cast<std::size_t>(list.count()))));
            break;
        }
        case ValueKind::Flag:
            std::get<Flag*>(ref.target)->click();
            break;
        case ValueKind::Text: {
            static const char* const typed[] = {"",   "0",   "5",   "9",    "15",  "-",  "-3",
                                                "47", "abc", "7.5", "1000", "-40", " 8 "};
            std::get<Text*>(ref.target)->setText(typed[pick(std::size(typed))]);
            break;
        }
        case ValueKind::Button:
            std::get<Button*>(ref.target)->press();
            break;
        case ValueKind::ScrollBar: {
            ScrollBar& bar = *std::get<ScrollBar*>(ref.target);
            bar.setValue(static_cast<int>(pick(static_cast<std::size_t>(std::max(bar.maximum(), 0) + 1))));
            break;
        }
        default:
            break;
        }
    }

    const std::string& last() const { return m_last; }

  private:
    std::size_t pick(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(m_random); }

    std::mt19937 m_random;
    std::string m_last;
};

// A mirrored Omega holds Alpha's values: its faction and rank one row lower
// in its lists, its career none; its console slots are equipped for its own
// ship.
void ExpectOmegaHoldsAlphasValues(const Calculator& c, const ControlRegistry& registry, const std::string& after) {
    const VesselSettings& a = c.Alpha();
    const VesselSettings& o = c.Omega();
    ASSERT_EQ(std::max(o.Faction.index() - 1, -1), a.Faction.index()) << "Omega.Faction after " << after;
    ASSERT_EQ(std::max(o.Rank.index() - 1, -1), a.Rank.index()) << "Omega.Rank after " << after;
    for (const ControlRef& ref : registry.all()) {
        if (ref.window != "Omega" || !ref.control || ref.control == ref.form) continue;
        const std::string field = ref.name.substr(6);
        if (field == "Faction" || field == "Rank" || field == "Class" || field == "SameAsAlpha" ||
            field == "CharacterSettings" || field.rfind("TacticalConsoleEquipped", 0) == 0)
            continue;
        const ControlRef* alpha = registry.find("Alpha." + field);
        switch (ref.kind()) {
        case ValueKind::Text: {
            // What only Alpha accepts (47) arrives as Omega's box makes it.
            const Text& box = *std::get<Text*>(ref.target);
            std::string expected = std::get<Text*>(alpha->target)->text();
            if (const auto kind = KindOf(field))
                expected = CorrectedText(*kind, 2, expected, box.enabled()).value_or(expected);
            ASSERT_EQ(box.text(), expected) << ref.name << " after " << after;
            break;
        }
        case ValueKind::List:
            ASSERT_EQ(std::get<List*>(ref.target)->index(), std::get<List*>(alpha->target)->index())
                << ref.name << " after " << after;
            break;
        case ValueKind::Flag:
            ASSERT_EQ(std::get<Flag*>(ref.target)->value(), std::get<Flag*>(alpha->target)->value())
                << ref.name << " after " << after;
            break;
        default:
            break;
        }
    }
}

// Whether a mirrored Omega can be held to Alpha's values. A rank row copied
// into an unrestricted Alpha becomes Omega's own rank once mirrored, and the
// lists that rank limits hold other rows than Alpha's; from then on Omega is
// compared again only after it was free and followed anew.
class Comparable {
  public:
    bool operator()(const Calculator& c) {
        if (c.Omega().SameAsAlpha.value() == 0) {
            m_ok = true;
        } else if (GetRank(c, 1) != GetRank(c, 2)) {
            m_ok = false;
        }
        return m_ok && c.Omega().SameAsAlpha.value() == 1;
    }

  private:
    bool m_ok = true;
};

void CheckPromises(const Calculator& c, const ControlRegistry& registry, bool comparable, const std::string& after) {
    const bool mirrored = c.Omega().SameAsAlpha.value() == 1;
    for (const ControlRef& ref : registry.all()) {
        if (!OnSettings(ref) || !ref.control || ref.control == ref.form) continue;
        const std::string field = ref.name.substr(ref.window.size() + 1);
        const Vessel v = ref.window == "Alpha" ? 1 : 2;
        if (ref.kind() == ValueKind::Text) {
            const Text& box = *std::get<Text*>(ref.target);
            if (const auto kind = KindOf(field)) {
                ASSERT_EQ(CorrectedText(*kind, v, box.text(), box.enabled()), std::nullopt)
                    << ref.name << " holds \"" << box.text() << "\" after " << after;
            }
        }
        const bool input = ref.kind() == ValueKind::Text || ref.kind() == ValueKind::List ||
                           ref.kind() == ValueKind::Flag || ref.kind() == ValueKind::Button;
        if (v == 2 && mirrored && input && ref.control->visible()) {
            const bool live = field == "SameAsAlpha" || field == "Close" || field == "Help[0]";
            ASSERT_TRUE(live || !ref.control->enabled()) << ref.name << " is open in a mirrored Omega after " << after;
        }
        // Console slots paint by their equip box; every other box or list is
        // white exactly while it is in use.
        const bool painted =
            ref.kind() == ValueKind::Text || (ref.kind() == ValueKind::List && field.rfind("TacticalConsole", 0) != 0);
        if (painted) {
            ASSERT_EQ(ref.control->back(), ref.control->enabled() ? White : Grey) << ref.name << " after " << after;
        }
    }
    if (comparable) ExpectOmegaHoldsAlphasValues(c, registry, after);
    const bool held = c.note.Form.visible();
    for (const Window* w : {&c.main.Form1, &c.Alpha().Form, &c.Omega().Form})
        ASSERT_EQ(w->enabled(), !held) << "after " << after;
}

TEST(SettingsSoak, RandomActionsKeepTheWindowsPromises) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        Program c;
        const ControlRegistry registry(c);
        Player player(seed);
        Comparable comparable;
        // Both settings windows within reach from the start.
        c.main.Compare.press();
        c.main.Advanced[1].press();
        c.main.Advanced[2].press();
        for (int step = 0; step < 2000; ++step) {
            player.act(c, registry);
            CheckPromises(c, registry, comparable(c),
                          player.last() + " (seed " + std::to_string(seed) + ", step " + std::to_string(step) + ")");
            if (::testing::Test::HasFatalFailure()) return;
        }
    }
}

} // namespace
} // namespace vantorel
