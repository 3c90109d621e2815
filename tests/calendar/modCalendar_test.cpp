// The selected date and the date holders.
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
}  // namespace

TEST_F(CalendarTest, HoldersOfEveryYearShowEachDateInItsCell) {
    for (int year = 1900; year <= 2100; ++year) {
        show(MakeDate(year, 3, 1));
        ASSERT_EQ(LeapYear, DaysInYear(year) == 366) << year;
        for (const Year slot : {ThisYear, NextYear}) {
            int filled = 0;
            ForEachCell([&](Cell cell) {
                const DateHolder& found = Calendar.holders[slot][cell];
                ASSERT_EQ(found.empty(), !HasDate(year + slot, cell));
                if (found.empty()) return;
                ++filled;
                ASSERT_EQ(found.view(), FormatDate(DateOfCell(year + slot, cell), "mm/dd/yy"));
            });
            ASSERT_EQ(filled, DaysInYear(year + slot)) << year + slot;
        }
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
