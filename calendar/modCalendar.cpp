// The selected date, the years the tables hold, and their date holders.
#include "calendar/modCalendar.h"

#include <algorithm>

#include "base/state.h"
#include "base/text.h"
#include "shell/modErrors.h"

CalendarState Calendar;
std::function<void()> ClearMarkFlags;
std::function<void()> RedrawForDate;

namespace {
const ClearedAtStart ClearCalendar([] { Calendar = {}; });

void AssignDateHolders(Year slot) {
    const int year = YearOfSlot(slot);
    auto& holders = Calendar.holders[slot];
    holders.fill({});
    LeapYear = IsLeapYear(year);
    const Date end = MakeDate(year, 12, 31);
    for (Date day = MakeDate(year, 1, 1); day <= end; ++day) {
        const std::string text = FormatDate(day, "mm/dd/yy");
        std::copy(text.begin(), text.end(), holders[CellOf(day)].text.begin());
    }
}
}  // namespace

void SetSelectedDateParts() {
    const YearMonthDay parts = PartsOf(SelectedDate);
    Calendar.selectedDay = parts.day;
    Calendar.selectedMonth = parts.month;
    DisplayedYear = parts.year;
    Calendar.firstOfMonth = FirstOfMonth(SelectedDate);
    Calendar.yearStart = MakeDate(parts.year, 1, 1);
    Calendar.yearEnd = MakeDate(parts.year, 12, 31);
    Calendar.dayText = TwoDigits(parts.day);
    Calendar.monthText = TwoDigits(parts.month);
    Calendar.yearText = FormatDate(SelectedDate, "yy");
    SelectedDateText = FormatDate(SelectedDate, "mm/dd/yy");
}

void SelectDate(Date date) {
    SelectedDate = date;
    SetSelectedDateParts();
    FindSelectedCell();
}

void ClearDateHolders() {
    for (auto& holders : Calendar.holders) holders.fill({});
    if (ClearMarkFlags) ClearMarkFlags();
}

void AssignThisYearsDateHolders() {
    Reporting("AssignThisYearsDateHolders", [] { AssignDateHolders(ThisYear); });
}

void AssignNextYearsDateholders() {
    Reporting("AssignNextYearsDateholders", [] { AssignDateHolders(NextYear); });
}

void FindSelectedCell() { SelectedCell = CellOf(SelectedDate); }

bool LiesInNextYear(Date date) { return SpansNextYear && YearOf(date) == YearOfSlot(NextYear); }

Year SlotOf(Date date) {
    if (LiesInNextYear(date)) return NextYear;
    if (YearOf(date) != YearOfSlot(ThisYear)) {
        SelectDate(date);
        if (RedrawForDate)
            RedrawForDate();
        else
            Calendar.yearOnDisplay = YearOf(date);
    }
    return ThisYear;
}
