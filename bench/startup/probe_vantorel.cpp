// The program's own start, up to the first paint of its main window.

#include "first_paint.h"

#include "engine/calculator.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    vantorel::Calculator calculator;
    vantorel::MainWindow window(calculator);
    FirstPaint painted(window);
    vantorel::ShowMainWindowAtStart(calculator);
    return app.exec();
}
