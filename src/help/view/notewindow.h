#pragma once

// Window `Note`: the warning text, its "Don't Show This Warning Again" box
// and two buttons, bound to their fields. The window follows its field
// `Form`; closing it by the frame asks the field, which lets the held
// windows go.

#include "engine/records.h"
#include "gui/twips.h"

#include <QWidget>

namespace vantorel {

class NoteWindowView final : public QWidget {
    Q_OBJECT

  public:
    explicit NoteWindowView(Calculator& c, QWidget* parent = nullptr);

  private:
    gui::Twips m_twips;
};

} // namespace vantorel
