// Tests of operations during which the program is killed or the disk fails at each call: afterwards every
// file must be the old or the new one, complete, and the database must open. By default a sample of the calls
// is tested, with TUNWRIGHT_FAULTS=all every one.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <utility>

#include "faults/FaultyRun.h"
#include "platform/Error.h"
#include "platform/TargetFile.h"
#include "shell/Recovery.h"
#include "store/CarriedData.h"
#include "store/Database.h"
#include "store/RecipeRows.h"
#include "store/Schema.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;

// Two recipes, a third one only in a file, and older files with the names that are written below.
constexpr const char* kSetup = R"(
new
set txtNotes first
saveas 0 Mild
close
new
set txtNotes second
saveas 0 Bock
close
new
set txtNotes third
saveas 0 Stout
close
export new stout.TWR Stout
answer Yes
remove R:3:3
export new ales.TWR Mild
export new log.TWR Mild
report text report.txt Bock
report html report.htm Bock
report rtf report.rtf Bock
)";

struct Operation {
    const char* name;
    const char* script;
    // True if a failure of the disk may leave part of the changes to the database, with a message. A file is
    // never left incomplete.
    bool ofDatabase = false;
};

constexpr Operation kOperations[] = {
    {"ANewRecipe", "new\nset txtNotes fourth\nsaveas 0 Porter\n", true},
    {"ASavedRecipe", "open Mild\nset txtNotes changed\nsave\n", true},
    {"ARecipeOverAnother", "open Bock\nanswer Yes\nsaveas 0 Mild\n", true},
    {"ADeletedRecipe", "answer Yes\nremove R:2:3\n", true},
    {"ANewFolder", "folder F:0 Ales\n", true},
    {"AnImport", "import 0 stout.TWR\n", true},
    {"AnExportToANewFile", "export new fresh.TWR Mild Bock\n"},
    {"AnExportOverAnOlderFile", "export new ales.TWR Bock Mild\n"},
    {"AnExportAddedToAFile", "export ales.TWR Bock\n"},
    {"ATextReport", "report text report.txt Mild\n"},
    {"AnAddedTextReport", "setting TextOptions Append 1\nreport text report.txt Mild\n"},
    {"AnHtmlReport", "report html report.htm Mild\n"},
    {"ARichTextReport", "report rtf report.rtf Mild Bock\n"},
};

std::vector<std::string> Console(const std::string& settings = ":memory:") {
    return {CONSOLE, "--database", "beer.mdb", "--settings", settings};
}

bool IsDatabase(const fs::path& path) {
    return path.extension() == ".mdb" || path.extension() == ".TWR";
}

// Returns every row of every table. Opening the database rolls back a journal that was left,
// as the next start does.
std::string Dump(const fs::path& path) {
    const auto database = Database::OpenDatabase(path.string(), false);
    EXPECT_EQ(database->OpenRecordset("SELECT integrity_check FROM pragma_integrity_check").Fields(0).Text(),
              "ok");
    std::string all;
    for (Recordset table = database->OpenRecordset(
             "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite%' ORDER BY name");
         !table.AtEnd(); table.MoveNext()) {
        const std::string name = table.Fields(0).Text();
        all += name + "\n";
        std::multiset<std::string> rows;
        for (Recordset row = database->OpenRecordset("SELECT * FROM [" + name + "]"); !row.AtEnd();
             row.MoveNext()) {
            std::string text;
            for (int column = 0; column < row.FieldCount(); ++column)
                // The time of a save differs from run to run.
                if (row.TypeOf(column) != FieldType::Date) text += row.Fields(column).Text() + "\t";
            rows.insert(std::move(text));
        }
        for (const std::string& text : rows) all += text + "\n";
    }
    return all;
}

std::string Bytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

// The contents of all files of a folder, by name. Journals have been rolled back by then; an empty one may
// remain until the next start.
using State = std::map<std::string, std::string>;

State StateOf(const fs::path& folder) {
    State state;
    std::set<fs::path> paths;
    for (const auto& entry : fs::directory_iterator(folder)) paths.insert(entry.path());
    for (const fs::path& path : paths)
        if (IsDatabase(path)) state[path.filename().string()] = Dump(path);
    for (const fs::path& path : paths)
        if (!IsDatabase(path) && path.filename() != "beer.mdb-journal")
            state[path.filename().string()] = Bytes(path);
    return state;
}

// Returns the numbers of the calls, out of that many, at which a fault occurs.
std::vector<std::size_t> Places(std::size_t calls) {
    const char* const wanted = std::getenv("TUNWRIGHT_FAULTS");
    const std::size_t most = wanted != nullptr && std::string_view(wanted) == "all" ? calls : 3;
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < std::min(most, calls); ++i)
        places.push_back(1 + i * calls / std::min(most, calls));
    return places;
}

class FaultTest : public testing::Test {
  protected:
    FaultTest() {
        std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
        std::ranges::replace(name, '/', '-');
        root = fs::canonical(testing::TempDir()) / ("tunwright_faults_" + name);
        fs::remove_all(root);
        fs::create_directories(root / "old");
        CreateSchema(*Database::CreateDatabase((root / "old" / "beer.mdb").string(), ""));
        const FaultyRun setup = RunWithFault(Console(), root / "old", kSetup, Fault::None, 0);
        EXPECT_EQ(setup.status, 0) << setup.output;
        EXPECT_THAT(setup.output, testing::Not(testing::HasSubstr("[Error]")));
        // What the recipes carry must be as old or new as they are.
        const auto database = Database::OpenDatabase((root / "old" / "beer.mdb").string(), false);
        for (const char* recipe : {"Mild", "Bock"})
            CarriedData(*database).Keep(RecipeId(*database, recipe).value(), kCarriedBeerXml, "old.xml",
                                        {2026, 5, 4, 9, 30, 5}, "<RECIPE/>");
    }
    ~FaultTest() override {
        std::error_code ignored;
        fs::remove_all(root, ignored);
    }

    // Runs the operation on a fresh copy of the files.
    FaultyRun Run(const std::vector<std::string>& command, const std::string& script, Fault fault,
                  std::size_t at) {
        fs::remove_all(Work());
        fs::copy(root / "old", Work(), fs::copy_options::recursive);
        return RunWithFault(command, Work(), script, fault, at);
    }
    fs::path Work() const { return root / "work"; }

    // Expects that each file is the old or the new one and that there are no other files, except those that
    // a killed writer leaves.
    static void ExpectOldOrNew(const State& state, const State& before, const State& after, Fault fault) {
        for (const auto& [name, contents] : state) {
            const auto old = before.find(name), changed = after.find(name);
            if (old == before.end() && changed == after.end()) {
                EXPECT_TRUE(fault == Fault::Kill && name.ends_with(kUnderWay)) << name;
            } else {
                EXPECT_TRUE((old != before.end() && contents == old->second) ||
                            (changed != after.end() && contents == changed->second))
                    << name << " is neither the old nor the new file:\n"
                    << contents;
            }
        }
        for (const auto& entry : before)
            EXPECT_TRUE(state.contains(entry.first) || !after.contains(entry.first)) << entry.first;
    }

    fs::path root;
};

class OperationFaultTest : public FaultTest, public testing::WithParamInterface<Operation> {
  protected:
    void SetUp() override {
        const FaultyRun clean = Run(Console(), GetParam().script, Fault::None, 0);
        ASSERT_EQ(clean.status, 0) << clean.output;
        calls = clean.calls;
        ASSERT_GE(calls.size(), 4u);
        before = StateOf(root / "old");
        after = StateOf(Work());
        ASSERT_NE(before, after);
    }

    void Strike(Fault fault, std::size_t at) {
        const FaultyRun run = Run(Console(), GetParam().script, fault, at);
        ASSERT_EQ(run.killed, fault == Fault::Kill) << run.output;
        State state = StateOf(Work());
        if (fault != Fault::Kill) {
            EXPECT_TRUE(state == after || run.output.find("Error") != std::string::npos)
                << "the failure was not told: " << run.output;
            if (GetParam().ofDatabase) TakeUnfinished(state);
        }
        ExpectOldOrNew(state, before, after, fault);
    }

    // A recipe that is in both the old and the new database must be there; the others may
    // have been stored in part.
    void TakeUnfinished(State& state) const {
        for (const char* recipe : {"Mild", "Bock"})
            EXPECT_GE(state["beer.mdb"].find(recipe) != std::string::npos,
                      after.at("beer.mdb").find(recipe) != std::string::npos)
                << recipe;
        state["beer.mdb"] = before.at("beer.mdb");
    }

    std::vector<std::string> calls;
    State before, after;
};

TEST_P(OperationFaultTest, IsWholeAfterAFaultAtEachCall) {
    for (const Fault fault : {Fault::Kill, Fault::Fail, Fault::Full})
        for (const std::size_t at : Places(calls.size())) {
            SCOPED_TRACE(NameOf(fault) + (" at call " + std::to_string(at)) + ": " + calls[at - 1]);
            Strike(fault, at);
        }
}

INSTANTIATE_TEST_SUITE_P(Faults, OperationFaultTest, testing::ValuesIn(kOperations),
                         [](const auto& test) { return test.param.name; });

// The settings are written by Qt, which uses a temporary file and a lock file; a kill
// leaves these files behind.
TEST_F(FaultTest, SettingsSurviveAKillAtEachCall) {
    std::ofstream(root / "old" / "kept.ini") << "[Settings]\nBoilVol=6 gal\n";
    const std::string script = "setting Settings BoilVol 7 gal\n";
    const State before = StateOf(root / "old");
    const FaultyRun clean = Run(Console("kept.ini"), script, Fault::None, 0);
    const State after = StateOf(Work());
    ASSERT_NE(before.at("kept.ini"), after.at("kept.ini"));
    for (const std::size_t at : Places(clean.calls.size())) {
        SCOPED_TRACE("at call " + std::to_string(at) + ": " + clean.calls[at - 1]);
        ASSERT_TRUE(Run(Console("kept.ini"), script, Fault::Kill, at).killed);
        State state = StateOf(Work());
        std::erase_if(state, [](const auto& file) { return file.first.starts_with("kept.ini."); });
        ExpectOldOrNew(state, before, after, Fault::Kill);
    }
}

// Unsaved work, as the desktop program keeps it every few seconds.
TEST_F(FaultTest, AnUnsavedRecipeIsTheOldOrTheNewOne) {
    const std::string self = fs::read_symlink("/proc/self/exe").string();
    const auto keep = [&](const std::string& folder, const char* text) {
        return std::vector<std::string>{self, "--keep-recipe", folder, text};
    };
    const std::string unsaved = (Work() / "unsaved").string();
    ASSERT_EQ(RunWithFault(keep((root / "old" / "unsaved").string(), "old"), root / "old", "", Fault::None, 0)
                  .status,
              0);
    const auto notes = [&]() -> std::vector<std::string> {
        std::vector<std::string> all;
        const FoundRecipes found = Recovery(unsaved, "/Tunwright.mdb", "").Find();
        EXPECT_TRUE(found.putAside.empty());
        for (const LostRecipe& lost : found.lost) all.push_back(lost.snapshot.fields.at(0).text);
        return all;
    };
    const FaultyRun clean = Run(keep(unsaved, "new"), "", Fault::None, 0);
    EXPECT_THAT(notes(), testing::ElementsAre("new"));
    ASSERT_GE(clean.calls.size(), 4u);
    for (const Fault fault : {Fault::Kill, Fault::Fail, Fault::Full})
        for (std::size_t at = 1; at <= clean.calls.size(); ++at) {
            SCOPED_TRACE("at call " + std::to_string(at) + ": " + clean.calls[at - 1]);
            Run(keep(unsaved, "new"), "", fault, at);
            EXPECT_THAT(notes(), testing::ElementsAre(testing::AnyOf("old", "new")));
            // Files left by the interrupted write have been deleted by then.
            EXPECT_EQ(
                std::distance(fs::directory_iterator(Recovery::FolderOf(unsaved, "/Tunwright.mdb")), {}), 1);
        }
}

// A power failure keeps only what was synced: the contents of the new file must be on the disk before its
// name is, and the name when the operation ends.
class PowerTest : public FaultTest {
  protected:
    static std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }
    // Returns the index of the last such call before end; -1 if there is none.
    static long Last(const std::vector<std::string>& calls, const std::string& call, long end) {
        for (long i = end - 1; i >= 0; --i)
            if (calls[static_cast<std::size_t>(i)] == call) return i;
        return -1;
    }
};

TEST_F(PowerTest, ANewFileIsOnTheDiskBeforeItsName) {
    const char* const names[] = {"report.txt", "report.htm", "ales.TWR", "fresh.TWR"};
    const FaultyRun run = Run(Console(),
                              "report text report.txt Mild\nreport html report.htm Mild\n"
                              "export ales.TWR Bock\nexport new fresh.TWR Mild\n",
                              Fault::None, 0);
    const auto end = static_cast<long>(run.calls.size());
    for (const std::string name : names) {
        const std::string target = (Work() / name).string();
        const std::string beside = (Work() / ("." + name + std::string(kUnderWay))).string();
        const std::string folder = Work().string();
        const long renamed = Last(run.calls, "rename " + beside + " " + target, end);
        ASSERT_GE(renamed, 0) << name;
        const long synced = Last(run.calls, "sync " + beside, renamed);
        EXPECT_GT(synced, Last(run.calls, "write " + beside, renamed)) << name;
        EXPECT_GT(Last(run.calls, "sync " + folder, end), renamed) << name;
        EXPECT_EQ(Last(run.calls, "write " + target, end), -1) << name;
    }
}

}  // namespace
}  // namespace tw::test
