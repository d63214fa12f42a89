#include "tree/RecipeChooser.h"

#include <algorithm>
#include <unordered_set>

#include "platform/Error.h"
#include "tree/TWNodes.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr int kSubscriptOutOfRange = 9;

// Returns the node's name if it is a recipe, else those of all recipes below it, in the order of the tree.
std::vector<std::string> RecipesOf(TWNode& top) {
    std::vector<std::string> names;
    std::vector<TWNode*> open = {&top};
    while (!open.empty()) {
        TWNode* const node = open.back();
        open.pop_back();
        if (node->IsDocument()) names.emplace_back(node->Name());
        if (!node->HasChildren()) continue;
        for (std::size_t i = node->Children().Count(); i-- > 0;) open.push_back(&node->Children().Item(i));
    }
    return names;
}

bool HoldsRecipe(TWNode& top) {
    std::vector<TWNode*> open = {&top};
    while (!open.empty()) {
        TWNode* const node = open.back();
        open.pop_back();
        if (node->IsDocument()) return true;
        if (!node->HasChildren()) continue;
        for (const auto& child : node->Children()) open.push_back(child.get());
    }
    return false;
}

}  // namespace

RecipeChooser::RecipeChooser() {
    const auto canRise = [this] { return current_ > 0 && !sorted_; };
    const auto canSink = [this] { return current_ != kNone && current_ < SelectionCount() - 1 && !sorted_; };
    const auto sort = [this](bool descending) {
        Sort(descending);
        TellChanged();
    };
    buttons_.Add({
        {"cmdAdd", [this] { Add(items_.SelectedKey()); }, [this] { return CanAdd(); }},
        {"cmdDel", [this] { Delete(); }, [this] { return current_ != kNone; }},
        {"cmdUp", [this] { MoveTo(current_ - 1); }, canRise},
        {"cmdDown", [this] { MoveTo(current_ + 1); }, canSink},
        {"cmdTop", [this] { MoveTo(0); }, canRise},
        {"cmdBottom", [this] { MoveTo(SelectionCount() - 1); }, canSink},
        {NameOf(PopupCommand::SortAscending), [sort] { sort(false); },
         [this] { return SelectionCount() > 1; }},
        {NameOf(PopupCommand::SortDescending), [sort] { sort(true); },
         [this] { return SelectionCount() > 1 && !sorted_; }},
    });
}

void RecipeChooser::TellChanged() {
    if (observer_) observer_->RecipeChooserChanged();
}

void RecipeChooser::Initialize() {
    if (tree_ == nullptr && database_ != nullptr) {
        ownTree_ = std::make_unique<TWTree>();
        ownTree_->InitFromDatabase(*database_);
        tree_ = ownTree_.get();
    }
    items_.Fill([this](TreeView& view) {
        if (tree_) tree_->PopulateTreeViewForRecipeTree(view);
    });
    SetRootName(rootName_);
    for (const std::string_view key : {kDatabaseKey, kRecipeFoldersKey}) {
        const int item = items_.Find(key);
        if (item != TreeItems::kNone) items_.Expand(item);
    }
    TellChanged();
}

bool RecipeChooser::OpenTreeTo(std::string_view name) {
    Database* const database = tree_ && tree_->SourceDatabase() ? tree_->SourceDatabase() : database_;
    if (database == nullptr) return false;
    const Recordset recipe =
        database->OpenRecordset("SELECT NAME, ID FROM RECIPES WHERE UCASE(NAME) = ?", {Upper(Trim(name))});
    if (recipe.AtEnd()) return false;
    const std::optional<std::int64_t> id = recipe.Fields("ID").WholeNumber();
    return id && (items_.SelectKey(RecipeKey(*id, kCopyInFolder)) || items_.SelectKey(RecipeKey(*id, 0)));
}

void RecipeChooser::SetRootName(std::string_view name) {
    rootName_ = std::string(name);
    const int root = items_.Find(kDatabaseKey);
    if (root == TreeItems::kNone) return;
    const TWNode* const node = tree_ ? tree_->Nodes(kDatabaseKey) : nullptr;
    items_.SetText(root, !rootName_.empty() || node == nullptr ? std::string_view(rootName_) : node->Name());
}

void RecipeChooser::SetAction(std::string_view action) {
    action_ = action;
    TellChanged();
}

void RecipeChooser::SetSorted(bool sorted) {
    sorted_ = sorted;
    if (sorted_) Sort(false);
    TellChanged();
}

const std::string& RecipeChooser::Item(int index) const {
    if (index < 0 || index >= SelectionCount())
        throw Error("RecipeChooser.Item", "Subscript out of range", kSubscriptOutOfRange);
    return names_[static_cast<std::size_t>(index)];
}

void RecipeChooser::SetCurrent(int index) {
    if (index < kNone || index >= SelectionCount() || index == current_) return;
    current_ = index;
    TellChanged();
}

bool RecipeChooser::Add(std::string_view key) {
    TWNode* const node = tree_ ? tree_->Nodes(key) : nullptr;
    if (node == nullptr) return false;
    const int before = SelectionCount();
    std::unordered_set<std::string> taken;
    for (const std::string& name : names_) taken.insert(Upper(Trim(name)));
    for (std::string& name : RecipesOf(*node))
        if (taken.insert(Upper(Trim(name))).second) names_.push_back(std::move(name));
    if (SelectionCount() == before) return false;
    current_ = SelectionCount() - 1;
    if (sorted_) Sort(false);
    TellChanged();
    return true;
}

bool RecipeChooser::CanAdd() const {
    TWNode* const node = tree_ ? tree_->Nodes(items_.SelectedKey()) : nullptr;
    return node != nullptr && HoldsRecipe(*node);
}

// The next line becomes the selected one.
void RecipeChooser::Delete() {
    names_.erase(names_.begin() + current_);
    current_ = std::min(current_, SelectionCount() - 1);
    TellChanged();
}

void RecipeChooser::MoveTo(int index) {
    const auto from = names_.begin() + current_, to = names_.begin() + index;
    if (from < to)
        std::rotate(from, from + 1, to + 1);
    else
        std::rotate(to, from, from + 1);
    current_ = index;
    TellChanged();
}

void RecipeChooser::Sort(bool descending) {
    const std::string chosen = current_ == kNone ? std::string() : Item(current_);
    std::ranges::stable_sort(names_, [&](const std::string& a, const std::string& b) {
        const int order = CompareNoCase(a, b);
        return descending ? order > 0 : order < 0;
    });
    if (current_ != kNone) current_ = static_cast<int>(std::ranges::find(names_, chosen) - names_.begin());
}

}  // namespace tw
