#pragma once

// An advanced settings window, `Alpha` or `Omega`: every control of the
// vessel's settings bound to its field, on the tall page `Contents` that
// `VScroll1` moves. The window follows its field `Form` (title, place, size,
// shown, enabled, state); closing it by the frame only asks the field.

#include "engine/records.h"
#include "gui/twips.h"

#include <QWidget>

namespace vantorel {

class SettingsWindowView final : public QWidget {
    Q_OBJECT

  public:
    SettingsWindowView(Calculator& c, Vessel v, QWidget* parent = nullptr);

  private:
    void build(VesselSettings& s, const char* name);
    void addSectionLines(VesselSettings& s, QWidget* page);

    gui::Twips m_twips;
};

} // namespace vantorel
