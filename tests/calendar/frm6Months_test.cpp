// The six-month view: its months and buttons, and days of next year marked, noted and kept in next year's files.
#include "calendar/frm6Months.h"

#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"
#include "forms/qt/text.h"
#include "marks/modMarkCommands.h"
#include "tests/support/calendar.h"
#include "tests/support/window_test.h"

namespace {
class SixMonths : public CalendarTest {
  protected:
    SixMonths() {
        Shell.openView = [this](int view) -> std::vector<Canvas*> {
            if (view == 6) return window_.canvases();
            openedView = view;
            return {};
        };
        Shell.captionMonth = [this](int index, auto& text) { window_.captionMonth(index, FromText(text)); };
        window_.resize(786, 500);
        window_.show();
    }

    void showFrom(int year, int month) {
        SelectDate(MakeDate(year, month, 9));
        Show6MonthCalendar();
        QCoreApplication::processEvents();
    }
    MonthPicture* picture(int index) const { return window_.findChild<MonthPicture*>(ElementName("picMonth", index)); }
    QPushButton* button(int index) const { return window_.findChild<QPushButton*>(ElementName("cmdView", index)); }
    void clickOn(int index, Date date) const {
        QTest::mouseClick(picture(index), Qt::LeftButton, {}, MiddleOfDay(picture(index), date));
    }

    frm6Months window_;
    int openedView = 0;
};

TEST_F(SixMonths, StandInTwoRowsOfThree) {
    showFrom(2026, 10);
    EXPECT_EQ(picture(0)->pos(), QPoint(12, 24));
    EXPECT_EQ(picture(2)->pos(), QPoint(524, 24));
    EXPECT_EQ(picture(5)->pos(), QPoint(524, 266));
    EXPECT_EQ(button(4)->pos(), QPoint(272, 244));
    for (int i = 0; i < 6; ++i) EXPECT_FALSE(button(i)->geometry().intersects(picture(i)->geometry())) << i;
    EXPECT_EQ(button(0)->text(), QStringLiteral("October, 2026"));
    EXPECT_EQ(button(5)->text(), QStringLiteral("March, 2027"));
}

TEST_F(SixMonths, NextYearsDaysGoToNextYearsFiles) {
    folder.put("2026Marks.dat", "09:01:01:255-Dentist");  // October 5, 2026
    folder.put("2027Marks.dat", "00:05:00:255-Brunch\r\n");
    showFrom(2026, 10);
    clickOn(3, MakeDate(2027, 1, 5));
    EXPECT_EQ(SelectedDate, MakeDate(2027, 1, 5));
    dialogs.expectInput("Optional Hover Text for Jan 05, 2027", "Lunch");
    MarkSelectedDateAs(9);
    EXPECT_EQ(folder.get("2026Marks.dat"), "09:01:01:255-Dentist");
    EXPECT_NE(folder.get("2027Marks.dat").find("00:02:01:255-Lunch"), std::string::npos) << folder.get("2027Marks.dat");
    EXPECT_EQ(ShownMonths[3].painted[2][1], MeetingColor);
    clickOn(0, MakeDate(2026, 10, 6));
    QuickMarkSelectedDate();
    EXPECT_NE(folder.get("2026Marks.dat").find("09:02:01:8421376"), std::string::npos);
}

TEST_F(SixMonths, AButtonOpensItsMonthAndKeysLeafThrough) {
    showFrom(2026, 10);
    QTest::keyClick(&window_, Qt::Key_Right);
    EXPECT_EQ(button(0)->text(), QStringLiteral("April, 2027"));
    EXPECT_FALSE(SpansNextYear);
    QTest::keyClick(&window_, Qt::Key_Left);
    button(3)->click();
    EXPECT_EQ(openedView, 1);
    EXPECT_EQ(SelectedDate, MakeDate(2027, 1, 1));
}
}  // namespace
