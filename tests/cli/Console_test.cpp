// Tests of whole scripts: where they stop, what they print, and that every command is documented and tested.
#include "cli/Console.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "cli/Command.h"
#include "cli/CommandLine.h"
#include "store/Schema.h"

namespace tw {
namespace {

using testing::HasSubstr;

struct Outcome {
    ExitStatus status;
    std::string out;
    std::string errors;
};

Outcome RunText(const std::string& text, const std::string& database = ":memory:") {
    MemorySettings settings;
    std::ostringstream out;
    std::ostringstream errors;
    Console console(database, settings, out, errors);
    console.SetProgramFolder(PROGRAM_FOLDER);
    std::istringstream script(text);
    const ExitStatus status = console.Run(script, "s.tws");
    if (status == ExitStatus::Done) console.End();
    return {status, out.str(), errors.str()};
}

TEST(Console, SkipsBlankLinesAndComments) {
    const Outcome outcome = RunText("\n   \n# gravity 0\n  # indented\ngravity 0\n");
    EXPECT_EQ(outcome.status, ExitStatus::Done);
    EXPECT_EQ(outcome.out, "1\n");
    EXPECT_EQ(outcome.errors, "");
}

TEST(Console, TakesEitherLineEndAndNoneAtTheLastLine) {
    EXPECT_EQ(RunText("gravity 0\r\nparse ParseReal 5\r\n\r\nparse ParseReal 6").out, "1\n5\n6\n");
}

TEST(Console, SkipsAByteOrderMarkBeforeTheFirstLineOnly) {
    EXPECT_EQ(RunText("\xEF\xBB\xBFgravity 0\n").out, "1\n");
    EXPECT_EQ(RunText("\xEF\xBB\xBF# a comment\ngravity 0\n").out, "1\n");
    EXPECT_EQ(RunText("gravity 0\n\xEF\xBB\xBFgravity 0\n").status, ExitStatus::BadLine);
}

TEST(Console, StopsAtTheFirstLineThatCannotBeCarriedOut) {
    const Outcome outcome = RunText("gravity 0\n\nfrobnicate\ngravity 0\n");
    EXPECT_EQ(outcome.status, ExitStatus::BadLine);
    EXPECT_EQ(outcome.out, "1\n");
    EXPECT_EQ(outcome.errors, "s.tws:3: unknown command 'frobnicate'\n");
}

TEST(Console, ShowsAReasonOnOneLine) {
    EXPECT_EQ(RunText("\"a\\nb\"\n").errors, "s.tws:1: unknown command 'a\\nb'\n");
}

TEST(Console, WritesNoReportOverTheDatabase) {
    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "tunwright_console_own";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    const std::string path = (folder / "beer.mdb").string(), link = (folder / "beer.txt").string();
    CreateSchema(*Database::CreateDatabase(path, ""));
    std::filesystem::create_symlink("beer.mdb", link);
    const Outcome outcome =
        RunText("new\nsaveas 0 Mild\nreport html " + path + " Mild\nreport rtf " + link +
                    " Mild\nsetting TextOptions Append 1\nreport text " + link + " Mild\n",
                path);
    EXPECT_EQ(outcome.status, ExitStatus::Done);
    EXPECT_EQ(outcome.out, "[Error] Could not create report file \"" + path +
                               "\"\n[Error] Could not create report file \"" + link +
                               "\"\n[Error] Could not create report file \"" + link + "\"\n");
    EXPECT_EQ(RunText("sql SELECT NAME FROM RECIPES\n", path).out, "Mild\n");
    std::filesystem::remove_all(folder);
}

TEST(Console, LooksForTheDatabaseWhenItIsNeeded) {
    const std::string missing = "/nonexistent/Tunwright.mdb";
    EXPECT_EQ(RunText("gravity 0\nsetting Settings HopForm 2\nanswer Yes\ndialogs on\n", missing).status,
              ExitStatus::Done);
    const Outcome outcome = RunText("gravity 0\nnew\ngravity 0\n", missing);
    EXPECT_EQ(outcome.status, ExitStatus::NoDatabase);
    EXPECT_EQ(outcome.out, "1\n[Fatal Error] Could not find file '" + missing +
                               "'.\\r\\nCould not open Tunwright database!\n");
    EXPECT_EQ(outcome.errors, "");
}

TEST(Console, StopsAtAQuestionThatIsNotAnswered) {
    const Outcome outcome = RunText("new\nset txtName X\nmenu mnuFileClose\nnew\n");
    EXPECT_EQ(outcome.status, ExitStatus::BadLine);
    EXPECT_THAT(outcome.errors, HasSubstr("s.tws:3: the question [Unsaved Changes]"));
}

TEST(Console, KeepsADatabaseInMemoryOverRestarts) {
    EXPECT_EQ(RunText("new\nsaveas 0 X\nrestart\nrestart\nopen X\nget txtName\n").out, "X\n");
}

TEST(Console, StartsAgainAfterTheExitCommand) {
    EXPECT_EQ(RunText("new\nsaveas 0 X\nmenu mnuFileExit\ndocuments\nopen X\ndocuments\n").out, "*X\n");
}

TEST(Console, WritesTheRecentListAtItsEnd) {
    MemorySettings settings;
    std::ostringstream out;
    Console console(":memory:", settings, out, out);
    std::istringstream script("new\nsaveas 0 X\n");
    EXPECT_EQ(console.Run(script, "s.tws"), ExitStatus::Done);
    EXPECT_EQ(settings.Read(SettingsPort::Layer::User, "MRU", "File0"), std::nullopt);
    console.End();
    EXPECT_EQ(settings.Read(SettingsPort::Layer::User, "MRU", "File0"), "X");
}

TEST(Console, RefusesWrongArgumentsOfEveryCommand) {
    // Too few arguments for a command with a fixed first argument, too many for the others.
    const std::set<std::string_view> takesNothing = {
        "new",     "save",  "close",     "documents", "changed",  "swatch",    "slider", "mru",
        "restart", "undo",  "redo",      "undotype",  "redotype", "selectall", "copy",   "cut",
        "clear",   "paste", "clipboard", "tree",      "treat",    "contents",  "print"};
    // These accept any text, even none.
    const std::set<std::string_view> takesAnyText = {"answer", "setclipboard", "dde"};
    for (const Command& command : AllCommands()) {
        if (takesAnyText.contains(command.name)) continue;
        const std::string extra = takesNothing.contains(command.name) ? " extra" : "";
        const Outcome outcome = RunText("new\n" + std::string(command.name) + extra + "\n");
        if (command.name == "sql") {
            EXPECT_EQ(outcome.out, "[Error] The SQL text holds no statement. (1)\n");
            continue;
        }
        EXPECT_EQ(outcome.status, ExitStatus::BadLine) << command.name;
        EXPECT_EQ(outcome.errors.substr(0, 9), "s.tws:2: ") << command.name;
    }
}

TEST(Console, SurvivesHugeLinesAndNumbers) {
    const std::string huge(3'000'000, 'x');
    EXPECT_EQ(RunText("new\nset txtName " + huge + "\nget txtName\n").out, huge + "\n");
    const std::string digits(1000, '9');
    for (const std::string& line : std::vector<std::string>{
             "get gridGrain " + digits + " 0", "row gridGrain 2147483647", "delete gridGrain 2147483647",
             "insert gridGrain 2147483647", "tab " + digits, "cell gridGrain -1 0 x",
             "number gridGrain 0 " + digits, "quantity " + digits + " 1"}) {
        EXPECT_EQ(RunText("new\n" + line + "\n").status, ExitStatus::BadLine) << line.substr(0, 40);
    }
}

TEST(CommandLine, TakesOptionsAndScripts) {
    const CommandLine line =
        ReadCommandLine({"--database", "a.mdb", "x.tws", "--settings", "s.ini", "-", "y.tws"});
    EXPECT_EQ(line.database, "a.mdb");
    EXPECT_EQ(line.settings, "s.ini");
    EXPECT_EQ(line.scripts, (std::vector<std::string>{"x.tws", "-", "y.tws"}));
    EXPECT_FALSE(line.help);
}

TEST(CommandLine, TakesAnythingForAScriptBehindTwoDashes) {
    EXPECT_EQ(ReadCommandLine({"--", "--help"}).scripts, std::vector<std::string>{"--help"});
}

TEST(CommandLine, RefusesUnknownOptionsAndMissingFiles) {
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"--databse", "x"}, {"--database"}, {"--settings"}, {"-x"}})
        EXPECT_THROW(ReadCommandLine(arguments), ScriptError) << arguments.front();
}

// An example of the page: a fenced block "console" is a script, and the block "output" after it is
// what the script prints.
struct Example {
    int line = 0;
    std::string script;
    std::string output;
};

std::vector<Example> ExamplesOfThePage() {
    std::ifstream page(CONSOLE_PAGE);
    EXPECT_TRUE(page.is_open());
    std::vector<Example> examples;
    std::string* block = nullptr;
    std::string line;
    for (int number = 1; std::getline(page, line); ++number) {
        if (line == "```console") {
            examples.push_back({number, {}, {}});
            block = &examples.back().script;
        } else if (line == "```output") {
            block = &examples.back().output;
        } else if (line == "```") {
            block = nullptr;
        } else if (block != nullptr) {
            *block += line + "\n";
        }
    }
    return examples;
}

TEST(ConsolePage, ExamplesPrintWhatThePageSays) {
    const std::vector<Example> examples = ExamplesOfThePage();
    EXPECT_GE(examples.size(), 20U);
    // Their files are written to a folder that is deleted afterwards.
    const std::filesystem::path before = std::filesystem::current_path();
    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "tunwright_console_page";
    for (const Example& example : examples) {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        std::filesystem::current_path(folder);
        const Outcome outcome = RunText(example.script);
        std::filesystem::current_path(before);
        EXPECT_EQ(outcome.out, example.output) << "the example at line " << example.line;
        EXPECT_EQ(outcome.errors, "") << "the example at line " << example.line;
    }
    std::filesystem::remove_all(folder);
}

// Adds the first word of each line of a script.
void AddCommandsOf(std::istream& script, std::set<std::string, std::less<>>& names) {
    for (std::string line; std::getline(script, line);) names.insert(line.substr(0, line.find(' ')));
}

TEST(ConsolePage, ShowsEveryCommandWithItsFormAndAnExample) {
    std::set<std::string, std::less<>> shown;
    for (const Example& example : ExamplesOfThePage()) {
        std::istringstream script(example.script);
        AddCommandsOf(script, shown);
    }
    std::stringstream page;
    page << std::ifstream(CONSOLE_PAGE).rdbuf();
    for (const Command& command : AllCommands()) {
        EXPECT_TRUE(shown.contains(command.name)) << command.name << " has no example";
        std::string heading = "`" + std::string(command.name);
        if (!command.form.empty()) heading.append(" ").append(command.form);
        EXPECT_THAT(page.str(), HasSubstr(heading + "`"));
    }
}

TEST(GoldenScripts, ProveEveryCommand) {
    std::set<std::string, std::less<>> proven;
    for (const auto& entry : std::filesystem::directory_iterator(SCRIPT_FOLDER)) {
        if (entry.path().extension() != ".tws") continue;
        std::ifstream script(entry.path());
        AddCommandsOf(script, proven);
    }
    for (const Command& command : AllCommands())
        EXPECT_TRUE(proven.contains(command.name)) << command.name << " stands in no golden script";
}

TEST(GoldenScripts, BeginWithTheRuleThatTheyProve) {
    for (const auto& entry : std::filesystem::directory_iterator(SCRIPT_FOLDER)) {
        if (entry.path().extension() != ".tws") continue;
        std::ifstream script(entry.path());
        std::string line;
        std::getline(script, line);
        EXPECT_TRUE(line.starts_with("# ")) << entry.path();
    }
}

TEST(HelpPage, NamesEveryCommandOnALineOfItsOwn) {
    const std::string page = HelpPage();
    for (const Command& command : AllCommands())
        EXPECT_THAT(page, HasSubstr("\n  " + std::string(command.name) + " "));
}

}  // namespace
}  // namespace tw
