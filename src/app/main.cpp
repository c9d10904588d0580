#include "engine/calculator.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    vantorel::Calculator calculator;
    vantorel::MainWindow window(calculator);
    vantorel::ShowMainWindowAtStart(calculator);
    return app.exec();
}
