// The month grid: every date has one cell, every cell at most one date.
#include "calendar/modGrid.h"

#include <gtest/gtest.h>

#include <set>

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
        ASSERT_EQ(CellText(CellOf(date)), CellText(cell)) << year << " day " << filled;
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

TEST(MonthGrid, KnowsItsHardMonths) {
    const struct {
        Date date;
        const char* cell;
    } rows[] = {{MakeDate(2009, 1, 1), "000400"},  {MakeDate(2009, 1, 3), "000600"},
                {MakeDate(2009, 1, 4), "000001"},  {MakeDate(2009, 12, 31), "110404"},
                {MakeDate(2008, 2, 29), "010504"}, {MakeDate(2015, 2, 28), "010603"},
                {MakeDate(2009, 8, 31), "070105"}};
    for (const auto& [date, cell] : rows) {
        EXPECT_EQ(CellText(CellOf(date)), cell);
        EXPECT_EQ(CellOfText(cell), CellOf(date));
    }
    EXPECT_FALSE(HasDate(2015, {1, 0, 4}));
}

TEST(MonthGrid, RefusesWhatLiesOutside) {
    const Cell outside[] = {{}, {12, 0, 0}, {0, 7, 0}, {0, 0, 6}, {-1, 3, 3}, {0, -1, 0}, {0, 0, -1}};
    Grid<int> grid;
    for (const Cell cell : outside) {
        EXPECT_FALSE(HasDate(2009, cell));
        EXPECT_THROW(grid[cell], Error);
        EXPECT_THROW(DateOfCell(2009, cell), Error);
    }
    EXPECT_FALSE(HasDate(10000, {0, 3, 2}));
    EXPECT_FALSE(HasDate(99, {0, 3, 2}));
    EXPECT_THROW(DateOfCell(2009, {0, 0, 0}), Error);
    const struct {
        const char* text;
        int error;
    } rows[] = {{"120000", SubscriptOutOfRange},
                {"000700", SubscriptOutOfRange},
                {"000006", SubscriptOutOfRange},
                {"-10000", SubscriptOutOfRange},
                {"", TypeMismatch},
                {"0000", TypeMismatch},
                {"0a0000", TypeMismatch},
                {"03/07", TypeMismatch}};
    for (const auto& [text, number] : rows) {
        try {
            CellOfText(text);
            ADD_FAILURE() << text << " was read";
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), number) << text;
        }
    }
}

TEST(MonthGrid, HasAPlaceOfItsOwnForEachCell) {
    Grid<int> grid;
    std::set<std::string> texts;
    int count = 0;
    ForEachCell([&](Cell cell) { grid[cell] = ++count, texts.insert(CellText(cell)); });
    EXPECT_EQ(count, 504);
    EXPECT_EQ(texts.size(), 504u);
    int expected = 0;
    ForEachCell([&](Cell cell) { ASSERT_EQ(grid(cell.month, cell.column, cell.row), ++expected); });
}
