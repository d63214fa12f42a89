// How findings name a line of a foreign recipe or an entry of a library.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tw {

inline constexpr std::string_view kFermentablesPlace = "Fermentables";
inline constexpr std::string_view kHopsPlace = "Hops";
inline constexpr std::string_view kYeastsPlace = "Yeasts";
inline constexpr std::string_view kMiscsPlace = "Miscellaneous";
inline constexpr std::string_view kWatersPlace = "Waters";
inline constexpr std::string_view kStylesPlace = "Styles";

// Returns the place of something that a recipe has once: "Style: Mild", "Style" without a name.
inline std::string NamedPlace(std::string_view what, std::string_view name) {
    return name.empty() ? std::string(what) : std::string(what) + ": " + std::string(name);
}

// Returns the place of a line, counted from 1: "Hops 2: Cascade".
inline std::string LinePlace(std::string_view list, std::size_t number, std::string_view name) {
    return NamedPlace(std::string(list) + " " + std::to_string(number), name);
}

}  // namespace tw
