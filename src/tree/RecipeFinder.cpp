#include "tree/RecipeFinder.h"

#include <algorithm>
#include <unordered_map>

#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

std::vector<std::string> WordsOf(std::string_view text) {
    std::vector<std::string> words;
    for (;;) {
        const std::size_t begin = text.find_first_not_of(kBlanks);
        if (begin == std::string_view::npos) return words;
        text.remove_prefix(begin);
        const std::size_t size = std::min(text.find_first_of(kBlanks), text.size());
        words.push_back(Upper(text.substr(0, size)));
        text.remove_prefix(size);
    }
}

// Id of the recipe, and what is searched of one row of it.
const std::vector<std::string> kReads = {
    "SELECT RECIPES.ID, STYLES.NAME FROM RECIPES, STYLES WHERE RECIPES.STYLE_ID = STYLES.ID",
    "SELECT RECIPE_ID, NAME FROM RECIPE_GRAINS",
    "SELECT RECIPE_ID, NAME FROM RECIPE_HOPS",
    "SELECT RECIPE_ID, NAME FROM RECIPE_ADJUNCTS",
    "SELECT RECIPE_ID, NAME FROM RECIPE_SUGARS",
    "SELECT RECIPE_ID, NAME FROM RECIPE_SALTS",
    "SELECT RECIPE_ID, ACTION, NOTES FROM RECIPE_LOG",
};

}  // namespace

void RecipeFinder::Read() {
    const std::int64_t changes = database_.ChangeCount();
    if (changes == changes_) return;
    changes_ = -1;
    recipes_.clear();
    for (Recordset rows = database_.OpenRecordset("SELECT ID, NAME, NOTES FROM RECIPES ORDER BY NAME");
         !rows.AtEnd(); rows.MoveNext()) {
        std::string name = rows.Fields(1).Text();
        std::string text = Upper(name) + "\n" + Upper(rows.Fields(2).Text());
        recipes_.push_back({rows.Fields(0).Integer(), std::move(name), std::move(text)});
    }
    std::unordered_map<std::int64_t, Recipe*> byId;
    for (Recipe& recipe : recipes_) byId.emplace(recipe.id, &recipe);
    for (const std::string& sql : kReads)
        for (Recordset rows = database_.OpenRecordset(sql); !rows.AtEnd(); rows.MoveNext()) {
            const auto recipe = byId.find(rows.Fields(0).Integer());
            if (recipe == byId.end()) continue;
            for (int i = 1; i < rows.FieldCount(); ++i)
                recipe->second->text.append("\n").append(Upper(rows.Fields(i).Text()));
        }
    changes_ = changes;
}

const std::vector<FoundRecipe>& RecipeFinder::Find(std::string_view text) {
    found_.clear();
    Read();
    const std::vector<std::string> words = WordsOf(text);
    for (const Recipe& recipe : recipes_)
        if (std::all_of(words.begin(), words.end(),
                        [&](const std::string& word) { return recipe.text.find(word) != std::string::npos; }))
            found_.push_back({recipe.id, recipe.name});
    return found_;
}

}  // namespace tw
