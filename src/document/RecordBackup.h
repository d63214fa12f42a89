// A copy of what a recipe record holds, for going back when a change of many controls fails halfway.
#pragma once

#include <string>
#include <vector>

#include "record/RecipeRecord.h"

namespace tw {

class RecordBackup {
  public:
    // Copies text boxes, cells, buttons and the colour, but not lists, labels and options.
    explicit RecordBackup(const RecipeRecord& record);
    // REQUIRES: no row has been inserted into or removed from a grid since.
    void Restore(RecipeRecord& record) const;
    // True if the text of a box or a cell has changed since. REQUIRES: as Restore.
    bool TextsChanged(const RecipeRecord& record) const;

  private:
    struct Box {
        std::string text;
        std::string committed;
        double value;
        bool ownNumber;
    };

    std::vector<Box> boxes_;
    std::vector<std::vector<Cell>> rows_;  // of all grids, one after the other
    std::vector<bool> buttons_;
    Rgb swatch_;
};

}  // namespace tw
