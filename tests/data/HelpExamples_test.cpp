// Compares the figures in the examples on the help pages with those that the program computes.
//
// A page marks a figure as <samp data-figure="NAME">1.052</samp>. The script help/NAME-OF-THE-PAGE.tws,
// run with the shipped catalogue, contains "# NAME" on the line before the command that prints the figure;
// ", word 2" or ", words 1-2" after the name selects words of the output. Every other number on a page is
// in <code>, <kbd>, <sup> or a formula, or is listed in help/given.tsv: entries of the brewer, constants
// and advice.
#include <cctype>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/Console.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

const fs::path kPages = HELP_PAGES;
const fs::path kScripts = HELP_SCRIPTS;
// The name above a command whose entry, shown on the page, is refused.
const std::string kRefused = "refused";

std::string TextOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::string Replaced(const std::string& text, const char* pattern, const char* by) {
    return std::regex_replace(text, std::regex(pattern), by);
}

// Returns the text of a piece of HTML: without tags, with single blanks, with entities replaced.
std::string Plain(const std::string& html) {
    std::string text = Replaced(Replaced(html, "<[^>]*>", " "), "\\s+", " ");
    for (const auto& [name, character] :
         {std::pair("&gt;", ">"), std::pair("&lt;", "<"), std::pair("&quot;", "\""), std::pair("&amp;", "&")})
        text = Replaced(text, name, character);
    return text;
}

struct Figure {
    std::string name;
    std::string text;
};

std::vector<Figure> FiguresOf(const std::string& html) {
    static const std::regex samp("<samp data-figure=\"([^\"]*)\">([^<]*)</samp>");
    std::vector<Figure> figures;
    for (std::sregex_iterator match(html.begin(), html.end(), samp), end; match != end; ++match)
        figures.push_back({(*match)[1], Plain((*match)[2])});
    return figures;
}

std::string BodyOf(const std::string& html) {
    return html.substr(html.find("<body"));
}

// Returns the entries that the page tells the reader to type.
Strings EntriesOf(const std::string& html) {
    static const std::regex code("<code>([^<]*)</code>");
    Strings entries;
    for (std::sregex_iterator match(html.begin(), html.end(), code), end; match != end; ++match)
        entries.push_back(Plain((*match)[1]));
    return entries;
}

std::vector<fs::path> Pages() {
    std::vector<fs::path> pages;
    for (const auto& entry : fs::directory_iterator(kPages))
        if (entry.path().extension() == ".html") pages.push_back(entry.path());
    return pages;
}

// Returns the words of a text, without parentheses and degree signs.
Strings WordsOf(const std::string& text) {
    std::istringstream stream(Replaced(text, "[()\u00b0]", " "));
    Strings words;
    for (std::string word; stream >> word;) words.push_back(word);
    return words;
}

bool IsNumber(const std::string& text) {
    return std::regex_match(text, std::regex("-?[0-9]+(\\.[0-9]+)?"));
}

// True if the page shows what was printed. A number printed with more decimal places is rounded to those that
// the page shows.
bool Says(const std::string& shown, const std::string& printed) {
    if (shown == printed) return true;
    if (!IsNumber(shown) || !IsNumber(printed)) return false;
    const std::size_t point = shown.find('.');
    const std::size_t places = point == std::string::npos ? 0 : shown.size() - point - 1;
    const double half = 0.5 * std::pow(10, -static_cast<double>(places));
    return std::abs(std::stod(shown) - std::stod(printed)) <= half + 1e-9;
}

class HelpExamples : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder_ = fs::path(testing::TempDir()) / ("help_examples_" + std::to_string(getpid()));
        fs::create_directories(folder_);
        const std::string made = (folder_ / "made.mdb").string();
        ASSERT_EQ(std::system(("'" MAKE_DATABASE "' '" CATALOGUE_FOLDER "' '" + made + "'").c_str()), 0);
    }
    static void TearDownTestSuite() { fs::remove_all(folder_); }

    // Returns the output of a page's script, by the names of the figures.
    static std::multimap<std::string, std::string> Printed(const std::string& script) {
        fs::copy_file(folder_ / "made.mdb", folder_ / "run.mdb", fs::copy_options::overwrite_existing);
        MemorySettings settings;
        std::ostringstream out, errors;
        Console console((folder_ / "run.mdb").string(), settings, out, errors);
        std::multimap<std::string, std::string> printed;
        std::istringstream lines(script);
        std::string name;
        for (std::string line; std::getline(lines, line);) {
            out.str("");
            std::istringstream command(line);
            EXPECT_EQ(console.Run(command, "script"), ExitStatus::Done) << line << ": " << errors.str();
            if (!out.str().empty()) Take(printed, name, out.str(), line);
            name = line.starts_with("# ") ? line.substr(2) : "";
        }
        console.End();
        return printed;
    }

  private:
    static void Take(std::multimap<std::string, std::string>& printed, const std::string& name,
                     const std::string& text, const std::string& line) {
        static const std::regex pattern("(.*), words? ([0-9]+)(?:-([0-9]+))?");
        EXPECT_NE(name, "") << "'" << line << "' prints what no figure is named for: " << text;
        std::smatch match;
        if (!std::regex_match(name, match, pattern)) {
            printed.emplace(name, text.substr(0, text.find_last_not_of('\n') + 1));
            return;
        }
        const Strings words = WordsOf(text);
        const std::size_t first = std::stoul(match[2]),
                          last = match[3].matched ? std::stoul(match[3]) : first;
        std::string chosen;
        for (std::size_t i = first; i <= last; ++i)
            chosen += (i == first ? "" : " ") + (i <= words.size() ? words[i - 1] : std::string("nothing"));
        printed.emplace(match[1], chosen);
    }

    static fs::path folder_;
};

fs::path HelpExamples::folder_;

TEST_F(HelpExamples, AreWhatTheProgramGives) {
    int compared = 0;
    for (const fs::path& page : Pages()) {
        const std::vector<Figure> figures = FiguresOf(TextOf(page));
        const fs::path script = kScripts / page.filename().replace_extension(".tws");
        ASSERT_EQ(figures.empty(), !fs::exists(script)) << page.filename();
        if (figures.empty()) continue;
        const auto printed = Printed(TextOf(script));
        std::set<std::string> shown{kRefused};
        for (const Figure& figure : figures) {
            EXPECT_GT(printed.count(figure.name), 0U)
                << page.filename() << " has no script for " << figure.name;
            const auto [begin, end] = printed.equal_range(figure.name);
            for (auto answer = begin; answer != end; ++answer)
                EXPECT_TRUE(Says(figure.text, answer->second))
                    << page.filename() << ", " << figure.name << ": the page says " << figure.text
                    << ", the program " << answer->second;
            shown.insert(figure.name);
            ++compared;
        }
        for (const auto& [name, text] : printed)
            EXPECT_TRUE(shown.contains(name)) << page.filename() << " does not show " << name;
    }
    EXPECT_GT(compared, 60);
}

TEST_F(HelpExamples, AreTypedAsThePageSays) {
    for (const fs::path& page : Pages()) {
        const std::string html = TextOf(page);
        if (FiguresOf(html).empty()) continue;
        const std::string script = TextOf(kScripts / page.filename().replace_extension(".tws"));
        for (const std::string& entry : EntriesOf(html))
            EXPECT_THAT(script, testing::HasSubstr(entry)) << page.filename();
    }
}

// Returns the numbers on a page that are neither marked nor given, with the words before them, and the given
// phrases that the page does not contain.
Strings UnknownNumbers(const std::string& html, const Strings& given) {
    std::string body = Replaced(BodyOf(html), "<(code|kbd|samp|sup)\\b[^>]*>[^<]*</\\1>", "");
    std::string text = Plain(Replaced(body, "<p class=\"formula\">[\\s\\S]*?</p>", ""));
    Strings unknown;
    for (const std::string& phrase : given) {
        const std::size_t at = text.find(phrase);
        if (at == std::string::npos)
            unknown.emplace_back("not on the page: " + phrase);
        else
            text.replace(at, phrase.size(), "");
    }
    static const std::regex number("(?:\\S+ ){0,4}\\S*[0-9]\\S*");
    for (std::sregex_iterator match(text.begin(), text.end(), number), end; match != end; ++match)
        unknown.push_back(match->str());
    return unknown;
}

TEST(HelpNumbers, AreAllMarkedAsFiguresOrKnownAsGiven) {
    std::map<std::string, Strings> given;
    std::istringstream rows(TextOf(kScripts / "given.tsv"));
    for (std::string row; std::getline(rows, row);)
        given[row.substr(0, row.find('\t'))].push_back(row.substr(row.find('\t') + 1));
    for (const fs::path& page : Pages()) {
        EXPECT_EQ(UnknownNumbers(TextOf(page), given[page.filename()]), Strings{}) << page.filename();
        given.erase(page.filename());
    }
    for (const auto& [page, phrases] : given) ADD_FAILURE() << "there is no page " << page;
}

TEST(HelpNumbers, TheCheckSeesAFigureWithoutAScript) {
    const std::string page = "<body><p>Ten <code>9 lb</code> give <samp data-figure=\"a\">1.052</samp>.</p>";
    EXPECT_EQ(UnknownNumbers(page, {}), Strings{});
    EXPECT_EQ(UnknownNumbers(page + "<td>a b c d e 8 SRM</td>", {}), (Strings{"b c d e 8"}));
    EXPECT_EQ(UnknownNumbers(page + "at 68 °F", {"at 68 °F"}), Strings{});
    EXPECT_EQ(UnknownNumbers(page, {"at 68 °F"}), (Strings{"not on the page: at 68 °F"}));
}

TEST(HelpNumbers, AFigureIsComparedAsFarAsThePageGoes) {
    EXPECT_TRUE(Says("1.052", "1.052"));
    EXPECT_TRUE(Says("23.1", "23.06640772510991"));
    EXPECT_TRUE(Says("5.5%", "5.5%"));
    EXPECT_TRUE(Says("-56", "-56"));
    EXPECT_FALSE(Says("56", "-56"));
    EXPECT_FALSE(Says("23.1", "23.16"));
    EXPECT_FALSE(Says("1.052", "1.0526"));
    EXPECT_FALSE(Says("43", "43 IBUs"));
}

}  // namespace
}  // namespace tw::test
