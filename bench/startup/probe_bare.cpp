// The yardstick: a Qt program that shows one empty window.

#include "first_paint.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Bare"));
    window.resize(655, 624);
    FirstPaint painted(window);
    window.show();
    return app.exec();
}
