// The boxes in which the note list and the search ask for a year and a month.
#pragma once

#include <QComboBox>

/// Fills the box with the years to choose from and shows the current one; others can be typed.
void FillYears(QComboBox* box);

/// Fills the box with "All Months" and the months, and shows "All Months".
void FillMonths(QComboBox* box);

/// The year in the box; one of fewer digits is read as in a date ("9" is 2009) and shown in full. Throws Error 13 for
/// what is no year.
int ChosenYear(QComboBox* box);

/// 1..12, or 0 for all months.
int ChosenMonth(const QComboBox* box);
