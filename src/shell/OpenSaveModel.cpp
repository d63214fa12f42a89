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

}  // namespace

OpenSaveModel::OpenSaveModel(Style style, const ObjectAccess& access, const OpenSaveFields& fields)
    : FormModel(kFormName), style_(style), access_(access), look_(fields.look), list_(access, look_, false) {
    if (style == Style::Save) list_.OmitAdvice();
    DeclareControls();
    DeclareButtons();
    const std::string_view first = style == Style::Save ? kRecipeFoldersKey : kAllRecipesKey;
    GoTo(style == Style::Open && HasFolder(fields.nodeKey) ? std::string_view(fields.nodeKey) : first);
}

void OpenSaveModel::DeclareControls() {
    AddControls({
        {"icmbFolder", [this] { return FolderName(); },
         [this](std::string_view text) { return ChooseFolder(text); }},
        {"lvNames", [this] { return list_.Rows().SelectedText(); },
         [this](std::string_view name) { return ChooseRow(name); }},
        {"txtName", [this] { return text_; }, [this](std::string_view name) { return TypeName(name); }},
    });
    FormControl folderId{"FolderID", [this] { return std::to_string(FolderID()); },
                         [this](std::string_view id) { return EnterFolderId(id); }};
    if (style_ != Style::Save) folderId.show = {};
    AddControls({
        std::move(folderId),
        {"txtFind",
         {},
         [this](std::string_view text) {
             Find(text);
             return true;
         }},
        {"txtLabel", {}, [this](std::string_view name) { return EnterLabel(name); }},
    });
}

void OpenSaveModel::DeclareButtons() {
    // A save while the dialog was open may have given rows new keys.
    const auto run = [this](auto command) {
        return [this, command] {
            list_.FollowSaves();
            command();
        };
    };
    const auto newFolder = run([this] { NewFolder(); });
    const auto canAddFolder = [this] { return CanHoldFolders(NodeKey()); };
    AddButtons({
        {"cmdOK", [this] { Ok(); }},
        {"cmdCancel", [this] { CloseBox(); }},
        {"cmdBack", run([this] { GoBack(); }), [this] { return !history_.empty(); }},
        {"cmdUp", run([this] { GoUp(); }), [this] { return CanGoUp(); }},
        {"cmdNewFolder", newFolder, canAddFolder},
        {"cmdList", [this] { Run(PopupCommand::List); }},
        {"cmdDetails", [this] { Run(PopupCommand::Details); }},
        {NameOf(PopupCommand::NewFolder), newFolder, canAddFolder},
        {NameOf(PopupCommand::Rename), run([this] { list_.BeginEdit(list_.Rows().Selected()); }),
         [this] { return list_.CanRename(list_.Rows().Selected()); }},
        {NameOf(PopupCommand::LineUp), run([this] { list_.Sort(); }), [this] { return ShowsIcons(); }},
    });
    AddButtons(LookButtons(look_, [this] { list_.Sort(); }));
}

void OpenSaveModel::SetRecipe(std::string_view name, std::int64_t folderId) {
    text_ = name;
    recipe_ = Trim(name);
    const std::string key = RecipeFolderKey(folderId);
    GoTo(folderId >= 0 && HasFolder(key) ? std::string_view(key) : kRecipeFoldersKey);
}

void OpenSaveModel::SetLook(const ListLook& look) {
    look_ = look;
    list_.Sort();
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
    return IsRecipeFolderKey(NodeKey()) ? IdOfKey(NodeKey()) : -1;
}

bool OpenSaveModel::HasFolder(std::string_view key) const {
    return (IsRecipeFolderKey(key) || key == kDatabaseKey) && access_.tree.NodeExists(key);
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
        // The folder may have been deleted since.
        if (HasFolder(key)) return GoTo(key);
    }
}

bool OpenSaveModel::CanGoUp() const {
    const TWNode* const node = access_.tree.Nodes(NodeKey());
    return node && node->Parent();
}

void OpenSaveModel::GoUp() {
    if (CanGoUp()) EnterFolder(access_.tree.Nodes(NodeKey())->Parent()->Key());
}

std::string OpenSaveModel::FolderName() const {
    const TWNode* const folder = access_.tree.Nodes(NodeKey());
    return folder ? std::string(folder->Name()) : std::string();
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

bool OpenSaveModel::ShowsIcons() const {
    return look_.viewType == ListViewType::LargeIcons || look_.viewType == ListViewType::SmallIcons;
}

void OpenSaveModel::RowChosen() {
    nameTouched_ = false;
    if (IsRecipeKey(list_.SelectedKey())) text_ = list_.Rows().SelectedText();
}

void OpenSaveModel::OpenRow() {
    const std::string key = list_.SelectedKey();
    if (key.empty() || EnterFolder(key)) return;
    RowChosen();
    AcceptName();
}

void OpenSaveModel::NewFolder() {
    const std::string key = access_.objects.CreateFolderObject(NodeKey(), "");
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
    return IsRecipeFolderKey(targetKey) && !keys.empty() &&
           std::ranges::all_of(keys, [&](const std::string& key) { return CanDropOn(key, targetKey); });
}

void OpenSaveModel::Drop(const std::vector<std::string>& keys, std::string_view targetKey) {
    const std::string target(targetKey);
    if (!CanDrop(keys, target)) return;
    for (const std::string& key : keys) {
        if (!access_.objects.MoveObject(key, target)) return;
        list_.Remove(key);
    }
}

void OpenSaveModel::AcceptName() {
    const std::string name(Trim(text_));
    if (style_ == Style::Save ? !AcceptsToSave(name) : !AcceptsToOpen(name)) return;
    beerName_ = name;
    Accept();
}

bool OpenSaveModel::AcceptsToOpen(const std::string& name) {
    MessagePort& messages = access_.platform.messages;
    if (!RecipeExists(access_.database, name)) {
        messages.ShowMessage("Recipe not found", "No recipe named '" + name + "' exists.");
        return false;
    }
    // The missing word is part of the wording, on which scripts rely.
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

bool OpenSaveModel::ChooseFolder(std::string_view text) {
    for (const FolderEntry& folder : Folders())
        if (SameName(folder.name, text)) return EnterFolder(folder.key);
    return EnterFolder(text);
}

bool OpenSaveModel::EnterFolderId(std::string_view text) {
    std::int64_t id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && EnterFolder(RecipeFolderKey(id));
}

bool OpenSaveModel::ChooseRow(std::string_view name) {
    if (!list_.ChooseByText(name)) return false;
    RowChosen();
    return true;
}

bool OpenSaveModel::TypeName(std::string_view name) {
    text_ = name;
    nameTouched_ = true;
    return true;
}

bool OpenSaveModel::EnterLabel(std::string_view newName) {
    if (list_.EditedRow() == ListTable::kNoRow) return false;
    RenameRow(newName);
    return true;
}

void OpenSaveModel::Ok() {
    // A selected folder is entered, unless a name has been typed since.
    const std::string key = list_.SelectedKey();
    if (nameTouched_ || !EnterFolder(key)) AcceptName();
}

void OpenSaveModel::CloseBox() {
    beerName_.clear();
    Close();
}

}  // namespace tw
