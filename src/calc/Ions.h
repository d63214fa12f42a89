// The ions of brewing water.
#pragma once

#include <array>

namespace tw {

inline constexpr int kIons = 6;

// PPM (milligrams a litre) of each ion, in the order of all water tables: calcium, carbonate, chloride,
// magnesium, sodium, sulfate. For a salt, the PPM that one gram of it adds to one US gallon of water.
using Ions = std::array<double, kIons>;

}  // namespace tw
