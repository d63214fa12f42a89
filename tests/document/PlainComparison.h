// A document beside the plain calculation.
#pragma once

#include <string>

#include "PlainRecipe.h"
#include "document/RecipeDocument.h"
#include "support/RecordingHost.h"

namespace tw::test {

// Where the two differ first, in a text, number, check mark, emphasis, button or command; empty when they do
// not.
std::string FirstDifference(RecipeDocument& document, const RecordingHost& host, const PlainRecipe& plain);

}  // namespace tw::test
