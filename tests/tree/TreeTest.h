// What the tests of the tree share: a tree as lines of text, a widget that records, and a database to fill.
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

// Runs action and returns "{source}: {description}" of the error that it raises, "no error" without one.
template <typename Action>
std::string ErrorOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error.Source() + ": " + error.Description();
    }
    return "no error";
}

// A node that belongs to nothing.
std::unique_ptr<TWNode> MakeNode(std::string_view key, std::string_view name = "");
std::unique_ptr<TWNode> MakeRecipe(std::string_view key, std::string_view name);

// The names in the order of the collection.
Lines Names(const TWNodes& nodes);
// The node and everything below it: "KEY NAME", each behind two blanks a level.
Lines Below(TWNode& node);
// Every node of the tree; nothing for an empty one.
Lines All(const TWTree& tree);
// Fails the test unless every node is found under its key, belongs to the tree and to the parent in whose
// collection it stands, and nothing else is in the look-up.
void ExpectConsistent(const TWTree& tree);

// A widget: "clear", and "PARENT> KEY NAME [image, selected]" for each entry.
class RecordingView : public TreeView {
  public:
    void Clear() override { lines = {"clear"}; }
    TreeViewItem Add(TreeViewItem parent, const std::string& key, std::string_view text,
                     std::string_view image, std::string_view selectedImage) override;
    // The key of an entry, "none" for Top.
    std::string KeyOf(TreeViewItem item) const;

    Lines lines;

  private:
    std::vector<std::string> keys_;
};

// The main database in memory, and the tree over it.
struct MainTree {
    void Execute(std::string_view sql) const { db->Execute(sql); }
    // All nodes after reading the database.
    Lines Load();

    std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
    TWTree tree{db.get()};
};

// An exchange file in memory.
std::unique_ptr<Database> MakeExchangeDatabase();

}  // namespace tw::test
