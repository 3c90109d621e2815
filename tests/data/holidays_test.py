#!/usr/bin/env python3
"""Checks the holiday lists in the folder given against the system's holidays and dateutil packages.

Ends with 77 where those are not installed.
"""
import datetime as dt
import pathlib
import sys

try:
    from dateutil.easter import easter
    import holidays
except ImportError:
    print("needs the packages python3-holidays and python3-dateutil")
    sys.exit(77)

OUR_NAMES = {"Washington's Birthday": "Presidents' Day", "Martin Luther King, Jr. Day": "Martin Luther King Jr. Day",
             "Juneteenth National Independence Day": "Juneteenth"}
WEEKDAYS = {"Mother's Day": (5, "Sunday", 8), "Father's Day": (6, "Sunday", 15)}  # month, weekday, earliest day

folder = pathlib.Path(sys.argv[1])
assert sorted(path.name for path in folder.iterdir()) == [f"{year}Holidays.dat" for year in range(2008, 2041)]
for year in range(2008, 2041):
    text = (folder / f"{year}Holidays.dat").read_bytes().decode("cp1252")
    lines = text.split("\r\n")
    assert lines.pop() == "" and "\n" not in "".join(lines), year
    assert lines == sorted(lines) and len({line[:8] for line in lines}) == len(lines), year
    ours = {dt.datetime.strptime(line[:8], "%m/%d/%y").date(): line[9:] for line in lines}
    assert all(day.year == year and line[8] == ":" for day, line in zip(ours, lines)), year

    federal = holidays.US(years=[year], observed=False)
    for day, name in federal.items():
        assert OUR_NAMES.get(name, name) in ours.get(day, ""), (day, name, ours.get(day))
    assert ("Juneteenth" in text) == (year >= 2021), year
    assert "Easter Sunday" in ours[easter(year)], year
    assert "Good Friday" in ours[easter(year) - dt.timedelta(2)], year
    for name, (month, weekday, earliest) in WEEKDAYS.items():
        day = next(day for day, text in ours.items() if name in text)
        assert day.month == month and f"{day:%A}" == weekday and earliest <= day.day < earliest + 7, (name, day)
