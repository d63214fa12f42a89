#include "exchange/BeerJsonValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "exchange/AsciiCase.h"
#include "exchange/BeerJsonCompleter.h"
#include "exchange/ExchangeText.h"
#include "exchange/ForeignFigure.h"
#include "exchange/ForeignUnits.h"
#include "exchange/JsonEdit.h"
#include "exchange/RecipeKind.h"

namespace tw {
namespace {

using Of = ForeignAmount::Of;

// The format's word for a unit as a brewer reads it.
struct UnitWord {
    std::string_view shown;
    std::string_view word;
};
constexpr std::array kUnitWords = {
    UnitWord{"kg", "kg"},     UnitWord{"g", "g"},     UnitWord{"mg", "mg"},   UnitWord{"lb", "lb"},
    UnitWord{"oz", "oz"},     UnitWord{"l", "l"},     UnitWord{"ml", "ml"},   UnitWord{"gal", "gal"},
    UnitWord{"qt", "qt"},     UnitWord{"pt", "pt"},   UnitWord{"cup", "cup"}, UnitWord{"fl oz", "floz"},
    UnitWord{"tbsp", "tbsp"}, UnitWord{"tsp", "tsp"}, UnitWord{"bbl", "bbl"}, UnitWord{"each", "each"},
    UnitWord{"pkg", "pkg"}};

// A word of another list, and the one that the format has for it.
struct Closest {
    std::string_view word;
    std::string_view written;
};
constexpr std::array kStyleTypes = {Closest{"Ale", "beer"}, Closest{"Lager", "beer"},
                                    Closest{"Wheat", "beer"}, Closest{"Mixed", "beer"},
                                    Closest{"Hybrid", "beer"}};
constexpr std::array kCultureTypes = {Closest{"Wheat", "ale"}};
constexpr std::array<Closest, 0> kNone = {};

std::string_view UseWord(ForeignUse use) {
    switch (use) {
        case ForeignUse::Mash:
            return "add_to_mash";
        case ForeignUse::FirstWort:
        case ForeignUse::Boil:
        case ForeignUse::Aroma:
        case ForeignUse::Whirlpool:
            return "add_to_boil";
        case ForeignUse::Primary:
        case ForeignUse::Secondary:
            return "add_to_fermentation";
        case ForeignUse::Package:
            return "add_to_package";
    }
    return "add_to_boil";
}

// Returns the amount in the unit of its text, if that is one quantity of a unit of the format and says the
// same; nothing otherwise.
std::optional<Json> AsWritten(const ForeignAmount& amount) {
    const std::string_view text = TrimSpace(amount.written);
    const std::size_t blank = text.find_first_of(" \xC2");
    const std::string_view number = text.substr(0, blank);
    const ForeignAmountFigure read = ReadAmount(text, amount.of);
    if (!IsPlainNumber(number) || !read.amount || read.figure.unit == nullptr || read.amount->of != amount.of)
        return std::nullopt;
    const auto* const word = std::ranges::find(kUnitWords, read.figure.unit->shown, &UnitWord::shown);
    double value = 0;
    std::from_chars(number.data(), number.data() + number.size(), value);
    if (word == kUnitWords.end() || !IsWithin(read.figure.unit->ToBase(value), amount.value, kSameAmountPart))
        return std::nullopt;
    return JsonQuantity(value, word->word);
}

Json AmountJson(const ForeignAmount& amount) {
    if (auto written = AsWritten(amount)) return std::move(*written);
    if (amount.of == Of::Mass) return JsonQuantity(amount.value, "kg");
    return JsonQuantity(amount.value, amount.of == Of::Volume ? "l" : "each");
}

// Collects the members of a record.
class Members {
  public:
    void Value(std::string_view key, Json value) { values_.object.Add(key, std::move(value)); }
    void Text(std::string_view key, std::string_view text) {
        if (!text.empty()) Value(key, Json(CleanLines(text)));
    }
    void Number(std::string_view key, std::optional<double> value) {
        if (value) Value(key, JsonNumber(*value));
    }
    void Quantity(std::string_view key, std::optional<double> value, std::string_view unit) {
        if (value) Value(key, JsonQuantity(*value, unit));
    }
    void Range(std::string_view key, const ForeignRange& range, std::string_view unit) {
        if (!range.low && !range.high) return;
        Json object(Json::Object{});
        if (range.low) object.Add("minimum", JsonQuantity(*range.low, unit));
        if (range.high) object.Add("maximum", JsonQuantity(*range.high, unit));
        Value(key, std::move(object));
    }
    void Amount(std::string_view key, const std::optional<ForeignAmount>& amount) {
        if (amount) Value(key, AmountJson(*amount));
    }
    // An amount that the format wants as a mass or a volume.
    void MassOrVolume(const std::optional<ForeignAmount>& amount) {
        if (!amount || amount->of != Of::Pieces) return Amount("amount", amount);
        Value("amount", JsonQuantity(0, "kg"));
        Remark("amount", FindingCode::AmountUnit,
               "Pieces are no amount of this format: the amount was written as 0 kg.");
    }
    // A word as a file has it, of either format. An empty one says nothing.
    void WordOfFile(std::string_view key, std::string_view text, std::span<const std::string_view> list,
                    std::span<const Closest> closest, bool isRequired) {
        if (text.empty()) return;
        std::string_view word = ListedWord(text, list);
        for (const Closest& each : closest)
            if (word.empty() && EqualAscii(each.word, text)) word = each.written;
        if (word.empty() && isRequired) {
            word = list.front();
            Remark(key, FindingCode::UnknownWord,
                   std::string(key) + " " + Quoted(text) + " is not a word of BeerJSON and was written as " +
                       Quoted(word) + ".");
        }
        if (!word.empty()) Value(key, Json(word));
    }
    void Timing(const std::optional<ForeignUse>& use, std::string_view written,
                const std::optional<double>& minutes, StandStep stand) {
        Json timing(Json::Object{});
        if (use) timing.Add("use", Json(UseWord(*use)));
        if (use == ForeignUse::FirstWort) timing.Add("step", Json(std::int64_t{1}));
        if (use == ForeignUse::Aroma || use == ForeignUse::Whirlpool) timing.Add("step", Json(stand));
        if (use == ForeignUse::Secondary) timing.Add("step", Json(std::int64_t{2}));
        const bool countsBackward = use == ForeignUse::Boil || use == ForeignUse::FirstWort;
        if (minutes) timing.Add(countsBackward ? "time" : "duration", JsonTime(*minutes));
        Value("timing", std::move(timing));
        if (!use && !written.empty())
            Remark("timing", FindingCode::HopUse,
                   "The use " + Quoted(written) + " is not known to BeerJSON and was left out.");
    }
    void Remark(std::string_view key, FindingCode code, std::string text) {
        values_.remarks.push_back({key, code, std::move(text)});
    }
    void Lose(std::string_view what) { values_.lost.emplace_back(what); }

    JsonValues Take() { return std::move(values_); }

  private:
    JsonValues values_;
};

// Adjuncts are grains of a group of their own; those that are not to be mashed are no grains.
void AddType(Members& members, const ForeignFermentable& line) {
    using Type = ForeignFermentable::Type;
    if (!line.type) return;
    const auto word = [&]() -> std::string_view {
        switch (*line.type) {
            case Type::Grain:
                return "grain";
            case Type::Adjunct:
                return line.recommendMash == false ? "other" : "grain";
            case Type::Sugar:
                return "sugar";
            case Type::Extract:
                return "extract";
            case Type::DryExtract:
                return "dry extract";
            case Type::Fruit:
                return "fruit";
            case Type::Juice:
                return "juice";
            case Type::Honey:
                return "honey";
            case Type::Other:
                return "other";
        }
        return "grain";
    }();
    members.Value("type", Json(word));
    if (*line.type == Type::Adjunct) members.Value("grain_group", Json("adjunct"));
}

std::string_view FormWord(ForeignHop::Form form) {
    switch (form) {
        case ForeignHop::Form::Pellet:
            return "pellet";
        case ForeignHop::Form::Plug:
            return "plug";
        case ForeignHop::Form::Leaf:
            return "leaf";
        case ForeignHop::Form::WetLeaf:
            return "leaf (wet)";
        case ForeignHop::Form::Extract:
            return "extract";
        case ForeignHop::Form::Powder:
            return "powder";
    }
    return "pellet";
}

std::string_view TypeWord(ForeignRecipe::Type type) {
    if (type == ForeignRecipe::Type::Extract) return "extract";
    return type == ForeignRecipe::Type::PartialMash ? "partial mash" : "all grain";
}

std::string_view MethodWord(ForeignIbuMethod method) {
    if (method == ForeignIbuMethod::Rager) return "Rager";
    return method == ForeignIbuMethod::Garetz ? "Garetz" : "Tinseth";
}

// Returns the closed list of a field.
std::span<const std::string_view> WordsOf(JsonRecord record, std::string_view key) {
    return FieldOf(ShapeOf(record), key)->words;
}

// The format wants an integer and a single letter.
void AddNumbers(Members& members, const ForeignStyle& style) {
    constexpr std::size_t kMostDigits = 9;
    const std::string& number = style.categoryNumber;
    const bool isInteger = !number.empty() && number.size() <= kMostDigits &&
                           std::ranges::all_of(number, [](char c) { return c >= '0' && c <= '9'; });
    if (isInteger)
        members.Value("category_number", Json(std::int64_t{std::stoi(number)}));
    else if (!number.empty())
        members.Lose("the category number of the style");
    const std::string letter = UpperAscii(style.letter);
    if (letter.size() == 1 && letter.front() >= 'A' && letter.front() <= 'Z')
        members.Text("style_letter", letter);
    else if (!letter.empty())
        members.Lose("the letter of the style");
}

void AddStated(Members& members, const ForeignRecipe& recipe) {
    members.Quantity("original_gravity", recipe.stated.og, "sg");
    members.Quantity("final_gravity", recipe.stated.fg, "sg");
    members.Quantity("alcohol_by_volume", recipe.stated.abv, "%");
    members.Quantity("color_estimate", recipe.stated.srm, "SRM");
    if (!recipe.stated.ibu && !recipe.ibuMethod) return;
    Json estimate(Json::Object{});
    if (recipe.ibuMethod) estimate.Add("method", Json(MethodWord(*recipe.ibuMethod)));
    if (recipe.stated.ibu) estimate.Add("value", JsonQuantity(*recipe.stated.ibu, "IBUs"));
    members.Value("ibu_estimate", std::move(estimate));
}

void AddTaste(Members& members, const ForeignRecipe& recipe) {
    if (recipe.tasteNotes.empty() && !recipe.tasteRating) return;
    Json taste(Json::Object{});
    taste.Add("notes", Json(CleanLines(recipe.tasteNotes)));
    taste.Add("rating", JsonNumber(recipe.tasteRating.value_or(0)));
    members.Value("taste", std::move(taste));
}

void AddBoil(Members& members, const ForeignRecipe& recipe) {
    if (!recipe.boilSize && !recipe.boilMinutes) return;
    Json boil(Json::Object{});
    if (recipe.boilSize) boil.Add("pre_boil_size", AmountJson(*recipe.boilSize));
    if (recipe.boilMinutes) boil.Add("boil_time", JsonTime(*recipe.boilMinutes));
    members.Value("boil", std::move(boil));
}

}  // namespace

JsonValues JsonValuesOf(const ForeignFermentable& line, StandStep /*stand*/) {
    Members members;
    members.Text("name", line.name);
    AddType(members, line);
    Json yield(Json::Object{});
    if (line.yield) yield.Add("fine_grind", JsonQuantity(*line.yield, "%"));
    if (line.potential) yield.Add("potential", JsonQuantity(*line.potential, "sg"));
    if (!yield.AsObject()->empty()) members.Value("yield", std::move(yield));
    members.Quantity("color", line.lovibond, "Lovi");
    members.MassOrVolume(line.amount);
    if (line.recommendMash) members.Value("recommend_mash", Json(*line.recommendMash));
    if (line.afterBoil) members.Timing(ForeignUse::Boil, {}, 0, 0);
    members.Text("origin", line.origin);
    members.Text("producer", line.supplier);
    members.Text("product_id", line.productId);
    members.Text("notes", line.notes);
    return members.Take();
}

JsonValues JsonValuesOf(const ForeignHop& line, StandStep stand) {
    Members members;
    members.Text("name", line.name);
    members.Quantity("alpha_acid", line.alpha, "%");
    members.Quantity("beta_acid", line.beta, "%");
    members.MassOrVolume(line.amount);
    members.Timing(line.use, line.useWritten, line.minutes, stand);
    if (line.form) members.Value("form", Json(FormWord(*line.form)));
    members.Text("origin", line.origin);
    members.Text("producer", line.supplier);
    members.Text("product_id", line.productId);
    members.Text("notes", line.notes);
    return members.Take();
}

JsonValues JsonValuesOf(const ForeignYeast& line, StandStep /*stand*/) {
    Members members;
    members.Text("name", line.name);
    members.WordOfFile("type", line.type, WordsOf(JsonRecord::Culture, "type"), kCultureTypes, true);
    members.WordOfFile("form", line.form, WordsOf(JsonRecord::Culture, "form"), kNone, true);
    members.Amount("amount", line.amount);
    members.Text("producer", line.laboratory);
    members.Text("product_id", line.productId);
    members.Quantity("attenuation", line.attenuation, "%");
    members.Range("temperature_range", {line.minCelsius, line.maxCelsius}, "C");
    std::string flocculation = CleanLines(line.flocculation);
    for (char& c : flocculation)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    members.Text("flocculation", flocculation);
    if (line.secondary) members.Timing(ForeignUse::Secondary, {}, {}, 0);
    members.Text("notes", line.notes);
    return members.Take();
}

JsonValues JsonValuesOf(const ForeignMisc& line, StandStep stand) {
    Members members;
    members.Text("name", line.name);
    members.WordOfFile("type", line.type, WordsOf(JsonRecord::Misc, "type"), kNone, true);
    members.Amount("amount", line.amount);
    if (line.use || line.minutes || !line.useWritten.empty())
        members.Timing(line.use, line.useWritten, line.minutes, stand);
    members.Text("use_for", line.useFor);
    members.Text("notes", line.notes);
    return members.Take();
}

JsonValues JsonValuesOf(const ForeignWater& line, StandStep /*stand*/) {
    constexpr std::string_view kUnit = "mg/l";
    Members members;
    members.Text("name", line.name);
    members.Quantity("amount", line.litres, "l");
    members.Quantity("calcium", line.calcium, kUnit);
    members.Quantity("bicarbonate", line.bicarbonate, kUnit);
    members.Quantity("carbonate", line.carbonate, kUnit);
    members.Quantity("sulfate", line.sulfate, kUnit);
    members.Quantity("chloride", line.chloride, kUnit);
    members.Quantity("sodium", line.sodium, kUnit);
    members.Quantity("magnesium", line.magnesium, kUnit);
    members.Number("pH", line.ph);
    members.Text("notes", line.notes);
    return members.Take();
}

JsonValues JsonValuesOf(const ForeignStyle& style) {
    Members members;
    members.Text("name", style.name);
    members.Text("category", style.category);
    AddNumbers(members, style);
    members.Text("style_guide", style.guide);
    members.WordOfFile("type", style.type, WordsOf(JsonRecord::Style, "type"), kStyleTypes, true);
    members.Range("original_gravity", style.og, "sg");
    members.Range("final_gravity", style.fg, "sg");
    members.Range("international_bitterness_units", style.ibu, "IBUs");
    members.Range("color", style.srm, "SRM");
    members.Range("carbonation", style.volumes, "vols");
    members.Range("alcohol_by_volume", style.abv, "%");
    members.Text("notes", style.notes);
    return members.Take();
}

JsonValues JsonValuesOf(const ForeignRecipe& recipe) {
    Members members;
    members.Text("name", recipe.name);
    members.Value("type", Json(TypeWord(RecipeKindOf(recipe))));
    members.Text("author", recipe.brewer);
    members.Text("coauthor", recipe.assistant);
    if (const auto date = IsoDate(recipe.date))
        members.Text("created", *date);
    else if (!recipe.date.empty())
        members.Lose("the date " + Quoted(recipe.date));
    members.Amount("batch_size", recipe.batchSize);
    if (recipe.efficiency) {
        Json efficiency(Json::Object{});
        efficiency.Add("brewhouse", JsonQuantity(*recipe.efficiency, "%"));
        members.Value("efficiency", std::move(efficiency));
    }
    AddBoil(members, recipe);
    AddStated(members, recipe);
    members.Number("carbonation", recipe.carbonation);
    members.Quantity("apparent_attenuation", recipe.attenuation, "%");
    members.Text("notes", recipe.notes);
    AddTaste(members, recipe);
    if (recipe.forced && recipe.carbonation) members.Lose("how the beer is carbonated");
    if (recipe.carbonationCelsius) members.Lose("the temperature of carbonation");
    if (!recipe.primingSugar.empty()) members.Lose("the priming sugar");
    if (recipe.hopUtilization) members.Lose("the utilization of hops");
    if (recipe.equipmentBoilSize) members.Lose("the boil size of the equipment");
    return members.Take();
}

}  // namespace tw
