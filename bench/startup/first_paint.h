#pragma once

// Tells the harness that a window has been painted: at the first paint event
// of any widget of the window, once that painting pass is over, it writes
// "painted" to standard output and ends the event loop.

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

#include <cstdio>

class FirstPaint final : public QObject {
  public:
    explicit FirstPaint(QWidget& window) : m_window(window) { qApp->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!m_seen && event->type() == QEvent::Paint && watched->isWidgetType() &&
            static_cast<QWidget*>(watched)->window() == &m_window) {
            m_seen = true;
            QMetaObject::invokeMethod(
                this,
                [] {
                    std::fputs("painted\n", stdout);
                    std::fflush(stdout);
                    QApplication::quit();
                },
                Qt::QueuedConnection);
        }
        return false;
    }

  private:
    QWidget& m_window;
    bool m_seen = false;
};
