// Tests the product's own catalogue files. Figures are compared with published ones and with chemistry
// computed here.
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <regex>
#include <string>
#include <vector>

#include "store/CatalogueLoader.h"
#include "store/CatalogueNames.h"
#include "store/Database.h"
#include "store/Schema.h"

namespace tw {
namespace {

using testing::ElementsAre;
using testing::Ge;
using testing::IsEmpty;
using testing::SizeIs;

// Conventional atomic weights, in grams per mole.
constexpr double kH = 1.008, kC = 12.011, kO = 15.999, kNa = 22.990, kMg = 24.305, kS = 32.06, kCl = 35.45,
                 kCa = 40.078;
constexpr double kWater = 2 * kH + kO;
constexpr double kSulfate = kS + 4 * kO;
constexpr double kBicarbonate = kH + kC + 3 * kO;
constexpr double kLitersPerGallon = 3.785411784;

class CatalogueData : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        database_ = CreateMainDatabaseInMemory();
        for (const CatalogueProblem& problem : LoadCatalogue(CATALOGUE_FOLDER, *database_, std::nullopt)) {
            problems_.push_back(problem.Text());
        }
    }
    static void TearDownTestSuite() { database_.reset(); }

    // Returns the rows of a SELECT, each as the texts of its fields, separated by "|"; NULL as "NULL".
    static std::vector<std::string> Rows(const std::string& sql) {
        std::vector<std::string> rows;
        for (Recordset records = database_->OpenRecordset(sql); !records.AtEnd(); records.MoveNext()) {
            std::string row;
            for (int at = 0; at < records.FieldCount(); ++at) {
                if (at > 0) row += "|";
                row += records.Fields(at).IsNull() ? "NULL" : records.Fields(at).Text();
            }
            rows.push_back(row);
        }
        return rows;
    }
    static std::vector<std::string> Names(const std::string& table, const std::string& where) {
        return Rows("SELECT NAME FROM " + table + " WHERE " + where);
    }

    static inline std::unique_ptr<Database> database_;
    static inline std::vector<std::string> problems_;
};

TEST_F(CatalogueData, LoadsWithoutAProblem) {
    EXPECT_THAT(problems_, IsEmpty());
}

TEST_F(CatalogueData, HoldsAllRowsOfThisRelease) {
    EXPECT_THAT(Names("STYLES", "TRUE"), SizeIs(155));
    EXPECT_THAT(Names("FOLDERS", "STYLE"), SizeIs(43));
    EXPECT_THAT(Names("GRAINS", "GRAIN"), SizeIs(147));
    EXPECT_THAT(Names("GRAINS", "NOT GRAIN"), SizeIs(49));
    EXPECT_THAT(Names("GRAIN_TYPES", "TRUE"), SizeIs(10));
    EXPECT_THAT(Names("HOPS", "TRUE"), SizeIs(237));
    EXPECT_THAT(Names("YEAST", "TRUE"), SizeIs(411));
    EXPECT_THAT(Names("WATER_PROFILES", "TRUE"), SizeIs(35));
    EXPECT_THAT(Names("SALTS", "TRUE"), SizeIs(9));
    EXPECT_THAT(Names("SUGARS", "TRUE"), SizeIs(12));
    EXPECT_THAT(Rows("SELECT ALIAS FROM CATALOGUE_ALIASES"), SizeIs(1751));
}

TEST_F(CatalogueData, EveryStyleHasACodeOfItsGuide) {
    EXPECT_THAT(Rows("SELECT SOURCE, COUNT(*) FROM CATALOGUE_FACTS WHERE SHEET = 'STYLES' GROUP BY SOURCE "
                     "ORDER BY SOURCE"),
                ElementsAre("Beer 2021|126", "Cider 2025|16", "Mead 2015|13"));
    const std::map<std::string, std::regex> forms = {
        {"Beer 2021", std::regex("([1-9]|[12][0-9]|3[0-4])[A-H]|27|X[1-5]")},
        {"Cider 2025", std::regex("C[1-4][A-E]")},
        {"Mead 2015", std::regex("M[1-4][A-E]")}};
    std::map<std::string, int> stylesOfCode;
    for (Recordset facts = database_->OpenRecordset(
             "SELECT CODE, SOURCE, NAME FROM CATALOGUE_FACTS WHERE SHEET = 'STYLES'");
         !facts.AtEnd(); facts.MoveNext()) {
        const std::string code = facts.Fields(0).Text();
        EXPECT_TRUE(std::regex_match(code, forms.at(facts.Fields(1).Text()))) << facts.Fields(2).Text();
        ++stylesOfCode[code];
    }
    // In the guide, all specialty IPAs have the same code, and so have all historical beers.
    for (const auto& [code, styles] : stylesOfCode) {
        if (code == "21B" || code == "27")
            EXPECT_GE(styles, 7) << code;
        else
            EXPECT_EQ(styles, 1) << code;
    }
}

TEST_F(CatalogueData, TheCidersAreThoseOfTheGuideOf2025) {
    EXPECT_THAT(
        Rows("SELECT CATALOGUE_FACTS.CODE, STYLES.NAME, FOLDERS.NAME FROM STYLES, FOLDERS, CATALOGUE_FACTS "
             "WHERE "
             "STYLES.FOLDER_ID = FOLDERS.ID AND CATALOGUE_FACTS.NAME = STYLES.NAME AND SOURCE = 'Cider 2025' "
             "ORDER BY CATALOGUE_FACTS.CODE"),
        ElementsAre("C1A|Common Cider|Traditional Cider", "C1B|Heirloom Cider|Traditional Cider",
                    "C1C|English Cider|Traditional Cider", "C1D|French Cider|Traditional Cider",
                    "C1E|Spanish Cider|Traditional Cider", "C2A|New England Cider|Strong Cider",
                    "C2B|Applewine|Strong Cider", "C2C|Ice Cider|Strong Cider", "C2D|Fire Cider|Strong Cider",
                    "C3A|Fruit Cider|Specialty Cider", "C3B|Spiced Cider|Specialty Cider",
                    "C3C|Experimental Cider|Specialty Cider", "C4A|Common Perry|Perry",
                    "C4B|Heirloom Perry|Perry", "C4C|Ice Perry|Perry", "C4D|Experimental Perry|Perry"));
}

TEST_F(CatalogueData, EveryHopHasAnOriginOrIsABlendAndAForm) {
    const std::string hops = "SELECT NAME FROM CATALOGUE_FACTS WHERE SHEET = 'HOPS' AND ";
    EXPECT_THAT(Rows(hops + "TRUE"), SizeIs(237));
    EXPECT_THAT(Rows(hops + "SOURCE = ''"), ElementsAre("Zythos"));
    EXPECT_THAT(Rows(hops + "FORM = ''"), IsEmpty());
    EXPECT_THAT(Rows(hops + "FORM = 'Cryo'"), SizeIs(9));
    EXPECT_THAT(Rows(hops + "FORM = 'LUPOMAX'"), SizeIs(2));
}

TEST_F(CatalogueData, EveryYeastHasALaboratoryAndAFormAndItsCodeIsItsAlone) {
    const std::string yeasts = "SELECT NAME FROM CATALOGUE_FACTS WHERE SHEET = 'YEAST' AND ";
    EXPECT_THAT(Rows(yeasts + "SOURCE <> ''"), SizeIs(411));
    EXPECT_THAT(Rows(yeasts + "FORM IN ('Dry', 'Liquid')"), SizeIs(411));
    EXPECT_THAT(Rows("SELECT CODE FROM CATALOGUE_FACTS WHERE SHEET = 'YEAST' AND CODE <> '' GROUP BY CODE "
                     "HAVING COUNT(*) > 1"),
                IsEmpty());
    // A yeast's name contains its maker's code.
    EXPECT_THAT(Rows(yeasts + "CODE <> '' AND INSTR(NAME, CODE) = 0"), IsEmpty());
}

TEST_F(CatalogueData, EveryAttenuationIsPlausible) {
    EXPECT_THAT(Names("YEAST", "AA_LO < 10 OR AA_HI > 100 OR AA_LO > AA_HI"), IsEmpty());
    EXPECT_THAT(Names("YEAST", "AA_LO < 50"),
                ElementsAre("Fermentis SafBrew LA-01", "Lallemand LalBrew LoNa"));
}

TEST_F(CatalogueData, OtherNamesLeadToTheirRows) {
    const CatalogueNames names(*database_);
    const auto find = [&](CatalogueKind kind, std::string_view typed) {
        return names.RowOf(kind, typed).value_or("");
    };
    EXPECT_EQ(find(CatalogueKind::Hop, "ekg"), "East Kent Goldings");
    EXPECT_EQ(find(CatalogueKind::Grain, "Carapils"), "Carapils / Dextrin Malt");
    EXPECT_EQ(find(CatalogueKind::Yeast, "wlp001"), "White Labs WLP001 California Ale");
    EXPECT_EQ(find(CatalogueKind::Yeast, "US-05"), "Fermentis SafAle US-05");
    EXPECT_EQ(find(CatalogueKind::Style, "18B"), "American Pale Ale");
    EXPECT_EQ(find(CatalogueKind::Style, "21B"), "");
    // The names of the ciders of the guide of 2015 find those that replaced them.
    EXPECT_EQ(find(CatalogueKind::Style, "New World Cider"), "Common Cider");
}

// Databases of the first release contain these styles; what the catalogue says of them must be true.
TEST_F(CatalogueData, FormerStylesAreSixThatWentAndFiveThatMoved) {
    CatalogueProblems problems;
    const CatalogueSheets sheets = ReadCatalogue(CATALOGUE_FOLDER, problems);
    std::map<std::string, int> fates;
    for (const CatalogueRow& row : sheets.former.rows) ++fates[row.Text("fate")];
    EXPECT_EQ(fates, (std::map<std::string, int>{{"gone", 6}, {"moved", 5}}));
}

TEST_F(CatalogueData, EveryRowThatCanSayWhatItsFiguresRestOnDoes) {
    CatalogueProblems problems;
    const CatalogueSheets sheets = ReadCatalogue(CATALOGUE_FOLDER, problems);
    for (const CatalogueSheet* sheet : {&sheets.grains, &sheets.hops, &sheets.yeast})
        for (const CatalogueRow& row : sheet->rows) EXPECT_NE(row.Text("basis"), "") << row.Text("name");
}

TEST_F(CatalogueData, EveryStyleHasAFolderATypeAndADescription) {
    EXPECT_THAT(Names("STYLES", "FOLDER_ID = 0 OR TYPE IS NULL OR DESCR = ''"), IsEmpty());
    EXPECT_THAT(Names("STYLES", "FOLDER_ID NOT IN (SELECT ID FROM FOLDERS WHERE STYLE)"), IsEmpty());
}

TEST_F(CatalogueData, EveryIngredientHasADescription) {
    for (const char* table : {"GRAINS", "HOPS", "YEAST", "WATER_PROFILES", "SALTS", "SUGARS"}) {
        EXPECT_THAT(Names(table, "DESCR = ''"), IsEmpty()) << table;
    }
    EXPECT_THAT(Names("YEAST", "FULL_DESCR = ''"), IsEmpty());
}

TEST_F(CatalogueData, EveryStylesWaterProfileExists) {
    EXPECT_THAT(Names("STYLES",
                      "WATER_PROFILE IS NOT NULL AND WATER_PROFILE NOT IN (SELECT NAME FROM WATER_PROFILES)"),
                IsEmpty());
    EXPECT_THAT(Names("STYLES", "WATER_PROFILE IS NOT NULL"), SizeIs(Ge(90u)));
}

// The program deletes a type with its last grain; a type that never had any would never be deleted.
TEST_F(CatalogueData, EveryGrainTypeHasGrains) {
    EXPECT_THAT(Names("GRAIN_TYPES", "ID NOT IN (SELECT GRAIN_TYPE FROM GRAINS)"), IsEmpty());
}

TEST_F(CatalogueData, HopsAndYeastsUseTheWordsOfTheirLists) {
    EXPECT_THAT(Rows("SELECT DISTINCT USAGE FROM HOPS ORDER BY USAGE"),
                ElementsAre("Aroma", "Bittering", "Dual purpose"));
    // The flocculation of some wine and cider yeasts is not known.
    EXPECT_THAT(Rows("SELECT DISTINCT FLOC FROM YEAST ORDER BY FLOC"),
                ElementsAre("", "High", "Low", "Medium", "Very High"));
}

TEST_F(CatalogueData, RecipeLinesFindAMidPointForEveryGrainHopAndSugar) {
    EXPECT_THAT(Names("GRAINS", "(PPG_LO+PPG_HI)/2 IS NULL OR (COLOR_LO+COLOR_HI)/2 IS NULL"), IsEmpty());
    EXPECT_THAT(Names("HOPS", "(AA_LO+AA_HI)/2 IS NULL"), IsEmpty());
    EXPECT_THAT(Names("SUGARS", "(FERMENT_LO+FERMENT_HI)/2 IS NULL"), IsEmpty());
}

// The ions in milligrams per liter that one gram adds to a US gallon, by formula, with carbonate counted
// as bicarbonate.
TEST_F(CatalogueData, SaltsAddWhatTheirFormulaSays) {
    struct Salt {
        double molarMass;
        std::vector<double> ions;  // grams of Ca, HCO3, Cl, Mg, Na and SO4 per mole
    };
    const std::map<std::string, Salt> salts = {
        {"Gypsum", {kCa + kSulfate + 2 * kWater, {kCa, 0, 0, 0, 0, kSulfate}}},
        {"Calcium Chloride (dihydrate)", {kCa + 2 * kCl + 2 * kWater, {kCa, 0, 2 * kCl, 0, 0, 0}}},
        {"Calcium Chloride (anhydrous)", {kCa + 2 * kCl, {kCa, 0, 2 * kCl, 0, 0, 0}}},
        {"Epsom Salt", {kMg + kSulfate + 7 * kWater, {0, 0, 0, kMg, 0, kSulfate}}},
        {"Magnesium Chloride", {kMg + 2 * kCl + 6 * kWater, {0, 0, 2 * kCl, kMg, 0, 0}}},
        {"Table Salt", {kNa + kCl, {0, 0, kCl, 0, kNa, 0}}},
        {"Baking Soda", {kNa + kBicarbonate, {0, kBicarbonate, 0, 0, kNa, 0}}},
        // Ca(OH)2 + 2 CO2 yields calcium and two bicarbonates, like chalk.
        {"Slaked Lime", {kCa + 2 * kO + 2 * kH, {kCa, 2 * kBicarbonate, 0, 0, 0, 0}}},
        // CaCO3 + CO2 + H2O yields calcium and two bicarbonates.
        {"Chalk", {kCa + kC + 3 * kO, {kCa, 2 * kBicarbonate, 0, 0, 0, 0}}},
    };
    std::size_t found = 0;
    Recordset records = database_->OpenRecordset("SELECT NAME, CA, CO3, CL, MG, NA, SO4 FROM SALTS");
    for (; !records.AtEnd(); records.MoveNext()) {
        const std::string name = records.Fields("NAME").Text();
        const auto salt = salts.find(name);
        ASSERT_NE(salt, salts.end()) << name;
        ++found;
        for (int ion = 0; ion < 6; ++ion) {
            const double grams = salt->second.ions[static_cast<std::size_t>(ion)] / salt->second.molarMass;
            EXPECT_NEAR(records.Fields(ion + 1).Number(), 1000 * grams / kLitersPerGallon, 0.06)
                << name << ion;
        }
    }
    EXPECT_EQ(found, salts.size());
}

// Positive and negative charges balance only if the carbonate column counts bicarbonate, with one charge per
// 61 grams. The published analyses of Cologne and Pilsen lack some anions.
TEST_F(CatalogueData, WaterProfilesBalanceWithCarbonateAsBicarbonate) {
    Recordset records = database_->OpenRecordset("SELECT NAME, CA, CO3, CL, MG, NA, SO4 FROM WATER_PROFILES");
    for (; !records.AtEnd(); records.MoveNext()) {
        const std::string name = records.Fields("NAME").Text();
        const auto ion = [&](const char* column) { return records.Fields(column).Number(); };
        const double positive = ion("CA") * 2 / kCa + ion("MG") * 2 / kMg + ion("NA") / kNa;
        const double negative = ion("CO3") / kBicarbonate + ion("CL") / kCl + ion("SO4") * 2 / kSulfate;
        const double share = name == "Cologne" || name == "Pilsen" ? 0.2 : 0.06;
        EXPECT_NEAR(negative, positive, share * positive) << name;
    }
}

TEST_F(CatalogueData, WatersAndSaltsSayHowCarbonateIsCounted) {
    for (const char* table : {"WATER_PROFILES", "SALTS"}) {
        Recordset records = database_->OpenRecordset(std::string("SELECT NAME, DESCR, CO3 FROM ") + table);
        for (; !records.AtEnd(); records.MoveNext()) {
            const bool says =
                records.Fields("DESCR").Text().find("counted as bicarbonate (HCO3)") != std::string::npos;
            EXPECT_EQ(says, records.Fields("CO3").Number() > 0) << records.Fields("NAME").Text();
        }
    }
}

// Returns the percentage at which that many grams per liter yield one volume of CO2, by the program's
// formula: volumes = ounces * percent / 100 * 0.27027 / (gallons * 0.133).
double PercentForGramsPerLiter(double grams) {
    const double ounces = grams * kLitersPerGallon / 28.349523125;
    return 100 / (ounces * 0.27027 / 0.133);
}

TEST_F(CatalogueData, PrimingSugarsStandOnTheScaleOfTheFormula) {
    // A mole of CO2, 44.009 g, fills 22.414 liters: one volume is 1.9635 g/l.
    const double carbonDioxide = kC + 2 * kO;
    const double volume = carbonDioxide / 22.414;
    const double glucoseMonohydrate = 6 * kC + 12 * kH + 6 * kO + kWater;  // ferments to two CO2
    const double sucrose = 12 * kC + 22 * kH + 11 * kO;                    // ferments to four CO2
    Recordset corn = database_->OpenRecordset("SELECT * FROM SUGARS WHERE NAME = 'Corn Sugar (Dextrose)'");
    ASSERT_FALSE(corn.AtEnd());
    EXPECT_NEAR(corn.Fields("FERMENT_LO").Number(),
                PercentForGramsPerLiter(volume * glucoseMonohydrate / (2 * carbonDioxide)), 1);
    EXPECT_NEAR(corn.Fields("FERMENT_HI").Number(), PercentForGramsPerLiter(4.0), 1);
    Recordset table = database_->OpenRecordset("SELECT * FROM SUGARS WHERE NAME = 'Table Sugar (Sucrose)'");
    ASSERT_FALSE(table.AtEnd());
    EXPECT_NEAR(table.Fields("FERMENT_LO").Number(),
                PercentForGramsPerLiter(volume * sucrose / (4 * carbonDioxide)), 1);
    EXPECT_EQ(table.Fields("FERMENT_HI").Number(), 100);
}

TEST_F(CatalogueData, HoldsWellKnownGrainsAsPublished) {
    const std::string select = "SELECT PPG_LO, PPG_HI, COLOR_LO, COLOR_HI FROM GRAINS WHERE NAME = ";
    EXPECT_THAT(Rows(select + "'Maris Otter Pale Malt'"), ElementsAre("37|38|2.5|3.75"));
    EXPECT_THAT(Rows(select + "'Caramel/Crystal Malt 60L'"), ElementsAre("34|35.5|60|60"));
    EXPECT_THAT(Rows(select + "'Table Sugar (Sucrose)'"), ElementsAre("46|46|0|1"));
    EXPECT_THAT(Rows(select + "'Dry Malt Extract, Light'"), ElementsAre("42|44|4|8"));
    EXPECT_THAT(
        Rows("SELECT GRAIN_TYPES.NAME FROM GRAINS, GRAIN_TYPES WHERE GRAINS.GRAIN_TYPE = GRAIN_TYPES.ID AND "
             "GRAINS.NAME = 'Roasted Barley (UK)'"),
        ElementsAre("Roasted Malt"));
}

TEST_F(CatalogueData, HoldsWellKnownHopsAsPublished) {
    EXPECT_THAT(Names("HOPS", "NAME = 'Cascade' AND AA_LO >= 4.5 AND AA_HI <= 9"), SizeIs(1));
    EXPECT_THAT(Names("HOPS", "NAME = 'Saaz' AND AA_LO >= 2 AND AA_HI <= 5"), SizeIs(1));
    EXPECT_THAT(Names("HOPS", "NAME = 'Chinook' AND AA_LO >= 11 AND AA_HI <= 14"), SizeIs(1));
    EXPECT_THAT(Names("HOPS", "NAME = 'Brewer''s Gold (German)'"), SizeIs(1));
}

TEST_F(CatalogueData, HoldsWellKnownYeastsAsPublished) {
    const std::string select = "SELECT TYPE, FLOC, AA_LO, AA_HI, TEMP_LO, TEMP_HI FROM YEAST WHERE NAME = ";
    EXPECT_THAT(Rows(select + "'Wyeast 3068 Weihenstephan Weizen'"), ElementsAre("2|Low|73|77|64|75"));
    EXPECT_THAT(Rows(select + "'White Labs WLP002 English Ale'"), ElementsAre("0|Very High|63|70|65|68"));
    // 12 to 18 degrees Celsius.
    EXPECT_THAT(Rows(select + "'Fermentis SafLager W-34/70'"), ElementsAre("1|High|80|84|54|64"));
}

TEST_F(CatalogueData, HoldsWellKnownWatersAndSaltsAsPublished) {
    EXPECT_THAT(Rows("SELECT CA, CO3, CL, MG, NA, SO4 FROM WATER_PROFILES WHERE NAME = 'Burton-on-Trent'"),
                ElementsAre("295|300|25|45|55|725"));
    EXPECT_THAT(Rows("SELECT CA, CO3, CL, MG, NA, SO4 FROM WATER_PROFILES WHERE NAME = 'Distilled'"),
                ElementsAre("0|0|0|0|0|0"));
    EXPECT_THAT(Rows("SELECT CA, CO3, CL, MG, NA, SO4 FROM SALTS WHERE NAME = 'Gypsum'"),
                ElementsAre("61.5|0|0|0|0|147.4"));
}

TEST_F(CatalogueData, HoldsWellKnownStylesAsPublished) {
    EXPECT_THAT(Rows("SELECT TYPE, OG_LO, OG_HI, FG_LO, FG_HI, ABV_LO, ABV_HI, COLOR_LO, COLOR_HI, IBU_LO, "
                     "IBU_HI FROM "
                     "STYLES WHERE NAME = 'American IPA'"),
                ElementsAre("0|1.056|1.07|1.008|1.014|5.5|7.5|6|14|40|70"));
    EXPECT_THAT(
        Rows("SELECT STYLES.TYPE, OG_LO, OG_HI, IBU_LO, IBU_HI, FOLDERS.NAME FROM STYLES, FOLDERS WHERE "
             "STYLES.FOLDER_ID = FOLDERS.ID AND STYLES.NAME = 'German Pils'"),
        ElementsAre("1|1.044|1.05|22|40|Pale Bitter European Beer"));
    EXPECT_THAT(Rows("SELECT TYPE, OG_LO, WATER_PROFILE FROM STYLES WHERE NAME = 'Fruit Beer'"),
                ElementsAre("0|NULL|NULL"));
}

}  // namespace
}  // namespace tw
