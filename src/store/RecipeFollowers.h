// What hangs on a recipe in tables of its own follows it. A save gives a recipe a new id; a recipe is also
// copied, renamed, replaced and deleted. Whoever does that to the recipes of the main database calls these
// functions, which tell every follower of the list in RecipeFollowers.cpp. Recipe files are never told: they
// have no such tables.
#pragma once

#include <cstdint>
#include <optional>

#include "store/RecipeFollower.h"

namespace tw {

// Each tells the followers in the order of the list; an error ends that and is passed on.

// The rows of the recipe are about to be deleted, and are still complete.
void RecipeEnds(Database& database, std::int64_t id, RecipeEnd why);
// The recipe's row in RECIPES has been deleted. Separate from RecipeEnds, since a deletion that fails in
// between leaves the recipe with all that hangs on it.
void RecipeEnded(Database& database, std::int64_t id, RecipeEnd why);
// The recipe's own save has just written its new row; its lines may be missing yet. fromId is the id that it
// had before, whose row may be gone since an earlier save that failed; nullopt for a recipe that was never
// stored.
void RecipeSaved(Database& database, std::optional<std::int64_t> fromId, std::int64_t newId);
// A save under another name has just written the copy's row; its lines may be missing yet.
void RecipeCopied(Database& database, std::int64_t fromId, std::int64_t newId);
// The recipe has got another name in the tree. A save under an edited name is told as RecipeSaved.
void RecipeRenamed(Database& database, std::int64_t id);
// A recipe of a recipe file has been written, with its lines.
void RecipeImported(Database& database, std::int64_t newId);

}  // namespace tw
