#include "tree/RecipeFinder.h"

#include <algorithm>
#include <bit>
#include <optional>
#include <unordered_map>
#include <utility>

#include "store/CatalogueNames.h"
#include "values/NameMatch.h"
#include "values/Text.h"

namespace tw {
namespace {

// A statement that reads the recipe's id and a text to search, and the catalogue that may know other names
// for that text.
struct RowRead {
    const char* sql = nullptr;
    std::optional<CatalogueKind> names = std::nullopt;
};

constexpr RowRead kRowReads[] = {
    {"SELECT RECIPE_ID, NAME FROM RECIPE_GRAINS", CatalogueKind::Grain},
    {"SELECT RECIPE_ID, NAME FROM RECIPE_HOPS", CatalogueKind::Hop},
    {"SELECT RECIPE_ID, NAME FROM RECIPE_ADJUNCTS"},
    {"SELECT RECIPE_ID, NAME FROM RECIPE_SUGARS", CatalogueKind::Sugar},
    {"SELECT RECIPE_ID, NAME FROM RECIPE_SALTS", CatalogueKind::Salt},
    {"SELECT RECIPE_ID, ACTION FROM RECIPE_LOG"},
    {"SELECT RECIPE_ID, NOTES FROM RECIPE_LOG"},
    {"SELECT ID, NOTES FROM RECIPES"},
};

// The names of catalogue rows, each with everything else that its row is called.
class Synonyms {
  public:
    Synonyms(Database& database, CatalogueKind kind) {
        for (auto& [name, facts] : CatalogueNames(database).FactsOf(kind)) {
            std::vector<std::string> names = facts.OtherNames();
            names.push_back(name);
            std::string all;
            for (const std::string& each : names) all.append(each).append(" ");
            for (const std::string& each : names) all_.try_emplace(Upper(each), all);
        }
    }

    // Returns all names of the row that text names, separated by blanks; empty if there are no others.
    std::string_view Of(std::string_view text) const {
        const auto found = all_.find(Upper(Trim(text)));
        return found == all_.end() ? std::string_view() : found->second;
    }

  private:
    std::unordered_map<std::string, std::string> all_;
};

// Calls action with the index of each set bit, in ascending order.
template <typename Action>
void ForEachBit(const BitSet& bits, Action action) {
    constexpr std::size_t kBits = 64;
    for (std::size_t i = 0; i < bits.size(); ++i)
        for (std::uint64_t rest = bits[i]; rest != 0; rest &= rest - 1)
            action(i * kBits + static_cast<std::size_t>(std::countr_zero(rest)));
}

}  // namespace

class RecipeFinder::Reading {
  public:
    explicit Reading(RecipeFinder& finder) : finder_(finder), database_(finder.database_) {}

    void Run() {
        ReadRecipes();
        for (const RowRead& read : kRowReads) {
            std::optional<Synonyms> synonyms;
            if (read.names) synonyms.emplace(database_, *read.names);
            known_.clear();
            for (Recordset rows = database_.OpenRecordset(read.sql); !rows.AtEnd(); rows.MoveNext()) {
                const auto id = rows.Fields(0).WholeNumber();
                const auto recipe = id ? byId_.find(*id) : byId_.end();
                if (recipe != byId_.end()) AddText(rows.Fields(1).Text(), recipe->second, synonyms);
            }
        }
        finder_.words_ = words_.Build(static_cast<std::uint32_t>(finder_.ids_.size()));
    }

  private:
    // Uses the statement that fills the list, so that recipes of the same name are also in its order.
    void ReadRecipes() {
        const Synonyms synonyms(database_, CatalogueKind::Style);
        std::unordered_map<std::int64_t, Words> styles;
        for (Recordset rows = database_.OpenRecordset("SELECT ID, NAME FROM STYLES"); !rows.AtEnd();
             rows.MoveNext()) {
            const std::string name = rows.Fields(1).Text();
            styles.emplace(rows.Fields(0).Integer(), NumbersOf(name, synonyms.Of(name)));
        }
        for (Recordset rows =
                 database_.OpenRecordset("SELECT NAME, ID, STYLE_ID, FOLDER_ID FROM RECIPES ORDER BY NAME");
             !rows.AtEnd(); rows.MoveNext()) {
            const auto recipe = static_cast<std::uint32_t>(finder_.ids_.size());
            const std::string name = rows.Fields(0).Text();
            finder_.ids_.push_back(rows.Fields(1).Integer());
            finder_.nameBegin_.push_back(finder_.names_.size());
            finder_.names_ += name;
            byId_.emplace(finder_.ids_.back(), recipe);
            words_.Add(words_.NumbersOf(name), recipe);
            const auto style = rows.Fields(2).WholeNumber();
            const auto found = style ? styles.find(*style) : styles.end();
            if (found != styles.end()) words_.Add(found->second, recipe);
        }
        finder_.nameBegin_.push_back(finder_.names_.size());
    }

    using Words = std::vector<std::uint32_t>;

    Words NumbersOf(std::string_view text, std::string_view others) {
        Words numbers = words_.NumbersOf(text);
        const Words more = words_.NumbersOf(others);
        numbers.insert(numbers.end(), more.begin(), more.end());
        return numbers;
    }

    // Caches the words of short texts: there are few ingredients, and each is used in many recipes.
    void AddText(std::string text, std::uint32_t recipe, const std::optional<Synonyms>& synonyms) {
        constexpr std::size_t kLongest = 60;
        if (text.empty()) return;
        if (text.size() > kLongest) return words_.Add(words_.NumbersOf(text), recipe);
        const auto [known, isNew] = known_.try_emplace(std::move(text));
        if (isNew)
            known->second =
                NumbersOf(known->first, synonyms ? synonyms->Of(known->first) : std::string_view());
        words_.Add(known->second, recipe);
    }

    RecipeFinder& finder_;
    Database& database_;
    WordIndex::Builder words_;
    std::unordered_map<std::string, Words> known_;
    std::unordered_map<std::int64_t, std::uint32_t> byId_;
};

void RecipeFinder::Read() {
    const std::int64_t changes = database_.ChangeCount();
    if (changes == changes_) return;
    changes_ = -1;
    ids_.clear();
    names_.clear();
    nameBegin_.clear();
    Reading(*this).Run();
    changes_ = changes;
}

FoundRecipe RecipeFinder::RecipeAt(std::size_t index) const {
    const std::string_view names = names_;
    return {ids_[index], names.substr(nameBegin_[index], nameBegin_[index + 1] - nameBegin_[index])};
}

const std::vector<FoundRecipe>& RecipeFinder::Find(std::string_view text) {
    found_.clear();
    Read();
    const std::vector<std::string> words = MatchWords(text);
    if (words.empty()) {
        for (std::size_t i = 0; i < ids_.size(); ++i) found_.push_back(RecipeAt(i));
        return found_;
    }
    BitSet found = words_.Find(words.front());
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (std::all_of(found.begin(), found.end(), [](std::uint64_t bits) { return bits == 0; })) break;
        const BitSet also = words_.Find(words[i]);
        for (std::size_t at = 0; at < found.size(); ++at) found[at] &= also[at];
    }
    ForEachBit(found, [&](std::size_t index) { found_.push_back(RecipeAt(index)); });
    return found_;
}

}  // namespace tw
