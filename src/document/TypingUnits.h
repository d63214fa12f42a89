// The units of what the program itself types for the brewer: examples, suggestions, the sample recipe.
#pragma once

#include <cstdint>

namespace tw {

enum class TypingUnits : std::uint8_t { US, Metric };

}  // namespace tw
