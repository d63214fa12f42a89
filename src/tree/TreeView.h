// The interface through which the tree fills a widget.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tw {

// An entry of the widget, identified by the widget's own choice of a number or an address. Top means
// no entry.
enum class TreeViewItem : std::uintptr_t { Top = 0 };

class TreeView {
  public:
    virtual ~TreeView() = default;
    // Removes all entries.
    virtual void Clear() = 0;
    // Appends an entry to the children of parent, or to the top-level entries for Top, and returns it; the
    // result is never Top. image is the key of its image, selectedImage of that while it is selected.
    virtual TreeViewItem Add(TreeViewItem parent, const std::string& key, std::string_view text,
                             std::string_view image, std::string_view selectedImage) = 0;
};

}  // namespace tw
