// Tests that every open document is notified of changes to recipes and styles in the database,
// after the recent list.
#include "shell/ShellTest.h"

namespace tw::test {
namespace {

class Notices : public ShellTest {
  protected:
    void SetUp() override {
        ShellTest::SetUp();
        shell.DB()->Execute("INSERT INTO STYLES (ID, NAME, FOLDER_ID, OG_LO) VALUES (7, 'Stout', 0, 1.035)");
    }
    std::string Mru(std::size_t slot) { return shell.Recent().Captions().at(slot); }
    // Opens two windows of the same recipe: a name in another case opens a second one.
    void OpenTwice(const std::string& name, const std::string& other) {
        NewSaved(name);
        shell.Opened()->recipes.Load(other);
        ASSERT_EQ(shell.Documents().All().size(), 2u);
    }
};

TEST_F(Notices, AMovedRecipeTakesItsFolderInEveryWindow) {
    OpenTwice("Mild", "MILD");
    RecipeDocument& other = NewSaved("Porter");
    shell.Opened()->notices.NotifyRecipeMoved("mild ", 4);
    EXPECT_EQ(shell.Documents().All()[0]->FolderID(), 4);
    EXPECT_EQ(shell.Documents().All()[1]->FolderID(), 4);
    EXPECT_EQ(other.FolderID(), 0);
    EXPECT_FALSE(shell.Documents().All()[0]->Changed());
}

TEST_F(Notices, ANewStyleShowsInEveryWindowOfTheRecipe) {
    OpenTwice("Mild", "MILD");
    RecipeDocument& other = NewSaved("Porter");
    shell.Opened()->notices.NotifyRecipeNewStyle("MILD", 7);
    for (int i : {0, 1}) {
        EXPECT_EQ(shell.Documents().All()[static_cast<std::size_t>(i)]->StyleID(), 7);
        EXPECT_EQ(shell.Documents().All()[static_cast<std::size_t>(i)]->BeerStyle(), "Stout");
        EXPECT_FALSE(shell.Documents().All()[static_cast<std::size_t>(i)]->Changed());
    }
    EXPECT_EQ(other.StyleID(), 0);
}

TEST_F(Notices, ARenamedRecipeIsRenamedInTheRecentListFirst) {
    RecipeDocument& mild = NewSaved("Mild");
    NewSaved("Porter");
    std::string seen;
    class Watcher : public RecordObserver {
      public:
        explicit Watcher(std::function<void()> look) : look_(std::move(look)) {}
        void TextBoxChanged(const TextBox&) override { look_(); }

      private:
        std::function<void()> look_;
    } watcher([&] { seen = Mru(1); });
    mild.Record().SetObserver(&watcher);
    shell.Opened()->notices.NotifyRecipeRenamed("MILD", " Dark Mild ");
    mild.Record().SetObserver(nullptr);
    EXPECT_EQ(seen, "&2 Dark Mild");
    EXPECT_EQ(mild.OrigName(), "Dark Mild");
    EXPECT_EQ(mild.BeerName(), "Dark Mild");
    EXPECT_EQ(mild.Caption(), "Dark Mild");
    EXPECT_FALSE(mild.Changed());
    EXPECT_EQ(Mru(0), "&1 Porter");
}

TEST_F(Notices, ANameThatTheBrewerHasEditedStaysAndIsSavedOverTheRenamedRecipe) {
    RecipeDocument& mild = NewSaved("Mild");
    mild.Fields().SetText(mild.Record().txtName, "Best Mild");
    shell.DB()->Execute("UPDATE RECIPES SET NAME = 'Dark Mild'");
    shell.Opened()->notices.NotifyRecipeRenamed("Mild", "Dark Mild");
    EXPECT_EQ(mild.BeerName(), "Best Mild");
    EXPECT_TRUE(shell.Opened()->saver.Save(mild));
    EXPECT_EQ(RecipeNames(*shell.DB()), Strings{"Best Mild"});
    EXPECT_EQ(outside.messages.log, Strings{});
}

TEST_F(Notices, ARenamedStyleIsShownWithItsNewName) {
    RecipeDocument& mild = NewSaved("Mild");
    RecipeDocument& none = NewSaved("Porter");
    mild.Style().SetId(7);
    shell.DB()->Execute("UPDATE STYLES SET NAME = 'Dry Stout' WHERE ID = 7");
    shell.Opened()->notices.NotifyStyleRenamed(7, "Dry Stout");
    EXPECT_EQ(mild.BeerStyle(), "Dry Stout");
    EXPECT_EQ(mild.StyleID(), 7);
    EXPECT_EQ(none.BeerStyle(), "(None)");
    EXPECT_FALSE(mild.Changed());
}

TEST_F(Notices, ADeletedStyleLeavesNoneAndNoRanges) {
    RecipeDocument& mild = NewSaved("Mild");
    mild.Style().SetId(7);
    EXPECT_NE(mild.Record().lblOGStyle.Text(), "");
    shell.DB()->Execute("DELETE FROM STYLES WHERE ID = 7");
    shell.Opened()->notices.NotifyStyleDeleted(7);
    EXPECT_EQ(mild.StyleID(), 0);
    EXPECT_EQ(mild.BeerStyle(), "(None)");
    EXPECT_EQ(mild.Record().lblOGStyle.Text(), "");
    EXPECT_FALSE(mild.Changed());
}

// Changes styles by the operations of the explorer while one document has another style and one has none.
TEST_F(Notices, EveryDocumentListsTheStylesThatThereAre) {
    shell.DB()->Execute("INSERT INTO STYLES (ID, NAME, FOLDER_ID) VALUES (8, 'Porter', 0)");
    for (const char* style : {"Stout", "Porter"}) shell.Opened()->data.objects.AddStyleNodesByName(style);
    const std::int64_t dark = shell.Opened()->data.objects.CreateStyleFolder(0, "Dark", Asking::Quietly);
    RecipeDocument& stout = NewSaved("Mild");
    stout.Style().SetId(7);
    RecipeDocument& none = NewSaved("Bitter");
    const auto lists = [&] {
        Strings names;
        for (const RecipeDocument* document : {&stout, &none}) {
            std::string line;
            for (const ListBox::Entry& entry : document->Record().cmbStyle.Entries())
                line += entry.text + "; ";
            names.push_back(line);
        }
        return names;
    };
    ASSERT_TRUE(shell.Opened()->data.objects.RenameStyle(8, "Baltic Porter", Asking::Quietly));
    EXPECT_EQ(lists(), Strings(2, "(None); Baltic Porter; Stout; "));
    ASSERT_TRUE(shell.Opened()->data.objects.MoveStyleToFolder(8, dark, Asking::Quietly));
    shell.Opened()->data.objects.DeleteStyleFolder(dark);
    EXPECT_EQ(lists(), Strings(2, "(None); Stout; "));
    EXPECT_EQ(stout.BeerStyle(), "Stout");
    shell.Opened()->data.objects.DeleteStyleById(7);
    EXPECT_EQ(lists(), Strings(2, "(None); "));
    EXPECT_EQ(stout.BeerStyle() + none.BeerStyle(), "(None)(None)");
    EXPECT_FALSE(stout.Changed() || none.Changed());
}

TEST_F(Notices, ADeletedRecipeIsDetachedInEveryWindow) {
    OpenTwice("Mild", "MILD");
    shell.Opened()->notices.NotifyRecipeDeleted("mild");
    for (const auto& document : shell.Documents().All()) {
        EXPECT_EQ(document->FolderID(), -1);
        EXPECT_EQ(document->OrigName(), "");
        EXPECT_TRUE(document->Changed());
    }
    EXPECT_EQ(shell.Recent().Captions(), Strings{});
}

TEST_F(Notices, DeletingTheFolderDetachesAndClosingAsks) {
    RecipeDocument& mild = NewSaved("Mild");
    RecipeDocument& porter = NewSaved("Porter");
    shell.Opened()->notices.NotifyRecipeMoved("Mild", 4);
    shell.Opened()->notices.NotifyRecipeFolderDeleted(4);
    EXPECT_TRUE(mild.Changed());
    EXPECT_EQ(mild.FolderID(), -1);
    EXPECT_FALSE(porter.Changed());
    EXPECT_FALSE(shell.Opened()->saver.Close(mild));
    EXPECT_EQ(
        outside.messages.log,
        Strings{"[Unsaved Changes] Recipe 'Mild' has changed. Do you wish to save your changes? -> Cancel"});
    EXPECT_TRUE(shell.Opened()->saver.Close(porter));
}

TEST_F(Notices, WithoutADocumentTheyReachTheRecentListAlone) {
    shell.Recent().Add("Mild");
    shell.Opened()->notices.NotifyRecipeRenamed("Mild", "Bitter");
    EXPECT_EQ(shell.Recent().Captions(), Strings{"&1 Bitter"});
    shell.Opened()->notices.NotifyRecipeDeleted("BITTER ");
    EXPECT_EQ(shell.Recent().Captions(), Strings{});
}

}  // namespace
}  // namespace tw::test
