#include "mainwindow/shipimage.h"
#include "support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <set>
#include <sstream>
#include <tuple>

namespace vantorel {
namespace {

using testing::Fit;

constexpr Colour Yellow = 0x80FFFF, LightGreen = 0xC0FFC0, LightRed = 0xC0C0FF, MediumGreen = 0x80FF80,
                 MediumRed = 0x8080FF, Green = 0x00FF00, Red = 0x0000FF;

TEST(WeaponCounting, PortTextsToSlots) {
    // clang-format off
    struct Case { const char* name; bool relative; const char* forward[4]; const char* rear[4]; const char* counts; /* per slot 1 to 11 */ } cases[] = {
        {"hints only", true, {}, {}, "00000000000"},
        {"arrays", true, {"Beam Array"}, {"Beam Array"}, "00001010000"},
        {"turrets share a slot", true, {nullptr, "Turret"}, {"Turret"}, "00000200000"},
        {"shuttle array, bank", true, {"Shuttle Beam Array", "Dual Beam Bank"}, {}, "00100000001"},
        {"each cannon kind", true, {"Dual Heavy Cannons", "Dual Cannons", "Cannon", "Empty"}, {}, "11010000000"},
        {"typed nonsense", true, {"beam array", "Beam Array "}, {"Dual Cannons"}, "00000000000"},
        {"phaser arrays", false, {"Phaser Beam Array"}, {"Phaser Beam Array"}, "00001010000"},
        {"phaser shuttle, bank", false, {"Shuttle Phaser Beam Array", "Dual Phaser Beam Bank"}, {}, "00100000001"},
        {"phaser turrets", false, {nullptr, "Phaser Turret"}, {"Phaser Turret"}, "00000200000"},
        {"untyped array, custom", false, {"Beam Array"}, {}, "00000000000"},
        {"plasma launchers", false, {"Plasma Torpedo Launcher"}, {"Plasma Torpedo Launcher", "Plasma Mine Launcher"}, "00000001110"},
        {"eight energy weapons", true, {"Dual Cannons", "Beam Array", "Cannon", "Shuttle Beam Array"}, {"Turret", "Beam Array", "Beam Array", "Turret"}, "01011220001"},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        if (!k.relative) {
            c.Alpha().RelativeDPS.setValue(0);
            c.Alpha().WeaponType[1].setIndex(0); // Phaser
        }
        c.Alpha().WeaponType[2].setIndex(2); // Plasma projectiles
        Fit(c, k.forward, k.rear);
        CountWeapons(c);
        std::string alpha, omega;
        for (int slot = 1; slot <= 11; ++slot) {
            alpha += static_cast<char>('0' + c.state.WeaponCount[slot][1]);
            omega += static_cast<char>('0' + c.state.WeaponCount[slot][2]);
        }
        EXPECT_EQ(std::tuple(alpha, omega), std::tuple(k.counts, "00000000000")) << k.name;
    }
}

TEST(WeaponCounting, OldNamesAndOmegaPorts) {
    Program c;
    c.Alpha().RelativeDPS.setValue(0);
    // A free Omega keeps the damage types it took from Alpha while it
    // followed: Phaser.
    c.Omega().SameAsAlpha.setValue(0);
    c.Alpha().WeaponType[1].setIndex(0);
    c.main.Forward[1].setText("Phaser Beam Array");
    c.main.CForward[2].setText("Phaser Beam Array");
    c.main.CRear[1].setText("Phaser Turret");
    CountWeapons(c);
    EXPECT_EQ(std::tuple(c.state.WeaponCount[5][1], c.state.WeaponCount[5][2]), std::tuple(1, 1));
    EXPECT_EQ(c.state.WeaponCount[6][2], 1);
    // A type change without rebuilding the ports leaves the old names uncounted.
    c.Alpha().WeaponType[1].setEnabled(false);
    c.Alpha().WeaponType[1].setIndex(1);
    c.main.Forward[1].setText("Phaser Beam Array");
    CountWeapons(c);
    EXPECT_EQ(c.state.WeaponCount[5][1], 0);
}

TEST(FiringArcs, BoxesInUseByLoadout) {
    // clang-format off
    struct Case { const char* name; const char* forward[4]; const char* rear[4]; bool simplified; std::set<int> boxes; const char* box5; } cases[] = {
        {"empty", {}, {}, false, {}, nullptr},
        {"only turrets", {"Turret"}, {"Turret"}, false, {5}, "Full 360"},
        {"dc and turrets", {"Dual Cannons"}, {"Turret"}, false, {0, 5}, "Other 315"},
        {"dhc and turrets", {"Dual Heavy Cannons"}, {"Turret"}, false, {0, 5}, "Other 315"},
        {"dbb and turrets", {"Dual Beam Bank", "Dual Cannons"}, {"Turret"}, false, {0, 1, 5}, "Other 270"},
        {"both arrays", {"Beam Array"}, {"Beam Array"}, false, {2, 7, 9}, nullptr},
        {"forward arrays", {"Beam Array"}, {}, false, {4}, nullptr},
        {"forward array, turret", {"Beam Array"}, {"Turret"}, false, {4, 9}, nullptr},
        {"rear arrays, turrets", {"Turret"}, {"Beam Array"}, false, {2, 11}, nullptr},
        {"rear arrays", {}, {"Beam Array"}, false, {11}, nullptr},
        {"cannons, both arrays", {"Cannon", "Beam Array"}, {"Beam Array"}, false, {2, 6, 8, 9}, nullptr},
        {"cannons, forward arrays", {"Cannon", "Beam Array"}, {}, false, {3, 8}, nullptr},
        {"cannons, array, turret", {"Cannon", "Beam Array"}, {"Turret"}, false, {3, 8, 9}, nullptr},
        {"cannons, rear arrays", {"Cannon"}, {"Beam Array"}, false, {2, 6, 10}, nullptr},
        {"cannons", {"Cannon"}, {}, false, {3}, nullptr},
        {"cannons, shuttle array", {"Cannon", "Shuttle Beam Array"}, {}, false, {3, 10}, nullptr},
        {"simplified, empty", {}, {}, true, {2, 7, 9}, nullptr},
        {"simplified, cannons", {"Dual Cannons"}, {"Beam Array"}, true, {2, 7, 9}, nullptr},
        {"torpedoes", {"Quantum Torpedo Launcher"}, {}, false, {12}, nullptr},
        {"mines", {}, {"Quantum Mine Launcher"}, false, {13}, nullptr},
    };
    // clang-format on
    // The loadout goes on Alpha alone, or in a comparison on Omega alone: an
    // arc in use on either vessel shows on both sides.
    auto expectShown = [](const MainSelection& m, bool comparing, const auto& k, const std::string& name) {
        for (int i = 0; i <= 13; ++i) {
            const bool used = k.boxes.count(i) > 0;
            EXPECT_EQ(m.FiringArcDPS[i].visible(), used) << name << ", box " << i;
            EXPECT_EQ(m.FiringArcLabel[i].visible(), used) << name << ", label " << i;
            if (i < 12) { EXPECT_EQ(m.FiringArc[i].visible(), used) << name << ", arc " << i; }
            EXPECT_EQ(m.CFiringArcDPS[i].visible(), comparing && used) << name << ", Omega box " << i;
            if (i < 12) { EXPECT_EQ(m.CFiringArc[i].visible(), comparing && used) << name << ", Omega arc " << i; }
        }
    };
    for (const auto& k : cases) {
        // Every loadout follows every other, so that a box or picture of an
        // arc that is no longer in use is seen to go.
        for (const auto& before : cases) {
            const std::string name = std::string(k.name) + " after " + before.name;
            Program c;
            c.main.Simplified.setValue(before.simplified ? 1 : 0);
            Fit(c, before.forward, before.rear);
            CalculateFiringArcs(c);
            c.main.Reset.press();
            c.main.Simplified.setValue(k.simplified ? 1 : 0);
            Fit(c, k.forward, k.rear);
            CalculateFiringArcs(c);
            for (int i = 0; i <= 13; ++i)
                EXPECT_EQ(c.state.ArcShown[i], k.boxes.count(i) > 0) << name << ", box " << i;
            expectShown(c.main, false, k, name);
            if (k.box5) { EXPECT_EQ(c.main.FiringArcLabel[5].caption(), k.box5) << name; }
            if (k.boxes.empty()) {
                for (int row = 0; row <= 7; ++row)
                    EXPECT_EQ(c.state.ArcDPS[row][1], 0.0f) << name << ", row " << row;
            }
        }
        Program c;
        c.main.Compare.press();
        c.main.Simplified.setValue(k.simplified ? 1 : 0);
        const char* const all[4] = {"Dual Cannons", "Beam Array", "Cannon", "Quantum Torpedo Launcher"};
        const char* const allRear[4] = {"Beam Array", "Turret", "Quantum Mine Launcher", nullptr};
        Fit(c, all, allRear);
        CalculateFiringArcs(c);
        c.main.Reset.press();
        for (int i = 1; i <= 4; ++i) {
            if (k.forward[i - 1]) c.main.CForward[i].setText(k.forward[i - 1]);
            if (k.rear[i - 1]) c.main.CRear[i].setText(k.rear[i - 1]);
        }
        CalculateFiringArcs(c);
        expectShown(c.main, true, k, std::string(k.name) + " on Omega");
        if (k.boxes.count(12)) { EXPECT_GT(c.state.ArcDPS[6][2], 0.0f) << k.name; }
        if (k.boxes.count(13)) { EXPECT_GT(c.state.ArcDPS[7][2], 0.0f) << k.name; }
    }
}

TEST(FiringArcs, EachBoxShowsItsRow) {
    Program c;
    Fit(c, {"Beam Array", "Beam Array"}, {"Beam Array"});
    CalculateFiringArcs(c);
    EXPECT_EQ(c.main.FiringArcDPS[2].caption(),
              PlainText(CalculateDPS(c, {{.beamArrays = 2}, 100, 0}, 1, SkillEffect::Counted)));
    EXPECT_EQ(c.main.FiringArcDPS[7].caption(),
              PlainText(CalculateDPS(c, {{.beamArrays = 3}, 100, 0}, 1, SkillEffect::Counted)));
    EXPECT_EQ(std::tuple(c.main.FiringArcDPS[9].caption(), c.state.ArcDPS[5][1]), std::tuple("100", 100.0f));
    // Simplified shows the front, side and rear rows.
    Program s;
    s.main.Simplified.setValue(1);
    Fit(s, {"Beam Array", "Dual Cannons"}, {});
    CalculateFiringArcs(s);
    EXPECT_EQ(s.main.FiringArcDPS[2].caption(), PlainText(s.state.ArcDPS[0][1]));
    EXPECT_EQ(std::tuple(s.main.FiringArcDPS[7].caption(), s.main.FiringArcDPS[9].caption()), std::tuple("100", "0"));
    EXPECT_EQ(std::tuple(s.main.FiringArcDPS[2].back(), s.main.FiringArcDPS[9].back()), std::tuple(White, DarkGrey));
}

TEST(FiringArcs, EightWeaponsWithDualCannons) {
    Program c;
    Fit(c, {"Dual Cannons", "Dual Cannons", "Beam Array", "Beam Array"}, {"Turret", "Turret", "Turret", "Turret"});
    CalculateFiringArcs(c);
    EXPECT_EQ(std::tuple(c.state.ArcDPS[0][1], c.main.FiringArcDPS[0].caption()), std::tuple(-1.0f, "-1"));
    for (int row = 1; row <= 5; ++row)
        EXPECT_GT(c.state.ArcDPS[row][1], 0.0f) << row;
}

TEST(FiringArcs, TorpedoesAloneUseTheFrontBurst) {
    Program c;
    c.main.Forward[1].setText(std::string(GetDamageType(c, 1, DamageGroup::Projectile)) + "Torpedo Launcher");
    CalculateFiringArcs(c);
    for (int i = 0; i <= 13; ++i)
        EXPECT_EQ(c.state.ArcShown[i], i == 12) << i;
    EXPECT_GT(c.state.ArcDPS[6][1], 0.0f);
}

TEST(FiringArcs, DifferenceColourBands) {
    // clang-format off
    struct Case { const char* name; float alpha, omega; Colour alphaBack, omegaBack; } cases[] = {
        {"even", 100.0f, 100.0f, Yellow, Yellow},
        {"exactly 1.05", 100.0f, 105.0f, Yellow, Yellow},
        {"above 1.05", 100.0f, 106.0f, LightRed, LightGreen},
        {"1.2, Omega ahead", 100.0f, 120.0f, LightRed, LightGreen},
        {"1.2, Alpha ahead", 120.0f, 100.0f, LightGreen, LightRed},
        {"1.3", 130.0f, 100.0f, MediumGreen, MediumRed},
        {"exactly 1.4", 100.0f, 140.0f, MediumRed, MediumGreen},
        {"above 1.4", 100.0f, 150.0f, Red, Green},
        {"both zero", 0.0f, 0.0f, DarkGrey, DarkGrey},
        {"Alpha zero", 0.0f, 50.0f, DarkGrey, Green},
        {"Omega zero", 50.0f, 0.0f, Green, DarkGrey},
        {"missing data", -1.0f, 300.0f, Yellow, Yellow},
    };
    // clang-format on
    for (const auto& k : cases) {
        Program c;
        DifferenceColor(c, 4, k.alpha, k.omega);
        EXPECT_EQ(c.main.FiringArcDPS[4].back(), k.alphaBack) << k.name;
        EXPECT_EQ(c.main.CFiringArcDPS[4].back(), k.omegaBack) << k.name;
    }
    // -1 clears the arc boxes only.
    Program c;
    for (int i = 0; i <= 13; ++i)
        DifferenceColor(c, i, 10.0f, 0.0f);
    DifferenceColor(c, -1, 0.0f, 0.0f);
    for (int i = 0; i <= 11; ++i) {
        EXPECT_EQ(c.main.FiringArcDPS[i].back(), White) << i;
        EXPECT_EQ(c.main.CFiringArcDPS[i].back(), White) << i;
    }
    EXPECT_EQ(c.main.FiringArcDPS[12].back(), Green);
}

TEST(FiringArcs, ComparisonShowsEachSidesOwnValues) {
    Program c;
    CompareClicked(c);
    c.main.Forward[1].setText("Dual Cannons");
    c.main.CForward[1].setText("Beam Array");
    CalculateFiringArcs(c);
    for (int i : {0, 4})
        EXPECT_TRUE(c.main.FiringArcDPS[i].visible() && c.main.CFiringArcDPS[i].visible()) << i;
    EXPECT_EQ(std::tuple(c.state.ArcDPS[4][1], c.main.CFiringArcDPS[4].caption()), std::tuple(0.0f, "100"));
    EXPECT_EQ(std::tuple(c.main.FiringArcDPS[4].caption(), c.main.FiringArcDPS[4].back()), std::tuple("0", DarkGrey));
    EXPECT_EQ(c.main.CFiringArcDPS[4].back(), Green);
    // One dual cannon against one beam array: 138.56 to 100.
    EXPECT_EQ(c.main.FiringArcDPS[0].back(), MediumGreen);
    EXPECT_EQ(c.main.CFiringArcDPS[0].back(), MediumRed);
    // Omega's box 5 copies Alpha's caption.
    Program d;
    CompareClicked(d);
    d.main.Forward[1].setText("Dual Beam Bank");
    d.main.CRear[1].setText("Turret");
    CalculateFiringArcs(d);
    EXPECT_EQ(d.main.FiringArcLabel[5].caption(), "Other 270");
    EXPECT_EQ(d.main.CFiringArcLabel[5].caption(), "Other 270");
    EXPECT_TRUE(d.main.CFiringArcDPS[5].visible());
}

// The texts of the boxes are kept with their inputs and the weapon count with
// the ports; after any change, every box must still show what a fresh
// reading of the rows and bursts gives, whatever the change touched.
TEST(KeptResults, BoxesFollowEveryChange) {
    Program c;
    CompareClicked(c);
    // clang-format off
    struct Step { const char* name; std::function<void(Calculator&)> change; } steps[] = {
        {"weapons", [](Calculator& k) { Fit(k, {"Beam Array", "Dual Cannons", "Dual Beam Bank", "Quantum Torpedo Launcher"},
                                              {"Turret", "Beam Array", "Quantum Mine Launcher"}); }},
        {"omega's weapons", [](Calculator& k) { k.main.CForward[1].setText("Cannon"); k.main.CRear[1].setText("Turret"); }},
        {"fire at will", [](Calculator& k) { k.skills[1].BeamSkillActivated.setValue(1); }},
        {"targets", [](Calculator& k) { k.skills[1].Targets.setText("2"); }},
        // Fire At Will doubles for two targets and more: only the words change.
        {"more targets", [](Calculator& k) { k.skills[1].Targets.setText("3"); }},
        {"rapid fire", [](Calculator& k) { k.skills[1].CannonSkillActivated.setValue(1); }},
        {"beam overload", [](Calculator& k) { k.skills[1].BeamOverloadActivated.setValue(1); }},
        {"torpedo salvo", [](Calculator& k) { k.skills[1].TorpedoSkillActivated.setValue(1); }},
        {"mine pattern", [](Calculator& k) { k.skills[1].MineSkillActivated.setValue(1); }},
        {"power", [](Calculator& k) { k.main.PowerLevel[1].click(3); }},
        {"distance", [](Calculator& k) { k.main.TargetDistance[1].click(4); }},
        {"custom weapons", [](Calculator& k) { k.Alpha().RelativeDPS.setValue(0); }},
        {"weapon mark", [](Calculator& k) { k.Alpha().WeaponMark.click(2); }},
        {"accuracy", [](Calculator& k) { k.Alpha().Accuracy.setValue(1); }},
        {"attack vectors", [](Calculator& k) { k.Alpha().CriticalSettings.setValue(0); k.Alpha().CriticalSkill[1].setText("9"); }},
        {"plasma torpedoes", [](Calculator& k) { k.Alpha().WeaponType[2].click(2); }},
        {"resistance of a script", [](Calculator& k) { k.state.ResistanceFactor[1] = 0.5f; }},
        {"dpw of a script", [](Calculator& k) { k.state.SingleWeaponDPW[5] = 50.0f; }},
        {"count of a script", [](Calculator& k) { k.state.WeaponCount[Slot::Cannons][1] = 3; }},
    };
    // clang-format on
    // Boxes 0, 1, 2, 6, 7 and 9 carry the tooltips of rows 0 to 5.
    const int tipBox[6] = {0, 1, 2, 6, 7, 9};
    for (const Step& step : steps) {
        step.change(c);
        CalculateFiringArcs(c);
        const CalculatorState& s = c.state;
        EXPECT_EQ(s.WeaponCount[Slot::Cannons][1], 0) << step.name;
        for (Vessel v = 1; v <= 2; ++v) {
            const Indexed<Label, 0, 13>& boxes = v == 1 ? c.main.FiringArcDPS : c.main.CFiringArcDPS;
            const int power = GetPowerLevel(c, v, Bonus::With), distance = GetRange(c, v);
            for (int row = 0; row <= 5; ++row) {
                const Label& box = boxes[tipBox[row]];
                EXPECT_EQ(box.tooltip(), CalculateToolTip(c, {RowCounts(s, v, row), power, distance}, v))
                    << step.name << ", vessel " << v << ", row " << row;
                EXPECT_EQ(box.caption(), PlainText(s.ArcDPS[row][v]))
                    << step.name << ", vessel " << v << ", row " << row;
            }
            EXPECT_EQ(boxes[12].tooltip(), BurstToolTip(c, FrontBurstCounts(s, v), v)) << step.name << ", vessel " << v;
            EXPECT_EQ(boxes[13].tooltip(), BurstToolTip(c, RearBurstCounts(s, v), v)) << step.name << ", vessel " << v;
            EXPECT_EQ(boxes[13].caption(), PlainText(s.ArcDPS[7][v])) << step.name << ", vessel " << v;
        }
    }
}

// A picture name that no drawing produces: it stays only if nothing loads.
const std::string kLast = "last";

void ShowLast(Calculator& c) {
    c.main.AlphaImage.setImage(kLast);
    c.main.OmegaImage.setImage(kLast);
}

// Each class's pictures as "tier/row=name" words; "last" where the table has
// no row and the last picture stays.
TEST(ShipImage, EveryRowOfTheShipTableNamesItsPicture) {
    // clang-format off
    struct Case { const char* shipClass; const char* pictures; } cases[] = {
        {"Federation", "1/0=ltcru3 1/1=ltcru2 2/0=cru2 2/3=cru2 3/1=cru3a 4/0=cru4 4/1=esc4 4/2=sci4 5/0=dreadnought 5/1=cru5 1/2=last 4/3=last 5/2=last"},
        {"Cruiser", "1/0=ltcru1 1/1=ltcru2 1/2=ltcru3 2/4=cru2 3/0=cru3 3/1=cru3a 4/2=cru4 5/0=cru5 5/1=cru5a 5/2=dreadnought 5/3=cru3a 5/4=cru4 1/3=last 3/2=last 5/5=last"},
        {"Escort", "2/1=esc2 3/0=esc3 4/2=esc4 5/0=esc5 5/1=esc5a 5/2=esc4 1/0=last 5/3=last"},
        {"Shuttlecraft", "1/0=shuttle1 5/1=shuttle2 3/2=shuttle3 1/3=last"},
        {"Science Vessel", "2/1=sci2 3/0=sci3 3/1=sci3a 4/0=sci4 5/0=sci5 5/1=sci5a 5/2=sci3a 5/3=sci4 1/0=last 3/2=last 5/4=last"},
        {"Allied Vessel", "5/0=allied1 2/1=allied2 4/2=allied3 5/3=last"},
        {"Battle Cruiser", "2/0=bc2 3/1=bc3 4/0=bc4 5/0=bc5 5/1=bc4 1/0=last 5/2=last"},
        {"Bird of Prey", "1/0=bop1 1/1=bop1a 2/0=bop2 3/2=bop3 4/0=bop4 5/0=bop5 5/1=bop1 1/2=last 5/2=last"},
        {"Carrier", "5/0=car5 2/1=car6 5/2=last"},
        {"Raptor", "2/0=rap2 3/1=rap3 4/0=rap4 5/2=rap5 1/0=last"},
        {"Shuttlecraft ", "4/0=kshuttle1 1/1=last"},
    };
    // clang-format on
    Program c;
    for (const Case& k : cases) {
        std::istringstream words(k.pictures);
        for (std::string word; words >> word;) {
            const int tier = word[0] - '0', row = word[2] - '0';
            const std::string name = word.substr(4), id = k.shipClass + word.substr(0, 3).insert(0, "/");
            ShowLast(c);
            DrawShip(c, {k.shipClass, tier, row}, {k.shipClass, tier, row});
            EXPECT_EQ(std::tuple(c.main.AlphaImage.image(), c.main.OmegaImage.image()), std::tuple(name, name)) << id;
            EXPECT_EQ(std::tuple(c.main.ShipImageId[1], c.main.ShipImageId[2]), std::tuple(id, id));
        }
    }
    ShowLast(c);
    DrawShip(c, {"Unrestricted", 3, 2}, {"Unrestricted", 3, 2});
    EXPECT_EQ(std::tuple(c.main.AlphaImage.image(), c.main.ShipImageId[1]), std::tuple("unrestricted", "Unrestricted"));
    // An unknown class shows the unrestricted ship on Alpha only.
    for (const char* shipClass : {"", "Starbase", "Cruiser ", "cruiser"}) {
        ShowLast(c);
        DrawShip(c, {shipClass, 5, 0}, {shipClass, 5, 0});
        EXPECT_EQ(c.main.AlphaImage.image(), "unrestricted") << '"' << shipClass << '"';
        EXPECT_EQ(c.main.OmegaImage.image(), *shipClass ? kLast : "") << '"' << shipClass << '"';
    }
}

TEST(ShipImage, KlingonDrawsAlphaThenOmegaFromTheOneSequence) {
    const char* const names[] = {"bc5", "bc4", "bop1", "bc3", "rap2"};
    Program c;
    Random probe = c.random;
    std::set<std::string> seen;
    for (int draw = 0; draw < 40; ++draw) {
        DrawShip(c, {"Klingon", 1 + draw % 5, draw % 3}, {"Klingon", 5, 0});
        const std::string alpha = names[static_cast<int>(probe.next() * 5.0)];
        const std::string omega = names[static_cast<int>(probe.next() * 5.0)];
        EXPECT_EQ(c.main.AlphaImage.image(), alpha) << "draw " << draw;
        EXPECT_EQ(c.main.OmegaImage.image(), omega) << "draw " << draw;
        seen.insert(alpha);
        seen.insert(omega);
    }
    EXPECT_EQ(seen.size(), 5u);
    // Without a second ship only Alpha draws.
    DrawShip(c, {"Klingon", 5, 0}, {});
    EXPECT_EQ(c.main.AlphaImage.image(), names[static_cast<int>(probe.next() * 5.0)]);
    EXPECT_EQ(c.random.next(), probe.next());
}

TEST(ShipImage, TranslatedOmegaClasses) {
    // clang-format off
    struct Case { const char* alphaClass; int alphaRow; const char* omegaClass; int tier, row; const char *name, *id; /* name "last": no picture for that form and tier */ } cases[] = {
        {"Science Vessel", 0, "Klingon Science Vessel", 3, 0, "bop3", "Bird of Prey/3/0"},
        {"Science Vessel", 0, "Klingon Science Vessel", 2, 0, "bop2", "Bird of Prey/2/0"},
        {"Science Vessel", 0, "Klingon Science Vessel", 4, 1, "bop4", "Bird of Prey/4/1"},
        {"Science Vessel", 0, "Klingon Science Vessel", 1, 1, "bop1a", "Bird of Prey/1/1"},
        {"Science Vessel", 0, "Klingon Science Vessel", 5, 0, "allied3", "Allied Vessel/5/2"},
        {"Science Vessel", 0, "Klingon Science Vessel", 5, 1, "allied3", "Allied Vessel/5/2"},
        {"Allied Vessel", 0, "Federation Allied Vessel", 5, 0, "esc5", "Federation Allied Vessel/5/0"},
        {"Allied Vessel", 1, "Federation Allied Vessel", 5, 0, "cru5", "Federation Allied Vessel/5/0"},
        {"Allied Vessel", 2, "Federation Allied Vessel", 5, 0, "sci5", "Federation Allied Vessel/5/0"},
        {"Allied Vessel", 0, "Federation Allied Vessel", 4, 0, "esc4", "Federation Allied Vessel/4/0"},
        {"Allied Vessel", 1, "Federation Allied Vessel", 4, 0, "cru4", "Federation Allied Vessel/4/0"},
        {"Allied Vessel", 2, "Federation Allied Vessel", 3, 0, "sci3", "Federation Allied Vessel/3/0"},
        {"Allied Vessel", 1, "Federation Allied Vessel", 1, 0, "ltcru1", "Federation Allied Vessel/1/0"},
        {"Allied Vessel", 0, "Federation Allied Vessel", 1, 0, "last", "Federation Allied Vessel/1/0"},
        {"Allied Vessel", 2, "Federation Allied Vessel", 1, 0, "last", "Federation Allied Vessel/1/0"},
    };
    // clang-format on
    Program c;
    for (const Case& k : cases) {
        ShowLast(c);
        DrawShip(c, {k.alphaClass, 5, k.alphaRow}, {k.omegaClass, k.tier, k.row});
        EXPECT_EQ(c.main.OmegaImage.image(), k.name) << k.id << " from Alpha's row " << k.alphaRow;
        EXPECT_EQ(c.main.ShipImageId[2], k.id);
    }
}

TEST(ShipImage, OmegaWithoutATierRowKeepsItsLastPicture) {
    Program c;
    DrawShip(c, {"Cruiser", 5, 0}, {"Escort", 2, 0});
    ASSERT_EQ(c.main.OmegaImage.image(), "esc2");
    DrawShip(c, {"Cruiser", 5, 0}, {"Escort", 1, 0});
    EXPECT_EQ(std::tuple(c.main.AlphaImage.image(), c.main.OmegaImage.image()), std::tuple("cru5", "esc2"));
    EXPECT_EQ(c.main.ShipImageId[2], "Escort/1/0");
}

TEST(ShipImage, ClineFollowsTheIdsAndTheWidestForwardArc) {
    // clang-format off
    struct Case { const char *name, *id1, *id2; bool arc0, arc1, visible; int y1; } cases[] = {
        {"no Omega picture", "Cruiser/5/0", "", true, true, false, 3675},
        {"equal ids", "Cruiser/5/0", "Cruiser/5/0", false, false, false, 3675},
        {"forward 45 in use", "Cruiser/5/0", "Escort/5/0", true, true, true, 3215},
        {"forward 90 in use", "Cruiser/5/0", "Escort/5/0", false, true, true, 3455},
        {"neither", "Cruiser/5/0", "Escort/5/0", false, false, true, 3675},
        {"only forward 45", "Unrestricted", "Klingon/5/0", true, false, true, 3215},
    };
    // clang-format on
    for (const Case& k : cases) {
        Program c;
        c.main.ShipImageId[1] = k.id1;
        c.main.ShipImageId[2] = k.id2;
        c.state.ArcShown[0] = k.arc0;
        c.state.ArcShown[1] = k.arc1;
        c.main.Cline.setVisible(!k.visible);
        DecideCline(c);
        EXPECT_EQ(std::tuple(c.main.Cline.visible(), c.main.Cline.y1()), std::tuple(k.visible, k.y1)) << k.name;
        EXPECT_EQ(c.main.Cline.y2(), 7890) << k.name;
    }
    // Two ships with one picture still show the line; one ship hides it.
    Program c;
    DrawShip(c, {"Federation", 2, 0}, {"Cruiser", 2, 0});
    EXPECT_EQ(c.main.OmegaImage.image(), "cru2");
    DecideCline(c);
    EXPECT_TRUE(c.main.Cline.visible());
    DrawShip(c, {"Cruiser", 4, 0}, {});
    EXPECT_EQ(std::tuple(c.main.AlphaImage.image(), c.main.OmegaImage.image()), std::tuple("cru4", ""));
    EXPECT_EQ(c.main.ShipImageId[2], "");
    DecideCline(c);
    EXPECT_FALSE(c.main.Cline.visible());
}

TEST(ShipImage, ShipImageControlDrawsOneWholePictureForOneShip) {
    // At the start Omega is on its same-as rows: the same ship as Alpha. The
    // line is left alone unless comparing.
    for (int comparing : {0, -1}) {
        Program c;
        c.state.Comparing = comparing;
        c.main.OmegaImage.setImage(kLast);
        c.main.ShipImageId[2] = "Escort/5/0";
        c.main.Cline.setVisible(true);
        ShipImageControl(c);
        EXPECT_EQ(c.main.AlphaImage.image(), "unrestricted") << comparing;
        EXPECT_EQ(c.main.OmegaImage.image(), "") << comparing;
        EXPECT_EQ(c.main.ShipImageId[1], "Unrestricted") << comparing;
        EXPECT_EQ(c.main.ShipImageId[2], "") << comparing;
        EXPECT_EQ(c.main.Cline.visible(), comparing == 0) << comparing;
    }
}

TEST(ShipImage, ArcOverlayGeometry) {
    // clang-format off
    struct Case { int i; double from, to, radius, band; int row, sweeps; double sweepFrom, sweepTo; /* the first sweep */ } cases[] = {
        {0, 0, 22.5, 172, 142, 5, 1, -22.5, 22.5}, {1, 0, 45, 156, 142, 52, 1, -45, 45},
        {2, 0, 55, 142, 0, 100, 1, -55, 55},       {3, 0, 90, 142, 0, 100, 1, -90, 90},
        {4, 0, 125, 142, 0, 197, 1, -125, 125},    {5, 0, 180, 142, 0, 197, 1, 0, 360},
        {6, 55, 90, 157, 0, 148, 2, -90, -55},     {7, 55, 125, 157, 0, 196, 2, -125, -55},
        {8, 90, 125, 157, 0, 244, 2, -125, -90},   {9, 125, 180, 142, 0, 292, 1, 125, 235},
        {10, 90, 180, 142, 0, 292, 1, 90, 270},    {11, 55, 180, 142, 0, 197, 1, 55, 305},
    };
    // clang-format on
    for (const Case& k : cases) {
        SCOPED_TRACE(k.i);
        const ArcGeometry g = FiringArcGeometry(k.i);
        EXPECT_EQ(
            std::tuple(g.fromDegrees, g.toDegrees, g.radius, g.bandInner, g.leaderRow, g.wholeCircle, g.sweepCount),
            std::tuple(k.from, k.to, k.radius, k.band, k.row, k.i == 5, k.sweeps));
        EXPECT_EQ(std::tuple(g.sweeps[0].from, g.sweeps[0].to), std::tuple(k.sweepFrom, k.sweepTo));
        if (k.sweeps == 2) {
            EXPECT_EQ(std::tuple(g.sweeps[1].from, g.sweeps[1].to), std::tuple(-k.sweepTo, -k.sweepFrom));
        }
        // The leaders end on the outer arc, inside the sector, mirrored.
        const double dx = ArcCentre.x - g.leftAnchor.x, dy = ArcCentre.y - g.leftAnchor.y;
        EXPECT_NEAR(std::hypot(dx, dy), k.radius, 1e-9);
        const double bearing = std::atan2(dx, dy) * 180.0 / 3.14159265358979323846;
        EXPECT_TRUE(bearing >= k.from - 1e-9 && bearing <= k.to + 1e-9) << bearing;
        EXPECT_EQ(std::tuple(g.rightAnchor.x, g.rightAnchor.y), std::tuple(359.0 - g.leftAnchor.x, g.leftAnchor.y));
        // Where the row crosses the arc the leader runs straight across.
        if (k.i != 0) { EXPECT_EQ(g.leftAnchor.y, k.row); }
    }
    // Row 5 lies above the reach of Forward 45: its leader meets the corner.
    const ArcGeometry g0 = FiringArcGeometry(0);
    const ArcPoint corner = PointOnBearing(-22.5, 172);
    EXPECT_NEAR(g0.leftAnchor.x, corner.x, 1e-9);
    EXPECT_NEAR(g0.leftAnchor.y, corner.y, 1e-9);
    EXPECT_EQ(FiringArcGeometry(12).sweepCount, 0);
}

} // namespace
} // namespace vantorel
