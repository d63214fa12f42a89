// How findings name a foreign recipe, a line of it, or an entry of a library.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "values/Text.h"

namespace tw {

inline constexpr std::string_view kFermentablesPlace = "Fermentables";
inline constexpr std::string_view kHopsPlace = "Hops";
inline constexpr std::string_view kYeastsPlace = "Yeasts";
inline constexpr std::string_view kMiscsPlace = "Miscellaneous";
inline constexpr std::string_view kWatersPlace = "Waters";
inline constexpr std::string_view kStylesPlace = "Styles";

// Returns the name of a recipe in one line without blanks at its ends; "Untitled" if the file has none.
inline std::string RecipeName(std::string_view written) {
    std::string name = ReplaceAll(ReplaceAll(written, "\r", ""), "\n", " ");
    name = Trim(ReplaceAll(name, "\t", " "));
    return name.empty() ? "Untitled" : name;
}

// Returns the place of something that a recipe has once: "Style: Mild", "Style" without a name.
inline std::string NamedPlace(std::string_view what, std::string_view name) {
    return name.empty() ? std::string(what) : std::string(what) + ": " + std::string(name);
}

// Returns the place of a line, counted from 1: "Hops 2: Cascade".
inline std::string LinePlace(std::string_view list, std::size_t number, std::string_view name) {
    return NamedPlace(std::string(list) + " " + std::to_string(number), name);
}

}  // namespace tw
