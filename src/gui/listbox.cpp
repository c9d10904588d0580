#include "gui/listbox.h"

#include <QAbstractItemView>

namespace vantorel::gui {

ListBox::ListBox(QWidget* parent) : QComboBox(parent) { setMaxVisibleItems(20); }

void ListBox::showPopup() {
    QAbstractItemView* rows = view();
    rows->setMinimumWidth(rows->sizeHintForColumn(0) + 2 * rows->frameWidth());
    QComboBox::showPopup();
}

} // namespace vantorel::gui
