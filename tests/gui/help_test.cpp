// The manual, About and the splash screen on a virtual screen of 1920 x 1080
// at 96 dpi. Every help button must open the manual with its section's
// heading in view near the top of the box, whatever serif face Qt finds.

#include "gui/twips.h"
#include "help/help.h"
#include "help/manual.h"
#include "help/placement.h"
#include "help/splash.h"
#include "help/view/splash.h"
#include "mainwindow/layout.h"
#include "mainwindow/view/mainwindow.h"
#include "program/view/start.h"
#include "screen.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextList>
#include <QUrl>

#include <memory>
#include <string>
#include <tuple>

using namespace vantorel;

Q_DECLARE_METATYPE(vantorel::HelpCaller)
Q_DECLARE_METATYPE(vantorel::ManualSection)

namespace {

// What the box shows: where the line of a position stands, in pixels from
// the top of the box's visible text.
int TopInView(const QTextEdit& box, int position) {
    QTextCursor at(box.document());
    at.setPosition(position);
    return box.cursorRect(at).top();
}

} // namespace

// The pages that About's `Online` asks the system to open.
class PageCatcher final : public QObject {
    Q_OBJECT

  public:
    QList<QUrl> opened;

  public Q_SLOTS:
    void open(const QUrl& url) { opened << url; }
};

class HelpTest final : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<StartedProgram> m_program;

    Calculator& c() { return m_program->calculator(); }
    QWidget* documentation() { return m_program->windows().widgetOf(c().documentation.Form); }
    QWidget* about() { return m_program->windows().widgetOf(c().about.Form); }
    QTextEdit* box() {
        QWidget* w = documentation();
        return w ? w->findChild<QTextEdit*>(QStringLiteral("Documentation.ReadmeBox")) : nullptr;
    }
    gui::Twips twips() const { return gui::Twips::forScreen(QGuiApplication::primaryScreen()); }
    void click(QWidget* window, const QString& name) {
        QVERIFY(window);
        auto* button = window->findChild<QPushButton*>(name);
        QVERIFY2(button && button->isVisible(), qPrintable(name));
        QTest::mouseClick(button, Qt::LeftButton);
    }
    void mainButton(const char* name) { click(&m_program->windows().mainWindow(), QStringLiteral("Form1.") + name); }

    // The manual is open with the heading at `heading` in view near the top
    // of the box, and the caret in view.
    void expectHeadingOnTop(int heading, const QString& text) {
        QTest::qWait(20);
        QWidget* window = documentation();
        QVERIFY(window && window->isVisible());
        QTextEdit* readme = box();
        QVERIFY(readme);
        QCOMPARE(readme->document()->findBlock(heading).text(), text);
        const int view = readme->viewport()->height();
        const int top = TopInView(*readme, heading);
        QVERIFY2(top >= 0 && top <= view / 10,
                 qPrintable(QStringLiteral("%1 at %2 of %3").arg(text).arg(top).arg(view)));
        QVERIFY(readme->viewport()->rect().contains(readme->cursorRect()));
        QCOMPARE(readme->textCursor().position(), c().documentation.ReadmeCaret);
        // About a screenful below the heading: in the lower part of the box.
        if (heading > 0 && c().documentation.ReadmeCaret < SectionEndAt(heading)) {
            const int caret = readme->cursorRect().bottom();
            QVERIFY2(caret > view * 6 / 10, qPrintable(QStringLiteral("caret at %1 of %2").arg(caret).arg(view)));
        }
    }

  private Q_SLOTS:
    void init() {
        m_program = std::make_unique<StartedProgram>(Splash::Skipped);
        m_program->showMainWindow();
        QVERIFY(QTest::qWaitForWindowExposed(&m_program->windows().mainWindow()));
    }

    void cleanup() {
        m_program.reset();
        QApplication::processEvents();
    }

    void mainWindowHelpOpensTheMainWindowSection() {
        mainButton("Help");
        expectHeadingOnTop(SectionStart(ManualSection::MainWindow), QStringLiteral("Main Window"));
        QCOMPARE(c().documentation.ReadmeCaret, HelpPosition(ManualSection::MainWindow));
        QCOMPARE(documentation()->windowTitle(), QStringLiteral("Vantorel Documentation"));
    }

    void everyHelpButtonShowsItsHeading_data() {
        QTest::addColumn<HelpCaller>("caller");
        QTest::addColumn<ManualSection>("section");
        QTest::addColumn<QString>("heading");
        QTest::newRow("AlphaSkills Help")
            << HelpCaller::MainWindow << ManualSection::ActivatedSkills << "Activated Skills Window";
        QTest::newRow("Graph Help") << HelpCaller::Graph << ManualSection::GraphWindow << "Graph Window";
        QTest::newRow("Alpha Help[0]") << HelpCaller::Alpha << ManualSection::AdvancedSettings
                                       << "Advanced Settings Window";
        QTest::newRow("Omega Help[1]") << HelpCaller::Omega << ManualSection::CharacterSettings << "Character Settings";
        QTest::newRow("Alpha Help[2]") << HelpCaller::Alpha << ManualSection::CombatSettings << "Combat Settings";
        QTest::newRow("Omega Help[3]") << HelpCaller::Omega << ManualSection::PowerSettings << "Power Settings";
        QTest::newRow("Note Readme") << HelpCaller::Alpha << ManualSection::PowerSettings << "Power Settings";
        QTest::newRow("Alpha Help[4]") << HelpCaller::Alpha << ManualSection::WeaponSettings << "Weapon Settings";
        QTest::newRow("About Readme") << HelpCaller::MainWindow << ManualSection::Start << "Vantorel v 4.0";
    }

    void everyHelpButtonShowsItsHeading() {
        QFETCH(HelpCaller, caller);
        QFETCH(ManualSection, section);
        QFETCH(QString, heading);
        DisplayDocumentation(c(), caller, HelpPosition(section));
        expectHeadingOnTop(SectionStart(section), heading);
    }

    // The position alone is enough: with the caret at the bottom of the box,
    // as moving the caret there leaves it, the heading is still in view.
    void theCaretAloneBringsTheHeadingIntoView() {
        for (int s = 1; s <= static_cast<int>(ManualSection::WeaponSettings); ++s) {
            const auto section = static_cast<ManualSection>(s);
            DisplayDocumentation(c(), HelpCaller::MainWindow, HelpPosition(section));
            QTextEdit* readme = box();
            QVERIFY(readme);
            readme->verticalScrollBar()->setValue(0);
            readme->ensureCursorVisible();
            const int top = TopInView(*readme, SectionStart(section));
            QVERIFY2(top >= 0 && top < readme->viewport()->height(), qPrintable(QString::number(s)));
        }
    }

    void theManualIsSetInItsStyles() {
        mainButton("Help");
        QTextEdit* readme = box();
        QVERIFY(readme);
        const QTextDocument* document = readme->document();
        QCOMPARE(document->toPlainText(), QString::fromStdString(ManualText()));
        QVERIFY(readme->isReadOnly());

        int at = 0;
        int bullets = 0;
        for (const ManualParagraph& paragraph : ManualParagraphs()) {
            const QTextBlock block = document->findBlock(at);
            const QString name = QString::fromLatin1(paragraph.text.data(), 30);
            QCOMPARE(block.position(), at);
            const QTextCharFormat chars = block.charFormat();
            const ManualFormat f = FormatOf(paragraph.style);
            QCOMPARE(chars.font().families().value(0), QStringLiteral("Times New Roman"));
            QVERIFY2(chars.fontPointSize() == f.points, qPrintable(name));
            QVERIFY2((chars.fontWeight() == QFont::Bold) == f.bold, qPrintable(name));
            QVERIFY2(chars.fontUnderline() == f.underline, qPrintable(name));
            QVERIFY2(chars.fontItalic() == f.italic, qPrintable(name));
            QVERIFY2((block.textList() != nullptr) == (paragraph.style == ManualStyle::Bullet), qPrintable(name));
            if (block.textList()) ++bullets;
            at += static_cast<int>(paragraph.text.size()) + 1;
        }
        QVERIFY(bullets > 20);
        // The title 24 points bold, headings 14, window headings underlined.
        QCOMPARE(FormatOf(ManualStyle::Title).points, 24.0);
        QCOMPARE(FormatOf(ManualStyle::Heading).points, 14.0);
        QVERIFY(FormatOf(ManualStyle::WindowHeading).underline && !FormatOf(ManualStyle::Heading).underline);
        QCOMPARE(FormatOf(ManualStyle::Body).points, 12.0);
    }

    // OK closes the window for good: the next opening is a new window, at
    // its start size and with its own scroll position.
    void okClosesAndTheNextOpeningIsNew() {
        mainButton("Help");
        QPointer<QWidget> first = documentation();
        QVERIFY(first);
        first->resize(1000, 700);
        QCOMPARE(c().documentation.Form.width(), twips().fromPixelsX(1000) + kFrameWidth);
        box()->verticalScrollBar()->setValue(0);

        click(first, QStringLiteral("Documentation.OK"));
        QVERIFY(!c().documentation.Form.visible());
        QVERIFY(!first || !first->isVisible());
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(first.isNull());

        mainButton("Help");
        QWidget* second = documentation();
        QVERIFY(second && second->isVisible());
        QCOMPARE(second->size(), QSize(twips().toPixelsX(9765), twips().toPixelsY(7665)));
        expectHeadingOnTop(SectionStart(ManualSection::MainWindow), QStringLiteral("Main Window"));
    }

    void theFrameClosesTheWindowForGood() {
        mainButton("Help");
        QPointer<QWidget> window = documentation();
        window->close();
        QVERIFY(!c().documentation.Form.visible());
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(window.isNull());
        QVERIFY(!documentation());
    }

    // Help in a second window moves the manual to the new place and section.
    void helpElsewhereMovesTheOpenManual() {
        mainButton("Help");
        QPointer<QWidget> first = documentation();
        c().Alpha().Form.setLeft(12000);
        c().Alpha().Form.setTop(600);
        DisplayDocumentation(c(), HelpCaller::Alpha, HelpPosition(ManualSection::PowerSettings));
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(first.isNull());
        QWidget* moved = documentation();
        QVERIFY(moved && moved->isVisible());
        QCOMPARE(moved->pos(), QPoint(twips().toPixelsX(12000 - kDocumentationWidth), twips().toPixelsY(600)));
        expectHeadingOnTop(SectionStart(ManualSection::PowerSettings), QStringLiteral("Power Settings"));
    }

    // The user's sizing goes to the field; the box and OK follow it, and the
    // window keeps to its smallest size.
    void theBoxAndOkFollowTheWindowsSize() {
        mainButton("Help");
        QWidget* window = documentation();
        const DocumentationWindow& d = c().documentation;
        const auto expectPlaces = [&] {
            QCOMPARE(box()->geometry(), twips().rect(d.ReadmeBox));
            QCOMPARE(window->findChild<QPushButton*>(QStringLiteral("Documentation.OK"))->geometry(),
                     twips().rect(d.OK));
        };
        expectPlaces();
        window->resize(1100, 800);
        QCOMPARE(std::tuple(d.Form.width(), d.Form.height()),
                 std::tuple(twips().fromPixelsX(1100) + kFrameWidth, twips().fromPixelsY(800) + kFrameHeight));
        QCOMPARE(d.ReadmeBox.width(), d.Form.width() - 390);
        expectPlaces();
        window->resize(50, 50);
        QVERIFY(d.Form.width() >= kDocumentationMinWidth && d.Form.height() >= kDocumentationMinHeight);
        QCOMPARE(window->size(), window->minimumSize());
        expectPlaces();
    }

    void aboutOpensOverTheMainWindow() {
        mainButton("ShowAbout");
        QWidget* window = about();
        QVERIFY(window && window->isVisible());
        QCOMPARE(window->windowTitle(), QStringLiteral("About- Vantorel 4.0"));
        const Window& main = c().main.Form1;
        QCOMPARE(window->pos(), QPoint(twips().toPixelsX(main.left() + (main.width() - kAboutWidth) / 2),
                                       twips().toPixelsY(main.top() + 2840)));
        QCOMPARE(window->size(), QSize(twips().toPixelsX(5820), twips().toPixelsY(4650)));
        QCOMPARE(window->findChild<QLabel*>(QStringLiteral("About.Aboutlabel[2]"))->text(),
                 QStringLiteral("Vantorel v 4.0"));
        QCOMPARE(window->findChild<QLabel*>(QStringLiteral("About.Aboutlabel[0]"))->text(),
                 QString::fromStdString(std::string(AboutAuthorLine())));
        const QTextEdit* licence = window->findChild<QTextEdit*>(QStringLiteral("About.License"));
        QVERIFY(licence && licence->isVisible());
        QCOMPARE(licence->verticalScrollBar()->value(), 0);
        QVERIFY(licence->toPlainText().startsWith(QStringLiteral("Copyright")));
        for (const char* button : {"About.Readme", "About.Online", "About.OK"})
            QVERIFY2(!window->findChild<QPushButton*>(QLatin1String(button))->toolTip().isEmpty(), button);
    }

    void aboutsButtons() {
        mainButton("ShowAbout");
        QWidget* window = about();

        // Online hands the forum page to the system's browser.
        PageCatcher catcher;
        QDesktopServices::setUrlHandler(QStringLiteral("https"), &catcher, "open");
        click(window, QStringLiteral("About.Online"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QCOMPARE(catcher.opened, QList<QUrl>{QUrl(QString::fromStdString(std::string(ForumAddress())))});

        // Readme: the manual from its start; About stays open.
        click(window, QStringLiteral("About.Readme"));
        expectHeadingOnTop(0, QStringLiteral("Vantorel v 4.0"));
        QCOMPARE(box()->textCursor().position(), 0);
        QVERIFY(window->isVisible());

        QPointer<QWidget> closing = window;
        click(window, QStringLiteral("About.OK"));
        QVERIFY(!c().about.Form.visible());
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(closing.isNull());
        QVERIFY(documentation() && documentation()->isVisible());
    }
};

// The start as the user sees it: the splash screen until the main window
// shows, with one picture.
class SplashTest final : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theSplashShowsUntilTheMainWindowShows() {
        StartedProgram program(Splash::Shown);
        const SplashWindow& s = program.calculator().splash;
        QWidget* splash = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == QLatin1String("SplashScreen")) splash = w;
        QVERIFY(splash && splash->isVisible());
        QVERIFY(splash->windowFlags().testFlag(Qt::FramelessWindowHint));
        QCOMPARE(splash->size(), QSize(554, 347));
        QCOMPARE(splash->pos(), QPoint(683, 366)); // (28800 - 8310) / 2 and (16200 - 5205) / 2 twips
        int shown = 0;
        for (int i = 0; i <= 2; ++i) {
            const QWidget* picture = splash->findChild<QWidget*>(QStringLiteral("SplashScreen.Splash[%1]").arg(i));
            QVERIFY(picture);
            QCOMPARE(picture->isVisible(), s.Splash[i].visible());
            QCOMPARE(picture->geometry(), splash->rect());
            shown += picture->isVisible() ? 1 : 0;
        }
        QCOMPARE(shown, 1);
        QVERIFY(!program.windows().mainWindow().isVisible());

        program.showMainWindow();
        QVERIFY(program.windows().mainWindow().isVisible());
        QVERIFY(!s.Form.visible());
        for (QWidget* w : QApplication::topLevelWidgets())
            QVERIFY(w->objectName() != QLatin1String("SplashScreen"));
    }

    // Each picture draws something of its own over the starfield.
    void eachPictureIsItsOwn() {
        StartedProgram program(Splash::Skipped);
        SplashWindow& s = program.calculator().splash;
        SplashView view(s);
        s.Form.setVisible(true);
        QList<QImage> pictures;
        for (int i = 0; i <= 2; ++i) {
            for (int k = 0; k <= 2; ++k)
                s.Splash[k].setVisible(k == i);
            pictures << view.grab().toImage();
        }
        s.Form.setVisible(false);
        QVERIFY(pictures[0] != pictures[1] && pictures[1] != pictures[2] && pictures[0] != pictures[2]);
    }
};

int main(int argc, char* argv[]) {
    const test::VirtualScreen screen("Screen", 1920, 1080);
    QApplication app(argc, argv);
    HelpTest help;
    SplashTest splash;
    return QTest::qExec(&help, argc, argv) | QTest::qExec(&splash, argc, argv);
}

#include "help_test.moc"
