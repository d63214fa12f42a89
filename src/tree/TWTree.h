// The tree of everything that the brewer sees in the explorer, the choosers and the dialogs, with a look-up
// of every node by its key.
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
    Styles = 1,         // what stands below "By Style", without "(None)"
    WithoutStyles = 2,  // from the root, without "By Style"
    RecipeFolders = 3,  // from "My Recipe Folders"
    StyleFolders = 4,   // from "My Style Folders", without "(None)"
};

class TWTree {
  public:
    // An empty tree. REQUIRES: mainDatabase, the one that holds styles and folders, lives for as long.
    explicit TWTree(Database* mainDatabase = nullptr) : mainDatabase_(mainDatabase) {}
    ~TWTree();
    TWTree(const TWTree&) = delete;
    TWTree& operator=(const TWTree&) = delete;

    // Whether nodes that are added or renamed go to their place in the order. Setting it sorts nothing.
    bool Sorted() const { return sorted_; }
    void SetSorted(bool sorted) { sorted_ = sorted; }

    // nullptr in an empty tree.
    TWNode* Root() const { return root_.get(); }
    // All nodes.
    std::size_t Count() const { return index_.Count(); }
    bool NodeExists(std::string_view key) const;
    // The node of that key, letter for letter; nullptr when there is none.
    TWNode* Nodes(std::string_view key) const;

    // Takes a node without a parent as the root, with everything below it. Raises "Tree already has a root."
    // or, for a node with a parent, "Tree has no root."; "Node key already exists in tree." when two of the
    // nodes have one key, and "Node already belongs to a tree.". The caller keeps the node then, and the tree
    // is as it was. REQUIRES: root is not null.
    TWNode& AddNode(std::unique_ptr<TWNode>&& root);
    // Takes a node with a parent into the look-up, with everything below it: the collection of its parent
    // does so. The same errors.
    void AddNode(TWNode& node);
    // Makes a node and adds it as the root; the errors of both.
    TWNode& AddItem(std::string_view name, std::string_view key, std::string_view iconOpen,
                    std::string_view iconClosed, bool isDocument = false, bool isStyle = false);
    // Takes the node and everything below it out of the look-up. A root is handed over and leaves the tree
    // empty; any other node is still its parent's, whose collection does this for those that it removes.
    // Raises "Node to remove does not exist in tree.".
    std::unique_ptr<TWNode> RemoveNode(TWNode& node);
    // Destroys all nodes.
    void Clear();

    // Builds the tree anew from the main database.
    void InitFromDatabase();
    // From any database: one that is not the main database is taken for an exchange file, which has styles by
    // name and no folders. A row whose key is taken already is passed over with what stands below it. Raises
    // the store's errors; what was read before stays then.
    void InitFromDatabase(Database& database);
    // Reads the main database again. Raises the store's errors; the tree is as it was then.
    void Reload();
    // Whether the last reading of a database came to its end.
    bool IsUpToDate() const { return upToDate_; }
    // The database of the last InitFromDatabase, nullptr before.
    Database* SourceDatabase() const { return database_; }

    // Fills the widget anew with a part of the tree: the part's first entry only when showRoot is set, and
    // nothing when the tree does not hold that entry. Styles and documents are passed over, with what stands
    // below them, unless they are asked for. The result is the first entry added, Top when there is none.
    TreeViewItem PopulateTreeView(TreeView& view, TreePart part, bool showRoot, bool includeStyles,
                                  bool includeDocuments) const;
    // The whole tree, down to the recipes.
    TreeViewItem PopulateTreeViewForRecipeTree(TreeView& view) const;
    // The whole tree, down to the styles.
    TreeViewItem PopulateTreeViewForRecipeExplorer(TreeView& view) const;
    // The folders below "By Style", without that entry itself.
    TreeViewItem PopulateTreeViewForStyleList(TreeView& view) const;
    // "My Recipe Folders", "My Style Folders" and the folders below.
    TreeViewItem PopulateTreeViewWithRecipeFolders(TreeView& view) const;
    TreeViewItem PopulateTreeViewWithStyleFolders(TreeView& view) const;

  private:
    friend class TreeLoader;

    // All or none of the node and what stands below it.
    void Enter(TWNode& top);

    Database* mainDatabase_;
    Database* database_ = nullptr;
    bool sorted_ = true;
    bool upToDate_ = true;
    NodeIndex index_;
    std::unique_ptr<TWNode> root_;
};

}  // namespace tw
