// The two kinds of folders, which share a table.
#pragma once

#include <cstdint>
#include <string>

namespace tw {

enum class FolderKind : std::uint8_t { Recipes, Styles };

// Returns the key of that folder's entry in the tree.
std::string FolderKey(FolderKind kind, std::int64_t id);
// Returns "recipe folder" or "style folder".
std::string FolderWord(FolderKind kind);
// Returns the SQL condition that selects the rows of this kind of folder in FOLDERS.
std::string FolderCondition(FolderKind kind);

}  // namespace tw
