// One record of a BeerXML file: its fields by their tags, as values, with all that is odd about them told.
#pragma once

#include <cstddef>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/BeerXmlTags.h"
#include "exchange/ForeignFigure.h"
#include "exchange/ForeignTelling.h"
#include "exchange/ForeignWords.h"

namespace tw {

// Returns the text of an element and of the elements in it, without blanks and line ends around it.
std::string TrimmedText(pugi::xml_node element);
// Returns the unit in which the format wants a field's figure.
FigureUnit XmlFigureUnit(XmlRecord record, const XmlField& field);

class BeerXmlRecord {
  public:
    // Indexes the fields and tells of those that are missing, empty, unknown, or there twice. place is as in
    // a Finding, path leads to the record: "HOPS/HOP". An empty path means that the record is kept aside as a
    // whole. A recipe takes records and record sets at any depth: they are not told as unknown tags.
    BeerXmlRecord(pugi::xml_node element, XmlRecord record, ForeignTelling& telling, std::string place,
                  std::string path);

    // In all of these, tag is a field of the record, in upper case. What is odd about the text is told once.

    // nullptr if there is none. Of several the first.
    pugi::xml_node Element(std::string_view tag);
    std::string Text(std::string_view tag);
    // Absent if missing, empty or unusable.
    std::optional<double> Figure(std::string_view tag);
    // Returns the figure of the first tag that has one.
    std::optional<double> FirstFigure(std::string_view tag, std::string_view otherwise);
    ForeignRange Range(std::string_view low, std::string_view high);
    std::optional<bool> Boolean(std::string_view tag);
    // Returns the meaning that meaningOf gives to the field's word.
    template <class T>
    std::optional<T> Word(std::string_view tag,
                          std::optional<WordMeaning<T>> (*meaningOf)(std::string_view)) {
        const std::string text = Text(tag);
        if (text.empty()) return std::nullopt;
        const auto meaning = meaningOf(text);
        TellWord(tag, text, meaning ? meaning->shown : "");
        if (!meaning) return std::nullopt;
        return meaning->value;
    }
    // Returns a word that keeps its spelling.
    std::string FreeWord(std::string_view tag);
    // Returns an amount of that kind in AMOUNT or another field, shown as in the field displayTag. Where the
    // field states none, the shown amount counts.
    std::optional<ForeignAmount> Amount(std::string_view tag, std::string_view displayTag,
                                        ForeignAmount::Of of);
    // Returns a volume.
    std::optional<ForeignAmount> Volume(std::string_view tag, std::string_view displayTag);
    // Returns what AMOUNT states: kilograms or litres as AMOUNT_IS_WEIGHT says, without it as the unit of
    // DISPLAY_AMOUNT says, else litres. A number shown as pieces counts pieces.
    std::optional<ForeignAmount> WeightOrVolume();
    // Tells if that amount is in litres for want of anything that says so: the standard contradicts itself
    // for other ingredients.
    void TellGuessedVolume(const std::optional<ForeignAmount>& amount);

    // Checks the fields that nothing has read, and lists them as kept aside.
    void End();

  private:
    struct Slot {
        pugi::xml_node element;
        bool isRead = false;
    };

    void Index(pugi::xml_node element);
    void TellMissing() const;
    bool IsNeeded(const XmlField& field) const;
    std::string PathOf(std::string_view tag) const;
    std::size_t IndexOf(std::string_view tag) const;
    void Check(const XmlField& field, const Slot& slot);
    void TellWord(std::string_view tag, std::string_view text, std::string_view readAs) const;
    void TellOdd(std::string_view tag, std::string_view text, const ForeignFigure& figure,
                 FigureUnit unit) const;

    const XmlRecordRule& rule_;
    ForeignTelling& telling_;
    std::string place_;
    std::string path_;
    std::vector<Slot> slots_;  // as many as the record has fields
};

}  // namespace tw
