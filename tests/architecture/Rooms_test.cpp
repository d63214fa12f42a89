// Checks rules of the architecture in the text of the sources: the size of classes, mutual includes,
// comparisons of addresses, where windows are created and where the names of commands occur.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>

#include "architecture/SourceReader.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;

// How often each place breaks a rule.
using Offences = std::map<std::string, int>;

constexpr int kMostFunctions = 60;

// The tables of the commands.
constexpr std::string_view kCommandTables = "src/commands/";
constexpr std::string_view kDialogTable = "src/platform/qt/QtDialogs.h";

// Returns the sources below a folder of the checkout, keyed by their paths from its root.
std::map<std::string, std::string> SourcesBelow(const std::string& folder) {
    const fs::path root = TUNWRIGHT_SOURCES;
    std::map<std::string, std::string> sources;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root / folder)) {
        const fs::path extension = entry.path().extension();
        if (extension != ".h" && extension != ".cpp") continue;
        sources[fs::relative(entry.path(), root).generic_string()] = ReadSource(entry.path());
    }
    return sources;
}

// Counts the matches of a pattern in each source below src, after prepare has reduced the source.
template <class Prepare>
Offences FilesWith(const std::string& pattern, Prepare prepare) {
    const std::regex expression(pattern);
    Offences found;
    for (const auto& [path, source] : SourcesBelow("src")) {
        const std::string text = prepare(source);
        const auto count =
            std::distance(std::sregex_iterator(text.begin(), text.end(), expression), std::sregex_iterator());
        if (count > 0) found[path] = static_cast<int>(count);
    }
    return found;
}

// Fails for every place that breaks the rule.
void ExpectNone(const Offences& found, const std::string& rule) {
    for (const auto& [place, count] : found) ADD_FAILURE() << place << " (" << count << "): " << rule;
}

TEST(Rooms, AreReadWhole) {
    EXPECT_TRUE(SourcesBelow("src").contains("src/document/RecipeDocument.h"));
}

TEST(Rooms, NoClassDeclaresMoreThanSixtyFunctions) {
    Offences large;
    for (const auto& [path, source] : SourcesBelow("src")) {
        if (!path.ends_with(".h")) continue;
        for (const DeclaredClass& found : ClassesOf(source))
            if (found.functions > kMostFunctions) large[path + " " + found.name] = found.functions;
    }
    ExpectNone(large, "a class has one job and at most 60 functions");
}

// Returns the code of a source that mentions controls, else nothing: elsewhere, comparing addresses may tell
// whether two things are the same.
std::string CodeWithControls(std::string_view source) {
    const std::string code = CodeOf(source);
    static const std::regex kControls(R"(\b(Grid|TextBox|RecipeRecord)\b)");
    return std::regex_search(code, kControls) ? code : std::string();
}

TEST(Rooms, NoAddressTellsWhatAControlIs) {
    ExpectNone(
        FilesWith(R"(&\w+(\.|->)?\w*\s*[!=]=\s*&\w|[!=]=\s*&(r|r_|record_|record)\.\w)", CodeWithControls),
        "ask the control for its id, and the tables of fields and cells for the rest");
}

std::string CodeWithCasts(std::string_view source) {
    return source.find("dynamic_cast") == std::string_view::npos ? std::string() : CodeOf(source);
}

TEST(Rooms, WindowsAreMadeFromModelsInOnePlace) {
    Offences casts = FilesWith(R"(dynamic_cast<\s*(const )?\w*(Model|Editor)\s*[&*])", CodeWithCasts);
    casts.erase(std::string(kDialogTable));
    ExpectNone(casts, "the table of dialog windows says what a model is; elsewhere ask the model");
}

// A header and its source together, by their path without extension, with all others that they include.
using Includes = std::map<std::string, std::set<std::string>>;

Includes IncludesBelow(const std::string& folder) {
    static const std::regex kInclude(R"re(#include "([^"]+)\.h")re");
    Includes includes;
    for (const auto& [path, source] : SourcesBelow(folder)) {
        const std::string unit = path.substr(0, path.rfind('.'));
        const std::string text = WithoutComments(source);
        for (std::sregex_iterator at(text.begin(), text.end(), kInclude), end; at != end; ++at)
            if (const std::string other = "src/" + (*at)[1].str(); other != unit)
                includes[unit].insert(other);
    }
    return includes;
}

// The pairs that cannot be apart; the first of each comes first in the alphabet.
const std::set<std::pair<std::string, std::string>> kOneThingInTwoFiles = {
    // A tree is nodes of nodes; each node finds its tree.
    {"src/tree/TWNode", "src/tree/TWNodes"},
    {"src/tree/TWNode", "src/tree/TWTree"},
};

TEST(Rooms, NoTwoFilesUseEachOther) {
    const Includes includes = IncludesBelow("src");
    ASSERT_TRUE(includes.contains("src/document/RecipeDocument"));
    std::set<std::pair<std::string, std::string>> pairs;
    for (const auto& [unit, others] : includes)
        for (const std::string& other : others)
            if (const auto back = includes.find(other); back != includes.end() && back->second.contains(unit))
                pairs.insert(std::minmax(unit, other));
    for (const auto& pair : pairs)
        EXPECT_TRUE(kOneThingInTwoFiles.contains(pair))
            << pair.first << " and " << pair.second
            << " include each other: hand what one needs to its constructor, or give it an interface";
    for (const auto& pair : kOneThingInTwoFiles)
        EXPECT_TRUE(pairs.contains(pair)) << pair.first << ", " << pair.second << ": the list may shrink";
}

TEST(Rooms, CommandsAreNamedInTheirTableAlone) {
    Offences named = FilesWith("\"mnu", WithoutComments);
    std::erase_if(named, [](const auto& place) { return place.first.starts_with(kCommandTables); });
    ExpectNone(named, "a command is named by its id; its name stands in src/commands");
}

}  // namespace
}  // namespace tw::test
