#include "exchange/BeerXmlEditor.h"

#include <algorithm>
#include <utility>

#include "exchange/AsciiCase.h"
#include "exchange/BeerXmlRecord.h"
#include "exchange/BeerXmlWords.h"
#include "exchange/ExchangeText.h"
#include "exchange/ForeignFigure.h"
#include "exchange/ForeignWords.h"

namespace tw {
namespace {

constexpr std::string_view kVersion = "VERSION";

bool IsFigure(const XmlField& field) {
    return field.holds == XmlHolds::Number || field.holds == XmlHolds::Percent;
}

bool IsStructure(const XmlField& field) {
    return field.holds == XmlHolds::Record || field.holds == XmlHolds::RecordSet;
}

// The texts that show amounts to a reader differ in their blanks.
bool IsShownAmount(std::string_view tag) {
    return tag.starts_with("DISPLAY_");
}

// An amount may differ by as much as the text that it was typed as.
double ToleranceOf(std::string_view tag) {
    constexpr double kSameFigurePart = 1e-6;
    return tag == "AMOUNT" || tag.ends_with("_SIZE") ? kSameAmountPart : kSameFigurePart;
}

bool HasElements(pugi::xml_node element) {
    return std::ranges::any_of(element.children(),
                               [](pugi::xml_node child) { return child.type() == pugi::node_element; });
}

}  // namespace

bool RemoveStrayText(pugi::xml_node element) {
    bool isStray = false;
    pugi::xml_node next;
    for (pugi::xml_node child = element.first_child(); child; child = next) {
        next = child.next_sibling();
        if (child.type() != pugi::node_pcdata && child.type() != pugi::node_cdata) continue;
        isStray = isStray || !TrimSpace(child.value()).empty();
        element.remove_child(child);
    }
    return isStray;
}

BeerXmlEditor::BeerXmlEditor(pugi::xml_node element, XmlRecord record, WriteTelling& telling,
                             std::string place)
    : element_(element),
      rule_(RuleOf(record)),
      telling_(telling),
      place_(std::move(place)),
      slots_(rule_.fields.size()) {
    if (RemoveStrayText(element)) telling_.NoteDropped("text in " + std::string(rule_.tag));
    RemoveAttributes(element);
    pugi::xml_node next;
    for (pugi::xml_node child = element.first_child(); child; child = next) {
        next = child.next_sibling();
        if (child.type() != pugi::node_element) continue;
        const XmlField* const field = FieldOf(record, child.name());
        if (field == nullptr) continue;
        RemoveAttributes(child);
        if (child.name() != field->tag) child.set_name(std::string(field->tag).c_str());
        pugi::xml_node& slot = slots_[IndexOf(field->tag)];
        const bool isBlank = slot && !IsStructure(*field) && TrimmedText(slot).empty();
        if (isBlank && !TrimmedText(child).empty()) element.remove_child(std::exchange(slot, child));
        if (!slot || slot == child) {
            slot = child;
        } else if (field->holds != XmlHolds::RecordSet) {
            telling_.NoteTwice(PathOf(*field));
            element.remove_child(child);
        }
    }
}

// The tags of the format have none.
void BeerXmlEditor::RemoveAttributes(pugi::xml_node element) {
    for (const pugi::xml_attribute attribute : element.attributes())
        telling_.NoteLost({"attribute " + std::string(attribute.name())});
    element.remove_attributes();
}

pugi::xml_node BeerXmlEditor::Element(std::string_view tag) const {
    return slots_[IndexOf(tag)];
}

pugi::xml_node BeerXmlEditor::Obtain(std::string_view tag) {
    pugi::xml_node& slot = slots_[IndexOf(tag)];
    if (!slot) slot = element_.append_child(std::string(tag).c_str());
    return slot;
}

void BeerXmlEditor::Change(const XmlValues& values) {
    for (const XmlValue& value : values.values) {
        const std::size_t index = IndexOf(value.tag);
        const bool isNew = !slots_[index];
        if (!isNew && (value.tag == kVersion || SaysTheSame(rule_.fields[index], value))) continue;
        Write(index, value);
        if (isNew) continue;
        for (const std::string_view shown : XmlShownTags(value.tag))
            if (values.Find(shown) == nullptr) Remove(shown);
    }
}

void BeerXmlEditor::Remove(std::string_view tag) {
    pugi::xml_node& slot = slots_[IndexOf(tag)];
    element_.remove_child(slot);
    slot = pugi::xml_node();
}

void BeerXmlEditor::Complete(const XmlValues& values) {
    for (std::size_t i = 0; i < slots_.size(); ++i)
        if (!IsStructure(rule_.fields[i])) CompleteField(i, values);
}

bool BeerXmlEditor::Needs(const XmlField& field) const {
    return tw::IsNeeded(field, [&](std::string_view word) {
        const pugi::xml_node type = slots_[IndexOf("TYPE")];
        return type && EqualAscii(TrimmedText(type), word);
    });
}

std::size_t BeerXmlEditor::IndexOf(std::string_view tag) const {
    const auto found = std::ranges::find(rule_.fields, tag, &XmlField::tag);
    return static_cast<std::size_t>(found - rule_.fields.begin());
}

std::string BeerXmlEditor::PathOf(const XmlField& field) const {
    const std::string tag(field.tag);
    return rule_.record == XmlRecord::Recipe ? tag : std::string(rule_.tag) + "/" + tag;
}

bool BeerXmlEditor::SaysTheSame(const XmlField& field, const XmlValue& value) const {
    const std::string old = TrimmedText(slots_[IndexOf(field.tag)]);
    if (old == value.text) return true;
    if (IsShownAmount(field.tag)) return WrittenAmount(old) == value.text;
    const bool isPotential = field.tag == "POTENTIAL";
    if (!IsFigure(field) && !isPotential) {
        if (field.holds != XmlHolds::Word && field.holds != XmlHolds::Boolean) return false;
        const auto word = XmlWordFor(rule_.record, field, old);
        return word && word->word == value.text;
    }
    const FigureUnit unit = XmlFigureUnit(rule_.record, field);
    const auto before = ReadFigure(old, unit).value;
    const auto now = ReadFigure(value.text, isPotential ? unit : FigureUnit::Plain).value;
    return before && now && IsWithin(*before, *now, ToleranceOf(field.tag));
}

void BeerXmlEditor::Set(std::size_t index, std::string_view text) {
    pugi::xml_node& slot = slots_[index];
    if (!slot) slot = element_.append_child(std::string(rule_.fields[index].tag).c_str());
    slot.remove_children();
    if (!text.empty()) slot.append_child(pugi::node_pcdata).set_value(std::string(text).c_str());
}

void BeerXmlEditor::Write(std::size_t index, const XmlValue& value) {
    Set(index, value.text);
    if (!value.remark.empty()) telling_.Tell(Severity::Approximated, value.code, place_, value.remark);
}

void BeerXmlEditor::CompleteField(std::size_t index, const XmlValues& values) {
    const XmlField& field = rule_.fields[index];
    const bool isNeeded = Needs(field);
    if (!slots_[index]) {
        if (isNeeded) Fill(index, values);
        return;
    }
    const std::string text = TrimmedText(slots_[index]);
    if (HasElements(slots_[index])) {
        Set(index, text);
        telling_.NoteRespelled(PathOf(field));
    }
    bool isUsable = !text.empty();
    if (isUsable && IsFigure(field))
        isUsable = MendFigure(index, text);
    else if (isUsable && field.holds != XmlHolds::Text)
        isUsable = MendWord(index, text);
    if (isUsable) return;
    if (isNeeded) {
        Fill(index, values);
    } else {
        telling_.NoteDropped(PathOf(field));
        Remove(field.tag);
    }
}

// Returns false if the text states no figure.
bool BeerXmlEditor::MendFigure(std::size_t index, const std::string& text) {
    const XmlField& field = rule_.fields[index];
    const bool isNegativePercent = field.holds == XmlHolds::Percent && text.front() == '-';
    if (IsPlainNumber(text) && !isNegativePercent) return true;
    const auto figure = ReadFigure(text, XmlFigureUnit(rule_.record, field)).value;
    if (!figure) return false;
    Set(index, PlainNumber(*figure));
    telling_.NoteRespelled(PathOf(field));
    return true;
}

// Returns false if the word says nothing.
bool BeerXmlEditor::MendWord(std::size_t index, const std::string& text) {
    const XmlField& field = rule_.fields[index];
    const auto word = XmlWordFor(rule_.record, field, text);
    if (!word) return false;
    if (word->word == text) return true;
    Set(index, word->word);
    if (field.holds == XmlHolds::Boolean || FitOf(text, field.words) == WordFit::Folded)
        telling_.NoteRespelled(PathOf(field));
    else
        telling_.Tell(Severity::Approximated,
                      field.tag == "USE" ? FindingCode::HopUse : FindingCode::UnknownWord, place_,
                      std::string(field.tag) + " " + Quoted(text) +
                          " is not a word of BeerXML and was written as " + Quoted(word->word) + ".");
    return true;
}

// Gives a required field the value of the facts, or one that says nothing.
void BeerXmlEditor::Fill(std::size_t index, const XmlValues& values) {
    const XmlField& field = rule_.fields[index];
    if (const XmlValue* const value = values.Find(field.tag)) return Write(index, *value);
    if (field.tag == kVersion) return Set(index, "1");
    if (field.holds == XmlHolds::Text) return Set(index, {});
    telling_.NoteFilled(PathOf(field));
    Set(index, IsFigure(field) ? "0" : UsualXmlWord(rule_.record, field));
}

}  // namespace tw
