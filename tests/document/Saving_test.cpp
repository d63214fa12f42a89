// Tests of saving a recipe: its questions, its order, and the state after a failure.
#include <gmock/gmock.h>

#include "DocumentTest.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class SavingTest : public DocumentTest {
  protected:
    bool Save(bool saveAs = false, bool silent = false) {
        return document->Storage().Save(saveAs ? SaveAs::Yes : SaveAs::No,
                                        silent ? Asking::Quietly : Asking::Aloud);
    }
    // Creates a document with some lines.
    void NewWithLines() {
        New();
        Put(R().gridGrain, 1, 0, "Pale Malt");
        Put(R().gridGrain, 1, 1, "8 lb");
        document->Lines().InsertRowForGrid(R().gridLog);
        Put(R().gridLog, 1, 2, "note");
    }
    void Rename(std::string_view name) { document->Fields().SetText(R().txtName, name); }
};

TEST_F(SavingTest, AFirstSaveMakesTheRecipe) {
    NewWithLines();
    Rename("  O'Hara's ");
    document->SetFolderID(0);
    host.log.clear();
    EXPECT_TRUE(Save());
    EXPECT_EQ(One("SELECT NAME FROM RECIPES"), "O'Hara's");
    EXPECT_EQ(One("SELECT CREATED_WHEN FROM RECIPES"), "03/09/2024 14:05:07");
    EXPECT_EQ(One("SELECT AMOUNT FROM RECIPE_GRAINS WHERE GRAIN"), "8 lb");
    EXPECT_EQ(One("SELECT AMOUNT_DATA FROM RECIPE_GRAINS WHERE GRAIN"), "8");
    // Blank rows are stored too.
    EXPECT_EQ(Count("RECIPE_GRAINS"), 2);
    EXPECT_EQ(Count("RECIPE_HOPS"), 1);
    EXPECT_EQ(Count("RECIPE_SUGARS"), 1);
    EXPECT_EQ(Count("RECIPE_LOG"), 1);
    EXPECT_EQ(document->OrigName(), "O'Hara's");
    EXPECT_FALSE(document->Changed());
    EXPECT_FALSE(host.IsOn("EnableSave"));
    EXPECT_THAT(host.log, Contains("AddToMRU O'Hara's"));
    EXPECT_THAT(host.log, Contains("RecipeStored O'Hara's"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SavingTest, EverySaveIsANewRowOfTheSameDay) {
    NewWithLines();
    Rename("A");
    Save();
    const std::string id = One("SELECT ID FROM RECIPES");
    platform.clock.now.day = 20;
    Set(R().txtTotalVol, "5");
    EXPECT_TRUE(Save());
    EXPECT_NE(One("SELECT ID FROM RECIPES"), id);
    EXPECT_EQ(One("SELECT CREATED_WHEN FROM RECIPES"), "03/09/2024 14:05:07");
    EXPECT_EQ(One("SELECT MODIFIED_WHEN FROM RECIPES"), "03/20/2024 14:05:07");
    EXPECT_EQ(Count("RECIPES"), 1);
    EXPECT_EQ(Count("RECIPE_GRAINS"), 2);
    // Deleting a recipe leaves its sugars in the database.
    EXPECT_EQ(Count("RECIPE_SUGARS"), 2);
    // A recipe that is opened and saved again keeps its date of creation.
    Open("a");
    platform.clock.now.day = 21;
    EXPECT_TRUE(Save());
    EXPECT_EQ(One("SELECT CREATED_WHEN FROM RECIPES"), "03/09/2024 14:05:07");
    EXPECT_EQ(One("SELECT MODIFIED_WHEN FROM RECIPES"), "03/21/2024 14:05:07");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SavingTest, AnEditedNameRenamesTheRecipe) {
    NewWithLines();
    Rename("A");
    Save();
    Rename("B");
    EXPECT_TRUE(Save());
    EXPECT_EQ(Count("RECIPES"), 1);
    EXPECT_EQ(One("SELECT NAME FROM RECIPES"), "B");
    EXPECT_EQ(document->OrigName(), "B");
    EXPECT_THAT(Boxes(), IsEmpty());
    // A name that differs only in case or outer blanks is the same name.
    Rename(" b ");
    EXPECT_TRUE(Save());
    EXPECT_EQ(One("SELECT NAME FROM RECIPES"), "b");
    EXPECT_EQ(Count("RECIPES"), 1);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SavingTest, SavingUnderAnotherNameMakesACopy) {
    NewWithLines();
    Rename("A");
    Save();
    platform.clock.now.day = 20;
    EXPECT_TRUE(document->Storage().SaveUnder("B", 5, Asking::Aloud));
    EXPECT_EQ(Count("RECIPES"), 2);
    EXPECT_EQ(One("SELECT CREATED_WHEN FROM RECIPES WHERE NAME = 'B'"), "03/20/2024 14:05:07");
    EXPECT_EQ(One("SELECT FOLDER_ID FROM RECIPES WHERE NAME = 'B'"), "5");
    EXPECT_EQ(document->OrigName(), "B");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SavingTest, SavingAsItselfAsks) {
    NewWithLines();
    Rename("A");
    Save();
    Put(R().gridGrain, 1, 1, "9 lb");
    EXPECT_FALSE(document->Storage().SaveUnder("A", 0, Asking::Aloud));
    EXPECT_THAT(Boxes(),
                ElementsAre("[Overwrite existing recipe?] Another recipe named 'A' already exists.\r\n"
                            "Overwrite it? -> No"));
    EXPECT_EQ(One("SELECT AMOUNT FROM RECIPE_GRAINS WHERE GRAIN"), "8 lb");
    platform.clock.now.day = 20;
    platform.messages.answers = {Answer::Yes};
    EXPECT_TRUE(document->Storage().SaveUnder("A", 0, Asking::Aloud));
    EXPECT_EQ(Count("RECIPES"), 1);
    EXPECT_EQ(One("SELECT CREATED_WHEN FROM RECIPES"), "03/20/2024 14:05:07");
    EXPECT_EQ(One("SELECT AMOUNT FROM RECIPE_GRAINS WHERE GRAIN"), "9 lb");
    EXPECT_EQ(document->OrigName(), "A");
    Boxes();
    EXPECT_TRUE(document->Storage().SaveUnder("a", 0, Asking::Quietly));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SavingTest, TheNameOfAnotherRecipeAsks) {
    New();
    SaveAs("It's Mine");
    RecipeDocument other(host, platform.platform, *database, colors, 1);
    other.Storage().Open("It's Mine");
    NewWithLines();
    host.documents = {&other, document.get()};
    Rename("Yours");
    Save();
    Rename("it's MINE ");
    host.log.clear();
    EXPECT_FALSE(Save());
    EXPECT_THAT(Boxes(),
                ElementsAre("[Overwrite existing recipe?] Another recipe named 'it's MINE' already exists."
                            "\r\nOverwrite it? -> No"));
    EXPECT_EQ(Count("RECIPES"), 2);
    EXPECT_TRUE(document->Changed());
    EXPECT_EQ(document->OrigName(), "Yours");
    EXPECT_THAT(host.log, IsEmpty());
    platform.messages.answers = {Answer::Yes};
    EXPECT_TRUE(Save());
    EXPECT_EQ(Count("RECIPES"), 1);
    EXPECT_EQ(One("SELECT NAME FROM RECIPES"), "it's MINE");
    // The other window stays open as an unsaved recipe. The document that was saved is not
    // affected by its own notice.
    EXPECT_EQ(other.OrigName(), "");
    EXPECT_TRUE(other.Changed());
    EXPECT_EQ(document->OrigName(), "it's MINE");
    EXPECT_FALSE(document->Changed());
}

TEST_F(SavingTest, ASilentSaveAsksNothing) {
    New();
    SaveAs("A");
    NewWithLines();
    Rename("A");
    EXPECT_TRUE(Save(false, true));
    EXPECT_EQ(Count("RECIPES"), 1);
    EXPECT_EQ(One("SELECT AMOUNT FROM RECIPE_GRAINS WHERE GRAIN"), "8 lb");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SavingTest, OrphanedLinesNeverComeToANewRecipe) {
    NewWithLines();
    document->Lines().InsertRowForGrid(R().gridTreatment);
    Put(R().gridTreatment, 1, 0, "Gypsum");
    Rename("A");
    Save();
    host.DeleteRecipe("A");
    EXPECT_EQ(Count("RECIPE_SALTS"), 1);
    New();
    SaveAs("B");
    Open("B");
    EXPECT_EQ(R().gridTreatment.DataRows(), 0);
}

TEST_F(SavingTest, ADetachedRecipeIsSavedAnew) {
    NewWithLines();
    Rename("A");
    Save();
    host.DeleteRecipe("A");
    EXPECT_TRUE(document->Changed());
    EXPECT_EQ(Count("RECIPES"), 0);
    EXPECT_TRUE(Save());
    EXPECT_EQ(Count("RECIPES"), 1);
    EXPECT_THAT(Boxes(), IsEmpty());
}

// Makes each statement of a save fail in turn. The document must keep its changes and the texts of its
// window, and saving again afterwards must store everything, once.
TEST_F(SavingTest, AFailureAnywhereLosesNothingOfTheDocument) {
    int statements = 0;
    for (int failing = 0;; ++failing) {
        database = CreateMainDatabaseInMemory();
        FillCatalogue(*database);
        RecordingHost ownHost(*database, platform.clock);
        RecipeDocument own(ownHost, platform.platform, *database, colors, 1);
        ownHost.documents = {&own};
        ownHost.active = &own;
        bool ok = false;
        ok = own.Storage().SaveUnder("Old", 0, Asking::Quietly);
        own.Cells().EditCell(own.Record().gridGrain, 1, 1, "8 lb");
        own.Lines().InsertRowForGrid(own.Record().gridLog);
        own.Cells().EditCell(own.Record().gridLog, 1, 2, "note");
        own.Fields().SetText(own.Record().txtName, "New");
        int count = 0;
        bool failed = false;
        database->SetStatementHook([&](std::string_view) {
            if (count++ != failing) return;
            failed = true;
            throw Error("Database", "disk I/O error", 10);
        });
        try {
            ok = own.Storage().Save(SaveAs::No, Asking::Aloud);
        } catch (const Error& error) {
            EXPECT_EQ(error.WithNumber(), "disk I/O error (10)");
        }
        database->SetStatementHook({});
        if (!failed) {
            statements = count;
            break;
        }
        EXPECT_TRUE(own.Changed()) << failing;
        EXPECT_EQ(own.BeerName(), "New") << failing;
        EXPECT_EQ(own.Record().gridGrain.Text(1, 1), "8 lb") << failing;
        EXPECT_LE(Count("RECIPES"), 1) << failing;
        ok = own.Storage().Save(SaveAs::No, Asking::Quietly);
        EXPECT_TRUE(ok) << failing;
        EXPECT_FALSE(own.Changed()) << failing;
        EXPECT_EQ(Count("RECIPES"), 1) << failing;
        EXPECT_EQ(One("SELECT NAME FROM RECIPES"), "New") << failing;
        // Lines of the old recipe may remain, but no recipe has their id any more.
        const std::string ofRecipe = " WHERE RECIPE_ID = " + One("SELECT ID FROM RECIPES");
        EXPECT_EQ(Count("RECIPE_GRAINS" + ofRecipe), 2) << failing;
        EXPECT_EQ(One("SELECT NOTES FROM RECIPE_LOG" + ofRecipe), "note") << failing;
    }
    // The look-ups, the old row with its lines, the new row, its id, three updates, five lines, the folder.
    EXPECT_GE(statements, 15);
}

// What was done before a failure is not rolled back.
TEST_F(SavingTest, AFailureLeavesWhatWasDoneSoFar) {
    NewWithLines();
    Rename("A");
    Save();
    Put(R().gridGrain, 1, 1, "9 lb");
    const auto failAt = [&](std::string_view words) {
        database->SetStatementHook([words](std::string_view sql) {
            if (sql.starts_with(words)) throw Error("Database", "disk I/O error", 10);
        });
        EXPECT_THROW(Save(), Error) << words;
        database->SetStatementHook({});
    };
    failAt("INSERT INTO RECIPE_HOPS");
    EXPECT_EQ(Count("RECIPES"), 1);
    EXPECT_EQ(One("SELECT AMOUNT FROM RECIPE_GRAINS WHERE GRAIN"), "9 lb");
    EXPECT_EQ(Count("RECIPE_HOPS"), 0);
    failAt("INSERT INTO RECIPES");
    EXPECT_EQ(Count("RECIPES"), 0);
    EXPECT_EQ(Count("RECIPE_GRAINS"), 0);
    EXPECT_TRUE(document->Changed());
    EXPECT_EQ(document->OrigName(), "A");
    EXPECT_TRUE(Save());
    EXPECT_EQ(Count("RECIPE_GRAINS"), 2);
}

// An update that changes no row ends the save with a message. Save still returns true, since that depends
// only on the question about overwriting.
TEST_F(SavingTest, ARowThatCannotBeFoundAgainIsToldInABox) {
    NewWithLines();
    Rename("A");
    database->SetStatementHook([&](std::string_view sql) {
        if (!sql.starts_with("UPDATE RECIPES SET ABV")) return;
        database->ExecuteNative("DELETE FROM RECIPES");
    });
    const bool ok = document->Storage().Save(SaveAs::No, Asking::Aloud);
    database->SetStatementHook({});
    EXPECT_TRUE(ok);
    EXPECT_THAT(Boxes(), ElementsAre("[UNKNOWN ERROR] Error saving recipe to database!"));
    EXPECT_TRUE(document->Changed());
    EXPECT_EQ(document->OrigName(), "");
    EXPECT_EQ(Count("RECIPE_GRAINS"), 0);
    EXPECT_TRUE(Save());
    EXPECT_FALSE(document->Changed());
}

}  // namespace
}  // namespace tw::test
