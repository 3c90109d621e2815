// What the views draw, read as recorded text; which months they show; what they tell the main window.
#include "calendar/modViews.h"

#include "calendar/modNavigation.h"
#include "marks/modIcons.h"
#include "marks/modMarkerDisplay.h"
#include "tests/support/calendar.h"

namespace {
class Views : public CalendarTest {};

TEST_F(Views, MonthIsDrawnAsAGridOfNumbers) {
    show(1, 2015, 2, 10);  // starts on Sunday, 28 days: four rows
    const Recorder& drawn = month(0);
    EXPECT_EQ(caption, "Tasmoro: Feb 2015 Calendar");
    EXPECT_TRUE(drawn.has("text 2.8 0.1 'February, 2015' MS Sans Serif 10 000000"));
    EXPECT_TRUE(drawn.has("text 0.35 0.475 'Sun' MS Sans Serif 10 000000"));
    EXPECT_TRUE(drawn.has("text 0.41 1.05 '1' MS Sans Serif 18 bold 000000"));
    EXPECT_TRUE(drawn.has("text 6.32 4.05 '28' MS Sans Serif 18 bold 000000"));
    EXPECT_EQ(drawn.containing("bold").size(), 28u);
    EXPECT_EQ(drawn.containing("line ").size(), 13u);  // six between columns, six above rows, one under the title
    Paint.numbersOffset = true;
    show(1, 2026, 8, 1);  // starts on Saturday: the 31st is in the sixth row
    EXPECT_TRUE(month(0).has("text 6.05 0.8 '1' MS Sans Serif 10 bold 000000"));
    EXPECT_TRUE(month(0).has("text 1.05 5.8 '31' MS Sans Serif 10 bold 000000"));
    show(6, 2026, 11, 1);
    EXPECT_EQ(month(0).containing("'22'"), (std::vector<std::string>{"text 0.05 3.92 '22' MS Sans Serif 8 000000"}));
    EXPECT_TRUE(month(0).has("fill 0.1 3.85 0.9 4.65 FFFF00"));
}

TEST_F(Views, TodayIsPaintedWhileShown) {
    FixClock(2026, 11, 23);  // the program was started the day before
    show(12, 2026, 3, 1);
    EXPECT_EQ(month(10).containing("fill "), (std::vector<std::string>{"fill 0.1 3.85 0.9 4.65 FFFF00"}));  // the 22nd
    show(1, 2026, 11, 5);
    ASSERT_EQ(month(0).containing("FFFF00").size(), 1u);
    EXPECT_NE(month(0).containing("FFFF00")[0].find("'23'"), std::string::npos);
    TodayShown = false;
    show(1, 2026, 11, 5);
    EXPECT_TRUE(month(0).containing("FFFF00").empty());
}

TEST_F(Views, YearShowsTwelveMonths) {
    show(12, 2009, 5, 17);
    EXPECT_EQ(caption, "Tasmoro: 2009 Calendar");
    EXPECT_EQ(monthCaptions[1] + monthCaptions[11], "February, 2009December, 2009");
    for (int m = 0; m < 12; ++m) {
        const Recorder& drawn = month(static_cast<std::size_t>(m));
        const int days = DaysInMonth(2009, m + 1);
        EXPECT_EQ(drawn.containing("text ").size(), 7u + static_cast<unsigned>(days)) << "weekdays and numbers";
        for (int day = 1; day <= days; ++day)
            EXPECT_EQ(drawn.containing("'" + std::to_string(day) + "'").size(), 1u) << m << "/" << day;
    }
    EXPECT_TRUE(month(7).has("text 1.42 6 '31' MS Sans Serif 8 000000"));  // August: sixth row
    EXPECT_TRUE(month(0).has("text 0.42 0.295 'Su' MS Sans Serif 8 000000"));
}

TEST_F(Views, SixMonthsReachIntoNextYear) {
    for (const auto& [first, spans, last] :
         {std::tuple{7, false, "December, 2009"}, {8, true, "January, 2010"}, {12, true, "May, 2010"}}) {
        show(6, 2009, first, 15);
        EXPECT_EQ(SpansNextYear, spans);
        EXPECT_EQ(monthCaptions[5], last);
        EXPECT_EQ(NextDateHolders(0, 5, 0).empty(), !spans);  // January 1, 2010 was a Friday
    }
    EXPECT_TRUE(month(2).containing("'28'").size() == 1 && month(2).containing("'29'").empty()) << "February 2010";
}

TEST_F(Views, DataIsPaintedHolidaysThenBirthdaysThenMarksAndGoesWithItsYear) {
    folder.put("Holidays/2026Holidays.dat", "12/25/26:Christmas Day\r\n07/04/26:Independence Day\r\n");
    folder.put("2026Marks.dat", "11:05:03:255-Dinner");  // December 25, column 5, row 3
    show(12, 2026, 1, 1);
    EXPECT_EQ(month(11).containing("fill "),
              (std::vector<std::string>{"fill 5.1 3.85 5.9 4.65 FF0000", "fill 5.1 3.85 5.9 4.65 0000FF"}));
    EXPECT_EQ(month(6).containing("fill ").size(), 1u);
    show(1, 2026, 12, 1);
    EXPECT_NE(month(0).containing("'25'").back().find("bold 0000FF"), std::string::npos);
    show(12, 2026, 1, 1);
    ShowNeighbourYear(1);
    EXPECT_EQ(pickers, "January 1 2027");
    EXPECT_TRUE(month(11).containing("fill ").empty());
    for (int day = 1; day <= 31; ++day) EXPECT_EQ(hoverText(2027, 12, day), "");
}

TEST_F(Views, NoDayOfItsYearIsPaintedOnTheTemplate) {
    folder.put("2026Marks.dat", "00:04:00:255\r\n00:05:00:128");
    TemplateDate = MakeDate(2026, 1, 1);  // Thursday
    TemplateMode = true;
    show(1, 2026, 11, 22);
    ShowCategory(0, false);
    EXPECT_EQ(painted(2026, 1, 1), 0u);
    RepaintCalendar();
    EXPECT_EQ(painted(2026, 1, 1), 0u);
    EXPECT_EQ(hoverText(2026, 1, 31), "31 signifies the last day of any month.");
    dialogs.verify();
    show(6, 2026, 1, 1);
    EXPECT_EQ(painted(2026, 1, 1), MeetingColor);
}

TEST_F(Views, RepaintDrawsTheSameFromTheTables) {
    folder.put("Holidays/2026Holidays.dat", "12/25/26:Christmas Day\r\n");
    for (const int view : {1, 12}) {
        folder.put("2026Marks.dat", "10:00:03:255");
        show(view, 2026, 11, 3);
        std::vector<std::vector<std::string>> before;
        for (std::size_t i = 0; i < ShownMonths.size(); ++i) before.push_back(month(i).calls());
        folder.put("2026Marks.dat", "not a mark");  // must not be read again
        RepaintCalendar();
        for (std::size_t i = 0; i < before.size(); ++i) EXPECT_EQ(month(i).calls(), before[i]) << view << " " << i;
    }
}

TEST_F(Views, MenuItemsFollowTheView) {
    for (const int view : {1, 6, 12}) {
        show(view, 2026, 11, 22);
        EXPECT_EQ(pressed, view);
        for (const char* item : {"mnuFilePrintCalendar", "mnuOptCal", "mnuOptDateShowIcons", "mnuFileSaveCalendar"})
            EXPECT_EQ(enabled[item], view == 1) << item;
        EXPECT_EQ(enabled["mnuEditDeleteMarks"], view == 12);
        EXPECT_FALSE(enabled["mnuFileSaveTemplate"] || enabled["mnuOptDateRemoveAll"]);
    }
}

TEST_F(Views, NavigationLandsOnTheFirstAndEndsWithTheCalendar) {
    using Row = std::tuple<int, Date, void (*)(int), int, Date>;
    for (const auto& [view, from, step, direction, to] :
         {Row{1, MakeDate(2026, 12, 31), ShowNeighbourMonth, 1, MakeDate(2027, 1, 1)},
          Row{1, MakeDate(2026, 1, 31), ShowNeighbourMonth, -1, MakeDate(2025, 12, 1)},
          Row{6, MakeDate(2009, 3, 15), ShowNeighbourHalfYear, 1, MakeDate(2009, 9, 1)},
          Row{6, MakeDate(2009, 9, 30), ShowNeighbourHalfYear, 1, MakeDate(2010, 3, 1)},
          Row{6, MakeDate(2009, 3, 31), ShowNeighbourHalfYear, -1, MakeDate(2008, 9, 1)},
          Row{12, MakeDate(2009, 7, 4), ShowNeighbourYear, -1, MakeDate(2008, 1, 1)}}) {
        show(view, YearOf(from), MonthOf(from), DayOf(from));
        step(direction);
        EXPECT_EQ(SelectedDate, to) << FormatDate(from, "yyyy-mm-dd");
        EXPECT_EQ(CalendarView, view);
    }
    show(12, 9999, 5, 5);
    dialogs.expect("An error occurred in cmdNext_Click.");
    ShowNeighbourYear(1);
    EXPECT_EQ(caption, "Tasmoro: 9999 Calendar");
    show(6, 9999, 11, 5);
    EXPECT_EQ(monthCaptions[0] + monthCaptions[5], "July, 9999December, 9999");
    EXPECT_EQ(SelectedDate, MakeDate(9999, 11, 5));
}
}  // namespace
