#include "tree/FolderChooser.h"

#include "tree/NodeKey.h"

namespace tw {

FolderChooser::FolderChooser() {
    FillTheTree();
}

FolderChooser::FolderChooser(const TWTree& tree, DB_IO& objects) : tree_(&tree), objects_(&objects) {
    FillTheTree();
}

void FolderChooser::SetStyles(bool styles) {
    if (styles_ == styles) return;
    styles_ = styles;
    FillTheTree();
}

void FolderChooser::FillTheTree() {
    items_.Fill([this](TreeView& view) {
        if (tree_ && styles_) {
            tree_->PopulateTreeViewWithStyleFolders(view);
        } else if (tree_) {
            tree_->PopulateTreeViewWithRecipeFolders(view);
        } else {
            const auto add = [&](TreeViewItem parent, const std::string& key, const char* text) {
                return view.Add(parent, key, text, IconName(NodeIcon::FolderClosed),
                                IconName(NodeIcon::FolderOpen));
            };
            const TreeViewItem root = add(TreeViewItem::Top, RecipeFolderKey(0), "My Folders");
            add(root, RecipeFolderKey(1), "Folder A");
            add(root, RecipeFolderKey(2), "Folder B");
            add(root, RecipeFolderKey(3), "Folder C");
        }
    });
    const int root = items_.Find(tree_ ? RootKey() : kRecipeFoldersKey);
    if (root == TreeItems::kNone) return;
    items_.Expand(root);
    if (items_.Selected() == TreeItems::kNone) items_.Select(root);
}

std::int64_t FolderChooser::FolderID() const {
    const std::string key = items_.SelectedKey();
    return key.empty() ? 0 : IdOfKey(key);
}

void FolderChooser::SetFolderID(std::int64_t id) {
    if (!items_.SelectKey(styles_ ? StyleFolderKey(id) : RecipeFolderKey(id))) items_.SelectKey(RootKey());
}

bool FolderChooser::Choose(std::string_view key) {
    return !locked_ && items_.SelectKey(key);
}

bool FolderChooser::CreateFolder() {
    if (locked_ || objects_ == nullptr) return false;
    const std::string key = objects_->CreateFolderObject(items_.SelectedKey(), "");
    if (key.empty()) return false;
    FillTheTree();
    return items_.SelectKey(key);
}

bool FolderChooser::CanRename() const {
    return !locked_ && objects_ != nullptr && CanRenameNode(items_.SelectedKey());
}

bool FolderChooser::Rename(std::string_view newName) {
    if (!CanRename()) return false;
    if (!objects_->RenameObject(items_.SelectedKey(), newName)) return false;
    items_.SetText(items_.Selected(), newName);
    return true;
}

}  // namespace tw
