// How the recipes of another program are to be read: what the brewer chose in the window of the import, or a
// script by its commands.
#pragma once

#include "doctor/AmountTexts.h"

namespace tw {

struct ImportOptions {
    ImportUnits units = ImportUnits::AsInFile;
    // Figures that the file does not know are taken from the catalogue.
    bool catalogueFigures = true;

    // Remedies for what looks wrong. Each changes only the recipes for which it is offered.
    bool grams = false;       // amounts that are impossible in kilograms are grams
    bool gravity = false;     // the extraction becomes the one that gives the stated gravity
    bool bitterness = false;  // the hop constant becomes the one that gives the stated bitterness
    bool ebc = false;         // colours are EBC

    // Styles and ingredients that the catalogue does not have are added to it.
    bool addStyles = false;
    bool addIngredients = false;

    bool operator==(const ImportOptions&) const = default;
};

}  // namespace tw
