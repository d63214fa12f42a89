// Tests of unsaved work that is kept outside the database: when its files are created and deleted, what the
// next start offers, and what happens to files that cannot be read.
#include "shell/Recovery.h"

#include <csignal>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/stat.h>

#include "platform/TargetFile.h"
#include "shell/RecoveryModel.h"
#include "shell/ShellTest.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

void CreateDatabaseFile(const std::string& path) {
    CreateSchema(*Database::CreateDatabase(path, ""));
}

// One run of the program with a database in a file. Destroying it without Unload is a crash.
struct ProgramRun {
    ProgramRun(const std::string& root, const std::string& database) {
        shell.SetView(&view);
        shell.Environment().recoveryFolder = root;
        EXPECT_TRUE(shell.PerformSplashScreenInit(database));
    }
    RecipeDocument& New(std::string_view name, std::string_view notes) {
        RecipeDocument& document = shell.Opened()->recipes.Create("");
        document.Fields().SetText(document.Record().txtName, name);
        document.Fields().SetText(document.Record().txtNotes, notes);
        return document;
    }
    // Returns what OfferRecovery shows. Presses the buttons and then closes the dialog with "Later".
    Strings Offer(const std::vector<std::string>& press = {}) {
        Strings entries;
        outside.dialogs.scripts.emplace_back([&entries, press](DialogModel& dialog) {
            for (const std::string& entry : dynamic_cast<RecoveryModel&>(dialog).Entries())
                entries.push_back(entry.substr(0, entry.find(',')));
            for (const std::string& button : press) EXPECT_TRUE(dialog.Press(button)) << button;
        });
        shell.Unsaved().Offer();
        outside.dialogs.scripts.clear();
        return entries;
    }

    RecordingPlatform outside;
    RecordingView view;
    Shell shell{{outside.platform}};
};

class RecoveryTest : public testing::Test {
  protected:
    RecoveryTest() { CreateDatabaseFile(scratch.File("beer.mdb")); }
    std::unique_ptr<ProgramRun> Start() {
        return std::make_unique<ProgramRun>(scratch.File("unsaved"), scratch.File("beer.mdb"));
    }
    Strings Files() const {
        Strings names;
        if (!fs::exists(scratch.File("unsaved"))) return names;
        for (const auto& entry : fs::recursive_directory_iterator(scratch.File("unsaved")))
            if (entry.path().filename() != "database" &&
                (!entry.is_directory() || entry.path().has_extension()))
                names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }
    std::string Folder() const {
        return Recovery::FolderOf(scratch.File("unsaved"), scratch.File("beer.mdb"));
    }
    void PutFile(const std::string& name, std::string_view text) {
        fs::create_directories(Folder());
        std::ofstream(Folder() + "/" + name, std::ios::binary) << text;
    }
    static std::string Contents(const std::string& path) {
        std::ostringstream text;
        text << std::ifstream(path, std::ios::binary).rdbuf();
        return text.str();
    }

    ScratchFolder scratch;
};

TEST_F(RecoveryTest, AFileComesSomeTimeAfterAnEditAndGoesWithTheSave) {
    auto run = Start();
    RecipeDocument& stout = run->New("Stout", "one");
    EXPECT_EQ(std::ranges::count(run->view.log, "unsaved work"), 2);
    EXPECT_THAT(Files(), IsEmpty());
    run->shell.Unsaved().Keep();
    EXPECT_THAT(Files(), ElementsAre("1.unsaved"));
    EXPECT_TRUE(run->shell.Opened()->saver.SaveUnder(stout, "Stout", 0, Asking::Quietly));
    EXPECT_THAT(Files(), IsEmpty());
    run->shell.Unsaved().Keep();
    EXPECT_THAT(Files(), IsEmpty());
    stout.Fields().SetText(stout.Record().txtNotes, "two");
    run->shell.Unsaved().Keep();
    EXPECT_THAT(Files(), ElementsAre("1.unsaved"));
    run->outside.messages.answers = {Answer::No};
    EXPECT_TRUE(run->shell.Opened()->saver.Close(stout));
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(RecoveryTest, EachChangedDocumentHasAFileAndAnUnchangedOneNone) {
    auto run = Start();
    run->New("Stout", "one");
    run->shell.Opened()->recipes.Create("");
    run->New("Porter", "two");
    run->shell.Unsaved().Keep();
    EXPECT_THAT(Files(), ElementsAre("1.unsaved", "2.unsaved"));
    run->shell.Unload(true);
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(RecoveryTest, TheNextStartRestoresAllOfIt) {
    auto run = Start();
    RecipeDocument& stored = run->New("Stout", "stored");
    ASSERT_TRUE(run->shell.Opened()->saver.SaveUnder(stored, "Stout", 0, Asking::Quietly));
    stored.Cells().EditCell(stored.Record().gridGrain, 1, 0, "Pale Malt");
    run->New("", "never saved");
    run->shell.Unsaved().Keep();
    run.reset();
    run = Start();
    EXPECT_THAT(run->Offer({"cmdRestoreAll"}), ElementsAre("Stout", "Untitled"));
    ASSERT_EQ(run->shell.Documents().All().size(), 2u);
    const RecipeDocument& stout = *run->shell.Documents().All()[0];
    EXPECT_EQ(stout.Record().gridGrain.Text(1, 0), "Pale Malt");
    EXPECT_EQ(stout.OrigName(), "Stout");
    EXPECT_EQ(stout.FolderID(), 0);
    EXPECT_TRUE(stout.Changed());
    EXPECT_EQ(run->shell.Documents().All()[1]->Caption(), "Untitled 2");
    EXPECT_EQ(run->shell.Documents().All()[1]->Record().txtNotes.Text(), "never saved");
    EXPECT_TRUE(run->shell.Bar().FindItem("mnuFileSave")->enabled);
    EXPECT_EQ(run->shell.Documents().Active(), run->shell.Documents().All()[1].get());
    // The stored recipe is unchanged.
    EXPECT_TRUE(
        run->shell.DB()->OpenRecordset("SELECT * FROM RECIPE_GRAINS WHERE NAME = 'Pale Malt'").AtEnd());
    EXPECT_THAT(run->outside.messages.log, IsEmpty());
}

TEST_F(RecoveryTest, ARestoredRecipeSurvivesTheNextCrashTooAndGoesWithItsSave) {
    auto run = Start();
    run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    run = nullptr;
    run = Start();
    run->Offer({"cmdRestore"});
    EXPECT_THAT(Files(), ElementsAre("1.unsaved"));
    run = nullptr;
    run = Start();
    EXPECT_THAT(run->Offer({"cmdRestore"}), ElementsAre("Stout"));
    EXPECT_TRUE(
        run->shell.Opened()->saver.SaveUnder(*run->shell.Documents().Active(), "Stout", 0, Asking::Quietly));
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(RecoveryTest, NothingIsShownWhenNothingWasLost) {
    auto run = Start();
    run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    run->shell.Unload(true);
    run = nullptr;
    run = Start();
    run->shell.Unsaved().Offer();
    EXPECT_THAT(run->outside.dialogs.shown, IsEmpty());
    EXPECT_THAT(run->outside.messages.log, IsEmpty());
}

TEST_F(RecoveryTest, LaterOffersTheRestAgainAtTheNextStart) {
    auto run = Start();
    run->New("Stout", "one");
    run->New("Porter", "two");
    run->shell.Unsaved().Keep();
    run = nullptr;
    run = Start();
    EXPECT_THAT(run->Offer({"cmdRestore", "cmdClose"}), ElementsAre("Stout", "Porter"));
    // The restored recipe keeps its file, and a new document uses another one.
    run->New("Mild", "three");
    run->shell.Unsaved().Keep();
    EXPECT_THAT(Files(), ElementsAre("1.unsaved", "2.unsaved", "3.unsaved"));
    run->shell.Unload(true);
    run = nullptr;
    run = Start();
    EXPECT_THAT(run->Offer(), ElementsAre("Porter"));
}

TEST_F(RecoveryTest, ThrowingAwayAsksFirst) {
    auto run = Start();
    run->New("Stout", "one");
    run->New("Porter", "two");
    run->New("Mild", "three");
    run->shell.Unsaved().Keep();
    run = nullptr;
    run = Start();
    run->outside.messages.answers = {Answer::No, Answer::Yes, Answer::No};
    run->Offer({"cmdDiscard", "cmdDiscard", "cmdDiscardAll"});
    EXPECT_THAT(run->outside.messages.TakeLog(),
                ElementsAre("[Unsaved Changes] Throw away the unsaved changes of recipe 'Stout'? -> No",
                            "[Unsaved Changes] Throw away the unsaved changes of recipe 'Stout'? -> Yes",
                            "[Unsaved Changes] Throw away the unsaved changes of all 2 recipes? -> No"));
    run->outside.messages.answers = {Answer::Yes};
    EXPECT_THAT(run->Offer({"cmdDiscardAll"}), ElementsAre("Porter", "Mild"));
    EXPECT_THAT(Files(), IsEmpty());
    EXPECT_TRUE(run->shell.Documents().All().empty());
}

TEST_F(RecoveryTest, TheListIsChosenFromByItsEntries) {
    auto run = Start();
    run->New("Stout", "one");
    run->New("Porter", "two");
    run->shell.Unsaved().Keep();
    run = nullptr;
    run = Start();
    run->outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        const std::string first = dialog.Controls()[0].text;
        const std::string second = dynamic_cast<RecoveryModel&>(dialog).Entries()[1];
        EXPECT_FALSE(dialog.SetControl("lstRecipes", "Mild"));
        EXPECT_FALSE(dialog.SetControl("txtName", first));
        EXPECT_TRUE(dialog.SetControl("lstRecipes", second));
        EXPECT_TRUE(dialog.Press("cmdRestore"));
        EXPECT_EQ(dialog.Controls()[0].text, first);
        EXPECT_FALSE(dialog.Press("cmdOK"));
        EXPECT_TRUE(dialog.IsOpen());
    });
    run->shell.Unsaved().Offer();
    EXPECT_EQ(run->shell.Documents().Active()->BeerName(), "Porter");
}

TEST_F(RecoveryTest, ADamagedFileIsReportedOnceAndKeptAside) {
    auto run = Start();
    run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    run = nullptr;
    const std::string good = Contents(Folder() + "/1.unsaved");
    PutFile("2.unsaved", good.substr(0, good.size() / 2));
    PutFile("3.unsaved", "");
    PutFile("4.unsaved", std::string("\0\xff\xfe binary", 10));
    std::string turned = good;
    turned[turned.size() / 2] ^= 1;
    PutFile("5.unsaved", turned);
    fs::create_directories(Folder() + "/6.unsaved");
    run = Start();
    EXPECT_THAT(run->Offer(), ElementsAre("Stout"));
    Strings boxes;
    for (int file = 2; file <= 6; ++file)
        boxes.push_back(
            "[Unsaved Changes] Unsaved changes of an earlier run cannot be read. They are left in the "
            "file\r\n  " +
            Folder() + "/" + std::to_string(file) + ".unsaved.damaged");
    EXPECT_EQ(run->outside.messages.log, boxes);
    EXPECT_EQ(Contents(Folder() + "/5.unsaved.damaged"), turned);
    run = nullptr;
    run = Start();
    EXPECT_THAT(run->Offer(), ElementsAre("Stout"));
    EXPECT_THAT(run->outside.messages.log, IsEmpty());
}

TEST_F(RecoveryTest, ASecondDamagedFileOfTheSameNameDoesNotReplaceTheFirst) {
    PutFile("1.unsaved.damaged", "first");
    PutFile("1.unsaved", "second");
    Start()->Offer();
    EXPECT_THAT(Files(), ElementsAre("1.unsaved.damaged", "1.unsaved.damaged2"));
    EXPECT_EQ(Contents(Folder() + "/1.unsaved.damaged"), "first");
}

TEST_F(RecoveryTest, ARecipeThatFitsNoGridIsPutAsideWhenItIsRestored) {
    const std::string body =
        "Tunwright unsaved recipe 1\nfield txtName \"Odd\" \"\" 0\ngrid gridGrain\nrow\n";
    PutFile("1.unsaved", body + "end " + HashText(body) + "\n");
    auto run = Start();
    EXPECT_THAT(run->Offer({"cmdRestoreAll"}), ElementsAre("Odd"));
    EXPECT_TRUE(run->shell.Documents().All().empty());
    EXPECT_EQ(run->outside.messages.log.size(), 1u);
    EXPECT_THAT(Files(), ElementsAre("1.unsaved.damaged"));
}

TEST_F(RecoveryTest, AWritingThatWasCutShortLeavesTheOlderFile) {
    auto run = Start();
    run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    run = nullptr;
    PutFile("1.unsaved.new", "Tunwright unsa");
    PutFile(".1.unsaved" + std::string(kUnderWay), "Tunwright unsa");
    // The name that earlier releases used.
    PutFile("7.unsaved.new", "");
    run = Start();
    EXPECT_THAT(run->Offer(), ElementsAre("Stout"));
    EXPECT_THAT(Files(), ElementsAre("1.unsaved"));
    EXPECT_THAT(run->outside.messages.log, IsEmpty());
}

TEST_F(RecoveryTest, OtherFilesAreLeftAlone) {
    PutFile("notes.txt", "mine");
    auto run = Start();
    run->shell.Unsaved().Offer();
    EXPECT_THAT(run->outside.dialogs.shown, IsEmpty());
    EXPECT_THAT(Files(), ElementsAre("notes.txt"));
}

TEST_F(RecoveryTest, AFolderThatCannotBeWrittenCostsNothingButTheFile) {
    std::ofstream(scratch.File("unsaved")) << "a file where the folder belongs";
    auto run = Start();
    run->shell.Unsaved().Offer();
    RecipeDocument& stout = run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    EXPECT_TRUE(stout.Changed());
    EXPECT_THAT(run->outside.messages.log, IsEmpty());
    fs::remove(scratch.File("unsaved"));
    stout.Fields().SetText(stout.Record().txtNotes, "two");
    run->shell.Unsaved().Keep();
    EXPECT_THAT(Files(), ElementsAre("1.unsaved"));
}

TEST_F(RecoveryTest, WhatCannotBeKeptIsToldOnceAndTriedAgainUntilItCan) {
    std::ofstream(scratch.File("unsaved")) << "a file where the folder belongs";
    auto run = Start();
    run->New("Stout", "one");
    RecipeDocument& porter = run->New("Porter", "two");
    run->view.log.clear();
    const std::string notice = "notice: Unsaved work is not being kept: save your recipes.";
    run->shell.Unsaved().Keep();
    EXPECT_THAT(run->view.log, ElementsAre(notice, "unsaved work"));
    // There was no edit in between, so there is no second notice.
    run->shell.Unsaved().Keep();
    EXPECT_THAT(run->view.log, ElementsAre(notice, "unsaved work", "unsaved work"));
    run->outside.messages.answers = {Answer::No};
    EXPECT_TRUE(run->shell.Opened()->saver.Close(porter));
    run->view.log.clear();
    fs::remove(scratch.File("unsaved"));
    run->shell.Unsaved().Keep();
    EXPECT_THAT(run->view.log, ElementsAre("notice: ", "news: Unsaved work is being kept again."));
    EXPECT_THAT(Files(), ElementsAre("1.unsaved"));
    run->view.log.clear();
    run->shell.Unsaved().Keep();
    EXPECT_THAT(run->view.log, IsEmpty());
}

TEST_F(RecoveryTest, NothingIsLeftToKeepOnceItIsSaved) {
    std::ofstream(scratch.File("unsaved")) << "a file where the folder belongs";
    auto run = Start();
    RecipeDocument& stout = run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    run->view.log.clear();
    EXPECT_TRUE(run->shell.Opened()->saver.SaveUnder(stout, "Stout", 0, Asking::Quietly));
    EXPECT_THAT(run->view.log, testing::Contains("notice: "));
    EXPECT_THAT(run->view.log, testing::Not(testing::Contains(testing::StartsWith("news: Unsaved"))));
}

TEST_F(RecoveryTest, ADatabaseThatWasMovedFindsItsFiles) {
    fs::create_directory(scratch.File("Beer"));
    CreateDatabaseFile(scratch.File("Beer/a.mdb"));
    ProgramRun(scratch.File("unsaved"), scratch.File("Beer/a.mdb")).shell.Unload(true);
    auto crashed = std::make_unique<ProgramRun>(scratch.File("unsaved"), scratch.File("Beer/a.mdb"));
    crashed->New("Stout", "one");
    crashed->shell.Unsaved().Keep();
    crashed = nullptr;
    fs::rename(scratch.File("Beer"), scratch.File("Ale"));
    // Another database is not offered the work of this one.
    EXPECT_THAT(Start()->Offer(), IsEmpty());
    ProgramRun moved(scratch.File("unsaved"), scratch.File("Ale/a.mdb"));
    EXPECT_THAT(moved.Offer({"cmdRestore"}), ElementsAre("Stout"));
    EXPECT_EQ(moved.shell.Documents().Active()->Record().txtNotes.Text(), "one");
    EXPECT_TRUE(
        fs::exists(Recovery::FolderOf(scratch.File("unsaved"), scratch.File("Ale/a.mdb")) + "/1.unsaved"));
    EXPECT_FALSE(fs::exists(Recovery::FolderOf(scratch.File("unsaved"), scratch.File("Beer/a.mdb"))));
}

TEST_F(RecoveryTest, OfADatabaseAndItsCopyEachKeepsItsOwn) {
    auto run = Start();
    run->shell.Unload(true);
    run = Start();
    run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    run = nullptr;
    fs::copy_file(scratch.File("beer.mdb"), scratch.File("copy.mdb"));
    auto copy = std::make_unique<ProgramRun>(scratch.File("unsaved"), scratch.File("copy.mdb"));
    EXPECT_THAT(copy->Offer(), IsEmpty());
    copy->New("Porter", "two");
    copy->shell.Unsaved().Keep();
    copy = nullptr;
    // Once one database is deleted, the other one is offered the work of both.
    EXPECT_THAT(Start()->Offer(), ElementsAre("Stout"));
    fs::remove(scratch.File("copy.mdb"));
    EXPECT_THAT(Start()->Offer(), testing::UnorderedElementsAre("Stout", "Porter"));
    EXPECT_THAT(Files(), ElementsAre("1.unsaved", "2.unsaved"));
}

TEST_F(RecoveryTest, FilesFromBeforeTheIdAreFoundByThePath) {
    auto run = Start();
    run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    run->shell.DB()->ExecuteNative("DROP TABLE DATABASE_ID");
    run = nullptr;
    fs::remove(Folder() + "/database");
    EXPECT_THAT(Start()->Offer(), ElementsAre("Stout"));
}

TEST_F(RecoveryTest, ADamagedMarkOfAFolderIsPassedOver) {
    auto run = Start();
    run->shell.Unload(true);
    const std::string other = scratch.File("unsaved/other");
    fs::create_directories(other);
    for (const std::string_view mark : {"", "\n", "no id at all", "\xff\n/no/such"}) {
        std::ofstream(other + "/database", std::ios::binary) << mark;
        std::ofstream(other + "/1.unsaved") << "not ours";
        Start()->shell.Unsaved().Offer();
        EXPECT_TRUE(fs::exists(other + "/1.unsaved"));
    }
}

TEST_F(RecoveryTest, TheFilesAreForTheUsersEyesAlone) {
    auto run = Start();
    run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    struct stat status {};
    ASSERT_EQ(stat((Folder() + "/1.unsaved").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    for (const std::string& folder : {Folder(), scratch.File("unsaved")}) {
        ASSERT_EQ(stat(folder.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777U, 0700U) << folder;
    }
}

TEST_F(RecoveryTest, AFolderOfAnEarlierReleaseIsClosedToOthers) {
    fs::create_directories(Folder());
    fs::permissions(Folder(), static_cast<fs::perms>(0755));
    auto run = Start();
    run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    EXPECT_EQ(fs::status(Folder()).permissions(), fs::perms::owner_all);
}

TEST_F(RecoveryTest, NothingElseIsWrittenIntoTheFolder) {
    auto run = Start();
    EXPECT_THROW(run->shell.Own().Check(Folder() + "/1.unsaved"), OwnFileError);
}

TEST_F(RecoveryTest, EachDatabaseHasItsOwnFiles) {
    auto run = Start();
    run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    run = nullptr;
    CreateDatabaseFile(scratch.File("wine.mdb"));
    ProgramRun other(scratch.File("unsaved"), scratch.File("wine.mdb"));
    other.shell.Unsaved().Offer();
    EXPECT_THAT(other.outside.dialogs.shown, IsEmpty());
    fs::create_symlink(scratch.File("beer.mdb"), scratch.File("link.mdb"));
    EXPECT_EQ(Recovery::FolderOf("x", scratch.File("link.mdb")),
              Recovery::FolderOf("x", scratch.File("beer.mdb")));
}

TEST_F(RecoveryTest, AnotherRunningProgramsFilesAreNotTouched) {
    auto run = Start();
    run->New("Stout", "one");
    run->shell.Unsaved().Keep();
    // The second program cannot open the database and therefore not its files.
    RecordingPlatform outside;
    Shell second({outside.platform});
    second.Environment().recoveryFolder = scratch.File("unsaved");
    EXPECT_FALSE(second.PerformSplashScreenInit(scratch.File("beer.mdb")));
    second.Unsaved().Offer();
    second.Unload(true);
    EXPECT_THAT(outside.dialogs.shown, IsEmpty());
    EXPECT_THAT(Files(), ElementsAre("1.unsaved"));
}

TEST_F(RecoveryTest, ADatabaseInMemoryKeepsNothing) {
    ProgramRun run(scratch.File("unsaved"), ":memory:");
    run.New("Stout", "one");
    run.shell.Unsaved().Keep();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(RecoveryTest, AFailedSaveLeavesTheFile) {
    auto run = Start();
    RecipeDocument& stout = run->New("Stout", "stored");
    ASSERT_TRUE(run->shell.Opened()->saver.SaveUnder(stout, "Stout", 0, Asking::Quietly));
    stout.Fields().SetText(stout.Record().txtNotes, "edited");
    run->shell.Unsaved().Keep();
    run->shell.DB()->ExecuteNative(
        "CREATE TRIGGER refuse BEFORE INSERT ON RECIPES BEGIN SELECT RAISE(ABORT, 'no'); END");
    EXPECT_FALSE(run->shell.Opened()->saver.Save(stout));
    run = nullptr;
    run = Start();
    EXPECT_THAT(run->Offer({"cmdRestore"}), ElementsAre("Stout"));
    EXPECT_EQ(run->shell.Documents().Active()->Record().txtNotes.Text(), "edited");
}

TEST_F(RecoveryTest, AProgramThatIsKilledLosesNothingThatWasKept) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            auto run = Start();
            run->New("Stout", "killed");
            run->shell.Unsaved().Keep();
            raise(SIGKILL);
        },
        testing::KilledBySignal(SIGKILL), "");
    // The killed process created the folder of this test again, as the test itself did at its start.
    auto run = Start();
    EXPECT_THAT(run->Offer({"cmdRestore"}), ElementsAre("Stout"));
    EXPECT_EQ(run->shell.Documents().Active()->Record().txtNotes.Text(), "killed");
}

}  // namespace
}  // namespace tw::test
