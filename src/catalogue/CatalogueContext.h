// What the windows of the catalogue stand on.
#pragma once

#include "platform/Ports.h"
#include "store/Database.h"
#include "tree/DB_IO.h"
#include "tree/TWTree.h"

namespace tw {

// Holds references; the program that makes it keeps the objects alive for as long as its windows.
struct CatalogueContext {
    Database& database;
    const TWTree& tree;
    DB_IO& objects;
    MessagePort& messages;
    DialogPort& dialogs;
    ClockPort& clock;
};

}  // namespace tw
