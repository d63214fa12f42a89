// The words that other programs write where their format has a closed list: those of the list in any case,
// and what real files have instead of them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "exchange/ForeignRecipe.h"

namespace tw {

// How a word stands in a closed list.
enum class WordFit : std::uint8_t {
    Listed,  // as spelt there
    Folded,  // but for case, blanks and hyphens
    None
};
WordFit FitOf(std::string_view word, std::span<const std::string_view> list);

// A word's meaning, and how to tell a brewer of it: "dry hop".
template <class T>
struct WordMeaning {
    T value;
    std::string_view shown;
};

// Each returns what a word means in either format, ignoring case, blanks and hyphens; nothing if that is not
// known.
std::optional<WordMeaning<ForeignUse>> UseOfWord(std::string_view word);
std::optional<WordMeaning<ForeignFermentable::Type>> FermentableTypeOfWord(std::string_view word);
std::optional<WordMeaning<ForeignHop::Form>> HopFormOfWord(std::string_view word);
std::optional<WordMeaning<ForeignRecipe::Type>> RecipeTypeOfWord(std::string_view word);
std::optional<WordMeaning<ForeignIbuMethod>> IbuMethodOfWord(std::string_view word);
std::optional<WordMeaning<bool>> BooleanOfWord(std::string_view word);

}  // namespace tw
