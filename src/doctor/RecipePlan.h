// What to type to make a recipe of another program one of this: texts for fields and cells, in the order in
// which they are typed. Plain data; RecipePlanner makes it, RecipeTypist types it, and the export compares a
// recipe with it to find out what the brewer has changed since.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "calc/Hops.h"
#include "record/Controls.h"
#include "record/Grid.h"

namespace tw {

// A line of the foreign recipe.
struct ForeignLine {
    enum class Kind : std::uint8_t { Fermentable, Hop, Yeast, Misc, Water };
    Kind kind;
    std::size_t index;  // among those of its kind
    bool operator==(const ForeignLine&) const = default;
};

struct PlannedField {
    FieldId field;
    std::string text;
};

struct PlannedCell {
    int col;
    std::string text;
};

struct PlannedLine {
    GridId grid;
    std::string place;               // where it stands in the file, for a reader: "Hops 2: Cascade"
    std::vector<PlannedCell> cells;  // the first is the name
    bool dry = false;                // of a hop
    std::vector<ForeignLine> from;   // what it was made of
};

struct RecipePlan {
    std::string name;                  // not blank
    std::optional<std::string> style;  // of the catalogue
    std::optional<IbuMethod> ibuMethod;
    std::optional<bool> bottled;
    std::vector<PlannedField> fields;  // in the order of typing
    std::vector<PlannedLine> lines;    // likewise
    // The finished gravity is typed behind all lines: as text if the file states it, else from the
    // attenuation (apparent, percent) once the original gravity is known.
    std::string finishedGravity;
    std::optional<double> attenuation;
    bool catalogueAttenuation = true;  // if neither is there, that of the yeast in the catalogue counts
};

}  // namespace tw
