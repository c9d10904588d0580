#include "mainwindow/layout.h"
#include "program/program.h"
#include "program/view/windows.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    vantorel::Program calculator;
    vantorel::ProgramWindows windows(calculator);
    vantorel::ShowMainWindowAtStart(calculator);
    return app.exec();
}
