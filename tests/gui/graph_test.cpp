// The graph window on a virtual screen of 1920 x 1080 at 96 dpi, wide
// enough for it to open beside the main window. It is opened, switched and
// closed through the widgets, as a user does.

#include "graph/view/graphplot.h"
#include "graph/view/graphwindow.h"
#include "gui/twips.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "program/view/windows.h"
#include "screen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QPushButton>
#include <QTest>

#include <memory>

using namespace vantorel;

namespace {

void ChooseRow(QComboBox* list, int row) {
    list->showPopup();
    QAbstractItemView* rows = list->view();
    rows->setCurrentIndex(rows->model()->index(row, 0));
    QTest::keyClick(rows, Qt::Key_Return);
}

// Pixels of exactly this colour in the painted plot: the middle of a line.
int PixelsOf(QWidget& plot, QColor colour) {
    const QImage image = plot.grab().toImage();
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            n += image.pixelColor(x, y) == colour ? 1 : 0;
    return n;
}

} // namespace

class GraphWindowTest final : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Program> m_c;
    std::unique_ptr<ProgramWindows> m_windows;

    QWidget* graph() const { return m_windows->widgetOf(m_c->graph.Form); }
    template <typename W> W* find(const char* name) const {
        return graph()->findChild<W*>(QStringLiteral("Graph.") + QLatin1String(name));
    }
    void pressGraphResults() {
        auto* button = m_windows->mainWindow().findChild<QPushButton*>(QStringLiteral("Form1.GraphResults"));
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
    }
    int pixelsX(int twips) const { return gui::Twips::forScreen(m_windows->mainWindow().screen()).toPixelsX(twips); }

  private Q_SLOTS:
    void init() {
        m_c = std::make_unique<Program>();
        m_windows = std::make_unique<ProgramWindows>(*m_c);
        ShowMainWindowAtStart(*m_c);
        QVERIFY(QTest::qWaitForWindowExposed(&m_windows->mainWindow()));
        const char* const forward[3] = {"Beam Array", "Dual Beam Bank", "Cannon"};
        for (int i = 1; i <= 3; ++i)
            m_c->main.Forward[i].setText(forward[i - 1]);
        m_c->main.Rear[1].setText("Beam Array");
        m_c->main.Rear[2].setText("Turret");
        m_c->main.Forward[1].click(m_c->main.Forward[1].index());
    }

    void cleanup() {
        m_windows.reset();
        m_c.reset();
    }

    void opensSwitchesModeAndCloses() {
        QVERIFY(!graph());
        pressGraphResults();
        QWidget* window = graph();
        QVERIFY(window);
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QCOMPARE(window->windowTitle(), QStringLiteral("DPS Graph (Unrestricted Vessel)"));
        const Window& form1 = m_c->main.Form1;
        QCOMPARE(window->x(), pixelsX(form1.left() + form1.width()));
        QCOMPARE(m_c->main.GraphResults.caption(), std::string("Hide Graph"));

        // One red line of Alpha, no key.
        GraphPlot& plot = qobject_cast<GraphWindowView*>(window)->plot();
        QVERIFY(PixelsOf(plot, QColor(255, 0, 0)) > 100);
        QVERIFY(!find<QPushButton>("HideKey")->isVisible());

        // The range comparison: six lines, the farthest in yellow.
        auto* mode = find<QComboBox>("GraphMode");
        QVERIFY(mode);
        ChooseRow(mode, 2);
        QCOMPARE(m_c->graph.GraphMode.index(), 2);
        QCOMPARE(m_c->graph.KeyLabel[5].caption(), std::string("10 km"));
        QVERIFY(m_c->graph.Key.visible());
        QVERIFY(PixelsOf(plot, QColor(255, 250, 0)) > 100);
        QCOMPARE(window->windowTitle(), QStringLiteral("Range Comparison (Unrestricted Vessel)"));

        // The frame's close button closes it for good: the standard graph
        // is back when it opens again.
        window->close();
        QVERIFY(!window->isVisible());
        QCOMPARE(m_c->graph.GraphMode.index(), 0);
        QCOMPARE(m_c->main.GraphResults.caption(), std::string("Graph Results"));
        pressGraphResults();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QCOMPARE(find<QComboBox>("GraphMode")->currentIndex(), 0);
        pressGraphResults();
        QVERIFY(!window->isVisible());
    }

    void hidesAndShowsTheKey() {
        pressGraphResults();
        QVERIFY(QTest::qWaitForWindowExposed(graph()));
        m_c->graph.GraphMode.click(1);
        QVERIFY(m_c->graph.Key.visible());
        // Folded, the key leaves its button in the plot's lower right corner.
        m_c->graph.HideKey.press();
        auto* hide = find<QPushButton>("HideKey");
        QVERIFY(hide->isVisible());
        QCOMPARE(hide->text(), QStringLiteral("Show Key"));
        QCOMPARE(hide->geometry(), gui::Twips().rect(9600, 8760, 975, 255));
        QTest::mouseClick(hide, Qt::LeftButton);
        QVERIFY(m_c->graph.KeyShown);
        QVERIFY(m_c->graph.Key.visible());
        QCOMPARE(hide->text(), QStringLiteral("Hide"));
    }

    void bringsItselfToTheFrontFromTheCorner() {
        m_c->workWidth = 12000;
        m_c->workHeight = 9000;
        pressGraphResults();
        QVERIFY(QTest::qWaitForWindowExposed(graph()));
        auto* front = find<QCheckBox>("DisplayOnUpdate");
        QVERIFY(front->isVisible());
        QTest::mouseClick(front, Qt::LeftButton);
        QCOMPARE(m_c->graph.DisplayOnUpdate.value(), 1);
        const int before = m_c->graph.Form.frontRequests();
        m_c->main.Rear[3].setText("Beam Array");
        m_c->main.Rear[3].click(m_c->main.Rear[3].index());
        QCOMPARE(m_c->graph.Form.frontRequests(), before + 1);
    }
};

int main(int argc, char* argv[]) {
    const test::VirtualScreen screen("Screen", 1920, 1080);
    QApplication app(argc, argv);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    GraphWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "graph_test.moc"
