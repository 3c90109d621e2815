// The list of a year's notes.
#include "notes/frmNoteList.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QShortcut>

#include "base/dialogs.h"
#include "forms/qt/lists.h"
#include "forms/qt/text.h"
#include "notes/frmPeriod.h"
#include "notes/modSearch.h"
#include "shell/modErrors.h"

frmNoteList::frmNoteList() : Window("frmNoteList", QStringLiteral("Notes Management")) {
    const auto button = [](const char* caption, const char* name) {
        const QString shown = QString::fromLatin1(caption);
        return Named(new QPushButton(shown), QString::fromLatin1(name), WithoutMnemonic(shown));
    };
    lbl = {Named(new QLabel(QStringLiteral("Change &Year Below")), ElementName("lbl", 0)),
           Named(new QLabel(QStringLiteral("Change &Month Below")), ElementName("lbl", 1))};
    cmbYear = Named(new QComboBox, QStringLiteral("cmbYear"), QStringLiteral("Year"));
    cmbMonth = Named(new QComboBox, QStringLiteral("cmbMonth"), QStringLiteral("Month"));
    cmdLoad = button("&Check Now", "cmdLoad");
    lblList = Named(new QLabel(QStringLiteral("&Notes Listed by Date Below")), QStringLiteral("lblList"));
    lst = Named(new ListBox, QStringLiteral("lst"), QStringLiteral("Notes by date"));
    lst->setSelectionMode(QAbstractItemView::ExtendedSelection);
    cmdOpen = button("&Open Selected Note", "cmdOpen");
    cmdDelete = button("&Delete Selected Notes", "cmdDelete");
    cmdDeleteAll = button("Delete &All Notes in List", "cmdDeleteAll");
    FillYears(cmbYear);
    FillMonths(cmbMonth);
    layOut();
    connect(cmdLoad, &QPushButton::clicked, this, [this] { populateListBoxes(); });
    connect(cmbYear->lineEdit(), &QLineEdit::returnPressed, this, [this] { populateListBoxes(); });
    connect(cmdOpen, &QPushButton::clicked, this, [this] { cmdOpen_Click(); });
    connect(lst, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        item->setSelected(true);  // Enter means the row that has the focus
        cmdOpen_Click();
    });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { cmdDelete_Click(); });
    connect(cmdDeleteAll, &QPushButton::clicked, this, [this] { cmdDeleteAll_Click(); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] { close(); });
    populateListBoxes();
    lst->setFocus();
}

void frmNoteList::layOut() {
    lbl[0]->setBuddy(cmbYear);
    lbl[1]->setBuddy(cmbMonth);
    lblList->setBuddy(lst);
    auto* all = new QGridLayout(this);
    all->setHorizontalSpacing(Pixels(240));
    all->addWidget(lbl[0], 0, 0);
    all->addWidget(cmbYear, 1, 0);
    all->addWidget(lbl[1], 2, 0);
    all->addWidget(cmbMonth, 3, 0);
    all->addWidget(cmdLoad, 4, 0);
    all->setRowMinimumHeight(5, Pixels(240));
    all->addWidget(cmdOpen, 6, 0);
    all->addWidget(cmdDelete, 7, 0);
    all->addWidget(cmdDeleteAll, 8, 0);
    all->setRowStretch(9, 1);
    all->addWidget(lblList, 0, 1);
    all->addWidget(lst, 1, 1, 9, 1);
    all->setColumnStretch(1, 1);
    resize(Pixels(6000), Pixels(5100));
}

void frmNoteList::populateListBoxes() {
    Reporting("PopulateListBoxes", [this] {
        const int year = ChosenYear(cmbYear);
        const auto slot = ReadNotesOfYear(year);
        if (!slot) return;
        listedYear_ = year;
        ShowEntries(lst, NoteDatesInMonth(*slot, ChosenMonth(cmbMonth)));
        lst->clearSelection();
        lst->setCurrentRow(-1);
    });
}

void frmNoteList::cmdOpen_Click() {
    if (lst->currentItem() == nullptr || !lst->currentItem()->isSelected())
        ShowMessage("Nothing has been selected.");
    else
        Reporting("cmdOpen_Click", [this] { OpenListedNote(listedYear_, EntryAt(lst, lst->currentRow())); });
}

void frmNoteList::cmdDelete_Click() {
    std::vector<std::string> keys;
    for (int row = 0; row < lst->count(); ++row)
        if (lst->item(row)->isSelected()) keys.push_back(EntryAt(lst, row));
    if (keys.empty())
        ShowMessage("Nothing has been selected.");
    else
        deleteNotes(keys);
}

void frmNoteList::cmdDeleteAll_Click() {
    if (!AskBeforeLoss("You're about to delete all the files in the list. Continue?", "Deleting All File in the List"))
        return;
    std::vector<std::string> keys;
    keys.reserve(static_cast<std::size_t>(lst->count()));
    for (int row = 0; row < lst->count(); ++row) keys.push_back(EntryAt(lst, row));
    deleteNotes(keys);
}

/// Deletes notes of the year that is listed, whatever has been typed into the boxes since.
void frmNoteList::deleteNotes(const std::vector<std::string>& keys) {
    Reporting("cmdDelete_Click", [&] { DeleteListedNotes(listedYear_, keys); });
    cmbYear->setEditText(QString::number(listedYear_));
    populateListBoxes();
}
