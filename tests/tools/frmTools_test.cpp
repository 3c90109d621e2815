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

TEST_F(ToolWindows, DateBoxesFollowEachOtherAndTheDifferenceFollowsThem) {
    OpenDateDiff("Months");
    auto* window = OpenedWindow<frmDateDiff>();
    const auto& [start, end] = window->txtInput;
    const auto shown = [&] { return (start->text() + QStringLiteral(" - ") + end->text()).toStdString(); };
    const auto difference = [window](const char* interval) {
        window->cmbInterval->setCurrentText(QString::fromLatin1(interval));
        Q_EMIT window->cmbInterval->activated(window->cmbInterval->currentIndex());
        window->cmdDateDiff->click();
        return (window->txtAnswer->text() + u' ' + window->lblInterval->text()).toStdString();
    };
    window->cmbYear[0]->setCurrentIndex(1);
    window->cmbMonth[0]->setCurrentIndex(1);
    window->cmbDay[0]->setEditText(QStringLiteral("30"));
    EXPECT_EQ(shown(), "Feb 22, 2009 - Nov 22, 2026") << "February 30 is no date";
    enter(start, "12/31/2008");
    EXPECT_EQ(window->cmbMonth[0]->currentText() + window->cmbDay[0]->currentText(), QStringLiteral("December31"));
    enter(end, "1/5/2009");
    EXPECT_EQ(window->cmbDay[1]->currentText(), QStringLiteral("05"));
    QTest::keyClick(window->cmbDay[1], Qt::Key_Down);
    EXPECT_EQ(shown(), "Dec 31, 2008 - Jan 06, 2009");
    EXPECT_EQ(difference("Day of Year"), "1 Months") << "no interval of its own";
    EXPECT_EQ(difference("Hours"), "144 Hours");
    enter(end, "someday");
    click(window->cmdDateDiff, "End Date is not a valid date.");
    enter(start, "2/29/2009");
    click(window->cmdDateDiff, "Start Date is not a valid date.");
    EXPECT_EQ(shown(), "2/29/2009 - someday");
}

TEST_F(ToolWindows, WeekdaysAreCountedAndTheDatesKept) {
    auto* window = ShowWindow<frmNumDays>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    for (const Qt::Key left : {Qt::Key_Return, Qt::Key_Tab}) {  // each is told once
        dialogs.expect("Invalid Date in Start Date Box!");
        window->txtStart->setText(QStringLiteral("2/30/2009"));
        QTest::keyClick(window->txtStart, left);
        QApplication::processEvents();
    }
    EXPECT_EQ(NumDays.start, Date{});
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
    EXPECT_EQ(window->listed->stringList().value(4), QStringLiteral("Thursday 1/29/2009"));
    window->optDay[0]->click();
    EXPECT_EQ(window->listed->rowCount(), 0);
    for (const auto& [end, told] : {std::pair{"1/1/2700", "Too many occurrences: narrow the Date Difference"},
                                    {"soon", "Invalid Date in End Date Box!"}}) {
        window->txtEnd->setFocus();
        window->txtEnd->setText(QString::fromLatin1(end));
        window->cmdGetDays->setFocus();
        click(window->cmdGetDays, told);
        QApplication::processEvents();
    }
    EXPECT_EQ(window->listed->rowCount(), 0);
    window->close();
    EXPECT_EQ(ShowWindow<frmNumDays>()->txtEnd->text(), QStringLiteral("1/1/2700"));
}

TEST_F(ToolWindows, AlarmIsSetStartedRingsAndStartsAfresh) {
    FixClock(2026, 12, 31, 23, 59, 30);
    OpenAlarm();
    auto* window = OpenedWindow<frmAlarm>();
    click(window->cmdAM, "A valid time has not been entered.");
    QTest::keyClicks(window->txtTime, QStringLiteral("9a9999:x00"));
    EXPECT_EQ(window->txtTime->text(), QStringLiteral("99999:00"));
    click(window->cmdPM, "valid time in the Time Box before.");
    window->cmdMinute[1]->click();
    window->cmdHour[11]->click();
    window->cmdAM->click();
    EXPECT_EQ(window->lblAlarm->text(), QStringLiteral("Time is Set for 12:05 AM. Click Start to Begin."));
    window->cmdStart->click();
    EXPECT_FALSE(window->cmdHour[0]->isEnabled());
    window->Timer1_Timer();
    EXPECT_TRUE(window->Timer1.isActive());
    FixClock(2027, 1, 1, 0, 5, 9);
    window->Timer1_Timer();
    EXPECT_FALSE(window->Timer1.isActive());
    std::string seen;
    for (; window->Timer2.isActive(); seen += window->lblAlarm->isVisible() ? '1' : '0') window->Timer2_Timer();
    EXPECT_EQ(seen, "10101");
    EXPECT_EQ(window->lblAlarm->text(), QStringLiteral("The Alarm time of 12:05 AM has been reached."));
    window->cmdStart->click();
    window->cmdHour[0]->click();
    EXPECT_EQ(window->txtTime->text(), QStringLiteral("1:00")) << "the minutes chosen before are forgotten";
    window->cmdPM->click();
    window->cmdStart->click();
    window->cmdStart->click();
    EXPECT_FALSE(window->cmdStart->isVisible() || window->Timer1.isActive() || !window->txtTime->text().isEmpty());
    OpenAlarm();
    EXPECT_TRUE(OpenedWindow<frmAlarm>() == window && window->isMaximized());
    window->cmdExit->click();
    EXPECT_EQ(OpenedWindow<frmAlarm>(), nullptr);
}
