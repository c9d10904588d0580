#include "help/splash.h"

#include "help/placement.h"

namespace vantorel {

int SplashPicture(std::int64_t millisecondsSinceMidnight) {
    const std::int64_t fraction = (millisecondsSinceMidnight % 1000 + 1000) % 1000;
    if (fraction <= 330) return 0;
    if (fraction <= 660) return 1;
    return 2;
}

void ShowSplash(SplashWindow& s, std::int64_t millisecondsSinceMidnight, const WorkArea& screen) {
    const int picture = SplashPicture(millisecondsSinceMidnight);
    for (int i = 0; i <= 2; ++i)
        s.Splash[i].setVisible(i == picture);
    const Place p = CentreOnScreen(screen, s.Form.width(), s.Form.height());
    s.Form.setLeft(p.left);
    s.Form.setTop(p.top);
    s.Form.setVisible(true);
}

void CloseSplash(Calculator& c) { c.splash.Form.setVisible(false); }

} // namespace vantorel
