// The three calendar views.
#include "calendar/modViews.h"

#include "calendar/modCalendar.h"

void ShowCurrentCalendar() {
    if (CalendarView == 1) Show1MonthCalendar();
    if (CalendarView == 6) Show6MonthCalendar();
    if (CalendarView == 12) Show1YearCalendar();
}
