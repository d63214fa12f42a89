// Shared by the tests of the tree: a tree as lines of text, a recording widget, and a database to fill.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Error.h"
#include "store/Database.h"
#include "store/Schema.h"
#include "tree/TWNodes.h"
#include "tree/TWTree.h"

namespace tw::test {

using Lines = std::vector<std::string>;

// Runs action and returns "{source}: {description}" of the error that it raises; "no error" if there is none.
template <typename Action>
std::string ErrorOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error.Source() + ": " + error.Description();
    }
    return "no error";
}

// Return a node without a tree or parent.
std::unique_ptr<TWNode> MakeNode(std::string_view key, std::string_view name = "");
std::unique_ptr<TWNode> MakeRecipe(std::string_view key, std::string_view name);

// Returns the names in the order of the collection.
Lines Names(const TWNodes& nodes);
// Returns the node and its descendants: "KEY NAME", indented by two blanks a level.
Lines Below(TWNode& node);
// Returns every node of the tree; nothing if it is empty.
Lines All(const TWTree& tree);
// Fails the test unless every node is found by its key, belongs to the tree and to the parent whose
// collection contains it, and the look-up contains nothing else.
void ExpectConsistent(const TWTree& tree);

// A widget that records "clear", and "PARENT> KEY NAME [image, selected]" for each entry.
class RecordingView : public TreeView {
  public:
    void Clear() override { lines = {"clear"}; }
    TreeViewItem Add(TreeViewItem parent, const std::string& key, std::string_view text,
                     std::string_view image, std::string_view selectedImage) override;
    // Returns the key of an entry; "none" for Top.
    std::string KeyOf(TreeViewItem item) const;

    Lines lines;

  private:
    std::vector<std::string> keys_;
};

// The main database in memory, and its tree.
struct MainTree {
    void Execute(std::string_view sql) const { db->Execute(sql); }
    // Reads the database and returns all nodes.
    Lines Load();

    std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
    TWTree tree{db.get()};
};

// Returns an exchange file in memory.
std::unique_ptr<Database> MakeExchangeDatabase();

}  // namespace tw::test
