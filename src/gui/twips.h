#pragma once

// Twips to pixels and back, through the logical DPI of one screen: 1440
// twips to the inch, so 15 to the pixel at 96 dpi. Every place on a window is
// converted here and nowhere else.

#include <QRect>

class QScreen;

namespace vantorel {
class Control;
}

namespace vantorel::gui {

class Twips final {
  public:
    explicit Twips(double dpiX = 96.0, double dpiY = 96.0);
    static Twips forScreen(const QScreen* screen);

    // The scale itself, for drawings that place things between pixels.
    double pixelsPerTwipX() const { return 1.0 / m_perPixelX; }
    double pixelsPerTwipY() const { return 1.0 / m_perPixelY; }

    int toPixelsX(int twips) const;
    int toPixelsY(int twips) const;
    int fromPixelsX(int pixels) const;
    int fromPixelsY(int pixels) const;
    // Both edges are converted, so controls that touch in twips touch on
    // the screen too.
    QRect rect(int left, int top, int width, int height) const;
    QRect rect(const Control& c) const;

  private:
    double m_perPixelX;
    double m_perPixelY;
};

} // namespace vantorel::gui
