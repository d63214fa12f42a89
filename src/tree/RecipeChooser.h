// The part of a dialog in which recipes are picked from the tree into an ordered list.
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
    // The list, its chosen line or what is on may be another.
    virtual void RecipeChooserChanged() = 0;
};

class RecipeChooser {
  public:
    static constexpr int kNone = -1;

    RecipeChooser();
    RecipeChooser(const RecipeChooser&) = delete;
    RecipeChooser& operator=(const RecipeChooser&) = delete;
    void SetObserver(RecipeChooserObserver* observer) { observer_ = observer; }

    // Where the recipes come from: a tree, or a database, of which Initialize makes one when no tree is
    // given. REQUIRES: both live for as long.
    const TWTree* Tree() const { return tree_; }
    void SetTree(const TWTree* tree) { tree_ = tree; }
    Database* DB() const { return database_; }
    void SetDB(Database* database) { database_ = database; }
    // Fills treeRecipes, without anything when neither is given, and opens the root and "My Recipe Folders".
    // The list stays.
    void Initialize();
    // Chooses the recipe of that name in its folder, else under "All Recipes". False when there is none.
    bool OpenTreeTo(std::string_view name);
    // The text of the tree's root; empty for the tree's own.
    const std::string& RootName() const { return rootName_; }
    void SetRootName(std::string_view name);

    // A word such as "Import".
    const std::string& Action() const { return action_; }
    void SetAction(std::string_view action);
    // "Recipes to {Action}:"
    std::string ListCaption() const { return "Recipes to " + action_ + ":"; }
    // Whether the list is kept in the order of the names; cmdUp, cmdDown, cmdTop and cmdBottom are off then.
    bool Sorted() const { return sorted_; }
    void SetSorted(bool sorted);

    // lstRecipes: the names, in their order.
    int SelectionCount() const { return static_cast<int>(names_.size()); }
    // Raises "Subscript out of range".
    const std::string& Item(int index) const;
    const std::vector<std::string>& Selection() const { return names_; }
    // The chosen line, kNone without one.
    int Current() const { return current_; }
    // Nothing for a line that is not there.
    void SetCurrent(int index);

    TreeItems& treeRecipes() { return items_; }
    const TreeItems& treeRecipes() const { return items_; }
    // Puts the recipe of that node behind the chosen ones, or all recipes that stand below it, each once.
    // False when that adds none.
    bool Add(std::string_view key);
    // cmdAdd adds what is chosen in the tree, cmdDel takes the chosen line out, cmdUp, cmdDown, cmdTop and
    // cmdBottom move it; SortAscending and SortDescending, by their control names, sort the names without
    // regard to case. False for no such button; a disabled one does nothing.
    bool Press(std::string_view button) { return buttons_.Press(button); }
    bool IsEnabled(std::string_view button) const { return buttons_.IsEnabled(button); }
    bool Run(PopupCommand sorting) { return Press(NameOf(sorting)); }
    bool IsEnabled(PopupCommand sorting) const { return IsEnabled(NameOf(sorting)); }
    // For the table of the form that it is part of.
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
