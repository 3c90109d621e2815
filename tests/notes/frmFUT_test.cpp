// The terms window and its dialogs.
#include "notes/frmFUT.h"

#include "notes/frmAddFUT.h"
#include "notes/frmEditFUT.h"
#include "notes/frmNotes.h"
#include "notes/frmPref.h"
#include "notes/modFUT.h"
#include "notes/modNotes.h"
#include "shell/modPreferences.h"
#include "tests/support/window_test.h"

namespace {
struct TermsWindow : WindowTest {
    TermsWindow() {
        InstallNoteEditor();
        Calendar.yearOnDisplay = 2026;
        folder.put("Home.fut", "dentist\r\nvet");
        folder.put("Work.fut", "budget");
        Preferences.termsFile = CurrentTermsFile = "Home.fut";
        OpenTermsWindow();
        window = OpenedWindow<frmFUT>();
    }
    void select(int row) const { window->lstFUT->setCurrentRow(row); }
    std::string title() const { return window->windowTitle().toStdString(); }

    frmFUT* window = nullptr;
};

TEST_F(TermsWindow, AddsEditsAndRemovesTerms) {
    window->cmdOpt[0]->click();
    auto* add = OpenedWindow<frmAddFUT>();
    add->txtAddFUT->setPlainText(QStringLiteral("\u4E2D"));
    click(add->cmdSave, "\u4E2D");
    add->txtAddFUT->setPlainText(QStringLiteral("plumber\n electrician "));
    select(1);
    add->cmdSave->click();
    EXPECT_EQ(folder.get("Home.fut"), "dentist\r\nelectrician\r\nplumber\r\nvet");
    click(window->cmdOpt[1], "Nothing selected to edit.");  // another term stands in the row that was selected
    select(3);
    ShowTermsFiles();
    click(window->cmdOpt[3], "Nothing selected to remove.");  // while the terms cannot be seen
    ChooseTermsFile(0);
    select(3);
    window->cmdOpt[1]->click();
    auto* edit = OpenedWindow<frmEditFUT>();
    EXPECT_EQ(edit->txtEditFUT->text(), QStringLiteral("vet"));
    edit->txtEditFUT->setText(QStringLiteral("animal\ndoctor"));
    SetDisk({.write = [](const Path&, std::string_view) { throw Error(DiskFull); }});
    click(edit->cmdSave, "SaveFrequentlyUsedTerms");
    SetDisk({});
    EXPECT_EQ(OpenedWindow<frmEditFUT>(), edit);  // what was typed is still there
    edit->cmdSave->click();
    select(1);
    window->cmdOpt[3]->click();
    EXPECT_EQ(folder.get("Home.fut"), "animal doctor\r\nelectrician\r\nplumber");
    window->cmdCase[1]->click();
    EXPECT_EQ(window->lstFUT->item(0)->text(), QStringLiteral("Animal Doctor"));
    window->cmdOpt[2]->click();
    EXPECT_FALSE(AutoCompleteOn);
    // Reading the preferences again switches completion, and the button says so.
    window->item(QStringLiteral("mnuFileDefaultFUT"))->trigger();
    EXPECT_EQ(window->cmdOpt[2]->text(), QStringLiteral("Disable Auto Complete"));
    auto* preferences = ShowWindow<frmPref>();
    EXPECT_TRUE(preferences->windowFlags().testFlag(Qt::WindowStaysOnTopHint));  // as the terms window is
    preferences->chkACEnable->click();
    preferences->cmdSave->click();
    EXPECT_EQ(window->cmdOpt[2]->text(), QStringLiteral("Enable Auto Complete"));
}

TEST_F(TermsWindow, AsksBeforeTypedTermsGo) {
    window->cmdOpt[0]->click();
    auto* add = OpenedWindow<frmAddFUT>();
    add->txtAddFUT->setPlainText(QStringLiteral("plumber"));
    for (const Answer answer : {Answer::Cancel, Answer::Yes}) {
        dialogs.expect("The terms have not been saved.", answer);
        EXPECT_EQ(add->close(), answer == Answer::Yes);
    }
    EXPECT_EQ(folder.get("Home.fut"), "dentist\r\nplumber\r\nvet");
    select(0);
    window->cmdOpt[1]->click();
    auto* edit = OpenedWindow<frmEditFUT>();
    edit->txtEditFUT->setText(QStringLiteral("doctore\u0301"));
    select(2);
    dialogs.expect("The term has been changed.", Answer::Cancel);
    window->cmdOpt[1]->click();
    EXPECT_EQ(edit->txtEditFUT->text(), QStringLiteral("doctore\u0301"));
    dialogs.expect("The term has been changed.", Answer::Yes);
    window->cmdOpt[1]->click();
    EXPECT_EQ(edit->txtEditFUT->text(), QStringLiteral("vet"));
    edit->txtEditFUT->setText(QStringLiteral("farrier"));
    CurrentTermsFile = "Work.fut";
    dialogs.expect("The term belongs to the list \"Home\"");
    edit->cmdSave->click();
    CurrentTermsFile = "Home.fut";
    edit->txtEditFUT->setText(QStringLiteral("vet"));
    EXPECT_TRUE(edit->close());
    EXPECT_EQ(folder.get("Home.fut"), "doctor\xE9\r\nplumber\r\nvet");
}

TEST_F(TermsWindow, PutsTermsIntoTheNoteAndSwitchesListsFromThere) {
    SelectDate(MakeDate(2026, 10, 5));
    DisplayThisNote();
    auto* notes = OpenedWindow<frmNotes>();
    select(1);
    QTest::keyClick(window->lstFUT, Qt::Key_Insert);
    QTest::keyClick(window->lstFUT, Qt::Key_Left);
    QTest::keyClick(window->lstFUT, Qt::Key_Right);
    EXPECT_EQ(notes->txtNotes->toPlainText(), QStringLiteral("vet vet "));
    for (const char* next : {"Work", "Home"}) {
        QTest::keyClick(notes->txtNotes, Qt::Key_F3);
        EXPECT_EQ(title(), next);
    }
    QTest::keyClick(notes->txtNotes, Qt::Key_F2);
    EXPECT_FALSE(window->lstFUT->isVisible() || window->item(QStringLiteral("mnuFile"))->isEnabled());
    QTest::keyClick(window->lstMoreFUT, Qt::Key_Down);
    EXPECT_EQ(title(), "Home");
    QTest::keyClick(window->lstMoreFUT, Qt::Key_Return);
    EXPECT_EQ(title(), "Work");
    EXPECT_TRUE(window->lstFUT->isVisible() && window->item(QStringLiteral("mnuFile"))->isEnabled());
    NotesChanged = false;
    notes->close();
    EXPECT_EQ(OpenedWindow<frmFUT>(), nullptr);
    EXPECT_FALSE(TermsWindowOpen);
}

TEST_F(TermsWindow, OpensWhereItCanBeSeenAndAsThePreferencesSay) {
    folder.put("UserPreferences.txt", "");
    window->move(50, 60);
    window->resize(220, 440);
    const TermsPlace placed = Preferences.termsPlace;
    CloseTermsWindow();
    Preferences.termsPlace = {750, 900, 0, -9};
    OpenTermsWindow();
    EXPECT_TRUE(OpenedWindow<frmFUT>()->width() > 50 && OpenedWindow<frmFUT>()->height() > 100);
    CloseTermsWindow();
    Preferences.termsPlace = {150000, -90000, 3000, 6000};
    Preferences.minimizeTerms = true;
    OpenTermsWindow();
    window = OpenedWindow<frmFUT>();
    EXPECT_TRUE(window->isMinimized());
    EXPECT_TRUE(window->screen()->geometry().contains(window->geometry()));
    // The place that is kept is the one it opens at again, frame and all.
    window->showNormal();
    Preferences.termsPlace = placed;
    for (int opening = 0; opening < 3; ++opening) {
        const TermsPlace kept = Preferences.termsPlace;
        CloseTermsWindow();
        window = LoadedWindow<frmFUT>();
        PlaceOnScreens(window, {Pixels(kept.left), Pixels(kept.top), Pixels(kept.width), Pixels(kept.height)});
        MakeMeTopmost(window);
        QApplication::processEvents();
        window->item(QStringLiteral("mnuWindowSavePosition"))->trigger();
        EXPECT_NE(folder.get("UserPreferences.txt").find("FUT Position:Left=750:Top=900:Width=3300:Height=6600"),
                  std::string::npos);
    }
    OpenTermsWindow();
    EXPECT_FALSE(window->isMinimized());
    CloseTermsWindow();
    CurrentTermsFile = Preferences.termsFile = "";
    dialogs.expect("File not found.");
    OpenTermsWindow();
}
}  // namespace
