// All that a recipe document holds and shows, as text that can be compared.
#pragma once

#include <string>

#include "document/RecipeDocument.h"
#include "support/RecordingHost.h"

namespace tw::test {

struct DocumentState {
    // What the brewer entered: the texts of the boxes and of the cells that can be edited, check marks, style
    // and options.
    std::string entered;
    // The same with everything behind and beside it: numbers and their kinds, committed texts, figures,
    // labels, emphasis, swatch, buttons and the commands of the main window. The number behind an empty
    // figure does not count: it keeps its last value.
    std::string all;

    bool operator==(const DocumentState&) const = default;
};

// Computed numbers count with 12 digits, since a sum over rows in another order may differ in the last one.
// The two computed rows of gridWater are blank until the water or the volume is first committed, and can
// never be blank again: their blanks count as the zeros that they stand for.
DocumentState StateOf(const RecipeDocument& document, const RecordingHost& host);

// The lines of two states that differ, "-" before those of the first.
std::string Differences(const std::string& wanted, const std::string& got);

// The text box whose entry has not been committed, nullptr when all have been. Free text counts as committed.
TextBox* PendingBox(RecipeDocument& document);

}  // namespace tw::test
