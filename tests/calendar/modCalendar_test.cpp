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
    static std::string holder(int month, int column, int row) {
        const auto& found = DateHolders(month, column, row);
        return found.empty() ? "" : std::string(found.view());
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

TEST_F(CalendarTest, HoldersOfKnownDates) {
    show(MakeDate(2009, 2, 7));
    EXPECT_EQ(holder(0, 4, 0), "01/01/09");
    EXPECT_EQ(holder(0, 3, 0), "");
    EXPECT_EQ(holder(7, 1, 5), "08/31/09");
    EXPECT_EQ(holder(11, 4, 4), "12/31/09");
    bool marksCleared = false;
    ClearMarkFlags = [&] { marksCleared = true; };
    ClearDateHolders();
    ClearMarkFlags = {};
    EXPECT_TRUE(marksCleared);
    ForEachCell([](Cell cell) { EXPECT_EQ(DateHolders[cell].view(), std::string_view("\0\0\0\0\0\0\0\0", 8)); });
    show(MakeDate(2008, 5, 5));
    EXPECT_EQ(holder(1, 5, 4), "02/29/08");
}

TEST_F(CalendarTest, PartsFollowTheSelectedDate) {
    SelectDate(MakeDate(2009, 2, 7));
    EXPECT_EQ(SelectedDateText, "02/07/09");
    EXPECT_EQ(Calendar.dayText + Calendar.monthText + Calendar.yearText, "070209");
    EXPECT_EQ(DisplayedYear, 2009);
    EXPECT_EQ(Calendar.firstOfMonth, MakeDate(2009, 2, 1));
    EXPECT_EQ(Calendar.yearStart, MakeDate(2009, 1, 1));
    EXPECT_EQ(Calendar.yearEnd, MakeDate(2009, 12, 31));
    EXPECT_EQ(CellText(SelectedCell), "010600");
}

TEST_F(CalendarTest, SlotOfLoadsAYearThatNeitherSlotHolds) {
    show(MakeDate(2009, 12, 1));
    SpansNextYear = true;
    EXPECT_EQ(SlotOf(MakeDate(2009, 1, 1)), ThisYear);
    EXPECT_EQ(SlotOf(MakeDate(2010, 1, 1)), NextYear);
    EXPECT_EQ(SelectedDate, MakeDate(2009, 12, 1));
    int redrawn = 0;
    RedrawForDate = [&] { ++redrawn, Calendar.yearOnDisplay = YearOf(SelectedDate), SpansNextYear = false; };
    EXPECT_EQ(SlotOf(MakeDate(2011, 5, 5)), ThisYear);
    EXPECT_EQ(SlotOf(MakeDate(2012, 5, 5)), ThisYear) << "next year is not on display any more";
    EXPECT_EQ(redrawn, 2);
    EXPECT_EQ(YearOfSlot(ThisYear), 2012);
}

TEST_F(CalendarTest, AYearWithoutANextOneIsReported) {
    dialogs.expect("An error occurred in AssignNextYearsDateholders.");
    show(MakeDate(9999, 12, 31));
    EXPECT_EQ(holder(11, 5, 4), "12/31/99");
}
