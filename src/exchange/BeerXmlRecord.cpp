#include "exchange/BeerXmlRecord.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "exchange/AsciiCase.h"

namespace tw {
namespace {

using enum XmlRecord;

// The unit of a figure, where it is neither a percentage nor a plain number.
struct FieldUnit {
    XmlRecord record;
    std::string_view tag;
    FigureUnit unit;
    ZeroMeans zero = ZeroMeans::Zero;
};

constexpr std::array kUnits = {
    FieldUnit{Recipe, "BATCH_SIZE", FigureUnit::Litres, ZeroMeans::Unknown},
    FieldUnit{Recipe, "BOIL_SIZE", FigureUnit::Litres, ZeroMeans::Unknown},
    FieldUnit{Recipe, "BOIL_TIME", FigureUnit::Minutes},
    FieldUnit{Recipe, "OG", FigureUnit::Gravity},
    FieldUnit{Recipe, "FG", FigureUnit::Gravity},
    FieldUnit{Recipe, "EST_OG", FigureUnit::Gravity},
    FieldUnit{Recipe, "EST_FG", FigureUnit::Gravity},
    FieldUnit{Recipe, "EST_COLOR", FigureUnit::Srm},
    FieldUnit{Recipe, "EST_ABV", FigureUnit::Percent},
    FieldUnit{Recipe, "ABV", FigureUnit::Percent},
    FieldUnit{Recipe, "IBU", FigureUnit::Ibus},
    FieldUnit{Recipe, "PRIMARY_AGE", FigureUnit::Days},
    FieldUnit{Recipe, "SECONDARY_AGE", FigureUnit::Days},
    FieldUnit{Recipe, "TERTIARY_AGE", FigureUnit::Days},
    FieldUnit{Recipe, "AGE", FigureUnit::Days},
    FieldUnit{Recipe, "PRIMARY_TEMP", FigureUnit::Celsius},
    FieldUnit{Recipe, "SECONDARY_TEMP", FigureUnit::Celsius},
    FieldUnit{Recipe, "TERTIARY_TEMP", FigureUnit::Celsius},
    FieldUnit{Recipe, "AGE_TEMP", FigureUnit::Celsius},
    FieldUnit{Recipe, "CARBONATION", FigureUnit::Volumes, ZeroMeans::Unknown},
    FieldUnit{Recipe, "CARBONATION_TEMP", FigureUnit::Celsius},
    FieldUnit{Hop, "AMOUNT", FigureUnit::Kilograms},
    FieldUnit{Hop, "TIME", FigureUnit::Minutes},
    FieldUnit{Fermentable, "AMOUNT", FigureUnit::Kilograms},
    FieldUnit{Fermentable, "YIELD", FigureUnit::Percent, ZeroMeans::Unknown},
    FieldUnit{Fermentable, "COLOR", FigureUnit::Lovibond},
    FieldUnit{Fermentable, "POTENTIAL", FigureUnit::Potential},
    FieldUnit{Yeast, "MIN_TEMPERATURE", FigureUnit::Celsius},
    FieldUnit{Yeast, "MAX_TEMPERATURE", FigureUnit::Celsius},
    FieldUnit{Misc, "TIME", FigureUnit::Minutes},
    FieldUnit{Water, "AMOUNT", FigureUnit::Litres},
    FieldUnit{Water, "CALCIUM", FigureUnit::MilligramsPerLitre},
    FieldUnit{Water, "BICARBONATE", FigureUnit::MilligramsPerLitre},
    FieldUnit{Water, "SULFATE", FigureUnit::MilligramsPerLitre},
    FieldUnit{Water, "CHLORIDE", FigureUnit::MilligramsPerLitre},
    FieldUnit{Water, "SODIUM", FigureUnit::MilligramsPerLitre},
    FieldUnit{Water, "MAGNESIUM", FigureUnit::MilligramsPerLitre},
    FieldUnit{Style, "OG_MIN", FigureUnit::Gravity},
    FieldUnit{Style, "OG_MAX", FigureUnit::Gravity},
    FieldUnit{Style, "FG_MIN", FigureUnit::Gravity},
    FieldUnit{Style, "FG_MAX", FigureUnit::Gravity},
    FieldUnit{Style, "IBU_MIN", FigureUnit::Ibus},
    FieldUnit{Style, "IBU_MAX", FigureUnit::Ibus},
    FieldUnit{Style, "COLOR_MIN", FigureUnit::Srm},
    FieldUnit{Style, "COLOR_MAX", FigureUnit::Srm},
    FieldUnit{Style, "CARB_MIN", FigureUnit::Volumes},
    FieldUnit{Style, "CARB_MAX", FigureUnit::Volumes},
    FieldUnit{Equipment, "BOIL_SIZE", FigureUnit::Litres, ZeroMeans::Unknown},
    FieldUnit{Equipment, "BATCH_SIZE", FigureUnit::Litres, ZeroMeans::Unknown},
    FieldUnit{Equipment, "BOIL_TIME", FigureUnit::Minutes},
    FieldUnit{Equipment, "TUN_VOLUME", FigureUnit::Litres},
    FieldUnit{Equipment, "TUN_WEIGHT", FigureUnit::Kilograms},
    FieldUnit{Equipment, "TOP_UP_WATER", FigureUnit::Litres},
    FieldUnit{Equipment, "TOP_UP_KETTLE", FigureUnit::Litres},
    FieldUnit{Equipment, "TRUB_CHILLER_LOSS", FigureUnit::Litres},
    FieldUnit{Equipment, "LAUTER_DEADSPACE", FigureUnit::Litres},
    FieldUnit{Mash, "GRAIN_TEMP", FigureUnit::Celsius},
    FieldUnit{Mash, "TUN_TEMP", FigureUnit::Celsius},
    FieldUnit{Mash, "SPARGE_TEMP", FigureUnit::Celsius},
    FieldUnit{Mash, "TUN_WEIGHT", FigureUnit::Kilograms},
    FieldUnit{MashStep, "STEP_TEMP", FigureUnit::Celsius},
    FieldUnit{MashStep, "END_TEMP", FigureUnit::Celsius},
    FieldUnit{MashStep, "STEP_TIME", FigureUnit::Minutes},
    FieldUnit{MashStep, "RAMP_TIME", FigureUnit::Minutes},
    FieldUnit{MashStep, "INFUSE_AMOUNT", FigureUnit::Litres},
};

FieldUnit UnitOf(XmlRecord record, const XmlField& field) {
    const auto* const found = std::ranges::find_if(
        kUnits, [&](const FieldUnit& each) { return each.record == record && each.tag == field.tag; });
    if (found != kUnits.end()) return *found;
    return {record, field.tag, field.holds == XmlHolds::Percent ? FigureUnit::Percent : FigureUnit::Plain};
}

void AddOnce(std::vector<std::string>& list, std::string_view text) {
    if (std::ranges::find(list, text) == list.end()) list.emplace_back(text);
}

// Returns the node behind node, in the order of the file, within root; nullptr behind the last one.
pugi::xml_node Following(pugi::xml_node node, pugi::xml_node root) {
    if (node.first_child()) return node.first_child();
    while (node != root && !node.next_sibling()) node = node.parent();
    return node == root ? pugi::xml_node() : node.next_sibling();
}

// Returns the only text of an element; nothing if it has several parts.
std::optional<std::string_view> OnlyText(pugi::xml_node element) {
    const pugi::xml_node first = element.first_child();
    if (first.next_sibling() || first.type() == pugi::node_element) return std::nullopt;
    return TrimSpace(first.value());
}

bool IsBlank(pugi::xml_node element) {
    const auto only = OnlyText(element);
    return only ? only->empty() : TrimmedText(element).empty();
}

// A field that only shows another one again.
bool IsForDisplay(const XmlField& field) {
    return field.need == XmlNeed::Display && (field.tag.starts_with("DISP") || field.tag.ends_with("_RANGE"));
}

bool IsWord(const XmlField& field) {
    return field.holds == XmlHolds::Word || field.holds == XmlHolds::Boolean;
}

bool IsFigure(const XmlField& field) {
    return field.holds == XmlHolds::Number || field.holds == XmlHolds::Percent;
}

bool IsText(const XmlField& field) {
    return field.holds != XmlHolds::Record && field.holds != XmlHolds::RecordSet;
}

}  // namespace

FigureUnit XmlFigureUnit(XmlRecord record, const XmlField& field) {
    return UnitOf(record, field).unit;
}

std::string TrimmedText(pugi::xml_node element) {
    if (const auto only = OnlyText(element)) return std::string(*only);
    std::string text;
    for (pugi::xml_node node = element.first_child(); node; node = Following(node, element))
        if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata) text += node.value();
    return std::string(TrimSpace(text));
}

BeerXmlRecord::BeerXmlRecord(pugi::xml_node element, XmlRecord record, ForeignTelling& telling,
                             std::string place, std::string path)
    : rule_(RuleOf(record)),
      telling_(telling),
      place_(std::move(place)),
      path_(std::move(path)),
      slots_(rule_.fields.size()) {
    Index(element);
    TellMissing();
}

pugi::xml_node BeerXmlRecord::Element(std::string_view tag) {
    Slot& slot = slots_[IndexOf(tag)];
    slot.isRead = true;
    return slot.element;
}

std::string BeerXmlRecord::Text(std::string_view tag) {
    return TrimmedText(Element(tag));
}

std::optional<double> BeerXmlRecord::Figure(std::string_view tag) {
    const std::string text = Text(tag);
    const FieldUnit unit = UnitOf(rule_.record, rule_.fields[IndexOf(tag)]);
    const ForeignFigure figure = ReadFigure(text, unit.unit, unit.zero);
    TellOdd(tag, text, figure, unit.unit);
    return figure.value;
}

std::optional<double> BeerXmlRecord::FirstFigure(std::string_view tag, std::string_view otherwise) {
    const auto first = Figure(tag);
    const auto second = Figure(otherwise);
    return first ? first : second;
}

ForeignRange BeerXmlRecord::Range(std::string_view low, std::string_view high) {
    return {Figure(low), Figure(high)};
}

std::optional<bool> BeerXmlRecord::Boolean(std::string_view tag) {
    return Word(tag, BooleanOfWord);
}

std::string BeerXmlRecord::FreeWord(std::string_view tag) {
    std::string text = Text(tag);
    if (!text.empty()) TellWord(tag, text, {});
    return text;
}

std::optional<ForeignAmount> BeerXmlRecord::Amount(std::string_view tag, std::string_view displayTag,
                                                   ForeignAmount::Of of) {
    const std::string text = Text(tag);
    const std::string shown = Text(displayTag);
    const FieldUnit unit = UnitOf(rule_.record, rule_.fields[IndexOf(tag)]);
    ForeignAmountFigure amount = ReadAmount(text, of, unit.zero);
    const auto wordOf = [](ForeignAmount::Of kind) {
        if (kind == ForeignAmount::Of::Mass) return FigureUnit::Kilograms;
        return kind == ForeignAmount::Of::Volume ? FigureUnit::Litres : FigureUnit::Plain;
    };
    TellOdd(tag, text, amount.figure, wordOf(amount.amount ? amount.amount->of : of));
    std::string written = WrittenAmount(shown);
    if (written.empty()) written = WrittenAmount(text);
    if (!amount.amount && !amount.figure.value && !written.empty() && unit.zero == ZeroMeans::Zero) {
        amount = ReadAmount(written, of);
        telling_.Tell(Severity::Approximated, FindingCode::AmountUnit, place_,
                      "The amount was taken from " + std::string(displayTag) + " " + Quoted(written) + ".");
    }
    if (amount.amount) amount.amount->written = std::move(written);
    return amount.amount;
}

std::optional<ForeignAmount> BeerXmlRecord::Volume(std::string_view tag, std::string_view displayTag) {
    const auto litres = Figure(tag);
    std::string written = WrittenAmount(Text(displayTag));
    if (written.empty()) written = WrittenAmount(Text(tag));
    if (!litres) return std::nullopt;
    return ForeignAmount{ForeignAmount::Of::Volume, *litres, std::move(written)};
}

std::optional<ForeignAmount> BeerXmlRecord::WeightOrVolume() {
    constexpr double kSame = 0.01;
    const std::string shown = Text("DISPLAY_AMOUNT");
    const ForeignAmountFigure display = ReadAmount(shown, ForeignAmount::Of::Volume);
    const bool hasUnit = display.amount && display.figure.unit != nullptr;
    const auto isWeight = Boolean("AMOUNT_IS_WEIGHT");
    ForeignAmount::Of of = isWeight.value_or(false) ? ForeignAmount::Of::Mass : ForeignAmount::Of::Volume;
    if (hasUnit && !isWeight && display.amount->of != ForeignAmount::Of::Pieces) of = display.amount->of;
    if (hasUnit && display.amount->of == ForeignAmount::Of::Pieces) {
        const auto number = ReadFigure(Text("AMOUNT"), FigureUnit::Plain).value;
        const double most = kSame * display.amount->value;
        if (number && std::abs(*number - display.amount->value) <= most) of = ForeignAmount::Of::Pieces;
    }
    return Amount("AMOUNT", "DISPLAY_AMOUNT", of);
}

void BeerXmlRecord::TellGuessedVolume(const std::optional<ForeignAmount>& amount) {
    const bool isGuess = amount && amount->of == ForeignAmount::Of::Volume && amount->value > 0 &&
                         amount->written.empty() && Text("AMOUNT_IS_WEIGHT").empty();
    if (isGuess)
        telling_.Tell(
            Severity::Approximated, FindingCode::AmountUnit, place_,
            "AMOUNT " + Quoted(Text("AMOUNT")) + " may be a weight or a volume; it was read as liters.");
}

void BeerXmlRecord::End() {
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        const Slot& slot = slots_[i];
        if (!slot.element || slot.isRead) continue;
        const XmlField& field = rule_.fields[i];
        Check(field, slot);
        const bool isEmpty = !slot.element.first_child();
        if (!path_.empty() && !isEmpty && !IsForDisplay(field) && field.tag != "VERSION")
            telling_.KeepAside(PathOf(field.tag), slot.element.offset_debug());
    }
}

// Puts each child into its slot.
void BeerXmlRecord::Index(pugi::xml_node element) {
    std::vector<std::string> twice;
    for (const pugi::xml_node child : element.children()) {
        if (child.type() != pugi::node_element) continue;
        const std::string_view tag = child.name();
        const XmlField* const field = FieldOf(rule_.record, tag);
        if (field == nullptr) {
            const bool isRecipe = rule_.record == XmlRecord::Recipe;
            if (isRecipe && (RecordOfTag(tag) != nullptr || RecordOfSet(tag) != nullptr)) continue;
            telling_.NoteUnknown(tag);
            if (!path_.empty()) telling_.KeepAside(PathOf(tag), child.offset_debug());
            continue;
        }
        Slot& slot = slots_[static_cast<std::size_t>(field - rule_.fields.data())];
        if (!slot.element || (IsText(*field) && IsBlank(slot.element) && !IsBlank(child)))
            slot.element = child;
        else if (field->holds != XmlHolds::RecordSet)
            AddOnce(twice, field->tag);
    }
    telling_.TellFields(Severity::Repaired, FindingCode::Duplicate, place_,
                        "Fields that stand here more than once, of which the first was taken", twice);
}

bool BeerXmlRecord::IsNeeded(const XmlField& field) const {
    return tw::IsNeeded(field, [&](std::string_view word) {
        const pugi::xml_node type = slots_[IndexOf("TYPE")].element;
        return type && EqualAscii(TrimmedText(type), word);
    });
}

void BeerXmlRecord::TellMissing() const {
    std::vector<std::string> missing;
    std::vector<std::string> empty;
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        const XmlField& field = rule_.fields[i];
        const pugi::xml_node element = slots_[i].element;
        if (!IsNeeded(field) || (element && (!IsText(field) || !IsBlank(element)))) continue;
        (element ? empty : missing).emplace_back(field.tag);
    }
    telling_.TellFields(Severity::Note, FindingCode::Missing, place_,
                        "Fields that the format requires are missing", missing);
    telling_.TellFields(Severity::Note, FindingCode::EmptyRequired, place_,
                        "Fields that the format requires are empty", empty);
}

std::size_t BeerXmlRecord::IndexOf(std::string_view tag) const {
    const auto found = std::ranges::find(rule_.fields, tag, &XmlField::tag);
    return static_cast<std::size_t>(found - rule_.fields.begin());
}

// Tells what is odd about a field that no structure takes.
void BeerXmlRecord::Check(const XmlField& field, const Slot& slot) {
    if (!IsFigure(field) && !IsWord(field)) return;
    const std::string text = TrimmedText(slot.element);
    if (IsFigure(field)) {
        const FieldUnit unit = UnitOf(rule_.record, field);
        TellOdd(field.tag, text, ReadFigure(text, unit.unit, unit.zero), unit.unit);
    } else if (!text.empty()) {
        TellWord(field.tag, text, {});
    }
}

// Returns the path of a field from the recipe.
std::string BeerXmlRecord::PathOf(std::string_view tag) const {
    return rule_.record == XmlRecord::Recipe ? std::string(tag) : path_ + "/" + std::string(tag);
}

void BeerXmlRecord::TellWord(std::string_view tag, std::string_view text, std::string_view readAs) const {
    static constexpr std::string_view kBooleans[] = {"TRUE", "FALSE"};
    const XmlField& field = rule_.fields[IndexOf(tag)];
    if (!IsWord(field)) return;
    telling_.TellWord(place_, tag, text, field.holds == XmlHolds::Word ? field.words : std::span(kBooleans),
                      readAs);
}

void BeerXmlRecord::TellOdd(std::string_view tag, std::string_view text, const ForeignFigure& figure,
                            FigureUnit unit) const {
    // A text for a reader has its unit by right.
    const bool isForReader = rule_.fields[IndexOf(tag)].need == XmlNeed::Display;
    if (isForReader && figure.value && figure.unit != nullptr && !figure.hasComma) return;
    telling_.TellFigure(place_, tag, text, figure, unit);
}

}  // namespace tw
