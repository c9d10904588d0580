#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    vantorel::Program calculator;
    vantorel::MainWindow window(calculator);
    vantorel::ShowMainWindowAtStart(calculator);
    return app.exec();
}
