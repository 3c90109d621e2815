// The holiday manager's window.
#include "reminders/frmHolidays.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QMenuBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>

#include "base/dialogs.h"
#include "forms/qt/dateBoxes.h"
#include "forms/qt/lists.h"
#include "forms/qt/text.h"
#include "reminders/modHolidayManager.h"

frmHolidays::frmHolidays() : Window("frmHolidays", QStringLiteral("Holiday Manager")) {
    makeControls();
    buildMenus();
    layOut();
    OpenHolidayList();
    PopulateComboList();
    showList(0);
    lstHolidays->setFocus();
}

void frmHolidays::makeControls() {
    lblYear = Named(new QLabel(QStringLiteral("Change the Year Below")), QStringLiteral("lblYear"));
    cmbYear = Named(new QComboBox, QStringLiteral("cmbYear"), QStringLiteral("Year"));
    cmbYear->setEditable(true);
    cmbYear->setInsertPolicy(QComboBox::NoInsert);
    cmbYear->setCompleter(nullptr);
    cmbYear->setToolTip(
        QStringLiteral("Pick a year, or type any other and choose New Holiday List from the File menu"));
    lblYear->setBuddy(cmbYear);
    lblList = Named(new QLabel(QStringLiteral("Holiday List - Click to Select")), QStringLiteral("lblList"));
    lstHolidays = Named(new ListBox, QStringLiteral("lstHolidays"), QStringLiteral("Holiday List"));
    lstHolidays->setUniformItemSizes(true);
    Label1 = Named(new QLabel(QStringLiteral("Date")), QStringLiteral("Label1"));
    txtDate = Named(new QLineEdit, QStringLiteral("txtDate"), QStringLiteral("Date"));
    lblDesc = Named(new QLabel(QStringLiteral("Description")), QStringLiteral("lblDesc"));
    txtDesc = Named(new QLineEdit, QStringLiteral("txtDesc"), QStringLiteral("Description"));
    cmdSave = Named(new QPushButton(QStringLiteral("&Save and Update List")), QStringLiteral("cmdSave"));
    cmdDelete = Named(new QPushButton(QStringLiteral("&Remove this Holiday")), QStringLiteral("cmdDelete"));
    cmdAddNew = Named(new QPushButton(QStringLiteral("&Insert New Holiday")), QStringLiteral("cmdAddNew"));
    connect(cmbYear, &QComboBox::textActivated, this, [this] { cmbYear_Click(); });
    connect(lstHolidays, &QListWidget::itemSelectionChanged, this,
            [this] { lstHolidays_Click(SelectedRow(lstHolidays)); });
    connect(lstHolidays, &QListWidget::itemClicked, this, [this] { lstHolidays_Click(SelectedRow(lstHolidays)); });
    connect(txtDate, &QLineEdit::returnPressed, this, [this] { focusOn(txtDesc); });
    connect(txtDesc, &QLineEdit::returnPressed, cmdSave, [this] { cmdSave->setFocus(); });
    connect(cmdSave, &QPushButton::clicked, this, [this] { save(); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { cmdDelete_Click(); });
    connect(cmdAddNew, &QPushButton::clicked, this, [this] { cmdAddNew_Click(); });
    new QShortcut(QKeySequence::Cancel, this, [this] { close(); });
    // A year that was typed and not loaded would stand over another year's list.
    new Leaving(cmbYear, [this] { showYear(); });
}

void frmHolidays::buildMenus() {
    menus.build(new QMenuBar(this),
                {Without("mnuFile", "&File", ""),
                 With(
                     "mnuFileNew", "&New Holiday List", "mnuFile", [this] { mnuFileNew_Click(); }, QKeySequence::New),
                 With(
                     "mnuFileSave", "&Save", "mnuFile", [this] { mnuFileSave_Click(); }, QKeySequence::Save)});
}

void frmHolidays::layOut() {
    auto* left = new QVBoxLayout;
    left->addWidget(lblList);
    left->addWidget(lstHolidays, 1);
    auto* right = new QVBoxLayout;
    right->addWidget(lblYear);
    right->addWidget(cmbYear);
    right->addSpacing(Pixels(180));
    right->addWidget(Label1);
    right->addWidget(txtDate);
    right->addWidget(lblDesc);
    right->addWidget(txtDesc);
    right->addSpacing(Pixels(180));
    for (QPushButton* button : {cmdSave, cmdAddNew, cmdDelete}) right->addWidget(button);
    right->addStretch(1);
    auto* all = new QHBoxLayout;
    all->addLayout(left, 1);
    all->addSpacing(Pixels(120));
    all->addLayout(right);
    auto* whole = new QVBoxLayout(this);
    whole->setMenuBar(findChild<QMenuBar*>());
    whole->addLayout(all);
    txtDesc->setMinimumWidth(fontMetrics().averageCharWidth() * 34);
    resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 24);
    QWidget* const order[] = {lstHolidays, cmbYear, txtDate, txtDesc, cmdSave, cmdAddNew, cmdDelete};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void frmHolidays::PopulateComboList() {
    const QSignalBlocker quiet(cmbYear);
    cmbYear->addItems(ListedYears());
}

// -- Showing --------------------------------------------------------------------------------------------------------

void frmHolidays::showList(int entry) {
    showLines(entry);
    showYear();
    showEntry(entry);
}

void frmHolidays::showLines(int entry) {
    ShowEntries(lstHolidays, HolidayList.lines);
    selectLine(entry);
}

void frmHolidays::selectLine(int entry) {
    const QSignalBlocker quiet(lstHolidays);
    lstHolidays->setCurrentRow(entry);
}

void frmHolidays::showYear() { ShowYearInBox(cmbYear, HolidayList.year); }

void frmHolidays::showEntry(int entry) {
    showEdit(FromText(HolidayDateShown(entry)), FromText(HolidayDescription(entry)));
}

void frmHolidays::showEdit(const QString& date, const QString& description) {
    txtDate->setText(date);
    txtDesc->setText(description);
    txtDesc->setCursorPosition(0);
    shownDate_ = txtDate->text();
    shownDescription_ = txtDesc->text();
}

bool frmHolidays::isEdited() const { return txtDate->text() != shownDate_ || txtDesc->text() != shownDescription_; }

/// Asks about what was typed before other things take its place.
bool frmHolidays::mayLeaveEdit() {
    return !isEdited() || AskToSave("The holiday has been changed. Do you want to save the changes?",
                                    "Holiday Has Changed", [this] { return save(); });
}

void frmHolidays::focusOn(QLineEdit* box) {
    box->setFocus();
    box->selectAll();
}

void frmHolidays::proposeNew(Date date) {
    if (!mayLeaveEdit()) return;
    const std::string year = FormatDate(date, "yyyy");
    if (HolidayList.year != year) SelectHolidayYear(year);
    HolidayList.clicked = -1;
    showList(-1);
    showEdit(FromText(FormatDate(date, "mmm dd, yyyy")), {});
    txtDesc->setFocus();
}

// -- Commands -------------------------------------------------------------------------------------------------------

void frmHolidays::cmbYear_Click() {
    const std::string year = ToText(cmbYear->currentText());
    if (!mayLeaveEdit()) return showYear();
    SelectHolidayYear(year);
    showList(0);
}

void frmHolidays::lstHolidays_Click(int entry) {
    if (entry < 0) return;
    if (isEdited()) {
        const std::string line = HolidayList.lines[static_cast<std::size_t>(entry)];
        if (!mayLeaveEdit()) return selectLine(HolidayList.clicked);
        const auto now = std::find(HolidayList.lines.begin(), HolidayList.lines.end(), line);
        if (now == HolidayList.lines.end()) return;  // the save has put another line in its place
        entry = static_cast<int>(now - HolidayList.lines.begin());
        selectLine(entry);
    }
    HolidayList.clicked = entry;
    showEntry(entry);
}

bool frmHolidays::save() {
    const auto description = LineToSave(txtDesc->text());
    const HolidayField field =
        description ? SaveHoliday(ToText(txtDate->text()), *description) : HolidayField::Description;
    if (field == HolidayField::Date) focusOn(txtDate);
    if (field == HolidayField::Description) focusOn(txtDesc);
    if (field == HolidayField::Abandoned) showLines(HolidayList.clicked);
    if (field == HolidayField::Saved) showList(0);
    return field == HolidayField::Saved;
}

void frmHolidays::cmdDelete_Click() {
    if (HolidayList.lines.empty() || HolidayList.clicked < 0) return;
    RemoveHoliday();
    showList(0);
}

void frmHolidays::cmdAddNew_Click() {
    if (!mayLeaveEdit()) return;
    showEdit({}, {});
    txtDate->setFocus();
}

void frmHolidays::mnuFileNew_Click() {
    const std::string year = ToText(cmbYear->currentText());
    if (!mayLeaveEdit()) return;
    if (!StartHolidayList(year)) {
        cmbYear->setFocus();
        return;
    }
    showList(HolidayList.clicked);
    if (HolidayList.lines.empty()) txtDate->setFocus();
}

void frmHolidays::mnuFileSave_Click() { SaveHolidaysAndRedraw(); }

void frmHolidays::unload() { CloseHolidayList(); }

void OpenHolidayManagerFor(Date date) { ShowWindow<frmHolidays>()->proposeNew(date); }
