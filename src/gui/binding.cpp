#include "gui/binding.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace vantorel::gui {

namespace {

QString ToQString(const std::string& s) { return QString::fromStdString(s); }

// Whether a role has one colour in every state of the widget: a disabled
// control shows its field's colours too, not the style's.
bool Holds(const QPalette& p, QPalette::ColorRole role, const QColor& c) {
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        if (p.color(group, role) != c) return false;
    return true;
}

void SetPalette(QWidget* w, QPalette::ColorRole backRole, QPalette::ColorRole foreRole, const Control& f) {
    const QColor back = ToQColor(f.back());
    const QColor fore = ToQColor(f.fore());
    const QPalette& now = w->palette();
    if (Holds(now, backRole, back) && Holds(now, foreRole, fore)) return;
    QPalette p = now;
    p.setColor(backRole, back);
    p.setColor(foreRole, fore);
    w->setPalette(p);
}

void SetToolTip(QWidget* w, const std::string& tip) {
    const QString text = ToQString(tip);
    if (w->toolTip() != text) w->setToolTip(text);
}

// What every control has: enabled, place, visibility. Visibility last, so
// that a control appears at its new place.
void ShowControl(QWidget* w, const Control& f, const Twips& twips) {
    if (w->isEnabled() != f.enabled()) w->setEnabled(f.enabled());
    const QRect place = twips.rect(f);
    if (w->geometry() != place) w->setGeometry(place);
    if (w->isHidden() == f.visible()) w->setVisible(f.visible());
}

// The field's one view hook; it outlives neither the widget nor the field.
template <typename W, typename F, typename Show> void Attach(W* widget, F& field, const Twips& twips, Show show) {
    QPointer<W> guard(widget);
    field.setView([guard, &field, twips, show] {
        if (!guard) return;
        const QSignalBlocker blocker(guard.data());
        show(guard.data(), field, twips);
    });
    const QSignalBlocker blocker(widget);
    show(widget, field, twips);
}

// Enter presses a button that has the focus, as Space does: a window's
// buttons are not a dialog's, where only the default button takes Enter.
class EnterPresses final : public QObject {
  public:
    explicit EnterPresses(QPushButton* button) : QObject(button), m_button(button) {}

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != m_button || event->type() != QEvent::KeyPress) return false;
        const auto* key = static_cast<const QKeyEvent*>(event);
        const Qt::KeyboardModifiers modifiers = key->modifiers() & ~Qt::KeypadModifier;
        if ((key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) || modifiers != Qt::NoModifier) return false;
        m_button->click();
        return true;
    }

  private:
    QPushButton* m_button;
};

void ShowLabel(QLabel* w, const Label& f, const Twips& twips) {
    const QString caption = ToQString(f.caption());
    if (w->text() != caption) w->setText(caption);
    SetToolTip(w, f.tooltip());
    SetPalette(w, w->backgroundRole(), w->foregroundRole(), f);
    ShowControl(w, f, twips);
}

bool SameRows(const QComboBox* w, const List& f) {
    if (w->count() != f.count()) return false;
    for (int i = 0; i < f.count(); ++i) {
        if (w->itemText(i) != ToQString(f.row(i))) return false;
    }
    return true;
}

void ShowList(QComboBox* w, const List& f, const Twips& twips) {
    if (!SameRows(w, f)) {
        w->clear();
        QStringList rows;
        rows.reserve(f.count());
        for (const std::string& row : f.rows())
            rows.append(ToQString(row));
        w->addItems(rows);
    }
    bool moved = false;
    if (w->currentIndex() != f.index()) {
        w->setCurrentIndex(f.index());
        moved = true;
    }
    if (w->isEditable()) {
        const QString text = ToQString(f.text());
        if (w->currentText() != text) {
            w->setEditText(text);
            moved = true;
        }
        // A text the program puts in shows its start, as it reads; the
        // user's own typing keeps its cursor.
        if (moved && !w->lineEdit()->hasFocus()) w->lineEdit()->setCursorPosition(0);
    }
    // A list without typing shows its prompt while nothing is selected, in
    // the list's own text colour: it reads as the list's caption.
    const QString hint = ToQString(f.hint());
    if (w->placeholderText() != hint) w->setPlaceholderText(hint);
    SetToolTip(w, f.tooltip());
    SetPalette(w, QPalette::Base, QPalette::Text, f);
    // A list without typing is drawn as a button: its face takes the list's
    // background, and the row, or the prompt, its text colour also while the
    // list is closed, so a grey list keeps dark, readable text.
    const QColor back = ToQColor(f.back());
    const QColor text = ToQColor(f.fore());
    const QPalette& now = w->palette();
    if (now.color(QPalette::Disabled, QPalette::Button) != back ||
        now.color(QPalette::Disabled, QPalette::ButtonText) != text || now.color(QPalette::PlaceholderText) != text) {
        QPalette p = now;
        p.setColor(QPalette::Button, back);
        p.setColor(QPalette::ButtonText, text);
        p.setColor(QPalette::PlaceholderText, text);
        w->setPalette(p);
    }
    ShowControl(w, f, twips);
}

void ShowText(QLineEdit* w, const Text& f, const Twips& twips) {
    const QString text = ToQString(f.text());
    if (w->text() != text) {
        // The user's cursor stays where it was, as far as the new text
        // reaches; a text the program puts in shows its start.
        const int cursor = w->cursorPosition();
        w->setText(text);
        w->setCursorPosition(w->hasFocus() ? std::min(cursor, static_cast<int>(text.size())) : 0);
    }
    SetToolTip(w, f.tooltip());
    SetPalette(w, QPalette::Base, QPalette::Text, f);
    ShowControl(w, f, twips);
}

void ShowFlag(QCheckBox* w, const Flag& f, const Twips& twips) {
    const QString caption = ToQString(f.caption());
    if (w->text() != caption) w->setText(caption);
    const bool checked = f.value() != 0;
    if (w->isChecked() != checked) w->setChecked(checked);
    SetToolTip(w, f.tooltip());
    SetPalette(w, w->backgroundRole(), w->foregroundRole(), f);
    ShowControl(w, f, twips);
}

void ShowButton(QPushButton* w, const Button& f, const Twips& twips) {
    const QString caption = ToQString(f.caption());
    if (w->text() != caption) w->setText(caption);
    SetToolTip(w, f.tooltip());
    ShowControl(w, f, twips);
}

void ShowScrollBar(QScrollBar* w, const ScrollBar& f, const Twips& twips) {
    // A page narrower than its window gives a negative maximum; the bar then
    // has nowhere to go.
    const int maximum = std::max(f.maximum(), 0);
    if (w->maximum() != maximum || w->minimum() != 0) w->setRange(0, maximum);
    if (w->singleStep() != f.smallStep()) w->setSingleStep(f.smallStep());
    if (w->pageStep() != f.largeStep()) w->setPageStep(f.largeStep());
    if (w->value() != f.value()) w->setValue(f.value());
    ShowControl(w, f, twips);
}

void ShowPage(QWidget* w, const Control& f, const Twips& twips) {
    SetPalette(w, QPalette::Window, QPalette::WindowText, f);
    ShowControl(w, f, twips);
}

} // namespace

QColor ToQColor(Colour c) {
    return QColor(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF), static_cast<int>((c >> 16) & 0xFF));
}

QFont FrontierFont(double points, bool bold) {
    QFont font;
    font.setFamilies({QStringLiteral("Final Frontier"), QStringLiteral("DejaVu Sans Condensed"),
                      QStringLiteral("Arial Narrow"), QStringLiteral("Liberation Sans Narrow")});
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

QFont SansSerifFont(double points) {
    QFont font;
    font.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                      QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"), QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(points);
    return font;
}

void Bind(QLabel* widget, Label& field, const Twips& twips) { Attach(widget, field, twips, ShowLabel); }

void Bind(QComboBox* widget, List& field, const Twips& twips) {
    if (field.typing()) {
        // Typed text is the port's own value: nothing is added to the rows
        // and nothing is completed behind the user's back. A line edit that
        // comes with a completer spares the list from building its own.
        auto* edit = new QLineEdit(widget);
        edit->setCompleter(new QCompleter(edit));
        widget->setLineEdit(edit);
        edit->setCompleter(nullptr);
        widget->setInsertPolicy(QComboBox::NoInsert);
        QObject::connect(widget->lineEdit(), &QLineEdit::textEdited, widget,
                         [&field](const QString& text) { field.setText(text.toStdString()); });
    }
    // A row chosen in the drop-down, and equally one that the arrow keys,
    // Home, End, the page keys, a typed initial or the wheel choose on the
    // closed list: the list activates it, and the field takes it as a click.
    QObject::connect(widget, &QComboBox::activated, widget, [&field](int row) { field.click(row); });
    Attach(widget, field, twips, ShowList);
}

void Bind(QCheckBox* widget, Flag& field, const Twips& twips) {
    widget->setAutoFillBackground(true);
    QObject::connect(widget, &QCheckBox::clicked, widget, [&field](bool checked) { field.setValue(checked ? 1 : 0); });
    Attach(widget, field, twips, ShowFlag);
}

void Bind(QPushButton* widget, Button& field, const Twips& twips) {
    widget->installEventFilter(new EnterPresses(widget));
    QObject::connect(widget, &QPushButton::clicked, widget, [&field] { field.press(); });
    Attach(widget, field, twips, ShowButton);
}

void Bind(QScrollBar* widget, ScrollBar& field, const Twips& twips) {
    QObject::connect(widget, &QScrollBar::valueChanged, widget, [&field](int value) { field.setValue(value); });
    Attach(widget, field, twips, ShowScrollBar);
}

void Bind(QLineEdit* widget, Text& field, const Twips& twips) {
    QObject::connect(widget, &QLineEdit::textEdited, widget,
                     [&field](const QString& text) { field.setText(text.toStdString()); });
    Attach(widget, field, twips, ShowText);
}

void BindPage(QWidget* widget, Control& field, const Twips& twips) {
    widget->setAutoFillBackground(true);
    Attach(widget, field, twips, ShowPage);
}

} // namespace vantorel::gui
