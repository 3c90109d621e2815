// The date difference calculator's window.
#include "tools/frmDateDiff.h"

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QSignalBlocker>

#include "base/clock.h"
#include "base/dialogs.h"
#include "forms/qt/dateBoxes.h"
#include "forms/qt/text.h"
#include "shell/modErrors.h"
#include "tools/modDateDiff.h"

namespace {
std::size_t At(int group) { return static_cast<std::size_t>(group); }

/// A box with a list that also takes typed text, without completing it; never too narrow for so many characters.
QComboBox* EditableBox(const char* name, int group, const QString& spoken, int characters) {
    auto* box = Named(new QComboBox, ElementName(name, group), spoken);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr);
    box->setMinimumContentsLength(characters);
    return box;
}

}  // namespace

frmDateDiff::frmDateDiff() : Window("frmDateDiff", QStringLiteral("Date Difference")) {
    makeGroup(0);
    makeGroup(1);
    lblStart = {Named(new QLabel(QStringLiteral("Choose a Beginning Date")), ElementName("lblStart", 0)),
                Named(new QLabel(QStringLiteral("Start Date Below")), ElementName("lblStart", 1))};
    lblEnd = {Named(new QLabel(QStringLiteral("Choose the Ending Date")), ElementName("lblEnd", 0)),
              Named(new QLabel(QStringLiteral("End Date Below")), ElementName("lblEnd", 1))};
    Label1 = Named(new QLabel(QStringLiteral("Current Interval = ")), QStringLiteral("Label1"));
    lblInterval = Named(new QLabel, QStringLiteral("lblInterval"), QStringLiteral("Current Interval"));
    Label2 = Named(new QLabel(QStringLiteral("Change Interval >")), QStringLiteral("Label2"));
    cmbInterval = Named(new QComboBox, QStringLiteral("cmbInterval"), QStringLiteral("Change Interval"));
    for (const Interval& interval : Intervals) {
        cmbInterval->addItem(QString::fromLatin1(interval.name));
        if (cmbInterval->count() == 1) cmbInterval->addItem(QStringLiteral("Day of Year"));
    }
    cmdDateDiff = Named(new QPushButton(QStringLiteral("Calculate Date Difference Now")), QStringLiteral("cmdDateDiff"),
                        QStringLiteral("Calculate Date Difference Now"));
    txtAnswer = Named(new QLineEdit, QStringLiteral("txtAnswer"), QStringLiteral("Date difference"));
    txtAnswer->setReadOnly(true);
    layOut();
    showInterval();
    connect(cmbInterval, &QComboBox::activated, this, &frmDateDiff::cmbInterval_Click);
    connect(cmdDateDiff, &QPushButton::clicked, this, &frmDateDiff::cmdDateDiff_Click);
}

void frmDateDiff::makeGroup(int group) {
    const QString which = group == 0 ? QStringLiteral("Start ") : QStringLiteral("End ");
    QComboBox* month = cmbMonth[At(group)] = EditableBox("cmbMonth", group, which + QStringLiteral("month"), 9);
    QComboBox* day = cmbDay[At(group)] = EditableBox("cmbDay", group, which + QStringLiteral("day"), 2);
    QComboBox* year = cmbYear[At(group)] = EditableBox("cmbYear", group, which + QStringLiteral("year"), 4);
    month->addItems(MonthNames());
    day->addItems(DayNumbers());
    year->addItems(ListedYears());
    txtInput[At(group)] = Named(new QLineEdit, ElementName("txtInput", group), which + QStringLiteral("date"));
    showToday(group);
    for (QComboBox* box : {month, day, year})
        connect(box, &QComboBox::currentTextChanged, this, [this, group] { dateBoxes_Change(group); });
    connect(txtInput[At(group)], &QLineEdit::editingFinished, this, [this, group] { txtInput_LostFocus(group); });
}

void frmDateDiff::layOut() {
    auto* dates = new QGridLayout;
    const auto addGroup = [&](int group, const std::array<QLabel*, 2>& captions) {
        const int row = group * 2;
        dates->addWidget(captions[0], row, 0, 1, 3);
        dates->addWidget(captions[1], row, 4);
        dates->addWidget(cmbMonth[At(group)], row + 1, 0);
        dates->addWidget(cmbDay[At(group)], row + 1, 1);
        dates->addWidget(cmbYear[At(group)], row + 1, 2);
        dates->addWidget(txtInput[At(group)], row + 1, 4);
    };
    addGroup(0, lblStart);
    addGroup(1, lblEnd);
    dates->setColumnStretch(0, 2);
    dates->setColumnMinimumWidth(3, 12);
    dates->setColumnStretch(4, 3);
    auto* interval = new QHBoxLayout;
    interval->addWidget(Label1);
    interval->addWidget(lblInterval, 1);
    interval->addWidget(Label2);
    interval->addWidget(cmbInterval);
    auto* answer = new QHBoxLayout;
    answer->addWidget(cmdDateDiff);
    answer->addWidget(txtAnswer, 1);
    auto* all = new QVBoxLayout(this);
    all->setSpacing(10);
    all->addLayout(dates);
    all->addLayout(interval);
    all->addLayout(answer);
    all->addStretch(1);
    resize(480, sizeHint().height());
}

void frmDateDiff::showToday(int group) {
    const Date today = Today();
    txtInput[At(group)]->setText(FromText(DateBoxText(today)));
    txtInput_LostFocus(group);
}

void frmDateDiff::showInterval() {
    const QSignalBlocker quiet(cmbInterval);
    const QString name = FromText(IntervalName(DateDiff.intervalCode));
    lblInterval->setText(name);
    cmbInterval->setCurrentText(name);
}

void frmDateDiff::dateBoxes_Change(int group) {
    const QString typed = cmbMonth[At(group)]->currentText() + QLatin1Char(' ') + cmbDay[At(group)]->currentText() +
                          QStringLiteral(", ") + cmbYear[At(group)]->currentText();
    if (const auto date = ReadDate(ToText(typed))) txtInput[At(group)]->setText(FromText(DateBoxText(*date)));
}

/// Enter comes here as well. What is no date stays as it was typed.
void frmDateDiff::txtInput_LostFocus(int group) {
    const auto date = ReadDate(ToText(txtInput[At(group)]->text()));
    if (!date) return;
    txtInput[At(group)]->setText(FromText(DateBoxText(*date)));
    QComboBox* month = cmbMonth[At(group)];
    QComboBox* day = cmbDay[At(group)];
    QComboBox* year = cmbYear[At(group)];
    const QSignalBlocker quietMonth(month);
    const QSignalBlocker quietDay(day);
    const QSignalBlocker quietYear(year);
    ShowDateInBoxes(month, day, year, *date, "dd");
}

/// "Day of Year" has no interval of its own: the one before stays.
void frmDateDiff::cmbInterval_Click() {
    if (!ChooseInterval(ToText(cmbInterval->currentText()))) return;
    lblInterval->setText(cmbInterval->currentText());
    txtAnswer->clear();
}

void frmDateDiff::cmdDateDiff_Click() {
    Reporting("cmdDateDiff_Click", [this] {
        const auto start = ReadDate(ToText(txtInput[0]->text()));
        const auto end = ReadDate(ToText(txtInput[1]->text()));
        if (!start || !end) {
            ShowMessage(start ? "End Date is not a valid date." : "Start Date is not a valid date.");
            return;
        }
        txtAnswer->setText(FromText(DifferenceText(DateDifference(*start, *end, DateDiff.intervalCode))));
    });
}

void OpenDateDiff(std::string_view interval) {
    ChooseInterval(interval);
    ShowWindow<frmDateDiff>()->showInterval();
}
