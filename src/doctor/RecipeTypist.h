// Types a planned recipe into a document, as a brewer would: each text runs through the commit that typing
// runs, so texts, numbers and figures agree by construction.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "doctor/RecipePlan.h"
#include "document/RecipeDocument.h"
#include "exchange/Finding.h"

namespace tw {

class RecipeTypist {
  public:
    // REQUIRES: document and findings outlive this object; the document is new.
    RecipeTypist(RecipeDocument& document, Findings& findings) : document_(document), findings_(findings) {}

    // Fills the document, which is unchanged afterwards. A text that its validator refuses is left out with a
    // finding, and so is one that breaks the arithmetic. Raises the store's errors.
    void Type(const RecipePlan& plan);

  private:
    void TypeField(TextBox& box, std::string_view text);
    void TypeLine(const PlannedLine& line);
    void TypeCell(Grid& grid, int row, const PlannedLine& line, const PlannedCell& cell);
    int RowFor(Grid& grid);
    void FinishGravity(const RecipePlan& plan);
    void ReportRefused(const std::string& place, std::string_view text);

    RecipeDocument& document_;
    Findings& findings_;
    std::string name_;
};

// Return the text for the extraction, or for the hop constant, with which the recipe has that gravity
// (specific gravity) or bitterness (IBUs); nullopt if none does.
std::optional<std::string> ExtractionFor(const RecipeRecord& record, double gravity);
std::optional<std::string> HopConstantFor(const RecipeRecord& record, double ibu);

}  // namespace tw
