// Renders the windows of the program in their main states to PNG files. It
// runs on a virtual screen of 1920 x 1080 pixels at 96 dpi, so that the
// pictures are the same on every machine, and drives each state through the
// fields, as a user's clicks would.
//
//   vantorel-screenshots [--scale FACTOR [--all]] [OUTPUT_DIR]
//
// --scale renders at that many device pixels to the pixel (Qt's
// QT_SCALE_FACTOR) on a screen as many times larger, so that the windows
// have the same room; the shots are named NAME-2x.png (for a factor of 2),
// and only the few that show a screen of high density best are written,
// unless --all asks for every one.

#include "graph/key.h"
#include "help/help.h"
#include "help/view/splash.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "program/view/windows.h"
#include "skills/skills.h"
#include "skills/view/skillswindow.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <set>
#include <string>
#include <vector>

namespace {

using vantorel::List;
using vantorel::Program;

std::string VirtualScreen(double scale) {
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "vantorel-screenshots-screen.json";
    std::ofstream(file) << R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false, "screens": [)"
                        << R"({"name": "Screen", "x": 0, "y": 0, "width": )" << std::lround(1920 * scale)
                        << R"(, "height": )" << std::lround(1080 * scale)
                        << R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
    return file.string();
}

// What a run writes: every shot at scale 1, the high-density few otherwise.
struct Output {
    QString suffix; // "-2x" at a scale of 2
    bool every = true;
};
Output g_output;

bool Wanted(const char* name) {
    static const std::set<std::string> highDensity = {"comparison", "settings-mirrored", "graph-standard-compared",
                                                      "manual"};
    return g_output.every || highDensity.contains(name);
}

QString FileOf(const QString& folder, const char* name) {
    return QDir(folder).filePath(QString::fromLatin1(name) + g_output.suffix + QStringLiteral(".png"));
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
        if (!Wanted(name)) return true;
        QApplication::processEvents();
        const QString file = FileOf(m_folder, name);
        const bool saved = window && window->grab().save(file);
        std::printf("%s %s\n", saved ? "wrote" : "FAILED", qPrintable(file));
        return saved;
    }

  private:
    QWidget* m_window;
    QString m_folder;
};

// Windows side by side in the order given, on black: a window with the one
// that follows it.
bool ShootTogether(vantorel::ProgramWindows& windows, const QString& folder, const char* name,
                   std::initializer_list<const vantorel::Window*> fields) {
    constexpr int kGap = 8;
    if (!Wanted(name)) return true;
    QApplication::processEvents();
    std::vector<QPixmap> shots;
    int width = 0, height = 0;
    for (const vantorel::Window* field : fields) {
        QWidget* w = windows.widgetOf(*field);
        if (!w) {
            std::fprintf(stderr, "a window of %s is not made\n", name);
            return false;
        }
        shots.push_back(w->grab());
        width += shots.back().width() + (shots.size() > 1 ? kGap : 0);
        height = std::max(height, shots.back().height());
    }
    // The shots are in device pixels; the gap is one of the screen's.
    const double density = shots.front().devicePixelRatio();
    const int gap = static_cast<int>(std::lround(kGap * density));
    width += (static_cast<int>(shots.size()) - 1) * (gap - kGap);
    QPixmap all(width, height);
    all.fill(Qt::black);
    QPainter painter(&all);
    int x = 0;
    for (QPixmap shot : shots) {
        shot.setDevicePixelRatio(1.0);
        painter.drawPixmap(x, 0, shot);
        x += shot.width() + gap;
    }
    painter.end();
    const QString file = FileOf(folder, name);
    const bool saved = all.save(file);
    std::printf("%s %s\n", saved ? "wrote" : "FAILED", qPrintable(file));
    return saved;
}

// The skills windows: Alpha's in Relative DPS and in custom mode with the
// attack patterns open, and Omega's mirroring Alpha's in comparison.
bool ShootSkills(const QString& folder) {
    Program c;
    vantorel::ShowMainWindowAtStart(c);
    vantorel::VesselSkills& a = c.skills[1];
    c.main.Skills[1].press();
    vantorel::SkillsWindow alpha(c, 1);
    Shooter shoot(alpha, folder);

    a.BeamSkillLevel.click(1);
    a.BeamSkillActivated.click();
    a.TorpedoSkillSelected.click(1);
    a.TorpedoSkillActivated.click();
    a.Targets.setText("3");
    bool ok = shoot("skills-relative");

    // Custom mode, with the rebuilds that the settings window runs then.
    c.Alpha().RelativeDPS.setValue(0);
    for (vantorel::Vessel v = 1; v <= 2; ++v) {
        vantorel::AttackPatternUpdate(c, v);
        vantorel::AttackPatternAlphaUpdate(c, v);
    }
    a.TacticalTeamLevel.click(2);
    a.TacticalTeamActivated.click();
    a.AttackPatternLevel.click(1);
    a.AttackPatternActivated.click();
    a.AttackPatternAlphaLevel.click(1);
    a.AttackPatternAlpha.click();
    ok = shoot("skills-custom") && ok;

    c.main.Compare.press();
    c.main.Skills[2].press();
    vantorel::SkillsWindow omega(c, 2);
    Shooter shootOmega(omega, folder);
    return shootOmega("skills-omega") && ok;
}

const char* const kKeyPlaces[13] = {
    "none free: lower right", "lower right",        "lower left",        "upper right",      "upper left",
    "middle right",           "middle left",        "lower right, near", "lower left, near", "upper right, near",
    "upper left, near",       "middle right, near", "middle left, near"};

// The graph window in each mode, for one build and then for two.
bool ShootGraphs(const QString& folder) {
    Program c;
    vantorel::ProgramWindows windows(c);
    vantorel::ShowMainWindowAtStart(c);
    vantorel::MainSelection& m = c.main;
    Pick(m.ShipClass[1], "Escort");
    Pick(m.Forward[1], "Dual Heavy Cannons");
    Pick(m.Forward[2], "Dual Beam Bank");
    Pick(m.Forward[3], "Beam Array");
    Pick(m.Forward[4], "Torpedo");
    Pick(m.Rear[1], "Beam Array");
    Pick(m.Rear[2], "Turret");
    m.GraphResults.press();
    QWidget* graph = windows.widgetOf(c.graph.Form);
    if (!graph) return false;
    Shooter shoot(*graph, folder);
    vantorel::GraphWindow& g = c.graph;
    const auto shot = [&](const char* name, int mode) {
        g.GraphMode.click(mode);
        std::vector<vantorel::SeriesYs> series;
        for (int s = 0; s <= 5; ++s)
            if (g.KeyLabel[s].visible()) series.push_back(vantorel::SeriesYsOf(g, s));
        std::printf("%s: key %s\n", name,
                    g.Key.visible() ? kKeyPlaces[vantorel::FindKeyPlace(series).place + 1] : "not shown");
        return shoot(name);
    };
    bool ok = shot("graph-standard", 0);
    ok = shot("graph-power", 1) && ok;
    ok = shot("graph-range", 2) && ok;

    m.Compare.press();
    Pick(m.ShipClass[2], "Cruiser");
    Pick(m.CForward[1], "Dual Beam Bank");
    Pick(m.CForward[2], "Beam Array");
    Pick(m.CForward[3], "Beam Array");
    Pick(m.CRear[1], "Beam Array");
    Pick(m.CRear[2], "Beam Array");
    Pick(m.CRear[3], "Beam Array");
    ok = shot("graph-standard-compared", 0) && ok;
    ok = shot("graph-power-compared", 1) && ok;
    ok = shot("graph-range-compared", 2) && ok;

    // The same cannon build with and without Fire At Will: only the arcs
    // with the dual beam bank differ, and elsewhere Omega's line runs dotted
    // over Alpha's.
    Pick(m.ShipClass[2], "Escort");
    const char* const forward[4] = {"Dual Heavy Cannons", "Dual Beam Bank", "Cannon", "Torpedo"};
    const char* const rear[4] = {"Turret", "Turret", "Mine", "Empty"};
    for (int i = 1; i <= 4; ++i) {
        Pick(m.Forward[i], forward[i - 1]);
        Pick(m.CForward[i], forward[i - 1]);
        Pick(m.Rear[i], rear[i - 1]);
        Pick(m.CRear[i], rear[i - 1]);
    }
    vantorel::VesselSkills& skills = c.skills[2];
    skills.SameAsAlpha.setValue(0);
    skills.BeamSkillActivated.setValue(1);
    skills.BeamSkillLevel.setIndex(2);
    ok = shot("graph-skill-compared", 0) && ok;
    return ok;
}

} // namespace

int main(int argc, char* argv[]) {
    double scale = 1.0;
    bool all = false;
    QString folder = QStringLiteral("docs/screenshots");
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--scale" && i + 1 < argc)
            scale = std::atof(argv[++i]);
        else if (arg == "--all")
            all = true;
        else if (arg.empty() || arg[0] == '-')
            scale = 0.0; // an unknown option: show the usage, write nothing
        else
            folder = QString::fromLocal8Bit(argv[i]);
    }
    if (!(scale >= 1.0 && scale <= 4.0)) {
        std::fprintf(stderr, "usage: vantorel-screenshots [--scale FACTOR [--all]] [OUTPUT_DIR]\n");
        return 2;
    }
    // The scale is the one asked for here, never one left in the environment.
    qunsetenv("QT_SCALE_FACTOR");
    if (scale != 1.0) {
        g_output = {QStringLiteral("-%1x").arg(scale), all};
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    }
    const std::string platform = "offscreen:configfile=" + VirtualScreen(scale);
    qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString(platform));
    if (qEnvironmentVariableIsEmpty("VANTOREL_IMAGES"))
        qputenv("VANTOREL_IMAGES", QByteArrayLiteral(VANTOREL_SOURCE_DIR "/Images"));
    QApplication app(argc, argv);
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

    ok = ShootSkills(folder) && ok;
    ok = ShootGraphs(folder) && ok;
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

    // The settings windows: Alpha as it opens, in Relative DPS.
    c.documentation.OK.press();
    c.about.OK.press();
    Pick(m.ShipClass[1], "Unrestricted");
    m.Advanced[1].press();
    vantorel::VesselSettings& a = c.Alpha();
    ok = ShootTogether(windows, folder, "settings-relative", {&a.Form}) && ok;

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
    ok = ShootTogether(windows, folder, "settings-mirrored", {&a.Form, &c.Omega().Form}) && ok;

    // The warning that the power section raises the first time it opens.
    a.ExtrapolatePower.click();
    ok = ShootTogether(windows, folder, "power-warning", {&c.note.Form}) && ok;

    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
