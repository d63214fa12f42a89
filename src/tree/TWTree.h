// The tree of all recipes, styles and folders that the explorer, the choosers and the dialogs show. Finds
// every node by its key.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "store/Database.h"
#include "tree/NodeIndex.h"
#include "tree/TWNode.h"
#include "tree/TreeView.h"

namespace tw {

// The parts of the tree that a widget can show.
enum class TreePart {
    Everything = 0,     // from the root
    Styles = 1,         // below "By Style", without "(None)"
    WithoutStyles = 2,  // from the root, without "By Style"
    RecipeFolders = 3,  // from "My Recipe Folders"
    StyleFolders = 4,   // from "My Style Folders", without "(None)"
};

class TWTree {
  public:
    // Creates an empty tree. mainDatabase is the database that contains styles and folders. REQUIRES:
    // mainDatabase outlives the tree.
    explicit TWTree(Database* mainDatabase = nullptr) : mainDatabase_(mainDatabase) {}
    ~TWTree();
    TWTree(const TWTree&) = delete;
    TWTree& operator=(const TWTree&) = delete;

    // True if nodes that are added or renamed are put in their place in the order. Setting it does not sort
    // the nodes already in the tree.
    bool Sorted() const { return sorted_; }
    void SetSorted(bool sorted) { sorted_ = sorted; }

    // nullptr in an empty tree.
    TWNode* Root() const { return root_.get(); }
    // The number of all nodes.
    std::size_t Count() const { return index_.Count(); }
    bool NodeExists(std::string_view key) const;
    // Returns the node with exactly that key (case-sensitive), or nullptr if there is none.
    TWNode* Nodes(std::string_view key) const;

    // Adds a node without a parent as the root, with all nodes below it. Raises Error "Tree already has a
    // root.", "Tree has no root." if the node has a parent, "Node key already exists in tree." if two of the
    // nodes have the same key, or "Node already belongs to a tree.". The caller then keeps the node, and the
    // tree is unchanged. REQUIRES: root is not null.
    TWNode& AddNode(std::unique_ptr<TWNode>&& root);
    // Adds a node with a parent, and all nodes below it, to the index of keys. Called by the parent's
    // collection. Raises Error "Tree has no root." in an empty tree, "Tree already has a root." if the node
    // has no parent, and the last two errors of the overload above.
    void AddNode(TWNode& node);
    // Creates a node and adds it as the root. Raises the errors of TWNode's setters and of AddNode.
    TWNode& AddItem(std::string_view name, std::string_view key, std::string_view iconOpen,
                    std::string_view iconClosed, bool isDocument = false, bool isStyle = false);
    // Removes the node and all nodes below it from the index of keys. Returns the root, which leaves the tree
    // empty; for any other node returns nullptr, since its parent's collection owns it and calls this when it
    // removes the node. Raises Error "Node to remove does not exist in tree.".
    std::unique_ptr<TWNode> RemoveNode(TWNode& node);
    // Destroys all nodes.
    void Clear();

    // Rebuilds the tree from the main database.
    void InitFromDatabase();
    // Rebuilds the tree from any database. A database other than the main one is read as an exchange file,
    // which has styles by name and no folders. A row whose key is already used is skipped, with everything
    // below it. Raises the store's errors; the nodes read before the error stay in the tree.
    void InitFromDatabase(Database& database);
    // Reads the main database again. Raises the store's errors; the nodes are unchanged then, but the tree is
    // not up to date.
    void Reload();
    // True if the last reading of a database was completed, or if none has been read.
    bool IsUpToDate() const { return upToDate_; }
    // The database last read; nullptr if none has been read.
    Database* SourceDatabase() const { return database_; }

    // Clears the widget and fills it with a part of the tree; leaves it empty if the tree does not contain
    // the part's first entry. That entry is shown only if showRoot is true. Styles are skipped, with
    // everything below them, unless includeStyles is true, and documents unless includeDocuments is true.
    // Returns the first entry added, or Top if there is none.
    TreeViewItem PopulateTreeView(TreeView& view, TreePart part, bool showRoot, bool includeStyles,
                                  bool includeDocuments) const;
    // Shows the whole tree, including the recipes.
    TreeViewItem PopulateTreeViewForRecipeTree(TreeView& view) const;
    // Shows the whole tree without the recipes.
    TreeViewItem PopulateTreeViewForRecipeExplorer(TreeView& view) const;
    // Shows the folders below "By Style", without that entry itself.
    TreeViewItem PopulateTreeViewForStyleList(TreeView& view) const;
    // Show "My Recipe Folders" or "My Style Folders", and the folders below.
    TreeViewItem PopulateTreeViewWithRecipeFolders(TreeView& view) const;
    TreeViewItem PopulateTreeViewWithStyleFolders(TreeView& view) const;

  private:
    friend class TreeLoader;

    // Adds the node and all nodes below it to the index, or none of them.
    void Enter(TWNode& top);

    Database* mainDatabase_;
    Database* database_ = nullptr;
    bool sorted_ = true;
    bool upToDate_ = true;
    NodeIndex index_;
    std::unique_ptr<TWNode> root_;
};

}  // namespace tw
