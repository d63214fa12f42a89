// One record of a BeerJSON file: its fields by their keys, as values, with all that is odd about them told.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/BeerJsonSchema.h"
#include "exchange/ForeignFigure.h"
#include "exchange/ForeignTelling.h"
#include "exchange/ForeignWords.h"
#include "values/Json.h"

namespace tw {

class BeerJsonRecord {
  public:
    // Tells of the fields that are missing, empty, unknown, or there twice. value may be of any kind; one
    // that is no object has no fields. place is as in a Finding, path leads from the recipe to the record:
    // "ingredients/hop_additions"; it is empty for the recipe. A library does not require what only a recipe
    // does.
    BeerJsonRecord(const Json& value, JsonRecord record, ForeignTelling& telling, std::string place,
                   std::string path, bool isInRecipe = true);

    // What is odd about a field is told by each of these: ask for a field once.

    // nullptr if there is none.
    const Json* Value(std::string_view key);
    // Like Value, but the field still counts as one that no structure takes.
    const Json* Peek(std::string_view key) const { return value_.Find(key); }
    std::string Text(std::string_view key);
    // Returns a quantity, which may be a bare number or a text as well. Absent if its unit is of another
    // kind.
    std::optional<double> Figure(std::string_view key, FigureUnit wanted, ZeroMeans zero = ZeroMeans::Zero);
    // Returns a quantity that the format wants as a bare number.
    std::optional<double> Number(std::string_view key, FigureUnit wanted, ZeroMeans zero = ZeroMeans::Zero);
    ForeignRange Range(std::string_view key, FigureUnit wanted);
    // Returns an amount; a bare number is in kilograms, litres or pieces as bareIs says.
    std::optional<ForeignAmount> Amount(std::string_view key, ForeignAmount::Of bareIs,
                                        ZeroMeans zero = ZeroMeans::Zero);
    std::optional<ForeignAmount> Volume(std::string_view key);
    std::optional<bool> Boolean(std::string_view key);
    // REQUIRES: the field has a closed list.
    template <class T>
    std::optional<T> Word(std::string_view key,
                          std::optional<WordMeaning<T>> (*meaningOf)(std::string_view)) {
        const std::string text = Text(key);
        if (text.empty()) return std::nullopt;
        const auto meaning = meaningOf(text);
        telling_.TellWord(place_, key, text, FieldOf(shape_, key)->words, meaning ? meaning->shown : "");
        if (!meaning) return std::nullopt;
        return meaning->value;
    }
    // Returns the elements of an array; a single value counts as one element.
    std::span<const Json> Elements(std::string_view key);

    void Tell(Severity severity, FindingCode code, std::string text) const;
    // Lists the fields that nothing has read as kept aside.
    void End();

  private:
    void TellKeys(bool isInRecipe) const;

    const Json& value_;
    const JsonShape& shape_;
    ForeignTelling& telling_;
    std::string place_;
    std::string path_;
    std::vector<std::string_view> read_;
};

// Returns the figure that a value states: a number with its unit, a bare number, or a text. What is odd about
// it is told, a bare number unless it may be one. Absent if the unit is of another kind.
std::optional<double> ReadJsonFigure(const Json& value, std::string_view key, FigureUnit wanted,
                                     const ForeignTelling& telling, std::string_view place,
                                     ZeroMeans zero = ZeroMeans::Zero, bool mayBeBare = false);

// Returns the place of a path below another one: "boil/boil_steps".
std::string Joined(const std::string& path, std::string_view key);

}  // namespace tw
