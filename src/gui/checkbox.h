#pragma once

// A check box whose caption turns grey while it is disabled. The binding
// gives every state of the palette the field's own colours, so a white
// caption on a black window would otherwise look the same either way.

#include <QCheckBox>

namespace vantorel::gui {

class CheckBox final : public QCheckBox {
    Q_OBJECT

  public:
    explicit CheckBox(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

// The colour of a disabled control's text: half way from its own colour to
// its background, so that it stands back on any background.
QColor DisabledText(const QColor& text, const QColor& back);

} // namespace vantorel::gui
