// The search of the find boxes: finds recipes by what their name, style, ingredients, log or notes contain.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/Database.h"
#include "tree/WordIndex.h"

namespace tw {

// A recipe that was found. Its name is valid until the next Find.
struct FoundRecipe {
    std::int64_t id = 0;
    std::string_view name;

    bool operator==(const FoundRecipe&) const = default;
};

// Searches the recipes of one database. The first Find reads them, as does the first Find after any change in
// the database.
class RecipeFinder {
  public:
    // Reads nothing yet. REQUIRES: database outlives the object.
    explicit RecipeFinder(Database& database) : database_(database) {}
    RecipeFinder(const RecipeFinder&) = delete;
    RecipeFinder& operator=(const RecipeFinder&) = delete;

    // Returns the recipes that contain every word of text (MatchWords), in the order of the list of recipes;
    // all of them for a text without a word. Letters match even within a longer word, a number from its
    // beginning; each word may be in another part of the recipe. Ingredients and styles are also found by
    // the other names that the catalogue knows for them. The result is valid until the next Find. Raises the
    // store's error if the database cannot be read; the next Find tries again.
    const std::vector<FoundRecipe>& Find(std::string_view text);

  private:
    // Collects the texts to search.
    class Reading;
    void Read();
    FoundRecipe RecipeAt(std::size_t index) const;

    Database& database_;
    std::int64_t changes_ = -1;  // the database's change count when the recipes were read
    // The recipes in the order of the list, and the words of each.
    std::vector<std::int64_t> ids_;
    std::string names_;                   // concatenated
    std::vector<std::size_t> nameBegin_;  // one more than the number of recipes
    WordIndex words_;
    std::vector<FoundRecipe> found_;
};

}  // namespace tw
