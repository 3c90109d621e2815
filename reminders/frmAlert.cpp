// The alert manager's window.
#include "reminders/frmAlert.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QSignalBlocker>

#include "base/dialogs.h"
#include "base/text.h"
#include "forms/qt/dateBoxes.h"
#include "forms/qt/lists.h"
#include "forms/qt/text.h"
#include "reminders/modAlerts.h"

namespace {
constexpr int LongestPeriod = 4;  // digits

std::size_t At(int index) { return static_cast<std::size_t>(index); }

QString PeriodCaption(int days) {
    return QStringLiteral("%1 day%2 before this date").arg(days).arg(days == 1 ? QString() : QStringLiteral("s"));
}
}  // namespace

frmAlert::frmAlert() : Window("frmAlert", QStringLiteral("Alert Management")) {
    makeDate();
    makePeriod();
    makeMessageAndLists();
    buildMenus();
    layOut();
    OpenAlertList();
    LoadComboBoxes();
    sortBy(1);
    showAll();
    connectControls();
    txtMessage->setFocus();
}

// -- Making ---------------------------------------------------------------------------------------------------------

void frmAlert::makeDate() {
    lblMain = Named(new QLabel(QStringLiteral("Setting Alert for")), QStringLiteral("lblMain"));
    QFont heading = lblMain->font();
    heading.setBold(true);
    heading.setPointSizeF(heading.pointSizeF() * 1.25);
    lblMain->setFont(heading);
    lblStart[1] = Named(new QLabel(QStringLiteral("Chosen Alert Date")), ElementName("lblStart", 1));
    txtDate = Named(new QLineEdit, QStringLiteral("txtDate"), QStringLiteral("Chosen Alert Date"));
    lblStart[0] = Named(new QLabel(QStringLiteral("Choose a Different Date Below")), ElementName("lblStart", 0));
    cmbMonth = Named(new QComboBox, QStringLiteral("cmbMonth"), QStringLiteral("Month"));
    cmbDay = Named(new QComboBox, QStringLiteral("cmbDay"), QStringLiteral("Day"));
    cmbYear = Named(new QComboBox, QStringLiteral("cmbYear"), QStringLiteral("Year"));
    for (QComboBox* box : {cmbMonth, cmbDay, cmbYear}) {
        box->setEditable(true);
        box->setInsertPolicy(QComboBox::NoInsert);
        box->setCompleter(nullptr);
    }
    lblStart[1]->setBuddy(txtDate);
    lblStart[0]->setBuddy(cmbMonth);
}

void frmAlert::makePeriod() {
    framAlert = Named(new QGroupBox(QStringLiteral("Alert Notification Period")), QStringLiteral("framAlert"));
    for (int i = 0; i < static_cast<int>(optValue.size()); ++i)
        optValue[At(i)] = Named(new QRadioButton(PeriodCaption(AlertPeriodChoices[At(i)])), ElementName("optValue", i));
    Label1 = Named(new QLabel(QStringLiteral("Input days on the right or check from list on the left.")),
                   QStringLiteral("Label1"));
    Label1->setWordWrap(true);
    txtValue = Named(new QLineEdit, QStringLiteral("txtValue"), QStringLiteral("Days before the date"));
    txtValue->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), txtValue));
    txtValue->installEventFilter(this);
}

void frmAlert::makeMessageAndLists() {
    lblMessage = Named(new QLabel(QStringLiteral("Alert &Message to Display")), QStringLiteral("lblMessage"));
    txtMessage = Named(new QPlainTextEdit, QStringLiteral("txtMessage"), QStringLiteral("Alert Message to Display"));
    txtMessage->setTabChangesFocus(true);
    lblMessage->setBuddy(txtMessage);
    lblList = Named(new QLabel(QStringLiteral("Active Alert List")), QStringLiteral("lblList"));
    for (int element : {1, 2}) {
        lstAlerts[At(element)] =
            Named(new ListBox, ElementName("lstAlerts", element),
                  element == 1 ? QStringLiteral("Active alerts by date") : QStringLiteral("Active alerts by message"));
        lstAlerts[At(element)]->setUniformItemSizes(true);
    }
    cmdSave[0] = Named(new QPushButton(QStringLiteral("Save and &Continue")), ElementName("cmdSave", 0));
    cmdSave[1] = Named(new QPushButton(QStringLiteral("&Save and Exit")), ElementName("cmdSave", 1));
    cmdDelete = Named(new QPushButton(QStringLiteral("&Delete Selected from List")), QStringLiteral("cmdDelete"));
}

void frmAlert::connectControls() {
    for (QComboBox* box : {cmbMonth, cmbDay, cmbYear}) {
        connect(box, &QComboBox::textActivated, this, [this] { dateChosen(); });
        connect(box->lineEdit(), &QLineEdit::editingFinished, this, [this] { takeTypedBoxes(); });
    }
    for (int i = 0; i < static_cast<int>(optValue.size()); ++i)
        connect(optValue[At(i)], &QRadioButton::clicked, this, [this, i] { optValue_Click(i); });
    connect(txtValue, &QLineEdit::textChanged, this, [this] { showPeriodChoice(); });
    for (int element : {1, 2}) {
        QListWidget* list = lstAlerts[At(element)];
        connect(list, &QListWidget::itemSelectionChanged, this, [this, list] { lstAlerts_Click(SelectedRow(list)); });
        connect(list, &QListWidget::itemClicked, this, [this, list] { lstAlerts_Click(SelectedRow(list)); });
    }
    for (int i : {0, 1}) connect(cmdSave[At(i)], &QPushButton::clicked, this, [this, i] { cmdSave_Click(i); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { cmdDelete_Click(); });
    new QShortcut(QKeySequence::Cancel, this, [this] { close(); });
    dateLeft_ = new Leaving(txtDate, [this] { txtDate_LostFocus(); });
    periodLeft_ = new Leaving(txtValue, [this] { txtValue_LostFocus(); });
}

void frmAlert::buildMenus() {
    menus.build(new QMenuBar(this),
                {Without("mnuFile", "&File", ""),
                 With(
                     "mnuFileNew", "&New", "mnuFile", [this] { mnuFileNew_Click(); }, QKeySequence::New),
                 With(
                     "mnuFileSave", "&Save", "mnuFile", [this] { cmdSave_Click(0); }, QKeySequence::Save),
                 With("mnuFileExit", "E&xit", "mnuFile", [this] { close(); }), Without("mnuEdit", "&Edit", ""),
                 With(
                     "mnuEditFind", "&Find", "mnuEdit", [this] { mnuEditFind_Click(); }, QKeySequence::Find),
                 Without("mnuOptions", "&Options", ""),
                 With("mnuOptDeleteOldAlerts", "Delete Expired Alerts", "mnuOptions",
                      [this] { mnuOptDeleteOldAlerts_Click(); }),
                 Without("mnuView", "&View", ""), Check("mnuViewAll", "All Alerts", "mnuView", [this] { view(false); }),
                 Check("mnuViewPending", "Pending Alerts Only", "mnuView", [this] { view(true); }),
                 Without("mnuSort", "Sort &List", ""),
                 Check("mnuSortDate", "By Date", "mnuSort",
                       [this] {
                           sortBy(1);
                           select(0);
                       }),
                 Check("mnuSortMessage", "By Message", "mnuSort", [this] {
                     sortBy(2);
                     select(0);
                 })});
}

QLayout* frmAlert::dateLayout() {
    auto* date = new QGridLayout;
    date->addWidget(lblStart[1], 0, 0);
    date->addWidget(txtDate, 0, 1, 1, 2);
    date->addWidget(lblStart[0], 1, 0, 1, 3);
    date->addWidget(cmbMonth, 2, 0);
    date->addWidget(cmbDay, 2, 1);
    date->addWidget(cmbYear, 2, 2);
    date->setColumnStretch(0, 1);
    return date;
}

QLayout* frmAlert::periodLayout() {
    auto* choices = new QVBoxLayout;
    for (QRadioButton* option : optValue) choices->addWidget(option);
    auto* days = new QVBoxLayout;
    days->addWidget(Label1);
    days->addWidget(txtValue);
    days->addStretch(1);
    auto* period = new QHBoxLayout;
    period->addLayout(choices);
    period->addSpacing(Pixels(240));
    period->addLayout(days, 1);
    return period;
}

void frmAlert::layOut() {
    framAlert->setLayout(periodLayout());
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : cmdSave) buttons->addWidget(button);
    auto* left = new QVBoxLayout;
    left->addWidget(lblMain);
    left->addLayout(dateLayout());
    left->addWidget(framAlert);
    left->addWidget(lblMessage);
    left->addWidget(txtMessage, 1);
    left->addLayout(buttons);
    auto* right = new QVBoxLayout;
    right->addWidget(lblList);
    for (int element : {1, 2}) right->addWidget(lstAlerts[At(element)], 1);
    right->addWidget(cmdDelete);
    auto* both = new QHBoxLayout;
    both->addLayout(left, 3);
    both->addSpacing(Pixels(120));
    both->addLayout(right, 2);
    auto* whole = new QVBoxLayout(this);
    whole->setMenuBar(findChild<QMenuBar*>());
    whole->addLayout(both);
    const int letter = fontMetrics().averageCharWidth();
    txtValue->setMaximumWidth(letter * 10);
    Label1->setMinimumWidth(letter * 24);
    txtMessage->setMinimumHeight(fontMetrics().height() * 5);
    resize(letter * 105, fontMetrics().height() * 30);
}

void frmAlert::LoadComboBoxes() {
    cmbMonth->addItems(MonthNames());
    cmbDay->addItems(DayNumbers());
    cmbYear->addItems(ListedYears());
}

// -- Showing --------------------------------------------------------------------------------------------------------

void frmAlert::showAll() {
    showLists();
    showEdit();
}

void frmAlert::showLists() {
    lblList->setText(FromText(AlertList.caption));
    ShowEntries(lstAlerts[1], AlertList.dates);
    ShowEntries(lstAlerts[2], AlertList.messages);
    for (int row = 0; row < lstAlerts[1]->count(); ++row) {
        lstAlerts[1]->item(row)->setToolTip(TipOf(lstAlerts[2]->item(row)->text()));
        lstAlerts[2]->item(row)->setToolTip(TipOf(lstAlerts[1]->item(row)->text()));
    }
    menus[QStringLiteral("mnuViewAll")]->setChecked(!ViewPendingAlerts);
    menus[QStringLiteral("mnuViewPending")]->setChecked(ViewPendingAlerts);
}

void frmAlert::showEdit() {
    const QSignalBlocker quietValue(txtValue);
    showSelected();
    showDate();
    txtValue->setText(FromText(AlertList.edit.period));
    showPeriodChoice();
    txtMessage->setPlainText(FromText(Replaced(AlertList.edit.message, CrLf, "\n")));
    shown_ = typed();
}

void frmAlert::showSelected() {
    for (int element : {1, 2}) {
        const QSignalBlocker quiet(lstAlerts[At(element)]);
        lstAlerts[At(element)]->setCurrentRow(AddingNewAlert ? -1 : AlertList.selected);
    }
    lblMain->setText(FromText(AlertList.heading));
}

void frmAlert::showDate() {
    txtDate->setText(FromText(AlertList.edit.date));
    if (AlertDateTyped(AlertList.edit.date) != AlertList.date) return;  // no date: the boxes stay
    ShowDateInBoxes(cmbMonth, cmbDay, cmbYear, AlertList.date, "dd");
}

void frmAlert::showPeriodChoice() {
    const auto choice = AlertPeriodChoice(ToText(txtValue->text()));
    for (QRadioButton* option : optValue) {
        // Of exclusive buttons none can be cleared while one has to stay.
        option->setAutoExclusive(false);
        option->setChecked(choice && option == optValue[At(*choice)]);
        option->setAutoExclusive(true);
    }
}

// -- Entering -------------------------------------------------------------------------------------------------------

AlertEdit frmAlert::typed() const {
    return {ToText(txtDate->text()), ToText(txtValue->text()), Replaced(ToText(txtMessage->toPlainText()), "\n", CrLf)};
}

/// A new alert that has no message yet is no loss.
bool frmAlert::isEdited() const {
    const AlertEdit now = typed();
    return AddingNewAlert ? !now.message.empty() : now != shown_;
}

/// Asks about what was typed before other things take its place.
bool frmAlert::mayLeaveEdit() {
    return !isEdited() || AskToSave("The alert has been changed. Do you want to save the changes?", "Alert Has Changed",
                                    [this] { return save(); });
}

void frmAlert::focusOn(AlertField field) {
    if (field == AlertField::Message) txtMessage->setFocus();
    if (field != AlertField::Date && field != AlertField::Period) return;
    QLineEdit* box = field == AlertField::Date ? txtDate : txtValue;
    box->setFocus();
    box->selectAll();
}

void frmAlert::dateChosen() {
    const QString text = cmbMonth->currentText() + QLatin1Char(' ') + cmbDay->currentText() + QStringLiteral(", ") +
                         cmbYear->currentText();
    if (TakeAlertDate(ToText(text))) txtDate->setText(FromText(AlertList.edit.date));
}

/// A text that was typed into a box counts like a choice from its list, which tells only of texts that it has.
void frmAlert::takeTypedBoxes() {
    bool typed = false;
    for (const QComboBox* box : {cmbMonth, cmbDay, cmbYear}) {
        typed = typed || box->lineEdit()->isModified();
        box->lineEdit()->setModified(false);
    }
    if (typed) dateChosen();
}

void frmAlert::txtDate_LostFocus() {
    if (TakeAlertDate(ToText(txtDate->text()))) showDate();
}

void frmAlert::optValue_Click(int index) { txtValue->setText(QString::number(AlertPeriodChoices[At(index)])); }

void frmAlert::txtValue_LostFocus() {
    if (txtValue->text().size() <= LongestPeriod) return;
    ShowMessage("An alert cannot be set greater than 9999 days.");
    focusOn(AlertField::Period);
}

/// Typing stops at four digits; a longer text can still be pasted, and is told of when the box is left.
bool frmAlert::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtValue && event->type() == QEvent::KeyPress) {
        const QString text = static_cast<QKeyEvent*>(event)->text();
        const bool digit = text.size() == 1 && text[0].isDigit();
        const auto left = txtValue->text().size() - txtValue->selectedText().size();
        if (digit && left >= LongestPeriod) return true;
    }
    return Window::eventFilter(watched, event);
}

// -- Commands -------------------------------------------------------------------------------------------------------

void frmAlert::sortBy(int element) {
    lstAlerts[1]->setVisible(element == 1);
    lstAlerts[2]->setVisible(element == 2);
    menus[QStringLiteral("mnuSortDate")]->setChecked(element == 1);
    menus[QStringLiteral("mnuSortMessage")]->setChecked(element == 2);
}

/// Selects an entry, unless a new alert has been begun: what was typed of it would go.
void frmAlert::select(int entry) {
    if (AddingNewAlert && !txtMessage->toPlainText().isEmpty()) return;
    lstAlerts_Click(entry);
}

void frmAlert::lstAlerts_Click(int entry) {
    if (entry < 0 || entry >= lstAlerts[1]->count()) return;
    if (isEdited()) {
        const std::string line = AlertLineOfEntry(entry);
        if (!mayLeaveEdit()) return showSelected();
        entry = AlertEntryOfLine(line);
        if (entry < 0) return;  // the save has put another line in its place
    }
    SelectAlert(entry);
    showEdit();
}

void frmAlert::view(bool pendingOnly) {
    if (!AddingNewAlert && !mayLeaveEdit()) {
        showLists();
        return showSelected();
    }
    ViewAlerts(pendingOnly, typed());
    showAll();
}

void frmAlert::proposeNew(Date date) {
    if (AddingNewAlert)
        AlertList.edit = typed();
    else if (!mayLeaveEdit())
        return;
    NewAlertForDate(date);
    showEdit();
    txtMessage->setFocus();
}

void frmAlert::cmdSave_Click(int index) {
    if (save() && index == 1) close();
}

bool frmAlert::save() {
    dateLeft_->cancel();
    periodLeft_->cancel();
    takeTypedBoxes();
    const auto message = TextToSave(txtMessage->toPlainText());
    const AlertField field =
        message ? SaveAlert({ToText(txtDate->text()), ToText(txtValue->text()), Replaced(*message, "\n", CrLf)})
                : AlertField::Message;
    if (field == AlertField::Saved) {
        showAll();
        return true;
    }
    showLists();  // a failed save has read the file again, which somebody else may have written
    showSelected();
    focusOn(field);
    return false;
}

void frmAlert::cmdDelete_Click() {
    if (AlertLine.empty()) return;
    // What was typed of the selected alert goes with it; a new one is another, and once it is saved all are listed
    // anew.
    if (AddingNewAlert && (!mayLeaveEdit() || !AddingNewAlert)) return;
    DeleteAlert();
    showAll();
}

void frmAlert::mnuFileNew_Click() {
    if (!mayLeaveEdit()) return;
    NewAlert();
    AlertList.edit.date = ToText(txtDate->text());
    showEdit();
    txtMessage->setFocus();
}

void frmAlert::mnuEditFind_Click() {
    if (const auto entry = FindAlert()) lstAlerts_Click(*entry);
}

void frmAlert::mnuOptDeleteOldAlerts_Click() {
    if (!mayLeaveEdit()) return;
    DeleteExpiredAlerts();
    showAll();
}

void frmAlert::unload() { CloseAlertList(); }

void OpenAlertManager(bool pendingOnly) {
    frmAlert* open = OpenedWindow<frmAlert>();
    if (open == nullptr)
        ViewPendingAlerts = pendingOnly;
    else if (ViewPendingAlerts != pendingOnly)
        open->view(pendingOnly);
    ShowWindow<frmAlert>();
}

void OpenAlertManagerFor(Date date) {
    if (frmAlert* open = OpenedWindow<frmAlert>()) {
        open->proposeNew(date);
    } else {
        AlertPresetDate = date;
        AddingNewAlert = true;
    }
    ShowWindow<frmAlert>();
}
