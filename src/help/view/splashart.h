#pragma once

// The three pictures of the splash screen, drawn with the ship kit
// (gui/art.h) at any size: a cruiser leaving orbit, a bird of prey under
// fire, and a cruiser in the middle of its firing arcs, each with the
// program's name.

#include <QString>

class QPainter;
class QSize;

namespace vantorel {

// Draws the scene of that name ("departure", "engagement", "firing arcs")
// filling `size`; a name it does not know gives the starfield alone.
void DrawSplashScene(QPainter& p, const QString& scene, const QSize& size);

} // namespace vantorel
