// Everything that a recipe document holds and shows, as text for comparison.
#pragma once

#include <string>

#include "document/RecipeDocument.h"
#include "support/RecordingHost.h"

namespace tw::test {

struct DocumentState {
    // What the brewer entered: the texts of the boxes and of the editable cells, check
    // marks, style and options.
    std::string entered;
    // Everything in `entered`, and numbers with their kinds, committed texts, figures, labels, emphasis,
    // swatch, buttons and the commands of the main window. The number of an empty figure is left out, since
    // it keeps its last value.
    std::string all;

    bool operator==(const DocumentState&) const = default;
};

// Calculated numbers are compared to 12 digits, since a sum over rows in another order may differ in the last
// digit. The two calculated rows of gridWater are blank until the water or the volume is first committed and
// can never be blank again; these blanks are treated as the zeros that they mean.
DocumentState StateOf(const RecipeDocument& document, const RecordingHost& host);

// Returns the lines in which two states differ; those of the first state begin with "-".
std::string Differences(const std::string& wanted, const std::string& got);

// Returns the text box whose entry has not been committed, nullptr if all have been. Free
// text counts as committed.
TextBox* PendingBox(RecipeDocument& document);

}  // namespace tw::test
