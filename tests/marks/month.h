// A month with many entries.
#pragma once

#include <string>

#include "marks/modMarks.h"
#include "tests/support/calendar.h"

/// Fills July 2026 with one mark a day from the 1st on, so many, each with a hover text; more than 31 go on with a
/// holiday a day.
inline void PutEntries(const TemporaryFolder& folder, int count) {
    std::string marks, holidays;
    for (int i = 0; i < count; ++i) {
        const Date day = MakeDate(2026, 7, i % 31 + 1);
        if (i < 31)
            marks += MarkLine({CellOf(day), MeetingColor, "number " + std::to_string(i + 1)}) + "\r\n";
        else
            holidays += FormatDate(day, "mm/dd/yy") + ":Holiday " + std::to_string(i + 1) + "\r\n";
    }
    folder.put("2026Marks.dat", marks);
    folder.put("Holidays/2026Holidays.dat", holidays);
}
