// Counting how often a weekday falls into a period.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/dates.h"

inline constexpr int MostOccurrences = 31999;  // as many as the list shows

struct NumDaysState {
    Date start;  // day 0, 30 December 1899, until a date has been typed
    Date end;
    int weekday = 0;  // 0 = Sunday .. 6 = Saturday
};
extern NumDaysState NumDays;

struct Occurrences {
    Date first;
    int count = 0;         // 0..MostOccurrences, a week apart
    bool tooMany = false;  // there are more of them than counted
};

/// The dates from NumDays.start to NumDays.end, both included, that fall on NumDays.weekday. None where the end is
/// earlier than the start.
Occurrences CountWeekdays();

/// Calls `take` with each entry in order: "Sunday 1/4/2009". The text holds until `take` returns.
void ListOccurrences(const Occurrences& found, const std::function<void(std::string_view entry)>& take);

/// "Sunday found 5 times"
std::string OccurrencesText(const Occurrences& found);
