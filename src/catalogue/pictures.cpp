#include "catalogue/pictures.h"

#include "engine/numbers.h"
#include "engine/selection.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>

namespace vantorel {

namespace {

// A name by position: the row for classes where only the row counts, the
// tier (from `first`) for classes where only the tier counts.
std::string Pick(std::initializer_list<const char*> names, int at, int first = 0) {
    const int i = at - first;
    if (i < 0 || i >= static_cast<int>(names.size())) return {};
    return *(names.begin() + i);
}

constexpr std::string_view kListedClasses[] = {
    "Unrestricted",  "Federation",     "Cruiser",      "Escort",  "Shuttlecraft", "Science Vessel", "Klingon",
    "Allied Vessel", "Battle Cruiser", "Bird of Prey", "Carrier", "Raptor",       "Shuttlecraft "};

bool IsListedClass(const std::string& shipClass) {
    return std::find(std::begin(kListedClasses), std::end(kListedClasses), shipClass) != std::end(kListedClasses);
}

// The unrestricted Klingon ship: one of five by chance at every drawing.
std::string KlingonByChance(Random& random) {
    const int n = static_cast<int>(random.next() * 5.0);
    return Pick({"bc5", "bc4", "bop1", "bc3", "rap2"}, std::clamp(n, 0, 4));
}

// The id of one vessel's picture, as in "Cruiser/5/2".
std::string ImageId(const std::string& shipClass, int tier, int subclass) {
    if (shipClass == "Unrestricted") return "Unrestricted";
    return shipClass + "/" + PlainText(tier) + "/" + PlainText(subclass);
}

// The Federation counterpart of a Klingon allied vessel is built as an
// escort, a cruiser or a science vessel by the allied vessel's row; its
// picture is the first ship of that class at its tier.
std::string FederationAlliedName(Calculator& c, int tier, int alliedRow) {
    switch (alliedRow) {
    case 0:
        return ShipImageName(c, "Escort", tier, 0);
    case 1:
        return ShipImageName(c, "Cruiser", tier, 0);
    case 2:
        return ShipImageName(c, "Science Vessel", tier, 0);
    default:
        return {};
    }
}

} // namespace

std::string ShipImageName(Calculator& c, const std::string& shipClass, int tier, int subclass) {
    const std::string& k = shipClass;
    if (k == "Unrestricted") return "unrestricted";
    if (k == "Klingon") return KlingonByChance(c.random);
    if (k == "Federation") {
        switch (tier) {
        case 1:
            return Pick({"ltcru3", "ltcru2"}, subclass);
        case 2:
            return "cru2";
        case 3:
            return "cru3a";
        case 4:
            return Pick({"cru4", "esc4", "sci4"}, subclass);
        case 5:
            return Pick({"dreadnought", "cru5"}, subclass);
        default:
            return {};
        }
    }
    if (k == "Cruiser") {
        switch (tier) {
        case 1:
            return Pick({"ltcru1", "ltcru2", "ltcru3"}, subclass);
        case 2:
            return "cru2";
        case 3:
            return Pick({"cru3", "cru3a"}, subclass);
        case 4:
            return "cru4";
        case 5:
            return Pick({"cru5", "cru5a", "dreadnought", "cru3a", "cru4"}, subclass);
        default:
            return {};
        }
    }
    if (k == "Escort") {
        if (tier == 5) return Pick({"esc5", "esc5a", "esc4"}, subclass);
        return Pick({"esc2", "esc3", "esc4"}, tier, 2);
    }
    if (k == "Shuttlecraft") return Pick({"shuttle1", "shuttle2", "shuttle3"}, subclass);
    if (k == "Shuttlecraft ") return Pick({"kshuttle1"}, subclass);
    if (k == "Science Vessel") {
        if (tier == 3) return Pick({"sci3", "sci3a"}, subclass);
        if (tier == 5) return Pick({"sci5", "sci5a", "sci3a", "sci4"}, subclass);
        if (tier == 2) return "sci2";
        if (tier == 4) return "sci4";
        return {};
    }
    if (k == "Allied Vessel") return Pick({"allied1", "allied2", "allied3"}, subclass);
    if (k == "Battle Cruiser") {
        if (tier == 5) return Pick({"bc5", "bc4"}, subclass);
        return Pick({"bc2", "bc3", "bc4"}, tier, 2);
    }
    if (k == "Bird of Prey") {
        if (tier == 1) return Pick({"bop1", "bop1a"}, subclass);
        if (tier == 5) return Pick({"bop5", "bop1"}, subclass);
        return Pick({"bop2", "bop3", "bop4"}, tier, 2);
    }
    if (k == "Carrier") return Pick({"car5", "car6"}, subclass);
    if (k == "Raptor") return Pick({"rap2", "rap3", "rap4", "rap5"}, tier, 2);
    return {};
}

void DrawShip(Calculator& c, const ShipPicture& alphaShip, const ShipPicture& omegaShip) {
    MainSelection& m = c.main;

    // Alpha: a class the table does not know shows the unrestricted ship; a
    // known class on a tier or row it has no picture for keeps the last one.
    const ShipPicture& a = alphaShip;
    const std::string alpha =
        IsListedClass(a.shipClass) ? ShipImageName(c, a.shipClass, a.tier, a.subclass) : "unrestricted";
    if (!alpha.empty()) m.AlphaImage.setImage(alpha);

    ShipPicture o = omegaShip;
    if (o.shipClass.empty()) {
        m.OmegaImage.setImage("");
    } else {
        if (o.shipClass == "Klingon Science Vessel") {
            if (o.tier == 5) {
                o.shipClass = "Allied Vessel";
                o.subclass = 2;
            } else {
                o.shipClass = "Bird of Prey";
            }
        }
        // The allied Federation ship only arises with Alpha on a Klingon
        // allied vessel, whose row is the one passed for Alpha.
        const std::string omega = o.shipClass == "Federation Allied Vessel"
                                      ? FederationAlliedName(c, o.tier, a.subclass)
                                      : ShipImageName(c, o.shipClass, o.tier, o.subclass);
        if (!omega.empty()) m.OmegaImage.setImage(omega);
    }

    m.ShipImageId[1] = ImageId(a.shipClass, a.tier, a.subclass);
    m.ShipImageId[2] = o.shipClass.empty() ? std::string() : ImageId(o.shipClass, o.tier, o.subclass);
}

ShipPicture ShipOf(const Calculator& c, Vessel v) { return {GetClass(c, v), GetTier(c, v), GetSubclass(c, v)}; }

void ShipImageControl(Calculator& c) {
    const ShipPicture alpha = ShipOf(c, 1);
    if (c.state.Comparing == 0) {
        DrawShip(c, alpha, {});
        return;
    }
    const ShipPicture omega = ShipOf(c, 2);
    if (alpha == omega) {
        DrawShip(c, alpha, {});
        c.main.Cline.setVisible(false);
        return;
    }
    DrawShip(c, alpha, omega);
}

bool IsWholePicture(std::string_view bytes, PictureFile kind) {
    if (bytes.empty() || bytes.size() > kLargestPictureFile) return false;
    const auto startsWith = [bytes](std::string_view start) { return bytes.substr(0, start.size()) == start; };
    const auto endsWith = [bytes](std::string_view end) {
        return bytes.size() >= end.size() && bytes.substr(bytes.size() - end.size()) == end;
    };
    switch (kind) {
    case PictureFile::Jpeg:
        // Start of image, the first marker, ..., end of image.
        return bytes.size() >= 6 && startsWith("\xFF\xD8\xFF") && endsWith("\xFF\xD9");
    case PictureFile::Gif:
        // The signature and version, ..., the trailer.
        return bytes.size() >= 14 && (startsWith("GIF87a") || startsWith("GIF89a")) && endsWith("\x3B");
    }
    return false;
}

} // namespace vantorel
