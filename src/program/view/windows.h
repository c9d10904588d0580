#pragma once

// Every window of the program on the screen. The main window exists from the
// start. The settings, skills and graph windows are made the first time their
// fields show and from then on follow their fields; one that the program
// closes is only hidden here, since what closing resets is the fields'
// business. The manual and About are really closed: each opening makes the
// window anew, so that nothing of the last one (scroll position, size) stays.

#include "engine/records.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace vantorel {

class MainWindow;

class ProgramWindows final {
  public:
    explicit ProgramWindows(Calculator& c);
    ~ProgramWindows();
    ProgramWindows(const ProgramWindows&) = delete;
    ProgramWindows& operator=(const ProgramWindows&) = delete;

    MainWindow& mainWindow() { return *m_main; }
    // The widget that shows a window field; null until it has shown.
    QWidget* widgetOf(const Window& field) const;

  private:
    using Factory = std::function<std::unique_ptr<QWidget>()>;
    // Makes the window with `make` when `field` first shows.
    void makeOnFirstShow(Window& field, Factory make);
    // Makes the window with `make` each time `field` shows, and destroys it
    // each time the field hides. The window's gui::TopLevel follows its field
    // through this owner (gui::Following::Owner).
    void makeAnewOnEachShow(Window& field, Factory make);
    // The window of `field` goes: hidden at once, destroyed once the event
    // that closed it is over (it may be that window's own button).
    void closeForGood(const Window& field);

    struct Made {
        const Window* field;
        std::unique_ptr<QWidget> widget;
    };

    Calculator& m_c;
    std::unique_ptr<MainWindow> m_main;
    std::vector<Made> m_made;
    std::vector<QPointer<QWidget>> m_closing;
};

} // namespace vantorel
