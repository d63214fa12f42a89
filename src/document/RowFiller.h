// Fills the other cells of a row from the catalogue when its name has been committed.
#pragma once

#include <optional>
#include <string_view>

#include "document/CatalogueLookup.h"
#include "document/OpenRecipe.h"

namespace tw {

// The action of the brew log whose notes name the yeast.
inline constexpr std::string_view kPitchedYeast = "Pitched Yeast";

// What a commit has changed besides its own cell.
struct FillEffects {
    bool rowFilled = false;  // other cells of the row have been filled or emptied
    // What txtFG held before a pitched yeast changed it; nullopt if it is unchanged.
    std::optional<EditValue> finalGravityBefore;
};

class RowFiller {
  public:
    RowFiller(OpenRecipe& recipe, const CatalogueLookup& catalogue)
        : recipe_(recipe), catalogue_(catalogue) {}

    // Looks up the cell's text in the catalogue of its column and fills the row. Does nothing for a column
    // without a catalogue. An unknown name leaves the row as it is, except that it removes the factors of a
    // salt. Raises Error, with nothing changed, if the alcohol cannot be calculated after a yeast was
    // pitched; raises the store's errors.
    FillEffects Fill(Grid& grid, int row, int col);

  private:
    bool FillFermentable(Grid& grid, int row);
    bool FillHop(Grid& grid, int row);
    bool FillSugar(Grid& grid, int row);
    bool FillWater(Grid& grid, int row);
    bool FillSalt(Grid& grid, int row);
    std::optional<EditValue> Pitch(const Grid& log, int row);

    OpenRecipe& recipe_;
    const CatalogueLookup& catalogue_;
};

// True if that row of the brew log pitches a yeast, so that its notes begin with a yeast's name.
bool PitchesYeast(const Grid& log, int row);
// Returns the last row that pitches a yeast; nullopt if no row does.
std::optional<int> PitchingRow(const Grid& log);
// Returns the name at the beginning of such notes, before " - " and the yeast's description; trimmed.
std::string_view PitchedYeastName(std::string_view notes);

}  // namespace tw
