// The program's own start, as src/app/main.cpp makes it, up to the first
// paint of its main window.

#include "first_paint.h"

#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "program/view/windows.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    vantorel::Program calculator;
    vantorel::ProgramWindows windows(calculator);
    FirstPaint painted(windows.mainWindow());
    vantorel::ShowMainWindowAtStart(calculator);
    return app.exec();
}
