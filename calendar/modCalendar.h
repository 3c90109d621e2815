// The selected date and what is derived from it, the two years the tables hold, and their date holders.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/dates.h"
#include "calendar/modGrid.h"

/// The date a cell shows, "mm/dd/yy", or eight characters of code 0 where it shows none.
struct DateHolder {
    std::array<char, 8> text{};
    bool empty() const { return text[0] == '\0'; }
    std::string_view view() const { return {text.data(), text.size()}; }
};

struct CalendarState {
    Date selectedDate;
    int selectedDay = 0;    // 1..31
    int selectedMonth = 0;  // 1..12
    int displayedYear = 0;  // the year of the selected date
    Date firstOfMonth;      // of the selected date
    Date yearStart;
    Date yearEnd;
    std::string dayText;           // "07"
    std::string monthText;         // "02"
    std::string yearText;          // "09"
    std::string selectedDateText;  // "02/07/09"
    Cell selectedCell;
    bool leapYear = false;            // of the year whose holders were assigned last
    int yearOnDisplay = 0;            // the year of the first month on display: the first slot's
    bool spansNextYear = false;       // the six-month view shows months of the year after
    bool selectedInNextYear = false;  // the selected cell lies in the second slot's grid
    int calendarView = 0;             // 0 none, 1 one month, 6 six months, 12 one year
    Date typedInDate;                 // the date last clicked; no date where typedIn is false
    bool typedIn = false;
    Date firstShown;                          // the first day of the first month on display
    Date startedOn;                           // the day on which the program was started
    std::array<Grid<DateHolder>, 2> holders;  // by Year
};
extern CalendarState Calendar;

inline Date& SelectedDate = Calendar.selectedDate;
inline int& DisplayedYear = Calendar.displayedYear;
inline std::string& SelectedDateText = Calendar.selectedDateText;
inline Cell& SelectedCell = Calendar.selectedCell;
inline bool& LeapYear = Calendar.leapYear;
inline bool& SpansNextYear = Calendar.spansNextYear;
inline bool& SelectedInNextYear = Calendar.selectedInNextYear;
inline int& CalendarView = Calendar.calendarView;
inline auto& DateHolders = Calendar.holders[ThisYear];
inline auto& NextDateHolders = Calendar.holders[NextYear];

inline constexpr std::array<const char*, 7> WeekdayNames{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

/// The year that a slot stands for: the year on display, or the one after it.
inline int YearOfSlot(Year year) { return Calendar.yearOnDisplay + (year == NextYear ? 1 : 0); }

/// Computes every derived value from SelectedDate.
void SetSelectedDateParts();

/// Makes `date` the selected date: SetSelectedDateParts and its cell.
void SelectDate(Date date);

/// Empties both tables of date holders, and the mark flags (through ClearMarkFlags).
void ClearDateHolders();
/// Fills a slot's date holders for the slot's year.
void AssignThisYearsDateHolders();
void AssignNextYearsDateholders();
/// Stores the cell of SelectedDate in SelectedCell.
void FindSelectedCell();

/// The slot that holds the date's year. A year that neither slot holds is first loaded into the first slot, and the
/// view redrawn for it (through RedrawForDate).
Year SlotOf(Date date);
/// True if the date lies in the second slot's year while months of it are shown: "lies in the next year".
bool LiesInNextYear(Date date);

// -- Hooks: filled by whoever shows the thing -----------------------------------------------------------------------

/// Clears the mark flags of both years; filled by the marks.
extern std::function<void()> ClearMarkFlags;
/// Draws the current view for another selected date (SelectedDate is set).
extern std::function<void()> RedrawForDate;
