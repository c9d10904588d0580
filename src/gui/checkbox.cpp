#include "gui/checkbox.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace vantorel::gui {

CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent) {}

void CheckBox::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    if (!isEnabled()) {
        const QColor text =
            DisabledText(option.palette.color(QPalette::WindowText), option.palette.color(QPalette::Window));
        option.palette.setColor(QPalette::WindowText, text);
    }
    painter.drawControl(QStyle::CE_CheckBox, option);
}

QColor DisabledText(const QColor& text, const QColor& back) {
    return QColor((text.red() + back.red()) / 2, (text.green() + back.green()) / 2, (text.blue() + back.blue()) / 2);
}

} // namespace vantorel::gui
