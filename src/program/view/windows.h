#pragma once

// Every window of the program on the screen. The main window exists from the
// start. Each other window is made the first time its field shows and from
// then on follows its field; a window that the program closes is only
// hidden here, since what closing resets is the fields' business.

#include "engine/records.h"

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

    struct Made {
        const Window* field;
        std::unique_ptr<QWidget> widget;
    };

    Calculator& m_c;
    std::unique_ptr<MainWindow> m_main;
    std::vector<Made> m_made;
};

} // namespace vantorel
