// The keys under which the tree shows recipes, styles and folders, for the operations on them.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace tw {

inline constexpr std::string_view kAllRecipesFolder = "F:-1";
inline constexpr std::string_view kAllStylesFolder = "G:-1";

// Where the copies of a recipe stand: under "All Recipes", under both entries of its style, in its folder.
inline constexpr int kRecipeCopies = 4;
inline constexpr int kCopyInFolder = 3;
// A style stands under "All Styles" and in its folder.
inline constexpr int kStyleCopies = 2;
inline constexpr int kStyleInFolder = 1;

inline std::string ObjectKey(char kind, std::int64_t id, int copy) {
    return std::string(1, kind) + ":" + std::to_string(id) + ":" + std::to_string(copy);
}
inline std::string RecipeKey(std::int64_t id, int copy) {
    return ObjectKey('R', id, copy);
}
inline std::string StyleKey(std::int64_t id, int copy) {
    return ObjectKey('S', id, copy);
}

// The number of the errors that tell of a missing object.
inline constexpr int kMissingNumber = 5;

// The id in the keys of "All Recipes" and "All Styles", which hold no row of their own.
inline constexpr std::int64_t kAllObjects = -1;

// Nobody's id: a row may have any other, also a negative one.
inline constexpr std::int64_t kNoId = std::numeric_limits<std::int64_t>::min();

// The second field of a key; kNoId when it is no whole number.
std::int64_t IdOfKey(std::string_view key);

}  // namespace tw
