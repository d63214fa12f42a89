#include "tree/ExplorerModel.h"

#include <algorithm>

#include "store/CatalogueNames.h"
#include "tree/NodeKey.h"
#include "tree/ProgressModel.h"
#include "tree/TWNodes.h"
#include "values/Text.h"

namespace tw {
namespace {

// Shows only the branch of the styles.
class StyleBranch final : public TreeView {
  public:
    explicit StyleBranch(TreeView& view) : view_(view) {}

    void Clear() override { view_.Clear(); }
    TreeViewItem Add(TreeViewItem parent, const std::string& key, std::string_view text,
                     std::string_view image, std::string_view selectedImage) override {
        const bool above = parent == TreeViewItem::Top || parent == kLeftOut;
        if (above && key != kByStyleKey) return kLeftOut;
        return view_.Add(above ? TreeViewItem::Top : parent, key, text, image, selectedImage);
    }

  private:
    static constexpr TreeViewItem kLeftOut = static_cast<TreeViewItem>(UINTPTR_MAX);
    TreeView& view_;
};

std::string_view RootOf(bool styles) {
    return styles ? kStyleFoldersKey : kRecipeFoldersKey;
}

bool IsFolder(std::string_view key) {
    return IsRecipeFolderKey(key) || IsStyleFolderKey(key) || IsGroupKey(key);
}

std::string Counted(std::size_t count) {
    return std::to_string(count) + (count == 1 ? " object" : " objects");
}

}  // namespace

ExplorerModel::ExplorerModel(const ObjectAccess& access, Hooks hooks)
    : FormModel(kFormName),
      access_(access),
      hooks_(std::move(hooks)),
      pages_{PageState(access, look_, false), PageState(access, look_, true)} {
    DeclareControls();
    DeclareCommands();
    for (PageState& page : pages_) {
        FillTree(page, RootOf(page.styles));
        for (const int top : page.tree.Children(TreeItems::kNone)) page.tree.Expand(top);
        const int root = page.tree.Find(RootOf(page.styles));
        if (root != TreeItems::kNone) page.tree.Expand(root);
        FillList(page);
    }
}

void ExplorerModel::DeclareControls() {
    AddControls({
        OptionButton(
            "optRecipes", [this] { return shown_ == Page::Recipes; }, [this] { Show(Page::Recipes); }),
        OptionButton(
            "optStyles", [this] { return shown_ == Page::Styles; }, [this] { Show(Page::Styles); }),
        {"treeFolders", [this] { return NodeKey(); },
         [this](std::string_view key) { return ChooseNode(key); }},
        {"lvNames", [this] { return ChosenNames(); },
         [this](std::string_view names) { return ChooseRows(names); }},
        {"txtFind",
         {},
         [this](std::string_view text) {
             Show(Page::Recipes);
             Find(text);
             return true;
         }},
        {"txtLabel", {}, [this](std::string_view newName) { return EnterLabel(newName); }},
    });
}

void ExplorerModel::DeclareCommands() {
    // A save while the explorer was open may have given rows new keys.
    const auto run = [this](void (ExplorerModel::*command)()) {
        return [this, command] {
            At(shown_).list.FollowSaves();
            (this->*command)();
        };
    };
    const auto isOwnFolder = [this] { return CanDeleteNode(NodeKey()); };
    AddButtons({
        {tw::NameOf(PopupCommand::Open), run(&ExplorerModel::Open),
         [this] { return CanOpen(At(shown_).list.SelectedKey()); }},
        {tw::NameOf(PopupCommand::Delete), run(&ExplorerModel::Delete),
         [this] { return std::ranges::any_of(At(shown_).list.ChosenKeys(), CanDeleteNode); }},
        {tw::NameOf(PopupCommand::Rename), run(&ExplorerModel::BeginRename), [this] { return CanRename(); }},
        {tw::NameOf(PopupCommand::NewFolder), run(&ExplorerModel::NewFolder),
         [this] { return CanHoldFolders(NodeKey()); }},
        {tw::NameOf(PopupCommand::NewStyle), run(&ExplorerModel::NewStyle), [this] { return CanAddStyle(); }},
        {tw::NameOf(PopupCommand::RenameFolder), run(&ExplorerModel::BeginRenameNode), isOwnFolder},
        {tw::NameOf(PopupCommand::DeleteFolder), run(&ExplorerModel::DeleteNode), isOwnFolder},
        {tw::NameOf(PopupCommand::LineUp), run(&ExplorerModel::LineUp), [this] { return ShowsIcons(); }},
        {"cmdClose", [this] { Close(); }},
    });
    AddButtons(LookButtons(look_, [this] { SortLists(); }));
}

void ExplorerModel::SortLists() {
    for (PageState& page : pages_) page.list.Sort();
}

void ExplorerModel::SetLook(const ListLook& look) {
    look_ = look;
    SortLists();
}

void ExplorerModel::FillTree(PageState& page, std::string_view keyToSelect) {
    page.tree.Fill([&](TreeView& view) {
        StyleBranch styles(view);
        if (page.styles)
            access_.tree.PopulateTreeViewForRecipeExplorer(styles);
        else
            access_.tree.PopulateTreeView(view, TreePart::WithoutStyles, true, false, false);
    });
    if (page.styles) ShowCodes(page.tree);
    if (page.tree.SelectKey(keyToSelect) || page.tree.Selected() != TreeItems::kNone) return;
    page.tree.SelectKey(RootOf(page.styles));
}

void ExplorerModel::ShowCodes(TreeItems& tree) const {
    const auto facts = CatalogueNames(access_.database).FactsOf(CatalogueKind::Style);
    for (int item = 0; item < tree.Count(); ++item) {
        const TWNode* const node = access_.tree.Nodes(tree.Key(item));
        if (!node || !node->IsStyle()) continue;
        const auto found = facts.find(Upper(tree.Text(item)));
        if (found != facts.end()) tree.SetCode(item, found->second.code);
    }
}

void ExplorerModel::FillList(PageState& page) {
    const std::string key = page.tree.SelectedKey();
    if (key == page.list.Key() || page.list.IsFinding())
        page.list.Refill();
    else
        page.list.Show(key, true);
}

void ExplorerModel::Settle() {
    for (PageState& page : pages_) {
        FillTree(page, {});
        FillList(page);
    }
}

void ExplorerModel::Change(const std::function<void()>& work) {
    opened_.clear();
    try {
        work();
    } catch (...) {
        Settle();
        throw;
    }
    Settle();
}

bool ExplorerModel::ChooseNode(std::string_view key) {
    PageState& page = At(shown_);
    if (!page.tree.SelectKey(key)) return false;
    opened_.clear();
    page.list.Show(page.tree.SelectedKey(), false);
    return true;
}

void ExplorerModel::Find(std::string_view text) {
    opened_.clear();
    PageState& page = At(Page::Recipes);
    // Another folder may have been selected since the search began.
    if (IsBlank(text)) return page.list.Show(page.tree.SelectedKey(), false);
    page.list.Find(text);
}

std::string ExplorerModel::NameOf(const std::string& key) const {
    const TWNode* const node = access_.tree.Nodes(key);
    return node ? std::string(node->Name()) : std::string();
}

std::vector<std::string> ExplorerModel::NamesOf(const std::vector<std::string>& keys) const {
    std::vector<std::string> names;
    names.reserve(keys.size());
    for (const std::string& key : keys) names.push_back(NameOf(key));
    return names;
}

std::string ExplorerModel::Status() const {
    if (!access_.tree.IsUpToDate()) return "Not up to date: the database cannot be read.";
    if (!opened_.empty()) return "'" + opened_ + "' is open in the main window.";
    const NodeList& list = At(shown_).list;
    const ListTable& rows = list.Rows();
    if (list.IsFinding() && rows.Chosen().size() < 2) return list.FoundText();
    const std::string all = Counted(rows.Rows().size());
    return rows.Chosen().size() < 2 ? all : std::to_string(rows.Chosen().size()) + " of " + all + " chosen";
}

bool ExplorerModel::CanOpen(std::string_view key) const {
    // "(None)" is a style that cannot be edited.
    if (IsStyleKey(key)) return hooks_.editStyle && CanRenameNode(key);
    return !key.empty();
}

bool ExplorerModel::CanRename() const {
    const NodeList& list = At(shown_).list;
    return list.Rows().Chosen().size() == 1 && list.CanRename(list.Rows().Selected());
}

bool ExplorerModel::CanAddStyle() const {
    const std::string node = NodeKey();
    return hooks_.editStyle && IsStyleFolderKey(node) && node != kAllStylesKey;
}

bool ExplorerModel::ShowsIcons() const {
    return look_.viewType == ListViewType::LargeIcons || look_.viewType == ListViewType::SmallIcons;
}

void ExplorerModel::Open() {
    const std::string key = At(shown_).list.SelectedKey();
    if (!CanOpen(key)) return;
    if (IsFolder(key)) {
        ChooseNode(key);
    } else if (IsStyleKey(key)) {
        OpenStyle(key);
    } else {
        // Uses the stored name, as the tree may show a new name as it was typed.
        const std::string name = access_.objects.RecipeNameById(IdOfKey(key));
        if (name.empty()) return Settle();
        hooks_.openRecipe(name);
        opened_ = name;
    }
}

void ExplorerModel::OpenStyle(const std::string& key) {
    const std::string name = access_.objects.StyleNameById(IdOfKey(key));
    Change([&] { hooks_.editStyle(name, 0); });
}

void ExplorerModel::NewStyle() {
    const std::int64_t folder = IdOfKey(NodeKey());
    std::optional<std::string> saved;
    Change([&] { saved = hooks_.editStyle("", folder); });
    if (saved)
        At(Page::Styles).list.ChooseKey(StyleKey(access_.objects.StyleIdByName(*saved), kStyleInFolder));
}

void ExplorerModel::NewFolder() {
    const std::string key = access_.objects.CreateFolderObject(NodeKey(), "");
    if (key.empty()) return;
    Settle();
    if (ChooseNode(key)) At(shown_).editedKey = key;
}

bool ExplorerModel::Confirm(const std::string& text) {
    return access_.platform.messages.Ask("Confirm Delete", text, Question::YesNo) == Answer::Yes;
}

void ExplorerModel::Delete() {
    const NodeList& list = At(shown_).list;
    std::vector<std::string> keys = list.ChosenKeys();
    const std::string text =
        keys.size() == 1
            ? "Are you sure you want to delete '" + list.Rows().SelectedText() + "'?"
            : "Are you sure you want to delete the selected " + std::to_string(keys.size()) + " items?";
    if (!Confirm(text)) return;
    std::erase_if(keys, [](const std::string& key) { return !CanDeleteNode(key); });
    const std::vector<std::string> names = NamesOf(keys);
    Change([&] {
        RunSteps(access_.platform.dialogs, "Deleting", names, [&](std::size_t i) {
            access_.objects.DeleteObject(KeyNow(access_, keys[i], names[i]));
            return true;
        });
    });
}

void ExplorerModel::DeleteNode() {
    const std::string key = NodeKey();
    if (!Confirm("Are you sure you want to delete '" + NameOf(key) + "'?")) return;
    const TWNode* const node = access_.tree.Nodes(key);
    const std::string above = node && node->Parent() ? node->Parent()->Key() : std::string();
    Change([&] {
        access_.objects.DeleteObject(key);
        ChooseNode(above);
    });
}

bool ExplorerModel::CanDrop(const std::vector<std::string>& keys, std::string_view targetKey) const {
    return !keys.empty() &&
           std::ranges::all_of(keys, [&](const std::string& key) { return CanDropOn(key, targetKey); });
}

void ExplorerModel::Drop(const std::vector<std::string>& keys, std::string_view targetKey) {
    if (!CanDrop(keys, targetKey)) return;
    const std::string target(targetKey);
    const std::vector<std::string> names = NamesOf(keys);
    Change([&] {
        RunSteps(access_.platform.dialogs, "Moving", names, [&](std::size_t i) {
            return access_.objects.MoveObject(KeyNow(access_, keys[i], names[i]), target);
        });
    });
    TreeItems& tree = At(shown_).tree;
    const int item = tree.Find(target);
    if (item != TreeItems::kNone) tree.Expand(item);
}

int ExplorerModel::EditedNode() const {
    const PageState& page = At(shown_);
    return page.editedKey.empty() ? TreeItems::kNone : page.tree.Find(page.editedKey);
}

void ExplorerModel::CancelEdit() {
    for (PageState& page : pages_) {
        page.editedKey.clear();
        page.list.CancelEdit();
    }
}

bool ExplorerModel::RenameNode(std::string_view newName) {
    TreeItems& tree = At(shown_).tree;
    const int item = EditedNode();
    CancelEdit();
    if (item == TreeItems::kNone) return false;
    if (newName == tree.Text(item)) return true;
    const std::string key = tree.Key(item);
    if (!access_.objects.RenameObject(key, newName)) return false;
    const int place = tree.Find(key);
    if (place != TreeItems::kNone) tree.SetText(place, newName);
    return true;
}

std::string ExplorerModel::ChosenNames() const {
    const ListTable& rows = At(shown_).list.Rows();
    std::string names;
    for (const int row : rows.Chosen()) {
        if (!names.empty()) names += '\n';
        names += rows.Row(row).cells.front();
    }
    return names;
}

bool ExplorerModel::ChooseRows(std::string_view names) {
    if (!At(shown_).list.ChooseByText(names)) return false;
    RowChosen();
    return true;
}

bool ExplorerModel::EnterLabel(std::string_view newName) {
    if (EditedNode() != TreeItems::kNone)
        RenameNode(newName);
    else if (At(shown_).list.EditedRow() != ListTable::kNoRow)
        RenameRow(newName);
    else
        return false;
    Settle();
    return true;
}

void ExplorerModel::BeginRename() {
    NodeList& list = At(shown_).list;
    list.BeginEdit(list.Rows().Selected());
}

void ExplorerModel::BeginRenameNode() {
    At(shown_).editedKey = NodeKey();
}

void ExplorerModel::LineUp() {
    At(shown_).list.Sort();
}

}  // namespace tw
