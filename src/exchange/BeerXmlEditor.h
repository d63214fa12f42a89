// One record of BeerXML on its way into a file: takes new figures, and becomes what the format allows.
#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/BeerXmlTags.h"
#include "exchange/BeerXmlValues.h"
#include "exchange/WriteTelling.h"

namespace tw {

// Removes texts that stand directly in an element that holds only others, such as a record. Returns true if
// there were any but blanks.
bool RemoveStrayText(pugi::xml_node element);

class BeerXmlEditor {
  public:
    // Spells the tags of the element's fields as the format does. Of a field that it has twice the first
    // stays; record sets are left alone. Removes stray text and the attributes of the element and its fields.
    // place is as in a Finding.
    BeerXmlEditor(pugi::xml_node element, XmlRecord record, WriteTelling& telling, std::string place);

    // In all of these, tag is a field of the record.

    // nullptr if there is none.
    pugi::xml_node Element(std::string_view tag) const;
    // Returns the element of a record or a record set, which is added if there is none.
    pugi::xml_node Obtain(std::string_view tag);
    // Writes the values that differ from what the record says, and removes the texts that show a field which
    // has changed. Fields without a value stay.
    void Change(const XmlValues& values);
    void Remove(std::string_view tag);
    // Makes the record valid: spells words and figures as the format does, removes optional fields without a
    // usable value and adds missing required ones, as values has them, else empty, 0 or a usual word. Records
    // and record sets are left alone.
    void Complete(const XmlValues& values);
    // True if the record, with its present TYPE, must have the field.
    bool Needs(const XmlField& field) const;

  private:
    std::size_t IndexOf(std::string_view tag) const;
    std::string PathOf(const XmlField& field) const;
    bool SaysTheSame(const XmlField& field, const XmlValue& value) const;
    void Set(std::size_t index, std::string_view text);
    void Write(std::size_t index, const XmlValue& value);
    void CompleteField(std::size_t index, const XmlValues& values);
    bool MendFigure(std::size_t index, const std::string& text);
    bool MendWord(std::size_t index, const std::string& text);
    void Fill(std::size_t index, const XmlValues& values);
    void RemoveAttributes(pugi::xml_node element);

    pugi::xml_node element_;
    const XmlRecordRule& rule_;
    WriteTelling& telling_;
    std::string place_;
    std::vector<pugi::xml_node> slots_;  // as many as the record has fields
};

}  // namespace tw
