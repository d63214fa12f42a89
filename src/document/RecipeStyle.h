// The style of a recipe: the list of styles, the choice, and the ranges shown beside the figures.
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
    // Reads the list of styles again and selects that style, or "(None)" if it does not exist; shows its
    // ranges. Not an edit of the recipe.
    void SetId(std::int64_t id);
    // Reads the list again; selects "(None)" if the present style no longer exists.
    void Reload();

    // Selects an entry of the list, as an edit by the brewer. The water profile of the style becomes the
    // target water. Raises Error for an arithmetic fault, with nothing changed.
    void Select(int index);
    // Returns the index of the style of that name (trimmed, ignoring case), else of the style with that alias
    // or code; -1 if there is none.
    int EntryOf(std::string_view name) const;
    // Returns the entries of the list for a search, in their order.
    NameList Names() const;
    // Reads the list again and selects the style that EntryOf finds. False if there is none.
    bool ChangeStyle(std::string_view name);

    // For an undo or redo: selects the style of that id. The target water that was set with the style has
    // been recorded separately.
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
