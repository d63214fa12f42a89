// The open database of the program, with what is read from it.
#pragma once

#include <functional>
#include <memory>

#include "catalogue/CatalogueContext.h"
#include "platform/Ports.h"
#include "store/Database.h"
#include "tree/DB_IO.h"
#include "tree/NodeList.h"
#include "tree/TWTree.h"
#include "tree/TreeObjects.h"

namespace tw {

struct OpenedDatabase {
    // The tree is empty until tree.InitFromDatabase reads it. listener is notified of every operation on
    // folders, styles and recipes; treeRead is called after each attempt to read the tree, successful or not.
    OpenedDatabase(std::unique_ptr<Database> opened, Platform& ports, ObjectListener& listener,
                   std::function<void()> treeRead);

    // Opens the database at path exclusively; ":memory:" creates an empty one with the full schema. Raises
    // the store's error.
    static std::unique_ptr<Database> Open(const std::string& path);
    static bool IsInMemory(const std::string& path);

    bool HasRecipes() { return !database->OpenRecordset("SELECT * FROM RECIPES").AtEnd(); }
    // Returns what the dialogs for folders, recipes and styles need.
    ObjectAccess Access() { return {*database, tree, objects, platform}; }

    // Returns what the dialogs and editors of the catalogue need.
    CatalogueContext Catalogue() {
        return {*database, tree, objects, platform.messages, platform.dialogs, platform.clock};
    }

    Platform& platform;
    const std::unique_ptr<Database> database;
    TWTree tree;
    TreeObjects treeObjects;  // modifies tree
    DB_IO objects;            // the operations, which update tree
};

}  // namespace tw
