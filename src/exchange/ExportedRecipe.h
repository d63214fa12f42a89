// A recipe on its way into a file of another format: its facts, and what of the file that it once came from
// goes back unchanged. Plain data; the export fills it, the writers read it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "exchange/ForeignRecipe.h"

namespace tw {

// The fields of a recipe that the brewer can change here.
enum class ExportedField : std::uint8_t {
    Name,
    Type,
    Style,
    BatchSize,
    BoilSize,
    BoilTime,
    Efficiency,
    HopUtilization,
    OriginalGravity,
    FinalGravity,
    Alcohol,
    Bitterness,  // and its method
    Color,
    Carbonation,  // and everything about it
    Notes,
    TasteNotes
};

// Where a line comes from.
struct LineOrigin {
    // The index of its element among those of its kind in the fragment; nullopt for a line made here.
    std::optional<std::size_t> element;
    // True if the line still says what the element says, which is then written as it is. False if the figures
    // of the element are to be replaced; its other fields stay.
    bool unchanged = false;
};

struct ExportedRecipe {
    // Everything to write. fragment is the original recipe in the format of the file to write; empty if there
    // is none.
    ForeignRecipe facts;
    // The fields that differ from those of the fragment; without a fragment they do not count.
    std::set<ExportedField> changed;
    // For each line of facts, in the same order. An element of the fragment that no line names belongs to a
    // line that the brewer has deleted, and is left out.
    std::vector<LineOrigin> fermentables, hops, yeasts, miscs, waters;
};

}  // namespace tw
