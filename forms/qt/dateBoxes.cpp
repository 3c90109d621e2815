// Boxes in which a month, a day and a year are picked or typed.
#include "forms/qt/dateBoxes.h"

#include "forms/qt/text.h"

namespace {
constexpr int FirstListedYear = 2008;
constexpr int LastListedYear = 2020;

QStringList Numbers(int first, int last) {
    QStringList numbers;
    for (int number = first; number <= last; ++number) numbers += QString::number(number);
    return numbers;
}

/// `entry`: the place of the text in the box's list, -1 for none.
void ShowInBox(QComboBox* box, int entry, const QString& text) {
    box->setCurrentIndex(entry);
    box->setEditText(text);
}
}  // namespace

QStringList MonthNames() {
    QStringList names;
    for (int month = 1; month <= 12; ++month) names += FromText(MonthName(month));
    return names;
}

QStringList DayNumbers() { return Numbers(1, 31); }
QStringList ListedYears() { return Numbers(FirstListedYear, LastListedYear); }

void ShowDateInBoxes(QComboBox* month, QComboBox* day, QComboBox* year, Date date, const char* dayPattern) {
    ShowInBox(month, MonthOf(date) - 1, FromText(FormatDate(date, "mmmm")));
    ShowInBox(day, DayOf(date) - 1, FromText(FormatDate(date, dayPattern)));
    ShowYearInBox(year, FormatDate(date, "yyyy"));
}

void ShowYearInBox(QComboBox* box, const std::string& year) {
    const QString shown = FromText(year);
    ShowInBox(box, box->findText(shown), shown);
}
