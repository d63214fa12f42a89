// Tests of the console's commands on carried data. A script cannot create any without a file of another
// program, so the database is filled here.
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

#include "cli/Console.h"
#include "store/CarriedData.h"
#include "store/RecipeRows.h"
#include "store/Schema.h"

namespace tw {
namespace {

class CarriedCommand : public testing::Test {
  protected:
    CarriedCommand() {
        std::filesystem::remove(path_);
        const auto database = Database::CreateDatabase(path_, "");
        CreateSchema(*database);
        for (const char* name : {"Mild", "Stout"}) {
            StoredRecipe recipe;
            recipe.name = name;
            recipe.folderId = 0;
            recipe.createdWhen = DateTime{2026, 5, 4, 9, 30, 5};
            InsertRecipe(*database, recipe);
        }
        CarriedData carried(*database);
        carried.Keep(1, kCarriedBeerXml, "old\\tmild.xml", {2026, 5, 4, 9, 30, 5},
                     "<RECIPE><NAME>Mild</NAME><MASH><NAME>One step</NAME><PH>5.4</PH></MASH>"
                     "<NOTES>two\nlines</NOTES></RECIPE>");
        carried.Keep(1, kCarriedBeerJson, "new.json", {2026, 6, 1, 0, 0, 0},
                     R"({"name": "Mild", "batch_size": {"value": 20, "unit": "l"}})");
    }
    ~CarriedCommand() override { std::filesystem::remove(path_); }

    std::string Run(const std::string& text) {
        MemorySettings settings;
        std::ostringstream out;
        std::ostringstream errors;
        Console console(path_, settings, out, errors);
        std::istringstream script(text);
        EXPECT_EQ(console.Run(script, "s.tws"), ExitStatus::Done) << errors.str();
        console.End();
        return out.str();
    }

  private:
    const std::string path_ =
        (std::filesystem::path(testing::TempDir()) /
         ("tunwright_carried_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) +
          ".mdb"))
            .string();
};

TEST_F(CarriedCommand, PrintsTheTreeOfEachFragmentTheNewestFirst) {
    EXPECT_EQ(Run("carried mild\n"),
              "beerjson\tnew.json\t06/01/2026 00:00:00\n"
              "recipe: Mild\n"
              "  name: Mild\n"
              "  batch_size: 20 l\n"
              "beerxml\told\\\\tmild.xml\t05/04/2026 09:30:05\n"
              "RECIPE: Mild\n"
              "  NAME: Mild\n"
              "  MASH: One step\n"
              "    NAME: One step\n"
              "    PH: 5.4\n"
              "  NOTES: two\\nlines\n");
    EXPECT_EQ(Run("carried Stout\n"), "");
}

TEST_F(CarriedCommand, FollowsTheRecipe) {
    const std::string first = "beerjson\tnew.json\t06/01/2026 00:00:00\n";
    const auto head = [&](const std::string& text) { return Run(text).substr(0, first.size()); };
    EXPECT_EQ(head("open Mild\nsave\nsaveas 0 Second\ncarried Second\n"), first);
    EXPECT_EQ(head("rename R:3:0 Third\ncarried Third\n"), first);
    EXPECT_EQ(Run("remove R:3:0\nsql SELECT COUNT(*) FROM CARRIED\n"), "2\n");
}

TEST_F(CarriedCommand, TheMenuItemShowsAndDropsIt) {
    EXPECT_EQ(Run("open Stout\nstate mnuFileCarried\nopen Mild\nstate mnuFileCarried\nactivate Stout\n"
                  "state mnuFileCarried\nactivate Mild\nstate mnuFileCarried\n"
                  "dialogs on\nanswer treeFields=MASH; Close\nmenu mnuFileCarried\n"),
              "Carried &Data...\toff\nCarried &Data...\ton\nCarried &Data...\toff\nCarried &Data...\ton\n"
              "{frmCarriedData} lblSource=From new.json, imported 6/1/2026; treeFields=recipe: Mild\n");
    const std::string question =
        "[Carried Data] Drop the carried data of 'Mild'?\\r\\nAn export can then no longer give these fields "
        "back. ";
    EXPECT_EQ(Run("open Mild\nanswer cmdDrop\nanswer No\nanswer Close\nmenu mnuFileCarried\nstate "
                  "mnuFileCarried\n"),
              question + "-> No\nCarried &Data...\ton\n");
    EXPECT_EQ(Run("open Mild\nanswer cmdDrop\nanswer Yes\nmenu mnuFileCarried\nstate mnuFileCarried\ncarried "
                  "Mild\n"),
              question + "-> Yes\nCarried &Data...\toff\n");
}

// An import replaces the stored recipe of the open window.
TEST_F(CarriedCommand, TheMenuItemFollowsAnImport) {
    const std::string file = testing::TempDir() + "tunwright_carried_command.TWR";
    EXPECT_EQ(
        Run("export new " + file + " Mild\nopen Mild\nstate mnuFileCarried\nanswer cmdOverwrite\nimport 0 " +
            file + "\nstate mnuFileCarried\ncarried Mild\n"),
        "Carried &Data...\ton\nCarried &Data...\toff\n");
    std::filesystem::remove(file);
}

TEST_F(CarriedCommand, TheMenuItemFollowsTheActiveRecipe) {
    const std::string on = "Carried &Data...\ton\n", off = "Carried &Data...\toff\n";
    const std::string state = "state mnuFileCarried\n";
    EXPECT_EQ(
        Run("open Mild\nset txtName Dark\nsave\n" + state + "saveas 0 Copy\n" + state + "close\n" + state),
        on + on + off);
    EXPECT_EQ(Run("open Dark\nset txtName X\n" + state + "remove R:3:0\n" + state), on + off);
}

}  // namespace
}  // namespace tw
