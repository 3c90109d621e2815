// The windows of the date tools and the alarm clock.

#include "tests/support/window_test.h"
#include "tools/frmAlarm.h"
#include "tools/frmDateDiff.h"
#include "tools/frmNumDays.h"

namespace {
struct ToolWindows : WindowTest {
    /// Types over a box's text and presses Enter.
    static void enter(QLineEdit* box, const char* text) {
        box->selectAll();
        QTest::keyClicks(box, QString::fromLatin1(text));
        QTest::keyClick(box, Qt::Key_Return);
    }
};
}  // namespace

TEST_F(ToolWindows, DateBoxesFollowEachOther) {
    OpenDateDiff("Months");
    auto* window = OpenedWindow<frmDateDiff>();
    EXPECT_EQ(window->txtInput[1]->text(), QStringLiteral("Nov 22, 2026"));
    window->cmbYear[0]->setCurrentIndex(1);
    EXPECT_EQ(window->txtInput[0]->text(), QStringLiteral("Nov 22, 2009"));
    window->cmbMonth[0]->setCurrentIndex(1);
    window->cmbDay[0]->setEditText(QStringLiteral("30"));
    EXPECT_EQ(window->txtInput[0]->text(), QStringLiteral("Feb 22, 2009")) << "February 30 is no date";
    enter(window->txtInput[0], "12/31/2008");
    EXPECT_EQ(window->cmbMonth[0]->currentText() + window->cmbDay[0]->currentText(), QStringLiteral("December31"));
    EXPECT_EQ(window->txtInput[0]->text(), QStringLiteral("Dec 31, 2008"));
    enter(window->txtInput[1], "1/5/2009");
    EXPECT_EQ(window->cmbDay[1]->currentText(), QStringLiteral("05"));
    QTest::keyClick(window->cmbDay[1], Qt::Key_Down);
    EXPECT_EQ(window->txtInput[1]->text(), QStringLiteral("Jan 06, 2009"));
    window->cmdDateDiff->click();
    EXPECT_EQ(window->txtAnswer->text(), QStringLiteral("1"));
}

TEST_F(ToolWindows, IntervalsAndTextsThatAreNoDates) {
    OpenDateDiff("Days");
    auto* window = OpenedWindow<frmDateDiff>();
    const auto choose = [window](const char* name) {
        window->cmbInterval->setCurrentText(QString::fromLatin1(name));
        Q_EMIT window->cmbInterval->activated(window->cmbInterval->currentIndex());
    };
    choose("Day of Year");
    EXPECT_EQ(window->lblInterval->text(), QStringLiteral("Days"));
    choose("Hours");
    EXPECT_EQ(window->lblInterval->text(), QStringLiteral("Hours"));
    enter(window->txtInput[0], "11/23/2026");
    window->cmdDateDiff->click();
    EXPECT_EQ(window->txtAnswer->text(), QStringLiteral("-24"));
    enter(window->txtInput[1], "someday");
    EXPECT_EQ(window->txtInput[1]->text(), QStringLiteral("someday"));
    dialogs.expect("End Date is not a valid date.");
    window->cmdDateDiff->click();
    enter(window->txtInput[0], "2/29/2009");
    dialogs.expect("Start Date is not a valid date.");
    window->cmdDateDiff->click();
}

TEST_F(ToolWindows, WeekdaysAreCountedAndTheDatesKept) {
    auto* window = ShowWindow<frmNumDays>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    enter(window->txtStart, "1/31/09");
    EXPECT_EQ(window->txtStart->text(), QStringLiteral("1/31/2009"));
    EXPECT_EQ(QApplication::focusWidget(), window->txtEnd);
    dialogs.expect("Start Date is Greater than End Date. Please adjust.");
    enter(window->txtEnd, "1/1/2009");
    EXPECT_EQ(QApplication::focusWidget(), window->cmdGetDays);
    window->txtStart->setText(QStringLiteral("1/1/2009"));
    window->txtEnd->setText(QStringLiteral("Jan 31, 2009"));
    window->optDay[4]->click();
    QTest::keyClick(window->cmdGetDays, Qt::Key_Return);
    EXPECT_EQ(window->lblOccur->text(), QStringLiteral("Thursday found 5 times"));
    ASSERT_EQ(window->listed->rowCount(), 5);
    EXPECT_EQ(window->listed->stringList().at(4), QStringLiteral("Thursday 1/29/2009"));
    window->optDay[0]->click();
    EXPECT_EQ(window->listed->rowCount(), 0);
    window->txtEnd->setText(QStringLiteral("1/1/2700"));
    dialogs.expect("Too many occurrences: narrow the Date Difference");
    window->cmdGetDays->click();
    window->close();
    EXPECT_EQ(ShowWindow<frmNumDays>()->txtEnd->text(), QStringLiteral("1/1/2700"));
}

TEST_F(ToolWindows, LeavingABoxThatHoldsNoDateIsToldOnce) {
    auto* window = ShowWindow<frmNumDays>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    dialogs.expect("Invalid Date in Start Date Box!");
    enter(window->txtStart, "2/30/2009");
    dialogs.expect("Invalid Date in Start Date Box!");
    QTest::keyClick(window->txtStart, Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(NumDays.start, Date{});
    enter(window->txtStart, "2/28/2009");
    QTest::keyClicks(window->txtEnd, QStringLiteral("soon"));
    window->cmdGetDays->setFocus();
    dialogs.expect("Invalid Date in End Date Box!");
    window->cmdGetDays->click();
    QApplication::processEvents();
    EXPECT_EQ(window->listed->rowCount(), 0);
}

TEST_F(ToolWindows, AlarmIsSetStartedAndRings) {
    FixClock(2026, 12, 31, 23, 59, 30);
    OpenAlarm();
    auto* window = OpenedWindow<frmAlarm>();
    dialogs.expect("A valid time has not been entered.");
    window->cmdAM->click();
    QTest::keyClicks(window->txtTime, QStringLiteral("9a9999:x00"));
    EXPECT_EQ(window->txtTime->text(), QStringLiteral("99999:00"));
    dialogs.expect("valid time in the Time Box before.");
    window->cmdPM->click();
    window->cmdHour[11]->click();
    window->cmdAM->click();
    EXPECT_EQ(window->lblAlarm->text(), QStringLiteral("Time is Set for 12:00 AM. Click Start to Begin."));
    window->cmdStart->click();
    EXPECT_FALSE(window->cmdHour[0]->isEnabled());
    window->Timer1_Timer();
    EXPECT_TRUE(window->Timer1.isActive());
    FixClock(2027, 1, 1, 0, 0, 9);
    window->Timer1_Timer();
    EXPECT_FALSE(window->Timer1.isActive());
    std::string seen;
    for (; window->Timer2.isActive(); seen += window->lblAlarm->isVisible() ? '1' : '0') window->Timer2_Timer();
    EXPECT_EQ(seen, "10101");
    EXPECT_EQ(window->lblAlarm->text(), QStringLiteral("The Alarm time of 12:00 AM has been reached."));
}

TEST_F(ToolWindows, ResetEmptiesTheAlarmAndThereIsOneWindow) {
    OpenAlarm();
    auto* window = OpenedWindow<frmAlarm>();
    window->cmdMinute[1]->click();
    window->cmdHour[6]->click();
    window->cmdPM->click();
    EXPECT_EQ(window->lblAlarm->text(), QStringLiteral("Time is Set for 7:05 PM. Click Start to Begin."));
    window->cmdStart->click();
    window->cmdStart->click();
    EXPECT_FALSE(window->cmdStart->isVisible() || window->Timer1.isActive() || !window->txtTime->text().isEmpty());
    window->cmdHour[0]->click();
    EXPECT_EQ(window->txtTime->text(), QStringLiteral("1:00")) << "the minutes chosen before are forgotten";
    OpenAlarm();
    EXPECT_TRUE(OpenedWindow<frmAlarm>() == window && window->isMaximized());
    window->cmdExit->click();
    EXPECT_EQ(OpenedWindow<frmAlarm>(), nullptr);
}
