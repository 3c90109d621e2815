// The three calendar views: which months they show, and the order in which a view is drawn and filled.
#pragma once

#include <functional>

#include "base/dates.h"

/// Draws the month of SelectedDate (or the icon template) and loads its data.
void Show1MonthCalendar();
/// Draws six months from the month of SelectedDate on, with next year's data where they reach into it.
void Show6MonthCalendar();
/// Draws the twelve months of the year of SelectedDate and loads that year's data.
void Show1YearCalendar();

/// Draws the current view for SelectedDate: the months on display follow it. Nothing where CalendarView is 0.
void ShowCurrentCalendar();
/// Draws the current view again after a command: the months on display stay. Nothing where CalendarView is 0.
void RedrawCalendar();
/// Paints the current view from the tables, reading no file: its pictures have another size now.
void RepaintCalendar();

/// Fills the hooks through which the tables reach up to the views. Once at start-up.
void InstallViews();
