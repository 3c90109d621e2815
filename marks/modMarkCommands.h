// The commands that mark days: mark as a category, quick mark, clear, delete all of a year.
#pragma once

#include <functional>

#include "base/dates.h"

inline constexpr int MarkAsItems = 12;

/// The category of an item of "Mark Selected Date as..." (0..11): all but Quick Marks and Today's Date.
int CategoryOfMarkAsItem(int item);

/// Marks the selected day in the item's category (0..11), saves, and asks for its hover text. The items that read
/// "Birthday" and "Holiday" open their manager instead; the mark then stays in memory. Nothing where no day is
/// selected.
void MarkSelectedDateAs(int item);

/// Marks the selected day in the Quick Marks category and saves.
void QuickMarkSelectedDate();

/// Takes the mark off the selected day, saves and draws the view again. A day that only shows a birthday or a holiday
/// gets a message that names the manager to use. The cleared mark's hover text returns if the day is marked again
/// before the program ends.
void ClearMarkFromSelectedDate();

/// Asks, deletes the marks file of the year on display and draws the year again.
void DeleteThisYearsMarks();

// -- Hooks: filled by the managers' windows --------------------------------------------------------------------------

/// Opens the manager for a new entry on the date. Empty where there is no such window.
extern std::function<void(Date)> OpenBirthdayManager;
extern std::function<void(Date)> OpenHolidayManager;
