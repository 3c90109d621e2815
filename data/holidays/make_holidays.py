#!/usr/bin/env python3
"""Writes the holiday lists that come with the planner: United States, federal and commonly kept days.

    make_holidays.py FOLDER

makes FOLDER/<year>Holidays.dat for 2008 to 2040, one "mm/dd/yy:description" a line in the order of the calendar,
Windows-1252 text with CR LF line ends. Days that fall together share a line, because a date holds one holiday.
"""
import datetime as dt
import pathlib
import sys

YEARS = range(2008, 2041)
MONDAY, THURSDAY, SUNDAY = 0, 3, 6
FIRST_JUNETEENTH = 2021  # a federal holiday since then


def nth(year, month, weekday, n):
    """The n-th of a weekday in a month."""
    first = dt.date(year, month, 1)
    return first + dt.timedelta((weekday - first.weekday()) % 7 + 7 * (n - 1))


def last(year, month, weekday):
    """The last of a weekday in a month of 31 days."""
    end = dt.date(year, month, 31)
    return end - dt.timedelta((end.weekday() - weekday) % 7)


def easter(year):
    """The Sunday after the first full moon of spring, by the Gregorian calendar's own moon."""
    golden = year % 19 + 1
    century = year // 100 + 1
    dropped_leap_days = 3 * century // 4 - 12
    moon_correction = (8 * century + 5) // 25 - 5
    epact = (11 * golden + 20 + moon_correction - dropped_leap_days) % 30
    if epact == 24 or (epact == 25 and golden > 11):
        epact += 1
    full_moon = 44 - epact  # counted from the last day of February
    if full_moon < 21:
        full_moon += 30
    full_moon_day = dt.date(year, 3, 1) + dt.timedelta(full_moon - 1)
    return full_moon_day + dt.timedelta((SUNDAY - full_moon_day.weekday() - 1) % 7 + 1)


def holidays(year):
    """The year's holidays as (date, description)."""
    days = [
        (dt.date(year, 1, 1), "New Year's Day"),
        (nth(year, 1, MONDAY, 3), "Martin Luther King Jr. Day"),
        (dt.date(year, 2, 2), "Groundhog Day"),
        (dt.date(year, 2, 14), "Valentine's Day"),
        (nth(year, 2, MONDAY, 3), "Presidents' Day"),
        (dt.date(year, 3, 17), "St. Patrick's Day"),
        (easter(year) - dt.timedelta(2), "Good Friday"),
        (easter(year), "Easter Sunday"),
        (nth(year, 5, SUNDAY, 2), "Mother's Day"),
        (last(year, 5, MONDAY), "Memorial Day"),
        (dt.date(year, 6, 14), "Flag Day"),
        (nth(year, 6, SUNDAY, 3), "Father's Day"),
        (dt.date(year, 7, 4), "Independence Day"),
        (nth(year, 9, MONDAY, 1), "Labor Day"),
        (nth(year, 10, MONDAY, 2), "Columbus Day"),
        (dt.date(year, 10, 31), "Halloween"),
        (dt.date(year, 11, 11), "Veterans Day"),
        (nth(year, 11, THURSDAY, 4), "Thanksgiving Day"),
        (dt.date(year, 12, 24), "Christmas Eve"),
        (dt.date(year, 12, 25), "Christmas Day"),
        (dt.date(year, 12, 31), "New Year's Eve"),
    ]
    if year >= FIRST_JUNETEENTH:
        days.append((dt.date(year, 6, 19), "Juneteenth"))
    return sorted(days)


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for year in YEARS:
        shared = {}
        for day, description in holidays(year):
            shared.setdefault(day, []).append(description)
        lines = [f"{day:%m/%d/%y}:{' and '.join(names)}\r\n" for day, names in shared.items()]
        (folder / f"{year}Holidays.dat").write_bytes("".join(lines).encode("cp1252"))


main()
