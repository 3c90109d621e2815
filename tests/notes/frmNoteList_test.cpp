// The note list and the search window.
#include "notes/frmNoteList.h"

#include "notes/frmNotes.h"
#include "notes/frmSearch.h"
#include "notes/modNotes.h"
#include "tests/support/window_test.h"

namespace {
const std::string Year = "01/08/26:000401:Vet\r\n03/04/26:020300:lunch\r\n03/09/26:020101:LUNCH with Sam\r\n";

struct NoteWindows : WindowTest {
    NoteWindows() {
        InstallNoteEditor();
        Calendar.yearOnDisplay = 2026;
        folder.put("2026/Notes.dat", Year);
        folder.put("2041/Notes.dat", "03/01/41:020500:far away\r\n");
    }
    /// The entries of the list, each with a blank before it.
    static std::string shown(const QListWidget* list) {
        std::string rows;
        for (int row = 0; row < list->count(); ++row) rows += " " + list->item(row)->text().toStdString();
        return rows;
    }
    std::string file() const { return folder.get("2026/Notes.dat"); }
};

TEST_F(NoteWindows, ListAYearAMonthAndAYearTyped) {
    auto* window = ShowWindow<frmNoteList>();
    EXPECT_EQ(shown(window->lst), " 01/08/26 03/04/26 03/09/26");
    window->cmbMonth->setCurrentText(QStringLiteral("March"));
    window->cmdLoad->click();
    EXPECT_EQ(shown(window->lst), " 03/04/26 03/09/26");
    window->cmbYear->setEditText(QStringLiteral("2041"));
    QTest::keyClick(window->cmbYear, Qt::Key_Return);
    EXPECT_EQ(shown(window->lst), " 03/01/41");
    window->lst->setCurrentRow(0, QItemSelectionModel::NoUpdate);  // as the list is when it gets the focus
    QTest::keyClick(window->lst, Qt::Key_Return);
    EXPECT_EQ(OpenedWindow<frmNotes>()->txtNotes->toPlainText(), QStringLiteral("far away"));
    window->cmbYear->setEditText(QStringLiteral("9"));
    window->cmdLoad->click();
    EXPECT_TRUE(window->cmbYear->currentText() == QStringLiteral("2009") && window->lst->count() == 0);
    window->cmbYear->setEditText(QStringLiteral("no year"));
    click(window->cmdLoad, "PopulateListBoxes");
    for (auto* button : {window->cmdOpen, window->cmdDelete}) {
        click(button, "Nothing has been selected.");
    }
}

TEST_F(NoteWindows, DeleteWhatIsListedAndNothingElse) {
    auto* window = ShowWindow<frmNoteList>();
    window->cmbMonth->setCurrentText(QStringLiteral("March"));
    window->cmdLoad->click();
    window->lst->setCurrentRow(1);
    click(window->cmdDelete, "Notes Saved");
    EXPECT_EQ(file(), Year.substr(0, Year.find("03/09")));
    // A note that is open keeps its unsaved text through the prompt, and lands under its own date.
    SelectDate(MakeDate(2026, 1, 8));
    DisplayThisNote();
    QTest::keyClicks(OpenedWindow<frmNotes>()->txtNotes, QStringLiteral("! "));
    dialogs.expect("You're about to delete all the files in the list. Continue?", Answer::No);
    window->cmdDeleteAll->click();
    dialogs.expect("You're about to delete", Answer::Yes).expect("Text has been changed", Answer::Cancel);
    window->cmdDeleteAll->click();
    EXPECT_EQ(file(), Year.substr(0, Year.find("03/09")));
    dialogs.expect("You're about to delete", Answer::Yes).expect("Text has been changed", Answer::Yes);
    dialogs.expect("Notes Saved").expect("Notes Saved");
    window->cmdDeleteAll->click();
    EXPECT_EQ(file(), "01/08/26:000401:! Vet\r\n");
}

TEST_F(NoteWindows, SearchAndOpenWithThePhraseSelected) {
    auto* window = ShowWindow<frmSearch>();
    folder.put("2026/Notes.dat", Year + "04/01/26:030300:why?\r\n");
    for (const auto& [phrase, report] : {std::pair{"", "No phrase has been entered."},
                                         {"plumber", "Search Phrase was not found."},
                                         {"\u4E2D", "Search Phrase was not found."},  // nor does "?" stand for it
                                         {"vet", "Search Phrase appears on 1 date"},
                                         {"Sam", "Search Phrase appears on 1 date"},
                                         {"lunch", "Search Phrase appears on 2 dates."},
                                         {"lunch", "Search Phrase appears on 2 dates."}}) {
        window->cmbPhrase->setEditText(QString::fromUtf8(phrase));
        dialogs.expect(report);
        QTest::keyClick(window->cmbPhrase, Qt::Key_Return);
    }
    EXPECT_EQ(window->cmbPhrase->count(), 4);
    EXPECT_EQ(shown(window->lstResults), " 03/04/26 03/09/26");
    window->lstResults->setCurrentRow(1, QItemSelectionModel::NoUpdate);
    QTest::keyClick(window->lstResults, Qt::Key_Return);
    auto* editor = OpenedWindow<frmNotes>();
    EXPECT_EQ(editor->txtNotes->textCursor().selectedText(), QStringLiteral("LUNCH"));
    EXPECT_TRUE(editor->item(QStringLiteral("mnuEdit"))->isEnabled());
    window->close();
    EXPECT_FALSE(SearchActive);
    EXPECT_FALSE(editor->item(QStringLiteral("mnuEditSearchAgain"))->isEnabled());
    // A note that stays in the editor was not opened by the search.
    window = ShowWindow<frmSearch>();
    window->cmbPhrase->setEditText(QStringLiteral("vet"));
    click(window->cmdSearch, "Search Phrase appears on 1 date");
    QTest::keyClicks(editor->txtNotes, QStringLiteral("!"));
    window->lstResults->setCurrentRow(0);
    dialogs.expect("Text has been changed", Answer::Cancel);
    window->cmdOpen->click();
    EXPECT_FALSE(SearchActive);
}
}  // namespace
