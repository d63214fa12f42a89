// The key of an entry of the tree, such as "R:17:3": a text that the whole program takes apart at its colons.
// Keys of numbers, all but those of an exchange file's styles, are kept as numbers.
#pragma once

#include <cstddef>
#include <cstdint>
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

}  // namespace tw
