// Tests the shipped help pages: no dead link, no page that cannot be reached, no window without a page.
#include <filesystem>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "store/Database.h"
#include "values/QuantityParsers.h"

namespace tw::test {
namespace {

namespace fs = std::filesystem;

using Strings = std::set<std::string>;

const fs::path kProgram = PROGRAM_FOLDER;
const fs::path kPages = kProgram / "OnlineHelp";

std::string TextOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::vector<fs::path> Pages() {
    std::vector<fs::path> pages;
    for (const auto& entry : fs::directory_iterator(kPages))
        if (entry.path().extension() == ".html" && entry.path().filename() != "temp_index.html")
            pages.push_back(entry.path());
    return pages;
}

// Returns the first group of each match.
std::vector<std::string> Matches(const std::string& text, const std::string& pattern) {
    const std::regex regex(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match)
        found.push_back((*match)[1]);
    return found;
}

// Returns the first column of a query on help.mdb.
Strings Column(const std::string& sql) {
    const auto database = Database::OpenDatabase((kProgram / "help.mdb").string(), false);
    Strings values;
    for (Recordset rows = database->OpenRecordset(sql); !rows.AtEnd(); rows.MoveNext())
        values.insert(rows.Fields(0).Text());
    return values;
}

// Checks that the elements of a page are opened and closed correctly.
class Markup {
  public:
    // Returns all faults of the page; none for a well-formed one.
    static std::vector<std::string> FaultsOf(const std::string& html) {
        Markup markup;
        markup.Read(html);
        return markup.faults_;
    }

  private:
    void Read(const std::string& html) {
        static const std::regex tag("<(/?)([a-z][a-z0-9]*)((?:\\s+[a-z-]+=\"[^\"<]*\")*)\\s*(/?)>");
        std::size_t at = 0;
        for (std::sregex_iterator match(html.begin(), html.end(), tag), end; match != end; ++match) {
            Between(html.substr(at, static_cast<std::size_t>(match->position()) - at));
            at = static_cast<std::size_t>(match->position() + match->length());
            Take(*match);
        }
        Between(html.substr(at));
        for (const std::string& open : open_) faults_.emplace_back("<" + open + "> is not closed");
    }
    void Between(std::string text) {
        constexpr std::string_view kDocType = "<!DOCTYPE html>";
        if (text.starts_with(kDocType)) text.erase(0, kDocType.size());
        if (text.find_first_of("<>") != std::string::npos) faults_.emplace_back("a bare < or > in: " + text);
        if (std::regex_search(text, std::regex("&(?!(amp|lt|gt|quot|#[0-9]+);)")))
            faults_.emplace_back("a bare & in: " + text);
    }
    void Take(const std::smatch& tag) {
        const std::string name = tag[2];
        for (const std::string& id : Matches(tag[3], "\\bid=\"([^\"]*)\""))
            if (!ids_.insert(id).second) faults_.emplace_back("the id '" + id + "' twice");
        if (tag[1].length() > 0) {
            if (open_.empty() || open_.back() != name)
                faults_.emplace_back("</" + name + "> closes nothing");
            else
                open_.pop_back();
        } else if (tag[4].length() == 0) {
            open_.push_back(name);
        }
    }

    std::vector<std::string> open_;
    Strings ids_;
    std::vector<std::string> faults_;
};

TEST(HelpMarkup, TheCheckFindsWhatIsWrong) {
    const auto faults = [](const std::string& html) { return Markup::FaultsOf(html).size(); };
    EXPECT_EQ(faults("<!DOCTYPE html>\n<p id=\"a\">1 &lt; 2<br/></p>"), 0U);
    EXPECT_EQ(faults("<p><em>x</p></em>"), 2U) << "an end in the wrong place, and the paragraph stays open";
    EXPECT_EQ(faults("<p>"), 1U);
    EXPECT_EQ(faults("<p>a < b</p>"), 1U);
    EXPECT_EQ(faults("<p>salt & water</p>"), 1U);
    EXPECT_EQ(faults("<p class=x>a</p>"), 2U);
    EXPECT_EQ(faults("<p id=\"a\"></p><p id=\"a\"></p>"), 1U);
}

TEST(HelpPages, AreWellFormed) {
    EXPECT_GE(Pages().size(), 40U);
    for (const fs::path& page : Pages())
        EXPECT_EQ(Markup::FaultsOf(TextOf(page)), std::vector<std::string>{}) << page.filename();
    EXPECT_EQ(Markup::FaultsOf(TextOf(kProgram / "index_template.dat")), std::vector<std::string>{});
}

TEST(HelpPages, LinkToPlacesThatExist) {
    for (const fs::path& page : Pages()) {
        for (const std::string& link : Matches(TextOf(page), "\\b(?:href|src)=\"([^\"]*)\"")) {
            const std::size_t hash = link.find('#');
            const fs::path target = hash == 0 ? page : kPages / link.substr(0, hash);
            EXPECT_TRUE(fs::is_regular_file(target)) << page.filename() << " links to " << link;
            if (hash == std::string::npos || !fs::is_regular_file(target)) continue;
            EXPECT_THAT(TextOf(target), testing::HasSubstr("id=\"" + link.substr(hash + 1) + "\""))
                << page.filename() << " links to " << link;
        }
    }
}

TEST(HelpPages, NeedNoNetworkAndNoScript) {
    for (const fs::path& page : Pages()) {
        EXPECT_THAT(TextOf(page), testing::Not(testing::HasSubstr("://"))) << page.filename();
        EXPECT_THAT(TextOf(page), testing::Not(testing::HasSubstr("<script"))) << page.filename();
    }
}

TEST(HelpPages, EveryPictureIsShownAndHasWordsForIt) {
    Strings shown;
    for (const fs::path& page : Pages()) {
        const std::string text = TextOf(page);
        for (const std::string& picture : Matches(text, "<img src=\"pictures/([^\"]*)\""))
            shown.insert(picture);
        EXPECT_EQ(Matches(text, "(<img )").size(), Matches(text, "<img [^>]*alt=\"([^\"]+)\"").size())
            << page.filename();
    }
    Strings stored;
    for (const auto& entry : fs::directory_iterator(kPages / "pictures"))
        stored.insert(entry.path().filename().string());
    EXPECT_EQ(shown, stored);
}

TEST(HelpPages, AllStandInTheContentsAndInTheFrame) {
    Strings pages;
    for (const fs::path& page : Pages()) pages.insert(page.filename().string());
    pages.erase("index.html");
    EXPECT_EQ(Column("SELECT TOPIC_HELP_URL FROM HELP_CONTENTS"), pages);
    const std::vector<std::string> links =
        Matches(TextOf(kPages / "index.html"), "href=\"([^\"]*\\.html)\" target=\"page\"");
    EXPECT_EQ(Strings(links.begin(), links.end()), pages);
}

TEST(HelpPages, TheIndexIsTheTemplateWithTheHomePage) {
    const std::string frame = TextOf(kProgram / "index_template.dat");
    EXPECT_EQ(Matches(frame, "src=\"([^\"]*)\""), std::vector<std::string>{"$START_PAGE"});
    EXPECT_EQ(TextOf(kPages / "index.html"),
              std::regex_replace(frame, std::regex("\\$START_PAGE"), "home.html"));
}

bool IsHopAmount(std::string_view text) {
    return ParseOuncesAnyUnit(text) || ParseAAU(text) || ParseIBU(text);
}

// Every example in the table of units is accepted in the fields that the table names.
TEST(HelpPages, ShowUnitsThatAreAccepted) {
    const std::map<std::string, std::function<bool(std::string_view)>> accepts = {
        {"Volume", [](std::string_view t) { return ValidateVolume(t).Accepted(); }},
        {"Gravity", [](std::string_view t) { return ValidateGravity(t).Accepted(); }},
        {"Percentage", [](std::string_view t) { return ValidatePercent(t).Accepted(); }},
        {"Malt, extract", [](std::string_view t) { return ValidatePounds(t).Accepted(); }},
        {"Hops", IsHopAmount},
        {"Priming sugar", [](std::string_view t) { return ValidateOunces(t).Accepted(); }},
        {"Brewing salt", [](std::string_view t) { return ValidateGrams(t).Accepted(); }},
        {"Time", [](std::string_view t) { return ValidateMinutes(t).Accepted(); }},
        {"Temperature", [](std::string_view t) { return ValidateTemperature(t).Accepted(); }},
        {"Pressure", [](std::string_view t) { return ValidatePressure(t).Accepted(); }},
        {"Carbonation", [](std::string_view t) { return ParseCO2Volumes(t).has_value(); }}};
    const std::string page = TextOf(kPages / "units.html");
    Strings seen;
    for (const std::string& row : Matches(page, "<tr>(<td>[\\s\\S]*?)</tr>")) {
        const std::string kind = Matches(row, "<td>([^<]*)</td>").front();
        const auto accept = accepts.find(kind);
        ASSERT_NE(accept, accepts.end()) << kind;
        for (const std::string& example : Matches(row, "<code>([^<]*)</code>"))
            EXPECT_TRUE(accept->second(example)) << kind << ": " << example;
        seen.insert(kind);
    }
    EXPECT_EQ(seen.size(), accepts.size());
}

TEST(HelpContexts, LeadToPages) {
    for (const std::string& page : Column("SELECT HELP_URL FROM CONTEXT_HELP"))
        EXPECT_TRUE(fs::is_regular_file(kPages / page)) << page;
}

// Every form that the sources name has help, except the splash screen.
TEST(HelpContexts, CoverEveryWindow) {
    Strings forms;
    for (const auto& entry : fs::recursive_directory_iterator(SOURCE_FOLDER)) {
        const auto extension = entry.path().extension();
        if (extension != ".cpp" && extension != ".h") continue;
        for (const std::string& form : Matches(TextOf(entry.path()), "\"(frm[A-Z][A-Za-z0-9]*)\""))
            forms.insert(form);
    }
    EXPECT_TRUE(forms.contains("frmOptions"));
    forms.erase("frmSplash");
    const Strings covered = Column("SELECT FORM_NAME FROM CONTEXT_HELP WHERE FORM_CONTEXT = '?'");
    for (const std::string& form : forms) EXPECT_TRUE(covered.contains(form)) << form << " has no page";
}

TEST(HelpContexts, CoverEveryTab) {
    const auto tabsOf = [](const std::string& form) {
        return Column("SELECT FORM_CONTEXT FROM CONTEXT_HELP WHERE FORM_CONTEXT <> '?' AND FORM_NAME = '" +
                      form + "'");
    };
    EXPECT_EQ(tabsOf("frmDocument"),
              (Strings{"Tab1", "Tab2", "Tab3", "Tab4", "Tab5", "Tab6", "Tab7", "Tab8", "Tab9"}));
    EXPECT_EQ(tabsOf("frmOptions"), (Strings{"Tab1", "Tab2", "Tab3"}));
    EXPECT_EQ(tabsOf("frmPrintWizard"), (Strings{"Tab1", "Tab2", "Tab3"}));
}

}  // namespace
}  // namespace tw::test
