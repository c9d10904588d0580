// The main window on a virtual screen of 1920 x 1080 at 96 dpi, large enough
// that neither layout needs a scroll bar. Every action goes through the
// widgets as a user's would: rows chosen in the drop-down, buttons clicked.

#include "agreement.h"
#include "gui/binding.h"
#include "gui/twips.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "program/registry.h"
#include "screen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include <memory>

using namespace vantorel;

namespace {

using test::ChooseRow;
using test::Q;

int RowOf(const QComboBox* list, const QString& text) {
    for (int i = 0; i < list->count(); ++i) {
        if (list->itemText(i).contains(text)) return i;
    }
    return -1;
}

} // namespace

class MainWindowTest final : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Program> m_c;
    std::unique_ptr<MainWindow> m_window;

    template <typename W> W* find(const QString& name) const { return m_window->findChild<W*>(name); }
    QComboBox* list(const QString& name) const { return find<QComboBox>(QStringLiteral("Form1.") + name); }
    QPushButton* button(const QString& name) const { return find<QPushButton>(QStringLiteral("Form1.") + name); }
    QLabel* label(const QString& name) const { return find<QLabel>(QStringLiteral("Form1.") + name); }
    bool shown(const QString& name) const {
        const QWidget* w = find<QWidget>(QStringLiteral("Form1.") + name);
        return w && w->isVisible();
    }
    int pixelsX(int twips) const { return gui::Twips::forScreen(m_window->screen()).toPixelsX(twips); }
    void choose(const QString& port, const QString& weapon) {
        QComboBox* w = list(port);
        QVERIFY(w);
        const int row = RowOf(w, weapon);
        QVERIFY2(row >= 0, qPrintable(port + " has no row " + weapon));
        ChooseRow(w, row);
    }
    QStringList visibleBoxes(const char* prefix) const {
        QStringList boxes;
        for (int i = 0; i <= 13; ++i) {
            const QLabel* box = label(QStringLiteral("%1[%2]").arg(QLatin1String(prefix)).arg(i));
            if (box && box->isVisible()) boxes << box->text();
        }
        return boxes;
    }

  private Q_SLOTS:
    void init() {
        m_c = std::make_unique<Program>();
        m_window = std::make_unique<MainWindow>(*m_c);
        ShowMainWindowAtStart(*m_c);
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup() {
        m_window.reset();
        m_c.reset();
    }

    void startsInTheSingleLayout() {
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Vantorel 4.0"));
        QCOMPARE(m_window->centralWidget()->palette().color(QPalette::Window), QColor(Qt::black));
        QVERIFY(shown("Compare"));
        QVERIFY(!shown("HideCompare"));
        QVERIFY(!shown("Primarylabel"));
        for (const char* omega : {"ShipClass[2]", "ShipTier[2]", "PowerLevel[2]", "TargetDistance[2]", "Skills[2]",
                                  "Advanced[2]", "CReset", "CForward[1]", "CRear[1]"})
            QVERIFY2(!shown(QLatin1String(omega)), omega);
        for (int i = 1; i <= 4; ++i) {
            QVERIFY(shown(QStringLiteral("Forward[%1]").arg(i)));
            QVERIFY(shown(QStringLiteral("Rear[%1]").arg(i)));
        }
        QCOMPARE(list(QStringLiteral("Forward[1]"))->currentText(), QStringLiteral("Forward Weapon Port 1"));
        QVERIFY(visibleBoxes("FiringArcDPS").isEmpty());
        // The single layout: the page is as wide as the window, the Omega
        // column beyond its edge.
        const QWidget* page = find<QWidget>(QStringLiteral("Form1.Contents"));
        QCOMPARE(page->width(), pixelsX(9825));
        QVERIFY(!page->rect().contains(list(QStringLiteral("ShipClass[2]"))->geometry().topLeft()));
        QCOMPARE(m_window->width(), pixelsX(9950 - kFrameWidth));
        QVERIFY(!shown("HScroll1"));
        QVERIFY(!shown("VScroll1"));
    }

    void choosingAWeaponShowsItsArc() {
        choose(QStringLiteral("Forward[1]"), QStringLiteral("Beam Array"));
        QVERIFY(m_c->main.Forward[1].text().find("Beam Array") != std::string::npos);
        const QStringList boxes = visibleBoxes("FiringArcDPS");
        QVERIFY2(!boxes.isEmpty(), "no result box on show");
        for (const QString& value : boxes) {
            bool number = false;
            QVERIFY2(value.toDouble(&number) > 0 && number, qPrintable(value));
        }
        QCOMPARE(list(QStringLiteral("Forward[1]"))->currentText(), Q(m_c->main.Forward[1].text()));
    }

    void typingInAPortRunsNoCalculation() {
        choose(QStringLiteral("Forward[1]"), QStringLiteral("Beam Array"));
        const QStringList before = visibleBoxes("FiringArcDPS");
        QLineEdit* edit = list(QStringLiteral("Rear[1]"))->lineEdit();
        edit->clear();
        QTest::keyClicks(edit, QStringLiteral("Plasma Pie"));
        QCOMPARE(Q(m_c->main.Rear[1].text()), QStringLiteral("Plasma Pie"));
        QCOMPARE(m_c->main.Rear[1].index(), -1);
        QCOMPARE(visibleBoxes("FiringArcDPS"), before);
    }

    void compareShowsOmegaAndColoursTheBoxes() {
        choose(QStringLiteral("Forward[1]"), QStringLiteral("Beam Array"));
        QTest::mouseClick(button(QStringLiteral("Compare")), Qt::LeftButton);
        QVERIFY(shown("HideCompare"));
        QVERIFY(!shown("Compare"));
        QVERIFY(shown("Primarylabel"));
        QVERIFY(shown("ShipClass[2]"));
        QVERIFY(shown("CForward[1]"));
        QCOMPARE(label(QStringLiteral("Note"))->x(), pixelsX(3720));
        QCOMPARE(m_window->width(), pixelsX(14115 - kFrameWidth));
        QCOMPARE(find<QWidget>(QStringLiteral("Form1.Contents"))->width(), pixelsX(13995));
        QVERIFY(!shown("HScroll1"));

        // Omega with two forward beams against Alpha's one: the boxes differ
        // and take colours other than white.
        choose(QStringLiteral("CForward[1]"), QStringLiteral("Beam Array"));
        choose(QStringLiteral("CForward[2]"), QStringLiteral("Beam Array"));
        QVERIFY(!visibleBoxes("CFiringArcDPS").isEmpty());
        bool coloured = false;
        for (int i = 0; i <= 11; ++i) {
            const QLabel* box = label(QStringLiteral("FiringArcDPS[%1]").arg(i));
            if (box->isVisible() && box->palette().color(QPalette::Window) != QColor(Qt::white)) coloured = true;
            QCOMPARE(box->palette().color(QPalette::Window), gui::ToQColor(m_c->main.FiringArcDPS[i].back()));
        }
        QVERIFY2(coloured, "no coloured box in comparison");
    }

    void hideCompareRestoresTheSingleLayout() {
        choose(QStringLiteral("Forward[1]"), QStringLiteral("Beam Array"));
        QTest::mouseClick(button(QStringLiteral("Compare")), Qt::LeftButton);
        choose(QStringLiteral("CForward[1]"), QStringLiteral("Dual Cannons"));
        QTest::mouseClick(button(QStringLiteral("HideCompare")), Qt::LeftButton);

        QVERIFY(shown("Compare"));
        QVERIFY(!shown("HideCompare"));
        QVERIFY(!shown("Primarylabel"));
        QVERIFY(!shown("ShipClass[2]"));
        QVERIFY(!shown("CForward[1]"));
        QVERIFY(visibleBoxes("CFiringArcDPS").isEmpty());
        QCOMPARE(label(QStringLiteral("Note"))->x(), pixelsX(2880));
        QCOMPARE(m_window->width(), pixelsX(9950 - kFrameWidth));
        QCOMPARE(list(QStringLiteral("CForward[1]"))->currentText(), QStringLiteral("Forward Weapon Port 1"));
        for (int i = 0; i <= 11; ++i) {
            const QLabel* box = label(QStringLiteral("FiringArcDPS[%1]").arg(i));
            if (box->isVisible()) QCOMPARE(box->palette().color(QPalette::Window), QColor(Qt::white));
        }
    }

    void simplifiedRenamesTheBoxes() {
        choose(QStringLiteral("Forward[1]"), QStringLiteral("Beam Array"));
        auto* simplified = find<QCheckBox>(QStringLiteral("Form1.Simplified"));
        QTest::mouseClick(simplified, Qt::LeftButton);
        QCOMPARE(m_c->main.Simplified.value(), 1);
        QVERIFY(simplified->isChecked());
        QCOMPARE(label(QStringLiteral("FiringArcLabel[2]"))->text(), QStringLiteral("Forward"));
        QCOMPARE(label(QStringLiteral("FiringArcLabel[7]"))->text(), QStringLiteral("Side"));
        QTest::mouseClick(simplified, Qt::LeftButton);
        QCOMPARE(m_c->main.Simplified.value(), 0);
        QCOMPARE(label(QStringLiteral("FiringArcLabel[7]"))->text(), QStringLiteral("Broadside"));
    }

    void resetClearsThePorts() {
        choose(QStringLiteral("Forward[1]"), QStringLiteral("Beam Array"));
        choose(QStringLiteral("Rear[2]"), QStringLiteral("Turret"));
        QTest::mouseClick(button(QStringLiteral("Reset")), Qt::LeftButton);
        QCOMPARE(list(QStringLiteral("Forward[1]"))->currentText(), QStringLiteral("Forward Weapon Port 1"));
        QCOMPARE(list(QStringLiteral("Rear[2]"))->currentText(), QStringLiteral("Rear Weapon Port 2"));
        QVERIFY(visibleBoxes("FiringArcDPS").isEmpty());
    }

    // Buttons whose windows do not exist yet must be harmless.
    void buttonsWithoutWindowsAreHarmless() {
        for (const char* name : {"Skills[1]", "Advanced[1]", "GraphResults", "Help", "ShowAbout"}) {
            QPushButton* b = button(QLatin1String(name));
            QVERIFY2(b && b->isVisible() && !b->text().isEmpty() && !b->toolTip().isEmpty(), name);
            QTest::mouseClick(b, Qt::LeftButton);
        }
        QVERIFY(m_window->isVisible());
    }

    void everyWidgetAgreesWithItsField() {
        const ControlRegistry registry(*m_c);
        QStringList wrong = test::Disagreements(*m_window, registry, "Form1");
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QStringLiteral("; "))));

        // A cascade: another ship class rebuilds tiers, subclasses and ports.
        QComboBox* shipClass = list(QStringLiteral("ShipClass[1]"));
        ChooseRow(shipClass, RowOf(shipClass, QStringLiteral("Escort")));
        QVERIFY(m_c->main.ShipClass[1].text().find("Escort") != std::string::npos);
        choose(QStringLiteral("Forward[1]"), QStringLiteral("Dual Cannons"));
        QTest::mouseClick(button(QStringLiteral("Compare")), Qt::LeftButton);
        QComboBox* omegaClass = list(QStringLiteral("ShipClass[2]"));
        ChooseRow(omegaClass, RowOf(omegaClass, QStringLiteral("Cruiser")));
        wrong = test::Disagreements(*m_window, registry, "Form1");
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QStringLiteral("; "))));
    }
};

int main(int argc, char* argv[]) {
    const test::VirtualScreen screen("Screen", 1920, 1080);
    QApplication app(argc, argv);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    MainWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "mainwindow_test.moc"
