#include "exchange/BeerXmlValues.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "exchange/BeerXmlWords.h"
#include "exchange/ExchangeText.h"
#include "exchange/ForeignFigure.h"
#include "exchange/RecipeKind.h"

namespace tw {
namespace {

using Of = ForeignAmount::Of;

// Of 46.214 points a pound and gallon, those of pure sugar, a yield is the percentage.
constexpr double kPointsOfFullYield = 46.214;

// Collects the fields of a record.
class Fields {
  public:
    void Text(std::string_view tag, std::string_view text) {
        if (!text.empty()) fields_.values.push_back({tag, CleanLines(text)});
    }
    void Number(std::string_view tag, std::optional<double> value) {
        if (value) fields_.values.push_back({tag, PlainNumber(*value)});
    }
    void Boolean(std::string_view tag, std::optional<bool> value) {
        if (value) fields_.values.push_back({tag, *value ? "TRUE" : "FALSE"});
    }
    void Range(std::string_view low, std::string_view high, const ForeignRange& range) {
        Number(low, range.low);
        Number(high, range.high);
    }
    // A word of the record's closed list. shown is what the facts call it.
    void Word(std::string_view tag, const XmlWord& word, FindingCode code, std::string_view shown) {
        fields_.values.push_back({tag, std::string(word.word), code,
                                  word.isExact ? std::string() : Closest(tag, shown, word.word)});
    }
    // A word as a file has it, of either format. An empty one says nothing.
    void WordOfFile(XmlRecord record, std::string_view tag, std::string_view text) {
        if (text.empty()) return;
        const XmlField& field = *FieldOf(record, tag);
        if (const auto word = XmlWordFor(record, field, text)) {
            Word(tag, *word, FindingCode::UnknownWord, text);
        } else if (field.need == XmlNeed::Required) {
            const XmlWord usual = {UsualXmlWord(record, field), false};
            Word(tag, usual, FindingCode::UnknownWord, text);
        } else {
            Lose(std::string(tag) + " words that the format does not have");
        }
    }
    void Time(const std::optional<double>& minutes) {
        Number("TIME", minutes);
        if (minutes) Text("DISPLAY_TIME", ShownTime(*minutes));
    }
    // An amount that the format wants in kilograms.
    void Mass(const std::optional<ForeignAmount>& amount) {
        if (!amount) return;
        XmlValue value = {"AMOUNT", PlainNumber(amount->value), FindingCode::AmountUnit};
        if (amount->of == Of::Volume) {
            value.remark = "A volume is no amount of this format: a liter was written as a kilogram.";
        } else if (amount->of == Of::Pieces) {
            value.text = "0";
            value.remark = "Pieces are no amount of this format: the amount was written as 0.";
        }
        fields_.values.push_back(std::move(value));
        Text("DISPLAY_AMOUNT", ShownAmount(*amount));
    }
    // An amount that the format wants in kilograms or liters.
    void MassOrVolume(const std::optional<ForeignAmount>& amount) {
        if (!amount) return;
        fields_.values.push_back({"AMOUNT", PlainNumber(amount->value), FindingCode::AmountUnit,
                                  amount->of == Of::Pieces
                                      ? "The format has no pieces: their number was written as the amount."
                                      : ""});
        // Without a word about weight the text decides what the amount counts.
        if (amount->of != Of::Pieces) Boolean("AMOUNT_IS_WEIGHT", amount->of == Of::Mass);
        Text("DISPLAY_AMOUNT", ShownAmount(*amount));
    }
    void Volume(std::string_view tag, std::string_view shownTag, const std::optional<ForeignAmount>& amount) {
        if (!amount) return;
        Number(tag, amount->value);
        Text(shownTag, amount->written);
    }
    void Lose(std::string_view what) { fields_.lost.emplace_back(what); }
    void LoseText(std::string_view what, std::string_view text) {
        if (!text.empty()) Lose(what);
    }

    XmlValues Take() { return std::move(fields_); }

  private:
    static std::string ShownAmount(const ForeignAmount& amount) {
        if (amount.of != Of::Pieces || !amount.written.empty()) return amount.written;
        return PlainNumber(amount.value) + " each";
    }
    static std::string Closest(std::string_view tag, std::string_view shown, std::string_view word) {
        return std::string(tag) + " " + Quoted(shown) + " is not a word of BeerXML and was written as " +
               Quoted(word) + ".";
    }

    XmlValues fields_;
};

std::string_view ShownUse(ForeignUse use) {
    switch (use) {
        case ForeignUse::Mash:
            return "Mash";
        case ForeignUse::FirstWort:
            return "First Wort";
        case ForeignUse::Boil:
            return "Boil";
        case ForeignUse::Aroma:
            return "Aroma";
        case ForeignUse::Whirlpool:
            return "Whirlpool";
        case ForeignUse::Primary:
            return "Primary";
        case ForeignUse::Secondary:
            return "Secondary";
        case ForeignUse::Package:
            return "Package";
    }
    return "Boil";
}

std::string_view ShownForm(ForeignHop::Form form) {
    switch (form) {
        case ForeignHop::Form::Pellet:
            return "Pellet";
        case ForeignHop::Form::Plug:
            return "Plug";
        case ForeignHop::Form::Leaf:
            return "Leaf";
        case ForeignHop::Form::WetLeaf:
            return "Wet Leaf";
        case ForeignHop::Form::Extract:
            return "Extract";
        case ForeignHop::Form::Powder:
            return "Powder";
    }
    return "Pellet";
}

std::string_view ShownType(ForeignFermentable::Type type) {
    using Type = ForeignFermentable::Type;
    if (type == Type::Fruit) return "Fruit";
    if (type == Type::Juice) return "Juice";
    if (type == Type::Honey) return "Honey";
    return type == Type::Other ? "Other" : XmlFermentableType(type).word;
}

// Tells a use that the file has in a word which says nothing; without such a word nothing is known.
void AddUse(Fields& fields, const std::optional<ForeignUse>& use, std::string_view written,
            XmlWord (*wordOf)(ForeignUse)) {
    if (use)
        fields.Word("USE", wordOf(*use), FindingCode::HopUse, ShownUse(*use));
    else if (!written.empty())
        fields.Word("USE", {"Boil", false}, FindingCode::HopUse, written);
}

// The figures that the format has for a reader only.
void AddStated(Fields& fields, const ForeignRecipe& recipe) {
    const StatedFigures& stated = recipe.stated;
    const auto shown = [&](std::string_view tag, std::optional<double> value, double scale,
                           std::string_view unit) {
        if (value) fields.Text(tag, PlainNumber(std::round(*value * scale) / scale) + std::string(unit));
    };
    constexpr double kGravityScale = 1e6;
    constexpr double kScale = 1e4;
    shown("EST_OG", stated.og, kGravityScale, " sg");
    shown("EST_FG", stated.fg, kGravityScale, " sg");
    shown("EST_ABV", stated.abv, kScale, " %");
    shown("EST_COLOR", stated.srm, kScale, " SRM");
    shown("IBU", stated.ibu, kScale, " IBU");
    if (recipe.ibuMethod) fields.Text("IBU_METHOD", XmlIbuMethod(*recipe.ibuMethod));
}

}  // namespace

const XmlValue* XmlValues::Find(std::string_view tag) const {
    const auto found = std::ranges::find(values, tag, &XmlValue::tag);
    return found == values.end() ? nullptr : &*found;
}

XmlValues XmlValuesOf(const ForeignFermentable& line) {
    Fields fields;
    fields.Text("NAME", line.name);
    fields.Text("VERSION", "1");
    if (line.type)
        fields.Word("TYPE", XmlFermentableType(*line.type), FindingCode::UnknownWord, ShownType(*line.type));
    fields.Mass(line.amount);
    auto yield = line.yield;
    if (!yield && line.potential) yield = (*line.potential - 1) * 1000 / kPointsOfFullYield * 100;
    fields.Number("YIELD", yield);
    fields.Number("COLOR", line.lovibond);
    if (line.afterBoil) fields.Boolean("ADD_AFTER_BOIL", true);
    fields.Boolean("RECOMMEND_MASH", line.recommendMash);
    fields.Text("ORIGIN", line.origin);
    fields.Text("SUPPLIER", line.supplier);
    fields.Text("NOTES", line.notes);
    fields.Number("POTENTIAL", line.potential);
    fields.LoseText("the product number of fermentables", line.productId);
    return fields.Take();
}

XmlValues XmlValuesOf(const ForeignHop& line) {
    Fields fields;
    fields.Text("NAME", line.name);
    fields.Text("VERSION", "1");
    fields.Number("ALPHA", line.alpha);
    fields.Mass(line.amount);
    AddUse(fields, line.use, line.useWritten, XmlHopUse);
    fields.Time(line.minutes);
    if (line.form) fields.Word("FORM", XmlHopForm(*line.form), FindingCode::Form, ShownForm(*line.form));
    fields.Number("BETA", line.beta);
    fields.Text("ORIGIN", line.origin);
    fields.Text("NOTES", line.notes);
    fields.LoseText("the producer of hops", line.supplier);
    fields.LoseText("the product number of hops", line.productId);
    return fields.Take();
}

XmlValues XmlValuesOf(const ForeignYeast& line) {
    Fields fields;
    fields.Text("NAME", line.name);
    fields.Text("VERSION", "1");
    fields.WordOfFile(XmlRecord::Yeast, "TYPE", line.type);
    fields.WordOfFile(XmlRecord::Yeast, "FORM", line.form);
    fields.MassOrVolume(line.amount);
    fields.Text("LABORATORY", line.laboratory);
    fields.Text("PRODUCT_ID", line.productId);
    fields.Number("MIN_TEMPERATURE", line.minCelsius);
    fields.Number("MAX_TEMPERATURE", line.maxCelsius);
    fields.WordOfFile(XmlRecord::Yeast, "FLOCCULATION", line.flocculation);
    fields.Number("ATTENUATION", line.attenuation);
    if (line.secondary) fields.Boolean("ADD_TO_SECONDARY", true);
    fields.Text("NOTES", line.notes);
    return fields.Take();
}

XmlValues XmlValuesOf(const ForeignMisc& line) {
    Fields fields;
    fields.Text("NAME", line.name);
    fields.Text("VERSION", "1");
    fields.WordOfFile(XmlRecord::Misc, "TYPE", line.type);
    AddUse(fields, line.use, line.useWritten, XmlMiscUse);
    fields.Time(line.minutes);
    fields.MassOrVolume(line.amount);
    fields.Text("USE_FOR", line.useFor);
    fields.Text("NOTES", line.notes);
    return fields.Take();
}

XmlValues XmlValuesOf(const ForeignWater& line) {
    Fields fields;
    fields.Text("NAME", line.name);
    fields.Text("VERSION", "1");
    fields.Number("AMOUNT", line.litres);
    fields.Number("CALCIUM", line.calcium);
    fields.Number("BICARBONATE", line.bicarbonate);
    fields.Number("SULFATE", line.sulfate);
    fields.Number("CHLORIDE", line.chloride);
    fields.Number("SODIUM", line.sodium);
    fields.Number("MAGNESIUM", line.magnesium);
    fields.Number("PH", line.ph);
    fields.Text("NOTES", line.notes);
    if (line.carbonate) fields.Lose("the carbonate of waters");
    return fields.Take();
}

XmlValues XmlValuesOf(const ForeignStyle& style) {
    Fields fields;
    fields.Text("NAME", style.name);
    fields.Text("CATEGORY", style.category);
    fields.Text("VERSION", "1");
    fields.Text("CATEGORY_NUMBER", style.categoryNumber);
    fields.Text("STYLE_LETTER", style.letter);
    fields.Text("STYLE_GUIDE", style.guide);
    fields.WordOfFile(XmlRecord::Style, "TYPE", style.type);
    fields.Range("OG_MIN", "OG_MAX", style.og);
    fields.Range("FG_MIN", "FG_MAX", style.fg);
    fields.Range("IBU_MIN", "IBU_MAX", style.ibu);
    fields.Range("COLOR_MIN", "COLOR_MAX", style.srm);
    fields.Range("CARB_MIN", "CARB_MAX", style.volumes);
    fields.Range("ABV_MIN", "ABV_MAX", style.abv);
    fields.Text("NOTES", style.notes);
    return fields.Take();
}

XmlValues XmlValuesOf(const ForeignRecipe& recipe) {
    Fields fields;
    fields.Text("NAME", recipe.name);
    fields.Text("VERSION", "1");
    fields.Text("TYPE", XmlRecipeType(RecipeKindOf(recipe)));
    fields.Text("BREWER", recipe.brewer);
    fields.Text("ASST_BREWER", recipe.assistant);
    fields.Volume("BATCH_SIZE", "DISPLAY_BATCH_SIZE", recipe.batchSize);
    fields.Volume("BOIL_SIZE", "DISPLAY_BOIL_SIZE", recipe.boilSize);
    fields.Number("BOIL_TIME", recipe.boilMinutes);
    fields.Number("EFFICIENCY", recipe.efficiency);
    fields.Text("DATE", recipe.date);
    fields.Number("CARBONATION", recipe.carbonation);
    fields.Boolean("FORCED_CARBONATION", recipe.forced);
    fields.Text("PRIMING_SUGAR_NAME", recipe.primingSugar);
    fields.Number("CARBONATION_TEMP", recipe.carbonationCelsius);
    AddStated(fields, recipe);
    fields.Text("NOTES", recipe.notes);
    fields.Text("TASTE_NOTES", recipe.tasteNotes);
    fields.Number("TASTE_RATING", recipe.tasteRating);
    if (recipe.attenuation && !recipe.stated.fg) fields.Lose("the attenuation of the recipe");
    return fields.Take();
}

XmlValues XmlEquipmentValues(const ForeignRecipe& recipe) {
    Fields fields;
    fields.Text("NAME", "Equipment");
    fields.Text("VERSION", "1");
    const auto& boilSize = recipe.equipmentBoilSize ? recipe.equipmentBoilSize : recipe.boilSize;
    fields.Volume("BOIL_SIZE", "DISPLAY_BOIL_SIZE", boilSize);
    fields.Volume("BATCH_SIZE", "DISPLAY_BATCH_SIZE", recipe.batchSize);
    fields.Number("HOP_UTILIZATION", recipe.hopUtilization);
    return fields.Take();
}

std::vector<std::string_view> XmlShownTags(std::string_view tag) {
    struct Shown {
        std::string_view tag;
        std::string_view by;
    };
    static constexpr std::array kShown = {Shown{"AMOUNT", "DISPLAY_AMOUNT"},
                                          Shown{"TIME", "DISPLAY_TIME"},
                                          Shown{"COLOR", "DISPLAY_COLOR"},
                                          Shown{"YIELD", "POTENTIAL"},
                                          Shown{"MIN_TEMPERATURE", "DISP_MIN_TEMP"},
                                          Shown{"MAX_TEMPERATURE", "DISP_MAX_TEMP"},
                                          Shown{"BATCH_SIZE", "DISPLAY_BATCH_SIZE"},
                                          Shown{"BOIL_SIZE", "DISPLAY_BOIL_SIZE"},
                                          Shown{"OG", "DISPLAY_OG"},
                                          Shown{"FG", "DISPLAY_FG"},
                                          Shown{"CARBONATION", "CARBONATION_USED"},
                                          Shown{"CARBONATION_TEMP", "DISPLAY_CARB_TEMP"},
                                          Shown{"PRIMING_SUGAR_NAME", "CARBONATION_USED"},
                                          Shown{"PRIMING_SUGAR_NAME", "PRIMING_SUGAR_EQUIV"}};
    std::vector<std::string_view> tags;
    for (const Shown& each : kShown)
        if (each.tag == tag) tags.push_back(each.by);
    return tags;
}

}  // namespace tw
