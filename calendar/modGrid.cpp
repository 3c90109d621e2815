// The month grid's arithmetic.
#include "calendar/modGrid.h"

#include "base/text.h"

namespace {
/// Cells before the 1st in row 0: the weekday column of the month's first day.
int Lead(int year, int month) { return WeekdayOf(MakeDate(year, month + 1, 1)) - 1; }
}  // namespace

Cell CellOf(Date date) {
    const YearMonthDay parts = PartsOf(date);
    const int place = Lead(parts.year, parts.month - 1) + parts.day - 1;
    return {parts.month - 1, place % ColumnsInGrid, place / ColumnsInGrid};
}

namespace {
/// The day of the month that the cell would show; outside 1..DaysInMonth for an empty cell.
int DayOfCell(int year, Cell cell) { return cell.row * ColumnsInGrid + cell.column - Lead(year, cell.month) + 1; }
}  // namespace

bool HasDate(int year, Cell cell) {
    return cell.valid() && IsDate(year, cell.month + 1, 1) && IsDate(year, cell.month + 1, DayOfCell(year, cell));
}

Date DateOfCell(int year, Cell cell) {
    if (!cell.valid()) throw Error(SubscriptOutOfRange);
    return MakeDate(year, cell.month + 1, DayOfCell(year, cell));
}

std::string CellText(Cell cell) { return TwoDigits(cell.month) + TwoDigits(cell.column) + TwoDigits(cell.row); }

Cell CellOfText(std::string_view text) {
    const Cell cell{SmallIntegerValue(Middle(text, 1, 2)), SmallIntegerValue(Middle(text, 3, 2)),
                    SmallIntegerValue(Middle(text, 5, 2))};
    if (!cell.valid()) throw Error(SubscriptOutOfRange);
    return cell;
}
