// The skills windows on a virtual screen of 1920 x 1080 at 96 dpi, made by
// the program's windows on their first show. Every action goes through the
// widgets as a user's would: the main window's button, boxes clicked, rows
// chosen in the drop-down, text typed, the frame's close.

#include "agreement.h"
#include "gui/binding.h"
#include "gui/twips.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "program/registry.h"
#include "program/view/windows.h"
#include "screen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include <memory>

using namespace vantorel;

using test::ChooseRow;

class SkillsWindowTest final : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Program> m_c;
    std::unique_ptr<ProgramWindows> m_windows;

    QWidget* window(Vessel v) const { return m_windows->widgetOf(m_c->skills[v].Form); }
    template <typename W> W* find(Vessel v, const char* control) const {
        const QString prefix = v == 1 ? QStringLiteral("AlphaSkills.") : QStringLiteral("OmegaSkills.");
        return window(v)->findChild<W*>(prefix + QLatin1String(control));
    }
    QPushButton* mainButton(const char* name) const {
        return m_windows->mainWindow().findChild<QPushButton*>(QStringLiteral("Form1.") + QLatin1String(name));
    }
    gui::Twips twips() const { return gui::Twips::forScreen(m_windows->mainWindow().screen()); }
    void agrees(Vessel v) const {
        const ControlRegistry registry(*m_c);
        const QStringList wrong = test::Disagreements(*window(v), registry, v == 1 ? "AlphaSkills" : "OmegaSkills");
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QStringLiteral("; "))));
    }

  private Q_SLOTS:
    void init() {
        m_c = std::make_unique<Program>();
        m_windows = std::make_unique<ProgramWindows>(*m_c);
        ShowMainWindowAtStart(*m_c);
        QVERIFY(QTest::qWaitForWindowExposed(&m_windows->mainWindow()));
    }

    void cleanup() {
        m_windows.reset();
        m_c.reset();
    }

    void opensBelowTheMainWindowOnItsButton() {
        QVERIFY(!window(1));
        QTest::mouseClick(mainButton("Skills[1]"), Qt::LeftButton);
        QWidget* w = window(1);
        QVERIFY(w && w->isVisible());
        QCOMPARE(w->windowTitle(), QStringLiteral("Alpha Vessel- Activated Skills"));
        QCOMPARE(mainButton("Skills[1]")->text(), QStringLiteral("Hide Skills"));
        const Window& main = m_c->main.Form1;
        QCOMPARE(w->pos(), QPoint(twips().toPixelsX(main.left()), twips().toPixelsY(main.top() + main.height())));
        QCOMPARE(w->palette().color(QPalette::Window), QColor(Qt::black));
        agrees(1);

        QTest::mouseClick(mainButton("Skills[1]"), Qt::LeftButton);
        QVERIFY(!w->isVisible());
        QCOMPARE(mainButton("Skills[1]")->text(), QStringLiteral("Activate Skills"));
    }

    void usingTheControlsReachesTheResults() {
        QTest::mouseClick(mainButton("Skills[1]"), Qt::LeftButton);
        auto* beams = find<QCheckBox>(1, "BeamSkillActivated");
        QTest::mouseClick(beams, Qt::LeftButton, {}, QPoint(8, beams->height() / 2));
        QCOMPARE(std::tuple(m_c->skills[1].BeamSkillActivated.value(), m_c->state.BeamSkill[1]), std::tuple(1, 1));

        // Scatter Volley's rows take the place of Rapid Fire's at once.
        ChooseRow(find<QComboBox>(1, "CannonSkillSelected"), 1);
        QCOMPARE(find<QComboBox>(1, "CannonSkillLevel")->itemText(0),
                 QStringLiteral("1 (+15% Cannon Damage, Max Targets: 3)"));

        // A number of targets outside 1 to 10 is corrected as it is typed.
        QLineEdit* targets = find<QLineEdit>(1, "Targets");
        targets->selectAll();
        QTest::keyClicks(targets, QStringLiteral("0"));
        QCOMPARE(targets->text(), QStringLiteral("1"));
        targets->selectAll();
        QTest::keyClicks(targets, QStringLiteral("12"));
        QCOMPARE(std::tuple(targets->text(), m_c->state.SkillTargets[1]), std::tuple(QStringLiteral("10"), 10));
        agrees(1);
    }

    void theFramesCloseOnlyHides() {
        QTest::mouseClick(mainButton("Skills[1]"), Qt::LeftButton);
        QWidget* w = window(1);
        m_c->skills[1].TorpedoSkillActivated.setValue(1);
        QVERIFY(!w->close());
        QVERIFY(!w->isVisible());
        QCOMPARE(std::tuple(m_c->skills[1].Form.visible(), mainButton("Skills[1]")->text()),
                 std::tuple(false, QStringLiteral("Activate Skills")));
        QTest::mouseClick(mainButton("Skills[1]"), Qt::LeftButton);
        QCOMPARE(window(1), w);
        QVERIFY(find<QCheckBox>(1, "TorpedoSkillActivated")->isChecked());
        QTest::mouseClick(find<QPushButton>(1, "Close"), Qt::LeftButton);
        QVERIFY(!w->isVisible());
    }

    void omegasWindowFollowsAlphaUntilFreed() {
        QTest::mouseClick(mainButton("Compare"), Qt::LeftButton);
        QTest::mouseClick(mainButton("Skills[2]"), Qt::LeftButton);
        QWidget* w = window(2);
        QVERIFY(w && w->isVisible());
        const Window& main = m_c->main.Form1;
        const Window& form = m_c->skills[2].Form;
        QCOMPARE(form.left() + form.width(), main.left() + main.width());
        QCOMPARE(w->x(), twips().toPixelsX(form.left()));
        QVERIFY(!find<QPushButton>(2, "Help")->isVisible());
        auto* beams = find<QCheckBox>(2, "BeamSkillActivated");
        QVERIFY(!beams->isEnabled());
        QVERIFY(!find<QComboBox>(2, "BeamSkillLevel")->isEnabled());
        agrees(2);

        // A disabled caption stands back from the window's white ones.
        const QImage caption = beams->grab().toImage();
        int brightest = 0;
        for (int x = caption.width() / 3; x < caption.width(); ++x)
            for (int y = 0; y < caption.height(); ++y)
                brightest = std::max(brightest, qGray(caption.pixel(x, y)));
        QVERIFY2(brightest > 0 && brightest < 200, qPrintable(QString::number(brightest)));

        m_c->skills[1].BeamSkillActivated.setValue(1);
        QVERIFY(beams->isChecked());
        auto* same = find<QCheckBox>(2, "SameAsAlpha");
        QTest::mouseClick(same, Qt::LeftButton, {}, QPoint(8, same->height() / 2));
        QCOMPARE(m_c->skills[2].SameAsAlpha.value(), 0);
        QVERIFY(beams->isEnabled() && beams->isChecked());
        QCOMPARE(find<QLineEdit>(2, "Targets")->palette().color(QPalette::Base), QColor(Qt::white));
        QTest::mouseClick(beams, Qt::LeftButton, {}, QPoint(8, beams->height() / 2));
        QCOMPARE(std::tuple(m_c->state.BeamSkill[1], m_c->state.BeamSkill[2]), std::tuple(1, 0));
        agrees(2);

        QTest::mouseClick(mainButton("HideCompare"), Qt::LeftButton);
        QVERIFY(!w->isVisible());
        QVERIFY(!beams->isEnabled() && beams->isChecked());
    }
};

int main(int argc, char* argv[]) {
    const test::VirtualScreen screen("Screen", 1920, 1080);
    QApplication app(argc, argv);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    SkillsWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "skills_test.moc"
