#include "catalogue/ObjectNavigator.h"

#include <gtest/gtest.h>

namespace tw::test {
namespace {

ListRow Named(const char* name) {
    return {name, {name}};
}

ListRow Heading(const char* name) {
    ListRow row{"", {name}};
    row.isGroup = true;
    return row;
}

ListTable ListOf(std::vector<ListRow> rows) {
    ListTable list;
    list.SetColumns({{"Name"}, {"PPG"}});
    list.SetRows(std::move(rows));
    return list;
}

std::string Enabled(const ObjectNavigator& navigator) {
    std::string on;
    for (const bool enabled : {navigator.EnableFirst(), navigator.EnablePrevious(), navigator.EnableNext(),
                               navigator.EnableLast()})
        on += enabled ? '1' : '0';
    return on;
}

TEST(ObjectNavigator, GoesThroughTheRowsAndStopsAtTheEnds) {
    ListTable list = ListOf({Named("A"), Named("B"), Named("C")});
    ObjectNavigator navigator(list);
    list.Select(0);
    EXPECT_EQ(Enabled(navigator), "0011");
    EXPECT_EQ(navigator.GetPrevious(), "");
    EXPECT_EQ(list.Selected(), 0);
    EXPECT_EQ(navigator.GetNext(), "B");
    EXPECT_EQ(Enabled(navigator), "1111");
    EXPECT_EQ(navigator.GetLast(), "C");
    EXPECT_EQ(Enabled(navigator), "1100");
    EXPECT_EQ(navigator.GetNext(), "");
    EXPECT_EQ(list.Selected(), 2);
    EXPECT_EQ(navigator.GetPrevious(), "B");
    EXPECT_EQ(navigator.GetFirst(), "A");
}

TEST(ObjectNavigator, HasNowhereToGoWithOneRowOrNone) {
    ListTable one = ListOf({Named("A")}), none = ListOf({});
    one.Select(0);
    EXPECT_EQ(Enabled(ObjectNavigator(one)), "0000");
    EXPECT_EQ(ObjectNavigator(one).GetFirst(), "A");
    EXPECT_EQ(Enabled(ObjectNavigator(none)), "0000");
    EXPECT_EQ(ObjectNavigator(none).GetLast(), "");
}

TEST(ObjectNavigator, PassesHeadingsButNotRowsWithoutFigures) {
    ListTable list =
        ListOf({Heading("Base"), Named("Pale"), Heading("Roasted"), Named("Black"), Named("Bare")});
    ObjectNavigator navigator(list);
    EXPECT_TRUE(navigator.IsGrainView());
    list.Select(1);
    EXPECT_EQ(Enabled(navigator), "0011");
    EXPECT_EQ(navigator.GetNext(), "Black");
    EXPECT_EQ(navigator.GetNext(), "Bare");
    EXPECT_EQ(navigator.GetFirst(), "Pale");
    ListTable plain = ListOf({Named("A")});
    EXPECT_FALSE(ObjectNavigator(plain).IsGrainView());
}

TEST(ObjectNavigator, StartsAtTheTopWithoutASelection) {
    ListTable list = ListOf({Named("A"), Named("B")});
    EXPECT_EQ(Enabled(ObjectNavigator(list)), "1011");
    EXPECT_EQ(ObjectNavigator(list).GetNext(), "A");
}

TEST(ObjectNavigator, GoesThroughTheRowsThatAFilterLeaves) {
    ListTable list = ListOf({Named("Pale Malt"), Named("Oats"), Named("Mild Malt")});
    list.SetFilter("malt");
    ObjectNavigator navigator(list);
    EXPECT_EQ(navigator.GetFirst(), "Pale Malt");
    EXPECT_EQ(navigator.GetNext(), "Mild Malt");
    EXPECT_EQ(navigator.GetNext(), "");
}

}  // namespace
}  // namespace tw::test
