// Importing several files while the disk fails, the process dies or the brewer cancels: afterwards each file
// is there whole, with its recipes, what they carry and its entries of the catalogue, or not at all.
#include <filesystem>
#include <fstream>
#include <set>

#include "SmallProgram.h"
#include "doctor/DoctorImport.h"
#include "store/Schema.h"
#include "support/DiesIn.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;

// Two recipes of a style that the catalogue does not have, the second under a name that exists, and a hop of
// a library. All files have the same style: who comes first brings it.
std::string FileOf(const std::string& name) {
    const auto recipe = [](const std::string& title) {
        return "<RECIPE><NAME>" + title +
               "</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE><STYLE><NAME>Garden "
               "Ale</NAME><TYPE>Ale</TYPE>"
               "<OG_MIN>1.040</OG_MIN><OG_MAX>1.050</OG_MAX></STYLE><BATCH_SIZE>20</BATCH_SIZE>"
               "<BOIL_SIZE>24</BOIL_SIZE><EFFICIENCY>75</EFFICIENCY><HOPS><HOP><NAME>Meadow</NAME>"
               "<ALPHA>7</ALPHA><AMOUNT>0.03</AMOUNT><USE>Boil</USE><TIME>60</TIME></HOP></HOPS></RECIPE>";
    };
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><ALL><RECIPES>" + recipe(name) + recipe("House Beer") +
           "</RECIPES><HOPS><HOP><NAME>Hop of " + name +
           "</NAME><ALPHA>8</ALPHA><AMOUNT>0</AMOUNT><USE>Boil</USE><TIME>0</TIME></HOP></HOPS></ALL>";
}

// Overwrites what exists, and cancels before the recipe of that number.
class Brewer final : public CopyHost {
  public:
    bool Continue(const std::string&, int number, int) override { return number != stopAt; }
    ConflictAnswer ResolveConflict(const std::string&, const std::string&) override {
        return {ConflictResponse::Overwrite, {}};
    }
    bool ContinueAfter(const std::string&) override { return false; }

    int stopAt = -1;
};

// A program on a database, with files to import.
class Importing : public SmallProgram {
  public:
    Importing(const std::string& path, const std::vector<std::string>& files)
        : SmallProgram(OpenMainDatabase(path)) {
        tree.InitFromDatabase();
        listed.Add(files, options);
    }
    // Call while importing, from the first statement.
    ImportOutcome Run() { return DoctorImport(doctor, catalogue, brewer).Run(listed, 0, options); }

    Brewer brewer;

  private:
    static ImportOptions AddingAll() {
        ImportOptions options;
        options.addStyles = options.addIngredients = true;
        return options;
    }
    const ImportOptions options = AddingAll();
    OwnFiles own;
    DoctorFiles listed{doctor, platform.dialogs, own};
};

class WholeFiles : public testing::Test {
  protected:
    WholeFiles() {
        fs::remove_all(folder);
        fs::create_directories(folder);
        const auto database = Database::CreateDatabase(made, "");
        CreateSchema(*database);
        for (const char* const name : {"Mild", "Bitter", "Stout"}) {
            files.push_back((folder / (std::string(name) + ".xml")).string());
            std::ofstream(files.back(), std::ios::binary) << FileOf(name);
        }
    }
    ~WholeFiles() override { fs::remove_all(folder); }

    // Makes the database as it was before the import.
    const std::string& Renew() const {
        fs::copy_file(made, path, fs::copy_options::overwrite_existing);
        return path;
    }
    // Returns all rows of all tables, after the check that the database is sound.
    std::string State() const {
        const auto database = OpenMainDatabase(path);
        EXPECT_EQ(
            database->OpenRecordset("SELECT integrity_check FROM pragma_integrity_check").Fields(0).Text(),
            "ok");
        std::string all;
        for (Recordset table =
                 database->OpenRecordset("SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name");
             !table.AtEnd(); table.MoveNext()) {
            all += table.Fields(0).Text() + "\n";
            for (Recordset row = database->OpenRecordset("SELECT * FROM [" + table.Fields(0).Text() + "]");
                 !row.AtEnd(); row.MoveNext()) {
                for (int col = 0; col < row.FieldCount(); ++col) all += row.Fields(col).Text() + "|";
                all += "\n";
            }
        }
        return all;
    }
    // Returns the state in which only these files have been imported.
    std::string StateWith(const std::vector<std::string>& imported) const {
        Renew();
        if (!imported.empty()) Importing(path, imported).Run();
        return State();
    }

    const fs::path folder = fs::path(testing::TempDir()) /
                            ("tunwright_whole_files_" +
                             std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    const std::string made = (folder / "made.mdb").string(), path = (folder / "used.mdb").string();
    std::vector<std::string> files;
};

TEST_F(WholeFiles, AnErrorAtAnyStatementLeavesOutItsFileOnly) {
    const std::string all = StateWith(files);
    const std::vector<std::string> without = {
        StateWith({files[1], files[2]}), StateWith({files[0], files[2]}), StateWith({files[0], files[1]})};
    std::set<std::size_t> leftOut;
    bool failed = true;
    for (int failing = 0; failed; ++failing) {
        SCOPED_TRACE("statement " + std::to_string(failing));
        failed = false;
        {
            Importing program(Renew(), files);
            program.database->SetStatementHook([&, count = 0](std::string_view) mutable {
                if (count++ != failing) return;
                failed = true;
                throw Error("Database", "The disk failed.", 10);
            });
            EXPECT_EQ(program.Run().leftOut, failed);
        }
        const std::string state = State();
        if (!failed) {
            EXPECT_EQ(state, all);
            break;
        }
        const auto found = std::ranges::find(without, state);
        ASSERT_NE(found, without.end()) << state;
        leftOut.insert(static_cast<std::size_t>(found - without.begin()));
    }
    EXPECT_EQ(leftOut.size(), files.size()) << "each file was hit";
}

TEST_F(WholeFiles, AKillAtAnyStatementLeavesTheFilesBeforeIt) {
    const std::vector<std::string> whole = {StateWith({}), StateWith({files[0]}),
                                            StateWith({files[0], files[1]}), StateWith(files)};
    std::size_t reached = 0;
    for (int statement = 0; reached + 1 < whole.size(); ++statement) {
        SCOPED_TRACE("statement " + std::to_string(statement));
        Renew();
        const bool died = DiesIn([&] {
            Importing program(path, files);
            // A small cache, so that half-done pages reach the file before the end.
            program.database->ExecuteNative("PRAGMA cache_size=3");
            DieAt(*program.database, statement);
            program.Run();
        });
        const auto found = std::ranges::find(whole, State());
        ASSERT_NE(found, whole.end()) << State();
        const auto imported = static_cast<std::size_t>(found - whole.begin());
        ASSERT_GE(imported, reached);
        ASSERT_LE(imported, reached + 1);
        reached = imported;
        ASSERT_EQ(died, reached + 1 < whole.size());
    }
}

// The first recipe of the second file has the number 2.
TEST_F(WholeFiles, CancellingLeavesTheFilesBefore) {
    const std::vector<std::string> whole = {StateWith({}), StateWith({files[0]}),
                                            StateWith({files[0], files[1]})};
    for (int number = 0; number < 6; ++number) {
        SCOPED_TRACE("recipe " + std::to_string(number));
        {
            Importing program(Renew(), files);
            program.brewer.stopAt = number;
            EXPECT_EQ(program.Run().imported, number / 2 * 2);
        }
        EXPECT_EQ(State(), whole[static_cast<std::size_t>(number / 2)]);
    }
}

}  // namespace
}  // namespace tw::test
