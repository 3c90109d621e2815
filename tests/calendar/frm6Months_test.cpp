// The six-month view: its months and buttons, and days of next year marked, noted and kept in next year's files.
#include "calendar/frm6Months.h"

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

    MonthPicture* picture(int index) const { return window_.findChild<MonthPicture*>(ElementName("picMonth", index)); }
    QPushButton* button(int index) const { return window_.findChild<QPushButton*>(ElementName("cmdView", index)); }

    frm6Months window_;
    int openedView = 0;
};

TEST_F(SixMonths, StandInTwoRowsOfThreeAreLeafedThroughAndOpened) {
    SelectDate(MakeDate(2026, 10, 9));
    Show6MonthCalendar();
    QCoreApplication::processEvents();
    EXPECT_EQ(picture(0)->pos(), QPoint(12, 24));
    EXPECT_EQ(picture(2)->pos(), QPoint(524, 24));
    EXPECT_EQ(picture(5)->pos(), QPoint(524, 266));
    EXPECT_EQ(button(4)->pos(), QPoint(272, 244));
    for (int i = 0; i < 6; ++i) EXPECT_FALSE(button(i)->geometry().intersects(picture(i)->geometry())) << i;

    QTest::keyClick(&window_, Qt::Key_Right);
    EXPECT_EQ(button(0)->text(), QStringLiteral("April, 2027"));
    EXPECT_FALSE(SpansNextYear);
    QTest::keyClick(&window_, Qt::Key_Left);
    QTest::mouseClick(picture(3), Qt::LeftButton, {}, MiddleOfDay(picture(3), MakeDate(2027, 1, 5)));
    EXPECT_TRUE(SelectedInNextYear && SelectedDate == MakeDate(2027, 1, 5));
    QTest::keyClick(button(3), Qt::Key_Return);
    EXPECT_EQ(openedView, 1);
    EXPECT_EQ(SelectedDate, MakeDate(2027, 1, 1));
}
}  // namespace
