// Holidays: one file a year, the tables of the two years on display, and the painting of their days.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/files.h"
#include "calendar/modGrid.h"

struct HolidaysOfYear {
    int year = 0;                   // the year whose file this is; 0 before the first reading
    int count = 0;                  // lines of the file
    std::vector<std::string> text;  // description of holiday i
    std::vector<std::string> date;  // "mm/dd/yy", or whatever the line begins with
    std::vector<std::string> cell;  // "MMCCRR"; "" where the date is no day of the year
    Grid<bool> flag;                // the cell shows a holiday
    Grid<int> first;                // 1 + the index of the first holiday of the cell; 0 where there is none
};
extern std::array<HolidaysOfYear, 2> HolidayYears;  // by Year

inline int& HolidayCount = HolidayYears[ThisYear].count;
inline auto& HolidayText = HolidayYears[ThisYear].text;
inline auto& HolidayDate = HolidayYears[ThisYear].date;
inline auto& HolidayCell = HolidayYears[ThisYear].cell;
inline auto& HolidayFlag = HolidayYears[ThisYear].flag;
inline int& NextHolidayCount = HolidayYears[NextYear].count;
inline auto& NextHolidayText = HolidayYears[NextYear].text;
inline auto& NextHolidayDate = HolidayYears[NextYear].date;
inline auto& NextHolidayCell = HolidayYears[NextYear].cell;
inline auto& NextHolidayFlag = HolidayYears[NextYear].flag;

/// The file of a year's holidays; the folder may not exist yet.
Path HolidayPath(int year);
bool HolidayFileExists(int year);

/// Empties the slot's tables and fills them from the file of the slot's year. No file: no holidays. A failure is
/// reported under the procedure's name; what was read before it stays in effect.
void AssignThisYearsHolidays();
void AssignNextYearsHolidays();

/// Paints the days of the slot's holidays on the view, in the Holiday category's colour (0 if it is hidden). Nothing if
/// the year has no file.
void DisplayThisYearsHolidays();
void DisplayNextYearsHolidays();

/// The description of the cell's first holiday in the order of the file; nothing where the cell shows none.
std::optional<std::string> HolidayOfCell(Year slot, Cell cell);
