#include "graph/view/graphplot.h"

#include "engine/windows.h"
#include "gui/binding.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <vector>

namespace vantorel {

namespace {

// The lines of the builds stand out from the grey grid; the dots of a line
// that lies on another are long enough to read as a line of their own.
constexpr double kSeriesWidth = 2.5;
const QList<qreal> kDotPattern = {1.6, 1.6};

// Captions without a size of their own.
constexpr double kAxisTitleSize = 14.0;
constexpr double kArcNameSize = 10.0;
constexpr double kScaleSize = 10.0;
constexpr double kAxisWordSize = 14.0;
// No caption is set smaller to fit its box.
constexpr double kSmallestSize = 6.0;

struct Caption {
    const Label* label;
    Qt::Alignment align;
    double size; // used where the label has no size of its own
};

// The grid and the key's frame are one pixel wide: on a screen of more
// device pixels than pixels, as many whole device pixels as make one pixel,
// laid over the middle of the pixel the line stands on, so that every line
// is as sharp and as wide as the others at a scale of 1.5 as at 2.
struct Hairline {
    QPen pen;
    double offset; // added to both coordinates, in pixels
};

Hairline HairlineOf(const QPainter& p, const QColor& colour) {
    const double density = p.device() ? p.device()->devicePixelRatioF() : 1.0;
    if (density <= 1.0) return {QPen(colour, 0), 0.0};
    QPen pen(colour, std::round(density));
    pen.setCosmetic(true);
    return {pen, 0.5};
}

double SizeOf(const Caption& c) { return c.label->fontSize() > 0.0 ? c.label->fontSize() : c.size; }

template <typename T> void Watch(T& field, const std::function<void()>& repaint) { field.setView(repaint); }

template <typename T, int First, int Last>
void Watch(Indexed<T, First, Last>& fields, const std::function<void()>& repaint) {
    for (int i = First; i <= Last; ++i)
        fields[i].setView(repaint);
}

} // namespace

GraphPlot::GraphPlot(GraphWindow& g, const gui::Twips& twips, QWidget* parent)
    : QWidget(parent), m_g(g), m_twips(twips) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    const std::function<void()> repaint = [this] { update(); };
    for (Label* l : {&g.Title, &g.Subtitle, &g.skilltitle, &g.XAxisLabel})
        Watch(*l, repaint);
    Watch(g.YAxisLabel, repaint);
    Watch(g.Border, repaint);
    Watch(g.AxisLine, repaint);
    Watch(g.XAxis, repaint);
    Watch(g.YAxis, repaint);
    Watch(g.Line1, repaint);
    Watch(g.Key, repaint);
    Watch(g.KeyIcon, repaint);
    Watch(g.KeyLabel, repaint);
    Watch(g.KeyTitle, repaint);
}

GraphPlot::~GraphPlot() {
    const std::function<void()> none;
    for (Label* l : {&m_g.Title, &m_g.Subtitle, &m_g.skilltitle, &m_g.XAxisLabel})
        Watch(*l, none);
    Watch(m_g.YAxisLabel, none);
    Watch(m_g.Border, none);
    Watch(m_g.AxisLine, none);
    Watch(m_g.XAxis, none);
    Watch(m_g.YAxis, none);
    Watch(m_g.Line1, none);
    Watch(m_g.Key, none);
    Watch(m_g.KeyIcon, none);
    Watch(m_g.KeyLabel, none);
    Watch(m_g.KeyTitle, none);
}

void GraphPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintFace(painter);
}

void GraphPlot::paintFace(QPainter& p) const {
    p.fillRect(rect(), gui::ToQColor(m_g.Form.back()));
    paintFrame(p);
    paintLines(p);
    paintKey(p);
    paintCaptions(p);
    paintAxisWord(p);
}

void GraphPlot::paintFrame(QPainter& p) const {
    // The grid on whole pixels, so that it stays one sharp pixel wide.
    p.setRenderHint(QPainter::Antialiasing, false);
    const auto line = [&](const Line& l) {
        if (!l.visible()) return;
        const Hairline hair = HairlineOf(p, gui::ToQColor(l.fore()));
        p.setPen(hair.pen);
        p.drawLine(QPointF(m_twips.toPixelsX(l.x1()) + hair.offset, m_twips.toPixelsY(l.y1()) + hair.offset),
                   QPointF(m_twips.toPixelsX(l.x2()) + hair.offset, m_twips.toPixelsY(l.y2()) + hair.offset));
    };
    for (int k = 1; k <= 9; ++k)
        line(m_g.AxisLine[k]);
    for (int i = 0; i <= 3; ++i)
        line(m_g.Border[i]);
}

void GraphPlot::paintLines(QPainter& p) const {
    p.setRenderHint(QPainter::Antialiasing, true);
    const double sx = m_twips.pixelsPerTwipX();
    const double sy = m_twips.pixelsPerTwipY();
    // Series in order, so that a later line lies over an earlier one and its
    // dots let the earlier show.
    for (int i = 0; i <= 29; ++i) {
        const Line& l = m_g.Line1[i];
        if (!l.visible()) continue;
        // Square ends close the joints between segments as round ones
        // would, at a third of the cost.
        QPen pen(gui::ToQColor(l.fore()), kSeriesWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
        if (l.style() == LineStyle::Dotted) {
            pen.setCapStyle(Qt::FlatCap);
            pen.setDashPattern(kDotPattern);
        }
        p.setPen(pen);
        p.drawLine(QPointF(l.x1() * sx, l.y1() * sy), QPointF(l.x2() * sx, l.y2() * sy));
    }
}

void GraphPlot::paintKey(QPainter& p) const {
    const Control& key = m_g.Key;
    if (!key.visible()) return;
    p.setRenderHint(QPainter::Antialiasing, false);
    const QRect box = m_twips.rect(key);
    p.fillRect(box, gui::ToQColor(key.back()));
    const Hairline hair = HairlineOf(p, gui::ToQColor(key.fore()));
    p.setPen(hair.pen);
    p.drawRect(QRectF(box.adjusted(0, 0, -1, -1)).translated(hair.offset, hair.offset));
    for (int i = 0; i <= 5; ++i) {
        const Control& icon = m_g.KeyIcon[i];
        if (icon.visible()) p.fillRect(m_twips.rect(icon), gui::ToQColor(icon.back()));
    }
}

void GraphPlot::paintCaptions(QPainter& p) const {
    // Captions in groups that share one size: the arc names, the scale, the
    // key's titles, the key's labels.
    std::vector<std::vector<Caption>> groups = {{{&m_g.Title, Qt::AlignCenter, 18.0}},
                                                {{&m_g.Subtitle, Qt::AlignCenter, 14.0}},
                                                {{&m_g.skilltitle, Qt::AlignCenter, 14.0}},
                                                {{&m_g.XAxisLabel, Qt::AlignCenter, kAxisTitleSize}},
                                                {},
                                                {},
                                                {},
                                                {}};
    for (int i = 0; i <= 5; ++i)
        groups[4].push_back({&m_g.XAxis[i], Qt::AlignCenter, kArcNameSize});
    for (int i = 0; i <= 10; ++i)
        groups[5].push_back({&m_g.YAxis[i], Qt::AlignRight | Qt::AlignVCenter, kScaleSize});
    for (int i = 0; i <= 1; ++i)
        groups[6].push_back({&m_g.KeyTitle[i], Qt::AlignCenter, 14.0});
    for (int i = 0; i <= 5; ++i)
        groups[7].push_back({&m_g.KeyLabel[i], Qt::AlignLeft | Qt::AlignVCenter, 14.0});

    p.setRenderHint(QPainter::TextAntialiasing, true);
    struct Measured {
        const Caption* caption;
        QString text;
        QRect box;
        double width;
    };
    std::vector<Measured> measured;
    for (const std::vector<Caption>& group : groups) {
        // Where the face stands in for a narrower one, a caption wider than
        // its box makes its whole group smaller rather than run into its
        // neighbour.
        measured.clear();
        double fit = 1.0;
        for (const Caption& c : group) {
            const Label& l = *c.label;
            if (!l.visible() || l.caption().empty()) continue;
            Measured m{&c, QString::fromStdString(l.caption()), m_twips.rect(l), 0.0};
            m.width = QFontMetricsF(gui::FrontierFont(SizeOf(c)), this).horizontalAdvance(m.text);
            if (m.width > m.box.width() && m.box.width() > 0) fit = std::min(fit, m.box.width() / m.width);
            measured.push_back(std::move(m));
        }
        for (const Measured& m : measured) {
            const QFont font = gui::FrontierFont(std::max(kSmallestSize, SizeOf(*m.caption) * fit));
            const QFontMetricsF metrics(font, this);
            const double width = m.width * fit;
            const Qt::Alignment align = m.caption->align;
            double x = m.box.left();
            if (align & Qt::AlignHCenter) x = m.box.left() + (m.box.width() - width) / 2.0;
            if (align & Qt::AlignRight) x = m.box.left() + m.box.width() - width;
            // Centred on the box's middle; a caption taller than its box
            // spills over evenly above and below.
            const double baseline = m.box.top() + (m.box.height() + metrics.ascent() - metrics.descent()) / 2.0;
            p.setFont(font);
            p.setPen(gui::ToQColor(m.caption->label->fore()));
            p.drawText(QPointF(x, baseline), m.text);
        }
    }
}

void GraphPlot::paintAxisWord(QPainter& p) const {
    const Picture& word = m_g.YAxisLabel;
    if (!word.visible() || word.image().empty()) return;
    const QRect box = m_twips.rect(word);
    p.save();
    // Turned a quarter to the left: it reads from the bottom up.
    p.translate(box.center());
    p.rotate(-90.0);
    p.setFont(gui::FrontierFont(kAxisWordSize));
    p.setPen(gui::ToQColor(word.fore()));
    const QRect upright(-box.height() / 2, -box.width() / 2, box.height(), box.width());
    p.drawText(upright, Qt::AlignCenter | Qt::TextDontClip, QString::fromStdString(word.image()));
    p.restore();
}

} // namespace vantorel
