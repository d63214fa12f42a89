// The search behind the find boxes: the recipes that hold what is being typed, in their name, their style,
// their ingredients, their log or their notes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/Database.h"

namespace tw {

// A recipe that was found. The name is valid until the next Find.
struct FoundRecipe {
    std::int64_t id = 0;
    std::string_view name;

    bool operator==(const FoundRecipe&) const = default;
};

// Searches the recipes of one database. They are read by the first Find, and again by the first Find after
// anything in the database has changed.
class RecipeFinder {
  public:
    // REQUIRES: database lives for as long. Nothing is read yet.
    explicit RecipeFinder(Database& database) : database_(database) {}
    RecipeFinder(const RecipeFinder&) = delete;
    RecipeFinder& operator=(const RecipeFinder&) = delete;

    // The recipes that hold every word of text, in the order of the list of recipes; all of them for a text
    // without a word. Words stand between blanks and match anywhere, also inside a longer word, without
    // regard to case, also beyond ASCII; each may stand in another part of the recipe. Valid until the next
    // Find. Raises the store's error when the database cannot be read; the next Find tries again.
    const std::vector<FoundRecipe>& Find(std::string_view text);

  private:
    struct Recipe {
        std::int64_t id;
        std::string name;
        std::string text;  // all that is searched, in upper case, a line each
    };
    void Read();

    Database& database_;
    std::int64_t changes_ = -1;  // what the database had counted when the recipes were read
    std::vector<Recipe> recipes_;
    std::vector<FoundRecipe> found_;
};

}  // namespace tw
