#pragma once

// Names that several catalogue files compare against. The Klingon shuttle's
// class is "Shuttlecraft " with a trailing blank: that blank is the only thing
// that tells it from the Federation one, so no comparison may trim it.

#include <string>
#include <string_view>

namespace vantorel {

inline constexpr std::string_view kSameAsAlphaRow = "Same As Alpha";

inline bool IsShuttleClass(std::string_view shipClass) {
    return shipClass == "Shuttlecraft" || shipClass == "Shuttlecraft ";
}

} // namespace vantorel
