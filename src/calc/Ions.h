// The ions of brewing water.
#pragma once

#include <array>

namespace tw {

inline constexpr int kIons = 6;

// One number for each ion, in the order that water tables have everywhere: calcium, carbonate, chloride,
// magnesium, sodium, sulfate.
using Ions = std::array<double, kIons>;

}  // namespace tw
