// The keys of the entries of the tree: "F:3" a folder of recipes, "G:3" one of styles, "R:17:3" a recipe,
// "S:5:1" a style, the last number telling which of its entries. Only this file knows how they are written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "tree/SharedText.h"

namespace tw {

// The keys of the entries that stand for no row of the database.
inline constexpr std::string_view kDatabaseKey = "X:DB";
inline constexpr std::string_view kAllRecipesKey = "F:-1";
inline constexpr std::string_view kByStyleKey = "X:STYLE";
inline constexpr std::string_view kAllStylesKey = "G:-1";
inline constexpr std::string_view kStyleFoldersKey = "G:0";
inline constexpr std::string_view kRecipeFoldersKey = "F:0";
inline constexpr std::string_view kNoStyleKey = "S:0:0";        // under kAllStylesKey
inline constexpr std::string_view kNoStyleFolderKey = "S:0:1";  // under kStyleFoldersKey

// A recipe stands under "All Recipes", under both entries of its style, and in its folder.
inline constexpr int kRecipeCopies = 4;
inline constexpr int kCopyInFolder = 3;
// A style stands under "All Styles" and in its folder.
inline constexpr int kStyleCopies = 2;
inline constexpr int kStyleInFolder = 1;

// The id in the keys of "All Recipes" and "All Styles", which hold no row of their own.
inline constexpr std::int64_t kAllObjects = -1;
// Never the id of a row; any other value, even negative, may be one.
inline constexpr std::int64_t kNoId = std::numeric_limits<std::int64_t>::min();

// Keys of numbers, all but those of an exchange file's styles, are kept as numbers.
class NodeKey {
  public:
    // The empty key.
    NodeKey() = default;
    // The key of that text, whatever it is.
    explicit NodeKey(std::string_view text);
    // "{kind}:{id}", and "{kind}:{id}:{copy}". REQUIRES: kind is a capital letter, copy is from 0 to 9.
    NodeKey(char kind, std::int64_t id) noexcept;
    NodeKey(char kind, std::int64_t id, int copy) noexcept;

    std::string Text() const;
    // True for the same text, letter for letter.
    bool operator==(const NodeKey& other) const noexcept;
    // The same for all copies of one object, otherwise spread over all 64 bits, the upper ones best.
    std::uint64_t HashOfObject() const noexcept;
    // The number of the copy, -1 without one.
    int Copy() const noexcept { return copy_; }

  private:
    static constexpr char kIsText = '\0';
    static constexpr std::int8_t kNoCopy = -1;

    std::int64_t id_ = 0;  // of a key of numbers
    SharedText text_;      // of any other; kind_ is kIsText
    char kind_ = kIsText;
    std::int8_t copy_ = kNoCopy;
};

// The keys of objects, as texts. REQUIRES: copy is from 0 to 9.
std::string RecipeKey(std::int64_t id, int copy);
std::string StyleKey(std::int64_t id, int copy);
std::string RecipeFolderKey(std::int64_t id);
std::string StyleFolderKey(std::int64_t id);
// Those of the folder whose id is typed; no key of the tree for what is no id.
std::string RecipeFolderKey(std::string_view id);
std::string StyleFolderKey(std::string_view id);

// What a key stands for, by its first letter alone: nothing is looked up, and what stands behind the letter
// need be no id.
constexpr bool IsRecipeFolderKey(std::string_view key) {
    return key.starts_with('F');
}
constexpr bool IsStyleFolderKey(std::string_view key) {
    return key.starts_with('G');
}
constexpr bool IsRecipeKey(std::string_view key) {
    return key.starts_with('R');
}
constexpr bool IsStyleKey(std::string_view key) {
    return key.starts_with('S');
}
// True for an entry that groups others and has no row in any table.
constexpr bool IsGroupKey(std::string_view key) {
    return key.starts_with('X');
}
// True for the entries "(None)".
constexpr bool IsNoStyleKey(std::string_view key) {
    return key.starts_with("S:0:");
}

// The second field of a key; kNoId when it is no whole number.
std::int64_t IdOfKey(std::string_view key);

}  // namespace tw
