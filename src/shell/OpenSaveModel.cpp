#include "shell/OpenSaveModel.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "store/RecipeRows.h"
#include "tree/NodeKey.h"
#include "tree/TWNodes.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::array<std::string_view, 3> kOkCaptions = {"&Open", "&Save", "&Delete"};

bool IsFolderKey(std::string_view key) {
    return key.starts_with("F:");
}

// The command of a button or of a menu item.
std::optional<PopupChoice> CommandOf(std::string_view control) {
    if (control == "cmdNewFolder") return PopupCommand::NewFolder;
    if (control == "cmdList") return PopupCommand::List;
    if (control == "cmdDetails") return PopupCommand::Details;
    return FindListCommand(control);
}

}  // namespace

OpenSaveModel::OpenSaveModel(Style style, const ObjectAccess& access, const OpenSaveFields& fields)
    : style_(style), access_(access), look_(fields.look), list_(access, look_, false) {
    const std::string_view first = style == Style::Save ? kRecipeFoldersKey : kAllRecipesKey;
    GoTo(style == Style::Open && HasFolder(fields.nodeKey) ? std::string_view(fields.nodeKey) : first);
}

void OpenSaveModel::SetRecipe(std::string_view name, std::int64_t folderId) {
    text_ = name;
    recipe_ = Trim(name);
    const std::string key = "F:" + std::to_string(folderId);
    GoTo(folderId >= 0 && HasFolder(key) ? std::string_view(key) : kRecipeFoldersKey);
}

std::string OpenSaveModel::Caption() const {
    if (style_ == Style::Open) return "Open Recipe";
    if (style_ == Style::Delete) return "Delete Recipe";
    return recipe_.empty() ? "Save Recipe" : "Save '" + recipe_ + "' As...";
}

std::string OpenSaveModel::OkCaption() const {
    return std::string(kOkCaptions[static_cast<std::size_t>(style_)]);
}

std::int64_t OpenSaveModel::FolderID() const {
    return IsFolderKey(NodeKey()) ? IdOfKey(NodeKey()) : -1;
}

bool OpenSaveModel::HasFolder(std::string_view key) const {
    return (IsFolderKey(key) || key == kDatabaseKey) && access_.tree.NodeExists(key);
}

void OpenSaveModel::GoTo(std::string_view key) {
    list_.Show(std::string(key), false);
}

bool OpenSaveModel::EnterFolder(std::string_view key) {
    if (!HasFolder(key)) return false;
    if (key != NodeKey()) history_.push_back(NodeKey());
    GoTo(key);
    return true;
}

void OpenSaveModel::GoBack() {
    while (!history_.empty()) {
        const std::string key = history_.back();
        history_.pop_back();
        // It may have gone meanwhile.
        if (HasFolder(key)) return GoTo(key);
    }
}

void OpenSaveModel::GoUp() {
    const TWNode* const node = access_.tree.Nodes(NodeKey());
    if (node && node->Parent()) EnterFolder(node->Parent()->Key());
}

std::vector<OpenSaveModel::FolderEntry> OpenSaveModel::Folders() const {
    std::vector<FolderEntry> folders;
    for (const TWNode* node = access_.tree.Nodes(NodeKey()); node; node = node->Parent()) {
        const std::string_view icon = folders.empty() ? node->IconOpen() : node->IconClosed();
        folders.push_back({node->Key(), std::string(node->Name()), IconOf(icon)});
    }
    std::ranges::reverse(folders);
    return folders;
}

bool OpenSaveModel::IsEnabled(std::string_view control) const {
    if (control == "cmdBack") return !history_.empty();
    if (control == "cmdUp") {
        const TWNode* const node = access_.tree.Nodes(NodeKey());
        return node && node->Parent();
    }
    const std::optional<PopupChoice> choice = CommandOf(control);
    return !choice || IsEnabled(choice->command);
}

bool OpenSaveModel::IsEnabled(PopupCommand command) const {
    switch (command) {
        case PopupCommand::NewFolder:
            return CanHoldFolders(NodeKey());
        case PopupCommand::Rename:
            return list_.CanRename(list_.Rows().Selected());
        case PopupCommand::LineUp:
            return look_.viewType == ListViewType::LargeIcons || look_.viewType == ListViewType::SmallIcons;
        default:
            return true;
    }
}

void OpenSaveModel::RowChosen() {
    nameTouched_ = false;
    if (list_.SelectedKey().starts_with("R:")) text_ = list_.Rows().SelectedText();
}

void OpenSaveModel::OpenRow() {
    const std::string key = list_.SelectedKey();
    if (key.empty() || EnterFolder(key)) return;
    RowChosen();
    AcceptName();
}

void OpenSaveModel::NewFolder() {
    const std::string key = access_.objects.CreateFolderObject(NodeKey(), "", false);
    if (key.empty()) return;
    list_.AddFolder(key);
    RowChosen();
}

bool OpenSaveModel::RenameRow(std::string_view newName) {
    const bool renamed = list_.EndEdit(newName);
    if (renamed && !nameTouched_) RowChosen();
    return renamed;
}

bool OpenSaveModel::CanDrop(const std::vector<std::string>& keys, std::string_view targetKey) const {
    return IsFolderKey(targetKey) && !keys.empty() &&
           std::ranges::all_of(keys, [&](const std::string& key) { return CanDropOn(key, targetKey); });
}

void OpenSaveModel::Drop(const std::vector<std::string>& keys, std::string_view targetKey) {
    const std::string target(targetKey);
    if (!CanDrop(keys, target)) return;
    for (const std::string& key : keys) {
        if (!access_.objects.MoveObject(key, target, false)) return;
        list_.Remove(key);
    }
}

void OpenSaveModel::AcceptName() {
    const std::string name(Trim(text_));
    if (style_ == Style::Save ? !AcceptsToSave(name) : !AcceptsToOpen(name)) return;
    beerName_ = name;
    cancelled_ = false;
    open_ = false;
}

bool OpenSaveModel::AcceptsToOpen(const std::string& name) {
    MessagePort& messages = access_.platform.messages;
    if (!RecipeExists(access_.database, name)) {
        messages.ShowMessage("Recipe not found", "No recipe named '" + name + "' exists.");
        return false;
    }
    // The wording is intended.
    return style_ == Style::Open ||
           messages.Ask("Confirm Delete", "Are you sure want to delete the recipe '" + name + "'?",
                        Question::YesNo) == Answer::Yes;
}

bool OpenSaveModel::AcceptsToSave(const std::string& name) {
    MessagePort& messages = access_.platform.messages;
    if (FolderID() < 0) {
        messages.ShowMessage("Select Recipe Folder", "Please select a folder for this recipe.");
        return false;
    }
    if (name.empty()) {
        messages.Beep();
        return false;
    }
    return !RecipeExists(access_.database, name) ||
           messages.Ask("Overwrite existing recipe?",
                        "A recipe named '" + name + "' already exists.\r\nOverwrite it?",
                        Question::YesNo) == Answer::Yes;
}

std::vector<DialogControl> OpenSaveModel::Controls() const {
    const TWNode* const folder = access_.tree.Nodes(NodeKey());
    std::vector<DialogControl> controls{{"icmbFolder", folder ? std::string(folder->Name()) : std::string()},
                                        {"lvNames", list_.Rows().SelectedText()},
                                        {"txtName", text_}};
    if (style_ == Style::Save) controls.push_back({"FolderID", std::to_string(FolderID())});
    return controls;
}

bool OpenSaveModel::SetControl(std::string_view name, std::string_view text) {
    if (name == "txtName") {
        text_ = text;
        nameTouched_ = true;
        return true;
    }
    if (name == "lvNames") {
        if (!list_.ChooseByText(text)) return false;
        RowChosen();
        return true;
    }
    if (name == "icmbFolder") {
        for (const FolderEntry& folder : Folders())
            if (SameName(folder.name, text)) return EnterFolder(folder.key);
        return EnterFolder(text);
    }
    if (name == "FolderID") {
        std::int64_t id = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
        const bool isNumber = error == std::errc() && end == text.data() + text.size();
        return isNumber && EnterFolder("F:" + std::to_string(id));
    }
    if (name == "txtFind") {
        Find(text);
        return true;
    }
    if (name != "txtLabel" || list_.EditedRow() == ListTable::kNoRow) return false;
    RenameRow(text);
    return true;
}

bool OpenSaveModel::Run(PopupChoice choice) {
    if (!IsEnabled(choice.command)) return true;
    if (TakeLookCommand(look_, choice)) {
        list_.Sort();
        return true;
    }
    list_.FollowSaves();
    switch (choice.command) {
        case PopupCommand::NewFolder:
            NewFolder();
            return true;
        case PopupCommand::Rename:
            list_.BeginEdit(list_.Rows().Selected());
            return true;
        case PopupCommand::LineUp:
            list_.Sort();
            return true;
        default:
            return false;
    }
}

bool OpenSaveModel::Press(std::string_view button) {
    if (button == "cmdCancel") {
        CloseBox();
        return true;
    }
    if (button == "cmdOK") {
        // A folder that was chosen without a name being typed is entered.
        const std::string key = list_.SelectedKey();
        if (nameTouched_ || !EnterFolder(key)) AcceptName();
        return true;
    }
    if (const std::optional<PopupChoice> choice = CommandOf(button)) return Run(*choice);
    if (button != "cmdBack" && button != "cmdUp") return false;
    if (!IsEnabled(button)) return true;
    list_.FollowSaves();
    button == "cmdBack" ? GoBack() : GoUp();
    return true;
}

void OpenSaveModel::CloseBox() {
    beerName_.clear();
    open_ = false;
}

}  // namespace tw
