#include "exchange/BeerJsonCompleter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <set>

#include "exchange/AsciiCase.h"
#include "exchange/ExchangeText.h"
#include "exchange/ForeignFigure.h"
#include "exchange/ForeignUnits.h"
#include "exchange/ForeignWords.h"
#include "exchange/JsonEdit.h"

namespace tw {
namespace {

constexpr std::array kUnitKinds = {UnitKind::Mass,        UnitKind::Volume,        UnitKind::Pieces,
                                   UnitKind::Temperature, UnitKind::Time,          UnitKind::Percent,
                                   UnitKind::Gravity,     UnitKind::Colour,        UnitKind::Bitterness,
                                   UnitKind::Carbonation, UnitKind::Concentration, UnitKind::Pressure};

// Returns the unit of the list that a word means; empty if there is none.
std::string_view ListedUnit(std::string_view word, std::span<const std::string_view> list) {
    if (const std::string_view listed = ListedWord(word, list); !listed.empty()) return listed;
    for (const UnitKind kind : kUnitKinds) {
        const ForeignUnit* const unit = FindUnit(kind, word);
        if (unit == nullptr) continue;
        const auto same = [&](std::string_view each) { return FindUnit(kind, each) == unit; };
        if (const auto found = std::ranges::find_if(list, same); found != list.end()) return *found;
    }
    return {};
}

std::optional<double> NumberOf(const Json& value) {
    if (const auto number = value.AsNumber()) return number;
    if (const std::string* const text = value.AsText()) return ReadFigure(*text, FigureUnit::Plain).value;
    if (const Json* const inner = value.Find("value")) return inner->AsNumber();
    return std::nullopt;
}

class Completer {
  public:
    explicit Completer(WriteTelling& telling) : telling_(telling) {}

    void Complete(Json& object, const JsonShape& shape, const Json& known, const std::string& path) {
        Json::Object& members = *object.AsObject();
        Json::Object valid;
        std::set<std::string> names;
        for (JsonMember& member : members) {
            const std::string inner = path.empty() ? member.name : path + "/" + member.name;
            const JsonField* const field = FieldOf(shape, member.name);
            if (!names.insert(member.name).second) {
                telling_.NoteTwice(inner);
            } else if (field == nullptr ? !shape.isClosed : Mend(member.value, *field, known, inner)) {
                valid.push_back(std::move(member));
            } else {
                // A required field is added again below.
                if (field == nullptr || !field->IsRequired(true)) telling_.NoteDropped(inner);
                names.erase(member.name);
            }
        }
        members = std::move(valid);
        for (const JsonField& field : shape.fields)
            if (field.IsRequired(true) && object.Find(field.key) == nullptr) Fill(object, field, known, path);
        if (members.empty() && !shape.least.empty()) Fill(object, *FieldOf(shape, shape.least), known, path);
    }

  private:
    // Returns false if the value cannot be made valid.
    bool Mend(Json& value, const JsonField& field, const Json& known, const std::string& path) {
        switch (field.holds) {
            case JsonHolds::Anything:
                return true;
            case JsonHolds::Text:
                return MendText(value);
            case JsonHolds::Number:
                return MendNumber(value, path);
            case JsonHolds::Integer:
                return MendInteger(value, path);
            case JsonHolds::Boolean:
                return MendBoolean(value, path);
            case JsonHolds::Word:
                return MendWord(value, field, path);
            case JsonHolds::Letter:
                return MendLetter(value, path);
            case JsonHolds::Date:
                return MendDate(value, path);
            case JsonHolds::Quantity:
            case JsonHolds::Time:
                return MendQuantity(value, field, path);
            case JsonHolds::Object: {
                if (value.AsObject() == nullptr || LacksElements(value, *field.shape)) return false;
                const Json* const inner = known.Find(field.key);
                Complete(value, *field.shape, inner == nullptr ? Json() : *inner, path);
                return true;
            }
            case JsonHolds::Array:
            case JsonHolds::FullArray:
                return MendArray(value, field, path);
            case JsonHolds::Texts:
                return value.AsArray() != nullptr &&
                       std::ranges::all_of(*value.AsArray(),
                                           [](const Json& each) { return each.AsText() != nullptr; });
        }
        return false;
    }

    // True if a list that must not be empty has no element: one that says nothing would be wrong.
    static bool LacksElements(const Json& object, const JsonShape& shape) {
        return std::ranges::any_of(shape.fields, [&](const JsonField& field) {
            if (field.holds != JsonHolds::FullArray) return false;
            const Json* const list = object.Find(field.key);
            if (list == nullptr) return true;
            const auto isObject = [](const Json& each) { return each.AsObject() != nullptr; };
            return !isObject(*list) &&
                   (list->AsArray() == nullptr || std::ranges::none_of(*list->AsArray(), isObject));
        });
    }
    static bool MendText(Json& value) {
        if (const auto number = value.AsNumber()) value = Json(PlainNumber(*number));
        return value.AsText() != nullptr;
    }
    bool MendNumber(Json& value, const std::string& path) {
        if (value.AsNumber()) return true;
        const auto number = NumberOf(value);
        if (!number) return false;
        return Respell(value, JsonNumber(*number), path);
    }
    bool MendInteger(Json& value, const std::string& path) {
        if (value.AsInteger() != nullptr) return true;
        const auto number = NumberOf(value);
        if (!number || *number != std::floor(*number)) return false;
        return Respell(value, JsonNumber(*number), path);
    }
    bool MendBoolean(Json& value, const std::string& path) {
        if (value.AsBool() != nullptr) return true;
        const auto number = value.AsNumber();
        const std::string* const text = value.AsText();
        const auto meaning = BooleanOfWord(number ? PlainNumber(*number) : text ? *text : std::string());
        return meaning && Respell(value, Json(meaning->value), path);
    }
    bool MendWord(Json& value, const JsonField& field, const std::string& path) {
        const std::string* const text = value.AsText();
        if (text == nullptr) return false;
        const std::string_view word = ListedWord(*text, field.words);
        if (word.empty()) return false;
        return word == *text || Respell(value, Json(word), path);
    }
    bool MendLetter(Json& value, const std::string& path) {
        const std::string* const text = value.AsText();
        if (text == nullptr) return false;
        const std::string letter = UpperAscii(*text == " " ? *text : std::string(TrimSpace(*text)));
        const bool isLetter =
            letter.size() == 1 && (letter == " " || (letter.front() >= 'A' && letter.front() <= 'Z'));
        return isLetter && (letter == *text || Respell(value, Json(letter), path));
    }
    bool MendDate(Json& value, const std::string& path) {
        const std::string* const text = value.AsText();
        const auto date = text == nullptr ? std::nullopt : IsoDate(*text);
        if (!date) return false;
        return text->find(*date) != std::string::npos || Respell(value, Json(*date), path);
    }

    bool MendQuantity(Json& value, const JsonField& field, const std::string& path) {
        const Json* const number = value.Find("value");
        const Json* const unit = value.Find("unit");
        const bool isTime = field.holds == JsonHolds::Time;
        const bool isValid = value.AsObject() != nullptr && value.AsObject()->size() == 2 &&
                             number != nullptr && number->AsNumber() && unit != nullptr &&
                             unit->AsText() != nullptr &&
                             std::ranges::find(field.words, *unit->AsText()) != field.words.end() &&
                             (!isTime || number->AsInteger() != nullptr);
        if (isValid) return true;
        auto mended = ReadQuantity(value, field);
        if (!mended) return false;
        return Respell(value, std::move(*mended), path);
    }

    // Returns what a quantity states that is not as the format wants it: a bare number, a text, a unit of
    // another spelling, parts of a minute.
    static std::optional<Json> ReadQuantity(const Json& value, const JsonField& field) {
        std::optional<double> number = NumberOf(value);
        std::string_view unit = field.words.front();
        if (const Json* const inner = value.Find("value")) number = NumberOf(*inner);
        if (const std::string* const text = value.AsText()) {
            const ForeignFigure figure = ReadFigure(*text, FigureUnit::Plain);
            number = figure.value;
            if (!figure.unitWritten.empty()) unit = ListedUnit(figure.unitWritten, field.words);
        } else if (const Json* const word = value.Find("unit");
                   word != nullptr && word->AsText() != nullptr) {
            unit = ListedUnit(*word->AsText(), field.words);
        }
        if (!number || unit.empty()) return std::nullopt;
        const ForeignUnit* const time = FindUnit(UnitKind::Time, unit);
        if (field.holds == JsonHolds::Time && time != nullptr && *number != std::floor(*number))
            return JsonTime(time->ToBase(*number));
        return JsonQuantity(*number, unit);
    }

    bool MendArray(Json& value, const JsonField& field, const std::string& path) {
        if (value.AsObject() != nullptr) Respell(value, Json(Json::Array{value}), path);
        Json::Array* const elements = value.AsArray();
        if (elements == nullptr) return false;
        if (std::erase_if(*elements, [](const Json& each) { return each.AsObject() == nullptr; }) > 0)
            telling_.NoteDropped(path);
        for (Json& element : *elements) Complete(element, *field.shape, Json(), path);
        return !elements->empty() || field.holds == JsonHolds::Array;
    }

    bool Respell(Json& value, Json mended, const std::string& path) {
        value = std::move(mended);
        telling_.NoteRespelled(path);
        return true;
    }

    // Adds a required field.
    void Fill(Json& object, const JsonField& field, const Json& known, const std::string& path) {
        const std::string inner = path.empty() ? std::string(field.key) : path + "/" + std::string(field.key);
        Json value = Usual(field);
        const Json* const found = known.Find(field.key);
        if (found != nullptr) value = *found;
        const bool isStructure = field.shape != nullptr;
        if (found == nullptr && !isStructure && field.holds != JsonHolds::Text) telling_.NoteFilled(inner);
        if (field.holds == JsonHolds::Object) Complete(value, *field.shape, Json(), inner);
        object.Add(field.key, std::move(value));
    }

    // Returns a value that says nothing.
    static Json Usual(const JsonField& field) {
        switch (field.holds) {
            case JsonHolds::Number:
            case JsonHolds::Integer:
                return Json(std::int64_t{0});
            case JsonHolds::Boolean:
                return Json(false);
            case JsonHolds::Word:
                return Json(field.words.front());
            case JsonHolds::Quantity:
            case JsonHolds::Time:
                return JsonQuantity(0, field.words.front());
            case JsonHolds::Object:
                return Json(Json::Object{});
            case JsonHolds::Array:
            case JsonHolds::FullArray:  // never missing where it is required
            case JsonHolds::Texts:
                return Json(Json::Array{});
            case JsonHolds::Text:
            case JsonHolds::Letter:
            case JsonHolds::Date:
                return Json("");
            case JsonHolds::Anything:  // required in no recipe
                return {};
        }
        return {};
    }

    WriteTelling& telling_;
};

}  // namespace

void CompleteJson(Json& object, const JsonShape& shape, const Json& known, const std::string& path,
                  WriteTelling& telling) {
    Completer(telling).Complete(object, shape, known, path);
}

std::string_view ListedWord(std::string_view word, std::span<const std::string_view> list) {
    for (const std::string_view each : list)
        if (FitOf(word, std::span(&each, 1)) != WordFit::None) return each;
    return {};
}

}  // namespace tw
