// What holidays and birthdays share: turning the month and day of a line into a day of a year, and painting the days
// that carry one.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "calendar/modGrid.h"
#include "forms/canvas.h"

/// The month (1..12) and day (1..31) that the five characters "mm/dd" name; month 0 for any other form, and for a day
/// that no year has (13/01, 02/30).
struct MonthAndDay {
    int month = 0;
    int day = 0;
};
MonthAndDay ReadMonthAndDay(std::string_view text);

/// A value for each day of any year, by month and day.
template <class Value>
class DayTable {
  public:
    Value& operator[](MonthAndDay at) {
        const int index = at.month * 32 + at.day;
        return values_[static_cast<std::size_t>(index)];
    }

  private:
    std::array<Value, 13 * 32> values_{};
};

/// The day that the five characters "mm/dd" name in a year. Nothing for any other form and for a day that the year does
/// not have (02/29 outside leap years, 13/01).
std::optional<Date> DayInYear(std::string_view monthDay, int year);

/// Paints the day of every flagged cell of the slot's year on the months on display. `fill` as in PaintDay.
void PaintFlaggedDays(Year slot, const Grid<bool>& flag, Color fill);
