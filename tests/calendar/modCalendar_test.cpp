// The selected date, the cells of all dates and the date holders in them.
#include "calendar/modCalendar.h"

#include "tests/support/planner.h"

namespace {
struct CalendarTest : PlannerTest {
    ~CalendarTest() override { RedrawForDate = {}; }
    /// Makes the date's year the first slot's, with both slots' holders assigned.
    static void show(Date date) {
        SelectDate(date);
        Calendar.yearOnDisplay = YearOf(date);
        ClearDateHolders();
        AssignNextYearsDateholders();
        AssignThisYearsDateHolders();
    }
};

/// Walks the slot's year day by day, column after column: each cell on the way holds its date, no other cell holds one.
void CheckYear(Year slot) {
    const int year = YearOfSlot(slot);
    int column = WeekdayOf(MakeDate(year, 1, 1)) - 1;
    int row = 0;
    int month = 0;
    for (Date date = MakeDate(year, 1, 1); date <= MakeDate(year, 12, 31); ++date) {
        if (MonthOf(date) - 1 != month) month = MonthOf(date) - 1, row = 0;
        const Cell cell{month, column, row};
        ASSERT_EQ(CellOf(date), cell) << FormatDate(date, "mm/dd/yyyy");
        ASSERT_EQ(CellOfText(CellText(cell)), cell);
        ASSERT_EQ(DateOfCell(year, cell), date);
        ASSERT_EQ(Calendar.holders[slot][cell].view(), FormatDate(date, "mm/dd/yy"));
        if (++column == ColumnsInGrid) column = 0, ++row;
    }
    int count = 0;
    ForEachCell([&](Cell cell) {
        ASSERT_EQ(HasDate(year, cell), !Calendar.holders[slot][cell].empty());
        count += HasDate(year, cell);
    });
    ASSERT_EQ(count, DaysInYear(year)) << year;
}
}  // namespace

TEST_F(CalendarTest, EveryDateHasOneCellAndIsHeldThere) {
    std::vector<int> years{100, 104, 400, 1582, 1752, 2400, 9998};
    for (int year = 1900; year <= 2100; ++year) years.push_back(year);
    for (const int year : years) {
        show(MakeDate(year, 3, 1));
        ASSERT_EQ(LeapYear, DaysInYear(year) == 366) << year;
        for (const Year slot : {ThisYear, NextYear}) CheckYear(slot);
    }
}

TEST_F(CalendarTest, PartsFollowTheSelectedDate) {
    SelectDate(MakeDate(2009, 2, 7));
    EXPECT_EQ(SelectedDateText + Calendar.dayText + Calendar.monthText + Calendar.yearText, "02/07/09070209");
    EXPECT_EQ(ShortDate(Calendar.firstOfMonth), "2/1/2009");
    EXPECT_EQ(ShortDate(Calendar.yearStart) + " to " + ShortDate(Calendar.yearEnd), "1/1/2009 to 12/31/2009");
}

TEST_F(CalendarTest, SlotOfLoadsAYearThatIsNotOnDisplay) {
    show(MakeDate(2009, 12, 1));
    SpansNextYear = true;
    EXPECT_EQ(SlotOf(MakeDate(2010, 1, 1)), NextYear);
    RedrawForDate = [] { Calendar.yearOnDisplay = YearOf(SelectedDate), SpansNextYear = false; };
    EXPECT_EQ(SlotOf(MakeDate(2011, 5, 5)), ThisYear);
    EXPECT_EQ(SlotOf(MakeDate(2012, 5, 5)), ThisYear) << "next year is not on display any more";
    EXPECT_EQ(YearOfSlot(ThisYear), 2012);
}

TEST_F(CalendarTest, AYearWithoutANextOneIsReported) {
    dialogs.expect("An error occurred in AssignNextYearsDateholders.");
    show(MakeDate(9999, 12, 31));
    EXPECT_EQ(DateHolders(11, 5, 4).view(), "12/31/99");
}
