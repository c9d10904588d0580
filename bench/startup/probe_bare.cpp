// The yardsticks: a Qt program that shows one empty window, or with
// `--label` one window with one line of text, which also pays for the font
// database that any window with text needs.

#include "first_paint.h"

#include <QLabel>

#include <cstring>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Bare"));
    window.resize(655, 624);
    if (argc > 1 && std::strcmp(argv[1], "--label") == 0) new QLabel(QStringLiteral("Firing Arcs"), &window);
    FirstPaint painted(window);
    window.show();
    return app.exec();
}
