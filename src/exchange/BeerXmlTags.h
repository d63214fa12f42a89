// The tags of BeerXML 1.0: the only list of its records and fields. Reading looks up what a tag means and
// where it may stand, mending where a forgotten closing tag belongs, writing what a record must have.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tw {

enum class XmlRecord : std::uint8_t {
    Recipe,
    Hop,
    Fermentable,
    Yeast,
    Misc,
    Water,
    Style,
    Equipment,
    Mash,
    MashStep
};
inline constexpr std::size_t kXmlRecords = 10;

enum class XmlNeed : std::uint8_t {
    Required,
    UnlessExtract,  // required in a recipe that is not of the type Extract
    WhenInfusion,   // required in a mash step of the type Infusion
    Optional,
    Display  // a text for a reader, which may be rounded
};

enum class XmlHolds : std::uint8_t {
    Text,
    Number,
    Percent,
    Boolean,
    Word,      // one of words
    Record,    // the fields of the record of that tag
    RecordSet  // any number of records
};

struct XmlField {
    std::string_view tag;
    XmlNeed need;
    XmlHolds holds;
    std::span<const std::string_view> words = {};  // the closed list of a Word
};

struct XmlRecordRule {
    XmlRecord record;
    std::string_view tag;     // "HOP"
    std::string_view setTag;  // "HOPS"
    std::span<const XmlField> fields;
};

// True if a record must have the field. typeIs says whether the TYPE of the record is a word of its list.
template <class TypeIs>
bool IsNeeded(const XmlField& field, TypeIs typeIs) {
    switch (field.need) {
        case XmlNeed::Required:
            return true;
        case XmlNeed::UnlessExtract:
            return !typeIs("Extract");
        case XmlNeed::WhenInfusion:
            return typeIs("Infusion");
        case XmlNeed::Optional:
        case XmlNeed::Display:
            return false;
    }
    return false;
}

// Indexed by record.
std::span<const XmlRecordRule, kXmlRecords> XmlRecordRules();
const XmlRecordRule& RuleOf(XmlRecord record);

// All look-ups ignore the case of ASCII letters. nullptr if the tag is none.
const XmlRecordRule* RecordOfTag(std::string_view tag);
const XmlRecordRule* RecordOfSet(std::string_view setTag);
// Returns the field of that tag in the record.
const XmlField* FieldOf(XmlRecord record, std::string_view tag);
// True for a tag of any record set, record or field.
bool IsXmlTag(std::string_view tag);
// True if the tag may stand directly in an element with the tag parent. An empty parent is the top of the
// file, where record sets and single records stand.
bool MayStandIn(std::string_view tag, std::string_view parent);

}  // namespace tw
