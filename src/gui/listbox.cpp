#include "gui/listbox.h"

#include "gui/checkbox.h"

#include <QAbstractItemView>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace vantorel::gui {

ListBox::ListBox(QWidget* parent) : QComboBox(parent) { setMaxVisibleItems(20); }

void ListBox::showPopup() {
    QAbstractItemView* rows = view();
    rows->setMinimumWidth(rows->sizeHintForColumn(0) + 2 * rows->frameWidth());
    QComboBox::showPopup();
}

void ListBox::paintEvent(QPaintEvent* event) {
    if (isEditable()) {
        QComboBox::paintEvent(event);
        return;
    }
    // A row wider than the closed list ends in an ellipsis rather than
    // being cut off mid-letter.
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    // The binding gives a disabled list its own colours; its row stands back.
    if (!isEnabled()) {
        const QColor text = DisabledText(option.palette.color(QPalette::Text), option.palette.color(QPalette::Base));
        option.palette.setColor(QPalette::Text, text);
        option.palette.setColor(QPalette::ButtonText, text);
    }
    // With nothing selected a list shows its prompt, if it has one.
    if (currentIndex() < 0 && !placeholderText().isEmpty()) option.currentText = placeholderText();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect text = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideRight, text.width());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace vantorel::gui
