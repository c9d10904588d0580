#pragma once

// The main window `Form1`: every control of the main selection, each bound to
// its field, on the page `Contents` that the two scroll bars move. The window
// itself shows the field `Form1`: title, state, inner size and place. Its own
// resizing, maximising and minimising go to the fields and through the fit.

#include "engine/records.h"
#include "gui/twips.h"

#include <QMainWindow>

class QEvent;
class QMoveEvent;
class QResizeEvent;

namespace vantorel {

class MainWindow final : public QMainWindow {
    Q_OBJECT

  public:
    explicit MainWindow(Calculator& c, QWidget* parent = nullptr);
    ~MainWindow() override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void buildColumn(QWidget* page, Vessel v);
    void buildMiddle(QWidget* page);
    void showForm();
    // The work area of the primary screen, in twips as the fit measures it.
    void takeWorkArea();
    QSize innerPixels() const;

    Calculator& m_c;
    gui::Twips m_twips;
    // True while the window follows its field, or while the field follows
    // the window: the events that this raises are not the user's.
    bool m_following = false;
};

} // namespace vantorel
