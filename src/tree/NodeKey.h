// The keys of the tree's entries: "F:3" is a recipe folder, "G:3" a style folder, "R:17:3" a recipe and
// "S:5:1" a style, where the last number says which of its entries. Only this file knows the form of keys.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "tree/SharedText.h"

namespace tw {

// The keys of entries that have no row in the database.
inline constexpr std::string_view kDatabaseKey = "X:DB";
inline constexpr std::string_view kAllRecipesKey = "F:-1";
inline constexpr std::string_view kByStyleKey = "X:STYLE";
inline constexpr std::string_view kAllStylesKey = "G:-1";
inline constexpr std::string_view kStyleFoldersKey = "G:0";
inline constexpr std::string_view kRecipeFoldersKey = "F:0";
inline constexpr std::string_view kNoStyleKey = "S:0:0";        // below kAllStylesKey
inline constexpr std::string_view kNoStyleFolderKey = "S:0:1";  // below kStyleFoldersKey

// A recipe has entries below "All Recipes", below both entries of its style, and in its folder.
inline constexpr int kRecipeCopies = 4;
inline constexpr int kCopyOfStyle = 1;  // below its style in "All Styles"
inline constexpr int kCopyInFolder = 3;
// A style has entries below "All Styles" and in its folder.
inline constexpr int kStyleCopies = 2;
inline constexpr int kStyleInFolder = 1;

// The id in the keys of "All Recipes" and "All Styles", which have no row in the database.
inline constexpr std::int64_t kAllObjects = -1;
// Never the id of a row; any other value, even negative, may be one.
inline constexpr std::int64_t kNoId = std::numeric_limits<std::int64_t>::min();

// A key of one of the numeric forms below is stored as numbers; any other, such as those of an exchange
// file's styles, as text.
class NodeKey {
  public:
    // The empty key.
    NodeKey() = default;
    // Accepts any text.
    explicit NodeKey(std::string_view text);
    // The keys "{kind}:{id}" and "{kind}:{id}:{copy}". REQUIRES: kind is a capital letter, copy is from 0
    // to 9.
    NodeKey(char kind, std::int64_t id) noexcept;
    NodeKey(char kind, std::int64_t id, int copy) noexcept;

    std::string Text() const;
    // True if the texts are exactly equal.
    bool operator==(const NodeKey& other) const noexcept;
    // Returns the same hash for all copies of one object. Other hashes are distributed over all 64 bits, the
    // upper ones best.
    std::uint64_t HashOfObject() const noexcept;
    // The number of the copy; -1 if there is none.
    int Copy() const noexcept { return copy_; }

  private:
    static constexpr char kIsText = '\0';
    static constexpr std::int8_t kNoCopy = -1;

    std::int64_t id_ = 0;  // if the key is stored as numbers
    SharedText text_;      // otherwise; kind_ is then kIsText
    char kind_ = kIsText;
    std::int8_t copy_ = kNoCopy;
};

// Return the keys of objects, as text. REQUIRES: copy is from 0 to 9.
std::string RecipeKey(std::int64_t id, int copy);
std::string StyleKey(std::int64_t id, int copy);
std::string RecipeFolderKey(std::int64_t id);
std::string StyleFolderKey(std::int64_t id);
// Return the keys of folders whose id is given as text; not a key of the tree if id is not an id.
std::string RecipeFolderKey(std::string_view id);
std::string StyleFolderKey(std::string_view id);

// These functions check only the first letter of the key: nothing is looked up, and the rest need not be
// an id.
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

// Returns the second field of a key; kNoId if it is not a whole number.
std::int64_t IdOfKey(std::string_view key);

}  // namespace tw
