// The birthday manager's window.
#include "reminders/frmBDay.h"

#include <QBoxLayout>
#include <QMenuBar>
#include <QPainter>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

#include "base/dialogs.h"
#include "base/listEntries.h"
#include "forms/qt/lists.h"
#include "forms/qt/text.h"

namespace {
std::size_t At(int index) { return static_cast<std::size_t>(index); }

constexpr std::array<const char*, 7> PeriodCaptions{
    "Do Not Alert Me",      "On the Same Day",      "1 Day Ahead of Time",  "3 Days Ahead of Time",
    "5 Days Ahead of Time", "7 Days Ahead of Time", "10 Days Ahead of Time"};

/// Shows "date, tab, name" in two columns that line up in every font.
class DateAndName : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem shown = option;
        initStyleOption(&shown, index);
        const QString name = shown.text.section(QLatin1Char('\t'), 1);
        shown.text = shown.text.section(QLatin1Char('\t'), 0, 0);
        const QStyle* style = shown.widget->style();
        style->drawControl(QStyle::CE_ItemViewItem, &shown, painter, shown.widget);
        QRect column = style->subElementRect(QStyle::SE_ItemViewItemText, &shown, shown.widget);
        column.setLeft(column.left() + shown.fontMetrics.horizontalAdvance(QStringLiteral("00/00/0000    ")));
        column.setRight(shown.rect.right());
        const bool selected = shown.state.testFlag(QStyle::State_Selected);
        painter->setFont(shown.font);
        style->drawItemText(painter, column, Qt::AlignLeft | Qt::AlignVCenter, shown.palette, true,
                            shown.fontMetrics.elidedText(name, Qt::ElideRight, column.width()),
                            selected ? QPalette::HighlightedText : QPalette::Text);
    }
};
}  // namespace

frmBDay::frmBDay() : Window("frmBDay", QStringLiteral("Birthday Management")) {
    makeEdits();
    makePeriods();
    makeLists();
    buildMenus();
    layOut();
    OpenBirthdayList();
    showLists();
    startNew();
}

// -- Making ---------------------------------------------------------------------------------------------------------

void frmBDay::makeEdits() {
    lblName = Named(new QLabel(QStringLiteral("Name (First Name First)")), QStringLiteral("lblName"));
    lblBDay = Named(new QLabel(QStringLiteral("Birthday mm/dd/yy (Year is Optional)")), QStringLiteral("lblBDay"));
    txt[0] = Named(new QLineEdit, ElementName("txt", 0), QStringLiteral("Name"));
    txt[1] = Named(new QLineEdit, ElementName("txt", 1), QStringLiteral("Birthday"));
    chkRememberAge = Named(new QCheckBox(QStringLiteral("Remember &Age")), QStringLiteral("chkRememberAge"));
    chkRememberAge->setToolTip(QStringLiteral("Keep the year of birth"));
    lblAge = Named(new QLabel(QStringLiteral("Age")), QStringLiteral("lblAge"));
    cmdSave = Named(new QPushButton(QStringLiteral("&Save")), QStringLiteral("cmdSave"));
    dateLeft_ = new Leaving(txt[1], [this] { txt_LostFocus(); });
    connect(txt[0], &QLineEdit::returnPressed, this, [this] { txt[1]->setFocus(); });
    connect(txt[1], &QLineEdit::returnPressed, this, [this] { cmdSave->setFocus(); });
    connect(cmdSave, &QPushButton::clicked, this, [this] { save(); });
}

void frmBDay::makePeriods() {
    framNotificationPeriod =
        Named(new QGroupBox(QStringLiteral("Alert Notification Period")), QStringLiteral("framNotificationPeriod"));
    lblNotifyMe = Named(new QLabel(QStringLiteral("or... Alert Me")), QStringLiteral("lblNotifyMe"));
    auto* periods = new QVBoxLayout(framNotificationPeriod);
    for (int i = 0; i < static_cast<int>(optNotify.size()); ++i) {
        optNotify[At(i)] =
            Named(new QRadioButton(QString::fromLatin1(PeriodCaptions[At(i)])), ElementName("optNotify", i));
        if (i == 1) periods->addWidget(lblNotifyMe);
        periods->addWidget(optNotify[At(i)]);
    }
}

void frmBDay::makeLists() {
    for (int element : {1, 2}) {
        QListWidget* list =
            Named(new ListBox, ElementName("lstData", element),
                  element == 1 ? QStringLiteral("Birthdays by month") : QStringLiteral("Birthdays by name"));
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->setUniformItemSizes(true);
        connect(list, &QListWidget::itemSelectionChanged, this, [this, element] { lstData_Click(element); });
        connect(list, &QListWidget::itemClicked, this, [this, element] { lstData_Click(element); });
        lstData[At(element)] = list;
    }
    lstData[1]->setItemDelegate(new DateAndName(lstData[1]));
    lstData[2]->hide();
    cmdDelete = Named(new QPushButton(QStringLiteral("&Delete Selected")), QStringLiteral("cmdDelete"));
    cmdClear = Named(new QPushButton(QStringLiteral("De-Se&lect All")), QStringLiteral("cmdClear"));
    cmdSort = Named(new QPushButton(QStringLiteral("Sort by &Name")), QStringLiteral("cmdSort"));
    connect(cmdDelete, &QPushButton::clicked, this, [this] { cmdDelete_Click(); });
    connect(cmdClear, &QPushButton::clicked, this, [this] { cmdClear_Click(); });
    connect(cmdSort, &QPushButton::clicked, this, [this] { cmdSort_Click(); });
    new QShortcut(QKeySequence::Cancel, this, [this] { close(); });
}

void frmBDay::buildMenus() {
    menus.build(
        new QMenuBar(this),
        {Without("mnuFile", "&File", ""),
         With(
             "mnuFileNew", "&New", "mnuFile", [this] { startNew(); }, QKeySequence::New),
         With(
             "mnuFileSave", "&Save", "mnuFile", [this] { save(); }, QKeySequence::Save),
         With(
             "mnuFilePrint", "&Print Record", "mnuFile", [this] { PrintBirthdayRecord(typed()); }, QKeySequence::Print),
         With("mnuFilePrintList", "Print &Entire List", "mnuFile", [this] { PrintBirthdayList(visibleEntries()); }),
         With("mnuFilePrintSelected", "Print Selected Items in the List", "mnuFile",
              [this] { PrintSelectedBirthdays(selectedEntries()); }),
         Without("mnuOptions", "&Options", ""), Without("mnuMarkOptions", "&Mark Options", "mnuOptions"),
         With("mnuOptMarkAll", "Mark Calendars with All Birthdays", "mnuMarkOptions", MarkAllBirthdays),
         Without("mnuView", "&View", ""), With("mnuViewAll", "&All", "mnuView", [this] { view(false); }),
         With("mnuViewUpcoming", "&Upcoming Only", "mnuView", [this] { view(true); })});
}

QLayout* frmBDay::editLayout() {
    auto* age = new QHBoxLayout;
    age->addWidget(chkRememberAge);
    age->addStretch(1);
    age->addWidget(lblAge);
    auto* edits = new QVBoxLayout;
    edits->addWidget(lblName);
    edits->addWidget(txt[0]);
    edits->addWidget(lblBDay);
    edits->addWidget(txt[1]);
    edits->addLayout(age);
    edits->addWidget(framNotificationPeriod);
    edits->addWidget(cmdSave);
    edits->addStretch(1);
    return edits;
}

QLayout* frmBDay::listLayout() {
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdSort, cmdClear, cmdDelete}) buttons->addWidget(button);
    auto* lists = new QVBoxLayout;
    for (int element : {1, 2}) lists->addWidget(lstData[At(element)], 1);
    lists->addLayout(buttons);
    return lists;
}

void frmBDay::layOut() {
    auto* both = new QHBoxLayout;
    both->addLayout(editLayout());
    both->addSpacing(Pixels(120));
    both->addLayout(listLayout(), 1);
    auto* whole = new QVBoxLayout(this);
    whole->setMenuBar(findChild<QMenuBar*>());
    whole->addLayout(both);
    txt[0]->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    resize(fontMetrics().averageCharWidth() * 105, std::max(sizeHint().height(), fontMetrics().height() * 28));
    QWidget* before = txt[0];
    for (QWidget* next : std::initializer_list<QWidget*>{txt[1], chkRememberAge, optNotify[0], cmdSave, lstData[1],
                                                         lstData[2], cmdSort, cmdClear, cmdDelete}) {
        setTabOrder(before, next);
        before = next;
    }
}

// -- Showing --------------------------------------------------------------------------------------------------------

void frmBDay::showLists() {
    setWindowTitle(FromText(BirthdayListTitle()));
    const std::array<const std::vector<std::string>*, 3> entries{nullptr, &BirthdayList.byMonth, &BirthdayList.byName};
    for (int element : {1, 2}) {
        const QSignalBlocker quiet(lstData[At(element)]);
        ShowEntries(lstData[At(element)], *entries[At(element)]);
        lstData[At(element)]->clearSelection();
    }
}

void frmBDay::showEdit(const BirthdayEdit& shown) {
    txt[0]->setText(FromText(shown.name));
    txt[0]->setCursorPosition(0);
    txt[1]->setText(FromText(shown.date));
    chkRememberAge->setChecked(shown.rememberAge);
    lblAge->setText(FromText(shown.age));
    for (QRadioButton* option : optNotify) {
        // Of exclusive buttons none can be cleared while one has to stay.
        option->setAutoExclusive(false);
        option->setChecked(shown.period && option == optNotify[At(*shown.period)]);
        option->setAutoExclusive(true);
    }
    shown_ = typed();
}

const std::vector<std::string>& frmBDay::visibleEntries() const {
    return visibleElement() == 1 ? BirthdayList.byMonth : BirthdayList.byName;
}

std::vector<std::string> frmBDay::selectedEntries() const {
    std::vector<std::string> selected;
    for (std::size_t row = 0; row < visibleEntries().size(); ++row)
        if (visibleList()->item(static_cast<int>(row))->isSelected()) selected.push_back(visibleEntries()[row]);
    return selected;
}

/// Selects the birthday's entry in the visible list, where it is listed.
void frmBDay::selectBirthday(int index) {
    const auto& entries = visibleEntries();
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [index](const std::string& entry) { return RecordIndex(entry) == index; });
    if (found == entries.end()) return;
    const QSignalBlocker quiet(visibleList());
    visibleList()->setCurrentRow(static_cast<int>(found - entries.begin()));
}

// -- Entering -------------------------------------------------------------------------------------------------------

BirthdayEdit frmBDay::typed() const {
    const auto chosen =
        std::find_if(optNotify.begin(), optNotify.end(), [](auto* option) { return option->isChecked(); });
    BirthdayEdit edit{ToText(txt[0]->text()), ToText(txt[1]->text()), chkRememberAge->isChecked(), std::nullopt,
                      ToText(lblAge->text())};
    if (chosen != optNotify.end()) edit.period = static_cast<int>(chosen - optNotify.begin());
    return edit;
}

/// A new birthday of which neither name nor date is there yet is no loss.
bool frmBDay::isEdited() const {
    BirthdayEdit now = typed();
    now.age = shown_.age;  // nobody types it
    return now != shown_ && (BirthdayList.edited >= 0 || !now.name.empty() || !now.date.empty());
}

/// Asks about what was typed before other things take its place.
bool frmBDay::mayLeaveEdit() {
    return !isEdited() || AskToSave("The birthday has been changed. Do you want to save the changes?",
                                    "Birthday Has Changed", [this] { return save(); });
}

/// Selects the birthday being edited, and no other.
void frmBDay::showSelected() {
    const QSignalBlocker quiet(visibleList());
    visibleList()->clearSelection();
    selectBirthday(BirthdayList.edited);
}

void frmBDay::lstData_Click(int element) {
    QListWidget* list = lstData[At(element)];
    const auto& entries = element == 1 ? BirthdayList.byMonth : BirthdayList.byName;
    const int row = list->currentRow();
    if (row < 0 || !list->item(row)->isSelected()) {
        if (list->selectedItems().isEmpty()) BirthdayList.edited = -1;
        return;
    }
    const auto index = RecordIndex(entries[At(row)]);
    if (!index) return;
    if (!isEdited()) return showEdit(SelectBirthday(*index));
    const std::string line = BirthdayLine[At(*index)];
    if (!mayLeaveEdit()) return showSelected();
    const int now = BirthdayOfLine(line);
    if (now < 0) return;  // the save has put another line in its place
    showEdit(SelectBirthday(now));
    showSelected();
}

void frmBDay::txt_LostFocus() {
    const std::string date = ToText(txt[1]->text());
    if (!ReadDate(date)) return ShowMessage("Invalid Date");
    forgetMissingYear();
}

/// Once after the date was typed: whoever then asks for the age to be remembered gets this year.
void frmBDay::forgetMissingYear() {
    const std::string date = ToText(txt[1]->text());
    if (txt[1]->isModified() && ReadDate(date) && !NamesYear(date)) chkRememberAge->setChecked(false);
    txt[1]->setModified(false);
}

void frmBDay::proposeNew(Date date) {
    if (BirthdayList.edited >= 0 && !startNew()) return;
    txt[1]->setText(FromText(FormatDate(date, "mm/dd")));
    chkRememberAge->setChecked(false);  // there is no year to remember
    shown_.date = ToText(txt[1]->text());
    shown_.rememberAge = false;
    setTabOrder(txt[0], txt[1]);
    txt[0]->setFocus();
}

// -- Commands -------------------------------------------------------------------------------------------------------

bool frmBDay::save() {
    dateLeft_->cancel();
    const auto name = LineToSave(txt[0]->text());
    if (!name) {
        txt[0]->setFocus();
        return false;
    }
    forgetMissingYear();
    BirthdayEdit edit = typed();
    edit.name = *name;
    const BirthdayField field = SaveBirthday(edit);
    if (field == BirthdayField::Name) txt[0]->setFocus();
    if (field == BirthdayField::Date) txt[1]->setFocus();
    const bool saved = field == BirthdayField::Saved;
    if (!saved && field != BirthdayField::Abandoned) return false;
    showLists();  // a failed save, too, has read the file again, which somebody else may have written
    if (saved) shown_ = typed();
    if (BirthdayList.edited < 0) return saved;
    selectBirthday(BirthdayList.edited);
    if (saved) showEdit(SelectBirthday(BirthdayList.edited));
    return saved;
}

void frmBDay::cmdDelete_Click() {
    std::vector<int> indexes;
    for (const std::string& entry : selectedEntries())
        if (const auto index = RecordIndex(entry)) indexes.push_back(*index);
    const std::vector<std::string> before = visibleEntries();
    const bool deleted = DeleteBirthdays(indexes);
    if (!deleted && visibleEntries() == before) return;
    showLists();
    if (deleted) lblAge->setText(QStringLiteral("Age = NA"));
}

void frmBDay::cmdClear_Click() {
    for (int element : {1, 2}) lstData[At(element)]->clearSelection();
}

void frmBDay::cmdSort_Click() {
    std::vector<int> selected;
    for (const std::string& entry : selectedEntries())
        if (const auto index = RecordIndex(entry)) selected.push_back(*index);
    const bool byName = visibleElement() == 1;
    lstData[1]->setVisible(!byName);
    lstData[2]->setVisible(byName);
    cmdSort->setText(byName ? QStringLiteral("Sort by &Month") : QStringLiteral("Sort by &Name"));
    const QSignalBlocker quiet(visibleList());
    selectBirthday(BirthdayList.edited);  // the arrow keys go on from it
    visibleList()->clearSelection();
    for (std::size_t row = 0; row < visibleEntries().size(); ++row)
        if (std::count(selected.begin(), selected.end(), RecordIndex(visibleEntries()[row])) > 0)
            visibleList()->item(static_cast<int>(row))->setSelected(true);
}

bool frmBDay::startNew() {
    if (!mayLeaveEdit()) return false;
    BirthdayList.edited = -1;
    cmdClear_Click();
    showEdit({});
    txt[0]->setFocus();
    dateLeft_->cancel();  // the date box was emptied, nobody left it so
    return true;
}

void frmBDay::view(bool pendingOnly) {
    if (!startNew()) return;
    ViewBirthdays(pendingOnly);
    showLists();
}

void frmBDay::unload() { CloseBirthdayList(); }

void OpenBirthdayManagerFor(Date date) { ShowWindow<frmBDay>()->proposeNew(date); }
