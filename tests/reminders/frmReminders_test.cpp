// The windows of holidays, birthdays and alerts, and the main window's ways to them. Today is November 22, 2026.

#include "calendar/modCalendar.h"
#include "calendar/modShell.h"
#include "marks/modCategories.h"
#include "marks/modMarkCommands.h"
#include "reminders/frmAlert.h"
#include "reminders/frmBDay.h"
#include "reminders/frmHolidays.h"
#include "reminders/modAlerts.h"
#include "reminders/modHolidayManager.h"
#include "shell/frmMain.h"
#include "tests/support/window_test.h"

namespace {
struct ReminderWindows : WindowTest {
    ReminderWindows() { SelectDate(MakeDate(2026, 11, 22)); }
    /// Passing a list by Tab chooses nothing.
    static void reachByTab(QListWidget* list) {
        QFocusEvent tab(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(list, &tab);
    }
};

QString Text(const QListWidget* list, int row) { return list->item(row)->text(); }
}  // namespace

TEST_F(ReminderWindows, HolidaysAreEditedFromTheKeyboard) {
    folder.put("Holidays/2026Holidays.dat", "12/25/26:Christmas\r\n07/04/26:Fourth: fireworks\r\n");
    auto* window = ShowWindow<frmHolidays>();
    EXPECT_EQ(window->cmbYear->currentText(), QStringLiteral("2026"));
    EXPECT_EQ(window->txtDesc->text(), QStringLiteral("Fourth: fireworks"));
    window->lstHolidays->setCurrentRow(1);
    EXPECT_EQ(window->txtDate->text(), QStringLiteral("Dec 25, 2026"));
    window->cmdAddNew->click();
    window->txtDate->setText(QStringLiteral("1/1/2009"));
    QTest::keyClick(window->txtDate, Qt::Key_Return);
    window->txtDesc->setText(QStringLiteral("Neujahr \u2603"));
    QTest::keyClick(window->txtDesc, Qt::Key_Return);
    dialogs.expect("\xE2\x98\x83");
    window->cmdSave->click();
    window->txtDesc->setText(QStringLiteral("New\r\nYear"));
    window->cmdSave->click();
    EXPECT_EQ(Text(window->lstHolidays, 0), QStringLiteral("01/01/26:New Year"));
    dialogs.expect("There is no Holiday List for 2008");
    QTest::keyClick(window->cmbYear, Qt::Key_Down);
    window->cmbYear->setEditText(QStringLiteral("2026"));
    window->menus[QStringLiteral("mnuFileNew")]->trigger();
    window->cmbYear->setEditText(QStringLiteral("2031"));
    QFocusEvent left(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(window->cmbYear, &left);
    QTest::qWait(1);
    EXPECT_EQ(window->cmbYear->currentText(), QStringLiteral("2026")) << "the year whose list is shown";
    window->cmbYear->setEditText(QStringLiteral("2031"));
    window->menus[QStringLiteral("mnuFileNew")]->trigger();
    EXPECT_EQ(window->lstHolidays->count(), 0);
    window->cmdDelete->click();  // nothing to remove
    dialogs.expect("Holiday List Saved.");
    window->close();
}

TEST_F(ReminderWindows, AMarkedHolidayIsProposedInItsOwnYear) {
    dialogs.expect("There is no Holiday List for 2026");
    folder.put("Holidays/2029Holidays.dat", "12/25/29:Christmas\r\n");
    OpenHolidayManagerFor(MakeDate(2029, 7, 4));
    auto* window = OpenedWindow<frmHolidays>();
    EXPECT_EQ(window->txtDate->text(), QStringLiteral("Jul 04, 2029"));
    window->txtDesc->setText(QStringLiteral("Fourth"));
    reachByTab(window->lstHolidays);
    window->cmdSave->click();
    EXPECT_EQ(folder.get("Holidays/2029Holidays.dat"), "07/04/29:Fourth\r\n12/25/29:Christmas\r\n");
}

TEST_F(ReminderWindows, BirthdaysAreSelectedSortedEditedAndDeleted) {
    folder.put("Birthdays.dat", "01/02:00:Zoe Adler:1990\r\n03/04:-1:Ben Zorn:****\r\n05/06:09:Cy Young:1950\r\n");
    auto* window = ShowWindow<frmBDay>();
    EXPECT_EQ(Text(window->lstData[1], 0), QStringLiteral("01/02/1990\tZoe Adler"));
    window->lstData[1]->setCurrentRow(0);
    EXPECT_EQ(window->lblAge->text(), QStringLiteral("Age = 36"));
    EXPECT_TRUE(window->optNotify[1]->isChecked());
    window->cmdSort->click();
    EXPECT_EQ(Text(window->lstData[2], 0), QStringLiteral("Adler, Zoe - 01/02/1990"));
    EXPECT_TRUE(window->lstData[2]->item(0)->isSelected()) << "the selection is carried over";
    QTest::keyClick(window->lstData[2], Qt::Key_Down);  // to Young
    EXPECT_TRUE(
        std::none_of(window->optNotify.begin(), window->optNotify.end(), [](auto* o) { return o->isChecked(); }));
    window->txt[0]->setText(QStringLiteral("Cy\nYounger"));
    window->cmdSave->click();  // the first save is silent
    EXPECT_EQ(folder.get("Birthdays.dat"),
              "01/02:00:Zoe Adler:1990\r\n03/04:-1:Ben Zorn:****\r\n05/06:09:Cy Younger:1950\r\n");
    window->lstData[2]->selectAll();
    dialogs.expect("multiple items?", Answer::Yes);
    window->cmdDelete->click();
    EXPECT_FALSE(folder.has("Birthdays.dat"));
    dialogs.expect("Birthday List Saved.");
    window->close();
}

TEST_F(ReminderWindows, LeavingABirthdayWithoutAYearForgetsTheAge) {
    OpenBirthdayManagerFor(MakeDate(2026, 7, 4));
    auto* window = OpenedWindow<frmBDay>();
    EXPECT_EQ(window->txt[1]->text(), QStringLiteral("07/04"));
    EXPECT_FALSE(window->chkRememberAge->isChecked());
    window->menus[QStringLiteral("mnuFileNew")]->trigger();
    EXPECT_TRUE(window->chkRememberAge->isChecked());
    window->activateWindow();
    const auto leave = [&](const char* date) {
        window->txt[1]->setFocus();
        window->txt[1]->selectAll();
        QTest::keyClicks(window->txt[1], QString::fromLatin1(date));
        window->cmdClear->setFocus();
        QTest::qWait(10);
    };
    leave("7/4/1990");
    EXPECT_TRUE(window->chkRememberAge->isChecked());
    leave("7/4");
    EXPECT_FALSE(window->chkRememberAge->isChecked());
    dialogs.expect("Invalid Date");
    leave("x");
    // Saved without being left; a click on the selected entry then shows it once more.
    window->txt[0]->setText(QStringLiteral("Ann\nB"));
    window->chkRememberAge->setChecked(true);
    window->txt[1]->selectAll();
    QTest::keyClicks(window->txt[1], QStringLiteral("7/4"));
    window->menus[QStringLiteral("mnuFileSave")]->trigger();
    EXPECT_EQ(folder.get("Birthdays.dat"), "07/04:07:Ann B:****\r\n");
    for (const char* typed : {"", "typed over"}) {
        window->txt[0]->setText(QString::fromLatin1(typed));
        dialogs.expect("Birthday Has Changed", Answer::No);
        QTest::mouseClick(window->lstData[1]->viewport(), Qt::LeftButton, {},
                          window->lstData[1]->visualItemRect(window->lstData[1]->item(0)).center());
        EXPECT_EQ(window->txt[0]->text(), QStringLiteral("Ann B"));
    }
    window->txt[1]->setFocus();
    window->menus[QStringLiteral("mnuFileNew")]->trigger();
    QTest::qWait(10);  // nobody left the box that was emptied
}

TEST_F(ReminderWindows, AlertsAreEnteredWithDateBoxesAndPeriods) {
    auto* window = ShowWindow<frmAlert>();
    EXPECT_EQ(window->lblMain->text(), QStringLiteral("Adding New Alert"));
    EXPECT_EQ(window->cmbYear->currentText(), QStringLiteral("2026"));
    window->optValue[5]->click();
    EXPECT_EQ(window->txtValue->text(), QStringLiteral("10"));
    window->txtValue->setText(QStringLiteral("3"));
    EXPECT_TRUE(window->optValue[2]->isChecked());
    window->txtValue->clear();
    QTest::keyClicks(window->txtValue, QStringLiteral("12a345"));
    EXPECT_EQ(window->txtValue->text(), QStringLiteral("1234"));
    window->cmbYear->lineEdit()->selectAll();
    QTest::keyClicks(window->cmbYear, QStringLiteral("2035"));
    QTest::keyClick(window->cmbYear, Qt::Key_Return);
    EXPECT_EQ(window->txtDate->text(), QStringLiteral("11/22/35"));
    for (QComboBox* box : {window->cmbMonth, window->cmbDay}) {
        QTest::keyClick(box, Qt::Key_Down);
        QTest::keyClick(box, Qt::Key_Up);
    }
    EXPECT_EQ(window->txtDate->text(), QStringLiteral("11/22/35")) << "the keys go on from what is shown";
    window->txtMessage->setPlainText(QStringLiteral("one\ntwo"));
    dialogs.expect("Alert List Updated.");
    window->cmdSave[1]->click();
    EXPECT_EQ(folder.get("Alerts.dat"), "49635:1234:one\xD5\xD2two\r\n");
    EXPECT_EQ(OpenedWindow<frmAlert>(), nullptr) << "Save and Exit closes";
}

TEST_F(ReminderWindows, ClicksAndMenusOfTheAlertList) {
    folder.put("Alerts.dat", "46340:0003:<b>Gone\r\n46350:0004:Soon\r\n");
    ReadAlerts();
    OpenAlertManager(true);
    auto* window = OpenedWindow<frmAlert>();
    window->menus[QStringLiteral("mnuViewAll")]->trigger();
    window->menus[QStringLiteral("mnuSortMessage")]->trigger();
    EXPECT_TRUE(window->lstAlerts[2]->isVisible());
    EXPECT_EQ(window->lstAlerts[1]->item(0)->toolTip(), QStringLiteral("<qt>&lt;b&gt;Gone</qt>"))
        << "a text, not markup";
    window->lstAlerts[2]->setCurrentRow(1);
    EXPECT_EQ(window->txtMessage->toPlainText(), QStringLiteral("Soon"));
    EXPECT_EQ(window->txtValue->text(), QStringLiteral("4"));
    EXPECT_TRUE(std::ranges::none_of(window->optValue, [](auto* option) { return option->isChecked(); }));
    window->menus[QStringLiteral("mnuFileNew")]->trigger();
    window->txtMessage->setPlainText(QStringLiteral("typed"));
    reachByTab(window->lstAlerts[2]);
    window->menus[QStringLiteral("mnuSortDate")]->trigger();
    window->menus[QStringLiteral("mnuViewPending")]->trigger();
    OpenAlertManager(false);
    EXPECT_EQ(window->lblList->text(), QStringLiteral("Active Alert List: 2 Alerts")) << "those asked for are shown";
    OpenAlertManagerFor(MakeDate(2026, 12, 1));
    EXPECT_EQ(window->txtMessage->toPlainText(), QStringLiteral("typed")) << "what is being typed stays";
    EXPECT_EQ(window->txtDate->text(), QStringLiteral("12/01/26"));
    dialogs.expect("Alert Has Changed", Answer::No);
    dialogs.expect("Backup");
    window->menus[QStringLiteral("mnuOptDeleteOldAlerts")]->trigger();
    EXPECT_EQ(folder.get("Alerts.dat"), "46350:0004:Soon\r\n");
    window->menus[QStringLiteral("mnuFileExit")]->trigger();
    EXPECT_EQ(OpenedWindow<frmAlert>(), nullptr);
}

TEST_F(ReminderWindows, TheKeysPassEntriesThatAreTheSame) {
    folder.put("Alerts.dat", "46349:0003:Twice\r\n46349:0003:Twice\r\n46350:0004:Later\r\n");
    folder.put("Holidays/2026Holidays.dat", "07/04/26:Twice\r\n07/04/26:Twice\r\n12/25/26:Christmas\r\n");
    ReadAlerts();
    OpenAlertManager(false);
    for (QListWidget* list : {OpenedWindow<frmAlert>()->lstAlerts[1], ShowWindow<frmHolidays>()->lstHolidays})
        for (const int row : {1, 2}) {
            QTest::keyClick(list, Qt::Key_Down);
            EXPECT_EQ(list->currentRow(), row) << list->objectName().toStdString();
        }
}

// What was typed goes only where the answer says so: by a click on another entry, by a new one, by closing.
TEST_F(ReminderWindows, WhatWasTypedIsAskedAbout) {
    folder.put("Alerts.dat", "46349:0003:Soon\r\n46350:0004:Later\r\n");
    folder.put("Birthdays.dat", "01/02:00:Ann:1990\r\n03/04:00:Ben:1991\r\n");
    folder.put("Holidays/2026Holidays.dat", "07/04/26:Fourth\r\n12/25/26:Christmas\r\n");
    ReadAlerts();
    OpenAlertManager(false);
    auto* alerts = OpenedWindow<frmAlert>();
    auto* birthdays = ShowWindow<frmBDay>();
    birthdays->lstData[1]->setCurrentRow(0);
    auto* holidays = ShowWindow<frmHolidays>();
    struct Row {
        Window* window;
        QListWidget* list;
        std::function<void(const QString&)> type;
        std::function<QString()> text;
        const char* file;
        const char* overwrite;  // a question that saving asks, too
    };
    const Row rows[] = {{alerts, alerts->lstAlerts[1], [&](const QString& t) { alerts->txtMessage->setPlainText(t); },
                         [&] { return alerts->txtMessage->toPlainText(); }, "Alerts.dat", "over-write this alert?"},
                        {birthdays, birthdays->lstData[1], [&](const QString& t) { birthdays->txt[0]->setText(t); },
                         [&] { return birthdays->txt[0]->text(); }, "Birthdays.dat", nullptr},
                        {holidays, holidays->lstHolidays, [&](const QString& t) { holidays->txtDesc->setText(t); },
                         [&] { return holidays->txtDesc->text(); }, "Holidays/2026Holidays.dat", nullptr}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.file);
        const QString second = row.list->item(1)->text();
        row.type(QStringLiteral("typed"));
        dialogs.expect("Has Changed", Answer::Cancel);
        row.list->setCurrentRow(1);
        EXPECT_EQ(row.text(), QStringLiteral("typed"));
        EXPECT_EQ(row.list->currentRow(), 0) << "the entry that it belongs to";
        dialogs.expect("Has Changed", Answer::Cancel);
        row.window->close();
        dialogs.expect("Has Changed", Answer::Yes);
        if (row.overwrite != nullptr) {
            dialogs.expect(row.overwrite, Answer::Yes);
            dialogs.expect("Alert List Updated.");
        }
        row.list->setCurrentRow(1);
        EXPECT_NE(folder.get(row.file).find(":typed"), std::string::npos) << folder.get(row.file);
        EXPECT_EQ(row.list->currentItem()->text(), second) << "the entry that was clicked";
        EXPECT_NE(row.text(), QStringLiteral("typed"));
        row.type(QStringLiteral("dropped"));
        dialogs.expect("Has Changed", Answer::No);
        if (row.overwrite == nullptr) dialogs.expect("List Saved.");
        row.window->close();
        EXPECT_EQ(folder.get(row.file).find("dropped"), std::string::npos);
    }
}

TEST_F(ReminderWindows, TheMainWindowShowsWhatIsPending) {
    std::filesystem::copy(TASMORO_DATA, folder.path());
    folder.put("Alerts.dat", "46350:0004:Soon\r\n");
    folder.put("Birthdays.dat", "11/24:03:Ann:****\r\n");
    frmMain& main = *new frmMain;
    main.startUp();
    main.lstAlerts->setCurrentRow(0);
    EXPECT_EQ(main.lblAlertDate->text(), QStringLiteral("Alert Date = 11/24/26"));
    main.lstBirthdays->setCurrentRow(0);
    EXPECT_EQ(main.lblBirthdayDate->text(), QStringLiteral("Date = 11/24/26"));
    EXPECT_EQ(main.imgBDay->toolTip(), QStringLiteral("1 Birthday is Pending"));
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    for (const bool keyboard : {true, false}) {
        ReadAlerts();
        EXPECT_EQ(main.cmdAlert->text(), QStringLiteral("1 Pending Alert"));
        if (keyboard)
            QCoreApplication::sendEvent(main.cmdAlert, &menuKey);
        else
            QTest::mouseClick(main.cmdAlert, Qt::RightButton);
        EXPECT_EQ(main.cmdAlert->text(), QStringLiteral("Alerts Ignored"));
    }
    QTest::mouseClick(main.cmdAlert, Qt::LeftButton);
    EXPECT_TRUE(ViewPendingAlerts);
    OpenedWindow<frmAlert>()->close();
    main.item(QStringLiteral("mnuOptDateSetAlert"))->trigger();
    EXPECT_EQ(OpenedWindow<frmAlert>()->lblMain->text(), QStringLiteral("Adding New Alert"));
    main.imgBDay->click();
    EXPECT_EQ(OpenedWindow<frmBDay>()->lstData[1]->count(), 1);
    folder.put("Alerts.dat", "46350:0004:Earlier\r\n46350:0004:Soon\r\n");
    ReadAlerts();
    FillPendingAlertList();
    EXPECT_EQ(main.lstAlerts->currentRow(), -1) << "the row holds another alert";
    OpenBirthdayManager(MakeDate(2026, 12, 24));
    EXPECT_EQ(OpenedWindow<frmBDay>()->txt[1]->text(), QStringLiteral("12/24"));
}
