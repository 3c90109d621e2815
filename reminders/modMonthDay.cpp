// Months and days of lines, and the painting of flagged days.
#include "reminders/modMonthDay.h"

#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"

namespace {
/// The value of two digits, or -1.
int PairAt(std::string_view text, std::size_t at) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (!isDigit(text[at]) || !isDigit(text[at + 1])) return -1;
    return (text[at] - '0') * 10 + text[at + 1] - '0';
}
}  // namespace

std::optional<Date> DayInYear(std::string_view monthDay, int year) {
    if (monthDay.size() != 5 || monthDay[2] != '/') return std::nullopt;
    const int month = PairAt(monthDay, 0);
    const int day = PairAt(monthDay, 3);
    if (!IsDate(year, month, day)) return std::nullopt;
    return MakeDate(year, month, day);
}

void PaintFlaggedDays(Year slot, const Grid<bool>& flag, Color fill) {
    const int year = YearOfSlot(slot);
    ForEachCell([&](Cell cell) {
        if (flag[cell]) PaintDay(slot, cell, DayOf(DateOfCell(year, cell)), fill);
    });
}
