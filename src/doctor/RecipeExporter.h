// Prepares stored recipes for the files of other programs. What a recipe once brought along from such a
// program goes back: the export plans the original again and compares the plan with the recipe, so that only
// what the brewer has changed since is written anew.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calc/BeerColor.h"
#include "doctor/ImportOptions.h"
#include "doctor/KnownFigures.h"
#include "doctor/RecipeFacts.h"
#include "doctor/RecipePlan.h"
#include "document/RecipeDocument.h"
#include "document/ScratchHost.h"
#include "exchange/ExportedRecipe.h"
#include "platform/Ports.h"
#include "store/Database.h"

namespace tw {

class RecipeExporter {
  public:
    // units is the setting with which recipes are imported, defaults what a new recipe has. REQUIRES: the
    // other arguments outlive this object.
    RecipeExporter(Database& database, Platform& platform, const ColorTable& colors, ImportUnits units,
                   RecipeDefaults defaults);

    // Returns the stored recipe of that name for a file of that format, and adds what the format cannot say
    // to findings. Raises Error if there is no such recipe, or if it cannot be read.
    ExportedRecipe Prepare(const std::string& name, ExchangeFormat format, Findings& findings);

  private:
    // The recipe as the other program had it, and what it was typed as.
    struct Original {
        ForeignRecipe recipe;
        ExchangeFormat format;
        RecipePlan plan;
    };
    std::optional<Original> OriginalOf(const RecipeDocument& document, std::int64_t id);
    RecipePlan PlanOf(const ForeignRecipe& recipe, ImportUnits units);

    Database& database_;
    Platform& platform_;
    const ColorTable& colors_;
    ImportUnits units_;
    ScratchHost host_;
    KnownFigures figures_;
};

}  // namespace tw
