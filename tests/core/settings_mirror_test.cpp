// How Omega follows Alpha: the read-only copy while `SameAsAlpha` is
// checked, the free window after it, and the copy buttons of each section.
// Omega's faction and rank lists carry a same-as row in front, so its row
// n + 1 is Alpha's row n at every copy.

#include "settings/mirror.h"
#include "support.h"

#include <gtest/gtest.h>

#include <tuple>

namespace vantorel {
namespace {

using testing::Captain;

// A comparison with a free Omega and the warning out of the way.
void FreeOmega(Calculator& c) {
    c.state.SuppressPowerWarning = true;
    c.main.Compare.press();
    c.Omega().SameAsAlpha.setValue(0);
}

// Alpha customised in every section.
void CustomAlpha(Calculator& c) {
    VesselSettings& a = c.Alpha();
    Captain(c, 1, 3);
    a.CriticalSettings.setValue(0);
    a.CriticalSkill[2].setText("5");
    a.TargetDefense.setText("-");
    a.Accuracy.setValue(1);
    a.ExtrapolatePower.setValue(1);
    a.PowerSkill[4].setText("2");
    a.PowerCaptain.setIndex(1);
    a.RelativeDPS.setValue(0);
    a.WeaponMark.setIndex(4);
    a.WeaponMod[2].setIndex(3);
    a.WeaponType[1].setIndex(3);
    a.WeaponSkill[3].setText("4");
    a.TacticalConsole[2].setIndex(1);
    a.TacticalConsoleMark[2].setIndex(2);
    a.TacticalConsoleRarity[2].setIndex(3);
}

// A row of Omega's faction or rank list as the row of Alpha's it stands for:
// the same-as row, or none, stands for none.
int AlphasRow(const List& list, int shift) { return list.index() < shift ? -1 : list.index() - shift; }

// The values of a window that a mirror copies, with Omega's list shift taken
// out of faction and rank.
std::vector<std::string> Values(const VesselSettings& s, int shift) {
    std::vector<std::string> v = {std::to_string(AlphasRow(s.Faction, shift)),
                                  std::to_string(AlphasRow(s.Rank, shift)),
                                  std::to_string(s.CriticalSettings.value()),
                                  std::to_string(s.CriticalItem.index()),
                                  std::to_string(s.Accuracy.value()),
                                  s.TargetDefense.text(),
                                  s.TargetResistance.text(),
                                  std::to_string(s.ExtrapolatePower.value()),
                                  std::to_string(s.PowerCaptain.index()),
                                  std::to_string(s.WarpCore.value()),
                                  std::to_string(s.RelativeDPS.value()),
                                  std::to_string(s.WeaponMark.index()),
                                  std::to_string(s.WeaponType[1].index()),
                                  std::to_string(s.WeaponType[2].index())};
    for (int i = 1; i <= 3; ++i)
        v.push_back(s.CriticalSkill[i].text() + "/" + std::to_string(s.WeaponMod[i].index()));
    for (int i = 1; i <= 5; ++i)
        v.push_back(s.PowerSkill[i].text());
    for (int i = 1; i <= 8; ++i)
        v.push_back(s.WeaponSkill[i].text());
    for (int i = 1; i <= 4; ++i)
        v.push_back(std::to_string(s.TacticalConsole[i].index()) + "/" +
                    std::to_string(s.TacticalConsoleMark[i].index()) + "/" +
                    std::to_string(s.TacticalConsoleRarity[i].index()));
    return v;
}

// While mirrored only these controls of Omega's window are live.
void ExpectReadOnly(Calculator& c, const std::string& when) {
    const ControlRegistry registry(c);
    for (const ControlRef& ref : registry.all()) {
        if (ref.window != "Omega" || !ref.control || ref.control == ref.form) continue;
        const ValueKind kind = ref.kind();
        if (kind != ValueKind::Flag && kind != ValueKind::Text && kind != ValueKind::List && kind != ValueKind::Button)
            continue;
        const bool live = ref.name == "Omega.SameAsAlpha" || ref.name == "Omega.Close" || ref.name == "Omega.Help[0]" ||
                          ref.name == "Omega.CharacterSettings";
        if (!live) { EXPECT_FALSE(ref.control->enabled()) << when << ": " << ref.name; }
        if (kind == ValueKind::Text || kind == ValueKind::List) {
            EXPECT_EQ(ref.control->back(), Grey) << when << ": " << ref.name;
        }
    }
}

TEST(SameAsAlpha, CheckedCopiesAlphaIntoAReadOnlyOmega) {
    Program c;
    FreeOmega(c);
    c.Omega().Rank.setIndex(6);
    c.Omega().WeaponSkill[1].setText("2");
    CustomAlpha(c);
    c.Omega().SameAsAlpha.setValue(1);
    const VesselSettings& o = c.Omega();
    EXPECT_EQ(Values(o, 1), Values(c.Alpha(), 0));
    EXPECT_EQ(std::tuple(o.Faction.index(), o.Rank.index(), o.Class.index()), std::tuple(2, 4, -1));
    ExpectReadOnly(c, "mirrored");
    for (int i = 1; i <= 4; ++i) {
        EXPECT_FALSE(c.Alpha().CopySettings[i].enabled() || o.CopySettings[i].enabled() || o.Help[i].enabled()) << i;
    }
    // Omega's own ship sets its console limit, though its values are Alpha's.
    EXPECT_EQ(c.state.CannonModifier[2], c.state.CannonModifier[1]);
}

TEST(SameAsAlpha, AlphasChangesReachAMirroredOmega) {
    // clang-format off
    struct Case { const char* name; void (*change)(Calculator&); } cases[] = {
        {"faction and rank", [](Calculator& c) { Captain(c, 1, 5); }},
        {"combat", [](Calculator& c) { c.Alpha().CriticalSettings.setValue(0); c.Alpha().CriticalSkill[3].setText("3"); c.Alpha().CriticalItem.setIndex(2); c.Alpha().TargetResistance.setText("40"); }},
        {"resistance", [](Calculator& c) { c.Alpha().DamageResistance.setValue(1); }},
        {"power", [](Calculator& c) { c.Alpha().ExtrapolatePower.setValue(1); c.Alpha().PowerSkill[1].setText("3"); c.Alpha().WarpCore.setValue(1); }},
        {"weapons", [](Calculator& c) { c.Alpha().RelativeDPS.setValue(0); c.Alpha().WeaponMark.setIndex(7); c.Alpha().WeaponMod[1].setIndex(2); c.Alpha().WeaponSkill[6].setText("2"); c.Alpha().WeaponAccolade[2].setValue(0); }},
        {"consoles", [](Calculator& c) { c.Alpha().RelativeDPS.setValue(0); c.Alpha().TacticalConsole[3].setIndex(5); c.Alpha().TacticalConsoleMark[3].setIndex(9); c.Alpha().TacticalConsoleRarity[3].setIndex(1); }},
        {"a type", [](Calculator& c) { c.Alpha().WeaponType[2].setIndex(5); }},
        {"back to Relative DPS", [](Calculator& c) { c.Alpha().RelativeDPS.setValue(0); c.Alpha().WeaponMark.setIndex(5); c.Alpha().RelativeDPS.setValue(1); }},
        {"everything", CustomAlpha},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        c.state.SuppressPowerWarning = true;
        c.main.Compare.press();
        c.main.Forward[1].setText("Beam Array");
        c.main.CForward[1].setText("Beam Array");
        k.change(c);
        EXPECT_EQ(Values(c.Omega(), 1), Values(c.Alpha(), 0)) << k.name;
        ExpectReadOnly(c, k.name);
        // Same ports, same settings: the same result.
        EXPECT_EQ(c.state.ArcDPS[0][2], c.state.ArcDPS[0][1]) << k.name;
    }
}

TEST(SameAsAlpha, UncheckedOpensTheCopiesAsOmegasOwn) {
    Program c;
    c.state.SuppressPowerWarning = true;
    c.main.Compare.press();
    CustomAlpha(c);
    const std::vector<std::string> copied = Values(c.Omega(), 1);
    c.Omega().SameAsAlpha.setValue(0);
    const VesselSettings& o = c.Omega();
    // Faction and rank go to the same-as row, which reads Alpha's.
    EXPECT_EQ(std::tuple(o.Faction.index(), o.Rank.index(), o.Class.index()), std::tuple(0, 0, 0));
    EXPECT_EQ(std::tuple(GetFaction(c, 2), GetRank(c, 2)), std::tuple(2, 3));
    std::vector<std::string> now = Values(o, 1);
    now[0] = copied[0];
    now[1] = copied[1];
    EXPECT_EQ(now, copied);
    EXPECT_TRUE(o.Faction.enabled() && o.Rank.enabled() && o.Class.enabled() && o.RelativeDPS.enabled());
    EXPECT_TRUE(o.WeaponMark.enabled() && o.WeaponSkill[3].enabled() && o.PowerSkill[4].enabled() &&
                o.CriticalSkill[2].enabled() && o.TargetDefense.enabled());
    EXPECT_EQ(std::tuple(o.WeaponMark.back(), o.CriticalSkill[2].back(), o.CriticalSkillLabel[2].fore()),
              std::tuple(White, White, White));
    for (int i = 1; i <= 4; ++i) {
        EXPECT_TRUE(c.Alpha().CopySettings[i].enabled() && o.CopySettings[i].enabled() && o.Help[i].enabled()) << i;
    }
    // Free, it no longer follows.
    c.Alpha().WeaponSkill[3].setText("1");
    EXPECT_EQ(o.WeaponSkill[3].text(), "4");
}

TEST(SameAsAlpha, UncheckedInRelativeDPSLeavesTheWeaponsClosed) {
    Program c;
    c.main.Compare.press();
    c.main.CForward[1].setText("Beam Array");
    c.Omega().SameAsAlpha.setValue(0);
    c.Omega().DamageResistance.setValue(1);
    EXPECT_FALSE(c.Omega().WeaponMark.enabled());
    EXPECT_TRUE(c.Omega().WeaponType[2].enabled());
    EXPECT_FLOAT_EQ(c.state.ArcDPS[0][2], 89.381f);
    // Checked again, it recalculates with Alpha's settings.
    c.Omega().SameAsAlpha.setValue(1);
    EXPECT_FLOAT_EQ(c.state.ArcDPS[0][2], 100.0f);
}

TEST(SameAsAlpha, HideCompareMirrorsOmegaAgain) {
    Program c;
    FreeOmega(c);
    c.Omega().CriticalSettings.setValue(0);
    c.Omega().CriticalSkill[1].setText("2");
    c.main.HideCompare.press();
    const VesselSettings& o = c.Omega();
    EXPECT_EQ(std::tuple(o.SameAsAlpha.value(), o.CriticalSettings.value(), o.CriticalSkill[1].text()),
              std::tuple(1, 1, ""));
    c.main.Compare.press();
    ExpectReadOnly(c, "next comparison");
}

TEST(CopySettings, EachSectionFromTheOtherVessel) {
    // clang-format off
    struct Case { const char* name; void (*setUp)(Calculator&); Vessel into; Section section; void (*check)(const Calculator&, const std::string&); } cases[] = {
        {"character into Omega", [](Calculator& c) { Captain(c, 1, 3); c.Alpha().Class.setIndex(2); }, 2, Section::Character,
         [](const Calculator& c, const std::string& n) { const VesselSettings& o = c.Omega(); EXPECT_EQ(std::tuple(o.Faction.index(), o.Rank.index(), o.Class.index(), GetRank(c, 2)), std::tuple(2, 4, 3, 3)) << n; }},
        {"character into Omega, unrestricted Alpha", [](Calculator& c) { c.Omega().Rank.setIndex(3); }, 2, Section::Character,
         [](const Calculator& c, const std::string& n) { const VesselSettings& o = c.Omega(); EXPECT_EQ(std::tuple(o.Faction.index(), o.Rank.index(), o.Class.index(), GetRank(c, 2)), std::tuple(0, 0, 0, 100)) << n; }},
        {"character into Alpha from Omega's same-as rows", [](Calculator& c) { Captain(c, 0, 4); }, 1, Section::Character,
         [](const Calculator& c, const std::string& n) { const VesselSettings& a = c.Alpha(); EXPECT_EQ(std::tuple(a.Faction.index(), a.Rank.index(), a.Class.index()), std::tuple(0, 4, 0)) << n; }},
        {"character into Alpha", [](Calculator& c) { Captain(c, 0, 7); c.Omega().Faction.setIndex(2); c.Omega().Rank.setIndex(3); }, 1, Section::Character,
         [](const Calculator& c, const std::string& n) { const VesselSettings& a = c.Alpha(); EXPECT_EQ(std::tuple(a.Faction.text(), a.Rank.text(), GetRank(c, 1)), std::tuple("Klingon", "Sergeant", 2)) << n; }},
        {"character into an unrestricted Alpha", [](Calculator& c) { c.Omega().Faction.setIndex(2); c.Omega().Rank.setIndex(3); }, 1, Section::Character,
         [](const Calculator& c, const std::string& n) { const VesselSettings& a = c.Alpha(); EXPECT_EQ(std::tuple(a.Faction.index(), a.Rank.index(), a.Faction.enabled(), GetRank(c, 1)), std::tuple(1, 2, false, 100)) << n; }},
        {"custom combat into a default vessel", [](Calculator& c) { Captain(c, 0, 1); c.Omega().Rank.setIndex(5); c.Omega().CriticalSettings.setValue(0); c.Omega().CriticalSkill[3].setText("6"); c.Omega().TargetDefense.setText("-20"); c.Omega().Accuracy.setValue(1); }, 1, Section::Combat,
         [](const Calculator& c, const std::string& n) { const VesselSettings& a = c.Alpha(); EXPECT_EQ(std::tuple(a.CriticalSettings.value(), a.CriticalSkill[1].text(), a.CriticalSkill[3].text(), a.TargetDefense.text(), a.Accuracy.value()), std::tuple(0, "9", "N/A", "-20", 1)) << n; }},
        {"default combat into a custom vessel", [](Calculator& c) { c.Alpha().CriticalSettings.setValue(0); c.Alpha().CriticalSkill[1].setText("3"); c.Omega().DamageResistance.setValue(1); }, 1, Section::Combat,
         [](const Calculator& c, const std::string& n) { const VesselSettings& a = c.Alpha(); EXPECT_EQ(std::tuple(a.CriticalSettings.value(), a.CriticalSkill[1].text(), a.DamageResistance.value(), a.TargetDefense.enabled()), std::tuple(1, "", 1, false)) << n; }},
        {"power on", [](Calculator& c) { c.Alpha().ExtrapolatePower.setValue(1); c.Alpha().PowerSkill[5].setText("12"); c.Alpha().WarpCore.setValue(1); }, 2, Section::Power,
         [](const Calculator& c, const std::string& n) { const VesselSettings& o = c.Omega(); EXPECT_EQ(std::tuple(o.ExtrapolatePower.value(), o.PowerSkill[5].text(), o.WarpCore.value(), o.PowerSkill[1].enabled()), std::tuple(1, "12", 1, true)) << n; }},
        {"power off", [](Calculator& c) { c.Omega().ExtrapolatePower.setValue(1); }, 2, Section::Power,
         [](const Calculator& c, const std::string& n) { EXPECT_EQ(std::tuple(c.Omega().ExtrapolatePower.value(), c.Omega().PowerSkill[1].text()), std::tuple(0, "")) << n; }},
        {"weapons from a higher rank", [](Calculator& c) { Captain(c, 0, 7); c.Alpha().RelativeDPS.setValue(0); c.Alpha().WeaponMark.setIndex(13); c.Alpha().WeaponType[1].setIndex(5); c.Alpha().WeaponMod[3].setIndex(2); c.Alpha().TacticalConsole[1].setIndex(2); c.Alpha().TacticalConsoleMark[1].setIndex(10); c.Alpha().TacticalConsoleRarity[1].setIndex(3); c.Omega().Rank.setIndex(2); c.Omega().WeaponType[1].setIndex(1); }, 2, Section::Weapon,
         [](const Calculator& c, const std::string& n) { const VesselSettings& o = c.Omega(); EXPECT_EQ(std::tuple(o.WeaponMark.text(), o.WeaponType[1].text(), o.WeaponMod[3].index(), o.TacticalConsole[1].index(), o.TacticalConsoleMark[1].text(), o.TacticalConsoleRarity[1].text()), std::tuple("Mark II (Max)", "Disruptor Weapons", 2, 2, "Max", "V.Rare(+11)")) << n; }},
        {"weapons, a rarity too high for the mark", [](Calculator& c) { c.Alpha().RelativeDPS.setValue(0); c.Alpha().TacticalConsole[1].setIndex(2); c.Alpha().TacticalConsoleMark[1].setIndex(10); c.Alpha().TacticalConsoleRarity[1].setIndex(3); c.Omega().TacticalConsole[1].setIndex(1); c.Omega().TacticalConsoleMark[1].setIndex(12); }, 2, Section::Weapon,
         [](const Calculator& c, const std::string& n) { const VesselSettings& o = c.Omega(); EXPECT_EQ(std::tuple(o.TacticalConsoleMark[1].text(), o.TacticalConsoleRarity[1].text()), std::tuple("Mk X", "V.Rare(+26)")) << n; }},
        {"weapons in Relative DPS: the projectile type only", [](Calculator& c) { c.Alpha().WeaponType[2].setIndex(4); }, 2, Section::Weapon,
         [](const Calculator& c, const std::string& n) { EXPECT_EQ(std::tuple(c.Omega().WeaponType[2].index(), c.Omega().WeaponMark.index()), std::tuple(4, -1)) << n; }},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        FreeOmega(c);
        k.setUp(c);
        c.settings[k.into].CopySettings[static_cast<int>(k.section)].press();
        k.check(c, k.name);
    }
}

TEST(CopySettings, TheButtonsShowWithTheComparisonAndWorkWhileFree) {
    Program c;
    const VesselSettings& a = c.Alpha();
    const VesselSettings& o = c.Omega();
    EXPECT_EQ(std::tuple(a.CopySettings[1].visible(), o.CopySettings[1].visible(), o.CopySettings[1].enabled()),
              std::tuple(false, true, false));
    c.main.Compare.press();
    EXPECT_EQ(std::tuple(a.CopySettings[4].visible(), a.CopySettings[4].enabled()), std::tuple(true, false));
    c.Omega().SameAsAlpha.setValue(0);
    EXPECT_TRUE(a.CopySettings[4].enabled() && o.CopySettings[4].enabled());
    c.main.HideCompare.press();
    EXPECT_EQ(std::tuple(a.CopySettings[4].visible(), a.CopySettings[4].enabled()), std::tuple(false, false));
}

} // namespace
} // namespace vantorel
