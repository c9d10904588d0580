#include "program/view/start.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    // The desktop matches the windows to vantorel.desktop and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("vantorel"));
    QIcon icon;
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icons/hicolor/%1x%1/apps/vantorel.png").arg(size));
    QApplication::setWindowIcon(icon);
    vantorel::StartedProgram program(vantorel::Splash::Shown);
    program.showMainWindow();
    return app.exec();
}
