// The weekday counter's window.
#include "tools/frmNumDays.h"

#include <QApplication>
#include <QBoxLayout>
#include <QFocusEvent>
#include <QGridLayout>
#include <QSignalBlocker>
#include <algorithm>

#include "base/dialogs.h"
#include "forms/qt/text.h"

namespace {
/// Reads the box into the date. False after a message for what is no date; the date then keeps its value.
bool TakeDate(QLineEdit* box, Date& date, const char* complaint) {
    const auto typed = ReadDate(ToText(box->text()));
    if (!typed) {
        ShowMessage(complaint);
        return false;
    }
    date = *typed;
    return true;
}

void ShowDate(QLineEdit* box, Date date) { box->setText(FromText(ShortDate(date))); }

QLineEdit* DateBox(const QString& name, const QString& spoken, Date kept) {
    auto* box = Named(new QLineEdit, name, spoken);
    box->setPlaceholderText(QStringLiteral("m/d/yyyy"));
    if (kept != Date{}) ShowDate(box, kept);
    return box;
}

/// The busy pointer, for as long as it lives.
class BusyPointer {
  public:
    BusyPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
    ~BusyPointer() { QApplication::restoreOverrideCursor(); }
};
}  // namespace

frmNumDays::frmNumDays() : Window("frmNumDays", QStringLiteral("Number of Specific Weekdays Within a Period")) {
    Label1 = Named(new QLabel(QStringLiteral("Start Date")), QStringLiteral("Label1"));
    txtStart = DateBox(QStringLiteral("txtStart"), QStringLiteral("Start Date"), NumDays.start);
    Label2 = Named(new QLabel(QStringLiteral("End Date")), QStringLiteral("Label2"));
    txtEnd = DateBox(QStringLiteral("txtEnd"), QStringLiteral("End Date"), NumDays.end);
    framDays = Named(new QGroupBox(QStringLiteral("Select Weekday")), QStringLiteral("framDays"));
    makeDays();
    cmdGetDays = Named(new QPushButton(QStringLiteral("Show Occurrences")), QStringLiteral("cmdGetDays"),
                       QStringLiteral("Show Occurrences"));
    lstDays = Named(new QListView, QStringLiteral("lstDays"), QStringLiteral("Dates found"));
    listed = new QStringListModel(this);
    lstDays->setModel(listed);
    lstDays->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lstDays->setUniformItemSizes(true);
    lblOccur = Named(new QLabel, QStringLiteral("lblOccur"), QStringLiteral("Result"));
    layOut();
    for (QLineEdit* box : {txtStart, txtEnd}) box->installEventFilter(this);
    for (QTimer* left : {&startLeft_, &endLeft_}) left->setSingleShot(true);
    connect(&startLeft_, &QTimer::timeout, this, &frmNumDays::takeStart);
    connect(&endLeft_, &QTimer::timeout, this, &frmNumDays::takeEnd);
    connect(txtStart, &QLineEdit::returnPressed, this, &frmNumDays::txtStart_Enter);
    connect(txtEnd, &QLineEdit::returnPressed, this, &frmNumDays::txtEnd_Enter);
    connect(cmdGetDays, &QPushButton::clicked, this, &frmNumDays::cmdGetDays_Click);
    txtStart->setFocus();
}

void frmNumDays::makeDays() {
    auto* days = new QVBoxLayout(framDays);
    for (int day = 0; day < 7; ++day) {
        const QString name = FromText(WeekdayName(day + 1));
        auto* option = Named(new QRadioButton(QStringLiteral("# of %1s").arg(name)), ElementName("optDay", day), name);
        option->setProperty("tag", name);
        days->addWidget(option);
        optDay[static_cast<std::size_t>(day)] = option;
        connect(option, &QRadioButton::clicked, this, [this] { clearResult(); });
    }
    days->addStretch(1);
    optDay[static_cast<std::size_t>(NumDays.weekday)]->setChecked(true);
}

void frmNumDays::layOut() {
    auto* left = new QGridLayout;
    left->addWidget(Label1, 0, 0);
    left->addWidget(txtStart, 0, 1);
    left->addWidget(Label2, 1, 0);
    left->addWidget(txtEnd, 1, 1);
    left->addWidget(framDays, 2, 0, 1, 2);
    left->addWidget(cmdGetDays, 3, 0, 1, 2);
    left->setRowStretch(4, 1);
    auto* right = new QVBoxLayout;
    right->addWidget(lstDays, 1);
    right->addWidget(lblOccur);
    auto* all = new QHBoxLayout(this);
    all->addLayout(left);
    all->addLayout(right, 1);
    resize(560, std::max(340, sizeHint().height()));
}

// -- The two dates --------------------------------------------------------------------------------------------------

bool frmNumDays::takeStart() { return TakeDate(txtStart, NumDays.start, "Invalid Date in Start Date Box!"); }
bool frmNumDays::takeEnd() { return TakeDate(txtEnd, NumDays.end, "Invalid Date in End Date Box!"); }

void frmNumDays::txtStart_Enter() {
    if (!takeStart()) return;
    ShowDate(txtStart, NumDays.start);
    txtEnd->setFocus();
    txtEnd->selectAll();
}

void frmNumDays::txtEnd_Enter() {
    if (!takeEnd()) return;
    ShowDate(txtEnd, NumDays.end);
    if (NumDays.end < NumDays.start) ShowMessage("Start Date is Greater than End Date. Please adjust.");
    cmdGetDays->setFocus();
}

/// A box that is left is read after the click or key that left it has run its course: a message in the middle of a
/// mouse press would leave the pressed button down.
bool frmNumDays::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && isVisible()) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            (watched == txtStart ? startLeft_ : endLeft_).start(0);
    }
    return Window::eventFilter(watched, event);
}

// -- Counting -------------------------------------------------------------------------------------------------------

void frmNumDays::CheckWhichDay() {
    const auto chosen = std::find_if(optDay.begin(), optDay.end(), [](auto* option) { return option->isChecked(); });
    NumDays.weekday = static_cast<int>(chosen - optDay.begin());
}

void frmNumDays::clearResult() {
    listed->setStringList({});
    lblOccur->clear();
}

void frmNumDays::cmdGetDays_Click() {
    // The boxes are read here anyway, also when the button was reached by a key that leaves the focus where it is.
    startLeft_.stop();
    endLeft_.stop();
    clearResult();
    CheckWhichDay();
    if (!takeStart() || !takeEnd()) return;
    try {
        showOccurrences(CountWeekdays());
    } catch (const std::exception&) {
        ShowMessage("Error: Too Much or Invalid Data");
    }
}

void frmNumDays::showOccurrences(const Occurrences& found) {
    {
        const BusyPointer busy;
        QStringList entries;
        entries.reserve(found.count);
        ListOccurrences(found, [&entries](std::string_view entry) { entries << FromText(entry); });
        listed->setStringList(entries);
    }
    if (found.tooMany) ShowMessage("Too many occurrences: narrow the Date Difference");
    lblOccur->setText(FromText(OccurrencesText(found)));
}
