// What stands in files that the program writes as BeerJSON.
#include "exchange/BeerJsonWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "exchange/BeerJsonReader.h"
#include "exchange/ExchangeText.h"
#include "exchange/Originals.h"
#include "values/Json.h"

namespace tw::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Of = ForeignAmount::Of;
using Use = ForeignUse;
using Field = ExportedField;

struct Written {
    std::string text;
    Findings findings;
    Json recipe;

    // The value at a path from the recipe as compact JSON; "(none)" without one. A number is an index.
    std::string At(const std::string& path) const {
        const Json* value = &recipe;
        std::istringstream steps(path);
        for (std::string step; value != nullptr && std::getline(steps, step, '/');) {
            const bool isIndex = step.find_first_not_of("0123456789") == std::string::npos;
            const Json::Array* const array = value->AsArray();
            if (isIndex)
                value = array != nullptr && std::stoul(step) < array->size() ? &(*array)[std::stoul(step)]
                                                                             : nullptr;
            else
                value = value->Find(step);
        }
        return value == nullptr ? "(none)" : DumpJson(*value);
    }
    std::vector<std::string> Told() const { return test::Told(findings); }
};

Written Write(const ExportedRecipe& recipe) {
    Written written;
    written.text = WriteBeerJson(std::span(&recipe, 1), written.findings);
    const Json file = ParseJson(written.text).value;
    if (const Json* const recipes = file.Find("beerjson")->Find("recipes"))
        written.recipe = recipes->AsArray()->at(0);
    return written;
}

Written WriteFacts(ForeignRecipe facts) {
    ExportedRecipe recipe;
    recipe.facts = std::move(facts);
    return Write(recipe);
}

ForeignHop Hop(const std::string& name, std::optional<Use> use, std::optional<double> minutes) {
    ForeignHop hop;
    hop.name = name;
    hop.alpha = 5;
    hop.amount = ForeignAmount{Of::Mass, 0.02, "20 g"};
    hop.use = use;
    hop.minutes = minutes;
    return hop;
}

Written WriteHop(const ForeignHop& hop) {
    ForeignRecipe facts;
    facts.hops = {hop};
    return WriteFacts(std::move(facts));
}

ForeignRecipe ReadOne(const std::string& text) {
    ForeignFile file;
    ReadBeerJson(text, file);
    return file.recipes.empty() ? ForeignRecipe() : file.recipes.front();
}

ExportedRecipe Original(const std::string& recipe) {
    return test::Original(ReadOne(R"({"beerjson": {"version": 1, "recipes": [)" + recipe + "]}}"));
}

// A recipe that satisfies the schema, with a member in a line that the format does not name.
constexpr const char* kValid = R"({"name": "Mild", "type": "all grain", "author": "Ann",
 "efficiency": {"brewhouse": {"unit": "%", "value": 70.0}}, "batch_size": {"unit": "gal", "value": 5},
 "notes": "Dark", "beer_pH": {"unit": "pH", "value": 4.2},
 "boil": {"boil_time": {"unit": "min", "value": 60}},
 "mash": {"name": "Single", "grain_temperature": {"unit": "C", "value": 20}, "mash_steps": [
  {"name": "Rest", "type": "infusion", "step_temperature": {"unit": "C", "value": 67},
   "step_time": {"unit": "min", "value": 60}}]},
 "ingredients": {"fermentable_additions": [{"name": "Pale", "type": "grain",
   "yield": {"fine_grind": {"unit": "%", "value": 79}}, "color": {"unit": "Lovi", "value": 3},
   "amount": {"unit": "lb", "value": 7}}],
  "hop_additions": [
   {"name": "Fuggle", "alpha_acid": {"unit": "%", "value": 4.50}, "grower": "Smith",
    "amount": {"unit": "oz", "value": 1}, "timing": {"use": "add_to_boil", "time": {"unit": "min", "value": 60},
    "continuous": false}},
   {"name": "Goldings", "alpha_acid": {"unit": "%", "value": 5}, "amount": {"unit": "g", "value": 20},
    "timing": {"use": "add_to_fermentation", "duration": {"unit": "day", "value": 3}}}]}})";

TEST(BeerJsonWriter, ARecipeWithNothingButANameHasAllThatTheFormatRequires) {
    ForeignRecipe facts;
    facts.name = "Ale";
    const Written written = WriteFacts(facts);
    EXPECT_EQ(written.text, R"({
  "beerjson": {
    "version": 2.06,
    "recipes": [
      {
        "name": "Ale",
        "type": "all grain",
        "ingredients": {
          "fermentable_additions": []
        },
        "author": "",
        "efficiency": {
          "brewhouse": {
            "unit": "%",
            "value": 0
          }
        },
        "batch_size": {
          "unit": "l",
          "value": 0
        }
      }
    ]
  }
}
)");
    EXPECT_THAT(written.Told(),
                ElementsAre("note missing : The format requires figures that are unknown, which were "
                            "written as 0 or as the usual word: efficiency/brewhouse, batch_size."));
}

TEST(BeerJsonWriter, TimingOfHops) {
    const auto timing = [](Use use, double minutes) {
        return WriteHop(Hop("Saaz", use, minutes)).At("ingredients/hop_additions/0/timing");
    };
    EXPECT_EQ(timing(Use::Boil, 60), R"({"use":"add_to_boil","time":{"unit":"min","value":60}})");
    EXPECT_EQ(timing(Use::FirstWort, 60),
              R"({"use":"add_to_boil","step":1,"time":{"unit":"min","value":60}})");
    EXPECT_EQ(timing(Use::Whirlpool, 20),
              R"({"use":"add_to_boil","step":2,"duration":{"unit":"min","value":20}})");
    EXPECT_EQ(timing(Use::Aroma, 0), R"({"use":"add_to_boil","step":2,"duration":{"unit":"min","value":0}})");
    EXPECT_EQ(timing(Use::Mash, 60), R"({"use":"add_to_mash","duration":{"unit":"min","value":60}})");
    EXPECT_EQ(timing(Use::Primary, 7 * 1440),
              R"({"use":"add_to_fermentation","duration":{"unit":"day","value":7}})");
    EXPECT_EQ(timing(Use::Secondary, 1500),
              R"({"use":"add_to_fermentation","step":2,"duration":{"unit":"min","value":1500}})");
    EXPECT_EQ(timing(Use::Package, 0.5), R"({"use":"add_to_package","duration":{"unit":"sec","value":30}})");
    const Written unknown = WriteHop(Hop("Saaz", std::nullopt, std::nullopt));
    EXPECT_EQ(unknown.At("ingredients/hop_additions/0/timing"), "{}");
}

TEST(BeerJsonWriter, StepsThatTheTimingNeeds) {
    ForeignRecipe facts;
    facts.boilMinutes = 75;
    facts.hops = {Hop("A", Use::FirstWort, 75), Hop("B", Use::Boil, 5), Hop("C", Use::Whirlpool, 15),
                  Hop("D", Use::Secondary, 1440)};
    const Written written = WriteFacts(facts);
    EXPECT_EQ(written.At("boil/boil_time"), R"({"unit":"min","value":75})");
    EXPECT_EQ(written.At("boil/boil_steps/0/name"), "\"First wort\"");
    EXPECT_EQ(written.At("boil/boil_steps/1/name"), "\"Boil\"");
    EXPECT_EQ(written.At("boil/boil_steps/2/name"), "\"Hop stand\"");
    EXPECT_EQ(written.At("ingredients/hop_additions/2/timing/step"), "3");
    EXPECT_EQ(written.At("fermentation/fermentation_steps"), R"([{"name":"Primary"},{"name":"Secondary"}])");
    std::vector<std::optional<Use>> uses;
    for (const ForeignHop& hop : ReadOne(written.text).hops) uses.push_back(hop.use);
    EXPECT_THAT(uses, ElementsAre(Use::FirstWort, Use::Boil, Use::Whirlpool, Use::Secondary));
    // Without the need for one there are no steps.
    facts.hops = {Hop("B", Use::Boil, 5)};
    EXPECT_EQ(WriteFacts(facts).At("boil/boil_steps"), "(none)");
    EXPECT_EQ(WriteFacts(facts).At("fermentation"), "(none)");
}

TEST(BeerJsonWriter, AmountsHaveTheUnitOfTheirText) {
    const auto amount = [](ForeignAmount stated) {
        ForeignRecipe facts;
        facts.yeasts.emplace_back();
        facts.yeasts[0].amount = std::move(stated);
        return WriteFacts(facts).At("ingredients/culture_additions/0/amount");
    };
    // A pound is 0.45359237 kg, a gallon 3.785411784 l, of which a teaspoon is the 768th part.
    EXPECT_EQ(amount({Of::Mass, 4.19572942, "9.25 lb"}), R"({"unit":"lb","value":9.25})");
    EXPECT_EQ(amount({Of::Volume, 18.92705892, "5 gal"}), R"({"unit":"gal","value":5})");
    EXPECT_EQ(amount({Of::Volume, 0.00492892, "1 tsp"}), R"({"unit":"tsp","value":1})");
    EXPECT_EQ(amount({Of::Pieces, 2, "2 pkg"}), R"({"unit":"pkg","value":2})");
    EXPECT_EQ(amount({Of::Pieces, 2, ""}), R"({"unit":"each","value":2})");
    EXPECT_EQ(amount({Of::Mass, 0.0115, ""}), R"({"unit":"kg","value":0.0115})");
    // Several quantities, a unit that the format does not have, and a text that says something else.
    EXPECT_EQ(amount({Of::Mass, 4.19572942, "9 lb 4 oz"}), R"({"unit":"kg","value":4.19572942})");
    EXPECT_EQ(amount({Of::Volume, 150, "1.5 hl"}), R"({"unit":"l","value":150})");
    EXPECT_EQ(amount({Of::Mass, 4.2, "9.25 lb"}), R"({"unit":"kg","value":4.2})");
    EXPECT_EQ(amount({Of::Volume, 1, "1 kg"}), R"({"unit":"l","value":1})");
}

TEST(BeerJsonWriter, PiecesAreNoAmountOfHops) {
    ForeignHop hop = Hop("Saaz", Use::Boil, 60);
    hop.amount = ForeignAmount{Of::Pieces, 2, "2 each"};
    const Written written = WriteHop(hop);
    EXPECT_EQ(written.At("ingredients/hop_additions/0/amount"), R"({"unit":"kg","value":0})");
    EXPECT_THAT(written.Told(), Contains(HasSubstr("approximated amount-unit Hops 1: Saaz: Pieces")));
}

TEST(BeerJsonWriter, FormsOfHops) {
    using Form = ForeignHop::Form;
    const std::pair<Form, const char*> cases[] = {
        {Form::Pellet, "\"pellet\""},      {Form::Plug, "\"plug\""},       {Form::Leaf, "\"leaf\""},
        {Form::WetLeaf, "\"leaf (wet)\""}, {Form::Extract, "\"extract\""}, {Form::Powder, "\"powder\""}};
    for (const auto& [form, word] : cases) {
        ForeignHop hop = Hop("Saaz", Use::Boil, 60);
        hop.form = form;
        const Written written = WriteHop(hop);
        EXPECT_EQ(written.At("ingredients/hop_additions/0/form"), word);
        EXPECT_EQ(ReadOne(written.text).hops.at(0).form, form);
    }
}

TEST(BeerJsonWriter, TypesOfFermentables) {
    using Type = ForeignFermentable::Type;
    const std::pair<Type, const char*> cases[] = {{Type::Grain, "\"grain\""},
                                                  {Type::Adjunct, "\"grain\""},
                                                  {Type::Sugar, "\"sugar\""},
                                                  {Type::Extract, "\"extract\""},
                                                  {Type::DryExtract, "\"dry extract\""},
                                                  {Type::Fruit, "\"fruit\""},
                                                  {Type::Juice, "\"juice\""},
                                                  {Type::Honey, "\"honey\""},
                                                  {Type::Other, "\"other\""}};
    for (const auto& [type, word] : cases) {
        ForeignRecipe facts;
        facts.fermentables.emplace_back();
        facts.fermentables[0].type = type;
        const Written written = WriteFacts(facts);
        EXPECT_EQ(written.At("ingredients/fermentable_additions/0/type"), word);
        EXPECT_EQ(written.At("ingredients/fermentable_additions/0/grain_group"),
                  type == Type::Adjunct ? "\"adjunct\"" : "(none)");
        EXPECT_EQ(written.At("ingredients/fermentable_additions/0/yield"),
                  R"({"fine_grind":{"unit":"%","value":0}})");
    }
}

// Whatever is written as a type and a group is read as the type that it was.
TEST(BeerJsonWriter, TypesOfFermentablesComeBack) {
    using Type = ForeignFermentable::Type;
    for (const Type type : {Type::Grain, Type::Adjunct, Type::Sugar, Type::Extract, Type::DryExtract,
                            Type::Fruit, Type::Juice, Type::Honey, Type::Other})
        for (const std::optional<bool> mash :
             {std::optional<bool>(), std::optional(true), std::optional(false)})
            for (const bool late : {false, true}) {
                ForeignRecipe facts;
                facts.fermentables.emplace_back();
                facts.fermentables[0].type = type;
                facts.fermentables[0].recommendMash = mash;
                facts.fermentables[0].afterBoil = late;
                const ForeignFermentable read = ReadOne(WriteFacts(facts).text).fermentables.at(0);
                EXPECT_EQ(read.type, type) << static_cast<int>(type);
                EXPECT_EQ(read.recommendMash, mash);
                EXPECT_EQ(read.afterBoil, late);
            }
}

TEST(BeerJsonWriter, WordsOfTheOtherFormat) {
    ForeignRecipe facts;
    facts.yeasts.resize(2);
    facts.yeasts[0].type = "Wheat";
    facts.yeasts[0].form = "Dry";
    facts.yeasts[0].flocculation = "Very High";
    facts.yeasts[0].secondary = true;
    facts.yeasts[1].type = "Odd";
    facts.miscs.resize(1);
    facts.miscs[0].type = "Water Agent";
    facts.style.emplace();
    facts.style->type = "Lager";
    facts.style->categoryNumber = "13";
    facts.style->letter = "b";
    facts.date = "12/27/2003";
    const Written written = WriteFacts(facts);
    EXPECT_EQ(written.At("ingredients/culture_additions/0/type"), "\"ale\"");
    EXPECT_EQ(written.At("ingredients/culture_additions/0/form"), "\"dry\"");
    EXPECT_EQ(written.At("ingredients/culture_additions/0/flocculation"), "\"very high\"");
    EXPECT_EQ(written.At("ingredients/culture_additions/0/timing/step"), "2");
    EXPECT_EQ(written.At("ingredients/culture_additions/1/type"), "\"ale\"");
    EXPECT_EQ(written.At("ingredients/miscellaneous_additions/0/type"), "\"water agent\"");
    EXPECT_EQ(written.At("style/type"), "\"beer\"");
    EXPECT_EQ(written.At("style/category_number"), "13");
    EXPECT_EQ(written.At("style/style_letter"), "\"B\"");
    EXPECT_EQ(written.At("created"), "\"2003-12-27\"");
    EXPECT_THAT(written.Told(),
                Contains(HasSubstr("approximated unknown-word Yeasts 2: type \"Odd\" is not")));
    facts.style->categoryNumber = "13-14";
    facts.style->letter = "AB";
    facts.date = "last week";
    const Written odd = WriteFacts(facts);
    EXPECT_EQ(odd.At("style/category_number"), "(none)");
    EXPECT_EQ(odd.At("style/style_letter"), "(none)");
    EXPECT_EQ(odd.At("created"), "(none)");
    EXPECT_THAT(odd.Told(), Contains(HasSubstr("the category number of the style, the letter of the style")));
    EXPECT_THAT(odd.Told(), Contains(HasSubstr("the date \"last week\"")));
}

TEST(ExchangeText, Dates) {
    const std::pair<const char*, const char*> cases[] = {{"2013-09-21", "2013-09-21"},
                                                         {"12/27/2003", "2003-12-27"},
                                                         {"3 Jan 04", "2004-01-03"},
                                                         {"22 May 2014", "2014-05-22"},
                                                         {"8/12/2015 4:43:15 PM", "2015-08-12"},
                                                         {"2013-09-21T10:11:12", "2013-09-21"},
                                                         {"27.12.2003", "2003-12-27"},
                                                         {"1 September 98", "1998-09-01"},
                                                         {"Jan 3, 2004", "2004-01-03"}};
    for (const auto& [text, date] : cases) EXPECT_EQ(IsoDate(text), date) << text;
    for (const char* text :
         {"", "soon", "13/13/2003", "31 Feb 2014", "0/1/2003", "2003", "1/2", "1/2/12345", "3 Foo 04"})
        EXPECT_EQ(IsoDate(text), std::nullopt) << text;
}

TEST(BeerJsonWriter, FactsWithoutAMemberAreTold) {
    ForeignRecipe facts;
    facts.hopUtilization = 90;
    facts.primingSugar = "Honey";
    EXPECT_THAT(WriteFacts(facts).Told(),
                Contains("not carried carried : BeerJSON has no place for what was left out: "
                         "the priming sugar, the utilization of hops."));
}

TEST(BeerJsonWriter, AnUnchangedOriginalComesBack) {
    const Written written = Write(Original(kValid));
    EXPECT_THAT(written.Told(), IsEmpty());
    EXPECT_EQ(DumpJson(written.recipe), DumpJson(ParseJson(kValid).value));
}

// The original with one text replaced.
Json Replaced(const std::string& from, const std::string& to) {
    std::string text = DumpJson(ParseJson(kValid).value);
    EXPECT_NE(text.find(from), std::string::npos) << from;
    text.replace(text.find(from), from.size(), to);
    return ParseJson(text).value;
}

TEST(BeerJsonWriter, AChangedLineKeepsItsOtherMembers) {
    ExportedRecipe recipe = Original(kValid);
    recipe.hops[0].unchanged = false;
    recipe.facts.hops[0].amount = ForeignAmount{Of::Mass, 0.045, "45 g"};
    EXPECT_EQ(DumpJson(Write(recipe).recipe),
              DumpJson(Replaced(R"({"unit":"oz","value":1})", R"({"unit":"g","value":45})")));
    // The same amount in another unit is no change.
    recipe.facts.hops[0].amount = ForeignAmount{Of::Mass, 0.02835, "28.35 g"};
    EXPECT_EQ(DumpJson(Write(recipe).recipe), DumpJson(ParseJson(kValid).value));
    recipe.facts.hops[0].minutes = 30;
    EXPECT_EQ(DumpJson(Write(recipe).recipe),
              DumpJson(Replaced(R"("time":{"unit":"min","value":60},"continuous")",
                                R"("time":{"unit":"min","value":30},"continuous")")));
    recipe.facts.hops[0].use = Use::Mash;
    EXPECT_EQ(Write(recipe).At("ingredients/hop_additions/0/timing"),
              R"({"continuous":false,"use":"add_to_mash","duration":{"unit":"min","value":30}})");
}

TEST(BeerJsonWriter, DeletedAndNewLines) {
    ExportedRecipe recipe = Original(kValid);
    recipe.facts.hops[0] = Hop("Saaz", Use::FirstWort, 60);
    recipe.hops[0] = {};
    const Written written = Write(recipe);
    EXPECT_EQ(written.At("ingredients/hop_additions/0/name"), "\"Saaz\"");
    EXPECT_EQ(written.At("ingredients/hop_additions/0/grower"), "(none)");
    EXPECT_EQ(written.At("ingredients/hop_additions/1/name"), "\"Goldings\"");
    EXPECT_EQ(written.At("ingredients/hop_additions/2"), "(none)");
    EXPECT_EQ(written.At("boil/boil_steps/0/name"), "\"First wort\"");
    EXPECT_EQ(written.At("boil/boil_time/value"), "60");
}

TEST(BeerJsonWriter, AStepBeforeOthersMovesThem) {
    ExportedRecipe recipe = Original(
        R"({"name": "Ale", "boil": {"boil_time": {"unit": "min", "value": 60}, "boil_steps": [{"name": "Boil"},
        {"name": "Whirlpool"}]}, "ingredients": {"hop_additions": [{"name": "A", "timing": {"use": "add_to_boil",
        "step": 2, "duration": {"unit": "min", "value": 15}}}]}})");
    recipe.facts.hops.push_back(Hop("B", Use::FirstWort, 60));
    recipe.hops.emplace_back();
    const Written written = Write(recipe);
    EXPECT_EQ(written.At("ingredients/hop_additions/0/timing/step"), "3");
    EXPECT_EQ(ReadOne(written.text).hops.at(0).use, Use::Whirlpool);
    EXPECT_EQ(ReadOne(written.text).hops.at(1).use, Use::FirstWort);
}

TEST(BeerJsonWriter, ChangedFieldsOfTheRecipe) {
    ExportedRecipe recipe = Original(kValid);
    recipe.changed = {Field::Name,  Field::BatchSize, Field::Efficiency, Field::BoilTime,
                      Field::Notes, Field::Style,     Field::Bitterness, Field::TasteNotes};
    recipe.facts.name = "Old Mild";
    recipe.facts.batchSize = ForeignAmount{Of::Volume, 20, "20 l"};
    recipe.facts.efficiency = 75;
    recipe.facts.boilMinutes = 90;
    recipe.facts.notes.clear();
    recipe.facts.style = ForeignStyle();
    recipe.facts.style->name = "Mild";
    recipe.facts.stated.ibu = 20;
    recipe.facts.brewer = "has not changed";
    const Written written = Write(recipe);
    EXPECT_EQ(written.At("name"), "\"Old Mild\"");
    EXPECT_EQ(written.At("author"), "\"Ann\"");
    EXPECT_EQ(written.At("batch_size"), R"({"unit":"l","value":20})");
    EXPECT_EQ(written.At("efficiency/brewhouse/value"), "75");
    EXPECT_EQ(written.At("boil/boil_time/value"), "90");
    EXPECT_EQ(written.At("notes"), "(none)");
    EXPECT_EQ(written.At("taste"), "(none)");
    EXPECT_EQ(written.At("style"), R"({"name":"Mild","category":"","style_guide":"","type":"beer"})");
    EXPECT_EQ(written.At("ibu_estimate"), R"({"value":{"unit":"IBUs","value":20}})");
    EXPECT_EQ(written.At("mash"), DumpJson(*ParseJson(kValid).value.Find("mash")));
}

TEST(BeerJsonWriter, WhatTheSchemaForbidsIsMendedOrLeftOut) {
    ExportedRecipe recipe = Original(
        R"({"name": "Ale", "type": "All Grain", "author": 7, "odd": 1, "created": "3 Jan 04", "batch_size": 20,
        "efficiency": {"brewhouse": 70, "odd": 1}, "carbonation": {"unit": "vols", "value": 2.4}, "coauthor": [],
        "style": {"name": "Mild", "category_number": "13", "style_letter": "a", "type": "ale"},
        "mash": {"name": "M", "grain_temperature": {"unit": "C", "value": 20}, "mash_steps": []},
        "boil": {"boil_time": {"unit": "min", "value": 7.5}},
        "ingredients": {"hop_additions": {"name": "A", "alpha_acid": 5, "amount": {"unit": "Ounces", "value": "1"},
        "form": "odd", "timing": {"use": "Add To Boil", "time": 5, "odd": null}}}})");
    const Written written = Write(recipe);
    EXPECT_EQ(written.At("type"), "\"all grain\"");
    EXPECT_EQ(written.At("author"), "\"7\"");
    for (const char* dropped :
         {"odd", "efficiency/odd", "coauthor", "mash", "ingredients/hop_additions/0/form"})
        EXPECT_EQ(written.At(dropped), "(none)") << dropped;
    EXPECT_EQ(written.At("created"), "\"2004-01-03\"");
    EXPECT_EQ(written.At("batch_size"), R"({"unit":"l","value":20})");
    EXPECT_EQ(written.At("efficiency/brewhouse"), R"({"unit":"%","value":70})");
    EXPECT_EQ(written.At("carbonation"), "2.4");
    EXPECT_EQ(written.At("style/category_number"), "13");
    EXPECT_EQ(written.At("style/style_letter"), "\"A\"");
    EXPECT_EQ(written.At("style/type"), "\"beer\"");
    EXPECT_EQ(written.At("boil/boil_time"), R"({"unit":"sec","value":450})");
    EXPECT_EQ(written.At("ingredients/hop_additions/0/amount"), R"({"unit":"oz","value":1})");
    EXPECT_EQ(written.At("ingredients/hop_additions/0/timing"),
              R"({"use":"add_to_boil","time":{"unit":"min","value":5}})");
    EXPECT_THAT(written.Told(),
                Contains(HasSubstr("hop_additions/timing/odd, odd, efficiency/odd, coauthor, mash.")));
}

TEST(BeerJsonWriter, AnOriginalThatCannotBeReadIsTold) {
    for (const char* fragment : {"{", "[]", "7", "<RECIPE/>"}) {
        ExportedRecipe recipe;
        recipe.facts.name = "Ale";
        recipe.facts.fragment = fragment;
        const Written written = Write(recipe);
        EXPECT_EQ(written.At("name"), "\"Ale\"");
        EXPECT_THAT(written.Told(), Contains(HasSubstr("not carried carried : The original of the recipe")));
    }
}

}  // namespace
}  // namespace tw::test
