// The part of a dialog that picks recipes from the tree into an ordered list.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "commands/PopupCommands.h"
#include "platform/FormModel.h"
#include "store/Database.h"
#include "tree/TWTree.h"
#include "tree/TreeItems.h"

namespace tw {

class RecipeChooserObserver {
  public:
    virtual ~RecipeChooserObserver() = default;
    // The list, its selected line or the enabled buttons may have changed.
    virtual void RecipeChooserChanged() = 0;
};

class RecipeChooser {
  public:
    static constexpr int kNone = -1;

    RecipeChooser();
    RecipeChooser(const RecipeChooser&) = delete;
    RecipeChooser& operator=(const RecipeChooser&) = delete;
    void SetObserver(RecipeChooserObserver* observer) { observer_ = observer; }

    // The source of the recipes: a tree, or a database from which Initialize creates a tree if none is set.
    // REQUIRES: tree and database outlive the object.
    const TWTree* Tree() const { return tree_; }
    void SetTree(const TWTree* tree) { tree_ = tree; }
    Database* DB() const { return database_; }
    void SetDB(Database* database) { database_ = database; }
    // Fills treeRecipes, or leaves it empty without a source, and expands the root and "My Recipe Folders".
    // Does not change the list.
    void Initialize();
    // Selects the recipe of that name in its folder, else below "All Recipes". False if there is none.
    bool OpenTreeTo(std::string_view name);
    // The text of the tree's root; if empty, the root has its own name.
    const std::string& RootName() const { return rootName_; }
    void SetRootName(std::string_view name);

    // A word such as "Import".
    const std::string& Action() const { return action_; }
    void SetAction(std::string_view action);
    // Returns "Recipes to {Action}:".
    std::string ListCaption() const { return "Recipes to " + action_ + ":"; }
    // True if the list is always sorted by name, which disables cmdUp, cmdDown, cmdTop and cmdBottom.
    bool Sorted() const { return sorted_; }
    void SetSorted(bool sorted);

    // The picked names in lstRecipes, in order.
    int SelectionCount() const { return static_cast<int>(names_.size()); }
    // Raises Error ("Subscript out of range") if there is no such line.
    const std::string& Item(int index) const;
    const std::vector<std::string>& Selection() const { return names_; }
    // The selected line, or kNone.
    int Current() const { return current_; }
    // Does nothing if there is no such line.
    void SetCurrent(int index);

    TreeItems& treeRecipes() { return items_; }
    const TreeItems& treeRecipes() const { return items_; }
    // Appends the recipe of that node, or all recipes below it, except those picked already. False if that
    // adds none.
    bool Add(std::string_view key);
    // cmdAdd adds the selection of the tree, cmdDel removes the selected line, and cmdUp, cmdDown, cmdTop and
    // cmdBottom move it. SortAscending and SortDescending, by their control names, sort the names, ignoring
    // case. False if there is no such button; a disabled button does nothing.
    bool Press(std::string_view button) { return buttons_.Press(button); }
    bool IsEnabled(std::string_view button) const { return buttons_.IsEnabled(button); }
    bool Run(PopupCommand sorting) { return Press(NameOf(sorting)); }
    bool IsEnabled(PopupCommand sorting) const { return IsEnabled(NameOf(sorting)); }
    // All buttons, for the form that contains this part.
    const std::vector<FormButton>& Buttons() const { return buttons_.All(); }

  private:
    bool CanAdd() const;
    void Delete();
    void MoveTo(int index);
    void Sort(bool descending);
    void TellChanged();

    FormButtons buttons_;
    const TWTree* tree_ = nullptr;
    Database* database_ = nullptr;
    std::unique_ptr<TWTree> ownTree_;
    TreeItems items_;
    std::string rootName_, action_;
    bool sorted_ = false;
    std::vector<std::string> names_;
    int current_ = kNone;
    RecipeChooserObserver* observer_ = nullptr;
};

}  // namespace tw
