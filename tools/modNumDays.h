// Counting how often a weekday falls into a period.
#pragma once

#include <string>
#include <vector>

#include "base/dates.h"

inline constexpr int MostOccurrences = 31999;  // as many as the list shows

struct NumDaysState {
    Date start;  // day 0, 30 December 1899, until a date has been typed
    Date end;
    int weekday = 0;  // 0 = Sunday .. 6 = Saturday
};
extern NumDaysState NumDays;

struct Occurrences {
    std::vector<std::string> entries;  // "Sunday 1/4/2009", in order
    bool tooMany = false;              // there are more than MostOccurrences; the entries are the first of them
};

/// The dates from NumDays.start to NumDays.end, both included, that fall on NumDays.weekday. None where the end is
/// earlier than the start.
Occurrences CountWeekdays();

/// "Sunday found 5 times"
std::string OccurrencesText(const Occurrences& found);
