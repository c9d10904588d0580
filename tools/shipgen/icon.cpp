#include "icon.h"

#include "ships.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cstring>

namespace {

// The icon is laid out on 256 by 256 and drawn at each size anew, so that a
// small icon is sharp rather than a large one shrunk; below 48 pixels it
// drops what would only be noise there: the stars and the arc's edge.
constexpr double kLayout = 256.0;
constexpr QPointF kCentre(128.0, 128.0);
constexpr double kDisc = 120.0;

const ShipDrawing& IconShip() {
    for (const ShipDrawing& ship : Ships())
        if (std::strcmp(ship.name, "cru5") == 0) return ship;
    return Ships().front();
}

// The forward firing arc, 90 degrees about the bow, from the ship's pivot.
QPainterPath ForwardArc(QPointF from, double radius) {
    QPainterPath arc(from);
    arc.arcTo(QRectF(from.x() - radius, from.y() - radius, 2 * radius, 2 * radius), 45.0, 90.0);
    arc.closeSubpath();
    return arc;
}

} // namespace

QImage DrawIcon(int size) {
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter p(&icon);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.scale(size / kLayout, size / kLayout);
    const bool detailed = size >= 48;

    // Deep space in a round window.
    QPainterPath disc;
    disc.addEllipse(kCentre, kDisc, kDisc);
    p.save();
    p.setClipPath(disc);
    if (detailed) {
        p.save();
        p.translate(kCentre.x() - kDisc, kCentre.y() - kDisc);
        SpaceBackground(p, QSizeF(2 * kDisc, 2 * kDisc));
        p.restore();
    } else {
        QRadialGradient deep(kCentre, kDisc);
        deep.setColorAt(0.0, QColor(22, 28, 52));
        deep.setColorAt(1.0, QColor(6, 8, 18));
        p.fillPath(disc, deep);
    }

    // The ship's forward arc, lit as the main window draws a firing arc.
    const QPointF pivot(kCentre.x(), kCentre.y() + 14.0);
    const QPainterPath arc = ForwardArc(pivot, 150.0);
    QRadialGradient beam(pivot, 150.0);
    beam.setColorAt(0.0, QColor(140, 210, 255, 150));
    beam.setColorAt(1.0, QColor(140, 210, 255, 30));
    p.fillPath(arc, beam);
    if (detailed) p.strokePath(arc, QPen(QColor(220, 240, 255, 200), 2.0));

    // The ship, scaled from its 360 by 360 picture so that it turns about
    // the icon's pivot.
    p.save();
    const double shipScale = detailed ? 0.46 : 0.52;
    p.translate(pivot);
    p.scale(shipScale, shipScale);
    p.translate(-Axis, -Pivot);
    Artist art(p);
    IconShip().draw(art);
    p.restore();
    p.restore();

    // A bright rim keeps the round edge clear on any ground.
    QLinearGradient rim(0, kCentre.y() - kDisc, 0, kCentre.y() + kDisc);
    rim.setColorAt(0.0, QColor(214, 222, 236));
    rim.setColorAt(1.0, QColor(96, 108, 130));
    p.setPen(QPen(QBrush(rim), detailed ? 8.0 : 14.0));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(kCentre, kDisc - (detailed ? 4.0 : 7.0), kDisc - (detailed ? 4.0 : 7.0));
    p.end();
    return icon;
}
