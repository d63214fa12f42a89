// The style of a recipe: the list, the choice, the ranges shown beside the figures.
#pragma once

#include <cstdint>
#include <string_view>

#include "document/CatalogueLookup.h"
#include "document/OpenRecipe.h"
#include "document/RecipeCells.h"

namespace tw {

class RecipeStyle {
  public:
    RecipeStyle(OpenRecipe& recipe, const CatalogueLookup& catalogue, RecipeCells& cells)
        : recipe_(recipe), catalogue_(catalogue), cells_(cells) {}

    // 0 for "(None)".
    std::int64_t Id() const { return id_; }
    // Reads the style list anew and selects that style, or "(None)" when it is gone; shows its ranges. Not an
    // edit of the recipe.
    void SetId(std::int64_t id);
    // Reads the list anew; a style that is gone leaves "(None)".
    void Reload();

    // An entry of the list, as the brewer chooses it; the water of the style becomes the target water.
    void Select(int index);
    // The entry of the style of that name (trimmed, case ignored), else of the one that it is another name or
    // the code of; -1 when there is none.
    int EntryOf(std::string_view name) const;
    // Selects that style of the stored ones. False when there is none.
    bool ChangeStyle(std::string_view name);

    // For an undo; the water that came with the style has records of its own.
    void PutBack(std::int64_t id);

  private:
    void Choose(std::int64_t id);
    std::optional<std::string> Show(std::int64_t id);
    void EmptyRanges();

    OpenRecipe& recipe_;
    const CatalogueLookup& catalogue_;
    RecipeCells& cells_;
    std::int64_t id_ = 0;
};

}  // namespace tw
