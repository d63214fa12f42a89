// Tests that a stored recipe is opened unchanged, and that missing columns do no harm.
#include <gmock/gmock.h>

#include "DocumentTest.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class OpeningTest : public DocumentTest {
  protected:
    // Stores a recipe "Full" with an entry in every field and grid.
    void SaveFullRecipe() {
        host.defaults = {"70", "1.1", "Soft", "6 gal", "5 gal", 1, 0, 1, true};
        host.appendRows = true;
        New();
        RecipeRecord& r = R();
        document->Style().ChangeStyle("Stout");
        Set(r.txtNumBatches, "2 or 3");
        Set(r.txtNotes, "line 1\r\nit's \"line\" 2\t%_?*[x]; DROP TABLE RECIPES;--\\ ä漢");
        Set(r.txtFinalVol, "5 1/2 gal");
        Set(r.txtDilutions, "2 qt");
        Set(r.txtFG, "3 P");
        Set(r.txtTemp, "20 C");
        for (Grid* grid : {&r.gridGrain, &r.gridExtract, &r.gridHops, &r.gridPriming})
            document->Lines().InsertRowForGrid(*grid);
        for (Grid* grid : {&r.gridTreatment, &r.gridAdjuncts, &r.gridLog})
            for (int i = 0; i < 2; ++i) document->Lines().InsertRowForGrid(*grid);
        for (Grid* grid : {&r.gridGrain, &r.gridExtract}) {
            Put(*grid, 1, 0, "O'Brien's");
            Put(*grid, 1, 1, "2 lb 3 oz");
            Put(*grid, 2, 0, "007");
            Put(*grid, 2, 1, "500 g");
            Put(*grid, 2, 2, "1.050");
            Put(*grid, 2, 4, "0.");
        }
        Put(r.gridHops, 1, 0, "Zeus");
        Put(r.gridHops, 1, 4, "4 1/2 AAUs");
        Put(r.gridHops, 1, 6, "1:30 H");
        Put(r.gridHops, 2, 0, "1.050");
        Put(r.gridHops, 2, 2, "Leaf");
        Put(r.gridHops, 2, 4, "12 ibu");
        document->Cells().SetChecked(r.gridHops, 2, 3, false);
        Put(r.gridPriming, 1, 0, "Honey");
        Put(r.gridPriming, 1, 2, "113 g");
        Put(r.gridPriming, 2, 0, "null");
        Put(r.gridTreatment, 1, 0, "Gypsum");
        Put(r.gridTreatment, 1, 1, "1/2 oz");
        Put(r.gridTreatment, 2, 0, "TRUE");
        Put(r.gridWater, 1, 3, "");
        Put(r.gridPressure, 1, 0, "1 atm");
        for (int col = 0; col < 4; ++col)
            Put(r.gridAdjuncts, 2, col, "it's \"" + std::to_string(col) + "\" 1e5");
        Put(r.gridLog, 1, 0, "03/09/2024 00:00:00");
        Put(r.gridLog, 1, 1, "Tasted");
        Put(r.gridLog, 2, 2, "0x10 -- a\r\nb");
        SaveAs("Full");
    }
    void EmptyStore() {
        for (const TableSchema& table : MainSchema())
            if (table.name.starts_with("RECIPE"))
                database->ExecuteNative("DELETE FROM " + std::string(table.name));
    }
    std::string RecipeId() { return One("SELECT ID FROM RECIPES WHERE NAME = 'Full'"); }
};

TEST_F(OpeningTest, ARecipeComesBackAsItWas) {
    SaveFullRecipe();
    const Log before = Shown();
    Open("fULL");
    EXPECT_EQ(Shown(), before);
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(document->OrigName(), "Full");
    EXPECT_EQ(document->StyleID(), kStout);
    EXPECT_EQ(document->FolderID(), 0);
    EXPECT_EQ(R().gridHops.At(1, HopCol::Amount).value.Text(), "A4.5");
    EXPECT_EQ(R().gridHops.At(2, HopCol::Amount).value.Text(), "I12");
    EXPECT_EQ(R().gridHops.Number(1, HopCol::Time), 90);
    EXPECT_EQ(R().txtTemp.Value(), 68);
    EXPECT_EQ(R().gridWater.Text(1, 3), "");
    for (const TextBox* box : R().TextBoxes()) {
        if (!box->Computed()) {
            EXPECT_EQ(box->Committed(), box->Text()) << box->Name();
        }
    }
    for (const Grid* grid : R().Grids())
        if (grid->RowsCanChange()) {
            EXPECT_EQ(grid->CurrentRow(), 1) << grid->Name();
            EXPECT_EQ(grid->CurrentCol(), 0) << grid->Name();
        }
}

TEST_F(OpeningTest, SavingItAgainWritesTheSameRows) {
    SaveFullRecipe();
    const auto dump = [&] {
        Log rows;
        const std::string id = RecipeId();
        for (const TableSchema& table : MainSchema()) {
            const std::string name(table.name);
            if (!name.starts_with("RECIPE")) continue;
            const std::string key = name == "RECIPES" ? "ID" : "RECIPE_ID";
            for (Recordset rs =
                     database->OpenRecordset("SELECT * FROM " + name + " WHERE " + key + " = " + id);
                 !rs.AtEnd(); rs.MoveNext()) {
                std::string row = name;
                for (int i = 0; i < rs.FieldCount(); ++i)
                    if (rs.FieldName(i) != key)
                        row.append("|").append(rs.Fields(i).IsNull() ? "NULL" : rs.Fields(i).Text());
                rows.push_back(row);
            }
        }
        return rows;
    };
    const Log before = dump();
    EXPECT_EQ(before.size(), 1u + 4 + 2 + 2 + 2 + 2 + 2);
    Open("Full");
    EXPECT_TRUE(document->Storage().Save(SaveAs::No, Asking::Aloud));
    EXPECT_EQ(dump(), before);
}

TEST_F(OpeningTest, BlankCellsStayBlankAndAreNotZero) {
    SaveFullRecipe();
    EXPECT_EQ(One("SELECT SRC_CO3 FROM RECIPES"), "NULL");
    EXPECT_EQ(One("SELECT SRC_CA FROM RECIPES"), "7");
    New();
    SaveAs("Blank");
    EXPECT_EQ(One("SELECT KEG_VOLS FROM RECIPES WHERE NAME = 'Blank'"), "NULL");
    EXPECT_EQ(One("SELECT KEG_PSI FROM RECIPES WHERE NAME = 'Blank'"), "");
    EXPECT_EQ(One("SELECT KEG_PSI_DATA FROM RECIPES WHERE NAME = 'Blank'"), "0");
    Open("Blank");
    EXPECT_EQ(R().gridPressure.Text(1, 0), "");
    EXPECT_EQ(R().gridPressure.Text(1, 1), "");
    EXPECT_EQ(R().gridWater.Text(2, 2), "");
}

// Hop amounts in AAUs and IBUs store 0 in the column of the number.
TEST_F(OpeningTest, ANumberColumnCannotHoldAaus) {
    SaveFullRecipe();
    EXPECT_EQ(One("SELECT AMOUNT_DATA FROM RECIPE_HOPS WHERE ROW_ID = 0"), "0");
    EXPECT_EQ(One("SELECT AMOUNT FROM RECIPE_HOPS WHERE ROW_ID = 0"), "4 1/2 AAUs");
    EXPECT_EQ(One("SELECT HOP_FORM FROM RECIPE_HOPS WHERE ROW_ID = 1"), "2");
}

TEST_F(OpeningTest, AnyNullLeavesTheRestWhole) {
    for (const TableSchema& table : MainSchema()) {
        const std::string name(table.name);
        if (!name.starts_with("RECIPE")) continue;
        for (const ColumnDef& column : table.columns) {
            const std::string col(column.name);
            if (col == "ID" || col == "NAME" || col == "RECIPE_ID") continue;
            EmptyStore();
            SaveFullRecipe();
            const std::string notes = R().txtNotes.Text();
            database->ExecuteNative("UPDATE " + name + " SET \"" + col + "\" = NULL");
            ASSERT_NO_THROW(Open("Full")) << name << "." << col;
            EXPECT_THAT(Boxes(), IsEmpty()) << name << "." << col;
            EXPECT_EQ(document->BeerName(), "Full");
            EXPECT_EQ(R().txtNotes.Text(), name + col == "RECIPESNOTES" ? "" : notes) << name << "." << col;
            EXPECT_FALSE(document->Changed());
            bool ok = false;
            ASSERT_NO_THROW(ok = document->Storage().Save(SaveAs::No, Asking::Quietly)) << name << "." << col;
            EXPECT_TRUE(ok);
        }
    }
}

TEST_F(OpeningTest, ANullFieldKeepsTheDefaultOfANewRecipe) {
    SaveFullRecipe();
    Set(R().txtBoilVol, "7 gal");
    Set(R().txtExtract, "75");
    Set(R().txtHopExtraction, "0.9");
    document->Options().Choose("optGaretz");
    document->Options().Choose("optKeg");
    EXPECT_TRUE(document->Storage().Save(SaveAs::No, Asking::Quietly));
    database->ExecuteNative(
        "UPDATE RECIPES SET BV = NULL, BV_DATA = NULL, GRAIN_EXTRACT = NULL, HOP_EXTRACT = NULL, "
        "HOP_EXTRACT_DATA = NULL, IBU_METHOD = NULL, BOTTLED = NULL, FOLDER_ID = NULL, STYLE_ID = NULL");
    Open("Full");
    EXPECT_EQ(R().txtBoilVol.Text(), "6 gal");
    EXPECT_EQ(R().txtBoilVol.Value(), 6);
    EXPECT_EQ(R().txtExtract.Text(), "70");
    EXPECT_EQ(R().txtHopExtraction.Text(), "1.1");
    EXPECT_EQ(R().grpIBUMethod.Value(), "optRager");
    EXPECT_EQ(R().grpPkgMethod.Value(), "optBottle");
    EXPECT_EQ(document->FolderID(), -1);
    EXPECT_EQ(document->StyleID(), 0);
}

TEST_F(OpeningTest, ANullCreationDayIsSetByTheNextSave) {
    SaveFullRecipe();
    database->ExecuteNative("UPDATE RECIPES SET CREATED_WHEN = NULL");
    Open("Full");
    platform.clock.now = {2025, 12, 31, 23, 59, 59};
    EXPECT_TRUE(document->Storage().Save(SaveAs::No, Asking::Aloud));
    EXPECT_EQ(One("SELECT CREATED_WHEN FROM RECIPES"), "12/31/2025 23:59:59");
}

TEST_F(OpeningTest, ANullHopFormIsTheFirstOne) {
    SaveFullRecipe();
    database->ExecuteNative("UPDATE RECIPE_HOPS SET HOP_FORM = NULL");
    Open("Full");
    EXPECT_EQ(R().gridHops.Text(1, HopCol::Form), "Pellet");
    EXPECT_EQ(R().gridHops.Number(2, HopCol::Form), 0);
}

TEST_F(OpeningTest, GapsInTheRowsAreBlankLines) {
    SaveFullRecipe();
    for (const char* table :
         {"RECIPE_GRAINS", "RECIPE_HOPS", "RECIPE_SALTS", "RECIPE_SUGARS", "RECIPE_ADJUNCTS", "RECIPE_LOG"})
        database->ExecuteNative("UPDATE " + std::string(table) + " SET ROW_ID = ROW_ID * 3 + 1");
    Open("Full");
    for (const Grid* grid : R().Grids())
        if (grid->RowsCanChange()) {
            EXPECT_EQ(grid->DataRows(), 5) << grid->Name();
        }
    EXPECT_EQ(R().gridGrain.Text(1, 0), "");
    EXPECT_EQ(R().gridGrain.Text(2, 0), "O'Brien's");
    EXPECT_EQ(R().gridGrain.Text(3, 0), "");
    EXPECT_EQ(R().gridGrain.Text(5, 0), "007");
    EXPECT_EQ(R().gridHops.Text(1, HopCol::Form), "Plug");  // a blank line is like a new row
    EXPECT_EQ(R().gridGrain.Text(6, 0), "Total");
    EXPECT_EQ(R().gridPriming.Text(7, 0), "Total");
    EXPECT_NE(R().txtOG.Text(), "");
}

TEST_F(OpeningTest, ImpossiblePlacesAndFormsAreAnError) {
    for (const char* damage :
         {"UPDATE RECIPE_GRAINS SET ROW_ID = -1", "UPDATE RECIPE_LOG SET ROW_ID = 2000000000",
          "UPDATE RECIPE_HOPS SET ROW_ID = 999999", "UPDATE RECIPE_HOPS SET HOP_FORM = 3",
          "UPDATE RECIPE_HOPS SET HOP_FORM = -1"}) {
        EmptyStore();
        SaveFullRecipe();
        database->ExecuteNative(damage);
        New();
        EXPECT_THROW(document->Storage().Open("Full"), Error) << damage;
    }
}

TEST_F(OpeningTest, AVanishedRecipeIsAnError) {
    New();
    EXPECT_THROW(document->Storage().Open("Gone"), Error);
    EXPECT_FALSE(document->Changed());
}

TEST_F(OpeningTest, ARecipeWithoutLinesKeepsTheFirstRows) {
    SaveFullRecipe();
    for (const char* table :
         {"RECIPE_GRAINS", "RECIPE_HOPS", "RECIPE_SALTS", "RECIPE_SUGARS", "RECIPE_ADJUNCTS", "RECIPE_LOG"})
        database->ExecuteNative("DELETE FROM " + std::string(table));
    Open("Full");
    EXPECT_EQ(R().gridGrain.DataRows(), 1);
    EXPECT_EQ(R().gridHops.Text(1, HopCol::Form), "Plug");
    EXPECT_EQ(R().gridTreatment.DataRows(), 0);
}

TEST_F(OpeningTest, TheStoredTextsOfTheFiguresCount) {
    SaveFullRecipe();
    database->ExecuteNative("UPDATE RECIPES SET ABV = 'about 5', OG = 'high', BG = 'higher'");
    Open("Full");
    EXPECT_EQ(R().txtABV.Text(), "about 5");
    EXPECT_EQ(R().txtOG.Text(), "high");
    EXPECT_EQ(R().txtBG.Text(), "higher");
}

TEST_F(OpeningTest, ANumberThatIsMissingOrZeroIsReadFromItsTextAgain) {
    for (const char* number : {"NULL", "0"}) {
        EmptyStore();
        SaveFullRecipe();
        document->Options().Choose("optKeg");
        EXPECT_TRUE(document->Storage().Save(SaveAs::No, Asking::Quietly));
        const Log before = Shown();
        for (const TableSchema& table : MainSchema())
            for (const ColumnDef& column : table.columns)
                // Figures are calculated from the gravities in full precision.
                if (column.name.ends_with("_DATA") && column.name != "OG_DATA" && column.name != "BG_DATA")
                    database->ExecuteNative("UPDATE " + std::string(table.name) + " SET " +
                                            std::string(column.name) + " = " + number);
        Open("Full");
        EXPECT_EQ(Shown(), before) << number;
        EXPECT_THAT(Boxes(), IsEmpty()) << number;
        EXPECT_EQ(R().txtBoilVol.Value(), 6);
        EXPECT_EQ(R().txtExtract.Value(), 70);
        EXPECT_EQ(R().txtHopExtraction.Value(), 1.1);
        EXPECT_EQ(R().txtTemp.Value(), 68);
        EXPECT_EQ(R().gridGrain.Number(1, GrainCol::Amount), 2.1875);
        EXPECT_EQ(R().gridHops.At(1, HopCol::Amount).value.Text(), "A4.5");
        EXPECT_EQ(R().gridHops.Number(1, HopCol::Time), 90);
        EXPECT_NEAR(R().gridPressure.Number(1, PressureCol::Pressure), 14.6959, 1e-4);
        EXPECT_FALSE(document->Changed());
    }
}

TEST_F(OpeningTest, TheGravitiesAreReadAgainToo) {
    SaveFullRecipe();
    const double og = R().txtOG.Value(), bg = R().txtBG.Value();
    ASSERT_GT(bg, 1.001);
    database->ExecuteNative("UPDATE RECIPES SET OG_DATA = NULL, BG_DATA = 0");
    Open("Full");
    EXPECT_NEAR(R().txtOG.Value(), og, 0.0005);
    EXPECT_NEAR(R().txtBG.Value(), bg, 0.0005);
}

// A multiplier without a text is 1. A number other than 0 takes precedence over a text
// that says something else.
TEST_F(OpeningTest, OnlyANumberThatSaysNothingGivesWayToItsText) {
    SaveFullRecipe();
    database->ExecuteNative(
        "UPDATE RECIPES SET HOP_EXTRACT = '', HOP_EXTRACT_DATA = 0, TV_DATA = 4, BV = '0 gal', BV_DATA = 0");
    database->ExecuteNative("UPDATE RECIPE_HOPS SET DRY = 1, DURATION = '60', DURATION_DATA = 0");
    Open("Full");
    EXPECT_EQ(R().txtHopExtraction.Value(), 1);
    EXPECT_EQ(R().txtTotalVol.Text(), "5 gal");
    EXPECT_EQ(R().txtTotalVol.Value(), 4);
    EXPECT_EQ(R().txtBoilVol.Value(), 0);
    // The time of dry hops is free text, without a number.
    EXPECT_EQ(R().gridHops.Number(1, HopCol::Time), 0);
}

TEST_F(OpeningTest, StoredBlanksAreNoQuantity) {
    SaveFullRecipe();
    database->ExecuteNative("UPDATE RECIPES SET TV = '  ', TV_DATA = 0");
    database->ExecuteNative("UPDATE RECIPE_GRAINS SET AMOUNT = ' ', AMOUNT_DATA = 0");
    Open("Full");
    EXPECT_EQ(R().txtTotalVol.Text() + R().txtTotalVol.Committed(), "");
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Amount), "");
    EXPECT_EQ(R().gridGrain.Text(1, GrainCol::Points), "");
    EXPECT_THAT(Boxes(), IsEmpty());
}

// Numbers for which the formulas fail: the recipe is opened, and one message names it and its fields.
TEST_F(OpeningTest, DamagedNumbersAreToldOnceAndDoNotKeepARecipeShut) {
    SaveFullRecipe();
    database->ExecuteNative("UPDATE RECIPES SET TV = 'much', TV_DATA = 0, FV = 'more', FV_DATA = 0");
    ASSERT_NO_THROW(Open("Full"));
    EXPECT_THAT(Boxes(),
                ElementsAre("[Error] The recipe 'Full' is open, but some of its stored numbers cannot be "
                            "used:\r\nTotal Volume; Final Volume.\r\nFigures that need them are not up to "
                            "date. Correct these entries, then save the recipe."));
    EXPECT_EQ(R().gridGrain.Text(1, 0), "O'Brien's");
    EXPECT_EQ(R().gridLog.Text(1, 1), "Tasted");
    EXPECT_EQ(document->OrigName(), "Full");
    EXPECT_FALSE(document->Changed());
}

TEST_F(OpeningTest, DamagedNumbersOfLinesAreNamedByTheirPlace) {
    SaveFullRecipe();
    database->ExecuteNative("UPDATE RECIPE_GRAINS SET AMOUNT_DATA = 1e300, PPG_DATA = 1e300 WHERE GRAIN");
    database->ExecuteNative("UPDATE RECIPE_SALTS SET AMOUNT_DATA = 1e308 WHERE ROW_ID = 0");
    database->ExecuteNative("UPDATE RECIPES SET SRC_CA = -1e308, TRG_CA = 1e308");
    Open("Full");
    const Log boxes = Boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_THAT(boxes[0],
                testing::HasSubstr("used:\r\nGrain row 1, Amount (lbs); Grain row 1, PPG; Grain row 2, "
                                   "Amount (lbs); Grain row 2, PPG; Source Water, Calcium (Ca); Target "
                                   "Water, Calcium (Ca); and 1 more.\r\n"));
}

// Salts have numbers that are not shown in any field.
TEST_F(OpeningTest, NumbersThatOnlyFailTogetherAreNamedByTheirFigure) {
    SaveFullRecipe();
    database->ExecuteNative("UPDATE RECIPE_SALTS SET CA = 1e308, AMOUNT_DATA = 1e6");
    Open("Full");
    const Log boxes = Boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_THAT(boxes[0], testing::HasSubstr("used:\r\nTreatment Totals.\r\n"));
}

TEST_F(OpeningTest, TellsTheProgramInOrder) {
    SaveFullRecipe();
    New();
    document->Storage().Open("full");
    EXPECT_EQ(host.log.back(), "AddToMRU Full");
    EXPECT_THAT(host.log, Contains("EnableSave off"));
    EXPECT_THAT(host.log, testing::Not(Contains("EnableSave on")));
    EXPECT_TRUE(host.IsOn("EnableResizeRecipe") && host.IsOn("EnableChangeStrength") &&
                host.IsOn("EnableChangeBitterness") && host.IsOn("EnableChangeCarbonation"));
}

}  // namespace
}  // namespace tw::test
