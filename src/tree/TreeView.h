// What the tree needs of a widget that shows it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tw {

// An entry of the widget, in whatever way the widget tells it: an address or a number. Top is none.
enum class TreeViewItem : std::uintptr_t { Top = 0 };

class TreeView {
  public:
    virtual ~TreeView() = default;
    // Takes every entry away.
    virtual void Clear() = 0;
    // Adds an entry as the last one below parent, or as the last top-level one for Top, and tells it; the
    // result is not Top. image is the key of the image that it shows, selectedImage while it is selected.
    virtual TreeViewItem Add(TreeViewItem parent, const std::string& key, std::string_view text,
                             std::string_view image, std::string_view selectedImage) = 0;
};

}  // namespace tw
