#include "mainwindow/view/shipview.h"

#include "catalogue/pictures.h"
#include "engine/records.h"
#include "gui/twips.h"
#include "mainwindow/shipimage.h"
#include "mainwindow/view/picturefiles.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRectF>

namespace vantorel {

namespace {

// Shown where a picture cannot be read.
const QColor kEmptySpace(10, 12, 20);

// Before the first drawing of a ship the window shows the unrestricted ship.
QString AlphaName(const Calculator& c) {
    const std::string& name = c.main.AlphaImage.image();
    return QString::fromStdString(name.empty() ? std::string("unrestricted") : name);
}

QString AlphaKey(const Calculator& c) { return QStringLiteral("Alpha/") + AlphaName(c); }

QString OmegaKey(const Calculator& c) {
    const std::string& name = c.main.OmegaImage.image();
    return name.empty() ? QString() : QStringLiteral("Omega/") + QString::fromStdString(name);
}

QPointF At(ArcPoint p) { return {p.x, p.y}; }

// Qt counts arc angles anticlockwise from three o'clock; bearings run
// clockwise from the bow.
double QtAngle(double bearing) { return 90.0 - bearing; }

QRectF Ring(double radius) { return {ArcCentre.x - radius, ArcCentre.y - radius, 2.0 * radius, 2.0 * radius}; }

// The outline of one sweep: both edges from the centre and the outer arc.
QPainterPath SectorPath(const ArcSweep& s, double radius) {
    QPainterPath path(At(ArcCentre));
    path.lineTo(At(PointOnBearing(s.from, radius)));
    path.arcTo(Ring(radius), QtAngle(s.from), -(s.to - s.from));
    path.closeSubpath();
    return path;
}

// The band of a sweep between two radii.
QPainterPath BandPath(const ArcSweep& s, double inner, double outer) {
    QPainterPath path(At(PointOnBearing(s.from, outer)));
    path.arcTo(Ring(outer), QtAngle(s.from), -(s.to - s.from));
    path.lineTo(At(PointOnBearing(s.to, inner)));
    path.arcTo(Ring(inner), QtAngle(s.to), s.to - s.from);
    path.closeSubpath();
    return path;
}

QPainterPath InnerArc(const ArcSweep& s, double inner) {
    QPainterPath path(At(PointOnBearing(s.from, inner)));
    path.arcTo(Ring(inner), QtAngle(s.from), -(s.to - s.from));
    return path;
}

void PaintArc(QPainter& p, const ArcGeometry& g) {
    if (g.wholeCircle) {
        p.drawEllipse(Ring(g.radius));
    } else {
        for (int k = 0; k < g.sweepCount; ++k) {
            const ArcSweep& s = g.sweeps[static_cast<std::size_t>(k)];
            if (g.bandInner > 0.0) {
                p.fillPath(BandPath(s, g.bandInner, g.radius), Qt::black);
                p.drawPath(InnerArc(s, g.bandInner));
            }
            p.drawPath(SectorPath(s, g.radius));
        }
    }
    p.drawLine(QPointF(-0.5, g.leaderRow), At(g.leftAnchor));
}

} // namespace

ShipView::ShipView(Calculator& c, QWidget* parent) : QWidget(parent), m_c(c) {
    m_folder = PictureFolder();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFixedSize(sizeHint());

    MainSelection& m = m_c.main;
    const auto pictures = [this] {
        loadPictures();
        update();
    };
    const auto overlays = [this] { update(); };
    m.AlphaImage.setView(pictures);
    m.OmegaImage.setView(pictures);
    for (int i = 0; i <= 11; ++i) {
        m.FiringArc[i].setView(overlays);
        m.CFiringArc[i].setView(overlays);
    }
    m.Cline.setView(overlays);
    loadPictures();
}

ShipView::~ShipView() {
    MainSelection& m = m_c.main;
    m.AlphaImage.setView(nullptr);
    m.OmegaImage.setView(nullptr);
    for (int i = 0; i <= 11; ++i) {
        m.FiringArc[i].setView(nullptr);
        m.CFiringArc[i].setView(nullptr);
    }
    m.Cline.setView(nullptr);
}

// The picture's place on the window, in pixels of the screen it stands on.
QSize ShipView::sizeHint() const { return gui::Twips::forScreen(screen()).rect(m_c.main.AlphaImage).size(); }

void ShipView::loadPictures() {
    loadPicture(AlphaKey(m_c));
    const QString omega = OmegaKey(m_c);
    if (!omega.isEmpty()) loadPicture(omega);
}

void ShipView::loadPicture(const QString& key) {
    if (m_pictures.contains(key)) return;
    const QString ending = key.startsWith(QStringLiteral("Alpha/")) ? QStringLiteral(".jpg") : QStringLiteral(".gif");
    // A missing or broken file leaves a null pixmap: the view shows a plain
    // square, or half of one for Omega. The pictures are read once, at the
    // density of the sharpest screen; on another screen they are scaled
    // smoothly.
    m_pictures.insert(key, ReadPicture(m_folder, key, ending, qGuiApp->devicePixelRatio()));
}

QPixmap ShipView::picture(const QString& key) const { return m_pictures.value(key); }

void ShipView::paintEvent(QPaintEvent*) {
    const MainSelection& m = m_c.main;
    const double side = ShipPicturePixels;
    const QRectF whole(0.0, 0.0, side, side);

    QPainter p(this);
    p.scale(width() / side, height() / side);
    p.setRenderHint(QPainter::SmoothPixmapTransform);

    const QPixmap alpha = picture(AlphaKey(m_c));
    if (alpha.isNull())
        p.fillRect(whole, kEmptySpace);
    else
        p.drawPixmap(whole, alpha, QRectF(alpha.rect()));
    const QString omegaKey = OmegaKey(m_c);
    if (!omegaKey.isEmpty()) {
        const QPixmap omega = picture(omegaKey);
        if (omega.isNull())
            p.fillRect(QRectF(side / 2.0, 0.0, side / 2.0, side), kEmptySpace);
        else
            p.drawPixmap(whole, omega, QRectF(omega.rect()));
    }

    // From here on in the picture's pixel indices: pixel (i, j) is centred
    // on (i, j).
    p.translate(0.5, 0.5);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::white, 1.0));
    p.setBrush(Qt::NoBrush);

    for (int i = 0; i <= 11; ++i) {
        if (!m.CFiringArc[i].visible()) continue;
        const ArcGeometry g = FiringArcGeometry(i);
        p.drawLine(At(g.rightAnchor), QPointF(side - 0.5, g.leaderRow));
    }
    if (m.Cline.visible()) {
        const auto x = [](int twips) { return double(twips - ShipPictureLeft) / TwipsPerPicturePixel; };
        const auto y = [](int twips) { return double(twips - ShipPictureTop) / TwipsPerPicturePixel; };
        p.drawLine(QPointF(x(m.Cline.x1()), y(m.Cline.y1())), QPointF(x(m.Cline.x2()), y(m.Cline.y2())));
    }
    for (int i = 0; i <= 11; ++i)
        if (m.FiringArc[i].visible()) PaintArc(p, FiringArcGeometry(i));
}

} // namespace vantorel
