// What the facts of a recipe are in BeerXML: the texts of its fields, record by record.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/BeerXmlTags.h"
#include "exchange/ForeignRecipe.h"

namespace tw {

struct XmlValue {
    std::string_view tag;
    std::string text;
    // A sentence for the brewer if the format cannot say it exactly; told when the text is written.
    FindingCode code = FindingCode::UnknownWord;
    std::string remark = {};
};

// The fields of one record that the facts know.
struct XmlValues {
    std::vector<XmlValue> values;
    std::vector<std::string> lost;  // what the format has no field for: "the producer of hops"

    const XmlValue* Find(std::string_view tag) const;
};

XmlValues XmlValuesOf(const ForeignFermentable& line);
XmlValues XmlValuesOf(const ForeignHop& line);
XmlValues XmlValuesOf(const ForeignYeast& line);
XmlValues XmlValuesOf(const ForeignMisc& line);
XmlValues XmlValuesOf(const ForeignWater& line);
XmlValues XmlValuesOf(const ForeignStyle& style);
// The fields of a recipe that are neither records nor record sets. A recipe whose type is unknown gets the
// one that its fermentables make it.
XmlValues XmlValuesOf(const ForeignRecipe& recipe);
// The equipment, which holds the utilization of hops and a boil size of its own.
XmlValues XmlEquipmentValues(const ForeignRecipe& recipe);

// Returns the tags of the texts that show a field to a reader, or follow from it: no longer true once the
// field has changed.
std::vector<std::string_view> XmlShownTags(std::string_view tag);

}  // namespace tw
