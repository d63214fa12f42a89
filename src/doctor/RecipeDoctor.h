// Examines recipes of other programs: plans and types each into a document of its own and compares what comes
// out with what the file states. Nothing is stored.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "calc/BeerColor.h"
#include "doctor/ImportOptions.h"
#include "doctor/PlausibilityCheck.h"
#include "doctor/RecipePlanner.h"
#include "document/RecipeDocument.h"
#include "document/ScratchHost.h"
#include "platform/Ports.h"
#include "store/Database.h"

namespace tw {

// A foreign recipe as it would be imported.
struct ExaminedRecipe {
    RecipePlan plan;
    std::vector<Finding> findings;  // without those of reading the file
    RemediesOffered offered;
    StatedFigures calculated;
    // Filled, unchanged and not stored.
    std::unique_ptr<RecipeDocument> document;
};

class RecipeDoctor {
  public:
    // REQUIRES: all arguments outlive this object and the documents of its results.
    RecipeDoctor(Database& database, Platform& platform, const ColorTable& colors, RecipeDefaults defaults);

    // A remedy of the options is applied only if it helps the recipe. Raises the store's errors.
    ExaminedRecipe Examine(const ForeignRecipe& recipe, const ImportOptions& options);

    Database& Store() const { return database_; }
    KnownFigures& Figures() { return figures_; }

  private:
    // Plans and types the recipe, and replaces what an earlier attempt has left in examined.
    void Attempt(const ForeignRecipe& recipe, const ImportOptions& options, ExaminedRecipe& examined);
    void Type(ExaminedRecipe& examined, Findings& findings);
    TypedFigures FiguresOf(const ForeignRecipe& recipe, const ExaminedRecipe& examined);

    Database& database_;
    Platform& platform_;
    const ColorTable& colors_;
    ScratchHost host_;
    KnownFigures figures_;
    CatalogueLookup catalogue_;
};

}  // namespace tw
