// Dates: the arithmetic against a day-by-day walk, reading and writing in tables.
#include "base/dates.h"

#include "tests/support/planner.h"

TEST(Dates, AgreeWithAWalkOverAllDays) {
    int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int number = -657434;  // 1 January 100
    int weekday = 6;       // a Friday
    for (int year = 100; year <= 9999; ++year) {
        lengths[1] = year % 400 == 0 ? 29 : year % 100 == 0 ? 28 : year % 4 == 0 ? 29 : 28;
        ASSERT_EQ(DaysInYear(year), lengths[1] + 337);
        for (int month = 1; month <= 12; ++month)
            for (int day = 1; day <= lengths[month - 1]; ++day, ++number, weekday = weekday % 7 + 1) {
                const YearMonthDay parts = PartsOf({number});
                ASSERT_TRUE(parts.year == year && parts.month == month && parts.day == day) << number;
                ASSERT_EQ(MakeDate(year, month, day).number, number);
                ASSERT_EQ(WeekdayOf({number}), weekday) << number;
            }
    }
    EXPECT_EQ(number - 1, 2958465);  // 31 December 9999
}

TEST(Dates, ThatDoNotExistAreRefused) {
    const YearMonthDay none[] = {{2009, 2, 29}, {1900, 2, 29}, {2009, 0, 1}, {2009, 13, 1},
                                 {2009, 4, 31}, {2009, 1, 0},  {99, 12, 31}, {10000, 1, 1}};
    for (const auto& [year, month, day] : none) {
        EXPECT_FALSE(IsDate(year, month, day)) << year << '-' << month << '-' << day;
        EXPECT_THROW(MakeDate(year, month, day), Error);
    }
    EXPECT_THROW(AddMonths(MakeDate(9999, 12, 1), 1), Error);
    EXPECT_THROW(AddMonths(MakeDate(100, 1, 1), -1), Error);
}

TEST(Dates, AddMonthsKeepsTheDayWhereItExists) {
    const std::tuple<const char*, int, const char*> rows[] = {
        {"1/31/2009", 1, "2/28/2009"},   {"1/31/2008", 1, "2/29/2008"},  {"2/29/2008", 12, "2/28/2009"},
        {"3/31/2009", -1, "2/28/2009"},  {"12/31/2009", 2, "2/28/2010"}, {"1/15/2009", -1, "12/15/2008"},
        {"1/1/2000", -1200, "1/1/1900"}, {"11/30/2026", 15, "2/29/2028"}};
    for (const auto& [from, months, to] : rows)
        EXPECT_EQ(ShortDate(AddMonths(DateOfText(from), months)), to) << from << " + " << months;
}

TEST(Dates, AreReadAsPeopleTypeThem) {
    FixClock(2026, 11, 22);
    for (const char* text :
         {"1/4/2009", "01/04/09", "1-4-2009", "1.4.2009", " 1 / 4 / 2009 ", "Jan 4, 2009", "Jan. 4, 2009",
          "JANUARY 4 2009", "4 Jan 2009", "4-jan-09", "4jan2009", "2009-01-04", "2009/1/4", "2009 Jan 4"})
        EXPECT_EQ(ReadDate(text), MakeDate(2009, 1, 4)) << text;
    using Row = std::pair<const char*, const char*>;
    for (const auto& [text, date] :
         {Row{"Sunday, November 22, 2026", "11/22/2026"}, Row{"sun. nov. 22, 2026", "11/22/2026"},
          Row{"7/4", "7/4/2026"}, Row{"Jan 4", "1/4/2026"}, Row{"4 jan", "1/4/2026"}, Row{"January 2009", "1/1/2009"},
          Row{"2009 january", "1/1/2009"}, Row{"Sept 9, 2009", "9/9/2009"}, Row{"1/1/29", "1/1/2029"},
          Row{"1/1/30", "1/1/1930"}, Row{"1/1/99", "1/1/1999"}, Row{"1/1/0", "1/1/2000"}, Row{"1/1/0100", "1/1/0100"},
          Row{"12/31/9999", "12/31/9999"}, Row{"2/29/2008", "2/29/2008"}})
        EXPECT_EQ(ShortDate(DateOfText(text)), date) << text;
    for (const auto& none :
         Pieces("2/29/2009|2/29|2/30/2009|13/1/2009|31/12/2009|1/4/10000|1/4/009|0/4/2009|1/0/2009||   |2009|1/2009|"
                "Jan|Ja 4, 2009|Janvier 4, 2009|Jan Feb 2009|1/4/2009/5|1//4/2009|1/-4/2009|-1/4/2009|1/4/|1:4:2009|"
                "1/4/2009 Sunday|2009 Jan 2010|Jan 2009 4|99999999999999999999/1/1"))
        EXPECT_EQ(ReadDate(none), std::nullopt) << none;  // 2026 has no February 29
    EXPECT_FALSE(ReadDate(std::string_view("1/4/2009\0", 9)));
    EXPECT_EQ(ErrorOf([] { DateOfText("no date"); }), TypeMismatch);
}

TEST(Dates, AndTimesAreWrittenInPatterns) {
    const Date date = MakeDate(2009, 2, 7);  // a Saturday
    using Row = std::pair<const char*, const char*>;
    for (const auto& [pattern, text] :
         {Row{"mm/dd/yy", "02/07/09"}, Row{"m/d/yyyy", "2/7/2009"}, Row{"mm/dd/yyyy", "02/07/2009"},
          Row{"ddd d mmm", "Sat 7 Feb"}, Row{"dddd, mmmm d", "Saturday, February 7"}, Row{"ddddd", "2/7/2009"},
          Row{"yyyy", "2009"}, Row{"(d)", "(7)"}, Row{"", ""}})
        EXPECT_EQ(FormatDate(date, pattern), text) << pattern;
    EXPECT_EQ(FormatDate(MakeDate(105, 1, 1), "yyyy yy"), "0105 05");

    using Time = std::tuple<int, const char*, const char*>;
    for (const auto& [second, general, short24] :
         {Time{0, "11/22/2026 12:00:00 AM", "00:00"}, Time{3661, "11/22/2026 1:01:01 AM", "01:01"},
          Time{43200, "11/22/2026 12:00:00 PM", "12:00"}, Time{70745, "11/22/2026 7:39:05 PM", "19:39"},
          Time{86399, "11/22/2026 11:59:59 PM", "23:59"}}) {
        EXPECT_EQ(GeneralDate({MakeDate(2026, 11, 22), second}), general);
        EXPECT_EQ(FormatTime(second, "hh:mm"), short24);
    }
    EXPECT_EQ(FormatTime(70745, "hh:nn:ss AM/PM"), "07:39:05 PM");
}

TEST(Dates, EveryShortDateReadsBack) {
    for (Date date = MakeDate(1900, 1, 1); date <= MakeDate(2100, 12, 31); ++date)
        for (const char* pattern : {"m/d/yyyy", "dddd, mmmm d, yyyy", "yyyy-mm-dd"})
            ASSERT_EQ(ReadDate(FormatDate(date, pattern)), date) << date.number;
}
