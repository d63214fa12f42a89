#include "tree/GapVector.h"

#include <gtest/gtest.h>
#include <memory>
#include <random>

namespace tw::test {
namespace {

using Pointer = std::unique_ptr<int>;

std::vector<int> ValuesOf(const GapVector<Pointer>& list) {
    std::vector<int> values;
    for (const Pointer& item : list) values.push_back(*item);
    return values;
}

TEST(GapVector, StartsEmpty) {
    const GapVector<Pointer> list;
    EXPECT_EQ(list.Count(), 0U);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.begin(), list.end());
}

TEST(GapVector, TakesItemsAnywhereAndGivesThemBack) {
    GapVector<Pointer> list;
    list.Insert(0, std::make_unique<int>(2));
    list.Insert(0, std::make_unique<int>(1));
    EXPECT_EQ(*list.Insert(2, std::make_unique<int>(4)), 4);
    list.Insert(2, std::make_unique<int>(3));
    EXPECT_EQ(ValuesOf(list), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(*list.TakeOut(1), 2);
    EXPECT_EQ(*list.TakeOut(2), 4);
    EXPECT_EQ(ValuesOf(list), (std::vector<int>{1, 3}));
    EXPECT_EQ(*list[1], 3);
}

TEST(GapVector, StandsInOneRowToBeSorted) {
    GapVector<Pointer> list;
    for (const int value : {5, 3, 9, 1}) list.Insert(list.Count(), std::make_unique<int>(value));
    list.TakeOut(1);
    const auto row = list.InOneRow();
    std::sort(row.begin(), row.end(), [](const Pointer& a, const Pointer& b) { return *a < *b; });
    EXPECT_EQ(ValuesOf(list), (std::vector<int>{1, 5, 9}));
}

TEST(GapVector, HasIteratorsThatAlgorithmsTake) {
    GapVector<Pointer> list;
    for (int i = 0; i < 10; ++i) list.Insert(list.Count(), std::make_unique<int>(i * i));
    list.TakeOut(4);
    const auto found =
        std::partition_point(list.begin(), list.end(), [](const Pointer& p) { return *p < 36; });
    EXPECT_EQ(found - list.begin(), 5);
    EXPECT_EQ(**found, 36);
    EXPECT_EQ(*found[1], 49);
    auto at = list.end();
    EXPECT_EQ(**--at, 81);
    EXPECT_EQ(**at--, 81);
    EXPECT_EQ(**(at - 1), 49);
    EXPECT_EQ(**(1 + list.begin()), 1);
    EXPECT_LT(list.begin(), at);
}

TEST(GapVector, HoldsWhatAPlainListHolds) {
    std::mt19937 random(3);
    GapVector<Pointer> list;
    std::vector<int> plain;
    for (int step = 0; step < 5000; ++step) {
        const bool removes = !plain.empty() && random() % 5 < (step / 500 % 2 == 0 ? 2U : 3U);
        if (removes) {
            const auto index = random() % plain.size();
            EXPECT_EQ(*list.TakeOut(index), plain[index]);
            plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(index));
        } else {
            const auto index = random() % (plain.size() + 1);
            list.Insert(index, std::make_unique<int>(step));
            plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(index), step);
        }
        if (step % 100 == 0) list.Reserve(plain.size() + random() % 50);
        ASSERT_EQ(ValuesOf(list), plain) << step;
    }
}

}  // namespace
}  // namespace tw::test
