#include "tree/ListTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tw::test {
namespace {

using testing::ElementsAre;

ListRow Row(std::vector<std::string> cells) {
    ListRow row;
    row.key = cells.front();
    row.cells = std::move(cells);
    return row;
}
ListRow Folder(const std::string& name) {
    ListRow row = Row({name});
    row.isFolder = true;
    return row;
}
ListRow Heading(const std::string& name, int group) {
    ListRow row;
    row.cells = {name};
    row.isGroup = true;
    row.group = group;
    return row;
}
ListRow Member(const std::string& name, int group) {
    ListRow row = Row({name});
    row.group = group;
    return row;
}

std::vector<std::string> Names(const ListTable& list) {
    std::vector<std::string> names;
    for (const ListRow& row : list.Rows()) names.push_back(row.cells.front());
    return names;
}

ListTable ListOf(std::vector<ListRow> rows) {
    ListTable list;
    list.SetColumns({{"Name"}, {"Size", ListColumnKind::Number}, {"When", ListColumnKind::Date}});
    list.SetRows(std::move(rows));
    return list;
}

// Sorts the texts in a second column, which has numbers, and returns them.
std::vector<std::string> AsNumbers(const std::vector<std::string>& texts, bool descending = false) {
    ListTable list = ListOf({});
    for (const std::string& text : texts) list.Add(Row({"row", text}));
    list.Sort(1, descending);
    std::vector<std::string> sorted;
    for (const ListRow& row : list.Rows()) sorted.push_back(row.cells[1]);
    return sorted;
}

TEST(ListTable, HasNoEmptyCell) {
    const ListTable list = ListOf({Row({"Mild", ""}), Row({"Ale", "1", "2", "beyond the columns"})});
    EXPECT_THAT(list.Row(0).cells, ElementsAre("Mild", "  ", "  "));
    EXPECT_THAT(list.Row(1).cells, ElementsAre("Ale", "1", "2"));
}

TEST(ListTable, FindsAColumnByItsTitleInAnyCase) {
    const ListTable list = ListOf({});
    EXPECT_EQ(list.ColumnOf("size"), 1);
    EXPECT_EQ(list.ColumnOf("Colour"), -1);
}

TEST(ListTable, SortsTextsWithoutRegardToCase) {
    ListTable list = ListOf({Row({"mild"}), Row({"Bock"}), Row({"Öl"}), Row({"ale"})});
    list.Sort(0);
    EXPECT_THAT(Names(list), ElementsAre("ale", "Bock", "mild", "Öl"));
    list.Sort(0, true);
    EXPECT_THAT(Names(list), ElementsAre("Öl", "mild", "Bock", "ale"));
    EXPECT_EQ(list.SortColumn(), 0);
    EXPECT_TRUE(list.SortDescending());
}

TEST(ListTable, SortsNumbersByTheirValueBlanksFirstTextsLast) {
    EXPECT_THAT(AsNumbers({"10", "9.5", "dark", "  ", "-1", "9"}),
                ElementsAre("  ", "-1", "9", "9.5", "10", "dark"));
    EXPECT_THAT(AsNumbers({"10 gals", "9 gals"}), ElementsAre("9 gals", "10 gals"));
}

TEST(ListTable, SortsRangesByTheirLowerThenTheirUpperEnd) {
    EXPECT_THAT(AsNumbers({"20-40", "5-50", "20-30", "20"}), ElementsAre("5-50", "20", "20-30", "20-40"));
}

TEST(ListTable, SortsANumberBeyondADoubleAsAText) {
    const std::string huge(400, '9');
    EXPECT_THAT(AsNumbers({huge, "2"}), ElementsAre("2", huge));
}

TEST(ListTable, SortsDatesByTheirTime) {
    ListTable list = ListOf({});
    for (const char* when : {"01/02/2025  01:00 PM", "01/02/2025  09:00 AM", "12/31/2024  11:59 PM", " ",
                             "01/02/2025  12:30 AM", "01/02/2025  12:30 PM"})
        list.Add(Row({when, "", when}));
    list.Sort(2);
    EXPECT_THAT(Names(list),
                ElementsAre(" ", "12/31/2024  11:59 PM", "01/02/2025  12:30 AM", "01/02/2025  09:00 AM",
                            "01/02/2025  12:30 PM", "01/02/2025  01:00 PM"));
}

TEST(ListTable, KeepsTheOrderOfEqualRowsInBothDirections) {
    ListTable list = ListOf({Row({"b", "1"}), Row({"a", "1.0"}), Row({"c", "0"})});
    list.Sort(1);
    EXPECT_THAT(Names(list), ElementsAre("c", "b", "a"));
    list.Sort(1, true);
    EXPECT_THAT(Names(list), ElementsAre("b", "a", "c"));
}

TEST(ListTable, KeepsFoldersBeforeObjectsInBothDirections) {
    ListTable list = ListOf({Row({"Ale"}), Folder("Winter"), Folder("Autumn")});
    list.Sort(0);
    EXPECT_THAT(Names(list), ElementsAre("Autumn", "Winter", "Ale"));
    list.Sort(0, true);
    EXPECT_THAT(Names(list), ElementsAre("Winter", "Autumn", "Ale"));
}

TEST(ListTable, SortsWithinGroupsUnderTheirHeadings) {
    ListTable list = ListOf({Heading("Roasted", 1), Member("Chocolate", 1), Member("Black", 1),
                             Heading("Base", 2), Member("Pale", 2), Member("Odd", 3)});
    list.Sort(0);
    EXPECT_THAT(Names(list), ElementsAre("Roasted", "Black", "Chocolate", "Base", "Pale", "Odd"));
    list.Sort(0, true);
    EXPECT_THAT(Names(list), ElementsAre("Roasted", "Chocolate", "Black", "Base", "Pale", "Odd"));
}

TEST(ListTable, KeepsTheChosenRowChosenWhenItIsSorted) {
    ListTable list = ListOf({Row({"b"}), Row({"a"})});
    EXPECT_TRUE(list.Select(0));
    list.Sort(0);
    EXPECT_EQ(list.Selected(), 1);
    EXPECT_EQ(list.SelectedText(), "b");
}

TEST(ListTable, ChoosesNeitherAHeadingNorARowThatIsNotThere) {
    ListTable list = ListOf({Heading("Base", 1), Member("Pale", 1)});
    EXPECT_FALSE(list.Select(0));
    EXPECT_FALSE(list.Select(2));
    EXPECT_FALSE(list.Select(-1));
    EXPECT_EQ(list.Selected(), ListTable::kNoRow);
    EXPECT_EQ(list.SelectedText(), "");
    EXPECT_EQ(list.FirstRow(), 1);
}

TEST(ListTable, ARemovedRowTakesItsSelectionAlong) {
    ListTable list = ListOf({Row({"a"}), Row({"b"}), Row({"c"})});
    list.Select(2);
    list.Remove(0);
    EXPECT_EQ(list.SelectedText(), "c");
    list.Remove(1);
    EXPECT_EQ(list.Selected(), ListTable::kNoRow);
}

TEST(ListTable, SeveralRowsAreChosenWithoutHeadings) {
    ListTable list = ListOf({Heading("Aroma", 1), Member("Saaz", 1), Row({"b"}), Row({"c"})});
    list.Choose({3, 0, 1, 3, 7, -1}, 3);
    EXPECT_EQ(list.Chosen(), (std::vector<int>{1, 3}));
    EXPECT_EQ(list.Selected(), 3);
    EXPECT_TRUE(list.IsChosen(1));
    EXPECT_FALSE(list.IsChosen(2));
    list.Choose({2, 1}, 0);
    EXPECT_EQ(list.Selected(), 1);
    EXPECT_TRUE(list.Select(1));
    EXPECT_EQ(list.Chosen(), std::vector<int>{1});
    list.Choose({0}, 0);
    EXPECT_EQ(list.Selected(), ListTable::kNoRow);
    EXPECT_TRUE(list.Chosen().empty());
}

TEST(ListTable, ChosenRowsStayChosenThroughSortingAndRemoving) {
    ListTable list = ListOf({Row({"b"}), Row({"d"}), Row({"a"}), Row({"c"})});
    list.Choose({1, 2}, 1);
    list.Sort(0);
    EXPECT_EQ(list.Chosen(), (std::vector<int>{0, 3}));
    EXPECT_EQ(list.SelectedText(), "d");
    list.Remove(1);
    EXPECT_EQ(list.Chosen(), (std::vector<int>{0, 2}));
    list.Remove(2);
    EXPECT_EQ(list.Chosen(), std::vector<int>{0});
    EXPECT_EQ(list.SelectedText(), "a");
    list.SetRows({Row({"x"})});
    EXPECT_TRUE(list.Chosen().empty());
}

TEST(ListTable, ACellChangesWithoutSorting) {
    ListTable list = ListOf({Row({"b"}), Row({"a"})});
    list.Sort(0);
    list.SetCell(0, 0, "z");
    EXPECT_EQ(list.Row(0).cells.front(), "z");
    list.SetCell(1, 0, "");
    EXPECT_EQ(list.Row(1).cells.front(), "  ");
}

TEST(ListTable, FindsRowsByTheirKeyLetterForLetter) {
    const ListTable list = ListOf({Heading("", 1), Row({"Mild"}), Row({"mild"})});
    EXPECT_EQ(list.FindKey("mild"), 2);
    EXPECT_EQ(list.FindKey("MILD"), ListTable::kNoRow);
    EXPECT_EQ(list.FindKey(""), ListTable::kNoRow);
}

TEST(ListTable, StartsOnTheRowOfTheName) {
    const ListTable list = ListOf({Row({"Cascade"}), Row({"Fuggle"}), Row({"Saaz"})});
    EXPECT_EQ(list.FindNearest(" fuggle "), 1);
}

TEST(ListTable, StartsOnTheGreatestTextBelowTheNameOtherwise) {
    const ListTable list = ListOf({Row({"Saaz"}), Row({"Cascade"}), Row({"Fuggle"})});
    EXPECT_EQ(list.FindNearest("Galena"), 2);
    EXPECT_EQ(list.FindNearest("Zeus"), 0);
}

TEST(ListTable, StartsOnTheFirstRowForNoNameAndForOneBeforeAll) {
    const ListTable list = ListOf({Heading("Aroma", 1), Member("Cascade", 1), Member("Saaz", 1)});
    EXPECT_EQ(list.FindNearest("  "), 1);
    EXPECT_EQ(list.FindNearest("Admiral"), 1);
    EXPECT_EQ(ListOf({Heading("Aroma", 1)}).FindNearest("Aroma"), ListTable::kNoRow);
}

TEST(ListTable, TypingFindsTheNextRowThatBeginsSo) {
    const ListTable list = ListOf({Row({"Öchsle"}), Row({"Cascade"}), Heading("Ch", 0), Row({"Chinook"})});
    EXPECT_EQ(list.FindTyped("c", 0), 1);
    EXPECT_EQ(list.FindTyped("C", 2), 3);
    EXPECT_EQ(list.FindTyped("ca", 2), 1);
    EXPECT_EQ(list.FindTyped("ö", 1), 0);
    EXPECT_EQ(list.FindTyped("x", 0), ListTable::kNoRow);
    EXPECT_EQ(list.FindTyped("", 0), ListTable::kNoRow);
    EXPECT_EQ(ListOf({}).FindTyped("c", 0), ListTable::kNoRow);
}

// Returns two styles with codes and a third without one.
std::vector<ListRow> CodedRows() {
    ListRow pale = Row({"American Pale Ale"}), ipa = Row({"American IPA"}), mine = Row({"Cellar Ale"});
    pale.code = "18B";
    pale.otherNames = {"APA", "Specialty Pale"};
    ipa.code = "21A";
    return {pale, ipa, mine};
}

TEST(ListTable, TypingFindsACodeOrAnotherNameWhereNoTextBeginsSo) {
    const ListTable list = ListOf(CodedRows());
    EXPECT_EQ(list.FindTyped("21a", 0), 1);
    EXPECT_EQ(list.FindTyped("apa", 2), 0);
    EXPECT_EQ(list.FindTyped("2", 0), 1);
    // A match in the text comes before a match in another name.
    EXPECT_EQ(list.FindTyped("a", 1), 1);
    EXPECT_EQ(list.FindTyped("pale", 0), ListTable::kNoRow);
}

class CountingObserver : public ListTableObserver {
  public:
    void ListChanged() override { ++changes; }
    void ListSelectionChanged() override { ++selections; }
    int changes = 0, selections = 0;
};

TEST(ListTable, TellsOfEveryChangeOnce) {
    ListTable list = ListOf({Row({"a"}), Row({"b"})});
    CountingObserver observer;
    list.SetObserver(&observer);
    list.Select(1);
    list.Select(1);
    list.SelectNone();
    EXPECT_EQ(observer.selections, 2);
    list.Add(Row({"c"}));
    list.Sort(0);
    EXPECT_EQ(observer.changes, 2);
}

TEST(ListTable, AFilterLeavesTheRowsThatHoldAllItsWords) {
    ListTable list = ListOf({Row({"Pale Malt", "36"}), Row({"Oats", "33"}), Row({"Black Malt", "25"})});
    list.SetFilter(" MALT ");
    EXPECT_THAT(Names(list), ElementsAre("Pale Malt", "Black Malt"));
    list.SetFilter("25 malt");
    EXPECT_THAT(Names(list), ElementsAre("Black Malt"));
    list.SetFilter("wheat");
    EXPECT_THAT(Names(list), ElementsAre());
    EXPECT_EQ(list.Selected(), ListTable::kNoRow);
    list.SetFilter("");
    EXPECT_THAT(Names(list), ElementsAre("Pale Malt", "Oats", "Black Malt"));
}

TEST(ListTable, AFilterFindsCodesAndOtherNamesByTheirBeginnings) {
    ListTable list = ListOf(CodedRows());
    list.SetFilter("18b");
    EXPECT_THAT(Names(list), ElementsAre("American Pale Ale"));
    list.SetFilter("apa");
    EXPECT_THAT(Names(list), ElementsAre("American Pale Ale"));
    list.SetFilter("spec ale");
    EXPECT_THAT(Names(list), ElementsAre("American Pale Ale"));
    list.SetFilter("8B");
    EXPECT_THAT(Names(list), ElementsAre());
    list.SetFilter("pecial");
    EXPECT_THAT(Names(list), ElementsAre());
    list.SetFilter("2");
    EXPECT_THAT(Names(list), ElementsAre("American IPA"));
}

TEST(ListTable, AFilterKeepsTheHeadingsOverItsRows) {
    ListTable list = ListOf({Heading("Base", 1), Member("Pale", 1), Heading("Roasted", 2), Member("Black", 2),
                             Heading("Sweet", 3), Member("Pale Sugar", 3), Member("Bare pale", 4)});
    list.SetFilter("pale");
    EXPECT_THAT(Names(list), ElementsAre("Base", "Pale", "Sweet", "Pale Sugar", "Bare pale"));
    list.SetFilter("bare");
    EXPECT_THAT(Names(list), ElementsAre("Bare pale"));
    list.SetFilter("black");
    EXPECT_THAT(Names(list), ElementsAre("Roasted", "Black"));
}

TEST(ListTable, AFilterPutsTheBestRowsFirst) {
    ListRow alias = Row({"Goldings", "5"}), cell = Row({"Saaz", "kent"});
    alias.otherNames = {"Kent Golding"};
    ListTable list = ListOf({cell, alias, Row({"East Kent", "4"}), Row({"Kent 2", "4"}), Row({"Kent", "4"})});
    list.SetFilter("kent");
    EXPECT_THAT(Names(list), ElementsAre("Kent", "Kent 2", "East Kent", "Goldings", "Saaz"));
    EXPECT_EQ(list.SelectedText(), "Kent");
    list.SetFilter("kent ea");
    EXPECT_THAT(Names(list), ElementsAre("East Kent"));
    // The words stand in several cells.
    list.SetFilter("kent saa");
    EXPECT_THAT(Names(list), ElementsAre("Saaz"));
}

TEST(ListTable, AFilterSelectsTheBestRowOfAllGroups) {
    ListTable list = ListOf({Heading("Base", 1), Member("Dark Malt", 1), Heading("Roasted", 2),
                             Member("Pale Dark", 2), Member("Dark", 2)});
    list.SetFilter("dark");
    EXPECT_THAT(Names(list), ElementsAre("Base", "Dark Malt", "Roasted", "Dark", "Pale Dark"));
    EXPECT_EQ(list.SelectedText(), "Dark");
}

TEST(ListTable, TheChosenRowStaysChosenWhileNoOtherFitsBetter) {
    const auto named = [](const char* name) {
        ListRow row = Row({name});
        row.key = name;
        return row;
    };
    ListTable list = ListOf({named("Fuggle"), named("Saaz"), named("Saphir")});
    list.Select(2);
    list.SetFilter("sa");
    EXPECT_EQ(list.SelectedText(), "Saphir");
    list.SetFilter("saaz");
    EXPECT_EQ(list.SelectedText(), "Saaz");
    EXPECT_EQ(list.Selected(), 0);
    list.SetFilter("");
    EXPECT_EQ(list.Selected(), 1);
}

TEST(ListTable, SortsAddsAndRemovesUnderAFilter) {
    ListTable list = ListOf({Row({"b1", "1"}), Row({"x", "0"}), Row({"b2", "3"})});
    list.SetFilter("b");
    list.Sort(1, true);
    EXPECT_THAT(Names(list), ElementsAre("b2", "b1"));
    list.Add(Row({"y", "9"}));
    list.Add(Row({"b3", "9"}));
    EXPECT_THAT(Names(list), ElementsAre("b2", "b1", "b3"));
    list.Remove(1);
    EXPECT_THAT(Names(list), ElementsAre("b2", "b3"));
    list.SetFilter("");
    EXPECT_THAT(Names(list), ElementsAre("b2", "x", "y", "b3"));
    list.SetFilter("b");
    list.SetRows({Row({"c"}), Row({"bb"})});
    EXPECT_THAT(Names(list), ElementsAre("bb"));
}

}  // namespace
}  // namespace tw::test
