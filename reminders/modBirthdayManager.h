// What the birthday manager does: its two lists, the birthday being edited, ages, saving, deleting, printing.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reminders/modBirthdays.h"

/// The stored period of each option button.
inline constexpr std::array<const char*, 7> BirthdayPeriods{"-1", "00", "01", "03", "05", "07", "10"};
inline constexpr int UsualBirthdayPeriod = 5;  // "7 Days Ahead of Time"

inline constexpr int BirthdaysPerPage = 42;

struct BirthdayListState {
    std::vector<std::string> byMonth;  // record entries: date text, tab, name
    std::vector<std::string> byName;   // record entries: name key, " - ", date text; sorted
    bool pendingOnly = false;          // only pending birthdays are listed
    bool changed = false;              // something was saved or deleted since the window opened
    int edited = -1;                   // the birthday being edited; -1 while a new one is added
};
extern BirthdayListState BirthdayList;

/// What the edit controls hold.
struct BirthdayEdit {
    std::string name;
    std::string date;
    bool rememberAge = true;
    std::optional<int> period = UsualBirthdayPeriod;  // the option button; none for a period that has no button
    std::string age = "Age = NA";
    bool operator==(const BirthdayEdit&) const = default;
};

/// Where the window puts the focus after a save.
enum class BirthdayField { Name, Date, Saved, Abandoned };

/// Prepares a window that opens: reads the file and builds the lists, of pending birthdays if there are any.
void OpenBirthdayList();

/// "Birthday Management - Viewing All" or "... Viewing Pending".
std::string BirthdayListTitle();

/// Rebuilds BirthdayMasterList and the list by month from the birthday tables.
void LoadListBoxes();
/// Rebuilds the list by name.
void UpdateListBox();

/// Lists pending birthdays only, or all; a new birthday is being added then.
void ViewBirthdays(bool pendingOnly);

/// "07/04/1931", or "07/04" where the year is not remembered.
std::string BirthdayDateText(const BirthdayRec& record);

/// A name with its surname in front, suffixes at the end: "Last, First Jr.".
std::string BirthdayNameKey(std::string_view name);

/// "Age = 78": the birthdays passed up to today. "Age = NA" without a year.
std::string CalculateAge(const BirthdayRec& record);

/// Makes the birthday the one being edited and answers what the controls show of it.
BirthdayEdit SelectBirthday(int index);

/// The birthday of a line, which a save may move; -1 for none.
int BirthdayOfLine(const std::string& line);

/// True if a date as typed says its year.
bool NamesYear(std::string_view date);

/// Checks and saves what was typed, as a new birthday or in place of the one being edited. What is refused is told, and
/// answers the field to correct; Abandoned after a failed write.
BirthdayField SaveBirthday(const BirthdayEdit& typed);

/// Deletes the birthdays of these indexes, after a question if there are several; then the file as it was is kept in
/// "Backup". True if they are deleted.
bool DeleteBirthdays(const std::vector<int>& indexes);

/// Marks the open calendar's months with all birthdays at once.
void MarkAllBirthdays();

/// Tells, when the window closes, that something was saved.
void CloseBirthdayList();

/// Prints the name, the date and the age, one below the other. Nothing without a name.
void PrintBirthdayRecord(const BirthdayEdit& shown);

/// Asks and prints entries of one of the lists, 42 on a page.
void PrintBirthdayList(const std::vector<std::string>& entries);
/// The same for selected entries; a message if there is none.
void PrintSelectedBirthdays(const std::vector<std::string>& entries);
