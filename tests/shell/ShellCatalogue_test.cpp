// Tests that a newer catalogue of the product is merged into the database when the program opens it.
#include "shell/ShellTest.h"
#include "store/Schema.h"
#include "store/SmallCatalogue.h"

namespace tw::test {
namespace {

class ShellCatalogue : public SmallCatalogue {
  protected:
    void SetUp() override {
        SmallCatalogue::SetUp();
        Append("version.txt", "1\n");
        const auto database = Database::CreateDatabase(Path(), "");
        CreateSchema(*database);
        ASSERT_TRUE(LoadCatalogue(folder_.string(), *database, kCreated).empty());
        Append("styles.tsv", "Gose\t\t\tSour Beer\tLactic\t\t\t\t\t\t\t\t\t\t\t\t\t\tSalt.\n");
        Replace("version.txt", "2\n");
        std::filesystem::copy(folder_, program_.File("catalogue"));
    }
    std::string Path() const { return program_.File("Tunwright.mdb"); }
    bool Start(Shell& shell, const std::string& path) {
        shell.Environment().programFolder = program_.File("");
        return shell.PerformSplashScreenInit(path);
    }
    static bool HasGose(Shell& shell) {
        return !shell.DB()->OpenRecordset("SELECT ID FROM STYLES WHERE NAME = 'Gose'").AtEnd();
    }

    ScratchFolder program_;
    RecordingPlatform outside_;
};

TEST_F(ShellCatalogue, TheStartBringsItInWithoutAWord) {
    Shell shell({outside_.platform});
    ASSERT_TRUE(Start(shell, Path()));
    EXPECT_TRUE(HasGose(shell));
    EXPECT_EQ(outside_.messages.log, std::vector<std::string>{});
}

TEST_F(ShellCatalogue, ADatabaseInMemoryStaysEmpty) {
    Shell shell({outside_.platform});
    ASSERT_TRUE(Start(shell, ":memory:"));
    EXPECT_FALSE(HasGose(shell));
}

TEST_F(ShellCatalogue, AStartGoesOnWhenTheRememberedDeliveriesAreDamaged) {
    {
        const auto database = Database::OpenDatabase(Path(), true);
        database->ExecuteNative("ALTER TABLE CATALOGUE_BASE DROP COLUMN CONTENT");
    }
    Shell shell({outside_.platform});
    ASSERT_TRUE(Start(shell, Path()));
    EXPECT_EQ(outside_.messages.log, std::vector<std::string>{});
}

}  // namespace
}  // namespace tw::test
