#pragma once

// The face of window `Graph`: the frame and grid of the plot, the thirty
// segments of the lines, the key's box and squares, every caption and the
// upright word DPS, painted from the fields of GraphWindow. It keeps nothing
// of its own: any change of those fields repaints it.

#include "gui/twips.h"

#include <QWidget>

namespace vantorel {

struct GraphWindow;

class GraphPlot final : public QWidget {
    Q_OBJECT

  public:
    GraphPlot(GraphWindow& g, const gui::Twips& twips, QWidget* parent);
    ~GraphPlot() override;

    // Paints the whole face onto `painter`, which stands for this widget.
    void paintFace(QPainter& painter) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintFrame(QPainter& p) const;
    void paintLines(QPainter& p) const;
    void paintKey(QPainter& p) const;
    void paintCaptions(QPainter& p) const;
    void paintAxisWord(QPainter& p) const;

    GraphWindow& m_g;
    gui::Twips m_twips;
};

} // namespace vantorel
