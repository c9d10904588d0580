#pragma once

// Window `About`: the program's name, the author line, the licence, and
// buttons to the manual and to the forum page. Made anew at each opening
// (see program/view/windows.h).

#include "engine/records.h"
#include "gui/twips.h"

#include <QWidget>

namespace vantorel {

class AboutView final : public QWidget {
  public:
    explicit AboutView(Calculator& c, QWidget* parent = nullptr);

  private:
    gui::Twips m_twips;
};

} // namespace vantorel
