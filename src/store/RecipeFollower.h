// The interface through which a feature with tables of its own follows the stored recipes. RecipeFollowers.h
// says when each function is called.
#pragma once

#include <cstdint>
#include <optional>

namespace tw {

class Database;

// Why a stored recipe ends.
enum class RecipeEnd : std::uint8_t {
    Deleted,
    Overwritten,  // another recipe takes its name
    SavedAnew,    // its own save replaces its row; RecipeSaved follows unless the save fails
};

// What one feature does with its tables. Every function runs within the unit of work of the operation and
// does nothing if its tables are missing; it may raise the store's error. Null for what does not concern the
// feature.
struct RecipeFollower {
    void (*ends)(Database& database, std::int64_t id, RecipeEnd why) = nullptr;
    void (*ended)(Database& database, std::int64_t id, RecipeEnd why) = nullptr;
    void (*saved)(Database& database, std::optional<std::int64_t> fromId, std::int64_t newId) = nullptr;
    void (*copied)(Database& database, std::int64_t fromId, std::int64_t newId) = nullptr;
    void (*renamed)(Database& database, std::int64_t id) = nullptr;
    void (*imported)(Database& database, std::int64_t newId) = nullptr;
};

}  // namespace tw
