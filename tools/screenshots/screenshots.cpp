// Renders the main window in its main states, the manual, About and the
// three splash pictures to PNG files. It runs on a virtual screen of 1920 x
// 1080 pixels at 96 dpi, so that the pictures are the same on every machine,
// and drives each state through the fields, as a user's clicks would.

#include "help/help.h"
#include "help/view/splash.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "program/view/windows.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

using vantorel::List;
using vantorel::Program;

std::string VirtualScreen() {
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "vantorel-screenshots-screen.json";
    std::ofstream(file) << R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false, "screens": [)"
                        << R"({"name": "Screen", "x": 0, "y": 0, "width": 1920, "height": 1080,)"
                        << R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
    return file.string();
}

// Clicks the first row that holds `text`, as a user picks it.
bool Pick(List& list, const std::string& text) {
    for (int i = 0; i < list.count(); ++i) {
        if (list.row(i).find(text) != std::string::npos) {
            list.click(i);
            return true;
        }
    }
    std::fprintf(stderr, "no row with \"%s\"\n", text.c_str());
    return false;
}

class Shooter final {
  public:
    Shooter(QWidget& window, QString folder) : m_window(&window), m_folder(std::move(folder)) {}
    bool operator()(const char* name) { return shoot(m_window, name); }
    bool shoot(QWidget* window, const char* name) {
        QApplication::processEvents();
        const QString file = QDir(m_folder).filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
        const bool saved = window && window->grab().save(file);
        std::printf("%s %s\n", saved ? "wrote" : "FAILED", qPrintable(file));
        return saved;
    }

  private:
    QWidget* m_window;
    QString m_folder;
};

} // namespace

int main(int argc, char* argv[]) {
    const std::string platform = "offscreen:configfile=" + VirtualScreen();
    qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString(platform));
    if (qEnvironmentVariableIsEmpty("VANTOREL_IMAGES"))
        qputenv("VANTOREL_IMAGES", QByteArrayLiteral(VANTOREL_SOURCE_DIR "/Images"));
    QApplication app(argc, argv);
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("docs/screenshots");
    QDir().mkpath(folder);

    Program c;
    vantorel::ProgramWindows windows(c);
    vantorel::ShowMainWindowAtStart(c);
    vantorel::MainSelection& m = c.main;
    Shooter shoot(windows.mainWindow(), folder);
    bool ok = shoot("single");

    Pick(m.Forward[1], "Beam Array");
    Pick(m.Forward[2], "Dual Heavy Cannons");
    Pick(m.Forward[3], "Torpedo");
    Pick(m.Rear[1], "Beam Array");
    Pick(m.Rear[2], "Turret");
    Pick(m.Rear[3], "Mine");
    ok = shoot("weapons") && ok;

    m.Compare.press();
    Pick(m.ShipClass[2], "Escort");
    Pick(m.CForward[1], "Dual Cannons");
    Pick(m.CForward[2], "Dual Cannons");
    Pick(m.CForward[3], "Torpedo");
    Pick(m.CRear[1], "Turret");
    Pick(m.CRear[2], "Beam Array");
    ok = shoot("comparison") && ok;

    m.Simplified.click();
    ok = shoot("simplified") && ok;

    m.Simplified.click();
    m.HideCompare.press();
    m.Reset.press();
    Pick(m.ShipClass[1], "Shuttlecraft");
    Pick(m.Forward[1], "Shuttle ");
    ok = shoot("shuttle") && ok;

    // The manual as the main window's Help opens it, and from its start as
    // About's button opens it.
    m.Help.press();
    ok = shoot.shoot(windows.widgetOf(c.documentation.Form), "manual") && ok;
    m.ShowAbout.press();
    ok = shoot.shoot(windows.widgetOf(c.about.Form), "about") && ok;
    c.about.Readme.press();
    ok = shoot.shoot(windows.widgetOf(c.documentation.Form), "manual-start") && ok;

    // Each splash picture in turn.
    vantorel::SplashView splash(c.splash);
    c.splash.Form.setVisible(true);
    for (int i = 0; i <= 2; ++i) {
        for (int k = 0; k <= 2; ++k)
            c.splash.Splash[k].setVisible(k == i);
        const std::string name = "splash-" + std::to_string(i + 1);
        ok = shoot.shoot(&splash, name.c_str()) && ok;
    }
    c.splash.Form.setVisible(false);

    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
