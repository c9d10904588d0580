#include "gui/focus.h"

#include "engine/focus.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QFocusEvent>
#include <QScrollBar>
#include <QWidget>

#include <vector>

namespace vantorel::gui {

namespace {

// A control's own parts (a list's line edit and drop-down, a text box's
// viewport and bars) are not controls of the window.
bool PartOfAControl(const QWidget* w, const QWidget* window) {
    for (const QWidget* p = w->parentWidget(); p && p != window; p = p->parentWidget()) {
        if (p->focusPolicy() != Qt::NoFocus || qobject_cast<const QComboBox*>(p) ||
            qobject_cast<const QAbstractScrollArea*>(p))
            return true;
    }
    return false;
}

// Where the page must stand along one bar for [start, start + length) of it
// (twips) to be in view; the bar's field takes it as the user's move.
void Show(ScrollBar& bar, int start, int length, int visible) {
    if (!bar.visible()) return;
    bar.setValue(ValueToShow({bar.value(), bar.maximum(), visible}, start, length));
}

// Brings a control that Tab reaches into view. A click leaves the page
// where the user had it: the control clicked is in view already.
class FocusFollower final : public QObject {
  public:
    FocusFollower(QWidget* page, const PageBars& bars, const Twips& twips)
        : QObject(page), m_page(page), m_bars(bars), m_twips(twips) {}

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::FocusIn) return false;
        const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
        if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason) return false;
        auto* now = qobject_cast<QWidget*>(watched);
        if (!now || !m_page->isAncestorOf(now)) return false;
        const QWidget* viewport = m_page->parentWidget();
        const QRect at(now->mapTo(m_page, QPoint(0, 0)), now->size());
        auto shown = [](const QScrollBar* bar, const ScrollBar* field) {
            return bar && field && field->visible() ? bar : nullptr;
        };
        const QScrollBar* h = shown(m_bars.horizontal, m_bars.horizontalField);
        const QScrollBar* v = shown(m_bars.vertical, m_bars.verticalField);
        if (v) {
            const int visible = viewport->height() - (h ? h->height() : 0);
            Show(*m_bars.verticalField, m_twips.fromPixelsY(at.top()), m_twips.fromPixelsY(at.height()),
                 m_twips.fromPixelsY(visible));
        }
        if (h) {
            const int visible = viewport->width() - (v ? v->width() : 0);
            Show(*m_bars.horizontalField, m_twips.fromPixelsX(at.left()), m_twips.fromPixelsX(at.width()),
                 m_twips.fromPixelsX(visible));
        }
        return false;
    }

  private:
    QWidget* m_page;
    PageBars m_bars;
    Twips m_twips;
};

} // namespace

void OrderTabsDownColumns(QWidget* window) {
    std::vector<QWidget*> widgets;
    std::vector<FocusBox> boxes;
    for (QWidget* w : window->findChildren<QWidget*>()) {
        if (w->isWindow() || PartOfAControl(w, window)) continue;
        const bool takesFocus = (w->focusPolicy() & Qt::TabFocus) != 0;
        // The bars that move a page stand beside it, not in its columns.
        if (!takesFocus && qobject_cast<const QScrollBar*>(w)) continue;
        // A page or panel only holds the controls that stand on it.
        if (!takesFocus && !w->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).isEmpty()) continue;
        const QPoint at = w->mapTo(window, QPoint(0, 0));
        widgets.push_back(w);
        boxes.push_back({at.x(), at.y(), w->width(), w->height(), takesFocus});
    }
    const std::vector<int> order = TabOrder(boxes);
    // Qt reads the chain of a window as a ring, and takes a control that
    // already follows the last one round the ring as being in its place:
    // the first control would keep whatever place it had. While the window
    // itself stands in the ring the chain has a start, and the window's
    // first control is the first of the order.
    const Qt::FocusPolicy policy = window->focusPolicy();
    window->setFocusPolicy(Qt::TabFocus);
    for (std::size_t k = 1; k < order.size(); ++k)
        QWidget::setTabOrder(widgets[static_cast<std::size_t>(order[k - 1])],
                             widgets[static_cast<std::size_t>(order[k])]);
    window->setFocusPolicy(policy);
}

void ScrollFocusIntoView(QWidget* page, const PageBars& bars, const Twips& twips) {
    auto* follower = new FocusFollower(page, bars, twips);
    for (QWidget* w : page->findChildren<QWidget*>())
        if (w->focusPolicy() & Qt::TabFocus) w->installEventFilter(follower);
}

} // namespace vantorel::gui
