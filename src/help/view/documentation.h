#pragma once

// Window `Documentation`: the manual in a rich text box, with `OK` below.
// It is made anew at each opening (see program/view/windows.h), opens with
// the caret at `ReadmeCaret`, and follows its field through its owner.

#include "engine/records.h"
#include "gui/twips.h"

#include <QWidget>

class QShowEvent;
class QTextEdit;

namespace vantorel {

class DocumentationView final : public QWidget {
  public:
    explicit DocumentationView(Calculator& c, QWidget* parent = nullptr);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    // Puts the caret at the field's position and scrolls the text to it.
    void moveToCaret();

    Calculator& m_c;
    gui::Twips m_twips;
    QTextEdit* m_box;
    bool m_atCaret = false;
};

} // namespace vantorel
