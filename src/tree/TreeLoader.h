// Builds a tree from the rows of a database.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "store/Database.h"
#include "tree/TWTree.h"

namespace tw {

// For the time of its life the tree does not sort: the rows come in order.
class TreeLoader {
  public:
    // REQUIRES: the tree is empty.
    TreeLoader(TWTree& tree, Database& database);
    ~TreeLoader();
    TreeLoader(const TreeLoader&) = delete;
    TreeLoader& operator=(const TreeLoader&) = delete;

    // Recipes, styles and folders by their ids. Each table is read once: a recipe's row tells where its four
    // copies go.
    void LoadMainDatabase();
    // Recipes, and the styles by the names in them. Raises the store's error for a database that has no
    // STYLE_NAME.
    void LoadExchangeFile();

  private:
    using NodesById = std::unordered_map<std::int64_t, TWNode*>;
    enum class FolderKind { Recipes, Styles };

    // The root, and "All Recipes" and "By Style" below it.
    void AddRoots();
    // The new node below parent; nullptr when there is no parent or the key is taken.
    TWNode* Add(TWNode* parent, const NodeContent& content);
    TWNode* AddSystemFolder(TWNode* parent, std::string_view name, std::string_view key);
    TWNode* AddNoStyle(TWNode* parent, std::string_view key);
    // The folders that can be reached from the root, by id, and the root itself as 0.
    NodesById AddFolders(FolderKind kind, TWNode* root);
    void AddStyles(const NodesById& folders);
    void AddRecipes(const NodesById& folders);
    // One node for each row of NAME and ID.
    void FillRecipes(TWNode* parent, std::string_view sql, int copy, const SqlValues& values = {});

    TWTree& tree_;
    Database& database_;
    const bool wasSorted_;
    TWNode* allRecipes_ = nullptr;
    TWNode* byStyle_ = nullptr;
    TWNode* allStyles_ = nullptr;
    // Both entries of each style, the one under "All Styles" and the one in its folder.
    NodesById styles_;
    NodesById stylesInFolders_;
};

}  // namespace tw
