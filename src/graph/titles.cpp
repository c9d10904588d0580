#include "graph/titles.h"

#include "engine/numbers.h"
#include "engine/power.h"
#include "engine/selection.h"

#include <utility>

namespace vantorel {

namespace {

constexpr std::string_view kUnrestricted = "Unrestricted";

std::string TrimRight(std::string s) {
    while (!s.empty() && s.back() == ' ')
        s.pop_back();
    return s;
}

// The text less its last two characters: the ", " after the last entry, or
// the blanks of "None  ".
std::string LessLastTwo(const std::string& s) { return s.size() >= 2 ? s.substr(0, s.size() - 2) : std::string(); }

// "Tier 5 Cruiser"; the window's title of a comparison has a second blank
// after "Tier" on Alpha's side.
std::string TierAndClass(const TitleVessel& v, std::string_view tierWord) {
    return std::string(tierWord) + SignedText(v.tier) + " " + TrimRight(v.shipClass);
}

std::string PowerWords(int power) { return SignedText(power) + " Weapon Power, "; }

double TitleSize(std::size_t length) { return length < 66 ? 18.0 : 16.0; }

double SubtitleSize(std::size_t length) {
    if (length < 80) return 14.0;
    if (length <= 94) return 12.0;
    if (length <= 100) return 11.0;
    return 10.0;
}

double SkillsSize(std::size_t length) {
    if (length < 71) return 14.0;
    if (length <= 86) return 12.0;
    if (length <= 92) return 11.0;
    return 10.0;
}

const char* ModeWords(int mode, bool comparing) {
    if (mode == 1) return "Power Level Comparison";
    if (mode == 2) return "Range Comparison";
    return comparing ? "DPS Comparison" : "DPS Graph";
}

TitleVessel VesselOf(const Calculator& c, Vessel v) {
    TitleVessel t;
    t.shipClass = GetClass(c, v);
    t.tier = GetTier(c, v);
    t.power = GetPowerLevel(c, v, Bonus::With);
    const List& distance = c.main.TargetDistance[v];
    t.distanceIndex = distance.index();
    t.distance = distance.text();

    const VesselSettings& s = c.settings[v];
    // "Max" stands for the top mark, the list's last row.
    t.mark = s.WeaponMark.text() == "Max" && s.WeaponMark.count() > 0 ? s.WeaponMark.row(s.WeaponMark.count() - 1)
                                                                      : s.WeaponMark.text();
    for (int i = 1; i <= 3; ++i) {
        switch (s.WeaponMod[i].index()) {
        case 1:
            ++t.acc;
            break;
        case 2:
            ++t.crtD;
            break;
        case 3:
            ++t.crtH;
            break;
        case 4:
            ++t.dmg;
            break;
        default:
            break;
        }
    }

    const CalculatorState& st = c.state;
    t.attackPatternAlpha = st.AttackPatternAlpha[v];
    t.attackPatternOmega = st.AttackPatternOmega[v];
    t.fireAtWill = st.BeamSkill[v];
    t.rapidFire = st.RapidFire[v];
    t.scatterVolley = st.ScatterVolley[v];
    t.tacticalTeam = st.TacticalTeam[v];
    t.targets = st.SkillTargets[v];
    return t;
}

} // namespace

std::string ShortWeaponText(const TitleVessel& v, MarkText mark) {
    std::string w = v.mark;
    if (mark == MarkText::Shortened && w.starts_with("Mark")) w = "Mk" + w.substr(4);
    w += ' ';
    const std::pair<const char*, int> mods[4] = {
        {"[Acc]", v.acc}, {"[Dmg]", v.dmg}, {"[CrtD]", v.crtD}, {"[CrtH]", v.crtH}};
    for (const auto& [name, count] : mods)
        if (count == 1) w += std::string(name) + " ";
    for (const auto& [name, count] : mods)
        if (count > 1) w += std::string(name) + "x" + PlainText(count) + " ";
    return w;
}

std::string ShortSkillText(const TitleVessel& v) {
    const std::pair<const char*, int> skills[6] = {{"APA", v.attackPatternAlpha}, {"APO", v.attackPatternOmega},
                                                   {"FAW", v.fireAtWill},         {"CRF", v.rapidFire},
                                                   {"CSV", v.scatterVolley},      {"TT", v.tacticalTeam}};
    std::string k;
    for (const auto& [name, level] : skills)
        if (level > 0) k += std::string(name) + PlainText(level) + ", ";
    if (v.fireAtWill > 0 || v.scatterVolley > 0)
        k += v.targets == 1 ? std::string("1 Target, ") : PlainText(v.targets) + " Targets " + ", ";
    return k;
}

GraphTitles MakeGraphTitles(const TitleFacts& f) {
    GraphTitles t;
    const TitleVessel& a = f.alpha;
    const TitleVessel& o = f.omega;
    t.title = ModeWords(f.mode, f.comparing);
    t.windowTitle = t.title;
    std::string k1;

    if (!f.comparing) {
        const std::string ship =
            a.shipClass == kUnrestricted ? std::string(" (Unrestricted Vessel)") : " (" + TierAndClass(a, "Tier") + ")";
        t.title += ship;
        t.windowTitle += ship;
        if (f.mode == 1) {
            t.subtitle = a.distance + " Range, ";
        } else if (f.mode == 2) {
            t.subtitle = PowerWords(a.power);
        } else {
            t.subtitle = PowerWords(a.power) + a.distance + " Range, ";
        }
        t.subtitle += f.relative ? std::string("Relative DPS") : ShortWeaponText(a, MarkText::AsListed) + "Weaponry";
        k1 = ShortSkillText(a);
    } else {
        if (a.shipClass == kUnrestricted) {
            t.title += " (Unrestricted vs ";
            t.windowTitle += " (Unrestricted vs ";
        } else {
            t.title += " (" + TierAndClass(a, "Tier") + " vs ";
            t.windowTitle += " (" + TierAndClass(a, "Tier ") + " vs ";
        }
        const std::string omegaShip =
            o.shipClass == kUnrestricted ? std::string("Unrestricted)") : TierAndClass(o, "Tier") + ")";
        t.title += omegaShip;
        t.windowTitle += omegaShip;

        if (f.mode != 1) {
            t.subtitle +=
                a.power == o.power ? PowerWords(a.power) : SignedText(a.power) + " vs " + SignedText(o.power) + " WP, ";
        }
        if (f.mode != 2) {
            // Omega's list has "Same As Alpha" in front of the distances.
            const bool sameRange = o.distanceIndex == 0 || o.distanceIndex == a.distanceIndex + 1;
            t.subtitle += sameRange ? a.distance + " Range, " : a.distance + " vs " + o.distance + " Range, ";
        }
        if (f.relative) {
            t.subtitle += "Relative DPS";
        } else {
            std::string wa = ShortWeaponText(a, MarkText::Shortened);
            const std::string wo = ShortWeaponText(o, MarkText::Shortened);
            if (wa != wo) wa += "vs  " + wo;
            t.subtitle += wa + "Weaponry";
        }

        k1 = ShortSkillText(a);
        std::string k2 = ShortSkillText(o);
        if (!k1.empty() || !k2.empty()) {
            if (k1.empty()) k1 = "None  ";
            if (k2.empty()) k2 = "None  ";
            if (k1 != k2) k1 = LessLastTwo(k1) + " vs " + k2;
        }
    }

    if (k1.empty()) {
        t.titleTop = 240;
        t.subtitleTop = 720;
    } else {
        // A third line: the two above move up to make room.
        t.skills = "Skills: " + LessLastTwo(k1);
        t.titleTop = 120;
        t.subtitleTop = 570;
    }
    t.titleSize = TitleSize(t.title.size());
    t.subtitleSize = SubtitleSize(t.subtitle.size());
    t.skillsSize = SkillsSize(t.skills.size());
    return t;
}

TitleFacts TitleFactsOf(const Calculator& c) {
    TitleFacts f;
    f.mode = c.graph.GraphMode.index();
    f.comparing = c.state.Comparing != 0;
    f.relative = RelativeMode(c);
    f.alpha = VesselOf(c, 1);
    f.omega = VesselOf(c, 2);
    return f;
}

void GraphTitle(Calculator& c) {
    GraphWindow& g = c.graph;
    const GraphTitles t = MakeGraphTitles(TitleFactsOf(c));
    g.Title.setCaption(t.title);
    g.Subtitle.setCaption(t.subtitle);
    g.skilltitle.setCaption(t.skills);
    g.Form.setTitle(t.windowTitle);
    g.Title.setTop(t.titleTop);
    g.Subtitle.setTop(t.subtitleTop);
    g.Title.setFontSize(t.titleSize);
    g.Subtitle.setFontSize(t.subtitleSize);
    g.skilltitle.setFontSize(t.skillsSize);
}

} // namespace vantorel
