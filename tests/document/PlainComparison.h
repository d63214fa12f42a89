// Compares a document with the plain calculation.
#pragma once

#include <string>

#include "PlainRecipe.h"
#include "document/RecipeDocument.h"
#include "support/RecordingHost.h"

namespace tw::test {

// Returns the first difference, in a text, number, check mark, emphasis, button or command;
// empty if there is none.
std::string FirstDifference(RecipeDocument& document, const RecordingHost& host, const PlainRecipe& plain);

}  // namespace tw::test
