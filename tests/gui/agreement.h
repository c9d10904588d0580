#pragma once

// What the widget tests share: whether every widget of a window shows what
// its field holds, compared through the registry, and rows chosen as a user
// chooses them.

#include "gui/binding.h"
#include "gui/twips.h"
#include "mainwindow/layout.h"
#include "program/registry.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <set>
#include <string>

namespace vantorel::test {

inline QString Q(const std::string& s) { return QString::fromStdString(s); }

// Chooses a row the way a user does: open the drop-down, move to the row,
// press Return.
inline void ChooseRow(QComboBox* list, int row) {
    list->showPopup();
    QAbstractItemView* rows = list->view();
    rows->setCurrentIndex(rows->model()->index(row, 0));
    QTest::keyClick(rows, Qt::Key_Return);
}

// Whether a role shows one colour in every state of the widget, enabled or
// not, active window or not.
inline bool Holds(const QPalette& p, QPalette::ColorRole role, const QColor& c) {
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        if (p.color(group, role) != c) return false;
    return true;
}

// The kinds of field that a window paints itself rather than showing each
// by a widget: the lines and pictures of the main window's arcs, and on the
// graph also its captions and the key's boxes.
inline const std::set<ValueKind> kDrawnOnMain = {ValueKind::Line, ValueKind::Picture};
inline const std::set<ValueKind> kDrawnOnGraph = {ValueKind::Line, ValueKind::Picture, ValueKind::Label,
                                                  ValueKind::Control};

// Whether each widget of window `name` shows what its field holds; the
// differences, by name. A field of a kind in `drawn` is left to the window's
// own painting where it has no widget of its name.
inline QStringList Disagreements(const QWidget& window, const ControlRegistry& registry, const std::string& name,
                                 const std::set<ValueKind>& drawn = kDrawnOnMain) {
    const gui::Twips twips = gui::Twips::forScreen(window.screen());
    QHash<QString, const QWidget*> widgets;
    for (const QWidget* w : window.findChildren<QWidget*>())
        if (!w->objectName().isEmpty()) widgets.insert(w->objectName(), w);

    QStringList wrong;
    for (const ControlRef& ref : registry.all()) {
        if (ref.window != name || !ref.control || ref.control == ref.form) continue;
        const ValueKind kind = ref.kind();
        const QString n = Q(ref.name);
        const QWidget* w = widgets.value(n);
        if (!w) {
            if (!drawn.count(kind)) wrong << n + ": no widget";
            continue;
        }
        const Control& f = *ref.control;
        if (w->isHidden() == f.visible()) wrong << n + ": visible";
        // A window that the warning holds is disabled with all its widgets;
        // each widget still shows whether its own field is enabled.
        if (w->isEnabledTo(&window) != f.enabled()) wrong << n + ": enabled";
        if (w->geometry() != twips.rect(f)) wrong << n + ": place";
        switch (kind) {
        case ValueKind::Label: {
            const Label& label = *std::get<Label*>(ref.target);
            const auto* q = qobject_cast<const QLabel*>(w);
            if (q->text() != Q(label.caption())) wrong << n + ": caption";
            if (q->toolTip() != Q(label.tooltip())) wrong << n + ": tooltip";
            if (!Holds(q->palette(), QPalette::WindowText, gui::ToQColor(label.fore()))) wrong << n + ": fore";
            if (q->autoFillBackground() && !Holds(q->palette(), QPalette::Window, gui::ToQColor(label.back())))
                wrong << n + ": back";
            break;
        }
        case ValueKind::Button: {
            const Button& button = *std::get<Button*>(ref.target);
            const auto* q = qobject_cast<const QPushButton*>(w);
            if (q->text() != Q(button.caption())) wrong << n + ": caption";
            if (q->toolTip() != Q(button.tooltip())) wrong << n + ": tooltip";
            break;
        }
        case ValueKind::List: {
            const List& list = *std::get<List*>(ref.target);
            const auto* q = qobject_cast<const QComboBox*>(w);
            bool sameRows = q->count() == list.count();
            for (int i = 0; sameRows && i < list.count(); ++i)
                sameRows = q->itemText(i) == Q(list.row(i));
            if (!sameRows) wrong << n + ": rows";
            if (q->currentIndex() != list.index()) wrong << n + ": index";
            if (q->isEditable() != list.typing()) wrong << n + ": typing";
            if (list.typing() && q->currentText() != Q(list.text())) wrong << n + ": text";
            if (q->placeholderText() != Q(list.hint())) wrong << n + ": hint";
            if (q->toolTip() != Q(list.tooltip())) wrong << n + ": tooltip";
            if (!Holds(q->palette(), QPalette::Base, gui::ToQColor(list.back()))) wrong << n + ": back";
            break;
        }
        case ValueKind::Flag: {
            const Flag& flag = *std::get<Flag*>(ref.target);
            const auto* q = qobject_cast<const QCheckBox*>(w);
            if (q->isChecked() != (flag.value() != 0)) wrong << n + ": value";
            if (q->text() != Q(flag.caption())) wrong << n + ": caption";
            if (q->toolTip() != Q(flag.tooltip())) wrong << n + ": tooltip";
            break;
        }
        case ValueKind::Text: {
            const Text& text = *std::get<Text*>(ref.target);
            const auto* q = qobject_cast<const QLineEdit*>(w);
            if (q->text() != Q(text.text())) wrong << n + ": text";
            if (q->toolTip() != Q(text.tooltip())) wrong << n + ": tooltip";
            if (!Holds(q->palette(), QPalette::Base, gui::ToQColor(text.back()))) wrong << n + ": back";
            break;
        }
        case ValueKind::ScrollBar: {
            const ScrollBar& bar = *std::get<ScrollBar*>(ref.target);
            const auto* q = qobject_cast<const QScrollBar*>(w);
            if (q->value() != bar.value()) wrong << n + ": value";
            if (q->maximum() != std::max(bar.maximum(), 0)) wrong << n + ": maximum";
            break;
        }
        default:
            break;
        }
    }
    return wrong;
}

// Whether a window on the screen is the one its field describes: shown or
// hidden, enabled, titled, and while it shows in its normal state, at the
// field's place with the inner size that the field's outer size gives.
inline QStringList WindowDisagreements(const QWidget& window, const Window& field, const std::string& name) {
    QStringList wrong;
    const QString n = Q(name);
    if (window.isVisible() != field.visible()) wrong << n + ": shown";
    if (window.isEnabled() != field.enabled()) wrong << n + ": enabled";
    if (window.windowTitle() != Q(field.title())) wrong << n + ": title";
    if (!window.isVisible() || window.windowState() != Qt::WindowNoState) return wrong;
    const gui::Twips twips = gui::Twips::forScreen(window.screen());
    if (window.pos() != QPoint(twips.toPixelsX(field.left()), twips.toPixelsY(field.top()))) wrong << n + ": place";
    const int width = field.innerWidth() > 0 ? field.innerWidth() : field.width() - kFrameWidth;
    const int height = field.innerHeight() > 0 ? field.innerHeight() : field.height() - kFrameHeight;
    if (window.size() != QSize(twips.toPixelsX(width), twips.toPixelsY(height))) wrong << n + ": size";
    return wrong;
}

} // namespace vantorel::test
