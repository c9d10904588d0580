// The settings windows and the warning note on a laptop's virtual screen,
// 1366 x 768 at 96 dpi: lower than a settings window's page, so the page
// scrolls. Every action goes through the widgets as a user's would.

#include "agreement.h"
#include "gui/binding.h"
#include "gui/twips.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/program.h"
#include "program/registry.h"
#include "program/view/windows.h"
#include "screen.h"

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

using test::Disagreements;

class SettingsWindowTest final : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Program> m_c;
    std::unique_ptr<ProgramWindows> m_windows;

    QWidget* mainWindow() const { return &m_windows->mainWindow(); }
    QWidget* window(const Window& field) const { return m_windows->widgetOf(field); }
    template <typename W> W* find(const QWidget* in, const char* name) const {
        return in->findChild<W*>(QLatin1String(name));
    }
    void click(QWidget* in, const char* name) {
        auto* w = find<QAbstractButton>(in, name);
        QVERIFY2(w, name);
        QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(8, w->height() / 2));
    }
    QWidget* openAlpha() {
        click(mainWindow(), "Form1.Advanced[1]");
        QWidget* alpha = window(m_c->Alpha().Form);
        return alpha && QTest::qWaitForWindowExposed(alpha) ? alpha : nullptr;
    }

  private Q_SLOTS:
    void init() {
        m_c = std::make_unique<Program>();
        m_windows = std::make_unique<ProgramWindows>(*m_c);
        ShowMainWindowAtStart(*m_c);
        QVERIFY(QTest::qWaitForWindowExposed(mainWindow()));
        QCOMPARE(mainWindow()->screen()->availableGeometry().size(), QSize(1366, 768));
    }

    void cleanup() {
        m_windows.reset();
        m_c.reset();
    }

    void opensOnFirstShowWithEveryControl() {
        QVERIFY(!window(m_c->Alpha().Form));
        QWidget* alpha = openAlpha();
        QVERIFY(alpha && alpha->isVisible());
        QCOMPARE(alpha->windowTitle(), QStringLiteral("Alpha Vessel- Advanced Settings"));
        QCOMPARE(find<QPushButton>(mainWindow(), "Form1.Advanced[1]")->text(), QStringLiteral("Hide Settings"));
        const ControlRegistry registry(*m_c);
        QStringList wrong = Disagreements(*alpha, registry, "Alpha");
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QStringLiteral("; "))));

        // Customised through its own controls, it still agrees with its
        // fields, and so does the mirrored Omega beside it.
        click(mainWindow(), "Form1.Compare");
        click(mainWindow(), "Form1.Advanced[2]");
        QWidget* omega = window(m_c->Omega().Form);
        QVERIFY(omega && omega->isVisible());
        click(alpha, "Alpha.CharacterSettings");
        click(alpha, "Alpha.RelativeDPS");
        click(alpha, "Alpha.CriticalSettings");
        QCOMPARE(find<QComboBox>(alpha, "Alpha.Rank")->currentText(), QStringLiteral("Vice Admiral"));
        for (const auto& [widget, name] : {std::pair{alpha, "Alpha"}, std::pair{omega, "Omega"}}) {
            wrong = Disagreements(*widget, registry, name);
            QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QStringLiteral("; "))));
        }
        QVERIFY(!find<QComboBox>(omega, "Omega.WeaponMark")->isEnabled());
        QCOMPARE(find<QComboBox>(alpha, "Alpha.CriticalItem")->placeholderText(),
                 QStringLiteral("Select Equipment Bonuses"));
    }

    void theFrameOnlyHidesIt() {
        QWidget* alpha = openAlpha();
        QVERIFY(alpha);
        click(alpha, "Alpha.CriticalSettings");
        alpha->close();
        QApplication::processEvents();
        QVERIFY(!alpha->isVisible());
        QCOMPARE(m_c->Alpha().Form.visible(), false);
        QCOMPARE(find<QPushButton>(mainWindow(), "Form1.Advanced[1]")->text(), QStringLiteral("Show Settings"));
        // Shown again: the same window, with what was set.
        click(mainWindow(), "Form1.Advanced[1]");
        QCOMPARE(window(m_c->Alpha().Form), alpha);
        QVERIFY(alpha->isVisible());
        QVERIFY(!find<QCheckBox>(alpha, "Alpha.CriticalSettings")->isChecked());
        click(alpha, "Alpha.Close");
        QVERIFY(!alpha->isVisible());
    }

    void scrollsOnAScreenShorterThanThePage() {
        QWidget* alpha = openAlpha();
        QVERIFY(alpha);
        QVERIFY(alpha->frameGeometry().height() <= alpha->screen()->availableGeometry().height());
        auto* bar = find<QScrollBar>(alpha, "Alpha.VScroll1");
        QVERIFY(bar && bar->isVisible());
        QVERIFY(bar->geometry().right() < alpha->width());
        QWidget* page = find<QWidget>(alpha, "Alpha.Contents");
        const QWidget* close = find<QWidget>(alpha, "Alpha.Close");
        auto onWindow = [&](const QWidget* w) { return QRect(w->mapTo(alpha, QPoint(0, 0)), w->size()); };
        QVERIFY(!alpha->rect().contains(onWindow(close)));

        bar->triggerAction(QAbstractSlider::SliderToMaximum);
        QApplication::processEvents();
        QVERIFY(alpha->rect().contains(onWindow(close)));
        QCOMPARE(page->y(), gui::Twips::forScreen(alpha->screen()).toPixelsY(-m_c->Alpha().VScroll1.value()));
        bar->triggerAction(QAbstractSlider::SliderToMinimum);
        QApplication::processEvents();
        QCOMPARE(page->y(), 0);
    }

    void aTypedValueIsCorrectedInTheBox() {
        QWidget* alpha = openAlpha();
        QVERIFY(alpha);
        click(alpha, "Alpha.RelativeDPS");
        click(alpha, "Alpha.CriticalSettings");
        // clang-format off
        struct Case { const char* box; const char* typed; const char* shown; } cases[] = {
            {"Alpha.WeaponSkill[2]", "15", "9"}, {"Alpha.WeaponSkill[2]", "abc", ""},
            {"Alpha.WeaponSkill[2]", "7.5", "7.5"}, {"Alpha.TargetDefense", "-", "-"},
            {"Alpha.TargetDefense", "-40", "-35"}, {"Alpha.CriticalSkill[1]", "47", "47"},
        };
        // clang-format on
        for (const Case& k : cases) {
            auto* box = find<QLineEdit>(alpha, k.box);
            QVERIFY2(box && box->isEnabled(), k.box);
            box->setFocus();
            box->selectAll();
            QTest::keyClick(box, Qt::Key_Backspace);
            QTest::keyClicks(box, QLatin1String(k.typed));
            QCOMPARE(box->text(), QLatin1String(k.shown));
        }
        QCOMPARE(m_c->Alpha().WeaponSkill[2].text(), std::string("7.5"));
        QCOMPARE(m_c->Omega().TargetDefense.text(), std::string("-35"));
    }

    void theWarningHoldsTheOtherWindows() {
        QWidget* alpha = openAlpha();
        QVERIFY(alpha);
        click(alpha, "Alpha.ExtrapolatePower");
        QWidget* note = window(m_c->note.Form);
        QVERIFY(note && note->isVisible());
        QCOMPARE(note->windowTitle(), QStringLiteral("Warning- Extrapolated Power Settings Are Only Estimates!"));
        QVERIFY(!mainWindow()->isEnabled() && !alpha->isEnabled());
        QVERIFY(find<QCheckBox>(note, "Note.WarningCheck")->isChecked());
        // Centred on the window that raised it.
        QCOMPARE(note->geometry().center().x() / 4, alpha->geometry().center().x() / 4);

        click(note, "Note.WarningCheck");
        QCOMPARE(m_c->state.SuppressPowerWarning, false);
        note->close();
        QApplication::processEvents();
        QVERIFY(!note->isVisible());
        QVERIFY(mainWindow()->isEnabled() && alpha->isEnabled());
        // Cleared, the box lets the warning come again, in the same window.
        click(alpha, "Alpha.ExtrapolatePower");
        click(alpha, "Alpha.ExtrapolatePower");
        QCOMPARE(window(m_c->note.Form), note);
        QVERIFY(note->isVisible());
        click(note, "Note.Close");
        QVERIFY(!note->isVisible() && alpha->isEnabled());
    }
};

int main(int argc, char* argv[]) {
    const test::VirtualScreen screen("Laptop", 1366, 768);
    QApplication app(argc, argv);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    SettingsWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "settings_test.moc"
