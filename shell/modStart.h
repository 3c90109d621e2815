// Start-up without windows: what is read, in which order; and the pickers' dates.
#pragma once

#include <string>
#include <string_view>

#include "base/dates.h"

/// Empties all tables, reads preferences, categories, alerts and birthdays, selects today. Each step that fails reports
/// and the next one runs. The data folder is set.
void LoadPlanner();

/// The text of the year picker as four digits: "9" becomes "2009". Text of four characters, and what is no year, stays.
std::string FullYearText(std::string_view text);

/// The date of the three pickers. Throws Error 13 if there is no such day.
Date DateOfPickerTexts(std::string_view month, std::string_view day, std::string_view year);

/// "Tasmoro Vers. 1.4.4" and the comments line, as the version box shows them.
std::string SoftwareVersion();

/// Switches to a view (1, 6 or 12), or 0 to draw the current one, for the date in the pickers; asks about unsaved
/// changes first. A date that is none is reported under the procedure's name and the selected date stays.
void ShowViewOfPickers(const char* procedure, int view);

/// Opens the notes of the date in the pickers; the same questions and failures.
void OpenNotesOfPickers(const char* procedure);

/// "Show Numbers Offset" set to its check mark; draws the view again.
void ShowNumbersOffset(bool offset);
