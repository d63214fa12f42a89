// Reading a tree from its database. Separate from TWTree.cpp because the loader depends on the tree.
#include "tree/TWTree.h"
#include "tree/TreeLoader.h"

namespace tw {

void TWTree::InitFromDatabase(Database& database) {
    database_ = &database;
    Clear();
    upToDate_ = false;
    TreeLoader loader(*this, database);
    if (&database == mainDatabase_)
        loader.LoadMainDatabase();
    else
        loader.LoadExchangeFile();
    upToDate_ = true;
}

}  // namespace tw
