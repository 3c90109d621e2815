// A month with holidays, birthdays and marks, as the one-month view would have read it.
#pragma once

#include <string>

#include "calendar/modCalendar.h"
#include "marks/modCategories.h"
#include "marks/modIcons.h"
#include "marks/modMarks.h"
#include "reminders/modBirthdays.h"
#include "reminders/modHolidays.h"
#include "tests/support/folder.h"

inline const char* const CategoryLines =
    "Account Payable:128\r\nAccount Receivable:32768\r\nAnniversary:16711935\r\nAppointment:16711680\r\n"
    "Birthday:8388736\r\nCelebration:33023\r\nDining:16512\r\nEvent:8421376\r\nHoliday:255\r\nMeeting:8388608\r\n"
    "Quick Marks:12632256\r\nToday's Date:65535\r\nTravel:65280\r\nVacation:16776960\r\n";

/// Reads the folder's files as drawing the month does.
inline void ReadMonth(int year, int month) {
    Calendar.yearOnDisplay = year;
    SelectDate(MakeDate(year, month, 1));
    ReadMarkerColors();
    AssignThisYearsDateHolders();
    AssignThisYearsHolidays();
    ReadBirthdays();
    ReadAndMarkBirthdays();
    ReadAndDisplayThisYearsMarks();
    ResetMonthIcons(SelectedDate);
    PlaceMonthIcons();
}

/// Fills July 2026 with one mark a day from the 1st on, so many, each with a hover text; more than 31 go on with a
/// holiday a day.
inline void PutEntries(const TemporaryFolder& folder, int count) {
    std::string marks, holidays;
    for (int i = 0; i < count; ++i) {
        const Date day = MakeDate(2026, 7, i % 31 + 1);
        if (i < 31)
            marks += MarkLine({CellOf(day), 8388608, "number " + std::to_string(i + 1)}) + "\r\n";
        else
            holidays += FormatDate(day, "mm/dd/yy") + ":Holiday " + std::to_string(i + 1) + "\r\n";
    }
    folder.put("2026Marks.dat", marks);
    folder.put("Holidays/2026Holidays.dat", holidays);
}
