// Tests of converting an open recipe to a snapshot, to text and back: everything that a window shows is
// restored, and damage is detected.
#include "document/RecipeSnapshot.h"

#include <gmock/gmock.h>
#include <random>

#include "DocumentTest.h"

namespace tw::test {
namespace {

using testing::IsEmpty;

class SnapshotTest : public DocumentTest {
  protected:
    // Writes the document's snapshot as text and restores it in a new document, which becomes active.
    void ThroughText() {
        const std::string text = SnapshotText(document->Storage().TakeSnapshot());
        const std::optional<RecipeSnapshot> read = ReadSnapshot(text);
        ASSERT_TRUE(read.has_value());
        ASSERT_EQ(*read, document->Storage().TakeSnapshot());
        New().Storage().Restore(*read);
        host.log.clear();
    }
    void Fill() {
        database->Execute("INSERT INTO FOLDERS (ID, NAME, PARENT_ID, STYLE) VALUES (4, 'Dark', 0, FALSE)");
        New();
        Set(R().txtExtract, "70%");
        Set(R().txtTotalVol, "5.25 gal");
        Set(R().txtBoilVol, "6.5");
        Set(R().txtTemp, "68");
        Set(R().txtFG, "1.012");
        Put(R().gridGrain, 1, 0, "Pale Malt");
        Put(R().gridGrain, 1, 1, "9.75");
        Put(R().gridHops, 1, 0, "Zeus");
        Put(R().gridHops, 1, 4, "4 AAU");
        Put(R().gridHops, 1, 6, "60");
        document->Cells().SetChecked(R().gridHops, 1, HopCol::Sock, false);
        Put(R().gridPriming, 1, 0, "Corn Sugar");
        Put(R().gridPriming, 1, 2, "4 oz");
        Put(R().gridWater, 1, 1, "Soft");
        document->Focus().SetTab(Tab::Log);
        document->Lines().InsertRow();
        Put(R().gridLog, 1, 2, "pitched");
        document->Style().ChangeStyle("Stout");
        document->Options().Choose("optGaretz");
        document->Options().Choose("optKeg");
        ASSERT_TRUE(document->Storage().SaveUnder("Fill", 4, Asking::Quietly));
        Set(R().txtNotes, "after the save");
    }
};

TEST_F(SnapshotTest, EverythingShownComesBack) {
    Fill();
    const Log before = Shown();
    const std::string stored = One("SELECT NOTES FROM RECIPES");
    ThroughText();
    EXPECT_EQ(Shown(), before);
    EXPECT_TRUE(document->Changed());
    EXPECT_EQ(document->OrigName(), "Fill");
    EXPECT_EQ(document->FolderID(), 4);
    EXPECT_EQ(document->StyleID(), kStout);
    EXPECT_EQ(document->Caption(), "Fill");
    EXPECT_EQ(R().grpIBUMethod.Value(), "optGaretz");
    // The database is unchanged.
    EXPECT_EQ(One("SELECT NOTES FROM RECIPES"), stored);
    EXPECT_EQ(Count("RECIPES"), 1);
}

TEST_F(SnapshotTest, ARestoredRecipeSavesOverItsStoredOne) {
    Fill();
    database->Execute("UPDATE RECIPES SET CREATED_WHEN = '01/02/2003 04:05:06'");
    Open("Fill");
    Set(R().txtNotes, "lost");
    ThroughText();
    EXPECT_TRUE(document->Storage().Save(SaveAs::No, Asking::Aloud));
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_EQ(Count("RECIPES"), 1);
    EXPECT_EQ(One("SELECT NOTES FROM RECIPES"), "lost");
    EXPECT_EQ(One("SELECT FOLDER_ID FROM RECIPES"), "4");
    EXPECT_EQ(One("SELECT CREATED_WHEN FROM RECIPES"), "01/02/2003 04:05:06");
    EXPECT_FALSE(document->Changed());
}

TEST_F(SnapshotTest, ItsFiguresFollowTheNextEntry) {
    Fill();
    Set(R().txtTotalVol, "6 gal");
    const Log wanted = Shown();
    Open("Fill");
    Set(R().txtNotes, "after the save");
    ThroughText();
    Set(R().txtTotalVol, "6 gal");
    EXPECT_EQ(Shown(), wanted);
}

TEST_F(SnapshotTest, EveryByteOfATextComesBack) {
    New();
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    document->Fields().SetText(R().txtNotes, bytes + "\r\n\"\\ \\x41 ä");
    document->Fields().SetText(R().txtName, "  two\nlines \t");
    Put(R().gridGrain, 1, 0, "end 0123\nrow\n");
    const Log before = Shown();
    ThroughText();
    EXPECT_EQ(Shown(), before);
    EXPECT_EQ(R().txtNotes.Text(), bytes + "\r\n\"\\ \\x41 ä");
}

TEST_F(SnapshotTest, AClearedTextStaysCleared) {
    Fill();
    Set(R().txtNotes, "old");
    document->Fields().SetText(R().txtNotes, "");
    ThroughText();
    EXPECT_EQ(R().txtNotes.Text(), "");
}

TEST_F(SnapshotTest, AnEntryThatWasBeingTypedIsCommittedIfItCanBeRead) {
    New();
    Set(R().txtTotalVol, "5 gal");
    document->Fields().SetText(R().txtTotalVol, "6 gal");
    document->Fields().SetText(R().txtBoilVol, "seven");
    ThroughText();
    EXPECT_EQ(R().txtTotalVol.Value(), 6);
    EXPECT_EQ(R().txtTotalVol.Committed(), "6 gal");
    EXPECT_EQ(R().txtBoilVol.Text(), "");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(SnapshotTest, WhatIsGoneFromTheDatabaseLeavesNoPlace) {
    Fill();
    const RecipeSnapshot snapshot = document->Storage().TakeSnapshot();
    database->Execute("DELETE FROM FOLDERS");
    New().Storage().Restore(snapshot);
    EXPECT_EQ(document->FolderID(), -1);
    EXPECT_EQ(document->OrigName(), "Fill");
    database->Execute("DELETE FROM STYLES WHERE ID = 1");
    database->Execute("DELETE FROM RECIPES");
    New().Storage().Restore(snapshot);
    EXPECT_EQ(document->OrigName(), "");
    EXPECT_EQ(document->BeerName(), "Fill");
    EXPECT_EQ(document->StyleID(), 0);
    EXPECT_TRUE(document->Changed());
}

TEST_F(SnapshotTest, AnUnsavedRecipeStaysOne) {
    New();
    document->Fields().SetText(R().txtNotes, "x");
    ThroughText();
    EXPECT_EQ(document->FolderID(), -1);
    EXPECT_EQ(document->OrigName(), "");
    EXPECT_EQ(document->Caption(), "Untitled 3");
}

TEST_F(SnapshotTest, EveryDamageIsSeen) {
    Fill();
    const std::string text = SnapshotText(document->Storage().TakeSnapshot());
    for (std::size_t length = 0; length < text.size(); length += 7)
        ASSERT_FALSE(ReadSnapshot(text.substr(0, length))) << length;
    for (std::size_t at = 0; at < text.size(); at += 3) {
        std::string damaged = text;
        damaged[at] = static_cast<char>(damaged[at] ^ 4);
        ASSERT_FALSE(ReadSnapshot(damaged)) << at;
    }
    EXPECT_FALSE(ReadSnapshot(text + "\n"));
    EXPECT_FALSE(ReadSnapshot(""));
    EXPECT_FALSE(ReadSnapshot(std::string(5000, '\0')));
}

// Returns body with a correct checksum, so that only its content can be at fault.
std::string Signed(const std::string& body) {
    return body + "end " + HashText(body) + "\n";
}

TEST_F(SnapshotTest, AForeignFormIsRefusedWhateverItsChecksum) {
    const std::string first = "Tunwright unsaved recipe 1\n";
    ASSERT_TRUE(ReadSnapshot(Signed(first)));
    for (const char* line : {"brew 5\n",
                             "folder\n",
                             "folder 99999999999999999999\n",
                             "folder 4 5\n",
                             "folder x\n",
                             "stored Fill\n",
                             "stored \"Fill\n",
                             "stored \"\\xg0\"\n",
                             "created \"yesterday\"\n",
                             "swatch 256 0 0\n",
                             "swatch 1 2\n",
                             "row\n",
                             "cell \"\" -0 none plain\n",
                             "grid gridGrain\ncell \"\" -0 none plain\n",
                             "grid gridGrain\nrow\ncell \"\" X0 none plain\n",
                             "grid gridGrain\nrow\ncell \"\" N none plain\n",
                             "grid gridGrain\nrow\ncell \"\" N1e9 none plain\n",
                             "grid gridGrain\nrow\ncell \"\" -0 maybe plain\n",
                             "grid gridGrain\nrow\ncell \"\" -0 none thin\n",
                             "field txtOG \"\" \"\" nan\n",
                             "field txtOG \"\" \"\"\n",
                             "\n",
                             "folder  4\n",
                             "folder 4"})
        EXPECT_FALSE(ReadSnapshot(Signed(first + line))) << line;
    EXPECT_FALSE(ReadSnapshot(Signed("Tunwright unsaved recipe 2\n")));
    EXPECT_FALSE(ReadSnapshot(Signed(first + "field txtOG \"\" \"\" " + std::string(400, '9') + "\n")));
}

TEST_F(SnapshotTest, RowsThatNoGridCanHaveAreRefused) {
    Fill();
    const RecipeSnapshot good = document->Storage().TakeSnapshot();
    const auto grid = [](RecipeSnapshot& s, std::string_view name) -> std::vector<std::vector<Cell>>& {
        return std::ranges::find(s.grids, name, &RecipeSnapshot::Rows::grid)->rows;
    };
    const auto refused = [&](const std::function<void(RecipeSnapshot&)>& spoil) {
        RecipeSnapshot bad = good;
        spoil(bad);
        try {
            New().Storage().Restore(bad);
        } catch (const Error&) {
            return true;
        }
        return false;
    };
    EXPECT_TRUE(refused([&](auto& s) { grid(s, "gridGrain").clear(); }));
    EXPECT_TRUE(refused([&](auto& s) { grid(s, "gridGrain").pop_back(); }));
    EXPECT_TRUE(refused([&](auto& s) { grid(s, "gridWater").emplace_back(8); }));
    EXPECT_TRUE(refused([&](auto& s) { grid(s, "gridLog")[0].pop_back(); }));
    for (const double form : {-1.0, 3.0, 1.5, 1e300})
        EXPECT_TRUE(refused([&](auto& s) { grid(s, "gridHops")[0][HopCol::Form].value.number = form; }))
            << form;
    EXPECT_FALSE(refused([](auto& s) { s.fields.push_back({"txtFromLater", "x", "x", 1}); }));
    EXPECT_FALSE(refused([](auto& s) { s.grids.push_back({"gridFromLater", {{}}}); }));
    EXPECT_FALSE(refused([](auto& s) { s.options = {"optFromLater"}; }));
}

// Documents after many valid and invalid entries of every kind.
class RandomSnapshots : public SnapshotTest, public testing::WithParamInterface<unsigned> {
  protected:
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
    const char* AnyText() {
        static constexpr const char* kTexts[] = {"",     "5",         "6.5 gal", "70%",    "1.012",
                                                 "68",   "4 AAU",     "20 IBU",  "60 min", "Pale Malt",
                                                 "Saaz", "Honey",     "Soft",    "Gypsum", "Plug",
                                                 "1/0",  "Ale - 75%", "ä \"x\"", "-3",     "11 psi"};
        return kTexts[Below(static_cast<int>(std::size(kTexts)))];
    }
    void Edit() {
        try {
            EditSomething();
        } catch (const Error&) {
            // An arithmetic error leaves everything unchanged.
        }
    }
    void EditSomething() {
        Grid& grid = *R().Grids()[static_cast<std::size_t>(Below(static_cast<int>(R().Grids().size())))];
        const int row = 1 + Below(grid.Rows()), col = Below(grid.Cols());
        switch (Below(8)) {
            case 0: {
                TextBox& box = *R().TextBoxes()[static_cast<std::size_t>(
                    Below(static_cast<int>(R().TextBoxes().size())))];
                if (!Set(box, AnyText(), Asking::Quietly)) document->Fields().RestoreField(box);
                break;
            }
            case 1:
                document->Focus().SetCurrentCell(grid, row, col);
                document->Lines().InsertRowForGrid(grid);
                break;
            case 2:
                document->Focus().SetCurrentCell(grid, row, col);
                if (Below(3) == 0) document->Lines().DeleteRowForGrid(grid);
                break;
            case 3:
                document->Cells().SetChecked(grid, row, col, Below(2) == 0);
                break;
            case 4:
                document->Style().Select(Below(6));
                break;
            case 5:
                document->Options().Choose(std::vector{"optTinseth", "optRager", "optGaretz", "optBottle",
                                                       "optKeg"}[static_cast<std::size_t>(Below(5))]);
                break;
            default:
                document->Cells().EditCell(grid, row, col, AnyText(), Asking::Quietly);
        }
    }
    std::mt19937 random_{GetParam()};
};

TEST_P(RandomSnapshots, ComeBackAsTheyWere) {
    New();
    for (int round = 0; round < 40; ++round) {
        for (int edit = 0; edit < 25; ++edit) Edit();
        const Log shown = Shown();
        const RecipeSnapshot before = document->Storage().TakeSnapshot();
        const std::map<std::string, bool, std::less<>> commands = host.commands;
        ThroughText();
        if (HasFatalFailure()) return;
        ASSERT_EQ(Shown(), shown);
        ASSERT_EQ(document->Storage().TakeSnapshot(), before);
        for (const char* command : {"EnableResizeRecipe", "EnableChangeStrength", "EnableChangeBitterness",
                                    "EnableChangeCarbonation"})
            ASSERT_EQ(host.IsOn(command), commands.contains(command) && commands.at(command)) << command;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSnapshots, testing::Range(1U, 9U));

}  // namespace
}  // namespace tw::test
