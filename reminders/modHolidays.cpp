// Holidays of the two years on display.
#include "reminders/modHolidays.h"

#include "base/files.h"
#include "base/modNoCase.h"
#include "base/state.h"
#include "base/text.h"
#include "calendar/modCalendar.h"
#include "marks/modCategories.h"
#include "reminders/modMonthDay.h"
#include "shell/modErrors.h"

std::array<HolidaysOfYear, 2> HolidayYears;

namespace {
const ClearedAtStart ClearHolidays([] { HolidayYears = {}; });

Path HolidayFolder() { return DataPath("Holidays"); }
std::string HolidayFileName(int year) { return Padded(year, 4) + "Holidays.dat"; }

/// The day of a holiday's date in the year; a date of another year is none of its days.
std::optional<Date> DayOfHoliday(std::string_view date, int year) {
    if (date.size() != 8 || date.substr(5) != "/" + TwoDigits(year % 100)) return std::nullopt;
    return DayInYear(date.substr(0, 5), year);
}

void AddHoliday(HolidaysOfYear& holidays, std::string_view line) {
    holidays.date.emplace_back(line.substr(0, 8));
    holidays.text.emplace_back(Middle(line, 10));
    holidays.cell.emplace_back();
    ++holidays.count;
    const auto day = DayOfHoliday(holidays.date.back(), holidays.year);
    if (!day) return;
    const Cell cell = CellOf(*day);
    holidays.cell.back() = CellText(cell);
    holidays.flag[cell] = true;
    if (holidays.first[cell] == 0) holidays.first[cell] = holidays.count;
}

void AssignHolidays(Year slot) {
    HolidaysOfYear& holidays = HolidayYears[slot];
    holidays = {};
    holidays.year = YearOfSlot(slot);
    if (!HolidayFileExists(holidays.year)) return;
    ReadDataLines(HolidayPath(holidays.year), [&](std::string_view line, int) { AddHoliday(holidays, line); });
}

void DisplayHolidays(Year slot) {
    const HolidaysOfYear& holidays = HolidayYears[slot];
    if (holidays.year != YearOfSlot(slot) || !HolidayFileExists(holidays.year)) return;
    PaintFlaggedDays(slot, holidays.flag, MarkerHidden[HolidayCategory] ? 0 : MarkerColor[HolidayCategory]);
}
}  // namespace

Path HolidayPath(int year) { return PathInFolder(HolidayFolder(), HolidayFileName(year)); }
bool HolidayFileExists(int year) { return FileExists(HolidayFolder(), HolidayFileName(year)); }

void AssignThisYearsHolidays() {
    Reporting("AssignThisYearsHolidays", [] { AssignHolidays(ThisYear); });
}

void AssignNextYearsHolidays() {
    Reporting("AssignNextYearsHolidays", [] { AssignHolidays(NextYear); });
}

void DisplayThisYearsHolidays() {
    Reporting("DisplayThisYearsHolidays", [] { DisplayHolidays(ThisYear); });
}

void DisplayNextYearsHolidays() {
    Reporting("DisplayNextYearsHolidays", [] { DisplayHolidays(NextYear); });
}

std::optional<std::string> HolidayOfCell(Year slot, Cell cell) {
    const HolidaysOfYear& holidays = HolidayYears[slot];
    if (!cell.valid() || holidays.year != YearOfSlot(slot) || !holidays.flag[cell]) return std::nullopt;
    return holidays.text[static_cast<std::size_t>(holidays.first[cell] - 1)];
}
