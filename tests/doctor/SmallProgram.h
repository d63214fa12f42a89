// What surrounds a doctor in a program: a database, its tree, and a recording platform.
#pragma once

#include <memory>
#include <utility>

#include "catalogue/CatalogueContext.h"
#include "doctor/RecipeDoctor.h"
#include "support/RecordingPlatform.h"
#include "support/SilentStore.h"
#include "tree/DB_IO.h"
#include "tree/TWTree.h"
#include "tree/TreeObjects.h"

namespace tw::test {

struct SmallProgram {
    explicit SmallProgram(std::unique_ptr<Database> opened) : database(std::move(opened)) {}

    RecordingPlatform platform;
    std::unique_ptr<Database> database;
    TWTree tree{database.get()};
    TreeObjects treeObjects{tree};
    NoListener listener;
    DB_IO objects{*database, treeObjects, platform.messages, platform.clock, listener};
    CatalogueContext catalogue{*database, tree, objects, platform.messages, platform.dialogs, platform.clock};
    ColorTable colors;
    const RecipeDefaults defaults{"75%", "1", "", "6 gal", "5 gal"};
    RecipeDoctor doctor{*database, platform.platform, colors, defaults};
};

}  // namespace tw::test
