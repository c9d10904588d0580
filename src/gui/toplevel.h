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

// Who tells the window of its field's changes: the window itself, through
// the field's one view hook, or the window's owner, which keeps the hook and
// calls show() (a window that is made anew at each opening, whose owner must
// still hear of the next opening once this window is gone).
enum class Following { OwnHook, Owner };

class TopLevel final : public QObject {
    Q_OBJECT

  public:
    // `window` shows `field`; both outlive this object.
    TopLevel(QWidget* window, Window& field, const Twips& twips, Following following = Following::OwnHook);
    ~TopLevel() override;

    // The inner size in pixels that the field's outer size gives.
    QSize innerPixels() const;
    // Brings the window up to date with its field.
    void show();
    // The user may size the window: a new size goes to the field as an
    // outer size, and `resized` runs the window's rule for its size.
    void followUserSize(std::function<void()> resized);
    // The window is closed for good: it no longer follows its field nor
    // tells it of anything.
    void detach();
    // Escape, where no control of the window takes it, is the frame's close
    // button: a close request that the field's handler answers.
    void closeOnEscape() { m_escapeCloses = true; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* m_window;
    Window& m_field;
    Twips m_twips;
    Following m_followingBy;
    std::function<void()> m_resized;
    bool m_detached = false;
    bool m_escapeCloses = false;
    // True while the window follows its field: the events that this raises
    // are not the user's.
    bool m_following = false;
    // The field's requests to come to the front that have been answered.
    int m_frontRequests = 0;
};

} // namespace vantorel::gui
