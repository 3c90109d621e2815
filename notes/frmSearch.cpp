// The search.
#include "notes/frmSearch.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>
#include <utility>

#include "base/dialogs.h"
#include "forms/qt/lists.h"
#include "forms/qt/text.h"
#include "notes/frmNotes.h"
#include "notes/frmPeriod.h"
#include "notes/modNotes.h"
#include "notes/modSearch.h"
#include "shell/modErrors.h"

frmSearch::frmSearch() : Window("frmSearch", QStringLiteral("Search for...")) {
    Search.kind = "Notes";
    makeControls();
    layOut();
    showHistory({});
    connect(cmdSearch, &QPushButton::clicked, this, [this] { cmdSearch_Click(); });
    connect(cmbPhrase->lineEdit(), &QLineEdit::returnPressed, this, [this] { cmdSearch_Click(); });
    connect(cmdOpen, &QPushButton::clicked, this, [this] { cmdOpen_Click(); });
    connect(lstResults, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        item->setSelected(true);  // Enter means the row that has the focus
        cmdOpen_Click();
    });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] { close(); });
    cmbPhrase->setFocus();
}

frmSearch::~frmSearch() {
    if (OpenedWindow<frmSearch>() == nullptr) SearchActive = false;
}

void frmSearch::makeControls() {
    framTimePeriod = Named(new QGroupBox(QStringLiteral("Select Time and Phrase Below")),
                           QStringLiteral("framTimePeriod"), QStringLiteral("Select Time and Phrase Below"));
    lbl = {Named(new QLabel(QStringLiteral("Select &Year")), ElementName("lbl", 0)),
           Named(new QLabel(QStringLiteral("Select &Month")), ElementName("lbl", 1))};
    cmbYear = Named(new QComboBox, QStringLiteral("cmbYear"), QStringLiteral("Year"));
    cmbMonth = Named(new QComboBox, QStringLiteral("cmbMonth"), QStringLiteral("Month"));
    lblSearch = Named(new QLabel(QStringLiteral("Search &Phrase")), QStringLiteral("lblSearch"));
    cmbPhrase = Named(new QComboBox, QStringLiteral("cmbPhrase"), QStringLiteral("Search Phrase"));
    cmbPhrase->setEditable(true);
    cmbPhrase->setInsertPolicy(QComboBox::NoInsert);
    cmbPhrase->setCompleter(nullptr);
    cmdSearch = Named(new QPushButton(QStringLiteral("&Begin Search")), QStringLiteral("cmdSearch"),
                      QStringLiteral("Begin Search"));
    framOccurences = Named(new QGroupBox(QStringLiteral("Occurences")), QStringLiteral("framOccurences"),
                           QStringLiteral("Occurences"));
    lstResults = Named(new ListBox, QStringLiteral("lstResults"), QStringLiteral("Dates whose notes hold the phrase"));
    cmdOpen = Named(new QPushButton(QStringLiteral("&View Selected")), QStringLiteral("cmdOpen"),
                    QStringLiteral("View Selected"));
    FillYears(cmbYear);
    FillMonths(cmbMonth);
}

void frmSearch::layOut() {
    lbl[0]->setBuddy(cmbYear);
    lbl[1]->setBuddy(cmbMonth);
    lblSearch->setBuddy(cmbPhrase);
    auto* inputs = new QGridLayout(framTimePeriod);
    inputs->addWidget(lbl[0], 0, 0);
    inputs->addWidget(lbl[1], 0, 1);
    inputs->addWidget(cmbYear, 1, 0);
    inputs->addWidget(cmbMonth, 1, 1);
    inputs->addWidget(lblSearch, 2, 0, 1, 2);
    inputs->addWidget(cmbPhrase, 3, 0, 1, 2);
    inputs->addWidget(cmdSearch, 4, 0, 1, 2);
    inputs->setRowStretch(5, 1);
    auto* results = new QVBoxLayout(framOccurences);
    results->addWidget(lstResults, 1);
    results->addWidget(cmdOpen);
    auto* all = new QHBoxLayout(this);
    all->addWidget(framTimePeriod, 1);
    all->addWidget(framOccurences, 1);
    resize(Pixels(7200), Pixels(4200));
}

void frmSearch::showHistory(const QString& phrase) {
    const QSignalBlocker quiet(cmbPhrase);
    cmbPhrase->clear();
    for (const auto& known : Search.history) cmbPhrase->addItem(FromText(known));
    cmbPhrase->setCurrentIndex(-1);
    cmbPhrase->setEditText(phrase);
}

void frmSearch::cmdSearch_Click() {
    lstResults->clear();
    const QString typed = cmbPhrase->currentText();
    const std::string phrase = ToText(typed);
    if (FromText(phrase) != typed.normalized(QString::NormalizationForm_C)) {
        ShowMessage(SearchReport(0));  // no file holds such characters
        return;
    }
    SearchPhrase = phrase;
    RememberPhrase(SearchPhrase);
    showHistory(typed);
    if (SearchPhrase.empty()) {
        ShowMessage("No phrase has been entered.");
        cmbPhrase->setFocus();
        return;
    }
    Reporting("cmdSearch_Click", [this] { search(SearchPhrase); });
}

void frmSearch::search(const std::string& phrase) {
    const int year = ChosenYear(cmbYear);
    const auto slot = ReadNotesOfYear(year);
    if (!slot) return;
    listedYear_ = year;
    if (Search.kind == "Notes") ShowEntries(lstResults, NoteDatesWithPhrase(*slot, ChosenMonth(cmbMonth), phrase));
    lstResults->setCurrentRow(-1);
    ShowMessage(SearchReport(static_cast<std::size_t>(lstResults->count())));
    if (lstResults->count() > 0) lstResults->setFocus();
}

void frmSearch::cmdOpen_Click() {
    if (lstResults->currentItem() == nullptr || !lstResults->currentItem()->isSelected()) {
        ShowMessage("Nothing has been selected.");
        return;
    }
    Reporting("cmdOpen_Click", [this] {
        const bool wasActive = std::exchange(SearchActive, true);
        if (!OpenListedNote(listedYear_, EntryAt(lstResults, lstResults->currentRow()))) SearchActive = wasActive;
    });
}

void frmSearch::unload() {
    SearchActive = false;
    if (auto* notes = OpenedWindow<frmNotes>()) notes->showSearchState();
}
