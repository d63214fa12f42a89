// What facts are in the closed lists of BeerXML. Where a list has no word for one, the closest is written.
#pragma once

#include <optional>
#include <string_view>

#include "exchange/BeerXmlTags.h"
#include "exchange/ForeignRecipe.h"

namespace tw {

struct XmlWord {
    std::string_view word;
    bool isExact = true;  // false if the list has no word for it
};

XmlWord XmlHopUse(ForeignUse use);
XmlWord XmlMiscUse(ForeignUse use);
XmlWord XmlHopForm(ForeignHop::Form form);
XmlWord XmlFermentableType(ForeignFermentable::Type type);
std::string_view XmlRecipeType(ForeignRecipe::Type type);
std::string_view XmlIbuMethod(ForeignIbuMethod method);

// Returns what a word of a file, of either format, is in the closed list of a field that holds a word or a
// boolean; nothing if that is not known.
std::optional<XmlWord> XmlWordFor(XmlRecord record, const XmlField& field, std::string_view word);
// Returns the word that a required field has if nothing is known.
std::string_view UsualXmlWord(XmlRecord record, const XmlField& field);

}  // namespace tw
