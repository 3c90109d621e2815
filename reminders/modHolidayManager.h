// What the holiday manager does: one year's list, edited and saved whole.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct HolidayListState {
    std::string year;                // the selected year, four digits
    std::vector<std::string> lines;  // whole lines of the year's file, sorted
    int clicked = 0;                 // the entry that "Remove" takes; -1 for none
    bool changed = false;            // something was saved since the window opened
};
extern HolidayListState HolidayList;

/// Where the window puts the focus after a save.
enum class HolidayField { Date, Description, Saved, Abandoned };

/// Selects the current year and loads its list.
void OpenHolidayList();

/// Selects a year and loads its list.
void SelectHolidayYear(const std::string& year);

/// Reads the selected year's file into the list. No file: a message, and an empty list.
void LoadHolidayList();

/// "&New Holiday List": loads the list of the year as typed, or starts an empty one if that year has none. False, after
/// a message, for what is no year from 100 to 9999.
bool StartHolidayList(std::string_view typedYear);

/// The date of an entry as the window shows it, "mmm dd, yyyy" (or as the line has it where that is no date), and its
/// description. "" for an entry that is not there.
std::string HolidayDateShown(int entry);
std::string HolidayDescription(int entry);

/// Checks what was typed and puts it into the list, in place of what the date had, and saves the list. What is refused
/// is told, and answers the field to correct. Abandoned after a failed write: the list then has the entry, as the one
/// that was clicked, and can be saved again.
HolidayField SaveHoliday(std::string_view date, std::string_view description);

/// Removes the clicked entry and saves the list. The file as it was is kept in "Backup". Nothing without an entry.
void RemoveHoliday();

/// Rewrites the selected year's file; an empty list leaves none. The "Holidays" folder is made when missing. False
/// after a failure; it is reported and the file is then as it was.
bool SaveHolidayFile();

/// Saves the list and draws the calendar again.
void SaveHolidaysAndRedraw();

/// Tells, when the window closes, that something was saved.
void CloseHolidayList();
