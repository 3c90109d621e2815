// Boxes in which a month, a day and a year are picked or typed.
#pragma once

#include <QComboBox>
#include <QStringList>
#include <string>

#include "base/dates.h"

// What their lists hold. Other years can be typed.
QStringList MonthNames();
QStringList DayNumbers();
QStringList ListedYears();

/// Shows a date in three boxes with these lists, its day by the pattern ("d" or "dd"). The entries of the lists become
/// the current ones: the arrow keys and an opened list go on from what is shown.
void ShowDateInBoxes(QComboBox* month, QComboBox* day, QComboBox* year, Date date, const char* dayPattern);

/// Shows a year, which need not be listed.
void ShowYearInBox(QComboBox* box, const std::string& year);
