#include "mainwindow/layout.h"

#include "help/splash.h"

#include <cmath>
#include <cstdlib>

namespace vantorel {

namespace {

constexpr int kSingleWidth = 9950;
constexpr int kCompareWidth = 14115;
constexpr int kDesignHeight = 9765;
constexpr int kHeightWithBar = 10005;
constexpr int kSinglePage = 9825;
constexpr int kComparePage = 13995;
constexpr int kMaximisedSingle = 10500;
constexpr int kMaximisedCompare = 14500;
constexpr int kMaximisedHeight = 10500;
constexpr int kTallScreen = 15330;
constexpr int kAlphaOnTallScreen = 9780;
constexpr int kAlphaOnShortScreen = 9930;

// One control of a vessel column, Alpha's place; Omega's stands
// kOmegaOffset to the right. Labels stand half a margin left of the lists so
// that Omega's longest caption still ends inside the page.
constexpr int kOmegaOffset = 11280;
constexpr int kLabelLeft = 120;
constexpr int kLabelWidth = 2595;
constexpr int kListLeft = 240;
constexpr int kListWidth = 2460;
constexpr int kLabelHeight = 285;
constexpr int kListHeight = 315;
constexpr int kButtonHeight = 330;
constexpr int kCheckHeight = 270;

struct ColumnPlace {
    int left;
    int top;
    int width;
    int height;
};

constexpr ColumnPlace LabelAt(int top) { return {kLabelLeft, top, kLabelWidth, kLabelHeight}; }
constexpr ColumnPlace ListAt(int top) { return {kListLeft, top, kListWidth, kListHeight}; }
constexpr ColumnPlace ButtonAt(int top) { return {kListLeft, top, kListWidth, kButtonHeight}; }

// Top to bottom: ship, ports, power and distance, the windows of the vessel,
// and the shuttle rank last because it shows only with a shuttle array.
constexpr ColumnPlace kShipClassLabel = LabelAt(600);
constexpr ColumnPlace kShipClass = ListAt(885);
constexpr ColumnPlace kShipTierLabel = LabelAt(1260);
constexpr ColumnPlace kShipTier = ListAt(1545);
constexpr ColumnPlace kShipSubclassLabel = LabelAt(1920);
constexpr ColumnPlace kShipSubclass = ListAt(2205);
constexpr ColumnPlace kForwardLabel = LabelAt(2580);
constexpr int kForwardTop = 2865;
constexpr ColumnPlace kRearLabel = LabelAt(4230);
constexpr int kRearTop = 4515;
constexpr int kPortStep = 330;
constexpr ColumnPlace kReset = ButtonAt(5880);
constexpr ColumnPlace kPowerLabel = LabelAt(6270);
constexpr ColumnPlace kPower = ListAt(6555);
constexpr ColumnPlace kDistanceLabel = LabelAt(6930);
constexpr ColumnPlace kDistance = ListAt(7215);
constexpr ColumnPlace kSkills = ButtonAt(7590);
constexpr ColumnPlace kAdvanced = ButtonAt(7950);
constexpr ColumnPlace kShuttleRankLabel = LabelAt(8340);
constexpr ColumnPlace kShuttleRank = ListAt(8625);
constexpr ColumnPlace kShuttleMod = {kListLeft, 8985, kListWidth, kCheckHeight};

void Put(Control& ctl, const ColumnPlace& p, Vessel v) {
    ctl.setLeft(p.left + (v == 2 ? kOmegaOffset : 0));
    ctl.setTop(p.top);
    ctl.setWidth(p.width);
    ctl.setHeight(p.height);
}

// Truncating division, the size of a negative maximum counting as positive.
int Step(int maximum, int parts) { return std::abs(maximum / parts) + 1; }

} // namespace

FitResult Fit(const FitInput& in) {
    FitResult r;
    int width = in.width;
    int height = in.height;
    switch (in.state) {
    case WindowState::Minimised:
        r.followers = Followers::Minimised;
        r.minimised = true;
        r.state = WindowState::Minimised;
        r.width = in.width;
        r.height = in.height;
        return r;
    case WindowState::Normal:
        r.followers = Followers::Normal;
        break;
    case WindowState::Maximised:
        // The window never stays maximised: it comes back at a size a little
        // above the design, which the steps below bring down.
        r.followers = Followers::Normal;
        width = in.comparing ? kMaximisedCompare : kMaximisedSingle;
        height = kMaximisedHeight;
        break;
    }
    r.state = WindowState::Normal;

    int workWidth = in.work.width;
    int workHeight = in.work.height;
    // A window the user made smaller stays so; the first fit measures the
    // design size against the screen alone.
    if (in.fitted) {
        if (height < workHeight) workHeight = height;
        if (width < workWidth) workWidth = width;
    }

    const int needed = in.comparing ? kCompareWidth : kSingleWidth;
    r.contentsWidth = in.comparing ? kComparePage : kSinglePage;
    const int targetWidth = needed + (workHeight < kDesignHeight ? kScrollBarThickness : 0);
    const int targetHeight = targetWidth > workWidth ? kHeightWithBar : kDesignHeight;

    r.vBar.visible = targetHeight > workHeight;
    r.height = r.vBar.visible ? workHeight : targetHeight;
    r.innerHeight = r.height - in.frameHeight;
    r.hBar.top = r.innerHeight - in.hBarHeight;
    r.hBar.height = in.hBarHeight;

    r.hBar.visible = targetWidth > workWidth;
    r.width = r.hBar.visible ? workWidth : targetWidth;
    r.innerWidth = r.width - in.frameWidth;
    r.vBar.left = r.innerWidth - in.vBarWidth;
    r.vBar.width = in.vBarWidth;

    if (r.vBar.visible) {
        r.hBar.width = r.innerWidth - kScrollBarThickness;
        r.hBar.maximum = r.contentsWidth - (r.innerWidth - kScrollBarThickness);
    } else {
        r.hBar.width = r.innerWidth;
        r.hBar.maximum = r.contentsWidth - r.innerWidth;
        r.contentsToTop = true;
    }
    if (r.hBar.visible) {
        r.vBar.maximum = in.contentsHeight - (r.innerHeight - kScrollBarThickness);
    } else {
        r.vBar.maximum = in.contentsHeight - r.innerHeight;
        r.contentsToLeft = true;
    }
    r.vBar.height = r.innerHeight;

    for (BarPlace* bar : {&r.hBar, &r.vBar}) {
        bar->smallStep = Step(bar->maximum, 16);
        bar->largeStep = Step(bar->maximum, 4);
    }
    return r;
}

StartPlace PlaceAtStart(const WorkArea& work, int graphWidth) {
    StartPlace p;
    p.alphaWidth = work.height < kTallScreen ? kAlphaOnShortScreen : kAlphaOnTallScreen;
    p.top = work.top;
    const int mainWidth = kCompareWidth; // the design width, before the single layout narrows it
    if (2 * (mainWidth + p.alphaWidth) <= work.width) {
        p.left = static_cast<int>(std::lround(work.left + work.width - work.width / 2.0));
    } else if (2 * graphWidth + mainWidth <= work.width) {
        p.left = work.left + graphWidth;
    } else if (mainWidth + p.alphaWidth + graphWidth <= work.width) {
        p.left = work.left + p.alphaWidth;
    } else {
        p.left = work.left;
    }
    return p;
}

void LayOutMainWindow(MainSelection& m) {
    for (Vessel v = 1; v <= 2; ++v) {
        Put(m.ShipClasslabel[v], kShipClassLabel, v);
        Put(m.ShipClass[v], kShipClass, v);
        Put(m.ShipTierlabel[v], kShipTierLabel, v);
        Put(m.ShipTier[v], kShipTier, v);
        Put(m.ShipSubclassLabel[v], kShipSubclassLabel, v);
        Put(m.ShipSubclass[v], kShipSubclass, v);
        Put(v == 1 ? m.ForwardWeaponlabel : m.CForwardWeaponlabel, kForwardLabel, v);
        Put(v == 1 ? m.RearWeaponlabel : m.CRearWeaponlabel, kRearLabel, v);
        for (int i = 1; i <= 4; ++i) {
            Put(v == 1 ? m.Forward[i] : m.CForward[i], ListAt(kForwardTop + (i - 1) * kPortStep), v);
            Put(v == 1 ? m.Rear[i] : m.CRear[i], ListAt(kRearTop + (i - 1) * kPortStep), v);
        }
        Put(v == 1 ? m.Reset : m.CReset, kReset, v);
        Put(m.PowerLevellabel[v], kPowerLabel, v);
        Put(m.PowerLevel[v], kPower, v);
        Put(m.TargetDistancelabel[v], kDistanceLabel, v);
        Put(m.TargetDistance[v], kDistance, v);
        Put(m.Skills[v], kSkills, v);
        Put(m.Advanced[v], kAdvanced, v);
        Put(m.ShuttleRankLabel[v], kShuttleRankLabel, v);
        Put(m.ShuttleRank[v], kShuttleRank, v);
        Put(m.ShuttleMod[v], kShuttleMod, v);
        // It stands on the black page, like Simplified.
        m.ShuttleMod[v].setBack(Black);
        m.ShuttleMod[v].setFore(White);
    }
    m.Form1.setBack(Black);
    m.HScroll1.setHeight(kScrollBarThickness);
    m.VScroll1.setWidth(kScrollBarThickness);
}

void HScroll1Changed(Calculator& c) { c.main.Contents.setLeft(-c.main.HScroll1.value()); }
void VScroll1Changed(Calculator& c) { c.main.Contents.setTop(-c.main.VScroll1.value()); }

void ShowMainWindowAtStart(Calculator& c) {
    const StartPlace p = PlaceAtStart({c.workLeft, c.workTop, c.workWidth, c.workHeight}, kGraphWindowWidth);
    c.Alpha().Form.setWidth(p.alphaWidth);
    Window& form = c.main.Form1;
    form.setWidth(kCompareWidth);
    form.setLeft(p.left);
    form.setTop(p.top);
    form.setWidth(kSingleWidth);
    FitWindow(c);
    CloseSplash(c);
    form.setVisible(true);
}

} // namespace vantorel
