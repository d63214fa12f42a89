#include "store/RecipeFollowers.h"

#include "store/CarriedData.h"

namespace tw {
namespace {

// All followers, in the order in which they are told.
constexpr const RecipeFollower* kFollowers[] = {&kCarriedDataFollower};

template <typename Event, typename... Arguments>
void Tell(Event event, Database& database, const Arguments&... arguments) {
    for (const RecipeFollower* const follower : kFollowers)
        if (const auto react = follower->*event) react(database, arguments...);
}

}  // namespace

void RecipeEnds(Database& database, std::int64_t id, RecipeEnd why) {
    Tell(&RecipeFollower::ends, database, id, why);
}

void RecipeEnded(Database& database, std::int64_t id, RecipeEnd why) {
    Tell(&RecipeFollower::ended, database, id, why);
}

void RecipeSaved(Database& database, std::optional<std::int64_t> fromId, std::int64_t newId) {
    Tell(&RecipeFollower::saved, database, fromId, newId);
}

void RecipeCopied(Database& database, std::int64_t fromId, std::int64_t newId) {
    Tell(&RecipeFollower::copied, database, fromId, newId);
}

void RecipeRenamed(Database& database, std::int64_t id) {
    Tell(&RecipeFollower::renamed, database, id);
}

void RecipeImported(Database& database, std::int64_t newId) {
    Tell(&RecipeFollower::imported, database, newId);
}

}  // namespace tw
