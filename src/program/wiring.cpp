// Every field's handler, in one place: which event function a user's action
// on each control runs.

#include "program/program.h"

#include "graph/graph.h"
#include "mainwindow/compare.h"
#include "mainwindow/events.h"
#include "mainwindow/layout.h"
#include "mainwindow/results.h"
#include "settings/interim.h"
#include "settings/settings.h"

namespace vantorel {

namespace {

void ShowResults(Calculator& c, const ArcRows& rows) {
    ShowArcResults(c, rows);
    GraphControl(c);
}

void WireMainWindow(Calculator& c) {
    MainSelection& m = c.main;
    Calculator* calc = &c;
    for (int i = 1; i <= 4; ++i) {
        m.Forward[i].setHandler([calc, i] { PortClicked(*calc, 1, Side::Forward, i); });
        m.Rear[i].setHandler([calc, i] { PortClicked(*calc, 1, Side::Rear, i); });
        m.CForward[i].setHandler([calc, i] { PortClicked(*calc, 2, Side::Forward, i); });
        m.CRear[i].setHandler([calc, i] { PortClicked(*calc, 2, Side::Rear, i); });
    }
    for (Vessel v = 1; v <= 2; ++v) {
        m.ShipClass[v].setHandler([calc, v] { ShipClassClicked(*calc, v); });
        m.ShipTier[v].setHandler([calc, v] { ShipTierClicked(*calc, v); });
        m.ShipSubclass[v].setHandler([calc, v] { ShipSubclassClicked(*calc, v); });
        m.PowerLevel[v].setHandler([calc, v] { PowerLevelClicked(*calc, v); });
        m.TargetDistance[v].setHandler([calc, v] { TargetDistanceClicked(*calc, v); });
        m.ShuttleRank[v].setHandler([calc, v] { ShuttleRankClicked(*calc, v); });
        m.ShuttleMod[v].setHandler([calc, v] { ShuttleModClicked(*calc, v); });
    }
    m.Simplified.setHandler([calc] { SimplifiedClicked(*calc); });
    m.Reset.setHandler([calc] { ResetClicked(*calc, 1); });
    m.CReset.setHandler([calc] { ResetClicked(*calc, 2); });
    m.Compare.setHandler([calc] { CompareClicked(*calc); });
    m.HideCompare.setHandler([calc] { HideCompareClicked(*calc); });
    m.HScroll1.setHandler([calc] { HScroll1Changed(*calc); });
    m.VScroll1.setHandler([calc] { VScroll1Changed(*calc); });
}

void WireSettingsWindows(Calculator& c) {
    Calculator* calc = &c;
    for (Vessel v = 1; v <= 2; ++v) {
        for (int k = 1; k <= 2; ++k) {
            List& type = c.settings[v].WeaponType[k];
            type.setRunsWhenDisabled(true);
            type.setHandler([calc, v, k] { WeaponTypeChanged(*calc, v, k); });
        }
    }
    WireInterimSettingsHandlers(c);
}

} // namespace

void WireHandlers(Calculator& c) {
    c.results.showArcs = ShowArcBoxes;
    c.results.showResults = ShowResults;
    WireMainWindow(c);
    WireSettingsWindows(c);
}

} // namespace vantorel
