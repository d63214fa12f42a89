// The dialog that opens, saves or deletes recipes (frmOpenSave); recipe folders take the place
// of directories.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "tree/NodeKey.h"
#include "tree/NodeList.h"

namespace tw {

// What the shell keeps of the dialog from one use to the next.
struct OpenSaveFields {
    std::string nodeKey{kRecipeFoldersKey};  // the key of the folder shown last
    ListLook look;
};

// icmbFolder contains the name of the current folder and accepts a folder's key, or the name of one that it
// lists. lvNames contains and accepts the name of the selected row. txtName contains the name. FolderID
// accepts the id of a recipe folder, -1 for all recipes; it is shown only when saving. txtFind accepts the
// text to find. txtLabel accepts the new name of the row being edited, which ends the edit. The buttons, and
// the menu items by their control names, can be pressed; cmdOK keeps the dialog open if it refuses.
class OpenSaveModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmOpenSave";

    enum class Style : int { Open, Save, Delete };

    // An entry of icmbFolder, which lists the folders from the root down to the current one.
    struct FolderEntry {
        std::string key, name;
        NodeIcon icon = NodeIcon::None;
    };

    // Initially shows all recipes to delete, the root folder to save, and the folder of fields to open, or
    // all recipes if that folder no longer exists. REQUIRES: the objects of access outlive the dialog.
    OpenSaveModel(Style style, const ObjectAccess& access, const OpenSaveFields& fields);

    // Sets the initial name and folder for saving: the root folder if there is no such folder, as for a
    // recipe that was never saved, whose folderId is negative.
    void SetRecipe(std::string_view name, std::int64_t folderId);

    Style Action() const { return style_; }
    // Returns "Open Recipe"; "Save '{name}' As..." for a named recipe, else "Save Recipe"; or
    // "Delete Recipe".
    std::string Caption() const;
    // Returns "&Open", "&Save" or "&Delete".
    std::string OkCaption() const;

    // The accepted name, trimmed; empty if cancelled.
    const std::string& BeerName() const { return beerName_; }
    // The id of the current folder; negative if it is not a folder in which recipes are stored.
    std::int64_t FolderID() const;
    const std::string& NodeKey() const { return list_.Key(); }
    OpenSaveFields Fields() const { return {NodeKey(), look_}; }

    // The displayed state.
    NodeList& List() { return list_; }
    const ListLook& Look() const { return look_; }
    void SetLook(const ListLook& look);
    std::vector<FolderEntry> Folders() const;
    const std::string& NameText() const { return text_; }
    using FormModel::IsEnabled;
    bool IsEnabled(PopupCommand command) const { return IsEnabled(NameOf(command)); }

    // The brewer's actions.

    // Runs the menu item. Does nothing while it is disabled; false if the item belongs to another window.
    bool Run(PopupChoice choice) { return Press(NameOf(choice)); }
    // Enters a folder that the dialog can show, and remembers the present one for cmdBack. False for any
    // other key.
    bool EnterFolder(std::string_view key);
    // A row has been selected: copies a recipe's name to the name box.
    void RowChosen();
    // Double-clicks the selected row, or presses Enter on it: enters a folder, or accepts a recipe as
    // cmdOK does.
    void OpenRow();
    // Limits the list to the recipes that contain the words; a text without a word shows the folder again.
    void Find(std::string_view text) { list_.Find(text); }
    // Renames the row being edited. False if the name was refused, after a message.
    bool RenameRow(std::string_view newName);
    // True if these rows may be dropped on that row.
    bool CanDrop(const std::vector<std::string>& keys, std::string_view targetKey) const;
    // Moves the rows, in order, until a move is refused; moved rows are removed from the list.
    void Drop(const std::vector<std::string>& keys, std::string_view targetKey);
    void CloseBox() override;

  private:
    void DeclareControls();
    void DeclareButtons();
    std::string FolderName() const;
    bool ChooseFolder(std::string_view text);
    bool EnterFolderId(std::string_view text);
    bool ChooseRow(std::string_view name);
    bool TypeName(std::string_view name);
    bool EnterLabel(std::string_view newName);
    bool HasFolder(std::string_view key) const;
    void GoTo(std::string_view key);
    void GoBack();
    bool CanGoUp() const;
    void GoUp();
    bool ShowsIcons() const;
    void NewFolder();
    void Ok();
    void AcceptName();
    bool AcceptsToOpen(const std::string& name);
    bool AcceptsToSave(const std::string& name);

    Style style_;
    ObjectAccess access_;
    ListLook look_;
    NodeList list_;
    std::vector<std::string> history_;  // folders for cmdBack, the latest last
    std::string text_;                  // txtName
    std::string recipe_;                // the name of the recipe being saved
    std::string beerName_;
    bool nameTouched_ = false;  // edited since a row was selected
};

}  // namespace tw
