// The month grid: what lies outside. That every date has its cell is seen by the date holders.
#include "calendar/modGrid.h"

#include "tests/support/planner.h"

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
