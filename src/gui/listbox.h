#pragma once

// A list on a window. Its drop-down is as wide as its longest row, even where
// the closed list is narrower; the width is measured when the drop-down
// opens, so that a window full of lists opens quickly. A closed list without
// typing elides a row that does not fit, and its row turns grey while the
// list is disabled.

#include <QComboBox>

namespace vantorel::gui {

class ListBox final : public QComboBox {
    Q_OBJECT

  public:
    explicit ListBox(QWidget* parent = nullptr);
    void showPopup() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace vantorel::gui
