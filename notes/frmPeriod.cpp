// The boxes for a year and a month.
#include "notes/frmPeriod.h"

#include <QCompleter>
#include <QLineEdit>

#include "base/clock.h"
#include "base/dates.h"
#include "base/text.h"
#include "forms/qt/dateBoxes.h"
#include "forms/qt/text.h"

void FillYears(QComboBox* box) {
    box->addItems(ListedYears());
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr);
    box->setEditText(QString::number(YearOf(Today())));
}

void FillMonths(QComboBox* box) {
    box->addItem(QStringLiteral("All Months"));
    box->addItems(MonthNames());
}

int ChosenYear(QComboBox* box) {
    const int year = YearOf(DateOfText("Jan 1, " + std::string(Trimmed(ToText(box->currentText())))));
    box->setEditText(QString::number(year));
    return year;
}

int ChosenMonth(const QComboBox* box) { return box->currentIndex(); }
