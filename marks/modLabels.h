// The day labels beside the one-month view: what each day of the month carries, in words.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/dates.h"
#include "forms/canvas.h"

inline constexpr int MostLabels = 36;

/// One holiday, birthday or mark of a day.
struct DayEntry {
    int day = 0;       // 1..31
    std::string text;  // "Meeting: Budget review"
    Color color = 0;
};

/// All entries of a month of this year: by day; within a day holidays, birthdays, marks in the order of their file.
/// Hidden categories give none. Reads the tables alone.
std::vector<DayEntry> EntriesOfMonth(Date month);

/// The month that the one-month view shows: its first day.
Date MonthOnDisplay();

/// Keeps the first 36 entries; where there are more it says so, with these last two lines of the message.
void LimitEntries(std::vector<DayEntry>& entries, const std::string& secondLine, const std::string& thirdLine);

struct LabelState {
    std::vector<DayEntry> labels;  // at most MostLabels; lblTTT(i) shows the i-th
};
extern LabelState DayLabels;

/// "07: Holiday: Independence Day"
std::string CaptionOf(const DayEntry& label);

/// Lists the entries of the month on display in the labels. Nothing in template mode. A failure is reported; the labels
/// set before it stay.
void DisplayTTTLabels();

// -- Hooks: filled by the window that has the labels -----------------------------------------------------------------

/// False while the window has no room for the labels: then none are listed.
extern std::function<bool()> DayLabelsAreSeen;
/// Shows DayLabels.
extern std::function<void()> ShowDayLabels;
