// Each trait of real BeerXML files in a small file of its own.
#include "exchange/BeerXmlReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "exchange/ExchangeLimits.h"
#include "exchange/Originals.h"
#include "platform/Error.h"

namespace tw {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Of = ForeignAmount::Of;

ForeignFile Read(const std::string& text) {
    ForeignFile file;
    ReadBeerXml(text, file);
    return file;
}

ForeignRecipe ReadRecipe(const std::string& inner) {
    ForeignFile file = Read("<RECIPES><RECIPE><NAME>Ale</NAME>" + inner + "</RECIPE></RECIPES>");
    return file.recipes.empty() ? ForeignRecipe() : std::move(file.recipes.front());
}

ForeignHop ReadHop(const std::string& inner) {
    const ForeignRecipe recipe = ReadRecipe("<HOPS><HOP>" + inner + "</HOP></HOPS>");
    return recipe.hops.empty() ? ForeignHop() : recipe.hops.front();
}

ForeignMisc ReadMisc(const std::string& inner) {
    const ForeignRecipe recipe = ReadRecipe("<MISCS><MISC>" + inner + "</MISC></MISCS>");
    return recipe.miscs.empty() ? ForeignMisc() : recipe.miscs.front();
}

ForeignFermentable ReadFermentable(const std::string& inner) {
    const ForeignRecipe recipe =
        ReadRecipe("<FERMENTABLES><FERMENTABLE>" + inner + "</FERMENTABLE></FERMENTABLES>");
    return recipe.fermentables.empty() ? ForeignFermentable() : recipe.fermentables.front();
}

std::vector<std::string> Told(const ForeignFile& file, FindingCode code) {
    return test::Told(file.findings, code);
}

std::vector<std::string> ToldOfRecipe(const std::string& inner, FindingCode code) {
    return Told(Read("<RECIPES><RECIPE><NAME>Ale</NAME>" + inner + "</RECIPE></RECIPES>"), code);
}

TEST(BeerXmlReader, ARecipeWithoutANameIsUntitled) {
    for (const char* const inner : {"", "<NAME></NAME>", "<NAME> </NAME><BATCH_SIZE>x</BATCH_SIZE>"}) {
        const ForeignFile file = Read("<RECIPES><RECIPE>" + std::string(inner) + "</RECIPE></RECIPES>");
        EXPECT_EQ(file.recipes.at(0).name, "Untitled");
        for (const Finding& finding : file.findings.All()) EXPECT_EQ(finding.recipe, "Untitled");
        EXPECT_FALSE(file.findings.IsEmpty());
    }
}

// A recipe with all that the format requires.
constexpr const char* kWhole = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- made by hand -->
<RECIPES>
 <RECIPE id="7">
  <NAME> Small &amp; Dark </NAME> <VERSION>1</VERSION> <TYPE>All Grain</TYPE>
  <STYLE> <NAME>Dark Mild</NAME> <CATEGORY>Mild</CATEGORY> <VERSION>1</VERSION>
   <CATEGORY_NUMBER>13</CATEGORY_NUMBER> <STYLE_LETTER>A</STYLE_LETTER> <STYLE_GUIDE>BJCP</STYLE_GUIDE>
   <TYPE>Ale</TYPE> <OG_MIN>1.030</OG_MIN> <OG_MAX>1.038</OG_MAX> <FG_MIN>1.008</FG_MIN> <FG_MAX>1.013</FG_MAX>
   <IBU_MIN>10</IBU_MIN> <IBU_MAX>25</IBU_MAX> <COLOR_MIN>14</COLOR_MIN> <COLOR_MAX>25</COLOR_MAX>
   <ABV_MIN>3</ABV_MIN> <ABV_MAX>3.8</ABV_MAX> <PROFILE>Malty</PROFILE> <OG_RANGE>1.030-1.038</OG_RANGE> </STYLE>
  <BREWER>Ann</BREWER> <BATCH_SIZE>20</BATCH_SIZE> <BOIL_SIZE>24.5</BOIL_SIZE> <BOIL_TIME>60</BOIL_TIME>
  <EFFICIENCY>70</EFFICIENCY>
  <HOPS><HOP> <NAME>Fuggle</NAME> <VERSION>1</VERSION> <ALPHA>4.5</ALPHA> <AMOUNT>0.03</AMOUNT> <USE>Boil</USE>
    <TIME>60</TIME> <TYPE>Both</TYPE> <FORM>Leaf</FORM> <BETA>3</BETA> <HSI>35</HSI>
    <DISPLAY_AMOUNT> 30.00  g </DISPLAY_AMOUNT> <DISPLAY_TIME>60 min</DISPLAY_TIME> </HOP></HOPS>
  <FERMENTABLES><FERMENTABLE> <NAME>Mild Malt</NAME> <VERSION>1</VERSION> <TYPE>Grain</TYPE>
    <AMOUNT>3.2</AMOUNT> <YIELD>79</YIELD> <COLOR>4</COLOR> <ADD_AFTER_BOIL>FALSE</ADD_AFTER_BOIL>
    <RECOMMEND_MASH>TRUE</RECOMMEND_MASH> <ORIGIN>UK</ORIGIN> <SUPPLIER>Own</SUPPLIER>
    <POTENTIAL>1.0365</POTENTIAL> </FERMENTABLE></FERMENTABLES>
  <MISCS><MISC> <NAME>Moss</NAME> <VERSION>1</VERSION> <TYPE>Fining</TYPE> <USE>Boil</USE> <TIME>15</TIME>
    <AMOUNT>0.005</AMOUNT> <AMOUNT_IS_WEIGHT>TRUE</AMOUNT_IS_WEIGHT> <USE_FOR>Clarity</USE_FOR> </MISC></MISCS>
  <YEASTS><YEAST> <NAME>House</NAME> <VERSION>1</VERSION> <TYPE>Ale</TYPE> <FORM>Liquid</FORM>
    <AMOUNT>0.125</AMOUNT> <LABORATORY>Lab</LABORATORY> <PRODUCT_ID>L 1</PRODUCT_ID>
    <MIN_TEMPERATURE>18</MIN_TEMPERATURE> <MAX_TEMPERATURE>22</MAX_TEMPERATURE> <ATTENUATION>72</ATTENUATION>
    <FLOCCULATION>High</FLOCCULATION> <ADD_TO_SECONDARY>TRUE</ADD_TO_SECONDARY> </YEAST></YEASTS>
  <WATERS><WATER> <NAME>Well</NAME> <VERSION>1</VERSION> <AMOUNT>25</AMOUNT> <CALCIUM>100</CALCIUM>
    <BICARBONATE>250</BICARBONATE> <SULFATE>40</SULFATE> <CHLORIDE>30</CHLORIDE> <SODIUM>12</SODIUM>
    <MAGNESIUM>8</MAGNESIUM> <PH>7.2</PH> </WATER></WATERS>
  <MASH> <NAME>Single</NAME> <VERSION>1</VERSION> <GRAIN_TEMP>20</GRAIN_TEMP>
   <MASH_STEPS><MASH_STEP> <NAME>Rest</NAME> <VERSION>1</VERSION> <TYPE>Infusion</TYPE>
     <INFUSE_AMOUNT>10</INFUSE_AMOUNT> <STEP_TEMP>67</STEP_TEMP> <STEP_TIME>60</STEP_TIME>
     </MASH_STEP></MASH_STEPS> </MASH>
  <EQUIPMENT> <NAME>Pot</NAME> <VERSION>1</VERSION> <BOIL_SIZE>26</BOIL_SIZE> <BATCH_SIZE>20</BATCH_SIZE>
    <HOP_UTILIZATION>90</HOP_UTILIZATION> </EQUIPMENT>
  <OG>1.036</OG> <FG>1.010</FG> <PRIMARY_AGE>7</PRIMARY_AGE> <DATE>3 Jan 04</DATE>
  <CARBONATION>2.1</CARBONATION> <FORCED_CARBONATION>FALSE</FORCED_CARBONATION>
  <PRIMING_SUGAR_NAME>Table sugar</PRIMING_SUGAR_NAME> <CARBONATION_TEMP>20</CARBONATION_TEMP>
  <NOTES><![CDATA[Boil < 70 min]]></NOTES> <TASTE_NOTES>Good</TASTE_NOTES> <TASTE_RATING>40</TASTE_RATING>
  <EST_OG>1.037 SG</EST_OG> <IBU>18.5 IBU</IBU> <IBU_METHOD>Tinseth</IBU_METHOD> <EST_COLOR>40 EBC</EST_COLOR>
  <EST_ABV>3.5 %</EST_ABV> <DISPLAY_BATCH_SIZE>20.00 l</DISPLAY_BATCH_SIZE>
 </RECIPE>
</RECIPES>
)";

TEST(BeerXmlReader, AWholeRecipeLeavesNoFinding) {
    const ForeignFile file = Read(kWhole);
    for (const Finding& finding : file.findings.All()) ADD_FAILURE() << finding.place << ": " << finding.text;
}

TEST(BeerXmlReader, FieldsOfARecipe) {
    const ForeignRecipe recipe = Read(kWhole).recipes.at(0);
    EXPECT_EQ(recipe.name, "Small & Dark");
    EXPECT_EQ(recipe.type, ForeignRecipe::Type::AllGrain);
    EXPECT_EQ(recipe.brewer, "Ann");
    EXPECT_EQ(recipe.date, "3 Jan 04");
    EXPECT_EQ(recipe.batchSize->value, 20);
    EXPECT_EQ(recipe.batchSize->of, Of::Volume);
    EXPECT_EQ(recipe.batchSize->written, "20.00 l");
    EXPECT_EQ(recipe.boilSize->value, 24.5);
    EXPECT_EQ(recipe.equipmentBoilSize->value, 26);
    EXPECT_EQ(recipe.boilMinutes, 60);
    EXPECT_EQ(recipe.efficiency, 70);
    EXPECT_EQ(recipe.hopUtilization, 90);
    EXPECT_EQ(recipe.ibuMethod, ForeignIbuMethod::Tinseth);
    EXPECT_EQ(recipe.carbonation, 2.1);
    EXPECT_EQ(recipe.forced, false);
    EXPECT_EQ(recipe.carbonationCelsius, 20);
    EXPECT_EQ(recipe.primingSugar, "Table sugar");
    EXPECT_EQ(recipe.notes, "Boil < 70 min");
    EXPECT_EQ(recipe.tasteNotes, "Good");
    EXPECT_EQ(recipe.tasteRating, 40);
}

TEST(BeerXmlReader, CalculatedFiguresWinOverMeasuredOnes) {
    const StatedFigures stated = Read(kWhole).recipes.at(0).stated;
    EXPECT_EQ(stated.og, 1.037);
    EXPECT_EQ(stated.fg, 1.010);
    EXPECT_EQ(stated.abv, 3.5);
    EXPECT_EQ(stated.ibu, 18.5);
    EXPECT_NEAR(*stated.srm, 40 / 1.97, 1e-9);
    const StatedFigures measured = ReadRecipe("<EST_OG>0</EST_OG><OG>1050</OG><ABV>4.2 %</ABV>").stated;
    EXPECT_EQ(measured.og, 1.05);
    EXPECT_EQ(measured.abv, 4.2);
    EXPECT_FALSE(measured.fg);
}

TEST(BeerXmlReader, FieldsOfLines) {
    const ForeignRecipe recipe = Read(kWhole).recipes.at(0);
    const ForeignHop& hop = recipe.hops.at(0);
    EXPECT_EQ(hop.name, "Fuggle");
    EXPECT_EQ(hop.alpha, 4.5);
    EXPECT_EQ(hop.beta, 3);
    EXPECT_EQ(hop.amount->value, 0.03);
    EXPECT_EQ(hop.amount->written, "30.00 g");
    EXPECT_EQ(hop.use, ForeignUse::Boil);
    EXPECT_EQ(hop.minutes, 60);
    EXPECT_EQ(hop.form, ForeignHop::Form::Leaf);
    const ForeignFermentable& malt = recipe.fermentables.at(0);
    EXPECT_EQ(malt.type, ForeignFermentable::Type::Grain);
    EXPECT_EQ(malt.amount->value, 3.2);
    EXPECT_EQ(malt.amount->written, "");
    EXPECT_EQ(malt.yield, 79);
    EXPECT_EQ(malt.potential, 1.0365);
    EXPECT_EQ(malt.lovibond, 4);
    EXPECT_EQ(malt.recommendMash, true);
    EXPECT_FALSE(malt.afterBoil);
    EXPECT_EQ(malt.origin, "UK");
    EXPECT_EQ(malt.supplier, "Own");
    const ForeignYeast& yeast = recipe.yeasts.at(0);
    EXPECT_EQ(yeast.laboratory, "Lab");
    EXPECT_EQ(yeast.productId, "L 1");
    EXPECT_EQ(yeast.amount->of, Of::Volume);
    EXPECT_EQ(yeast.amount->value, 0.125);
    EXPECT_EQ(yeast.attenuation, 72);
    EXPECT_EQ(yeast.minCelsius, 18);
    EXPECT_EQ(yeast.maxCelsius, 22);
    EXPECT_EQ(yeast.flocculation, "High");
    EXPECT_TRUE(yeast.secondary);
    const ForeignMisc& moss = recipe.miscs.at(0);
    EXPECT_EQ(moss.amount->of, Of::Mass);
    EXPECT_EQ(moss.minutes, 15);
    EXPECT_EQ(moss.useFor, "Clarity");
    const ForeignWater& water = recipe.waters.at(0);
    EXPECT_EQ(water.litres, 25);
    EXPECT_EQ(water.calcium, 100);
    EXPECT_EQ(water.bicarbonate, 250);
    EXPECT_FALSE(water.carbonate);
    EXPECT_EQ(water.ph, 7.2);
    const ForeignStyle& style = *recipe.style;
    EXPECT_EQ(style.name, "Dark Mild");
    EXPECT_EQ(style.categoryNumber, "13");
    EXPECT_EQ(style.letter, "A");
    EXPECT_EQ(style.og.low, 1.03);
    EXPECT_EQ(style.srm.high, 25);
    EXPECT_FALSE(style.volumes.low);
}

TEST(BeerXmlReader, WhatHasNoPlaceIsListedInTheOrderOfTheFile) {
    EXPECT_THAT(
        Read(kWhole).recipes.at(0).keptAside,
        ElementsAre("STYLE/PROFILE", "HOPS/HOP/TYPE", "HOPS/HOP/HSI", "MASH", "EQUIPMENT", "PRIMARY_AGE"));
}

TEST(BeerXmlReader, TheFragmentIsTheElementAsItStands) {
    const std::string text = kWhole;
    const auto from = text.find("<RECIPE ");
    const std::string close = "</RECIPE>";
    EXPECT_EQ(Read(text).recipes.at(0).fragment, text.substr(from, text.find(close) + close.size() - from));
    // Marks within attributes, comments and CDATA do not end the element.
    for (const std::string element :
         {"<recipe a=\"</recipe>\"><NAME>x</NAME><!-- </recipe> --></recipe >", "<RECIPE/>",
          "<RECIPE b='>'/>", "<RECIPE><NAME>a</NAME><NOTES><![CDATA[</RECIPE>]]></NOTES></RECIPE>",
          "<RECIPE></RECIPE>",
          "<RECIPE><HOPS><HOP><NAME>a</NAME></HOP><HOP/></HOPS><?x </RECIPE>?></RECIPE>"}) {
        const ForeignFile file = Read("<RECIPES>" + element + " <RECIPE><NAME>b</NAME></RECIPE></RECIPES>");
        ASSERT_EQ(file.recipes.size(), 2U) << element;
        EXPECT_EQ(file.recipes[0].fragment, element);
        EXPECT_EQ(file.recipes[1].fragment, "<RECIPE><NAME>b</NAME></RECIPE>");
    }
}

TEST(BeerXmlReader, RecordsAreFoundAtAnyDepthAndInAnyCase) {
    EXPECT_EQ(Read("<recipe><name>Ale</name><hops><hop><name>Saaz</name></hop></hops></recipe>")
                  .recipes.at(0)
                  .hops.at(0)
                  .name,
              "Saaz");
    const ForeignFile wrapped = Read(
        "<export><data><RECIPES><RECIPE><NAME>A</NAME></RECIPE>"
        "<RECIPE><NAME>B</NAME></RECIPE></RECIPES></data></export>");
    EXPECT_EQ(wrapped.recipes.size(), 2U);
    const ForeignFile roots = Read(
        "A stray line\n<HOPS><HOP><NAME>A</NAME></HOP></HOPS>"
        "<RECIPES><RECIPE><HOP><NAME>B</NAME></HOP><all><YEASTS><YEAST/></YEASTS></all>"
        "</RECIPE></RECIPES>");
    EXPECT_EQ(roots.hops.size(), 1U);
    EXPECT_EQ(roots.recipes.at(0).hops.size(), 1U);
    EXPECT_EQ(roots.recipes.at(0).yeasts.size(), 1U);
}

TEST(BeerXmlReader, RecipesWithinARecipeAreReadOnTheirOwn) {
    const ForeignFile file =
        Read("<RECIPE><NAME>A</NAME><HOPS><RECIPE><NAME>B</NAME></RECIPE></HOPS></RECIPE>");
    ASSERT_EQ(file.recipes.size(), 2U);
    EXPECT_EQ(file.recipes[0].name, "A");
    EXPECT_EQ(file.recipes[1].name, "B");
}

TEST(BeerXmlReader, RecordsOutsideOfRecipesAreLibraries) {
    const ForeignFile file = Read(
        "<STYLES><STYLE><NAME>S</NAME></STYLE></STYLES><HOPS><HOP><NAME>H</NAME></HOP></HOPS>"
        "<FERMENTABLES><FERMENTABLE><NAME>F</NAME></FERMENTABLE></FERMENTABLES>"
        "<YEASTS><YEAST><NAME>Y</NAME></YEAST></YEASTS><MISCS><MISC/></MISCS>"
        "<WATERS><WATER><NAME>W</NAME></WATER></WATERS><MASHS><MASH/></MASHS>"
        "<EQUIPMENTS><EQUIPMENT/></EQUIPMENTS>");
    EXPECT_EQ(file.styles.at(0).name, "S");
    EXPECT_EQ(file.hops.at(0).name, "H");
    EXPECT_EQ(file.fermentables.at(0).name, "F");
    EXPECT_EQ(file.yeasts.at(0).name, "Y");
    EXPECT_EQ(file.miscs.size(), 1U);
    EXPECT_EQ(file.waters.at(0).name, "W");
    EXPECT_TRUE(file.recipes.empty());
    EXPECT_THAT(Told(file, FindingCode::Carried), ElementsAre(HasSubstr("MASHS, EQUIPMENTS")));
}

TEST(BeerXmlReader, WordsInAnotherCaseOrOfNoListAreUnderstood) {
    EXPECT_EQ(ReadHop("<USE>dry hop</USE>").use, ForeignUse::Primary);
    EXPECT_EQ(ReadHop("<USE>Secondary</USE>").use, ForeignUse::Secondary);
    const ForeignHop whirlpool = ReadHop("<USE>Whirlpool</USE><FORM>leaf/whole</FORM>");
    EXPECT_EQ(whirlpool.use, ForeignUse::Whirlpool);
    EXPECT_EQ(whirlpool.useWritten, "Whirlpool");
    EXPECT_EQ(whirlpool.form, ForeignHop::Form::Leaf);
    EXPECT_EQ(ReadFermentable("<TYPE>Liquid Extract</TYPE>").type, ForeignFermentable::Type::Extract);
    EXPECT_FALSE(ReadFermentable("<TYPE>Beer</TYPE>").type);
    EXPECT_EQ(ReadFermentable("<ADD_AFTER_BOIL>yes</ADD_AFTER_BOIL>").afterBoil, true);
    EXPECT_EQ(ReadMisc("<USE>Bottling</USE>").use, ForeignUse::Package);
    const std::string hops =
        "<HOPS><HOP><NAME>Saaz</NAME><USE>boil</USE></HOP><HOP><USE>hopstand</USE></HOP>"
        "<HOP><USE>Garnish</USE></HOP></HOPS>";
    EXPECT_THAT(ToldOfRecipe(hops, FindingCode::WordCase),
                ElementsAre("Ale|Hops 1: Saaz|USE \"boil\" is not spelled as in the format."));
    EXPECT_THAT(
        ToldOfRecipe(hops, FindingCode::UnknownWord),
        ElementsAre("Ale|Hops 2|USE \"hopstand\" is not a word of the format and was read as whirlpool.",
                    "Ale|Hops 3|USE \"Garnish\" is not a word of the format and says nothing here."));
    EXPECT_EQ(
        ToldOfRecipe("<YEASTS><YEAST><TYPE>Kveik</TYPE></YEAST></YEASTS>", FindingCode::UnknownWord).size(),
        1U);
    EXPECT_EQ(ToldOfRecipe("<FORCED_CARBONATION>true</FORCED_CARBONATION>", FindingCode::WordCase).size(),
              1U);
}

TEST(BeerXmlReader, ZeroMeansUnknownWhereNothingCanBeZero) {
    const ForeignRecipe recipe = ReadRecipe(
        "<BATCH_SIZE>0.0</BATCH_SIZE><BOIL_SIZE>0</BOIL_SIZE><OG>0</OG><FG>0</FG>"
        "<CARBONATION>0</CARBONATION><EFFICIENCY>0</EFFICIENCY>"
        "<BOIL_TIME>0</BOIL_TIME>");
    EXPECT_FALSE(recipe.batchSize);
    EXPECT_FALSE(recipe.boilSize);
    EXPECT_FALSE(recipe.stated.og);
    EXPECT_FALSE(recipe.stated.fg);
    EXPECT_FALSE(recipe.carbonation);
    EXPECT_EQ(recipe.efficiency, 0);
    EXPECT_EQ(recipe.boilMinutes, 0);
    const ForeignFermentable grain =
        ReadFermentable("<TYPE>Grain</TYPE><YIELD>0.00</YIELD><POTENTIAL>0</POTENTIAL><COLOR>0</COLOR>");
    EXPECT_FALSE(grain.yield);
    EXPECT_FALSE(grain.potential);
    EXPECT_FALSE(grain.lovibond);
    EXPECT_EQ(ReadFermentable("<TYPE>Sugar</TYPE><YIELD>0</YIELD><COLOR>0</COLOR>").lovibond, 0);
    EXPECT_EQ(ReadFermentable("<TYPE>Grain</TYPE><YIELD>80</YIELD><COLOR>0</COLOR>").lovibond, 0);
    EXPECT_EQ(ReadHop("<ALPHA>0</ALPHA><AMOUNT>0</AMOUNT><TIME>0</TIME>").alpha, 0);
}

TEST(BeerXmlReader, FiguresWithUnitsAndCommasAreReadAndTold) {
    const ForeignHop hop = ReadHop("<ALPHA>5,5 %</ALPHA><AMOUNT>1 oz</AMOUNT><TIME>7 days</TIME>");
    EXPECT_EQ(hop.alpha, 5.5);
    EXPECT_NEAR(hop.amount->value, 0.45359237 / 16, 1e-12);
    EXPECT_EQ(hop.amount->written, "1 oz");
    EXPECT_EQ(hop.minutes, 10080);
    EXPECT_EQ(ReadHop("<ALPHA>Hallo</ALPHA>").alpha, std::nullopt);
    EXPECT_THAT(
        ToldOfRecipe("<HOPS><HOP><NAME>Saaz</NAME><ALPHA>Hallo</ALPHA></HOP></HOPS>", FindingCode::NoNumber),
        ElementsAre("Ale|Hops 1: Saaz|ALPHA \"Hallo\" is not a usable number and was left out."));
    EXPECT_THAT(ToldOfRecipe("<OG>1,050</OG>", FindingCode::DecimalComma), ElementsAre(HasSubstr("Ale||OG")));
    EXPECT_EQ(ToldOfRecipe("<EFFICIENCY>72 %</EFFICIENCY>", FindingCode::UnitInNumber).size(), 1U);
    // What is only kept aside is checked as well.
    EXPECT_EQ(ToldOfRecipe("<AGE_TEMP>warm</AGE_TEMP>", FindingCode::NoNumber).size(), 1U);
    EXPECT_EQ(
        ToldOfRecipe("<EQUIPMENT><EVAP_RATE>much</EVAP_RATE></EQUIPMENT>", FindingCode::NoNumber).size(), 1U);
    EXPECT_EQ(ToldOfRecipe(
                  "<MASH><MASH_STEPS><MASH_STEP><STEP_TEMP>hot</STEP_TEMP></MASH_STEP></MASH_STEPS></MASH>",
                  FindingCode::NoNumber)
                  .size(),
              1U);
}

TEST(BeerXmlReader, AmountsAreWeightsVolumesOrPieces) {
    const auto amount = [](const std::string& inner) { return *ReadMisc(inner).amount; };
    EXPECT_EQ(amount("<AMOUNT>0.01</AMOUNT>").of, Of::Volume);
    EXPECT_EQ(amount("<AMOUNT>0.01</AMOUNT><AMOUNT_IS_WEIGHT>true</AMOUNT_IS_WEIGHT>").of, Of::Mass);
    EXPECT_EQ(amount("<AMOUNT>0.01</AMOUNT><DISPLAY_AMOUNT>10 g</DISPLAY_AMOUNT>").of, Of::Mass);
    EXPECT_EQ(amount("<AMOUNT>0.01</AMOUNT><AMOUNT_IS_WEIGHT>FALSE</AMOUNT_IS_WEIGHT>"
                     "<DISPLAY_AMOUNT>10 g</DISPLAY_AMOUNT>")
                  .of,
              Of::Volume);
    const ForeignAmount pieces = amount("<AMOUNT>1.0</AMOUNT><DISPLAY_AMOUNT>1.00 Items</DISPLAY_AMOUNT>");
    EXPECT_EQ(pieces.of, Of::Pieces);
    EXPECT_EQ(pieces.value, 1);
    EXPECT_EQ(pieces.written, "1.00 Items");
    const ForeignAmount vial = amount("<AMOUNT>0.05</AMOUNT><DISPLAY_AMOUNT>1.0 pkg</DISPLAY_AMOUNT>");
    EXPECT_EQ(vial.of, Of::Volume);
    EXPECT_EQ(vial.value, 0.05);
    // Nothing but the text for the reader states the amount.
    const ForeignAmount shown = amount("<AMOUNT>-</AMOUNT><DISPLAY_AMOUNT>2 tsp</DISPLAY_AMOUNT>");
    EXPECT_NEAR(shown.value, 2 * 3.785411784 / 768, 1e-12);
    EXPECT_FALSE(ReadMisc("<AMOUNT>-</AMOUNT><DISPLAY_AMOUNT>some</DISPLAY_AMOUNT>").amount);
    EXPECT_EQ(ToldOfRecipe("<MISCS><MISC><DISPLAY_AMOUNT>2 tsp</DISPLAY_AMOUNT></MISC></MISCS>",
                           FindingCode::AmountUnit)
                  .size(),
              1U);
}

TEST(BeerXmlReader, WhatIsMissingOrEmptyIsToldOnceARecord) {
    const std::string hop =
        "<HOPS><HOP><NAME>Saaz</NAME><VERSION>1</VERSION><ALPHA> </ALPHA><USE>Boil</USE>"
        "<TIME/></HOP></HOPS>";
    EXPECT_THAT(
        ToldOfRecipe(hop, FindingCode::Missing),
        ElementsAre(
            "Ale||Fields that the format requires are missing: VERSION, TYPE, STYLE, BREWER, BATCH_SIZE, "
            "BOIL_SIZE, BOIL_TIME, FERMENTABLES, MISCS, YEASTS, WATERS, EFFICIENCY, MASH.",
            "Ale|Hops 1: Saaz|Fields that the format requires are missing: AMOUNT."));
    EXPECT_THAT(ToldOfRecipe(hop, FindingCode::EmptyRequired),
                ElementsAre("Ale|Hops 1: Saaz|Fields that the format requires are empty: ALPHA, TIME."));
    const auto needsMash = [](const std::string& type) {
        const auto told = ToldOfRecipe("<TYPE>" + type +
                                           "</TYPE><VERSION/><STYLE/><BREWER/><BATCH_SIZE/><BOIL_SIZE/>"
                                           "<BOIL_TIME/><HOPS/><FERMENTABLES/><MISCS/><YEASTS/><WATERS/>",
                                       FindingCode::Missing);
        return !told.empty();
    };
    EXPECT_FALSE(needsMash("extract"));
    EXPECT_TRUE(needsMash("All Grain"));
}

TEST(BeerXmlReader, UnknownTagsAreToldOnceARecipeAndKeptAside) {
    const std::string inner =
        "<COLOUR>5</COLOUR><HOPS><HOP><AROMA>x</AROMA></HOP><HOP><AROMA>y</AROMA></HOP>"
        "<WILD/></HOPS><MASH><ODD/></MASH>";
    EXPECT_THAT(
        ToldOfRecipe(inner, FindingCode::UnknownTag),
        ElementsAre("Ale||These fields are not part of BeerXML and are kept aside: \"COLOUR\", \"AROMA\", "
                    "\"WILD\", \"ODD\"."));
    EXPECT_THAT(ReadRecipe(inner).keptAside, ElementsAre("COLOUR", "HOPS/HOP/AROMA", "HOPS/WILD", "MASH"));
}

TEST(BeerXmlReader, OfAFieldThatStandsTwiceTheFirstCounts) {
    EXPECT_EQ(ReadHop("<ALPHA>4</ALPHA><ALPHA>5</ALPHA>").alpha, 4);
    EXPECT_THAT(
        ToldOfRecipe("<HOPS><HOP><ALPHA>4</ALPHA><alpha>5</alpha></HOP></HOPS>", FindingCode::Duplicate),
        ElementsAre(HasSubstr("Hops 1|")));
    // Two record sets are two parts of one list.
    EXPECT_EQ(ReadRecipe("<HOPS><HOP/></HOPS><HOPS><HOP/></HOPS>").hops.size(), 2U);
    EXPECT_THAT(ToldOfRecipe("<HOPS><HOP/></HOPS><HOPS><HOP/></HOPS>", FindingCode::Duplicate), IsEmpty());
    // An empty field says less than its second one.
    EXPECT_EQ(ReadRecipe("<NOTES> </NOTES><NOTES>Kept.</NOTES>").notes, "Kept.");
    EXPECT_THAT(ToldOfRecipe("<NOTES/><NOTES>Kept.</NOTES>", FindingCode::Duplicate), IsEmpty());
}

TEST(BeerXmlReader, TextKeepsItsLinesAndTheWordsOfMarkup) {
    EXPECT_EQ(ReadRecipe("<NOTES>\n One\n\n Two &lt;3 \n</NOTES>").notes, "One\n\n Two <3");
    EXPECT_EQ(ReadRecipe("<NOTES>a <b>bold</b><![CDATA[ & c]]></NOTES>").notes, "a bold & c");
    EXPECT_EQ(ReadRecipe("<NOTES><!-- none --></NOTES>").notes, "");
}

TEST(BeerXmlReader, NoEntityIsExpanded) {
    EXPECT_EQ(Read("<!DOCTYPE a [<!ENTITY b \"c\">]><RECIPE><NAME>&b;</NAME></RECIPE>").recipes.at(0).name,
              "&b;");
}

TEST(BeerXmlReader, OfADamagedTextTheSoundPartIsRead) {
    const ForeignFile file = Read("<RECIPES><RECIPE><NAME>A</NAME></RECIPE>\n<RECIPE><NAME>B</NAME></HOPS>");
    ASSERT_EQ(file.recipes.size(), 2U);
    EXPECT_EQ(file.recipes[1].name, "B");
    EXPECT_THAT(Told(file, FindingCode::Truncated), ElementsAre(HasSubstr("|line 2|")));
    for (const ForeignRecipe& recipe : file.recipes)
        EXPECT_TRUE(pugi::xml_document().load_string(recipe.fragment.c_str())) << recipe.fragment;
    EXPECT_EQ(Read("").recipes.size(), 0U);
    EXPECT_EQ(Read("\x01\x02").recipes.size(), 0U);
}

TEST(BeerXmlReader, TooManyRecordsAreRefused) {
    std::string text = "<HOPS>";
    for (std::size_t i = 0; i <= kMostExchangeRecords; ++i) text += "<HOP/>";
    EXPECT_THROW(Read(text + "</HOPS>"), Error);
}

TEST(BeerXmlReader, DeepNestingIsHarmless) {
    std::string text;
    for (int i = 0; i < 200'000; ++i) text += "<a>";
    EXPECT_TRUE(Read(text).recipes.empty());
    std::string recipes;
    for (int i = 0; i < 1000; ++i) recipes += "<RECIPE>";
    for (int i = 0; i < 1000; ++i) recipes += "</RECIPE>";
    EXPECT_EQ(Read(recipes).recipes.size(), 5U);
}

TEST(BeerXmlReader, AnAmountThatMayBeAWeightOrAVolumeIsTold) {
    const auto told = [](const std::string& misc) {
        return ToldOfRecipe("<MISCS><MISC>" + misc + "</MISC></MISCS>", FindingCode::AmountUnit);
    };
    EXPECT_THAT(told("<NAME>Moss</NAME><AMOUNT>0.01</AMOUNT>"),
                ElementsAre("Ale|Miscellaneous 1: Moss|AMOUNT \"0.01\" may be a weight or a volume; it was "
                            "read as liters."));
    EXPECT_THAT(told("<AMOUNT>0</AMOUNT>"), IsEmpty());
    EXPECT_THAT(told("<AMOUNT>0.01</AMOUNT><AMOUNT_IS_WEIGHT>FALSE</AMOUNT_IS_WEIGHT>"), IsEmpty());
    EXPECT_THAT(told("<AMOUNT>0.01</AMOUNT><AMOUNT_IS_WEIGHT>TRUE</AMOUNT_IS_WEIGHT>"), IsEmpty());
    EXPECT_THAT(told("<AMOUNT>0.01</AMOUNT><DISPLAY_AMOUNT>2.03 tsp</DISPLAY_AMOUNT>"), IsEmpty());
}

}  // namespace
}  // namespace tw
