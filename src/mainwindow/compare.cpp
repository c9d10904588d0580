#include "mainwindow/compare.h"

#include "catalogue/cascade.h"
#include "catalogue/pictures.h"
#include "catalogue/ports.h"
#include "engine/arcs.h"
#include "engine/modifiers.h"
#include "graph/graph.h"
#include "mainwindow/layout.h"
#include "settings/settings.h"

namespace vantorel {

namespace {

void ShowOmegaColumn(MainSelection& m, bool on) {
    for (Control* ctl :
         std::initializer_list<Control*>{&m.ShipClass[2], &m.ShipTier[2], &m.ShipSubclass[2], &m.PowerLevel[2],
                                         &m.TargetDistance[2], &m.Skills[2], &m.Advanced[2], &m.CReset})
        ctl->setVisible(on);
}

} // namespace

void CompareClicked(Calculator& c) {
    MainSelection& m = c.main;
    c.state.Comparing = -1;
    ShowOmegaColumn(m, true);
    ModifiedDPS(c, 2);
    ShipTierControl(c);
    ShipSubclassControl(c);
    ShipControl(c);

    m.Form1.setWidth(14115);
    FitWindow(c);

    m.Primarylabel.setVisible(true);
    m.Compare.setVisible(false);
    m.HideCompare.setVisible(true);
    m.Note.setLeft(3720);
    m.Advanced[2].setVisible(true);

    if (c.Alpha().Form.visible()) PositionAlpha(c);
    if (c.graph.Form.visible()) DisplayGraph(c);

    for (int i = 1; i <= 4; ++i)
        c.Alpha().CopySettings[i].setVisible(true);
}

void HideCompareClicked(Calculator& c) {
    MainSelection& m = c.main;
    c.state.Comparing = 0;

    c.Omega().Form.setVisible(false);
    c.Omega().SameAsAlpha.setValue(1);
    c.skills[2].Form.setVisible(false);
    c.skills[2].SameAsAlpha.setValue(1);
    m.Advanced[2].setCaption("Show Settings");
    // The skills window is hidden too, so its button offers to show it again.
    m.Skills[2].setCaption("Activate Skills");

    m.Form1.setWidth(9950);
    FitWindow(c);

    m.Primarylabel.setVisible(false);
    m.HideCompare.setVisible(false);
    m.Compare.setVisible(true);
    ShowOmegaColumn(m, false);

    ClearDifferenceColours(c);
    m.Cline.setVisible(false);
    m.Note.setLeft(2880);

    m.ShuttleRank[2].setVisible(false);
    m.ShuttleRankLabel[2].setVisible(false);
    m.ShuttleMod[2].setVisible(false);
    for (int i = 0; i <= 13; ++i) {
        m.CFiringArcLabel[i].setVisible(false);
        m.CFiringArcDPS[i].setVisible(false);
        if (i <= 11) m.CFiringArc[i].setVisible(false);
    }
    for (int i = 1; i <= 4; ++i) {
        m.CForward[i].setText(ForwardHint(i));
        m.CRear[i].setText(RearHint(i));
        m.CForward[i].setVisible(false);
        m.CRear[i].setVisible(false);
        c.Alpha().CopySettings[i].setVisible(false);
    }

    // Their handlers stand still now that Omega is off show, so the lists
    // below them keep their rows until the next comparison rebuilds them.
    m.ShipClass[2].setIndex(0);
    m.TargetDistance[2].setIndex(0);
    m.PowerLevel[2].setIndex(0);

    for (int row = 0; row <= 5; ++row)
        c.state.ArcDPS[row][2] = 0.0f;

    if (c.Alpha().Form.visible()) PositionAlpha(c);
    if (c.graph.Form.visible()) DisplayGraph(c);

    GraphReset(c);
    ShipImageControl(c);
    CalculateFiringArcs(c);
}

} // namespace vantorel
