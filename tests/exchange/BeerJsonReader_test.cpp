// Each trait of real BeerJSON files in a small file of its own.
#include "exchange/BeerJsonReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "exchange/ExchangeLimits.h"
#include "exchange/Originals.h"
#include "values/Json.h"

namespace tw {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Of = ForeignAmount::Of;

ForeignFile Read(const std::string& text) {
    ForeignFile file;
    ReadBeerJson(text, file);
    return file;
}

// A file with one recipe that has these members besides its name.
ForeignFile ReadWith(const std::string& members) {
    return Read(R"({"beerjson": {"version": 1, "recipes": [{"name": "Ale", )" + members + "}]}}");
}

ForeignRecipe RecipeWith(const std::string& members) {
    ForeignFile file = ReadWith(members);
    return file.recipes.empty() ? ForeignRecipe() : std::move(file.recipes.front());
}

std::string Hops(const std::string& hop) {
    return R"("ingredients": {"hop_additions": [)" + hop + "]}";
}

ForeignHop HopWith(const std::string& members,
                   const std::string& boil = R"({"boil_time": {"unit": "min", "value": 60}})") {
    const ForeignRecipe recipe = RecipeWith(R"("boil": )" + boil + ", " + Hops("{" + members + "}"));
    return recipe.hops.empty() ? ForeignHop() : recipe.hops.front();
}

ForeignFermentable FermentableWith(const std::string& members) {
    const ForeignRecipe recipe = RecipeWith(R"("boil": {"boil_time": {"unit": "hr", "value": 1}},
        "ingredients": {"fermentable_additions": [{)" +
                                            members + "}]}");
    return recipe.fermentables.empty() ? ForeignFermentable() : recipe.fermentables.front();
}

std::vector<std::string> Told(const ForeignFile& file, FindingCode code) {
    return test::Told(file.findings, code);
}

TEST(BeerJsonReader, AdjunctsAreAGroupOfGrains) {
    using Type = ForeignFermentable::Type;
    const auto typeOf = [](const std::string& members) { return FermentableWith(members).type; };
    EXPECT_EQ(typeOf(R"("type": "grain", "grain_group": "adjunct")"), Type::Adjunct);
    EXPECT_EQ(typeOf(R"("type": "grain", "grain_group": "Adjunct", "recommend_mash": true)"), Type::Adjunct);
    EXPECT_EQ(typeOf(R"("type": "other", "grain_group": "adjunct", "recommend_mash": false)"),
              Type::Adjunct);
    EXPECT_EQ(typeOf(R"("type": "grain", "grain_group": "adjunct", "recommend_mash": false)"), Type::Grain);
    EXPECT_EQ(typeOf(R"("type": "sugar", "grain_group": "adjunct")"), Type::Sugar);
    EXPECT_EQ(typeOf(R"("type": "grain", "grain_group": "base")"), Type::Grain);
    // What is read has a place; the other groups are kept aside.
    const auto keptAside = [](const std::string& group) {
        return RecipeWith(R"("ingredients": {"fermentable_additions": [{"type": "grain", "grain_group": ")" +
                          group + "\"}]}")
            .keptAside;
    };
    EXPECT_THAT(keptAside("adjunct"), IsEmpty());
    EXPECT_THAT(keptAside("base"), ElementsAre("ingredients/fermentable_additions/grain_group"));
}

TEST(BeerJsonReader, ARecipeWithoutANameIsUntitled) {
    for (const char* const members : {R"("name": "")", R"("name": null)", R"("notes": "x")"}) {
        const ForeignFile file =
            Read(R"({"beerjson": {"version": 1, "recipes": [{)" + std::string(members) + "}]}}");
        EXPECT_EQ(file.recipes.at(0).name, "Untitled");
        for (const Finding& finding : file.findings.All()) EXPECT_EQ(finding.recipe, "Untitled");
        EXPECT_FALSE(file.findings.IsEmpty());
    }
    EXPECT_EQ(Read(R"({"beerjson": {"version": 1, "recipes": [{"name": " Dark\tor\nPale "}]}})")
                  .recipes.at(0)
                  .name,
              "Dark or Pale");
}

constexpr const char* kWhole = R"({"beerjson": {"version": 2.06, "recipes": [{
  "name": " Dark Mild ", "type": "all grain", "author": "Ann", "coauthor": "Bob", "created": "2020-03-01",
  "batch_size": {"unit": "gal", "value": 5}, "efficiency": {"brewhouse": {"unit": "%", "value": 71}},
  "style": {"name": "Mild", "category": "British", "category_number": 13, "style_letter": "A",
            "style_guide": "BJCP", "type": "beer"},
  "ingredients": {
    "fermentable_additions": [{"name": "Mild Malt", "type": "grain", "origin": "UK", "producer": "Own",
        "product_id": "M1", "yield": {"fine_grind": {"unit": "%", "value": 79}, "potential": {"unit": "sg", "value": 1.036}},
        "color": {"unit": "Lovi", "value": 4}, "amount": {"unit": "lb", "value": 9.25}}],
    "hop_additions": [{"name": "Fuggle", "form": "leaf", "alpha_acid": {"unit": "%", "value": 4.5}, "year": "2019",
        "beta_acid": {"unit": "%", "value": 3}, "amount": {"unit": "g", "value": 10},
        "timing": {"use": "add_to_boil", "time": {"unit": "hr", "value": 1}}}],
    "culture_additions": [{"name": "House", "type": "ale", "form": "dry", "producer": "Lab", "product_id": "L 1",
        "amount": {"unit": "pkg", "value": 1}, "attenuation": {"unit": "%", "value": 75}}],
    "miscellaneous_additions": [{"name": "Moss", "type": "fining", "amount": {"unit": "tsp", "value": 1},
        "timing": {"use": "add_to_boil", "time": {"unit": "min", "value": 15}}}],
    "water_additions": [{"name": "Well", "amount": {"unit": "l", "value": 25}, "calcium": {"unit": "ppm", "value": 100},
        "bicarbonate": {"unit": "mg/l", "value": 250}, "sulfate": {"unit": "ppb", "value": 40000},
        "chloride": {"unit": "ppm", "value": 30}, "sodium": {"unit": "ppm", "value": 12},
        "magnesium": {"unit": "ppm", "value": 8}, "iron": {"unit": "ppm", "value": 1}}]},
  "mash": {"name": "Single"},
  "boil": {"pre_boil_size": {"unit": "l", "value": 24}, "boil_time": {"unit": "min", "value": 60},
           "boil_steps": [{"name": "Boil"}]},
  "original_gravity": {"unit": "sg", "value": 1.037}, "final_gravity": {"unit": "plato", "value": 2},
  "alcohol_by_volume": {"unit": "%", "value": 3.5}, "ibu_estimate": {"method": "Tinseth", "value": {"unit": "IBUs", "value": 18}},
  "color_estimate": {"unit": "EBC", "value": 39.4}, "carbonation": 2.1,
  "apparent_attenuation": {"unit": "%", "value": 73}, "taste": {"notes": "Good", "rating": 40}, "notes": "Brew."
}]}})";

TEST(BeerJsonReader, AWholeRecipeLeavesNoFinding) {
    const ForeignFile file = Read(kWhole);
    for (const Finding& finding : file.findings.All()) ADD_FAILURE() << finding.place << ": " << finding.text;
}

TEST(BeerJsonReader, FieldsOfARecipe) {
    const ForeignRecipe recipe = Read(kWhole).recipes.at(0);
    EXPECT_EQ(recipe.name, "Dark Mild");
    EXPECT_EQ(recipe.type, ForeignRecipe::Type::AllGrain);
    EXPECT_EQ(recipe.brewer, "Ann");
    EXPECT_EQ(recipe.assistant, "Bob");
    EXPECT_EQ(recipe.date, "2020-03-01");
    EXPECT_NEAR(recipe.batchSize->value, 5 * 3.785411784, 1e-9);
    EXPECT_EQ(recipe.batchSize->written, "5 gal");
    EXPECT_EQ(recipe.boilSize->value, 24);
    EXPECT_EQ(recipe.boilMinutes, 60);
    EXPECT_EQ(recipe.efficiency, 71);
    EXPECT_EQ(recipe.attenuation, 73);
    EXPECT_EQ(recipe.carbonation, 2.1);
    EXPECT_EQ(recipe.ibuMethod, ForeignIbuMethod::Tinseth);
    EXPECT_EQ(recipe.stated.og, 1.037);
    // 2 P: 1 + 0.0077322 + 0.000053952 + 0.0000003445920
    EXPECT_NEAR(*recipe.stated.fg, 1.007786496592, 1e-9);
    EXPECT_EQ(recipe.stated.abv, 3.5);
    EXPECT_EQ(recipe.stated.ibu, 18);
    EXPECT_NEAR(*recipe.stated.srm, 20, 1e-9);
    EXPECT_EQ(recipe.notes, "Brew.");
    EXPECT_EQ(recipe.tasteNotes, "Good");
    EXPECT_EQ(recipe.tasteRating, 40);
    EXPECT_EQ(recipe.style->name, "Mild");
    EXPECT_EQ(recipe.style->categoryNumber, "13");
    EXPECT_EQ(recipe.style->letter, "A");
}

TEST(BeerJsonReader, FieldsOfLines) {
    const ForeignRecipe recipe = Read(kWhole).recipes.at(0);
    const ForeignFermentable& malt = recipe.fermentables.at(0);
    EXPECT_EQ(malt.type, ForeignFermentable::Type::Grain);
    EXPECT_NEAR(malt.amount->value, 9.25 * 0.45359237, 1e-9);
    EXPECT_EQ(malt.amount->written, "9.25 lb");
    EXPECT_EQ(malt.yield, 79);
    EXPECT_EQ(malt.potential, 1.036);
    EXPECT_EQ(malt.lovibond, 4);
    EXPECT_EQ(malt.supplier, "Own");
    EXPECT_EQ(malt.productId, "M1");
    EXPECT_FALSE(malt.afterBoil);
    const ForeignHop& hop = recipe.hops.at(0);
    EXPECT_EQ(hop.alpha, 4.5);
    EXPECT_EQ(hop.beta, 3);
    EXPECT_NEAR(hop.amount->value, 0.01, 1e-12);
    EXPECT_EQ(hop.amount->written, "10 g");
    EXPECT_EQ(hop.use, ForeignUse::Boil);
    EXPECT_EQ(hop.useWritten, "add_to_boil");
    EXPECT_EQ(hop.minutes, 60);
    EXPECT_EQ(hop.form, ForeignHop::Form::Leaf);
    const ForeignYeast& yeast = recipe.yeasts.at(0);
    EXPECT_EQ(yeast.laboratory, "Lab");
    EXPECT_EQ(yeast.amount->of, Of::Pieces);
    EXPECT_EQ(yeast.amount->written, "1 pkg");
    EXPECT_EQ(yeast.attenuation, 75);
    EXPECT_FALSE(yeast.secondary);
    const ForeignMisc& moss = recipe.miscs.at(0);
    EXPECT_EQ(moss.amount->of, Of::Volume);
    EXPECT_NEAR(moss.amount->value, 3.785411784 / 768, 1e-12);
    EXPECT_EQ(moss.minutes, 15);
    const ForeignWater& water = recipe.waters.at(0);
    EXPECT_EQ(water.litres, 25);
    EXPECT_EQ(water.bicarbonate, 250);
    EXPECT_EQ(water.sulfate, 40);
}

TEST(BeerJsonReader, WhatHasNoPlaceIsListedInTheOrderOfTheFile) {
    const ForeignRecipe recipe = Read(kWhole).recipes.at(0);
    EXPECT_THAT(recipe.keptAside, ElementsAre("ingredients/hop_additions/year",
                                              "ingredients/water_additions/iron", "mash", "boil/boil_steps"));
    const Json file = ParseJson(kWhole).value;
    EXPECT_EQ(recipe.fragment, DumpJson(file.Find("beerjson")->Find("recipes")->AsArray()->at(0)));
}

TEST(BeerJsonReader, TheTimingSaysWhenAHopIsAdded) {
    const auto timed = [](const std::string& timing, const std::string& boil = "{}") {
        return HopWith(R"("timing": )" + timing, boil);
    };
    EXPECT_EQ(timed(R"({"use": "add_to_mash", "duration": {"unit": "min", "value": 45}})").use,
              ForeignUse::Mash);
    const ForeignHop dry = timed(R"({"use": "add_to_fermentation", "time": {"unit": "day", "value": 2},
                                     "duration": {"unit": "day", "value": 3}})");
    EXPECT_EQ(dry.use, ForeignUse::Primary);
    EXPECT_EQ(dry.minutes, 3 * 24 * 60);
    EXPECT_EQ(timed(R"({"use": "add_to_fermentation", "step": 2})").use, ForeignUse::Secondary);
    EXPECT_EQ(timed(R"({"use": "add_to_package", "time": {"unit": "week", "value": 1}})").minutes,
              7 * 24 * 60);
    EXPECT_EQ(timed(R"({"use": "add_to_package"})").use, ForeignUse::Package);
    const std::string boil = R"({"boil_steps": [
        {"name": "Up", "start_temperature": {"unit": "C", "value": 70}, "end_temperature": {"unit": "C", "value": 100}},
        {"name": "Boil", "start_temperature": {"unit": "C", "value": 100}, "end_temperature": {"unit": "C", "value": 100}},
        {"name": "Rest", "start_temperature": {"unit": "F", "value": 176}, "end_temperature": {"unit": "F", "value": 170}},
        {"name": "Whirlpool"}]})";
    const auto inStep = [&](int step) {
        return timed(R"({"use": "add_to_boil", "time": {"unit": "min", "value": 5},
                         "duration": {"unit": "min", "value": 20}, "step": )" +
                         std::to_string(step) + "}",
                     boil);
    };
    EXPECT_EQ(inStep(1).use, ForeignUse::FirstWort);
    EXPECT_EQ(inStep(2).use, ForeignUse::Boil);
    EXPECT_EQ(inStep(2).minutes, 5);
    EXPECT_EQ(inStep(3).use, ForeignUse::Whirlpool);
    EXPECT_EQ(inStep(3).minutes, 20);
    EXPECT_EQ(inStep(4).use, ForeignUse::Whirlpool);
    EXPECT_EQ(inStep(5).use, ForeignUse::Boil);
    EXPECT_EQ(inStep(-1).use, ForeignUse::Boil);
    EXPECT_FALSE(timed("{}").use);
    EXPECT_FALSE(timed("null").use);
    EXPECT_FALSE(timed(R"({"use": 5})").use);
}

TEST(BeerJsonReader, ATimeThatIsGuessedOrHasNoPlaceIsTold) {
    const auto told = [](const std::string& timing) {
        return Told(ReadWith(Hops(R"({"name": "Saaz", "timing": {)" + timing + "}}")), FindingCode::HopTime);
    };
    const std::string time = R"("time": {"unit": "day", "value": 3})";
    const std::string duration = R"("duration": {"unit": "min", "value": 90})";
    const std::string both = time + ", " + duration;
    EXPECT_THAT(told(R"("use": "add_to_boil", )" + time), IsEmpty());
    EXPECT_THAT(told(R"("use": "add_to_fermentation", )" + duration), IsEmpty());
    EXPECT_THAT(told(R"("use": "add_to_fermentation", "time": {"unit": "day", "value": 0})"), IsEmpty());
    EXPECT_THAT(
        told(R"("use": "add_to_fermentation", )" + time),
        ElementsAre("Ale|Hops 1: Saaz|Its duration is not stated; its time of 4320 min from the start of "
                    "the step was read as how long it stays."));
    EXPECT_THAT(
        told(R"("use": "add_to_fermentation", )" + both),
        ElementsAre("Ale|Hops 1: Saaz|Its time of 4320 min from the start of the step has no place; its "
                    "duration of 90 min was taken."));
    EXPECT_THAT(
        told(R"("use": "add_to_boil", )" + duration),
        ElementsAre("Ale|Hops 1: Saaz|When it is added is not stated; its duration of 90 min was read as "
                    "boiled to the end."));
    EXPECT_THAT(
        told(R"("use": "add_to_boil", )" + both),
        ElementsAre("Ale|Hops 1: Saaz|Its duration of 90 min has no place; its time of 4320 min before "
                    "the end of the boil was taken."));
}

TEST(BeerJsonReader, AStepThatTheBoilDoesNotHaveIsTold) {
    const auto told = [](const std::string& step) {
        return Told(
            ReadWith(
                R"("boil": {"boil_time": {"unit": "min", "value": 60}, "boil_steps": [{"name": "Boil"}]}, )" +
                Hops(R"({"name": "Saaz", "timing": {"use": "add_to_boil", "step": )" + step + "}}")),
            FindingCode::HopUse);
    };
    EXPECT_THAT(told("1"), IsEmpty());
    EXPECT_THAT(told("2"),
                ElementsAre("Ale|Hops 1: Saaz|The boil has no step 2; it was read as added to the boil."));
}

TEST(BeerJsonReader, PlainNumbersAndAmountsWithoutOne) {
    const ForeignFile file = ReadWith(R"("ingredients": {"miscellaneous_additions": [
        {"name": "Vanilla", "amount": {"unit": "1", "value": 2}},
        {"name": "Orange", "amount": {"unit": "g", "value": null}}]})");
    const auto& miscs = file.recipes.at(0).miscs;
    EXPECT_EQ(miscs.at(0).amount.value().of, Of::Pieces);
    EXPECT_EQ(miscs.at(0).amount.value().value, 2);
    EXPECT_FALSE(miscs.at(1).amount);
    EXPECT_THAT(
        Told(file, FindingCode::EmptyRequired),
        ElementsAre("Ale|Miscellaneous 2: Orange|Fields that the format requires are empty: amount."));
}

TEST(BeerJsonReader, OlderFilesNameTheUseBesideTheTiming) {
    const std::string hop =
        R"({"name": "Saaz", "use": "dry hop", "timing": {"time": {"unit": "day", "value": 3}}})";
    const ForeignFile file = ReadWith(Hops(hop));
    EXPECT_EQ(file.recipes.at(0).hops.at(0).use, ForeignUse::Primary);
    EXPECT_THAT(Told(file, FindingCode::HopUse), ElementsAre(HasSubstr("Hops 1: Saaz")));
    // The timing wins.
    EXPECT_EQ(HopWith(R"("use": "dry hop", "timing": {"use": "add_to_boil"})").use, ForeignUse::Boil);
}

TEST(BeerJsonReader, OtherConditionsOfATimingAreKeptAside) {
    const ForeignRecipe recipe =
        RecipeWith(Hops(R"({"timing": {"use": "add_to_fermentation", "pH": 4, "continuous": true}})"));
    EXPECT_THAT(recipe.keptAside, ElementsAre("ingredients/hop_additions/timing/pH",
                                              "ingredients/hop_additions/timing/continuous"));
}

TEST(BeerJsonReader, ColoursOfMaltAreInDegreesLovibond) {
    const auto lovibond = [](const std::string& color) {
        return FermentableWith(R"("yield": {"fine_grind": {"unit": "%", "value": 80}}, "color": )" + color)
            .lovibond;
    };
    EXPECT_EQ(lovibond(R"({"unit": "Lovi", "value": 60})"), 60);
    EXPECT_NEAR(*lovibond(R"({"unit": "SRM", "value": 12.786})"), 10, 1e-9);
    EXPECT_NEAR(*lovibond(R"({"unit": "EBC", "value": 25.18842})"), 10, 1e-9);  // 12.786 * 1.97
    EXPECT_EQ(lovibond(R"({"unit": "EBC", "value": 0})"), 0);
    EXPECT_FALSE(FermentableWith(R"("type": "grain", "color": {"unit": "Lovi", "value": 0})").lovibond);
    EXPECT_EQ(FermentableWith(R"("type": "honey", "color": {"unit": "Lovi", "value": 0})").lovibond, 0);
}

TEST(BeerJsonReader, YieldsAreOfTheFineGrind) {
    EXPECT_EQ(FermentableWith(R"("yield": {"coarse_grind": {"unit": "%", "value": 78},
                                           "fine_coarse_difference": {"unit": "%", "value": 1.5}})")
                  .yield,
              79.5);
    EXPECT_EQ(FermentableWith(R"("yield": {"coarse_grind": {"unit": "%", "value": 78}})").yield, 78);
    EXPECT_EQ(FermentableWith(R"("yield": {"unit": "%", "value": 78})").yield, 78);
    EXPECT_FALSE(FermentableWith(R"("yield": {"fine_grind": {"unit": "%", "value": 0}})").yield);
    EXPECT_EQ(FermentableWith(R"("yield": {"potential": {"unit": "sg", "value": 1037}})").potential, 1.037);
}

TEST(BeerJsonReader, LateAdditionsDoNotSeeTheWholeBoil) {
    const auto isLate = [](const std::string& timing) {
        return FermentableWith(R"("timing": )" + timing).afterBoil;
    };
    EXPECT_TRUE(isLate(R"({"use": "add_to_boil", "time": {"unit": "min", "value": 15}})"));
    EXPECT_FALSE(isLate(R"({"use": "add_to_boil", "time": {"unit": "min", "value": 60}})"));
    EXPECT_FALSE(isLate(R"({"use": "add_to_boil"})"));
    EXPECT_FALSE(isLate(R"({"use": "add_to_mash"})"));
}

TEST(BeerJsonReader, FiguresMayBeTextsOrBareNumbers) {
    EXPECT_EQ(HopWith(R"("alpha_acid": "5,5 %")").alpha, 5.5);
    EXPECT_EQ(HopWith(R"("alpha_acid": 5.5)").alpha, 5.5);
    EXPECT_EQ(HopWith(R"("alpha_acid": {"unit": "%", "value": "5.5"})").alpha, 5.5);
    EXPECT_NEAR(HopWith(R"("amount": "1 oz")").amount->value, 0.45359237 / 16, 1e-12);
    EXPECT_EQ(HopWith(R"("amount": 0.05)").amount->value, 0.05);
    EXPECT_EQ(HopWith(R"("amount": {"unit": "Ounces", "value": 1})").amount->written, "1 oz");
    EXPECT_THAT(Told(ReadWith(Hops(R"({"amount": 0.05})")), FindingCode::AmountUnit),
                ElementsAre("Ale|Hops 1|amount \"0.05\" has no unit and was read as kilograms."));
    EXPECT_THAT(Told(ReadWith(Hops(R"({"alpha_acid": "5.5%"})")), FindingCode::UnitInNumber), SizeIs(1));
    EXPECT_EQ(RecipeWith(R"("original_gravity": {"unit": "sg", "value": 1059})").stated.og, 1.059);
    EXPECT_THAT(
        Told(ReadWith(R"("original_gravity": {"unit": "sg", "value": 1059})"), FindingCode::UnitInNumber),
        SizeIs(1));
    EXPECT_EQ(RecipeWith(R"("ibu_estimate": {"ibu": {"unit": "IBUs", "value": 29}})").stated.ibu, 29);
}

TEST(BeerJsonReader, UnknownUnitsAndImpossibleFiguresAreAbsent) {
    EXPECT_FALSE(HopWith(R"("amount": {"unit": "handfuls", "value": 2})").amount);
    EXPECT_FALSE(HopWith(R"("amount": {"unit": "g", "value": -2})").amount);
    EXPECT_FALSE(HopWith(R"("alpha_acid": {"unit": "kg", "value": 2})").alpha);
    EXPECT_FALSE(RecipeWith(R"("batch_size": {"unit": "kg", "value": 20})").batchSize);
    EXPECT_FALSE(RecipeWith(R"("batch_size": {"unit": "l", "value": 0})").batchSize);
    EXPECT_FALSE(RecipeWith(R"("carbonation": 0)").carbonation);
    EXPECT_THAT(
        Told(ReadWith(Hops(R"({"amount": {"unit": "handfuls", "value": 2}})")), FindingCode::AmountUnit),
        ElementsAre("Ale|Hops 1|amount \"2 handfuls\" is in an unknown unit and was left out."));
    EXPECT_THAT(Told(ReadWith(Hops(R"({"alpha_acid": {"unit": "%", "value": -5}})")), FindingCode::NoNumber),
                SizeIs(1));
    EXPECT_FALSE(HopWith(R"("amount": {"unit": "igal", "value": 1})").amount->written.size());
}

TEST(BeerJsonReader, WrongTypesAreToldAndLeftOut) {
    for (const std::string wrong : {"null", "true", "5", "\"x\"", "[]", "{}", "[1]", R"({"a": 1})",
                                    R"({"unit": 1, "value": []})", R"({"minimum": "x"})"})
        for (const std::string key :
             {"name", "type", "author", "batch_size", "efficiency", "style", "ingredients", "boil", "taste",
              "ibu_estimate", "original_gravity", "carbonation", "notes"}) {
            const ForeignFile file = Read(R"({"beerjson": {"recipes": [{")" + key + "\": " + wrong + "}]}}");
            EXPECT_THAT(file.recipes, SizeIs(1)) << key << wrong;
        }
    for (const std::string wrong : {"null", "true", "5", "\"x\"", "[]", "[1]"}) {
        EXPECT_TRUE(RecipeWith(R"("ingredients": {"hop_additions": )" + wrong + "}").hops.empty()) << wrong;
        EXPECT_TRUE(Read(R"({"beerjson": {"recipes": )" + wrong + "}}").recipes.empty()) << wrong;
    }
    EXPECT_THAT(RecipeWith(R"("ingredients": {"hop_additions": {"name": "Saaz"}})").hops, SizeIs(1));
}

TEST(BeerJsonReader, WordsInAnotherCaseOrOfNoListAreUnderstood) {
    const ForeignFile file = ReadWith(R"("type": "All Grain", )" + Hops(R"({"form": "pellets"})"));
    EXPECT_EQ(file.recipes.at(0).type, ForeignRecipe::Type::AllGrain);
    EXPECT_EQ(file.recipes.at(0).hops.at(0).form, ForeignHop::Form::Pellet);
    EXPECT_THAT(Told(file, FindingCode::WordCase), SizeIs(1));
    EXPECT_THAT(Told(file, FindingCode::UnknownWord), SizeIs(1));
    EXPECT_EQ(FermentableWith(R"("recommend_mash": "yes")").recommendMash, true);
}

TEST(BeerJsonReader, MissingUnknownAndDoubleKeysAreToldOnceARecord) {
    const ForeignFile file = ReadWith(Hops(R"({"name": "", "colour": 1, "alpha_acid": 4, "alpha_acid": 5})"));
    EXPECT_THAT(
        Told(file, FindingCode::Missing),
        ElementsAre("Ale||Fields that the format requires are missing: type, author, efficiency, batch_size.",
                    "Ale||Fields that the format requires are missing: fermentable_additions.",
                    "Ale|Hops 1|Fields that the format requires are missing: amount, timing."));
    EXPECT_THAT(Told(file, FindingCode::EmptyRequired), ElementsAre(HasSubstr("Hops 1|")));
    EXPECT_THAT(Told(file, FindingCode::Duplicate), ElementsAre(HasSubstr("alpha_acid")));
    EXPECT_THAT(Told(file, FindingCode::UnknownTag),
                ElementsAre(HasSubstr("BeerJSON and are kept aside: \"colour\"")));
    EXPECT_EQ(file.recipes.at(0).hops.at(0).alpha, 4);
    EXPECT_THAT(file.recipes.at(0).keptAside, ElementsAre("ingredients/hop_additions/colour"));
}

TEST(BeerJsonReader, RecordsOutsideOfRecipesAreLibraries) {
    const ForeignFile file =
        Read(R"({"beerjson": {"version": 1, "fermentables": [{"name": "F", "type": "grain",
        "yield": {}, "color": {"unit": "SRM", "value": 3}}], "hop_varieties": [{"name": "H",
        "alpha_acid": {"unit": "%", "value": 5}}], "cultures": [{"name": "C", "type": "ale", "form": "dry",
        "attenuation_range": {"minimum": {"unit": "%", "value": 70}, "maximum": {"unit": "%", "value": 76}},
        "temperature_range": {"minimum": {"unit": "F", "value": 59}, "maximum": {"unit": "C", "value": 22}}}],
        "miscellaneous_ingredients": [{"name": "M", "type": "spice"}], "profiles": [{"name": "W", "pH": 7.5}],
        "styles": [{"name": "S", "original_gravity": {"minimum": {"unit": "sg", "value": 1.03},
        "maximum": {"unit": "sg", "value": 1.04}}}], "mashes": [], "equipments": []}})");
    EXPECT_EQ(file.fermentables.at(0).name, "F");
    EXPECT_EQ(file.hops.at(0).alpha, 5);
    EXPECT_EQ(file.yeasts.at(0).attenuation, 73);
    EXPECT_NEAR(*file.yeasts.at(0).minCelsius, 15, 1e-9);
    EXPECT_EQ(file.miscs.at(0).name, "M");
    EXPECT_EQ(file.waters.at(0).ph, 7.5);
    EXPECT_EQ(file.styles.at(0).og.high, 1.04);
    EXPECT_THAT(Told(file, FindingCode::Carried), ElementsAre(HasSubstr("mashes, equipments")));
    for (const std::string& told : Told(file, FindingCode::Missing))
        EXPECT_THAT(told, testing::Not(HasSubstr("timing")));
}

TEST(BeerJsonReader, CommentsAndSpareCommasAreTold) {
    const ForeignFile file = Read("// mine\n{\"beerjson\": {\"recipes\": [{\"name\": \"A\",}]}}");
    EXPECT_THAT(file.recipes, SizeIs(1));
    EXPECT_THAT(Told(file, FindingCode::JsonComments), ElementsAre(HasSubstr("line 1"), HasSubstr("line 2")));
}

TEST(BeerJsonReader, OtherEncodingsAreRead) {
    const ForeignFile file = Read("{\"beerjson\": {\"recipes\": [{\"name\": \"K\xF6lsch\"}]}}");
    EXPECT_EQ(file.recipes.at(0).name, "K\xC3\xB6lsch");
    EXPECT_THAT(Told(file, FindingCode::Encoding), SizeIs(1));
}

TEST(BeerJsonReader, OfATextThatBreaksOffTheCompletePartIsRead) {
    const ForeignFile file = Read(R"({"beerjson": {"recipes": [{"name": "A"}, {"name": "B", "notes": "half)");
    ASSERT_THAT(file.recipes, SizeIs(2));
    EXPECT_EQ(file.recipes[1].name, "B");
    EXPECT_EQ(file.recipes[1].notes, "");
    EXPECT_THAT(Told(file, FindingCode::Truncated), SizeIs(1));
}

TEST(BeerJsonReader, WhatIsNoBeerJsonIsRefused) {
    for (const std::string text : {"", "{}", "[]", "nonsense", R"({"beerjson": 1})", R"({"recipes": []})"}) {
        EXPECT_THROW(Read(text), Error) << text;
    }
    EXPECT_THROW(Read(std::string(200'000, '[')), Error);
}

TEST(BeerJsonReader, TooManyRecordsAreRefused) {
    std::string text = R"({"beerjson": {"hop_varieties": [{})";
    for (std::size_t i = 0; i < kMostExchangeRecords; ++i) text += ",{}";
    EXPECT_THROW(Read(text + "]}}"), Error);
}

}  // namespace
}  // namespace tw
