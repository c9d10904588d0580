#pragma once

// How Omega follows Alpha: `SameAsAlpha` makes the Omega window a read-only
// copy that Alpha's handlers write to; the `CopySettings` buttons copy one
// section once from the other vessel and leave both free.

#include "engine/records.h"

namespace vantorel {

// The four sections, by the index of their copy and help buttons.
enum class Section { Character = 1, Combat = 2, Power = 3, Weapon = 4 };

void SameAsAlphaChanged(Calculator& c);
// `CopySettings[i]` of vessel v's window: copies section i from the other
// vessel into v.
void CopySettingsClicked(Calculator& c, Vessel v, Section section);

} // namespace vantorel
