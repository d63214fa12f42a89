#include "exchange/RecipeKind.h"

namespace tw {

ForeignRecipe::Type RecipeKindOf(const ForeignRecipe& recipe) {
    using Type = ForeignFermentable::Type;
    if (recipe.type) return *recipe.type;
    bool hasGrain = false;
    bool hasExtract = false;
    for (const ForeignFermentable& line : recipe.fermentables) {
        hasGrain = hasGrain || !line.type || *line.type == Type::Grain || *line.type == Type::Adjunct;
        hasExtract = hasExtract || line.type == Type::Extract || line.type == Type::DryExtract;
    }
    if (!hasExtract) return ForeignRecipe::Type::AllGrain;
    return hasGrain ? ForeignRecipe::Type::PartialMash : ForeignRecipe::Type::Extract;
}

}  // namespace tw
