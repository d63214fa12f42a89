#include "tree/WordIndex.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace tw::test {
namespace {

using Texts = std::vector<std::string>;
using Numbers = std::set<std::uint32_t>;

WordIndex IndexOf(const Texts& texts) {
    WordIndex::Builder builder;
    for (std::uint32_t i = 0; i < texts.size(); ++i) builder.Add(builder.NumbersOf(texts[i]), i);
    return builder.Build(static_cast<std::uint32_t>(texts.size()));
}

Numbers Find(const WordIndex& index, std::string_view part) {
    const BitSet bits = index.Find(part);
    Numbers numbers;
    for (std::uint32_t i = 0; i < bits.size() * 64; ++i)
        if ((bits[i / 64] >> (i % 64) & 1) != 0) numbers.insert(i);
    return numbers;
}

TEST(WordIndex, OfNoTextsFindsNothing) {
    EXPECT_EQ(Find(WordIndex(), "a"), Numbers{});
    WordIndex::Builder builder;
    builder.NumbersOf("unused");
    EXPECT_EQ(Find(builder.Build(0), "used"), Numbers{});
}

TEST(WordIndex, FindsPartsOfWordsButNotAcrossThem) {
    const WordIndex index = IndexOf({"pale ale", "", "amber", "Ale ember"});
    EXPECT_EQ(Find(index, "ale"), (Numbers{0, 3}));
    EXPECT_EQ(Find(index, "mber"), (Numbers{2, 3}));
    EXPECT_EQ(Find(index, "paleale"), Numbers{});
    EXPECT_EQ(Find(index, "alee"), Numbers{});
}

TEST(WordIndex, TakesTheWordsOfATextInSeveralParts) {
    WordIndex::Builder builder;
    builder.Add(builder.NumbersOf("a b"), 0);
    builder.Add(builder.NumbersOf("c"), 1);
    builder.Add(builder.NumbersOf("a"), 1);
    builder.Add(builder.NumbersOf("a c"), 0);
    const WordIndex index = builder.Build(2);
    EXPECT_EQ(Find(index, "a"), (Numbers{0, 1}));
    EXPECT_EQ(Find(index, "b"), Numbers{0});
    EXPECT_EQ(Find(index, "c"), (Numbers{0, 1}));
}

TEST(WordIndex, PutsManyTextsInOrderThatComeInNone) {
    WordIndex::Builder builder;
    Numbers even;
    for (std::uint32_t i = 0; i < 3000; ++i) {
        const std::uint32_t text = (i * 7 + 5) % 3000;
        if (text % 2 == 0) even.insert(text);
        builder.Add(builder.NumbersOf(text % 2 == 0 ? "even" : "odd"), text);
        builder.Add(builder.NumbersOf("even"), 0);
    }
    EXPECT_EQ(Find(builder.Build(3000), "even"), even);
}

TEST(WordIndex, KeepsBytesThatAreNotUtf8AndLongWords) {
    const WordIndex index = IndexOf({"x", "\xFF\xFEz", std::string(100000, 'y')});
    EXPECT_EQ(Find(index, "\xFF\xFE"), Numbers{1});
    EXPECT_EQ(Find(index, std::string(99999, 'y')), Numbers{2});
}

TEST(WordIndex, FindsNumbersByTheirBeginnings) {
    const WordIndex index = IndexOf({"05 was", "US-05", "1.050", "1056", "gravity 1.05"});
    EXPECT_EQ(Find(index, "05"), (Numbers{0, 1}));
    EXPECT_EQ(Find(index, "105"), Numbers{3});
    EXPECT_EQ(Find(index, "1.05"), (Numbers{2, 4}));
}

// Finds rare, frequent and universal words in 1,000 texts and compares the results with a
// plain search of each text.
TEST(WordIndex, FindsWhatAPlainSearchFinds) {
    std::mt19937 random(5);
    Texts texts;
    for (int i = 0; i < 1000; ++i) {
        std::string text;
        for (unsigned words = random() % 6; words > 0; --words) {
            for (unsigned size = 1 + random() % 4; size > 0; --size) text.push_back("aaaabc"[random() % 6]);
            text.push_back(' ');
        }
        texts.push_back(text);
    }
    const WordIndex index = IndexOf(texts);
    int found = 0;
    for (const char* const part :
         {"a", "b", "c", "aa", "ab", "cb", "cc", "aaa", "bca", "ccc", "aaaa", "cbcb", "cccc", "aaaaa", "d"}) {
        Numbers plain;
        for (std::uint32_t i = 0; i < texts.size(); ++i)
            if (texts[i].find(part) != std::string::npos) plain.insert(i);
        EXPECT_EQ(Find(index, part), plain) << part;
        found += plain.empty() ? 0 : 1;
    }
    EXPECT_GT(found, 10);
}

}  // namespace
}  // namespace tw::test
