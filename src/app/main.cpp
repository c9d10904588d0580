#include "program/view/start.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    vantorel::StartedProgram program(vantorel::Splash::Shown);
    program.showMainWindow();
    return app.exec();
}
