// The explorer (frmExplorer): a tree of folders beside the list of what the chosen one holds, one pair for
// the recipes and one for the styles. It changes nothing itself: all that it does goes through DB_IO.
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

// Shows the editor of the style of that name, or of a new one, in that style folder, for a blank name. The
// name that was saved, nothing when it was cancelled.
using StyleEditing =
    std::function<std::optional<std::string>(const std::string& name, std::int64_t folderId)>;

// optRecipes and optStyles; of the page shown treeFolders, the key of the chosen entry, and lvNames, the
// chosen rows' names, a line each, which takes keys too; txtFind, what to look for; txtLabel, the new name of
// what is being edited, which ends the edit. The buttons are the items of the menus, mnuArrangeBy(0) and so
// on for its array, and cmdClose. An error of a deletion rises when what is left is shown.
class ExplorerModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmExplorer";

    enum class Page : int { Recipes, Styles };
    struct Hooks {
        // Opens the stored recipe of that name as a document.
        std::function<void(const std::string& name)> openRecipe;
        StyleEditing editStyle;  // may be empty: the commands on styles are dark then
    };

    // Shows the recipes, with both root folders chosen. REQUIRES: what access names lives for as long.
    ExplorerModel(const ObjectAccess& access, Hooks hooks);

    // ViewType, ArrangeKey and ArrangeOrder, of both lists.
    const ListLook& Look() const { return look_; }
    void SetLook(const ListLook& look);

    Page Shown() const { return shown_; }
    void Show(Page page) { shown_ = page; }
    TreeItems& Tree(Page page) { return At(page).tree; }
    NodeList& List(Page page) { return At(page).list; }
    // Of the page shown, empty when no entry is chosen.
    std::string NodeKey() const { return At(shown_).tree.SelectedKey(); }
    // Whether a command does something now.
    bool IsEnabled(PopupCommand command) const { return FormModel::IsEnabled(tw::NameOf(command)); }
    using FormModel::IsEnabled;
    // Does what the command does; nothing while it is disabled. False for one of another window. An error of
    // a deletion rises when what is left is shown.
    bool Run(PopupChoice choice) { return Press(tw::NameOf(choice)); }
    // How many objects are shown and chosen, or what has just been opened, or that the tree is not up to
    // date.
    std::string Status() const;

    // What the brewer does on the page shown.

    // Chooses the tree's entry of that key and shows what it holds. False when there is none.
    bool ChooseNode(std::string_view key);
    // Another row is chosen, or none.
    void RowChosen() { opened_.clear(); }
    // Narrows the list of recipes; a text without a word shows the folder again.
    void Find(std::string_view text);
    // Whether each of the objects may be dropped on that one.
    bool CanDrop(const std::vector<std::string>& keys, std::string_view targetKey) const;
    // Moves them, in their order, until one is refused; then shows both places.
    void Drop(const std::vector<std::string>& keys, std::string_view targetKey);
    // The tree's entry whose name is being edited; TreeItems::kNone for none. NodeList tells it of the rows.
    int EditedNode() const;
    void CancelEdit();
    // The name typed over that entry, or over the row being edited. False when it was refused, which has been
    // told. What is shown goes to its place by Settle, when the editor has closed.
    bool RenameNode(std::string_view newName);
    bool RenameRow(std::string_view newName) { return At(shown_).list.EndEdit(newName); }
    // Shows everything as it stands in the tree now; the chosen entries and rows stay chosen.
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
    // Fills the page's tree; keyToSelect, if it is there, is chosen then, otherwise the entry as before, or
    // the page's root folder.
    void FillTree(PageState& page, std::string_view keyToSelect);
    void ShowCodes(TreeItems& tree) const;
    void FillList(PageState& page);
    // Runs work, then shows everything anew, also when work raises.
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
    std::string opened_;  // the recipe opened last
};

}  // namespace tw
