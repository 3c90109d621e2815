// The month grid: twelve months of seven weekday columns and six week rows; one piece of arithmetic turns a date into
// its cell.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/dates.h"
#include "base/errors.h"

inline constexpr int MonthsInGrid = 12;
inline constexpr int ColumnsInGrid = 7;  // Sunday first
inline constexpr int RowsInGrid = 6;     // the 1st of a month is in row 0

/// The two slots that every table by year has.
enum Year { ThisYear, NextYear };

/// A place in the grid. Negative values mean that no cell is meant.
struct Cell {
    int month = -1;   // 0..11
    int column = -1;  // 0..6
    int row = -1;     // 0..5
    bool operator==(const Cell&) const = default;
    bool valid() const {
        return month >= 0 && month < MonthsInGrid && column >= 0 && column < ColumnsInGrid && row >= 0 &&
               row < RowsInGrid;
    }
};

/// One value for each cell of a year. Throws Error 9 for a cell outside the grid.
template <class Value>
class Grid {
  public:
    Value& operator()(int month, int column, int row) { return values_[indexOf({month, column, row})]; }
    const Value& operator()(int month, int column, int row) const { return values_[indexOf({month, column, row})]; }
    Value& operator[](Cell cell) { return values_[indexOf(cell)]; }
    const Value& operator[](Cell cell) const { return values_[indexOf(cell)]; }
    void fill(const Value& value) { values_.fill(value); }

  private:
    static std::size_t indexOf(Cell cell) {
        if (!cell.valid()) throw Error(SubscriptOutOfRange);
        const auto index = [](int part) { return static_cast<std::size_t>(part); };
        return (index(cell.month) * ColumnsInGrid + index(cell.column)) * RowsInGrid + index(cell.row);
    }
    std::array<Value, MonthsInGrid * ColumnsInGrid * RowsInGrid> values_{};
};

/// The cell of a date in its own year's grid.
Cell CellOf(Date date);

/// The date that a cell of the year's grid shows; no date where `cell` is empty in that year.
bool HasDate(int year, Cell cell);
/// Throws Error 13 where the cell is empty in that year.
Date DateOfCell(int year, Cell cell);

/// "MMCCRR": month index, column and row, two digits each.
std::string CellText(Cell cell);
/// Reads "MMCCRR". Throws Error 13 for what is no number, 9 for a place outside the grid.
Cell CellOfText(std::string_view text);

/// Calls `visit` with each cell in the order of the files: month, then column, then row.
template <class Visit>
void ForEachCell(Visit visit) {
    for (int month = 0; month < MonthsInGrid; ++month)
        for (int column = 0; column < ColumnsInGrid; ++column)
            for (int row = 0; row < RowsInGrid; ++row) visit(Cell{month, column, row});
}
