// Builds a tree from the rows of a database.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "store/Database.h"
#include "tree/FolderKind.h"
#include "tree/TWTree.h"

namespace tw {

// The tree does not sort during the loader's lifetime: the rows are read in order.
class TreeLoader {
  public:
    // REQUIRES: the tree is empty.
    TreeLoader(TWTree& tree, Database& database);
    ~TreeLoader();
    TreeLoader(const TreeLoader&) = delete;
    TreeLoader& operator=(const TreeLoader&) = delete;

    // Loads recipes, styles and folders by their ids. Each table is read once: a recipe's row says where its
    // four entries belong.
    void LoadMainDatabase();
    // Loads recipes, and styles by the style names in the recipes. Raises the store's error if RECIPES has no
    // column STYLE_NAME.
    void LoadExchangeFile();

  private:
    using NodesById = std::unordered_map<std::int64_t, TWNode*>;

    // Adds the root, and "All Recipes" and "By Style" below it.
    void AddRoots();
    // Adds a node below parent and returns it; nullptr if parent is nullptr or the key is already used.
    TWNode* Add(TWNode* parent, const NodeContent& content);
    TWNode* AddSystemFolder(TWNode* parent, std::string_view name, std::string_view key);
    TWNode* AddNoStyle(TWNode* parent, std::string_view key);
    // Adds the folders that can be reached from the root. Returns them by id, and the root itself as 0.
    NodesById AddFolders(FolderKind kind, TWNode* root);
    void AddStyles(const NodesById& folders);
    void AddRecipes(const NodesById& folders);
    // Adds a node below parent for each row of the query, which selects NAME and ID.
    void FillRecipes(TWNode* parent, std::string_view sql, int copy, const SqlValues& values = {});

    TWTree& tree_;
    Database& database_;
    const bool wasSorted_;
    TWNode* allRecipes_ = nullptr;
    TWNode* byStyle_ = nullptr;
    TWNode* allStyles_ = nullptr;
    // The two entries of each style, by id: the one below "All Styles" and the one in its folder.
    NodesById styles_;
    NodesById stylesInFolders_;
};

}  // namespace tw
