// The images of the tree's entries: keys into the program's image list.
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
    Other,  // a text that is none of the above
};

inline constexpr std::array<std::string_view, 9> kIconNames = {
    "",           "database",     "sysfolder open", "sysfolder closed", "folder open", "folder closed",
    "style open", "style closed", "document",
};

// REQUIRES: icon is not Other.
constexpr std::string_view IconName(NodeIcon icon) {
    return kIconNames[static_cast<std::size_t>(icon)];
}

// The icon of that name, Other when there is none.
constexpr NodeIcon IconOf(std::string_view name) {
    for (std::size_t i = 0; i < kIconNames.size(); ++i)
        if (kIconNames[i] == name) return static_cast<NodeIcon>(i);
    return NodeIcon::Other;
}

}  // namespace tw
