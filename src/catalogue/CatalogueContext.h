// What the dialogs of the catalogue need from the rest of the program.
#pragma once

#include "platform/Ports.h"
#include "store/Database.h"
#include "tree/DB_IO.h"
#include "tree/TWTree.h"

namespace tw {

// Holds references only: the program that creates the context owns the objects, which must outlive
// the dialogs.
struct CatalogueContext {
    Database& database;
    const TWTree& tree;
    DB_IO& objects;
    MessagePort& messages;
    DialogPort& dialogs;
    ClockPort& clock;
};

}  // namespace tw
