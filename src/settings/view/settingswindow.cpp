#include "settings/view/settingswindow.h"

#include "gui/binding.h"
#include "gui/focus.h"
#include "gui/listbox.h"
#include "gui/toplevel.h"
#include "settings/window.h"

#include <QCheckBox>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include <set>
#include <string>

namespace vantorel {

namespace {

// How a caption of the window reads.
enum class Caption { Heading, Subheading, Plain, Output };

const std::set<std::string> kHeadings = {"CharacterSettingsLabel", "CriticalSettingsLabel", "PowerSettings",
                                         "WeaponDamageLabel"};
const std::set<std::string> kSubheadings = {"SkillLabel[1]",        "SkillLabel[2]",        "TacticalConsoleLabel",
                                            "DisplayedDPSLabel[1]", "DisplayedDPSLabel[2]", "WeaponMarklabel",
                                            "WeaponModLabel"};
const std::set<std::string> kOutputs = {"CritH",   "CritD",      "DamageReduction",
                                        "HitRate", "PowerBonus", "MatchConsoleLimit"};

Caption CaptionOf(const std::string& field) {
    if (kHeadings.count(field)) return Caption::Heading;
    if (kSubheadings.count(field)) return Caption::Subheading;
    if (kOutputs.count(field) || field.rfind("CalculatedWeaponDPS[", 0) == 0) return Caption::Output;
    return Caption::Plain;
}

// The boxes' own face, asked for by name like the captions.
QFont BoxFont() { return gui::SansSerifFont(9); }

QLabel* MakeLabel(QWidget* page, Caption kind) {
    auto* w = new QLabel(page);
    switch (kind) {
    case Caption::Heading:
        w->setFont(gui::FrontierFont(13));
        w->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        break;
    case Caption::Subheading:
        w->setFont(gui::FrontierFont(11, true));
        w->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        break;
    case Caption::Plain:
        w->setFont(gui::FrontierFont(11));
        w->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        break;
    case Caption::Output:
        w->setFont(BoxFont());
        w->setAlignment(Qt::AlignCenter);
        w->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        w->setAutoFillBackground(true);
        break;
    }
    return w;
}

} // namespace

SettingsWindowView::SettingsWindowView(Calculator& c, Vessel v, QWidget* parent)
    : QWidget(parent), m_twips(gui::Twips::forScreen(QGuiApplication::primaryScreen())) {
    VesselSettings& s = c.settings[v];
    const char* name = v == 1 ? "Alpha" : "Omega";
    setObjectName(QString::fromLatin1(name));
    build(s, name);
    gui::OrderTabsDownColumns(this);
    auto* frame = new gui::TopLevel(this, s.Form, m_twips);
    frame->closeOnEscape();
}

void SettingsWindowView::build(VesselSettings& s, const char* name) {
    FieldTable fields;
    RegisterFields(fields, s, name);
    const std::string prefix = std::string(name) + ".";

    auto* page = new QWidget(this);
    page->setObjectName(QString::fromStdString(prefix + "Contents"));
    gui::BindPage(page, s.Contents, m_twips);
    addSectionLines(s, page);
    QScrollBar* bar = nullptr;

    for (const ControlRef& ref : fields) {
        if (ref.name.size() <= prefix.size()) continue; // the window itself
        const std::string field = ref.name.substr(prefix.size());
        const QString objectName = QString::fromStdString(ref.name);
        QWidget* made = nullptr;
        switch (ref.kind()) {
        case ValueKind::Label: {
            QLabel* w = MakeLabel(page, CaptionOf(field));
            gui::Bind(w, *std::get<Label*>(ref.target), m_twips);
            made = w;
            break;
        }
        case ValueKind::Flag: {
            auto* w = new QCheckBox(page);
            w->setFont(gui::FrontierFont(10.5));
            gui::Bind(w, *std::get<Flag*>(ref.target), m_twips);
            made = w;
            break;
        }
        case ValueKind::Text: {
            auto* w = new QLineEdit(page);
            w->setFont(BoxFont());
            gui::Bind(w, *std::get<Text*>(ref.target), m_twips);
            made = w;
            break;
        }
        case ValueKind::List: {
            auto* w = new gui::ListBox(page);
            gui::Bind(w, *std::get<List*>(ref.target), m_twips);
            made = w;
            break;
        }
        case ValueKind::Button: {
            auto* w = new QPushButton(page);
            gui::Bind(w, *std::get<Button*>(ref.target), m_twips);
            made = w;
            break;
        }
        case ValueKind::ScrollBar: {
            // The bar stands on the window, beside the page it moves.
            auto* w = new QScrollBar(Qt::Vertical, this);
            gui::Bind(w, *std::get<ScrollBar*>(ref.target), m_twips);
            made = w;
            bar = w;
            break;
        }
        default:
            break;
        }
        if (made) made->setObjectName(objectName);
    }
    gui::ScrollFocusIntoView(page, {nullptr, nullptr, bar, &s.VScroll1}, m_twips);
}

// A thin line above each section after the first, across the page. The
// line runs through the middle of a frame three pixels high: a frame of one
// pixel falls between device pixels on a screen scaled by 1.5 and shows
// nothing.
void SettingsWindowView::addSectionLines(VesselSettings& s, QWidget* page) {
    for (const Label* heading : {&s.CriticalSettingsLabel, &s.PowerSettings, &s.WeaponDamageLabel}) {
        auto* line = new QFrame(page);
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Plain);
        QPalette palette = line->palette();
        palette.setColor(QPalette::WindowText, gui::ToQColor(DarkGrey));
        line->setPalette(palette);
        line->setGeometry(
            m_twips.rect(heading->left(), heading->top() - 90, s.Contents.width() - 2 * heading->left(), 45));
    }
}

} // namespace vantorel
