// The main window: start-up, menus, pickers, the calendar in it, its panels, its end.
#include "shell/frmMain.h"

#include "calendar/frm6Months.h"
#include "calendar/frmYear.h"
#include "marks/modIcons.h"
#include "marks/modMarks.h"
#include "marks/modSaveChanges.h"
#include "notes/frmNotes.h"
#include "notes/modNotes.h"
#include "reminders/modAlerts.h"
#include "shell/modPreferences.h"
#include "tests/support/calendar.h"
#include "tests/support/window_test.h"

namespace {
struct MainWindowTest : WindowTest {
    MainWindowTest() {
        SaveUserPreferences();
        folder.put("Marker Colors.dat", Replaced(CategoryLines, "Event", "R&D"));
        folder.put("Help_Topics.txt", "Getting Started:Click a day.\r\n*Marks:Mark it.\r\n");
        folder.put("Alerts.dat", "46350:0003:Order the cake\r\n");  // 24 November 2026
        folder.put("2026Marks.dat", "10:01:02:255-Dentist");        // 16 November 2026
        window_ = new frmMain;
        window_->startUp();
        window_->resize(1100, 800);
        window_->show();
        QCoreApplication::processEvents();
    }
    ~MainWindowTest() override {
        UnloadAllWindows();
        // A closed one clears the calls as it goes.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        AskAboutIcons = {};
    }

    static MonthPicture* picture(int index) {
        return OpenedWindow<frmYear>()->findChild<MonthPicture*>(ElementName("picMonth", index));
    }
    void pick(const char* month, const char* day, const char* year) const {
        window_->cmbMonth->setEditText(QString::fromLatin1(month));
        window_->cmbDay->setEditText(QString::fromLatin1(day));
        window_->cmbYear->setEditText(QString::fromLatin1(year));
    }

    frmMain* window_ = nullptr;
};

TEST_F(MainWindowTest, OpensInTheYearOfTodayAndShowsTheUsersCaptionsUnderTheCategorysIndex) {
    EXPECT_EQ(window_->cmbMonth->currentText() + window_->cmbDay->currentText() + window_->cmbYear->currentText(),
              QStringLiteral("November222026"));
    EXPECT_EQ(window_->lblDate->text(), QStringLiteral("Today is Sunday, November 22, 2026"));
    EXPECT_EQ(window_->cmdAlert->text(), QStringLiteral("1 Pending Alert"));
    EXPECT_FALSE(window_->item(QStringLiteral("mnuOptDateClearMark"))->isEnabled());
    EXPECT_TRUE(window_->lblTemplate->isHidden() && window_->imgCal[2]->isLatched());

    const QMenu* shown = window_->item(QStringLiteral("mnuEditDiplayedMarks"))->menu();
    QStringList names;
    for (const QAction* action : shown->actions()) names << action->objectName();
    EXPECT_EQ(names.mid(11).join(u' '), QStringLiteral("mnuEditMark(9) mnuEditMark(12) mnuEditMark(13) mnuEditMark(10) "
                                                       "mnuEditMark(11) mnuEditMarkerSaveSettings"));
    EXPECT_EQ(window_->item(QStringLiteral("mnuEditMark(7)"))->text(), QStringLiteral("R&&D"));
    EXPECT_EQ(window_->item(QStringLiteral("mnuOptDateMarkAs(10)"))->text(), QStringLiteral("Travel"));
    window_->item(QStringLiteral("mnuEditMark(9)"))->trigger();
    EXPECT_FALSE(window_->item(QStringLiteral("mnuEditMark(9)"))->isChecked());
    EXPECT_EQ(ShownMonths[10].painted[1][2], 0u) << "the hidden category's mark is painted white";
}

TEST_F(MainWindowTest, OneCalendarWindowAtATime) {
    QTest::mouseClick(window_->imgCal[0], Qt::LeftButton);
    EXPECT_EQ(CalendarView, 1);
    EXPECT_EQ(window_->lstAlerts->currentRow(), -1) << "the list beside the calendar took the focus";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(OpenedWindow<frmYear>(), nullptr);
    const auto* label = OpenedWindow<frmMonth>()->findChild<QLabel*>(QStringLiteral("lblTTT(0)"));
    EXPECT_EQ(label->toolTip(), QStringLiteral("16: Meeting: Dentist"));
    for (const char* title : {"Tasmoro: Dec 2026 Calendar", "Tasmoro: Jan 2027 Calendar"}) {
        QTest::keyClick(OpenedWindow<frmMonth>(), Qt::Key_Right);
        EXPECT_EQ(window_->windowTitle(), QLatin1String(title));
    }
    QTest::keyClick(OpenedWindow<frmMonth>(), Qt::Key_Return);
    ASSERT_NE(OpenedWindow<frmNotes>(), nullptr) << "the note of the day in the frame, which nobody has clicked";
    EXPECT_EQ(Notes.openDate, MakeDate(2027, 1, 1));
    OpenedWindow<frmNotes>()->close();
    QTest::keyClick(OpenedWindow<frmMonth>(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(OpenedWindow<frmMonth>(), nullptr);
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Tasmoro: 2027 Calendar"));
    QTest::mouseClick(OpenedWindow<frmYear>()->findChild<QPushButton*>(QStringLiteral("cmdMonth(4)")), Qt::LeftButton);
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Tasmoro: May 2027 Calendar"));
}

TEST_F(MainWindowTest, SixMonthsStandInTwoRowsOfThreeAreLeafedThroughAndOpened) {
    pick("October", "9", "2026");
    QTest::mouseClick(window_->imgCal[1], Qt::LeftButton);
    QCoreApplication::processEvents();
    auto* months = OpenedWindow<frm6Months>();
    const auto picture = [months](int i) { return months->findChild<MonthPicture*>(ElementName("picMonth", i)); };
    const auto button = [months](int i) { return months->findChild<QPushButton*>(ElementName("cmdView", i)); };
    QRegion taken;
    for (int i = 0; i < 6; ++i) {
        EXPECT_TRUE(picture(i)->x() == picture(i % 3)->x() && picture(i)->y() == picture(i / 3 * 3)->y()) << i;
        for (const QWidget* part : {static_cast<QWidget*>(picture(i)), static_cast<QWidget*>(button(i))}) {
            EXPECT_TRUE(months->rect().contains(part->geometry()) && !taken.intersects(part->geometry())) << i;
            taken += part->geometry();
        }
    }
    QTest::keyClick(months, Qt::Key_Right);
    EXPECT_EQ(button(0)->text(), QStringLiteral("April, 2027"));
    QTest::keyClick(months, Qt::Key_Left);
    QTest::mouseClick(picture(3), Qt::LeftButton, {}, MiddleOfDay(picture(3), MakeDate(2027, 1, 5)));
    EXPECT_TRUE(SelectedInNextYear && SelectedDate == MakeDate(2027, 1, 5));
    QTest::keyClick(button(3), Qt::Key_Return);
    EXPECT_TRUE(CalendarView == 1 && SelectedDate == MakeDate(2027, 1, 1));
}

TEST_F(MainWindowTest, PickersTakeEnterAndAnyYear) {
    pick("March", "9", "9");
    QTest::keyClick(window_->cmbYear, Qt::Key_Return);  // the box takes the keys, not its line edit
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Tasmoro: 2009 Calendar"));
    pick("July", "1", "1900");
    QTest::mouseClick(window_->imgOpt[0], Qt::LeftButton);
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Tasmoro: 1900 Calendar"));
    EXPECT_FALSE(window_->cmbMonth->lineEdit()->hasSelectedText());
    QTest::keyClick(window_->cmbMonth, Qt::Key_Down);
    QTest::keyClick(window_->cmbDay, Qt::Key_Down);
    EXPECT_EQ(window_->cmbMonth->currentText() + window_->cmbDay->currentText(), QStringLiteral("August2"))
        << "the arrow keys go on from the date shown";
}

TEST_F(MainWindowTest, TheYearIsCompletedWhenItsBoxIsLeft) {
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_));
    for (const auto& [typed, completed] : {std::pair{"9", "2009"}, std::pair{"20", "2020"}, std::pair{"99", "1999"}}) {
        window_->cmbYear->setFocus();
        window_->cmbYear->lineEdit()->selectAll();
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(typed));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::qWait(1);
        EXPECT_EQ(window_->cmbYear->currentText(), QString::fromLatin1(completed)) << typed;
    }
    OpenedWindow<frmYear>()->setFocus();
    QTest::mouseClick(window_->imgCal[2], Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), OpenedWindow<frmYear>()) << "a picture that is clicked takes no keys away";
}

TEST_F(MainWindowTest, ADayIsSelectedMarkedAndKept) {
    MonthPicture* november = picture(10);
    const QPoint middle = MiddleOfDay(november, MakeDate(2026, 11, 18));
    QTest::mouseClick(november, Qt::LeftButton, {}, middle);
    EXPECT_EQ(window_->cmbDay->currentText() + window_->lblHoliday->text(), QStringLiteral("18No Holiday Assigned"));
    EXPECT_EQ(window_->lblMonth->text() + window_->lblX->text() + window_->lblY->text(), QStringLiteral("1032"));
    window_->item(QStringLiteral("mnuOptDateQuickMark"))->trigger();
    EXPECT_EQ(november->grab().toImage().pixelColor(middle + QPoint(-8, -7)), FromColor(QuickMarksColor));
    dialogs.expectInput("Optional Hover Text for Nov 18, 2026", "Lunch");
    window_->item(QStringLiteral("mnuOptDateMarkAs(9)"))->trigger();
    EXPECT_EQ(folder.get("2026Marks.dat"), "10:01:02:255-Dentist\r\n10:03:02:255-Lunch");
    for (const auto& [day, marked] : {std::pair{"17", false}, {"16", true}}) {
        pick("November", day, "2026");
        QTest::mouseClick(window_->imgOpt[0], Qt::LeftButton);
        EXPECT_EQ(window_->item(QStringLiteral("mnuOptDateClearMark"))->isEnabled(), marked)
            << "the date of the pickers";
        EXPECT_EQ(window_->item(QStringLiteral("mnuOptDateQuickMark"))->isEnabled(), !marked);
    }
}

TEST_F(MainWindowTest, KeysMoveTheSelectionWithinTheViewAndTheMenuKeyOpensItsMenu) {
    auto* year = OpenedWindow<frmYear>();
    using Row = std::pair<Qt::Key, Date>;
    for (const auto& [key, date] :
         {Row{Qt::Key_Right, MakeDate(2026, 11, 23)}, Row{Qt::Key_Down, MakeDate(2026, 11, 30)},
          Row{Qt::Key_Right, MakeDate(2026, 12, 1)}, Row{Qt::Key_Up, MakeDate(2026, 11, 24)}}) {
        QTest::keyClick(year, key, Qt::ControlModifier);
        EXPECT_EQ(SelectedDate, date) << FormatDate(date, "m/d");
    }
    EXPECT_EQ(window_->cmbDay->currentText(), QStringLiteral("24"));

    QMenu* menu = window_->item(QStringLiteral("mnuDateOptions"))->menu();
    for (const auto& [date, marked] : {std::pair{MakeDate(2026, 11, 16), true}, {MakeDate(2026, 11, 17), false}}) {
        SelectDate(date);
        QTest::keyClick(year, Qt::Key_Menu);
        ASSERT_TRUE(menu->isVisible());
        EXPECT_TRUE(picture(10)->geometry().contains(picture(10)->parentWidget()->mapFromGlobal(menu->pos())));
        menu->hide();
        for (const char* item : {"mnuOptDateAttachHoverText", "mnuOptDateClearMark"})
            EXPECT_EQ(window_->item(QString::fromLatin1(item))->isEnabled(), marked) << item;
        EXPECT_EQ(window_->item(QStringLiteral("mnuOptDateQuickMark"))->isEnabled(), !marked);
    }
}

TEST_F(MainWindowTest, TheMonthIsWorkedFromTheKeyboard) {
    std::filesystem::copy(TASMORO_ICONS, folder.path(), std::filesystem::copy_options::recursive);
    folder.put("2026/Nov_Icons.dat", "21:00 Index:03\r\n21:01 Index:04\r\n15:00 Index:05\r\n");
    QTest::mouseClick(window_->imgCal[0], Qt::LeftButton);
    auto* month = OpenedWindow<frmMonth>();
    const auto* bar = month->findChild<QScrollBar*>(QStringLiteral("VScroll1"));
    const auto* labels = month->findChild<QWidget*>(QStringLiteral("picTTT"));
    QTest::keyClick(month, Qt::Key_PageDown);
    EXPECT_LT(labels->y(), 0) << "the labels below";
    QTest::keyClick(month, Qt::Key_PageUp);
    EXPECT_EQ(labels->y(), 0);
    const QPointF place(bar->parentWidget()->mapTo(month, QPoint(5, 5)));
    QWheelEvent wheel(place, month->mapToGlobal(place), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(month, &wheel);
    EXPECT_GT(bar->value(), 0);

    QMenu* menu = window_->item(QStringLiteral("mnuDateOptions"))->menu();
    QAction* remove = window_->item(QStringLiteral("mnuOptDateRemoveIcon"));
    for (const auto& [key, left] : {std::pair{Qt::Key_Up, 3}, std::pair{Qt::Key_Down, 2}, std::pair{Qt::Key_Up, 2}}) {
        QTest::keyClick(month, key, Qt::ControlModifier);
        QTest::keyClick(month, Qt::Key_Menu);
        ASSERT_TRUE(menu->isVisible());
        menu->hide();
        EXPECT_EQ(remove->isEnabled(), key == Qt::Key_Down) << "an icon of the selected day, if it has one";
        remove->trigger();
        EXPECT_EQ(MonthIconCount, left);
    }
    EXPECT_EQ(MonthIconLines[0], "21:00 Index:03");

    dialogs.expect("Month Has Changed", Answer::No);
    dialogs.expect("Shortcut = CTRL + T");
    window_->item(QStringLiteral("mnuFileCreateTemplate"))->trigger();
    dialogs.expect("Template Saved.");
    QTest::keyClick(OpenedWindow<frmMonth>(), Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(CalendarView, 12);
}

TEST_F(MainWindowTest, WhatItTellsDoesNotWidenIt) {
    Shell.showHolidayLabel("Holiday = " + std::string(300, 'x'));
    Shell.showTemplateLabel("Monthly View = Marks Only");
    QCoreApplication::processEvents();
    EXPECT_LE(window_->minimumSizeHint().width(), 800);
}

TEST_F(MainWindowTest, HoversAreSilentWhileANoteIsOpen) {
    for (const bool open : {true, false}) {
        NotesWindowOpen = open;
        QTest::mouseMove(picture(10), MiddleOfDay(picture(10), MakeDate(2026, 11, open ? 16 : 23)));
        QTest::mouseMove(picture(10), MiddleOfDay(picture(10), MakeDate(2026, 11, 16)) + QPoint(open, 1));
        EXPECT_EQ(window_->item(QStringLiteral("mnuOptDateAttachHoverText"))->isEnabled(), !open);
    }
}

TEST_F(MainWindowTest, PanelsLeaveTheCalendarItsRoomAndResizingReadsNoFile) {
    folder.put("2026Marks.dat", "not a mark");
    using Row = std::tuple<QSize, bool, bool>;
    for (const auto& [size, right, toDo] : {Row{{1280, 950}, true, true}, Row{{900, 950}, false, true},
                                            Row{{1280, 600}, true, false}, Row{{800, 600}, false, false}}) {
        window_->resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(window_->picRight->isVisible(), right) << size.width();
        EXPECT_EQ(window_->picBottom[1]->isVisible(), toDo) << size.height();
        EXPECT_TRUE(window_->picBottom[0]->isVisible());
    }
    const QPoint marked = MiddleOfDay(picture(10), MakeDate(2026, 11, 16)) + QPoint(-8, -7);
    EXPECT_EQ(picture(10)->grab().toImage().pixelColor(marked), FromColor(MeetingColor));
}

TEST_F(MainWindowTest, FillsThePanelsAfterTheCalendarThoughAFileIsReportedBeforeIt) {
    UnloadAllWindows();
    folder.put("Alerts.dat", "nothing\r\n46350:0003:Order the cake\r\n");
    int boxes = 0;
    const Dialogs scripted = SetDialogs({[&](const std::string&, Buttons, const std::string&) {
                                             QTest::qWait(20);  // the window is painted behind the box
                                             return ++boxes, Answer::Ok;
                                         },
                                         {}});
    window_ = new frmMain;
    QObject::connect(window_, &frmMain::firstPainted, window_, &frmMain::fillPanels);
    window_->show();
    window_->showCalendar();
    SetDialogs(scripted);
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(window_->lstAlerts, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window_->lstAlerts != nullptr; }));
    EXPECT_EQ(window_->lstAlerts->count(), 1);
}

TEST_F(MainWindowTest, AlertsCanBeIgnored) {
    window_->lstAlerts->setCurrentRow(0);
    EXPECT_EQ(window_->lblAlertDate->text(), QStringLiteral("Alert Date = 11/24/26"));
    FillPendingAlertList();  // after a save, say: the row stays, its date goes
    EXPECT_EQ(window_->lblAlertDate->text(), QStringLiteral("Alert Date ="));
    QTest::mouseClick(window_->lstAlerts->viewport(), Qt::LeftButton, {},
                      window_->lstAlerts->visualItemRect(window_->lstAlerts->item(0)).center());
    EXPECT_EQ(window_->lblAlertDate->text(), QStringLiteral("Alert Date = 11/24/26"));
    QTest::mouseClick(window_->cmdAlert, Qt::RightButton);
    EXPECT_EQ(window_->cmdAlert->text(), QStringLiteral("Alerts Ignored"));
}

TEST_F(MainWindowTest, CancelAtTheSaveChangesPromptKeepsEverything) {
    AskAboutIcons = [](bool) { SaveCancelled = true; };
    QTest::mouseClick(window_->imgCal[0], Qt::LeftButton);
    EXPECT_EQ(CalendarView, 12);
    EXPECT_FALSE(window_->close());
    EXPECT_TRUE(window_->isVisible());
    AskAboutIcons = {};
    QTest::mouseClick(window_->imgCal[0], Qt::LeftButton);
    EXPECT_EQ(CalendarView, 1);
    EXPECT_TRUE(window_->close());
}

TEST_F(MainWindowTest, TheTemplateGoesFromTheScreenWhenItIsLeftForANote) {
    dialogs.expect("ReadIconTags");  // no palette here
    dialogs.expect("Click and Drag the Icons");
    CreateOrModifyTemplate();
    IconsChanged = true;
    dialogs.expect("Do you want to save those changes?", Answer::No);
    QTest::mouseClick(window_->imgOpt[1], Qt::LeftButton);
    EXPECT_FALSE(TemplateMode);
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Tasmoro: Nov 2026 Calendar"));
    EXPECT_NE(OpenedWindow<frmNotes>(), nullptr);
}
}  // namespace
