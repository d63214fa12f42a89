// The list of a folder's contents in the explorer and in the open and save dialog: how it is shown and
// sorted, what a find box narrows it to, and the name that is being edited in place.
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

// What the windows on folders, recipes and styles work on. REQUIRES: objects changes that tree, which was
// made from database.
struct ObjectAccess {
    Database& database;
    const TWTree& tree;
    DB_IO& objects;
    Platform& platform;
};

enum class ListViewType : int { LargeIcons, SmallIcons, List, Details };

// How these lists are shown. The shell keeps it from one window to the next.
struct ListLook {
    ListViewType viewType = ListViewType::List;
    int arrangeKey = 0;       // a column
    bool descending = false;  // ArrangeOrder
    bool operator==(const ListLook&) const = default;
};

// The key that a recipe has now. A save gives it a new one, also an autosave in the middle of an operation;
// the key itself when the tree has it still, or has no recipe of that name.
std::string KeyNow(const ObjectAccess& access, const std::string& key, std::string_view name);

// The column that shows where a found recipe lies, behind those of the explorer.
inline constexpr std::string_view kFolderColumn = "Folder";

class NodeList {
  public:
    // Empty. Without showStyles the branch of the styles is left out. REQUIRES: all live for as long.
    NodeList(const ObjectAccess& access, const ListLook& look, bool showStyles);
    ~NodeList();
    NodeList(const NodeList&) = delete;
    NodeList& operator=(const NodeList&) = delete;

    ListTable& Rows() { return rows_; }
    const ListTable& Rows() const { return rows_; }
    // The entry whose children are shown, or would be without the find box; empty at first.
    const std::string& Key() const { return key_; }
    // Shows the children of that entry and ends a search. What is shown already is left alone unless force is
    // set. An unknown key, and the empty one, clear the list.
    void Show(std::string_view key, bool force);
    // Shows the recipes that hold every word of text, of all folders, each with its folder; a text without a
    // word brings the entry's children back.
    void Find(std::string_view text);
    // True while a search is shown.
    bool IsFinding() const { return !findText_.empty(); }
    // Fills the list as it stands in the tree now. The rows of the same keys stay chosen.
    void Refill();
    // Sorts as the look says.
    void Sort();
    // A save gives a recipe a new key, also an autosave while the list is shown: the rows take the keys that
    // their recipes have now.
    void FollowSaves();

    // The keys of the chosen rows, from the top; and of the one chosen last, empty without one.
    std::vector<std::string> ChosenKeys() const;
    std::string SelectedKey() const;
    bool ChooseKey(std::string_view key);
    // Chooses the rows of those names or keys, a line each, for the console; names compare without regard to
    // case. False, and nothing changes, when one is missing.
    bool ChooseByText(std::string_view lines);
    // Puts the row of a new folder behind the others and begins to edit its name.
    void AddFolder(std::string_view key);
    // Takes the row of that key away, if there is one.
    void Remove(std::string_view key);

    // Editing a name in place. Only one row at a time; BeginEdit is false for a row that cannot be renamed.
    bool CanRename(int row) const;
    bool BeginEdit(int row);
    // The row that is being edited, kNoRow for none.
    int EditedRow() const;
    // Ends the edit. False, and the name stays, when it was refused, which has been told, or when nothing is
    // being edited. A name that is left as it was is no rename.
    bool EndEdit(std::string_view newName);
    void CancelEdit() { editedKey_.clear(); }

    // What to show instead of rows in an empty list.
    std::string Hint() const;

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
};

// Takes a command of the menus "View" and "Arrange" into the look; the column that is sorted by already turns
// its order round. False for any other command.
bool TakeLookCommand(ListLook& look, PopupChoice choice);
// These commands as buttons of a form, which runs changed after each. REQUIRES: look lives for as long.
std::vector<FormButton> LookButtons(ListLook& look, const std::function<void()>& changed);

}  // namespace tw
