#include "platform/DateTime.h"

#include <gtest/gtest.h>

namespace tw {
namespace {

const DateTime kLeapDay{2024, 2, 29, 7, 5, 9};

TEST(DateText, IsMonthDayYearAndA24HourClock) {
    EXPECT_EQ(DateText(kLeapDay), "02/29/2024 07:05:09");
    EXPECT_EQ(DateText({1999, 12, 31, 23, 59, 59}), "12/31/1999 23:59:59");
    EXPECT_EQ(DateText({}), "12/30/1899 00:00:00");
}

TEST(ParseDateText, ReadsWhatDateTextWrites) {
    for (const DateTime& when :
         {kLeapDay, DateTime{}, DateTime{1, 1, 1, 0, 0, 0}, DateTime{9999, 12, 31, 23, 59, 59}})
        EXPECT_EQ(ParseDateText(DateText(when)), when);
}

TEST(ParseDateText, RefusesEveryOtherForm) {
    for (const std::string_view bad :
         {"", "02/29/2024", "02/29/2024 07:05", "2/29/2024 07:05:09", "02/29/24 07:05:09",
          "2024-02-29 07:05:09", "02/29/2024 07:05:09 ", " 02/29/2024 07:05:09", "02/29/2024T07:05:09",
          "02/29/2024 07:05:09 PM", "02/29/-024 07:05:09", "02-29-2024 07:05:09", "02/29/2024 07.05.09"})
        EXPECT_FALSE(ParseDateText(bad)) << bad;
}

TEST(ParseDateText, RefusesWhatIsNotOnTheCalendarOrTheClock) {
    for (const std::string_view bad :
         {"02/29/2023 00:00:00", "02/30/2024 00:00:00", "00/10/2024 00:00:00", "13/10/2024 00:00:00",
          "04/31/2024 00:00:00", "04/00/2024 00:00:00", "01/01/0000 00:00:00", "01/01/2024 24:00:00",
          "01/01/2024 00:60:00", "01/01/2024 00:00:60"})
        EXPECT_FALSE(ParseDateText(bad)) << bad;
}

TEST(ShortDate, HasNoLeadingZeros) {
    EXPECT_EQ(ShortDate(kLeapDay), "2/29/2024");
    EXPECT_EQ(ShortDate({2024, 11, 3, 0, 0, 0}), "11/3/2024");
}

TEST(ParseShortDate, ReadsMonthDayYear) {
    EXPECT_EQ(ParseShortDate("2/29/2024"), (DateTime{2024, 2, 29, 0, 0, 0}));
    EXPECT_EQ(ParseShortDate("02/09/2024"), (DateTime{2024, 2, 9, 0, 0, 0}));
    for (const std::string_view bad : {"", "2/29/2023", "2/29/24", "2/29", "2/29/2024 ", "2024/2/29",
                                       "2//2024", "002/1/2024", "x", "2/29/20244"})
        EXPECT_FALSE(ParseShortDate(bad)) << bad;
}

TEST(DateTime, ComparesByTime) {
    EXPECT_LT((DateTime{2023, 12, 31, 23, 59, 59}), (DateTime{2024, 1, 1, 0, 0, 0}));
    EXPECT_LT((DateTime{2024, 1, 1, 0, 0, 0}), (DateTime{2024, 1, 1, 0, 0, 1}));
    EXPECT_EQ(kLeapDay, kLeapDay);
}

}  // namespace
}  // namespace tw
