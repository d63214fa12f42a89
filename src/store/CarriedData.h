// What a recipe from another program brought along and has no place for here: the original text of the
// recipe, kept in the table CARRIED, which the first such recipe creates. It follows its recipe
// (store/RecipeFollowers.h) and is never part of a recipe file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DateTime.h"
#include "store/Database.h"
#include "store/RecipeFollower.h"

namespace tw {

inline constexpr std::string_view kCarriedBeerXml = "beerxml";
inline constexpr std::string_view kCarriedBeerJson = "beerjson";

struct CarriedFragment {
    std::string format;    // kCarriedBeerXml or kCarriedBeerJson
    std::string source;    // the name of the file, without its folder
    std::string imported;  // the time of the import, in the form of DateText
    std::string content;   // UTF-8 text: the recipe as the file had it, mended
};

// All functions raise the store's errors.
class CarriedData {
  public:
    // REQUIRES: database outlives the object.
    explicit CarriedData(Database& database) : database_(database) {}

    // Adds a fragment to what is carried for a recipe, as one unit on the disk.
    void Keep(std::int64_t recipeId, std::string_view format, std::string_view source, const DateTime& when,
              std::string_view content);
    // True if the database has the table. Runs no statement.
    bool IsThere() const;
    bool IsCarriedFor(std::int64_t recipeId) const;
    // Returns what is carried for a recipe, the newest fragment first.
    std::vector<CarriedFragment> Of(std::int64_t recipeId) const;
    // Deletes all that is carried for a recipe, as one unit on the disk.
    void Drop(std::int64_t recipeId);

  private:
    Database& database_;
};

// What is carried belongs to the recipe under its newest id, is copied with it, and ends with it. While a
// save that failed leaves no row of the recipe, it stays under the old id, which no other recipe ever gets.
extern const RecipeFollower kCarriedDataFollower;

}  // namespace tw
