// The day labels.
#include "marks/modLabels.h"

#include <algorithm>
#include <array>

#include "base/dialogs.h"
#include "base/state.h"
#include "base/text.h"
#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "marks/modCategories.h"
#include "marks/modIcons.h"
#include "marks/modMarks.h"
#include "reminders/modBirthdays.h"
#include "reminders/modHolidays.h"
#include "shell/modErrors.h"

LabelState DayLabels;
std::function<bool()> DayLabelsAreSeen;
std::function<void()> ShowDayLabels;

namespace {
const ClearedAtStart ClearLabels([] { DayLabels = {}; });

/// Entries gathered day by day; each list is walked once.
class Month {
  public:
    explicit Month(Date month) : index_(MonthOf(month) - 1), days_(DaysInMonth(YearOf(month), index_ + 1)) {}

    int index() const { return index_; }
    void add(int day, const std::string& text, Color color) {
        if (day >= 1 && day <= days_) entries_.at(static_cast<std::size_t>(day)).push_back({day, text, color});
    }
    /// Of what is listed with its cell and its date ("mm/dd...").
    void addListed(Category category, const std::string& cell, const std::string& date, const std::string& text) {
        if (cell.empty() || CellOfText(cell).month != index_) return;
        add(SmallIntegerValue(Middle(date, 4, 2)), MarkerCaption[category] + ": " + text, MarkerColor[category]);
    }
    std::vector<DayEntry> all() const {
        std::vector<DayEntry> entries;
        for (const auto& day : entries_) entries.insert(entries.end(), day.begin(), day.end());
        return entries;
    }

  private:
    int index_;  // 0..11
    int days_;
    std::array<std::vector<DayEntry>, 32> entries_;  // by day
};

/// The first category of the colour that is not hidden; -1 if there is none.
int ShownCategory(Color color) {
    for (std::size_t k = 0; color != 0 && k < CategoryCount; ++k)
        if (MarkerColor[k] == color && !MarkerHidden[k]) return static_cast<int>(k);
    return -1;
}

void AddMark(Month& month, const std::string& line) {
    const MarkRecord mark = ParseMark(line);
    const int category = mark.cell.month == month.index() ? ShownCategory(mark.color) : -1;
    if (category < 0 || DateHolders[mark.cell].empty()) return;
    const std::string& caption = MarkerCaption[static_cast<std::size_t>(category)];
    const std::string& hover = HoverText[mark.cell];
    month.add(SmallIntegerValue(Middle(DateHolders[mark.cell].view(), 4, 2)),
              hover.empty() ? caption : caption + ": " + hover, mark.color);
}
}  // namespace

std::vector<DayEntry> EntriesOfMonth(Date date) {
    Month month(date);
    if (!MarkerHidden[HolidayCategory])
        for (std::size_t i = 0; i < HolidayCell.size(); ++i)
            month.addListed(HolidayCategory, HolidayCell[i], HolidayDate[i], HolidayText[i]);
    if (!MarkerHidden[BirthdayCategory])
        for (std::size_t i = 0; i < BirthdayCell.size(); ++i)
            month.addListed(BirthdayCategory, BirthdayCell[i], Birthday[i].MonthDay, Birthday[i].Name);
    for (const std::string& line : MarkLines) AddMark(month, line);
    return month.all();
}

Date MonthOnDisplay() { return Icons.month.value_or(FirstOfMonth(SelectedDate)); }

void LimitEntries(std::vector<DayEntry>& entries, const std::string& secondLine, const std::string& thirdLine) {
    if (entries.size() <= static_cast<std::size_t>(MostLabels)) return;
    entries.resize(static_cast<std::size_t>(MostLabels));
    ShowMessage(std::string("There are more than 36 assigned messages for the month and only the") + CrLf + secondLine +
                CrLf + thirdLine);
}

std::string CaptionOf(const DayEntry& label) { return TwoDigits(label.day) + ": " + label.text; }

void DisplayTTTLabels() {
    if (TemplateMode || (DayLabelsAreSeen && !DayLabelsAreSeen())) return;
    Reporting("DisplayTTTLabels", [] {
        const Date month = MonthOnDisplay();
        SetMonthIconFile(month);
        SpansNextYear = false;
        for (int day = 0; day < DaysInMonth(YearOf(month), MonthOf(month)); ++day)
            DayPaint.at(static_cast<std::size_t>(day)).painted = true;
        std::vector<DayEntry> entries = EntriesOfMonth(month);
        LimitEntries(entries, "first 36 can be listed. You may wish to hide some of the marks and",
                     "refresh the calendar. Sorry for the inconvenience.");
        DayLabels.labels = std::move(entries);
        if (ShowDayLabels) ShowDayLabels();
    });
}
