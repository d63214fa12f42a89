#include "store/CatalogueLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "SmallCatalogue.h"
#include "store/Database.h"

namespace tw {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using CatalogueLoaderTest = SmallCatalogue;

TEST_F(CatalogueLoaderTest, WritesGrainsAndExtractsUnderTheirTypes) {
    ASSERT_THAT(Load(), IsEmpty());
    EXPECT_THAT(Rows("SELECT NAME FROM GRAIN_TYPES WHERE GRAIN ORDER BY ID"), ElementsAre("Base Malt"));
    EXPECT_THAT(Rows("SELECT NAME FROM GRAIN_TYPES WHERE NOT GRAIN ORDER BY ID"), ElementsAre("Sugar"));
    const std::string select =
        "SELECT GRAINS.NAME, GRAIN_TYPES.NAME, DESCR, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI FROM GRAINS, "
        "GRAIN_TYPES "
        "WHERE GRAINS.GRAIN_TYPE = GRAIN_TYPES.ID AND ";
    EXPECT_THAT(Rows(select + "GRAINS.GRAIN"), ElementsAre("Pale Malt|Base Malt|A base.|36|37.5|1.8|2"));
    EXPECT_THAT(Rows(select + "NOT GRAINS.GRAIN"), ElementsAre("Honey|Sugar||NULL|NULL|NULL|NULL"));
}

TEST_F(CatalogueLoaderTest, WritesHopsWithApostrophesAndNullForBlankRanges) {
    ASSERT_THAT(Load(), IsEmpty());
    EXPECT_THAT(Rows("SELECT NAME, USAGE, DESCR, AA_LO, AA_HI FROM HOPS ORDER BY NAME"),
                ElementsAre("Brewer's Gold|Bittering|Dark fruit.|8|10", "Wild Hop|||NULL|NULL"));
}

TEST_F(CatalogueLoaderTest, WritesYeastTypesAsCodes) {
    ASSERT_THAT(Load(), IsEmpty());
    EXPECT_THAT(Rows("SELECT NAME, DESCR, FLOC, FULL_DESCR, TYPE, AA_LO, AA_HI, TEMP_LO, TEMP_HI FROM YEAST "
                     "ORDER BY NAME"),
                ElementsAre("Cider Yeast||Low||4|75|80|54|82", "House Yeast||||NULL|NULL|NULL|NULL|NULL",
                            "Kölsch Yeast|Clean|Very High|Crisp and clean.|0|72|78|65|69"));
}

TEST_F(CatalogueLoaderTest, WritesWatersSaltsAndSugars) {
    ASSERT_THAT(Load(), IsEmpty());
    EXPECT_THAT(Rows("SELECT NAME, DESCR, CA, CO3, CL, MG, NA, SO4 FROM WATER_PROFILES"),
                ElementsAre("Pilsen|Soft.|7|15|5|2|2|5.5"));
    EXPECT_THAT(Rows("SELECT NAME, DESCR, CA, CO3, CL, MG, NA, SO4 FROM SALTS"),
                ElementsAre("Gypsum||61.5|0|0|0|0|147.4"));
    EXPECT_THAT(Rows("SELECT NAME, DESCR, FERMENT_LO, FERMENT_HI FROM SUGARS ORDER BY NAME"),
                ElementsAre("Cane|White.|97|100", "Panela||NULL|NULL"));
}

TEST_F(CatalogueLoaderTest, WritesEachStyleIntoTheOneFolderOfItsName) {
    ASSERT_THAT(Load(), IsEmpty());
    EXPECT_THAT(Rows("SELECT NAME, PARENT_ID FROM FOLDERS WHERE STYLE ORDER BY NAME"),
                ElementsAre("Other Beer|0", "Pale Beer|0"));
    EXPECT_THAT(Rows("SELECT NAME FROM FOLDERS WHERE NOT STYLE"), IsEmpty());
    EXPECT_THAT(
        Rows("SELECT STYLES.NAME, FOLDERS.NAME FROM STYLES, FOLDERS WHERE STYLES.FOLDER_ID = FOLDERS.ID "
             "ORDER BY STYLES.NAME"),
        ElementsAre("Fruit Beer|Other Beer", "Helles|Pale Beer", "Pils|Pale Beer"));
}

TEST_F(CatalogueLoaderTest, WritesStyleRangesWithNullForBlankCells) {
    ASSERT_THAT(Load(), IsEmpty());
    const std::string select =
        "SELECT DESCR, TYPE, WATER_PROFILE, OG_LO, OG_HI, FG_LO, FG_HI, ABV_LO, ABV_HI, COLOR_LO, COLOR_HI, "
        "IBU_LO, "
        "IBU_HI, CO2_LO, CO2_HI FROM STYLES WHERE NAME = ";
    EXPECT_THAT(Rows(select + "'Pils'"),
                ElementsAre("Dry.|1|Pilsen|1.044|1.05|1.008|1.013|4.4|5.2|2|4|22|40|2.4|2.7"));
    EXPECT_THAT(Rows(select + "'Fruit Beer'"),
                ElementsAre("|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL"));
}

TEST_F(CatalogueLoaderTest, WritesCodesSourcesFormsAndOtherNamesBesideTheTables) {
    ASSERT_THAT(Load(), IsEmpty());
    EXPECT_THAT(
        Rows("SELECT SHEET, NAME, CODE, SOURCE, FORM FROM CATALOGUE_FACTS WHERE CODE <> '' OR FORM <> ''"
             " ORDER BY SHEET, NAME"),
        ElementsAre("HOPS|Brewer's Gold||England|Cryo", "STYLES|Fruit Beer|29A|Beer 2021|",
                    "STYLES|Helles|5D|Beer 2021|", "STYLES|Pils|5D|Beer 2021|",
                    "YEAST|Cider Yeast||Dom Labs|Liquid", "YEAST|Kölsch Yeast|D-1|Dom Labs|Dry"));
    EXPECT_THAT(Rows("SELECT SHEET, ALIAS_KEY, ALIAS, NAME FROM CATALOGUE_ALIASES ORDER BY SHEET, ALIAS_KEY"),
                ElementsAre("GRAINS|MIEL|Miel|Honey", "GRAINS|SUGAR|Sugar|Honey", "HOPS|BG|BG|Brewer's Gold",
                            "STYLES|PILSNER|Pilsner|Pils", "SUGARS|SUGAR|Sugar|Cane"));
}

TEST_F(CatalogueLoaderTest, StylesAndFoldersCarryTheGivenDate) {
    ASSERT_THAT(Load(), IsEmpty());
    EXPECT_THAT(Rows("SELECT DISTINCT CREATED_WHEN, MODIFIED_WHEN FROM STYLES"),
                ElementsAre("02/29/2024 13:05:07|02/29/2024 13:05:07"));
    EXPECT_THAT(Rows("SELECT DISTINCT CREATED_WHEN, MODIFIED_WHEN FROM FOLDERS"),
                ElementsAre("02/29/2024 13:05:07|02/29/2024 13:05:07"));
}

TEST_F(CatalogueLoaderTest, WithoutADateStylesAndFoldersCarryNone) {
    ASSERT_THAT(LoadCatalogue(folder_.string(), *database_, std::nullopt), IsEmpty());
    EXPECT_THAT(Rows("SELECT DISTINCT CREATED_WHEN, MODIFIED_WHEN FROM STYLES"), ElementsAre("NULL|NULL"));
    EXPECT_THAT(Rows("SELECT DISTINCT CREATED_WHEN, MODIFIED_WHEN FROM FOLDERS"), ElementsAre("NULL|NULL"));
}

TEST_F(CatalogueLoaderTest, AFileMayEndWithoutALineFeed) {
    Append("hops.tsv", "Saaz\tAroma\t\t\t2.5\t4.5\tNoble.\tpublished");
    EXPECT_THAT(Load(), IsEmpty());
    EXPECT_THAT(Rows("SELECT DESCR FROM HOPS WHERE NAME = 'Saaz'"), ElementsAre("Noble."));
}

TEST_F(CatalogueLoaderTest, ReportsAMissingFileOnceAndNothingThatFollowsFromIt) {
    std::filesystem::remove(folder_ / "water_profiles.tsv");
    std::filesystem::remove(folder_ / "grain_types.tsv");
    EXPECT_THAT(Load(), ElementsAre("grain_types.tsv:1: the file cannot be read",
                                    "water_profiles.tsv:1: the file cannot be read"));
    ExpectNothingWritten();
}

TEST_F(CatalogueLoaderTest, AFolderIsNoFile) {
    std::filesystem::remove(folder_ / "sugars.tsv");
    std::filesystem::create_directory(folder_ / "sugars.tsv");
    EXPECT_THAT(Load(), ElementsAre("sugars.tsv:1: the file cannot be read"));
}

TEST_F(CatalogueLoaderTest, ReportsAnotherHeaderRow) {
    Replace("sugars.tsv", "name\tfermentable\nCane\t100\n");
    Replace("hops.tsv", "");
    EXPECT_THAT(
        Load(),
        ElementsAre(
            "hops.tsv:1: the header row must name, between tabs: name, usage, origin, form, alpha_lo, "
            "alpha_hi, description, basis",
            "sugars.tsv:1: the header row must name, between tabs: name, fermentable_lo, fermentable_hi, "
            "description"));
    ExpectNothingWritten();
}

TEST_F(CatalogueLoaderTest, ReportsEveryProblemOfEveryFileAndWritesNothing) {
    Append("hops.tsv", "\tAroma\t\t\tx\t101\t\t\nSaaz\tAroma\n");
    Append("sugars.tsv", "cane\t5\t4\t\n");
    EXPECT_THAT(Load(), ElementsAre("hops.tsv:4: name is blank", "hops.tsv:4: alpha_lo \"x\" is not a number",
                                    "hops.tsv:4: alpha_hi \"101\" is not between 0 and 100",
                                    "hops.tsv:5: the row has 2 cells, not 8",
                                    "sugars.tsv:4: fermentable_lo \"5\" is above fermentable_hi \"4\"",
                                    "sugars.tsv:4: name \"cane\" stands in line 2 already"));
    ExpectNothingWritten();
}

// A faulty row after the valid rows of its file.
struct BadRow {
    std::string name;
    std::string file;
    std::string row;
    std::string problem;
};

class BadRowTest : public CatalogueLoaderTest, public testing::WithParamInterface<BadRow> {};

TEST_P(BadRowTest, IsReportedByFileAndLineAndNothingIsWritten) {
    Append(GetParam().file, GetParam().row + "\n");
    EXPECT_THAT(Load(), ElementsAre(GetParam().problem));
    ExpectNothingWritten();
}

std::vector<BadRow> BadRows() {  // NOLINT(readability-function-size): a table
    const std::string control = std::string("\x01");
    return {
        {"EmptyLine", "hops.tsv", "", "hops.tsv:4: the row has 1 cells, not 8"},
        {"TooManyCells", "hops.tsv", "Saaz\tAroma\t\t\t3\t4\t\t\t", "hops.tsv:4: the row has 9 cells, not 8"},
        {"BlankName", "hops.tsv", "\tAroma\t\t\t3\t4\t\t", "hops.tsv:4: name is blank"},
        {"LeadingBlank", "hops.tsv", " Saaz\tAroma\t\t\t3\t4\t\t",
         "hops.tsv:4: name \" Saaz\" holds a stray blank"},
        {"TrailingBlank", "hops.tsv", "Saaz\tAroma\t\t\t3\t4\tNoble. \t",
         "hops.tsv:4: description \"Noble. \" holds a stray blank"},
        {"DoubledBlank", "hops.tsv", "Saaz  US\tAroma\t\t\t3\t4\t\t",
         "hops.tsv:4: name \"Saaz  US\" holds a stray blank"},
        {"OnlyBlanks", "hops.tsv", "Saaz\t \t\t\t3\t4\t\t", "hops.tsv:4: usage \" \" holds a stray blank"},
        {"CarriageReturn", "hops.tsv", "Saaz\tAroma\t\t\t3\t4\t\r\t",
         "hops.tsv:4: the line holds the invisible character U+000D"},
        {"ControlCharacter", "hops.tsv", "Sa" + control + "az\tAroma\t\t\t3\t4\t\t",
         "hops.tsv:4: the line holds the invisible character U+0001"},
        {"NoBreakBlank", "hops.tsv", "Saaz\u00A0US\tAroma\t\t\t3\t4\t\t",
         "hops.tsv:4: the line holds the invisible character U+00A0"},
        {"NotUtf8", "hops.tsv", "Hallertauer Mittelfr\xFCh\tAroma\t\t\t3\t4\t\t",
         "hops.tsv:4: the line is not valid UTF-8"},
        {"CutShortUtf8", "hops.tsv", "Saaz\tAroma\t\t\t3\t4\tM\xC3\t",
         "hops.tsv:4: the line is not valid UTF-8"},
        {"DoubleQuoteInName", "hops.tsv", "\"Saaz\"\tAroma\t\t\t3\t4\t\t",
         "hops.tsv:4: name \"\"Saaz\"\" holds a double quote"},
        {"NameTwice", "hops.tsv", "BREWER'S GOLD\tAroma\t\t\t3\t4\t\t",
         "hops.tsv:4: name \"BREWER'S GOLD\" stands in line 2 already"},
        {"NameTwiceBeyondAscii", "yeast.tsv", "KÖLSCH YEAST\t\t\t\tAle\tLow\t\t\t\t\t\t\t",
         "yeast.tsv:5: name \"KÖLSCH YEAST\" stands in line 2 already"},
        {"NameOfGrainAndExtract", "grains.tsv", "Pale malt\textract\tSugar\t\t\t\t\t\t",
         "grains.tsv:4: name \"Pale malt\" stands in line 2 already"},
        {"Exponent", "hops.tsv", "Saaz\tAroma\t\t\t3\t1e1\t\t",
         "hops.tsv:4: alpha_hi \"1e1\" is not a number"},
        {"DecimalComma", "hops.tsv", "Saaz\tAroma\t\t\t3,5\t4\t\t",
         "hops.tsv:4: alpha_lo \"3,5\" is not a number"},
        {"NumberTooLarge", "hops.tsv", "Saaz\tAroma\t\t\t3\t1" + std::string(400, '0') + "\t\t",
         "hops.tsv:4: alpha_hi \"1" + std::string(400, '0') + "\" is not a number: Overflow"},
        {"NegativeNumber", "hops.tsv", "Saaz\tAroma\t\t\t-3\t4\t\t",
         "hops.tsv:4: alpha_lo \"-3\" is not between 0 and 100"},
        {"PercentAboveHundred", "sugars.tsv", "Rice\t90\t100.1\t",
         "sugars.tsv:4: fermentable_hi \"100.1\" is not between 0 and 100"},
        {"LowAboveHigh", "hops.tsv", "Saaz\tAroma\t\t\t4.5\t4.4\t\t",
         "hops.tsv:4: alpha_lo \"4.5\" is above alpha_hi \"4.4\""},
        {"HighMissing", "hops.tsv", "Saaz\tAroma\t\t\t4.5\t\t\t",
         "hops.tsv:4: a range needs both ends or none: alpha_lo \"4.5\", alpha_hi \"\""},
        {"LowMissing", "grains.tsv", "Oats\tgrain\tBase Malt\t\t33\t1\t2\t\t",
         "grains.tsv:4: a range needs both ends or none: ppg_lo \"\", ppg_hi \"33\""},
        {"PointsOutOfBounds", "grains.tsv", "Oats\tgrain\tBase Malt\t33\t330\t1\t2\t\t",
         "grains.tsv:4: ppg_hi \"330\" is not between 0 and 50"},
        {"UnknownKind", "grain_types.tsv", "Adjunct\tcereal",
         "grain_types.tsv:4: kind \"cereal\" is none of: grain, extract"},
        {"BlankKind", "grain_types.tsv", "Adjunct\t", "grain_types.tsv:4: kind is blank"},
        {"UnknownGrainType", "grains.tsv", "Oats\tgrain\tAdjunct\t\t\t\t\t\t",
         "grains.tsv:4: type \"Adjunct\" is not in grain_types.tsv"},
        {"BlankGrainType", "grains.tsv", "Oats\tgrain\t\t\t\t\t\t\t", "grains.tsv:4: type is blank"},
        {"GrainTypeOfTheOtherKind", "grains.tsv", "Oats\tgrain\tSugar\t\t\t\t\t\t",
         "grains.tsv:4: type \"Sugar\" is of kind \"extract\", not \"grain\""},
        {"UnknownYeastType", "yeast.tsv", "Baker\t\t\t\tBread\tLow\t\t\t\t\t\t\t",
         "yeast.tsv:5: type \"Bread\" is none of: Ale, Lager, Wheat, Lactic, Wine/Mead/Cider"},
        {"UnknownFlocculation", "yeast.tsv", "Baker\t\t\t\tAle\tMedium to High\t\t\t\t\t\t\t",
         "yeast.tsv:5: flocculation \"Medium to High\" is none of: Low, Medium, High, Very High"},
        {"TemperatureInCelsius", "yeast.tsv", "Baker\t\t\t\tAle\tLow\t\t\t18\t40\t\t\t",
         "yeast.tsv:5: temp_lo \"18\" is not between 32 and 212"},
        {"YeastNameWithADash", "yeast.tsv", "Baker - dry\t\t\t\tAle\tLow\t\t\t\t\t\t\t",
         "yeast.tsv:5: name \"Baker - dry\" holds \" - \""},
        {"BlankIon", "water_profiles.tsv", "Rain\t0\t\t0\t0\t0\t0\t", "water_profiles.tsv:3: co3 is blank"},
        {"NegativeIon", "salts.tsv", "Lime\t-1\t0\t0\t0\t0\t0\t",
         "salts.tsv:3: ca \"-1\" is not between 0 and 10000"},
        {"UnknownWaterProfile", "styles.tsv", "Ale\t\t\tPale Beer\tAle\tBurton\t\t\t\t\t\t\t\t\t\t\t\t\t",
         "styles.tsv:5: water_profile \"Burton\" is not in water_profiles.tsv"},
        {"UnknownStyleType", "styles.tsv", "Ale\t\t\tPale Beer\t0\t\t\t\t\t\t\t\t\t\t\t\t\t\t",
         "styles.tsv:5: type \"0\" is none of: Ale, Lager, Wheat, Lactic, Wine/Mead/Cider"},
        {"BlankFolder", "styles.tsv", "Ale\t\t\t\tAle\t\t\t\t\t\t\t\t\t\t\t\t\t\t",
         "styles.tsv:5: folder is blank"},
        {"FolderSpeltInTwoWays", "styles.tsv", "Ale\t\t\tPale beer\tAle\t\t\t\t\t\t\t\t\t\t\t\t\t\t",
         "styles.tsv:5: folder \"Pale beer\" is written \"Pale Beer\" further up"},
        {"UnknownGuide", "styles.tsv", "Ale\t1A\tBeer 1999\tPale Beer\tAle\t\t\t\t\t\t\t\t\t\t\t\t\t\t",
         "styles.tsv:5: guide \"Beer 1999\" is none of: Beer 2021, Mead 2015, Cider 2025"},
        {"AttenuationTooLow", "yeast.tsv", "Baker\t\t\t\tAle\tLow\t9.9\t12\t\t\t\t\t",
         "yeast.tsv:5: attenuation_lo \"9.9\" is not between 10 and 100"},
        {"UnknownHopForm", "hops.tsv", "Saaz\tAroma\t\tPowder\t\t\t\t",
         "hops.tsv:4: form \"Powder\" is none of: Pellet or leaf, Cryo, LUPOMAX"},
        {"UnknownBasis", "hops.tsv", "Saaz\tAroma\t\t\t\t\t\thearsay",
         "hops.tsv:4: basis \"hearsay\" is none of: published, secondary"},
        {"AliasOfNothing", "aliases.tsv", "Bit\thop\tBitter Gold",
         "aliases.tsv:7: name \"Bitter Gold\" is no hop of the catalogue"},
        {"AliasOfAnotherKind", "aliases.tsv", "Bit\tyeast\tBrewer's Gold",
         "aliases.tsv:7: name \"Brewer's Gold\" is no yeast of the catalogue"},
        {"AliasThatIsAName", "aliases.tsv", "wild hop\thop\tBrewer's Gold",
         "aliases.tsv:7: alias \"wild hop\" is the name of a row"},
        {"AliasTwice", "aliases.tsv", "bg\thop\tWild Hop",
         "aliases.tsv:7: name \"bg\" stands in line 3 already"},
        {"AliasOfAnUnknownKind", "aliases.tsv", "Bit\tbeer\tPils",
         "aliases.tsv:7: kind \"beer\" is none of: fermentable, hop, yeast, style, salt, sugar, water"},
        {"GoneButPresent", "former.tsv", "Pils\tstyle\tgone\t",
         "former.tsv:2: gone \"Pils\" is in the catalogue"},
        {"MovedButAbsent", "former.tsv", "Bock\tstyle\tmoved\tPale Beer",
         "former.tsv:2: moved \"Bock\" is not in the catalogue"},
        {"MovedFromNowhere", "former.tsv", "Pils\tstyle\tmoved\t",
         "former.tsv:2: moved \"Pils\" must be a style and have the folder where it was"},
        {"GravityOutOfBounds", "styles.tsv", "Ale\t\t\tPale Beer\tAle\t\t0.044\t1.050\t\t\t\t\t\t\t\t\t\t\t",
         "styles.tsv:5: og_lo \"0.044\" is not between 0.9 and 1.3"},
    };
}

INSTANTIATE_TEST_SUITE_P(Catalogue, BadRowTest, testing::ValuesIn(BadRows()),
                         [](const testing::TestParamInfo<BadRow>& bad) { return bad.param.name; });

}  // namespace
}  // namespace tw
