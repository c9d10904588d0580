// The program's own start, up to the first paint of its main window.

#include "first_paint.h"

#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    vantorel::Program calculator;
    vantorel::MainWindow window(calculator);
    FirstPaint painted(window);
    vantorel::ShowMainWindowAtStart(calculator);
    return app.exec();
}
