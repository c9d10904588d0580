// The program's own start, up to the first paint of its main window; with
// `--splash` the start as the program makes it, splash screen first.

#include "first_paint.h"

#include "mainwindow/view/mainwindow.h"
#include "program/view/start.h"

#include <cstring>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    const bool splash = argc > 1 && std::strcmp(argv[1], "--splash") == 0;
    vantorel::StartedProgram program(splash ? vantorel::Splash::Shown : vantorel::Splash::Skipped);
    FirstPaint painted(program.windows().mainWindow());
    program.showMainWindow();
    return app.exec();
}
