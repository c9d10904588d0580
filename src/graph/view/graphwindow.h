#pragma once

// Window `Graph` on the screen: the painted plot with the mode list, the
// help and hide buttons and the bring-to-front check box over it, each bound
// to its field. The window follows its `Window` field; closing it from its
// frame is a close request that the program answers.

#include "gui/twips.h"

#include <QWidget>

namespace vantorel {

struct Calculator;
class GraphPlot;

namespace gui {
class TopLevel;
}

class GraphWindowView final : public QWidget {
    Q_OBJECT

  public:
    explicit GraphWindowView(Calculator& c, QWidget* parent = nullptr);
    ~GraphWindowView() override;

    GraphPlot& plot() const { return *m_plot; }

  private:
    gui::Twips m_twips;
    GraphPlot* m_plot;
    gui::TopLevel* m_top;
};

} // namespace vantorel
