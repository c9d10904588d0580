#include "program/program.h"

#include "engine/dpw.h"
#include "engine/power.h"
#include "graph/window.h"
#include "help/note.h"
#include "help/window.h"
#include "mainwindow/window.h"
#include "settings/window.h"
#include "skills/window.h"

namespace vantorel {

Program::Program() : Program(nullptr) {}

Program::Program(const std::function<void(Calculator&)>& beforeStart) {
    // The splash screen comes first; the main window is made behind it.
    SetUpSplashWindow(splash);
    if (beforeStart) beforeStart(*this);
    SetUpMainWindow(main);
    SetUpSettingsWindow(settings[1], 1);
    SetUpSettingsWindow(settings[2], 2);
    SetUpSkillsWindow(skills[1], 1);
    SetUpSkillsWindow(skills[2], 2);
    SetUpGraphWindow(graph);
    SetUpDocumentationWindow(documentation);
    SetUpAboutWindow(about);
    SetUpNoteWindow(note);
    WireHandlers(*this);
    StartUp(*this);
    // The skills windows read the torpedo type that the start has chosen.
    StartSkillsWindow(*this, 1);
    StartSkillsWindow(*this, 2);
}

void StartUp(Calculator& c) {
    CalculatorState& s = c.state;
    MainSelection& m = c.main;

    s.Comparing = 0;
    for (Vessel v = 1; v <= 2; ++v) {
        s.BeamModifier[v] = 1.0f;
        s.CannonModifier[v] = 1.0f;
        s.ResistanceFactor[v] = 1.0f;
        s.AccuracyFactor[v] = 1.0f;
        s.ExcessAccuracy[v] = 0.0f;
    }
    FillDPWTables(s);

    // The lists are still disabled, so these selections run no handler.
    for (Vessel v = 1; v <= 2; ++v) {
        m.ShipClass[v].setIndex(0);
        m.TargetDistance[v].setIndex(0);
        m.ShipClass[v].setEnabled(true);
        m.TargetDistance[v].setEnabled(true);
    }
    m.ShipTier[1].setIndex(4);
    m.ShipTier[2].setIndex(0);
    m.ShipTier[1].setEnabled(true);
    m.ShipTier[2].setEnabled(true);
    m.PowerLevel[1].setIndex(13);
    m.PowerLevel[2].setIndex(0);
    m.PowerLevel[1].setEnabled(true);
    m.PowerLevel[2].setEnabled(true);

    // Quantum projectiles, through the type list's handler.
    c.Alpha().WeaponType[2].setIndex(1);

    CalculatePower(c, 1, Rebuild::Always);
    CalculatePower(c, 2, Rebuild::Always);
}

} // namespace vantorel
