// Tests that a recipe's name is kept unchanged everywhere, whatever letters it has and however long it is.
#include "ShellTest.h"
#include "tree/RecipeFinder.h"
#include "tree/lvFiller.h"

namespace tw::test {
namespace {

Strings OddNames() {
    return {std::string(10000, 'x'),
            std::string(9999, '\'') + "!",
            "say \"x\" to Smith's; --",
            "tab\there, line\r\nbreak",
            "\x01\x1b\x7f",
            "\xD7\xA9\xD7\x9B\xD7\xA8 \xE2\x80\xAE"
            "drawkcab",
            "\xFF\xFE broken",
            "R:1:0",
            "%_*[a]"};
}

class OddNamesTest : public ShellTest {
  protected:
    // Returns the first column of the list of a node's contents.
    Strings List(std::string_view key) {
        ListTable list;
        lvFiller::SetUpExplorerColumns(list);
        lvFiller(*shell.DB(), shell.Opened()->data.tree).FillByKey(list, key, true);
        Strings names;
        for (const ListRow& row : list.Rows()) names.push_back(row.cells[0]);
        return names;
    }
};

TEST_F(OddNamesTest, KeepTheirLettersFromSavingToOpening) {
    const std::int64_t folder = shell.Opened()->data.objects.CreateRecipeFolder(0, "Odd", Asking::Quietly);
    const std::string folderKey = "F:" + std::to_string(folder);
    RecipeFinder finder(*shell.DB());
    for (const std::string& name : OddNames()) {
        shell.Documents().Remove(NewSaved(name));
        EXPECT_EQ(List("F:0"), (Strings{"Odd", name}));
        const std::string key = "R:" + std::to_string(shell.Opened()->data.objects.IdByName(name, "RECIPES"));
        EXPECT_TRUE(shell.Opened()->data.objects.MoveObject(key + ":3", folderKey));
        EXPECT_EQ(List(folderKey), Strings{name});
        ASSERT_EQ(finder.Find(name.substr(0, name.find_first_of(" \t"))).size(), 1U);
        EXPECT_EQ(finder.Find("")[0].name, name);

        shell.Opened()->recipes.OpenByName(name);
        ASSERT_NE(shell.Documents().Active(), nullptr);
        RecipeDocument& document = *shell.Documents().Active();
        EXPECT_EQ(document.BeerName(), name);
        document.Fields().SetText(document.Record().txtNotes, "changed");
        EXPECT_TRUE(shell.Opened()->saver.Save(document));
        EXPECT_EQ(RecipeNames(*shell.DB()), Strings{name});

        const std::string saved =
            "R:" + std::to_string(shell.Opened()->data.objects.IdByName(name, "RECIPES"));
        EXPECT_TRUE(shell.Opened()->data.objects.RenameObject(saved + ":0", name + "2"));
        EXPECT_EQ(document.BeerName(), name + "2");
        EXPECT_EQ(List("F:-1"), Strings{name + "2"});
        shell.Documents().Remove(document);
        shell.Opened()->services.DeleteRecipe(name + "2");
        EXPECT_EQ(List(folderKey), Strings{});
    }
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(OddNamesTest, OfRowsWithoutANameCanBeListedRenamedAndDeleted) {
    shell.DB()->Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (NULL, 0, 0)");
    shell.DB()->Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (NULL, 0, 0)");
    shell.Opened()->data.objects.AddRecipeNodes(1, "", 0, 0);
    shell.Opened()->data.objects.AddRecipeNodes(2, "", 0, 0);
    EXPECT_EQ(List("F:0"), (Strings{"  ", "  "}));
    EXPECT_TRUE(shell.Opened()->data.objects.RenameObject("R:2:0", "Found"));
    EXPECT_EQ(List("F:0"), (Strings{"  ", "Found"}));
    shell.Opened()->data.objects.DeleteObject("R:1:3");
    EXPECT_EQ(List("F:0"), Strings{"Found"});
    shell.Opened()->recipes.OpenByName("Found");
    EXPECT_EQ(Captions(), Strings{"Found"});
    EXPECT_EQ(outside.messages.log, Strings{});
}

}  // namespace
}  // namespace tw::test
