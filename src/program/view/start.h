#pragma once

// The program's start as the user sees it: the splash screen first, the
// calculator and all its windows made behind it, then the main window in its
// place, which closes the splash. Nothing waits on a timer: the splash stays
// exactly as long as the start takes.

#include "program/program.h"
#include "program/view/windows.h"

#include <memory>

namespace vantorel {

class SplashView;

// Whether the start shows the splash screen; tools and tests may skip it.
enum class Splash { Shown, Skipped };

class StartedProgram final {
  public:
    explicit StartedProgram(Splash splash);
    ~StartedProgram();
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;

    Program& calculator() { return m_calculator; }
    ProgramWindows& windows() { return m_windows; }
    // The last step of the start: the main window takes its place and shows,
    // and the splash screen goes.
    void showMainWindow();

  private:
    // Before the calculator, so that the splash can show while it is made.
    std::unique_ptr<SplashView> m_splash;
    Program m_calculator;
    ProgramWindows m_windows;
};

} // namespace vantorel
