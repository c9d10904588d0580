// Renders the program's windows in their main states to PNG files. It runs
// on a virtual screen of 1920 x 1080 pixels at 96 dpi, so that the pictures
// are the same on every machine, and drives each state through the fields,
// as a user's clicks would.

#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "program/view/windows.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <vector>

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
    Shooter(vantorel::ProgramWindows& windows, QString folder) : m_windows(windows), m_folder(std::move(folder)) {}
    // The main window.
    bool operator()(const char* name) {
        QApplication::processEvents();
        return save(name, m_windows.mainWindow().grab());
    }
    // Other windows, side by side in the order given, on black.
    bool operator()(const char* name, std::initializer_list<const vantorel::Window*> fields) {
        QApplication::processEvents();
        std::vector<QPixmap> shots;
        int width = 0, height = 0;
        for (const vantorel::Window* field : fields) {
            QWidget* w = m_windows.widgetOf(*field);
            if (!w) {
                std::fprintf(stderr, "a window of %s is not made\n", name);
                return false;
            }
            shots.push_back(w->grab());
            width += shots.back().width() + (shots.size() > 1 ? kGap : 0);
            height = std::max(height, shots.back().height());
        }
        QPixmap all(width, height);
        all.fill(Qt::black);
        QPainter painter(&all);
        int x = 0;
        for (const QPixmap& shot : shots) {
            painter.drawPixmap(x, 0, shot);
            x += shot.width() + kGap;
        }
        painter.end();
        return save(name, all);
    }

  private:
    static constexpr int kGap = 8;
    bool save(const char* name, const QPixmap& picture) {
        const QString file = QDir(m_folder).filePath(QString::fromLatin1(name) + QStringLiteral(".png"));
        const bool saved = picture.save(file);
        std::printf("%s %s\n", saved ? "wrote" : "FAILED", qPrintable(file));
        return saved;
    }

    vantorel::ProgramWindows& m_windows;
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
    Shooter shoot(windows, folder);
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

    // The settings windows: Alpha as it opens, in Relative DPS.
    Pick(m.ShipClass[1], "Unrestricted");
    m.Advanced[1].press();
    vantorel::VesselSettings& a = c.Alpha();
    ok = shoot("settings-relative", {&a.Form}) && ok;

    // A Lieutenant with custom combat and weapons: what the rank closes
    // reads "N/A" in grey. Omega follows, a read-only copy.
    m.Compare.press();
    m.Advanced[2].press();
    a.CharacterSettings.click();
    Pick(a.Rank, "Lieutenant");
    a.CriticalSettings.click();
    a.RelativeDPS.click();
    Pick(a.TacticalConsole[1], "Directed Energy");
    a.DamageResistance.click();
    ok = shoot("settings-mirrored", {&a.Form, &c.Omega().Form}) && ok;

    // The warning that the power section raises the first time it opens.
    a.ExtrapolatePower.click();
    ok = shoot("power-warning", {&c.note.Form}) && ok;

    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
