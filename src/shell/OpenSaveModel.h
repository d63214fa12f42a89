// The open and save dialog (frmOpenSave) in its three styles: the recipe folders take the place of
// directories.
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
    std::string nodeKey{kRecipeFoldersKey};  // of the folder shown last
    ListLook look;
};

// icmbFolder shows the name of the current folder and takes a folder's key, or the name of one that it lists;
// lvNames shows and takes the name of the chosen row; txtName; FolderID, which shows only when the dialog
// saves, takes the id of a recipe folder, -1 for all recipes; txtFind takes what to look for; txtLabel takes
// the new name of the row that is being edited, which ends the edit. The buttons, and the items of the menu
// by their control names; cmdOK stays open for what it refuses.
class OpenSaveModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmOpenSave";

    enum class Style : int { Open, Save, Delete };

    // An entry of icmbFolder: the folders from the root down to the current one.
    struct FolderEntry {
        std::string key, name;
        NodeIcon icon = NodeIcon::None;
    };

    // Starts in the folder of the fields when it opens, in all recipes when it deletes, in the root folder
    // when it saves; a folder that is no longer there gives way to all recipes, or to the root folder when it
    // saves. REQUIRES: what access names lives for as long.
    OpenSaveModel(Style style, const ObjectAccess& access, const OpenSaveFields& fields);

    // What the dialog starts with when it saves: the name in the box and the folder; the root folder for a
    // recipe that was never saved, which has a negative id.
    void SetRecipe(std::string_view name, std::int64_t folderId);

    Style Action() const { return style_; }
    // "Open Recipe"; "Save '{name}' As..." for a named recipe, else "Save Recipe"; "Delete Recipe".
    std::string Caption() const;
    // "&Open", "&Save" or "&Delete".
    std::string OkCaption() const;

    // The accepted name, trimmed; empty when cancelled.
    const std::string& BeerName() const { return beerName_; }
    // Of the current folder; negative for one that holds no recipe of its own.
    std::int64_t FolderID() const;
    const std::string& NodeKey() const { return list_.Key(); }
    OpenSaveFields Fields() const { return {NodeKey(), look_}; }

    // What the window shows.
    NodeList& List() { return list_; }
    const ListLook& Look() const { return look_; }
    std::vector<FolderEntry> Folders() const;
    const std::string& NameText() const { return text_; }
    using FormModel::IsEnabled;
    bool IsEnabled(PopupCommand command) const { return IsEnabled(NameOf(command)); }

    // What the brewer does.

    // Does what the item of the menu does; nothing while it is disabled. False for one of another window.
    bool Run(PopupChoice choice) { return Press(NameOf(choice)); }
    // Enters a folder that the dialog shows; the way back leads here. False for any other key.
    bool EnterFolder(std::string_view key);
    // A row has been chosen: a recipe's name goes into the box.
    void RowChosen();
    // A double click on the chosen row, or Enter: enters a folder, takes a recipe and runs cmdOK.
    void OpenRow();
    // Narrows the list to the recipes that hold the words, a text without a word shows the folder again.
    void Find(std::string_view text) { list_.Find(text); }
    // The name that was typed over a row. False when it was refused, which has been told.
    bool RenameRow(std::string_view newName);
    // Whether these rows may be dropped on that row.
    bool CanDrop(const std::vector<std::string>& keys, std::string_view targetKey) const;
    // Moves them, in their order, until one is refused; those moved leave the list.
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
    std::vector<std::string> history_;  // folders left, the last one last
    std::string text_;                  // txtName
    std::string recipe_;                // name of the recipe that is being saved
    std::string beerName_;
    bool nameTouched_ = false;  // typed in since a row was chosen
};

}  // namespace tw
