#include "gui/twips.h"

#include "engine/fields.h"

#include <QScreen>

#include <cmath>

namespace vantorel::gui {

namespace {
constexpr double kTwipsPerInch = 1440.0;
int Round(double x) { return static_cast<int>(std::lround(x)); }
} // namespace

Twips::Twips(double dpiX, double dpiY)
    : m_perPixelX(kTwipsPerInch / (dpiX > 0 ? dpiX : 96.0)), m_perPixelY(kTwipsPerInch / (dpiY > 0 ? dpiY : 96.0)) {}

Twips Twips::forScreen(const QScreen* screen) {
    if (!screen) return Twips();
    return Twips(screen->logicalDotsPerInchX(), screen->logicalDotsPerInchY());
}

int Twips::toPixelsX(int twips) const { return Round(twips / m_perPixelX); }
int Twips::toPixelsY(int twips) const { return Round(twips / m_perPixelY); }
int Twips::fromPixelsX(int pixels) const { return Round(pixels * m_perPixelX); }
int Twips::fromPixelsY(int pixels) const { return Round(pixels * m_perPixelY); }

QRect Twips::rect(int left, int top, int width, int height) const {
    const int x = toPixelsX(left);
    const int y = toPixelsY(top);
    return QRect(x, y, toPixelsX(left + width) - x, toPixelsY(top + height) - y);
}

QRect Twips::rect(const Control& c) const { return rect(c.left(), c.top(), c.width(), c.height()); }

} // namespace vantorel::gui
