// Months and days of lines, the painting of flagged days, and the telling of bad lines.
#include "reminders/modMonthDay.h"

#include <algorithm>

#include "base/errors.h"
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

void BadLines::tell() const {
    if (numbers_.empty()) return;
    constexpr std::size_t Named = 5;  // more would only lengthen the box
    std::string list;
    for (std::size_t i = 0; i < std::min(Named, numbers_.size()); ++i)
        list += (i > 0 ? ", " : "") + std::to_string(numbers_[i]);
    if (numbers_.size() > Named) list += " and " + std::to_string(numbers_.size() - Named) + " more";
    throw Error(TypeMismatch, DescriptionOf(TypeMismatch) + " in \"" + file_ + "\", line " + list +
                                  ". What could not be read is kept as it stands.");
}
