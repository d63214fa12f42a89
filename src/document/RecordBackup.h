// What a recipe record holds at one moment, to go back to when a change of many controls fails halfway.
#pragma once

#include <string>
#include <vector>

#include "record/RecipeRecord.h"

namespace tw {

class RecordBackup {
  public:
    // Copies boxes, cells, buttons and the colour; lists, labels and options are left out.
    explicit RecordBackup(const RecipeRecord& record);
    // REQUIRES: no grid has got or lost a row since.
    void Restore(RecipeRecord& record) const;
    // True when a box or a cell shows another text now. REQUIRES: as Restore.
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
