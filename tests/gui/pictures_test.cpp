// The ship pictures come from a folder beside the program, which a user can
// empty, break or replace. Whatever is there, the program starts, works and
// shows a plain square where a picture cannot be read; it reads the folder
// and writes nothing, there or anywhere else in it, and Qt has nothing to
// complain about.

#include "mainwindow/view/mainwindow.h"
#include "program/view/start.h"
#include "screen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <functional>

using namespace vantorel;

namespace {

// Every picture the program may ask for.
const char* const kNames[] = {
    "unrestricted", "ltcru1",      "ltcru2", "ltcru3", "cru2", "cru3", "cru3a", "cru4",     "cru5",
    "cru5a",        "dreadnought", "esc2",   "esc3",   "esc4", "esc5", "esc5a", "shuttle1", "shuttle2",
    "shuttle3",     "sci2",        "sci3",   "sci3a",  "sci4", "sci5", "sci5a", "allied1",  "allied2",
    "allied3",      "bc2",         "bc3",    "bc4",    "bc5",  "bop1", "bop1a", "bop2",     "bop3",
    "bop4",         "bop5",        "rap2",   "rap3",   "rap4", "rap5", "car5",  "car6",     "kshuttle1"};

// The files of the real pictures, as the build's folder holds them: where
// VANTOREL_IMAGES points when the test starts.
QString g_source;
QString SourceFolder() { return g_source; }

// Fills `folder`/Alpha and `folder`/Omega with an entry for every name,
// made by `make` from the path and the real picture's bytes.
using Maker = std::function<void(const QString& path, const QByteArray& real)>;
void Fill(const QString& folder, const Maker& make) {
    for (const char* side : {"Alpha", "Omega"}) {
        QDir().mkpath(folder + QLatin1Char('/') + QLatin1String(side));
        const QString ending =
            QLatin1String(side) == QLatin1String("Alpha") ? QStringLiteral(".jpg") : QStringLiteral(".gif");
        for (const char* name : kNames) {
            const QString file =
                QLatin1Char('/') + QLatin1String(side) + QLatin1Char('/') + QLatin1String(name) + ending;
            QFile real(SourceFolder() + file);
            QByteArray bytes;
            if (real.open(QIODevice::ReadOnly)) bytes = real.readAll();
            make(folder + file, bytes);
        }
    }
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) file.write(bytes);
}

// What stands in a folder: each entry's path, kind, size and time of change.
using Listing = QMap<QString, QString>;
Listing ListingOf(const QString& root) {
    Listing listing;
    const QFileInfo top(root);
    listing.insert(QStringLiteral("."), top.lastModified().toString(Qt::ISODateWithMs));
    QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QFileInfo info(it.next());
        const QString kind = info.isDir()    ? QStringLiteral("folder")
                             : info.isFile() ? QStringLiteral("file")
                                             : QStringLiteral("other");
        listing.insert(info.filePath(), kind + QLatin1Char(' ') + QString::number(info.size()) + QLatin1Char(' ') +
                                            info.lastModified().toString(Qt::ISODateWithMs));
    }
    return listing;
}

// The share of the picture's pixels that are not its plain ground, outside
// the line down the middle between Alpha's and Omega's halves.
double Drawn(const QImage& picture) {
    const QColor ground = picture.pixelColor(1, 1);
    const int middle = picture.width() / 2;
    const int margin = picture.width() / 50 + 1;
    int drawn = 0;
    int counted = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (std::abs(x - middle) <= margin) continue;
            ++counted;
            if (picture.pixelColor(x, y) != ground) ++drawn;
        }
    }
    return counted ? double(drawn) / counted : 0.0;
}

// Chooses a row the way a user does: open the drop-down, move to the row,
// press Return.
void ChooseRow(QComboBox* list, const QString& text) {
    const int row = list->findText(text, Qt::MatchContains);
    QVERIFY2(row >= 0, qPrintable(list->objectName() + QStringLiteral(" has no row ") + text));
    list->showPopup();
    QAbstractItemView* rows = list->view();
    rows->setCurrentIndex(rows->model()->index(row, 0));
    QTest::keyClick(rows, Qt::Key_Return);
}

QStringList g_warnings;

// What Qt says of the program, not of the offscreen screen that the test runs
// on, which cannot raise a window or grab the keyboard.
void Catch(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    if (message.startsWith(QLatin1String("This plugin does not support"))) return;
    g_warnings << message;
}

// The program looks at another folder, and what Qt says is caught, for as
// long as this stands.
class Pointed final {
  public:
    explicit Pointed(const QString& folder) : m_previous(qInstallMessageHandler(Catch)) {
        g_warnings.clear();
        qputenv("VANTOREL_IMAGES", QFile::encodeName(folder));
    }
    ~Pointed() {
        qputenv("VANTOREL_IMAGES", QFile::encodeName(g_source));
        qInstallMessageHandler(m_previous);
    }
    Pointed(const Pointed&) = delete;
    Pointed& operator=(const Pointed&) = delete;

  private:
    QtMessageHandler m_previous;
};

} // namespace

class PicturesTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() {
        g_source = qEnvironmentVariable("VANTOREL_IMAGES");
        QVERIFY2(QFileInfo(SourceFolder() + QStringLiteral("/Alpha/cru2.jpg")).isFile(),
                 "VANTOREL_IMAGES does not point at the pictures");
    }

    void anyFolderStartsAndWorks_data() {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<bool>("plain");
        QTest::newRow("the real pictures") << QStringLiteral("real") << false;
        QTest::newRow("no folder") << QStringLiteral("none") << true;
        QTest::newRow("empty folders") << QStringLiteral("empty folders") << true;
        QTest::newRow("empty files") << QStringLiteral("empty files") << true;
        QTest::newRow("files cut in half") << QStringLiteral("half") << true;
        QTest::newRow("files short of their last byte") << QStringLiteral("short") << true;
        QTest::newRow("text under the pictures' names") << QStringLiteral("text") << true;
        QTest::newRow("each kind under the other's name") << QStringLiteral("swapped") << true;
        QTest::newRow("folders under the pictures' names") << QStringLiteral("folders") << true;
        QTest::newRow("pipes under the pictures' names") << QStringLiteral("pipes") << true;
    }

    void anyFolderStartsAndWorks() {
        QFETCH(QString, layout);
        QFETCH(bool, plain);

        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString folder = dir.path() + QStringLiteral("/Images");
        if (layout == QLatin1String("real")) {
            Fill(folder, [](const QString& path, const QByteArray& real) { Write(path, real); });
        } else if (layout == QLatin1String("empty folders")) {
            Fill(folder, [](const QString&, const QByteArray&) {});
        } else if (layout == QLatin1String("empty files")) {
            Fill(folder, [](const QString& path, const QByteArray&) { Write(path, {}); });
        } else if (layout == QLatin1String("half")) {
            Fill(folder, [](const QString& path, const QByteArray& real) { Write(path, real.left(real.size() / 2)); });
        } else if (layout == QLatin1String("short")) {
            Fill(folder, [](const QString& path, const QByteArray& real) { Write(path, real.chopped(1)); });
        } else if (layout == QLatin1String("text")) {
            Fill(folder, [](const QString& path, const QByteArray&) { Write(path, "no ship here\n"); });
        } else if (layout == QLatin1String("swapped")) {
            Fill(folder, [](const QString& path, const QByteArray&) {
                const bool jpeg = path.endsWith(QLatin1String(".jpg"));
                QFile other(SourceFolder() +
                            (jpeg ? QStringLiteral("/Omega/cru2.gif") : QStringLiteral("/Alpha/cru2.jpg")));
                QVERIFY(other.open(QIODevice::ReadOnly));
                Write(path, other.readAll());
            });
        } else if (layout == QLatin1String("folders")) {
            Fill(folder, [](const QString& path, const QByteArray&) { QDir().mkpath(path); });
        } else if (layout == QLatin1String("pipes")) {
            Fill(folder,
                 [](const QString& path, const QByteArray&) { ::mkfifo(QFile::encodeName(path).constData(), 0600); });
        }
        // Older than the start, so that a touch would show.
        QTest::qWait(20);
        const Listing before = ListingOf(dir.path());
        const Listing sourceBefore = ListingOf(SourceFolder());

        {
            const Pointed pointed(folder);
            StartedProgram program(Splash::Shown);
            program.showMainWindow();
            QWidget& window = program.windows().mainWindow();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            Program& c = program.calculator();

            // Two ships side by side, so that both halves are asked for.
            QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("Form1.Compare")), Qt::LeftButton);
            auto* omegaClass = window.findChild<QComboBox*>(QStringLiteral("Form1.ShipClass[2]"));
            QVERIFY(omegaClass);
            ChooseRow(omegaClass, QStringLiteral("Escort"));
            QVERIFY(c.main.OmegaImage.image() != c.main.AlphaImage.image());
            QVERIFY(!c.main.OmegaImage.image().empty());

            QWidget* picture = window.findChild<QWidget*>(QStringLiteral("Form1.AlphaImage"));
            QVERIFY(picture);
            const QImage square = picture->grab().toImage();
            const double drawn = Drawn(square);
            if (plain)
                QVERIFY2(drawn == 0.0, qPrintable(QStringLiteral("%1 of the square is drawn").arg(drawn)));
            else
                QVERIFY2(drawn > 0.5, qPrintable(QStringLiteral("only %1 of the square is drawn").arg(drawn)));

            // And the program works: a weapon gives its arc a number.
            auto* port = window.findChild<QComboBox*>(QStringLiteral("Form1.Forward[1]"));
            QVERIFY(port);
            ChooseRow(port, QStringLiteral("Beam Array"));
            bool shown = false;
            for (int i = 0; i <= 13; ++i) {
                const auto* box = window.findChild<QLabel*>(QStringLiteral("Form1.FiringArcDPS[%1]").arg(i));
                QVERIFY(box);
                QCOMPARE(box->text(), QString::fromStdString(c.main.FiringArcDPS[i].caption()));
                if (box->isVisible() && box->text().toDouble() > 0.0) shown = true;
            }
            QVERIFY2(shown, "no arc shows a number");
        }

        QCOMPARE(ListingOf(dir.path()), before);
        QCOMPARE(ListingOf(SourceFolder()), sourceBefore);
        QVERIFY2(g_warnings.isEmpty(), qPrintable(g_warnings.join(QStringLiteral("; "))));
    }
};

int main(int argc, char* argv[]) {
    const test::VirtualScreen screen("Screen", 1920, 1080);
    QApplication app(argc, argv);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    PicturesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "pictures_test.moc"
