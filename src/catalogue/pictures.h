#pragma once

// The ship pictures of the main window: which picture shows each ship, and
// which pictures stand in the diagram for the vessels on show.

#include "engine/records.h"

#include <string>

namespace vantorel {

// A ship as its picture knows it.
struct ShipPicture {
    std::string shipClass; // "" for no ship
    int tier = 0;
    int subclass = 0;
    bool operator==(const ShipPicture&) const = default;
};
// The vessel's ship, by GetClass, GetTier and GetSubclass.
ShipPicture ShipOf(const Calculator& c, Vessel v);

// The file name (without folder and ending) for a ship, or "" if the table
// has none; "Klingon" draws one of five by chance.
std::string ShipImageName(Calculator& c, const std::string& shipClass, int tier, int subclass);
// Puts the pictures of Alpha's ship, and of Omega's if it has a class, into
// AlphaImage and OmegaImage, with the ids that tell them apart.
void DrawShip(Calculator& c, const ShipPicture& alpha, const ShipPicture& omega);
// The pictures for the vessels on show; one picture where both are alike.
void ShipImageControl(Calculator& c);

} // namespace vantorel
