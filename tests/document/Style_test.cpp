#include <gmock/gmock.h>

#include "DocumentTest.h"
#include "support/OtherNames.h"

namespace tw::test {
namespace {

using testing::ElementsAre;

class StyleTest : public DocumentTest {
  protected:
    StyleTest() { New(); }
    Log Labels() {
        Log labels;
        for (const Label* label : R().Labels()) labels.push_back(label->Text());
        return labels;
    }
    Log Target() {
        Log target;
        for (int col = 1; col < 8; ++col) target.push_back(R().gridWater.Text(WaterRow::Target, col));
        return target;
    }
};

TEST_F(StyleTest, ListsTheStylesByNameBehindNone) {
    Log names;
    for (const ListBox::Entry& entry : R().cmbStyle.Entries()) names.push_back(entry.text);
    EXPECT_THAT(names, ElementsAre("(None)", "Half Open", "Lager", "Odd Water", "Stout"));
    EXPECT_EQ(R().cmbStyle.Selected(), 0);
    EXPECT_EQ(R().cmbStyle.Entries()[0].itemData, 0);
    EXPECT_EQ(R().cmbStyle.Entries()[4].itemData, kStout);
}

TEST_F(StyleTest, IsFoundByAnotherNameAndByItsCode) {
    EXPECT_FALSE(document->Style().ChangeStyle("Dry Stout"));
    AddOtherNames(*database);
    AddAlias(*database, CatalogueKind::Style, "Dry Stout", "Stout");
    AddFacts(*database, CatalogueKind::Style, "Lager", "1B", "Beer 2021");
    EXPECT_TRUE(document->Style().ChangeStyle("dry stout"));
    EXPECT_EQ(R().cmbStyle.Text(), "Stout");
    EXPECT_TRUE(document->Style().ChangeStyle("1b"));
    EXPECT_EQ(R().cmbStyle.Text(), "Lager");
    EXPECT_FALSE(document->Style().ChangeStyle("9Z"));
    EXPECT_EQ(R().cmbStyle.Text(), "Lager");
}

TEST_F(StyleTest, ShowsItsRanges) {
    ASSERT_TRUE(document->Style().ChangeStyle(" STOUT "));
    EXPECT_EQ(document->StyleID(), kStout);
    EXPECT_EQ(document->BeerStyle(), "Stout");
    // This style has no limits for the final gravity.
    EXPECT_THAT(Labels(),
                ElementsAre("1.035 - 1.050", "", "3.2 - 5.5 abv", "35 - 200 SRM", "30 - 50", "2.0 - 2.5"));
    document->Style().ChangeStyle("Lager");
    EXPECT_THAT(Labels(), ElementsAre("1.045", "1.010", "5.0 abv", "4 SRM", "20", "2.5"));
    document->Style().ChangeStyle("Half Open");
    EXPECT_THAT(Labels(), ElementsAre(">= 1.050", "<= 1.012", ">= 6.0 abv", "<= 12 SRM", ">= 26", "<= 2.8"));
    document->Style().Select(0);
    EXPECT_THAT(Labels(), ElementsAre("", "", "", "", "", ""));
}

TEST_F(StyleTest, BringsItsWater) {
    Put(R().gridWater, 1, WaterCol::Profile, "Soft");
    document->Style().ChangeStyle("Stout");
    EXPECT_THAT(Target(), ElementsAre("Burton", "275", "270", "35", "40", "0", "610"));
    EXPECT_EQ(R().gridWater.Text(WaterRow::Needed, 2), "268");
    EXPECT_TRUE(document->Changed());
    EXPECT_TRUE(host.IsOn("EnableSave"));
    // A profile that the catalogue lacks leaves the ions unchanged.
    document->Style().ChangeStyle("Odd Water");
    EXPECT_THAT(Target(), ElementsAre("No Such Water", "275", "270", "35", "40", "0", "610"));
    // A style without a profile, and no style, clear the row; the row "needed" is updated.
    document->Style().ChangeStyle("Lager");
    EXPECT_THAT(Target(), ElementsAre("", "", "", "", "", "", ""));
    EXPECT_EQ(R().gridWater.Text(WaterRow::Needed, 2), "-7");
    document->Style().ChangeStyle("Stout");
    document->Style().ChangeStyle("(None)");
    EXPECT_THAT(Target(), ElementsAre("", "", "", "", "", "", ""));
    EXPECT_EQ(R().gridWater.Text(WaterRow::Needed, 2), "-7");
}

TEST_F(StyleTest, ChoosingTheSameOneIsNoEdit) {
    document->Style().ChangeStyle("Stout");
    SaveAs("A");
    document->Style().ChangeStyle("stout");
    document->Style().Select(R().cmbStyle.Selected());
    document->Style().Select(-1);
    document->Style().Select(99);
    EXPECT_FALSE(document->Style().ChangeStyle("Porter"));
    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(document->StyleID(), kStout);
}

TEST_F(StyleTest, SettingTheIdIsNoEditAndLeavesTheWater) {
    document->Style().SetId(kStout);
    EXPECT_EQ(document->BeerStyle(), "Stout");
    EXPECT_EQ(Labels()[0], "1.035 - 1.050");
    EXPECT_THAT(Target(), ElementsAre("", "", "", "", "", "", ""));
    document->Style().SetId(99);
    EXPECT_EQ(document->StyleID(), 0);
    EXPECT_EQ(document->BeerStyle(), "(None)");
    EXPECT_EQ(Labels()[0], "");
    EXPECT_FALSE(document->Changed());
}

TEST_F(StyleTest, TheListFollowsTheCatalogue) {
    document->Style().ChangeStyle("Stout");
    database->Execute("UPDATE STYLES SET NAME = 'Zwickel' WHERE ID = 2");
    database->Execute("INSERT INTO STYLES (ID, NAME) VALUES (9, 'Alt')");
    document->Notices().DBChanged();
    EXPECT_EQ(R().cmbStyle.Entries().size(), 6u);
    EXPECT_EQ(R().cmbStyle.Entries()[1].text, "Alt");
    EXPECT_EQ(R().cmbStyle.Entries()[5].text, "Zwickel");
    EXPECT_EQ(document->BeerStyle(), "Stout");
    EXPECT_EQ(document->StyleID(), kStout);
}

// The list is read again before a style is chosen by name, but not before one is chosen by row.
TEST_F(StyleTest, AStyleThatIsGoneCannotBeChosen) {
    document->Style().ChangeStyle("Stout");
    const int lager = R().cmbStyle.IndexOf(kLager);
    database->Execute("DELETE FROM STYLES WHERE ID = 2");
    EXPECT_FALSE(document->Style().ChangeStyle("Lager"));
    EXPECT_EQ(document->BeerStyle(), "Stout");
    database->Execute("INSERT INTO STYLES (ID, NAME) VALUES (2, 'Lager')");
    document->Notices().DBChanged();
    database->Execute("DELETE FROM STYLES WHERE ID = 2");
    document->Style().Select(lager);
    EXPECT_EQ(document->StyleID(), 0);
    EXPECT_EQ(document->BeerStyle(), "(None)");
    EXPECT_EQ(R().cmbStyle.IndexOf(kLager), -1);
    EXPECT_THAT(Labels(), ElementsAre("", "", "", "", "", ""));
}

// Even if another program has given a recipe and a style the style id 0, the recipe has no style.
TEST_F(StyleTest, NoneIsNotTheStyleOfNumberZero) {
    database->Execute("INSERT INTO STYLES (ID, NAME, OG_LO) VALUES (0, 'Zero', 1.08)");
    document->Style().SetId(0);
    EXPECT_EQ(document->BeerStyle(), "(None)");
    EXPECT_EQ(Labels()[0], "");
}

class NoticesTest : public DocumentTest {
  protected:
    NoticesTest() {
        New();
        document->Style().ChangeStyle("Stout");
        SaveAs("Old Ale");
        document->SetFolderID(7);
        host.log.clear();
    }
};

TEST_F(NoticesTest, AMoveIsFollowedByNameWithoutRegardToCase) {
    document->Notices().NotifyRecipeMoved(" OLD ale ", 12);
    EXPECT_EQ(document->FolderID(), 12);
    document->Notices().NotifyRecipeMoved("Other", 13);
    EXPECT_EQ(document->FolderID(), 12);
    EXPECT_FALSE(document->Changed());
}

TEST_F(NoticesTest, ANewStyleIsShownAndNoEdit) {
    document->Notices().NotifyRecipeNewStyle("Other", kLager);
    EXPECT_EQ(document->StyleID(), kStout);
    document->Notices().NotifyRecipeNewStyle("old ale", kLager);
    EXPECT_EQ(document->StyleID(), kLager);
    EXPECT_EQ(R().lblOGStyle.Text(), "1.045");
    EXPECT_FALSE(document->Changed());
}

TEST_F(NoticesTest, ARenameTakesTheNameUnlessTheBrewerEditedIt) {
    document->Notices().NotifyRecipeRenamed("Other", "X");
    EXPECT_EQ(document->OrigName(), "Old Ale");
    document->Notices().NotifyRecipeRenamed(" old ALE", " Older Ale ");
    EXPECT_EQ(document->OrigName(), "Older Ale");
    EXPECT_EQ(document->BeerName(), "Older Ale");
    EXPECT_EQ(document->Caption(), "Older Ale");
    EXPECT_FALSE(document->Changed());
    document->Fields().SetText(R().txtName, "My Ale");
    document->Notices().NotifyRecipeRenamed("Older Ale", "Oldest Ale");
    EXPECT_EQ(document->OrigName(), "Oldest Ale");
    EXPECT_EQ(document->BeerName(), "My Ale");
}

TEST_F(NoticesTest, ARenamedStyleShowsItsNewName) {
    database->Execute("UPDATE STYLES SET NAME = 'Porter' WHERE ID = 1");
    document->Notices().NotifyStyleRenamed(kStout, "Porter");
    EXPECT_EQ(document->BeerStyle(), "Porter");
    EXPECT_EQ(document->StyleID(), kStout);
    EXPECT_FALSE(document->Changed());
}

// A document lists all styles, whatever its own style is.
TEST_F(NoticesTest, EveryChangeOfAStyleShowsInTheListOfEveryDocument) {
    const auto list = [&] {
        Log names;
        for (const ListBox::Entry& entry : R().cmbStyle.Entries()) names.push_back(entry.text);
        return names;
    };
    for (const char* style : {"Stout", "(None)"}) {
        ASSERT_TRUE(document->Style().ChangeStyle(style));
        SaveAs("Old Ale");
        database->Execute("UPDATE STYLES SET NAME = 'Pils' WHERE ID = 2");
        document->Notices().NotifyStyleRenamed(kLager, "Pils");
        EXPECT_THAT(list(), ElementsAre("(None)", "Half Open", "Odd Water", "Pils", "Stout"));
        database->Execute("DELETE FROM STYLES WHERE ID = 2");
        document->Notices().NotifyStyleDeleted(kLager);
        EXPECT_THAT(list(), ElementsAre("(None)", "Half Open", "Odd Water", "Stout"));
        EXPECT_EQ(document->BeerStyle(), style);
        EXPECT_FALSE(document->Changed());
        database->Execute("INSERT INTO STYLES (ID, NAME) VALUES (2, 'Lager')");
        document->Notices().DBChanged();
    }
}

TEST_F(NoticesTest, ADeletedStyleShowsNone) {
    document->Notices().NotifyStyleDeleted(kLager);
    EXPECT_EQ(document->StyleID(), kStout);
    database->Execute("DELETE FROM STYLES WHERE ID = 1");
    document->Notices().NotifyStyleDeleted(kStout);
    EXPECT_EQ(document->StyleID(), 0);
    EXPECT_EQ(document->BeerStyle(), "(None)");
    EXPECT_EQ(R().lblOGStyle.Text(), "");
    EXPECT_EQ(R().cmbStyle.Entries().size(), 4u);
    EXPECT_FALSE(document->Changed());
}

TEST_F(NoticesTest, ADeletedRecipeIsDetached) {
    document->Notices().NotifyRecipeDeleted("Other");
    EXPECT_FALSE(document->Changed());
    document->Notices().NotifyRecipeDeleted("OLD ALE ");
    EXPECT_TRUE(document->Changed());
    EXPECT_EQ(document->OrigName(), "");
    EXPECT_EQ(document->FolderID(), -1);
    EXPECT_EQ(document->BeerName(), "Old Ale");
    EXPECT_TRUE(host.IsOn("EnableSave"));
}

// A recipe from another program may have no name; an unsaved document, which has no name
// either, is not affected.
TEST_F(NoticesTest, ARecipeWithoutANameIsNoUnsavedDocument) {
    document->Notices().NotifyRecipeDeleted("Old Ale");
    ASSERT_EQ(document->OrigName(), "");
    document->Notices().NotifyRecipeMoved("", 12);
    EXPECT_EQ(document->FolderID(), -1);
    document->Notices().NotifyRecipeRenamed("", "Stray");
    EXPECT_EQ(document->OrigName(), "");
}

TEST_F(NoticesTest, ADeletedFolderDetachesItsRecipes) {
    document->Notices().NotifyRecipeFolderDeleted(8);
    EXPECT_FALSE(document->Changed());
    host.active = nullptr;
    document->Notices().NotifyRecipeFolderDeleted(7);
    EXPECT_TRUE(document->Changed());
    EXPECT_EQ(document->OrigName(), "");
    EXPECT_THAT(host.log, testing::Not(testing::Contains("EnableSave on")));
}

}  // namespace
}  // namespace tw::test
