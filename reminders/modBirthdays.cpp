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
/// The days from today to each day's next birthday, today's own being 0; -1 for what is no day. Taken at each reading:
/// a period never reaches further than the next time.
DayTable<int> DaysAhead(Date today) {
    DayTable<int> ahead;
    const int year = YearOf(today);
    for (int month = 1; month <= 12; ++month)
        for (int day = 1; day <= 31; ++day) {
            const std::string monthDay = TwoDigits(month) + "/" + TwoDigits(day);
            auto next = BirthdayInYear(monthDay, year);
            if (next && *next < today) next = BirthdayInYear(monthDay, year + 1);
            ahead[{month, day}] = next ? *next - today : -1;
        }
    return ahead;
}

void SetIndicator() {
    const int count = PendingBirthdayCount;
    BirthdayIndicator = {count > 0, count == 0   ? "No Birthdays Pending"
                                    : count == 1 ? "1 Birthday is Pending"
                                                 : std::to_string(count) + " Birthdays are Pending"};
    if (ShowBirthdayIndicator) ShowBirthdayIndicator();
}

/// Parses every line and finds what is pending. Answers the numbers of the lines that cannot be understood.
std::vector<int> ParseBirthdays(const std::vector<int>& numbers) {
    DayTable<int> ahead = DaysAhead(Today());
    std::vector<int> bad;
    BirthdayCount = static_cast<int>(BirthdayLine.size());
    PendingBirthdayCount = 0;
    Birthday.resize(BirthdayLine.size());
    PendingBirthdayLine.resize(BirthdayLine.size());
    for (std::size_t i = 0; i < BirthdayLine.size(); ++i) {
        PendingBirthdayLine[i].clear();
        const auto period = ParseBirthday(BirthdayLine[i], Birthday[i]);
        if (!period) {
            bad.push_back(numbers[i]);
        } else if (*period >= 0 && ahead[ReadMonthAndDay(Birthday[i].MonthDay)] <= *period) {
            PendingBirthdayLine[i] = BirthdayLine[i];
            ++PendingBirthdayCount;
        }
    }
    return bad;
}

/// The cell of each day of a year, and its text; "" for a day that the year does not have.
struct CellOfDay {
    Cell cell;
    std::string text;
};
DayTable<CellOfDay> CellsOfYear(int year) {
    DayTable<CellOfDay> cells;
    if (!IsDate(year, 1, 1)) return cells;
    const Date end = MakeDate(year, 12, 31);
    for (Date date = MakeDate(year, 1, 1); date <= end; ++date) {
        const Cell cell = CellOf(date);
        cells[{MonthOf(date), DayOf(date)}] = {cell, CellText(cell)};
    }
    return cells;
}

/// Fills the slot's cells from the birthdays.
void JoinCells(Year slot) {
    BirthdaysOfYear& marked = BirthdayTables.years[slot];
    marked.year = YearOfSlot(slot);
    marked.flag.fill(false);
    marked.first.fill(0);
    marked.cell.resize(Birthday.size());
    marked.next.assign(Birthday.size(), 0);
    DayTable<CellOfDay> cells = CellsOfYear(marked.year);
    Grid<int> last;
    for (std::size_t i = 0; i < Birthday.size(); ++i) {
        const CellOfDay& day = cells[ReadMonthAndDay(Birthday[i].MonthDay)];
        marked.cell[i] = day.text;
        if (day.text.empty()) continue;
        int& end = last[day.cell];
        (end == 0 ? marked.first[day.cell] : marked.next[static_cast<std::size_t>(end - 1)]) = static_cast<int>(i) + 1;
        end = static_cast<int>(i) + 1;
    }
    ForEachCell([&](Cell cell) {
        marked.flag[cell] = last[cell] > 0;
        marked.cellName[cell] = last[cell] > 0 ? Birthday[static_cast<std::size_t>(last[cell] - 1)].Name : "";
    });
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
    if (BirthdayTables.years[slot].year != YearOfSlot(slot)) JoinCells(slot);
    PaintFlaggedDays(slot, BirthdayTables.years[slot].flag,
                     MarkerHidden[BirthdayCategory] ? 0 : MarkerColor[BirthdayCategory]);
}
}  // namespace

std::optional<int> ParseBirthday(std::string_view line, BirthdayRec& record) {
    record.MonthDay = line.substr(0, 5);
    record.NotifyDays = "-1";
    const std::string_view rest = Middle(line, 10);
    const auto end = rest.find(':');
    record.Name = end == std::string_view::npos ? std::string_view() : rest.substr(0, end);
    record.BirthYear = line.substr(line.size() - std::min<std::size_t>(4, line.size()));
    try {
        const int period = SmallIntegerValue(Middle(line, 7, 2));
        record.NotifyDays = std::to_string(period);
        if (period != -1 && ReadMonthAndDay(record.MonthDay).month == 0) return std::nullopt;
        return period;
    } catch (const Error&) {
        return std::nullopt;
    }
}

std::optional<Date> BirthdayInYear(std::string_view monthDay, int year) {
    return DayInYear(monthDay == "02/29" && !IsLeapYear(year) ? "02/28" : monthDay, year);
}

void ReadBirthdays() {
    std::vector<int> numbers;
    Reporting("ReadBirthdays", [&] { numbers = ReadReminderLines(BirthdayFile, BirthdayLine); });
    const std::vector<int> bad = ParseBirthdays(numbers);
    Reporting("ReadBirthdays", [&] { TellBadLines(BirthdayFile, bad); });
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
    for (int i = marked.first[cell]; i > 0; i = marked.next[static_cast<std::size_t>(i - 1)])
        names.push_back(Birthday[static_cast<std::size_t>(i - 1)].Name);
    return names;
}
