#include "store/RecipeRows.h"

#include <gtest/gtest.h>

#include "StoreSupport.h"
#include "record/RecipeRecord.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

class RecipeRows : public testing::Test {
  protected:
    // Writes the recipe and reads it back.
    StoredRecipe RoundTrip(const StoredRecipe& recipe) {
        EXPECT_TRUE(InsertRecipe(*db, recipe));
        const auto read = ReadRecipe(*db, recipe.name);
        EXPECT_TRUE(read.has_value());
        return read.value_or(StoredRecipe{});
    }
    std::vector<std::string> StatementsOf(const std::function<void()>& action) {
        std::vector<std::string> seen;
        db->SetStatementHook([&](std::string_view sql) { seen.emplace_back(sql); });
        action();
        db->SetStatementHook(nullptr);
        return seen;
    }
    std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
};

TEST_F(RecipeRows, ComeBackAsTheyWere) {
    const StoredRecipe recipe = FullRecipe("Dark Mild", 3);
    const StoredRecipe read = RoundTrip(recipe);
    EXPECT_EQ(Describe(read), Describe(recipe));
    EXPECT_EQ(read.id, 1);
}

TEST_F(RecipeRows, ComeBackWithAwkwardTexts) {
    const std::vector<std::string> texts = {"it's",
                                            "\"quoted\"",
                                            "''",
                                            "a\r\nb\nc",
                                            "tab\there",
                                            "\xF0\x9F\x8D\xBA beer",
                                            "007",
                                            "1.050",
                                            "+1",
                                            "1e400",
                                            "NULL",
                                            "'); DELETE FROM RECIPES; --",
                                            "/* */",
                                            "WHEN",
                                            "?",
                                            "Žižka Ωμέγα",
                                            std::string(10000, 'x'),
                                            std::string(10000, '\''),
                                            std::string("nul\0inside", 10),
                                            "\xff\xfe"};
    for (const std::string& text : texts) {
        StoredRecipe recipe = FullRecipe("Awkward " + std::to_string(&text - texts.data()), 1);
        recipe[FieldId::BoilVol].text = recipe[FieldId::OG].text = recipe[FieldId::ABV].text =
            recipe[FieldId::Notes].text = recipe[FieldId::NumBatches].text =
                recipe[GridId::Water].at(0).cells[WaterCol::Profile].text = text;
        recipe[GridId::Grain].at(0).cells[0].text = recipe[GridId::Hops].at(0).cells[6].text =
            recipe[GridId::Treatment].at(0).cells[1].text = text;
        recipe[GridId::Priming].at(0).cells[1].text = recipe[GridId::Adjuncts].at(0).cells[2].text =
            recipe[GridId::Log].at(0).cells[2].text = text;
        EXPECT_EQ(Describe(RoundTrip(recipe)), Describe(recipe)) << text.substr(0, 40);
    }
}

TEST_F(RecipeRows, KeepAwkwardNames) {
    for (const std::string name :
         {"O'Brien's", "The \"Best\"", "Kölsch", "100%", "_", "NAME", "\xF0\x9F\x8D\xBA"}) {
        EXPECT_EQ(RoundTrip(FullRecipe(name)).name, name);
        EXPECT_TRUE(RecipeExists(*db, "  " + name + " "));
    }
}

TEST_F(RecipeRows, KeepEveryDigitOfANumber) {
    for (const double number : {0.1, 1.653947502249557, 345.9954202661539, 1.041234567890123, 1.0 / 3, 5e-324,
                                1.7976931348623157e308, 123456789012345680.0, -2.5e-7, 4503599627370497.5}) {
        StoredRecipe recipe = FullRecipe("N", 1);
        recipe[FieldId::OG].number = number;
        recipe[GridId::Grain].at(0).cells[1].number = -number;
        db->Execute("DELETE FROM RECIPES");
        const StoredRecipe read = RoundTrip(recipe);
        EXPECT_EQ(read[FieldId::OG].number, number);
        EXPECT_EQ(read[GridId::Grain].at(0).cells[1].number, -number);
    }
}

TEST_F(RecipeRows, TrimTextsOnWriting) {
    StoredRecipe recipe = FullRecipe("  Mild  ", 1);
    recipe[FieldId::Notes].text = "  two lines\r\n below ";
    EXPECT_TRUE(InsertRecipe(*db, recipe));
    EXPECT_EQ(Cell(*db, "SELECT NAME FROM RECIPES"), "Mild");
    EXPECT_EQ(Cell(*db, "SELECT NOTES FROM RECIPES"), "two lines\r\n below");
}

TEST_F(RecipeRows, WriteBlanksForWhatIsAbsent) {
    StoredRecipe recipe;
    recipe.name = "Bare";
    recipe.createdWhen = DateTime{2024, 1, 1, 0, 0, 0};
    for (const GridId grid : {GridId::Grain, GridId::Hops, GridId::Treatment})
        recipe[grid].push_back(EmptyLine(grid, 0));
    const StoredRecipe read = RoundTrip(recipe);
    EXPECT_EQ(read.styleId, 0);
    EXPECT_EQ(read.folderId, 0);
    EXPECT_EQ(read[FieldId::BoilVol].text, "");
    EXPECT_EQ(read[FieldId::BoilVol].number, 0);
    EXPECT_EQ(read.ibuMethod, 0);
    EXPECT_EQ(read.bottled, false);
    EXPECT_EQ(read[GridId::Pressure].at(0).cells[PressureCol::Pressure].number, 0);
    EXPECT_EQ(read[GridId::Pressure].at(0).cells[PressureCol::Volumes].text, std::nullopt);
    EXPECT_EQ(read[GridId::Water].at(0).cells[WaterCol::FirstIon + 0].text, std::nullopt);
    EXPECT_EQ(read[GridId::Grain].at(0).cells[0].text, "");
    EXPECT_EQ(read[GridId::Grain].at(0).cells[4].number, 0);
    EXPECT_EQ(read[GridId::Hops].at(0).cells[2].number, 0);
    EXPECT_EQ(read[GridId::Hops].at(0).cells[5].number, false);
    EXPECT_EQ(read[GridId::Treatment].at(0).cells[TreatmentCol::FirstIon + 5].number, 0);
}

TEST_F(RecipeRows, WriteABlankCellAsNull) {
    StoredRecipe recipe = FullRecipe("Blank");
    recipe[GridId::Pressure].at(0).cells[PressureCol::Volumes].text = "  ";
    recipe[GridId::Water].at(0).cells[WaterCol::FirstIon + 0].text = "";
    recipe[GridId::Water].at(1).cells[WaterCol::FirstIon + 5].text = " 638 ";
    const StoredRecipe read = RoundTrip(recipe);
    EXPECT_EQ(read[GridId::Pressure].at(0).cells[PressureCol::Volumes].text, std::nullopt);
    EXPECT_EQ(read[GridId::Water].at(0).cells[WaterCol::FirstIon + 0].text, std::nullopt);
    EXPECT_EQ(read[GridId::Water].at(1).cells[WaterCol::FirstIon + 5].text, "638");
}

TEST_F(RecipeRows, RefuseABareTextThatIsNoNumber) {
    StoredRecipe recipe = FullRecipe("Evil");
    recipe[GridId::Water].at(1).cells[WaterCol::FirstIon + 1].text = "1, NOTES = ''";
    EXPECT_EQ(ErrorOf([&] { InsertRecipe(*db, recipe); }).WithSource(),
              "Database\r\n'1, NOTES = ''' is no number. (20)");
    // What was written before the failure remains.
    EXPECT_EQ(Cell(*db, "SELECT NOTES FROM RECIPES"), "007");
}

TEST_F(RecipeRows, ReadNullAsAbsent) {
    db->Execute("INSERT INTO RECIPES (NAME) VALUES ('Empty')");
    for (const std::string table : {"GRAINS (GRAIN, ", "HOPS (DRY, ", "SALTS (CA, ", "SUGARS (NAME, ",
                                    "ADJUNCTS (NAME, ", "LOG (NOTES, "})
        db->Execute("INSERT INTO RECIPE_" + table + "RECIPE_ID, ROW_ID) VALUES (NULL, 1, 0)");
    const auto read = ReadRecipe(*db, "Empty");
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->createdWhen, std::nullopt);
    EXPECT_EQ(read->styleId, std::nullopt);
    EXPECT_EQ((*read)[FieldId::Notes].text, std::nullopt);
    EXPECT_EQ((*read)[FieldId::BoilVol].text, std::nullopt);
    EXPECT_EQ((*read)[FieldId::BoilVol].number, std::nullopt);
    EXPECT_EQ(read->bottled, std::nullopt);
    EXPECT_TRUE((*read)[GridId::Grain].empty());  // neither a grain nor an extract
    EXPECT_EQ((*read)[GridId::Hops].at(0).cells[5].number, std::nullopt);
    EXPECT_EQ((*read)[GridId::Treatment].at(0).cells[TreatmentCol::FirstIon + 0].number, std::nullopt);
    EXPECT_EQ((*read)[GridId::Priming].at(0).cells[0].text, std::nullopt);
    EXPECT_EQ((*read)[GridId::Adjuncts].at(0).cells[2].text, std::nullopt);
    EXPECT_EQ((*read)[GridId::Log].at(0).cells[2].text, std::nullopt);
}

TEST_F(RecipeRows, AreFoundWithoutCase) {
    InsertRecipe(*db, FullRecipe("Kölsch"));
    EXPECT_EQ(ReadRecipe(*db, "kÖLSCH")->name, "Kölsch");
    EXPECT_TRUE(RecipeExists(*db, " KÖLSCH "));
    EXPECT_FALSE(RecipeExists(*db, "Kolsch"));
    EXPECT_EQ(ReadRecipe(*db, "Kolsch"), std::nullopt);
}

TEST_F(RecipeRows, KeepGapsBetweenRows) {
    StoredRecipe recipe = FullRecipe("Gaps", 2);
    recipe[GridId::Log].at(0).rowId = 9;
    const StoredRecipe read = RoundTrip(recipe);
    EXPECT_EQ(read[GridId::Log].at(0).rowId, 9);
    EXPECT_EQ(read[GridId::Log].at(1).rowId, 0);
}

TEST_F(RecipeRows, RefuseARowThatNoGridCouldHold) {
    InsertRecipe(*db, FullRecipe("Damaged"));
    for (const std::string row : {"-1", "2000000000"}) {
        db->Execute("UPDATE RECIPE_LOG SET ROW_ID = " + row);
        EXPECT_EQ(ErrorOf([&] { ReadRecipe(*db, "Damaged"); }).Description(),
                  "A line of the recipe has no valid place: " + row + ".");
    }
}

TEST_F(RecipeRows, FailWhenTheNewRowIsNotFound) {
    db->ExecuteNative("CREATE TRIGGER GONE AFTER INSERT ON RECIPES BEGIN DELETE FROM RECIPES; END");
    EXPECT_FALSE(InsertRecipe(*db, FullRecipe("Gone")));
    EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM RECIPE_GRAINS"), "0");
}

TEST_F(RecipeRows, FailWhenAnUpdateTouchesNoRow) {
    db->ExecuteNative("CREATE TRIGGER GONE AFTER UPDATE OF ABV ON RECIPES BEGIN DELETE FROM RECIPES; END");
    EXPECT_FALSE(InsertRecipe(*db, FullRecipe("Gone")));
    EXPECT_EQ(Cell(*db, "SELECT COUNT(*) FROM RECIPE_GRAINS"), "0");
}

TEST_F(RecipeRows, AreWrittenByTheDesignedStatements) {
    StoredRecipe recipe = FullRecipe("Baker's", 1);
    const auto seen = StatementsOf([&] { InsertRecipe(*db, recipe); });
    const std::vector<std::string> expected = {
        "INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID, CREATED_WHEN, MODIFIED_WHEN) VALUES ('Baker''s', 7, "
        "3, "
        "'01/31/2024 12:00:05', '02/29/2024 18:30:59')",
        "SELECT ID FROM RECIPES WHERE NAME = 'Baker''s'",
        "UPDATE RECIPES SET BV = '7 gal', BV_DATA = 7, TV = '5 1/2 gal', TV_DATA = 5.5, DILUTIONS = '1 qt', "
        "DILUTIONS_DATA = 0.25, FV = '5 gal', FV_DATA = 5, BG = '1.041', BG_DATA = 1.041234567890123, OG = "
        "'1.050', "
        "OG_DATA = 1.05, FG = '1.012', FG_DATA = 1.012 WHERE ID = 1",
        "UPDATE RECIPES SET ABV = '5.2% abv', COLOR = '9 SRM (14 HCU)', IBU = '34', NOTES = '007', "
        "NUMBATCHES = "
        "'1.050', GRAIN_EXTRACT = '72%', GRAIN_EXTRACT_DATA = 72, IBU_METHOD = 2, HOP_EXTRACT = '1.0', "
        "HOP_EXTRACT_DATA = 1, BOTTLED = TRUE, KEG_PSI = '12 psi', KEG_PSI_DATA = 12, KEG_VOLS = 2.5, "
        "TEMPERATURE = "
        "'68 F', TEMPERATURE_DATA = 68, CO2_VOLS = '2.45 volumes' WHERE ID = 1",
        "UPDATE RECIPES SET SRC_PROFILE_NAME = 'Home', SRC_CA = 40, SRC_CO3 = 120.5, SRC_CL = 20, SRC_MG = "
        "8, SRC_NA = "
        "15, SRC_SO4 = 30, TRG_PROFILE_NAME = 'Burton', TRG_CA = 268, TRG_CO3 = 200, TRG_CL = NULL, TRG_MG = "
        "62, "
        "TRG_NA = 0, TRG_SO4 = 638 WHERE ID = 1",
        "INSERT INTO RECIPE_GRAINS (GRAIN, RECIPE_ID, ROW_ID, NAME, AMOUNT, AMOUNT_DATA, PPG, PPG_DATA, "
        "COLOR, "
        "COLOR_DATA) VALUES (TRUE, 1, 0, 'Pale malt 0', '8 lb 4 oz', 8.25, '36.5', 36.5, '2.2', 2.2)",
        "INSERT INTO RECIPE_GRAINS (GRAIN, RECIPE_ID, ROW_ID, NAME, AMOUNT, AMOUNT_DATA, PPG, PPG_DATA, "
        "COLOR, "
        "COLOR_DATA) VALUES (FALSE, 1, 0, 'Light extract 0', '1 lb', 1, '44', 44, '5', 5)",
        "INSERT INTO RECIPE_HOPS (RECIPE_ID, ROW_ID, NAME, HOP_FORM, HOP_SOCK, AMOUNT, AMOUNT_DATA, AA, "
        "AA_DATA, "
        "DURATION, DURATION_DATA, DRY) VALUES (1, 0, 'Goldings 0', 2, TRUE, '1 1/2 oz', 1.5, '5.2%', 5.2, "
        "'60 min', "
        "60, FALSE)",
        "INSERT INTO RECIPE_SALTS (RECIPE_ID, ROW_ID, NAME, AMOUNT, AMOUNT_DATA, CA, CO3, CL, MG, NA, SO4) "
        "VALUES (1, "
        "0, 'Gypsum 0', '3.125 grams', 3.125, 61.5, 0, 0.1, 2, 3, 147.4)",
        "INSERT INTO RECIPE_SUGARS (RECIPE_ID, ROW_ID, NAME, FERMENT, FERMENT_DATA, AMOUNT, AMOUNT_DATA) "
        "VALUES (1, 0, "
        "'Corn sugar 0', '100%', 100, '4 oz', 4)",
        "INSERT INTO RECIPE_ADJUNCTS (RECIPE_ID, ROW_ID, NAME, AMOUNT, DURATION, WHEN) VALUES (1, 0, 'Irish "
        "moss 0', "
        "'1 tsp', '15 min', 'Boil')",
        "INSERT INTO RECIPE_LOG (RECIPE_ID, ROW_ID, LOGDATE, ACTION, NOTES) VALUES (1, 0, '02/28/2024', "
        "'Pitched "
        "Yeast', 'London ale 0')",
    };
    EXPECT_EQ(seen, expected);
}

TEST_F(RecipeRows, TellTheirIdBeforeTheyAreFilled) {
    std::vector<std::int64_t> told;
    const auto id = InsertRecipe(*db, FullRecipe("Mild"), [&](std::int64_t row) {
        told.push_back(row);
        EXPECT_EQ(Select(*db, "SELECT ID, OG FROM RECIPES"), (Rows{{"1", "NULL"}}));
    });
    EXPECT_EQ(id, 1);
    EXPECT_EQ(told, std::vector<std::int64_t>{1});
    EXPECT_EQ(RecipeId(*db, " mild "), 1);
    EXPECT_EQ(RecipeId(*db, "Stout"), std::nullopt);
}

TEST_F(RecipeRows, AreReadByTheDesignedStatements) {
    InsertRecipe(*db, FullRecipe("Baker's"));
    const auto seen = StatementsOf([&] { ReadRecipe(*db, "Baker's"); });
    const std::vector<std::string> expected = {
        "SELECT * FROM RECIPES WHERE NAME='Baker''s'",
        "SELECT * FROM RECIPE_GRAINS WHERE RECIPE_ID = 1 AND GRAIN ORDER BY ROW_ID DESC",
        "SELECT * FROM RECIPE_GRAINS WHERE RECIPE_ID = 1 AND NOT GRAIN ORDER BY ROW_ID DESC",
        "SELECT * FROM RECIPE_HOPS WHERE RECIPE_ID = 1 ORDER BY ROW_ID DESC",
        "SELECT * FROM RECIPE_SALTS WHERE RECIPE_ID = 1 ORDER BY ROW_ID DESC",
        "SELECT * FROM RECIPE_SUGARS WHERE RECIPE_ID = 1 ORDER BY ROW_ID DESC",
        "SELECT * FROM RECIPE_ADJUNCTS WHERE RECIPE_ID = 1 ORDER BY ROW_ID DESC",
        "SELECT * FROM RECIPE_LOG WHERE RECIPE_ID = 1 ORDER BY ROW_ID DESC",
    };
    EXPECT_EQ(seen, expected);
}

}  // namespace
}  // namespace tw::test
