// The lists from which a recipe's style, ingredients and waters are picked.
#pragma once

namespace tw {

enum class PickList : int { Style, Grain, Extract, Hop, Yeast, Water, Treatment, Sugar };
inline constexpr int kPickLists = 8;

}  // namespace tw
