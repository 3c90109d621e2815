// The month grid: every date has one cell, every cell at most one date.
#include "calendar/modGrid.h"

#include "tests/support/planner.h"

namespace {
/// Walks a year day by day, column after column, and checks every cell on the way.
void CheckYear(int year) {
    int column = WeekdayOf(MakeDate(year, 1, 1)) - 1;
    int row = 0;
    int month = 0;
    std::size_t filled = 0;
    for (Date date = MakeDate(year, 1, 1); date <= MakeDate(year, 12, 31); ++date, ++filled) {
        if (MonthOf(date) - 1 != month) month = MonthOf(date) - 1, row = 0;
        const Cell cell{month, column, row};
        ASSERT_EQ(CellOf(date), cell) << year << " day " << filled;
        ASSERT_EQ(CellOfText(CellText(cell)), cell);
        ASSERT_TRUE(HasDate(year, cell));
        ASSERT_EQ(DateOfCell(year, cell), date);
        if (++column == ColumnsInGrid) column = 0, ++row;
    }
    std::size_t with = 0;
    ForEachCell([&](Cell cell) { with += HasDate(year, cell); });
    ASSERT_EQ(with, filled) << year;
}
}  // namespace

TEST(MonthGrid, HoldsEveryDateOnce) {
    for (int year = 1900; year <= 2100; ++year) CheckYear(year);
    for (const int year : {100, 101, 104, 400, 1582, 1752, 2400, 9996, 9999}) CheckYear(year);
}

TEST(MonthGrid, RefusesWhatLiesOutside) {
    const Cell outside[] = {{}, {12, 0, 0}, {0, 7, 0}, {0, 0, 6}, {-1, 3, 3}, {0, -1, 0}, {0, 0, -1}};
    Grid<int> grid;
    for (const Cell cell : outside) {
        EXPECT_FALSE(HasDate(2009, cell));
        EXPECT_THROW(grid[cell], Error);
        EXPECT_THROW(DateOfCell(2009, cell), Error);
    }
    EXPECT_FALSE(HasDate(10000, {0, 3, 2}) || HasDate(99, {0, 3, 2}));
    EXPECT_THROW(DateOfCell(2009, {0, 0, 0}), Error);
    for (const char* text : {"120000", "000700", "000006", "-10000"})
        EXPECT_EQ(ErrorOf([&] { CellOfText(text); }), SubscriptOutOfRange) << text;
    for (const char* text : {"", "0000", "0a0000", "03/07"})
        EXPECT_EQ(ErrorOf([&] { CellOfText(text); }), TypeMismatch) << text;
}
