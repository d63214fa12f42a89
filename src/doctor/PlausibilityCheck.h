// Looks for what is probably wrong in a foreign recipe: amounts that nobody brews with, and figures that
// differ from those that the file states. The limits come from comparing about 130 recipes of other programs
// with the figures that they state.
#pragma once

#include <optional>

#include "exchange/Finding.h"
#include "exchange/ForeignRecipe.h"

namespace tw {

// Which remedies help a recipe.
struct RemediesOffered {
    bool grams = false;       // amounts in kilograms are probably grams
    bool gravity = false;     // another extraction gives the stated gravity
    bool bitterness = false;  // another hop constant gives the stated bitterness
    bool ebc = false;         // colours are probably EBC
    bool operator==(const RemediesOffered&) const = default;
};

// Adds what is suspicious about amounts: more than 40 g of hops a litre (above 300 probably grams written as
// kilograms), a grist below 60 or above 800 g a litre (above 3,000 likewise), alpha acids above 25 % or below
// 1 %, a boil smaller than the batch, an efficiency of 0 with mashed grain, a hop utilization of
// 0 with hops, an attenuation outside of 40 to 100 %.
void CheckAmounts(const ForeignRecipe& recipe, Findings& findings);

// Adds one note if a recipe of the file states a bitterness and has hops that are no leaf hops.
void NoteHopForms(const ForeignFile& file, Findings& findings);

// What a recipe says after it has been typed here.
struct TypedFigures {
    StatedFigures calculated;
    std::optional<double> ibuWithoutForm;  // bitterness without the factors of the hops' forms
    std::optional<double> attenuation;     // apparent, percent, that the file or the catalogue expects
    // False if no extraction gives the stated gravity, or no hop constant the stated bitterness.
    bool canMeetGravity = true, canMeetBitterness = true;
};

// Adds what differs between the figures that the file states and the calculated ones, and returns the
// remedies that help. A note, or suspicious: original gravity above 0.002, 0.010; finished gravity, compared
// with the attenuation, 0.002, 0.006; alcohol 0.2, 0.5 percent by volume; colour 10 %, 25 %; bitterness
// without the factors of the forms 10 %, 25 %.
RemediesOffered CheckFigures(const ForeignRecipe& recipe, const TypedFigures& typed, Findings& findings);

}  // namespace tw
