// Tests that each operation on objects is one unit of work: a crash in the middle leaves the old state.
#include <filesystem>
#include <unistd.h>

#include "ObjectsTest.h"
#include "store/Schema.h"
#include "support/DiesIn.h"

namespace tw::test {
namespace {

class Units : public testing::Test {
  protected:
    Units() {
        std::string name = (std::filesystem::temp_directory_path() / "tunwright_units_XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw Error("Units", "no temporary folder", 0);
        folder_ = name;
        const auto database = Database::CreateDatabase(File("made.mdb"), "");
        CreateSchema(*database);
        database->Execute(
            "INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (0, 'Ales', FALSE), "
            "(1, 'Stouts', FALSE), (0, 'British', TRUE)");
        database->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Porter', 3)");
        database->Execute(
            "INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES ('Dry', 1, 2), ('Mild', 1, 1), "
            "('Best', 0, 0)");
    }
    ~Units() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    std::string File(const std::string& name) const { return (folder_ / name).string(); }

    // Returns the rows of the three tables.
    static Lines Rows(Database& database) {
        Lines rows;
        for (const char* sql : {"SELECT ID, PARENT_ID, NAME, MODIFIED_WHEN FROM FOLDERS",
                                "SELECT ID, FOLDER_ID, NAME, NULL FROM STYLES",
                                "SELECT ID, FOLDER_ID, NAME, STYLE_ID FROM RECIPES"})
            for (Recordset set = database.OpenRecordset(sql); !set.AtEnd(); set.MoveNext()) {
                rows.emplace_back();
                for (int i = 0; i < set.FieldCount(); ++i) rows.back() += set.Fields(i).Text() + "|";
            }
        return rows;
    }

    // Runs the operation on a fresh copy, in a process that is killed before that statement. Returns false if
    // the operation ends before.
    template <typename Operation>
    bool DiesAt(int statement, Operation operation) {
        std::filesystem::copy_file(File("made.mdb"), File("a.mdb"),
                                   std::filesystem::copy_options::overwrite_existing);
        return DiesIn([&] {
            const auto database = OpenMainDatabase(File("a.mdb"));
            // A small cache, so that half-done pages reach the file before the end.
            database->ExecuteNative("PRAGMA cache_size=3");
            TWTree tree(database.get());
            tree.InitFromDatabase();
            TreeObjects objects(tree);
            RecordingPlatform outside;
            NoticeRecorder listener;
            DB_IO io(*database, objects, outside.messages, outside.clock, listener);
            DieAt(*database, statement);
            operation(io);
        });
    }

    // Kills the operation at each of its statements in turn and expects the old state; it must
    // have that many statements.
    template <typename Operation>
    void ExpectWhole(int statements, Operation operation) {
        const Lines old = Rows(*OpenMainDatabase(File("made.mdb")));
        int count = 0;
        while (DiesAt(count, operation)) {
            EXPECT_EQ(Rows(*OpenMainDatabase(File("a.mdb"))), old) << "killed before statement " << count;
            ++count;
        }
        EXPECT_EQ(count, statements);
        EXPECT_NE(Rows(*OpenMainDatabase(File("a.mdb"))), old);
    }

  private:
    std::filesystem::path folder_;
};

// Two folders: two reads and one DELETE for each; two recipes: five DELETEs for each.
TEST_F(Units, ADeletedFolderGoesWholeOrNotAtAll) {
    ExpectWhole(2 * 3 + 2 * 5, [](DB_IO& io) { io.DeleteObject("F:1"); });
}

// Reads the folders, the styles and the recipes of the style; one UPDATE for each of
// two recipes, two DELETEs.
TEST_F(Units, ADeletedStyleFolderGoesWholeOrNotAtAll) {
    ExpectWhole(3 + 2 + 2, [](DB_IO& io) { io.DeleteObject("G:3"); });
}

// A check, the change, two updates of modification dates.
TEST_F(Units, AMovedFolderIsThereOrHere) {
    ExpectWhole(1 + 1 + 2, [](DB_IO& io) { io.MoveObject("F:2", "F:0", Asking::Quietly); });
}

// A check, the change, one update of a modification date.
TEST_F(Units, ANewNameComesWithItsTouch) {
    ExpectWhole(3, [](DB_IO& io) { io.RenameObject("R:1:0", "Wet", Asking::Quietly); });
}

// A check, the INSERT, reading the id.
TEST_F(Units, ANewFolderIsThereOrNot) {
    ExpectWhole(3, [](DB_IO& io) { io.CreateFolderObject("F:1", "", Asking::Quietly); });
}

}  // namespace
}  // namespace tw::test
