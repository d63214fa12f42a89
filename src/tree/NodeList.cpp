#include "tree/NodeList.h"

#include <algorithm>

#include "tree/NodeKey.h"
#include "tree/lvFiller.h"
#include "values/Split.h"
#include "values/Text.h"

namespace tw {

std::string KeyNow(const ObjectAccess& access, const std::string& key, std::string_view name) {
    if (!IsRecipeKey(key) || access.tree.NodeExists(key)) return key;
    const std::int64_t id = access.objects.IdByName(name, "RECIPES");
    const int copy = NodeKey(key).Copy();
    return id == 0 || copy < 0 ? key : RecipeKey(id, copy);
}

NodeList::NodeList(const ObjectAccess& access, const ListLook& look, bool showStyles)
    : access_(access),
      look_(look),
      showStyles_(showStyles),
      filler_(std::make_unique<lvFiller>(access.database, access.tree)),
      finder_(access.database) {
    lvFiller::SetUpWindowColumns(rows_, false);
}

NodeList::~NodeList() = default;

void NodeList::Show(std::string_view key, bool force) {
    if (key == key_ && !force && !IsFinding()) return;
    key_ = key;
    if (IsFinding()) lvFiller::SetUpWindowColumns(rows_, false);
    findText_.clear();
    CancelEdit();
    filler_->FillByKey(rows_, key_, showStyles_);
    Sort();
}

void NodeList::Find(std::string_view text) {
    const std::string wanted(Trim(text));
    if (wanted == findText_) return;
    if (wanted.empty()) return Show(key_, true);
    if (!IsFinding()) lvFiller::SetUpWindowColumns(rows_, true);
    findText_ = wanted;
    CancelEdit();
    FillFound();
}

void NodeList::FillFound() {
    std::vector<TWNode*> nodes;
    for (const FoundRecipe& found : finder_.Find(findText_))
        if (TWNode* const node = access_.tree.Nodes(RecipeKey(found.id, 0))) nodes.push_back(node);
    ListTable found;
    lvFiller::SetUpWindowColumns(found, true);
    filler_->FillNodes(found, nodes);
    std::vector<ListRow> rows = found.Rows();
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].cells[lvFiller::kFolderColumn] = rows[i].origin = FolderOf(*nodes[i]);
    rows_.SetRows(std::move(rows));
    Sort();
}

std::string NodeList::FolderOf(const TWNode& recipe) const {
    const TWNode* const copy = access_.tree.Nodes(RecipeKey(IdOfKey(recipe.Key()), kCopyInFolder));
    std::string path;
    // Stops before the database, which is above the root folder and would say nothing.
    for (const TWNode* above = copy ? copy->Parent() : nullptr; above && above->Parent();
         above = above->Parent())
        path.insert(0, std::string(above->Name()).append(path.empty() ? "" : " / "));
    return path;
}

void NodeList::Refill() {
    FollowSaves();
    const std::vector<std::string> chosen = ChosenKeys();
    const std::string selected = SelectedKey();
    if (IsFinding())
        FillFound();
    else
        Show(std::string(key_), true);
    std::vector<int> rows;
    rows.reserve(chosen.size());
    for (const std::string& key : chosen) rows.push_back(rows_.FindKey(key));
    rows_.Choose(std::move(rows), rows_.FindKey(selected));
}

void NodeList::Sort() {
    const int columns = static_cast<int>(rows_.Columns().size());
    if (look_.arrangeKey >= 0 && look_.arrangeKey < columns) rows_.Sort(look_.arrangeKey, look_.descending);
}

void NodeList::FollowSaves() {
    for (int row = 0; row < rows_.Count(); ++row) {
        const std::string key = rows_.Row(row).key;
        std::string now = KeyNow(access_, key, rows_.Row(row).cells.front());
        if (now == key) continue;
        if (editedKey_ == key) editedKey_ = now;
        rows_.SetKey(row, std::move(now));
    }
}

std::vector<std::string> NodeList::ChosenKeys() const {
    std::vector<std::string> keys;
    for (const int row : rows_.Chosen()) keys.push_back(rows_.Row(row).key);
    return keys;
}

std::string NodeList::SelectedKey() const {
    return rows_.Selected() == ListTable::kNoRow ? std::string() : rows_.Row(rows_.Selected()).key;
}

bool NodeList::ChooseKey(std::string_view key) {
    return rows_.Select(rows_.FindKey(key));
}

bool NodeList::ChooseByText(std::string_view lines) {
    std::vector<int> rows;
    for (const std::string_view part : Split(lines, '\n')) {
        const std::string_view line = Trim(part);
        const auto found = std::ranges::find_if(rows_.Rows(), [&](const ListRow& row) {
            return row.key == line || SameName(row.cells.front(), line);
        });
        if (found == rows_.Rows().end()) return false;
        rows.push_back(static_cast<int>(found - rows_.Rows().begin()));
    }
    rows_.Choose(rows, rows.back());
    return true;
}

void NodeList::AddFolder(std::string_view key) {
    if (IsFinding()) Show(std::string(key_), true);
    if (rows_.FindKey(key) == ListTable::kNoRow)
        if (TWNode* const node = access_.tree.Nodes(key)) filler_->AddFolderRow(rows_, *node);
    const int row = rows_.FindKey(key);
    rows_.Select(row);
    BeginEdit(row);
}

void NodeList::Remove(std::string_view key) {
    const int row = rows_.FindKey(key);
    if (row != ListTable::kNoRow) rows_.Remove(row);
}

bool NodeList::CanRename(int row) const {
    return row >= 0 && row < rows_.Count() && CanRenameNode(rows_.Row(row).key);
}

bool NodeList::BeginEdit(int row) {
    if (!CanRename(row)) return false;
    editedKey_ = rows_.Row(row).key;
    return true;
}

int NodeList::EditedRow() const {
    return editedKey_.empty() ? ListTable::kNoRow : rows_.FindKey(editedKey_);
}

bool NodeList::EndEdit(std::string_view newName) {
    FollowSaves();
    const int row = EditedRow();
    const std::string key = editedKey_;
    CancelEdit();
    if (row == ListTable::kNoRow) return false;
    if (newName == rows_.Row(row).cells.front()) return true;
    if (!access_.objects.RenameObject(key, newName)) return false;
    // The list may have changed meanwhile: after an error the tree is read again, and a message box
    // processes events.
    const int place = rows_.FindKey(key);
    if (place != ListTable::kNoRow) rows_.SetCell(place, 0, newName);
    return true;
}

std::string NodeList::Hint() const {
    if (rows_.Count() > 0) return {};
    if (IsFinding()) return "No recipe holds \"" + findText_ + "\".";
    const TWNode* const all = access_.tree.Nodes(kAllRecipesKey);
    const bool anyRecipe = all && all->HasChildren();
    if (!showStyles_ && !anyRecipe && advises_)
        return "There is no recipe yet. Ctrl+N in the main window starts your first one; once it is saved, "
               "it stands here.";
    if (!IsStyleKey(key_)) return "This folder is empty.";
    return IdOfKey(key_) == 0 ? "There is no recipe without a style." : "No recipe has this style yet.";
}

std::string NodeList::FoundText() const {
    if (!IsFinding()) return {};
    const int found = rows_.Count();
    const std::string recipes = found == 0   ? "No recipe in any folder contains"
                                : found == 1 ? "1 recipe in all folders contains"
                                             : std::to_string(found) + " recipes in all folders contain";
    return recipes + " \"" + findText_ + "\"";
}

bool TakeLookCommand(ListLook& look, PopupChoice choice) {
    if (choice.command == PopupCommand::ArrangeBy) {
        look.descending = look.arrangeKey == choice.column && !look.descending;
        look.arrangeKey = choice.column;
        return true;
    }
    const int view = static_cast<int>(choice.command) - static_cast<int>(PopupCommand::LargeIcons);
    if (view < 0 || view > static_cast<int>(ListViewType::Details)) return false;
    look.viewType = static_cast<ListViewType>(view);
    return true;
}

std::vector<FormButton> LookButtons(ListLook& look, const std::function<void()>& changed) {
    std::vector<PopupChoice> choices = {PopupCommand::LargeIcons, PopupCommand::SmallIcons,
                                        PopupCommand::List, PopupCommand::Details};
    for (int column = 0; column < lvFiller::kWindowColumns; ++column)
        choices.emplace_back(PopupCommand::ArrangeBy, column);
    std::vector<FormButton> buttons;
    buttons.reserve(choices.size());
    for (const PopupChoice choice : choices)
        buttons.push_back({NameOf(choice), [&look, changed, choice] {
                               TakeLookCommand(look, choice);
                               changed();
                           }});
    return buttons;
}

}  // namespace tw
