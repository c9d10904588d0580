#include "ships.h"

#include <algorithm>
#include <cmath>

namespace {

using P = QPointF;
namespace pal = palette;

// ---- Federation parts ---------------------------------------------------------

// The engineering hull: a long rounded body with the deflector in front.
void SecondaryHull(Artist& a, double y0, double y1, double half, const QColor& base = pal::Federation) {
    const double len = y1 - y0;
    const QPainterPath body = Body({{y0, half * 0.6},
                                    {y0 + len * 0.12, half},
                                    {y0 + len * 0.55, half * 0.95},
                                    {y1 - len * 0.12, half * 0.62},
                                    {y1, half * 0.22}});
    a.hull(body, base);
    QPainterPath seam;
    seam.moveTo(Axis, y0 + len * 0.15);
    seam.lineTo(Axis, y1 - len * 0.05);
    for (double t : {0.3, 0.5, 0.7}) {
        seam.moveTo(Axis - half, y0 + len * t);
        seam.lineTo(Axis + half, y0 + len * t);
    }
    a.seams(body, seam, base.darker(150), 0.6);
    a.windowRow(P(Axis - half * 0.65, y0 + len * 0.2), P(Axis - half * 0.55, y0 + len * 0.75), 7);
    a.deflector(y0 + len * 0.04 + 2, half * 0.42, 3.0 + len * 0.02);
    // Shuttle bay doors at the stern.
    a.hull(Body({{y1 - len * 0.1, half * 0.3}, {y1 - 1, half * 0.16}}), base.darker(130));
}

void Neck(Artist& a, double y0, double y1, double w0, double w1, const QColor& base = pal::Federation) {
    const QPainterPath neck = Body({{y0, w0}, {(y0 + y1) / 2.0, (w0 + w1) * 0.42}, {y1, w1}});
    a.hull(neck, base);
}

// ---- Klingon parts --------------------------------------------------------------

// The command section at the head of a Klingon ship.
void KlingonHead(Artist& a, double y0, double y1, double half, const QColor& base = pal::Klingon) {
    const double len = y1 - y0;
    const QPainterPath fang = Polygon({P(Axis - half * 0.55, y0 + len * 0.45), P(Axis - half * 0.95, y0 - len * 0.12),
                                       P(Axis - half * 0.3, y0 + len * 0.22)});
    a.hull(Both(fang), base.darker(125));
    const QPainterPath head = Body({{y0, half * 0.2},
                                    {y0 + len * 0.14, half * 0.6},
                                    {y0 + len * 0.42, half},
                                    {y0 + len * 0.75, half * 0.85},
                                    {y1, half * 0.35}});
    a.hull(head, base.darker(108));
    QPainterPath plates;
    plates.moveTo(Axis - half, y0 + len * 0.55);
    plates.quadTo(Axis, y0 + len * 0.3, Axis + half, y0 + len * 0.55);
    plates.moveTo(Axis - half, y0 + len * 0.78);
    plates.quadTo(Axis, y0 + len * 0.55, Axis + half, y0 + len * 0.78);
    a.seams(head, plates, base.darker(170), 0.8);
    QPainterPath stripe;
    stripe.moveTo(Axis, y0 + len * 0.2);
    stripe.lineTo(Axis, y1);
    a.seams(head, stripe, pal::KlingonRed, 2.0);
    a.windowRow(P(Axis - half * 0.7, y0 + len * 0.48), P(Axis - half * 0.3, y0 + len * 0.36), 3, pal::KlingonWindow);
    a.glow(P(Axis, y0 + len * 0.08), half * 0.6, QColor(90, 255, 120), 0.45);
}

void KlingonNeck(Artist& a, double y0, double y1, double w0, double w1, const QColor& base = pal::Klingon) {
    const QPainterPath neck = Body({{y0, w0}, {(y0 + y1) / 2.0, (w0 + w1) * 0.45}, {y1, w1}});
    a.hull(neck, base);
    QPainterPath spine;
    spine.moveTo(Axis, y0);
    spine.lineTo(Axis, y1);
    a.seams(neck, spine, base.darker(170), 0.9);
}

// The engineering body of a Klingon ship with its red stern glow.
void KlingonBody(Artist& a, const std::vector<Station>& profile, const QColor& base = pal::Klingon,
                 bool angular = false) {
    const QPainterPath body = angular ? Angular(profile) : Body(profile);
    a.hull(body, base);
    const double y0 = profile.front().y, y1 = profile.back().y;
    double widest = 0.0;
    for (const Station& s : profile)
        widest = std::max(widest, s.half);
    QPainterPath plates;
    for (int k = 1; k < 5; ++k) {
        const double y = y0 + (y1 - y0) * k / 5.0;
        plates.moveTo(Axis - widest, y + 6);
        plates.quadTo(Axis, y - 6, Axis + widest, y + 6);
    }
    a.seams(body, plates, base.darker(165), 0.8);
    QPainterPath chevron;
    const double mid = y0 + (y1 - y0) * 0.35;
    chevron.moveTo(Axis - widest * 0.6, mid + widest * 0.5);
    chevron.lineTo(Axis, mid);
    chevron.lineTo(Axis + widest * 0.6, mid + widest * 0.5);
    a.seams(body, chevron, pal::KlingonRed, 2.5);
    a.klingonEngines(y1 - 6, widest * 0.45);
}

// ---- Federation cruisers ----------------------------------------------------------

void ltcru1(Artist& a) {
    a.pylonPair(P(168, 252), P(126, 248), 7);
    a.nacellePair(126, 180, 285, 14);
    SecondaryHull(a, 170, 286, 21);
    a.saucer(134, 66, 62);
}

void ltcru2(Artist& a) {
    SecondaryHull(a, 190, 300, 20);
    Neck(a, 150, 205, 9, 12);
    a.pylonPair(P(172, 264), P(120, 250), 7);
    a.nacellePair(120, 205, 335, 16);
    a.saucer(112, 74, 72);
}

void ltcru3(Artist& a) {
    const QColor warm(184, 180, 170);
    a.pylonPair(P(160, 240), P(116, 240), 9, warm.darker(130));
    a.nacellePair(114, 188, 292, 14, warm);
    const QPainterPath block = Body({{175, 24}, {205, 30}, {245, 26}, {268, 14}});
    a.hull(block, warm);
    a.klingonEngines(262, 9); // a hot stern on the early drive too
    a.saucer(Body({{62, 0}, {70, 40}, {95, 66}, {140, 72}, {185, 62}, {205, 34}, {212, 0}}), 140, 70, 64, warm);
}

void cru2(Artist& a) {
    SecondaryHull(a, 185, 318, 24);
    Neck(a, 150, 200, 10, 14);
    a.pylonPair(P(172, 280), P(114, 262), 8);
    a.nacellePair(114, 198, 342, 17);
    a.saucer(110, 80, 76);
}

void cru3(Artist& a) {
    SecondaryHull(a, 178, 330, 22);
    Neck(a, 150, 195, 12, 12);
    a.pylonPair(P(172, 292), P(108, 286), 8);
    a.nacellePair(108, 214, 346, 15);
    a.saucer(116, 88, 70);
}

void cru3a(Artist& a) {
    SecondaryHull(a, 218, 322, 27);
    Neck(a, 190, 232, 14, 18);
    a.pylonPair(P(172, 300), P(122, 290), 7);
    a.nacellePair(122, 222, 348, 13);
    a.saucer(Body({{36, 0}, {48, 40}, {90, 62}, {150, 64}, {198, 50}, {222, 22}}), 130, 60, 80);
}

void cru4(Artist& a) {
    a.pylonPair(P(164, 292), P(94, 300), 10);
    a.nacellePair(94, 222, 348, 16);
    SecondaryHull(a, 172, 332, 34);
    a.saucer(128, 112, 80);
}

void cru5(Artist& a) {
    a.pylonPair(P(166, 292), P(92, 316), 9);
    a.nacellePair(92, 212, 348, 15);
    SecondaryHull(a, 170, 338, 34);
    a.saucer(Body({{32, 0}, {42, 44}, {72, 84}, {118, 98}, {160, 88}, {188, 60}, {200, 20}}), 118, 94, 78);
}

void cru5a(Artist& a) {
    const QColor hull(164, 172, 188);
    SecondaryHull(a, 176, 334, 30, hull);
    a.pylonPair(P(162, 226), P(104, 214), 10, hull.darker(130));
    a.nacellePair(104, 150, 300, 15, hull);
    a.saucer(Body({{38, 22}, {52, 70}, {90, 100}, {132, 102}, {176, 82}, {196, 44}, {190, 10}}), 118, 96, 76, hull);
}

void dreadnought(Artist& a) {
    a.pylonPair(P(164, 292), P(88, 300), 10);
    a.nacellePair(88, 214, 348, 16);
    SecondaryHull(a, 176, 334, 36);
    a.hull(Polygon({P(176, 250), P(184, 250), P(184, 292), P(176, 292)}), pal::FederationDark);
    a.nacelle(Axis, 236, 352, 18);
    a.saucer(120, 106, 84);
}

// ---- Federation escorts -------------------------------------------------------------

void esc2(Artist& a) {
    a.pylonPair(P(160, 246), P(128, 240), 8);
    a.nacellePair(128, 178, 300, 15);
    const QPainterPath body = Body({{160, 24}, {200, 30}, {270, 26}, {305, 14}});
    a.hull(body, pal::Federation);
    a.deflector(168, 10, 4);
    a.saucer(128, 56, 52);
}

void esc3(Artist& a) {
    a.nacellePair(116, 204, 318, 17);
    const QPainterPath body = Body({{50, 0}, {66, 18}, {120, 40}, {200, 52}, {270, 50}, {305, 40}, {318, 22}});
    a.saucer(body, 170, 60, 110);
    a.hull(Polygon({P(140, 240), P(122, 236), P(122, 282), P(146, 290)}), pal::FederationDark);
    a.hull(Mirror(Polygon({P(140, 240), P(122, 236), P(122, 282), P(146, 290)})), pal::FederationDark);
}

void esc4(Artist& a) {
    const QColor hull(160, 166, 176);
    const QPainterPath wings = Both(Polygon({P(150, 150), P(72, 236), P(70, 300), P(150, 306)}));
    a.hull(wings, hull.darker(118));
    a.nacellePair(100, 176, 312, 19, hull);
    const QPainterPath body = Angular({{60, 8}, {76, 40}, {120, 62}, {250, 66}, {300, 60}, {318, 42}});
    a.hull(body, hull);
    QPainterPath seams;
    for (double y : {120.0, 170.0, 220.0, 270.0}) {
        seams.moveTo(110, y);
        seams.lineTo(250, y);
    }
    seams.moveTo(Axis, 80);
    seams.lineTo(Axis, 310);
    a.seams(body, seams, hull.darker(150), 0.7);
    a.deflector(80, 12, 4);
    a.hull(Ellipse(Axis, 150, 16, 22), hull.lighter(110));
    a.windowRow(P(150, 110), P(130, 250), 9);
    for (double x : {150.0, 210.0})
        a.glow(P(x, 316), 12, pal::Impulse, 0.7);
}

void esc5(Artist& a) {
    const QPainterPath wing = Polygon({P(152, 182), P(88, 226), P(82, 318), P(158, 300)});
    a.hull(Both(wing), pal::FederationDark);
    a.nacellePair(88, 214, 336, 16);
    const QPainterPath body = Body({{38, 0}, {70, 18}, {150, 42}, {240, 50}, {310, 40}, {334, 18}});
    a.saucer(body, 150, 44, 90);
    a.windowRow(P(160, 120), P(150, 260), 8);
}

void esc5a(Artist& a) {
    const QPainterPath wing = Polygon({P(150, 178), P(62, 246), P(58, 322), P(156, 300)});
    a.hull(Both(wing), pal::FederationDark.lighter(105));
    a.nacellePair(62, 232, 338, 14);
    a.nacellePair(108, 196, 320, 14);
    const QPainterPath body = Body({{42, 0}, {72, 20}, {150, 46}, {236, 52}, {306, 40}, {330, 18}});
    a.saucer(body, 150, 46, 92);
    a.windowRow(P(158, 116), P(150, 250), 8);
}

// ---- Federation science vessels -------------------------------------------------------

void sci2(Artist& a) {
    SecondaryHull(a, 186, 300, 26);
    a.pylonPair(P(160, 234), P(104, 226), 8);
    a.nacellePair(104, 146, 292, 12);
    a.saucer(132, 70, 60);
}

void sci3(Artist& a) {
    SecondaryHull(a, 178, 306, 26);
    a.deflector(196, 16, 8, QColor(90, 220, 255));
    a.pylonPair(P(168, 270), P(100, 268), 8);
    a.nacellePair(100, 220, 334, 14);
    a.saucer(122, 82, 64);
}

void sci3a(Artist& a) {
    a.pylonPair(P(162, 262), P(108, 292), 8);
    a.nacellePair(108, 238, 340, 12);
    const QPainterPath hull = Body({{44, 0}, {60, 30}, {110, 62}, {170, 66}, {230, 52}, {290, 32}, {322, 16}});
    a.saucer(hull, 150, 62, 110);
    a.deflector(256, 12, 5);
}

void sci4(Artist& a) {
    SecondaryHull(a, 176, 326, 34);
    a.pylonPair(P(160, 252), P(112, 284), 8);
    a.nacellePair(112, 226, 330, 12);
    a.saucer(Body({{46, 0}, {66, 36}, {108, 66}, {150, 74}, {186, 62}, {208, 36}, {214, 0}}), 140, 70, 66);
}

void sci5(Artist& a) {
    a.pylonPair(P(166, 290), P(86, 296), 9);
    a.nacellePair(86, 214, 350, 14);
    SecondaryHull(a, 188, 336, 30);
    a.saucer(126, 100, 88);
    // Sensor pods on the saucer.
    for (double x : {130.0, 230.0}) {
        a.hull(Ellipse(x, 170, 12, 16), pal::FederationDark);
        a.glow(P(x, 160), 10, QColor(90, 220, 255), 0.6);
    }
}

void sci5a(Artist& a) {
    SecondaryHull(a, 176, 330, 26);
    a.pylonPair(P(166, 290), P(100, 296), 8);
    a.nacellePair(100, 226, 346, 13);
    a.saucer(116, 88, 74);
    a.hull(Capsule(Axis, 206, 268, 34), pal::FederationDark.lighter(110));
    a.deflector(214, 10, 5, QColor(90, 220, 255));
    a.windowRow(P(168, 226), P(168, 258), 4);
}

// ---- Federation shuttles ---------------------------------------------------------------

void ShuttleBody(Artist& a, double y0, double y1, double half, double nose) {
    const QPainterPath body = Polygon({P(Axis - half * nose, y0), P(Axis + half * nose, y0), P(Axis + half, y0 + 24),
                                       P(Axis + half, y1), P(Axis - half, y1), P(Axis - half, y0 + 24)});
    a.hull(body, pal::Federation);
    QPainterPath seams;
    for (double y = y0 + 30; y < y1; y += 22) {
        seams.moveTo(Axis - half, y);
        seams.lineTo(Axis + half, y);
    }
    a.seams(body, seams, pal::FederationDark, 0.8);
    a.hull(Polygon({P(Axis - half * nose * 0.8, y0 + 3), P(Axis + half * nose * 0.8, y0 + 3),
                    P(Axis + half * 0.8, y0 + 18), P(Axis - half * 0.8, y0 + 18)}),
           QColor(60, 90, 130));
    a.glow(P(Axis, y1 - 2), half * 0.8, pal::Impulse, 0.6);
}

void ShuttlePods(Artist& a, double x, double y0, double y1, double w) {
    for (const double cx : {x, 2.0 * Axis - x}) {
        QPainterPath pod;
        pod.addRoundedRect(QRectF(cx - w / 2, y0, w, y1 - y0), 3, 3);
        a.hull(pod, pal::FederationDark.lighter(115));
        a.light(Capsule(cx, y0 + 8, y1 - 6, w * 0.4), pal::NacelleBlue);
        a.glow(P(cx, y0 + 4), w, pal::Bussard, 0.5);
    }
}

void shuttle1(Artist& a) {
    ShuttlePods(a, 136, 176, 272, 16);
    ShuttleBody(a, 116, 276, 36, 0.6);
}

void shuttle2(Artist& a) {
    ShuttlePods(a, 142, 190, 290, 13);
    ShuttleBody(a, 96, 294, 30, 0.35);
}

void shuttle3(Artist& a) {
    const QPainterPath wing = Polygon({P(156, 200), P(100, 226), P(100, 262), P(156, 258)});
    a.hull(Both(wing), pal::FederationDark);
    ShuttlePods(a, 100, 186, 300, 16);
    ShuttleBody(a, 90, 300, 28, 0.5);
    a.hull(Capsule(Axis, 160, 250, 30), pal::Federation.lighter(105));
}

// ---- Klingon birds of prey -----------------------------------------------------------------

void BirdOfPrey(Artist& a, const QPainterPath& wing, double head, const QColor& base, int feathers, double tipX,
                double tipY) {
    a.wingPair(wing, base, feathers);
    a.disruptor(P(tipX, tipY));
    KlingonBody(a, {{168, 16}, {190, 34}, {232, 40}, {262, 30}, {276, 12}}, base);
    KlingonNeck(a, head + 40, 176, 6, 10, base);
    KlingonHead(a, head, head + 50, 20, base);
}

void bop1(Artist& a) {
    BirdOfPrey(a, Polygon({P(158, 194), P(30, 232), P(28, 256), P(164, 252)}), 62, pal::Klingon, 6, 32, 232);
}

void bop1a(Artist& a) {
    BirdOfPrey(a, Polygon({P(158, 206), P(44, 146), P(34, 162), P(162, 256)}), 70, pal::Klingon.darker(108), 6, 42,
               150);
}

void bop2(Artist& a) {
    BirdOfPrey(a, Polygon({P(156, 190), P(80, 212), P(18, 262), P(22, 280), P(90, 262), P(164, 256)}), 54,
               pal::Klingon.lighter(108), 7, 22, 262);
}

void bop3(Artist& a) {
    BirdOfPrey(a, Polygon({P(156, 188), P(92, 204), P(22, 190), P(20, 214), P(90, 246), P(162, 258)}), 56,
               QColor(104, 118, 104), 7, 24, 192);
}

void bop4(Artist& a) {
    BirdOfPrey(a, Polygon({P(156, 186), P(60, 226), P(12, 292), P(30, 300), P(96, 270), P(164, 260)}), 50,
               QColor(120, 124, 96), 8, 16, 292);
}

void bop5(Artist& a) {
    BirdOfPrey(a, Polygon({P(156, 184), P(70, 196), P(14, 170), P(14, 204), P(40, 300), P(100, 280), P(164, 262)}), 44,
               QColor(96, 112, 92), 9, 18, 176);
}

// ---- Klingon battle cruisers -----------------------------------------------------------------

void BattleCruiser(Artist& a, double head, double neckEnd, const QPainterPath& wing, double nacelleX, double ny0,
                   double ny1, const QColor& base, double bodyHalf = 44) {
    a.wingPair(wing, base, 5);
    a.klingonNacellePair(nacelleX, ny0, ny1, 16);
    KlingonBody(a,
                {{neckEnd - 10, bodyHalf * 0.45},
                 {neckEnd + 20, bodyHalf * 0.85},
                 {neckEnd + 80, bodyHalf},
                 {neckEnd + 125, bodyHalf * 0.75},
                 {neckEnd + 145, bodyHalf * 0.35}},
                base);
    KlingonNeck(a, head + 44, neckEnd, 7, 11, base);
    KlingonHead(a, head, head + 58, 24, base);
}

void bc2(Artist& a) {
    BattleCruiser(a, 36, 190, Polygon({P(150, 238), P(62, 244), P(58, 272), P(150, 292)}), 58, 212, 300, pal::Klingon);
}

void bc3(Artist& a) {
    BattleCruiser(a, 30, 196, Polygon({P(150, 242), P(70, 270), P(66, 302), P(150, 304)}), 66, 244, 332,
                  QColor(106, 120, 100));
}

void bc4(Artist& a) {
    BattleCruiser(a, 34, 186, Polygon({P(148, 226), P(48, 212), P(46, 244), P(148, 290)}), 48, 186, 276,
                  QColor(118, 126, 96), 48);
}

void bc5(Artist& a) {
    const QColor base(100, 116, 96);
    a.klingonNacellePair(88, 226, 320, 14);
    BattleCruiser(a, 28, 184, Polygon({P(148, 230), P(40, 236), P(34, 268), P(148, 300)}), 40, 196, 292, base, 52);
}

// ---- Klingon raptors ------------------------------------------------------------------------

void Raptor(Artist& a, const std::vector<Station>& hull, const QPainterPath& wing, double nacelleX, double ny0,
            double ny1, const QColor& base) {
    a.wingPair(wing, base, 4);
    a.klingonNacellePair(nacelleX, ny0, ny1, 13);
    KlingonBody(a, hull, base, true);
    const double y0 = hull.front().y, y1 = hull.back().y;
    a.hull(Angular({{y0 + 30, 2}, {y0 + 90, 5}, {y1 - 60, 8}, {y1 - 24, 4}}), base.darker(125));
    a.windowRow(P(172, y0 + 30), P(168, y0 + 64), 4, pal::KlingonWindow);
    a.glow(P(Axis, y0 + 12), 10, QColor(90, 255, 120), 0.5);
}

void rap2(Artist& a) {
    Raptor(a, {{34, 0}, {60, 12}, {100, 18}, {130, 14}, {190, 28}, {262, 40}, {316, 34}, {336, 14}},
           Polygon({P(154, 244), P(92, 282), P(90, 304), P(156, 306)}), 92, 256, 330, pal::Klingon);
}

void rap3(Artist& a) {
    Raptor(a, {{30, 0}, {52, 20}, {86, 26}, {120, 16}, {200, 32}, {270, 44}, {318, 34}, {338, 12}},
           Polygon({P(152, 206), P(84, 230), P(80, 258), P(154, 268)}), 84, 210, 300, QColor(100, 114, 94));
}

void rap4(Artist& a) {
    const QPainterPath blade = Polygon({P(166, 80), P(132, 44), P(126, 56), P(158, 118)});
    a.hull(Both(blade), pal::KlingonDark);
    Raptor(a, {{44, 0}, {70, 24}, {120, 30}, {150, 20}, {210, 36}, {272, 46}, {320, 36}, {340, 12}},
           Polygon({P(154, 238), P(80, 268), P(76, 296), P(156, 300)}), 80, 242, 328, QColor(110, 116, 90));
}

void rap5(Artist& a) {
    const QColor base(94, 108, 90);
    a.klingonNacellePair(128, 196, 266, 11);
    Raptor(a, {{30, 0}, {58, 16}, {120, 26}, {160, 22}, {220, 38}, {276, 48}, {322, 36}, {342, 12}},
           Polygon({P(152, 230), P(56, 262), P(48, 302), P(154, 306)}), 58, 244, 332, base);
}

// ---- Carriers and the Klingon shuttle -------------------------------------------------------

void Hangars(Artist& a, double cx, double y0, double y1, double w, const QColor& base) {
    for (const double x : {cx, 2.0 * Axis - cx}) {
        const QPainterPath pod = Capsule(x, y0, y1, w);
        a.hull(pod, base);
        QPainterPath bays;
        for (double y = y0 + 30; y < y1 - 20; y += 26) {
            bays.addRoundedRect(QRectF(x - w * 0.3, y, w * 0.6, 12), 3, 3);
        }
        a.painter().save();
        a.painter().setPen(Qt::NoPen);
        a.painter().setBrush(QColor(30, 24, 20));
        a.painter().drawPath(bays);
        a.painter().restore();
        for (double y = y0 + 36; y < y1 - 20; y += 26)
            a.glow(P(x, y), 6, QColor(255, 170, 90), 0.5);
    }
}

void car5(Artist& a) {
    const QColor base(110, 120, 96);
    a.hull(Both(Polygon({P(150, 130), P(92, 150), P(92, 270), P(150, 280)})), base.darker(120));
    Hangars(a, 84, 80, 320, 42, base);
    KlingonBody(a, {{50, 20}, {80, 48}, {150, 58}, {240, 60}, {310, 44}, {338, 18}}, base);
    KlingonHead(a, 40, 100, 24, base);
}

void car6(Artist& a) {
    const QColor base(104, 114, 102);
    a.wingPair(Polygon({P(150, 230), P(24, 268), P(26, 310), P(150, 314)}), base, 6);
    Hangars(a, 110, 56, 250, 36, base);
    KlingonBody(a, {{70, 20}, {110, 40}, {190, 52}, {270, 52}, {320, 38}, {340, 14}}, base);
    KlingonHead(a, 52, 110, 22, base);
}

void kshuttle1(Artist& a) {
    const QColor base = pal::Klingon.lighter(105);
    a.wingPair(Polygon({P(160, 200), P(112, 236), P(112, 262), P(160, 262)}), base, 3);
    const QPainterPath body = Polygon({P(164, 110), P(196, 110), P(212, 140), P(214, 280), P(146, 280), P(146, 140)});
    a.hull(body, base);
    QPainterPath seams;
    for (double y : {150.0, 190.0, 230.0}) {
        seams.moveTo(146, y);
        seams.lineTo(214, y + 4);
    }
    a.seams(body, seams, base.darker(170), 0.9);
    a.hull(Polygon({P(168, 116), P(192, 116), P(202, 134), P(158, 134)}), QColor(120, 60, 40));
    a.klingonEngines(274, 22);
}

// ---- Allied vessels ----------------------------------------------------------------------

void allied1(Artist& a) {
    // A heavy siege hull in bronze plating, built around its forward battery.
    const QColor base(158, 124, 84);
    a.hull(Both(Polygon({P(150, 150), P(70, 190), P(66, 290), P(150, 300)})), base.darker(125));
    a.klingonNacellePair(74, 196, 300, 18, base.darker(140));
    const QPainterPath body = Body({{40, 30}, {60, 52}, {140, 60}, {250, 58}, {310, 44}, {336, 20}});
    a.hull(body, base);
    QPainterPath plates;
    for (double y = 70; y < 330; y += 28) {
        plates.moveTo(120, y);
        plates.lineTo(240, y);
    }
    a.seams(body, plates, base.darker(160), 1.0);
    a.hull(Polygon({P(150, 48), P(210, 48), P(220, 92), P(140, 92)}), base.lighter(110));
    a.glow(P(Axis, 60), 22, QColor(255, 200, 80), 0.6);
    a.klingonEngines(328, 28);
}

void allied2(Artist& a) {
    // A fast raider in green lacquer with forward-swept blades.
    const QColor base(86, 142, 112);
    a.hull(Both(Polygon({P(158, 220), P(40, 140), P(34, 158), P(150, 280)})), base.darker(115));
    a.nacellePair(70, 150, 250, 12, base.lighter(110));
    const QPainterPath body = Body({{36, 0}, {70, 22}, {150, 40}, {230, 42}, {300, 30}, {334, 10}});
    a.saucer(body, 170, 40, 130, base, false);
    a.glow(P(Axis, 326), 18, QColor(120, 255, 180), 0.6);
}

void allied3(Artist& a) {
    // A broad support vessel in violet grey around its central sensor dome.
    const QColor base(136, 126, 156);
    a.hull(Both(Polygon({P(160, 120), P(46, 250), P(60, 300), P(160, 290)})), base.darker(115));
    a.nacellePair(64, 236, 330, 13, base);
    const QPainterPath body = Body({{52, 10}, {90, 40}, {170, 56}, {250, 54}, {310, 40}, {334, 16}});
    a.hull(body, base);
    a.saucer(Ellipse(Axis, 190, 44, 44), 190, 44, 44, base.lighter(115), false);
    a.glow(P(Axis, 190), 26, QColor(170, 140, 255), 0.7);
    a.windowRow(P(160, 90), P(140, 150), 5);
}

// ---- The unrestricted ship ---------------------------------------------------------------

void unrestricted(Artist& a) {
    const QColor silver(190, 196, 204);
    QPainterPath ring = Ellipse(Axis, Pivot, 118, 118);
    ring.addPath(Ellipse(Axis, Pivot, 102, 102));
    ring.setFillRule(Qt::OddEvenFill);
    for (double y : {150.0, 238.0})
        a.hull(Both(Polygon({P(172, y - 6), P(70, y - 4), P(70, y + 4), P(172, y + 6)})), silver.darker(130));
    a.hull(ring, silver);
    QPainterPath lights;
    for (int k = 0; k < 24; ++k) {
        const double angle = k * 3.14159265358979 / 12.0;
        lights.addEllipse(P(Axis + std::cos(angle) * 110, Pivot + std::sin(angle) * 110), 1.5, 1.5);
    }
    a.painter().fillPath(lights, QColor(120, 220, 255));
    a.glow(P(Axis, Pivot - 110), 16, QColor(120, 220, 255), 0.5);
    const QPainterPath spindle = Body({{44, 0}, {80, 16}, {150, 26}, {240, 26}, {320, 16}, {344, 4}});
    a.hull(spindle, silver);
    a.hull(Both(Polygon({P(168, 280), P(130, 330), P(140, 338), P(172, 310)})), silver.darker(115));
    a.windowRow(P(172, 100), P(170, 280), 10, QColor(160, 230, 255));
    a.glow(P(Axis, 340), 16, QColor(120, 220, 255), 0.8);
    a.deflector(70, 7, 9, QColor(120, 220, 255));
}

} // namespace

const std::vector<ShipDrawing>& Ships() {
    static const std::vector<ShipDrawing> ships = {
        {"unrestricted", unrestricted},
        {"ltcru1", ltcru1},
        {"ltcru2", ltcru2},
        {"ltcru3", ltcru3},
        {"cru2", cru2},
        {"cru3", cru3},
        {"cru3a", cru3a},
        {"cru4", cru4},
        {"cru5", cru5},
        {"cru5a", cru5a},
        {"dreadnought", dreadnought},
        {"esc2", esc2},
        {"esc3", esc3},
        {"esc4", esc4},
        {"esc5", esc5},
        {"esc5a", esc5a},
        {"shuttle1", shuttle1},
        {"shuttle2", shuttle2},
        {"shuttle3", shuttle3},
        {"sci2", sci2},
        {"sci3", sci3},
        {"sci3a", sci3a},
        {"sci4", sci4},
        {"sci5", sci5},
        {"sci5a", sci5a},
        {"allied1", allied1},
        {"allied2", allied2},
        {"allied3", allied3},
        {"bc2", bc2},
        {"bc3", bc3},
        {"bc4", bc4},
        {"bc5", bc5},
        {"bop1", bop1},
        {"bop1a", bop1a},
        {"bop2", bop2},
        {"bop3", bop3},
        {"bop4", bop4},
        {"bop5", bop5},
        {"rap2", rap2},
        {"rap3", rap3},
        {"rap4", rap4},
        {"rap5", rap5},
        {"car5", car5},
        {"car6", car6},
        {"kshuttle1", kshuttle1},
    };
    return ships;
}
