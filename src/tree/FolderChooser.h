// The part of a dialog in which a recipe folder or a style folder is selected, created and renamed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tree/DB_IO.h"
#include "tree/TWTree.h"
#include "tree/TreeItems.h"

namespace tw {

// The position of the label above its tree.
enum class LabelAlignment : int { Left, Right, Center };

class FolderChooser {
  public:
    // Shows "My Folders" with three folders as a sample, for the design of a form.
    FolderChooser();
    // Shows the recipe folders of the tree, with "My Recipe Folders" selected. REQUIRES: tree and objects
    // outlive this object; objects changes that tree.
    FolderChooser(const TWTree& tree, DB_IO& objects);
    FolderChooser(const FolderChooser&) = delete;
    FolderChooser& operator=(const FolderChooser&) = delete;

    LabelAlignment Alignment() const { return alignment_; }
    void SetAlignment(LabelAlignment alignment) { alignment_ = alignment; }
    // True for style folders, false for recipe folders. Changing it selects the root.
    bool Styles() const { return styles_; }
    void SetStyles(bool styles);
    // Returns "Recipe Folder" or "Style Folder".
    std::string Label() const { return styles_ ? "Style Folder" : "Recipe Folder"; }
    // Shows the present folders of the tree. The selected folder stays selected if it still exists; else the
    // root is.
    void FillTheTree();

    TreeItems& Items() { return items_; }
    // The id of the selected folder; 0 for the root.
    std::int64_t FolderID() const;
    // Selects the folder of that id, or the root if there is none; even while locked.
    void SetFolderID(std::int64_t id);
    // While locked, the brewer cannot select, create or rename folders.
    bool Locked() const { return locked_; }
    void SetLocked(bool locked) { locked_ = locked; }

    // The brewer's actions. Each returns false, without a change, while locked. Choose selects the folder of
    // that key.
    bool Choose(std::string_view key);
    // Creates a folder below the selected one, with the next unused name, and selects it so that its name can
    // be edited. False if it was refused, after a message.
    bool CreateFolder();
    bool CanRename() const;
    // Renames the selected folder, which keeps its place until the next FillTheTree. False if the name was
    // refused, after a message.
    bool Rename(std::string_view newName);

  private:
    std::string_view RootKey() const { return styles_ ? kStyleFoldersKey : kRecipeFoldersKey; }

    const TWTree* tree_ = nullptr;
    DB_IO* objects_ = nullptr;
    TreeItems items_;
    LabelAlignment alignment_ = LabelAlignment::Left;
    bool styles_ = false;
    bool locked_ = false;
};

}  // namespace tw
