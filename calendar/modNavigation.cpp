// Going to another month or year.
#include "calendar/modNavigation.h"

#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"
#include "marks/modSaveChanges.h"
#include "shell/modErrors.h"

namespace {
void GoTo(Date date) {
    SelectDate(date);
    Tell(Shell.showInPickers, date);
}

/// Runs a step of navigation unless unsaved changes keep the user where they are. The ends of the calendar (years 100
/// and 9999) are reported and change nothing.
template <class Target>
void Navigate(const char* procedure, void (*show)(), Target target) {
    Reporting(procedure, [&] {
        const Date date = target();
        if (!MayGoOn()) return;
        GoTo(date);
        show();
    });
}

const char* NameOfStep(int direction) { return direction > 0 ? "cmdNext_Click" : "cmdPrev_Click"; }
}  // namespace

void ShowNeighbourMonth(int months) {
    Navigate(NameOfStep(months), Show1MonthCalendar,
             [months] { return AddMonths(FirstOfMonth(SelectedDate), months); });
}

void ShowNeighbourHalfYear(int direction) {
    Navigate(NameOfStep(direction), Show6MonthCalendar,
             [direction] { return AddMonths(FirstOfMonth(SelectedDate), 6 * direction); });
}

void ShowNeighbourYear(int direction) {
    Navigate(NameOfStep(direction), Show1YearCalendar,
             [direction] { return MakeDate(DisplayedYear + direction, 1, 1); });
}

void OpenShownMonth(int index) {
    const ShownMonth month = ShownMonths.at(static_cast<std::size_t>(index));
    Navigate(CalendarView == 6 ? "cmdView_Click" : "cmdMonth_Click", Show1MonthCalendar,
             [&month] { return MakeDate(month.year, month.month + 1, 1); });
}
