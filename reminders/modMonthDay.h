// What holidays and birthdays share: turning the month and day of a line into a day of a year, and painting the days
// that carry one.
#pragma once

#include <optional>
#include <string_view>

#include "calendar/modGrid.h"
#include "forms/canvas.h"

/// The day that the five characters "mm/dd" name in a year. Nothing for any other form and for a day that the year does
/// not have (02/29 outside leap years, 13/01).
std::optional<Date> DayInYear(std::string_view monthDay, int year);

/// Paints the day of every flagged cell of the slot's year on the months on display. `fill` as in PaintDay.
void PaintFlaggedDays(Year slot, const Grid<bool>& flag, Color fill);
