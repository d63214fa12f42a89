// How a tree reads its database: it stands by itself because the loader builds trees.
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
