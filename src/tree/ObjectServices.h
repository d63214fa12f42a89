// What the operations on objects share.
#pragma once

#include "store/Database.h"
#include "tree/FolderDates.h"
#include "tree/ObjectListener.h"
#include "tree/ObjectLookup.h"
#include "tree/OperationRunner.h"
#include "tree/TreeObjects.h"

namespace tw {

// REQUIRES: all members outlive the operations that use them.
struct ObjectServices {
    Database& database;
    TreeObjects& tree;
    ObjectListener& listener;
    const ObjectLookup& lookup;
    OperationRunner& runner;
    FolderDates& dates;
};

}  // namespace tw
