#include "skills/view/skillswindow.h"

#include "gui/binding.h"
#include "gui/checkbox.h"
#include "gui/focus.h"
#include "gui/listbox.h"
#include "gui/toplevel.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

namespace vantorel {

namespace {

constexpr double kCaptionPoints = 11;

} // namespace

SkillsWindow::SkillsWindow(Calculator& c, Vessel v, QWidget* parent)
    : QWidget(parent), m_twips(gui::Twips::forScreen(QGuiApplication::primaryScreen())) {
    VesselSkills& k = c.skills[v];
    const QString window = v == 1 ? QStringLiteral("AlphaSkills") : QStringLiteral("OmegaSkills");
    setObjectName(window);
    auto name = [&window](const char* control) { return window + QLatin1Char('.') + QLatin1String(control); };

    auto check = [&](Flag& field, const char* control) {
        auto* w = new gui::CheckBox(this);
        w->setObjectName(name(control));
        w->setFont(gui::FrontierFont(kCaptionPoints));
        gui::Bind(w, field, m_twips);
    };
    auto list = [&](List& field, const char* control) {
        auto* w = new gui::ListBox(this);
        w->setObjectName(name(control));
        gui::Bind(w, field, m_twips);
    };
    auto label = [&](Label& field, const char* control, double points) {
        auto* w = new QLabel(this);
        w->setObjectName(name(control));
        w->setFont(gui::FrontierFont(points));
        w->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        gui::Bind(w, field, m_twips);
    };
    auto button = [&](Button& field, const char* control) {
        auto* w = new QPushButton(this);
        w->setObjectName(name(control));
        gui::Bind(w, field, m_twips);
    };

    check(k.BeamSkillActivated, "BeamSkillActivated");
    list(k.BeamSkillLevel, "BeamSkillLevel");
    check(k.BeamOverloadActivated, "BeamOverloadActivated");
    list(k.BeamOverloadLevel, "BeamOverloadLevel");
    check(k.CannonSkillActivated, "CannonSkillActivated");
    list(k.CannonSkillSelected, "CannonSkillSelected");
    list(k.CannonSkillLevel, "CannonSkillLevel");
    check(k.TorpedoSkillActivated, "TorpedoSkillActivated");
    list(k.TorpedoSkillSelected, "TorpedoSkillSelected");
    list(k.TorpedoSkillLevel, "TorpedoSkillLevel");
    check(k.MineSkillActivated, "MineSkillActivated");
    list(k.MineSkillSelected, "MineSkillSelected");
    list(k.MineSkillLevel, "MineSkillLevel");
    check(k.TacticalTeamActivated, "TacticalTeamActivated");
    list(k.TacticalTeamLevel, "TacticalTeamLevel");
    check(k.AttackPatternActivated, "AttackPatternActivated");
    list(k.AttackPatternSelected, "AttackPatternSelected");
    list(k.AttackPatternLevel, "AttackPatternLevel");
    check(k.AttackPatternAlpha, "AttackPatternAlpha");
    list(k.AttackPatternAlphaLevel, "AttackPatternAlphaLevel");
    label(k.AttackPatternAlphaDescription, "AttackPatternAlphaDescription", kCaptionPoints - 1);
    label(k.TargetsLabel, "TargetsLabel", kCaptionPoints);
    auto* targets = new QLineEdit(this);
    targets->setObjectName(name("Targets"));
    targets->setAlignment(Qt::AlignRight);
    gui::Bind(targets, k.Targets, m_twips);
    check(k.SameAsAlpha, "SameAsAlpha");
    button(k.Help, "Help");
    button(k.Close, "Close");

    gui::OrderTabsDownColumns(this);
    // Last: the window shows once its controls stand in their places.
    auto* frame = new gui::TopLevel(this, k.Form, m_twips);
    frame->closeOnEscape();
}

} // namespace vantorel
