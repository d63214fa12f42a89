// The explorer (frmExplorer): a tree of folders and the list of what the selected folder contains, one pair
// for recipes and one for styles. It changes nothing itself; DB_IO does.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "commands/PopupCommands.h"
#include "platform/FormModel.h"
#include "tree/NodeList.h"
#include "tree/TreeItems.h"

namespace tw {

// Shows the editor of the style of that name or, if name is blank, of a new style in that folder. Returns the
// name under which the style was saved, or nullopt if it was cancelled.
using StyleEditing =
    std::function<std::optional<std::string>(const std::string& name, std::int64_t folderId)>;

// optRecipes and optStyles choose the page. On the current page, treeFolders contains the key of the selected
// entry, and lvNames the names of the selected rows, one per line; it also accepts keys. txtFind contains the
// text to find. txtLabel is the new name of what is being edited, and entering it ends the edit. The buttons
// are the menu items, of which mnuArrangeBy(0) and so on form an array, and cmdClose. The error of a deletion
// is raised after the remaining objects are shown.
class ExplorerModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmExplorer";

    enum class Page : int { Recipes, Styles };
    struct Hooks {
        // Opens the stored recipe of that name as a document.
        std::function<void(const std::string& name)> openRecipe;
        StyleEditing editStyle;  // may be empty, which disables the commands on styles
    };

    // Shows the page of recipes; on both pages the root folder is selected. REQUIRES: the objects of access
    // outlive the dialog.
    ExplorerModel(const ObjectAccess& access, Hooks hooks);

    // The view type and order of both lists.
    const ListLook& Look() const { return look_; }
    void SetLook(const ListLook& look);

    Page Shown() const { return shown_; }
    void Show(Page page) { shown_ = page; }
    TreeItems& Tree(Page page) { return At(page).tree; }
    NodeList& List(Page page) { return At(page).list; }
    // The key of the selected entry on the current page; empty if none is selected.
    std::string NodeKey() const { return At(shown_).tree.SelectedKey(); }
    // True if the command is enabled.
    bool IsEnabled(PopupCommand command) const { return FormModel::IsEnabled(tw::NameOf(command)); }
    using FormModel::IsEnabled;
    // Runs the command. Does nothing while it is disabled; false if it belongs to another window. The error
    // of a deletion is raised after the remaining objects are shown.
    bool Run(PopupChoice choice) { return Press(tw::NameOf(choice)); }
    // Returns how many objects are shown and selected, or what a search has found, or what has just been
    // opened, or that the tree is not up to date.
    std::string Status() const;

    // The brewer's actions on the current page.

    // Selects the entry of that key in the tree and shows its contents. False if there is none.
    bool ChooseNode(std::string_view key);
    // Another row has been selected, or none.
    void RowChosen() { opened_.clear(); }
    // Limits the list of recipes to those that contain the words; a text without a word shows the
    // folder again.
    void Find(std::string_view text);
    // True if each of the objects may be dropped on the target.
    bool CanDrop(const std::vector<std::string>& keys, std::string_view targetKey) const;
    // Moves the objects, in order, until a move is refused; then shows both places.
    void Drop(const std::vector<std::string>& keys, std::string_view targetKey);
    // The entry of the tree whose name is being edited, or TreeItems::kNone. NodeList reports edited rows.
    int EditedNode() const;
    void CancelEdit();
    // Rename that entry, or the row being edited. False if the name was refused, after a message. Settle then
    // moves it to its place in the order; it must be called after the editor has closed.
    bool RenameNode(std::string_view newName);
    bool RenameRow(std::string_view newName) { return At(shown_).list.EndEdit(newName); }
    // Shows the present contents of the tree; selected entries and rows stay selected.
    void Settle();

  private:
    struct PageState {
        PageState(const ObjectAccess& access, const ListLook& look, bool ofStyles)
            : styles(ofStyles), list(access, look, ofStyles) {}
        bool styles;
        TreeItems tree;
        NodeList list;
        std::string editedKey = {};
    };
    PageState& At(Page page) { return pages_[static_cast<std::size_t>(page)]; }
    const PageState& At(Page page) const { return pages_[static_cast<std::size_t>(page)]; }

    void DeclareControls();
    void DeclareCommands();
    std::string ChosenNames() const;
    bool ChooseRows(std::string_view names);
    bool EnterLabel(std::string_view newName);

    bool CanOpen(std::string_view key) const;
    bool CanRename() const;
    bool CanAddStyle() const;
    bool ShowsIcons() const;
    void SortLists();
    // Fills the page's tree. Selects keyToSelect if it is there, else the entry selected before, else the
    // page's root folder.
    void FillTree(PageState& page, std::string_view keyToSelect);
    void ShowCodes(TreeItems& tree) const;
    void FillList(PageState& page);
    // Runs work, then shows the present state, even if work raises an error.
    void Change(const std::function<void()>& work);
    bool Confirm(const std::string& text);
    std::string NameOf(const std::string& key) const;
    std::vector<std::string> NamesOf(const std::vector<std::string>& keys) const;

    void Open();
    void OpenStyle(const std::string& key);
    void Delete();
    void DeleteNode();
    void NewFolder();
    void NewStyle();
    void BeginRename();
    void BeginRenameNode();
    void LineUp();

    ObjectAccess access_;
    Hooks hooks_;
    ListLook look_;
    Page shown_ = Page::Recipes;
    std::array<PageState, 2> pages_;
    std::string opened_;  // the recipe opened last; empty after another action
};

}  // namespace tw
