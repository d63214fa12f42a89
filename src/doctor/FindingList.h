// The findings of a file or of a recipe as a reader wants them: the worst first, and those that say the same
// of different places folded into one.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/Finding.h"

namespace tw {

struct FindingLine {
    Severity severity = Severity::Note;
    std::string place;
    std::string text;
    bool operator==(const FindingLine&) const = default;
};

// Returns the line of a finding, without the name of its recipe.
FindingLine LineOf(const Finding& finding);
// Returns the place with the name of the recipe before it: "Stout, Hops 2: Cascade".
std::string PlaceWithRecipe(const std::string& recipe, const std::string& place);

// Findings of one severity whose texts differ in nothing but numbers and quoted words.
struct FoldedFinding {
    Severity severity = Severity::Note;
    std::string place;               // of a single finding; empty for several
    std::string text;                // "12 times: ..."; the text itself of a single finding
    std::vector<FindingLine> lines;  // one or more, in their order
};

// Returns the findings, the worst first, and within a severity in the order of their first lines.
std::vector<FoldedFinding> Fold(const std::vector<FindingLine>& lines);
// Returns each line as a finding of its own, in the same order.
std::vector<FoldedFinding> Unfolded(const std::vector<FindingLine>& lines);

// Returns the findings, each as "severity: place: text" and a line feed.
std::string TextOf(const std::vector<FoldedFinding>& findings);

// Returns the worst severity of the lines; nullopt if there are none.
std::optional<Severity> WorstOf(const std::vector<FindingLine>& lines);

}  // namespace tw
