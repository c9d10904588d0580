#pragma once

// The activated skills window of a vessel, `AlphaSkills` or `OmegaSkills`:
// every control of the vessel's skills record, each bound to its field, on
// the window that follows the record's `Form`.

#include "engine/records.h"
#include "gui/twips.h"

#include <QWidget>

namespace vantorel {

class SkillsWindow final : public QWidget {
    Q_OBJECT

  public:
    SkillsWindow(Calculator& c, Vessel v, QWidget* parent = nullptr);

  private:
    gui::Twips m_twips;
};

} // namespace vantorel
