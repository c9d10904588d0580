// The main window on a small virtual screen, 800 x 600 at 96 dpi: lower than
// the window's design height in both layouts and narrower than comparison.
// The window must fit the screen, and the scroll bars must reach every part
// of the page.

#include "gui/twips.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "screen.h"

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include <memory>

using namespace vantorel;

class WindowFitTest final : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Program> m_c;
    std::unique_ptr<MainWindow> m_window;

    template <typename W = QWidget> W* find(const char* name) const {
        return m_window->findChild<W*>(QStringLiteral("Form1.") + QLatin1String(name));
    }
    QWidget* page() const { return find("Contents"); }
    QScrollBar* bar(const char* name) const { return find<QScrollBar>(name); }
    QSize screen() const { return m_window->screen()->availableGeometry().size(); }
    void press(const char* name) { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
    // Where a control of the page stands in the window's inner area.
    QRect onWindow(const char* name) const {
        const QWidget* w = find(name);
        return QRect(w->mapTo(m_window->centralWidget(), QPoint(0, 0)), w->size());
    }
    // The inner area that the bars leave free.
    QRect uncovered() const {
        QRect area = m_window->centralWidget()->rect();
        if (bar("VScroll1")->isVisible()) area.setRight(bar("VScroll1")->x() - 1);
        if (bar("HScroll1")->isVisible()) area.setBottom(bar("HScroll1")->y() - 1);
        return area;
    }
    void settle() { QApplication::processEvents(); }

  private Q_SLOTS:
    void init() {
        m_c = std::make_unique<Program>();
        m_window = std::make_unique<MainWindow>(*m_c);
        ShowMainWindowAtStart(*m_c);
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QCOMPARE(screen(), QSize(800, 600));
    }

    void cleanup() {
        m_window.reset();
        m_c.reset();
    }

    void singleLayoutScrollsDownToTheLowestButtons() {
        QVERIFY(m_window->frameGeometry().height() <= screen().height());
        QVERIFY(bar("VScroll1")->isVisible());
        QVERIFY(!bar("HScroll1")->isVisible());
        // The window grew by the bar's width, so the bar covers no box.
        QVERIFY(onWindow("FiringArcDPS[0]").right() < bar("VScroll1")->x());
        QVERIFY(!uncovered().contains(onWindow("GraphResults")));

        bar("VScroll1")->triggerAction(QAbstractSlider::SliderToMaximum);
        settle();
        QVERIFY(uncovered().contains(onWindow("GraphResults")));
        QVERIFY(uncovered().contains(onWindow("ShowAbout")));
        QCOMPARE(m_c->main.Contents.top(), -m_c->main.VScroll1.value());

        bar("VScroll1")->triggerAction(QAbstractSlider::SliderToMinimum);
        settle();
        QCOMPARE(page()->y(), 0);
    }

    void comparisonScrollsRightToOmegasColumn() {
        press("Compare");
        settle();
        QVERIFY(m_window->frameGeometry().width() <= screen().width());
        QVERIFY(bar("HScroll1")->isVisible());
        QVERIFY(!uncovered().contains(onWindow("ShipClass[2]")));
        bar("HScroll1")->triggerAction(QAbstractSlider::SliderToMaximum);
        settle();
        QVERIFY(uncovered().contains(onWindow("ShipClass[2]")));
        bar("VScroll1")->triggerAction(QAbstractSlider::SliderToMaximum);
        settle();
        QVERIFY(uncovered().contains(onWindow("Advanced[2]")));
        QVERIFY(uncovered().contains(onWindow("CFiringArcDPS[13]")));
    }

    // Back in the single layout the window takes its design width, which on
    // a screen this low still leaves room for a short horizontal bar; the
    // page follows that bar, and goes back to the left edge once the window
    // is wide enough for the bar to go.
    void leavingComparisonBringsThePageBackToTheLeft() {
        press("Compare");
        bar("HScroll1")->triggerAction(QAbstractSlider::SliderToMaximum);
        settle();
        QVERIFY(page()->x() < 0);
        press("HideCompare");
        settle();
        QCOMPARE(m_c->main.Form1.width(), 9950);
        QVERIFY(bar("HScroll1")->value() <= bar("HScroll1")->maximum());
        QCOMPARE(page()->x(), -gui::Twips::forScreen(m_window->screen()).toPixelsX(m_c->main.HScroll1.value()));

        m_window->resize(760, m_window->height());
        settle();
        QVERIFY(!bar("HScroll1")->isVisible());
        QCOMPARE(page()->x(), 0);
        QVERIFY(uncovered().contains(onWindow("ShipClass[1]")));
    }

    void maximiseComesBackNormalAndFitting() {
        m_window->showMaximized();
        settle();
        settle();
        QVERIFY(!m_window->isMaximized());
        QCOMPARE(m_c->main.Form1.state(), WindowState::Normal);
        QVERIFY(m_window->frameGeometry().height() <= screen().height());
        QCOMPARE(m_window->width(), gui::Twips::forScreen(m_window->screen()).toPixelsX(9950 + 240 - kFrameWidth));
        QVERIFY(bar("VScroll1")->isVisible());
    }

    void smallerByHandStaysLargerByHandGoesBack() {
        const QSize fitted = m_window->size();
        m_window->resize(500, 400);
        settle();
        QCOMPARE(m_window->size(), QSize(500, 400));
        QVERIFY(bar("HScroll1")->isVisible());
        QVERIFY(bar("VScroll1")->isVisible());
        QCOMPARE(bar("HScroll1")->width(), 500 - bar("VScroll1")->width());

        m_window->resize(1000, 800);
        settle();
        QCOMPARE(m_window->width(), fitted.width());
        QVERIFY(m_window->frameGeometry().height() <= screen().height());
    }

    void minimiseTakesTheSettingsWindows() {
        m_window->showMinimized();
        settle();
        QCOMPARE(m_c->settings[1].Form.state(), WindowState::Minimised);
        QCOMPARE(m_c->settings[2].Form.state(), WindowState::Minimised);
        m_window->showNormal();
        settle();
        QCOMPARE(m_c->settings[1].Form.state(), WindowState::Normal);
        QCOMPARE(m_c->main.Form1.state(), WindowState::Normal);
    }
};

int main(int argc, char* argv[]) {
    const test::VirtualScreen screen("Small", 800, 600);
    QApplication app(argc, argv);
    WindowFitTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "window_fit_test.moc"
