#pragma once

// A small kit for drawing ships seen from above: smooth symmetric hulls from
// a profile, mirrored pairs, lit metal, glowing engines, windows and the
// starfield behind. The picture is 360 by 360; the ship's axis is x = 180,
// the bow points up and the ship turns about (180, 194).

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>

#include <QSizeF>

#include <initializer_list>
#include <vector>

namespace vantorel::gui {

inline constexpr double Axis = 180.0;
inline constexpr double Pivot = 194.0;

// A hull profile: the half width of the hull at height y, bow to stern.
struct Station {
    double y;
    double half;
};

// A smooth closed outline, symmetric about the axis, through the stations.
QPainterPath Body(const std::vector<Station>& profile);
// A smooth closed curve through the points (an open outline of one side is
// closed by the curve).
QPainterPath Smooth(const std::vector<QPointF>& points);
// The same with straight edges between the stations.
QPainterPath Angular(const std::vector<Station>& profile);
QPainterPath Polygon(std::initializer_list<QPointF> points);
QPainterPath Ellipse(double cx, double cy, double rx, double ry);
// A rounded pod from y0 (front) to y1 (back), `w` wide, centred on cx.
QPainterPath Capsule(double cx, double y0, double y1, double w);
// The mirror image of a port-side shape on the starboard side.
QPainterPath Mirror(const QPainterPath& port);
// The shape and its mirror image.
QPainterPath Both(const QPainterPath& port);

// Hull colours.
namespace palette {
inline const QColor Federation(158, 166, 180);
inline const QColor FederationDark(108, 118, 134);
inline const QColor Klingon(104, 118, 92);
inline const QColor KlingonDark(84, 90, 70);
inline const QColor KlingonRed(170, 52, 36);
inline const QColor NacelleBlue(90, 170, 255);
inline const QColor Bussard(255, 70, 40);
inline const QColor Impulse(255, 130, 60);
inline const QColor Window(255, 232, 170);
inline const QColor KlingonWindow(255, 150, 70);
inline const QColor KlingonGlow(255, 60, 40);
} // namespace palette

class Artist {
  public:
    explicit Artist(QPainter& p) : m_p(p) {}
    QPainter& painter() { return m_p; }

    // Lit metal: light from ahead and a little to port, a sheen along the
    // spine and a dark rim.
    void hull(const QPainterPath& path, const QColor& base);
    // Thin lines (panel seams, ribs) kept inside `clip`.
    void seams(const QPainterPath& clip, const QPainterPath& lines, const QColor& colour, double width = 0.7);
    // A soft light added on top.
    void glow(QPointF at, double radius, const QColor& colour, double strength = 1.0);
    // A glowing strip (engine grille, deflector).
    void light(const QPainterPath& path, const QColor& colour);
    void windows(const std::vector<QPointF>& points, const QColor& colour = palette::Window);
    // A row of windows from a to b, `count` of them, on both sides.
    void windowRow(QPointF a, QPointF b, int count, const QColor& colour = palette::Window);

    // Federation parts. Paired parts are given on the port side and drawn
    // on both.
    void saucer(double cy, double rx, double ry, const QColor& base = palette::Federation, bool impulse = true);
    // A saucer of another outline, with the details of an ellipse about (180, cy).
    void saucer(const QPainterPath& outline, double cy, double rx, double ry, const QColor& base = palette::Federation,
                bool impulse = true);
    void nacelle(double cx, double y0, double y1, double w, const QColor& base = palette::Federation);
    void nacellePair(double cx, double y0, double y1, double w, const QColor& base = palette::Federation);
    // A strut from (x0, y0) to (x1, y1) on the port side, and its mirror.
    void pylonPair(QPointF from, QPointF to, double w, const QColor& base = palette::FederationDark);
    void deflector(double y, double rx, double ry, const QColor& colour = QColor(120, 190, 255));

    // Klingon parts.
    void wingPair(const QPainterPath& port, const QColor& base = palette::Klingon, int feathers = 6);
    void disruptor(QPointF port);
    void klingonNacellePair(double cx, double y0, double y1, double w, const QColor& base = palette::KlingonDark);
    // Red engine glow across the stern at y, `half` wide.
    void klingonEngines(double y, double half);

  private:
    QPainter& m_p;
};

// Deep space with faint gas clouds and stars from a fixed sequence, over a
// picture of `size`; the ship pictures are 360 by 360.
void SpaceBackground(QPainter& p, const QSizeF& size = QSizeF(360, 360));

} // namespace vantorel::gui
