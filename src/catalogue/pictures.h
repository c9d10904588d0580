#pragma once

// The ship pictures of the main window: which picture shows each ship, and
// which pictures stand in the diagram for the vessels on show.

#include "engine/records.h"

#include <cstddef>
#include <string>
#include <string_view>

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

// The picture files: Alpha's ships as JPEG, Omega's right halves as GIF.
enum class PictureFile { Jpeg, Gif };

// No ship picture comes near this; a larger file is no picture of ours.
inline constexpr std::size_t kLargestPictureFile = 4 * 1024 * 1024;

// Whether the bytes of a file can be a whole picture of the kind: not empty,
// not over the size above, and beginning and ending as the format does. A
// file cut short, or another kind of file under a picture's name, is not
// handed to a decoder at all, which would show half a ship or complain.
bool IsWholePicture(std::string_view bytes, PictureFile kind);

} // namespace vantorel
