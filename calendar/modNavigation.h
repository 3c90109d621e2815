// Going to another month or year: asks about unsaved changes, selects the date, sets the pickers, draws.
#pragma once

/// One month on or back, to its first day, in the one-month view.
void ShowNeighbourMonth(int months);
/// Six months on or back, to the first day of that month, in the six-month view.
void ShowNeighbourHalfYear(int direction);
/// To January 1 of the next year (1) or the one before (-1), in the one-year view.
void ShowNeighbourYear(int direction);
/// Opens the first day of a month in the one-month view. `index`: the month's place in the list of shown months.
void OpenShownMonth(int index);
