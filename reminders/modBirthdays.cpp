// The birthday store.
#include "reminders/modBirthdays.h"

#include <algorithm>
#include <utility>

#include "base/clock.h"
#include "base/listEntries.h"
#include "base/state.h"
#include "base/text.h"
#include "calendar/modCalendar.h"
#include "marks/modCategories.h"
#include "reminders/modMonthDay.h"
#include "reminders/modReminderFile.h"
#include "shell/modErrors.h"

BirthdayState BirthdayTables;
std::function<void()> ShowBirthdayIndicator;
std::function<void()> ShowPendingBirthdays;

namespace {
const ClearedAtStart ClearBirthdays([] { BirthdayTables = {}; });

constexpr const char* BirthdayFile = "Birthdays.dat";
constexpr int AnyLeapYear = 2000;

/// True for a birthday whose day of this year or the next lies in its period, counted from today.
bool IsPending(const BirthdayRec& record, Date today) {
    if (record.NotifyDays == "-1") return false;
    const Date limit = today + SmallIntegerValue(record.NotifyDays);
    for (const int year : {YearOf(today), YearOf(today) + 1}) {
        const auto day = BirthdayInYear(record.MonthDay, year);
        if (day && today <= *day && *day <= limit) return true;
    }
    return false;
}

void SetIndicator() {
    const int count = PendingBirthdayCount;
    BirthdayIndicator = {count > 0, count == 0   ? "No Birthdays Pending"
                                    : count == 1 ? "1 Birthday is Pending"
                                                 : std::to_string(count) + " Birthdays are Pending"};
    if (ShowBirthdayIndicator) ShowBirthdayIndicator();
}

bool AddBirthday(std::string_view line, Date today) {
    BirthdayLine.emplace_back(line);
    BirthdayRec& record = Birthday.emplace_back();
    std::string& pending = PendingBirthdayLine.emplace_back();
    ++BirthdayCount;
    if (!ParseBirthday(line, record)) return false;
    if (IsPending(record, today)) {
        pending = line;
        ++PendingBirthdayCount;
    }
    return true;
}

/// Fills the slot's cells from the birthdays.
void JoinCells(Year slot) {
    BirthdaysOfYear& marked = BirthdayTables.years[slot];
    marked = {};
    marked.year = YearOfSlot(slot);
    marked.cell.resize(Birthday.size());
    for (std::size_t i = 0; i < Birthday.size(); ++i) {
        const auto day = DayInYear(Birthday[i].MonthDay, marked.year);
        if (!day) continue;
        const Cell cell = CellOf(*day);
        marked.flag[cell] = true;
        marked.cellName[cell] = Birthday[i].Name;
        marked.cell[i] = CellText(cell);
        marked.indexes[cell].push_back(static_cast<int>(i));
    }
}

/// The cells of the years on display follow the list at once: the records' indexes are new. Painting is left to the
/// next view.
void JoinCellsAgain() {
    for (const Year slot : {ThisYear, NextYear})
        if (BirthdayTables.years[slot].year == YearOfSlot(slot))
            JoinCells(slot);
        else
            BirthdayTables.years[slot] = {};
}

void MarkBirthdays(Year slot) {
    JoinCells(slot);
    PaintFlaggedDays(slot, BirthdayTables.years[slot].flag,
                     MarkerHidden[BirthdayCategory] ? 0 : MarkerColor[BirthdayCategory]);
}
}  // namespace

bool ParseBirthday(std::string_view line, BirthdayRec& record) {
    record.MonthDay = line.substr(0, 5);
    record.NotifyDays = "-1";
    const std::string_view rest = Middle(line, 10);
    record.Name = rest.find(':') == std::string_view::npos ? "" : rest.substr(0, rest.find(':'));
    record.BirthYear = line.substr(line.size() - std::min<std::size_t>(4, line.size()));
    try {
        record.NotifyDays = std::to_string(IntegerValue(Middle(line, 7, 2)));
    } catch (const Error&) {
        return false;
    }
    return record.NotifyDays == "-1" || DayInYear(record.MonthDay, AnyLeapYear);
}

std::optional<Date> BirthdayInYear(std::string_view monthDay, int year) {
    return DayInYear(monthDay == "02/29" && !IsLeapYear(year) ? "02/28" : monthDay, year);
}

void ReadBirthdays() {
    BirthdayLine.clear();
    Birthday.clear();
    PendingBirthdayLine.clear();
    BirthdayCount = PendingBirthdayCount = 0;
    Reporting("ReadBirthdays", [today = Today()] {
        ReadReminderLines(BirthdayFile, [&](std::string_view line) { return AddBirthday(line, today); });
    });
    JoinCellsAgain();
    SetIndicator();
}

bool SaveBirthdays(bool keepPrevious) {
    const bool quiet = std::exchange(QuietBirthdaySave, false);
    return Reporting("SaveBirthdays", [&] {
        SaveReminderLines(BirthdayFile, BirthdayMasterList, {keepPrevious, quiet ? nullptr : "Birthdays Updated."});
    });
}

void ReadAndMarkBirthdays() {
    Reporting("ReadAndMarkBirthdays", [] { MarkBirthdays(ThisYear); });
}

void ReadAndMarkNextYearsBirthdays() {
    Reporting("ReadAndMarkNextYearsBirthdays", [] { MarkBirthdays(NextYear); });
}

void FillPendingBirthdayList() {
    PendingBirthdayEntries.clear();
    for (std::size_t i = 0; i < PendingBirthdayLine.size(); ++i)
        if (!PendingBirthdayLine[i].empty())
            PendingBirthdayEntries.push_back(RecordEntry(Birthday[i].Name, static_cast<int>(i)));
    std::stable_sort(PendingBirthdayEntries.begin(), PendingBirthdayEntries.end(), InListOrder());
    if (ShowPendingBirthdays) ShowPendingBirthdays();
}

std::string PendingBirthdayDate(std::string_view entry) {
    const auto index = RecordIndex(entry);
    if (!index || *index < 0 || *index >= BirthdayCount) return {};
    const auto day = BirthdayInYear(Birthday[static_cast<std::size_t>(*index)].MonthDay, YearOf(Today()));
    return day ? "Date = " + FormatDate(*day, "mm/dd/yy") : "";
}

std::vector<std::string> BirthdaysOfCell(Year slot, Cell cell) {
    const BirthdaysOfYear& marked = BirthdayTables.years[slot];
    std::vector<std::string> names;
    if (!cell.valid() || marked.year != YearOfSlot(slot)) return names;
    for (const int i : marked.indexes[cell]) names.push_back(Birthday[static_cast<std::size_t>(i)].Name);
    return names;
}
