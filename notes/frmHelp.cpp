// The help window.
#include "notes/frmHelp.h"

#include <QBoxLayout>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QSplitter>

#include "base/dialogs.h"
#include "base/text.h"
#include "forms/qt/lists.h"
#include "forms/qt/text.h"

namespace {
constexpr int FindNow = 0;
constexpr int FindAgain = 1;

const std::string AboutSearch =
    "Search is performed for a single phrase only throughout each category. If you've\r\n"
    "more than one word, i.e., \"calendar view\", the search will be performed looking\r\n"
    "for each occurrence where the 2 words are found together. If the 2 words are not\r\n"
    "found together, even if both words are contained in the subject, a null search will\r\n"
    "returned. It is therefore recommended that you choose one word at a time.";

/// The place in the text box of a place in the topic's text: the box counts a line break as one character.
int PlaceInBox(std::string_view text, std::size_t place) {
    return static_cast<int>(Replaced(text.substr(0, place), CrLf, "\n").size());
}
/// A found phrase stands out also while the focus is on a button.
void KeepSelectionVisible(QWidget* box) {
    QPalette palette = box->palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
        palette.setBrush(QPalette::Inactive, role, palette.brush(QPalette::Active, role));
    box->setPalette(palette);
}
}  // namespace

frmHelp::frmHelp() : Window("frmHelp", QStringLiteral("Tasmoro Help")) {
    framTopics = Named(new QGroupBox(QStringLiteral("Help Topics")), QStringLiteral("framTopics"));
    lstHelp = Named(new ListBox, QStringLiteral("lstHelp"), QStringLiteral("Help Topics"));
    lstHelp->setUniformItemSizes(true);
    framDesc = Named(new QGroupBox(QStringLiteral("Topic Description")), QStringLiteral("framDesc"));
    txtHelp = Named(new QPlainTextEdit, QStringLiteral("txtHelp"), QStringLiteral("Topic Description"));
    txtHelp->setReadOnly(true);
    txtHelp->setTabChangesFocus(true);
    KeepSelectionVisible(txtHelp);
    framSearch = Named(new QGroupBox(QStringLiteral("Search")), QStringLiteral("framSearch"));
    lblSearch = Named(new QLabel(QStringLiteral("Search for...")), QStringLiteral("lblSearch"));
    txtSearch = Named(new QLineEdit, QStringLiteral("txtSearch"), QStringLiteral("Search for"));
    lblSearch->setBuddy(txtSearch);
    cmdSearch = {new QPushButton(QStringLiteral("Find Now")), new QPushButton(QStringLiteral("Find Again"))};
    for (const int index : {FindNow, FindAgain}) {
        QPushButton* button = cmdSearch[static_cast<std::size_t>(index)];
        Named(button, ElementName("cmdSearch", index), button->text());
        connect(button, &QPushButton::clicked, this, [this, index] { cmdSearch_Click(index); });
    }
    cmdSearch[FindAgain]->setEnabled(false);
    layOut();
    connect(lstHelp, &QListWidget::currentRowChanged, this, &frmHelp::lstHelp_Click);
    connect(txtSearch, &QLineEdit::returnPressed, this, [this] { cmdSearch_Click(FindNow); });
    StartHelpSearchOver();
}

void frmHelp::layOut() {
    auto* bar = new QMenuBar(this);
    menus_.build(bar, {With("mnuHelp", "&Help on Search", "", [this] { mnuHelp_Click(); })});
    (new QVBoxLayout(framTopics))->addWidget(lstHelp);
    (new QVBoxLayout(framDesc))->addWidget(txtHelp);
    auto* search = new QHBoxLayout(framSearch);
    search->addWidget(lblSearch);
    search->addWidget(txtSearch, 1);
    for (QPushButton* button : cmdSearch) search->addWidget(button);
    auto* halves = new QSplitter;
    halves->setChildrenCollapsible(false);
    halves->addWidget(framTopics);
    halves->addWidget(framDesc);
    halves->setStretchFactor(1, 1);
    halves->setSizes({260, 560});
    auto* all = new QVBoxLayout(this);
    all->setMenuBar(bar);
    all->addWidget(halves, 1);
    all->addWidget(framSearch);
    resize(840, 560);
}

void frmHelp::showTopics() {
    const QSignalBlocker quiet(lstHelp);
    lstHelp->clear();
    for (const auto& title : HelpTitles) lstHelp->addItem(FromText(title));
    lstHelp->setCurrentRow(static_cast<int>(HelpTopics.panelTopic));
    lstHelp_Click(static_cast<int>(HelpTopics.panelTopic));
}

void frmHelp::lstHelp_Click(int topic) {
    txtHelp->setPlainText(topic < 0 ? QString() : FromText(HelpText(static_cast<std::size_t>(topic))));
}

void frmHelp::cmdSearch_Click(int index) {
    if (txtSearch->text().isEmpty()) {
        ShowMessage("Nothing to search for.");
        return;
    }
    if (index == FindNow) StartHelpSearchOver();
    const std::string phrase = ToText(txtSearch->text());
    if (const auto hit = FindInHelp(phrase)) {
        showHit(*hit, phrase.size());
        cmdSearch[FindAgain]->setEnabled(true);
    } else if (index == FindNow) {
        ShowMessage("Search Phrase not Found");
    } else {
        ShowMessage("End of Search");
        cmdSearch[FindAgain]->setEnabled(false);
    }
}

void frmHelp::showHit(const HelpHit& hit, std::size_t length) {
    const int row = static_cast<int>(hit.topic);
    if (lstHelp->currentRow() != row) lstHelp->setCurrentRow(row);
    const std::string& text = HelpTexts[hit.topic];
    QTextCursor cursor = txtHelp->textCursor();
    cursor.setPosition(PlaceInBox(text, hit.start));
    cursor.setPosition(PlaceInBox(text, hit.start + length), QTextCursor::KeepAnchor);
    txtHelp->setTextCursor(cursor);
    txtHelp->ensureCursorVisible();
}

void frmHelp::mnuHelp_Click() { ShowMessage(AboutSearch); }

void OpenHelp() { ShowWindow<frmHelp>()->showTopics(); }
