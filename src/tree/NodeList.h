// The list of a folder's contents in the explorer and in the open and save dialog: its look and order, the
// results of a search, and the name being edited in place.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "commands/PopupCommands.h"
#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "tree/DB_IO.h"
#include "tree/ListTable.h"
#include "tree/RecipeFinder.h"
#include "tree/TWTree.h"

namespace tw {

class lvFiller;

// What the dialogs for folders, recipes and styles need. REQUIRES: objects changes that tree, which was
// created from database.
struct ObjectAccess {
    Database& database;
    const TWTree& tree;
    DB_IO& objects;
    Platform& platform;
};

enum class ListViewType : int { LargeIcons, SmallIcons, List, Details };

// How these lists are shown. The shell keeps it from one dialog to the next.
struct ListLook {
    ListViewType viewType = ListViewType::List;
    int arrangeKey = 0;       // index of a column
    bool descending = false;  // reverses the order
    bool operator==(const ListLook&) const = default;
};

// Returns the present key of a recipe. A save gives the recipe a new key, as can an autosave in the middle of
// an operation. Returns key itself if the tree still has it, or if there is no recipe of that name.
std::string KeyNow(const ObjectAccess& access, const std::string& key, std::string_view name);

class NodeList {
  public:
    // Creates an empty list; showStyles says whether it includes the branch of the styles. REQUIRES: all
    // arguments outlive the object.
    NodeList(const ObjectAccess& access, const ListLook& look, bool showStyles);
    ~NodeList();
    NodeList(const NodeList&) = delete;
    NodeList& operator=(const NodeList&) = delete;

    ListTable& Rows() { return rows_; }
    const ListTable& Rows() const { return rows_; }
    // The entry whose children are shown, or would be without a search; empty at first.
    const std::string& Key() const { return key_; }
    // Shows the children of that entry and ends a search. Does nothing if they are shown already, unless
    // force is true. Clears the list if key is unknown or empty.
    void Show(std::string_view key, bool force);
    // Shows the recipes of all folders that contain every word of text, each with its folder; a text without
    // a word shows the entry's children again.
    void Find(std::string_view text);
    // True while the results of a search are shown.
    bool IsFinding() const { return !findText_.empty(); }
    // Fills the list from the present tree. The rows with the same keys stay selected.
    void Refill();
    // Sorts the list in the order of the look.
    void Sort();
    // Updates the keys of rows: a save, even an autosave while the list is shown, gives a recipe a new key.
    void FollowSaves();

    // ChosenKeys returns the keys of the selected rows, in ascending order; SelectedKey that of the row
    // selected last, or an empty text.
    std::vector<std::string> ChosenKeys() const;
    std::string SelectedKey() const;
    bool ChooseKey(std::string_view key);
    // Selects the rows with those names (ignoring case) or keys, one per line, for the console. False,
    // without a change, if one is missing.
    bool ChooseByText(std::string_view lines);
    // Appends the row of a new folder and begins to edit its name.
    void AddFolder(std::string_view key);
    // Removes the row of that key, if there is one.
    void Remove(std::string_view key);

    // Editing a name in place, one row at a time. BeginEdit returns false if the row cannot be renamed.
    bool CanRename(int row) const;
    bool BeginEdit(int row);
    // The row being edited, or kNoRow.
    int EditedRow() const;
    // Ends the edit and renames the row, unless the name is unchanged. False, and the name stays, if it was
    // refused, after a message, or if no row is being edited.
    bool EndEdit(std::string_view newName);
    void CancelEdit() { editedKey_.clear(); }

    // Returns the text to show in an empty list.
    std::string Hint() const;
    // From now on, an empty list does not say how to get a first recipe, because one is about to be saved.
    void OmitAdvice() { advises_ = false; }
    // Returns how many recipes a search has found, and where it has searched; empty without a search.
    std::string FoundText() const;

  private:
    void FillFound();
    std::string FolderOf(const TWNode& recipe) const;

    ObjectAccess access_;
    const ListLook& look_;
    bool showStyles_;
    std::unique_ptr<lvFiller> filler_;
    RecipeFinder finder_;
    ListTable rows_;
    std::string key_;
    std::string findText_;
    std::string editedKey_;
    bool advises_ = true;
};

// Applies a command of the menus "View" and "Arrange" to the look; choosing the present sort column again
// reverses its order. False for any other command.
bool TakeLookCommand(ListLook& look, PopupChoice choice);
// Returns these commands as buttons of a form, which calls changed after each. REQUIRES: look outlives
// the form.
std::vector<FormButton> LookButtons(ListLook& look, const std::function<void()>& changed);

}  // namespace tw
