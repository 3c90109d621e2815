// Printing the one-month calendar.
#pragma once

/// True: the page carries no icons. Set by the two commands.
extern bool PrintWithoutIcons;

/// Prints the month on display, or the template while it is edited, as one page. Without a printer it says so. A
/// failure is reported.
void Print1MonthCalendar();

void mnuFilePrintCalendar_Click();
void mnuFilePrintCalendarNoIcons_Click();
