#include "tree/TreeLoader.h"

#include <deque>
#include <optional>
#include <vector>

#include "tree/TWNodes.h"

namespace tw {
namespace {

// The four entries of a recipe: below "All Recipes", below both entries of its style, and in its folder.
constexpr int kInAll = 0;
constexpr int kInStyle = 1;
constexpr int kInStyleOfFolder = 2;
constexpr int kInFolder = 3;

// The first two fields of every query.
constexpr int kNameField = 0;
constexpr int kIdField = 1;

TWNode* FindIn(const std::unordered_map<std::int64_t, TWNode*>& nodes, std::optional<std::int64_t> id) {
    if (!id) return nullptr;
    const auto found = nodes.find(*id);
    return found == nodes.end() ? nullptr : found->second;
}

struct ObjectRow {
    SharedText name;
    std::int64_t id = 0;

    bool goesByName = false;  // its key contains the name instead of the id

    ObjectRow() = default;
    explicit ObjectRow(const Recordset& rows)
        : name(rows.Fields(kNameField).Text()), id(rows.Fields(kIdField).Integer()) {}
    // In an exchange file, an object with a negative id has none and is identified by its name.
    static ObjectRow OfFile(const Recordset& rows) {
        ObjectRow row(rows);
        row.goesByName = row.id < 0;
        return row;
    }

    NodeKey Key(char kind) const {
        if (!goesByName) return {kind, id};
        return NodeKey(std::string(1, kind).append(":").append(name.View()));
    }
    NodeKey Key(char kind, int copy) const {
        if (!goesByName) return {kind, id, copy};
        return NodeKey(Key(kind).Text() + ":" + std::to_string(copy));
    }
    NodeContent Recipe(int copy) const {
        return {name, Key('R', copy), NodeIcon::Document, NodeIcon::Document, true, false};
    }
    NodeContent Style(int copy) const {
        return {name, Key('S', copy), NodeIcon::StyleOpen, NodeIcon::StyleClosed, false, true};
    }
    NodeContent Folder(char kind) const {
        return {name, Key(kind), NodeIcon::FolderOpen, NodeIcon::FolderClosed, false, false};
    }
};

}  // namespace

TreeLoader::TreeLoader(TWTree& tree, Database& database)
    : tree_(tree), database_(database), wasSorted_(tree.Sorted()) {
    tree_.SetSorted(false);
}

TreeLoader::~TreeLoader() {
    tree_.SetSorted(wasSorted_);
}

TWNode* TreeLoader::Add(TWNode* parent, const NodeContent& content) {
    if (parent == nullptr || tree_.index_.Find(content.key) != nullptr) return nullptr;
    return &parent->Children().AddNode(std::make_unique<TWNode>(content));
}

TWNode* TreeLoader::AddSystemFolder(TWNode* parent, std::string_view name, std::string_view key) {
    return Add(parent,
               {SharedText(name), NodeKey(key), NodeIcon::SystemFolderOpen, NodeIcon::SystemFolderClosed});
}

TWNode* TreeLoader::AddNoStyle(TWNode* parent, std::string_view key) {
    return Add(parent,
               {SharedText("(None)"), NodeKey(key), NodeIcon::StyleOpen, NodeIcon::StyleClosed, false, true});
}

void TreeLoader::AddRoots() {
    TWNode* const root = &tree_.AddNode(std::make_unique<TWNode>(NodeContent{
        SharedText("Recipe Database"), NodeKey(kDatabaseKey), NodeIcon::Database, NodeIcon::Database}));
    allRecipes_ = AddSystemFolder(root, "All Recipes", kAllRecipesKey);
    byStyle_ = AddSystemFolder(root, "By Style", kByStyleKey);
}

void TreeLoader::LoadMainDatabase() {
    AddRoots();
    allStyles_ = AddSystemFolder(byStyle_, "All Styles", kAllStylesKey);
    styles_[0] = AddNoStyle(allStyles_, kNoStyleKey);
    TWNode* const styleRoot = AddSystemFolder(byStyle_, "My Style Folders", kStyleFoldersKey);
    const NodesById styleFolders = AddFolders(FolderKind::Styles, styleRoot);
    stylesInFolders_[0] = AddNoStyle(styleRoot, kNoStyleFolderKey);
    AddStyles(styleFolders);
    TWNode* const recipeRoot = AddSystemFolder(tree_.Root(), "My Recipe Folders", kRecipeFoldersKey);
    AddRecipes(AddFolders(FolderKind::Recipes, recipeRoot));
}

// Proceeds folder by folder from the root. Folders that cannot be reached from it, such as folders that
// contain each other in a cycle, are not loaded.
TreeLoader::NodesById TreeLoader::AddFolders(FolderKind kind, TWNode* root) {
    std::unordered_map<std::int64_t, std::vector<ObjectRow>> rowsByParent;
    for (Recordset rows = database_.OpenRecordset("SELECT NAME, ID, PARENT_ID FROM FOLDERS WHERE " +
                                                  FolderCondition(kind) + " ORDER BY NAME");
         !rows.AtEnd(); rows.MoveNext())
        if (const auto parent = rows.Fields(2).WholeNumber()) rowsByParent[*parent].emplace_back(rows);

    const char letter = kind == FolderKind::Styles ? 'G' : 'F';
    NodesById nodes = {{0, root}};
    std::deque<std::int64_t> open = {0};
    for (; !open.empty(); open.pop_front()) {
        TWNode* const parent = nodes[open.front()];
        for (const ObjectRow& row : rowsByParent[open.front()]) {
            TWNode* const node = Add(parent, row.Folder(letter));
            if (node != nullptr && nodes.try_emplace(row.id, node).second) open.push_back(row.id);
        }
    }
    return nodes;
}

void TreeLoader::AddStyles(const NodesById& folders) {
    for (Recordset rows = database_.OpenRecordset("SELECT NAME, ID, FOLDER_ID FROM STYLES ORDER BY NAME");
         !rows.AtEnd(); rows.MoveNext()) {
        const ObjectRow row(rows);
        if (TWNode* const node = Add(allStyles_, row.Style(0))) styles_.try_emplace(row.id, node);
        if (TWNode* const node = Add(FindIn(folders, rows.Fields(2).WholeNumber()), row.Style(1)))
            stylesInFolders_.try_emplace(row.id, node);
    }
}

void TreeLoader::AddRecipes(const NodesById& folders) {
    constexpr std::size_t kCopies = 4;
    const auto count =
        static_cast<std::size_t>(database_.OpenRecordset("SELECT COUNT(*) FROM RECIPES").Fields(0).Integer());
    tree_.index_.Reserve(tree_.Count() + kCopies * count);
    allRecipes_->Children().Reserve(count);
    for (Recordset rows =
             database_.OpenRecordset("SELECT NAME, ID, STYLE_ID, FOLDER_ID FROM RECIPES ORDER BY NAME");
         !rows.AtEnd(); rows.MoveNext()) {
        const ObjectRow row(rows);
        const auto style = rows.Fields(2).WholeNumber();
        Add(allRecipes_, row.Recipe(kInAll));
        Add(FindIn(styles_, style), row.Recipe(kInStyle));
        Add(FindIn(stylesInFolders_, style), row.Recipe(kInStyleOfFolder));
        Add(FindIn(folders, rows.Fields(3).WholeNumber()), row.Recipe(kInFolder));
    }
}

void TreeLoader::LoadExchangeFile() {
    AddRoots();
    FillRecipes(allRecipes_, "SELECT NAME, ID FROM RECIPES ORDER BY NAME", kInAll);
    FillRecipes(AddNoStyle(byStyle_, kNoStyleKey),
                "SELECT NAME, ID FROM RECIPES WHERE STYLE_NAME = '' OR STYLE_NAME IS NULL ORDER BY NAME",
                kInStyle);
    for (Recordset rows =
             database_.OpenRecordset("SELECT DISTINCT STYLE_NAME AS NAME, -1 AS ID FROM RECIPES "
                                     "WHERE STYLE_NAME <> '' AND NOT STYLE_NAME IS NULL ORDER BY STYLE_NAME");
         !rows.AtEnd(); rows.MoveNext()) {
        const ObjectRow row = ObjectRow::OfFile(rows);
        FillRecipes(Add(byStyle_, row.Style(1)),
                    "SELECT NAME, ID FROM RECIPES WHERE STYLE_NAME = ? ORDER BY NAME", kInStyleOfFolder,
                    {row.name.View()});
    }
}

void TreeLoader::FillRecipes(TWNode* parent, std::string_view sql, int copy, const SqlValues& values) {
    for (Recordset rows = database_.OpenRecordset(sql, values); !rows.AtEnd(); rows.MoveNext())
        Add(parent, ObjectRow::OfFile(rows).Recipe(copy));
}

}  // namespace tw
