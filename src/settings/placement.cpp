#include "settings/placement.h"

#include <algorithm>
#include <cstdlib>

namespace vantorel {

namespace {

constexpr int kNoteBelowCaller = 5280;

// Truncating division, a negative maximum counting by its size.
int Step(int maximum, int parts) { return std::abs(maximum / parts) + 1; }

int LeftOf(const SettingsPlaceInput& in, int width) {
    const int l = in.work.left;
    const int r = in.work.left + in.work.width;
    const int before = in.main.left - width;
    const int after = in.main.left + in.main.width;
    if (in.prefers == Beside::Left) {
        if (before >= l) return before;
        if (after + width > r) return r - width;
        return after;
    }
    if (after + width <= r) return after;
    if (before >= l) return before;
    return r - width;
}

} // namespace

SettingsPlace PlaceSettingsWindow(const SettingsPlaceInput& in) {
    SettingsPlace p;
    TwipsRect& w = p.window;
    const int bottom = in.work.top + in.work.height;
    if (in.work.height >= kSettingsTallHeight) {
        w.height = kSettingsTallHeight;
        w.width = kSettingsWidth;
        w.top = w.height + in.main.top <= bottom ? in.main.top : bottom - w.height;
    } else {
        // A short screen: the window takes its whole height and the page
        // scrolls.
        w.height = std::max(in.work.height, 0);
        w.top = in.work.top;
        w.width = kSettingsWidthWithBar;
    }
    const int innerWidth = w.width - in.frameWidth;
    const int innerHeight = std::max(w.height - in.frameHeight, 0);
    p.bar.visible = in.work.height < kSettingsTallHeight;
    p.bar.left = innerWidth - kSettingsBarWidth;
    p.bar.width = kSettingsBarWidth;
    p.bar.height = innerHeight;
    if (p.bar.visible) {
        p.bar.maximum = in.contentsHeight - innerHeight;
        p.bar.smallStep = Step(p.bar.maximum, 16);
        p.bar.largeStep = Step(p.bar.maximum, 4);
    }
    w.left = LeftOf(in, w.width);

    if (in.otherShown && in.otherTop == w.top && in.otherLeft == w.left) {
        const int right = in.work.left + in.work.width;
        w.top = in.otherTop + kSettingsCascade;
        w.left = in.otherLeft + kSettingsCascade + w.width <= right ? in.otherLeft + kSettingsCascade
                                                                    : in.otherLeft - kSettingsCascade;
    }
    return p;
}

NotePlace PlaceNote(const TwipsRect& caller, int noteWidth) {
    return {(caller.left + caller.width + caller.left) / 2 - noteWidth / 2, caller.top + kNoteBelowCaller};
}

} // namespace vantorel
