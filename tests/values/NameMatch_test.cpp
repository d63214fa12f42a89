#include "values/NameMatch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

struct Line {
    std::string name;
    Strings aliases = {};
};

// A list of names and the search in it.
class Names {
  public:
    Names(const std::vector<Line>& lines) {
        for (const Line& line : lines) list_.Add(line.name, line.aliases);
    }

    Strings Find(std::string_view typed) const {
        Strings names;
        for (const FoundName& found : list_.Find(typed)) names.push_back(list_.Name(found.index));
        return names;
    }
    std::optional<std::string> Meant(std::string_view typed) const {
        const auto found = list_.Find(typed);
        const FoundName* const meant = OnlyMeant(found);
        if (meant == nullptr) return std::nullopt;
        return list_.Name(meant->index);
    }
    std::optional<NameMatch> MatchOf(std::string_view typed) const {
        const auto found = list_.Find(typed);
        if (found.empty()) return std::nullopt;
        return found.front().match;
    }

  private:
    NameList list_;
};

TEST(MatchWords, SeparatesAtEveryCharacterThatIsNoLetterOrDigit) {
    EXPECT_THAT(MatchWords("Caramel/Crystal Malt,dark"), ElementsAre("caramel", "crystal", "malt", "dark"));
    EXPECT_THAT(MatchWords("Floor-Malted  (UK)"), ElementsAre("floor", "malted", "uk"));
    EXPECT_THAT(MatchWords("flaked\u2013oats"), ElementsAre("flaked", "oats"));
    EXPECT_THAT(MatchWords(" -/, "), IsEmpty());
}

TEST(MatchWords, SeparatesDigitsFromLetters) {
    EXPECT_THAT(MatchWords("US05"), ElementsAre("us", "05"));
    EXPECT_THAT(MatchWords("60L"), ElementsAre("60", "l"));
    EXPECT_THAT(MatchWords("7Cs"), ElementsAre("7", "cs"));
}

TEST(MatchWords, KeepsThePointWithinANumber) {
    EXPECT_THAT(MatchWords("1.050"), ElementsAre("1.050"));
    EXPECT_THAT(MatchWords("Dr. Rudi"), ElementsAre("dr", "rudi"));
    EXPECT_THAT(MatchWords("40. Malt .5"), ElementsAre("40", "malt", "5"));
}

TEST(MatchWords, LeavesOutApostrophes) {
    EXPECT_THAT(MatchWords("Brewer's Gold"), ElementsAre("brewers", "gold"));
    EXPECT_THAT(MatchWords("Brewer\u2019s"), ElementsAre("brewers"));
}

TEST(MatchWords, IgnoresCaseAndAccents) {
    EXPECT_THAT(MatchWords("Mittelfr\u00FCh"), ElementsAre("mittelfruh"));
    EXPECT_THAT(MatchWords("mittelfru\u0308h"), ElementsAre("mittelfruh"));
    EXPECT_THAT(MatchWords("Sl\u00E1dek"), ElementsAre("sladek"));
    EXPECT_THAT(MatchWords("Pu\u0141awski"), ElementsAre("pulawski"));
    EXPECT_THAT(MatchWords("\u00D8l"), ElementsAre("ol"));
    EXPECT_THAT(MatchWords("Wei\u00DFbier"), ElementsAre("weissbier"));
}

TEST(MatchWords, TakesBytesThatAreNotUtf8AsLetters) {
    EXPECT_THAT(MatchWords("caf\xE9 x"), ElementsAre("caf\xE9", "x"));
}

TEST(NameList, FindsTheBeginningsOfWordsInAnyOrder) {
    const Names names({{"Hallertauer Magnum"}, {"Magnum (US)"}, {"Hallertau Blanc"}});
    EXPECT_THAT(names.Find("mag hall"), ElementsAre("Hallertauer Magnum"));
    EXPECT_THAT(names.Find("hall"), ElementsAre("Hallertauer Magnum", "Hallertau Blanc"));
    EXPECT_THAT(names.Find("agnum"), IsEmpty());
}

TEST(NameList, GivesEachTypedWordAWordOfItsOwn) {
    const Names names({{"Pale Malt"}, {"Pale Pale Malt"}});
    EXPECT_THAT(names.Find("pale pa"), ElementsAre("Pale Pale Malt"));
    // The shorter word must leave "Malted" to the longer one.
    EXPECT_THAT(Names({{"Malted Malt"}}).Find("malt malted"), ElementsAre("Malted Malt"));
}

TEST(NameList, PutsTheBestFirst) {
    const Names names({{"Dark Munich Malt"},
                       {"Vienna Malt", {"Old Munich"}},
                       {"Munich Malt"},
                       {"Brown Malt", {"Munich Brown"}},
                       {"Light Munich"},
                       {"Base Malt", {"Munich"}},
                       {"Munich"}});
    EXPECT_THAT(names.Find("munich"), ElementsAre("Munich", "Base Malt", "Munich Malt", "Dark Munich Malt",
                                                  "Light Munich", "Brown Malt", "Vienna Malt"));
}

TEST(NameList, RanksAnEntryByItsBestName) {
    const Names names({{"East Kent Goldings", {"EKG", "East Kent", "Kent"}}});
    EXPECT_EQ(names.MatchOf("ekg"), NameMatch::ExactAlias);
    EXPECT_EQ(names.MatchOf("ken"), NameMatch::Words);
    EXPECT_EQ(names.MatchOf("east k"), NameMatch::Beginning);
    EXPECT_EQ(names.MatchOf("east-kent goldings"), NameMatch::Exact);
    EXPECT_EQ(names.MatchOf("cascade"), std::nullopt);
}

TEST(NameList, FindsAllNamesForATextWithoutAWord) {
    const Names names({{"B"}, {"A"}, {"-"}});
    EXPECT_THAT(names.Find(" - "), ElementsAre("B", "A", "-"));
    EXPECT_THAT(names.Find(""), ElementsAre("B", "A", "-"));
}

TEST(OnlyMeant, IsTheOneNameLeft) {
    const Names names({{"SafAle US-05"}, {"SafAle S-04"}});
    EXPECT_EQ(names.Meant("us"), "SafAle US-05");
    EXPECT_EQ(names.Meant("safale"), std::nullopt);
    EXPECT_EQ(names.Meant("t-58"), std::nullopt);
}

TEST(OnlyMeant, IsTheFirstIfItFitsExactly) {
    const Names names(
        {{"Magnum (US)", {"Yakima Magnum"}}, {"Magnum"}, {"Hallertauer Magnum", {"HM"}}, {"HM 2"}});
    EXPECT_EQ(names.Meant("magnum"), "Magnum");
    EXPECT_EQ(names.Meant("yakima magnum"), "Magnum (US)");
    EXPECT_EQ(names.Meant("hm"), "Hallertauer Magnum");
}

TEST(OnlyMeant, IsNoneOfSeveralThatFitExactly) {
    const Names names({{"Dry Stout", {"15B"}}, {"Irish Stout", {"15B"}}});
    EXPECT_EQ(names.Meant("15b"), std::nullopt);
}

TEST(NameList, SaysWhichTextFits) {
    NameList list;
    const Strings aliases = {"Goldings", "EKG"};
    list.Add("East Kent Goldings", aliases);
    ASSERT_EQ(list.Find("ek").size(), 1U);
    EXPECT_EQ(list.Find("ek").front().text, "EKG");
    EXPECT_EQ(list.Find("gold").front().text, "East Kent Goldings");
}

}  // namespace
}  // namespace tw::test
