#pragma once

// A top-level window that follows its `Window` field: title, colour, shown
// or hidden, enabled, minimised or normal, place and size. Sizes in the field
// are the design's outer sizes, frame included (see mainwindow/layout.h); the
// window's inner area is the outer size less the design's frame. What the
// user does to the window goes back to the field: a move sets its place, the
// frame's close button is a close request that the field's handler answers.

#include "engine/fields.h"
#include "gui/twips.h"

#include <QObject>

#include <functional>

class QCloseEvent;
class QWidget;

namespace vantorel::gui {

class TopLevel final : public QObject {
  public:
    // `window` shows `field`; both outlive this object.
    TopLevel(QWidget* window, Window& field, const Twips& twips);
    ~TopLevel() override;

    // The inner size in pixels that the field's outer size gives.
    QSize innerPixels() const;
    // Brings the window up to date with its field.
    void show();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* m_window;
    Window& m_field;
    Twips m_twips;
    // True while the window follows its field: the events that this raises
    // are not the user's.
    bool m_following = false;
    // The field's requests to come to the front that have been answered.
    int m_frontRequests = 0;
};

} // namespace vantorel::gui
