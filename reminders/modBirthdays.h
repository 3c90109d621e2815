// Birthdays: their file, which are pending, and the days they mark in the two years on display.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendar/modGrid.h"

/// A birthday as its line holds it.
struct BirthdayRec {
    std::string MonthDay;    // "mm/dd"
    std::string NotifyDays;  // days ahead in decimal, "0" on the day, "-1" never
    std::string Name;
    std::string BirthYear;  // four digits, or "****" where the age is not remembered
};

struct BirthdaysOfYear {
    int year = 0;                   // the year the cells belong to; 0 before the first marking
    Grid<bool> flag;                // the cell shows a birthday
    Grid<std::string> cellName;     // the name of the cell's last birthday
    std::vector<std::string> cell;  // "MMCCRR" of birthday i; "" where the year has no such day
    Grid<int> first;                // 1 + the index of the cell's first birthday; 0 for none
    std::vector<int> next;          // 1 + the index of the next birthday in the cell of birthday i; 0 for none
};

/// What the window's cake shows.
struct BirthdayIndicatorState {
    bool pending = false;  // element 2's picture; element 1's otherwise
    std::string toolTip = "No Birthdays Pending";
};

struct BirthdayState {
    std::vector<std::string> line;         // the file's lines, blank ones left out
    std::vector<BirthdayRec> records;      // by the same index
    int count = 0;                         // of lines
    std::vector<std::string> pendingLine;  // the line where the birthday is pending, "" otherwise
    int pendingCount = 0;
    BirthdayIndicatorState indicator;
    std::vector<std::string> pendingEntries;  // the window's pending list: record entries, sorted
    std::vector<std::string> master;          // what SaveBirthdays writes: whole lines, sorted
    bool quietSave = false;                   // the next save shows no message
    std::array<BirthdaysOfYear, 2> years;     // by Year
};
extern BirthdayState BirthdayTables;

inline auto& BirthdayLine = BirthdayTables.line;
inline auto& Birthday = BirthdayTables.records;
inline int& BirthdayCount = BirthdayTables.count;
inline auto& PendingBirthdayLine = BirthdayTables.pendingLine;
inline int& PendingBirthdayCount = BirthdayTables.pendingCount;
inline auto& BirthdayIndicator = BirthdayTables.indicator;
inline auto& PendingBirthdayEntries = BirthdayTables.pendingEntries;
inline auto& BirthdayMasterList = BirthdayTables.master;
inline bool& QuietBirthdaySave = BirthdayTables.quietSave;
inline auto& BirthdayFlag = BirthdayTables.years[ThisYear].flag;
inline auto& BirthdayCellName = BirthdayTables.years[ThisYear].cellName;
inline auto& BirthdayCell = BirthdayTables.years[ThisYear].cell;
inline auto& NextBirthdayFlag = BirthdayTables.years[NextYear].flag;
inline auto& NextBirthdayCellName = BirthdayTables.years[NextYear].cellName;
inline auto& NextBirthdayCell = BirthdayTables.years[NextYear].cell;

/// Reads the file, finds what is pending today and sets the indicator. Lines that cannot be understood stay in the
/// tables as they are, never pending, and are reported together once the others are in effect.
void ReadBirthdays();

/// Rewrites the file from BirthdayMasterList; an empty list leaves no file. Shows "Birthdays Updated." unless
/// QuietBirthdaySave is set, and clears it. `keepPrevious`: the file as it was is first copied to "Backup". False after
/// a failure; it is reported and the file is then as it was.
bool SaveBirthdays(bool keepPrevious = false);

/// Joins the birthdays to the cells of the slot's year and paints their days. Does not read the file.
void ReadAndMarkBirthdays();
void ReadAndMarkNextYearsBirthdays();

/// Fills the table of the window's pending list and shows it.
void FillPendingBirthdayList();

/// Reads one line and answers its period in days, -1 for never; nothing where a field is no number or no date. `record`
/// is filled either way.
std::optional<int> ParseBirthday(std::string_view line, BirthdayRec& record);

/// The day on which a birthday falls in a year: 02/29 is February 28 in a year without it. Nothing for no date.
std::optional<Date> BirthdayInYear(std::string_view monthDay, int year);

/// "Date = mm/dd/yy" for the entry of the pending list, in the current year. "" for an entry without a birthday.
std::string PendingBirthdayDate(std::string_view entry);

/// The names of the cell's birthdays in list order.
std::vector<std::string> BirthdaysOfCell(Year slot, Cell cell);

// -- Hooks: filled by the main window --------------------------------------------------------------------------------

/// Shows BirthdayIndicator.
extern std::function<void()> ShowBirthdayIndicator;
/// Shows PendingBirthdayEntries.
extern std::function<void()> ShowPendingBirthdays;
