// The way from a style or a cell to its catalogue and back: the choosers.
#pragma once

#include <optional>
#include <string_view>

#include "document/OpenRecipe.h"
#include "document/RecipeCells.h"
#include "document/RecipeStyle.h"
#include "store/CatalogueKind.h"

namespace tw {

class CataloguePicks {
  public:
    CataloguePicks(OpenRecipe& recipe, RecipeStyle& style, RecipeCells& cells)
        : recipe_(recipe), style_(style), cells_(cells) {}

    // The catalogue that a cell's name stands in; nothing for a cell that holds no such name, and for one
    // that cannot be edited. Of gridLog it is that of the yeasts, for the notes of a row that pitches one.
    std::optional<CatalogueKind> ListOf(const Grid& grid, int row, int col) const;
    // Let the brewer choose from a catalogue, which opens on the present name; the choice goes into the
    // style, into the current cell. BrowseCell is false, and asks nothing, for a cell without a catalogue and
    // while more cells are selected.
    void BrowseStyles();
    bool BrowseCell(Grid& grid);
    // A name that was chosen from the list. A style becomes the recipe's; any other name goes into the
    // current row of the grid of its kind (a yeast into the notes of gridLog), and the row is filled as if it
    // had been typed.
    void Take(CatalogueKind list, std::string_view name);

  private:
    OpenRecipe& recipe_;
    RecipeStyle& style_;
    RecipeCells& cells_;
};

}  // namespace tw
