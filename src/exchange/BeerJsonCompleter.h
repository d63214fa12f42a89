// Makes JSON objects valid that are not quite.
#pragma once

#include <string>

#include "exchange/BeerJsonSchema.h"
#include "exchange/WriteTelling.h"
#include "values/Json.h"

namespace tw {

// Makes an object valid for the shape: spells words, units and numbers as the format does, leaves out what it
// forbids, and adds what it requires, from the object known where that has it, else empty, 0 or the usual
// word. path leads to the object and is empty for the recipe. REQUIRES: object is an object; known is one, or
// null for none.
void CompleteJson(Json& object, const JsonShape& shape, const Json& known, const std::string& path,
                  WriteTelling& telling);

// Returns the word of the list that a word means, ignoring case, blanks and hyphens; empty if there is none.
std::string_view ListedWord(std::string_view word, std::span<const std::string_view> list);

}  // namespace tw
