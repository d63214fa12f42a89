// The database of the program with what is read from it. It exists while the database is open.
#pragma once

#include <functional>
#include <memory>

#include "platform/Ports.h"
#include "store/Database.h"
#include "tree/DB_IO.h"
#include "tree/NodeList.h"
#include "tree/TWTree.h"
#include "tree/TreeObjects.h"

namespace tw {

struct OpenedDatabase {
    // The tree is empty at first: tree.InitFromDatabase reads it. listener hears of every operation on
    // folders, styles and recipes; treeRead runs whenever the tree has been read anew, or could not be.
    OpenedDatabase(std::unique_ptr<Database> opened, Platform& ports, ObjectListener& listener,
                   std::function<void()> treeRead);

    // The database named by path, opened exclusively; ":memory:" makes an empty one of the full schema.
    // Raises the store's error.
    static std::unique_ptr<Database> Open(const std::string& path);
    static bool IsInMemory(const std::string& path);

    bool HasRecipes() { return !database->OpenRecordset("SELECT * FROM RECIPES").AtEnd(); }
    // What the windows on folders, recipes and styles work on.
    ObjectAccess Access() { return {*database, tree, objects, platform}; }

    Platform& platform;
    const std::unique_ptr<Database> database;
    TWTree tree;
    TreeObjects treeObjects;  // changes tree
    DB_IO objects;            // the operations, which keep tree in step
};

}  // namespace tw
