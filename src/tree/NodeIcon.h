// The icons of the tree's entries: keys in the program's image list.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tw {

enum class NodeIcon : std::uint8_t {
    None,
    Database,
    SystemFolderOpen,
    SystemFolderClosed,
    FolderOpen,
    FolderClosed,
    StyleOpen,
    StyleClosed,
    Document,
    Other,  // any other name
};

inline constexpr std::array<std::string_view, 9> kIconNames = {
    "",           "database",     "sysfolder open", "sysfolder closed", "folder open", "folder closed",
    "style open", "style closed", "document",
};

// Returns the name of the icon. REQUIRES: icon is not Other.
constexpr std::string_view IconName(NodeIcon icon) {
    return kIconNames[static_cast<std::size_t>(icon)];
}

// Returns the icon of that name, or Other.
constexpr NodeIcon IconOf(std::string_view name) {
    for (std::size_t i = 0; i < kIconNames.size(); ++i)
        if (kIconNames[i] == name) return static_cast<NodeIcon>(i);
    return NodeIcon::Other;
}

}  // namespace tw
