// Whole days without time zone: the calendar's arithmetic, reading dates as people type them, writing them in patterns.
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

inline constexpr int FirstYear = 100;  // the range of all dates
inline constexpr int LastYear = 9999;

/// A day, counted from 30 December 1899 (day 0); 1 January 2009 is 39814. Negative before.
struct Date {
    int number = 0;
    auto operator<=>(const Date&) const = default;
    Date operator+(int days) const { return {number + days}; }
    Date operator-(int days) const { return {number - days}; }
    int operator-(Date other) const { return number - other.number; }
    Date& operator++() {
        ++number;
        return *this;
    }
};

struct YearMonthDay {
    int year = 0;   // 100..9999
    int month = 0;  // 1..12
    int day = 0;    // 1..31
};

/// A moment: a day and the second of it (0..86399), local time.
struct DateTime {
    Date date;
    int second = 0;
    auto operator<=>(const DateTime&) const = default;
};

bool IsLeapYear(int year);
/// 28..31; month 1..12.
int DaysInMonth(int year, int month);
/// 365 or 366.
inline int DaysInYear(int year) { return IsLeapYear(year) ? 366 : 365; }
/// True for a day that exists, in a year from 100 to 9999.
bool IsDate(int year, int month, int day);

/// The day of a year, month and day. Throws Error 13 for a day that does not exist (February 30, the year 10000).
Date MakeDate(int year, int month, int day);
YearMonthDay PartsOf(Date date);
inline int YearOf(Date date) { return PartsOf(date).year; }
inline int MonthOf(Date date) { return PartsOf(date).month; }
inline int DayOf(Date date) { return PartsOf(date).day; }
/// Sunday = 1 to Saturday = 7.
int WeekdayOf(Date date);
inline Date FirstOfMonth(Date date) { return date - (DayOf(date) - 1); }

/// The same day so many months later (earlier if negative); the last day of the month where it has no such day:
/// January 31 plus one month is February 28 or 29, February 29 plus twelve months is February 28.
/// Throws Error 13 outside the years 100 to 9999.
Date AddMonths(Date date, int months);

/// "January".."December" for 1..12.
std::string MonthName(int month);
/// "Sunday".."Saturday" for 1..7.
std::string WeekdayName(int weekday);

/// Reads a date as people type it: 1/4/2009, 1-4-2009, Jan 4, 2009, January 4 2009, 4 Jan 2009, 2009-01-04. Month
/// before day; two-digit years 00-29 are 2000-2029, 30-99 are 1930-1999; letters in any case, names cut to three
/// letters or more; a weekday's name in front is passed over. A month with a day alone ("7/4", "Jan 4") lies in the
/// current year; a month's name with a four-digit year ("January 2009") is its first day. Nothing for what is no date
/// or does not exist (2/30/2009, 13/1/2009, 2/29 in a year without it), nor for two signs in a row (1//4/2009, 1/-4).
std::optional<Date> ReadDate(std::string_view text);

/// The same, throwing Error 13 for what is no date.
Date DateOfText(std::string_view text);

/// Writes a date in a pattern made of d, dd, ddd (Sun), dddd (Sunday), m, mm, mmm (Jan), mmmm (January), yy, yyyy;
/// "ddddd" is the short date (11/22/2026); everything else stands as it is. Letters of names are never expanded twice.
std::string FormatDate(Date date, std::string_view pattern);

/// Sunday, November 22, 2026
std::string LongDate(Date date);
/// 11/22/2026
inline std::string ShortDate(Date date) { return FormatDate(date, "ddddd"); }
/// 11/22/2026 7:39:05 PM
std::string GeneralDate(DateTime moment);

/// Writes a time of day (second 0..86399) in a pattern made of h, hh, n, nn, s, ss, AM/PM. With AM/PM the hours run
/// from 12 and 1 to 11. In patterns of times "mm" after hours means minutes too.
std::string FormatTime(int second, std::string_view pattern);
