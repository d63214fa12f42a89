// The part of a dialog in which a recipe folder or a style folder is chosen, made and renamed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tree/DB_IO.h"
#include "tree/TWTree.h"
#include "tree/TreeItems.h"

namespace tw {

// Where the label stands over its tree.
enum class LabelAlignment : int { Left, Right, Center };

class FolderChooser {
  public:
    // Shows the sample "My Folders" with three folders, for a form that is being designed.
    FolderChooser();
    // Shows the recipe folders of the tree, with "My Recipe Folders" chosen. REQUIRES: both live for as long;
    // objects changes that tree.
    FolderChooser(const TWTree& tree, DB_IO& objects);
    FolderChooser(const FolderChooser&) = delete;
    FolderChooser& operator=(const FolderChooser&) = delete;

    LabelAlignment Alignment() const { return alignment_; }
    void SetAlignment(LabelAlignment alignment) { alignment_ = alignment; }
    // Whether the folders are those of the styles. Another kind starts at its root.
    bool Styles() const { return styles_; }
    void SetStyles(bool styles);
    // "Recipe Folder" or "Style Folder".
    std::string Label() const { return styles_ ? "Style Folder" : "Recipe Folder"; }
    // Shows the tree as it is now; the chosen folder stays if it is still there, else the root is chosen.
    void FillTheTree();

    TreeItems& Items() { return items_; }
    // Of the chosen folder, 0 for the root.
    std::int64_t FolderID() const;
    // Chooses the folder of that id, the root when there is none. Also while locked.
    void SetFolderID(std::int64_t id);
    // While locked no other folder can be chosen, none made and none renamed.
    bool Locked() const { return locked_; }
    void SetLocked(bool locked) { locked_ = locked; }

    // What the brewer does. Each is false, and nothing has changed, while locked.
    bool Choose(std::string_view key);
    // Under the chosen folder, under the next free name; it is the chosen one then, so that its name can be
    // edited. False when it was refused, which has been told.
    bool CreateFolder();
    bool CanRename() const;
    // Of the chosen folder, which stays in its place until the next FillTheTree. False when the name was
    // refused, which has been told.
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
