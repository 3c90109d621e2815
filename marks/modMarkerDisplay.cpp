// Showing and hiding marker categories.
#include "marks/modMarkerDisplay.h"

#include "calendar/modCalendar.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"
#include "marks/modCategories.h"
#include "marks/modLabels.h"
#include "marks/modMarks.h"
#include "reminders/modBirthdays.h"
#include "reminders/modHolidays.h"

namespace {
/// The days of a slot in their colours, in the order in which a view is drawn.
void RepaintDays(Year slot) {
    if (!MarkerHidden[HolidayCategory]) slot == ThisYear ? DisplayThisYearsHolidays() : DisplayNextYearsHolidays();
    if (!MarkerHidden[BirthdayCategory]) slot == ThisYear ? ReadAndMarkBirthdays() : ReadAndMarkNextYearsBirthdays();
    ReadAndDisplayMarks(slot);
}

void ShowAll(bool shown) {
    MarkerHidden.fill(!shown);
    TodayShown = shown;
    ShowCategories();
    RedrawCalendar();
}
}  // namespace

void ShowCategory(int category, bool shown) {
    MarkerHidden.at(static_cast<std::size_t>(category)) = !shown;
    ShowCategories();
    if (CalendarView == 0) return;  // the main window is still loading
    RepaintDays(ThisYear);
    if (SpansNextYear) RepaintDays(NextYear);
    Tell(Shell.showDrawn);
    if (category == BirthdayCategory || category == HolidayCategory || category == TodaysDateCategory) {
        TodayShown = shown;
        RedrawCalendar();
    } else if (CalendarView == 1) {
        DisplayTTTLabels();
    }
}

void HideAllMarks() { ShowAll(false); }
void ShowAllMarks() { ShowAll(true); }

void SaveDisplaySetting() {
    SaveHiddenMarks = true;
    if (SaveMarkerColors()) ReadMarkerColors();
}
