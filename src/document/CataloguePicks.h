// Lets the brewer choose a recipe's style, or the name in a cell, from the catalogue, and enters the choice.
#pragma once

#include <optional>
#include <string_view>

#include "document/MissingFigures.h"
#include "document/OpenRecipe.h"
#include "document/PitchedYeast.h"
#include "document/RecipeCells.h"
#include "document/RecipeStyle.h"
#include "store/CatalogueKind.h"

namespace tw {

class CataloguePicks {
  public:
    CataloguePicks(OpenRecipe& recipe, RecipeStyle& style, RecipeCells& cells, const MissingFigures& missing,
                   PitchedYeast& yeast)
        : recipe_(recipe), style_(style), cells_(cells), missing_(missing), yeast_(yeast) {}

    // Returns the catalogue that lists the names of a cell; nullopt if the cell does not contain such
    // a name or cannot be edited. In gridLog, that is the catalogue of yeasts for the notes of a row
    // that pitches one.
    std::optional<CatalogueKind> ListOf(const Grid& grid, int row, int col) const;
    // Let the brewer choose from a catalogue, starting at the present name; Take enters the choice.
    // BrowseCell does this for the current cell. It returns false, without asking, if that has no catalogue
    // or if more than one cell is selected. BrowseYeast lets the brewer choose the recipe's yeast, wherever
    // the current cell is.
    void BrowseStyles();
    void BrowseYeast();
    bool BrowseCell(Grid& grid);
    // True if the name in the current cell's row is not in its catalogue.
    bool CanAdd(const Grid& grid) const;
    // Lets the brewer add that name, with the figures of its row, to the catalogue; the row is then filled
    // from there. Does nothing if CanAdd is false.
    void AddCurrent(const Grid& grid);
    // Enters a name chosen from a catalogue. A style becomes that of the recipe; any other name is entered
    // into the current row of the grid with such names (a yeast into the notes of gridLog), and the row is
    // filled as if the name had been typed. Raises Error for an arithmetic fault, with nothing changed.
    void Take(CatalogueKind list, std::string_view name);
    // Enters a name that has just been added to the catalogue for the current row, and fills the row even if
    // it had that name before. Raises as Take. REQUIRES: list is not the styles.
    void TakeAdded(CatalogueKind list, std::string_view name);

  private:
    void Enter(CatalogueKind list, std::string_view name, bool again);

    OpenRecipe& recipe_;
    RecipeStyle& style_;
    RecipeCells& cells_;
    const MissingFigures& missing_;
    PitchedYeast& yeast_;
    bool choosesYeast_ = false;  // while BrowseYeast asks
};

}  // namespace tw
