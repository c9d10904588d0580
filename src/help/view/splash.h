#pragma once

// Window `SplashScreen`: a frameless window that fills with the one picture
// the start chose. The pictures are drawn by the program (splashart.h), only
// the one on show.

#include "engine/windows.h"
#include "gui/twips.h"

#include <QWidget>

namespace vantorel {

class SplashView final : public QWidget {
  public:
    explicit SplashView(SplashWindow& s, QWidget* parent = nullptr);

  private:
    gui::Twips m_twips;
};

} // namespace vantorel
