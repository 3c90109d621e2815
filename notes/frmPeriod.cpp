// The boxes for a year and a month.
#include "notes/frmPeriod.h"

#include <QCompleter>
#include <QLineEdit>

#include "base/clock.h"
#include "base/dates.h"
#include "base/text.h"
#include "forms/qt/text.h"

namespace {
constexpr int FirstListed = 2008;
constexpr int LastListed = 2020;
}  // namespace

void FillYears(QComboBox* box) {
    for (int year = FirstListed; year <= LastListed; ++year) box->addItem(QString::number(year));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr);
    box->setEditText(QString::number(YearOf(Today())));
}

void FillMonths(QComboBox* box) {
    box->addItem(QStringLiteral("All Months"));
    for (int month = 1; month <= 12; ++month) box->addItem(FromText(MonthName(month)));
}

int ChosenYear(QComboBox* box) {
    const int year = YearOf(DateOfText("Jan 1, " + std::string(Trimmed(ToText(box->currentText())))));
    box->setEditText(QString::number(year));
    return year;
}

int ChosenMonth(const QComboBox* box) { return box->currentIndex(); }
