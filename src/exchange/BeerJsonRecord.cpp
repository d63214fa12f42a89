#include "exchange/BeerJsonRecord.h"

#include <algorithm>
#include <array>

#include "values/NumberText.h"

namespace tw {
namespace {

// A quantity as a text that a figure can be read from.
struct QuantityText {
    std::string text;
    bool hasUnit = false;  // as the format wants it: a number and its unit, each in a field
    bool isBare = false;   // a number alone
    bool isOther = false;  // no quantity at all
};

QuantityText TextOf(const Json& value) {
    if (value.IsNull()) return {};
    if (const auto number = value.AsNumber()) return {.text = NumberText(*number), .isBare = true};
    if (const std::string* const text = value.AsText()) return {.text = *text};
    const Json* const number = value.Find("value");
    const Json* const unit = value.Find("unit");
    if (number == nullptr || (!number->AsNumber() && number->AsText() == nullptr))
        return {.text = {}, .isOther = number == nullptr || !number->IsNull()};
    QuantityText quantity = TextOf(*number);
    const std::string* const word = unit == nullptr ? nullptr : unit->AsText();
    if (word == nullptr || TrimSpace(*word).empty()) return quantity;
    // The unit of plain numbers. Behind a number it would be a second one.
    quantity.text += TrimSpace(*word) == "1" ? " each" : " " + *word;
    quantity.hasUnit = quantity.isBare;
    quantity.isBare = false;
    return quantity;
}

// A figure without what is odd about nothing but its unit.
ForeignFigure WithoutUnit(ForeignFigure figure) {
    figure.unitWritten = {};
    return figure;
}

bool IsEmptyValue(const Json& value) {
    if (const std::string* const text = value.AsText()) return TrimSpace(*text).empty();
    return value.IsNull();
}

// True if the value, or the number of a quantity, says nothing.
bool SaysNothing(const Json& value) {
    const Json* const number = value.Find("value");
    return IsEmptyValue(value) || (number != nullptr && IsEmptyValue(*number));
}

}  // namespace

std::string Joined(const std::string& path, std::string_view key) {
    return path.empty() ? std::string(key) : path + "/" + std::string(key);
}

BeerJsonRecord::BeerJsonRecord(const Json& value, JsonRecord record, ForeignTelling& telling,
                               std::string place, std::string path, bool isInRecipe)
    : value_(value),
      shape_(ShapeOf(record)),
      telling_(telling),
      place_(std::move(place)),
      path_(std::move(path)) {
    if (value.AsObject() == nullptr)
        Tell(Severity::Suspicious, FindingCode::NoNumber,
             Quoted(path_.empty() ? "recipe" : path_) + " is not an object and was left out.");
    else
        TellKeys(isInRecipe);
}

const Json* BeerJsonRecord::Value(std::string_view key) {
    read_.push_back(key);
    return value_.Find(key);
}

std::string BeerJsonRecord::Text(std::string_view key) {
    const Json* const value = Value(key);
    if (value == nullptr || value->IsNull()) return {};
    if (const std::string* const text = value->AsText()) return std::string(TrimSpace(*text));
    if (const auto number = value->AsNumber()) return NumberText(*number);
    Tell(Severity::Suspicious, FindingCode::NoNumber, std::string(key) + " is not a text and was left out.");
    return {};
}

std::optional<double> BeerJsonRecord::Figure(std::string_view key, FigureUnit wanted, ZeroMeans zero) {
    const Json* const value = Value(key);
    if (value == nullptr) return std::nullopt;
    return ReadJsonFigure(*value, key, wanted, telling_, place_, zero);
}

std::optional<double> BeerJsonRecord::Number(std::string_view key, FigureUnit wanted, ZeroMeans zero) {
    const Json* const value = Value(key);
    if (value == nullptr) return std::nullopt;
    return ReadJsonFigure(*value, key, wanted, telling_, place_, zero, true);
}

ForeignRange BeerJsonRecord::Range(std::string_view key, FigureUnit wanted) {
    const Json* const range = Value(key);
    if (range == nullptr || range->IsNull()) return {};
    if (range->AsObject() == nullptr) {
        Tell(Severity::Suspicious, FindingCode::NoNumber,
             std::string(key) + " is not a range and was left out.");
        return {};
    }
    const auto end = [&](std::string_view name) -> std::optional<double> {
        const Json* const value = range->Find(name);
        if (value == nullptr) return std::nullopt;
        return ReadJsonFigure(*value, key, wanted, telling_, place_);
    };
    return {end("minimum"), end("maximum")};
}

std::optional<ForeignAmount> BeerJsonRecord::Amount(std::string_view key, ForeignAmount::Of bareIs,
                                                    ZeroMeans zero) {
    const Json* const value = Value(key);
    if (value == nullptr) return std::nullopt;
    const QuantityText quantity = TextOf(*value);
    ForeignAmountFigure read = ReadAmount(quantity.text, bareIs, zero);
    const ForeignFigure& figure = read.figure;
    const auto of = read.amount ? read.amount->of : bareIs;
    const FigureUnit unit = of == ForeignAmount::Of::Mass     ? FigureUnit::Kilograms
                            : of == ForeignAmount::Of::Volume ? FigureUnit::Litres
                                                              : FigureUnit::Plain;
    telling_.TellFigure(place_, key, quantity.text, quantity.hasUnit ? WithoutUnit(figure) : figure, unit);
    if (quantity.isOther)
        Tell(Severity::Suspicious, FindingCode::NoNumber,
             std::string(key) + " states no amount and was left out.");
    if (!read.amount) return std::nullopt;
    if (figure.unit == nullptr && quantity.hasUnit) {
        Tell(Severity::Suspicious, FindingCode::AmountUnit,
             std::string(key) + " " + Quoted(quantity.text) + " is in an unknown unit and was left out.");
        return std::nullopt;
    }
    if (figure.unit == nullptr) {
        Tell(Severity::Approximated, FindingCode::AmountUnit,
             std::string(key) + " " + Quoted(quantity.text) + " has no unit and was read as " +
                 (unit == FigureUnit::Plain ? "pieces" : std::string(WordOf(unit))) + ".");
    } else if (!figure.unit->shown.empty()) {
        // The format's own words are not all for readers: "floz", "1".
        const std::string_view number = TrimSpace(quantity.text).substr(0, quantity.text.find(' '));
        read.amount->written = quantity.hasUnit ? std::string(number) + " " + std::string(figure.unit->shown)
                                                : WrittenAmount(quantity.text);
    }
    return read.amount;
}

std::optional<ForeignAmount> BeerJsonRecord::Volume(std::string_view key) {
    auto amount = Amount(key, ForeignAmount::Of::Volume, ZeroMeans::Unknown);
    if (amount && amount->of != ForeignAmount::Of::Volume) {
        Tell(Severity::Suspicious, FindingCode::AmountUnit,
             std::string(key) + " " + Quoted(amount->written) + " is not a volume and was left out.");
        amount.reset();
    }
    return amount;
}

std::optional<bool> BeerJsonRecord::Boolean(std::string_view key) {
    const Json* const value = Value(key);
    if (value == nullptr || value->IsNull()) return std::nullopt;
    if (const bool* const boolean = value->AsBool()) return *boolean;
    std::string word;
    if (const std::string* const text = value->AsText()) word = *text;
    if (const auto number = value->AsNumber()) word = NumberText(*number);
    const auto meaning = BooleanOfWord(word);
    Tell(meaning ? Severity::Repaired : Severity::Note, FindingCode::UnknownWord,
         std::string(key) + " " + Quoted(word) +
             (meaning ? " was read as " + std::string(meaning->shown) + "." : " is neither true nor false."));
    if (!meaning) return std::nullopt;
    return meaning->value;
}

std::span<const Json> BeerJsonRecord::Elements(std::string_view key) {
    const Json* const value = Value(key);
    if (value == nullptr || value->IsNull()) return {};
    if (const Json::Array* const array = value->AsArray()) return *array;
    if (value->AsObject() != nullptr) return std::span(value, 1);
    Tell(Severity::Suspicious, FindingCode::NoNumber, std::string(key) + " is not a list and was left out.");
    return {};
}

void BeerJsonRecord::Tell(Severity severity, FindingCode code, std::string text) const {
    telling_.Tell(severity, code, place_, std::move(text));
}

void BeerJsonRecord::End() {
    const Json::Object* const members = value_.AsObject();
    if (members == nullptr) return;
    for (const JsonMember& member : *members)
        if (std::ranges::find(read_, member.name) == read_.end() && !IsEmptyValue(member.value))
            telling_.KeepAside(Joined(path_, member.name), 0);
}

// Tells of the keys that are missing, empty, unknown or there twice.
void BeerJsonRecord::TellKeys(bool isInRecipe) const {
    std::vector<std::string> missing;
    std::vector<std::string> empty;
    std::vector<std::string> twice;
    for (const JsonField& field : shape_.fields) {
        if (!field.IsRequired(isInRecipe)) continue;
        const Json* const value = value_.Find(field.key);
        if (value == nullptr)
            missing.emplace_back(field.key);
        else if (SaysNothing(*value))
            empty.emplace_back(field.key);
    }
    std::set<std::string_view> names;
    const Json::Object* const members = value_.AsObject();
    if (members == nullptr) return;
    for (const JsonMember& member : *members) {
        if (!names.insert(member.name).second) twice.push_back(Quoted(member.name));
        if (FieldOf(shape_, member.name) == nullptr) telling_.NoteUnknown(member.name);
    }
    telling_.TellFields(Severity::Note, FindingCode::Missing, place_,
                        "Fields that the format requires are missing", missing);
    telling_.TellFields(Severity::Note, FindingCode::EmptyRequired, place_,
                        "Fields that the format requires are empty", empty);
    telling_.TellFields(Severity::Repaired, FindingCode::Duplicate, place_,
                        "Fields that stand here more than once, of which the first was taken", twice);
}

std::optional<double> ReadJsonFigure(const Json& value, std::string_view key, FigureUnit wanted,
                                     const ForeignTelling& telling, std::string_view place, ZeroMeans zero,
                                     bool mayBeBare) {
    const QuantityText quantity = TextOf(value);
    const ForeignFigure figure = ReadFigure(quantity.text, wanted, zero);
    const auto tell = [&](Severity severity, FindingCode code, const std::string& text) {
        telling.Tell(severity, code, place, std::string(key) + " " + text);
    };
    if (quantity.isOther)
        tell(Severity::Suspicious, FindingCode::NoNumber, "states no figure and was left out.");
    telling.TellFigure(place, key, quantity.text, quantity.hasUnit ? WithoutUnit(figure) : figure, wanted);
    if (!figure.value || wanted == FigureUnit::Plain) return figure.value;
    if (quantity.hasUnit && figure.unit == nullptr) {
        tell(Severity::Suspicious, FindingCode::AmountUnit,
             Quoted(quantity.text) + " is in an unknown unit and was left out.");
        return std::nullopt;
    }
    if (quantity.isBare && !mayBeBare && !figure.isRescaled)
        tell(Severity::Approximated, FindingCode::AmountUnit,
             Quoted(quantity.text) + " has no unit and was read as " + std::string(WordOf(wanted)) + ".");
    return figure.value;
}

}  // namespace tw
