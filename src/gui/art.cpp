#include "gui/art.h"

#include <QLinearGradient>
#include <QRadialGradient>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace vantorel::gui {

QPainterPath Smooth(const std::vector<QPointF>& pts) {
    QPainterPath path;
    const int n = static_cast<int>(pts.size());
    if (n < 3) return path;
    const auto at = [&](int i) { return pts[static_cast<std::size_t>((i % n + n) % n)]; };
    path.moveTo(at(0));
    for (int i = 0; i < n; ++i) {
        const QPointF p0 = at(i - 1), p1 = at(i), p2 = at(i + 1), p3 = at(i + 2);
        path.cubicTo(p1 + (p2 - p0) / 6.0, p2 - (p3 - p1) / 6.0, p2);
    }
    path.closeSubpath();
    return path;
}

QPainterPath Body(const std::vector<Station>& profile) {
    std::vector<QPointF> pts;
    for (const Station& s : profile)
        pts.emplace_back(Axis + s.half, s.y);
    for (auto it = profile.rbegin(); it != profile.rend(); ++it)
        if (it->half > 0.0) pts.emplace_back(Axis - it->half, it->y);
    return Smooth(pts);
}

QPainterPath Angular(const std::vector<Station>& profile) {
    QPainterPath path;
    path.moveTo(Axis + profile.front().half, profile.front().y);
    for (const Station& s : profile)
        path.lineTo(Axis + s.half, s.y);
    for (auto it = profile.rbegin(); it != profile.rend(); ++it)
        path.lineTo(Axis - it->half, it->y);
    path.closeSubpath();
    return path;
}

QPainterPath Polygon(std::initializer_list<QPointF> points) {
    QPainterPath path;
    bool first = true;
    for (const QPointF& p : points) {
        if (first)
            path.moveTo(p);
        else
            path.lineTo(p);
        first = false;
    }
    path.closeSubpath();
    return path;
}

QPainterPath Ellipse(double cx, double cy, double rx, double ry) {
    QPainterPath path;
    path.addEllipse(QPointF(cx, cy), rx, ry);
    return path;
}

QPainterPath Capsule(double cx, double y0, double y1, double w) {
    QPainterPath path;
    path.addRoundedRect(QRectF(cx - w / 2.0, y0, w, y1 - y0), w / 2.0, w / 2.0);
    return path;
}

QPainterPath Mirror(const QPainterPath& port) { return QTransform(-1, 0, 0, 1, 2.0 * Axis, 0).map(port); }

QPainterPath Both(const QPainterPath& port) {
    QPainterPath both = port;
    both.addPath(Mirror(port));
    return both;
}

void Artist::hull(const QPainterPath& path, const QColor& base) {
    const QRectF r = path.boundingRect();
    QLinearGradient shade(QPointF(r.center().x() - r.width() * 0.2, r.top()),
                          QPointF(r.center().x() + r.width() * 0.2, r.bottom()));
    shade.setColorAt(0.0, base.lighter(122));
    shade.setColorAt(0.45, base);
    shade.setColorAt(1.0, base.darker(195));
    m_p.fillPath(path, shade);

    // Sheen where the light falls on the highest part of the hull.
    const double reach = std::max(r.width(), r.height()) * 0.55;
    QRadialGradient sheen(QPointF(r.center().x() - r.width() * 0.08, r.top() + r.height() * 0.35), reach);
    sheen.setColorAt(0.0, QColor(255, 255, 255, 48));
    sheen.setColorAt(1.0, QColor(255, 255, 255, 0));
    m_p.fillPath(path, sheen);

    m_p.strokePath(path, QPen(base.darker(300), 1.0));
}

void Artist::seams(const QPainterPath& clip, const QPainterPath& lines, const QColor& colour, double width) {
    m_p.save();
    m_p.setClipPath(clip, Qt::IntersectClip);
    m_p.strokePath(lines, QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
    m_p.restore();
}

void Artist::glow(QPointF at, double radius, const QColor& colour, double strength) {
    m_p.save();
    m_p.setCompositionMode(QPainter::CompositionMode_Plus);
    QRadialGradient g(at, radius);
    QColor inner = colour;
    inner.setAlphaF(std::clamp(0.9 * strength, 0.0, 1.0));
    QColor mid = colour;
    mid.setAlphaF(std::clamp(0.35 * strength, 0.0, 1.0));
    QColor outer = colour;
    outer.setAlpha(0);
    g.setColorAt(0.0, inner);
    g.setColorAt(0.35, mid);
    g.setColorAt(1.0, outer);
    m_p.fillRect(QRectF(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius), g);
    m_p.restore();
}

void Artist::light(const QPainterPath& path, const QColor& colour) {
    const QRectF r = path.boundingRect();
    QLinearGradient g(QPointF(r.left(), r.center().y()), QPointF(r.right(), r.center().y()));
    g.setColorAt(0.0, colour.darker(140));
    g.setColorAt(0.5, colour.lighter(118));
    g.setColorAt(1.0, colour.darker(140));
    m_p.fillPath(path, g);
    m_p.save();
    m_p.setCompositionMode(QPainter::CompositionMode_Plus);
    QColor haze = colour;
    haze.setAlpha(60);
    m_p.strokePath(path, QPen(haze, 3.0));
    m_p.restore();
}

void Artist::windows(const std::vector<QPointF>& points, const QColor& colour) {
    m_p.save();
    m_p.setPen(Qt::NoPen);
    QColor c = colour;
    c.setAlpha(220);
    m_p.setBrush(c);
    for (const QPointF& p : points)
        m_p.drawEllipse(p, 0.75, 0.75);
    m_p.restore();
}

void Artist::windowRow(QPointF a, QPointF b, int count, const QColor& colour) {
    std::vector<QPointF> pts;
    for (int i = 0; i < count; ++i) {
        const double t = count == 1 ? 0.5 : double(i) / (count - 1);
        const QPointF p = a + (b - a) * t;
        pts.push_back(p);
        pts.emplace_back(2.0 * Axis - p.x(), p.y());
    }
    windows(pts, colour);
}

void Artist::saucer(double cy, double rx, double ry, const QColor& base, bool impulse) {
    saucer(Ellipse(Axis, cy, rx, ry), cy, rx, ry, base, impulse);
}

void Artist::saucer(const QPainterPath& disc, double cy, double rx, double ry, const QColor& base, bool impulse) {
    hull(disc, base);

    QPainterPath lines;
    lines.addEllipse(QPointF(Axis, cy), rx * 0.9, ry * 0.9);
    lines.addEllipse(QPointF(Axis, cy), rx * 0.55, ry * 0.55);
    for (int k = 0; k < 16; ++k) {
        const double a = k * std::numbers::pi / 8.0 + std::numbers::pi / 16.0;
        lines.moveTo(Axis + std::cos(a) * rx * 0.55, cy + std::sin(a) * ry * 0.55);
        lines.lineTo(Axis + std::cos(a) * rx * 0.9, cy + std::sin(a) * ry * 0.9);
    }
    seams(disc, lines, base.darker(150), 0.6);

    // Phaser strip ring, lighter.
    QPainterPath ring;
    ring.addEllipse(QPointF(Axis, cy), rx * 0.72, ry * 0.72);
    seams(disc, ring, base.lighter(125), 1.2);

    // Bridge dome.
    const QPainterPath dome = Ellipse(Axis, cy - ry * 0.05, rx * 0.16, ry * 0.16);
    hull(dome, base.lighter(112));
    m_p.save();
    m_p.setPen(Qt::NoPen);
    m_p.setBrush(base.lighter(140));
    m_p.drawEllipse(QPointF(Axis, cy - ry * 0.07), rx * 0.05, ry * 0.05);
    m_p.restore();

    std::vector<QPointF> pts;
    for (int k = 0; k < 36; ++k) {
        if (k % 9 == 4) continue;
        const double a = k * std::numbers::pi / 18.0;
        pts.emplace_back(Axis + std::cos(a) * rx * 0.81, cy + std::sin(a) * ry * 0.81);
    }
    windows(pts);

    if (impulse) {
        for (int side : {-1, 1}) {
            const QPointF at(Axis + side * rx * 0.22, cy + ry * 0.93);
            m_p.save();
            m_p.setPen(Qt::NoPen);
            m_p.setBrush(palette::Impulse);
            m_p.drawRoundedRect(QRectF(at.x() - rx * 0.09, at.y() - 1.5, rx * 0.18, 3.0), 1.2, 1.2);
            m_p.restore();
            glow(at, rx * 0.16, palette::Impulse, 0.6);
        }
    }
}

void Artist::nacelle(double cx, double y0, double y1, double w, const QColor& base) {
    const QPainterPath pod = Capsule(cx, y0, y1, w);
    hull(pod, base);
    const double len = y1 - y0;
    // The warp grille along the pod.
    light(Capsule(cx, y0 + len * 0.22, y1 - len * 0.1, w * 0.38), palette::NacelleBlue);
    glow(QPointF(cx, y0 + len * 0.55), w * 1.5, palette::NacelleBlue, 0.22);
    // The collector at the front.
    const QPainterPath collector = Ellipse(cx, y0 + w * 0.55, w * 0.36, w * 0.5);
    QRadialGradient red(QPointF(cx, y0 + w * 0.5), w * 0.5);
    red.setColorAt(0.0, QColor(255, 200, 140));
    red.setColorAt(0.5, palette::Bussard);
    red.setColorAt(1.0, palette::Bussard.darker(200));
    m_p.fillPath(collector, red);
    glow(QPointF(cx, y0 + w * 0.5), w * 1.2, palette::Bussard, 0.7);
    QPainterPath bands;
    bands.moveTo(cx - w / 2, y1 - len * 0.06);
    bands.lineTo(cx + w / 2, y1 - len * 0.06);
    bands.moveTo(cx - w / 2, y0 + len * 0.2);
    bands.lineTo(cx + w / 2, y0 + len * 0.2);
    seams(pod, bands, base.darker(170), 0.8);
}

void Artist::nacellePair(double cx, double y0, double y1, double w, const QColor& base) {
    nacelle(cx, y0, y1, w, base);
    nacelle(2.0 * Axis - cx, y0, y1, w, base);
}

void Artist::pylonPair(QPointF from, QPointF to, double w, const QColor& base) {
    const QPointF d = to - from;
    const double len = std::hypot(d.x(), d.y());
    if (len <= 0.0) return;
    const QPointF n(-d.y() / len * w / 2.0, d.x() / len * w / 2.0);
    const QPainterPath strut = Polygon({from + n, to + n * 0.7, to - n * 0.7, from - n});
    hull(strut, base);
    hull(Mirror(strut), base);
}

void Artist::deflector(double y, double rx, double ry, const QColor& colour) {
    const QPainterPath dish = Ellipse(Axis, y, rx, ry);
    QRadialGradient g(QPointF(Axis, y), std::max(rx, ry));
    g.setColorAt(0.0, QColor(255, 255, 255));
    g.setColorAt(0.4, colour);
    g.setColorAt(1.0, colour.darker(250));
    m_p.fillPath(dish, g);
    glow(QPointF(Axis, y), std::max(rx, ry) * 2.6, colour, 0.6);
}

void Artist::wingPair(const QPainterPath& port, const QColor& base, int feathers) {
    for (const QPainterPath& wing : {port, Mirror(port)}) {
        hull(wing, base);
        // Feathered plating: ribs from the wing root outwards.
        const QRectF r = wing.boundingRect();
        const bool portSide = r.center().x() < Axis;
        const double rootX = portSide ? r.right() : r.left();
        const double tipX = portSide ? r.left() : r.right();
        QPainterPath ribs;
        for (int k = 1; k <= feathers; ++k) {
            const double t = double(k) / (feathers + 1);
            ribs.moveTo(rootX, r.top() + r.height() * (0.15 + 0.7 * t));
            ribs.lineTo(tipX, r.top() + r.height() * (0.05 + 0.9 * t * t));
        }
        seams(wing, ribs, base.darker(160), 0.8);
        QPainterPath edge;
        edge.addPath(wing);
        seams(wing, edge, palette::KlingonRed, 4.0);
    }
}

void Artist::disruptor(QPointF port) {
    for (const QPointF at : {port, QPointF(2.0 * Axis - port.x(), port.y())}) {
        m_p.save();
        m_p.setPen(QPen(palette::KlingonDark.darker(150), 1.0));
        m_p.setBrush(palette::KlingonDark);
        m_p.drawRoundedRect(QRectF(at.x() - 3, at.y() - 14, 6, 20), 2, 2);
        m_p.setBrush(QColor(90, 255, 120));
        m_p.setPen(Qt::NoPen);
        m_p.drawEllipse(QPointF(at.x(), at.y() - 13), 1.6, 1.6);
        m_p.restore();
        glow(QPointF(at.x(), at.y() - 13), 6, QColor(90, 255, 120), 0.5);
    }
}

void SpaceBackground(QPainter& p, const QSizeF& size) {
    // Every measure is laid out on 360 by 360 and stretched to the size.
    const double sx = size.width() / 360.0;
    const double sy = size.height() / 360.0;
    const double scale = std::max(sx, sy);
    const QRectF all(0, 0, size.width(), size.height());
    QRadialGradient deep(QPointF(180 * sx, 194 * sy), 300 * scale);
    deep.setColorAt(0.0, QColor(16, 20, 36));
    deep.setColorAt(1.0, QColor(3, 4, 10));
    p.fillRect(all, deep);

    // Two faint clouds of gas.
    QRadialGradient violet(QPointF(70 * sx, 300 * sy), 150 * scale);
    violet.setColorAt(0.0, QColor(70, 30, 90, 70));
    violet.setColorAt(1.0, QColor(70, 30, 90, 0));
    p.fillRect(all, violet);
    QRadialGradient teal(QPointF(310 * sx, 60 * sy), 130 * scale);
    teal.setColorAt(0.0, QColor(20, 70, 90, 60));
    teal.setColorAt(1.0, QColor(20, 70, 90, 0));
    p.fillRect(all, teal);

    // Stars from a fixed sequence, so that every picture has the same sky;
    // a larger picture has as many more as it has room for.
    std::uint32_t seed = 7919;
    const auto next = [&seed] {
        seed = seed * 1664525u + 1013904223u;
        return (seed >> 8) / double(1u << 24);
    };
    const int stars = static_cast<int>(190 * sx * sy + 0.5);
    p.save();
    p.setPen(Qt::NoPen);
    for (int i = 0; i < stars; ++i) {
        const QPointF at(next() * size.width(), next() * size.height());
        const double b = next();
        const double radius = b > 0.96 ? 1.3 : b > 0.8 ? 0.9 : 0.6;
        const int level = static_cast<int>(110 + 145 * b);
        const double tint = next();
        QColor c(level, level, level);
        if (tint < 0.2) c = QColor(level, level - 20, std::max(0, level - 60));
        if (tint > 0.85) c = QColor(std::max(0, level - 50), level - 20, level);
        p.setBrush(c);
        p.drawEllipse(at, radius, radius);
        if (b > 0.97) {
            p.setPen(QPen(QColor(c.red(), c.green(), c.blue(), 90), 0.6));
            p.drawLine(at - QPointF(4, 0), at + QPointF(4, 0));
            p.drawLine(at - QPointF(0, 4), at + QPointF(0, 4));
            p.setPen(Qt::NoPen);
        }
    }
    p.restore();
}

void Artist::klingonNacellePair(double cx, double y0, double y1, double w, const QColor& base) {
    for (const double x : {cx, 2.0 * Axis - cx}) {
        const QPainterPath pod = Capsule(x, y0, y1, w);
        hull(pod, base);
        const double len = y1 - y0;
        light(Capsule(x, y0 + len * 0.3, y1 - len * 0.08, w * 0.34), palette::KlingonGlow);
        glow(QPointF(x, y1 - len * 0.1), w * 1.4, palette::KlingonGlow, 0.5);
        QPainterPath ribs;
        for (int k = 1; k < 5; ++k) {
            ribs.moveTo(x - w / 2, y0 + len * k / 5.0);
            ribs.lineTo(x + w / 2, y0 + len * k / 5.0 - 3);
        }
        seams(pod, ribs, base.darker(160), 0.7);
    }
}

void Artist::klingonEngines(double y, double half) {
    QPainterPath across;
    across.addRoundedRect(QRectF(Axis - half, y - 2.5, 2 * half, 5), 2.5, 2.5);
    light(across, palette::KlingonGlow);
    glow(QPointF(Axis - half * 0.5, y), half * 0.9, palette::KlingonGlow, 0.6);
    glow(QPointF(Axis + half * 0.5, y), half * 0.9, palette::KlingonGlow, 0.6);
}

} // namespace vantorel::gui
