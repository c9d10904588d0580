#include "program/view/start.h"

#include "gui/twips.h"
#include "help/splash.h"
#include "help/view/splash.h"
#include "mainwindow/layout.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QTime>

namespace vantorel {

namespace {

WorkArea ScreenInTwips() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return {};
    const gui::Twips twips = gui::Twips::forScreen(screen);
    const QRect all = screen->geometry();
    return {twips.fromPixelsX(all.x()), twips.fromPixelsY(all.y()), twips.fromPixelsX(all.width()),
            twips.fromPixelsY(all.height())};
}

} // namespace

StartedProgram::StartedProgram(Splash splash)
    : m_calculator([this, splash](Calculator& c) {
          if (splash == Splash::Skipped) return;
          m_splash = std::make_unique<SplashView>(c.splash);
          ShowSplash(c.splash, QTime::currentTime().msecsSinceStartOfDay(), ScreenInTwips());
          // Painted once before the long work starts.
          QCoreApplication::processEvents();
      }),
      m_windows(m_calculator) {}

// The splash's widgets read its fields: they go first.
StartedProgram::~StartedProgram() { m_splash.reset(); }

void StartedProgram::showMainWindow() {
    ShowMainWindowAtStart(m_calculator);
    m_splash.reset();
}

} // namespace vantorel
