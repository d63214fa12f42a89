#include "exchange/BeerJsonReader.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "exchange/AsciiCase.h"
#include "exchange/BeerJsonRecord.h"
#include "exchange/BeerJsonTiming.h"
#include "exchange/ExchangeLimits.h"
#include "exchange/ForeignPlace.h"
#include "exchange/TextEncoding.h"

namespace tw {
namespace {

using Of = ForeignAmount::Of;

constexpr std::string_view kFormat = "BeerJSON";

// What the lines of a recipe need to know of it. Entries of a library have none of it.
struct RecipeFrame {
    bool isRecipe = false;
    std::optional<double> boilMinutes;
    std::vector<JsonBoilStep> boilSteps;
};

// Where a line stands, for its parts.
struct LineFrame {
    const RecipeFrame& recipe;
    ForeignTelling& telling;
    std::string place;
    std::string path;
};

void ReadYield(BeerJsonRecord& record, ForeignFermentable& read, const LineFrame& line) {
    const Json* const value = record.Peek("yield");
    if (value == nullptr || value->AsObject() == nullptr || value->Find("value") != nullptr) {
        read.yield = record.Number("yield", FigureUnit::Percent, ZeroMeans::Unknown);
        return;
    }
    BeerJsonRecord yield(*record.Value("yield"), JsonRecord::Yield, line.telling, line.place,
                         Joined(line.path, "yield"));
    read.potential = yield.Figure("potential", FigureUnit::Potential);
    read.yield = yield.Figure("fine_grind", FigureUnit::Percent, ZeroMeans::Unknown);
    if (!read.yield) {
        const auto coarse = yield.Figure("coarse_grind", FigureUnit::Percent, ZeroMeans::Unknown);
        const auto difference = yield.Figure("fine_coarse_difference", FigureUnit::Percent);
        if (coarse) read.yield = *coarse + difference.value_or(0);
        if (coarse && !difference)
            yield.Tell(Severity::Approximated, FindingCode::YieldPotential,
                       "Only the yield of the coarse grind is stated; it was read as that of the fine one.");
    }
    yield.End();
}

// An addition to the kettle that does not see the whole boil is a late one.
void ReadLateness(BeerJsonRecord& record, ForeignFermentable& read, const LineFrame& line) {
    if (record.Peek("timing") == nullptr) return;
    const JsonTiming timing = ReadTiming(record, line.recipe.boilSteps, line.telling, line.place, line.path);
    const auto boil = line.recipe.boilMinutes;
    // Minutes count from the end of the boil: none of them is late however long it is.
    const bool isLateInBoil = timing.use == ForeignUse::Boil && timing.minutes &&
                              (*timing.minutes == 0 || (boil && *timing.minutes < *boil));
    read.afterBoil = timing.use == ForeignUse::Whirlpool || isLateInBoil;
    if (!read.afterBoil && timing.use != ForeignUse::Mash && timing.use)
        line.telling.KeepAside(Joined(line.path, "timing"), 0);
}

// Adjuncts are a group of grains, or of other fermentables if they are not to be mashed. The other groups say
// nothing here.
void ReadGrainGroup(BeerJsonRecord& record, ForeignFermentable& read) {
    using Type = ForeignFermentable::Type;
    const Json* const group = record.Peek("grain_group");
    const std::string* const word = group == nullptr ? nullptr : group->AsText();
    if (word == nullptr || !EqualAscii(TrimSpace(*word), "adjunct")) return;
    const bool isMashed = read.recommendMash.value_or(true);
    if (read.type != (isMashed ? Type::Grain : Type::Other)) return;
    record.Value("grain_group");
    read.type = Type::Adjunct;
}

ForeignFermentable ReadFermentable(BeerJsonRecord& record, const LineFrame& line) {
    using Type = ForeignFermentable::Type;
    ForeignFermentable read;
    read.name = record.Text("name");
    read.type = record.Word("type", FermentableTypeOfWord);
    read.amount = record.Amount("amount", Of::Mass);
    ReadYield(record, read, line);
    read.lovibond = record.Figure("color", FigureUnit::Lovibond);
    // Programs that do not know a grain write zeros for both.
    const bool isGrain = !read.type || *read.type == Type::Grain;
    if (isGrain && !read.yield && read.lovibond == 0.0) read.lovibond.reset();
    read.recommendMash = record.Boolean("recommend_mash");
    ReadGrainGroup(record, read);
    ReadLateness(record, read, line);
    read.origin = record.Text("origin");
    read.supplier = record.Text("producer");
    read.productId = record.Text("product_id");
    read.notes = record.Text("notes");
    return read;
}

void TellTimes(const JsonTiming& timing, const LineFrame& line) {
    if (!timing.timesRemark.empty())
        line.telling.Tell(Severity::Approximated, FindingCode::HopTime, line.place, timing.timesRemark);
}

ForeignHop ReadHop(BeerJsonRecord& record, const LineFrame& line) {
    ForeignHop read;
    read.name = record.Text("name");
    read.alpha = record.Figure("alpha_acid", FigureUnit::Percent);
    read.beta = record.Figure("beta_acid", FigureUnit::Percent);
    read.amount = record.Amount("amount", Of::Mass);
    JsonTiming timing = ReadTiming(record, line.recipe.boilSteps, line.telling, line.place, line.path);
    read.use = timing.use;
    read.useWritten = std::move(timing.useWritten);
    read.minutes = timing.minutes;
    TellTimes(timing, line);
    if (const Json* const form = record.Peek("form"); form != nullptr && form->AsText() != nullptr)
        read.formWritten = std::string(TrimSpace(*form->AsText()));
    read.form = record.Word("form", HopFormOfWord);
    read.origin = record.Text("origin");
    read.supplier = record.Text("producer");
    read.productId = record.Text("product_id");
    read.notes = record.Text("notes");
    return read;
}

ForeignYeast ReadYeast(BeerJsonRecord& record, const LineFrame& line) {
    ForeignYeast read;
    read.name = record.Text("name");
    read.laboratory = record.Text("producer");
    // As older files call it.
    if (read.laboratory.empty()) read.laboratory = record.Text("laboratory");
    read.productId = record.Text("product_id");
    read.type = record.Text("type");
    read.form = record.Text("form");
    read.amount = record.Amount("amount", Of::Pieces);
    read.attenuation = record.Figure("attenuation", FigureUnit::Percent);
    const ForeignRange attenuation = record.Range("attenuation_range", FigureUnit::Percent);
    if (!read.attenuation && attenuation.low && attenuation.high)
        read.attenuation = (*attenuation.low + *attenuation.high) / 2;
    const ForeignRange celsius = record.Range("temperature_range", FigureUnit::Celsius);
    read.minCelsius = celsius.low;
    read.maxCelsius = celsius.high;
    read.flocculation = record.Text("flocculation");
    read.notes = record.Text("notes");
    const JsonTiming timing = ReadTiming(record, line.recipe.boilSteps, line.telling, line.place, line.path);
    read.secondary = timing.use == ForeignUse::Secondary;
    if (timing.use == ForeignUse::Mash || timing.use == ForeignUse::Package)
        line.telling.KeepAside(Joined(line.path, "timing"), 0);
    if (const Json* const step = record.Peek("add_to_fermentation_step"); step != nullptr && !timing.use)
        read.secondary = record.Number("add_to_fermentation_step", FigureUnit::Plain).value_or(1) >= 2;
    return read;
}

ForeignMisc ReadMisc(BeerJsonRecord& record, const LineFrame& line) {
    ForeignMisc read;
    read.name = record.Text("name");
    read.type = record.Text("type");
    read.amount = record.Amount("amount", Of::Pieces);
    JsonTiming timing = ReadTiming(record, line.recipe.boilSteps, line.telling, line.place, line.path);
    read.use = timing.use;
    read.useWritten = std::move(timing.useWritten);
    read.minutes = timing.minutes;
    TellTimes(timing, line);
    read.useFor = record.Text("use_for");
    read.notes = record.Text("notes");
    return read;
}

ForeignWater ReadWater(BeerJsonRecord& record, const LineFrame& /*line*/) {
    constexpr FigureUnit kUnit = FigureUnit::MilligramsPerLitre;
    ForeignWater read;
    read.name = record.Text("name");
    read.litres = record.Figure("amount", FigureUnit::Litres);
    read.calcium = record.Figure("calcium", kUnit);
    read.bicarbonate = record.Figure("bicarbonate", kUnit);
    read.carbonate = record.Figure("carbonate", kUnit);
    read.sulfate = record.Figure("sulfate", kUnit);
    read.chloride = record.Figure("chloride", kUnit);
    read.sodium = record.Figure("sodium", kUnit);
    read.magnesium = record.Figure("magnesium", kUnit);
    read.ph = record.Number("pH", FigureUnit::Plain);
    read.notes = record.Text("notes");
    return read;
}

ForeignStyle ReadStyle(BeerJsonRecord& record, const LineFrame& /*line*/) {
    ForeignStyle read;
    read.name = record.Text("name");
    read.category = record.Text("category");
    read.categoryNumber = record.Text("category_number");
    read.letter = record.Text("style_letter");
    read.guide = record.Text("style_guide");
    read.type = record.Text("type");
    read.og = record.Range("original_gravity", FigureUnit::Gravity);
    read.fg = record.Range("final_gravity", FigureUnit::Gravity);
    read.ibu = record.Range("international_bitterness_units", FigureUnit::Ibus);
    read.srm = record.Range("color", FigureUnit::Srm);
    read.volumes = record.Range("carbonation", FigureUnit::Volumes);
    read.abv = record.Range("alcohol_by_volume", FigureUnit::Percent);
    read.notes = record.Text("notes");
    return read;
}

// Puts paths into the order in which a value has them.
class PathOrder {
  public:
    explicit PathOrder(const Json& value) { Walk(value, {}); }

    std::vector<std::string> Sorted(std::vector<std::string> paths) const {
        std::ranges::stable_sort(paths, {}, [&](const std::string& path) {
            const auto found = places_.find(path);
            return found == places_.end() ? places_.size() : found->second;
        });
        return paths;
    }

  private:
    void Walk(const Json& value, const std::string& path) {
        if (const Json::Array* const array = value.AsArray())
            for (const Json& element : *array) Walk(element, path);
        const Json::Object* const object = value.AsObject();
        if (object == nullptr) return;
        for (const JsonMember& member : *object) {
            const std::string inner = Joined(path, member.name);
            places_.try_emplace(inner, places_.size());
            Walk(member.value, inner);
        }
    }

    std::map<std::string, std::size_t> places_;
};

class Reader {
  public:
    explicit Reader(ForeignFile& file) : file_(file), library_(file.findings, {}) {}

    void Read(const Json& beer) {
        BeerJsonRecord record(beer, JsonRecord::File, library_, {}, {});
        for (const Json& recipe : record.Elements("recipes")) {
            Count();
            ReadRecipe(recipe);
        }
        const RecipeFrame none;
        AddLines(file_.fermentables, ReadFermentable, JsonRecord::Fermentable, kFermentablesPlace, record,
                 "fermentables", none, library_, {});
        AddLines(file_.hops, ReadHop, JsonRecord::Hop, kHopsPlace, record, "hop_varieties", none, library_,
                 {});
        AddLines(file_.yeasts, ReadYeast, JsonRecord::Culture, kYeastsPlace, record, "cultures", none,
                 library_, {});
        AddLines(file_.miscs, ReadMisc, JsonRecord::Misc, kMiscsPlace, record, "miscellaneous_ingredients",
                 none, library_, {});
        AddLines(file_.waters, ReadWater, JsonRecord::Water, kWatersPlace, record, "profiles", none, library_,
                 {});
        AddLines(file_.styles, ReadStyle, JsonRecord::Style, kStylesPlace, record, "styles", none, library_,
                 {});
        library_.TellUnknown(kFormat);
        std::vector<std::string> homeless;
        for (const std::string_view key : {"mashes", "fermentations", "packaging", "equipments", "boil"})
            if (beer.Find(key) != nullptr) homeless.emplace_back(key);
        library_.TellFields(Severity::NotCarried, FindingCode::Carried, "",
                            "Records outside of recipes that have no place here were left out", homeless);
    }

  private:
    void Count() {
        if (++count_ > kMostExchangeRecords) RefuseRecords();
    }

    template <class Line>
    void AddLines(std::vector<Line>& list, Line (*read)(BeerJsonRecord&, const LineFrame&), JsonRecord kind,
                  std::string_view placeWord, BeerJsonRecord& owner, std::string_view key,
                  const RecipeFrame& frame, ForeignTelling& telling, const std::string& ownerPath) {
        for (const Json& element : owner.Elements(key)) {
            Count();
            const Json* const name = element.Find("name");
            const bool hasName = name != nullptr && name->AsText() != nullptr;
            const LineFrame line{frame, telling,
                                 LinePlace(placeWord, list.size() + 1,
                                           hasName ? TrimSpace(*name->AsText()) : std::string_view()),
                                 Joined(ownerPath, key)};
            BeerJsonRecord record(element, kind, telling, line.place, line.path, frame.isRecipe);
            if (element.AsObject() == nullptr) continue;
            list.push_back(read(record, line));
            record.End();
        }
    }

    void ReadRecipe(const Json& value) {
        const Json* const name = value.Find("name");
        const std::string* const text = name == nullptr ? nullptr : name->AsText();
        ForeignTelling telling(file_.findings, RecipeName(text == nullptr ? std::string_view() : *text));
        BeerJsonRecord record(value, JsonRecord::Recipe, telling, {}, {});
        if (value.AsObject() == nullptr) return;
        ForeignRecipe recipe;
        ReadFields(record, recipe);
        ReadStated(record, recipe, telling);
        ReadEfficiency(record, recipe, telling);
        ReadTaste(record, recipe, telling);
        RecipeFrame frame = ReadBoil(record, recipe, telling);
        frame.isRecipe = true;
        if (const Json* const style = record.Value("style");
            style != nullptr && style->AsObject() != nullptr) {
            const Json* const styleName = style->Find("name");
            const bool isText = styleName != nullptr && styleName->AsText() != nullptr;
            const LineFrame line{frame, telling, NamedPlace("Style", isText ? *styleName->AsText() : ""),
                                 "style"};
            BeerJsonRecord styleRecord(*style, JsonRecord::Style, telling, line.place, line.path);
            recipe.style = ReadStyle(styleRecord, line);
            styleRecord.End();
        }
        ReadIngredients(record, recipe, frame, telling);
        record.End();
        telling.TellUnknown(kFormat);
        recipe.keptAside = telling.KeptAside();
        if (!recipe.keptAside.empty())
            recipe.keptAside = PathOrder(value).Sorted(std::move(recipe.keptAside));
        recipe.fragment = DumpJson(value);
        file_.recipes.push_back(std::move(recipe));
    }

    static void ReadFields(BeerJsonRecord& record, ForeignRecipe& recipe) {
        recipe.name = RecipeName(record.Text("name"));
        recipe.type = record.Word("type", RecipeTypeOfWord);
        recipe.brewer = record.Text("author");
        recipe.assistant = record.Text("coauthor");
        recipe.date = record.Text("created");
        recipe.batchSize = record.Volume("batch_size");
        recipe.notes = record.Text("notes");
        recipe.attenuation = record.Figure("apparent_attenuation", FigureUnit::Percent);
        recipe.carbonation = record.Number("carbonation", FigureUnit::Volumes, ZeroMeans::Unknown);
    }

    static void ReadStated(BeerJsonRecord& record, ForeignRecipe& recipe, ForeignTelling& telling) {
        recipe.stated.og = record.Figure("original_gravity", FigureUnit::Gravity);
        recipe.stated.fg = record.Figure("final_gravity", FigureUnit::Gravity);
        recipe.stated.abv = record.Figure("alcohol_by_volume", FigureUnit::Percent);
        recipe.stated.srm = record.Figure("color_estimate", FigureUnit::Srm);
        const Json* const estimate = record.Value("ibu_estimate");
        if (estimate == nullptr || estimate->IsNull()) return;
        if (estimate->AsObject() == nullptr || estimate->Find("unit") != nullptr) {
            recipe.stated.ibu = ReadJsonFigure(*estimate, "ibu_estimate", FigureUnit::Ibus, telling, {});
            return;
        }
        BeerJsonRecord ibus(*estimate, JsonRecord::IbuEstimate, telling, {}, "ibu_estimate");
        recipe.ibuMethod = ibus.Word("method", IbuMethodOfWord);
        // Files also call it "ibu".
        const bool hasValue = ibus.Peek("value") != nullptr;
        recipe.stated.ibu = ibus.Figure(hasValue ? "value" : "ibu", FigureUnit::Ibus);
        ibus.End();
    }

    static void ReadEfficiency(BeerJsonRecord& record, ForeignRecipe& recipe, ForeignTelling& telling) {
        const Json* const value = record.Peek("efficiency");
        if (value == nullptr || value->AsObject() == nullptr || value->Find("value") != nullptr) {
            recipe.efficiency = record.Number("efficiency", FigureUnit::Percent);
            return;
        }
        BeerJsonRecord efficiency(*record.Value("efficiency"), JsonRecord::Efficiency, telling, {},
                                  "efficiency");
        recipe.efficiency = efficiency.Figure("brewhouse", FigureUnit::Percent);
        efficiency.End();
    }

    static void ReadTaste(BeerJsonRecord& record, ForeignRecipe& recipe, ForeignTelling& telling) {
        const Json* const value = record.Value("taste");
        if (value == nullptr || value->IsNull()) return;
        BeerJsonRecord taste(*value, JsonRecord::Taste, telling, {}, "taste");
        recipe.tasteNotes = taste.Text("notes");
        recipe.tasteRating = taste.Number("rating", FigureUnit::Plain);
        taste.End();
    }

    static RecipeFrame ReadBoil(BeerJsonRecord& record, ForeignRecipe& recipe, ForeignTelling& telling) {
        RecipeFrame frame;
        const Json* const value = record.Value("boil");
        if (value == nullptr || value->IsNull()) return frame;
        BeerJsonRecord boil(*value, JsonRecord::Boil, telling, "Boil", "boil");
        recipe.boilSize = boil.Volume("pre_boil_size");
        recipe.boilMinutes = boil.Figure("boil_time", FigureUnit::Minutes);
        frame.boilMinutes = recipe.boilMinutes;
        for (const Json& element : boil.Elements("boil_steps")) {
            BeerJsonRecord step(element, JsonRecord::BoilStep, telling,
                                LinePlace("Boil steps", frame.boilSteps.size() + 1, {}), "boil/boil_steps");
            frame.boilSteps.push_back({step.Text("name"),
                                       step.Figure("start_temperature", FigureUnit::Celsius),
                                       step.Figure("end_temperature", FigureUnit::Celsius)});
        }
        // The steps are kept as a whole: only when something is added follows from them.
        if (!frame.boilSteps.empty()) telling.KeepAside("boil/boil_steps", 0);
        boil.End();
        return frame;
    }

    void ReadIngredients(BeerJsonRecord& record, ForeignRecipe& recipe, const RecipeFrame& frame,
                         ForeignTelling& telling) {
        const Json* const value = record.Value("ingredients");
        if (value == nullptr || value->IsNull()) return;
        const std::string path = "ingredients";
        BeerJsonRecord list(*value, JsonRecord::Ingredients, telling, {}, path);
        AddLines(recipe.fermentables, ReadFermentable, JsonRecord::Fermentable, kFermentablesPlace, list,
                 "fermentable_additions", frame, telling, path);
        AddLines(recipe.hops, ReadHop, JsonRecord::Hop, kHopsPlace, list, "hop_additions", frame, telling,
                 path);
        AddLines(recipe.yeasts, ReadYeast, JsonRecord::Culture, kYeastsPlace, list, "culture_additions",
                 frame, telling, path);
        AddLines(recipe.miscs, ReadMisc, JsonRecord::Misc, kMiscsPlace, list, "miscellaneous_additions",
                 frame, telling, path);
        AddLines(recipe.waters, ReadWater, JsonRecord::Water, kWatersPlace, list, "water_additions", frame,
                 telling, path);
        list.End();
    }

    ForeignFile& file_;
    ForeignTelling library_;
    std::size_t count_ = 0;
};

void TellText(const DecodedText& decoded, const JsonReading& reading, Findings& findings) {
    const auto line = [](int number) { return "line " + std::to_string(number); };
    if (!decoded.remark.empty())
        findings.Add({Severity::Repaired, FindingCode::Encoding, "", "", decoded.remark});
    if (reading.commentLine > 0)
        findings.Add({Severity::Repaired, FindingCode::JsonComments, "", line(reading.commentLine),
                      "The file has comments, which the format does not allow."});
    if (reading.spareCommaLine > 0)
        findings.Add({Severity::Repaired, FindingCode::JsonComments, "", line(reading.spareCommaLine),
                      "The file has a comma before a closing bracket, which the format does not allow."});
    if (!reading.brokenOff.empty())
        findings.Add({Severity::Suspicious, FindingCode::Truncated, "", "",
                      reading.brokenOff + " Only what stands before was read."});
}

}  // namespace

void ReadBeerJson(std::string_view bytes, ForeignFile& file) {
    file.format = ExchangeFormat::BeerJson;
    if (bytes.size() > kMostExchangeBytes) RefuseFile("The file is larger than 64 megabytes.");
    const DecodedText decoded = Decode(bytes);
    const JsonReading reading = SalvageJson(decoded.text);
    const Json* const beer = reading.value.Find("beerjson");
    if (beer == nullptr || beer->AsObject() == nullptr)
        RefuseFile("The file has no object with the name \"beerjson\".");
    TellText(decoded, reading, file.findings);
    Reader(file).Read(*beer);
}

}  // namespace tw
