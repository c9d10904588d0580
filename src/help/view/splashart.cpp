#include "help/view/splashart.h"

#include "gui/art.h"
#include "gui/binding.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QSize>

#include <cmath>
#include <numbers>

namespace vantorel {

namespace {

using gui::Artist;
using gui::Axis;
using gui::Body;
using gui::Both;
using gui::Polygon;
using P = QPointF;
namespace pal = gui::palette;

// The scenes are laid out on the window's design size in pixels and
// stretched to the size they are given.
constexpr double kWidth = 554.0;
constexpr double kHeight = 347.0;

// ---- Ships, in the kit's frame: 360 by 360, bow up, axis x = 180 -------------

void Cruiser(Artist& a) {
    a.pylonPair(P(168, 236), P(118, 262), 9);
    a.nacellePair(114, 200, 326, 17);
    const QPainterPath engineering = Body({{172, 15}, {190, 24}, {236, 25}, {280, 18}, {306, 8}});
    a.hull(engineering, pal::Federation);
    QPainterPath seams;
    for (double y : {212.0, 246.0, 278.0}) {
        seams.moveTo(Axis - 26, y);
        seams.lineTo(Axis + 26, y);
    }
    a.seams(engineering, seams, pal::Federation.darker(150), 0.6);
    a.windowRow(P(Axis - 15, 196), P(Axis - 12, 282), 8);
    a.deflector(180, 10, 5);
    a.hull(Body({{142, 9}, {156, 10}, {172, 13}}), pal::Federation);
    a.saucer(108, 80, 70);
}

void Escort(Artist& a) {
    // A compact arrowhead with its warp engines close along the stern.
    a.pylonPair(P(140, 236), P(104, 246), 10);
    a.nacellePair(100, 206, 322, 18);
    const QPainterPath hull = Body({{62, 4}, {84, 28}, {130, 60}, {186, 72}, {236, 64}, {272, 44}, {294, 18}});
    a.hull(hull, pal::Federation);
    QPainterPath seams;
    seams.moveTo(Axis, 96);
    seams.lineTo(Axis, 284);
    seams.moveTo(Axis - 62, 196);
    seams.quadTo(Axis, 160, Axis + 62, 196);
    seams.moveTo(Axis - 52, 246);
    seams.quadTo(Axis, 216, Axis + 52, 246);
    a.seams(hull, seams, pal::Federation.darker(150), 0.7);
    a.hull(gui::Ellipse(Axis, 150, 14, 18), pal::Federation.lighter(110));
    a.windowRow(P(Axis - 44, 178), P(Axis - 30, 256), 7);
    a.deflector(96, 16, 5);
    for (int side : {-1, 1})
        a.glow(P(Axis + side * 22, 292), 16, pal::Impulse, 0.7);
}

void BirdOfPrey(Artist& a) {
    // Wings swept down for the attack, a disruptor at each tip.
    const QPainterPath wing =
        Polygon({P(166, 188), P(104, 192), P(44, 230), P(34, 262), P(50, 268), P(112, 242), P(168, 238)});
    a.wingPair(wing, pal::Klingon, 6);
    a.disruptor(P(40, 250));

    const QPainterPath body = Body({{164, 16}, {186, 33}, {226, 38}, {258, 29}, {274, 12}});
    a.hull(body, pal::Klingon);
    QPainterPath plates;
    for (double y : {196.0, 218.0, 240.0}) {
        plates.moveTo(Axis - 38, y + 6);
        plates.quadTo(Axis, y - 6, Axis + 38, y + 6);
    }
    a.seams(body, plates, pal::Klingon.darker(165), 0.8);
    QPainterPath chevron;
    chevron.moveTo(Axis - 22, 210);
    chevron.lineTo(Axis, 194);
    chevron.lineTo(Axis + 22, 210);
    a.seams(body, chevron, pal::KlingonRed, 2.5);
    a.klingonEngines(266, 16);

    // The neck and the command section at its head.
    const QPainterPath neck = Body({{92, 6}, {130, 7}, {168, 11}});
    a.hull(neck, pal::Klingon);
    a.hull(Both(Polygon({P(170, 74), P(158, 46), P(176, 64)})), pal::Klingon.darker(125));
    const QPainterPath head = Body({{52, 5}, {60, 15}, {74, 21}, {88, 17}, {98, 7}});
    a.hull(head, pal::Klingon.darker(108));
    QPainterPath stripe;
    stripe.moveTo(Axis, 58);
    stripe.lineTo(Axis, 96);
    a.seams(head, stripe, pal::KlingonRed, 1.6);
    a.windowRow(P(Axis - 13, 76), P(Axis - 8, 70), 2, pal::KlingonWindow);
    a.glow(P(Axis, 56), 12, QColor(90, 255, 120), 0.45);
}

// Draws a ship of the kit with its pivot at `at`, turned by `degrees`
// (clockwise from bow up) and scaled.
void Ship(QPainter& p, void (*draw)(Artist&), P at, double degrees, double scale) {
    p.save();
    p.translate(at);
    p.rotate(degrees);
    p.scale(scale, scale);
    p.translate(-Axis, -gui::Pivot);
    Artist artist(p);
    draw(artist);
    p.restore();
}

// ---- The sky, the planet and the weapons --------------------------------------

void Planet(QPainter& p, P centre, double radius) {
    QRadialGradient surface(centre + P(radius * 0.35, -radius * 0.4), radius * 1.3);
    surface.setColorAt(0.0, QColor(120, 170, 210));
    surface.setColorAt(0.45, QColor(44, 96, 140));
    surface.setColorAt(0.8, QColor(14, 34, 60));
    surface.setColorAt(1.0, QColor(4, 8, 16));
    p.setPen(Qt::NoPen);
    p.setBrush(surface);
    p.drawEllipse(centre, radius, radius);

    // Bands of cloud, kept on the disc.
    QPainterPath disc;
    disc.addEllipse(centre, radius, radius);
    p.save();
    p.setClipPath(disc);
    p.setBrush(Qt::NoBrush);
    for (int k = 0; k < 7; ++k) {
        const double y = centre.y() - radius * 0.9 + k * radius * 0.28;
        p.setPen(QPen(QColor(230, 240, 255, 26 + 6 * (k % 3)), radius * 0.05));
        QPainterPath band;
        band.moveTo(centre.x() - radius, y);
        band.cubicTo(centre.x() - radius * 0.3, y - radius * 0.12, centre.x() + radius * 0.3, y + radius * 0.1,
                     centre.x() + radius, y - radius * 0.04);
        p.drawPath(band);
    }
    p.restore();

    // The lit rim of the atmosphere.
    QRadialGradient air(centre, radius * 1.08);
    air.setColorAt(0.9, QColor(90, 170, 255, 0));
    air.setColorAt(0.95, QColor(120, 190, 255, 110));
    air.setColorAt(1.0, QColor(90, 170, 255, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(air);
    p.drawEllipse(centre, radius * 1.08, radius * 1.08);
}

void Sun(QPainter& p, P at, double radius) {
    QRadialGradient glare(at, radius);
    glare.setColorAt(0.0, QColor(255, 250, 235, 255));
    glare.setColorAt(0.08, QColor(255, 236, 190, 220));
    glare.setColorAt(0.3, QColor(255, 190, 120, 60));
    glare.setColorAt(1.0, QColor(255, 160, 80, 0));
    p.save();
    p.setCompositionMode(QPainter::CompositionMode_Plus);
    p.fillRect(QRectF(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius), glare);
    p.restore();
}

// A beam from `from` to `to`, bright in the middle, with a flash where it hits.
void Beam(QPainter& p, P from, P to, const QColor& colour, double width) {
    p.save();
    p.setCompositionMode(QPainter::CompositionMode_Plus);
    QColor haze = colour;
    haze.setAlpha(70);
    p.setPen(QPen(haze, width * 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(from, to);
    p.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(from, to);
    p.setPen(QPen(QColor(255, 255, 240), width * 0.35, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(from, to);
    p.restore();
}

void Bolt(QPainter& p, P at, double degrees, const QColor& colour) {
    p.save();
    p.translate(at);
    p.rotate(degrees);
    p.setCompositionMode(QPainter::CompositionMode_Plus);
    QRadialGradient g(P(0, 0), 14);
    g.setColorAt(0.0, QColor(255, 255, 255, 230));
    g.setColorAt(0.25, colour);
    QColor outer = colour;
    outer.setAlpha(0);
    g.setColorAt(1.0, outer);
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawEllipse(P(0, 0), 14, 4);
    p.restore();
}

// A shield struck: a thin bright shell around the ship, strongest at `hit`.
void ShieldFlash(QPainter& p, P centre, double rx, double ry, P hit) {
    p.save();
    p.setCompositionMode(QPainter::CompositionMode_Plus);
    QRadialGradient g(hit, rx * 1.2);
    g.setColorAt(0.0, QColor(140, 210, 255, 200));
    g.setColorAt(1.0, QColor(60, 120, 255, 0));
    p.setPen(QPen(QBrush(g), 3.0));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(centre, rx, ry);
    p.restore();
    Artist(p).glow(hit, 26, QColor(160, 220, 255), 0.9);
}

// A firing arc: a wedge about `centre` facing `bearing` (0 ahead), `width`
// degrees wide, in the arc colours of the main window's diagram.
void Arc(QPainter& p, P centre, double radius, double bearing, double width, const QColor& colour) {
    QPainterPath wedge;
    wedge.moveTo(centre);
    // Qt counts angles anticlockwise from three o'clock.
    const double start = 90.0 - bearing - width / 2.0;
    wedge.arcTo(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), start, width);
    wedge.closeSubpath();
    QRadialGradient fill(centre, radius);
    QColor inner = colour;
    inner.setAlpha(20);
    QColor outer = colour;
    outer.setAlpha(95);
    fill.setColorAt(0.0, inner);
    fill.setColorAt(1.0, outer);
    p.setPen(QPen(colour.lighter(130), 1.2));
    p.setBrush(fill);
    p.drawPath(wedge);
}

// The program's name and what it is, in the captions' face, with a shadow.
void Title(QPainter& p, const QRectF& box, Qt::Alignment align) {
    QFont name = gui::FrontierFont(12);
    name.setPixelSize(38);
    name.setLetterSpacing(QFont::AbsoluteSpacing, 2.0);
    QFont line = gui::FrontierFont(12);
    line.setPixelSize(14);
    line.setLetterSpacing(QFont::AbsoluteSpacing, 1.0);

    const QRectF nameBox(box.left(), box.top(), box.width(), 46);
    const QRectF lineBox(box.left(), box.top() + 46, box.width(), 22);
    p.setFont(name);
    p.setPen(QColor(0, 0, 0, 180));
    p.drawText(nameBox.translated(2, 2), align | Qt::AlignVCenter, QStringLiteral("VANTOREL 4.0"));
    p.setPen(QColor(245, 245, 250));
    p.drawText(nameBox, align | Qt::AlignVCenter, QStringLiteral("VANTOREL 4.0"));
    p.setFont(line);
    p.setPen(QColor(0, 0, 0, 180));
    p.drawText(lineBox.translated(1, 1), align | Qt::AlignVCenter, QStringLiteral("STARSHIP WEAPONS CALCULATOR"));
    p.setPen(QColor(255, 204, 102));
    p.drawText(lineBox, align | Qt::AlignVCenter, QStringLiteral("STARSHIP WEAPONS CALCULATOR"));
}

void Departure(QPainter& p) {
    Sun(p, P(470, 40), 150);
    Planet(p, P(90, 400), 250);
    Ship(p, Cruiser, P(330, 190), 38, 0.62);
    Artist(p).glow(P(330 - 38, 190 + 52), 30, pal::NacelleBlue, 0.25);
    Title(p, QRectF(20, 18, 360, 70), Qt::AlignLeft);
}

void Engagement(QPainter& p) {
    Sun(p, P(36, 318), 130);
    const P prey(168, 176);
    const P escort(440, 112);
    Ship(p, BirdOfPrey, prey, 62, 0.6);
    Ship(p, Escort, escort, -116, 0.46);
    // The escort's phasers strike the bird of prey's shields; its disruptor
    // bolts are on their way back.
    const P hit(222, 150);
    Beam(p, escort + P(-30, 12), hit, QColor(255, 150, 60), 2.2);
    ShieldFlash(p, prey + P(6, -4), 92, 70, hit);
    for (int k = 0; k < 3; ++k)
        Bolt(p, prey + P(150 + 52 * k, -20 - 19 * k), -20, QColor(90, 255, 120, 220));
    Title(p, QRectF(20, 270, 514, 70), Qt::AlignRight);
}

void FiringArcs(QPainter& p) {
    const P centre(277, 214);
    Arc(p, centre, 136, 0, 90, QColor(255, 70, 60));
    Arc(p, centre, 124, -90, 70, QColor(60, 200, 255));
    Arc(p, centre, 124, 90, 70, QColor(60, 200, 255));
    Arc(p, centre, 110, 180, 180, QColor(255, 220, 60));
    Ship(p, Cruiser, centre + P(0, 6), 0, 0.56);
    Title(p, QRectF(0, 6, kWidth, 70), Qt::AlignHCenter);
}

} // namespace

void DrawSplashScene(QPainter& p, const QString& scene, const QSize& size) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.scale(size.width() / kWidth, size.height() / kHeight);
    gui::SpaceBackground(p, QSizeF(kWidth, kHeight));
    if (scene == QLatin1String("departure")) Departure(p);
    if (scene == QLatin1String("engagement")) Engagement(p);
    if (scene == QLatin1String("firing arcs")) FiringArcs(p);
    p.restore();
}

} // namespace vantorel
