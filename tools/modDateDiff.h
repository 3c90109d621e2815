// The difference of two dates in years, quarters, months, weeks, days, hours, minutes or seconds.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/dates.h"

struct Interval {
    const char* name;  // as windows show it; the menu entry's caption is "In " and this
    const char* code;
};
inline constexpr std::array<Interval, 8> Intervals{{{"Years", "yyyy"},
                                                    {"Quarters", "q"},
                                                    {"Months", "m"},
                                                    {"Weeks", "w"},
                                                    {"Days", "d"},
                                                    {"Hours", "h"},
                                                    {"Minutes", "n"},
                                                    {"Seconds", "s"}}};

struct DateDiffState {
    std::string intervalCode;  // one of the table's codes; "" until one is chosen
};
extern DateDiffState DateDiff;

/// The name of a code; "" for a text that is no code.
std::string IntervalName(std::string_view code);

/// Makes the named interval the current one. False, and nothing changes, for a name that is not in the table ("Day of
/// Year").
bool ChooseInterval(std::string_view name);

/// How many intervals lie between the dates, negative where `end` is earlier. Years, quarters and months count the
/// borders crossed (Dec 31 to Jan 1 is one of each), weeks are whole periods of seven days. Throws Error 5 for a text
/// that is no code.
std::int64_t DateDifference(Date start, Date end, std::string_view code);

/// The number with "," between thousands; "" for 0.
std::string DifferenceText(std::int64_t difference);

/// A date typed into a date box, as the box shows it: "Jan 04, 2009".
inline std::string DateBoxText(Date date) { return FormatDate(date, "mmm dd, yyyy"); }
