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

MonthAndDay ReadMonthAndDay(std::string_view text) {
    constexpr int AnyLeapYear = 2000;
    if (text.size() != 5 || text[2] != '/') return {};
    const MonthAndDay read{PairAt(text, 0), PairAt(text, 3)};
    return IsDate(AnyLeapYear, read.month, read.day) ? read : MonthAndDay{};
}

std::optional<Date> DayInYear(std::string_view monthDay, int year) {
    const auto [month, day] = ReadMonthAndDay(monthDay);
    if (!IsDate(year, month, day)) return std::nullopt;
    return MakeDate(year, month, day);
}

void PaintFlaggedDays(Year slot, const Grid<bool>& flag, Color fill) {
    const int year = YearOfSlot(slot);
    ForEachCell([&](Cell cell) {
        if (flag[cell]) PaintDay(slot, cell, DayOf(DateOfCell(year, cell)), fill);
    });
}
