// The facts of a recipe of this program for the files of others: each line of its grids in the terms of a
// foreign recipe. The opposite of RecipePlanner.
#pragma once

#include <optional>
#include <string>

#include "doctor/KnownFigures.h"
#include "document/CatalogueLookup.h"
#include "document/RecipeDocument.h"
#include "exchange/Finding.h"
#include "exchange/ForeignRecipe.h"

namespace tw {

class RecipeFacts {
  public:
    // Adds to findings what a foreign recipe cannot say. REQUIRES: all arguments outlive this object.
    RecipeFacts(const RecipeDocument& document, Database& database, KnownFigures& figures, Findings& findings)
        : document_(document), catalogue_(database), figures_(figures), findings_(findings) {}

    // Each returns the facts of one data row; base has those that the row does not tell, such as the origin
    // of a hop.
    ForeignFermentable Fermentable(const Grid& grid, int row, ForeignFermentable base = {}) const;
    ForeignHop Hop(int row, ForeignHop base = {}) const;
    ForeignMisc Adjunct(int row, ForeignMisc base = {}) const;
    ForeignMisc Salt(int row, ForeignMisc base = {}) const;
    ForeignYeast Yeast(int logRow, ForeignYeast base = {}) const;
    ForeignWater SourceWater(ForeignWater base = {}) const;

    // Returns the facts that do not stand in lines: volumes, efficiency, style, notes, figures.
    ForeignRecipe Fields() const;
    std::optional<ForeignStyle> Style() const;
    // Adds to findings what the brewer has entered and no format has a place for.
    void ReportWithoutPlace() const;

  private:
    const RecipeRecord& R() const { return document_.Record(); }
    void Report(FindingCode code, std::string place, std::string text) const;
    bool HasOwnTargetWater() const;
    bool HasSecondSugar() const;

    const RecipeDocument& document_;
    CatalogueLookup catalogue_;
    KnownFigures& figures_;
    Findings& findings_;
};

}  // namespace tw
