// What holidays and birthdays share: turning the month and day of a line into a day of a year, painting the days that
// carry one, and telling of lines that cannot be read.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendar/modGrid.h"
#include "forms/canvas.h"

/// The day that the five characters "mm/dd" name in a year. Nothing for any other form and for a day that the year does
/// not have (02/29 outside leap years, 13/01).
std::optional<Date> DayInYear(std::string_view monthDay, int year);

/// Paints the day of every flagged cell of the slot's year on the months on display. `fill` as in PaintDay.
void PaintFlaggedDays(Year slot, const Grid<bool>& flag, Color fill);

/// The lines of a file that could not be understood. They stay in the list as they are, so that no save loses them.
class BadLines {
  public:
    explicit BadLines(std::string file) : file_(std::move(file)) {}
    void add(int number) { numbers_.push_back(number); }
    /// Throws Error 13 that names the file and the first few lines. Does nothing if there was none.
    void tell() const;

  private:
    std::string file_;
    std::vector<int> numbers_;  // from 1
};
