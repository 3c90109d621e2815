// The holiday manager's list.
#include "reminders/modHolidayManager.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/clock.h"
#include "base/dialogs.h"
#include "base/files.h"
#include "base/state.h"
#include "base/text.h"
#include "calendar/modViews.h"
#include "reminders/modHolidays.h"
#include "shell/modErrors.h"

HolidayListState HolidayList;

namespace {
const ClearedAtStart ClearHolidayList([] { HolidayList = {}; });

constexpr std::size_t KeyLength = 8;  // "mm/dd/yy"

int SelectedYear() { return SmallIntegerValue(HolidayList.year); }

bool HasEntry(int entry) { return entry >= 0 && entry < static_cast<int>(HolidayList.lines.size()); }

/// The typed day in the selected year. A day alone is looked for in that year: 2/29 is one in a leap year.
std::optional<Date> DayInSelectedYear(std::string_view typed) {
    auto date = ReadDate(typed);
    for (const char* parting : {"/", ", "})
        if (!date) date = ReadDate(std::string(typed) + parting + HolidayList.year);
    if (!date || !IsDate(SelectedYear(), MonthOf(*date), DayOf(*date))) return std::nullopt;
    return MakeDate(SelectedYear(), MonthOf(*date), DayOf(*date));
}

HolidayField Refuse(const char* message, HolidayField field) {
    ShowMessage(message);
    return field;
}

/// Puts the line where the order wants it, in place of the first one with its date.
void PutHoliday(const std::string& line) {
    auto& lines = HolidayList.lines;
    const auto same = std::find_if(lines.begin(), lines.end(), [&](const std::string& other) {
        return other.compare(0, KeyLength, line, 0, KeyLength) == 0;
    });
    if (same != lines.end()) lines.erase(same);
    InsertInListOrder(lines, line);
    HolidayList.clicked = static_cast<int>(std::find(lines.begin(), lines.end(), line) - lines.begin());
}

void WriteHolidayFile() {
    const Path path = HolidayPath(SelectedYear());
    std::string bytes;
    for (const std::string& line : HolidayList.lines) bytes.append(line).append(CrLf);
    if (bytes.empty()) return TellOfBackup(DeleteDataFile(path));
    std::filesystem::create_directories(path.parent_path());
    TellOfBackup(SaveDataFile(path, bytes));
}
}  // namespace

void OpenHolidayList() {
    HolidayList = {};
    SelectHolidayYear(FormatDate(Today(), "yyyy"));
}

void SelectHolidayYear(const std::string& year) {
    HolidayList.year = year;
    LoadHolidayList();
}

void LoadHolidayList() {
    HolidayList.lines.clear();
    HolidayList.clicked = 0;
    Reporting("LoadHolidayList", [] {
        if (!HolidayFileExists(SelectedYear())) return ShowMessage("There is no Holiday List for " + HolidayList.year);
        ReadDataLines(HolidayPath(SelectedYear()), [](std::string_view line, int) {
            if (!line.empty()) HolidayList.lines.emplace_back(line);
        });
    });
    std::stable_sort(HolidayList.lines.begin(), HolidayList.lines.end(), InListOrder());
}

bool StartHolidayList(std::string_view typedYear) {
    int year = 0;
    try {
        year = static_cast<int>(IntegerValue(typedYear, FirstYear, LastYear));
    } catch (const Error&) {
        ShowMessage("Please enter the year of the new list with four digits.");
        return false;
    }
    HolidayList.year = Padded(year, 4);
    HolidayList.lines.clear();
    HolidayList.clicked = -1;
    if (HolidayFileExists(year)) LoadHolidayList();
    return true;
}

std::string HolidayDateShown(int entry) {
    if (!HasEntry(entry)) return {};
    const std::string text = HolidayList.lines[static_cast<std::size_t>(entry)].substr(0, KeyLength);
    auto date = ReadDate(text);
    // The line's two digits say less than the list's year does.
    if (date && text.ends_with(HolidayList.year.substr(2)) && IsDate(SelectedYear(), MonthOf(*date), DayOf(*date)))
        date = MakeDate(SelectedYear(), MonthOf(*date), DayOf(*date));
    return date ? FormatDate(*date, "mmm dd, yyyy") : text;
}

std::string HolidayDescription(int entry) {
    if (!HasEntry(entry)) return {};
    return std::string(Middle(HolidayList.lines[static_cast<std::size_t>(entry)], KeyLength + 2));
}

HolidayField SaveHoliday(std::string_view date, std::string_view description) {
    if (Trimmed(date).empty()) return Refuse("There's no date entered.", HolidayField::Date);
    const auto day = DayInSelectedYear(Trimmed(date));
    if (!day) return Refuse("Date not recognized as entered.", HolidayField::Date);
    if (Trimmed(description).empty()) return Refuse("Please enter a description.", HolidayField::Description);
    PutHoliday(FormatDate(*day, "mm/dd/yy") + ":" + std::string(description));
    if (!SaveHolidayFile()) return HolidayField::Abandoned;
    LoadHolidayList();
    HolidayList.changed = true;
    return HolidayField::Saved;
}

void RemoveHoliday() {
    if (!HasEntry(HolidayList.clicked)) return;
    const bool kept = Reporting("SaveHolidayFile", [] { CopyToBackup(HolidayPath(SelectedYear())); });
    if (kept) {
        HolidayList.lines.erase(HolidayList.lines.begin() + HolidayList.clicked);
        HolidayList.changed = SaveHolidayFile() || HolidayList.changed;
    }
    LoadHolidayList();
}

bool SaveHolidayFile() { return Reporting("SaveHolidayFile", WriteHolidayFile); }

void SaveHolidaysAndRedraw() {
    SaveHolidayFile();
    RedrawCalendar();
}

void CloseHolidayList() {
    if (std::exchange(HolidayList.changed, false))
        ShowMessage("Holiday List Saved. Changes will be reflected in your next calendar view.");
}
